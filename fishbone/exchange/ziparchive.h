// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>
#include <utility>
#include <vector>

class ImportedTree;
struct zip;

/**
 * The files in a zip archive from anywhere. The number of entries, the size of each and of all that
 * is read, and how far one may expand are bounded, whatever the archive says about itself.
 */
class ZipReader
{
    Q_DISABLE_COPY(ZipReader)

public:
    static constexpr int maximalEntries = 10000;
    /** The bytes of one file. */
    static constexpr qint64 maximalFile = Q_INT64_C(64) << 20;
    /** The bytes of all files that are read. */
    static constexpr qint64 maximalSum = Q_INT64_C(256) << 20;
    /** How many times as large as in the archive a file may be, when it is larger than a MiB. */
    static constexpr qint64 maximalRatio = 500;

    /** Opens the archive in @p bytes; what is wrong fails @p tree. */
    ZipReader(const QByteArray &bytes, ImportedTree &tree);
    ~ZipReader();

    /** Whether it was opened. */
    bool isOpen() const { return m_zip; }
    /** The names of all files. */
    QStringList names() const { return m_names; }
    bool contains(const QString &name) const { return m_names.contains(name); }
    /** The content of a file. Nothing when there is none of that name, and nothing, with an error
     * in the tree, when it cannot be read or is too large. */
    std::optional<QByteArray> file(const QString &name);

private:
    bool readNames();
    std::optional<QByteArray> readEntry(const QString &name, int index);
    std::optional<QByteArray> fail(const QString &name, const QString &reason);

    const QByteArray m_bytes; ///< which the archive reads from
    ImportedTree &m_tree;
    zip *m_zip = nullptr;
    QStringList m_names;
    QHash<QString, int> m_indexes;
    qint64 m_sum = 0; ///< of the bytes that were read
};

namespace ZipWriter {

/** A name and a content. */
using File = std::pair<QString, QByteArray>;

/** An archive of @p files, the same for the same files; empty when it cannot be made. */
QByteArray archive(const std::vector<File> &files);

} // namespace ZipWriter
