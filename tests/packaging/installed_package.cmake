# Installs a build into an empty folder, builds examples/host against what is installed, and runs it.
#   cmake -DBUILD=... -DSOURCE=... -DWORK=... -DGENERATOR=... -DCXX=... -DCXX_FLAGS=... -P installed_package.cmake

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result)
    if(NOT result EQUAL 0)
        list(JOIN ARGN " " command)
        message(FATAL_ERROR "${command}\nended with ${result}")
    endif()
endfunction()

file(REMOVE_RECURSE ${WORK})
run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${WORK}/installed)
run(${CMAKE_COMMAND} -S ${SOURCE}/examples/host -B ${WORK}/example -G ${GENERATOR}
    -DCMAKE_PREFIX_PATH=${WORK}/installed -DCMAKE_FIND_USE_PACKAGE_REGISTRY=OFF
    -DCMAKE_CXX_COMPILER=${CXX} -DCMAKE_CXX_FLAGS=${CXX_FLAGS} -DCMAKE_BUILD_TYPE=Debug)
run(${CMAKE_COMMAND} --build ${WORK}/example)
run(${WORK}/example/example-host --self-check)
