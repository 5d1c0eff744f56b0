# tst_install: `cmake --install` into a scratch prefix, then a stub host built against it with
# find_package(UiFramework) loads the installed plug-in through the installed SDK, and the installed
# alarm-host lists the sample site with the plug-in it finds by itself. Needs a full build
# (everything with install rules). In the sanitizer build the stub is instrumented as well, since the
# installed SDK and plug-in are.
set(stub_flags "")
if(ALARM_SANITIZE)
    set(stub_flags "-fsanitize=address,undefined -fno-sanitize-recover=all")
endif()
add_test(NAME tst_install COMMAND ${CMAKE_COMMAND}
    -D BUILD_DIR=${CMAKE_BINARY_DIR}
    -D WORK_DIR=${CMAKE_CURRENT_BINARY_DIR}/install
    -D STUB_SOURCE_DIR=${CMAKE_CURRENT_SOURCE_DIR}/install
    -D PLUGIN=${ALARM_PLUGIN_INSTALL_DIR}/$<TARGET_FILE_NAME:PluginAlarmManager>
    -D VERSION=${PROJECT_VERSION}
    -D GENERATOR=${CMAKE_GENERATOR}
    -D CXX=${CMAKE_CXX_COMPILER}
    -D LAUNCHER=${CMAKE_CXX_COMPILER_LAUNCHER}
    -D FLAGS=${stub_flags}
    -P ${CMAKE_CURRENT_SOURCE_DIR}/install/RunInstallTest.cmake)
set_tests_properties(tst_install PROPERTIES TIMEOUT 300)
