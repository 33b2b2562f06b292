// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/clearoutline.h>

#include <algorithm>
#include <iterator>
#include <utility>

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

ClearOutline ClearOutline::ofBoxes(const std::vector<ClearBox> &boxes, qreal margin)
{
    // In the order in which the boxes show, each only gets what is not taken yet.
    ClearOutline outline;
    std::vector<const ClearBox *> order;
    order.reserve(boxes.size());
    for (const ClearBox &box : boxes)
        order.push_back(&box);
    const auto fill = [&](ClearSteps &steps, auto value) {
        ClearSteps taken;
        std::vector<std::pair<qreal, qreal>> free;
        for (const ClearBox *box : order) {
            free.clear();
            taken.forEachGap(box->from - margin, box->to + margin,
                             [&](qreal from, qreal to) { free.emplace_back(from, to); });
            outline.m_work += free.size() + 1;
            for (const auto &[from, to] : free)
                steps.insert(from, to, value(*box));
            if (!free.empty())
                taken.join(box->from - margin, box->to + margin);
        }
        outline.m_covered = std::move(taken);
    };
    std::sort(order.begin(), order.end(),
              [](const ClearBox *a, const ClearBox *b) { return a->high > b->high; });
    fill(outline.m_upper, [](const ClearBox &box) { return box.high; });
    std::sort(order.begin(), order.end(),
              [](const ClearBox *a, const ClearBox *b) { return a->low < b->low; });
    fill(outline.m_lower, [](const ClearBox &box) { return box.low; });
    for (const ClearBox &box : boxes) {
        outline.m_start = std::min(outline.m_start, box.from);
        outline.m_bottom = std::min(outline.m_bottom, box.low);
    }
    return outline;
}

void ClearOutline::add(const ClearBox &box, qreal margin)
{
    const qreal from = box.from - margin;
    const qreal to = box.to + margin;
    m_upper.raise(from, to, box.high);
    m_lower.lower(from, to, box.low);
    m_covered.join(from, to);
    m_start = std::min(m_start, box.from);
    m_bottom = std::min(m_bottom, box.low);
    ++m_work;
}

qreal ClearOutline::drop(const ClearOutline &shape, qreal along, qreal least) const
{
    return ClearSteps::clearance(m_upper, shape.m_lower, along, least, m_work);
}

void ClearOutline::moveAll(qreal along, qreal across)
{
    m_upper.move(along, across);
    m_lower.move(along, across);
    m_covered.move(along, 0);
    m_start += along;
    m_bottom += across;
}

void ClearOutline::stack(ClearOutline &&shape, qreal along, qreal across)
{
    shape.moveAll(along, across);
    const qreal start = std::min(m_start, shape.m_start);
    const qreal bottom = std::min(m_bottom, shape.m_bottom);
    const quint64 work = m_work + shape.m_work;
    const auto sizeOf = [](const ClearOutline &o) { return o.m_upper.size() + o.m_lower.size(); };
    const std::size_t small = std::min(sizeOf(*this), sizeOf(shape));
    if (sizeOf(shape) <= sizeOf(*this)) {
        stackSmall(shape);
    } else {
        std::swap(*this, shape);
        slipUnder(shape);
    }
    m_start = start;
    m_bottom = bottom;
    m_work = work + small + 1;
}

/** Lays the few steps of @p shape on top. */
void ClearOutline::stackSmall(const ClearOutline &shape)
{
    shape.m_upper.forEach([this](qreal from, qreal to, qreal v) { m_upper.cover(from, to, v); });
    shape.m_lower.forEach([this](qreal from, qreal to, qreal v) {
        m_covered.forEachGap(from, to, [&](qreal a, qreal b) { m_lower.insert(a, b, v); });
    });
    shape.m_covered.forEach([this](qreal from, qreal to, qreal) { m_covered.join(from, to); });
}

/** Lays the few steps of @p shape underneath. */
void ClearOutline::slipUnder(const ClearOutline &shape)
{
    shape.m_lower.forEach([this](qreal from, qreal to, qreal v) { m_lower.cover(from, to, v); });
    shape.m_upper.forEach([this](qreal from, qreal to, qreal v) {
        m_covered.forEachGap(from, to, [&](qreal a, qreal b) { m_upper.insert(a, b, v); });
    });
    shape.m_covered.forEach([this](qreal from, qreal to, qreal) { m_covered.join(from, to); });
}
