# The common part of the checks of an installed copy. Needs BUILD, CONFIG, GENERATOR, CXX_COMPILER, INSTRUMENT and WORK.

# Runs a command, which must succeed. Sets `output` to the whole output of the command.
function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(result)
        message(FATAL_ERROR "${ARGN} failed:\n${output}")
    endif()
    set(output "${output}" PARENT_SCOPE)
endfunction()

# Installs the build into an empty folder.
function(install_build)
    file(REMOVE_RECURSE ${WORK})
    run(${CMAKE_COMMAND} --install ${BUILD} --config ${CONFIG} --prefix ${WORK}/installed)
endfunction()

# Builds an outside project against the installed copy.
function(build_outside source)
    set(flags)
    if(INSTRUMENT STREQUAL "sanitize")
        set(flags -DCMAKE_CXX_FLAGS=-fsanitize=address,undefined)
    endif()
    run(${CMAKE_COMMAND} -G ${GENERATOR} -S ${source} -B ${WORK}/build ${flags}
        -DCMAKE_CXX_COMPILER=${CXX_COMPILER} -DCMAKE_PREFIX_PATH=${WORK}/installed)
    run(${CMAKE_COMMAND} --build ${WORK}/build)
endfunction()
