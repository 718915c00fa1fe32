# SPDX-FileCopyrightText: 2026 The Morvel developers
# SPDX-License-Identifier: MIT
# The installed, exported package: a host writes find_package(Morvel) and links Morvel::control.
include(CMakePackageConfigHelpers)

set(MORVEL_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/Morvel)
install(EXPORT MorvelTargets NAMESPACE Morvel:: DESTINATION ${MORVEL_CMAKE_DIR} COMPONENT devel)
install(EXPORT MorvelTestingTargets NAMESPACE Morvel:: DESTINATION ${MORVEL_CMAKE_DIR}
    COMPONENT testing)
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/MorvelConfig.cmake.in
    ${PROJECT_BINARY_DIR}/MorvelConfig.cmake INSTALL_DESTINATION ${MORVEL_CMAKE_DIR})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/MorvelConfigVersion.cmake
    COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/MorvelConfig.cmake ${PROJECT_BINARY_DIR}/MorvelConfigVersion.cmake
    DESTINATION ${MORVEL_CMAKE_DIR} COMPONENT devel)
