// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class QXmlStreamReader;
class QXmlStreamWriter;

/** Plain texts as the HTML that mind maps hold. */
namespace RichText {

/**
 * The text of the element that @p xml has just entered, up to its end: a line for each paragraph,
 * or what is preformatted as it is.
 */
QString read(QXmlStreamReader &xml);

/** Writes @p text as a preformatted HTML document. */
void write(QXmlStreamWriter &xml, const QString &text);

} // namespace RichText
