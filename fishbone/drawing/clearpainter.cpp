// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/clearpainter.h>

#include <fishbone/items/svgcache.h>

#include <QPainter>
#include <QSvgRenderer>

ClearPainter::ClearPainter(QPainter &painter)
    : m_painter(painter)
{
    m_painter.setRenderHint(QPainter::Antialiasing);
    m_painter.setRenderHint(QPainter::TextAntialiasing);
}

void ClearPainter::beginSubject(int, const PictureSubject &) {}

void ClearPainter::endSubject() {}

void ClearPainter::line(const QLineF &line, const QColor &color, qreal width)
{
    m_painter.setPen(QPen(color, width, Qt::SolidLine, Qt::RoundCap));
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
    for (int line = 0; line < text.lineCount(); ++line)
        text.paintLine(m_painter, line, ClearLabel::base(text, rect, side, line), color);
}

void ClearPainter::icon(const QRectF &rect, const QString &file)
{
    if (QSvgRenderer *const renderer = sharedSvgRenderer(file))
        renderer->render(&m_painter, rect);
}
