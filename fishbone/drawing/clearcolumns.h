// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/drawing/clearoutline.h>

#include <vector>

/** What a category covers: as boxes, and as the contour of these along the backbone. */
struct ClearColumn
{
    std::vector<ClearBox> boxes;
    ClearOutline outline;
};

/**
 * Packs the categories beside each other, on both sides of the backbone independently, each as near
 * to the head as it goes. Near linear in the number of boxes.
 */
class ClearColumns
{
public:
    /** For a head of the height @p headHeight. */
    explicit ClearColumns(qreal headHeight);

    /** The column of a category that covers @p boxes: from and to are along the backbone as skewed
     * coordinates have it, low and high across. */
    static ClearColumn columnOf(std::vector<ClearBox> boxes);

    /** Places a category. Returns the distance of its joint from the head. */
    qreal place(const ClearColumn &column, bool isBelow);

    /** How far from the head the backbone ends, so that the tail is clear of everything. */
    qreal end() const { return m_end; }

    /** How many steps of contours were looked at. */
    quint64 work() const { return m_sides[0].work() + m_sides[1].work(); }

private:
    ClearOutline m_sides[2]; ///< across the backbone: how far the columns reach along it
    qreal m_previous[2];
    qreal m_headHalf;
    qreal m_end;
};
