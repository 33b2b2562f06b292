// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/** Texts in the cells of an Excel workbook, where XML has no room for most control characters. */
namespace XlsxText {

/** @p text with what XML cannot carry as "_x0007_"; what looks like that is escaped as well. */
QString escaped(const QString &text);
/** What escaped() was given. */
QString unescaped(const QString &text);

} // namespace XlsxText
