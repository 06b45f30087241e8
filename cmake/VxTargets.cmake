# The functions that the target lists are written in.
#
# Layers are kept apart by what each target can include. Every library has an include root of its own in the
# build tree, which holds nothing but forwards to its public headers; a target sees the roots of the libraries
# that it links and no other. An include that points upwards, or to a private header, does not compile.

include(GenerateExportHeader)

# vx_add_library(<target> [SHARED | OBJECT]    OBJECT: a part of a library, kept apart from its other parts
#     ALIAS <namespaced alias>           what others link, e.g. vxMaterial::model
#     INCLUDE_PATH <path>                how its headers are included, e.g. vxMaterial/model
#     EXPORT_HEADER <name>               header with the export macro, made by CMake; none when not given
#     EXPORT_MACRO <macro>
#     FOLDER <folder>                    where headers and sources stand, when not in the current folder
#     PUBLIC_HEADERS <file>...           subfolders are not part of the path by which a header is included
#     SOURCES <file>...
#     PUBLIC_LINKS <target>...           PRIVATE_LINKS <target>...)
function(vx_add_library target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "OBJECT;SHARED" "ALIAS;INCLUDE_PATH;FOLDER;EXPORT_HEADER;EXPORT_MACRO"
                          "PUBLIC_HEADERS;SOURCES;PUBLIC_LINKS;PRIVATE_LINKS")
    set(type SHARED)
    if(arg_OBJECT)
        set(type OBJECT)
    endif()
    cmake_path(SET folder NORMALIZE "${CMAKE_CURRENT_SOURCE_DIR}/${arg_FOLDER}")
    cmake_path(APPEND folder "")
    list(TRANSFORM arg_SOURCES PREPEND ${folder})
    list(TRANSFORM arg_PUBLIC_HEADERS PREPEND ${folder} OUTPUT_VARIABLE headers)
    add_library(${target} ${type} ${arg_SOURCES} ${headers})
    if(arg_ALIAS)
        add_library(${arg_ALIAS} ALIAS ${target})
    endif()
    target_link_libraries(${target} PUBLIC ${arg_PUBLIC_LINKS} PRIVATE ${arg_PRIVATE_LINKS} $<BUILD_INTERFACE:vx_options>)
    target_compile_features(${target} PUBLIC cxx_std_17)
    # Before version 1 each minor version may break what is built against it, as the package's version file says too.
    set_target_properties(${target} PROPERTIES AUTOMOC ON
        VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})

    set(root ${CMAKE_BINARY_DIR}/include/${target})
    target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${root}> $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
    foreach(header IN LISTS arg_PUBLIC_HEADERS)
        cmake_path(GET header FILENAME name)
        vx_forward_header(${root}/${arg_INCLUDE_PATH}/${name} ${folder}${header})
    endforeach()
    if(arg_EXPORT_HEADER)
        generate_export_header(${target} EXPORT_MACRO_NAME ${arg_EXPORT_MACRO}
                               EXPORT_FILE_NAME ${root}/${arg_INCLUDE_PATH}/${arg_EXPORT_HEADER})
    endif()
    vx_check_headers_alone(${target} ${arg_INCLUDE_PATH} ${arg_PUBLIC_HEADERS})
endfunction()

# Writes a header that includes another one, unless it stands already.
function(vx_forward_header forward header)
    file(CONFIGURE OUTPUT ${forward} CONTENT "#include \"${header}\"\n")
endfunction()

# Every public header must compile without another one before it. Once is enough: not in the builds of sanitizers.
function(vx_check_headers_alone target include_path)
    if(VX_INSTRUMENT)
        return()
    endif()
    set(checks)
    foreach(header IN LISTS ARGN)
        cmake_path(GET header FILENAME name)
        set(check ${CMAKE_BINARY_DIR}/header_checks/${target}/${name}.cpp)
        file(CONFIGURE OUTPUT ${check} CONTENT "#include \"${include_path}/${name}\"\n")
        list(APPEND checks ${check})
    endforeach()
    add_library(${target}_headers_alone OBJECT ${checks})
    target_link_libraries(${target}_headers_alone PRIVATE ${target} vx_options)
    target_compile_options(${target}_headers_alone PRIVATE -O0 -g0)
