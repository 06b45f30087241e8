# The functions that define the targets of the folders.
#
# Includes keep the layers apart. Every library has its own include root in the build tree, with a forwarding header for
# each of its public headers. A target sees only the roots of the libraries that it links, so an include of a higher
# layer, or of a private header, does not compile.

include(GenerateExportHeader)

# vx_add_library(<target> [SHARED | OBJECT]    OBJECT: a part of a library
#     ALIAS <namespaced alias>           the name that other targets link, e.g. vxMaterial::model
#     INCLUDE_PATH <path>                the path in includes of its headers, e.g. vxMaterial/model
#     EXPORT_HEADER <name>               the generated header with the export macro, if any
#     EXPORT_MACRO <macro>
#     FOLDER <folder>                    the folder of headers and sources; default: this one
#     PUBLIC_HEADERS <file>...           without their subfolders in includes
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
    vx_group_sources(${target})
    if(arg_ALIAS)
        add_library(${arg_ALIAS} ALIAS ${target})
    endif()
    target_link_libraries(${target} PUBLIC ${arg_PUBLIC_LINKS} PRIVATE ${arg_PRIVATE_LINKS} $<BUILD_INTERFACE:vx_options>)
    target_compile_features(${target} PUBLIC cxx_std_17)
    # Before version 1, each minor version may break dependents. The version file of the package follows this rule too.
    set_target_properties(${target} PROPERTIES AUTOMOC ON INSTALL_RPATH "$ORIGIN"
        VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})

    set_target_properties(${target} PROPERTIES VX_PUBLIC_HEADERS "${headers}" VX_INCLUDE_PATH ${arg_INCLUDE_PATH})
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

# vx_group_sources(<target>): leaves sources with a tr() of their own out of groups, because sources in a group see each
# other's unnamed namespaces.
function(vx_group_sources target)
    if(NOT VX_UNITY_BUILD)
        return()
    endif()
    get_target_property(sources ${target} SOURCES)
    foreach(source IN LISTS sources)
        cmake_path(ABSOLUTE_PATH source BASE_DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR} OUTPUT_VARIABLE file)
        if(source MATCHES "[.]cpp$" AND EXISTS ${file})
            file(STRINGS ${file} own_tr REGEX "^(inline )?QString tr\\(const char" LIMIT_COUNT 1)
            if(own_tr)
                vx_compile_alone(${source})
            endif()
        endif()
    endforeach()
endfunction()

# vx_compile_alone(<source>...): leaves sources out of groups, because others of their library use the same names in
# their unnamed namespaces.
function(vx_compile_alone)
    set_source_files_properties(${ARGN} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
endfunction()

# Writes a header that includes `header`. Does not touch a file that has this content already.
function(vx_forward_header forward header)
    file(CONFIGURE OUTPUT ${forward} CONTENT "#include \"${header}\"\n")
endfunction()

# Checks that every public header compiles alone. Builds with instrumentation do not repeat the check.
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
    set_target_properties(${target}_headers_alone PROPERTIES UNITY_BUILD OFF)
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
# int qCleanupResources_<name>(). Removes the part of the generated source that registers the resource when the library
# is loaded, so that only a call registers the resource.
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

# vx_install_program_library(<target>): installs the library, without headers, for the installed programs.
function(vx_install_program_library target)
    install(TARGETS ${target} LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} NAMELINK_SKIP)
endfunction()

