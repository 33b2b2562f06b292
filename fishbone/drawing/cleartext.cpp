// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/cleartext.h>

#include <fishbone/drawing/cleartextbreaker.h>

#include <QImage>
#include <QPaintEngine>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {
constexpr std::size_t textsKept = 4096; ///< below that nothing is forgotten
constexpr int widthsKept = 50000;
constexpr qreal veryWide = 1e6;
constexpr qreal metre = 39.37; ///< inches
constexpr qreal pointsOfInch = 72;

QList<QGlyphRun> glyphsOf(const QString &text, const ClearFont &font, bool isRightToLeft)
{
    QTextLayout layout(text, font.font(), ClearFont::device());
    QTextOption option;
    option.setTextDirection(isRightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    option.setAlignment(Qt::AlignLeft | Qt::AlignAbsolute);
    option.setWrapMode(QTextOption::NoWrap);
    layout.setTextOption(option);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(veryWide);                  // only then it has an ascent
    line.setPosition(QPointF(0, -line.ascent())); // the base line at 0
    layout.endLayout();
    return line.glyphRuns();
}
} // namespace

ClearFont::ClearFont(const QFont &like, qreal pixels)
    : m_font(like)
    , m_pixels(pixels)
{
    m_font.setPointSizeF(pixels);
    m_font.setHintingPreference(QFont::PreferNoHinting);
}

ClearFont ClearFont::onScreen(const QFont &font)
{
    constexpr qreal dotsPerInch = 96;
    constexpr qreal pointsPerInch = 72;
    const qreal pixels =
        font.pixelSize() > 0 ? font.pixelSize() : font.pointSizeF() * dotsPerInch / pointsPerInch;
    return ClearFont(font, pixels);
}

QPaintDevice *ClearFont::device()
{
    static QImage device = [] {
        QImage image(1, 1, QImage::Format_ARGB32_Premultiplied);
        const int dots = int(std::lround(72 * metre));
        image.setDotsPerMeterX(dots);
        image.setDotsPerMeterY(dots);
        return image;
    }();
    return &device;
}

ClearText::ClearText(const ClearFont &font, std::vector<Line> lines, bool isRightToLeft, bool isCut)
    : m_font(font)
    , m_lines(std::move(lines))
    , m_isRightToLeft(isRightToLeft)
    , m_isCut(isCut)
{
    for (const Line &line : m_lines)
        m_width = std::max(m_width, line.width);
}

void ClearText::paintLine(QPainter &painter, int line, const QPointF &base,
                          const QColor &color) const
{
    const QPaintEngine *const engine = painter.paintEngine();
    if (engine && engine->type() >= QPaintEngine::User) { // of a slide, say: it takes words
        QFont font = m_font.font();
        font.setPointSizeF(m_font.pixels() * pointsOfInch / painter.device()->logicalDpiY());
        painter.setFont(font);
        painter.setPen(color);
        painter.drawText(base, m_lines[std::size_t(line)].text);
        return;
    }
    if (m_glyphs.empty()) {
        m_glyphs.reserve(m_lines.size());
        for (const Line &each : m_lines)
            m_glyphs.push_back(glyphsOf(each.text, m_font, m_isRightToLeft));
    }
    painter.setPen(color);
    for (const QGlyphRun &run : std::as_const(m_glyphs[std::size_t(line)]))
        painter.drawGlyphRun(base, run);
}

int ClearTextCache::indexOf(const ClearFont &font)
{
    const auto found = std::find_if(m_fonts.cbegin(), m_fonts.cend(),
                                    [&](const FontWidths &each) { return each.font == font; });
    if (found != m_fonts.cend())
        return int(found - m_fonts.cbegin());
    m_fonts.push_back({font, {}});
    return int(m_fonts.size()) - 1;
}

ClearTextCache::Texts::value_type &ClearTextCache::find(const QString &title, int font,
                                                        const ClearWrap &wrap)
{
    if (m_next < m_before.size() && m_before[m_next]->first.isOf(title, font, wrap))
        return *m_before[m_next++];
    const auto [found, isNew] = m_texts.try_emplace(Key{title, font, wrap});
    if (!isNew) // those behind it are likely to follow it again
        m_next = found->second.place + 1;
    return *found;
}

std::shared_ptr<const ClearText> ClearTextCache::text(const QString &title, const ClearFont &font,
                                                      const ClearWrap &wrap)
{
    const int index = indexOf(font);
    Texts::value_type &found = find(title, index, wrap);
    Entry &entry = found.second;
    entry.lastUse = m_use;
    entry.place = m_now.size();
    m_now.push_back(&found);
    if (!entry.text) {
        QHash<QString, qreal> &widths = m_fonts[std::size_t(index)].widths;
        if (widths.size() > widthsKept)
            widths.clear();
        entry.text = ClearTextBreaker(title, font, widths).broken(wrap);
        ++m_layouts;
    }
    return entry.text;
}

void ClearTextCache::beginLayout()
{
    m_before.swap(m_now);
    m_now.clear();
    m_next = 0;
}

void ClearTextCache::forgetUnused()
{
    ++m_use;
    // What this layout asked for is kept: looking for the rest pays where there may be much of it.
    if (m_texts.size() < textsKept || m_texts.size() < 2 * m_now.size())
        return;
    m_before.clear();
    m_now.clear();
    for (auto each = m_texts.begin(); each != m_texts.end();)
        each = each->second.lastUse < m_use - 1 ? m_texts.erase(each) : std::next(each);
}
