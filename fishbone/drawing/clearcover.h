// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/drawing/clearlayout.h>
#include <fishbone/drawing/clearoutline.h>
#include <fishbone/drawing/clearshapes.h>

#include <utility>
#include <vector>

/** What the bones of a category cover: boxes in its skewed coordinates, its joint at the origin. */
class ClearCover
{
public:
    explicit ClearCover(bool isHeadLeft)
        : m_isHeadLeft(isHeadLeft)
    {
    }

    /** Adds @p bone, which is packed as @p shape: line by line, so that short lines make room. */
    void add(const ClearLayout::Bone &bone, const ClearShapes::Bone &shape);

    std::vector<ClearBox> takeBoxes() { return std::exchange(m_boxes, {}); }

private:
    void addCategory(const ClearLayout::Bone &bone, const ClearShapes::Bone &shape);
    void addCause(const ClearLayout::Bone &bone, const ClearShapes::Bone &shape);
    void addSlices(const QRectF &rect, qreal high);
    ClearBox skewed(const QRectF &rect) const;

    std::vector<ClearBox> m_boxes;
    bool m_isHeadLeft;
};
