// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/clearcover.h>

#include <algorithm>
#include <cmath>

namespace {
using ClearMeasure::slope;

constexpr qreal lineHalf = 1;
constexpr qreal boxSlice = 7;
constexpr qreal lineSlice = 9;
} // namespace

void ClearCover::add(const ClearLayout::Bone &bone, const ClearShapes::Bone &shape)
{
    if (bone.level == 1)
        addCategory(bone, shape);
    else
        addCause(bone, shape);
    for (const QRectF &part : {bone.status, bone.votes, bone.link, bone.badge}) {
        if (!part.isNull())
            m_boxes.push_back(skewed(part));
    }
}

void ClearCover::addCategory(const ClearLayout::Bone &bone, const ClearShapes::Bone &shape)
{
    m_boxes.push_back({-lineHalf, lineHalf, 0, shape.length});
    addSlices(bone.box, boxSlice);
}

void ClearCover::addCause(const ClearLayout::Bone &bone, const ClearShapes::Bone &shape)
{
    const bool isSlanted = ClearShapes::isSlanted(bone.level);
    const qreal sign = shape.isMirrored ? -1 : 1;
    const qreal end = isSlanted ? shape.along : shape.along + sign * shape.length;
    const qreal high = isSlanted ? shape.across + shape.lead + shape.length : shape.across;
    m_boxes.push_back({std::min(shape.along, end) - lineHalf, std::max(shape.along, end) + lineHalf,
                       shape.across - lineHalf, high + lineHalf});
    if (bone.isFilled) {
        addSlices(bone.titleRect(), lineSlice);
        return;
    }
    const ClearFont &font = bone.text->font();
    for (int line = 0; line < bone.text->lineCount(); ++line) {
        const QPointF base = bone.base(line);
        addSlices(QRectF(base.x(), base.y() - font.ascent(),
                         bone.text->lines()[std::size_t(line)].width, font.lineHeight()),
                  lineSlice);
    }
}

/** What covers @p rect, in slices of @p high at most, since what is skewed is wider the higher it
 * is. */
void ClearCover::addSlices(const QRectF &rect, qreal high)
{
    const int slices = int(std::ceil(rect.height() / high));
    const qreal each = rect.height() / slices;
    for (int slice = 0; slice < slices; ++slice)
        m_boxes.push_back(
            skewed(QRectF(rect.left(), rect.top() + slice * each, rect.width(), each)));
}

ClearBox ClearCover::skewed(const QRectF &rect) const
{
    const qreal low = rect.top() < 0 ? -rect.bottom() : rect.top();
    const qreal high = low + rect.height();
    const qreal near = m_isHeadLeft ? rect.left() : -rect.right();
    return {near - high * slope, near + rect.width() - low * slope, low, high};
}
