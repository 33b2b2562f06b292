// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/recovery/documentpicture.h>

#include <app/diagram/diagramview.h>
#include <app/diagram/expansion.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/fishscene.h>
#include <fishbone/exchange/pictureexport.h>
#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>

#include <QFileInfo>
#include <QGuiApplication>
#include <QJsonObject>
#include <QPainter>
#include <QPalette>

namespace {

/** @p options with colours that show on @p canvas. */
DiagramLook::Options optionsOn(const QColor &canvas, DiagramLook::Options options)
{
    constexpr int dark = 128;
    options.palette = canvas.lightness() < dark ? DiagramLook::onDark(options.palette)
                                                : DiagramLook::onPaper(options.palette);
    options.hasButtons = false;
    options.hasLegend = false;
    return options;
}

/** A picture of the first document of @p model, with that many levels below its main bones. */
QPixmap pictureOf(FishModel &model, int levels, const QSize &size)
{
    constexpr int margin = 4;
    const DiagramView view =
        DiagramView::of(model.fishList().constFirst()->view(), DiagramView::usual());
    const QColor canvas = QGuiApplication::palette().color(QPalette::Base);
    FishEditor editor;
    editor.setLookOptions(optionsOn(canvas, view.options));
    editor.setLook(view.look);
    editor.setModel(&model);
    editor.setRootIndex(model.index(0, 0));
    Expansion::expandLevels(editor, levels);
    QPixmap picture(size);
    picture.fill(canvas);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF target = QRectF(QPointF(), size).adjusted(margin, margin, -margin, -margin);
    editor.scene()->render(&painter, target, PictureExport::visibleRect(*editor.scene()));
    return picture;
}

} // namespace

namespace DocumentPicture {

QPixmap render(const QString &path, const QSize &size)
{
    constexpr qint64 quicklyDrawn = 2 * 1024 * 1024; // bytes, some thousand subjects
    constexpr int levels = 1; // below the main bones: more could not be told apart
    FishModel model;
    model.setModelType(FISH_MODEL_DIAGRAM);
    if (QFileInfo(path).size() > quicklyDrawn ||
        model.loadFishFromTemplate(path) != MODEL_NO_ERROR || !model.index(0, 0).isValid())
        return QPixmap();
    return pictureOf(model, levels, size);
}

QPixmap of(const TreeItem &head, const QSize &size)
{
    constexpr int levels = 10;
    FishModel model;
    model.setModelType(FISH_MODEL_DIAGRAM);
    QJsonObject copy;
    FishModel::write(copy, const_cast<TreeItem *>(&head), true);
    auto *const document = new FishInfo;
    document->loadFish(copy, &model);
    model.insertFish(0, document); // which takes it over
    return pictureOf(model, levels, size);
}

} // namespace DocumentPicture
