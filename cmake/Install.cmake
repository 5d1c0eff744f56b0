# What `cmake --install` puts where. Two components, one per Debian package (cmake/Packaging.cmake):
# Runtime holds the plug-in, alarm-host, the SDK's shared library and the README (the QML API's
# documentation); Development holds the SDK headers, the unversioned library link and the CMake package.
include(CMakePackageConfigHelpers)

# Relative run paths, so an installed tree works from any prefix, a scratch one included.
file(RELATIVE_PATH alarm_bin_to_lib ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
file(RELATIVE_PATH alarm_plugins_to_lib
     ${CMAKE_INSTALL_PREFIX}/${ALARM_PLUGIN_INSTALL_DIR} ${CMAKE_INSTALL_FULL_LIBDIR})

install(TARGETS uiframework EXPORT UiFrameworkTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Runtime NAMELINK_COMPONENT Development
        FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/uiframework COMPONENT Development)
install(EXPORT UiFrameworkTargets NAMESPACE UiFramework:: FILE UiFrameworkTargets.cmake
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/UiFramework COMPONENT Development)
set(package_dir ${CMAKE_CURRENT_BINARY_DIR}/UiFramework)
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/UiFrameworkConfig.cmake.in ${package_dir}/UiFrameworkConfig.cmake
                              INSTALL_DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/UiFramework)
write_basic_package_version_file(${package_dir}/UiFrameworkConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${package_dir}/UiFrameworkConfig.cmake ${package_dir}/UiFrameworkConfigVersion.cmake
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/UiFramework COMPONENT Development)

set_target_properties(PluginAlarmManager PROPERTIES INSTALL_RPATH "$ORIGIN/${alarm_plugins_to_lib}")
install(TARGETS PluginAlarmManager LIBRARY DESTINATION ${ALARM_PLUGIN_INSTALL_DIR} COMPONENT Runtime)
if(TARGET alarm-host)
    set_target_properties(alarm-host PROPERTIES INSTALL_RPATH "$ORIGIN/${alarm_bin_to_lib}")
    install(TARGETS alarm-host RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT Runtime)
endif()
install(FILES ${PROJECT_SOURCE_DIR}/README.md DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT Runtime)
