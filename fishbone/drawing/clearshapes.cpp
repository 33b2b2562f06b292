// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/clearshapes.h>

#include <fishbone/drawing/clearpacked.h>

#include <algorithm>
#include <utility>

namespace {
using ClearMeasure::gap;
using ClearMeasure::slope;

constexpr qreal margin = 2;       ///< boxes keep twice this apart along the bones
constexpr qreal stub = 10;        ///< a bone without further ones
constexpr qreal leafText = 13;    ///< where its text begins
constexpr qreal boneTextGap = 3;  ///< from the end of a bone to its text
constexpr qreal pitch = 14;       ///< between two twigs
constexpr qreal firstReach = 8;   ///< from a bone to what hangs over from its first twig
constexpr qreal nextReach = 6;    ///< and from one twig to the next
constexpr qreal beyond = 9;       ///< a level bone goes on behind its last twig
constexpr qreal slantedPitch = 6; ///< between two joints on a slanted bone
constexpr qreal backboneRoom = 2; ///< what the backbone takes
constexpr qreal boxGap = 8;       ///< from the last joint of a category to its box
constexpr qreal shortestCategory = 40;
constexpr qreal boxPadding = 7; ///< of a category's box, left and right
constexpr qreal boxPaddingHigh = 3;
constexpr qreal otherSideGain = 1; ///< a bone changes sides for more than this
constexpr qreal unevenFactor = 1.5;
constexpr int boxSlices = 4;
constexpr qreal half = 0.5;
} // namespace

ClearShapes::ClearShapes(const ClearTree &tree, const std::vector<ClearLabel> &labels,
                         const ClearOptions &options, std::vector<ClearPacked> &packed)
    : m_tree(tree)
    , m_labels(labels)
    , m_options(options)
    , m_bones(std::size_t(tree.size()))
    , m_outlines(std::size_t(tree.size()))
{
    decideSides();
    for (int row = 0; row < tree.children(0).size(); ++row) {
        const int category = tree.children(0)[row];
        const bool both = usesBothSides(category);
        const auto first = m_bones.begin() + category;
        ClearPacked &known = packed[std::size_t(row)];
        if (known.isOf(tree, labels, category, both, options.isHeadLeft)) {
            std::copy(known.bones().begin(), known.bones().end(), first);
            continue;
        }
        packTree(category);
        known.keep(tree, labels, category, both, options.isHeadLeft,
                   {first, m_bones.begin() + tree.end(category)});
    }
}

/** Packs a category with all below it, from the leaves up. */
void ClearShapes::packTree(int category)
{
    for (int index = m_tree.end(category) - 1; index > category; --index) {
        if (isSlanted(m_tree.level(index)))
            packSlanted(index);
        else
            packLevel(index);
    }
    packCategory(category);
    settle(category);
}

void ClearShapes::decideSides()
{
    const ClearTree::Children categories = m_tree.children(0);
    m_maySwap.resize(std::size_t(m_tree.size()));
    qreal mean = m_tree.size() - 1 - categories.size();
    mean /= std::max(categories.size(), 1);
    for (const int category : categories) {
        const bool isUneven = m_tree.descendants(category) > unevenFactor * mean;
        const bool both = m_options.sides == ClearSides::Both ||
                          (m_options.sides == ClearSides::Uneven && isUneven);
        std::fill(m_maySwap.begin() + category, m_maySwap.begin() + m_tree.end(category), both);
    }
}

bool ClearShapes::usesBothSides(int category) const
{
    return m_maySwap[std::size_t(category)];
}

qreal ClearShapes::labelWidth(int index) const
{
    const ClearLabel &label = m_labels[std::size_t(index)];
    if (m_maySwap[std::size_t(index)])
        return label.anyWidth();
    return label.width(m_options.isHeadLeft ? ClearLabel::Side::Left : ClearLabel::Side::Right);
}

/** The box of a text whose near middle is at that place. */
ClearBox ClearShapes::textBox(int index, qreal along, qreal across) const
{
    const qreal high = m_labels[std::size_t(index)].height() / 2;
    return {along - high * slope, along + labelWidth(index) + high * slope, across - high,
            across + high};
}

ClearOutline ClearShapes::takeOutline(int index)
{
    return std::move(m_outlines[std::size_t(index)]);
}

/** Notes where @p child branches off, seen from its parent. */
void ClearShapes::place(int child, qreal along, qreal across, bool isMirrored)
{
    Bone &bone = m_bones[std::size_t(child)];
    bone.along = along;
    bone.across = across;
    bone.isMirrored = isMirrored;
}

/** A level bone: its twigs stand so far apart that each passes the text of the one before, and drop
 * until what is on them is clear of what is further out. That gives a staircase. */
