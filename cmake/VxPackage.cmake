# The CMake package of an installed copy: find_package(vxMaterial) offers vxMaterial::model, vxMaterial::json and
# vxMaterial::exchange.

include(CMakePackageConfigHelpers)
set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/vxMaterial)
install(EXPORT vxMaterialTargets NAMESPACE vxMaterial:: DESTINATION ${package_dir})
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/vxMaterialConfig.cmake.in
                              ${CMAKE_BINARY_DIR}/vxMaterialConfig.cmake INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(${CMAKE_BINARY_DIR}/vxMaterialConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_BINARY_DIR}/vxMaterialConfig.cmake ${CMAKE_BINARY_DIR}/vxMaterialConfigVersion.cmake
        DESTINATION ${package_dir})
