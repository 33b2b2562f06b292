// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/pictureformats.h>

#include <fishbone/drawing/clearscene.h>
#include <fishbone/exchange/picturedrawing.h>
#include <fishbone/exchange/svgpicture.h>

#include <QBuffer>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QScreen>
#include <QSvgGenerator>

#include <algorithm>
#include <cmath>

namespace {

constexpr double pointsAnInch = 72;
constexpr double inchesPerMetre = 1 / 0.0254;

using PictureError = PictureExport::Error;
using Result = PictureExport::Result;

Result tooLarge(const QSizeF &size, const QString &limit)
{
    return {PictureError::TooLarge, PictureExport::tr("a picture of %1 × %2 is too large: %3")
                                        .arg(size.width(), 0, 'f', 0)
                                        .arg(size.height(), 0, 'f', 0)
                                        .arg(limit)};
}

/** The size of a PDF's page in points. */
QSize pageOf(const QSizeF &size)
{
    const double points = pointsAnInch / PictureFormats::screenResolution();
    return {int(std::ceil(size.width() * points)), int(std::ceil(size.height() * points))};
}

Result checkPdf(const QSizeF &size)
{
    const QSize page = pageOf(size);
    if (std::max(page.width(), page.height()) > PictureExport::maximalPoints)
        return tooLarge(size, PictureExport::tr("a PDF has at most %1 points (1/72 inch) on a side")
                                  .arg(PictureExport::maximalPoints));
    return {};
}

Result checkPng(const QSizeF &size)
{
    if (std::max(size.width(), size.height()) > PictureExport::maximalPixels)
        return tooLarge(size, PictureExport::tr("a PNG has at most %1 pixels on a side")
                                  .arg(PictureExport::maximalPixels));
    if (size.width() * size.height() * 4 > double(PictureExport::maximalBytes))
        return tooLarge(size, PictureExport::tr("its pixels would take more than %1 MiB")
                                  .arg(PictureExport::maximalBytes >> 20));
    return {};
}

Result drawPng(PictureDrawing &drawing, QByteArray &picture)
{
    const PictureFrame &frame = drawing.frame();
    const PictureOptions &options = drawing.options();
    QImage image(frame.size.toSize(), PictureBytes::formatOn(options.background));
    if (image.isNull())
        return tooLarge(frame.size, PictureExport::tr("there is not enough memory"));
    image.fill(Qt::transparent);
    {
        QPainter painter(&image);
        if (!drawing.paint(painter))
            return drawing.progress().outcome(false);
    }
    // Only afterwards, since a painter would size some texts by it.
    const double scale = frame.target.width() / frame.source.width();
    const int dotsPerMetre = qRound(PictureFormats::screenResolution() * scale * inchesPerMetre);
    image.setDotsPerMeterX(dotsPerMetre);
    image.setDotsPerMeterY(dotsPerMetre);
    if (!options.title.isEmpty())
        image.setText(QStringLiteral("Title"), options.title);
    PictureBytes bytes(&picture, drawing.progress());
    return drawing.progress().outcome(bytes.savePng(image));
}

/** Makes @p generator write what @p drawing shows to @p device. */
void setUp(QSvgGenerator &generator, const PictureDrawing &drawing, QIODevice *device)
{
    generator.setOutputDevice(device);
    generator.setResolution(qRound(PictureFormats::screenResolution()));
    generator.setSize(drawing.frame().size.toSize());
    generator.setViewBox(QRectF(QPointF(), drawing.frame().size));
    // The generator writes the title as it is.
    generator.setTitle(drawing.options().title.toHtmlEscaped());
}

/** How many bytes an SVG of all items will have, going by a sample of them. */
double svgBytes(const PictureDrawing &drawing)
{
    constexpr int sampleSize = 500;
    const int step = std::max(1, drawing.extent().items / sampleSize);
    QByteArray sample;
    QBuffer buffer(&sample);
    QSvgGenerator generator;
    setUp(generator, drawing, &buffer);
    QPainter painter(&generator);
    drawing.paintSample(painter, step);
    painter.end();
    return double(sample.size()) * step;
}

/** Writes what is in the clear look by a writer of its own, of which nothing is too large. */
Result drawClearSvg(PictureDrawing &drawing, ClearScene &clear, QByteArray &picture)
{
    PictureProgress &progress = drawing.progress();
    // A subject has several items.
    const double items = double(drawing.extent().items) / clear.count();
    clear.setFollower([&](int done) { return progress.goesOn(int(done * items)); });
    PictureBytes bytes(&picture, progress);
    SvgPictureOptions options;
    options.title = drawing.options().title;
    options.background = drawing.options().background;
    options.margin = drawing.options().margin;
    options.size = drawing.frame().size;
    return progress.outcome(SvgPicture::write(clear, options, bytes));
}

Result drawSvg(PictureDrawing &drawing, QByteArray &picture)
{
    if (drawing.extent().isPlain) {
        if (const auto clear = ClearScene::of(drawing.scene(), drawing.extent().rect))
            return drawClearSvg(drawing, *clear, picture);
    }
    // The generator keeps all in one string, and ends the program when that has no room.
    constexpr int itemsOfSomeSize = 20000;
    if (drawing.extent().isPlain && drawing.extent().items > itemsOfSomeSize &&
        svgBytes(drawing) > double(PictureExport::maximalSvgBytes))
        return {PictureError::TooLarge,
                PictureExport::tr("an SVG of it would have more than %1 MiB; a PDF is smaller")
                    .arg(PictureExport::maximalSvgBytes >> 20)};
    PictureBytes bytes(&picture, drawing.progress());
    QSvgGenerator generator;
    setUp(generator, drawing, &bytes);
    QPainter painter;
    if (!painter.begin(&generator))
        return drawing.progress().outcome(false);
    const bool isPainted = drawing.paint(painter);
    return drawing.progress().outcome(painter.end() && isPainted);
}

Result drawPdf(PictureDrawing &drawing, QByteArray &picture)
{
    const PictureFrame &frame = drawing.frame();
    PictureBytes bytes(&picture, drawing.progress());
    QPdfWriter writer(&bytes);
    writer.setPageSize(QPageSize(pageOf(frame.size), QString(), QPageSize::ExactMatch));
    writer.setPageMargins(QMarginsF());
    writer.setTitle(drawing.options().title);
    writer.setCreator(QStringLiteral("Fishbone"));
    QPainter painter;
    if (!painter.begin(&writer))
        return drawing.progress().outcome(false);
    const double dots = writer.resolution() / PictureFormats::screenResolution();
    painter.scale(dots, dots);
    const bool isPainted = drawing.paint(painter);
    return drawing.progress().outcome(painter.end() && isPainted);
}

} // namespace

double PictureFormats::screenResolution()
{
    const QScreen *const screen = QGuiApplication::primaryScreen();
    return screen ? screen->logicalDotsPerInchY() : 96;
}

PictureExport::Result PictureFormats::check(PictureExport::Format format, const QSizeF &size)
{
    if (std::max(size.width(), size.height()) > maximalUnits)
        return tooLarge(size,
                        PictureExport::tr("a side has at most %1 units").arg(int(maximalUnits)));
    switch (format) {
    case PictureExport::Format::Png:
        return checkPng(size);
    case PictureExport::Format::Pdf:
        return checkPdf(size);
    case PictureExport::Format::Svg:
        break;
    }
    return {};
}

PictureExport::Result PictureFormats::draw(PictureExport::Format format, PictureDrawing &drawing,
                                           QByteArray &picture)
{
    switch (format) {
    case PictureExport::Format::Png:
        return drawPng(drawing, picture);
    case PictureExport::Format::Svg:
        return drawSvg(drawing, picture);
    case PictureExport::Format::Pdf:
        return drawPdf(drawing, picture);
    }
    return {PictureError::UnknownFormat, PictureExport::tr("there is no such format")};
}
