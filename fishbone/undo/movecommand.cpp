// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT
//
// The command that moves the subjects of a snapshot.

#include <fishbone/undo/structuralcommands.h>

#include <fishbone/items/sceneselection.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>
#include <fishbone/undo/stepgate.h>
#include <fishbone/undo/subjectfinder.h>
#include <fishbone/undo/subjectlookup.h>
#include <fishbone/undo/subjectmove.h>
#include <fishbone/undo/subjectspears.h>

#include <QJsonObject>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

/** One subject of the snapshot and, once it was moved, where it came from. */
struct Move
{
    SubjectKey name;                         // as it is looked for by redo()
    std::unique_ptr<FishInfo> document = {}; // without a head, while the subject heads none
    bool isMoved = false;
    SubjectKey subject = {}; // as it is looked for by undo()
    bool wasHead = false;
    SubjectKey parent = {}; // of none for a head
    int row = -1;
    QString pid = {};
};

/** Where subjects have come to. Who hears of the next move may end any of them. */
struct Arrivals
{
    GuardedPointer<TreeItem> parent;
    std::vector<GuardedPointer<TreeItem>> subjects;
};

/** What a subject was part of before a move. */
struct Before
{
    FishInfo *document;
    SpearPointer spear;
};

} // namespace

struct EditMove::Private
{
    void setNames(const QVector<SubjectKey> &newNames);
    bool carryOut(Move &move, TreeItem *subject, TreeItem *to);
    void takeBack(Move &move, SubjectFinder &finder);
    void follow(TreeItem *subject, const Before &before);
    void completeSpears();

    QPointer<FishModel> model;
    QJsonObject objects;
    SubjectKey target;
    int row = 0;
    bool wasMoved = false;     // so that a row that is too great now was not so from the beginning
    QVector<SubjectKey> names; // as the snapshot has them
    StepGate gate;
    std::vector<Move> moves;
    QList<int> sourceRows;
    // Within one redo() or undo():
    QHash<TreeItem *, Arrivals> arrivals; // by the new parent
    SelectionHold selection;
};

/** Which subjects are meant is settled now, whatever comes later under the same name. */
void EditMove::Private::setNames(const QVector<SubjectKey> &newNames)
{
    names = newNames;
    moves.clear();
    const QVector<SubjectKey> keys = model ? resolveNames(*model, names) : names;
    for (const SubjectKey &key : keys)
        moves.push_back({key});
}

/** Moves the @p subject of @p move; false when it is not there or stays where it is. */
bool EditMove::Private::carryOut(Move &move, TreeItem *subject, TreeItem *to)
{
    const QModelIndex index = model ? model->indexFromItem(subject) : QModelIndex();
    sourceRows.append(index.row());
    if (!index.isValid())
        return false;
    const Before before{model->fishOf(subject), subject->spear()};
    move.name.document = before.document;
    move.name.node = subject;
    move.wasHead = subject->isTopVaildItem();
    move.parent = move.wasHead ? SubjectKey() : keyFromItem(*model, subject->parent());
    move.row = sourceRows.last();
    move.pid = subject->pid();
    const TreeItem *const parent = subject->parent();
    const int rows = model->rowCount(model->indexFromItem(to));
    const int position = wasMoved ? qMin(row, rows) : row;
    const bool isMoved = moveSubject(*model, subject, to, position, move.document);
    if (!isMoved || !model || !move.name.node.get() || !model->indexFromItem(subject).isValid())
        return false;
    move.subject = keyFromItem(*model, subject);
    follow(subject, before);
    return subject->parent() != parent || model->indexFromItem(subject).row() != move.row;
}

