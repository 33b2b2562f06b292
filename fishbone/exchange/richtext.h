// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

class QXmlStreamReader;
class QXmlStreamWriter;

/** Formatted texts as plain ones, and plain texts as the HTML that mind maps hold. */
namespace RichText {

/** What a formatted text says. */
struct Content
{
    QString text;       ///< a line for each paragraph; what is preformatted as it is
    QStringList links;  ///< where its links lead, unless that is what they show
    QStringList images; ///< the files of its pictures
};

/** The content of the element that @p xml has just entered, up to its end. */
Content read(QXmlStreamReader &xml);

/** The content of @p html, which need not be well-formed. Linear in its length. */
Content fromHtml(const QString &html);

/** Whether @p text has tags of HTML in it. */
bool hasTags(const QString &text);
/** Whether @p text has references such as "&amp;" in it. */
bool hasReferences(const QString &text);
/** @p text with its references taken for their characters; nothing else is touched. */
QString dereferenced(const QString &text);

/** Writes @p text as a preformatted HTML document. */
void write(QXmlStreamWriter &xml, const QString &text);

} // namespace RichText
