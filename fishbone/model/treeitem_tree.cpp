// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT
//
// The place of a TreeItem in its tree.

#include <fishbone/model/treeitem.h>

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

void TreeItem::setParent(TreeItem *parent)
{
    if (parent != this && (!parent || m_children.isEmpty() || !isAncestorOf(parent)))
        m_parent = parent;
}

int TreeItem::index() const
{
    if (!m_parent)
        return 0;
    return m_lister == m_parent ? rowInList() : -1;
}

/** The row in the list that holds this node; there must be one. */
int TreeItem::rowInList() const
{
    const QList<TreeItem *> &siblings = m_lister->m_children;
    return RowNumbers::find(
        m_lister->m_firstNumber, m_rowNumber, siblings.size(),
        [this, &siblings](int row) { return siblings.at(row) == this; },
        [&siblings](int row, int number) { siblings.at(row)->m_rowNumber = number; });
}

/** Numbers the children from row @p first to @p last. */
void TreeItem::numberRows(int first, int last)
{
    for (int row = first; row <= last; ++row)
        m_children.at(row)->m_rowNumber = RowNumbers::numberOf(m_firstNumber, row);
}

bool TreeItem::isAncestorOf(const TreeItem *node) const
{
    while (node) {
        node = node->m_lister;
        if (node == this)
            return true;
    }
    return false;
}

int TreeItem::branchOf(const TreeItem *node) const
{
    while (node && node->m_lister != this)
        node = node->m_lister;
    return node ? node->rowInList() : -1;
}

const TreeItem *TreeItem::root() const
{
    const TreeItem *top = this;
    while (top->m_lister)
        top = top->m_lister;
    return top;
}

/** Whether the tree stays a tree when @p child comes below this node. */
bool TreeItem::accepts(const TreeItem *child) const
{
    return child && child != this && (child->m_children.isEmpty() || !child->isAncestorOf(this));
}

void TreeItem::leaveList()
{
    if (!m_lister)
        return;
    m_lister->takeAt(rowInList());
}

/** Lists an accepted child that no list holds. */
void TreeItem::place(TreeItem *child, int position)
{
    RowNumbers::shift(m_firstNumber, position, 1, childCount());
    m_children.insert(position, child);
    own(child, position);
}

/** Makes the child that came to @p row this node's. */
void TreeItem::own(TreeItem *child, int row)
{
    child->m_parent = this;
    child->m_lister = this;
    child->m_rowNumber = RowNumbers::numberOf(m_firstNumber, row);
}

/** Lists accepted children that no list holds, all at once. */
void TreeItem::placeAll(const QList<TreeItem *> &children, int position)
{
    RowNumbers::shift(m_firstNumber, position, children.size(), childCount());
    const QList<TreeItem *> behind = cutTail(m_children, position);
    m_children.reserve(position + children.size() + behind.size());
    for (TreeItem *child : children) {
        own(child, childCount());
        m_children.append(child);
    }
    m_children.append(behind);
}

/** Takes @p count children out of the list, all at once. */
QList<TreeItem *> TreeItem::takeAll(int position, int count)
{
    const QList<TreeItem *> taken = m_children.mid(position, count);
    m_children.erase(m_children.begin() + position, m_children.begin() + position + count);
    RowNumbers::shift(m_firstNumber, position, -count, childCount());
    return taken;
}

void TreeItem::appendChild(TreeItem *child, int position)
{
    if (!accepts(child))
        return;
    child->leaveList();
    const bool inside = position >= 0 && position < childCount();
    place(child, inside ? position : childCount());
}

bool TreeItem::insertChildAtPosition(int position, TreeItem *child)
{
    if (!accepts(child))
        return false;
    child->leaveList();
    place(child, qBound(0, position, childCount()));
    child->m_pid = m_uuid;
    return true;
}

bool TreeItem::insertChildren(int position, int count, const QString &pid)
{
    Q_UNUSED(pid) // the identity of this node is what counts
    if (position < 0 || position > childCount())
        return false;
    if (count < 1)
        return true;
    QList<TreeItem *> made;
    made.reserve(count);
    const QString title = tr("子主题");
    const QString empty = QStringLiteral("");
    for (int i = 0; i < count; ++i)
        made.append(new TreeItem(title, empty, empty, m_uuid, 0, this));
    placeAll(made, position);
    return true;
}

bool TreeItem::moveChildren(int source, int count, TreeItem *destination, int destinationChild)
{
    if (!destination || source < 0 || destinationChild < 0 || count > childCount() - source ||
        destinationChild > destination->childCount())
        return false;
    if (count < 1)
        return true;

    if (destination == this) {
        const bool forward = destinationChild > source;
        for (int k = 0; k < count; ++k) {
            const int target = qMin(destinationChild - (forward ? 1 : 0) + k, childCount() - 1);
            m_children.at(source)->m_pid = m_uuid;
            m_children.move(source, target);
            numberRows(qMin(source, target), qMax(source, target));
        }
        return true;
    }

    const int branch = branchOf(destination);
    if (branch >= source && branch < source + count)
        return false;
    const QList<TreeItem *> moved = takeAll(source, count);
    destination->placeAll(moved, destinationChild);
    for (TreeItem *child : moved)
        child->m_pid = destination->m_uuid;
    return true;
}

TreeItem *TreeItem::takeAt(int i)
{
    if (i < 0 || i >= childCount())
        return nullptr;
    TreeItem *const child = m_children.takeAt(i);
    RowNumbers::shift(m_firstNumber, i, -1, childCount());
    child->m_lister = nullptr;
    return child;
}

bool TreeItem::removeChildren(int position, int count)
{
    if (position < 0 || count > childCount() - position)
        return false;
    if (count < 1)
        return true;
    qDeleteAll(takeAll(position, count));
    return true;
}
