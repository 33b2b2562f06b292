// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <memory>

struct CommandLine;
class TreeItem;

/**
 * Reads the one file of @p line in its format and returns the head of the diagram. Null on failure,
 * and @p message says what went wrong.
 */
std::unique_ptr<TreeItem> readDocument(const CommandLine &line, QString &message);

/**
 * Carries out a conversion that was asked for on the command line. Shows no window.
 *
 * Returns an exit code of CommandLine; when that is a failure, @p message says what went wrong.
 */
int runConvert(const CommandLine &line, QString &message);
