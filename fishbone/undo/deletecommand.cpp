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
    void deleteSubject(TreeItem *subject, SelectionHold &hold);
    TreeItem *restore(Deletion &deletion, SubjectFinder &finder);

    QPointer<FishModel> model;
    QJsonObject objects;
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
    subjects = snapshotKeys(objects, known);
    if (model)
        nameSubjects(*model, subjects);
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
}

EditDelete::EditDelete(FishModel *model, const QModelIndex &index)
    : UndoCommand([] { return tr("Delete current selected"); })
    , m_d(std::make_unique<Private>())
{
    m_d->model = model;
    TreeItem *const subject = itemFromIndex(index);
    if (!subject)
        return;
    m_d->subjects.append(keyFromIndex(index));
    FishModel::write(m_d->objects, subject, true);
}

EditDelete::~EditDelete() = default;

void EditDelete::init(FishModel *model, const QJsonObject &objects)
{
    m_d->set(model, objects, {});
}

void EditDelete::setDocument(FishInfo *document)
{
    for (SubjectKey &key : m_d->subjects)
        key.document = document;
}

void EditDelete::redo()
{
    if (!m_d->model || !m_d->gate.letsRedo(m_d->model))
        return;
    m_d->rows.clear();
    SelectionHold hold;
    SubjectFinder finder(*m_d->model, m_d->subjects);
    for (SubjectKey &key : m_d->subjects) {
        TreeItem *const subject = m_d->model ? finder.findNamed(key, {}) : nullptr;
        m_d->rows.append(subject ? m_d->model->indexFromItem(subject).row() : -1);
        if (!subject)
            continue;
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
