// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

// Where hosts include it from.
#include <fishbone/base/guardedpointer.h>
