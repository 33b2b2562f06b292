# SPDX-FileCopyrightText: 2026 The Fishbone authors
# SPDX-License-Identifier: MIT
#
# Counts how often each region of the library's sources runs, and which way each decision went. Everything is
# built for it, since the linker takes an inline function of a header from any object that has it; but only the
# functions of the library are counted.

if(FISHBONE_COVERAGE)
    if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
        message(FATAL_ERROR "The coverage is counted by clang")
    endif()
    set(counting -fprofile-instr-generate)
    add_compile_options(${counting} -fcoverage-mapping
        "-fprofile-list=${CMAKE_CURRENT_LIST_DIR}/coverage.list")
    add_link_options(${counting})
endif()
