// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QVector>

#include <fishbone/undo/subjectkey.h>

class FishModel;
class QAbstractItemModel;
class QJsonObject;
class QModelIndex;
class TreeItem;

constexpr int uuidColumn = 1; ///< of FishModel

/** The node behind @p index; null for none, also in a model without nodes. */
TreeItem *itemFromIndex(const QModelIndex &index);
/** The uuid of the subject at @p index, TreeItem::noIdentity() for an invalid index. */
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
/** The titles of the subjects of a snapshot. */
QStringList snapshotTitles(const QJsonObject &objects);
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
