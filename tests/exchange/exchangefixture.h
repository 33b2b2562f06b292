// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/exchange/diagramexchange.h>
#include <fishbone/model/treeitem.h>

#include <QBuffer>
#include <QString>
#include <QTest>

#include <memory>
#include <tests/support/documents.h>

Q_DECLARE_METATYPE(DiagramExchange::Format)

/** Diagrams to and from bytes, for the tests of the formats. */
namespace ExchangeFixture {

using Format = DiagramExchange::Format;

/** The outcome of reading: a tree, or an error. */
struct Imported
{
    std::unique_ptr<TreeItem> head;
    QString error;

    /** The titles of the tree, "Effect[Man[Training],Machine]"; the error when there is none. */
    QString text() const { return head ? TestSupport::treeToText(*head) : error; }
};

inline Imported imported(const QByteArray &bytes, Format format)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    Imported result;
    result.head = DiagramExchange::read(buffer, format, &result.error);
    return result;
}

/** The bytes of a diagram; null when writing fails. */
inline QByteArray exported(const TreeItem &head, Format format, QString *error = nullptr)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    return DiagramExchange::write(buffer, head, format, error) ? bytes : QByteArray();
}

inline Imported carriedThrough(const TreeItem &head, Format format)
{
    return imported(exported(head, format), format);
}

/** The tree that "Effect[Man[Training],Machine]" stands for. */
inline std::unique_ptr<TreeItem> treeFrom(const char *text)
{
    FishModel model;
    FishInfo *const document = TestSupport::loadDocument(model, QString::fromUtf8(text));
    std::unique_ptr<TreeItem> head(document->treeItem()->takeAt(0));
    head->setParent(nullptr);
    return head;
}

/** The formats that are both read and written. */
inline QList<Format> wholeFormats()
{
    QList<Format> whole;
    const QList<Format> formats = DiagramExchange::formats();
    for (const Format format : formats) {
        if (DiagramExchange::canRead(format) && DiagramExchange::canWrite(format))
            whole.append(format);
    }
    return whole;
}

/** A row of test data for each of them. */
inline void addFormats()
{
    QTest::addColumn<Format>("format");
    const QList<Format> formats = wholeFormats();
    for (const Format format : formats)
        QTest::newRow(qPrintable(DiagramExchange::id(format))) << format;
}

} // namespace ExchangeFixture
