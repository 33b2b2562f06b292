// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/subtreematches.h>

#include <fishbone/model/fishmodel.h>

#include <utility>
#include <vector>

SubtreeMatches::SubtreeMatches(Test test)
    : m_test(std::move(test))
{
}

void SubtreeMatches::setSource(const QAbstractItemModel *source)
{
    clear();
    m_source = source;
    m_nodesHaveKeys = qobject_cast<const FishModel *>(source);
}

SubtreeMatches::Key SubtreeMatches::key(const QModelIndex &index) const
{
    return {index.internalId(), m_nodesHaveKeys ? 0 : index.row()};
}

SubtreeMatches::Answer SubtreeMatches::known(const QModelIndex &index) const
{
    const auto found = m_known.constFind(key(index));
    if (found == m_known.cend())
        return Answer::Unknown;
    return *found ? Answer::Yes : Answer::No;
}

bool SubtreeMatches::contains(const QModelIndex &index)
{
    const Answer answer = known(index);
    return answer == Answer::Unknown ? search(index) : answer == Answer::Yes;
}

/** Finds the first match below @p top and remembers what is known then of the rows on the way. */
bool SubtreeMatches::search(const QModelIndex &top)
{
    struct Step
    {
        QModelIndex index;
        int rows;
        int next = 0;
    };
    std::vector<Step> path;
    path.push_back({top, m_source->rowCount(top)});
    bool found = m_test(top.row(), top.parent());
    while (!found && !path.empty()) {
        Step &step = path.back();
        if (step.next == step.rows) {
            m_known.insert(key(step.index), false);
            path.pop_back();
            continue;
        }
        const int row = step.next++;
        const QModelIndex child = m_source->index(row, 0, step.index);
        const Answer answer = child.isValid() ? known(child) : Answer::Yes;
        found = answer == Answer::Yes;
        if (answer == Answer::Unknown) {
            found = m_test(row, step.index);
            path.push_back({child, m_source->rowCount(child)});
        }
    }
    for (const Step &step : path)
        m_known.insert(key(step.index), true);
    return found;
}

/** A match appeared below @p index. */
bool SubtreeMatches::setAbove(QModelIndex index)
{
    bool changed = false;
    for (; index.isValid() && known(index) == Answer::No; index = index.parent()) {
        m_known.insert(key(index), true);
        changed = true;
    }
    return changed;
}

/** A match below @p index disappeared. */
bool SubtreeMatches::recheckAbove(QModelIndex index)
{
    bool changed = false;
    for (; index.isValid() && known(index) == Answer::Yes; index = index.parent()) {
        if (search(index))
            break;
        changed = true;
    }
    return changed;
}

/** Forgets rows with all below them: what comes later may have their keys. */
void SubtreeMatches::forget(const QModelIndex &parent, int first, int last)
{
    if (m_known.isEmpty())
        return;
    QModelIndexList waiting;
    const auto add = [this, &waiting](const QModelIndex &above, int from, int to) {
        for (int row = from; row <= to; ++row)
            waiting.append(m_source->index(row, 0, above));
    };
    add(parent, first, last);
    while (!waiting.isEmpty()) {
        const QModelIndex index = waiting.takeLast();
        m_known.remove(key(index));
        if (index.isValid())
            add(index, 0, m_source->rowCount(index) - 1);
    }
}

bool SubtreeMatches::rowsChanged(const QModelIndex &parent, int first, int last)
{
    bool changed = false;
    for (int row = first; row <= last; ++row) {
        const QModelIndex index = m_source->index(row, 0, parent);
        const Answer before = known(index);
        if (before == Answer::Unknown)
            continue; // nobody asked, so no answer above rests on it
        const bool matches = search(index);
        if (matches != (before == Answer::Yes))
            changed = (matches ? setAbove(parent) : recheckAbove(parent)) || changed;
    }
    return changed;
}

bool SubtreeMatches::rowsInserted(const QModelIndex &parent, int first, int last)
{
    if (!m_nodesHaveKeys) {
        clear();
        return true;
    }
    forget(parent, first, last);
    if (!parent.isValid() || known(parent) != Answer::No)
        return false;
    for (int row = first; row <= last; ++row) {
        if (contains(m_source->index(row, 0, parent)))
            return setAbove(parent);
    }
    return false;
}

void SubtreeMatches::rowsGoing(const QModelIndex &parent, int first, int last)
{
    if (!m_nodesHaveKeys)
        return;
    m_matchGoes = false;
    for (int row = first; row <= last && !m_matchGoes; ++row)
        m_matchGoes = contains(m_source->index(row, 0, parent));
    forget(parent, first, last);
}

bool SubtreeMatches::rowsGone(const QModelIndex &parent)
{
    if (m_nodesHaveKeys)
        return m_matchGoes && recheckAbove(parent);
    clear();
    return true;
}
