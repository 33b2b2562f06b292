// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/clearoutline.h>

#include <fishbone/drawing/seencells.h>

#include <algorithm>
#include <utility>

/** A box as it is seen from one side. */
struct ClearOutline::Seen
{
    qreal value; ///< how far it comes towards that side
    qreal from;
    qreal to;
};

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
