# The CMake package of an installed Velkaro Print, for plug-ins that are built elsewhere:
#
#   find_package(VelkaroPrint 1.0 REQUIRED)
#   target_link_libraries(MyPlugIn PRIVATE VelkaroPrint::platform)
#
# It also tells where bundles are installed (VelkaroPrint_PLUGINS_DIR) and the program's path
# (VelkaroPrint_PROGRAM). It works from wherever the installed folder has been moved to.

include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/VelkaroPrint)
set(program_path ${CMAKE_INSTALL_BINDIR}/velkaro-print)

configure_package_config_file(cmake/VelkaroPrintConfig.cmake.in
    ${CMAKE_BINARY_DIR}/package/VelkaroPrintConfig.cmake
    INSTALL_DESTINATION ${package_dir}
    PATH_VARS VELKARO_PLUGINS_DIR program_path)
write_basic_package_version_file(${CMAKE_BINARY_DIR}/package/VelkaroPrintConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES
    ${CMAKE_BINARY_DIR}/package/VelkaroPrintConfig.cmake
    ${CMAKE_BINARY_DIR}/package/VelkaroPrintConfigVersion.cmake
    DESTINATION ${package_dir})
install(EXPORT VelkaroPrintTargets NAMESPACE VelkaroPrint:: DESTINATION ${package_dir})
