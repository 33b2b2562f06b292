// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/fishbone_export.h>

#include <QSizeF>
#include <QString>
#include <QStringList>

#include <optional>

/** A page or a screen that a drawing is arranged for. */
struct FISHBONE_EXPORT PageSize
{
    QSizeF size;                ///< lying; in millimetres or in pixels
    bool isMillimetres = false; ///< of paper, else of pixels

    /** The names of the usual ones, as users read them. */
    static QStringList names();
    /** The page that @p text tells: one of names(), in any case, or a size such as "1920x1080",
     * "1920x1080px" or "297x210mm". Nothing for any other text. */
    static std::optional<PageSize> of(const QString &text);

    /** What of it a drawing fills, in the unit of the size: paper keeps a margin. */
    QSizeF drawable() const;
    /** Its size on paper; a pixel is one of 96 on an inch. */
    QSizeF millimetres() const;
    /** Its size in pixels; paper has 192 on an inch. */
    QSize pixels() const;
};
