// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/clearsteps.h>

#include <algorithm>
#include <iterator>

ClearSteps::Steps::const_iterator ClearSteps::firstEndingAfter(qreal place) const
{
    const qreal key = place - m_along;
    auto step = m_steps.upper_bound(key);
    if (step != m_steps.cbegin() && std::prev(step)->second.end > key)
        --step;
    return step;
}

/** Cuts the stretch over @p place in two and returns the first one that begins there or later. */
ClearSteps::Steps::iterator ClearSteps::splitAt(qreal place)
{
    const qreal key = place - m_along;
    const auto next = m_steps.lower_bound(key);
    if (next == m_steps.begin())
        return next;
    Step &before = std::prev(next)->second;
    if (before.end <= key)
        return next;
    const Step rest = before;
    before.end = key;
    return m_steps.emplace_hint(next, key, rest);
}

void ClearSteps::cover(qreal from, qreal to, qreal value)
{
    if (to <= from)
        return;
    splitAt(to);
    const auto first = splitAt(from);
    const auto last = m_steps.lower_bound(to - m_along);
    m_steps.erase(first, last);
    insert(from, to, value);
}

void ClearSteps::insert(qreal from, qreal to, qreal value)
{
    m_steps.insert_or_assign(from - m_along, Step{to - m_along, value - m_across});
}

template <typename Better>
void ClearSteps::improve(qreal from, qreal to, qreal value, Better better)
{
    if (to <= from)
        return;
    splitAt(to);
    auto step = splitAt(from);
    const qreal end = to - m_along;
    const qreal own = value - m_across;
    qreal open = from - m_along; // from here to the next stretch that stays
    while (step != m_steps.end() && step->first < end) {
        if (better(own, step->second.value)) {
            step = m_steps.erase(step);
            continue;
        }
        if (step->first > open)
            m_steps.emplace_hint(step, open, Step{step->first, own});
        open = step->second.end;
        ++step;
    }
    if (open < end)
        m_steps.emplace_hint(step, open, Step{end, own});
}

void ClearSteps::raise(qreal from, qreal to, qreal value)
{
    improve(from, to, value, [](qreal mine, qreal other) { return mine >= other; });
}

void ClearSteps::lower(qreal from, qreal to, qreal value)
{
    improve(from, to, value, [](qreal mine, qreal other) { return mine <= other; });
}

void ClearSteps::join(qreal from, qreal to)
{
    if (to <= from)
        return;
    qreal start = from - m_along;
    qreal end = to - m_along;
    auto step = m_steps.upper_bound(start);
    if (step != m_steps.begin() && std::prev(step)->second.end >= start - negligible)
        --step;
    while (step != m_steps.end() && step->first <= end + negligible) {
        start = std::min(start, step->first);
        end = std::max(end, step->second.end);
        step = m_steps.erase(step);
    }
    m_steps.emplace_hint(step, start, Step{end, 0});
}

qreal ClearSteps::clearance(const ClearSteps &upper, const ClearSteps &lower, qreal along,
                            qreal least, quint64 &work)
{
    qreal most = least;
    if (upper.isEmpty() || lower.isEmpty())
        return most;
    // In the places of the lower one; what has no counterpart is jumped over.
    const qreal toUpper = lower.m_along + along - upper.m_along;
    const qreal across = upper.m_across - lower.m_across;
    auto below = upper.firstEndingAfter(lower.m_steps.cbegin()->first + lower.m_along + along);
    auto above = lower.m_steps.cbegin();
    while (below != upper.m_steps.cend() && above != lower.m_steps.cend()) {
        ++work;
        const qreal belowStart = below->first - toUpper;
        const qreal belowEnd = below->second.end - toUpper;
        if (belowEnd <= above->first) {
            const auto next = upper.firstEndingAfter(above->first + toUpper + upper.m_along);
            below = next == below ? std::next(below) : next; // rounding must not stop it here
        } else if (above->second.end <= belowStart) {
            const auto next = lower.firstEndingAfter(belowStart + lower.m_along);
            above = next == above ? std::next(above) : next;
        } else {
            most = std::max(most, below->second.value - above->second.value + across);
            if (belowEnd < above->second.end)
                ++below;
            else
                ++above;
        }
    }
    return most;
}
