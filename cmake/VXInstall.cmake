include(CMakePackageConfigHelpers)

# Four components, as distributions part them: what programs need to run, what their builds need, the tool, the window program.
set(headers ${CMAKE_INSTALL_INCLUDEDIR}/VXMediaPresets)
foreach(target IN LISTS VX_RUNTIME_TARGETS ITEMS VXMediaPresets)
  get_target_property(sets ${target} INTERFACE_HEADER_SETS)
  set(file_sets)
  foreach(set IN LISTS sets)
    list(APPEND file_sets FILE_SET ${set} DESTINATION ${headers} COMPONENT development)
  endforeach()
  install(TARGETS ${target} EXPORT VXMediaPresetsTargets
          RUNTIME COMPONENT libraries
          LIBRARY COMPONENT libraries NAMELINK_COMPONENT development
          ARCHIVE COMPONENT development
          ${file_sets})
endforeach()

set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/VXMediaPresets)
install(EXPORT VXMediaPresetsTargets NAMESPACE Vexlor:: DESTINATION ${package_folder} COMPONENT development)
configure_package_config_file(cmake/VXMediaPresetsConfig.cmake.in VXMediaPresetsConfig.cmake
                              INSTALL_DESTINATION ${package_folder})
write_basic_package_version_file(VXMediaPresetsConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/VXMediaPresetsConfig.cmake ${PROJECT_BINARY_DIR}/VXMediaPresetsConfigVersion.cmake
        DESTINATION ${package_folder} COMPONENT development)

# vx_install_pkgconfig(NAME DESCRIPTION REQUIRES PRIVATE): the pkg-config file of one library.
function(vx_install_pkgconfig pc_name pc_description pc_requires pc_requires_private)
  file(RELATIVE_PATH pc_prefix /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
  string(REGEX REPLACE "/$" "" pc_prefix ${pc_prefix})
  if(NOT BUILD_SHARED_LIBS)
    set(pc_flags " -DVX_STATIC") # whoever links it links what it is linked with
    set(pc_requires "${pc_requires} ${pc_requires_private}")
    set(pc_requires_private "")
  endif()
  configure_file(packaging/pkgconfig.pc.in ${pc_name}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/${pc_name}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)
endfunction()
if(VXMEDIAPRESETS_RUNTIME)
  vx_install_pkgconfig(VXFoundation2 "JSON, log and storage beneath VXMediaPresets" "" simdjson)
  vx_install_pkgconfig(VXMediaCodecs "Codecs and containers beneath VXMediaPresets, on FFmpeg" VXFoundation2
                       "libavformat libavcodec libavutil")
  vx_install_pkgconfig(VXMediaPresets "${PROJECT_DESCRIPTION}" "VXMediaCodecs VXFoundation2" Qt6Gui)
endif()

if(VX_BUILD_APPS)
  set(tool ${PROJECT_BINARY_DIR}/apps/vxpresets)
  install(TARGETS vxpresets RUNTIME COMPONENT tools)
  install(FILES ${tool}/vxpresets.json ${PROJECT_BINARY_DIR}/apps/artwork/vxpresets.artwork
                catalog/preset-document.schema.json
          DESTINATION ${CMAKE_INSTALL_DATADIR}/vxpresets COMPONENT tools)
  install(FILES ${tool}/vxpresets.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT tools)
  install(FILES ${tool}/vxpresets.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME vxpresets
          COMPONENT tools)
  install(FILES ${tool}/vxpresets.zsh DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/site-functions RENAME _vxpresets
          COMPONENT tools)
  install(FILES ${tool}/vxpresets.fish DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d COMPONENT tools)
endif()

if(VX_BUILD_STUDIO)
  set(studio packaging/studio/org.vexlor.vxpresetstudio)
  install(TARGETS vxpresetstudio RUNTIME COMPONENT studio)
  install(FILES ${studio}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT studio)
  install(FILES ${studio}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo COMPONENT studio)
  install(FILES ${studio}.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps COMPONENT studio)
endif()

# Who installs all of it reads the licence; the packages, a component each, have theirs in Debian's form.
install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT licence)
set(packages libraries libvxmediapresets${PROJECT_VERSION_MAJOR} development libvxmediapresets-dev)
if(VX_BUILD_APPS)
  list(APPEND packages tools vxpresets)
endif()
if(VX_BUILD_STUDIO)
  list(APPEND packages studio vxpresetstudio)
endif()
while(packages)
  list(POP_FRONT packages component package)
  install(FILES packaging/debian/copyright DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${package} COMPONENT ${component}
          EXCLUDE_FROM_ALL)
endwhile()
