// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <memory>

struct CommandLine;
class TreeItem;

/**
 * Carries out an export that was asked for on the command line: loads the document, which may take
 * an event loop when it comes from a URL, draws it as a picture and writes the file. Shows no
 * window.
 *
 * Returns an exit code of CommandLine; when that is a failure, @p message says what went wrong.
 */
int runExport(const CommandLine &line, QString &message);

/** Draws the diagram of @p head into the target of @p line; otherwise as runExport(). */
int drawPicture(std::unique_ptr<TreeItem> head, const CommandLine &line, QString &message);

/** Fetches the diagram at @p source, an http or https URL, which takes an event loop. Null on
 * failure, and @p message says what went wrong. */
std::unique_ptr<TreeItem> fetchDiagram(const QString &source, QString &message);
