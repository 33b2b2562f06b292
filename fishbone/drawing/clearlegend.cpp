// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/clearlegend.h>

#include <fishbone/drawing/clearoptions.h>

#include <algorithm>

namespace {
constexpr qreal rowHeight = 14;
constexpr qreal rowStep = 17;
constexpr qreal entryGap = 14;
constexpr qreal below = 8;      ///< between the drawing and the legend
constexpr qreal cornerGap = 12; ///< what stays clear of it in a corner
constexpr qreal narrowest = 160;
constexpr qreal symbolSpace = ClearMeasure::icon + ClearMeasure::iconGap;

bool isFree(const QRectF &place, const std::vector<QRectF> &taken)
{
    const QRectF wide = place.adjusted(-cornerGap, -cornerGap, cornerGap, cornerGap);
    return std::none_of(taken.cbegin(), taken.cend(),
                        [&](const QRectF &each) { return each.intersects(wide); });
}
} // namespace

ClearLegend::ClearLegend(const std::vector<QString> &meanings, const ClearFont &font,
                         ClearTextCache &cache)
{
    ClearWrap wrap;
    wrap.lines = 1;
    for (const QString &meaning : meanings)
        m_entries.push_back({cache.text(meaning, font, wrap), {}, {}});
}

/** Puts the entries into rows of @p width from the origin on; returns what they cover. */
QSizeF ClearLegend::arrange(qreal width)
{
    QPointF at;
    qreal widest = 0;
    for (Entry &entry : m_entries) {
        const qreal wide = symbolSpace + entry.text->width();
        if (at.x() > 0 && at.x() + wide > width)
            at = QPointF(0, at.y() + rowStep);
        const qreal middle = at.y() + rowHeight / 2;
        entry.symbol =
            QRectF(at.x(), middle - ClearMeasure::icon / 2, ClearMeasure::icon, ClearMeasure::icon);
        entry.textRect = QRectF(at.x() + symbolSpace, middle - entry.text->height() / 2,
                                entry.text->width(), entry.text->height());
        widest = std::max(widest, at.x() + wide);
        at.rx() += wide + entryGap;
    }
    return QSizeF(widest, at.y() + rowHeight);
}

/** The same in as many rows, but with no row that is far shorter than the others. */
QSizeF ClearLegend::arrangeEvenly(qreal width)
{
    const QSizeF size = arrange(width);
    qreal enough = size.width();
    if (size.height() <= rowHeight)
        return size;
    for (qreal step = enough / 2; step > 1; step /= 2) {
        if (arrange(enough - step).height() <= size.height())
            enough -= step;
    }
    return arrange(enough);
}

void ClearLegend::moveTo(const QPointF &corner)
{
    for (Entry &entry : m_entries) {
        entry.symbol.translate(corner);
        entry.textRect.translate(corner);
    }
}

QRectF ClearLegend::place(const QRectF &drawing, const std::vector<QRectF> &taken, bool isRight)
{
    const auto leftOf = [&](const QSizeF &size) {
        return isRight ? drawing.right() - size.width() : drawing.left();
    };
    // In a corner it takes no room of its own. One row first, then more and more of them.
    for (qreal width : {1e9, 420.0, 300.0, 200.0, 120.0}) {
        const QSizeF size = arrangeEvenly(width);
        if (size.width() > drawing.width())
            continue;
        const QPointF corner(leftOf(size), drawing.bottom() - size.height());
        if (isFree(QRectF(corner, size), taken)) {
            moveTo(corner);
            return drawing;
        }
    }
    const QSizeF size = arrangeEvenly(std::max(drawing.width(), narrowest));
    const QPointF corner(leftOf(size), drawing.bottom() + below);
    moveTo(corner);
    return drawing | QRectF(corner, size);
}
