// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/pictureexport.h>

#include <fishbone/base/filereplacement.h>
#include <fishbone/exchange/picturedrawing.h>
#include <fishbone/exchange/pictureformats.h>
#include <fishbone/exchange/scenepainter.h>

#include <QFileInfo>
#include <QGraphicsScene>
#include <QPainter>

#include <cmath>

namespace {

using Error = PictureExport::Error;
using Result = PictureExport::Result;

bool isUsable(const PictureOptions &options)
{
    const bool sized = options.size.isValid();
    return std::isfinite(options.margin) && options.margin >= 0 &&
           (sized ? !options.size.isEmpty() : std::isfinite(options.scale) && options.scale > 0);
}

PictureFrame frameFor(const QRectF &drawing, const PictureOptions &options)
{
    const double margin = options.margin;
    PictureFrame frame;
    frame.source = drawing.adjusted(-margin, -margin, margin, margin);
    if (!options.size.isValid()) {
        const QSizeF exact = frame.source.size() * options.scale;
        frame.size = QSizeF(std::ceil(exact.width()), std::ceil(exact.height()));
        frame.target = QRectF(QPointF(), exact);
        return frame;
    }
    frame.size = options.size;
    const QSizeF fitted = frame.source.size().scaled(frame.size, Qt::KeepAspectRatio);
    frame.target = QRectF(QPointF(), fitted);
    frame.target.moveCenter(QRectF(QPointF(), frame.size).center());
    return frame;
}

} // namespace

std::optional<PictureExport::Format> PictureExport::formatOf(const QString &fileName)
{
    const QString suffix = QFileInfo(fileName).suffix().toLower();
    if (suffix == QLatin1String("png"))
        return Format::Png;
    if (suffix == QLatin1String("svg"))
        return Format::Svg;
    if (suffix == QLatin1String("pdf"))
        return Format::Pdf;
    return std::nullopt;
}

QRectF PictureExport::visibleRect(const QGraphicsScene &scene)
{
    return extentOf(scene).rect;
}

QSizeF PictureExport::sizeOf(const QRectF &drawing, const PictureOptions &options)
{
    return isUsable(options) && !drawing.isNull() ? frameFor(drawing, options).size : QSizeF();
}

PictureExport::Result PictureExport::check(Format format, const QSizeF &size)
{
    return PictureFormats::check(format, size);
}

PictureExport::Result PictureExport::check(Format format, const QSizeF &size,
                                           const PictureOptions &options)
{
    Result result = check(format, size);
    const double scale = roundedScale(options.scale * fittingFactor(format, size));
    if (!result && !options.size.isValid() && scale > 0)
        result.reason = tr("%1; it fits at a scale of %2").arg(result.reason).arg(scale);
    return result;
}

double PictureExport::fittingFactor(Format format, const QSizeF &size)
{
    if (check(format, size))
        return 1;
    double fits = 0;
    double tooMuch = 1;
    constexpr int steps = 40;
    for (int step = 0; step < steps; ++step) {
        const double middle = (fits + tooMuch) / 2;
        const QSizeF smaller(std::ceil(size.width() * middle), std::ceil(size.height() * middle));
        (check(format, smaller) ? fits : tooMuch) = middle;
    }
    return fits;
}

double PictureExport::roundedScale(double scale)
{
    constexpr double decimals = 1000;
    return std::floor(scale * decimals) / decimals;
}

double PictureExport::millimetresPerUnit()
{
    constexpr double millimetresPerInch = 25.4;
    return millimetresPerInch / PictureFormats::screenResolution();
}

bool PictureExport::paint(QGraphicsScene &scene, QPainter &painter, const QRectF &target,
                          const QRectF &source,
                          const std::function<bool(int done, int total)> &progress)
{
    const SceneExtent extent = extentOf(scene);
    return ScenePainter(scene, extent, source, target).paint(painter, [&](int done) {
        return !progress || progress(done, extent.items);
    });
}

PictureExport::Result PictureExport::render(QGraphicsScene &scene, Format format,
                                            const PictureOptions &options, QByteArray &picture)
{
    picture.clear();
    if (!isUsable(options))
        return {Error::BadOptions, tr("the scale, the size or the margin makes no picture")};
    const SceneExtent extent = extentOf(scene);
    if (extent.rect.isNull())
        return {Error::NothingToDraw, tr("there is nothing to draw")};
    const PictureFrame frame = frameFor(extent.rect, options);
    if (frame.size.isEmpty())
        return {Error::BadOptions, tr("a drawing without height or width needs a margin")};
    if (Result check = PictureExport::check(format, frame.size, options); !check)
        return check;
    PictureDrawing drawing(scene, extent, frame, options);
    Result result = PictureFormats::draw(format, drawing, picture);
    if (result)
        result = drawing.progress().finish();
    if (!result)
        picture.clear();
    return result;
}

PictureExport::Result PictureExport::write(QGraphicsScene &scene, const QString &fileName,
                                           const PictureOptions &options)
{
    const std::optional<Format> format = formatOf(fileName);
    if (!format)
        return {Error::UnknownFormat, tr("the file name must end in .png, .svg or .pdf")};
    QByteArray picture;
    const Result result = render(scene, *format, options, picture);
    if (!result)
        return result;
    const QString failure = replaceFile(fileName, picture);
    return failure.isEmpty() ? Result() : Result{Error::CannotWrite, failure};
}
