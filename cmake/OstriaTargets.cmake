# SPDX-License-Identifier: Apache-2.0
# The project's own target functions: one line a target says what it is made of and may use.

include(GoogleTest)

function(_ostria_check_arguments prefix)
    if(${prefix}_UNPARSED_ARGUMENTS)
        message(FATAL_ERROR "Unknown arguments: ${${prefix}_UNPARSED_ARGUMENTS}")
    endif()
endfunction()

# A library, static unless SHARED. Its folder is its include directory, so headers are found by their
# bare name. WITHOUT_QT is for what must not even see Qt's headers.
function(ostria_add_library name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "AUTOMOC;SHARED;WITHOUT_QT" "" "SOURCES;PUBLIC_DEPS;PRIVATE_DEPS")
    _ostria_check_arguments(arg)
    set(kind STATIC)
    if(arg_SHARED)
        set(kind SHARED)
    endif()
    add_library(${name} ${kind} ${arg_SOURCES})
    target_include_directories(${name} PUBLIC "${CMAKE_CURRENT_SOURCE_DIR}")
    target_link_libraries(${name} PUBLIC ${arg_PUBLIC_DEPS}
        PRIVATE $<BUILD_INTERFACE:ostria_compiler> ${arg_PRIVATE_DEPS})
    if(TARGET ostria_prelude AND NOT arg_WITHOUT_QT)
        target_precompile_headers(${name} REUSE_FROM ostria_prelude)
    endif()
    set_target_properties(${name} PROPERTIES AUTOMOC "${arg_AUTOMOC}")
    if(arg_SHARED)
        install(TARGETS ${name} LIBRARY DESTINATION lib RUNTIME DESTINATION bin)
    endif()
endfunction()

# All programs, without tests and benchmarks.
add_custom_target(programs)

# A program in the bin folder; installed.
function(ostria_add_executable name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "AUTOMOC" "" "SOURCES;DEPS")
    _ostria_check_arguments(arg)
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE ostria_compiler ${arg_DEPS})
    set_target_properties(${name} PROPERTIES AUTOMOC "${arg_AUTOMOC}")
    add_dependencies(programs ${name})
    install(TARGETS ${name} RUNTIME DESTINATION bin)
endfunction()

# A plugin of the viewer, in the plugins folder; installed where the viewer looks for it.
function(ostria_add_plugin name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "AUTOMOC" "" "SOURCES;DEPS")
    _ostria_check_arguments(arg)
    add_library(${name} MODULE ${arg_SOURCES})
    target_include_directories(${name} PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}")
    target_link_libraries(${name} PRIVATE ostria_compiler ${arg_DEPS})
    set_target_properties(${name} PROPERTIES AUTOMOC "${arg_AUTOMOC}"
        LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/plugins"
        INSTALL_RPATH "$ORIGIN/../..")
    add_dependencies(programs ${name})
    install(TARGETS ${name} LIBRARY DESTINATION lib/ostriaviewer/plugins)
endfunction()

# The graphics driver is unloaded before leaks are reported; loaded first, it stays, and what it leaks
# has a name that tests/lsan.supp knows. The sanitizer's library must come before it.
if(OSTRIA_SANITIZE MATCHES "address")
    # Clang links it into the program.
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        execute_process(COMMAND "${CMAKE_CXX_COMPILER}" -print-file-name=libasan.so
            OUTPUT_VARIABLE OSTRIA_ASAN_LIBRARY OUTPUT_STRIP_TRAILING_WHITESPACE)
    endif()
    file(GLOB OSTRIA_GRAPHICS_DRIVER "/usr/lib/*/dri/swrast_dri.so")
    set(OSTRIA_DISPLAY_PRELOAD "OSTRIA_PRELOAD=${OSTRIA_ASAN_LIBRARY} ${OSTRIA_GRAPHICS_DRIVER}")
endif()

# A test takes a core, which is two of the slots that ./test hands out, one that paces itself takes
# one. Those come first: what is heavy would hold up a camera that has to be in time.
set(OSTRIA_TEST_LOAD PROCESSORS 2 COST 0)
set(OSTRIA_PACED_TEST_LOAD PROCESSORS 1 COST 1000)

# One ctest entry for each test.
function(_ostria_add_each_test name labels load environment)
    gtest_discover_tests(${name}
        DISCOVERY_TIMEOUT 120
        PROPERTIES LABELS "${labels}" TIMEOUT 300 ${load})
    # Of a list among the properties above only the first entry would arrive.
    set(script "${CMAKE_CURRENT_BINARY_DIR}/${name}_environment.cmake")
    file(WRITE "${script}"
        "if(${name}_TESTS)\n"
        "  set_tests_properties(\${${name}_TESTS} PROPERTIES ENVIRONMENT \"${environment}\")\n"
        "endif()\n")
    set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES "${script}")
