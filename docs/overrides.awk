#!/usr/bin/awk -f
# SPDX-FileCopyrightText: 2026 The Fishbone authors
# SPDX-License-Identifier: MIT
#
# Reads a header for Doxygen: an override without a comment of its own means what the base class says.
{
    line = $0
    documented = previous ~ /\*\/$/ || previous ~ /^ *\/\/\/ /
    if (line ~ / override( \{.*\}|;)$/ && !documented)
        print line " ///< As in the base class."
    else
        print line
    if (NF)
        previous = line
}
