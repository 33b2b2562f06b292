// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/undo/subjectlookup.h>

#include <fishbone/model/fishmodel.h>
#include <fishbone/model/jsonnodes.h>
#include <fishbone/model/subjectwalk.h>
#include <fishbone/model/treeitem.h>
#include <fishbone/undo/subjectfinder.h>

#include <QJsonArray>

namespace {

/** The node that @p key was made of, when it is still a subject of @p model under its uuid. */
TreeItem *ownNode(const FishModel &model, const SubjectKey &key)
{
    TreeItem *const node = key.node.get();
    return node && key.endsUuidOf(*node) && model.indexFromItem(node).isValid() ? node : nullptr;
}

/** Whether one of @p others is above @p subject. Nodes that have none above them go to @p free. */
bool isBelowAny(const TreeItem *subject, const QSet<const TreeItem *> &others,
                QSet<const TreeItem *> &free)
{
    QVector<const TreeItem *> path;
    for (const TreeItem *above = subject->parent(); above; above = above->parent()) {
        if (others.contains(above))
            return true;
        if (free.contains(above))
            break;
        path.append(above);
    }
    for (const TreeItem *above : qAsConst(path))
        free.insert(above);
    return false;
}

/** indexFromUuid() for a model that is known by its column of uuids only. */
QModelIndex matchUuid(const QAbstractItemModel &model, const QString &uuid, int column)
{
    const QModelIndex start = model.index(0, uuidColumn);
    QModelIndexList hits =
        model.match(start, Qt::DisplayRole, uuid, 1, Qt::MatchRecursive | Qt::MatchExactly);
    if (hits.isEmpty())
        hits = model.match(start, Qt::DisplayRole, uuid, 1, Qt::MatchRecursive | Qt::MatchEndsWith);
    return hits.isEmpty() ? QModelIndex() : hits.first().siblingAtColumn(column);
}

} // namespace

TreeItem *itemFromIndex(const QModelIndex &index)
{
    const auto *const model = qobject_cast<const FishModel *>(index.model());
    return model ? model->getTreeItem(index) : nullptr;
}

QString uuidFromIndex(const QModelIndex &index)
{
    if (const TreeItem *const item = itemFromIndex(index))
        return item->uuid();
    const QString shown = index.siblingAtColumn(uuidColumn).data().toString();
    return shown.isEmpty() ? TreeItem::noIdentity() : shown;
}

void ensureUuids(TreeItem *subject)
{
    subject->ensureUuid();
    // What is above a head is no subject.
    if (subject->parent() && !subject->isTopVaildItem())
        subject->parent()->ensureUuid();
}

SubjectKey keyFromItem(const FishModel &model, TreeItem *subject)
{
    subject->ensureUuid();
    return {subject->uuid(), model.fishOf(subject), subject};
}

SubjectKey keyFromIndex(const QModelIndex &index)
{
    TreeItem *const subject = itemFromIndex(index);
    if (!subject)
        return {uuidFromIndex(index), nullptr, nullptr};
    ensureUuids(subject);
    return keyFromItem(*qobject_cast<const FishModel *>(index.model()), subject);
}

TreeItem *findSubject(const FishModel &model, const SubjectKey &key)
{
    if (!TreeItem::isIdentity(key.uuid))
        return nullptr;
    if (TreeItem *const node = ownNode(model, key))
        return node;
    TreeItem *found = nullptr;
    const auto look = [&](TreeItem *subject) {
        if (subject->uuid() == key.uuid)
            found = subject;
        return !found;
    };
    const QList<FishInfo *> documents = SubjectFinder::searchOrder(model, key.document);
    for (const FishInfo *document : documents) {
        TreeItem *const head = document->treeItem()->childAtIndex(0);
        if (head && !visitSubjects(head, look))
            break;
    }
    return found;
}

QVector<TreeItem *> findSubjects(const FishModel &model, const QVector<SubjectKey> &keys)
{
    SubjectFinder finder(model, keys);
    QVector<TreeItem *> subjects;
    subjects.reserve(keys.size());
    for (const SubjectKey &key : keys) {
        TreeItem *const node = TreeItem::isIdentity(key.uuid) ? ownNode(model, key) : nullptr;
        subjects.append(node ? node : finder.find(key));
    }
    return subjects;
}

QModelIndex indexFromKey(const QAbstractItemModel *model, const SubjectKey &key)
{
    const auto *const subjects = qobject_cast<const FishModel *>(model);
    if (!subjects)
        return indexFromUuid(model, key.uuid);
    return subjects->indexFromItem(findSubject(*subjects, key));
}

QModelIndex indexFromUuid(const QAbstractItemModel *model, const QString &uuid, int column,
                          const FishInfo *document)
{
    if (!model || !TreeItem::isIdentity(uuid))
        return QModelIndex();
    const auto *const subjects = qobject_cast<const FishModel *>(model);
    if (!subjects)
        return matchUuid(*model, uuid, column);
    const SubjectKey key{uuid, const_cast<FishInfo *>(document), nullptr};
    return subjects->indexFromItem(SubjectFinder(*subjects, {key}).findNamed(key, {}), column);
}

QVector<QJsonObject> snapshotSubjects(const QJsonObject &objects)
{
    const QJsonValue uuid = objects.value(JsonNodes::uuidKey);
    if (!uuid.isUndefined() && !uuid.isNull())
        return {objects};
    QVector<QJsonObject> subjects;
    const QJsonArray elements = objects.value(JsonNodes::childrenKey).toArray();
    subjects.reserve(elements.size());
    for (const QJsonValue &element : elements)
        subjects.append(element.toObject());
    return subjects;
}

QStringList snapshotTitles(const QJsonObject &objects)
{
    QStringList titles;
    const QVector<QJsonObject> subjects = snapshotSubjects(objects);
    for (const QJsonObject &subject : subjects)
        titles.append(subject.value(QLatin1String("title")).toString());
    return titles;
}

QVector<SubjectKey> snapshotKeys(const QJsonObject &objects, const QList<TreeItem *> &subjects)
{
    QVector<SubjectKey> keys;
    const QVector<QJsonObject> elements = snapshotSubjects(objects);
    keys.reserve(elements.size());
    for (const QJsonObject &element : elements)
        keys.append({element.value(JsonNodes::uuidKey).toString(), nullptr,
                     subjects.value(keys.size(), nullptr)});
    return keys;
}

QVector<SubjectKey> resolveNames(const FishModel &model, const QVector<SubjectKey> &names)
{
    SubjectFinder finder(model, names);
    QSet<const TreeItem *> taken;
    QVector<SubjectKey> keys;
    keys.reserve(names.size());
    for (const SubjectKey &name : names) {
        TreeItem *const subject = finder.findNamed(name, taken);
        if (subject) {
            taken.insert(subject);
            ensureUuids(subject);
        }
        keys.append(subject ? keyFromItem(model, subject) : name);
    }
    return keys;
}

QVector<TreeItem *> findTopSubjects(const FishModel &model, const QVector<SubjectKey> &keys)
{
    SubjectFinder finder(model, keys);
    QSet<const TreeItem *> found;
    QVector<TreeItem *> subjects;
    subjects.reserve(keys.size());
    for (const SubjectKey &key : keys) {
        subjects.append(finder.find(key, found));
        found.insert(subjects.constLast());
    }
    found.remove(nullptr);
    QSet<const TreeItem *> free; // with none of them above
    for (TreeItem *&subject : subjects) {
        if (subject && isBelowAny(subject, found, free))
            subject = nullptr;
    }
    return subjects;
}
