# add_floor(<name> HEADERS … SOURCES … USES …)
# One layer: a static library that exposes only its own folder to its users, so that an include in the wrong
# direction does not compile.
function(add_floor name)
  cmake_parse_arguments(FLOOR "" "" "HEADERS;SOURCES;USES" ${ARGN})
  add_library(${name} STATIC ${FLOOR_SOURCES})
  target_sources(${name} PUBLIC FILE_SET HEADERS BASE_DIRS ${CMAKE_CURRENT_SOURCE_DIR} FILES ${FLOOR_HEADERS})
  # Public, because headers are also compiled alone and by users of the layer.
  target_compile_features(${name} PUBLIC cxx_std_20)
  target_link_libraries(${name} PUBLIC ${FLOOR_USES} PRIVATE strictness)
endfunction()

# seal(<library>)
# Appends a seal after each link. The linker strips the library, because stripping it later, in a package,
# would remove the seal.
function(seal library)
  target_link_options(${library} PRIVATE $<$<CONFIG:Release>:-s>)
  add_custom_command(TARGET ${library} POST_BUILD VERBATIM
    COMMAND ${CMAKE_COMMAND} -D "LIBRARY=$<TARGET_FILE:${library}>" -P "${CMAKE_SOURCE_DIR}/cmake/Seal.cmake")
endfunction()

# add_program_part(<name> NAME <file> SOURCES … USES …)
# A plugin beside the program, loaded on first use (ProgramPart.h). Its layers must not link the language or
# a window: the plugin would contain separate copies of them.
function(add_program_part name)
  cmake_parse_arguments(PART "" "NAME" "SOURCES;USES" ${ARGN})
  add_library(${name} MODULE ${PART_SOURCES})
  target_link_libraries(${name} PRIVATE ${PART_USES} strictness)
  set_target_properties(${name} PROPERTIES AUTOMOC ON PREFIX "" OUTPUT_NAME "${PART_NAME}"
    LIBRARY_OUTPUT_DIRECTORY "${QUEND_PROGRAM_DIR}")
  set_property(GLOBAL APPEND PROPERTY QUEND_PROGRAM_PARTS ${name})
  seal(${name})
endfunction()

# compile_alone(<source>…)
# Excludes sources from unity builds if their names would clash with those of other sources.
function(compile_alone)
  set_source_files_properties(${ARGN} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
endfunction()

# add_loan_test(<name> LABEL <folder> SOURCES … USES … [MAIN <library with main>] [EACH_ALONE])
# A GoogleTest program; its tests have the folder's name as label. Programs start slowly under the
# sanitizers, so there one process runs all tests, except with EACH_ALONE, for tests that need a process
# each.
function(add_loan_test name)
  cmake_parse_arguments(TEST "EACH_ALONE" "LABEL;MAIN" "SOURCES;USES" ${ARGN})
  if(NOT TEST_MAIN)
    set(TEST_MAIN GTest::gtest_main)
  endif()
  add_executable(${name} ${TEST_SOURCES})
  target_link_libraries(${name} PRIVATE ${TEST_USES} GTest::gtest ${TEST_MAIN} strictness)
  target_compile_definitions(${name} PRIVATE
    QUEND_SOURCE_DIR="${CMAKE_SOURCE_DIR}" QUEND_PROGRAM_DIR="${QUEND_PROGRAM_DIR}"
    QUEND_TEST_DATA="${CMAKE_SOURCE_DIR}/tests/data")
  set(environment QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 ASAN_OPTIONS=detect_leaks=1
    "LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/tests/support/leaks.supp:print_suppressions=0")
  if(QUEND_SANITIZE AND NOT TEST_EACH_ALONE)
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES LABELS ${TEST_LABEL} TIMEOUT 600 ENVIRONMENT "${environment}")
    return()
  endif()
  include(GoogleTest)
  gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES LABELS ${TEST_LABEL} TIMEOUT 120)
  # In a separate file, because of a list in the properties above only the first entry arrives.
  set(file "${CMAKE_CURRENT_BINARY_DIR}/${name}_environment.cmake")
  file(CONFIGURE OUTPUT "${file}" @ONLY CONTENT [[
if(@name@_TESTS)
  set_tests_properties(${@name@_TESTS} PROPERTIES ENVIRONMENT "@environment@")
endif()
]])
  set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES "${file}")
endfunction()
