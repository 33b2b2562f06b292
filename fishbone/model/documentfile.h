// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/base/filenames.h>

class QByteArray;
class QString;
class TreeItem;

/** How documents reach the disk, and how autosave names its files. */
namespace DocumentFile {

/** The text of the diagram in @p container; empty when it would nest deeper than a reader takes. */
QByteArray text(const TreeItem &container);

/** Makes @p fileName an empty file. */
void makeEmpty(const QString &fileName);

/**
 * @p title as a part of a file name: without separators and control characters, and short enough
 * for any file system, and nothing else for @p system than a name. An ordinary title stands
 * unchanged.
 */
QString namePart(const QString &title, FileNames::System system = FileNames::here());

/**
 * Makes an empty file in @p folder under a name that nobody else was given: @p title, a dot, and
 * the time in milliseconds since the epoch, put forward where that name is taken. Returns the path,
 * also when no file can be made there.
 */
QString reserveName(const QString &folder, const QString &title);

} // namespace DocumentFile
