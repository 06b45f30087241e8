# Writes a script that adds the tests of a GoogleTest program to CTest. Runs after the program is linked.
#
#   cmake -D PROGRAM=... -D SCRIPT=... -D ISOLATED=ON|OFF -D "PROPERTIES=..." -P DiscoverTests.cmake
#
# PROPERTIES are the arguments of set_tests_properties(). Each suite becomes one CTest test, which runs in one process.
# With ISOLATED, each test becomes one CTest test, which runs in its own process.

execute_process(COMMAND ${PROGRAM} --gtest_list_tests
                OUTPUT_VARIABLE list RESULT_VARIABLE result ERROR_VARIABLE errors TIMEOUT 60)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "${PROGRAM} cannot list its tests (${result}):\n${list}${errors}")
endif()
# A line is "Suite." or "  Test". A comment with the parameter may follow; it is removed, because it may contain
# characters that separate or group the elements of a list in CMake.
string(REGEX REPLACE "  # [^\n]*" "" list "${list}")
string(REGEX MATCHALL "[^\n]+" lines "${list}")

set(names)
set(suite)
foreach(line IN LISTS lines)
    if(line MATCHES "^([^ ]+)\\.$")
        set(suite ${CMAKE_MATCH_1})
        if(NOT ISOLATED)
            list(APPEND names ${suite})
        endif()
    elseif(ISOLATED AND line MATCHES "^  ([^ ]+)$")
        list(APPEND names ${suite}.${CMAKE_MATCH_1})
    endif()
endforeach()

set(script)
foreach(name IN LISTS names)
    set(filter ${name})
    if(NOT ISOLATED)
        set(filter ${name}.*)
    endif()
    string(APPEND script "add_test(${name} [[${PROGRAM}]] --gtest_brief=1 --gtest_filter=${filter})\n"
                         "set_tests_properties(${name} PROPERTIES ${PROPERTIES})\n")
endforeach()
file(WRITE ${SCRIPT} "${script}")
