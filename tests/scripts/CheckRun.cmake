# Runs run.sh with arguments in another folder than that of the tree. The tool is built already: it replaces the one
# that the script would build.
file(REMOVE_RECURSE ${WORK})
foreach(script IN ITEMS install-packages build)
    file(WRITE ${WORK}/tree/scripts/${script}.sh "#!/bin/sh\n")
    file(CHMOD ${WORK}/tree/scripts/${script}.sh PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
endforeach()
file(COPY ${SOURCE}/run.sh DESTINATION ${WORK}/tree)
file(MAKE_DIRECTORY ${WORK}/tree/build/release/bin)
file(CREATE_LINK ${VXMAT} ${WORK}/tree/build/release/bin/vxmat SYMBOLIC)

# The project is named relative to the folder of the caller. The other files are what a program that looks for libraries
# in that folder would find there.
file(COPY ${SOURCE}/tests/data/projects/01-materials.vxmat DESTINATION ${WORK}/caller)
foreach(library IN ITEMS libQt5Core.so.5 libjsoncpp.so.25 libstdc++.so.6)
    file(WRITE ${WORK}/caller/${library} "no library")
endforeach()
execute_process(COMMAND ${WORK}/tree/run.sh diff 01-materials.vxmat 01-materials.vxmat WORKING_DIRECTORY ${WORK}/caller
                RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "run.sh ended with ${result}:\n${output}")
endif()
