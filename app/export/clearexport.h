// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/drawing/diagramlook.h>
#include <fishbone/exchange/pagesize.h>
#include <fishbone/exchange/pictureexport.h>

#include <optional>

class DiagramPicture;

/** Writing pictures in the clear look, in the window as on the command line. */
namespace ClearExport {

constexpr double margin = 8; ///< around a drawing that is not for a page, in its units

/** @p options with what suits a picture in the look @p look: its margin, and dark paper in place of
 * white for the colours that need it. */
PictureOptions suited(PictureOptions options, const DiagramLook::Options &look);

/** The paper that the palette @p palette is for. */
QColor paperOf(DiagramLook::Palette palette);

/** Writes @p picture into @p fileName. For a @p page a PDF has that size and a margin, and other
 * pictures so many pixels, unless @p options tell a size. */
PictureExport::Result write(const DiagramPicture &picture, const std::optional<PageSize> &page,
                            const QString &fileName, PictureOptions options);

} // namespace ClearExport
