# add_layer(<name> [COMPUTES] HEADERS … [PRIVATE_HEADERS …] SOURCES … USES …)
# One layer: a static library that exposes only the folders of its public headers to its users, so that an
# include in the wrong direction does not compile. Private headers are for the layer itself and its tests,
# which link <name>_private; scripts/check_includes.py keeps other layers from those that share a folder with
# public ones. COMPUTES: its speed counts, not its size.
function(add_layer name)
  cmake_parse_arguments(LAYER "COMPUTES" "" "HEADERS;PRIVATE_HEADERS;SOURCES;USES" ${ARGN})
  add_library(${name} STATIC ${LAYER_SOURCES})
  add_headers(${name} PUBLIC ${LAYER_HEADERS})
  # Public, because headers are also compiled alone and by users of the layer.
  target_compile_features(${name} PUBLIC cxx_std_20)
  target_link_libraries(${name} PUBLIC ${LAYER_USES} PRIVATE strictness)
  if(LAYER_COMPUTES AND CMAKE_BUILD_TYPE STREQUAL "Release")
    target_compile_options(${name} PRIVATE -O3)
  endif()
  if(LAYER_PRIVATE_HEADERS)
    add_library(${name}_private INTERFACE)
    add_headers(${name}_private INTERFACE ${LAYER_PRIVATE_HEADERS})
    target_link_libraries(${name}_private INTERFACE ${name})
    target_include_directories(${name} PRIVATE
      $<TARGET_PROPERTY:${name}_private,INTERFACE_INCLUDE_DIRECTORIES>)
  endif()
endfunction()

# add_headers(<target> <scope> <header>…)
# The folders of the headers are include directories. One file set a folder, because the folders of
# one set must not contain each other.
function(add_headers target scope)
  set(folders)
  foreach(header IN LISTS ARGN)
    cmake_path(ABSOLUTE_PATH header)
    cmake_path(GET header PARENT_PATH folder)
    string(MAKE_C_IDENTIFIER "headers${folder}" set)
    list(APPEND folders "${folder}")
    list(APPEND ${set} "${header}")
  endforeach()
  list(REMOVE_DUPLICATES folders)
  foreach(folder IN LISTS folders)
    string(MAKE_C_IDENTIFIER "headers${folder}" set)
    target_sources(${target} ${scope} FILE_SET ${set} TYPE HEADERS BASE_DIRS "${folder}" FILES ${${set}})
  endforeach()
endfunction()

# seal(<library>)
# Appends a seal after each link. The linker strips the library, because stripping it later, in a package,
# would remove the seal.
function(seal library)
  target_link_options(${library} PRIVATE $<$<CONFIG:Release>:-s>)
  add_custom_command(TARGET ${library} POST_BUILD VERBATIM
    COMMAND ${CMAKE_COMMAND} -D "LIBRARY=$<TARGET_FILE:${library}>" -P "${CMAKE_SOURCE_DIR}/cmake/Seal.cmake")
endfunction()

# add_plugin(<name> NAME <file> SOURCES … USES …)
# A plugin beside the program, loaded on first use (Plugin.h). Its layers must not link the language or
# a window: the plugin would contain separate copies of them.
function(add_plugin name)
  cmake_parse_arguments(PART "" "NAME" "SOURCES;USES" ${ARGN})
  add_library(${name} MODULE ${PART_SOURCES})
  target_link_libraries(${name} PRIVATE ${PART_USES} strictness)
  set_target_properties(${name} PROPERTIES AUTOMOC ON PREFIX "" OUTPUT_NAME "${PART_NAME}"
    LIBRARY_OUTPUT_DIRECTORY "${QUEND_PROGRAM_DIR}")
  set_property(GLOBAL APPEND PROPERTY QUEND_PLUGINS ${name})
  seal(${name})
endfunction()

# compile_alone(<source>…)
# Excludes sources from unity builds if their names would clash with those of other sources.
function(compile_alone)
  set_source_files_properties(${ARGN} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
endfunction()
