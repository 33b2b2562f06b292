// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/svgitem.h>

#include <QCursor>
#include <QGraphicsSceneHoverEvent>
#include <QSvgRenderer>

#include <fishbone/items/svgcache.h>

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
    if (file == m_file)
        return;
    m_file = file;
    prepareGeometryChange();
    QSvgRenderer *const renderer = sharedSvgRenderer(file);
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
    if (m_shown)
        QGraphicsSvgItem::paint(painter, option, widget);
}

void SvgItem::hoverEnterEvent(QGraphicsSceneHoverEvent *event)
{
    Q_UNUSED(event)
    setCursor(Qt::ArrowCursor);
}

void SvgItem::hoverMoveEvent(QGraphicsSceneHoverEvent *event)
{
    QGraphicsSvgItem::hoverMoveEvent(event);
}

void SvgItem::hoverLeaveEvent(QGraphicsSceneHoverEvent *event)
{
    Q_UNUSED(event)
    unsetCursor();
}
