// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractItemModel>
#include <QHash>
#include <QPointer>

#include <functional>

class FishModel;

/**
 * What a filter that keeps ancestors has found out about the rows of its source: whether its rule
 * holds for a row, and whether any row below is accepted. Each row is asked about once, however
 * deep the rows nest and however often its ancestors are in question, and without recursion.
 *
 * The answers hold until clear(), which every change of the source or of the filter calls for.
 */
class FilterAnswers
{
    Q_DISABLE_COPY(FilterAnswers)

public:
    using Question = std::function<bool(int row, const QModelIndex &parent)>;

    /** @p rule is what holds for a row by itself, @p acceptance the whole answer for it. */
    FilterAnswers(Question rule, Question acceptance);

    /** Starts anew with another source. */
    void setSource(const QAbstractItemModel *source);
    void clear() { m_known.clear(); }
    /** Whether there is none. */
    bool isEmpty() const { return m_known.isEmpty(); }
    /** Forgets everything when the source has changed without telling. */
    void followSilentChanges();

    /** Whether the rule holds for the row at @p index. */
    bool rule(const QModelIndex &index);
    /** Whether any row below @p index is accepted. */
    bool below(const QModelIndex &index);

private:
    using Key = QPair<quintptr, int>;
    struct Answers
    {
        bool isRuleKnown = false;
        bool rule = false;
        bool isBelowKnown = false;
        bool below = false;
    };

    Key key(const QModelIndex &index) const;
    bool isSettled(const QModelIndex &index);
    void search(const QModelIndex &top);

    Question m_rule;
    Question m_acceptance;
    QPointer<const QAbstractItemModel> m_source;
    QPointer<const FishModel> m_fishModel; ///< the source, when it is one
    quint64 m_silentChanges = 0;           ///< its number of them
    QHash<Key, Answers> m_known;
};
