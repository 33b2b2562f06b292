// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCollator>
#include <QLocale>
#include <QStringList>

#include <algorithm>

/** The order of names in what a user reads. */
namespace Collation {

/** Compares as the language of the default locale does, numbers by their value: "Ähre" stands
 * beside "Aal" in German and behind "Zoo" in no language of the program, "10" behind "9". */
inline QCollator ofUser()
{
    QCollator collator{QLocale()};
    collator.setNumericMode(true);
    return collator;
}

/** @p names in that order; the sort is stable. */
inline QStringList sorted(QStringList names)
{
    std::stable_sort(names.begin(), names.end(), ofUser());
    return names;
}

} // namespace Collation
