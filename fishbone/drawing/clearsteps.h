// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <cstddef>
#include <map>

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
