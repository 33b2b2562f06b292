// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT
//
// The command that deletes the subjects of a snapshot.

#include <fishbone/undo/structuralcommands.h>

#include <fishbone/items/sceneselection.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>
#include <fishbone/undo/heldsubject.h>
#include <fishbone/undo/stepgate.h>
#include <fishbone/undo/subjectfinder.h>
#include <fishbone/undo/subjectlookup.h>
#include <fishbone/undo/subjectspears.h>

#include <QJsonObject>

#include <vector>

namespace {

/** One deleted subject and where it belongs. */
struct Deletion
{
    HeldSubject held;
    SubjectKey parent; // of none for a head
    bool isHead;
    int row;
};

} // namespace

struct EditDelete::Private
{
    void set(FishModel *newModel, const QJsonObject &newObjects, const QList<TreeItem *> &known);
    void setNames(const QVector<SubjectKey> &newNames);
    void deleteSubject(TreeItem *subject, SelectionHold &hold);
    TreeItem *restore(Deletion &deletion, SubjectFinder &finder);

    QPointer<FishModel> model;
    QJsonObject objects;
    QVector<SubjectKey> names; // as the snapshot has them
    QVector<SubjectKey> subjects;
    QList<int> rows;
    StepGate gate;
    std::vector<Deletion> deletions; // in the order of the subjects
};

void EditDelete::Private::set(FishModel *newModel, const QJsonObject &newObjects,
                              const QList<TreeItem *> &known)
{
    model = newModel;
    objects = newObjects;
    setNames(snapshotKeys(objects, known));
}

/** Which subjects are meant is settled now, whatever comes later under the same name. */
void EditDelete::Private::setNames(const QVector<SubjectKey> &newNames)
{
    names = newNames;
    subjects = model ? resolveNames(*model, names) : names;
}

void EditDelete::Private::deleteSubject(TreeItem *subject, SelectionHold &hold)
{
    const bool isHead = subject->isTopVaildItem();
    Deletion deletion{{}, {}, isHead, rows.last()};
    if (!isHead)
        deletion.parent = keyFromItem(*model, subject->parent());
    if (deletion.held.take(*model, subject, hold))
        deletions.push_back(std::move(deletion));
}

/** Puts a subject back; null when it cannot go back, or did not stay. */
TreeItem *EditDelete::Private::restore(Deletion &deletion, SubjectFinder &finder)
{
    TreeItem *const parent = model && !deletion.isHead ? finder.find(deletion.parent) : nullptr;
    TreeItem *const subject = deletion.held.item();
    const GuardedPointer<TreeItem> alive(subject);
    if (!model || (!parent && !deletion.isHead) ||
        !deletion.held.putBack(*model, parent, deletion.row) || !model || !alive.get() ||
        !model->indexFromItem(subject).isValid())
        return nullptr;
    finder.add(subject);
    return subject;
}

EditDelete::EditDelete(FishModel *model, const QJsonObject &objects,
                       const QList<TreeItem *> &subjects)
    : UndoCommand([] { return tr("Delete selecteds"); })
    , m_d(std::make_unique<Private>())
{
    m_d->set(model, objects, subjects);
    setSubjectTitles(snapshotTitles(objects));
}

EditDelete::EditDelete(FishModel *model, const QModelIndex &index)
    : UndoCommand([] { return tr("Delete current selected"); })
    , m_d(std::make_unique<Private>())
{
    m_d->model = model;
    TreeItem *const subject = itemFromIndex(index);
    if (!subject)
        return;
    m_d->setNames({keyFromIndex(index)});
    FishModel::write(m_d->objects, subject, true);
    setSubjectTitles({subject->title()});
}

EditDelete::~EditDelete() = default;

void EditDelete::init(FishModel *model, const QJsonObject &objects)
{
    m_d->set(model, objects, {});
    setSubjectTitles(snapshotTitles(objects));
}

void EditDelete::setDocument(FishInfo *document)
{
    QVector<SubjectKey> names = m_d->names;
    for (SubjectKey &name : names)
        name.document = document;
    m_d->setNames(names);
}

void EditDelete::redo()
{
    if (!m_d->model || !m_d->gate.letsRedo(m_d->model))
        return;
    m_d->rows.clear();
    SelectionHold hold;
    // Who hears of a removal may end any of the others.
    std::vector<GuardedPointer<TreeItem>> found;
    const QVector<TreeItem *> subjects = findTopSubjects(*m_d->model, m_d->subjects);
    for (TreeItem *subject : subjects)
        found.emplace_back(subject);
    for (int i = 0; i < m_d->subjects.size(); ++i) {
        TreeItem *const subject = found[std::size_t(i)].get();
        const QModelIndex index = m_d->model ? m_d->model->indexFromItem(subject) : QModelIndex();
        m_d->rows.append(index.row());
        if (!index.isValid())
            continue;
        SubjectKey &key = m_d->subjects[i];
        key.document = m_d->model->fishOf(subject);
        key.node = subject;
        m_d->deleteSubject(subject, hold);
    }
}

void EditDelete::undo()
{
    if (!m_d->model || !m_d->gate.letsUndo(m_d->model))
        return;
    QVector<SubjectKey> keys;
    for (const Deletion &deletion : m_d->deletions)
        keys.append(deletion.parent);
    SubjectFinder finder(*m_d->model, keys);

    // What cannot go back, because its parent is not there, waits for the next time.
    std::vector<Deletion> waiting;
    QHash<const TreeItem *, GuardedPointer<TreeItem>> parents;
    while (!m_d->deletions.empty()) {
        Deletion deletion = std::move(m_d->deletions.back());
        m_d->deletions.pop_back();
        if (const TreeItem *const subject = m_d->restore(deletion, finder))
            parents.insert(subject->parent(), subject->parent());
        else if (!deletion.held.isEmpty())
            waiting.insert(waiting.begin(), std::move(deletion));
    }
    m_d->deletions = std::move(waiting);
    for (const GuardedPointer<TreeItem> &parent : qAsConst(parents)) {
        if (m_d->model)
            generateMissingSpears(*m_d->model, parent.get());
    }
}

QJsonObject EditDelete::objects() const
{
    return m_d->objects;
}

QList<int> EditDelete::rows() const
{
    return m_d->rows;
}
