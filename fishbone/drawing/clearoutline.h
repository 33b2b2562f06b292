// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/drawing/clearsteps.h>

#include <vector>

/** A box along the two axes of a packing: @c from to @c to along it, @c low to @c high across. */
struct ClearBox
{
    qreal from = 0;
    qreal to = 0;
    qreal low = 0;
    qreal high = 0;
};

/**
 * The contour of a shape: how high it reaches and how low, over its length. A shape is dropped onto
 * another one until it rests on it, and both become one.
 *
 * Stacking takes the steps of the smaller of the two shapes into the larger one; steps that come to
 * lie between the two vanish. So a whole tree of shapes, however deep, costs little more than its
 * size.
 */
class ClearOutline
{
public:
    ClearOutline() = default;

    /** The contour of any boxes, each with @p margin on both ends. */
    static ClearOutline ofBoxes(const std::vector<ClearBox> &boxes, qreal margin);

    /** Adds a box of the shape itself, with @p margin on both ends. */
    void add(const ClearBox &box, qreal margin);

    /** How far @p shape, moved by @p along, has to be moved across so that it rests on this one. At
     * least @p least. */
    qreal drop(const ClearOutline &shape, qreal along, qreal least) const;

    /** Takes over @p shape, moved by @p along and @p across; it must not reach into this one. */
    void stack(ClearOutline &&shape, qreal along, qreal across);

    /** How high it reaches, and how low. */
    const ClearSteps &upper() const { return m_upper; }
    const ClearSteps &lower() const { return m_lower; } ///< see upper()

    /** The smallest start of a box, margins left out. */
    qreal start() const { return m_start; }
    /** The lowest side of a box. */
    qreal bottom() const { return m_bottom; }
    bool isEmpty() const { return m_covered.isEmpty(); }

    /** How many steps were looked at so far, in this shape and in those it took over. */
    quint64 work() const { return m_work; }

private:
    struct Seen;

    void see(std::vector<Seen> boxes, qreal sign, ClearSteps &steps);
    void moveAll(qreal along, qreal across);
    void stackSmall(const ClearOutline &shape);
    void slipUnder(const ClearOutline &shape);

    ClearSteps m_upper;
    ClearSteps m_lower;
    ClearSteps m_covered; ///< where the two have values, stretches that touch made one
    qreal m_start = 1e300;
    qreal m_bottom = 1e300;
    mutable quint64 m_work = 0;
};
