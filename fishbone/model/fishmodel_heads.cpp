// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT
//
// The operations of FishModel that put nodes back, and that exchange the head of a document.

#include <fishbone/model/fishmodel.h>

#include <fishbone/model/fishinfo.h>
#include <fishbone/model/jsonnodes.h>
#include <fishbone/model/modelchange.h>
#include <fishbone/model/treeitem.h>

namespace {

/** Moves what belongs to the document from its former head to its new one. */
void handViewOn(TreeItem &from, TreeItem &to)
{
    QJsonObject left = from.otherFields();
    const QJsonValue view = left.take(JsonNodes::viewKey);
    if (view.isUndefined())
        return;
    from.setOtherFields(left);
    QJsonObject taken = to.otherFields();
    taken.insert(JsonNodes::viewKey, view);
    to.setOtherFields(taken);
}

} // namespace

bool FishModel::putRow(int row, TreeItem *item, const QModelIndex &parent)
{
    TreeItem *const node = getTreeItem(parent);
    if (isAnnouncing() || !node || row < 0 || row > node->childCount() || !item ||
        !canEnter(item) || item->root() != item || item == node->root())
        return false;
    const Change insertion = inserting(rowIndex(node), row, row);
    node->appendChild(item, row);
    return true;
}

bool FishModel::wrapHead(FishInfo *document, TreeItem *newHead)
{
    const int row = fishRow(document);
    TreeItem *const head = headAt(row);
    if (isAnnouncing() || !head || !newHead || !canEnter(newHead) || newHead->root() != newHead)
        return false;
    // The row stays and only what it shows changes, which no announcement of rows could tell.
    TreeItem *const container = document->treeItem();
    const QPointer<FishModel> alive(this);
    {
        const Change arrangement = arranging();
        container->takeAt(0);
        container->appendChild(newHead, 0);
        newHead->insertChildAtPosition(0, head);
        handViewOn(*head, *newHead);
        for (int column = 0; column < columnCount(); ++column)
            changePersistentIndex(createIndex(row, column, head), createIndex(0, column, head));
    }
    if (alive)
        tellNode(index(row, 0));
    return true;
}

TreeItem *FishModel::unwrapHead(FishInfo *document, TreeItem *child)
{
    const int row = fishRow(document);
    TreeItem *const head = headAt(row);
    if (isAnnouncing() || !head || !child || child->parent() != head || child->index() < 0)
        return nullptr;
    const QPointer<FishModel> alive(this);
    exchangeHead(row, document->treeItem(), child);
    if (alive)
        tellNode(index(row, 0));
    return head;
}

/** unwrapHead() with everything checked. */
void FishModel::exchangeHead(int row, TreeItem *container, TreeItem *child)
{
    TreeItem *const head = child->parent();
    const Change arrangement = arranging();
    head->takeAt(child->index());
    container->takeAt(0);
    head->setParent(nullptr);
    container->appendChild(child, 0);
    handViewOn(*head, *child);
    const QModelIndexList indexes = persistentIndexList();
    for (const QModelIndex &index : indexes) {
        const auto *const node = static_cast<const TreeItem *>(index.internalPointer());
        if (node == child)
            changePersistentIndex(index, createIndex(row, index.column(), child));
        else if (node->root() == head)
            changePersistentIndex(index, QModelIndex());
    }
}
