// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

struct CommandLine;

/**
 * Says what is in the one file of @p line. Shows no window.
 *
 * Returns an exit code of CommandLine. @p message is the report, or what went wrong.
 */
int runInfo(const CommandLine &line, QString &message);
