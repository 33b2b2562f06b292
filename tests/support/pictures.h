// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <cstdlib>

#include <QEvent>
#include <QGraphicsItem>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QImage>
#include <QPaintEvent>
#include <QPainter>
#include <QScreen>
#include <QStyleOptionGraphicsItem>
#include <QTest>
#include <QtMath>

namespace TestSupport {

inline QImage whitePicture(const QSize &size)
{
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(Qt::white);
    return picture;
}

/**
 * What Qt's raster engine may make out: it computes the edge of a slanted line wider than a pixel,
 * and of a turned rectangle, anew from where the clip begins, and rounds a little differently.
 */
constexpr int clipRounding = 8;

/**
 * Says how two pictures of 32 bits a pixel differ; empty when no colour component of any pixel
 * differs by more than @p tolerance of its 255 levels.
 */
inline QString difference(const QImage &actual, const QImage &expected, int tolerance = 0)
{
    if (actual.size() != expected.size())
        return QStringLiteral("%1x%2 pixels instead of %3x%4")
            .arg(actual.width())
            .arg(actual.height())
            .arg(expected.width())
            .arg(expected.height());
    int count = 0;
    int most = 0;
    QRect area;
    for (int y = 0; y < expected.height(); ++y) {
        const auto *const actualLine = reinterpret_cast<const QRgb *>(actual.constScanLine(y));
        const auto *const expectedLine = reinterpret_cast<const QRgb *>(expected.constScanLine(y));
        if (std::equal(actualLine, actualLine + actual.width(), expectedLine))
            continue;
        for (int x = 0; x < expected.width(); ++x) {
            const QRgb a = actualLine[x];
            const QRgb b = expectedLine[x];
            const int levels =
                std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                          std::abs(qBlue(a) - qBlue(b))});
            if (levels <= tolerance)
                continue;
            ++count;
            most = std::max(most, levels);
            area |= QRect(x, y, 1, 1);
        }
    }
    if (count == 0)
        return {};
    return QStringLiteral("%1 pixels differ by up to %2 within %3,%4 %5x%6")
        .arg(count)
        .arg(most)
        .arg(area.x())
        .arg(area.y())
        .arg(area.width())
        .arg(area.height());
}

/** How many pixels of two pictures of one size are not the same. */
inline int differingPixels(const QImage &actual, const QImage &expected)
{
    int count = 0;
    for (int y = 0; y < expected.height(); ++y) {
        for (int x = 0; x < expected.width(); ++x)
            count += actual.pixel(x, y) != expected.pixel(x, y) ? 1 : 0;
    }
    return count;
}

/** How many pixels of a picture of 32 bits a pixel have exactly that colour. */
inline int pixelsOf(const QImage &picture, const QColor &color)
{
    int count = 0;
    const QRgb wanted = color.rgb();
    for (int y = 0; y < picture.height(); ++y) {
        const auto *const line = reinterpret_cast<const QRgb *>(picture.constScanLine(y));
        count += int(std::count(line, line + picture.width(), wanted));
    }
    return count;
}

/** How many pixels are not white. */
inline int inkedPixels(const QImage &picture)
{
    return picture.width() * picture.height() - pixelsOf(picture, Qt::white);
}

/** The smallest rectangle with all pixels that are not white. */
inline QRect inkedArea(const QImage &picture)
{
    QRect area;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, y) != QColor(Qt::white))
                area |= QRect(x, y, 1, 1);
        }
    }
    return area;
}

/** The smallest rectangle with all pixels of exactly that colour. */
inline QRect areaOf(const QImage &picture, const QColor &color)
{
    QRect area;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixel(x, y) == color.rgb())
                area |= QRect(x, y, 1, 1);
        }
    }
    return area;
}

/**
 * The part of a coordinate system that a test paints, @p scale pixels for each unit, and where its
 * points are in the picture.
 */
struct Canvas
{
    QRect area;
    int scale = 1;

