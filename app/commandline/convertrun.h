// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <memory>

class ExchangeReport;
struct CommandLine;
class TreeItem;

/**
 * Reads the one document of @p line, a file, an address or the standard input, in its format and
 * returns the head of the diagram. Null on failure, and @p message says what went wrong; otherwise
 * @p report says what became of the things that no field holds.
 */
std::unique_ptr<TreeItem> readDocument(const CommandLine &line, QString &message,
                                       ExchangeReport &report);

/**
 * Carries out a conversion that was asked for on the command line. Shows no window. What is left
 * out or put elsewhere is printed on the error output; when the command line is strict, losing
 * content is a failure, and nothing is written.
 *
 * Returns an exit code of CommandLine; when that is a failure, @p message says what went wrong.
 */
int runConvert(const CommandLine &line, QString &message);
