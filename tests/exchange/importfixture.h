// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tests/support/sourcefolder.h>

#include <fishbone/exchange/diagramexchange.h>
#include <fishbone/exchange/ziparchive.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>

#include <algorithm>

/** The files in the manner of other programs, in a folder for each format. */
namespace ImportFixture {

/** What the expectation of a file is called, behind its name. */
const QString ending = QStringLiteral(".expected");

inline QDir folderOf(DiagramExchange::Format format)
{
    return QDir(
        TestSupport::sourceFile(QStringLiteral("tests/exchange/") + DiagramExchange::id(format)));
}

/** The names of the files, and of the folders that hold the parts of one, without expectations. */
inline QStringList fixturesOf(DiagramExchange::Format format)
{
    QStringList names = folderOf(format).entryList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot);
    names.erase(std::remove_if(names.begin(), names.end(),
                               [](const QString &name) { return name.endsWith(ending); }),
                names.end());
    return names;
}

/** The content of a file; a folder stands for the archive of its files. */
inline QByteArray bytesOf(const QString &path)
{
    if (!QFileInfo(path).isDir()) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QStringList names;
    QDirIterator found(path, QDir::Files, QDirIterator::Subdirectories);
    while (found.hasNext())
        names.append(found.next());
    names.sort();
    std::vector<ZipWriter::File> files;
    for (const QString &name : qAsConst(names))
        files.emplace_back(QDir(path).relativeFilePath(name), bytesOf(name));
    return ZipWriter::archive(files);
}

} // namespace ImportFixture
