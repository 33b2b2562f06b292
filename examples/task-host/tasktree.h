// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <task.h>

/** What the rows of the data base are as a tree. Nothing here calls itself: trees may be deep. */
namespace TaskTree {

/** The children of each task in order. */
TaskChildren children(const TaskMap &tasks);
/** The tasks that hang on a head, each behind the one above it, siblings in order. */
QStringList preOrder(const TaskMap &tasks);
/** Whether @p uuid is @p above or stands below it. */
bool isWithin(const TaskMap &tasks, const QString &uuid, const QString &above);

/**
 * Of different numbers, the places of as many as possible that ascend already; the others have to
 * move to bring all into order. O(n log n).
 */
QVector<int> ascending(const QVector<qint64> &numbers);

/**
 * Gives @p siblings of @p tasks positions that put them in this order. As few as possible differ
 * from those in @p known: a new position lies in the gap between its neighbours, and only where a
 * gap is used up are all numbered anew.
 */
void place(TaskMap &tasks, const QStringList &siblings, const TaskMap &known);

} // namespace TaskTree
