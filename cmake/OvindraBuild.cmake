# What every target is built with: the language, the warnings, the sanitizers, the place of the programs.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)

option(OVINDRA_WARNINGS_ARE_ERRORS "A warning stops the build" ON)
option(OVINDRA_SANITIZE "Build with AddressSanitizer and UndefinedBehaviorSanitizer" OFF)
option(OVINDRA_BENCH "Build the benchmarks" OFF)
option(OVINDRA_FUZZ "Build the fuzz targets, too (clang and OVINDRA_SANITIZE only)" OFF)

add_library(ovindra_warnings INTERFACE)
target_compile_options(ovindra_warnings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion)
if(OVINDRA_WARNINGS_ARE_ERRORS)
  target_compile_options(ovindra_warnings INTERFACE -Werror)
endif()

if(OVINDRA_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

find_program(OVINDRA_CCACHE ccache)
if(OVINDRA_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${OVINDRA_CCACHE})
endif()
