// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/fishscene.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/model/treeitem.h>

namespace TestSupport {

/** What in the scene belongs to no subject; empty when nothing does. */
inline QString orphanFault(const FishEditor &editor)
{
    const QList<QGraphicsItem *> items = editor.scene()->items();
    for (QGraphicsItem *item : items) {
        const auto *const spear = qgraphicsitem_cast<SpearItem *>(item);
        if (spear && !spear->treeItem())
            return QStringLiteral("a spear without a subject: ") + spear->text();
        if (spear && spear->treeItem()->spear() != spear)
            return QStringLiteral("a spear that its subject does not know: ") + spear->text();
        if (!item->parentItem() && item != editor.headSpear())
            return QStringLiteral("an item beside the head");
    }
    return {};
}

} // namespace TestSupport
