// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <vector>

#include <QFont>
#include <QRectF>
#include <QString>

#include <fishbone/items/shapedtextitem.h>

class QColor;
class QPainter;
class QTextLayout;

/**
 * A text in a font, laid out as a QTextDocument without a given width lays it out: the size is the
 * same, and so is every pixel. It never changes; what was laid out lately is kept, for whoever
 * shows the same text in the same font.
 */
class ShapedText
{
    Q_DISABLE_COPY(ShapedText)

public:
    /**
     * Whether a document lays out @p text as other text is laid out, too: some characters stand for
     * something else there.
     */
    static bool isPlain(const QString &text);
    /**
     * @p text, which is plain, in @p font. Valid until the next call: of the texts of a drawing
     * only those asked for last are kept.
     */
    static const ShapedText &of(const QFont &font, const QString &text);
    /** How many texts have been laid out. For the tests. */
    static int shapedTexts();
    /** The lines of @p layout, which stands at @p corner. */
    static void addLines(std::vector<ShapedTextItem::Line> &lines, const QTextLayout &layout,
                         const QPointF &corner);

    /** Lays @p text out. */
    ShapedText(const QFont &font, const QString &text);
    ~ShapedText();

    /** Of the whole text with the margins around it. */
    QSizeF size() const { return m_size; }
    /** All lines, those of one paragraph after those of the one before. */
    std::vector<ShapedTextItem::Line> lines() const;
    /** Paints what lies in @p exposed, or everything when that is not valid. */
    void paint(QPainter &painter, const QColor &color, const QRectF &exposed) const;

private:
    qreal addParagraph(const QFont &font, const QString &text, qreal top);

    std::vector<std::unique_ptr<QTextLayout>> m_paragraphs;
    QSizeF m_size;
};