endfunction()

# vx_install_library(<target> EXPORT <set> NAME <name in the package> INCLUDE_PATH <path> HEADERS <file>...)
function(vx_install_library target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "EXPORT;NAME;INCLUDE_PATH" "HEADERS")
    set_target_properties(${target} PROPERTIES EXPORT_NAME ${arg_NAME})
    install(TARGETS ${target} EXPORT ${arg_EXPORT} LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
    install(FILES ${arg_HEADERS} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${arg_INCLUDE_PATH})
    install(DIRECTORY ${CMAKE_BINARY_DIR}/include/${target}/${arg_INCLUDE_PATH}/
            DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${arg_INCLUDE_PATH} FILES_MATCHING PATTERN "*Export.h")
endfunction()

# vx_add_resource(<name> <file.qrc>): sets <name>_source to a source file with int qInitResources_<name>() and
# int qCleanupResources_<name>(). What the resource compiler makes registers itself when the library is loaded; here
# that is cut off, so that the resource is there only after it has been asked for.
function(vx_add_resource name qrc)
    get_target_property(rcc Qt5::rcc IMPORTED_LOCATION)
    set(compiled ${CMAKE_CURRENT_BINARY_DIR}/${name}.rcc.cpp)
    set(source ${CMAKE_CURRENT_BINARY_DIR}/qrc_${name}.cpp)
    file(STRINGS ${qrc} files REGEX "<file>")
    list(TRANSFORM files REPLACE ".*<file>(.*)</file>.*" "\\1")
    cmake_path(GET qrc PARENT_PATH folder)
    list(TRANSFORM files PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/)
    add_custom_command(OUTPUT ${source}
        COMMAND ${rcc} --format-version 2 --name ${name} --output ${compiled} ${CMAKE_CURRENT_SOURCE_DIR}/${qrc}
        COMMAND ${CMAKE_COMMAND} -D IN=${compiled} -D OUT=${source}
                -P ${CMAKE_SOURCE_DIR}/cmake/CutResourceInitializer.cmake
        DEPENDS ${qrc} ${files} ${CMAKE_SOURCE_DIR}/cmake/CutResourceInitializer.cmake VERBATIM)
    set(${name}_source ${source} PARENT_SCOPE)
endfunction()

# vx_install_host_library(<target>): the library alone, for the programs that are installed beside it.
function(vx_install_host_library target)
    install(TARGETS ${target} LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} NAMELINK_SKIP)
endfunction()

# vx_add_test(<name> [GUI] [ALONE] SOURCES <file>... LINKS <target>...): a GoogleTest program; each of its tests is one of
# CTest's. All run in the C locale of the process but may switch to the comma-decimal one built for them. With GUI they
# run inside a GUI application on the offscreen platform; ALONE, no other test runs beside them.
function(vx_add_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "GUI;ALONE" "" "SOURCES;LINKS;DEFINITIONS")
    add_executable(${name} ${arg_SOURCES})
    set(main GTest::gmock_main)
    if(arg_GUI)
        set(main vx_gui_test_support)
    endif()
    target_link_libraries(${name} PRIVATE ${arg_LINKS} vx_test_support ${main} vx_options)
    target_compile_definitions(${name} PRIVATE ${arg_DEFINITIONS})
    # The time that optimising tests takes is never won back by running them.
    target_compile_options(${name} PRIVATE -O0 -g1)
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
    set(environment "LOCPATH=${VX_TEST_LOCALES}" "QT_QPA_PLATFORM=offscreen")
    set_property(TARGET ${name} PROPERTY CROSSCOMPILING_EMULATOR
                 ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen)
    set(alone OFF)
    if(arg_ALONE)
        set(alone ON)
    endif()
    gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60
        PROPERTIES TIMEOUT 120 RUN_SERIAL ${alone} ENVIRONMENT "${environment}")
endfunction()
