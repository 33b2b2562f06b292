// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/fishmodelheads.h>

#include <fishbone/model/documentview.h>
#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel_p.h>
#include <fishbone/model/treeitem.h>

bool FishModel::Heads::wrap(FishInfo *document, TreeItem *newHead)
{
    const int row = documents().rowOf(document);
    TreeItem *const head = documents().headAt(row);
    if (announcer().isAnnouncing() || !head || !newHead || !canEnter(newHead) ||
        newHead->root() != newHead)
        return false;
    // The row stays and only what it shows changes, which no announcement of rows could tell.
    TreeItem *const container = document->treeItem();
    const QPointer<FishModel> alive(&m_model);
    {
        const Change arrangement = announcer().arranging();
        container->takeAt(0);
        container->appendChild(newHead, 0);
        newHead->insertChildAtPosition(0, head);
        DocumentView::handOn(*head, *newHead);
        for (int column = 0; column < m_model.columnCount(); ++column)
            m_model.changePersistentIndex(m_model.createIndex(row, column, head),
                                          m_model.createIndex(0, column, head));
    }
    if (alive)
        announcer().tellNode(m_model.index(row, 0));
    return true;
}

TreeItem *FishModel::Heads::unwrap(FishInfo *document, TreeItem *child)
{
    const int row = documents().rowOf(document);
    TreeItem *const head = documents().headAt(row);
    if (announcer().isAnnouncing() || !head || !child || child->parent() != head ||
        child->index() < 0)
        return nullptr;
    const QPointer<FishModel> alive(&m_model);
    exchange(row, document->treeItem(), child);
    if (alive)
        announcer().tellNode(m_model.index(row, 0));
    return head;
}

/** unwrap() with everything checked. */
void FishModel::Heads::exchange(int row, TreeItem *container, TreeItem *child)
{
    TreeItem *const head = child->parent();
    const Change arrangement = announcer().arranging();
    head->takeAt(child->index());
    container->takeAt(0);
    head->setParent(nullptr);
    container->appendChild(child, 0);
    DocumentView::handOn(*head, *child);
    const QModelIndexList indexes = m_model.persistentIndexList();
    for (const QModelIndex &index : indexes) {
        const auto *const node = static_cast<const TreeItem *>(index.internalPointer());
        if (node == child)
            m_model.changePersistentIndex(index, m_model.createIndex(row, index.column(), child));
        else if (node->root() == head)
            m_model.changePersistentIndex(index, QModelIndex());
    }
}
