// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <map>
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
 * Values over stretches of a line, in order and without overlaps; between two stretches there may
 * be none. The whole can be moved along and across at once, at no cost.
 *
 * Each operation costs the logarithm of the number of stretches, plus the number of those it
 * removes or compares.
 */
class ClearSteps
{
public:
    /** Gives [@p from, @p to) the value @p value, whatever was there. */
    void cover(qreal from, qreal to, qreal value);

    /** Gives [@p from, @p to) at least @p value, and all of it some value. */
    void raise(qreal from, qreal to, qreal value);
    /** Gives [@p from, @p to) at most @p value, and all of it some value. */
    void lower(qreal from, qreal to, qreal value);

    /** Adds [@p from, @p to), of which no part may have a value yet. */
    void insert(qreal from, qreal to, qreal value);

    /** Makes [@p from, @p to) and all stretches that it meets one, without regard to values. */
    void join(qreal from, qreal to);

    /** Moves everything. */
    void move(qreal along, qreal across)
    {
        m_along += along;
        m_across += across;
    }

    bool isEmpty() const { return m_steps.empty(); }
    std::size_t size() const { return m_steps.size(); }

    /** Calls @p visit with from, to and value of each stretch. */
    template <typename Visit>
    void forEach(Visit visit) const
    {
        for (const auto &[start, step] : m_steps)
            visit(start + m_along, step.end + m_along, step.value + m_across);
    }

    /** Calls @p visit with from and to of each part of [@p from, @p to) that has no value. */
    template <typename Visit>
    void forEachGap(qreal from, qreal to, Visit visit) const;

    /** The largest difference between @p upper and @p lower, which is moved by @p along, where both
     * have values; @p least when that is more. Counts what it looks at in @p work. */
    static qreal clearance(const ClearSteps &upper, const ClearSteps &lower, qreal along,
                           qreal least, quint64 &work);

private:
    static constexpr qreal negligible = 1e-6; ///< gaps below come from rounding

    struct Step
    {
        qreal end;
        qreal value;
    };
    using Steps = std::map<qreal, Step>;

    Steps::const_iterator firstEndingAfter(qreal place) const;
    Steps::iterator splitAt(qreal place);
    template <typename Better>
    void improve(qreal from, qreal to, qreal value, Better better);

    Steps m_steps;
    qreal m_along = 0;
    qreal m_across = 0;
};

template <typename Visit>
void ClearSteps::forEachGap(qreal from, qreal to, Visit visit) const
{
    for (auto step = firstEndingAfter(from); step != m_steps.cend() && from < to; ++step) {
        const qreal start = step->first + m_along;
        if (start >= to)
            break;
        if (start > from + negligible)
            visit(from, start);
        from = step->second.end + m_along;
    }
    if (from + negligible < to)
        visit(from, to);
}

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
