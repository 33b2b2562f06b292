// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractItemModel>
#include <QHash>
#include <QPointer>

#include <functional>

/**
 * Remembers for the rows of a tree whether they or anything below them match a test, so that each
 * row is tested once however often its ancestors are asked about.
 *
 * The functions named after changes keep the answers right; for a change of the source that none is
 * named after, clear() must be called. They say whether the answer for a row above the change
 * became another one.
 *
 * In a FishModel the answers belong to the nodes and survive changes of rows. Of other models
 * nothing is known that would identify a row, so a change of rows forgets everything there.
 */
class SubtreeMatches
{
    Q_DISABLE_COPY(SubtreeMatches)

public:
    using Test = std::function<bool(int row, const QModelIndex &parent)>;

    explicit SubtreeMatches(Test test);

    /** Starts anew with another source. */
    void setSource(const QAbstractItemModel *source);
    void clear() { m_known.clear(); }

    /** Whether the row at @p index, or any row below it, matches. */
    bool contains(const QModelIndex &index);

    /** The data of rows changed. */
    bool rowsChanged(const QModelIndex &parent, int first, int last);
    /** Rows are new. */
    bool rowsInserted(const QModelIndex &parent, int first, int last);
    /** Rows are still there and about to go. */
    void rowsGoing(const QModelIndex &parent, int first, int last);
    /** The rows of the last rowsGoing() are gone. */
    bool rowsGone(const QModelIndex &parent);

private:
    using Key = QPair<quintptr, int>;
    enum class Answer { Unknown, No, Yes };

    Key key(const QModelIndex &index) const;
    Answer known(const QModelIndex &index) const;
    bool search(const QModelIndex &top);
    bool setAbove(QModelIndex index);
    bool recheckAbove(QModelIndex index);
    void forget(const QModelIndex &parent, int first, int last);

    Test m_test;
    QPointer<const QAbstractItemModel> m_source;
    bool m_nodesHaveKeys = false;
    bool m_matchGoes = false;
    QHash<Key, bool> m_known;
};
