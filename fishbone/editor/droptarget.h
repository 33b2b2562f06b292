// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/items/spearpointer.h>

class QPointF;
class TreeItem;

/**
 * The bone that would take what is moved or dragged over it, which shows that, and the row at which
 * it would come. A bone that dies is forgotten.
 */
class DropTarget
{
public:
    /** The bone; null when there is none. */
    SpearItem *spear() const { return m_spear.get(); }
    /** The row at which it would come; stays after unmark(). */
    int row() const { return m_row; }

    /** Shows @p spear as the target of @p moving, which may be null, at @p pos in the scene. */
    void mark(SpearItem &spear, const QPointF &pos, SpearItem *moving);
    /**
     * Marks the bone @p under, which may be null, for the dragged @p subject, null for none that
     * can be dropped. False, with nothing marked, for what may not be dropped there.
     */
    bool offer(const TreeItem *subject, SpearItem *under, const QPointF &pos);
    /** Shows none any more. */
    void unmark();
    /** Shows none any more and forgets the row. */
    void clear();
    /** The row below the target at which @p moving would come at @p pos; 0 without a target. */
    int rowAt(const QPointF &pos, SpearItem *moving) const;

private:
    SpearPointer m_spear;
    int m_row = 0;
};
