// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/clearoptions.h>

#include <fishbone/style/spearstyle.h>

namespace {
constexpr qreal smallSize = 11;

ClearFont weighted(QFont like, QFont::Weight weight, qreal pixels)
{
    like.setWeight(weight);
    return ClearFont(like, pixels);
}
} // namespace

ClearOptions ClearOptions::of(const DiagramLook::Options &options)
{
    ClearOptions clear;
    clear.wrap.limit = options.wrapLimit;
    clear.wrap.lines = options.wrapLines;
    clear.wrap.widens = options.widensLines;
    clear.headWidth = options.headWidth;
    clear.sides = ClearSides(options.sides);
    clear.isHeadLeft = options.isHeadLeft;
    clear.hasLegend = options.hasLegend;
    return clear;
}

DiagramLook::Options ClearOptions::in(DiagramLook::Options options) const
{
    options.wrapLimit = wrap.limit;
    options.wrapLines = wrap.lines;
    options.widensLines = wrap.widens;
    options.headWidth = headWidth;
    options.sides = DiagramLook::Sides(sides);
    options.isHeadLeft = isHeadLeft;
    options.hasLegend = hasLegend;
    return options;
}

ClearFonts::ClearFonts(const QFont &like)
    : m_head(weighted(like, QFont::Bold, ClearMeasure::headSize))
    , m_category(weighted(like, QFont::Bold, ClearMeasure::categorySize))
    , m_cause(weighted(like, QFont::Normal, ClearMeasure::causeSize))
    , m_deep(weighted(like, QFont::Normal, ClearMeasure::deepSize))
    , m_badge(weighted(like, QFont::Bold, smallSize))
    , m_legend(weighted(like, QFont::Normal, smallSize))
{
}

ClearFonts ClearFonts::ofTheUser()
{
    const QFont *const set = SpearStyle::global()->textFont(SpearStyle::ssNormal);
    QFont font = set ? *set : QFont();
    font.setItalic(false);
    return ClearFonts(font);
}

const ClearFont &ClearFonts::ofLevel(int level) const
{
    if (level == 0)
        return m_head;
    if (level == 1)
        return m_category;
    return level < ClearMeasure::deepLevel ? m_cause : m_deep;
}
