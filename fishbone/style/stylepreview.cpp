// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/style/stylepreview.h>

#include <fishbone/style/previewpixmap.h>
#include <fishbone/style/textbox.h>

#include <QFontMetrics>
#include <QPainter>

namespace {

/**
 * The preview text as a bone with that many characters would cut it, never through a surrogate
 * pair, and marked as cut.
 */
QString shortened(const QString &text, int count)
{
    if (count < 1 || count >= text.length())
        return text;
    const int length = text.at(count - 1).isHighSurrogate() ? count - 1 : count;
    return text.left(length) + QLatin1String("...");
}

} // namespace

QPixmap stylePreview(const SpearStyle &style, SpearStyle::SpearState state, const QString &text,
                     const QColor &background, qreal ratio)
{
    const QString shown = shortened(text, style.textCount());
    const QFont *const font = style.textFont(state);
    const QPen *const pen = style.broderPen(state);
    constexpr int padding = 4;
    constexpr int margin = padding;
    const QFontMetrics metrics(font ? *font : QFont());
    const QRect box(margin, margin, metrics.horizontalAdvance(shown) + 2 * padding,
                    metrics.height() + 2 * padding);
    // A long text in a large font must not take up more memory than a screen can show.
    const QSize size = (box.size() + QSize(2 * margin, 2 * margin)).boundedTo(QSize(2400, 800));

    QPixmap pixmap = previewPixmap(size, ratio, background);
    QPainter painter(&pixmap);
    paintTextBox(painter, box, box, style.textBkColor(state), pen ? *pen : QPen());
    painter.setFont(font ? *font : QFont());
    painter.setPen(style.textColor(state)); // black when invalid
    painter.drawText(box, Qt::AlignCenter | Qt::TextSingleLine, shown);
    return pixmap;
}
