// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/** The tags of HTML that people write within lines of Markdown. */
namespace MarkdownTags {

/** What one tag, or a short pair of tags, says. */
struct Tag
{
    int length = 0; ///< of the markup; 0 when there is nothing that is known
    QString text;   ///< what it shows
    QString image;  ///< the file of a picture
};

/** What the tag at the beginning of @p markup says: one that merely forms the text, raised and
 * lowered digits, or a picture. */
Tag read(const QString &markup);

} // namespace MarkdownTags
