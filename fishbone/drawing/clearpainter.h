// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/drawing/picturesink.h>

class QPainter;

/** Paints a drawing as it is described. */
class ClearPainter : public PictureSink
{
public:
    /** Paints with @p painter, in the units of the drawing. */
    explicit ClearPainter(QPainter &painter);

    void beginSubject(int index, const PictureSubject &subject) override;
    void endSubject() override;
    void line(const QLineF &line, const QPen &pen) override;
    void shape(const QPainterPath &path, const QColor &fill, const QColor &outline,
               qreal width) override;
    void box(const QRectF &rect, qreal radius, const QColor &fill) override;
    void text(const ClearText &text, const QRectF &rect, ClearLabel::Side side,
              const QColor &color) override;
    void icon(const QRectF &rect, const QString &file) override;

private:
    void bar(const ClearText &text, int line, const QPointF &base, const QColor &color);

    QPainter &m_painter;
    bool m_hasBars; ///< texts are too low to be read
    qreal m_scale;  ///< device pixels for a unit of the drawing
};
