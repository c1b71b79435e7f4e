# The reference of the public headers: the target `api`, which fails with any warning. No part of `all`.
find_program(KO_DOXYGEN doxygen)
if(KO_DOXYGEN)
    get_property(headers GLOBAL PROPERTY KO_PUBLIC_HEADERS)
    set(KO_API_INPUT "\"${CMAKE_SOURCE_DIR}/docs/api.md\"")
    foreach(header ${headers})
        cmake_path(ABSOLUTE_PATH header BASE_DIRECTORY ${CMAKE_SOURCE_DIR})
        string(APPEND KO_API_INPUT " \\\n                         \"${header}\"")
    endforeach()
    configure_file(docs/Doxyfile.in Doxyfile @ONLY)
    add_custom_target(api COMMAND ${CMAKE_COMMAND} -E rm -rf ${CMAKE_BINARY_DIR}/api
                          COMMAND ${KO_DOXYGEN} ${CMAKE_BINARY_DIR}/Doxyfile VERBATIM)
endif()
