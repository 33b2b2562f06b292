// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/** Texts within a line of Mermaid. */
namespace MermaidText {

/** @p title so that Mermaid shows exactly it, all in one line. */
QString escaped(const QString &title);
/** What a line shows: without references and the marks of line breaks. */
QString unescaped(const QString &line);

} // namespace MermaidText
