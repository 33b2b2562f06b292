// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/** Texts as Markdown that shows exactly them. */
namespace MarkdownEscapes {

/** @p text as a piece of Markdown that shows exactly it, all in one line. */
QString escaped(const QString &text);
/** A link to @p url that shows @p text. */
QString link(const QString &text, const QString &url);

} // namespace MarkdownEscapes
