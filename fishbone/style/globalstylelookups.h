// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

/** How often this process has tried to open the file of the global style. */
int globalStyleLookupCount();
