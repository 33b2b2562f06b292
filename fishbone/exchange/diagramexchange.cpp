// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/diagramexchange.h>

#include <fishbone/exchange/foreignformats.h>
#include <fishbone/exchange/importedtree.h>
#include <fishbone/exchange/outlinewalk.h>
#include <fishbone/model/filereplacement.h>
#include <fishbone/model/jsonnodes.h>
#include <fishbone/model/treeitem.h>

#include <QFile>
#include <QFileInfo>
#include <QIODevice>

#include <algorithm>
#include <array>

static_assert(DiagramExchange::maximalLevels == JsonNodes::readableLevels);

namespace {

using Format = DiagramExchange::Format;

constexpr qint64 chunkSize = 1 << 20;

/** At most @p limit bytes. In pieces, since a device makes room for all that it is asked for. */
QByteArray readUpTo(QIODevice &device, qint64 limit)
{
    QByteArray bytes;
    while (bytes.size() < limit) {
        const QByteArray piece = device.read(qMin<qint64>(chunkSize, limit - bytes.size()));
        if (piece.isEmpty())
            break;
        bytes += piece;
    }
    return bytes;
}

/** All that is known of a format. */
struct FormatEntry
{
    Format format;
    const char *id;
    const char *name;     ///< for DiagramExchange::tr()
    const char *suffixes; ///< separated by blanks, the usual one first
    bool (*read)(const QByteArray &bytes, ImportedTree &tree);
    QByteArray (*write)(const TreeItem &head);
};

const std::array<FormatEntry, 7> entries{{
    {Format::Json, "json", QT_TRANSLATE_NOOP("DiagramExchange", "Fishbone diagram"), "json",
     JsonFormat::read, JsonFormat::write},
    {Format::Markdown, "md", QT_TRANSLATE_NOOP("DiagramExchange", "Markdown outline"),
     "md markdown", MarkdownFormat::read, MarkdownFormat::write},
    {Format::Text, "txt", QT_TRANSLATE_NOOP("DiagramExchange", "Indented text"), "txt text",
     TextFormat::read, TextFormat::write},
    {Format::Opml, "opml", QT_TRANSLATE_NOOP("DiagramExchange", "OPML outline"), "opml",
     OpmlFormat::read, OpmlFormat::write},
    {Format::FreeMind, "mm", QT_TRANSLATE_NOOP("DiagramExchange", "FreeMind mind map"), "mm",
     FreeMindFormat::read, FreeMindFormat::write},
    {Format::Mermaid, "mmd", QT_TRANSLATE_NOOP("DiagramExchange", "Mermaid ishikawa diagram"),
     "mmd mermaid", MermaidFormat::read, MermaidFormat::write},
    {Format::Csv, "csv", QT_TRANSLATE_NOOP("DiagramExchange", "Table of tasks"), "csv",
     CsvFormat::read, CsvFormat::write},
}};

const FormatEntry &entryOf(Format format)
{
    return entries[std::size_t(format)];
}

void report(QString *error, const QString &reason)
{
    if (error)
        *error = reason;
}

/** The file patterns of a format, "*.md *.markdown". */
QString patterns(const FormatEntry &entry)
{
    const QStringList suffixes = DiagramExchange::suffixes(entry.format);
    return QLatin1String("*.") + suffixes.join(QLatin1String(" *."));
}

/** The name filters of all foreign formats. */
QStringList nameFilters()
{
    QStringList filters;
    for (const FormatEntry &entry : entries) {
        if (entry.format != Format::Json)
            filters.append(QStringLiteral("%1 (%2)").arg(DiagramExchange::name(entry.format),
                                                         patterns(entry)));
    }
    return filters;
}

/** The bytes of a diagram; null when there are too many levels. */
QByteArray bytesOf(const TreeItem &head, Format format, QString *error)
{
    if (OutlineWalk::levelsOf(head) > DiagramExchange::maximalLevels) {
        report(
            error,
            DiagramExchange::tr("it has more than %1 levels").arg(DiagramExchange::maximalLevels));
        return QByteArray();
    }
    return entryOf(format).write(head);
}

/** Reads @p device; @p take gets what is wanted out of the tree, or null. */
std::unique_ptr<TreeItem> readTree(QIODevice &device, Format format, QString *error,
                                   std::unique_ptr<TreeItem> (ImportedTree::*take)())
{
    const QByteArray bytes = readUpTo(device, DiagramExchange::maximalBytes + 1);
    if (bytes.size() > DiagramExchange::maximalBytes) {
        report(error, DiagramExchange::tr("it is larger than %1 MiB")
                          .arg(DiagramExchange::maximalBytes >> 20));
        return nullptr;
    }
    if (bytes.isEmpty()) {
        report(error, DiagramExchange::tr("it is empty"));
        return nullptr;
    }
    ImportedTree tree;
    std::unique_ptr<TreeItem> taken;
    if (entryOf(format).read(bytes, tree))
        taken = (tree.*take)();
    if (!taken)
        report(error, tree.error());
    return taken;
}

} // namespace

