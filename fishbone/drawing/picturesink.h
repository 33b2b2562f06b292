// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/drawing/clearlabel.h>

#include <QColor>
#include <QLineF>
#include <QPainterPath>
#include <QPen>
#include <QRectF>
#include <QString>

/** What a picture says of a subject besides what it draws. */
struct PictureSubject
{
    QString id;     ///< names it in the file; may be anything
    QString title;  ///< the whole title
    QString detail; ///< its description; empty for none
    QString link;   ///< where its link leads, as the document has it; empty for none
    QString state;  ///< what its status icon means; empty without one
    int parent = -1;
    int level = 0;
};

/**
 * What a drawing is described to: a painter, or the writer of a file. Coordinates are those of the
 * drawing. Whatever comes between beginSubject() and endSubject() belongs to that subject; these
 * are not nested.
 */
class PictureSink
{
    Q_DISABLE_COPY(PictureSink)

public:
    PictureSink() = default;
    virtual ~PictureSink() = default;

    virtual void beginSubject(int index, const PictureSubject &subject) = 0;
    virtual void endSubject() = 0;
    /** A straight line. */
    virtual void line(const QLineF &line, const QPen &pen) = 0;
    /** A shape with an outline of @p width, none when that is 0. */
    virtual void shape(const QPainterPath &path, const QColor &fill, const QColor &outline,
                       qreal width) = 0;
    /** A filled rectangle with round corners. */
    virtual void box(const QRectF &rect, qreal radius, const QColor &fill) = 0;
    /** A text whose lines are set in @p rect towards @p side. */
    virtual void text(const ClearText &text, const QRectF &rect, ClearLabel::Side side,
                      const QColor &color) = 0;
    /** The picture in the resource @p file. */
    virtual void icon(const QRectF &rect, const QString &file) = 0;
};
