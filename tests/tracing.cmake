# The tracing test runs with a stand-in tracing library on its library path, under the exact file name
# the plug-in looks for; every other test runs without one.
add_library(KrylLogUtlStandIn SHARED ${CMAKE_CURRENT_LIST_DIR}/tracing/LogTraceStandIn.cpp)
target_include_directories(KrylLogUtlStandIn PRIVATE ${PROJECT_SOURCE_DIR}/src)
set_target_properties(KrylLogUtlStandIn PROPERTIES
    PREFIX "lib" OUTPUT_NAME "KrylLogUtl" SUFFIX ".dylib"
    LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tracing)
alarm_project_warnings(KrylLogUtlStandIn)
add_dependencies(tst_tracing KrylLogUtlStandIn)
target_compile_definitions(tst_tracing PRIVATE ALARM_SOURCE_DIR="${PROJECT_SOURCE_DIR}/src")
set_tests_properties(tst_tracing PROPERTIES
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LD_LIBRARY_PATH=${CMAKE_BINARY_DIR}/tracing")
