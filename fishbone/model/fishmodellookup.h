// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/model/fishmodelpart.h>

#include <QModelIndexList>

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
};
