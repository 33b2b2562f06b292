// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/** What of a title is shown. */
namespace TitleText {

/**
 * How many characters of @p title are shown when @p count are allowed, without half of a surrogate
 * pair; -1 for all, whatever their number, which a @p count below 1 means as well.
 */
int shownLength(const QString &title, int count);

/**
 * The part of @p text before the first "(" that an ASCII digit follows: a head's title without the
 * counts that the model appends.
 */
QString withoutCounts(const QString &text);

} // namespace TitleText
