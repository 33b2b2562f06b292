// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/drawing/clearink.h>
#include <fishbone/drawing/clearlayout.h>
#include <fishbone/drawing/picturesink.h>

#include <vector>

class ClearColors;

/** What a symbol of the legend stands for: one of the icon, the verdict, the colour and votes. */
struct ClearMeaning
{
    QString icon;
    Verdict verdict = Verdict::None;
    QColor colour;
    QString text; ///< what it means
    bool isVotes = false;

    bool operator==(const ClearMeaning &o) const
    {
        return icon == o.icon && verdict == o.verdict && colour == o.colour && text == o.text &&
               isVotes == o.isVotes;
    }
};

/**
 * The pieces of the clear look, for whoever draws them all at once and for whoever draws them one
 * by one. What is drawn is told to a sink; icons of subjects are left to the caller.
 */
namespace ClearPieces {

/** Backbone and tail. */
void fish(PictureSink &sink, const QPolygonF &backbone, const QPainterPath &tail,
          const ClearColors &colors);
/** The head without its title; with a broader outline when it stands out. */
void head(PictureSink &sink, const QPainterPath &path, const ClearInk &ink,
          const ClearColors &colors, bool standsOut = false);
/** The title with what lies behind it: the box of a category, its own background, rings around
 * icons on a box, and what shows its verdict and its votes. */
void label(PictureSink &sink, const ClearLayout::Bone &bone, const ClearInk &ink,
           const ClearColors &colors);
/** The "+5" in @p rect. */
void badge(PictureSink &sink, const ClearText &text, const QRectF &rect, const ClearColors &colors);
/** The legend: an entry for each of @p meanings. */
void legend(PictureSink &sink, const std::vector<ClearLegend::Entry> &entries,
            const std::vector<ClearMeaning> &meanings, const ClearColors &colors);

} // namespace ClearPieces
