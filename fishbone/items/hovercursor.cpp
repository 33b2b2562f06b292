// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/hovercursor.h>

#include <QGraphicsItem>
#include <QGraphicsScene>
#include <QGraphicsView>

namespace {
QWidget *currentViewport(const QGraphicsItem &item)
{
    const QGraphicsScene *const scene = item.scene();
    const QGraphicsView *const view = scene ? scene->views().value(0) : nullptr;
    return view ? view->viewport() : nullptr;
}

void showCursor(const QGraphicsItem &item, Qt::CursorShape shape)
{
    QWidget *const viewport = currentViewport(item);
    if (viewport && viewport->cursor().shape() != shape)
        viewport->setCursor(shape);
}

bool isTopmost(const QGraphicsItem &item, const QPointF &scenePos)
{
    if (HoverDispatch::reachesTopmost())
        return item.contains(item.mapFromScene(scenePos));
    return item.scene()->itemAt(scenePos, QTransform()) == &item;
}
} // namespace

void showHoverCursor(const QGraphicsItem &item, const QPointF &scenePos)
{
    if (!currentViewport(item))
        return;
    showCursor(item, isTopmost(item, scenePos) ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void showArrowCursor(const QGraphicsItem &item)
{
    showCursor(item, Qt::ArrowCursor);
}