/** Puts a subject back, unless it or its old parent is not there. */
void EditMove::Private::takeBack(Move &move, SubjectFinder &finder)
{
    TreeItem *const subject = finder.find(move.subject);
    TreeItem *const parent = move.wasHead ? nullptr : finder.find(move.parent);
    if (!subject || (!parent && !move.wasHead))
        return;
    const Before before{model->fishOf(subject), subject->spear()};
    const GuardedPointer<TreeItem> guard(subject);
    const bool isMoved = moveSubjectToRow(*model, subject, parent, move.row, move.document);
    if (isMoved && model && guard.get())
        restorePid(*model, subject, move.pid);
    if (!isMoved || !model || !guard.get() || !model->indexFromItem(subject).isValid())
        return;
    if (model->fishOf(subject) != before.document)
        finder.add(subject);
    follow(subject, before);
}

/** What else a move of @p subject entails. */
void EditMove::Private::follow(TreeItem *subject, const Before &before)
{
    moveSpear(subject, before.spear, selection);
    Arrivals &there = arrivals[subject->parent()];
    there.parent = subject->parent();
    there.subjects.emplace_back(subject);
}

/** Makes and orders the spears where subjects have come to, after the last move. */
void EditMove::Private::completeSpears()
{
    for (auto there = arrivals.cbegin(); there != arrivals.cend() && model; ++there) {
        QList<TreeItem *> living;
        for (const GuardedPointer<TreeItem> &subject : there->subjects) {
            if (subject.get())
                living.append(subject.get());
        }
        generateMissingSpears(*model, there->parent.get(), living);
    }
    arrivals.clear();
}

EditMove::EditMove(FishModel *model, const QModelIndex &target, int row, const QJsonObject &objects,
                   const QList<TreeItem *> &subjects)
    : UndoCommand([] { return tr("Move subjects"); })
    , m_d(std::make_unique<Private>())
{
    m_d->model = model;
    m_d->objects = objects;
    m_d->target = keyFromIndex(target);
    m_d->row = row;
    m_d->names = snapshotKeys(objects, subjects);
    setSubjectTitles(snapshotTitles(objects));
    setDocument(m_d->target.document);
}

EditMove::~EditMove() = default;

void EditMove::setDocument(FishInfo *document)
{
    QVector<SubjectKey> names = m_d->names;
    for (SubjectKey &name : names)
        name.document = document;
    m_d->setNames(names);
}

void EditMove::redo()
{
    FishModel *const model = m_d->model;
    if (!model || !m_d->gate.letsRedo(model))
        return;
    m_d->sourceRows.clear();
    QVector<SubjectKey> keys;
    for (const Move &move : m_d->moves)
        keys.append(move.name);
    // Who hears of a move may end any of the others.
    std::vector<GuardedPointer<TreeItem>> found;
    const QVector<TreeItem *> subjects = findTopSubjects(*model, keys);
    for (TreeItem *subject : subjects)
        found.emplace_back(subject);
    TreeItem *const to = findSubject(*model, m_d->target);
    const GuardedPointer<TreeItem> guard(to);
    for (std::size_t i = 0; i < found.size(); ++i) {
        Move &move = m_d->moves[i];
        move.isMoved = guard.get() == to && m_d->carryOut(move, found[i].get(), to);
    }
    m_d->wasMoved = m_d->wasMoved || !m_d->arrivals.isEmpty();
    m_d->completeSpears();
    m_d->selection.release();
}

void EditMove::undo()
{
    if (!m_d->model || !m_d->gate.letsUndo(m_d->model))
        return;
    QVector<SubjectKey> keys;
    for (const Move &move : m_d->moves)
        keys << move.subject << move.parent;
    SubjectFinder finder(*m_d->model, keys);
    std::for_each(m_d->moves.rbegin(), m_d->moves.rend(), [&](Move &move) {
        if (std::exchange(move.isMoved, false) && m_d->model)
            m_d->takeBack(move, finder);
    });
    m_d->completeSpears();
    m_d->selection.release();
}

QJsonObject EditMove::objects() const
{
    return m_d->objects;
}

QString EditMove::targetUuid() const
{
    return m_d->target.uuid;
}

int EditMove::row() const
{
    return m_d->row;
}

QList<int> EditMove::sourceRows() const
{
    return m_d->sourceRows;
}
