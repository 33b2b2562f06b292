// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/drawing/clearoutline.h>

#include <vector>

/** How far something reaches along the backbone, between two distances from it. */
struct ClearReach
{
    qreal low;
    qreal high;
    qreal value;
};

/** What a category covers: as boxes, and as the contours of these along the backbone, in order of
 * their distance from it. */
struct ClearColumn
{
    std::vector<ClearBox> boxes;
    std::vector<ClearReach> near; ///< towards the head
    std::vector<ClearReach> far;  ///< towards the tail
};

/**
 * Packs the categories beside each other, on both sides of the backbone independently, each as near
 * to the head as it goes. Linear in the number of steps of a column and of those that it covers.
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
    quint64 work() const { return m_work; }

private:
    qreal clearance(const std::vector<ClearReach> &side, const std::vector<ClearReach> &near);
    void stack(std::vector<ClearReach> &side, const std::vector<ClearReach> &far, qreal joint);

    std::vector<ClearReach> m_sides[2]; ///< how far the columns reach, one behind the other
    quint64 m_work = 0;
    qreal m_previous[2];
    qreal m_headHalf;
    qreal m_end;
};
