// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/items/spearitem.h>
#include <fishbone/items/textitem.h>

/** The spear that @p item, which may be null, is; else null. */
inline SpearItem *toSpear(QGraphicsItem *item)
{
    return qgraphicsitem_cast<SpearItem *>(item);
}

/** A spear and its text box are separate items, and both show its state. */
inline void repaintSpear(SpearItem &spear)
{
    spear.update();
    spear.textItem()->update();
}
