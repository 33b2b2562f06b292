// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

class QJsonObject;
class QString;

/** Small files of the program's own. */
namespace JsonFile {

/** The object in the file at @p path; empty when there is none. */
QJsonObject read(const QString &path);

/** Who may read a file. */
enum class Readers { Anybody, Owner };

/** Writes @p object, whole or not at all; false when the file cannot be written. */
bool write(const QString &path, const QJsonObject &object, Readers readers = Readers::Anybody);

} // namespace JsonFile
