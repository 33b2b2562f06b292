# SPDX-FileCopyrightText: 2026 The Fishbone authors
# SPDX-License-Identifier: MIT
#
# cmake -DPROGRAM=<file> -DLINKS=<file>;… -P FishboneTestLinks.cmake
#
# Makes the program known under other names, in folders of their own. Hard links, since what follows a link to
# its target would find all names in one folder.

foreach(link IN LISTS LINKS)
    file(CREATE_LINK "${PROGRAM}" "${link}" COPY_ON_ERROR)
endforeach()
