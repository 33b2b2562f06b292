// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/model/fishmodelpart.h>

/** Moves rows of a FishModel, into and out of the list of documents, too. */
class FISHBONE_NO_EXPORT FishModel::Moves : Part
{
public:
    explicit Moves(FishModel &model)
        : Part(model)
    {
    }

    bool move(TreeItem *source, int sourceRow, int count, TreeItem *destination,
              int destinationChild);
    FishInfo *moveHeadUnder(int row, const QModelIndex &parent, int position);
    bool moveToTopLevel(const QModelIndex &index, int row, FishInfo *document);

private:
    bool canMove(const TreeItem *source, int sourceRow, int count,
                 const TreeItem *destination) const;
    void moveOneByOne(TreeItem *source, int sourceRow, int count, TreeItem *destination,
                      int position);
    void moveRow(TreeItem *source, int sourceRow, TreeItem *destination, int position);
    FishInfo *moveHead(int row, TreeItem *destination, int position);
    void moveToTop(TreeItem *source, int sourceRow, int row, FishInfo *document);
};
