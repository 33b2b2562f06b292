// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <task.h>

#include <QList>
#include <QMetaType>

/** Two have changed the same thing. What the other did stands; what is mine is kept here. */
struct Conflict
{
    /** What both have changed. */
    enum Kind {
        Value,       ///< a field: both have given it a value
        Place,       ///< the place: both have moved the task, or the moves make a circle
        TheyDeleted, ///< they have deleted what I have changed
        IDeleted     ///< I have deleted what they have changed
    };

    Kind kind = Value;
    QString key; ///< of the field
    Task mine;
    Task theirs;

    /** The task it is about. */
    QString uuid() const { return mine.uuid.isEmpty() ? theirs.uuid : mine.uuid; }
};
Q_DECLARE_METATYPE(Conflict)

/**
 * What becomes of tasks that two have changed since they were the same.
 *
 * Pure functions of values, so that they are the same wherever they are applied: to the changes of
 * another process, to what waited for the server, and to documents that were edited elsewhere.
 */
namespace TaskMerge {

/** What both have done together. */
struct Result
{
    TaskMap tasks; ///< a tree: each task hangs on a head
    QList<Conflict> conflicts;
};

/**
 * Brings the changes from @p base to @p mine into @p theirs, each field and each place by itself.
 * Where both have changed the same, theirs stays and a conflict tells of mine. What is mine and
 * would hang on nothing, since they have deleted what is above it, goes to the nearest task above
 * that is there, or becomes a head. Linear but for moves, each of which looks at the way up.
 */
Result merge(const TaskMap &base, const TaskMap &theirs, const TaskMap &mine);

/** Puts what is mine of @p conflict into @p tasks, as far as it is possible now. */
void keepMine(TaskMap &tasks, const Conflict &conflict);

} // namespace TaskMerge
