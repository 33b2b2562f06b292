// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QGraphicsItem>
#include <QSet>

/// Whether an item above \a item is among \a items.
inline bool hasAncestorIn(const QGraphicsItem *item, const QSet<const QGraphicsItem *> &items)
{
    for (const QGraphicsItem *above = item->parentItem(); above; above = above->parentItem()) {
        if (items.contains(above))
            return true;
    }
    return false;
}
