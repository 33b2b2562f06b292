// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/export/printeddrawing.h>

#include <fishbone/exchange/diagrampicture.h>
#include <fishbone/exchange/pictureexport.h>
#include <fishbone/items/textitem.h>

#include <QGraphicsScene>
#include <QPainter>

PrintedDrawing PrintedDrawing::of(QGraphicsScene &scene)
{
    PrintedDrawing drawing;
    drawing.extent = PictureExport::visibleRect(scene);
    const QList<QGraphicsItem *> items = scene.items();
    for (const QGraphicsItem *item : items) {
        if (item->type() == TextItem::Type && item->isVisible())
            drawing.texts.append(item->sceneBoundingRect());
    }
    drawing.paint = [&scene](QPainter &painter, const QRectF &target, const QRectF &part,
                             const Progress &progress) {
        return PictureExport::paint(scene, painter, target, part, progress);
    };
    return drawing;
}

PrintedDrawing PrintedDrawing::of(const DiagramPicture &picture)
{
    return {QRectF(QPointF(), picture.size()), picture.texts(),
            [&picture](QPainter &painter, const QRectF &target, const QRectF &part,
                       const Progress &progress) {
                return picture.paint(painter, target, part, progress);
            }};
}
