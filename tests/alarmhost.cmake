# The reference host's tests. The server test compiles the host's sources it covers, so it runs in builds
# without the host (the sanitizer build); the end-to-end tests run the built alarm-host and skip when there is none.
find_package(Qt6 6.4 REQUIRED COMPONENTS Network)

target_sources(tst_alarmhostserver PRIVATE ${PROJECT_SOURCE_DIR}/host/SimulatedServer.cpp
    ${PROJECT_SOURCE_DIR}/host/Site.cpp ${PROJECT_SOURCE_DIR}/host/PeerPlugins.cpp)
target_include_directories(tst_alarmhostserver PRIVATE ${PROJECT_SOURCE_DIR}/host)
target_link_libraries(tst_alarmhostserver PRIVATE Qt6::Network Qt6::Xml)

foreach(host_test tst_alarmhost tst_alarmhostpage tst_alarmhostserver)
    if(NOT TARGET ${host_test})
        continue()
    endif()
    target_compile_definitions(${host_test} PRIVATE ALARM_SAMPLE_SITE_DIR="${PROJECT_SOURCE_DIR}/samples/site"
        ALARM_TRANSLATIONS_DIR="${PROJECT_SOURCE_DIR}/translations")
    if(ALARM_BUILD_HOST AND NOT host_test STREQUAL tst_alarmhostserver)
        target_compile_definitions(${host_test} PRIVATE
            ALARM_HOST_EXECUTABLE="${CMAKE_BINARY_DIR}/bin/alarm-host"
            ALARM_HOST_ARTEFACT_DIR="${CMAKE_BINARY_DIR}/artefacts"
            ALARM_HOST_LSAN_SUPPRESSIONS="${PROJECT_SOURCE_DIR}/host/qtquick.lsan.supp")
        add_dependencies(${host_test} alarm-host)
    endif()
endforeach()
