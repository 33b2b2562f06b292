// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/model/fishmodelpart.h>

/** Exchanges the head of a document of a FishModel. */
class FISHBONE_NO_EXPORT FishModel::Heads : Part
{
public:
    explicit Heads(FishModel &model)
        : Part(model)
    {
    }

    bool wrap(FishInfo *document, TreeItem *newHead);
    TreeItem *unwrap(FishInfo *document, TreeItem *child);

private:
    void exchange(int row, TreeItem *container, TreeItem *child);
};
