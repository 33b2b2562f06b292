// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/slideexport.h>

#include <fishbone/base/filereplacement.h>
#include <fishbone/drawing/screenonly.h>
#include <fishbone/exchange/scenepainter.h>
#include <fishbone/exchange/slidebuilder.h>
#include <fishbone/exchange/slidedevice.h>
#include <fishbone/exchange/slidepackage.h>
#include <fishbone/model/treeitem.h>

#include <QGraphicsScene>
#include <QPainter>

namespace {

constexpr qint64 wideSlide = 12192000; ///< in English metric units, 914,400 an inch
constexpr qint64 narrowSlide = 9144000;

} // namespace

bool SlideExport::isSlide(const QString &fileName)
{
    return fileName.endsWith(QLatin1String(".pptx"), Qt::CaseInsensitive);
}

SlideExport::Aspect SlideExport::aspectFor(const QSizeF &page)
{
    constexpr double betweenAspects = 1.5;
    return !page.isEmpty() && page.width() < betweenAspects * page.height() ? Aspect::Narrow
                                                                            : Aspect::Wide;
}

QByteArray SlideExport::presentation(QGraphicsScene &scene, const TreeItem &head, Aspect aspect,
                                     QString *error)
{
    const SceneExtent extent = extentOf(scene);
    const QRectF &drawing = extent.rect;
    if (drawing.isEmpty()) {
        if (error)
            *error = tr("there is nothing to draw");
        return QByteArray();
    }
    SlideDevice device(drawing.size().toSize());
    QPainter painter(&device);
    ScenePainter items(scene, extent, drawing, drawing);
    items.setObserver([&device](const QGraphicsItem &item) {
        const TreeItem *const subject = subjectOfTitle(item);
        device.setLink(subject ? subject->url() : QString());
    });
    items.paint(painter, [](int) { return true; });
    painter.end();
    const qint64 width = aspect == Aspect::Wide ? wideSlide : narrowSlide;
    SlideBuilder builder(device.shapes(), head, drawing, width);
    return ZipWriter::archive(SlidePackage::parts(builder.content()));
}

bool SlideExport::write(QGraphicsScene &scene, const TreeItem &head, const QString &fileName,
                        Aspect aspect, QString *error)
{
    const QByteArray bytes = presentation(scene, head, aspect, error);
    if (bytes.isEmpty())
        return false;
    const QString failure = replaceFile(fileName, bytes);
    if (error)
        *error = failure;
    return failure.isEmpty();
}
