// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/filteranswers.h>

#include <fishbone/model/fishmodel.h>

#include <utility>
#include <vector>

FilterAnswers::FilterAnswers(Question rule, Question acceptance)
    : m_rule(std::move(rule))
    , m_acceptance(std::move(acceptance))
{
}

void FilterAnswers::setSource(const QAbstractItemModel *source)
{
    clear();
    m_source = source;
    m_fishModel = qobject_cast<const FishModel *>(source);
}

void FilterAnswers::followSilentChanges()
{
    if (!m_fishModel || m_fishModel->silentChanges() == m_silentChanges)
        return;
    m_silentChanges = m_fishModel->silentChanges();
    clear();
}

/** In a FishModel a node is known by itself; of other models the row is known to tell rows apart.
 */
FilterAnswers::Key FilterAnswers::key(const QModelIndex &index) const
{
    return {index.internalId(), m_fishModel ? 0 : index.row()};
}

bool FilterAnswers::rule(const QModelIndex &index)
{
    const Answers known = m_known.value(key(index));
    if (known.isRuleKnown)
        return known.rule;
    // Whoever is asked may ask on, so that no reference into the answers outlives this.
    const bool rule = m_rule(index.row(), index.parent());
    Answers &answers = m_known[key(index)];
    answers.isRuleKnown = true;
    answers.rule = rule;
    return rule;
}

bool FilterAnswers::below(const QModelIndex &index)
{
    if (!m_known.value(key(index)).isBelowKnown)
        search(index);
    return m_known.value(key(index)).below;
}

/** Whether the row can be asked about without a look at what is below it. */
bool FilterAnswers::isSettled(const QModelIndex &index)
{
    if (rule(index))
        return true;
    Answers &answers = m_known[key(index)];
    if (!answers.isBelowKnown && m_source->rowCount(index) == 0)
        answers.isBelowKnown = true;
    return answers.isBelowKnown;
}

/** Finds out about what is below @p top, the lowest rows first, up to the first that is accepted.
 */
void FilterAnswers::search(const QModelIndex &top)
{
    struct Step
    {
        QModelIndex index;
        int rows;
        int next = 0;
        bool isFound = false;
    };
    std::vector<Step> path;
    path.push_back({top, m_source->rowCount(top)});
    for (;;) {
        Step &step = path.back();
        if (!step.isFound && step.next < step.rows) {
            const int row = step.next++;
            const QModelIndex child = m_source->index(row, 0, step.index);
            if (child.isValid() && !isSettled(child))
                path.push_back({child, m_source->rowCount(child)});
            else
                step.isFound = m_acceptance(row, step.index);
            continue;
        }
        Answers &answers = m_known[key(step.index)];
        answers.isBelowKnown = true;
        answers.below = step.isFound;
        const QModelIndex done = step.index;
        path.pop_back();
        if (path.empty())
            return;
        path.back().isFound = m_acceptance(done.row(), path.back().index);
    }
}
