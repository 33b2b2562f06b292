// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/editor/droptarget.h>

#include <fishbone/editor/speartools.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/model/treeitem.h>

void DropTarget::mark(SpearItem &spear, const QPointF &pos, SpearItem *moving)
{
    if (&spear != m_spear.get())
        unmark();
    m_spear = &spear;
    m_row = rowAt(pos, moving);
    if (spear.isLinked() && spear.linkNumber() == m_row)
        return;
    spear.setLinked(true, m_row);
    repaintSpear(spear);
}

bool DropTarget::offer(const TreeItem *subject, SpearItem *under, const QPointF &pos)
{
    const TreeItem *const target = under ? under->treeItem() : nullptr;
    const bool fits =
        subject && (!under || (target && target != subject && !subject->isAncestorOf(target)));
    if (fits && under)
        mark(*under, pos, subject->spear());
    else
        unmark();
    return fits;
}

void DropTarget::unmark()
{
    if (SpearItem *const marked = m_spear.get()) {
        marked->setLinked(false, 0);
        repaintSpear(*marked);
    }
    m_spear = SpearPointer();
}

void DropTarget::clear()
{
    unmark();
    m_row = 0;
}

int DropTarget::rowAt(const QPointF &pos, SpearItem *moving) const
{
    const SpearItem *const target = m_spear.get();
    return target ? target->dropRow(pos, moving) : 0;
}
