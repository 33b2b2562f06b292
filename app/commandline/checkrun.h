// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

class QString;
struct CommandLine;

/**
 * Runs "check": looks for what is off in each of the files of @p line. Shows no window.
 *
 * Returns an exit code of CommandLine, failure when there is anything. @p message has a line for
 * each thing, behind the name of its file.
 */
int runCheck(const CommandLine &line, QString &message);
