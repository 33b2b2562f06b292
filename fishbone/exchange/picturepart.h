// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/drawing/clearpainter.h>

#include <QRectF>

/** Paints what a part of a drawing shows and leaves out the rest, so that a page of several holds
 * no more than is seen on it. */
class PicturePart : public ClearPainter
{
public:
    /** Paints with @p painter, in the units of the drawing, what touches @p part. */
    PicturePart(QPainter &painter, const QRectF &part)
        : ClearPainter(painter)
        , m_part(part)
    {
    }

    void line(const QLineF &line, const QPen &pen) override;
    void shape(const QPainterPath &path, const QColor &fill, const QColor &outline,
               qreal width) override;
    void box(const QRectF &rect, qreal radius, const QColor &fill) override;
    void text(const ClearText &text, const QRectF &rect, ClearLabel::Side side,
              const QColor &color) override;
    void icon(const QRectF &rect, const QString &file) override;

private:
    bool shows(const QRectF &rect) const { return m_part.intersects(rect); }

    QRectF m_part;
};
