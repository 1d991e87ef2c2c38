# Flags of our own targets; nothing of this reaches a library that we only call.
add_library(vellumark_compiler INTERFACE)
target_compile_options(vellumark_compiler INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
  -Woverloaded-virtual -Wold-style-cast -Wcast-qual -Wconversion -Wsign-conversion)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # Optimising, g++ 12 sees overlapping copies in the standard library's strings that can't happen (its PR105651).
  target_compile_options(vellumark_compiler INTERFACE -Wno-restrict)
endif()
if(VELLUMARK_WERROR)
  target_compile_options(vellumark_compiler INTERFACE -Werror)
endif()

if(VELLUMARK_SANITIZER)
  add_compile_options(-fsanitize=${VELLUMARK_SANITIZER} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  add_link_options(-fsanitize=${VELLUMARK_SANITIZER})
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # g++ 12 reports uninitialised and out-of-bounds accesses in instrumented library code that don't exist.
    add_compile_options(-Wno-maybe-uninitialized -Wno-array-bounds -Wno-stringop-overflow)
  endif()
endif()

find_program(CCACHE ccache)
if(CCACHE AND NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()
