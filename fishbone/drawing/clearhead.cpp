// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/clearhead.h>

#include <algorithm>
#include <cmath>

namespace {
constexpr qreal spare = 8; ///< from a line of the title to the outline
constexpr qreal leastAround = 46;
constexpr qreal leastAbove = 26;
constexpr qreal leastHeight = 56;
constexpr qreal heightStep = 8;
constexpr int heights = 7;           ///< so many are tried
constexpr qreal heightWeight = 0.15; ///< what a height costs beside a width
constexpr qreal backBulge = 8;

// One half of the outline, from the upper end of the back to the tip: a cubic curve in units of the
// width and of half the height.
constexpr qreal firstControl = 0.68;
constexpr qreal secondControl = 0.94;
constexpr qreal secondHeight = 0.64;

qreal curveX(qreal t)
{
    const qreal u = 1 - t;
    return 3 * t * u * u * firstControl + 3 * t * t * u * secondControl + t * t * t;
}

qreal curveY(qreal t)
{
    const qreal u = 1 - t;
    return u * u * u + 3 * t * u * u + 3 * t * t * u * secondHeight;
}

/** How far the outline of width 1 reaches at the height @p y of 1. */
qreal reachAt(qreal y)
{
    qreal low = 0;
    qreal high = 1;
    for (int step = 0; step < 30; ++step) {
        const qreal middle = (low + high) / 2;
        (curveY(middle) > y ? low : high) = middle;
    }
    return curveX(low);
}
} // namespace

ClearHead::ClearHead(const ClearLabel &label)
    : m_label(label)
{
    const qreal least = std::max(leastHeight, label.height() + leastAbove);
    qreal best = 0;
    for (int step = 0; step < heights; ++step) {
        const qreal height = least + step * heightStep;
        const qreal width = widthAtHeight(height);
        const qreal cost = width + heightWeight * height;
        if (step == 0 || cost < best) {
            best = cost;
            m_size = QSizeF(width, height);
        }
    }
}

/** The smallest width at which no line is nearer to the outline than the spare room. */
qreal ClearHead::widthAtHeight(qreal height) const
{
    const ClearText &text = *m_label.text();
    const qreal all = m_label.width(ClearLabel::Side::Center);
    const ClearLabelPlaces places =
        m_label.placesAt(QPointF(spare + all / 2, 0), ClearLabel::Side::Center);
    qreal width = all + leastAround;
    for (int line = 0; line < text.lineCount(); ++line) {
        const qreal left = ClearLabel::base(text, places.text, ClearLabel::Side::Center, line).x();
        qreal right = left + text.lines()[std::size_t(line)].width;
        if (line == text.lineCount() - 1)
            right = std::max({right, places.votes.right(), places.link.right()});
        const qreal top = places.text.top() + line * text.font().lineHeight();
        const qreal far = std::max(std::abs(top), std::abs(top + text.font().lineHeight()));
        // The corner may come no nearer than that in any direction.
        for (const qreal angle : {0.0, 0.35, 0.7, 1.05, 1.4}) {
            const qreal y = (far + spare * std::sin(angle)) / (height / 2);
            width = std::max(width, (right + spare * std::cos(angle)) / reachAt(y));
        }
    }
    return width;
}

QPointF ClearHead::titleCenter() const
{
    return {spare + m_label.width(ClearLabel::Side::Center) / 2, 0};
}

QPainterPath ClearHead::outline() const
{
    const qreal w = m_size.width();
    const qreal h = m_size.height() / 2;
    QPainterPath path(QPointF(0, -h));
    path.cubicTo(w * firstControl, -h, w * secondControl, -h * secondHeight, w, 0);
    path.cubicTo(w * secondControl, h * secondHeight, w * firstControl, h, 0, h);
    path.quadTo(-backBulge, 0, 0, -h);
    path.closeSubpath();
    return path;
}

QPainterPath ClearHead::tail(qreal x)
{
    constexpr qreal fork = 17;
    QPainterPath path(QPointF(x + 4, 0));
    path.cubicTo(x - 8, -2, x - 18, -8, x - tailLength, -fork);
    path.cubicTo(x - 22, -8, x - 22, 8, x - tailLength, fork);
    path.cubicTo(x - 18, 8, x - 8, 2, x + 4, 0);
    path.closeSubpath();
    return path;
}
