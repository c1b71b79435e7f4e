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
run(${CMAKE_COMMAND} --install ${WORK}/build/host --prefix ${WORK}/installed)
run(${WORK}/build/host/example-host --self-check)
run(${WORK}/build/host/example-host-contract)
run(${WORK}/build/embed/example-embed ${WORK}/cameras.kodb --self-check)

# The plugin of the driver lies where the client looks; a file that is none shows that it does look there.
file(GLOB_RECURSE plugin ${WORK}/installed/*/konodeui/nodetypes/*dome*)
get_filename_component(folder "${plugin}" DIRECTORY)
file(WRITE ${folder}/broken.so "no library")
execute_process(COMMAND ${WORK}/installed/bin/koclient --db ${WORK}/cameras.kodb --export /dev/stdout --without-passwords
                RESULT_VARIABLE result ERROR_VARIABLE said OUTPUT_QUIET)
if(NOT result EQUAL 0 OR NOT said MATCHES "broken.so" OR said MATCHES "dome")
    message(FATAL_ERROR "the client ended with ${result} and said: ${said}")
endif()
