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

/** A box as it is seen from one side. */
struct ClearOutline::Seen
{
    qreal value; ///< how far it comes towards that side
    qreal from;
    qreal to;
};

namespace {
/**
 * What is seen at least of boxes, in cells of a line: how far those come that cover a whole cell.
 * Most boxes are behind others everywhere, which this finds without sorting them.
 */
class SeenCells
{
public:
    SeenCells(qreal from, qreal to, std::size_t boxes)
        : m_from(from)
        , m_width(std::max(narrowest, (to - from) / qreal(boxes)))
        , m_cells(std::size_t((to - from) / m_width) + 2, -1e300)
    {
    }

    /** Notes a box, but for one over many cells: those are few, and looking at them all is not. */
    void add(qreal value, qreal from, qreal to)
    {
        const std::size_t last = at(to);
        if (last - at(from) > mostCells)
            return;
        for (std::size_t cell = at(from) + 1; cell < last; ++cell)
            m_cells[cell] = std::max(m_cells[cell], value);
    }

    /** Whether nothing is seen of a box, for certain. */
    bool hides(qreal value, qreal from, qreal to) const
    {
        const std::size_t last = at(to);
        if (last - at(from) > mostCells)
            return false;
        return std::all_of(m_cells.begin() + std::ptrdiff_t(at(from)),
                           m_cells.begin() + std::ptrdiff_t(last) + 1,
                           [value](qreal seen) { return seen > value; });
    }

private:
    static constexpr qreal narrowest = 3;
    static constexpr std::size_t mostCells = 32;

    std::size_t at(qreal place) const { return std::size_t((place - m_from) / m_width); }

    qreal m_from;
    qreal m_width;
    std::vector<qreal> m_cells;
};
} // namespace

/** Gives @p steps what is seen of @p boxes, with -1 for @p sign from below. */
void ClearOutline::see(std::vector<Seen> boxes, qreal sign, ClearSteps &steps)
{
    const auto begins = [](const Seen &a, const Seen &b) { return a.from < b.from; };
    const auto ends = [](const Seen &a, const Seen &b) { return a.to < b.to; };
    SeenCells cells(std::min_element(boxes.begin(), boxes.end(), begins)->from,
                    std::max_element(boxes.begin(), boxes.end(), ends)->to, boxes.size());
    for (const Seen &box : boxes)
        cells.add(box.value, box.from, box.to);
    m_work += boxes.size();
    boxes.erase(std::remove_if(boxes.begin(), boxes.end(),
                               [&](const Seen &b) { return cells.hides(b.value, b.from, b.to); }),
                boxes.end());
    std::sort(boxes.begin(), boxes.end(),
              [](const Seen &a, const Seen &b) { return a.value > b.value; });
    ClearSteps taken;
    std::vector<std::pair<qreal, qreal>> free;
    for (const Seen &box : boxes) {
        free.clear();
        taken.forEachGap(box.from, box.to,
                         [&](qreal from, qreal to) { free.emplace_back(from, to); });
        m_work += free.size() + 1;
        for (const auto &[from, to] : free)
            steps.insert(from, to, sign * box.value);
        if (!free.empty())
            taken.join(box.from, box.to);
    }
    m_covered = std::move(taken);
}

ClearOutline ClearOutline::ofBoxes(const std::vector<ClearBox> &boxes, qreal margin)
{
    ClearOutline outline;
    if (boxes.empty())
        return outline;
    std::vector<Seen> above;
    std::vector<Seen> below;
    above.reserve(boxes.size());
    below.reserve(boxes.size());
    for (const ClearBox &box : boxes) {
        above.push_back({box.high, box.from - margin, box.to + margin});
        below.push_back({-box.low, box.from - margin, box.to + margin});
        outline.m_start = std::min(outline.m_start, box.from);
        outline.m_bottom = std::min(outline.m_bottom, box.low);
    }
    outline.see(std::move(above), 1, outline.m_upper);
    outline.see(std::move(below), -1, outline.m_lower);
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