endfunction()

# A few ctest entries, each a share of the tests: the start of a program, with a screen or a sanitizer,
# takes longer than most tests.
function(_ostria_add_shares name labels load environment)
    set(shares 4)
    foreach(share RANGE 1 ${shares})
        math(EXPR index "${share} - 1")
        add_test(NAME ${name}.${share}of${shares} COMMAND ${name})
        set_tests_properties(${name}.${share}of${shares} PROPERTIES
            LABELS "${labels}" TIMEOUT 600 ${load}
            ENVIRONMENT "${environment};GTEST_TOTAL_SHARDS=${shares};GTEST_SHARD_INDEX=${index}")
    endforeach()
endfunction()

# The tests' own code is compiled for the shortest build, what they test as users run it. Plain
# literals may stand for texts in it.
if(MSVC)
    set(OSTRIA_TEST_OPTIONS /UQT_NO_CAST_FROM_ASCII)
elseif(OSTRIA_SANITIZE)
    set(OSTRIA_TEST_OPTIONS -O0 -UQT_NO_CAST_FROM_ASCII)
else()
    set(OSTRIA_TEST_OPTIONS -O1 -UQT_NO_CAST_FROM_ASCII)
endif()

# A GoogleTest program. The label "realtime" keeps its tests out of runs under sanitizers, PACED is for
# those that wait for the clock of a camera more than they compute, DISPLAY gives it a screen of its
# own, for programs that open windows, LOOPBACK a network of its own. WITHOUT_QT is for what must not
# even see Qt's headers.
function(ostria_add_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "AUTOMOC;PACED;DISPLAY;LOOPBACK;WITHOUT_QT" ""
        "SOURCES;DEPS;LABELS;ENVIRONMENT")
    _ostria_check_arguments(arg)
    set(starters "")
    if(NOT arg_LABELS)
        set(arg_LABELS unit)
    endif()
    add_executable(${name} ${arg_SOURCES})
    target_include_directories(${name} PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}")
    target_link_libraries(${name} PRIVATE ostria_compiler ${arg_DEPS} GTest::gmock GTest::gtest_main)
    target_compile_options(${name} PRIVATE ${OSTRIA_TEST_OPTIONS})
    if(NOT arg_WITHOUT_QT)
        target_precompile_headers(${name} REUSE_FROM test_prelude)
        target_link_libraries(${name} PRIVATE test_folders)
    endif()
    set_target_properties(${name} PROPERTIES
        AUTOMOC "${arg_AUTOMOC}"
        RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tests")
    set(environment
        "LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/lsan.supp:print_suppressions=0"
        "UBSAN_OPTIONS=print_stacktrace=1"
        "TSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/tsan.supp"
        ${arg_ENVIRONMENT})
    if(arg_DISPLAY)
        list(APPEND environment "QT_QPA_PLATFORM=xcb" ${OSTRIA_DISPLAY_PRELOAD})
        list(APPEND starters "${PROJECT_SOURCE_DIR}/scripts/with-display")
    else()
        list(APPEND environment "QT_QPA_PLATFORM=offscreen")
    endif()
    if(arg_DISPLAY AND NOT OSTRIA_DISPLAY_TESTS)
        set_target_properties(${name} PROPERTIES EXCLUDE_FROM_ALL ON)
        return()
    endif()
    if(arg_LOOPBACK)
        list(APPEND starters "${PROJECT_SOURCE_DIR}/scripts/with-loopback")
    endif()
    set_target_properties(${name} PROPERTIES CROSSCOMPILING_EMULATOR "${starters}")
    set(load ${OSTRIA_TEST_LOAD})
    if(arg_PACED)
        set(load ${OSTRIA_PACED_TEST_LOAD})
    endif()
    if(OSTRIA_TEST_SHARES)
        _ostria_add_shares(${name} "${arg_LABELS}" "${load}" "${environment}")
    else()
        _ostria_add_each_test(${name} "${arg_LABELS}" "${load}" "${environment}")
    endif()
endfunction()

# A Google Benchmark program.
function(ostria_add_benchmark name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;DEPS")
    _ostria_check_arguments(arg)
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE ostria_compiler ${arg_DEPS} benchmark::benchmark_main)
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/benchmarks")
endfunction()
