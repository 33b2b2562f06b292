// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/model/treeitem.h>

/** Puts nodes into the list of a node, takes them out, and keeps the rows that nodes know. */
class FISHBONE_NO_EXPORT TreeItem::Place
{
public:
    /** In the list of @p node. */
    explicit Place(TreeItem &node)
        : m_node(node)
    {
    }

    /** Puts @p child, which leaves the list it is in, at @p position or the nearest that there is.
     * False for one that cannot be below the node. */
    bool insert(TreeItem *child, int position);
    /** Puts @p count new subjects at @p position; false for a position that does not exist. */
    bool insertNew(int position, int count);
    /** As TreeItem::moveChildren(). */
    bool move(int source, int count, TreeItem *destination, int destinationChild);
    /** Takes out the child at @p row, null for none. */
    TreeItem *take(int row);
    /** Deletes @p count children from @p position on; false for a range that does not exist. */
    bool remove(int position, int count);
    /** Deletes the whole subtree below the node, of any depth. */
    void deleteAll();

private:
    bool accepts(const TreeItem *child) const;
    void own(TreeItem *child, int row);
    void insertAll(const QList<TreeItem *> &children, int position);
    QList<TreeItem *> takeAll(int position, int count);
    void moveWithin(int source, int count, int destinationChild);
    void numberRows(int first, int last);

    TreeItem &m_node;
};
