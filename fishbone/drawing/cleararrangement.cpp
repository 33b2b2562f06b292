// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/cleararrangement.h>

#include <algorithm>

namespace {

constexpr int largeHead = 50; ///< subjects up to which the head is a large part of the picture
constexpr int fewSubjects = 500;
constexpr int someSubjects = 5000;
constexpr qreal worthChanging = 1.01;   ///< what another arrangement has to gain
constexpr qreal worthThreeLines = 1.05; ///< and what one with three lines has to
constexpr int usualLines = 2;
constexpr int mostLines = 3;

/** What is tried. */
struct Trial
{
    std::vector<qreal> wraps;
    std::vector<ClearSides> sides;
    std::vector<qreal> headWidths;
};

Trial trialFor(int subjects)
{
    using S = ClearSides;
    const std::vector<qreal> usualWraps{0, 200, 170, 145, 125, 110, 95};
    if (subjects <= largeHead) // its title keeps whole phrases together
        return {usualWraps, {S::One, S::Uneven, S::Both}, {90, 130}};
    if (subjects <= fewSubjects)
        return {usualWraps, {S::One, S::Uneven, S::Both}, {70, 90, 130}};
    if (subjects <= someSubjects)
        return {{0, 145, 95}, {S::One, S::Both}, {130}};
    return {{0}, {S::One}, {130}};
}

/** Lays out one diagram in many ways and keeps the best. */
class Search
{
public:
    Search(const ClearTree &tree, const ClearFonts &fonts, const ClearOptions &base,
           const QSizeF &page, ClearTextCache &cache, const std::vector<QString> &legend)
        : m_tree(tree)
        , m_fonts(fonts)
        , m_base(base)
        , m_page(page)
        , m_cache(cache)
        , m_legend(legend)
    {
    }

    /** Tries all arrangements whose titles have up to @p lines. */
    void tryAll(const Trial &trial, int lines, qreal gain)
    {
        qreal needed = gain;
        for (const qreal wrap : trial.wraps) {
            if (lines > usualLines && wrap <= 0)
                continue; // the same again
            for (const ClearSides sides : trial.sides) {
                for (const qreal headWidth : trial.headWidths) {
                    if (tryOne(wrap, lines, sides, headWidth, needed))
                        needed = worthChanging;
                }
            }
        }
    }

    const ClearOptions &best() const { return m_best; }

private:
    bool tryOne(qreal wrap, int lines, ClearSides sides, qreal headWidth, qreal gain)
    {
        ClearOptions options = m_base;
        options.wrap.limit = wrap;
        options.wrap.lines = wrap > 0 ? lines : mostLines;
        options.wrap.widens = wrap > 0;
        options.sides = sides;
        options.headWidth = headWidth;
        const ClearLayout layout(m_tree, m_fonts, options, m_cache, m_legend);
        const qreal scale = ClearArrangement::scaleOn(m_page, layout.bounds());
        if (m_scale > 0 && scale <= m_scale * gain)
            return false;
        m_scale = scale;
        m_best = options;
        return true;
    }

    const ClearTree &m_tree;
    const ClearFonts &m_fonts;
    const ClearOptions &m_base;
    const QSizeF m_page;
    ClearTextCache &m_cache;
    const std::vector<QString> &m_legend;
    ClearOptions m_best;
    qreal m_scale = 0;
};

} // namespace

qreal ClearArrangement::scaleOn(const QSizeF &page, const QRectF &bounds)
{
    return std::min(page.width() / bounds.width(), page.height() / bounds.height());
}

ClearOptions ClearArrangement::bestFor(const ClearTree &tree, const ClearFonts &fonts,
                                       const ClearOptions &base, const QSizeF &page,
                                       ClearTextCache &cache, const std::vector<QString> &legend)
{
    const Trial trial = trialFor(tree.size());
    Search search(tree, fonts, base, page, cache, legend);
    search.tryAll(trial, usualLines, worthChanging);
    if (tree.size() <= fewSubjects)
        search.tryAll(trial, mostLines, worthThreeLines);
    return search.best();
}
