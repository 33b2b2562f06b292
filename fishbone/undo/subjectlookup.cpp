// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/undo/subjectlookup.h>

#include <fishbone/model/fishmodel.h>
#include <fishbone/model/jsonnodes.h>
#include <fishbone/model/subjectwalk.h>
#include <fishbone/model/treeitem.h>

#include <QJsonArray>

namespace {

/** The documents of @p model in the order in which they are searched. */
QList<FishInfo *> searchOrder(const FishModel &model, const FishInfo *first)
{
    QList<FishInfo *> documents = model.fishList();
    const int row = model.fishRow(first);
    if (row > 0)
        documents.move(row, 0);
    return documents;
}

/** The head of @p document, null when it has none. */
TreeItem *headOf(const FishInfo *document)
{
    return document->treeItem()->childAtIndex(0);
}

bool endsWith(const TreeItem *subject, const QString &uuid)
{
    return subject->uuid().endsWith(uuid, Qt::CaseInsensitive);
}

/** Whether the living @p subject is one of a document of @p model. */
bool isIn(const FishModel &model, const TreeItem *subject)
{
    return model.indexFromItem(subject).isValid();
}

/** The node that @p key was made of, when it is still a subject of @p model under its uuid. */
TreeItem *ownNode(const FishModel &model, const SubjectKey &key)
{
    TreeItem *const node = key.node.get();
    return node && endsWith(node, key.uuid) && isIn(model, node) ? node : nullptr;
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

bool namesSubject(const QString &uuid)
{
    return !uuid.isEmpty() && uuid != QLatin1String("-1");
}

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
    return shown.isEmpty() ? QStringLiteral("-1") : shown;
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
    if (!namesSubject(key.uuid))
        return nullptr;
    if (TreeItem *const node = ownNode(model, key))
        return node;
    TreeItem *found = nullptr;
    const auto look = [&](TreeItem *subject) {
        if (subject->uuid() == key.uuid)
            found = subject;
        return !found;
    };
    const QList<FishInfo *> documents = searchOrder(model, key.document);
    for (const FishInfo *document : documents) {
        TreeItem *const head = headOf(document);
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
        TreeItem *const node = namesSubject(key.uuid) ? ownNode(model, key) : nullptr;
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
    if (!model || !namesSubject(uuid))
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

SubjectFinder::SubjectFinder(const FishModel &model, const QVector<SubjectKey> &keys)
    : m_model(model)
{
    m_uuids.reserve(keys.size());
    m_endings.reserve(keys.size());
    for (const SubjectKey &key : keys) {
        if (!namesSubject(key.uuid))
            continue;
        m_uuids.insert(key.uuid);
        m_endings.insert(key.uuid.toCaseFolded());
        m_lengths.insert(key.uuid.size());
    }
}

void SubjectFinder::collect(TreeItem *top, Match match, Candidates &candidates) const
{
    // To compare with a single one costs less than to compute what the set wants to know.
    const QString only = m_uuids.size() == 1 ? *m_uuids.cbegin() : QString();
    visitSubjects(top, [&](TreeItem *subject) {
        const QString &uuid = subject->uuid();
        if (match == Match::Exact) {
            if (only.isEmpty() ? m_uuids.contains(uuid) : uuid == only)
                candidates[uuid].append(GuardedPointer<TreeItem>(subject));
            return true;
        }
        for (int length : m_lengths) {
            const QString ending = uuid.right(length).toCaseFolded();
            if (uuid.size() >= length && m_endings.contains(ending))
                candidates[ending].append(GuardedPointer<TreeItem>(subject));
        }
        return true;
    });
}

/** The candidates of one document, looked for when they are first asked for. */
const SubjectFinder::Candidates &SubjectFinder::candidates(const FishInfo *document, Match match)
{
    auto &known = match == Match::Exact ? m_exact : m_ending;
    if (!known.contains(document)) {
        Candidates &found = known[document];
        if (TreeItem *const head = headOf(document))
            collect(head, match, found);
    }
    return known[document];
}

TreeItem *SubjectFinder::pick(const SubjectKey &key, Match match,
                              const QSet<const TreeItem *> &except)
{
    TreeItem *const node = key.node.get();
    const bool isNamed =
        node && (match == Match::Exact ? node->uuid() == key.uuid : endsWith(node, key.uuid));
    if (isNamed && !except.contains(node) && isIn(m_model, node))
        return node;
    const QString name = match == Match::Exact ? key.uuid : key.uuid.toCaseFolded();
    const QList<FishInfo *> documents = searchOrder(m_model, key.document);
    for (const FishInfo *document : documents) {
        const auto subjects = candidates(document, match).value(name);
        for (const GuardedPointer<TreeItem> &subject : subjects) {
            if (subject.get() && !except.contains(subject.get()) && isIn(m_model, subject.get()))
                return subject.get();
        }
    }
    return nullptr;
}

TreeItem *SubjectFinder::find(const SubjectKey &key, const QSet<const TreeItem *> &except)
{
    return namesSubject(key.uuid) ? pick(key, Match::Exact, except) : nullptr;
}

TreeItem *SubjectFinder::findNamed(const SubjectKey &key, const QSet<const TreeItem *> &except)
{
    if (!namesSubject(key.uuid))
        return nullptr;
    TreeItem *const exact = pick(key, Match::Exact, except);
    return exact || pick(key, Match::Exact, {}) ? exact : pick(key, Match::Ending, except);
}

void SubjectFinder::add(TreeItem *subject)
{
    const FishInfo *const document = m_model.fishOf(subject);
    if (m_exact.contains(document))
        collect(subject, Match::Exact, m_exact[document]);
    if (m_ending.contains(document))
        collect(subject, Match::Ending, m_ending[document]);
}
