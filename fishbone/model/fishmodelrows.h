// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/model/fishmodelpart.h>

/** Inserts rows into a FishModel and takes rows out of it; the operations are the model's. */
class FISHBONE_NO_EXPORT FishModel::Rows : Part
{
public:
    explicit Rows(FishModel &model)
        : Part(model)
    {
    }

    bool insert(int row, int count, const QModelIndex &parent);
    bool append(const QModelIndex &parent, const QList<TreeItem *> &items);
    bool remove(int row, int count, const QModelIndex &parent);
    TreeItem *take(int row, const QModelIndex &parent);
    bool put(int row, TreeItem *item, const QModelIndex &parent);
    /** Inserts the subtree of a node object, as FishModel::read() says. */
    void graft(const QJsonObject &root, TreeItem *parent, int position);

    /** Gives @p target what FishModel::updateItem() copies of @p source. */
    static void copyAttributes(const TreeItem &source, TreeItem &target);

private:
    bool insertPending(int row, TreeItem *node, const QList<TreeItem *> &pending);
    static bool canEnterInTurn(const QList<TreeItem *> &items, const TreeItem *node);

    QList<TreeItem *> m_pending; ///< what the next insert() inserts in place of new nodes
};
