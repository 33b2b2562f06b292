// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/slideexport.h>

#include <fishbone/base/filereplacement.h>
#include <fishbone/drawing/screenonly.h>
#include <fishbone/exchange/pictureexport.h>
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

/** SlideExport::presentation(), which @p progress follows: half of the steps draw, the others
 * write. */
QByteArray made(QGraphicsScene &scene, const TreeItem &head, SlideExport::Aspect aspect,
                QString *error, const SlideExport::Progress &progress)
{
    const auto fail = [error](const QString &reason) {
        if (error)
            *error = reason;
        return QByteArray();
    };
    const SceneExtent extent = extentOf(scene);
    const QRectF &drawing = extent.rect;
    if (drawing.isEmpty())
        return fail(SlideExport::tr("there is nothing to draw"));
    const int half = extent.items;
    SlideDevice device(drawing.size().toSize());
    QPainter painter(&device);
    ScenePainter items(scene, extent, drawing, drawing);
    items.setObserver([&device](const QGraphicsItem &item) {
        const TreeItem *const subject = subjectOfTitle(item);
        device.setLink(subject ? subject->url() : QString());
    });
    if (!items.paint(painter, [&](int done) { return !progress || progress(done, 2 * half); }))
        return fail(PictureExport::tr("it was cancelled"));
    painter.end();
    const qint64 width = aspect == SlideExport::Aspect::Wide ? wideSlide : narrowSlide;
    SlideBuilder builder(device.shapes(), head, drawing, width);
    const auto content = builder.content(
        [&](double part) { return !progress || progress(half + int(half * part), 2 * half); });
    return content ? ZipWriter::archive(SlidePackage::parts(*content))
                   : fail(PictureExport::tr("it was cancelled"));
}

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
    return made(scene, head, aspect, error, {});
}

bool SlideExport::write(QGraphicsScene &scene, const TreeItem &head, const QString &fileName,
                        Aspect aspect, QString *error)
{
    return write(scene, head, fileName, aspect, error, {});
}

bool SlideExport::write(QGraphicsScene &scene, const TreeItem &head, const QString &fileName,
                        Aspect aspect, QString *error, const Progress &progress)
{
    const QByteArray bytes = made(scene, head, aspect, error, progress);
    if (bytes.isEmpty())
        return false;
    const QString failure = replaceFile(fileName, bytes);
    if (error)
        *error = failure;
    return failure.isEmpty();
}
