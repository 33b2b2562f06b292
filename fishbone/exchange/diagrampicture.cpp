// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/diagrampicture.h>

#include <fishbone/base/filereplacement.h>
#include <fishbone/drawing/cleararrangement.h>
#include <fishbone/drawing/clearcontent.h>
#include <fishbone/drawing/clearpainter.h>
#include <fishbone/exchange/htmlpicture.h>
#include <fishbone/exchange/picturepart.h>
#include <fishbone/exchange/picturetexts.h>
#include <fishbone/exchange/svgpicture.h>

#include <QBuffer>
#include <QImage>
#include <QLocale>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>

#include <algorithm>
#include <cmath>

using Error = PictureExport::Error;
using Result = PictureExport::Result;

namespace {
constexpr double millimetresPerInch = 25.4;
constexpr double pointsPerInch = 72;

bool isPage(const QString &fileName)
{
    return fileName.endsWith(QLatin1String(".html"), Qt::CaseInsensitive) ||
           fileName.endsWith(QLatin1String(".htm"), Qt::CaseInsensitive);
}

/** Paints @p picture as large as it fits into @p target. */
void paintInto(QPainter &painter, const ClearPicture &picture, const QRectF &target)
{
    const QRectF bounds = picture.bounds();
    const qreal scale =
        std::min(target.width() / bounds.width(), target.height() / bounds.height());
    painter.save();
    painter.translate(target.center());
    painter.scale(scale, scale);
    painter.translate(-bounds.center());
    ClearPainter sink(painter);
    picture.describe(sink);
    painter.restore();
}

Result written(const QString &fileName, const QByteArray &bytes)
{
    const QString failure = replaceFile(fileName, bytes);
    return failure.isEmpty() ? Result() : Result{Error::CannotWrite, failure};
}
} // namespace

struct DiagramPicture::Data
{
    Data(ClearPictureContent made, const DiagramLook::Options &chosen)
        : content(std::move(made))
        , options(chosen)
        , tree(content.subjects)
        , fonts(ClearFonts::ofTheUser())
        , colors(chosen.palette)
        , clear(ClearOptions::of(chosen))
    {
        layOut();
    }

    void layOut()
    {
        layout = std::make_unique<ClearLayout>(tree, fonts, clear, cache, content.legendTexts());
    }
    ClearPicture picture() const { return {content, *layout, fonts, colors}; }

    ClearPictureContent content;
    DiagramLook::Options options;
    ClearTree tree;
    ClearFonts fonts;
    ClearColors colors;
    ClearOptions clear;
    ClearTextCache cache;
    std::unique_ptr<ClearLayout> layout;
};

DiagramPicture::DiagramPicture(const TreeItem *head, const DiagramLook::Options &options,
                               int levels)
    : m_data(std::make_unique<Data>(ClearContent::of(head, levels), options))
{
}

DiagramPicture::DiagramPicture(const TreeItem *head, const DiagramLook::Options &options,
                               const Shows &shows)
    : m_data(std::make_unique<Data>(
          ClearContent::of(head, [&shows](const TreeItem &subject, int) { return shows(subject); }),
          options))
{
}

DiagramPicture::~DiagramPicture() = default;

void DiagramPicture::arrangeFor(const QSizeF &page)
{
    m_data->clear = ClearArrangement::bestFor(m_data->tree, m_data->fonts, m_data->clear, page,
                                              m_data->cache, m_data->content.legendTexts());
    m_data->options = m_data->clear.in(m_data->options);
    m_data->layOut();
}

DiagramLook::Options DiagramPicture::options() const
{
    return m_data->options;
}

DiagramLook::Options DiagramPicture::arrangedFor(const QSizeF &page, const TreeItem *head,
                                                 const DiagramLook::Options &options)
{
    DiagramPicture picture(head, options);
    picture.arrangeFor(page);
    return picture.options();
}

QSizeF DiagramPicture::size() const
{
    return m_data->layout->bounds().size();
}

double DiagramPicture::textSizeOn(const QSizeF &page) const
{
    return ClearMeasure::causeSize * ClearArrangement::scaleOn(page, m_data->layout->bounds());
}

void DiagramPicture::paint(QPainter &painter, const QRectF &target) const
{
    paintInto(painter, m_data->picture(), target);
}

void DiagramPicture::paint(QPainter &painter, const QRectF &target, const QRectF &source) const
{
    const ClearPicture picture = m_data->picture();
    const QPointF corner = picture.bounds().topLeft();
    const qreal scale = target.width() / source.width();
    painter.save();
    painter.setClipRect(target, Qt::IntersectClip);
    painter.translate(target.topLeft());
    painter.scale(scale, scale);
    painter.translate(-source.topLeft() - corner);
    PicturePart sink(painter, source.translated(corner));
    picture.describe(sink);
    painter.restore();
}

