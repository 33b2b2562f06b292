// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/clearcolumns.h>

#include <fishbone/drawing/clearoptions.h>

#include <algorithm>
#include <utility>

namespace {
using ClearMeasure::slope;

constexpr qreal firstBelow = 14; ///< from the head to the first joint of each side
constexpr qreal firstAbove = 26;
constexpr qreal overHead = 4;       ///< what may hang over towards the head before that grows
constexpr qreal headClear = 4;      ///< between the head and what hangs over above it
constexpr qreal jointPitch = 12;    ///< between two joints of a side
constexpr qreal columnGap = 16;     ///< between two categories
constexpr qreal columnMargin = 1.5; ///< of each of two neighbours
constexpr qreal shortest = 52;
constexpr qreal behindLast = 12;
constexpr qreal nearBackbone = 20; ///< what is nearer than that to it keeps off the tail
constexpr qreal tailGap = 4;
} // namespace

ClearColumns::ClearColumns(qreal headHeight)
    : m_previous{-jointPitch, -jointPitch}
    , m_headHalf(headHeight / 2 + headClear)
    , m_end(shortest + tailGap)
{
}

ClearColumn ClearColumns::columnOf(std::vector<ClearBox> boxes)
{
    std::vector<ClearBox> turned; // here things are packed along the backbone
    turned.reserve(boxes.size());
    for (const ClearBox &box : boxes)
        turned.push_back({box.low, box.high, box.from, box.to});
    return {std::move(boxes), ClearOutline::ofBoxes(turned, columnMargin)};
}

qreal ClearColumns::place(const ClearColumn &column, bool isBelow)
{
    qreal hangsOver = 0;
    qreal nearest = 0; // what keeps off the tail
    for (const ClearBox &box : column.boxes) {
        if (box.low < m_headHalf)
            hangsOver = std::max(hangsOver, -box.from - box.low * slope);
        if (box.low < nearBackbone)
            nearest = std::max(nearest, box.to + box.high * slope);
    }
    ClearOutline outline = column.outline;
    ClearOutline &side = m_sides[isBelow];
    qreal joint = (isBelow ? firstBelow : firstAbove) + std::max<qreal>(0, hangsOver - overHead);
    joint = std::max(joint, m_previous[isBelow] + jointPitch);
    joint = std::max(joint, side.drop(outline, 0, -1e9) + columnGap);
    side.stack(std::move(outline), 0, joint);
    m_previous[isBelow] = joint;
    m_end = std::max({m_end, joint + behindLast + tailGap, joint + nearest + tailGap});
    return joint;
}
