# SPDX-FileCopyrightText: 2026 The Fishbone authors
# SPDX-License-Identifier: MIT
#
# The version of Qt that FISHBONE_QT_MAJOR chooses. What is installed for Qt 6 carries the suffix "-qt6",
# so that it stands beside what is installed for Qt 5.

include(GNUInstallDirs)

if(FISHBONE_QT_MAJOR EQUAL 5)
    set(FISHBONE_QT_MINIMUM 5.15)
    set(FISHBONE_SUFFIX "")
    set(FISHBONE_PACKAGE Fishbone)
elseif(FISHBONE_QT_MAJOR EQUAL 6)
    set(FISHBONE_QT_MINIMUM 6.4)
    set(FISHBONE_SUFFIX "-qt6")
    set(FISHBONE_PACKAGE FishboneQt6)
else()
    message(FATAL_ERROR "FISHBONE_QT_MAJOR is \"${FISHBONE_QT_MAJOR}\", and has to be 5 or 6")
endif()

# The headers of both differ in nothing but, one day, their version.
if(FISHBONE_SUFFIX)
    set(FISHBONE_INCLUDE_FOLDER "${CMAKE_INSTALL_INCLUDEDIR}/fishbone${FISHBONE_SUFFIX}")
else()
    set(FISHBONE_INCLUDE_FOLDER "${CMAKE_INSTALL_INCLUDEDIR}")
endif()

set(FISHBONE_QT_MODULES Core Gui Network PrintSupport Svg Widgets)
if(FISHBONE_QT_MAJOR EQUAL 6)
    list(APPEND FISHBONE_QT_MODULES SvgWidgets) # Qt 5 has its graphics item in Svg
endif()
list(TRANSFORM FISHBONE_QT_MODULES PREPEND "Qt${FISHBONE_QT_MAJOR}::" OUTPUT_VARIABLE FISHBONE_QT_TARGETS)
