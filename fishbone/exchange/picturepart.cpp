// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/picturepart.h>

#include <QPen>

void PicturePart::line(const QLineF &line, const QPen &pen)
{
    const qreal width = pen.widthF();
    const QRectF covered = QRectF(line.p1(), line.p2()).normalized();
    if (shows(covered.adjusted(-width, -width, width, width)))
        ClearPainter::line(line, pen);
}

void PicturePart::shape(const QPainterPath &path, const QColor &fill, const QColor &outline,
                        qreal width)
{
    if (shows(path.boundingRect().adjusted(-width, -width, width, width)))
        ClearPainter::shape(path, fill, outline, width);
}

void PicturePart::box(const QRectF &rect, qreal radius, const QColor &fill)
{
    if (shows(rect))
        ClearPainter::box(rect, radius, fill);
}

void PicturePart::text(const ClearText &text, const QRectF &rect, ClearLabel::Side side,
                       const QColor &color)
{
    if (shows(rect))
        ClearPainter::text(text, rect, side, color);
}

void PicturePart::icon(const QRectF &rect, const QString &file)
{
    if (shows(rect))
        ClearPainter::icon(rect, file);
}
