# Installs the build into an empty folder and builds the outside project against it, from nothing each time.
function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(result)
        message(FATAL_ERROR "${ARGN} failed:\n${output}")
    endif()
    set(output "${output}" PARENT_SCOPE)
endfunction()

file(REMOVE_RECURSE ${WORK})
run(${CMAKE_COMMAND} --install ${BUILD} --config ${CONFIG} --prefix ${WORK}/installed)

set(flags)
if(INSTRUMENT STREQUAL "sanitize")
    set(flags -DCMAKE_CXX_FLAGS=-fsanitize=address,undefined)
endif()
run(${CMAKE_COMMAND} -G ${GENERATOR} -S ${SOURCE} -B ${WORK}/build ${flags}
    -DCMAKE_CXX_COMPILER=${CXX_COMPILER} -DCMAKE_PREFIX_PATH=${WORK}/installed)
run(${CMAKE_COMMAND} --build ${WORK}/build)
run(${WORK}/build/consumer)
if(NOT output STREQUAL " 200000000000.000000, 0.300000 1\n")
    message(FATAL_ERROR "the outside project printed: ${output}")
endif()

# The installed program finds the installed libraries by itself.
run(${WORK}/installed/bin/vxmat show air)
