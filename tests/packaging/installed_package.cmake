# Installs a build into an empty folder, compiles all headers that are installed, builds the examples against them, and
# runs these.
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

file(GLOB_RECURSE headers RELATIVE ${WORK}/installed/include/konodeui ${WORK}/installed/include/konodeui/*.h)
list(TRANSFORM headers REPLACE "(.+)" "#include \"\\1\"\n")
list(JOIN headers "" headers)
file(WRITE ${WORK}/headers/headers.cpp "${headers}")
file(WRITE ${WORK}/headers/CMakeLists.txt [[
cmake_minimum_required(VERSION 3.25)
project(AllHeaders LANGUAGES CXX)
find_package(KoNodeUI 1.0 REQUIRED)
add_library(headers OBJECT headers.cpp)
target_link_libraries(headers PRIVATE KoNodeUI::host KoNodeUI::conformance)
]])

foreach(source ${WORK}/headers ${SOURCE}/examples/host ${SOURCE}/examples/embed) # the host brings the driver with it
    get_filename_component(name ${source} NAME)
    run(${CMAKE_COMMAND} -S ${source} -B ${WORK}/build/${name} -G ${GENERATOR}
        -DCMAKE_PREFIX_PATH=${WORK}/installed -DCMAKE_FIND_USE_PACKAGE_REGISTRY=OFF
        -DCMAKE_CXX_COMPILER=${CXX} -DCMAKE_CXX_FLAGS=${CXX_FLAGS} -DCMAKE_BUILD_TYPE=Debug)
    run(${CMAKE_COMMAND} --build ${WORK}/build/${name})
endforeach()
run(${WORK}/build/host/example-host --self-check)
run(${WORK}/build/host/example-host-contract)
run(${WORK}/build/embed/example-embed ${WORK}/cameras.kodb --self-check)
