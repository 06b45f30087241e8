# Builds the module of the guide SOURCE against an installed copy, exactly as the guide shows it, and runs the guide's
# lists of commands in the installed desktop application.
include(${CMAKE_CURRENT_LIST_DIR}/PackageTesting.cmake)
install_build()
file(MAKE_DIRECTORY ${WORK}/source ${WORK}/home)
run(awk -v to=${WORK}/source -f ${CMAKE_CURRENT_LIST_DIR}/extract-files.awk ${SOURCE})
build_outside(${WORK}/source)

set(ENV{QT_QPA_PLATFORM} offscreen)
foreach(variable XDG_CONFIG_HOME XDG_DATA_HOME XDG_RUNTIME_DIR)
    set(ENV{${variable}} ${WORK}/home)
endforeach()
# The offscreen platform never frees its screen.
set(ENV{ASAN_OPTIONS} detect_leaks=0)

# Runs a list of commands in the folder of the lists; sets `printed` to its standard output, `said` to its standard
# error and `result` to its exit status.
macro(run_list list)
    execute_process(COMMAND ${WORK}/installed/bin/kelta --batch ${list} WORKING_DIRECTORY ${WORK}/source
                    RESULT_VARIABLE result OUTPUT_VARIABLE printed ERROR_VARIABLE said)
endmacro()
macro(expect_done list)
    run_list(${list})
    if(result)
        message(FATAL_ERROR "${list} failed:\n${printed}${said}")
    endif()
endmacro()

# Makes, edits and saves; reopens, edits and undoes.
set(ENV{KELTA_PLUGIN_PATH} ${WORK}/build)
expect_done(make.batch)
expect_done(change.batch)
file(READ ${WORK}/source/change.output expected)
if(NOT printed STREQUAL expected)
    message(FATAL_ERROR "change.batch printed:\n${printed}")
endif()

file(WRITE ${WORK}/source/wrong.batch "Std_Open bolts.vxmat\nselect \"Left bolt\"\nproperty Diameter wide\n")
run_list(wrong.batch)
if(NOT result EQUAL 1 OR NOT said MATCHES "wrong.batch:3: .*wide")
    message(FATAL_ERROR "a property took a wrong value:\n${result} ${said}")
endif()

# Without the module, the file keeps all data.
set(ENV{KELTA_PLUGIN_PATH} "")
file(WRITE ${WORK}/source/keep.batch "Std_Open bolts.vxmat\nStd_SaveAs kept.vxmat\n")
expect_done(keep.batch)
file(READ ${WORK}/source/bolts.vxmat before)
file(READ ${WORK}/source/kept.vxmat after)
if(NOT before STREQUAL after)
    message(FATAL_ERROR "the program without the module changed the file to:\n${after}")
endif()
