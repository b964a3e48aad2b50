include(CMakePackageConfigHelpers)

install(TARGETS VXFoundation2 VXMediaCodecs VXMediaPresets EXPORT VXMediaPresetsTargets
        FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/VXMediaPresets
        FILE_SET hosts DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/VXMediaPresets)

set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/VXMediaPresets)
install(EXPORT VXMediaPresetsTargets NAMESPACE Vexlor:: DESTINATION ${package_folder})
configure_package_config_file(cmake/VXMediaPresetsConfig.cmake.in VXMediaPresetsConfig.cmake
                              INSTALL_DESTINATION ${package_folder})
write_basic_package_version_file(VXMediaPresetsConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/VXMediaPresetsConfig.cmake ${PROJECT_BINARY_DIR}/VXMediaPresetsConfigVersion.cmake
        DESTINATION ${package_folder})

if(VX_BUILD_APPS)
  install(TARGETS vxpresets)
  install(FILES ${PROJECT_BINARY_DIR}/apps/vxpresets/vxpresets.artwork DESTINATION ${CMAKE_INSTALL_DATADIR}/vxpresets)
endif()
