# SPDX-FileCopyrightText: 2026 The Fishbone authors
# SPDX-License-Identifier: MIT
#
# Installs, in components of these names:
#
#   runtime      the shared library, its translations and the licence
#   development  headers, resources, a static library, the package that find_package(Fishbone) or, with
#                Qt 6, find_package(FishboneQt6) finds, and the file for pkg-config
#   program      the desktop program
#   designer     the plugin for Qt Designer
#   python       the Python module
#
# Nothing installed knows where that is, so that the tree may be moved as a whole.

include(CMakePackageConfigHelpers)

set(data_folder "${CMAKE_INSTALL_DATADIR}/fishbone${FISHBONE_SUFFIX}")
set(package_folder "${CMAKE_INSTALL_LIBDIR}/cmake/${FISHBONE_PACKAGE}")
set(pkgconfig_folder "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
set(objects_folder "${CMAKE_INSTALL_LIBDIR}/fishbone${FISHBONE_SUFFIX}")
set(program_folder "${CMAKE_INSTALL_LIBEXECDIR}/fishbone${FISHBONE_SUFFIX}")

install(TARGETS fishbone EXPORT ${FISHBONE_PACKAGE}Targets
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT runtime NAMELINK_COMPONENT development
    RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT runtime
    ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT development)
install(TARGETS fishbone-resources EXPORT ${FISHBONE_PACKAGE}Targets
    OBJECTS DESTINATION "${objects_folder}" COMPONENT development)
install(FILES ${FISHBONE_COMPILED_TRANSLATIONS}
    DESTINATION "${data_folder}/translations" COMPONENT runtime)

# A header is public when it exports something, or when such a header needs it; the others serve the sources
# beside them.
set(headers_without_exports guardedpointer.h prefetch.h preorder.h spearpointer.h spearwalk.h subjectwalk.h)
file(GLOB headers CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/fishbone/*/*.h")
foreach(header IN LISTS headers)
    file(STRINGS "${header}" exports REGEX "FISHBONE_EXPORT")
    cmake_path(GET header FILENAME name)
    if(exports OR name IN_LIST headers_without_exports)
        cmake_path(GET header PARENT_PATH folder)
        cmake_path(GET folder FILENAME folder)
        install(FILES "${header}"
            DESTINATION "${FISHBONE_INCLUDE_FOLDER}/fishbone/${folder}" COMPONENT development)
    endif()
endforeach()
install(FILES
    "${PROJECT_BINARY_DIR}/include/fishbone/fishbone_export.h"
    "${PROJECT_BINARY_DIR}/include/fishbone/version.h"
    DESTINATION "${FISHBONE_INCLUDE_FOLDER}/fishbone" COMPONENT development)

set(translations_folder "${data_folder}/translations")
configure_package_config_file("${CMAKE_CURRENT_LIST_DIR}/FishboneConfig.cmake.in"
    "${PROJECT_BINARY_DIR}/${FISHBONE_PACKAGE}Config.cmake"
    INSTALL_DESTINATION "${package_folder}"
    PATH_VARS translations_folder)
write_basic_package_version_file("${PROJECT_BINARY_DIR}/${FISHBONE_PACKAGE}ConfigVersion.cmake"
    COMPATIBILITY SameMajorVersion)
install(FILES
    "${PROJECT_BINARY_DIR}/${FISHBONE_PACKAGE}Config.cmake"
    "${PROJECT_BINARY_DIR}/${FISHBONE_PACKAGE}ConfigVersion.cmake"
    DESTINATION "${package_folder}" COMPONENT development)
install(EXPORT ${FISHBONE_PACKAGE}Targets NAMESPACE Fishbone::
    DESTINATION "${package_folder}" COMPONENT development)

# The pkg-config file finds everything from its own place.
cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX
    BASE_DIRECTORY "${CMAKE_INSTALL_PREFIX}/${pkgconfig_folder}" OUTPUT_VARIABLE pkgconfig_to_prefix)
list(TRANSFORM FISHBONE_QT_MODULES PREPEND "Qt${FISHBONE_QT_MAJOR}" OUTPUT_VARIABLE pkgconfig_modules)
list(JOIN pkgconfig_modules ", " pkgconfig_modules)
get_target_property(type fishbone TYPE)
if(type STREQUAL "STATIC_LIBRARY")
    set(pkgconfig_flags " -DFISHBONE_STATIC_DEFINE")
    set(pkgconfig_static_modules ", libzip")
endif()
configure_file("${CMAKE_CURRENT_LIST_DIR}/fishbone.pc.in"
    "${PROJECT_BINARY_DIR}/fishbone${FISHBONE_SUFFIX}.pc" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/fishbone${FISHBONE_SUFFIX}.pc"
    DESTINATION "${pkgconfig_folder}" COMPONENT development)

# Debian's folders are searched anyway, and it has its own place for licences.
if(FISHBONE_DEBIAN)
    set(CMAKE_SKIP_INSTALL_RPATH ON)
else()
    install(FILES "${PROJECT_SOURCE_DIR}/LICENSE"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/licenses/fishbone${FISHBONE_SUFFIX}" COMPONENT runtime)
endif()

# The library reads the global style from the folder of the program, and bin is for programs alone.
if(TARGET fishbone-app)
    cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX
        BASE_DIRECTORY "${CMAKE_INSTALL_PREFIX}/${program_folder}" OUTPUT_VARIABLE program_to_prefix)
    set_target_properties(fishbone-app PROPERTIES
        INSTALL_RPATH "$ORIGIN/${program_to_prefix}/${CMAKE_INSTALL_LIBDIR}")
    install(TARGETS fishbone-app RUNTIME DESTINATION "${program_folder}" COMPONENT program)
    install(FILES "${PROJECT_SOURCE_DIR}/resources/global.spearstyle"
        DESTINATION "${program_folder}" COMPONENT program)
    include(FishboneManual)
    cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX
        BASE_DIRECTORY "${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}" OUTPUT_VARIABLE bin_to_prefix)
    set(link "${PROJECT_BINARY_DIR}/links/fishbone${FISHBONE_SUFFIX}")
    file(MAKE_DIRECTORY "${PROJECT_BINARY_DIR}/links")
    file(CREATE_LINK "${bin_to_prefix}/${program_folder}/fishbone${FISHBONE_SUFFIX}" "${link}" SYMBOLIC)
    install(FILES "${link}" DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT program)
    install(FILES "${PROJECT_SOURCE_DIR}/resources/fishbone.bash"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions"
        RENAME "fishbone${FISHBONE_SUFFIX}" COMPONENT program)
    if(UNIX AND NOT APPLE)
        include(FishboneDesktop)
    endif()
endif()

if(FISHBONE_DEBIAN)
    include(FishboneDebian)
endif()
