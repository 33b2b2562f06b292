// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QGraphicsItem>
#include <QSet>

/** Whether an item above @p item, which may be null, is among @p items. */
inline bool hasAncestorIn(const QGraphicsItem *item, const QSet<const QGraphicsItem *> &items)
{
    const QGraphicsItem *above = item ? item->parentItem() : nullptr;
    while (above && !items.contains(above))
        above = above->parentItem();
    return above != nullptr;
}
