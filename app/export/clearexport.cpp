// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/export/clearexport.h>

#include <fishbone/exchange/diagrampicture.h>

namespace ClearExport {

QColor paperOf(DiagramLook::Palette palette)
{
    return DiagramLook::isDark(palette) ? QColor(0x1e, 0x21, 0x26) : QColor(Qt::white);
}

PictureOptions suited(PictureOptions options, const DiagramLook::Options &look)
{
    options.margin = margin;
    if (options.background == Qt::white)
        options.background = paperOf(look.palette);
    return options;
}

PictureExport::Result write(const DiagramPicture &picture, const std::optional<PageSize> &page,
                            const QString &fileName, PictureOptions options)
{
    if (!page)
        return picture.write(fileName, options);
    if (PictureExport::formatOf(fileName) == PictureExport::Format::Pdf)
        return picture.writePage(fileName, page->millimetres(), DiagramPicture::pageMargin,
                                 options);
    if (options.size.isEmpty())
        options.size = page->pixels();
    return picture.write(fileName, options);
}

} // namespace ClearExport
