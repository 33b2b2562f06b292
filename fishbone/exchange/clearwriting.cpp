// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/clearwriting.h>

#include <fishbone/drawing/clearpainter.h>
#include <fishbone/exchange/diagrampicture.h>
#include <fishbone/exchange/svgpicture.h>

#include <QImage>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>

#include <algorithm>
#include <cmath>

namespace {

constexpr double millimetresOfInch = 25.4;

/** Fills @p rect unless that would be white on white, which only takes room. */
void fillPaper(QPainter &painter, const QRectF &rect, const QColor &background)
{
    if (background.alpha() > 0 && background != Qt::white)
        painter.fillRect(rect, background);
}

/** Makes @p writer write one page of @p millimetres. */
void setUpPage(QPdfWriter &writer, const QSizeF &millimetres, const QString &title)
{
    writer.setPageSize(
        QPageSize(millimetres, QPageSize::Millimeter, QString(), QPageSize::ExactMatch));
    writer.setPageMargins(QMarginsF());
    writer.setTitle(title);
    writer.setCreator(QStringLiteral("Fishbone"));
}

} // namespace

bool ClearWriting::paint(QPainter &painter, const ClearPicture &picture, const QRectF &target)
{
    const QRectF bounds = picture.bounds();
    const qreal scale =
        std::min(target.width() / bounds.width(), target.height() / bounds.height());
    painter.save();
    painter.translate(target.center());
    painter.scale(scale, scale);
    painter.translate(-bounds.center());
    ClearPainter sink(painter);
    const bool isDone = picture.describe(sink);
    painter.restore();
    return isDone;
}

PictureExport::Result ClearWriting::svg(QByteArray &bytes) const
{
    SvgPictureOptions svg;
    svg.title = options.title;
    svg.background = options.background;
    svg.margin = options.margin;
    svg.size = size;
    PictureBytes buffer(&bytes, progress);
    return progress.outcome(SvgPicture::write(picture, svg, buffer));
}

PictureExport::Result ClearWriting::png(QByteArray &bytes) const
{
    QImage image(QSize(int(std::ceil(size.width())), int(std::ceil(size.height()))),
                 PictureBytes::formatOn(options.background));
    if (image.isNull())
        return {PictureExport::Error::TooLarge,
                DiagramPicture::tr("there is not enough memory for it")};
    image.fill(options.background.isValid() ? options.background : QColor(Qt::transparent));
    QPainter painter(&image);
    const bool isPainted = paint(painter, picture, target);
    painter.end();
    if (!isPainted)
        return progress.outcome(false);
    image.setText(QStringLiteral("Title"), options.title);
    PictureBytes buffer(&bytes, progress);
    return progress.outcome(buffer.savePng(image));
}

PictureExport::Result ClearWriting::pdf(const QSizeF &millimetres, QByteArray &bytes) const
{
    PictureBytes buffer(&bytes, progress);
    QPdfWriter writer(&buffer);
    setUpPage(writer, millimetres, options.title);
    QPainter painter(&writer);
    const double dots =
        writer.resolution() / millimetresOfInch * millimetres.width() / size.width();
    painter.scale(dots, dots);
    fillPaper(painter, QRectF(QPointF(), size), options.background);
    const bool isPainted = paint(painter, picture, target);
    return progress.outcome(painter.end() && isPainted);
}
