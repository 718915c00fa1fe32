# SPDX-FileCopyrightText: 2026 The Morvel developers
# SPDX-License-Identifier: MIT
# cmake -P script run by the package test: install, configure the consumer against the install
# alone, build it, run it and check what it prints.

function(run step)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE out ERROR_VARIABLE out)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${step} failed (${result}):\n${out}")
    endif()
    set(output "${out}" PARENT_SCOPE)
endfunction()

set(prefix ${WORK_DIR}/prefix)
set(consumer_build ${WORK_DIR}/consumer)
file(REMOVE_RECURSE ${WORK_DIR})

run("Installing ${MORVEL_BUILD_DIR}" ${CMAKE_COMMAND} --install ${MORVEL_BUILD_DIR} --prefix ${prefix})

# The package registry and the system prefixes could hold another Morvel; only ours may count.
run("Configuring the consumer" ${CMAKE_COMMAND} -S ${CONSUMER_SOURCE_DIR} -B ${consumer_build}
    -G ${GENERATOR}
    -DCMAKE_CXX_COMPILER=${CXX_COMPILER}
    "-DCMAKE_CXX_FLAGS=${CXX_FLAGS}"
    -DCMAKE_BUILD_TYPE=${BUILD_TYPE}
    -DCMAKE_PREFIX_PATH=${prefix}
    -DCMAKE_FIND_USE_PACKAGE_REGISTRY=OFF
    -DMORVEL_LAYERS=${LAYERS})

file(STRINGS ${consumer_build}/CMakeCache.txt morvel_dir REGEX "^Morvel_DIR:")
if(NOT morvel_dir MATCHES "=${prefix}/")
    message(FATAL_ERROR "The consumer found Morvel outside the test prefix: ${morvel_dir}")
endif()

run("Building the consumer" ${CMAKE_COMMAND} --build ${consumer_build})
run("Running the consumer" ${consumer_build}/consumer)

set(expected "fields=2 second=Parent type=Sub Link\n")
if(NOT output STREQUAL expected)
    message(FATAL_ERROR "The consumer printed\n[${output}]\ninstead of\n[${expected}]")
endif()
message(STATUS "The installed package builds and runs a host: ${output}")

# Without the testing part the package still configures a host, and holds no test double.
set(devel_prefix ${WORK_DIR}/devel-prefix)
run("Installing the devel part of ${MORVEL_BUILD_DIR}" ${CMAKE_COMMAND} --install
    ${MORVEL_BUILD_DIR} --prefix ${devel_prefix} --component devel)
if(EXISTS ${devel_prefix}/include/morvel/testing)
    message(FATAL_ERROR "The devel part installed the test doubles' headers.")
endif()
string(REPLACE ",testing" "" devel_layers "${LAYERS}")
run("Configuring the consumer against the devel part" ${CMAKE_COMMAND} -S ${CONSUMER_SOURCE_DIR}
    -B ${WORK_DIR}/devel-consumer -G ${GENERATOR} -DCMAKE_CXX_COMPILER=${CXX_COMPILER}
    -DCMAKE_PREFIX_PATH=${devel_prefix} -DCMAKE_FIND_USE_PACKAGE_REGISTRY=OFF
    -DMORVEL_LAYERS=${devel_layers})
