// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tasktree.h>

#include <QPair>
#include <QSet>
#include <QVector>

#include <algorithm>

namespace {

constexpr qint64 step = qint64(1) << 20; // between two that are numbered anew

/** For each sibling whether it keeps the position that it has in @p known. */
QVector<bool> keepers(const TaskMap &tasks, const QStringList &siblings, const TaskMap &known)
{
    QVector<int> candidates; // those that stood below the same parent
    for (int i = 0; i < siblings.size(); ++i) {
        const auto former = known.constFind(siblings.at(i));
        if (former != known.cend() && former->parent == tasks.value(siblings.at(i)).parent)
            candidates.append(i);
    }
    // Their order by position; equal positions count by uuid, as everywhere.
    QVector<int> sorted(candidates.size());
    for (int i = 0; i < sorted.size(); ++i)
        sorted[i] = i;
    const auto key = [&](int i) {
        const Task task = known.value(siblings.at(candidates.at(i)));
        return qMakePair(task.position, task.uuid);
    };
    std::sort(sorted.begin(), sorted.end(),
              [&](int one, int other) { return key(one) < key(other); });
    QVector<qint64> ranks(sorted.size());
    for (int rank = 0; rank < sorted.size(); ++rank)
        ranks[sorted.at(rank)] = rank;

    QVector<bool> keeps(siblings.size(), false);
    const QVector<int> kept = TaskTree::ascending(ranks);
    for (const int i : kept)
        keeps[candidates.at(i)] = true;
    return keeps;
}

/** Fills the run from @p begin to before @p end; false when the gap is too small. */
bool fillGap(QVector<qint64> &positions, const QVector<bool> &keeps, int begin, int end)
{
    const qint64 run = end - begin;
    const bool hasBefore = begin > 0;
    const bool hasBehind = end < positions.size();
    Q_ASSERT(!hasBehind || keeps.at(end));
    const qint64 before = hasBefore   ? positions.at(begin - 1)
                          : hasBehind ? positions.at(end) - step * (run + 1)
                                      : 0;
    const qint64 behind = hasBehind ? positions.at(end) : before + step * (run + 1);
    const qint64 gap = (behind - before) / (run + 1);
    if (gap < 1)
        return false;
    for (int i = begin; i < end; ++i)
        positions[i] = before + gap * (i - begin + 1);
    return true;
}

} // namespace

TaskChildren TaskTree::children(const TaskMap &tasks)
{
    TaskChildren below;
    for (const Task &task : tasks)
        below[task.parent].append(task.uuid);
    for (QStringList &siblings : below) {
        std::sort(siblings.begin(), siblings.end(), [&](const QString &one, const QString &other) {
            return qMakePair(tasks.value(one).position, one) <
                   qMakePair(tasks.value(other).position, other);
        });
    }
    return below;
}

QStringList TaskTree::preOrder(const TaskMap &tasks)
{
    const TaskChildren below = children(tasks);
    QStringList order;
    QStringList waiting; // the next one last
    const auto enter = [&](const QString &uuid) {
        const QStringList siblings = below.value(uuid);
        std::for_each(siblings.crbegin(), siblings.crend(),
                      [&](const QString &child) { waiting.append(child); });
    };
    enter(QString());
    while (!waiting.isEmpty()) {
        order.append(waiting.takeLast());
        enter(order.constLast());
    }
    return order;
}

bool TaskTree::isWithin(const TaskMap &tasks, const QString &uuid, const QString &above)
{
    QSet<QString> seen; // what has a circle already ends here as well
    QString on = uuid;
    while (!on.isEmpty() && !seen.contains(on)) {
        if (on == above)
            return true;
        seen.insert(on);
        on = tasks.value(on).parent;
    }
    return false;
}

QVector<int> TaskTree::ascending(const QVector<qint64> &numbers)
{
    QVector<int> ends; // of the runs of each length, the one with the least last number
    QVector<int> before(numbers.size(), -1);
    for (int i = 0; i < numbers.size(); ++i) {
        const auto at =
            std::lower_bound(ends.begin(), ends.end(), numbers.at(i),
                             [&](int end, qint64 number) { return numbers.at(end) < number; });
        if (at != ends.begin())
            before[i] = *(at - 1);
        if (at == ends.end())
            ends.append(i);
        else
            *at = i;
    }
    QVector<int> run;
    for (int i = ends.isEmpty() ? -1 : ends.constLast(); i >= 0; i = before.at(i))
        run.prepend(i);
    return run;
}

void TaskTree::place(TaskMap &tasks, const QStringList &siblings, const TaskMap &known)
{
    const QVector<bool> keeps = keepers(tasks, siblings, known);
    QVector<qint64> positions(siblings.size());
    for (int i = 0; i < siblings.size(); ++i)
        positions[i] = keeps.at(i) ? known.value(siblings.at(i)).position : 0;
    bool fits = true;
    for (int begin = 0; begin < siblings.size() && fits;) {
        int end = begin;
        while (end < siblings.size() && !keeps.at(end))
            ++end;
        fits = end == begin || fillGap(positions, keeps, begin, end);
        begin = end + 1;
    }
    for (int i = 0; i < siblings.size(); ++i)
        tasks[siblings.at(i)].position = fits ? positions.at(i) : step * (i + 1);
}
