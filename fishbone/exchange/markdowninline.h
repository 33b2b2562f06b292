// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

/** Texts within a line of Markdown. */
namespace MarkdownInline {

/** What a text says, where its links lead and what its pictures are. */
struct Content
{
    QString text;
    QStringList links;  ///< the first one first
    QStringList images; ///< their files
};

/** What a piece of Markdown is. */
enum class Kind {
    Title,  ///< a text whose links are taken for their texts
    Detail, ///< a text whose links stand as they are
    Target, ///< where a link leads: nothing but escapes has a meaning
};

/** What @p markdown shows: without escapes, emphasis and links. @p definitions has where links lead
 * that are called by a name, in lower case. Linear in its length. */
Content read(const QString &markdown, Kind kind, const QHash<QString, QString> &definitions = {});

} // namespace MarkdownInline
