# precompile_headers(): the headers of Qt, GoogleTest and the standard library that most sources include are
# compiled once for many targets. For the builds that only test; the others prove that each source includes what it
# uses.

# Each group of targets links at least these libraries. A target belongs to the first group that fits.
set(QUEND_PRECOMPILED_GROUPS window_tests tests windows layers)
set(QUEND_PRECOMPILED_window_tests Qt6::Widgets GTest::gtest)
set(QUEND_PRECOMPILED_tests Qt6::Core GTest::gtest)
set(QUEND_PRECOMPILED_windows Qt6::Widgets)
set(QUEND_PRECOMPILED_layers Qt6::Core)

set(QUEND_HEADERS_OF_STD algorithm array chrono cmath cstddef cstdint functional limits map memory optional ostream set
  span stdexcept string string_view utility variant vector)
set(QUEND_HEADERS_OF_Qt6::Core QByteArray QCoreApplication QDate QDir QFile QLocale QObject QString QStringList
  QTemporaryDir QTimer)
set(QUEND_HEADERS_OF_Qt6::Widgets QAction QApplication QComboBox QDialog QKeyEvent QLabel QLineEdit QMainWindow QMenu
  QPainter QPushButton QScrollBar QWindow)
set(QUEND_HEADERS_OF_GTest::gtest gtest/gtest.h)

function(precompile_headers)
  foreach(group IN LISTS QUEND_PRECOMPILED_GROUPS)
    set(headers ${QUEND_HEADERS_OF_STD})
    foreach(library IN LISTS QUEND_PRECOMPILED_${group})
      list(APPEND headers ${QUEND_HEADERS_OF_${library}})
    endforeach()
    list(TRANSFORM headers REPLACE "(.+)" "<\\1>")
    set(source "${CMAKE_BINARY_DIR}/precompiled/${group}.cpp")
    file(CONFIGURE OUTPUT "${source}" CONTENT "")
    add_library(precompiled_${group} OBJECT "${source}")
    target_link_libraries(precompiled_${group} PRIVATE Qt6::Core ${QUEND_PRECOMPILED_${group}} strictness)
    target_precompile_headers(precompiled_${group} PRIVATE ${headers})
  endforeach()
  precompile_below("${CMAKE_SOURCE_DIR}")
endfunction()

function(precompile_below folder)
  get_property(targets DIRECTORY "${folder}" PROPERTY BUILDSYSTEM_TARGETS)
  foreach(target IN LISTS targets)
    get_target_property(type ${target} TYPE)
    get_target_property(options ${target} COMPILE_OPTIONS)
    get_target_property(usual_options precompiled_layers COMPILE_OPTIONS)
    # Headers compiled with other options do not fit.
    if(type MATCHES "EXECUTABLE|(STATIC|MODULE|OBJECT)_LIBRARY" AND NOT target MATCHES "^precompiled_"
       AND options STREQUAL usual_options)
      precompile(${target})
    endif()
  endforeach()
  get_property(subfolders DIRECTORY "${folder}" PROPERTY SUBDIRECTORIES)
  foreach(subfolder IN LISTS subfolders)
    precompile_below("${subfolder}")
  endforeach()
endfunction()

function(precompile target)
  linked_libraries(${target} LINK_LIBRARIES linked)
  foreach(group IN LISTS QUEND_PRECOMPILED_GROUPS)
    set(missing ${QUEND_PRECOMPILED_${group}})
    list(REMOVE_ITEM missing ${linked})
    if(NOT missing)
      target_precompile_headers(${target} REUSE_FROM precompiled_${group})
      return()
    endif()
  endforeach()
endfunction()

# linked_libraries(<target> <property> <variable>): the targets that it names, and those that they name publicly.
function(linked_libraries target property variable)
  set(found ${${variable}})
  get_target_property(libraries ${target} ${property})
  foreach(library IN LISTS libraries)
    if(TARGET "${library}" AND NOT library IN_LIST found)
      list(APPEND found "${library}")
      linked_libraries(${library} INTERFACE_LINK_LIBRARIES found)
    endif()
  endforeach()
  set(${variable} "${found}" PARENT_SCOPE)
endfunction()
