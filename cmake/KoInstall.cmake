# The package that find_package(KoNodeUI) finds. The rooms install themselves (ko_library).

include(CMakePackageConfigHelpers)

set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/KoNodeUI)
list(JOIN KO_QT_PUBLIC_COMPONENTS " " KO_QT_PUBLIC_COMPONENTS)
configure_package_config_file(cmake/KoNodeUIConfig.cmake.in KoNodeUIConfig.cmake
    INSTALL_DESTINATION ${package_folder} PATH_VARS KO_NODE_TYPES_FOLDER NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(KoNodeUIConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/KoNodeUIConfig.cmake
              ${CMAKE_CURRENT_BINARY_DIR}/KoNodeUIConfigVersion.cmake
        DESTINATION ${package_folder})
install(EXPORT KoNodeUITargets NAMESPACE KoNodeUI:: DESTINATION ${package_folder})
install(FILES LICENSE README.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
