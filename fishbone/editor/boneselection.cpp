// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/editor/boneselection.h>

#include <algorithm>

#include <QGraphicsScene>
#include <QModelIndex>
#include <QSet>

#include <fishbone/editor/itemancestry.h>
#include <fishbone/items/sceneselection.h>
#include <fishbone/items/spearwalk.h>
#include <fishbone/items/textitem.h>

namespace {
/** Moves the spears among @p unordered to the front of the result, in pre-order below @p head. */
QList<QGraphicsItem *> inDocumentOrder(const QList<QGraphicsItem *> &unordered, SpearItem *head)
{
    QList<QGraphicsItem *> ordered;
    QSet<const QGraphicsItem *> missing(unordered.cbegin(), unordered.cend());
    visitSpears(head, [&](SpearItem *spear) {
        if (missing.remove(spear))
            ordered.append(spear);
        return !missing.isEmpty();
    });
    for (QGraphicsItem *item : unordered) {
        if (missing.contains(item))
            ordered.append(item);
    }
    return ordered;
}
} // namespace

QList<QGraphicsItem *> BoneSelection::items(const QGraphicsScene &scene, SpearItem *head)
{
    const QList<QGraphicsItem *> unordered = scene.selectedItems();
    return unordered.count() < 2 || !head ? unordered : inDocumentOrder(unordered, head);
}

SpearItem *BoneSelection::spearOf(QGraphicsItem *item)
{
    const auto *const text = qgraphicsitem_cast<TextItem *>(item);
    return qgraphicsitem_cast<SpearItem *>(text ? text->parentItem() : item);
}

void BoneSelection::select(QGraphicsScene &scene, const QList<SpearItem *> &spears)
{
    const SelectionSilence silence(&scene);
    scene.clearSelection();
    for (SpearItem *spear : spears) {
        if (spear->scene() == &scene)
            spear->setSelected(true);
    }
}

void BoneSelection::selectAll(QGraphicsScene &scene)
{
    const SelectionSilence silence(&scene); // each report costs a look at all of it
    const QList<QGraphicsItem *> items = scene.items();
    for (QGraphicsItem *item : items)
        item->setSelected(true);
}

QRectF BoneSelection::boundsOf(const QList<QGraphicsItem *> &items)
{
    QRectF united;
    for (const QGraphicsItem *item : items)
        united = united.isEmpty() ? item->boundingRect() : united | item->boundingRect();
    return united;
}

void BoneSelection::removeTops(QList<QGraphicsItem *> &items)
{
    const auto isTop = [](const QGraphicsItem *item) { return !item || !item->parentItem(); };
    items.erase(std::remove_if(items.begin(), items.end(), isTop), items.end());
}

void BoneSelection::removeNested(QList<QGraphicsItem *> &items)
{
    const QSet<const QGraphicsItem *> listed(items.cbegin(), items.cend());
    const auto isBelow = [&listed](const QGraphicsItem *item) {
        return hasAncestorIn(item, listed);
    };
    items.erase(std::remove_if(items.begin(), items.end(), isBelow), items.end());
}

QList<TreeItem *> BoneSelection::subjects(QList<QGraphicsItem *> items)
{
    removeTops(items);
    removeNested(items);
    QList<TreeItem *> subjects;
    for (const QGraphicsItem *item : qAsConst(items)) {
        const auto *const spear = qgraphicsitem_cast<const SpearItem *>(item);
        if (spear && spear->modelIndex().isValid())
            subjects.append(spear->treeItem());
    }
    return subjects;
}
