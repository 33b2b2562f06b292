// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <app/recovery/recoverystore.h>

#include <QAbstractTableModel>
#include <QHash>
#include <QIcon>
#include <QSize>

/** Copies that can be recovered, one in each row, with a picture. */
class RecoveryModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /** What the columns show. */
    enum Column { Name, File, Saved, Size, ColumnCount };

    /** The largest picture. */
    static constexpr QSize pictureSize = QSize(120, 80);

    explicit RecoveryModel(const QList<LeftCopy> &copies, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

    /** The copy in @p row. */
    LeftCopy copyAt(int row) const { return m_copies.at(row); }
    /** Takes the copy at the path @p copy out of the list. */
    void forget(const QString &copy);

private:
    QString text(const LeftCopy &copy, int column) const;
    QIcon picture(const LeftCopy &copy) const;

    QList<LeftCopy> m_copies;
    mutable QHash<QString, QIcon> m_pictures; ///< by path; drawn when they are first shown
};