# vx_install_host_library(<target>): installs the library for programs and modules, as Host::<target> of the package
# KeltaHost. The public headers go to the folder KeltaHost, because other packages have folders such as Obj and Gui.
function(vx_install_host_library target)
    get_target_property(headers ${target} VX_PUBLIC_HEADERS)
    get_target_property(include_path ${target} VX_INCLUDE_PATH)
    set(folder ${CMAKE_INSTALL_INCLUDEDIR}/KeltaHost)
    target_include_directories(${target} PUBLIC $<INSTALL_INTERFACE:${folder}>)
    install(TARGETS ${target} EXPORT KeltaHostTargets LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
    install(FILES ${headers} DESTINATION ${folder}/${include_path})
    install(DIRECTORY ${CMAKE_BINARY_DIR}/include/${target}/${include_path}/
            DESTINATION ${folder}/${include_path} FILES_MATCHING PATTERN "*Export.h")
endfunction()

# vx_share(<folder> <file>...): installs files that the programs read, below the folder of shared data, and puts them at
# the same place beside the programs of the build tree.
function(vx_share folder)
    foreach(file IN LISTS ARGN)
        cmake_path(GET file FILENAME name)
        configure_file(${file} ${CMAKE_BINARY_DIR}/share/${folder}/${name} COPYONLY)
    endforeach()
    install(FILES ${ARGN} DESTINATION ${CMAKE_INSTALL_DATADIR}/${folder})
endfunction()

# vx_add_test(<name> [GUI] [ALONE] [ISOLATED]     ALONE: no other test runs at the same time
#     SOURCES <file>... LINKS <target>... DEFINITIONS <definition>...)
# Adds a GoogleTest program. Each of its suites is one CTest test. With ISOLATED, each of its tests is one CTest test
# and runs in its own process, for tests that change the state of their process. The tests start in the C locale and may
# switch to the comma-decimal locale that is built for them. With GUI they run inside a GUI application on the offscreen
# platform.
function(vx_add_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "GUI;ALONE;ISOLATED" "" "SOURCES;LINKS;DEFINITIONS")
    add_executable(${name} ${arg_SOURCES})
    # The library that the tests share; it owns their precompiled header.
    set(support vx_test_support)
    set(main GTest::gmock_main)
    if(arg_GUI)
        set(support vx_gui_test_support)
        set(main)
    elseif(vx_host_test_support IN_LIST arg_LINKS)
        set(support vx_host_test_support)
    endif()
    target_link_libraries(${name} PRIVATE ${arg_LINKS} ${support} ${main} vx_options)
    target_compile_definitions(${name} PRIVATE ${arg_DEFINITIONS})
    vx_compile_as_test(${name})
    target_precompile_headers(${name} REUSE_FROM ${support})
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
    vx_discover_tests(${name} ${arg_ISOLATED}
        "TIMEOUT 600 RUN_SERIAL ${arg_ALONE} ENVIRONMENT [[LOCPATH=${VX_TEST_LOCALES};QT_QPA_PLATFORM=offscreen]]")
endfunction()

# Sets the compiler options of the targets that use the precompiled headers of tests; these options must be the same in
# all of them. There is no optimisation, because it takes longer than it saves in the tests.
function(vx_compile_as_test target)
    target_compile_options(${target} PRIVATE -O0 -g1 -fPIC)
endfunction()

# vx_discover_tests(<target> <isolated> <properties>): lists the tests of the program for CTest each time it is built.
function(vx_discover_tests target isolated properties)
    set(script ${CMAKE_CURRENT_BINARY_DIR}/${target}_discovered.cmake)
    set(discover ${CMAKE_SOURCE_DIR}/cmake/DiscoverTests.cmake)
    add_custom_command(TARGET ${target} POST_BUILD BYPRODUCTS ${script}
        COMMAND ${CMAKE_COMMAND} -D PROGRAM=$<TARGET_FILE:${target}> -D SCRIPT=${script} -D ISOLATED=${isolated}
                -D "PROPERTIES=${properties}" -P ${discover}
        VERBATIM)
    set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${discover})
    # Until the program is built, one failing test replaces its tests.
    set(include ${CMAKE_CURRENT_BINARY_DIR}/${target}_tests.cmake)
    file(CONFIGURE OUTPUT ${include} @ONLY CONTENT
"if(EXISTS [[@script@]])
    include([[@script@]])
else()
    add_test(@target@_is_not_built NOT_BUILT)
endif()
")
    set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES ${include})
endfunction()
