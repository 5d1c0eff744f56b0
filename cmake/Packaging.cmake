# Debian packages from the install rules (cmake/Install.cmake), one per component:
#   alarm-manager-plugin      the plug-in, alarm-host, the SDK's shared library, the README
#   alarm-manager-plugin-dev  the SDK's headers and CMake package
# `./run.sh package` (or `cpack -G DEB` in a configured build) writes them to <build>/packages.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME ${ALARM_PACKAGE_NAME})
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "Alarm manager developers <alarm-manager@example.org>")
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR}/packages)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL Runtime Development)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${ALARM_PACKAGE_NAME})
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME ${ALARM_PACKAGE_NAME}-dev)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
# First line: the synopsis.
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION "Alarm-management plug-in with its reference host
The plug-in module, alarm-host (a reference host with a simulated server, a sample site and an
example QML page) and the host SDK's shared library.")
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "Host SDK for alarm-host plug-ins: headers and CMake package
PluginBase, FrameworkWrapperBase and ConfigBase for hosts and plug-ins, found with
find_package(UiFramework CONFIG) as the target UiFramework::UiFramework.")

# Library dependencies come from the binaries; the -dev package depends on the runtime of the same version.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_COMPONENT_DEVELOPMENT_DEPENDS Runtime)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
# What no binary links against: the QML modules and platform plug-ins the host's page loads at run time,
# and the Qt headers and CMake files the SDK's headers and package need.
set(CPACK_DEBIAN_RUNTIME_PACKAGE_DEPENDS
    "qml6-module-qtquick, qml6-module-qtquick-controls, qml6-module-qtquick-layouts, \
qml6-module-qtquick-templates, qml6-module-qtquick-window, qml6-module-qtqml-workerscript, qt6-qpa-plugins")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "qt6-base-dev (>= 6.4)")

include(CPack)
