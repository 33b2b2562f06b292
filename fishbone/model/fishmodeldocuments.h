// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/model/fishmodelpart.h>

#include <functional>

/** Lists documents in a FishModel and takes them out of it. */
class FISHBONE_NO_EXPORT FishModel::Documents : Part
{
public:
    explicit Documents(FishModel &model)
        : Part(model)
    {
    }

    /** Makes documents with a new head; the announcement is the caller's. */
    void create(int row, int count);
    bool insertToList(int row, int count);
    bool insertToList(int row, TreeItem *head);
    bool removeFromList(int row, int count);
    FishInfo *take(int row);
    bool insert(int row, FishInfo *document);
    /** Carries out a @p change of a listed document's whole tree, announced as a reset. */
    void rebuild(FishInfo *document, const std::function<void()> &change);
    /** A listed document dies. */
    void forget(FishInfo *dying);

private:
    void beginSilentChange(int row, int by);
    void shiftHeadIndexes(int firstRow, int by);
    void dropIndexes(int row, int count);
};
