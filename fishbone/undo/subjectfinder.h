// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QSet>
#include <QString>
#include <QVector>

#include <fishbone/undo/subjectkey.h>

class FishInfo;
class FishModel;

/**
 * Finds many subjects in one walk over the nodes.
 *
 * It looks at a document the first time it needs it, and holds for as long as subjects only move
 * within their document or leave it, deleted or not; add() tells it of others.
 */
class SubjectFinder
{
public:
    /** Is going to find the subjects that @p keys mean in @p model. */
    SubjectFinder(const FishModel &model, const QVector<SubjectKey> &keys);

    /** The documents of @p model in the order in which they are searched: @p first, if it is one.
     */
    static QList<FishInfo *> searchOrder(const FishModel &model, const FishInfo *first);

    /**
     * The subject that @p key, one of those given, means, none of @p except; null when it is not in
     * the model.
     */
    TreeItem *find(const SubjectKey &key, const QSet<const TreeItem *> &except = {});
    /**
     * As find(), for a name from outside: when no subject at all has that uuid, one whose uuid ends
     * with it, in any case.
     */
    TreeItem *findNamed(const SubjectKey &key, const QSet<const TreeItem *> &except);
    /** Looks at @p subject and what is below it, which has come into its document. */
    void add(TreeItem *subject);

private:
    /** The subjects that may be meant by each uuid, in pre-order. */
    using Candidates = QHash<QString, QVector<GuardedPointer<TreeItem>>>;
    enum class Match { Exact, Ending };

    void collect(TreeItem *top, Match match, Candidates &candidates) const;
    const Candidates &candidates(const FishInfo *document, Match match);
    TreeItem *pick(const SubjectKey &key, Match match, const QSet<const TreeItem *> &except);

    const FishModel &m_model;
    QSet<QString> m_uuids;
    QSet<QString> m_endings; ///< the same, without regard to case
    QSet<int> m_lengths;     ///< of the endings
    QHash<const FishInfo *, Candidates> m_exact;
    QHash<const FishInfo *, Candidates> m_ending;
};
