// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/exchange/slidedevice.h>

/** The shapes that slides are made of. */
namespace SlideShapes {

inline SlideShape box(const QRectF &rect)
{
    SlideShape shape;
    shape.path.addRect(rect);
    shape.fill = Qt::gray;
    return shape;
}

inline SlideShape line(const QPointF &from, const QPointF &to)
{
    SlideShape shape;
    shape.path.moveTo(from);
    shape.path.lineTo(to);
    shape.stroke = Qt::black;
    shape.width = 1;
    return shape;
}

inline SlideShape title(const QRectF &rect)
{
    SlideShape shape;
    shape.text = QStringLiteral("Carrier");
    shape.box = rect;
    return shape;
}

} // namespace SlideShapes
