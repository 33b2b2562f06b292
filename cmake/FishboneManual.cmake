# SPDX-FileCopyrightText: 2026 The Fishbone authors
# SPDX-License-Identifier: MIT
#
# The man page, for Debian compressed as it wants it, and once more for each language with the line in it that lists and
# searches of man pages show; the rest of those is as in the first.

file(READ "${PROJECT_SOURCE_DIR}/docs/fishbone.1" manual)
set(summary "edit, convert and draw cause-and-effect diagrams")
file(STRINGS "${PROJECT_SOURCE_DIR}/translations/summaries.txt" summaries ENCODING UTF-8 REGEX "^[a-zA-Z_]+: ")
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS
    "${PROJECT_SOURCE_DIR}/docs/fishbone.1" "${PROJECT_SOURCE_DIR}/translations/summaries.txt")
if(NOT manual MATCHES "\n[^\n]*- ${summary}\n")
    message(FATAL_ERROR "docs/fishbone.1 does not say \"${summary}\"")
endif()
list(PREPEND summaries ": ${summary}")
foreach(line IN LISTS summaries)
    string(REGEX MATCH "^([^:]*): (.+)$" line "${line}")
    set(folder "${CMAKE_INSTALL_MANDIR}")
    cmake_path(APPEND folder "${CMAKE_MATCH_1}" "man1")
    string(REPLACE "- ${summary}\n" "- ${CMAKE_MATCH_2}\n" page "${manual}")
    set(file "${PROJECT_BINARY_DIR}/${folder}/fishbone${FISHBONE_SUFFIX}.1")
    file(CONFIGURE OUTPUT "${file}" CONTENT "${page}" @ONLY)
    if(FISHBONE_DEBIAN)
        execute_process(COMMAND gzip -9nkf "${file}" COMMAND_ERROR_IS_FATAL ANY)
        string(APPEND file ".gz")
    endif()
    install(FILES "${file}" DESTINATION "${folder}" COMPONENT program)
endforeach()
