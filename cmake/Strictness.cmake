# Compiler flags of every target. Linked privately, so that no flag propagates.
add_library(strictness INTERFACE)
target_compile_features(strictness INTERFACE cxx_std_20)
target_compile_definitions(strictness INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY QT_NO_KEYWORDS
  QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_NO_FOREACH QT_NO_URL_CAST_FROM_STRING
  QT_DISABLE_DEPRECATED_BEFORE=0x060400 $<$<NOT:$<CONFIG:Debug>>:QT_NO_DEBUG_OUTPUT>)
target_compile_options(strictness INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wdouble-promotion
  -Wnon-virtual-dtor -Wold-style-cast -Woverloaded-virtual -Wcast-align -Wformat=2
  -Wnull-dereference -Wimplicit-fallthrough -Wextra-semi
  # Results must be the same everywhere: no fused operations, which round differently.
  -ffp-contract=off
  # Rounding a double then takes one instruction; the program never reads errno after it.
  -fno-math-errno)

if(QUEND_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
# Most of the program is windows, whose speed is Qt's; small code leaves more of it unread at the start. What computes
# asks for speed (add_layer).
set(CMAKE_CXX_FLAGS_RELEASE "${QUEND_OPTIMISE} -DNDEBUG")
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
