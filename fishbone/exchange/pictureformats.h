// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/exchange/pictureexport.h>

class PictureDrawing;

/** The formats of files that pictures are written in. */
namespace PictureFormats {

/** The longest side of any picture, in picture units: painters do not count further. */
constexpr double maximalUnits = 1000000;

/** Dots of the screen for an inch: text was laid out for them, and is written at the same size. */
double screenResolution();

/** Whether a picture of @p size picture units has room in a file of @p format. */
PictureExport::Result check(PictureExport::Format format, const QSizeF &size);

/** Writes @p drawing as a file of @p format into @p picture. */
PictureExport::Result draw(PictureExport::Format format, PictureDrawing &drawing,
                           QByteArray &picture);

} // namespace PictureFormats
