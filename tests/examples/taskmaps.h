// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <task.h>
#include <tasktree.h>

/** Tasks for tests. */
namespace TaskMaps {

/** The uuids of small(). */
const QString h = QStringLiteral("h");
const QString a = QStringLiteral("a");
const QString b = QStringLiteral("b");

/** A task of that title. */
inline Task task(const QString &uuid, const QString &parent, qint64 position,
                 const QString &title = QString())
{
    Task made;
    made.uuid = uuid;
    made.parent = parent;
    made.position = position;
    made.fields.insert(QStringLiteral("title"), title.isEmpty() ? uuid : title);
    return made;
}

inline TaskMap map(const QList<Task> &tasks)
{
    TaskMap made;
    for (const Task &each : tasks)
        made.insert(each.uuid, each);
    return made;
}

/** h with a and b, c below a. */
inline TaskMap small()
{
    return map(
        {task(h, QString(), 10), task(a, h, 10), task(b, h, 20), task(QStringLiteral("c"), a, 10)});
}

/** "h(a(c)b)": who stands where, in order. Linear in small trees, which these are. */
inline QString outline(const TaskMap &tasks, const QString &parent = QString())
{
    QString text;
    const QStringList below = TaskTree::children(tasks).value(parent);
    for (const QString &uuid : below) {
        const QString inner = outline(tasks, uuid);
        text += uuid + (inner.isEmpty() ? QString() : QLatin1Char('(') + inner + QLatin1Char(')'));
    }
    return text;
}

} // namespace TaskMaps
