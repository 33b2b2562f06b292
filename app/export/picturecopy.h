// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/exchange/pictureexport.h>

#include <memory>

class PictureSource;
class QMimeData;

/** Pictures for the clipboard of the system. */
namespace PictureCopy {

/** The drawing of @p source, as it is wished, as PNG on @p background, twice as large as on the
 * screen or as large as that can be, and as SVG. Null when there is none, for which @p result tells
 * the reason. */
std::unique_ptr<QMimeData> of(PictureSource &source, const QColor &background,
                              PictureExport::Result &result);

} // namespace PictureCopy
