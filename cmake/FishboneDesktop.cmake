# SPDX-FileCopyrightText: 2026 The Fishbone authors
# SPDX-License-Identifier: MIT
#
# What makes the installed program a part of the desktop: an entry with its icon in the menu, a type for the
# files of diagrams, and a description for software centres. The names tell the program's for Qt 5 from the
# one for Qt 6.

set(FISHBONE_PROGRAM "fishbone${FISHBONE_SUFFIX}")
if(FISHBONE_SUFFIX)
    set(display_suffix " (Qt ${FISHBONE_QT_MAJOR})")
endif()
foreach(file IN ITEMS desktop metainfo.xml)
    configure_file("${CMAKE_CURRENT_LIST_DIR}/desktop/fishbone.${file}.in"
        "${PROJECT_BINARY_DIR}/desktop/${FISHBONE_PROGRAM}.${file}" @ONLY)
endforeach()
install(FILES "${PROJECT_BINARY_DIR}/desktop/${FISHBONE_PROGRAM}.desktop"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/applications" COMPONENT program)
install(FILES "${PROJECT_BINARY_DIR}/desktop/${FISHBONE_PROGRAM}.metainfo.xml"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo" COMPONENT program)
install(FILES "${CMAKE_CURRENT_LIST_DIR}/desktop/fishbone-mime.xml"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/mime/packages" RENAME "${FISHBONE_PROGRAM}.xml"
    COMPONENT program)
install(FILES "${PROJECT_SOURCE_DIR}/resources/appicon.svg"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps" RENAME "${FISHBONE_PROGRAM}.svg"
    COMPONENT program)
