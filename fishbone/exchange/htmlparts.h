// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/exchange/svgpicture.h>

#include <QByteArray>
#include <QLocale>
#include <QString>

/** What every page with a drawing has besides the drawing. */
namespace HtmlParts {

extern const char style[];  ///< how it looks
extern const char script[]; ///< what it does; knows no texts of its own

/** The tag that a page in @p language begins with. What such a page has beside the drawing stands
 * on the side that the language reads from. */
inline QByteArray root(const QString &language)
{
    const bool isMirrored = QLocale(language).textDirection() == Qt::RightToLeft;
    return "<html lang=\"" + SvgPicture::escaped(language) +
           (isMirrored ? "\" dir=\"rtl\">" : "\">");
}

} // namespace HtmlParts
