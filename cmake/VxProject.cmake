# Settings of all targets: language level, warnings, symbol visibility, the compiler's cache, and the instrumentation of
# the presets sanitize, fuzz and coverage.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

option(VX_BUILD_TESTS "Build the tests" ON)
option(VX_BUILD_BENCH "Build the speed measurements" ON)
option(VX_WARNINGS_AS_ERRORS "Stop the build at the first compiler warning" ON)
# A group reads the headers of Qt and of the standard library once, so a complete build takes half of the time; a change
# of one source compiles its whole group.
option(VX_UNITY_BUILD "Compile sources in groups: for builds from nothing" OFF)
set(CMAKE_UNITY_BUILD ${VX_UNITY_BUILD})
set(CMAKE_UNITY_BUILD_BATCH_SIZE 8)
set(VX_INSTRUMENT "" CACHE STRING "Instrumentation: empty, sanitize or coverage")

find_program(VX_CCACHE ccache)
if(VX_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    # By default ccache ignores sources that use a precompiled header, because it cannot see whether the header depends
    # on the time or on definitions. Here the header does not depend on the time, and the compiler checks the
    # definitions.
    set(CMAKE_CXX_COMPILER_LAUNCHER env CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
        ${VX_CCACHE})
endif()

# One folder for all programs and one folder for all libraries, as in an installed copy: programs find the libraries by
# a path relative to their own. The paths are the same in the build tree and in an installed copy, because CMake would
# otherwise fill up the shorter one with empty elements, and the loader takes an empty element for the current folder.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
include(GNUInstallDirs)
file(RELATIVE_PATH VX_LIB_FROM_BIN /${CMAKE_INSTALL_BINDIR} /${CMAKE_INSTALL_LIBDIR})
set(CMAKE_BUILD_WITH_INSTALL_RPATH ON)
set(CMAKE_INSTALL_RPATH_USE_LINK_PATH ON)
set(CMAKE_INSTALL_RPATH "$ORIGIN/../lib" "$ORIGIN/${VX_LIB_FROM_BIN}")
list(REMOVE_DUPLICATES CMAKE_INSTALL_RPATH)

add_library(vx_options INTERFACE)
# Qt 5 writes the keys of a shortcut as the sum of two enumerations, Qt::CTRL + Qt::Key_D, of which Clang warns.
target_compile_options(vx_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion
                                            $<$<CXX_COMPILER_ID:Clang>:-Wno-enum-enum-conversion>)
if(VX_UNITY_BUILD AND CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    # A local name may hide one of another source of the group. GCC and lint check this in single sources.
    target_compile_options(vx_options INTERFACE -Wno-shadow)
endif()
if(VX_WARNINGS_AS_ERRORS)
    target_compile_options(vx_options INTERFACE -Werror)
endif()

if(VX_INSTRUMENT STREQUAL "sanitize")
    # With the counters that fuzzers follow, so that tests and fuzzers use the same libraries. Only Clang has them; it
    # also compiles in two thirds of the time of GCC.
    target_compile_options(vx_options INTERFACE -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all
                                                -fno-omit-frame-pointer)
    target_compile_definitions(vx_options INTERFACE VX_ADDRESS_SANITIZER)
    target_link_options(vx_options INTERFACE -fsanitize=address,undefined)
elseif(VX_INSTRUMENT STREQUAL "coverage")
    target_compile_options(vx_options INTERFACE --coverage -fprofile-update=atomic)
    target_link_options(vx_options INTERFACE --coverage)
elseif(VX_INSTRUMENT)
    message(FATAL_ERROR "VX_INSTRUMENT is \"${VX_INSTRUMENT}\"; it must be empty, sanitize or coverage")
endif()
