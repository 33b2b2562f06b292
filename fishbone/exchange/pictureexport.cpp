// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/pictureexport.h>

#include <fishbone/model/filereplacement.h>

#include <QBuffer>
#include <QFileInfo>
#include <QGraphicsItem>
#include <QGraphicsScene>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QScreen>
#include <QSvgGenerator>
#include <QTransform>

#include <cmath>
#include <vector>

namespace {

constexpr double pointsPerInch = 72;
constexpr double inchesPerMetre = 1 / 0.0254;
constexpr int pngQuality = 89; ///< the lightest compression: a drawing is small, and this is fast
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

/** Takes a scene's own background away as long as it lives. */
class BackgroundRemover
{
    Q_DISABLE_COPY(BackgroundRemover)

public:
    explicit BackgroundRemover(QGraphicsScene &scene)
        : m_scene(scene)
        , m_brush(scene.backgroundBrush())
    {
        if (m_brush.style() != Qt::NoBrush)
            m_scene.setBackgroundBrush(Qt::NoBrush);
    }
    ~BackgroundRemover()
    {
        if (m_brush.style() != Qt::NoBrush)
            m_scene.setBackgroundBrush(m_brush);
    }

private:
    QGraphicsScene &m_scene;
    QBrush m_brush;
};

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

void draw(QPainter &painter, QGraphicsScene &scene, const Frame &frame, const QColor &background)
{
    const BackgroundRemover remover(scene);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                           QPainter::SmoothPixmapTransform);
    if (fills(background))
        painter.fillRect(QRectF(QPointF(), frame.size), background);
    scene.render(&painter, frame.target, frame.source, Qt::IgnoreAspectRatio);
}

Result tooLarge(const QSizeF &size, const QString &limit)
{
    return {Error::TooLarge, PictureExport::tr("a picture of %1 × %2 is too large: %3")
                                 .arg(size.width(), 0, 'f', 0)
                                 .arg(size.height(), 0, 'f', 0)
                                 .arg(limit)};
}

Result encoded(bool isEncoded)
{
    return isEncoded
               ? Result()
               : Result{Error::CannotWrite, PictureExport::tr("the drawing cannot be encoded")};
}

Result drawPng(QGraphicsScene &scene, const Frame &frame, const PictureOptions &options,
               QByteArray &picture)
{
    const double longest = std::max(frame.size.width(), frame.size.height());
    if (longest > PictureExport::maximalPixels)
        return tooLarge(frame.size, PictureExport::tr("a PNG has at most %1 pixels on a side")
                                        .arg(PictureExport::maximalPixels));
    const QSize size = frame.size.toSize();
    if (qint64(size.width()) * size.height() * 4 > PictureExport::maximalBytes)
        return tooLarge(frame.size, PictureExport::tr("its pixels would take more than %1 MiB")
                                        .arg(PictureExport::maximalBytes >> 20));
    // Without an alpha channel there is a quarter less to compress.
    const bool isOpaque = options.background.isValid() && options.background.alpha() == 255;
    QImage image(size, isOpaque ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return tooLarge(frame.size, PictureExport::tr("there is not enough memory"));
    image.fill(Qt::transparent);
    {
        QPainter painter(&image);
        draw(painter, scene, frame, options.background);
    }
    // Only afterwards, since a painter would size some texts by it.
    const double scale = frame.target.width() / frame.source.width();
    const int dotsPerMetre = qRound(screenResolution() * scale * inchesPerMetre);
    image.setDotsPerMeterX(dotsPerMetre);
    image.setDotsPerMeterY(dotsPerMetre);
    if (!options.title.isEmpty())
        image.setText(QStringLiteral("Title"), options.title);
    QBuffer buffer(&picture);
    return encoded(image.save(&buffer, "PNG", pngQuality));
}

Result drawSvg(QGraphicsScene &scene, const Frame &frame, const PictureOptions &options,
               QByteArray &picture)
{
    QBuffer buffer(&picture);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setResolution(qRound(screenResolution()));
    generator.setSize(frame.size.toSize());
    generator.setViewBox(QRectF(QPointF(), frame.size));
    generator.setTitle(options.title.toHtmlEscaped()); // the generator writes it as it is
    QPainter painter(&generator);
    draw(painter, scene, frame, options.background);
    return encoded(painter.end());
}

Result drawPdf(QGraphicsScene &scene, const Frame &frame, const PictureOptions &options,
               QByteArray &picture)
{
    const double points = pointsPerInch / screenResolution();
    const QSize page(int(std::ceil(frame.size.width() * points)),
                     int(std::ceil(frame.size.height() * points)));
    if (std::max(page.width(), page.height()) > PictureExport::maximalPoints)
        return tooLarge(frame.size,
                        PictureExport::tr("a PDF has at most %1 points (1/72 inch) on a side")
                            .arg(PictureExport::maximalPoints));
    QBuffer buffer(&picture);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageSize(QPageSize(page, QString(), QPageSize::ExactMatch));
    writer.setPageMargins(QMarginsF());
    writer.setTitle(options.title);
    writer.setCreator(QStringLiteral("Fishbone"));
    QPainter painter(&writer);
    const double dots = writer.resolution() / pointsPerInch * points;
    painter.scale(dots, dots);
    draw(painter, scene, frame, options.background);
    return encoded(painter.end());
}

Result drawAs(PictureExport::Format format, QGraphicsScene &scene, const Frame &frame,
              const PictureOptions &options, QByteArray &picture)
{
    switch (format) {
    case PictureExport::Format::Png:
        return drawPng(scene, frame, options, picture);
    case PictureExport::Format::Svg:
        return drawSvg(scene, frame, options, picture);
    case PictureExport::Format::Pdf:
        return drawPdf(scene, frame, options, picture);
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
    struct Placed
    {
        const QGraphicsItem *item;
        QTransform toScene;
    };
    std::vector<Placed> waiting;
    const QList<QGraphicsItem *> items = scene.items();
    for (const QGraphicsItem *item : items) {
        if (!item->parentItem())
            waiting.push_back({item, item->sceneTransform()});
    }
    QRectF united;
    while (!waiting.empty()) {
        const Placed placed = waiting.back();
        waiting.pop_back();
        if (!placed.item->isVisible())
            continue;
        if (!(placed.item->flags() & QGraphicsItem::ItemHasNoContents))
            united |= placed.toScene.mapRect(placed.item->boundingRect());
        const QList<QGraphicsItem *> children = placed.item->childItems();
        for (const QGraphicsItem *child : children)
            waiting.push_back({child, child->itemTransform(placed.item) * placed.toScene});
    }
    return united;
}

PictureExport::Result PictureExport::render(QGraphicsScene &scene, Format format,
                                            const PictureOptions &options, QByteArray &picture)
{
    picture.clear();
    if (!isUsable(options))
        return {Error::BadOptions, tr("the scale, the size or the margin makes no picture")};
    const QRectF drawing = visibleRect(scene);
    if (drawing.isNull())
        return {Error::NothingToDraw, tr("there is nothing to draw")};
    const Frame frame = frameFor(drawing, options);
    if (frame.size.isEmpty())
        return {Error::BadOptions, tr("a drawing without height or width needs a margin")};
    if (std::max(frame.size.width(), frame.size.height()) > maximalUnits)
        return tooLarge(frame.size, tr("a side has at most %1 units").arg(int(maximalUnits)));
    const Result result = drawAs(format, scene, frame, options, picture);
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
