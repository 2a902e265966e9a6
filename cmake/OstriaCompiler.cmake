# SPDX-License-Identifier: Apache-2.0
# Language level, warnings, sanitizers and the compiler cache, the same for every target.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)

set(OSTRIA_SANITIZE "" CACHE STRING "Sanitizers to build with, as -fsanitize takes them")

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
    # What a precompiled header defines cannot be seen from outside; its content is compared instead.
    set(CMAKE_CXX_COMPILER_LAUNCHER "${CMAKE_COMMAND}" -E env
        CCACHE_SLOPPINESS=pch_defines,time_macros "${CCACHE_PROGRAM}")
endif()

add_library(ostria_compiler INTERFACE)
if(MSVC)
    target_compile_options(ostria_compiler INTERFACE /W4 /WX /permissive- /utf-8 /fp:precise)
else()
    # No fused multiply-add: every machine must give the same last digit. Threads for all alike, as clang
    # takes a precompiled header for no other options.
    target_compile_options(ostria_compiler INTERFACE
        -Wall -Wextra -Wpedantic -Werror -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
        -Wcast-qual -Wconversion -Wno-sign-conversion -Wformat=2
        -ffp-contract=off -pthread)
    if(OSTRIA_SANITIZE)
        target_compile_options(ostria_compiler INTERFACE
            -fsanitize=${OSTRIA_SANITIZE} -fno-sanitize-recover=all)
        target_link_options(ostria_compiler INTERFACE -fsanitize=${OSTRIA_SANITIZE})
    endif()
    # Each compiler has its own way to say so.
    if(OSTRIA_SANITIZE MATCHES "address")
        target_compile_definitions(ostria_compiler INTERFACE OSTRIA_ADDRESS_SANITIZER)
    elseif(OSTRIA_SANITIZE MATCHES "thread")
        target_compile_definitions(ostria_compiler INTERFACE OSTRIA_THREAD_SANITIZER)
    endif()
    if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
        # Qt's logging macros are called with an empty last argument, and its keys go with modifiers.
        target_compile_options(ostria_compiler INTERFACE
            -Wno-gnu-zero-variadic-macro-arguments -Wno-enum-enum-conversion)
        # A precompiled header out of the compiler cache is older than the file it is of.
        target_compile_options(ostria_compiler INTERFACE "SHELL:-Xclang -fno-pch-timestamp")
    endif()
    if(OSTRIA_BUILD_FUZZERS AND CMAKE_CXX_COMPILER_ID MATCHES "Clang")
        target_compile_options(ostria_compiler INTERFACE -fsanitize=fuzzer-no-link)
    endif()
endif()
target_compile_definitions(ostria_compiler INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_DEPRECATED_WARNINGS
    QT_DISABLE_DEPRECATED_BEFORE=0x050F00)