QList<QRectF> DiagramPicture::texts() const
{
    const ClearPicture picture = m_data->picture();
    PictureTexts texts;
    picture.describe(texts);
    QList<QRectF> rects = texts.rects();
    for (QRectF &rect : rects)
        rect.translate(-picture.bounds().topLeft());
    return rects;
}

bool DiagramPicture::canWrite(const QString &fileName)
{
    return isPage(fileName) || PictureExport::formatOf(fileName);
}

QByteArray DiagramPicture::page(const PictureOptions &options) const
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    const QString title =
        options.title.isEmpty() ? m_data->content.meanings.front().title : options.title;
    HtmlPicture::write(m_data->picture(), title, QLocale().bcp47Name(), buffer);
    return buffer.data();
}

Result DiagramPicture::render(PictureExport::Format format, const PictureOptions &options,
                              QByteArray &bytes) const
{
    const QRectF bounds = m_data->layout->bounds();
    const QSizeF size = PictureExport::sizeOf(bounds, options);
    if (size.isEmpty())
        return {Error::BadOptions, tr("the scale, the size or the margin makes no picture")};
    const ClearPicture picture = m_data->picture();
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (format == PictureExport::Format::Svg) {
        SvgPictureOptions svg;
        svg.title = options.title;
        svg.background = options.background;
        svg.margin = options.margin;
        svg.size = size;
        return SvgPicture::write(picture, svg, buffer)
                   ? Result()
                   : Result{Error::CannotWrite, tr("it cannot be written")};
    }
    if (Result check = PictureExport::check(format, size, options); !check)
        return check;
    const double margin =
        options.margin * ClearArrangement::scaleOn(
                             size, bounds.marginsAdded(QMarginsF(options.margin, options.margin,
                                                                 options.margin, options.margin)));
    const QRectF target = QRectF(QPointF(), size).adjusted(margin, margin, -margin, -margin);
    if (format == PictureExport::Format::Png) {
        QImage image(QSize(int(std::ceil(size.width())), int(std::ceil(size.height()))),
                     QImage::Format_ARGB32_Premultiplied);
        if (image.isNull())
            return {Error::TooLarge, tr("there is not enough memory for it")};
        image.fill(options.background.isValid() ? options.background : QColor(Qt::transparent));
        QPainter painter(&image);
        paintInto(painter, picture, target);
        painter.end();
        image.setText(QStringLiteral("Title"), options.title);
        image.save(&buffer, "PNG");
        return {};
    }
    const double unit = PictureExport::millimetresPerUnit();
    QPdfWriter writer(&buffer);
    writer.setPageSize(
        QPageSize(size * unit, QPageSize::Millimeter, QString(), QPageSize::ExactMatch));
    writer.setPageMargins(QMarginsF());
    writer.setTitle(options.title);
    writer.setCreator(QStringLiteral("Fishbone"));
    QPainter painter(&writer);
    const double dots = writer.resolution() * unit / millimetresPerInch;
    painter.scale(dots, dots);
    if (options.background.alpha() > 0 && options.background != Qt::white)
        painter.fillRect(QRectF(QPointF(), size), options.background);
    paintInto(painter, picture, target);
    return {};
}

Result DiagramPicture::write(const QString &fileName, const PictureOptions &options) const
{
    if (isPage(fileName))
        return written(fileName, page(options));
    const std::optional<PictureExport::Format> format = PictureExport::formatOf(fileName);
    if (!format)
        return {Error::UnknownFormat, tr("the file name must end in .png, .svg, .pdf or .html")};
    QByteArray bytes;
    const Result result = render(*format, options, bytes);
    return result ? written(fileName, bytes) : result;
}

Result DiagramPicture::writePage(const QString &fileName, const QSizeF &millimetres, double margin,
                                 const PictureOptions &options) const
{
    const QRectF paper(QPointF(), millimetres);
    const QRectF target = paper.adjusted(margin, margin, -margin, -margin);
    const double points =
        std::max(paper.width(), paper.height()) / millimetresPerInch * pointsPerInch;
    if (target.isEmpty() || margin < 0 || points > PictureExport::maximalPoints)
        return {Error::BadOptions, tr("the page is too small or too large")};
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageSize(
        QPageSize(millimetres, QPageSize::Millimeter, QString(), QPageSize::ExactMatch));
    writer.setPageMargins(QMarginsF());
    writer.setTitle(options.title);
    writer.setCreator(QStringLiteral("Fishbone"));
    QPainter painter(&writer);
    const double dots = writer.resolution() / millimetresPerInch;
    painter.scale(dots, dots);
    if (options.background.alpha() > 0 && options.background != Qt::white)
        painter.fillRect(paper, options.background);
    paintInto(painter, m_data->picture(), target);
    painter.end();
    return written(fileName, bytes);
}
