// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/clearpainter.h>

#include <fishbone/items/svgcache.h>

#include <QPaintEngine>
#include <QPainter>
#include <QSvgRenderer>

#include <cmath>

namespace {
constexpr qreal lowestReadable = 2; ///< device pixels a line is high
constexpr qreal barOpacity = 0.4;
} // namespace

ClearPainter::ClearPainter(QPainter &painter)
    : m_painter(painter)
    , m_hasBars(painter.paintEngine()->type() == QPaintEngine::Raster) // others can be enlarged
    , m_scale(std::hypot(painter.deviceTransform().m21(), painter.deviceTransform().m22()))
{
    m_painter.setRenderHint(QPainter::Antialiasing);
    m_painter.setRenderHint(QPainter::TextAntialiasing);
}

void ClearPainter::beginSubject(int, const PictureSubject &) {}

void ClearPainter::endSubject() {}

void ClearPainter::line(const QLineF &line, const QPen &pen)
{
    m_painter.setPen(pen);
    m_painter.drawLine(line);
}

void ClearPainter::shape(const QPainterPath &path, const QColor &fill, const QColor &outline,
                         qreal width)
{
    m_painter.setPen(width > 0 ? QPen(outline, width) : QPen(Qt::NoPen));
    m_painter.setBrush(fill);
    m_painter.drawPath(path);
}

void ClearPainter::box(const QRectF &rect, qreal radius, const QColor &fill)
{
    m_painter.setPen(Qt::NoPen);
    m_painter.setBrush(fill);
    m_painter.drawRoundedRect(rect, radius, radius);
}

void ClearPainter::text(const ClearText &text, const QRectF &rect, ClearLabel::Side side,
                        const QColor &color)
{
    const bool isReadable = !m_hasBars || text.font().lineHeight() * m_scale >= lowestReadable;
    for (int line = 0; line < text.lineCount(); ++line) {
        const QPointF base = ClearLabel::base(text, rect, side, line);
        if (isReadable)
            text.paintLine(m_painter, line, base, color);
        else
            bar(text, line, base, color);
    }
}

/** Stands for a line that cannot be read. */
void ClearPainter::bar(const ClearText &text, int line, const QPointF &base, const QColor &color)
{
    const qreal height = text.font().pixels();
    QColor pale = color;
    pale.setAlphaF(color.alphaF() * barOpacity);
    m_painter.fillRect(
        QRectF(base.x(), base.y() - height / 2, text.lines()[std::size_t(line)].width, height / 3),
        pale);
}

void ClearPainter::icon(const QRectF &rect, const QString &file)
{
    if (QSvgRenderer *const renderer = sharedSvgRenderer(file))
        renderer->render(&m_painter, rect);
}
