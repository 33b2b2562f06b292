// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT
//
// The operations of FishModel that put nodes back, and that exchange the head of a document.

#include <fishbone/model/fishmodel.h>

#include <fishbone/model/fishinfo.h>
#include <fishbone/model/treeitem.h>

bool FishModel::putRow(int row, TreeItem *item, const QModelIndex &parent)
{
    TreeItem *const node = getTreeItem(parent);
    if (!node || row < 0 || row > node->childCount() || !item || !canEnter(item, {}) ||
        item->root() != item || item == node->root())
        return false;
    beginInsertRows(rowIndex(node), row, row);
    node->appendChild(item, row);
    endInsertRows();
    return true;
}

bool FishModel::wrapHead(FishInfo *document, TreeItem *newHead)
{
    const int row = fishRow(document);
    TreeItem *const head = headAt(row);
    if (!head || !newHead || !canEnter(newHead, {}) || newHead->root() != newHead)
        return false;
    // The row stays and only what it shows changes, which no announcement of rows could tell.
    Q_EMIT layoutAboutToBeChanged();
    TreeItem *const container = document->treeItem();
    container->takeAt(0);
    container->appendChild(newHead, 0);
    newHead->insertChildAtPosition(0, head);
    for (int column = 0; column < columnCount(); ++column)
        changePersistentIndex(createIndex(row, column, head), createIndex(0, column, head));
    Q_EMIT layoutChanged();
    return true;
}

TreeItem *FishModel::unwrapHead(FishInfo *document, TreeItem *child)
{
    const int row = fishRow(document);
    TreeItem *const head = headAt(row);
    if (!head || !child || child->parent() != head || child->index() < 0)
        return nullptr;
    Q_EMIT layoutAboutToBeChanged();
    TreeItem *const container = document->treeItem();
    head->takeAt(child->index());
    container->takeAt(0);
    head->setParent(nullptr);
    container->appendChild(child, 0);
    const QModelIndexList indexes = persistentIndexList();
    for (const QModelIndex &index : indexes) {
        const auto *const node = static_cast<const TreeItem *>(index.internalPointer());
        if (node == child)
            changePersistentIndex(index, createIndex(row, index.column(), child));
        else if (node->root() == head)
            changePersistentIndex(index, QModelIndex());
    }
    Q_EMIT layoutChanged();
    return head;
}
