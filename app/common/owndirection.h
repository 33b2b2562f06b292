// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QGuiApplication>
#include <QString>

/** Texts of people in rows of a window, which have the direction of its language. */
namespace OwnDirection {

/** @p title in the order that its first letter tells, as in the drawing: in a mirrored window "a
 * (b)" would end in the bracket that opens. For painting alone. */
inline QString of(const QString &title)
{
    constexpr char16_t begin = u'\u2068'; // apart, as its first letter has it
    constexpr char16_t end = u'\u2069';
    const bool isPlain = title.isEmpty() || !QGuiApplication::isRightToLeft();
    return isPlain ? title : QChar(begin) + title + QChar(end);
}

} // namespace OwnDirection
