# Run by tst_install (tests/install.cmake): install, build the stub host against the prefix, run it.
set(prefix ${WORK_DIR}/prefix)
file(REMOVE_RECURSE ${WORK_DIR})

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${ARGN}\nfailed (${result}):\n${output}")
    endif()
    set(output "${output}" PARENT_SCOPE)
endfunction()

run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${prefix})
run(${CMAKE_COMMAND} -S ${STUB_SOURCE_DIR} -B ${WORK_DIR}/stub -G ${GENERATOR} -DCMAKE_BUILD_TYPE=Release
    -DCMAKE_PREFIX_PATH=${prefix} -DCMAKE_CXX_COMPILER=${CXX} -DCMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER}
    "-DCMAKE_CXX_FLAGS=${FLAGS}" "-DCMAKE_EXE_LINKER_FLAGS=${FLAGS}")
run(${CMAKE_COMMAND} --build ${WORK_DIR}/stub)
run(${WORK_DIR}/stub/stubhost ${prefix}/${PLUGIN})

# Interface id, plug-in id, and the SDK the plug-in's PluginBase came from: the installed one.
file(GLOB sdk ${prefix}/lib*/libuiframework.so.1 ${prefix}/lib*/*/libuiframework.so.1)
set(expected "com.Corvane.UIFramework.PluginInterface 8F52FB3C63934B05822A26CDA1E599CB ${sdk}\n")
if(NOT sdk OR NOT output STREQUAL expected)
    message(FATAL_ERROR "stub host printed\n${output}expected\n${expected}")
endif()
message(STATUS "${output}")

# The installed host finds the installed plug-in on its own.
if(EXISTS ${prefix}/bin/alarm-host)
    run(${prefix}/bin/alarm-host --version)
    if(NOT output STREQUAL "alarm-host ${VERSION}\n")
        message(FATAL_ERROR "alarm-host --version printed ${output}")
    endif()
    run(${CMAKE_COMMAND} -E env HOME=${WORK_DIR}/home ${prefix}/bin/alarm-host --list --data ${WORK_DIR}/site)
    if(NOT output MATCHES "^Northgate Logistics Park: 64 alarm rules\n")
        message(FATAL_ERROR "alarm-host --list printed\n${output}")
    endif()
endif()
