// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QPointer>
#include <QSet>
#include <QString>
#include <QVector>

#include <fishbone/base/guardedpointer.h>
#include <fishbone/model/fishinfo.h>
#include <fishbone/model/treeitem.h>

class FishModel;
class QAbstractItemModel;
class QJsonObject;
class QModelIndex;

constexpr int uuidColumn = 1; ///< of FishModel

/**
 * How a command knows a subject, whose index and node may come and go between redo() and undo().
 *
 * Uuids tell subjects apart as a rule, but the same file may be open twice, and copies may share
 * the uuid of their original. So the document and the node serve as hints: among subjects of the
 * same uuid the very node is meant, then one of that document.
 */
struct SubjectKey
{
    QString uuid = QStringLiteral("-1");
    QPointer<FishInfo> document;
    GuardedPointer<TreeItem> node;
};

/** Whether @p uuid is one: "" and "-1" stand for none. */
bool namesSubject(const QString &uuid);

/** The node behind @p index; null for none, also in a model without nodes. */
TreeItem *itemFromIndex(const QModelIndex &index);
/** The uuid of the subject at @p index, "-1" for an invalid index. */
QString uuidFromIndex(const QModelIndex &index);
/** Gives @p subject and its parent a uuid when they have none; nobody is told. */
void ensureUuids(TreeItem *subject);
/** The key of a node of @p model, which gets a uuid when it has none. */
SubjectKey keyFromItem(const FishModel &model, TreeItem *subject);
/** The key of the subject at @p index, which gets a uuid as its parent does. */
SubjectKey keyFromIndex(const QModelIndex &index);

/**
 * The subject that @p key means; null when it is not in the model. The node that the key was made
 * of costs the way up to its document, another one a walk over the nodes that ends where it is.
 */
TreeItem *findSubject(const FishModel &model, const SubjectKey &key);
/** The subjects that @p keys mean, in their order, as findSubject() finds each; in one walk. */
QVector<TreeItem *> findSubjects(const FishModel &model, const QVector<SubjectKey> &keys);
/** The index of the subject that @p key means, in any model whose column 1 shows the uuids. */
QModelIndex indexFromKey(const QAbstractItemModel *model, const SubjectKey &key);
/**
 * The index of the first subject with exactly that uuid, in @p document if there is one, and
 * failing that of the first one whose uuid ends with it, in any case. Documents without a head are
 * skipped.
 */
QModelIndex indexFromUuid(const QAbstractItemModel *model, const QString &uuid, int column = 0,
                          const FishInfo *document = nullptr);

/**
 * The subjects of a snapshot: the object itself when it has a uuid, otherwise the elements of its
 * "children".
 */
QVector<QJsonObject> snapshotSubjects(const QJsonObject &objects);
/** Keys for the subjects of a snapshot, which are the first of @p subjects in their order. */
QVector<SubjectKey> snapshotKeys(const QJsonObject &objects, const QList<TreeItem *> &subjects);

/**
 * The keys of the subjects that @p names mean, in their order. A name is a uuid, or the end of one
 * in any case when no subject has exactly that one; names that are alike mean different subjects,
 * and one that means none stays as it is. The subjects, and their parents, get a uuid when they
 * have none.
 */
QVector<SubjectKey> resolveNames(const FishModel &model, const QVector<SubjectKey> &names);
/**
 * The subjects that @p keys mean, in their order and each once. Null for one that is not there, and
 * for one below another of them, which goes with that one.
 */
QVector<TreeItem *> findTopSubjects(const FishModel &model, const QVector<SubjectKey> &keys);

/**
 * Finds many subjects in one walk over the nodes.
 *
 * It looks at a document the first time it needs it, and holds for as long as subjects only move
 * within their document or leave it, deleted or not; add() tells it of others.
 */
class SubjectFinder
{
public:
    SubjectFinder(const FishModel &model, const QVector<SubjectKey> &keys);

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
