# SPDX-FileCopyrightText: 2026 The Fishbone authors
# SPDX-License-Identifier: MIT
#
# Links debug builds with mold when it is installed: the tests are more than a hundred programs, and the
# usual linker takes longer for them than the compiler does.

if(PROJECT_IS_TOP_LEVEL AND CMAKE_BUILD_TYPE STREQUAL "Debug" AND CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
    find_program(FISHBONE_MOLD mold)
    mark_as_advanced(FISHBONE_MOLD)
    if(FISHBONE_MOLD)
        add_link_options(-fuse-ld=mold)
    endif()
endif()
