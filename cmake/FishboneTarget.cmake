# SPDX-FileCopyrightText: 2026 The Fishbone authors
# SPDX-License-Identifier: MIT

# fishbone_setup_target(<target>)
#
# The language level, the definitions and warnings that every target of this project is built with. They are
# set on the target alone and reach nobody who links it.
function(fishbone_setup_target target)
    set_target_properties(${target} PROPERTIES
        AUTOMOC ON
        CXX_EXTENSIONS OFF
        CXX_STANDARD 17
        CXX_STANDARD_REQUIRED ON
        CXX_VISIBILITY_PRESET hidden
        POSITION_INDEPENDENT_CODE ON
        UNITY_BUILD_MODE GROUP
        VISIBILITY_INLINES_HIDDEN ON)
    target_compile_definitions(${target} PRIVATE
        QT_DISABLE_DEPRECATED_BEFORE=0x050F00
        QT_NO_CAST_FROM_ASCII
        QT_NO_CAST_TO_ASCII
        QT_NO_KEYWORDS)
    # CMake does not run moc again for a source that is added to a build that there is already.
    get_target_property(sources ${target} SOURCES)
    set(listed "${CMAKE_CURRENT_BINARY_DIR}/${target}.sources")
    set(before "")
    if(EXISTS "${listed}")
        file(READ "${listed}" before)
    endif()
    if(NOT before STREQUAL "${sources}")
        file(WRITE "${listed}" "${sources}")
        file(REMOVE "${CMAKE_CURRENT_BINARY_DIR}/${target}_autogen/timestamp")
    endif()
    if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
        target_compile_options(${target} PRIVATE
            -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
            $<$<BOOL:${FISHBONE_WERROR}>:-Werror>)
    endif()
endfunction()

# fishbone_unite_folders(<target>)
#
# In a unity build (CMAKE_UNITY_BUILD) the sources of a folder of the target are compiled as one. Targets that are
# not given to this function are compiled source by source.
function(fishbone_unite_folders target)
    get_target_property(sources ${target} SOURCES)
    list(FILTER sources INCLUDE REGEX "\\.cpp$")
    foreach(source IN LISTS sources)
        cmake_path(ABSOLUTE_PATH source OUTPUT_VARIABLE path)
        cmake_path(GET path PARENT_PATH folder)
        cmake_path(GET folder FILENAME name)
        set_source_files_properties("${source}" PROPERTIES UNITY_GROUP "${name}")
    endforeach()
    if(CMAKE_UNITY_BUILD)
        fishbone_allow_unity(${target})
    endif()
endfunction()

# fishbone_allow_unity(<target>)
#
# Takes back the warnings that sources of the target only get by being compiled together.
function(fishbone_allow_unity target)
    # A local name may be that of something in another source. And for g++ what a unity source includes is a header,
    # in which a private class had better have no member of a type that each source would have of its own.
    if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
        target_compile_options(${target} PRIVATE -Wno-shadow
            $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
    endif()
endfunction()
