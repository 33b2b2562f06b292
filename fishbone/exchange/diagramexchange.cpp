// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/diagramexchange.h>

#include <fishbone/base/filereplacement.h>
#include <fishbone/exchange/exchangefilters.h>
#include <fishbone/exchange/exchangeformat.h>
#include <fishbone/exchange/exchangeinput.h>
#include <fishbone/exchange/exchangelosses.h>
#include <fishbone/exchange/exchangereport.h>
#include <fishbone/exchange/importedtree.h>
#include <fishbone/exchange/outlinewalk.h>
#include <fishbone/exchange/subjectattributes.h>
#include <fishbone/model/jsonnodes.h>
#include <fishbone/model/treeitem.h>

#include <QFile>
#include <QFileInfo>
#include <QIODevice>

#include <algorithm>
#include <vector>

static_assert(DiagramExchange::maximalLevels == JsonNodes::readableLevels);

namespace {

using Format = DiagramExchange::Format;

void fail(QString *error, const QString &reason)
{
    if (error)
        *error = reason;
}

QStringList wordsOf(const char *text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

/** The bytes of a diagram; null when there are too many levels. */
QByteArray bytesOf(const TreeItem &head, Format format, QString *error)
{
    if (OutlineWalk::levelsOf(head) > DiagramExchange::maximalLevels) {
        fail(error,
             DiagramExchange::tr("it has more than %1 levels").arg(DiagramExchange::maximalLevels));
        return QByteArray();
    }
    if (!DiagramExchange::canWrite(format)) {
        fail(error, DiagramExchange::tr("that format can only be read"));
        return QByteArray();
    }
    return ExchangeFormats::of(format).write(head);
}

using Take = std::unique_ptr<TreeItem> (ImportedTree::*)();

/** What takes a whole diagram out of a tree. */
Take takeOf(Format format)
{
    return format == Format::Json ? &ImportedTree::takeAsItStands : &ImportedTree::takeCompleted;
}

/** Reads @p device into @p tree; @p take gets what is wanted out of it, or null. */
std::unique_ptr<TreeItem> readTree(QIODevice &device, Format format, QString *error,
                                   ExchangeReport *report, Take take, ImportedTree &tree)
{
    if (!DiagramExchange::canRead(format)) {
        fail(error, DiagramExchange::tr("that format can only be written"));
        return nullptr;
    }
    const QByteArray bytes = ExchangeInput::bytesIn(device, error);
    if (bytes.isEmpty())
        return nullptr;
    std::unique_ptr<TreeItem> taken;
    if (ExchangeFormats::of(format).read(bytes, tree))
        taken = (tree.*take)();
    if (!taken)
        fail(error, tree.error());
    if (report)
        *report = tree.report();
    return taken;
}

} // namespace

QList<Format> DiagramExchange::formats()
{
    QList<Format> all;
    for (const ExchangeFormat *entry : ExchangeFormats::all())
        all.append(entry->format);
    return all;
}

QString DiagramExchange::id(Format format)
{
    return QString::fromLatin1(ExchangeFormats::of(format).id);
}

bool DiagramExchange::canRead(Format format)
{
    return ExchangeFormats::of(format).read;
}

bool DiagramExchange::canWrite(Format format)
{
    return ExchangeFormats::of(format).write;
}

QStringList DiagramExchange::keptKeys(Format format)
{
    QStringList keys = wordsOf(ExchangeFormats::of(format).kept);
    if (keys.removeOne(QStringLiteral("*"))) {
        for (const SubjectAttributes::Attribute &attribute : SubjectAttributes::all())
            keys.append(attribute.key);
    }
    return keys;
}

QString DiagramExchange::name(Format format)
{
    return tr(ExchangeFormats::of(format).name);
}

QStringList DiagramExchange::suffixes(Format format)
{
    return wordsOf(ExchangeFormats::of(format).endings);
}

std::optional<Format> DiagramExchange::formatById(const QString &id)
{
    for (const ExchangeFormat *entry : ExchangeFormats::all()) {
        if (id.compare(QLatin1String(entry->id), Qt::CaseInsensitive) == 0)
            return entry->format;
    }
    return std::nullopt;
}

std::optional<Format> DiagramExchange::formatOf(const QString &fileName)
{
    const QString name = QFileInfo(fileName).fileName();
    std::optional<Format> found;
    int longest = 0;
    for (const ExchangeFormat *entry : ExchangeFormats::all()) {
        const QStringList endings = suffixes(entry->format);
        for (const QString &ending : endings) {
            if (ending.size() > longest &&
                name.endsWith(QLatin1Char('.') + ending, Qt::CaseInsensitive)) {
                longest = int(ending.size());
                found = entry->format;
            }
        }
    }
    return found;
}

QString DiagramExchange::importFilter()
{
    return ExchangeFilters::forImport();
}

QString DiagramExchange::exportFilter()
{
    return ExchangeFilters::forExport();
}

std::unique_ptr<TreeItem> DiagramExchange::read(QIODevice &device, Format format, QString *error,
                                                ExchangeReport *report)
{
    ImportedTree tree;
    return readTree(device, format, error, report, takeOf(format), tree);
}

std::unique_ptr<TreeItem> DiagramExchange::readBranches(QIODevice &device, Format format,
                                                        QString *error, ExchangeReport *report)
{
    ImportedTree tree;
    return readTree(device, format, error, report, &ImportedTree::takeBranches, tree);
}

std::unique_ptr<TreeItem> DiagramExchange::readFile(const QString &fileName, Format format,
                                                    QString *error, ExchangeReport *report,
                                                    const TableMapping *mapping)
{
    QFile file;
    ImportedTree tree;
    tree.setMapping(mapping);
    return ExchangeInput::openFile(file, fileName, error)
               ? readTree(file, format, error, report, takeOf(format), tree)
               : nullptr;
}

std::optional<TableMapping> DiagramExchange::tableMapping(const QString &fileName, Format format,
                                                          QString *error)
{
    QFile file;
    const auto readRows = ExchangeFormats::of(format).readRows;
    if (!readRows || !ExchangeInput::openFile(file, fileName, error))
        return std::nullopt;
    const QByteArray bytes = ExchangeInput::bytesIn(file, error);
    std::vector<TaskTable::Row> rows;
    ImportedTree tree;
    if (bytes.isEmpty())
        return std::nullopt;
    if (!readRows(bytes, tree, rows)) {
        fail(error, tree.error());
        return std::nullopt;
    }
    return TaskTable::mappingOf(rows);
}

ExchangeReport DiagramExchange::lossesOf(const TreeItem &head, Format format)
{
    return ExchangeLosses::of(head, format);
}

ExchangeReport DiagramExchange::lossesOfSlide(const TreeItem &head, bool showsMarks)
{
    return ExchangeLosses::ofSlide(head, showsMarks);
}

bool DiagramExchange::write(QIODevice &device, const TreeItem &head, Format format, QString *error)
{
    const QByteArray bytes = bytesOf(head, format, error);
    if (bytes.isNull())
        return false;
    if (device.write(bytes) == bytes.size())
        return true;
    fail(error, device.errorString());
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
    fail(error, failure);
    return false;
}
