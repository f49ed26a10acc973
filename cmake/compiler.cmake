# Language, warnings and flags that every target shares.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG")

if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE Debug CACHE STRING "Release or Debug" FORCE)
endif()

find_program(TARNMILL_CCACHE ccache)
if(TARNMILL_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${TARNMILL_CCACHE}")
endif()

add_compile_options(
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast -Werror
  # g++ 12 takes moved-from alternatives of a std::variant for uninitialized ones; clang knows no such warning.
  $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>
  # A fused multiply and add keeps bits that two operations round away, and results are promised to the bit.
  -ffp-contract=off)
add_compile_definitions($<$<CONFIG:Debug>:_GLIBCXX_ASSERTIONS>)
