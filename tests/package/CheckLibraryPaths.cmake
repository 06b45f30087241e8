# Checks where the programs and libraries of the build tree and of an installed copy look for libraries. Each folder of
# the path must be complete or relative to the file: the loader takes an empty or relative folder for one below the
# current folder, where anybody may have put a library. An installed copy must not look into the build tree.
include(${CMAKE_CURRENT_LIST_DIR}/PackageTesting.cmake)
install_build()

# Fails unless each element of the library path of `binary` begins with a slash or $ORIGIN, and none is below `forbidden`.
function(check_library_path binary forbidden)
    execute_process(COMMAND ${READELF} --dynamic --wide ${binary} OUTPUT_VARIABLE dynamic ERROR_QUIET)
    string(REGEX MATCHALL "\\((RPATH|RUNPATH)\\)[^\n]*" entries "${dynamic}")
    foreach(entry IN LISTS entries)
        string(REGEX REPLACE ".*: \\[(.*)\\]" "\\1" path "${entry}")
        string(FIND "${path}" "${forbidden}" place)
        if(NOT ":${path}" MATCHES "^(:(/|[$]ORIGIN)[^:]*)+$" OR NOT place EQUAL -1)
            message(SEND_ERROR "${binary} looks for libraries in \"${path}\"")
        endif()
    endforeach()
endfunction()

# Runs the check on each file of the list `binaries`. The count shows that the patterns find the binaries.
function(check_library_paths binaries fewest forbidden)
    list(LENGTH ${binaries} count)
    if(count LESS fewest)
        message(FATAL_ERROR "only ${count} binaries were found: ${${binaries}}")
    endif()
    foreach(binary IN LISTS ${binaries})
        check_library_path(${binary} ${forbidden})
    endforeach()
endfunction()

# Other checks of this folder write to their folders at the same time.
file(GLOB_RECURSE built LIST_DIRECTORIES false ${BUILD}/bin/* ${BUILD}/lib/*.so* ${BUILD}/tests/Host/*.so)
check_library_paths(built 20 "(nowhere)")

file(GLOB_RECURSE installed LIST_DIRECTORIES false ${WORK}/installed/bin/* ${WORK}/installed/*.so*)
check_library_paths(installed 10 ${BUILD})
