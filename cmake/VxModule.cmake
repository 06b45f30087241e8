# vx_add_module(<target>                 a shared or module library
#     NAME <name>                        by which other modules need it; the name of the target when not given
#     ENTRIES <function>...              called in this order when the module is loaded
#     NEEDS <module> <version>...        other modules, each with the lowest version that serves
#     VERSION <version>                  of the module; that of the project when not given
#     HOST <version>                     the lowest version of the host that serves; the one that this comes with when
#                                        not given
#     DESTINATION <folder>               where the library is installed; the descriptor is not installed when not given)
#
# Makes a library a module of the host: writes its descriptor, <name>.module.json, beside it in the build tree, and
# installs it with the library.
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
