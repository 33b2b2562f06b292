// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/export/picturecopy.h>

#include <app/export/clearexport.h>
#include <app/export/picturesource.h>

#include <fishbone/editor/fishscene.h>
#include <fishbone/exchange/diagrampicture.h>

#include <QImage>
#include <QMimeData>

namespace {

using Format = PictureExport::Format;

PictureExport::Result render(PictureSource &source, Format format, const PictureOptions &options,
                             QByteArray &bytes)
{
    if (source.look() == DiagramLook::Clear)
        return source.picture().render(format, options, bytes);
    return PictureExport::render(*source.scene(), format, options, bytes);
}

} // namespace

namespace PictureCopy {

std::unique_ptr<QMimeData> of(PictureSource &source, const QColor &background,
                              PictureExport::Result &result)
{
    constexpr double enlarged = 2;
    PictureOptions options;
    options.title = source.title();
    options.background = background;
    options.margin = ClearExport::margin;
    QByteArray svg;
    result = render(source, Format::Svg, options, svg);
    options.scale = enlarged;
    const QSizeF size = PictureExport::sizeOf(source.extent(), options);
    options.scale =
        PictureExport::roundedScale(enlarged * PictureExport::fittingFactor(Format::Png, size));
    QByteArray png;
    if (result)
        result = render(source, Format::Png, options, png);
    if (!result)
        return nullptr;
    auto data = std::make_unique<QMimeData>();
    data->setImageData(QImage::fromData(png));
    data->setData(QStringLiteral("image/png"), png);
    data->setData(QStringLiteral("image/svg+xml"), svg);
    return data;
}

} // namespace PictureCopy