    QSize size() const { return area.size() * scale; }
    QPoint pixelAt(const QPointF &point) const
    {
        const QPointF pixel = (point - QPointF(area.topLeft())) * scale;
        return {qFloor(pixel.x()), qFloor(pixel.y())};
    }
    QColor colorAt(const QImage &picture, const QPointF &point) const
    {
        const QPoint pixel = pixelAt(point);
        return picture.valid(pixel) ? picture.pixelColor(pixel) : QColor();
    }
    void setUp(QPainter &painter) const
    {
        painter.scale(scale, scale);
        painter.translate(-QPointF(area.topLeft()));
    }
};

/** What an item alone paints, in its own coordinates, when it is given @p state. */
inline QImage paintedItem(QGraphicsItem &item, const Canvas &canvas,
                          QStyle::State state = QStyle::State_None)
{
    QImage picture = whitePicture(canvas.size());
    QPainter painter(&picture);
    canvas.setUp(painter);
    QStyleOptionGraphicsItem option;
    option.state = state | QStyle::State_Enabled;
    option.rect = item.boundingRect().toRect();
    option.exposedRect = item.boundingRect();
    item.paint(&painter, &option);
    return picture;
}

/** A part of a scene painted in one go. */
inline QImage paintedAtOnce(QGraphicsScene &scene, const Canvas &canvas,
                            QPainter::RenderHints hints = {})
{
    QImage picture = whitePicture(canvas.size());
    QPainter painter(&picture);
    painter.setRenderHints(hints);
    scene.render(&painter, QRectF(picture.rect()), QRectF(canvas.area));
    return picture;
}

/**
 * The same part of the scene painted in squares, each of which exposes its own items only and is
 * clipped.
 */
inline QImage paintedInPieces(QGraphicsScene &scene, const Canvas &canvas, int pieceUnits,
                              QPainter::RenderHints hints = {})
{
    QImage picture = whitePicture(canvas.size());
    QPainter painter(&picture);
    painter.setRenderHints(hints);
    for (int y = canvas.area.top(); y <= canvas.area.bottom(); y += pieceUnits) {
        for (int x = canvas.area.left(); x <= canvas.area.right(); x += pieceUnits) {
            const QRect piece = QRect(x, y, pieceUnits, pieceUnits) & canvas.area;
            const QRect pixels(canvas.pixelAt(piece.topLeft()), piece.size() * canvas.scale);
            scene.render(&painter, QRectF(pixels), QRectF(piece), Qt::IgnoreAspectRatio);
        }
    }
    return picture;
}

/** Counts how often a widget is painted. */
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget *widget) { widget->installEventFilter(this); }

    int count = 0;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        Q_UNUSED(watched)
        count += event->type() == QEvent::Paint;
        return false;
    }
};

/** Waits until everything that was scheduled so far is painted. False when no paint comes. */
inline bool paintScheduled(QGraphicsView &view)
{
    // The scene first turns changes of its items into updates of its views, which are collected
    // until the view is painted; a pixel of its own tells when that is.
    QCoreApplication::sendPostedEvents();
    const PaintCounter painted(view.viewport());
    view.viewport()->update(0, 0, 1, 1);
    return QTest::qWaitFor([&painted] { return painted.count > 0; });
}

/** Paints the whole view anew. False when no paint comes. */
inline bool paintEverything(QGraphicsView &view)
{
    view.viewport()->update();
    return paintScheduled(view);
}

/** What the view's viewport shows on the screen, as it has been painted so far. */
inline QImage shownPicture(QGraphicsView &view)
{
    QWidget *const window = view.window();
    const QRect viewport(view.viewport()->mapTo(window, QPoint(0, 0)), view.viewport()->size());
    return window->screen()
        ->grabWindow(window->winId(), viewport.x(), viewport.y(), viewport.width(),
                     viewport.height())
        .toImage()
        .convertToFormat(QImage::Format_RGB32);
}

/** How what @p view has painted of all that happened so far differs from a full paint; empty when
 * it does not by more than @p tolerance. Everything is painted then. */
inline QString staleness(QGraphicsView &view, int tolerance = clipRounding)
{
    if (!paintScheduled(view))
        return QStringLiteral("nothing was painted");
    const QImage inPieces = shownPicture(view);
    if (!paintEverything(view))
        return QStringLiteral("not all was painted");
    return difference(inPieces, shownPicture(view), tolerance);
}

} // namespace TestSupport
