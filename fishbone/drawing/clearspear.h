// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/drawing/clearlayout.h>
#include <fishbone/drawing/clearpieces.h>
#include <fishbone/items/spearlook.h>

#include <memory>

class SpearItem;

/** What is painted with the header: head, tail, backbone and legend. */
struct ClearFrame
{
    QPainterPath head;
    QPainterPath tail;
    QPolygonF backbone;
    std::vector<ClearLegend::Entry> legend;
    std::vector<ClearMeaning> symbols; ///< what the legend explains

    bool operator==(const ClearFrame &other) const
    {
        return head == other.head && tail == other.tail && backbone == other.backbone &&
               legend == other.legend && symbols == other.symbols;
    }
    /** All of it. */
    QRectF rect() const;
};

/** Where a spear and its companions stand in the clear look. */
struct ClearSpear final : SpearLookData
{
    ClearLayout::Bone bone;
    ClearInk ink;                            ///< of its normal state
    QRectF extent;                           ///< of it with all below it
    int hidden = 0;                          ///< how many subjects below it are not shown
    std::unique_ptr<const ClearFrame> frame; ///< null but for the header

    /** That of @p spear; null while it is hidden. */
    static const ClearSpear *of(const SpearItem &spear);

    bool operator==(const ClearSpear &other) const;

    /** The text box: the coloured box of a category, else the title with a margin. */
    QRectF box() const;
};
