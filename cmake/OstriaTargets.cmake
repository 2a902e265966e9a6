# SPDX-License-Identifier: Apache-2.0
# The project's own target functions: one line a target says what it is made of and may use.

include(GoogleTest)

function(_ostria_check_arguments prefix)
    if(${prefix}_UNPARSED_ARGUMENTS)
        message(FATAL_ERROR "Unknown arguments: ${${prefix}_UNPARSED_ARGUMENTS}")
    endif()
endfunction()

# A library, static unless SHARED. Its folder is its include directory, so headers are found by their
# bare name.
function(ostria_add_library name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "AUTOMOC;SHARED" "" "SOURCES;PUBLIC_DEPS;PRIVATE_DEPS")
    _ostria_check_arguments(arg)
    set(kind STATIC)
    if(arg_SHARED)
        set(kind SHARED)
    endif()
    add_library(${name} ${kind} ${arg_SOURCES})
    target_include_directories(${name} PUBLIC "${CMAKE_CURRENT_SOURCE_DIR}")
    target_link_libraries(${name} PUBLIC ${arg_PUBLIC_DEPS}
        PRIVATE $<BUILD_INTERFACE:ostria_compiler> ${arg_PRIVATE_DEPS})
    set_target_properties(${name} PROPERTIES AUTOMOC "${arg_AUTOMOC}")
endfunction()

# All programs, without tests and benchmarks.
add_custom_target(programs)

# A program in the bin folder.
function(ostria_add_executable name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "AUTOMOC" "" "SOURCES;DEPS")
    _ostria_check_arguments(arg)
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE ostria_compiler ${arg_DEPS})
    set_target_properties(${name} PROPERTIES AUTOMOC "${arg_AUTOMOC}")
    add_dependencies(programs ${name})
endfunction()

# A plugin of the viewer, in the plugins folder.
function(ostria_add_plugin name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "AUTOMOC" "" "SOURCES;DEPS")
    _ostria_check_arguments(arg)
    add_library(${name} MODULE ${arg_SOURCES})
    target_include_directories(${name} PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}")
    target_link_libraries(${name} PRIVATE ostria_compiler ${arg_DEPS})
    set_target_properties(${name} PROPERTIES AUTOMOC "${arg_AUTOMOC}"
        LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/plugins")
    add_dependencies(programs ${name})
endfunction()

# A GoogleTest program; each of its tests becomes one ctest entry. The label "realtime" keeps its
# tests out of runs under sanitizers, SERIAL lets each run alone, DISPLAY gives each a screen and
# settings of its own, for programs that open windows, LOOPBACK a network of its own.
function(ostria_add_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "AUTOMOC;SERIAL;DISPLAY;LOOPBACK" ""
        "SOURCES;DEPS;LABELS;ENVIRONMENT")
    _ostria_check_arguments(arg)
    if(NOT arg_LABELS)
        set(arg_LABELS unit)
    endif()
    add_executable(${name} ${arg_SOURCES})
    target_include_directories(${name} PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}")
    target_link_libraries(${name} PRIVATE ostria_compiler ${arg_DEPS} GTest::gmock GTest::gtest_main)
    set_target_properties(${name} PROPERTIES
        AUTOMOC "${arg_AUTOMOC}"
        RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tests")
    set(environment
        "LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/lsan.supp:print_suppressions=0"
        "UBSAN_OPTIONS=print_stacktrace=1"
        ${arg_ENVIRONMENT})
    if(arg_DISPLAY)
        list(APPEND environment "QT_QPA_PLATFORM=xcb")
        set_target_properties(${name} PROPERTIES
            CROSSCOMPILING_EMULATOR "${PROJECT_SOURCE_DIR}/scripts/with-display")
    else()
        list(APPEND environment "QT_QPA_PLATFORM=offscreen")
    endif()
    if(arg_LOOPBACK)
        set_target_properties(${name} PROPERTIES
            CROSSCOMPILING_EMULATOR "${PROJECT_SOURCE_DIR}/scripts/with-loopback")
    endif()
    gtest_discover_tests(${name}
        DISCOVERY_TIMEOUT 120
        PROPERTIES LABELS "${arg_LABELS}" TIMEOUT 300 ENVIRONMENT "${environment}"
            RUN_SERIAL "${arg_SERIAL}")
endfunction()

# A Google Benchmark program.
function(ostria_add_benchmark name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;DEPS")
    _ostria_check_arguments(arg)
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE ostria_compiler ${arg_DEPS} benchmark::benchmark_main)
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/benchmarks")
endfunction()
