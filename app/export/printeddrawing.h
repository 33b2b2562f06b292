// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QRectF>

#include <functional>

class DiagramPicture;
class QGraphicsScene;
class QPainter;

/** A drawing as a printer takes it. What it is made of must live as long. */
struct PrintedDrawing
{
    QRectF extent;       ///< what it covers, in scene units
    QList<QRectF> texts; ///< what should not be cut
    /** Is told how much of a part is painted; false ends that. */
    using Progress = std::function<bool(int done, int total)>;
    /** Paints the part of the drawing into the target, which has the same shape, and nothing of the
     * rest. False when the progress ended it. */
    std::function<bool(QPainter &painter, const QRectF &target, const QRectF &part,
                       const Progress &progress)>
        paint;

    /** What @p scene shows. */
    static PrintedDrawing of(QGraphicsScene &scene);
    /** A drawing in the clear look. */
    static PrintedDrawing of(const DiagramPicture &picture);
};
