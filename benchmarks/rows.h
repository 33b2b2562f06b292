// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

/** Registers the rows of a benchmark program. Each program defines it; main() calls it. */
void addRows();
