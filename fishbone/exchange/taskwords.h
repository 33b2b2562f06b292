// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

#include <vector>

/**
 * The words of the task lists of other programs, in the languages that those speak. A word means
 * one thing, whatever language it is of.
 */
namespace TaskWords {

/** Words of a language for one thing. */
struct Entry
{
    const char *language; ///< "de", "zh_TW"
    int meaning;          ///< what the table of these says
    const char *words;    ///< separated by bars, the surest first
};

using Table = std::vector<Entry>;

/** Of the headings of columns, TableMapping::Role. Those of Role::Path have a number behind them.
 */
const Table &headings();
/** Of statuses, their numbers. */
const Table &statuses();
/** Of priorities, 1 for the highest, -1 for none. */
const Table &priorities();
/** Of what has been found out about causes, Verdict. */
const Table &verdicts();

/** The words of @p entry. */
QStringList listed(const Entry &entry);

/** @p text in the form in which words are compared: as compatible characters, without capitals. */
QString compared(const QString &text);

/** The number of the month called @p name in one of the languages, cut to some letters or not; 0
 * for what is none. */
int monthOf(const QString &name);

} // namespace TaskWords
