# The CMake packages of an installed copy:
#   find_package(vxMaterial) provides vxMaterial::model, vxMaterial::json, vxMaterial::units and vxMaterial::exchange;
#   find_package(KeltaHost) provides Host::Kelta, Host::Obj, Host::vxMsg, Host::Gui and Host::CaeManager, and
# vx_add_module.

include(CMakePackageConfigHelpers)

# vx_install_package(<name> NAMESPACE <namespace> [FILES <file>...])
# Installs the package <name>: the targets of the export set <name>Targets, and FILES beside them.
function(vx_install_package name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "NAMESPACE" "FILES")
    set(folder ${CMAKE_INSTALL_LIBDIR}/cmake/${name})
    install(EXPORT ${name}Targets NAMESPACE ${arg_NAMESPACE}:: DESTINATION ${folder})
    configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/${name}Config.cmake.in
                                  ${CMAKE_BINARY_DIR}/${name}Config.cmake INSTALL_DESTINATION ${folder})
    write_basic_package_version_file(${CMAKE_BINARY_DIR}/${name}ConfigVersion.cmake COMPATIBILITY SameMinorVersion)
    install(FILES ${CMAKE_BINARY_DIR}/${name}Config.cmake ${CMAKE_BINARY_DIR}/${name}ConfigVersion.cmake ${arg_FILES}
            DESTINATION ${folder})
endfunction()

vx_install_package(vxMaterial NAMESPACE vxMaterial)
vx_install_package(KeltaHost NAMESPACE Host FILES ${PROJECT_SOURCE_DIR}/cmake/VxModule.cmake)
