// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

class QString;
struct CommandLine;

/**
 * Runs "merge": writes the merged diagram into the second file of @p line, which stays as it is
 * when one of them cannot be read. The conflicts are listed on the error output. Shows no window.
 *
 * Returns an exit code of CommandLine, failure when there are conflicts; @p message says why then.
 */
int runMerge(const CommandLine &line, QString &message);
