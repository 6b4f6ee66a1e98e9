# add_loan_test(<name> LABEL <folder> SOURCES … USES … [MAIN <library with main>] [EACH_ALONE])
# A GoogleTest program; its tests have the folder's name as label. Programs start slowly under the
# sanitizers, so there one process runs all tests, except with EACH_ALONE, for tests that need a process
# each. Tests also see the private headers of the layers that they use.
function(add_loan_test name)
  cmake_parse_arguments(TEST "EACH_ALONE" "LABEL;MAIN" "SOURCES;USES" ${ARGN})
  if(NOT TEST_MAIN)
    set(TEST_MAIN GTest::gtest_main)
  endif()
  add_executable(${name} ${TEST_SOURCES})
  target_link_libraries(${name} PRIVATE ${TEST_USES} test_support GTest::gtest ${TEST_MAIN} strictness)
  foreach(layer IN LISTS TEST_USES)
    if(TARGET ${layer}_private)
      target_link_libraries(${name} PRIVATE ${layer}_private)
    endif()
  endforeach()
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