QList<Format> DiagramExchange::formats()
{
    QList<Format> all;
    for (const FormatEntry &entry : entries)
        all.append(entry.format);
    return all;
}

QString DiagramExchange::id(Format format)
{
    return QString::fromLatin1(entryOf(format).id);
}

QString DiagramExchange::name(Format format)
{
    return tr(entryOf(format).name);
}

QStringList DiagramExchange::suffixes(Format format)
{
    return QString::fromLatin1(entryOf(format).suffixes).split(QLatin1Char(' '));
}

std::optional<Format> DiagramExchange::formatById(const QString &id)
{
    for (const FormatEntry &entry : entries) {
        if (id.compare(QLatin1String(entry.id), Qt::CaseInsensitive) == 0)
            return entry.format;
    }
    return std::nullopt;
}

std::optional<Format> DiagramExchange::formatOf(const QString &fileName)
{
    const QString suffix = QFileInfo(fileName).suffix();
    for (const FormatEntry &entry : entries) {
        if (suffixes(entry.format).contains(suffix, Qt::CaseInsensitive))
            return entry.format;
    }
    return std::nullopt;
}

QString DiagramExchange::importFilter()
{
    QStringList all;
    for (const FormatEntry &entry : entries) {
        if (entry.format != Format::Json)
            all.append(patterns(entry));
    }
    const QString any =
        QStringLiteral("%1 (%2)").arg(tr("All formats"), all.join(QLatin1Char(' ')));
    return (QStringList(any) + nameFilters()).join(QLatin1String(";;"));
}

QString DiagramExchange::exportFilter()
{
    return nameFilters().join(QLatin1String(";;"));
}

std::unique_ptr<TreeItem> DiagramExchange::read(QIODevice &device, Format format, QString *error)
{
    return readTree(device, format, error,
                    format == Format::Json ? &ImportedTree::takeAsItStands
                                           : &ImportedTree::takeCompleted);
}

std::unique_ptr<TreeItem> DiagramExchange::readBranches(QIODevice &device, Format format,
                                                        QString *error)
{
    return readTree(device, format, error, &ImportedTree::takeBranches);
}

std::unique_ptr<TreeItem> DiagramExchange::readFile(const QString &fileName, Format format,
                                                    QString *error)
{
    const QFileInfo info(fileName);
    QFile file(fileName);
    if (info.isDir())
        report(error, tr("it is a folder"));
    else if (!info.exists())
        report(error, tr("there is no such file"));
    else if (!file.open(QIODevice::ReadOnly))
        report(error, file.errorString());
    else
        return read(file, format, error);
    return nullptr;
}

bool DiagramExchange::write(QIODevice &device, const TreeItem &head, Format format, QString *error)
{
    const QByteArray bytes = bytesOf(head, format, error);
    if (bytes.isNull())
        return false;
    if (device.write(bytes) == bytes.size())
        return true;
    report(error, device.errorString());
    return false;
}

bool DiagramExchange::writeFile(const QString &fileName, const TreeItem &head, Format format,
                                QString *error)
{
    const QByteArray bytes = bytesOf(head, format, error);
    if (bytes.isNull())
        return false;
    const QString failure = replaceFile(fileName, bytes);
    if (failure.isEmpty())
        return true;
    report(error, failure);
    return false;
}
