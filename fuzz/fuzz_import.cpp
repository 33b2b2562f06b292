// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// A file of any format from anywhere: the first byte chooses the format. What is read is written to
// every format and read again.

#include <fuzz/fuzzing.h>

#include <fishbone/exchange/diagramexchange.h>
#include <fishbone/exchange/ziparchive.h>
#include <fishbone/model/treeitem.h>
#include <tests/support/documents.h>

#include <QBuffer>

#include <algorithm>
#include <memory>

using namespace Fuzzing;
using Format = DiagramExchange::Format;

namespace {

int nodesIn(TreeItem &head)
{
    QList<TreeItem *> nodes{&head};
    for (int i = 0; i < nodes.size(); ++i)
        nodes.append(nodes.at(i)->childItems());
    return int(nodes.size());
}

QByteArray titlesOf(TreeItem &head)
{
    return TestSupport::treeToText(head).toUtf8();
}

QByteArray written(const TreeItem &head, Format format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QString error;
    require(DiagramExchange::write(buffer, head, format, &error),
            "what was read is written in every format");
    return bytes;
}

/** What would be read of a file with such a content: for the formats that are archives, one that
 * holds it where they have their tree, so that changes reach the readers behind the archive. */
QByteArray packed(const QByteArray &bytes, Format format)
{
    const bool isArchive = bytes.startsWith("PK");
    if (format == Format::Xmind && !isArchive) {
        if (!bytes.startsWith('<'))
            return ZipWriter::archive({{QStringLiteral("content.json"), bytes}});
        return ZipWriter::archive(
            {{QStringLiteral("content.xml"), bytes}, {QStringLiteral("comments.xml"), bytes}});
    }
    if (format != Format::Xlsx || isArchive)
        return bytes;
    return ZipWriter::archive(
        {{QStringLiteral("xl/workbook.xml"),
          "<workbook xmlns:r='r'><sheets><sheet name='a' r:id='1'/></sheets></workbook>"},
         {QStringLiteral("xl/_rels/workbook.xml.rels"),
          "<Relationships><Relationship Id='1' Target='a.xml'/></Relationships>"},
         {QStringLiteral("xl/a.xml"), bytes}});
}

std::unique_ptr<TreeItem> readFrom(QByteArray bytes, Format format, QString *error)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return DiagramExchange::read(buffer, format, error);
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    startApplication();
    if (size == 0)
        return 0;
    const QList<Format> formats = DiagramExchange::formats();
    const Format format = formats.at(data[0] % formats.size());
    const QByteArray content(reinterpret_cast<const char *>(data) + 1, int(size) - 1);
    const QByteArray bytes = packed(content, format);
    QString error;
    const std::unique_ptr<TreeItem> head = readFrom(bytes, format, &error);
    require(bool(head) == error.isEmpty(), "what is not read is refused with a reason");
    if (!head)
        return 0;
    const int nodes = nodesIn(*head);
    for (const Format target : formats) {
        if (!DiagramExchange::canWrite(target))
            continue;
        if (!DiagramExchange::canRead(target)) {
            require(!written(*head, target).isEmpty(), "what was read is written");
            continue;
        }
        const QByteArray first = written(*head, target);
        const std::unique_ptr<TreeItem> again = readFrom(first, target, &error);
        if (!again)
            requireEqual(error.toUtf8(), QByteArray(), "what was written is read again");
        require(nodesIn(*again) == nodes, "every format keeps every subject");
        const std::unique_ptr<TreeItem> twice = readFrom(written(*again, target), target, &error);
        requireEqual(titlesOf(*twice), titlesOf(*again), "titles that were read once stay");
    }
    return 0;
}
