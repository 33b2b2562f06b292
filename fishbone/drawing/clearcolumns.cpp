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
constexpr qreal nowhere = -1e9;
constexpr qreal negligible = 1e-6; ///< common stretches below come from rounding

std::vector<ClearReach> reachesOf(const ClearSteps &steps)
{
    std::vector<ClearReach> reaches;
    reaches.reserve(steps.size());
    steps.forEach([&reaches](qreal low, qreal high, qreal value) {
        reaches.push_back({low, high, value});
    });
    return reaches;
}

/** The first of @p reaches that ends behind @p place. */
template <typename Reaches>
auto firstBehind(Reaches &reaches, qreal place)
{
    return std::upper_bound(reaches.begin(), reaches.end(), place,
                            [](qreal at, const ClearReach &each) { return at < each.high; });
}

/** Adds a stretch behind all of @p reaches; empty ones are left out. */
void append(std::vector<ClearReach> &reaches, const ClearReach &reach)
{
    if (reach.high - reach.low > negligible)
        reaches.push_back(reach);
}
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
    const ClearOutline outline = ClearOutline::ofBoxes(turned, columnMargin);
    return {std::move(boxes), reachesOf(outline.lower()), reachesOf(outline.upper())};
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
    std::vector<ClearReach> &side = m_sides[isBelow];
    qreal joint = (isBelow ? firstBelow : firstAbove) + std::max<qreal>(0, hangsOver - overHead);
    joint = std::max(joint, m_previous[isBelow] + jointPitch);
    joint = std::max(joint, clearance(side, column.near) + columnGap);
    stack(side, column.far, joint);
    m_previous[isBelow] = joint;
    m_end = std::max({m_end, joint + behindLast + tailGap, joint + nearest + tailGap});
    return joint;
}

/** How far a column has to be from the head so that nothing of it is nearer than the columns of
 * @p side reach. */
qreal ClearColumns::clearance(const std::vector<ClearReach> &side,
                              const std::vector<ClearReach> &near)
{
    qreal most = nowhere;
    if (near.empty())
        return most;
    auto there = firstBehind(side, near.front().low);
    for (auto here = near.begin(); here != near.end() && there != side.end(); ++m_work) {
        if (std::min(here->high, there->high) - std::max(here->low, there->low) > negligible)
            most = std::max(most, there->value - here->value);
        if (here->high < there->high)
            ++here;
        else
            ++there;
    }
    return most;
}

/** Lets @p side reach as far as a column at @p joint whose far contour is @p far. */
void ClearColumns::stack(std::vector<ClearReach> &side, const std::vector<ClearReach> &far,
                         qreal joint)
{
    if (far.empty())
        return;
    const auto first = firstBehind(side, far.front().low);
    const auto last = std::find_if(
        first, side.end(), [&](const ClearReach &each) { return each.low >= far.back().high; });
    std::vector<ClearReach> merged;
    merged.reserve(far.size() + std::size_t(last - first) + 2);
    auto there = first;
    qreal from = there == last ? far.front().low : std::min(there->low, far.front().low);
    const auto keepUpTo = [&](qreal to) { // what was there, up to there
        while (there != last && there->low < to) {
            append(merged, {std::max(there->low, from), std::min(there->high, to), there->value});
            if (there->high > to)
                break;
            ++there;
        }
        from = to;
    };
    for (const ClearReach &each : far) {
        keepUpTo(each.low);
        qreal value = each.value + joint;
        // What was there is nearer to the head, but for where nothing of the column is before it.
        for (auto covered = there; covered != last && covered->low < each.high; ++covered)
            value = std::max(value, covered->value);
        while (there != last && there->high <= each.high)
            ++there;
        append(merged, {each.low, each.high, value});
        from = each.high;
    }
    keepUpTo(1e300);
    m_work += merged.size() + std::size_t(last - first);
    const auto at = side.erase(first, last);
    side.insert(at, merged.begin(), merged.end());
}
