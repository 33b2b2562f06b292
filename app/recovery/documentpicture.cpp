// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/recovery/documentpicture.h>

#include <app/diagram/expansion.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/fishscene.h>
#include <fishbone/exchange/pictureexport.h>
#include <fishbone/model/fishmodel.h>

#include <QFileInfo>
#include <QGuiApplication>
#include <QPainter>
#include <QPalette>

namespace DocumentPicture {

QPixmap render(const QString &path, const QSize &size)
{
    constexpr qint64 quicklyDrawn = 2 * 1024 * 1024; // bytes, some thousand subjects
    constexpr int margin = 4;
    constexpr int levels = 1; // below the main bones: more could not be told apart
    FishModel model;
    model.setModelType(FISH_MODEL_DIAGRAM);
    if (QFileInfo(path).size() > quicklyDrawn ||
        model.loadFishFromTemplate(path) != MODEL_NO_ERROR || !model.index(0, 0).isValid())
        return QPixmap();
    FishEditor editor;
    editor.setModel(&model);
    editor.setRootIndex(model.index(0, 0));
    Expansion::expandLevels(editor, levels);
    QPixmap picture(size);
    picture.fill(QGuiApplication::palette().color(QPalette::Base));
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF target = QRectF(QPointF(), size).adjusted(margin, margin, -margin, -margin);
    editor.scene()->render(&painter, target, PictureExport::visibleRect(*editor.scene()));
    return picture;
}

} // namespace DocumentPicture
