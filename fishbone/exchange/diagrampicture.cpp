// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/diagrampicture.h>

#include <fishbone/base/filereplacement.h>
#include <fishbone/drawing/cleararrangement.h>
#include <fishbone/drawing/clearcontent.h>
#include <fishbone/exchange/clearwriting.h>
#include <fishbone/exchange/htmlpicture.h>
#include <fishbone/exchange/picturepart.h>
#include <fishbone/exchange/pictureprogress.h>
#include <fishbone/exchange/picturetexts.h>

#include <QLocale>
#include <QPainter>

#include <algorithm>

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

/** Has @p progress follow how @p picture is described. */
void follow(ClearPicture &picture, PictureProgress &progress)
{
    picture.setFollower([&progress](int done) { return progress.goesOn(done); });
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
    }

    /** The layout, made when it is asked for: who arranges it for a page needs no other. */
    const ClearLayout &layout()
    {
        if (!laidOut)
            laidOut =
                std::make_unique<ClearLayout>(tree, fonts, clear, cache, content.legendTexts());
        return *laidOut;
    }
    ClearPicture picture() { return {content, layout(), fonts, colors}; }

    ClearPictureContent content;
    DiagramLook::Options options;
    ClearTree tree;
    ClearFonts fonts;
    ClearColors colors;
    ClearOptions clear;
    ClearTextCache cache;
    std::unique_ptr<ClearLayout> laidOut;
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
    m_data->laidOut.reset();
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
    return m_data->layout().bounds().size();
}

double DiagramPicture::textSizeOn(const QSizeF &page) const
{
    return ClearMeasure::causeSize * ClearArrangement::scaleOn(page, m_data->layout().bounds());
}

void DiagramPicture::paint(QPainter &painter, const QRectF &target) const
{
    ClearWriting::paint(painter, m_data->picture(), target);
}

bool DiagramPicture::paint(QPainter &painter, const QRectF &target, const QRectF &source,
                           const Progress &progress) const
{
    ClearPicture picture = m_data->picture();
    if (progress)
        picture.setFollower([&](int done) { return progress(done, picture.count()); });
    const QPointF corner = picture.bounds().topLeft();
    const qreal scale = target.width() / source.width();
    painter.save();
    painter.setClipRect(target, Qt::IntersectClip);
    painter.translate(target.topLeft());
    painter.scale(scale, scale);
    painter.translate(-source.topLeft() - corner);
    PicturePart sink(painter, source.translated(corner));
    const bool isDone = picture.describe(sink);
    painter.restore();
    return isDone;
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

Result DiagramPicture::page(const PictureOptions &options, QByteArray &bytes) const
{
    ClearPicture picture = m_data->picture();
    PictureProgress progress(options, picture.count());
    follow(picture, progress);
    PictureBytes buffer(&bytes, progress);
    const QString title =
        options.title.isEmpty() ? m_data->content.meanings.front().title : options.title;
    const bool isDone = HtmlPicture::write(picture, title, QLocale().bcp47Name(), buffer);
    return isDone ? progress.finish() : progress.outcome(false);
}

Result DiagramPicture::render(PictureExport::Format format, const PictureOptions &options,
                              QByteArray &bytes) const
{
    const QRectF bounds = m_data->layout().bounds();
    const QSizeF size = PictureExport::sizeOf(bounds, options);
    bytes.clear();
    if (size.isEmpty())
        return {Error::BadOptions, tr("the scale, the size or the margin makes no picture")};
    if (Result check = PictureExport::check(format, size, options);
        !check && format != PictureExport::Format::Svg)
        return check;
    const double free = options.margin;
    const double margin =
        free * ClearArrangement::scaleOn(size, bounds.adjusted(-free, -free, free, free));
    ClearPicture picture = m_data->picture();
    PictureProgress progress(options, picture.count());
    follow(picture, progress);
    const ClearWriting writing{picture, options, size,
                               QRectF(QPointF(), size).adjusted(margin, margin, -margin, -margin),
                               progress};
    Result result = format == PictureExport::Format::Svg ? writing.svg(bytes)
                    : format == PictureExport::Format::Png
                        ? writing.png(bytes)
                        : writing.pdf(size * PictureExport::millimetresPerUnit(), bytes);
    if (result)
        result = progress.finish();
    if (!result)
        bytes.clear();
    return result;
}

Result DiagramPicture::write(const QString &fileName, const PictureOptions &options) const
{
    QByteArray bytes;
    if (isPage(fileName)) {
        const Result result = page(options, bytes);
        return result ? written(fileName, bytes) : result;
    }
    const std::optional<PictureExport::Format> format = PictureExport::formatOf(fileName);
    if (!format)
        return {Error::UnknownFormat, tr("the file name must end in .png, .svg, .pdf or .html")};
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
    ClearPicture picture = m_data->picture();
    PictureProgress progress(options, picture.count());
    follow(picture, progress);
    Result result =
        ClearWriting{picture, options, millimetres, target, progress}.pdf(millimetres, bytes);
    if (result)
        result = progress.finish();
    return result ? written(fileName, bytes) : result;
}
