// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/dragdropmodel.h>

#include <fishbone/model/treeitem.h>

#include <QDataStream>
#include <QIODevice>
#include <QMimeData>

namespace {

const QString &plainTextFormat()
{
    static const QString format = QStringLiteral("text/plain");
    return format;
}

const QString &indexListFormat()
{
    static const QString format = QStringLiteral("QModelIndexList");
    return format;
}

/** Writer and reader must agree on these, whatever Qt's own default becomes. */
void setUpStream(QDataStream &stream)
{
    stream.setVersion(QDataStream::Qt_5_15);
    stream.setByteOrder(QDataStream::BigEndian);
}

} // namespace

DragDropModel::DragDropModel(QObject *parent)
    : QAbstractItemModel(parent)
{
}

QStringList DragDropModel::mimeTypes() const
{
    return {plainTextFormat(), indexListFormat(), QStringLiteral("TreeItems")};
}

QMimeData *DragDropModel::mimeData(const QModelIndexList &indexes) const
{
    QByteArray payload;
    QDataStream stream(&payload, QIODevice::WriteOnly);
    setUpStream(stream);
    QString text;
    for (const QModelIndex &index : indexes) {
        stream << qint32(index.row()) << qint32(index.column())
               << qint64(reinterpret_cast<quintptr>(index.internalPointer()));
        text += data(index).toString() + QLatin1Char(';');
    }
    auto *const mime = new QMimeData;
    mime->setData(indexListFormat(), payload);
    mime->setText(text);
    return mime;
}

QModelIndexList DragDropModel::indexList(const QMimeData *data) const
{
    if (!data || !data->hasFormat(indexListFormat()))
        return {};
    QDataStream stream(data->data(indexListFormat()));
    setUpStream(stream);
    QVector<Record> records;
    for (;;) {
        qint32 row;
        qint32 column;
        qint64 pointer;
        stream >> row >> column >> pointer;
        if (stream.status() != QDataStream::Ok)
            return indexesFromRecords(records);
        records.append({row, column, static_cast<quintptr>(pointer)});
    }
}

QModelIndexList DragDropModel::indexesFromRecords(const QVector<Record> &records) const
{
    QModelIndexList indexes;
    indexes.reserve(records.size());
    for (const Record &record : records)
        indexes.append(createIndex(record.row, record.column, record.pointer));
    return indexes;
}

bool DragDropModel::dropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                                 const QModelIndex &parent)
{
    Q_UNUSED(row)
    Q_UNUSED(column)
    Q_UNUSED(parent)
    if (action == Qt::IgnoreAction)
        return true;
    return data && data->hasFormat(plainTextFormat());
}

Qt::DropActions DragDropModel::supportedDropActions() const
{
    return Qt::CopyAction | Qt::MoveAction;
}

Qt::DropActions DragDropModel::supportedDragActions() const
{
    return Qt::CopyAction;
}

Qt::ItemFlags DragDropModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags base = QAbstractItemModel::flags(index);
    const auto *const item = static_cast<const TreeItem *>(index.internalPointer());
    if (!index.isValid() || !item || !item->spearItemIsMovable())
        return base;
    return base | Qt::ItemIsDragEnabled | Qt::ItemIsDropEnabled;
}
