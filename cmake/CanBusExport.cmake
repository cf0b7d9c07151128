# What is installed for those who build against the framework: find_package(OrbCommons), and orbcommons.pc for builds
# without CMake.

include(CMakePackageConfigHelpers)

set(canbus_config_dir ${CMAKE_INSTALL_LIBDIR}/cmake/OrbCommons)
install(EXPORT OrbCommonsTargets NAMESPACE OrbCommons:: DESTINATION ${canbus_config_dir})
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/OrbCommonsConfig.cmake.in OrbCommonsConfig.cmake
  INSTALL_DESTINATION ${canbus_config_dir})
write_basic_package_version_file(OrbCommonsConfigVersion.cmake COMPATIBILITY SameMajorVersion)

# Found by the way from its own folder, so that the whole installation may be moved.
file(RELATIVE_PATH canbus_pc_prefix /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
string(REGEX REPLACE "/$" "" canbus_pc_prefix ${canbus_pc_prefix})
configure_file(${CMAKE_CURRENT_LIST_DIR}/orbcommons.pc.in orbcommons.pc @ONLY)

install(FILES ${CMAKE_CURRENT_BINARY_DIR}/OrbCommonsConfig.cmake ${CMAKE_CURRENT_BINARY_DIR}/OrbCommonsConfigVersion.cmake
  DESTINATION ${canbus_config_dir})
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/orbcommons.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
