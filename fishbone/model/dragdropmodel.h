// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/fishbone_export.h>

#include <QAbstractItemModel>
#include <QVector>

/**
 * An item model that packs its indexes into mime data and reads them back.
 *
 * It inserts nothing on a drop: carrying out a drop is left to the receiver. Structure and data are
 * the subclass's. The internal pointer of an index is either null or the TreeItem of that row.
 */
class FISHBONE_EXPORT DragDropModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    /** A model for subclasses to fill. */
    explicit DragDropModel(QObject *parent = nullptr);

    /** "text/plain", "QModelIndexList" and "TreeItems", the last one only announced. */
    QStringList mimeTypes() const override;

    /**
     * New mime data, owned by the caller. "QModelIndexList" holds one record an index: row and
     * column as 32-bit integers and the internal pointer as a 64-bit integer, big-endian, without a
     * count. The plain text is the display text of each index followed by ";".
     */
    QMimeData *mimeData(const QModelIndexList &indexes) const override;

    /**
     * One index for each whole record of "QModelIndexList" in @p data; empty without that format.
     * A record that does not belong to this model gives an invalid index in its place. Linear in
     * the number of records, but for what the subclass does to know its own.
     */
    QModelIndexList indexList(const QMimeData *data) const;

    /** True for Qt::IgnoreAction, otherwise whether @p data offers plain text; inserts nothing. */
    bool dropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                      const QModelIndex &parent) override;

    Qt::DropActions supportedDropActions() const override;

    /**
     * Copies alone: after a move a view would remove the rows that the receiver of the drop has
     * carried somewhere else already.
     */
    Qt::DropActions supportedDragActions() const override;

    /** The base flags, with drag and drop added for a subject that may be moved. */
    Qt::ItemFlags flags(const QModelIndex &index) const override;

protected:
    /** One dragged index as the payload holds it. The pointer is a number until it is verified. */
    struct Record
    {
        int row;          ///< the row in its parent
        int column;       ///< the column
        quintptr pointer; ///< the internal pointer
    };

    /**
     * The indexes of @p records, one for each and in their order.
     *
     * The records come from outside, possibly from another process, so a model whose indexes point
     * at something must override this and answer an invalid index for a pointer it does not know.
     * The implementation here creates the indexes as the records say. Linear in their number.
     */
    virtual QModelIndexList indexesFromRecords(const QVector<Record> &records) const;
};
