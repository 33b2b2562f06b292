// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/version.h>

const char *fishboneVersion() noexcept
{
    return FISHBONE_VERSION_STRING;
}
