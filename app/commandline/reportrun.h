// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

class QString;
struct CommandLine;

/** Runs "report": writes what is sent round after a meeting about the one document of @p line.
 * Returns an exit code; on failure @p message says why. */
int runReport(const CommandLine &line, QString &message);
