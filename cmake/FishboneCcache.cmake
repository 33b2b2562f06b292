# SPDX-FileCopyrightText: 2026 The Fishbone authors
# SPDX-License-Identifier: MIT
#
# Compiles through ccache when it is installed and no other launcher was chosen. ccache passes files that
# use a precompiled header on to the compiler unless it is told that their macros may be trusted.

if(PROJECT_IS_TOP_LEVEL AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    find_program(FISHBONE_CCACHE ccache)
    mark_as_advanced(FISHBONE_CCACHE)
    if(FISHBONE_CCACHE)
        set(CMAKE_CXX_COMPILER_LAUNCHER
            "${CMAKE_COMMAND}" -E env "CCACHE_SLOPPINESS=pch_defines,time_macros" "${FISHBONE_CCACHE}")
    endif()
endif()
