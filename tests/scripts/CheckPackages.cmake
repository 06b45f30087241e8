# Runs the scripts that install packages on a system where none is installed: programs of this check replace the
# package manager and note the packages that they are asked for.
file(REMOVE_RECURSE ${WORK})
set(executable PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
function(write_program path text)
    file(WRITE ${path} "#!/bin/sh\n${text}\n")
    file(CHMOD ${path} ${executable})
endfunction()
foreach(file IN ITEMS run.sh test.sh .ci/run packaging/debian-packages.txt scripts/install-packages.sh)
    cmake_path(GET file PARENT_PATH folder)
    file(COPY ${SOURCE}/${file} DESTINATION ${WORK}/tree/${folder})
endforeach()
foreach(script IN ITEMS build sanitize fuzz lint)
    write_program(${WORK}/tree/scripts/${script}.sh "exit 0")
endforeach()
write_program(${WORK}/tree/build/release/bin/vxmat "exit 0")
write_program(${WORK}/programs/ctest "exit 0")
write_program(${WORK}/programs/dpkg-query "exit 1")
write_program(${WORK}/programs/apt-get "for word; do case $word in -*|update|install) ;; *) echo $word >>${WORK}/asked ;; esac; done")
# Where the user is not root, the script uses sudo.
write_program(${WORK}/programs/sudo "exec \"$@\"")
set(ENV{PATH} ${WORK}/programs:$ENV{PATH})

# Sets `packages` to the packages of a section, sorted.
function(read_section section)
    file(STRINGS ${SOURCE}/packaging/debian-packages.txt lines REGEX "^[^#]")
    set(inside FALSE)
    set(packages)
    foreach(line IN LISTS lines)
        if(line MATCHES "^[[]([a-z]+)[]]$")
            string(COMPARE EQUAL ${CMAKE_MATCH_1} ${section} inside)
        elseif(inside)
            list(APPEND packages ${line})
        endif()
    endforeach()
    set(packages ${packages} PARENT_SCOPE)
endfunction()

# Fails unless the script asks for the packages of these sections and for no others.
function(expect_sections script)
    set(expected)
    foreach(section IN LISTS ARGN)
        read_section(${section})
        if(NOT packages)
            message(FATAL_ERROR "the section ${section} has no packages")
        endif()
        list(APPEND expected ${packages})
    endforeach()
    file(WRITE ${WORK}/asked "")
    execute_process(COMMAND ${WORK}/tree/${script} --version RESULT_VARIABLE result
                    OUTPUT_VARIABLE output ERROR_VARIABLE output)
    file(STRINGS ${WORK}/asked asked)
    list(REMOVE_DUPLICATES asked)
    list(SORT asked)
    list(SORT expected)
    if(NOT result EQUAL 0 OR NOT asked STREQUAL expected)
        message(FATAL_ERROR "${script} ended with ${result} and installed ${asked}\n"
                            "It needs ${expected}\n${output}")
    endif()
endfunction()
expect_sections(run.sh build)
expect_sections(test.sh build test measure)
expect_sections(.ci/run build test measure check)

foreach(arguments IN ITEMS "buildings" "")
    execute_process(COMMAND ${WORK}/tree/scripts/install-packages.sh ${arguments} RESULT_VARIABLE result
                    OUTPUT_QUIET ERROR_VARIABLE output)
    if(NOT result EQUAL 2 OR NOT output MATCHES "debian-packages.txt")
        message(FATAL_ERROR "install-packages.sh \"${arguments}\" ended with ${result}:\n${output}")
    endif()
endforeach()

# What run.sh builds can be configured without the packages of the other sections.
execute_process(COMMAND ${CMAKE_COMMAND} --preset release -S ${SOURCE} -B ${WORK}/build
                        -DCMAKE_DISABLE_FIND_PACKAGE_GTest=ON -DCMAKE_DISABLE_FIND_PACKAGE_benchmark=ON
                WORKING_DIRECTORY ${SOURCE} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "the preset release needs more than the section build:\n${output}")
endif()
