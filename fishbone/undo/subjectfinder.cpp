// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/undo/subjectfinder.h>

#include <fishbone/model/fishmodel.h>
#include <fishbone/model/subjectwalk.h>

namespace {

/** Whether the living @p subject is one of a document of @p model. */
bool isIn(const FishModel &model, const TreeItem *subject)
{
    return model.indexFromItem(subject).isValid();
}

} // namespace

QList<FishInfo *> SubjectFinder::searchOrder(const FishModel &model, const FishInfo *first)
{
    QList<FishInfo *> documents = model.fishList();
    const int row = model.fishRow(first);
    if (row > 0)
        documents.move(row, 0);
    return documents;
}

SubjectFinder::SubjectFinder(const FishModel &model, const QVector<SubjectKey> &keys)
    : m_model(model)
{
    m_uuids.reserve(keys.size());
    m_endings.reserve(keys.size());
    for (const SubjectKey &key : keys) {
        if (!TreeItem::isIdentity(key.uuid))
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
        if (TreeItem *const head = document->treeItem()->childAtIndex(0))
            collect(head, match, found);
    }
    return known[document];
}

TreeItem *SubjectFinder::pick(const SubjectKey &key, Match match,
                              const QSet<const TreeItem *> &except)
{
    TreeItem *const node = key.node.get();
    const bool isNamed =
        node && (match == Match::Exact ? node->uuid() == key.uuid : key.endsUuidOf(*node));
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
    return TreeItem::isIdentity(key.uuid) ? pick(key, Match::Exact, except) : nullptr;
}

TreeItem *SubjectFinder::findNamed(const SubjectKey &key, const QSet<const TreeItem *> &except)
{
    if (!TreeItem::isIdentity(key.uuid))
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
