// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/exchange/tasktable.h>

/** The headings of tables. */
namespace TaskHeadings {

/** The index of the row with the headings; -1 when none of the first rows has titles. */
int rowOf(const std::vector<TaskTable::Row> &rows);
/** @p headings in quotes, as many as a message takes. */
QString listed(const QStringList &headings);
/** Which of @p columns, all of them of ids, has what people call a subject: a key or its number in
 * a project rather than a number of the database; -1 when none is called so. */
int shownId(const QStringList &headings, const QList<int> &columns);
/** Whether who writes @p headings writes the day of a date such as 3/4/2024 in front, which those
 * do who speak another language than English. */
bool areDayFirst(const QStringList &headings);

} // namespace TaskHeadings
