set(QUEND_LANGUAGE_DIR "${CMAKE_CURRENT_LIST_DIR}/../language")

# configure_texts(<texts.txt> <template> <source> <check variable>)
# Generates a source from a template, with the table of texts as @texts@, and a Component.json beside it,
# with the language and tag of the table's head as @language@ and @tag@. Add the file named by the check
# variable to the target's sources: making it checks the table, so that an invalid table stops the build
# with the line number.
function(configure_texts table template source check)
  get_filename_component(texts_file "${table}" ABSOLUTE)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${texts_file}")
  file(READ "${texts_file}" texts)
  foreach(header language tag)
    string(REGEX MATCH "\n${header}[ \t]*=[ \t]*([^\r\n]*)" line "\n${texts}")
    string(STRIP "${CMAKE_MATCH_1}" ${header})
    string(REGEX REPLACE "([\"\\\\])" "\\\\\\1" ${header} "${${header}}")
  endforeach()
  get_filename_component(folder "${source}" DIRECTORY)
  configure_file("${QUEND_LANGUAGE_DIR}/${template}" "${source}" @ONLY)
  configure_file("${QUEND_LANGUAGE_DIR}/Component.json.in" "${folder}/Component.json" @ONLY)

  add_custom_command(OUTPUT "${source}.checked"
    COMMAND checktexts "${texts_file}"
    COMMAND ${CMAKE_COMMAND} -E touch "${source}.checked"
    DEPENDS checktexts "${texts_file}"
    COMMENT "Checking ${texts_file}")
  set(${check} "${source}.checked" PARENT_SCOPE)
endfunction()

# add_language_components(<target> FOLDER <folder> PROGRAM <name> DESTINATION <folder>)
# Builds each <FOLDER>/<identifier>/texts.txt into a separate plugin,
# <DESTINATION>/<PROGRAM><identifier>.Resources.so. A new folder is a new language; nothing else needs to be
# changed. The target builds all of them; its property QUEND_COMPONENTS lists them.
function(add_language_components target)
  cmake_parse_arguments(LANGUAGES "" "FOLDER;PROGRAM;DESTINATION" "" ${ARGN})
  add_custom_target(${target} ALL)
  file(GLOB tables CONFIGURE_DEPENDS "${LANGUAGES_FOLDER}/*/texts.txt")
  foreach(table IN LISTS tables)
    get_filename_component(folder "${table}" DIRECTORY)
    get_filename_component(identifier "${folder}" NAME)
    set(component "${target}_${identifier}")
    set(source "${CMAKE_CURRENT_BINARY_DIR}/${component}/Component.cpp")
    configure_texts("${table}" LanguageComponent.cpp.in "${source}" check)
    add_library(${component} MODULE "${source}" "${check}")
    set_target_properties(${component} PROPERTIES
      AUTOMOC ON
      PREFIX ""
      OUTPUT_NAME "${LANGUAGES_PROGRAM}${identifier}.Resources"
      LIBRARY_OUTPUT_DIRECTORY "${LANGUAGES_DESTINATION}")
    target_link_libraries(${component} PRIVATE texttable strictness)
    seal(${component})
    add_dependencies(${target} ${component})
    set_property(TARGET ${target} APPEND PROPERTY QUEND_COMPONENTS ${component})
  endforeach()
endfunction()
