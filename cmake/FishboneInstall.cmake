# SPDX-FileCopyrightText: 2026 The Fishbone authors
# SPDX-License-Identifier: MIT
#
# Installs the library with its public headers, the resources, the program and a package that
# find_package(Fishbone) finds, with the targets Fishbone::Fishbone and Fishbone::Resources.

include(CMakePackageConfigHelpers)

set(package_folder "${CMAKE_INSTALL_LIBDIR}/cmake/Fishbone")

install(TARGETS fishbone fishbone-resources EXPORT FishboneTargets
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
    ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}"
    RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}"
    OBJECTS DESTINATION "${CMAKE_INSTALL_LIBDIR}/fishbone")

# A header is public when it exports something; the others serve the sources beside them.
file(GLOB headers CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/fishbone/*/*.h")
foreach(header IN LISTS headers)
    file(STRINGS "${header}" exports REGEX "FISHBONE_EXPORT")
    if(exports)
        cmake_path(GET header PARENT_PATH folder)
        cmake_path(GET folder FILENAME folder)
        install(FILES "${header}" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/fishbone/${folder}")
    endif()
endforeach()
install(FILES "${PROJECT_BINARY_DIR}/include/fishbone/fishbone_export.h"
    DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/fishbone")

configure_package_config_file("${CMAKE_CURRENT_LIST_DIR}/FishboneConfig.cmake.in"
    "${PROJECT_BINARY_DIR}/FishboneConfig.cmake"
    INSTALL_DESTINATION "${package_folder}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/FishboneConfigVersion.cmake"
    COMPATIBILITY SameMajorVersion)
install(FILES
    "${PROJECT_BINARY_DIR}/FishboneConfig.cmake"
    "${PROJECT_BINARY_DIR}/FishboneConfigVersion.cmake"
    DESTINATION "${package_folder}")
install(EXPORT FishboneTargets NAMESPACE Fishbone:: DESTINATION "${package_folder}")

if(TARGET fishbone-app)
    set_target_properties(fishbone-app PROPERTIES
        INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")
    install(TARGETS fishbone-app RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
    install(FILES "${PROJECT_SOURCE_DIR}/resources/global.spearstyle"
        DESTINATION "${CMAKE_INSTALL_BINDIR}")
    install(FILES "${PROJECT_SOURCE_DIR}/docs/fishbone.1" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
endif()
