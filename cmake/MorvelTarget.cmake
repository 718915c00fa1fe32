# SPDX-FileCopyrightText: 2026 The Morvel developers
# SPDX-License-Identifier: MIT
# One place for the build policy that every Morvel target shares.

set(MORVEL_WARNINGS -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion
                    -Wnon-virtual-dtor -Wold-style-cast -Woverloaded-virtual -Werror)

# morvel_library(<layer> SOURCES ... DEPENDS ... [COMPONENT name]) builds morvel_<layer>, aliased
# Morvel::<layer>, exported as Morvel::<layer> to hosts that find_package(Morvel). Its library and
# headers install as the component given (default "devel"), so that a packager can leave a part
# such as the test doubles out: cmake --install <build> --component devel.
function(morvel_library layer)
    cmake_parse_arguments(ARG "" "COMPONENT" "SOURCES;DEPENDS;PRIVATE_DEPENDS" ${ARGN})
    if(NOT ARG_COMPONENT)
        set(ARG_COMPONENT devel)
    endif()
    set(target morvel_${layer})
    add_library(${target} ${ARG_SOURCES})
    add_library(Morvel::${layer} ALIAS ${target})
    set_target_properties(${target} PROPERTIES EXPORT_NAME ${layer} POSITION_INDEPENDENT_CODE ON)
    target_compile_features(${target} PUBLIC cxx_std_20)
    target_compile_options(${target} PRIVATE ${MORVEL_WARNINGS})
    target_include_directories(${target} PUBLIC
        $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/src>
        $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/morvel>)
    target_link_libraries(${target} PUBLIC ${ARG_DEPENDS} PRIVATE ${ARG_PRIVATE_DEPENDS})
    # The test doubles export a set of their own, so that the package works without them.
    set(export MorvelTargets)
    if(ARG_COMPONENT STREQUAL "testing")
        set(export MorvelTestingTargets)
    endif()
    install(TARGETS ${target} EXPORT ${export}
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT ${ARG_COMPONENT}
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT ${ARG_COMPONENT})
    install(DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR}/
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/morvel/${layer} COMPONENT ${ARG_COMPONENT}
        FILES_MATCHING PATTERN "*.h")
endfunction()

# morvel_test(<name> SOURCES ... DEPENDS ...) builds one GoogleTest program and registers its
# tests with CTest one by one.
function(morvel_test name)
    cmake_parse_arguments(ARG "" "" "SOURCES;DEPENDS;LABELS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_compile_options(${name} PRIVATE ${MORVEL_WARNINGS})
    target_link_libraries(${name} PRIVATE ${ARG_DEPENDS} GTest::gtest GTest::gmock GTest::gtest_main)
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
    gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES LABELS "${ARG_LABELS}")
endfunction()
