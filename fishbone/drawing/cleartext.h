// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QFont>
#include <QGlyphRun>
#include <QHash>
#include <QList>
#include <QString>

#include <memory>
#include <unordered_map>
#include <vector>

class QColor;
class QPainter;
class QPointF;

/**
 * A font whose size is given in the units of the drawing and means the same on every device. Widths
 * grow in proportion with the size, since nothing is fitted to pixels.
 */
class ClearFont
{
public:
    ClearFont() = default;
    /** @p like in the size @p pixels. */
    ClearFont(const QFont &like, qreal pixels);

    /** @p font as it is on a screen of 96 dots an inch, whatever the screen is, so that a diagram
     * is the same everywhere. */
    static ClearFont onScreen(const QFont &font);

    /** The font to lay texts out with; its point is a unit of the drawing on device() alone. */
    const QFont &font() const { return m_font; }
    /** The size in units of the drawing. */
    qreal pixels() const { return m_pixels; }

    /** The height of a line. */
    qreal lineHeight() const { return m_pixels * 1.22; }
    /** From the top of a line to its base line. */
    qreal ascent() const { return m_pixels * 0.95; }

    bool operator==(const ClearFont &other) const { return m_font == other.m_font; }

    /** The device that texts are measured for: a point is a unit there. */
    static QPaintDevice *device();

private:
    QFont m_font;
    qreal m_pixels = 1;
};

/** How a title is broken into lines. */
struct ClearWrap
{
    qreal limit = 0;     ///< the width of a line, 0 for one that is as long as it has to be
    int lines = 3;       ///< at most so many lines, and as many as the title has of its own
    bool widens = false; ///< whether lines get longer than the limit rather than the text cut
    qreal widest = 260;  ///< and how long at most; what is longer gets more lines

    bool operator==(const ClearWrap &o) const
    {
        return limit == o.limit && lines == o.lines && widens == o.widens && widest == o.widest;
    }
};

/** A text in lines. Immutable but for what it keeps for painting. */
class ClearText
{
public:
    struct Line
    {
        QString text;
        qreal width = 0;
    };

    ClearText(const ClearFont &font, std::vector<Line> lines, bool isRightToLeft, bool isCut);

    const ClearFont &font() const { return m_font; }
    const std::vector<Line> &lines() const { return m_lines; }
    int lineCount() const { return int(m_lines.size()); }
    /** The width of the widest line. */
    qreal width() const { return m_width; }
    qreal height() const { return lineCount() * m_font.lineHeight(); }
    /** Whether it reads from right to left. */
    bool isRightToLeft() const { return m_isRightToLeft; }
    /** Whether an ellipsis stands for a part of the title. */
    bool isCut() const { return m_isCut; }

    /** Paints line @p line with the left end of its base line at @p base. Lays it out the first
     * time only. */
    void paintLine(QPainter &painter, int line, const QPointF &base, const QColor &color) const;

private:
    ClearFont m_font;
    std::vector<Line> m_lines;
    qreal m_width = 0;
    bool m_isRightToLeft;
    bool m_isCut;
    mutable std::vector<QList<QGlyphRun>> m_glyphs;
};

/**
 * Measures texts and breaks them into lines, and remembers both: an unchanged title in an unchanged
 * font is laid out once, however often it is asked for.
 */
class ClearTextCache
{
public:
    /** @p title in @p font, in lines. */
    std::shared_ptr<const ClearText> text(const QString &title, const ClearFont &font,
                                          const ClearWrap &wrap);

    /**
     * Begins a layout. Texts that it asks for in the order of the one before are found at once,
     * without a look at their letters.
     */
    void beginLayout();
    /** Forgets what was not asked for since the last call but one, once that may be more than half
     * of much. */
    void forgetUnused();

    /** How many texts were broken into lines so far. */
    int layouts() const { return m_layouts; }

private:
    struct Key
    {
        QString title;
        int font;
        ClearWrap wrap;

        bool isOf(const QString &itsTitle, int itsFont, const ClearWrap &itsWrap) const
        {
            return font == itsFont && wrap == itsWrap && title == itsTitle;
        }
        bool operator==(const Key &o) const { return isOf(o.title, o.font, o.wrap); }
    };
    struct KeyHash
    {
        std::size_t operator()(const Key &key) const
        {
            return std::size_t(qHash(key.title)) * 31 + std::size_t(key.font) * 7 +
                   std::size_t(key.wrap.lines) + std::size_t(key.wrap.limit) * 1009;
        }
    };
    struct Entry
    {
        std::shared_ptr<const ClearText> text;
        std::size_t place = 0; ///< in the order of the layout that asked for it last
        int lastUse = 0;
    };
    struct FontWidths
    {
        ClearFont font;
        QHash<QString, qreal> widths;
    };

    using Texts = std::unordered_map<Key, Entry, KeyHash>;

    int indexOf(const ClearFont &font);
    Texts::value_type &find(const QString &title, int font, const ClearWrap &wrap);

    std::vector<FontWidths> m_fonts;
    Texts m_texts;
    std::vector<Texts::value_type *> m_before; ///< as the layout before asked for them
    std::vector<Texts::value_type *> m_now;    ///< and this one so far
    std::size_t m_next = 0;                    ///< where in the former the next one is expected
    int m_use = 0;
    int m_layouts = 0;
};
