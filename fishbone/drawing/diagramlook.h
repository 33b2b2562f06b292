// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/fishbone_export.h>

class QJsonObject;

/**
 * How an editor draws: where bones and texts go and what is painted. What a user does is the same
 * in all looks. FishEditor::setLook() and setLookOptions() choose one.
 */
class DiagramLook
{
public:
    /** The looks. */
    enum Kind : int {
        Classic = 0, ///< slanted texts along the bones, pictures for head and tail; the default
        Clear = 1,   ///< all texts level, categories in coloured boxes, the title in the head
    };

    /** On which sides of a category its bones grow. */
    enum Sides : int {
        OneSide = 0,     ///< away from the head
        UnevenSides = 1, ///< on both sides of those with far more subjects than the others
        BothSides = 2,   ///< on both sides of all
    };

    /** The colours of a diagram: of categories, and of what they stand on. */
    enum Palette : int {
        DistinctColors = 0, ///< told apart by people who see colours differently, too
        GrayColors = 1,     ///< for printers without colours
        DarkColors = 2,     ///< for dark canvases
        WarmColors = 3,     ///< reds, oranges and browns, head and backbone as well
        CoolColors = 4,     ///< blues and greens, head and backbone as well
        DarkGrayColors = 5, ///< GrayColors for dark canvases
        DarkWarmColors = 6, ///< WarmColors for dark canvases
        DarkCoolColors = 7, ///< CoolColors for dark canvases
    };

    /** Whether @p palette is for dark canvases. */
    static constexpr bool isDark(Palette palette)
    {
        return palette == DarkColors || palette >= DarkGrayColors;
    }
    /** What @p palette is on a dark canvas: the same for one that is made for it. */
    static constexpr Palette onDark(Palette palette)
    {
        switch (palette) {
        case DistinctColors:
            return DarkColors;
        case GrayColors:
            return DarkGrayColors;
        case WarmColors:
            return DarkWarmColors;
        case CoolColors:
            return DarkCoolColors;
        default:
            return palette;
        }
    }
    /** What @p palette is on paper: the same for one that is made for it. */
    static constexpr Palette onPaper(Palette palette)
    {
        switch (palette) {
        case DarkColors:
            return DistinctColors;
        case DarkGrayColors:
            return GrayColors;
        case DarkWarmColors:
            return WarmColors;
        case DarkCoolColors:
            return CoolColors;
        default:
            return palette;
        }
    }

    /** What can be chosen of the clear look; the classic one has no options. */
    struct FISHBONE_EXPORT Options
    {
        double wrapLimit = 0;     ///< the width of a line of a title in units; 0 for no limit
        int wrapLines = 3;        ///< at most so many lines, and as many as a title has of its own
        bool widensLines = false; ///< whether lines get longer than the limit, and then more,
                                  ///< rather than titles cut
        double headWidth = 120;   ///< the width of a line of the title in the head
        Sides sides = OneSide;    ///< where the bones of a category grow
        bool isHeadLeft = false;  ///< the head stands on the left instead of the right
        Palette palette = DistinctColors; ///< the colours of categories
        bool hasButtons =
            true; ///< whether expanded bones show their button when they are pointed at
        bool hasLegend = false; ///< whether the meanings of icons and colours stand below the tail

        /** All of them, to be stored in a document, whose "view" is a place for them. */
        QJsonObject toJson() const;
        /** The options that toJson() has stored in @p json. Whatever is missing there, is unknown
         * or makes no sense is as in options that nobody has changed. */
        static Options fromJson(const QJsonObject &json);

        /** Whether all options are the same. */
        bool operator==(const Options &other) const
        {
            return wrapLimit == other.wrapLimit && wrapLines == other.wrapLines &&
                   widensLines == other.widensLines && headWidth == other.headWidth &&
                   sides == other.sides && isHeadLeft == other.isHeadLeft &&
                   palette == other.palette && hasButtons == other.hasButtons &&
                   hasLegend == other.hasLegend;
        }
        /** Whether any option is another one. */
        bool operator!=(const Options &other) const { return !(*this == other); }
    };
};
