set(QUEND_LANGUAGE_DIR "${CMAKE_CURRENT_LIST_DIR}/../language")

# compile_texts(<texts.txt> <rows>)
# Compiles a table of texts into rows of a constant array. Add the rows to the sources of the target that includes
# them. An invalid table stops the build with the line number.
function(compile_texts table rows)
  get_filename_component(texts_file "${table}" ABSOLUTE)
  add_custom_command(OUTPUT "${rows}"
    COMMAND compiletexts "${texts_file}" "${rows}"
    DEPENDS compiletexts "${texts_file}"
    COMMENT "Compiling ${texts_file}"
    VERBATIM)
endfunction()

# configure_component(<texts.txt> <folder>)
# Generates the source of a component in the folder, and a Component.json with the language and tag of the table's head.
function(configure_component table folder)
  get_filename_component(texts_file "${table}" ABSOLUTE)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${texts_file}")
  foreach(header language tag)
    file(STRINGS "${texts_file}" line REGEX "^${header}[ \t]*=" LIMIT_COUNT 1)
    string(REGEX REPLACE "^[^=]*=[ \t]*" "" line "${line}")
    string(STRIP "${line}" line)
    string(REGEX REPLACE "([\"\\\\])" "\\\\\\1" ${header} "${line}")
  endforeach()
  configure_file("${QUEND_LANGUAGE_DIR}/LanguageComponent.cpp.in" "${folder}/Component.cpp" @ONLY)
  configure_file("${QUEND_LANGUAGE_DIR}/Component.json.in" "${folder}/Component.json" @ONLY)
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
    set(folder "${CMAKE_CURRENT_BINARY_DIR}/${component}")
    configure_component("${table}" "${folder}")
    compile_texts("${table}" "${folder}/Texts.inc")
    # A separate target: as a source of the component the rows would wait for moc, which reads them.
    add_custom_target(${component}_texts DEPENDS "${folder}/Texts.inc")
    add_library(${component} MODULE "${folder}/Component.cpp")
    add_dependencies(${component} ${component}_texts)
    set_target_properties(${component} PROPERTIES
      AUTOMOC ON
      AUTOGEN_TARGET_DEPENDS ${component}_texts
      PREFIX ""
      OUTPUT_NAME "${LANGUAGES_PROGRAM}${identifier}.Resources"
      LIBRARY_OUTPUT_DIRECTORY "${LANGUAGES_DESTINATION}")
    target_link_libraries(${component} PRIVATE texttable strictness)
    seal(${component})
    add_dependencies(${target} ${component})
    set_property(TARGET ${target} APPEND PROPERTY QUEND_COMPONENTS ${component})
  endforeach()
endfunction()
