# SPDX-FileCopyrightText: 2026 The Fishbone authors
# SPDX-License-Identifier: MIT
#
# The Debian packages, which `cpack -G DEB` makes of what is installed: one for each component, but for the
# plugin for Qt Designer. scripts/package calls it, with DEBFULLNAME and DEBEMAIL in the environment for who
# is told to maintain them.

if(NOT FISHBONE_QT_MAJOR EQUAL 5)
    message(FATAL_ERROR "The Debian packages are made with Qt 5")
endif()

set(runtime_package "libfishbone${PROJECT_VERSION_MAJOR}")
set(development_package libfishbone-dev)
set(program_package fishbone)
set(python_package python3-fishbone)
set(components runtime development program)
if(FISHBONE_BUILD_PYTHON)
    list(APPEND components python)
endif()

# Every package has its copyright and its changelog.
string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
set(maintainer_name "The Fishbone authors")
set(maintainer_address fishbone@packages.invalid)
if(DEFINED ENV{DEBFULLNAME})
    set(maintainer_name "$ENV{DEBFULLNAME}")
endif()
if(DEFINED ENV{DEBEMAIL})
    set(maintainer_address "$ENV{DEBEMAIL}")
endif()
set(maintainer "${maintainer_name} <${maintainer_address}>")
foreach(component IN LISTS components)
    set(package "${${component}_package}")
    set(folder "${PROJECT_BINARY_DIR}/debian/${component}")
    file(CONFIGURE OUTPUT "${folder}/changelog" @ONLY CONTENT [[
@package@ (@PROJECT_VERSION@) unstable; urgency=medium

  * Version @PROJECT_VERSION@. CHANGELOG.md of the sources says what changed.

 -- @maintainer@  @date@
]])
    execute_process(COMMAND gzip -9nkf "${folder}/changelog" COMMAND_ERROR_IS_FATAL ANY)
    install(FILES "${folder}/changelog.gz"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/${package}" COMPONENT ${component})
    install(FILES "${PROJECT_SOURCE_DIR}/LICENSE" RENAME copyright
        DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/${package}" COMPONENT ${component})
endforeach()

set(CPACK_PACKAGE_NAME fishbone)
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGE_CONTACT "${maintainer}")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_GENERATOR DEB)
set(CPACK_COMPONENTS_ALL ${components})
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENT_DEVELOPMENT_DEPENDS runtime)
set(CPACK_COMPONENT_PROGRAM_DEPENDS runtime)
set(CPACK_COMPONENT_PYTHON_DEPENDS runtime)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${PROJECT_BINARY_DIR}/fishbone")
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
foreach(name IN LISTS components)
    string(TOUPPER ${name} component)
    set(CPACK_DEBIAN_${component}_PACKAGE_NAME "${${name}_package}")
endforeach()
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PYTHON_PACKAGE_SECTION python)

set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # each package has its own, the first line of its description
set(what_it_is "Fishbone shows the causes of a problem as the bones of a fish and lets the
user edit them, each a task with a status, a person, dates and a link.")
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION "editor of fishbone diagrams for Qt programs - library
${what_it_is}
A Qt program embeds it as one widget.

This package has the shared library and its translations.")
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "editor of fishbone diagrams for Qt programs - development files
${what_it_is}
A Qt program embeds it as one widget.

This package has what is needed to build such programs: the headers, the
default pictures and the files for CMake and pkg-config.")
set(CPACK_DEBIAN_PROGRAM_DESCRIPTION "editor of fishbone diagrams
${what_it_is}

Diagrams can be exported as pictures, without a display as well.")
set(CPACK_DEBIAN_PYTHON_DESCRIPTION "editor of fishbone diagrams - Python module
${what_it_is}

This package has the module fishbone: scripts read, change, write and draw
diagrams with it, without a display as well, and programs of PySide2 have the
editor as a widget.")

# The headers need Qt's, and CMake its packages.
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "qtbase5-dev (>= 5.15), libqt5svg5-dev (>= 5.15)")

# The module is imported beside those of PySide2 that it is made for, by the interpreter that it was compiled for, and
# compiled for it when the package is installed.
if(FISHBONE_BUILD_PYTHON)
    execute_process(OUTPUT_VARIABLE versions OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY
        COMMAND "${FISHBONE_PYTHON}" -c
            "import sys; v = sys.version_info; print('python3 (>= 3.%d), python3 (<< 3.%d)' % (v[1], v[1] + 1))")
    set(CPACK_DEBIAN_PYTHON_PACKAGE_DEPENDS
        "${versions}, python3-pyside2.qtcore, python3-pyside2.qtgui, python3-pyside2.qtwidgets")
    set(scripts "${PROJECT_BINARY_DIR}/debian/python-scripts")
    file(WRITE "${scripts}/postinst" "#!/bin/sh\nset -e\nif [ \"$1\" = configure ]; then\n"
        "    py3compile -p ${python_package}\nfi\n")
    file(WRITE "${scripts}/prerm" "#!/bin/sh\nset -e\npy3clean -p ${python_package}\n")
    file(CHMOD "${scripts}/postinst" "${scripts}/prerm"
        PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
    set(CPACK_DEBIAN_PYTHON_PACKAGE_CONTROL_EXTRA "${scripts}/postinst" "${scripts}/prerm")
endif()

# Which package a program needs that is linked with the library, and that the linker's cache has to learn of it.
# CPack, which calls ldconfig in scripts of the package, does neither.
file(CONFIGURE OUTPUT "${PROJECT_BINARY_DIR}/debian/shlibs" @ONLY
    CONTENT "libfishbone @PROJECT_VERSION_MAJOR@ @runtime_package@ (>= @PROJECT_VERSION@)\n")
file(CONFIGURE OUTPUT "${PROJECT_BINARY_DIR}/debian/triggers" CONTENT "activate-noawait ldconfig\n")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA
    "${PROJECT_BINARY_DIR}/debian/shlibs" "${PROJECT_BINARY_DIR}/debian/triggers")

include(CPack)
