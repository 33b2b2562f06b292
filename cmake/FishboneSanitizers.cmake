# SPDX-FileCopyrightText: 2026 The Fishbone authors
# SPDX-License-Identifier: MIT
#
# Address, leak and undefined-behaviour checks, and what guides a fuzzer through the code. They go into the
# examples too, which are built as a host builds them: a program that links sanitized objects needs the
# runtime of the sanitizers itself.

if(FISHBONE_SANITIZE)
    # A report ends the program, so that a test cannot pass over it.
    set(checks -fsanitize=address,undefined -fno-sanitize-recover=all)
    add_compile_options(${checks} -fno-omit-frame-pointer -O1 -g1)
    add_link_options(${checks})
endif()

if(FISHBONE_BUILD_FUZZERS)
    if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
        message(FATAL_ERROR "The fuzz targets need clang, which has libFuzzer")
    endif()
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()