void ClearShapes::packLevel(int index)
{
    const ClearTree::Children children = m_tree.children(index);
    Bone &bone = m_bones[std::size_t(index)];
    ClearOutline outline;
    const qreal lean = m_labels[std::size_t(index)].height() / 2 * slope;
    std::vector<qreal> places;
    places.reserve(std::size_t(children.size()));
    qreal place = 0;
    for (const int child : children) {
        const qreal reach = -std::min<qreal>(m_outlines[std::size_t(child)].start(), 0);
        place += std::max(pitch, reach + (places.empty() ? firstReach : nextReach));
        places.push_back(place);
    }
    bone.length = places.empty() ? stub : place + std::max(beyond, lean);
    bone.textAlong = places.empty() ? std::max(leafText, lean + boneTextGap) - stub : boneTextGap;
    outline.add(textBox(index, bone.length + bone.textAlong, 0), margin);
    outline.add({0, bone.length, -1, 1}, margin);
    for (int row = children.size() - 1; row >= 0; --row) {
        const int child = children[row];
        const qreal along = places[std::size_t(row)];
        ClearOutline shape = takeOutline(child);
        const qreal across = std::max<qreal>(0, outline.drop(shape, along, -gap) + gap);
        outline.stack(std::move(shape), along, across);
        this->place(child, along, 0);
        m_bones[std::size_t(child)].lead = across;
    }
    m_outlines[std::size_t(index)] = std::move(outline);
}

/** A slanted bone on a level one: its bones are stacked along it, its own text stands at its end.
 */
void ClearShapes::packSlanted(int index)
{
    ClearOutline outline;
    qreal last = 0;
    const ClearTree::Children children = m_tree.children(index);
    for (const int child : children) {
        ClearOutline shape = takeOutline(child);
        const qreal least = std::max(slantedPitch, last + slantedPitch);
        last = std::max(least, outline.drop(shape, 0, -1e9) + gap);
        outline.stack(std::move(shape), 0, last);
        place(child, 0, last);
    }
    Bone &bone = m_bones[std::size_t(index)];
    const ClearLabel &label = m_labels[std::size_t(index)];
    const qreal high = label.height() / 2;
    bone.textAlong =
        boneTextGap + std::max<qreal>(0, high - label.text()->font().lineHeight() / 2) * slope;
    if (m_maySwap[std::size_t(index)]) // on the other side the bone leans towards the text
        bone.textAlong = std::max(bone.textAlong, high * slope + 1);
    ClearOutline text;
    text.add(textBox(index, bone.textAlong, 0), margin);
    qreal least = high + boneTextGap;
    if (children.size())
        least = std::max(least, last + slantedPitch);
    bone.length = std::max(least, outline.drop(text, 0, -1e9) + gap);
    outline.stack(std::move(text), 0, bone.length);
    outline.add({-half, half, 0, bone.length}, margin);
    m_outlines[std::size_t(index)] = std::move(outline);
}

/** The bone of a category: as a slanted one, but on both sides where that is wanted, and with the
 * title in a box at its far end. */
void ClearShapes::packCategory(int index)
{
    ClearOutline sides[2]; // along the other one grows towards the head
    const ClearTree::Children children = m_tree.children(index);
    const bool both = usesBothSides(index);
    const qreal first = ClearMeasure::causeSize * 1.22 / 2 + gap;
    qreal last = 0;
    for (const int child : children) {
        ClearOutline shape = takeOutline(child);
        const qreal least = std::max(both ? first : std::max(first, last + slantedPitch),
                                     backboneRoom - shape.bottom() + gap);
        const qreal here = std::max(least, sides[0].drop(shape, 0, -1e9) + gap);
        const qreal there = both ? std::max(least, sides[1].drop(shape, 0, -1e9) + gap) : here;
        const bool isMirrored = there < here - otherSideGain;
        const qreal across = isMirrored ? there : here;
        sides[isMirrored ? 1 : 0].stack(std::move(shape), 0, across);
        place(child, 0, across, isMirrored);
        last = std::max(last, across);
    }
    Bone &bone = m_bones[std::size_t(index)];
    const QSizeF size = boxOf(index);
    const qreal wide = size.width();
    const qreal lean = size.height() * slope;
    bone.length = children.size() ? last + boxGap : shortestCategory;
    for (const bool isMirrored : {false, true}) {
        ClearOutline box; // its upper part leans towards the head
        for (int slice = 0; slice < boxSlices; ++slice) {
            const qreal from = -wide - lean * (slice + 1) / boxSlices;
            const qreal low = size.height() * slice / boxSlices;
            const ClearBox leaning{from, from + lean / boxSlices, low, low + 1};
            box.add(isMirrored ? ClearBox{-leaning.to, -leaning.from, low, low + 1} : leaning,
                    margin);
        }
        box.add(isMirrored ? ClearBox{-wide - lean, wide, 0, 1}
                           : ClearBox{-wide, wide + lean, 0, 1},
                margin);
        bone.length = std::max(bone.length, sides[isMirrored].drop(box, 0, -1e9) + gap);
        m_work += sides[isMirrored].work();
    }
}

/** Turns places seen from the parent into places seen from the category. */
void ClearShapes::settle(int category)
{
    for (int index = category + 1; index < m_tree.end(category); ++index) {
        Bone &bone = m_bones[std::size_t(index)];
        const Bone &parent = m_bones[std::size_t(m_tree.at(index).parent)];
        bone.isMirrored = bone.isMirrored || parent.isMirrored;
        bone.along = parent.along + (bone.isMirrored ? -bone.along : bone.along);
        // Seen from a slanted bone below a level one, its twig comes first.
        bone.across += parent.across + parent.lead;
    }
}

QSizeF ClearShapes::boxOf(int category) const
{
    const ClearLabel &label = m_labels[std::size_t(category)];
    return {label.width(ClearLabel::Side::Center) / 2 + boxPadding,
            label.height() + 2 * boxPaddingHigh};
}
