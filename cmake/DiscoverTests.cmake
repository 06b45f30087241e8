# Writes the script that tells CTest of the tests of a GoogleTest program; run after the program is linked.
#
#   cmake -D PROGRAM=... -D SCRIPT=... -D ISOLATED=ON|OFF -D "PROPERTIES=..." -P DiscoverTests.cmake
#
# PROPERTIES are CTest's, as set_tests_properties() takes them. A suite is one of CTest's tests and runs in one process;
# with ISOLATED each test is one and has a process of its own.

execute_process(COMMAND ${PROGRAM} --gtest_list_tests
                OUTPUT_VARIABLE list RESULT_VARIABLE result ERROR_VARIABLE errors TIMEOUT 60)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "${PROGRAM} cannot list its tests (${result}):\n${list}${errors}")
endif()
# A line is "Suite." or "  Test"; behind it may stand a parameter, which may hold what CMake takes for a list.
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
