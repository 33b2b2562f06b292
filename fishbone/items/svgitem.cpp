// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/svgitem.h>

#include <algorithm>
#include <cmath>

#include <QCursor>
#include <QGraphicsSceneHoverEvent>
#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <QSvgRenderer>

#include <fishbone/items/svgcache.h>

namespace {

constexpr int largestPixels = 256; ///< a side; what is larger is not worth keeping

/** Whether @p pos is farther away than any screen, and perhaps than an integer can say. */
bool isBeyondScreens(const QPointF &pos)
{
    return std::max(std::abs(pos.x()), std::abs(pos.y())) > QWIDGETSIZE_MAX;
}

} // namespace

SvgItem::SvgItem(QGraphicsItem *parent)
    : QGraphicsSvgItem(parent)
{
    // The base class would paint through a bitmap, which an export to SVG, PDF or a printer would
    // then carry instead of the drawing.
    setCacheMode(NoCache);
}

SvgItem::SvgItem(const QString &file, QGraphicsItem *parent)
    : SvgItem(parent)
{
    setSvgFile(file);
    setAcceptHoverEvents(true);
}

void SvgItem::setSvgFile(const QString &file)
{
    const bool isSetAgain = file == m_file;
    if (isSetAgain && (m_shown || file.isEmpty()))
        return;
    QSvgRenderer *const renderer = sharedSvgRenderer(file);
    if (isSetAgain && !renderer)
        return; // still missing
    m_file = file;
    prepareGeometryChange();
    m_shown = renderer != nullptr;
    if (m_shown)
        setSharedRenderer(renderer);
    update();
}

QRectF SvgItem::boundingRect() const
{
    return m_shown ? QGraphicsSvgItem::boundingRect() : QRectF();
}

void SvgItem::paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget)
{
    if (!m_shown)
        return;
    // Only the screen is painted from pixels. Exports and printers, which have no widget, get the
    // drawing itself.
    const bool isOnScreen = widget && !option->state.testFlag(QStyle::State_Selected);
    if (!isOnScreen || !paintPixels(*painter))
        QGraphicsSvgItem::paint(painter, option, widget);
}

/** Paints the picture from pixels on whole pixels of the device; false where it would not fit. */
bool SvgItem::paintPixels(QPainter &painter) const
{
    const QTransform onDevice = painter.deviceTransform();
    if (onDevice.type() > QTransform::TxScale || onDevice.m11() <= 0 || onDevice.m22() <= 0)
        return false;
    const QRectF area = onDevice.mapRect(boundingRect());
    if (std::round(std::max(area.width(), area.height())) > largestPixels)
        return false;
    if (isBeyondScreens(area.topLeft()))
        return true;
    const QSize size = area.size().toSize().expandedTo(QSize(1, 1));
    QPixmap picture = screenPicture(m_file, size);
    painter.save();
    painter.resetTransform();
    const QTransform toDevice = painter.deviceTransform();
    picture.setDevicePixelRatio(toDevice.m11());
    painter.drawPixmap(toDevice.inverted().map(QPointF(area.topLeft().toPoint())), picture);
    painter.restore();
    return true;
}

void SvgItem::hoverEnterEvent(QGraphicsSceneHoverEvent *event)
{
    Q_UNUSED(event)
    setCursor(Qt::ArrowCursor);
}

void SvgItem::hoverLeaveEvent(QGraphicsSceneHoverEvent *event)
{
    Q_UNUSED(event)
    unsetCursor();
}
