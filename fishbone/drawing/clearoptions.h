// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/drawing/cleartext.h>
#include <fishbone/drawing/diagramlook.h>

#include <cmath>

/** The measures of the clear look that more than one of its parts needs, in pixels at 100 %. */
namespace ClearMeasure {
inline const qreal slope = 1 / std::tan(70 * 3.14159265358979323846 / 180); ///< how far bones lean
constexpr qreal headSize = 17;
constexpr qreal categorySize = 15.5;
constexpr qreal causeSize = 13.9;
constexpr qreal deepSize = 12.5; ///< from level 5 on
constexpr int deepLevel = 5;
constexpr qreal icon = 11;
constexpr qreal iconGap = 4; ///< between an icon and its text
constexpr qreal gap = 5;     ///< clear height between two texts
} // namespace ClearMeasure

/** Where the bones of a category go; as DiagramLook::Sides. */
enum class ClearSides {
    One,    ///< all on the side away from the head
    Uneven, ///< on both sides of the categories that have far more subjects than the others
    Both,   ///< on both sides of all categories
};

/** How a diagram is arranged in the clear look. */
struct ClearOptions
{
    ClearWrap wrap; ///< of the causes; categories never get narrower than 90
    ClearSides sides = ClearSides::One;
    bool isHeadLeft = false; ///< the head stands on the left, mirrored but for the texts
    qreal headWidth = 120;   ///< the width of a line in the head
    bool hasLegend = false;  ///< whether what is in the legend is shown

    /** What @p options of the look mean for the layout. */
    static ClearOptions of(const DiagramLook::Options &options);
    /** @p options with this arrangement, so that of() gives it back. */
    DiagramLook::Options in(DiagramLook::Options options) const;

    bool operator==(const ClearOptions &o) const
    {
        return wrap == o.wrap && sides == o.sides && isHeadLeft == o.isHeadLeft &&
               headWidth == o.headWidth && hasLegend == o.hasLegend;
    }
    bool operator!=(const ClearOptions &o) const { return !(*this == o); }
};

/** The fonts of a diagram: one family, a size for each level. */
class ClearFonts
{
public:
    /** The fonts of the family of @p like. */
    explicit ClearFonts(const QFont &like);

    /** The fonts of the family that the user has chosen for all subjects. */
    static ClearFonts ofTheUser();

    /** The font of a title at @p level. */
    const ClearFont &ofLevel(int level) const;
    /** The font of the "+5" of a contracted bone. */
    const ClearFont &badge() const { return m_badge; }
    /** The font of the legend. */
    const ClearFont &legend() const { return m_legend; }

private:
    ClearFont m_head;
    ClearFont m_category;
    ClearFont m_cause;
    ClearFont m_deep;
    ClearFont m_badge;
    ClearFont m_legend;
};
