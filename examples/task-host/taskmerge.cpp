// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <taskmerge.h>

#include <tasktree.h>

#include <QSet>

namespace {

/** One merge while it goes on. */
class Merging
{
public:
    Merging(const TaskMap &base, const TaskMap &theirs, const TaskMap &mine)
        : m_base(base)
        , m_mine(mine)
        , m_result{theirs, {}}
    {
    }

    /**
     * Leaves a tree at each step: theirs is one, taking out what I have deleted closes the ways up
     * over it, what is new enters as a leaf, and a move of mine is looked at before it is made. My
     * tasks come from the top down, so that the way up from a place is the one that stays.
     */
    TaskMerge::Result run(const TaskMap &theirs)
    {
        takeDeletions(theirs);
        const QStringList order = TaskTree::preOrder(m_mine);
        for (const QString &uuid : order) {
            const Task mine = m_mine.value(uuid);
            if (m_result.tasks.contains(uuid)) {
                takeFields(mine);
                takePlace(mine);
            } else {
                enter(mine);
            }
        }
        return m_result;
    }

private:
    void takeDeletions(const TaskMap &theirs)
    {
        for (const Task &base : m_base) {
            const auto there = theirs.constFind(base.uuid);
            if (there == theirs.cend() || m_mine.contains(base.uuid))
                continue;
            // A new place alone does not speak for a task that somebody finds superfluous.
            if (there->fields == base.fields && there->parent == base.parent)
                m_result.tasks.remove(base.uuid);
            else
                tell(Conflict::IDeleted, {}, base, *there);
        }
        closeGaps();
    }

    /** A task of mine that is not among theirs. */
    void enter(Task mine)
    {
        const auto base = m_base.constFind(mine.uuid);
        mine.parent = livingFrom(mine.parent);
        if (base == m_base.cend())
            m_result.tasks.insert(mine.uuid, mine);
        else if (mine.fields != base->fields || m_mine.value(mine.uuid).parent != base->parent)
            tell(Conflict::TheyDeleted, {}, mine, {});
    }

    void takeFields(const Task &mine)
    {
        const auto base = m_base.constFind(mine.uuid);
        Task &there = m_result.tasks[mine.uuid];
        const QJsonObject before = base == m_base.cend() ? QJsonObject() : base->fields;
        const QStringList keys = mine.fields.keys() + before.keys();
        const QSet<QString> all(keys.cbegin(), keys.cend());
        for (const QString &key : all)
            takeField(key, before.value(key), mine, there);
    }

    void takeField(const QString &key, const QJsonValue &before, const Task &mine, Task &there)
    {
        const QJsonValue ours = mine.fields.value(key);
        const QJsonValue their = there.fields.value(key);
        if (ours == before || ours == their)
            return;
        if (their != before)
            tell(Conflict::Value, key, mine, there);
        else if (ours.isUndefined())
            there.fields.remove(key);
        else
            there.fields.insert(key, ours);
    }

    void takePlace(const Task &mine)
    {
        const auto base = m_base.constFind(mine.uuid);
        if (base == m_base.cend() || base->isPlacedAs(mine))
            return; // I have not moved it
        Task &there = m_result.tasks[mine.uuid];
        if (mine.parent == base->parent) {
            if (there.isPlacedAs(*base))
                there.position = mine.position;
            return;
        }
        const QString parent = livingFrom(mine.parent);
        const bool haveBothMoved = there.parent != base->parent && there.parent != mine.parent;
        if (haveBothMoved || TaskTree::isWithin(m_result.tasks, parent, mine.uuid)) {
            tell(Conflict::Place, {}, mine, there);
        } else {
            there.parent = parent;
            there.position = mine.position;
        }
    }

    /** Puts what hung on what I have deleted where that hung. */
    void closeGaps()
    {
        for (Task &task : m_result.tasks)
            task.parent = livingFrom(task.parent);
    }

    /** @p uuid, or the nearest one above it that is there; empty when there is none. */
    QString livingFrom(QString uuid) const
    {
        QSet<QString> seen;
        while (!uuid.isEmpty() && !m_result.tasks.contains(uuid)) {
            if (seen.contains(uuid))
                return {};
            seen.insert(uuid);
            uuid = m_mine.contains(uuid) ? m_mine.value(uuid).parent : m_base.value(uuid).parent;
        }
        return uuid;
    }

    void tell(Conflict::Kind kind, const QString &key, const Task &mine, const Task &theirs)
    {
        Conflict conflict;
        conflict.kind = kind;
        conflict.key = key;
        conflict.mine = mine;
        conflict.theirs = theirs;
        m_result.conflicts.append(conflict);
    }

    const TaskMap &m_base;
    const TaskMap &m_mine;
    TaskMerge::Result m_result;
};

/** Brings a task back below the task above it, or as a head. */
void restore(TaskMap &tasks, Task task)
{
    if (!tasks.contains(task.parent))
        task.parent.clear();
    tasks.insert(task.uuid, task);
}

void removeWithAllBelow(TaskMap &tasks, const QString &uuid)
{
    const TaskChildren below = TaskTree::children(tasks);
    QStringList doomed{uuid};
    while (!doomed.isEmpty()) {
        const QString next = doomed.takeLast();
        tasks.remove(next);
        doomed += below.value(next);
    }
}

} // namespace

TaskMerge::Result TaskMerge::merge(const TaskMap &base, const TaskMap &theirs, const TaskMap &mine)
{
    return Merging(base, theirs, mine).run(theirs);
}

void TaskMerge::keepMine(TaskMap &tasks, const Conflict &conflict)
{
    const QString uuid = conflict.uuid();
    const Task &mine = conflict.mine;
    if (conflict.kind == Conflict::TheyDeleted) {
        if (!tasks.contains(uuid))
            restore(tasks, mine);
        return;
    }
    if (!tasks.contains(uuid))
        return;
    Task &task = tasks[uuid];
    if (conflict.kind == Conflict::IDeleted) {
        removeWithAllBelow(tasks, uuid);
    } else if (conflict.kind == Conflict::Value) {
        const QJsonValue value = mine.fields.value(conflict.key);
        if (value.isUndefined())
            task.fields.remove(conflict.key);
        else
            task.fields.insert(conflict.key, value);
    } else if ((mine.parent.isEmpty() || tasks.contains(mine.parent)) &&
               !TaskTree::isWithin(tasks, mine.parent, uuid)) {
        task.parent = mine.parent;
        task.position = mine.position;
    }
}
