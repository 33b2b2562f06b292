// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/drawing/clearpicture.h>
#include <fishbone/exchange/pictureexport.h>
#include <fishbone/exchange/pictureprogress.h>

/** How one picture in the clear look is written: the pieces of it, and whoever follows that. What
 * it is made of lives on. */
struct ClearWriting
{
    const ClearPicture &picture;
    const PictureOptions &options;
    QSizeF size; ///< in picture units
    QRectF target;
    PictureProgress &progress;

    /** Paints @p picture as large as it fits into @p target; false when that was ended. */
    static bool paint(QPainter &painter, const ClearPicture &picture, const QRectF &target);

    /** Writes an SVG into @p bytes. */
    PictureExport::Result svg(QByteArray &bytes) const;
    /** Writes a PNG into @p bytes. */
    PictureExport::Result png(QByteArray &bytes) const;
    /** Writes a PDF of one page of @p millimetres, as wide as the size, into @p bytes. */
    PictureExport::Result pdf(const QSizeF &millimetres, QByteArray &bytes) const;
};
