// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/pictureexport.h>

#include <fishbone/base/filereplacement.h>
#include <fishbone/drawing/clearscene.h>
#include <fishbone/exchange/pictureprogress.h>
#include <fishbone/exchange/scenepainter.h>
#include <fishbone/exchange/svgpicture.h>

#include <QBuffer>
#include <QFileInfo>
#include <QGraphicsScene>
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
/** The longest side of any picture, in picture units: painters do not count further. */
constexpr double maximalUnits = 1000000;

using Error = PictureExport::Error;
using Result = PictureExport::Result;

/** Where the drawing stands in the picture, both in picture units. */
struct Frame
{
    QSizeF size;
    QRectF target;
    QRectF source; ///< in scene units
};

/** Dots of the screen for an inch: text was laid out for them, and is written at the same size. */
double screenResolution()
{
    const QScreen *const screen = QGuiApplication::primaryScreen();
    return screen ? screen->logicalDotsPerInchY() : 96;
}

bool isUsable(const PictureOptions &options)
{
    const bool sized = options.size.isValid();
    return std::isfinite(options.margin) && options.margin >= 0 &&
           (sized ? !options.size.isEmpty() : std::isfinite(options.scale) && options.scale > 0);
}

Frame frameFor(const QRectF &drawing, const PictureOptions &options)
{
    const double margin = options.margin;
    Frame frame;
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

bool fills(const QColor &background)
{
    return background.isValid() && background.alpha() > 0;
}

Result tooLarge(const QSizeF &size, const QString &limit)
{
    return {Error::TooLarge, PictureExport::tr("a picture of %1 × %2 is too large: %3")
                                 .arg(size.width(), 0, 'f', 0)
                                 .arg(size.height(), 0, 'f', 0)
                                 .arg(limit)};
}

/** A picture under way. */
class Drawing
{
    Q_DISABLE_COPY(Drawing)

public:
    Drawing(QGraphicsScene &scene, const SceneExtent &extent, const Frame &frame,
            const PictureOptions &options)
        : m_scene(scene)
        , m_extent(extent)
        , m_frame(frame)
        , m_options(options)
        , m_progress(options, extent.items)
    {
    }

    const Frame &frame() const { return m_frame; }
    const PictureOptions &options() const { return m_options; }
    const SceneExtent &extent() const { return m_extent; }

    const QGraphicsScene &scene() const { return m_scene; }
    PictureProgress &progress() { return m_progress; }

    bool paint(QPainter &painter);
    void paintSample(QPainter &painter, int step) const;

private:
    ScenePainter painterOfItems() const
    {
        return {m_scene, m_extent, m_frame.source, m_frame.target};
    }

    QGraphicsScene &m_scene;
    const SceneExtent &m_extent;
    const Frame &m_frame;
    const PictureOptions &m_options;
    PictureProgress m_progress;
};

/** Draws all; false when it was cancelled. */
bool Drawing::paint(QPainter &painter)
{
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                           QPainter::SmoothPixmapTransform);
    if (fills(m_options.background))
        painter.fillRect(QRectF(QPointF(), m_frame.size), m_options.background);
    return painterOfItems().paint(painter, [this](int done) { return m_progress.goesOn(done); });
}

/** Draws every so many items. */
void Drawing::paintSample(QPainter &painter, int step) const
{
    ScenePainter items = painterOfItems();
    items.setStep(step);
    items.paint(painter, [](int) { return true; });
}

/** The size of a PDF's page in points. */
QSize pageOf(const QSizeF &size)
{
    const double points = pointsAnInch / screenResolution();
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

Result drawPng(Drawing &drawing, QByteArray &picture)
{
    const Frame &frame = drawing.frame();
    const PictureOptions &options = drawing.options();
    // Without an alpha channel there is a quarter less to compress.
    const bool isOpaque = options.background.isValid() && options.background.alpha() == 255;
    QImage image(frame.size.toSize(),
                 isOpaque ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied);
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
    const int dotsPerMetre = qRound(screenResolution() * scale * inchesPerMetre);
    image.setDotsPerMeterX(dotsPerMetre);
    image.setDotsPerMeterY(dotsPerMetre);
    if (!options.title.isEmpty())
        image.setText(QStringLiteral("Title"), options.title);
    PictureBytes bytes(&picture, drawing.progress());
    return drawing.progress().outcome(bytes.savePng(image));
}

/** Makes @p generator write what @p drawing shows to @p device. */
void setUp(QSvgGenerator &generator, const Drawing &drawing, QIODevice *device)
{
    generator.setOutputDevice(device);
    generator.setResolution(qRound(screenResolution()));
    generator.setSize(drawing.frame().size.toSize());
    generator.setViewBox(QRectF(QPointF(), drawing.frame().size));
    // The generator writes the title as it is.
    generator.setTitle(drawing.options().title.toHtmlEscaped());
}

/** How many bytes an SVG of all items will have, going by a sample of them. */
double svgBytes(const Drawing &drawing)
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
Result drawClearSvg(Drawing &drawing, ClearScene &clear, QByteArray &picture)
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

Result drawSvg(Drawing &drawing, QByteArray &picture)
{
    if (drawing.extent().isPlain) {
        if (const auto clear = ClearScene::of(drawing.scene(), drawing.extent().rect))
            return drawClearSvg(drawing, *clear, picture);
    }
    // The generator keeps all in one string, and ends the program when that has no room.
    constexpr int itemsOfSomeSize = 20000;
    if (drawing.extent().isPlain && drawing.extent().items > itemsOfSomeSize &&
        svgBytes(drawing) > double(PictureExport::maximalSvgBytes))
        return {Error::TooLarge,
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

Result drawPdf(Drawing &drawing, QByteArray &picture)
{
    const Frame &frame = drawing.frame();
    PictureBytes bytes(&picture, drawing.progress());
    QPdfWriter writer(&bytes);
    writer.setPageSize(QPageSize(pageOf(frame.size), QString(), QPageSize::ExactMatch));
    writer.setPageMargins(QMarginsF());
    writer.setTitle(drawing.options().title);
    writer.setCreator(QStringLiteral("Fishbone"));
    QPainter painter;
    if (!painter.begin(&writer))
        return drawing.progress().outcome(false);
    const double dots = writer.resolution() / screenResolution();
    painter.scale(dots, dots);
    const bool isPainted = drawing.paint(painter);
    return drawing.progress().outcome(painter.end() && isPainted);
}

Result drawAs(PictureExport::Format format, Drawing &drawing, QByteArray &picture)
{
    switch (format) {
    case PictureExport::Format::Png:
        return drawPng(drawing, picture);
    case PictureExport::Format::Svg:
        return drawSvg(drawing, picture);
    case PictureExport::Format::Pdf:
        return drawPdf(drawing, picture);
    }
    return {Error::UnknownFormat, PictureExport::tr("there is no such format")};
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
    if (std::max(size.width(), size.height()) > maximalUnits)
        return tooLarge(size, tr("a side has at most %1 units").arg(int(maximalUnits)));
    switch (format) {
    case Format::Png:
        return checkPng(size);
    case Format::Pdf:
        return checkPdf(size);
    case Format::Svg:
        break;
    }
    return {};
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
    return millimetresPerInch / screenResolution();
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
    const Frame frame = frameFor(extent.rect, options);
    if (frame.size.isEmpty())
        return {Error::BadOptions, tr("a drawing without height or width needs a margin")};
    if (Result check = PictureExport::check(format, frame.size, options); !check)
        return check;
    Drawing drawing(scene, extent, frame, options);
    Result result = drawAs(format, drawing, picture);
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
