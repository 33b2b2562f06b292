// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/screenonly.h>

#include <fishbone/items/expanditem.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/items/spearlook.h>
#include <fishbone/items/textitem.h>

bool isForTheScreenOnly(const QGraphicsItem &item)
{
    if (item.type() != ExpandItem::Type)
        return false;
    const auto *const spear = qgraphicsitem_cast<const SpearItem *>(item.parentItem());
    return !spear || spear->look().badge(*spear).isNull();
}

const TreeItem *subjectOfTitle(const QGraphicsItem &item)
{
    if (item.type() != TextItem::Type)
        return nullptr;
    const auto *const spear = qgraphicsitem_cast<const SpearItem *>(item.parentItem());
    return spear ? spear->treeItem() : nullptr;
}
