# vx_add_module(<target>                 a shared or module library
#     NAME <name>                        the name that other modules use in NEEDS; default: the name of the target
#     ENTRIES <function>...              the functions to call, in this order, after the module is loaded
#     NEEDS <module> <version>...        other modules that this one needs, each with its lowest version
#     VERSION <version>                  the version of the module; default: the version of the project
#     HOST <version>                     the lowest version of the host; default: the version of the host that provides
#                                        this function
#     DESTINATION <folder>               the folder to install to; default: nothing is installed)
#
# Makes a library a module of the host. Writes its descriptor, <name>.module.json, beside it in the build tree, and
# installs library and descriptor if DESTINATION is given.
function(vx_add_module target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "NAME;VERSION;HOST;DESTINATION" "ENTRIES;NEEDS")
    set(default_NAME ${target})
    set(default_VERSION ${PROJECT_VERSION})
    set(default_HOST ${VX_HOST_VERSION})
    foreach(option NAME VERSION HOST)
        if(NOT DEFINED arg_${option})
            set(arg_${option} ${default_${option}})
        endif()
    endforeach()
    list(TRANSFORM arg_ENTRIES REPLACE "(.+)" "\"\\1\"")
    list(JOIN arg_ENTRIES ", " entries)
    set(needs)
    while(arg_NEEDS)
        list(POP_FRONT arg_NEEDS module version)
        list(APPEND needs "\"${module}\": \"${version}\"")
    endwhile()
    list(JOIN needs ", " needs)
    set(descriptor ${arg_NAME}.module.json)
    file(GENERATE OUTPUT $<TARGET_FILE_DIR:${target}>/${descriptor} CONTENT
"{
    \"module\": \"${arg_NAME}\",
    \"version\": \"${arg_VERSION}\",
    \"host\": \"${arg_HOST}\",
    \"library\": \"$<TARGET_FILE_NAME:${target}>\",
    \"entries\": [${entries}],
    \"needs\": {${needs}}
}
")
    if(arg_DESTINATION)
        install(TARGETS ${target} LIBRARY DESTINATION ${arg_DESTINATION})
        install(FILES $<TARGET_FILE_DIR:${target}>/${descriptor} DESTINATION ${arg_DESTINATION})
    endif()
endfunction()
