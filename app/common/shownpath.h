// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDir>
#include <QGuiApplication>
#include <QString>

/** Paths for people. */
namespace ShownPath {

/** @p path as the system writes it. In a mirrored window it is set apart from the text around it: a
 * slash in front would be drawn behind all the rest. Not for the clipboard, which takes the marks,
 * too. */
inline QString of(const QString &path)
{
    const QString shown = QDir::toNativeSeparators(path);
    constexpr char16_t begin = u'\u2066'; // from left to right, whatever is around it
    constexpr char16_t end = u'\u2069';
    return QGuiApplication::isRightToLeft() ? QChar(begin) + shown + QChar(end) : shown;
}

} // namespace ShownPath
