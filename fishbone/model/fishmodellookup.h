// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/model/fishmodelpart.h>

#include <QModelIndexList>
#include <QPointer>
#include <QVector>

/** Finds nodes of a FishModel by what they hold, in pre-order; each takes a walk over the trees. */
class FISHBONE_NO_EXPORT FishModel::Lookup : Part
{
public:
    explicit Lookup(FishModel &model)
        : Part(model)
    {
    }

    bool contains(const TreeItem *item) const;
    QModelIndex documentNamed(const QString &fileName) const;
    QModelIndex withUuid(const QString &uuid) const;
    QModelIndexList withTitle(const QString &key) const;
    QModelIndexList ofRecords(const QVector<Record> &records) const;
    /** The document of @p item, null for none, of which views are being told; see fishOfTold(). */
    FishInfo *documentOfTold(const TreeItem *item) const;
    /** The documents of @p models that have changed since @p stamp. */
    static QList<QPointer<FishInfo>> changedSince(const QVector<FishModel *> &models,
                                                  quint64 stamp);
};
