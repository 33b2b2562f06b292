// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/treeitemplace.h>

#include <fishbone/model/rownumbers.h>

namespace {

/** Cuts off and returns what @p list holds from @p position on. */
QList<TreeItem *> cutTail(QList<TreeItem *> &list, int position)
{
    const QList<TreeItem *> tail = list.mid(position);
    list.erase(list.begin() + position, list.end());
    return tail;
}

} // namespace

/** Whether the tree stays a tree when @p child comes below the node. */
bool TreeItem::Place::accepts(const TreeItem *child) const
{
    return child && child != &m_node &&
           (child->m_children.isEmpty() || !child->isAncestorOf(&m_node));
}

/** Makes the child that came to @p row the node's. */
void TreeItem::Place::own(TreeItem *child, int row)
{
    child->m_parent = &m_node;
    child->m_lister = &m_node;
    child->m_rowNumber = RowNumbers::numberOf(m_node.m_firstNumber, row);
}

/** Numbers the children from row @p first to @p last. */
void TreeItem::Place::numberRows(int first, int last)
{
    for (int row = first; row <= last; ++row)
        m_node.m_children.at(row)->m_rowNumber = RowNumbers::numberOf(m_node.m_firstNumber, row);
}

bool TreeItem::Place::insert(TreeItem *child, int position)
{
    if (!accepts(child))
        return false;
    if (child->m_lister)
        Place(*child->m_lister).take(child->rowInList());
    const int row = qBound(0, position, m_node.childCount()); // without one that was in this list
    RowNumbers::shift(m_node.m_firstNumber, row, 1, m_node.childCount());
    m_node.m_children.insert(row, child);
    own(child, row);
    return true;
}

/** Lists accepted children that no list holds, all at once. */
void TreeItem::Place::insertAll(const QList<TreeItem *> &children, int position)
{
    RowNumbers::shift(m_node.m_firstNumber, position, children.size(), m_node.childCount());
    const QList<TreeItem *> behind = cutTail(m_node.m_children, position);
    m_node.m_children.reserve(position + children.size() + behind.size());
    for (TreeItem *child : children) {
        own(child, m_node.childCount());
        m_node.m_children.append(child);
    }
    m_node.m_children.append(behind);
}

bool TreeItem::Place::insertNew(int position, int count)
{
    if (position < 0 || position > m_node.childCount())
        return false;
    if (count < 1)
        return true;
    QList<TreeItem *> made;
    made.reserve(count);
    const QString title = TreeItem::tr("子主题");
    const QString empty = QStringLiteral("");
    for (int i = 0; i < count; ++i)
        made.append(new TreeItem(title, empty, empty, m_node.m_uuid, 0, &m_node));
    insertAll(made, position);
    return true;
}

/** Takes @p count children out of the list, all at once. */
QList<TreeItem *> TreeItem::Place::takeAll(int position, int count)
{
    QList<TreeItem *> &children = m_node.m_children;
    const QList<TreeItem *> taken = children.mid(position, count);
    children.erase(children.begin() + position, children.begin() + position + count);
    RowNumbers::shift(m_node.m_firstNumber, position, -count, m_node.childCount());
    return taken;
}

bool TreeItem::Place::move(int source, int count, TreeItem *destination, int destinationChild)
{
    if (!destination || source < 0 || destinationChild < 0 ||
        count > m_node.childCount() - source || destinationChild > destination->childCount())
        return false;
    if (count < 1)
        return true;
    if (destination == &m_node) {
        moveWithin(source, count, destinationChild);
        return true;
    }
    const int branch = m_node.branchOf(destination);
    if (branch >= source && branch < source + count)
        return false;
    const QList<TreeItem *> moved = takeAll(source, count);
    Place(*destination).insertAll(moved, destinationChild);
    for (TreeItem *child : moved)
        child->m_pid = destination->m_uuid;
    return true;
}

void TreeItem::Place::moveWithin(int source, int count, int destinationChild)
{
    const bool forward = destinationChild > source;
    for (int k = 0; k < count; ++k) {
        const int target = qMin(destinationChild - (forward ? 1 : 0) + k, m_node.childCount() - 1);
        m_node.m_children.at(source)->m_pid = m_node.m_uuid;
        m_node.m_children.move(source, target);
        numberRows(qMin(source, target), qMax(source, target));
    }
}

TreeItem *TreeItem::Place::take(int row)
{
    if (row < 0 || row >= m_node.childCount())
        return nullptr;
    TreeItem *const child = m_node.m_children.takeAt(row);
    RowNumbers::shift(m_node.m_firstNumber, row, -1, m_node.childCount());
    child->m_lister = nullptr;
    return child;
}

bool TreeItem::Place::remove(int position, int count)
{
    if (position < 0 || count > m_node.childCount() - position)
        return false;
    if (count < 1)
        return true;
    qDeleteAll(takeAll(position, count));
    return true;
}

void TreeItem::Place::deleteAll()
{
    // Every node below is emptied before it is deleted, so that no destructor calls another.
    QList<TreeItem *> doomed;
    doomed.swap(m_node.m_children);
    while (!doomed.isEmpty()) {
        const std::unique_ptr<TreeItem> node(doomed.takeLast());
        doomed.append(node->m_children);
        node->m_children.clear();
    }
}
