// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT
//
// The commands that insert one new subject.

#include <fishbone/undo/structuralcommands.h>

#include <fishbone/items/sceneselection.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/systemhelper.h>
#include <fishbone/model/treeitem.h>
#include <fishbone/undo/heldsubject.h>
#include <fishbone/undo/stepgate.h>
#include <fishbone/undo/subjectlookup.h>
#include <fishbone/undo/subjectmove.h>
#include <fishbone/undo/subjectspears.h>

#include <utility>

struct InsertCommand::Private
{
    FishModel *subjects() const { return qobject_cast<FishModel *>(model.data()); }
    QModelIndex referenceIndex() const { return indexFromKey(model, reference); }
    QModelIndex insertedIndex() const { return indexFromKey(model, inserted); }

    TreeItem *makeSubject(const QString &title, const QString &pid) const;
    TreeItem *presentSubject() const;
    bool insertRow(const Place &place);
    void take();

    QPointer<QAbstractItemModel> model;
    SubjectKey reference;
    SubjectKey inserted;
    StepGate gate;
    bool isInserted = false; // by the last redo(), and not taken out since
    HeldSubject held;
    SelectionHold selection; // within a step
    // What only InsertChild has: an item of its own.
    GuardedPointer<TreeItem> item;
    bool usesItem = false;
    bool isItemTaken = false; // by undo()
};

/** A new subject with the uuid that the first one drew. */
TreeItem *InsertCommand::Private::makeSubject(const QString &title, const QString &pid) const
{
    const QString uuid =
        TreeItem::isIdentity(inserted.uuid) ? inserted.uuid : SystemHelper::randomUuid();
    return new TreeItem(title, uuid, QStringLiteral(""), pid, 0);
}

/** The node that was put in, as long as it is in the model. */
TreeItem *InsertCommand::Private::presentSubject() const
{
    const FishModel *const known = subjects();
    TreeItem *const subject = inserted.node.get();
    return known && subject && known->indexFromItem(subject).isValid() ? subject : nullptr;
}

/** Puts a new subject into a model that is known by its rows and its column of uuids only. */
bool InsertCommand::Private::insertRow(const Place &place)
{
    const QPersistentModelIndex parent = place.parent;
    if (!model->insertRows(place.row, 1, place.parent) || !model ||
        place.parent.isValid() != parent.isValid())
        return false;
    const QPersistentModelIndex index = model->index(place.row, 0, parent);
    const QString drawn = uuidFromIndex(index);
    if (!TreeItem::isIdentity(inserted.uuid))
        inserted.uuid = TreeItem::isIdentity(drawn) ? drawn : SystemHelper::randomUuid();
    if (inserted.uuid != drawn)
        model->setData(index.sibling(index.row(), uuidColumn), inserted.uuid, Qt::EditRole);
    return true;
}

/** Takes the inserted subject out, wherever it is. */
void InsertCommand::Private::take()
{
    if (FishModel *const known = subjects()) {
        TreeItem *const subject = findSubject(*known, inserted);
        if (subject && (!usesItem || subject == item.get()))
            held.take(*known, subject, selection);
        return;
    }
    const QModelIndex index = insertedIndex();
    if (index.isValid())
        model->removeRows(index.row(), 1, index.parent());
}

InsertCommand::InsertCommand(const Name &name, QAbstractItemModel *model,
                             const QModelIndex &reference)
    : UndoCommand(name)
    , m_d(std::make_unique<Private>())
{
    m_d->model = model;
    m_d->reference = keyFromIndex(reference);
}

InsertCommand::~InsertCommand() = default;

QString InsertCommand::uuid() const
{
    return m_d->reference.uuid;
}

QString InsertCommand::newUuid() const
{
    return TreeItem::isIdentity(m_d->inserted.uuid) ? m_d->inserted.uuid : QString();
}

void InsertCommand::redo()
{
    if (!m_d->model || !m_d->gate.letsRedo(m_d->subjects()))
        return;
    if (!m_d->isInserted || !m_d->presentSubject()) {
        m_d->isInserted = false;
        insert();
    }
    m_d->selection.release();
}

void InsertCommand::undo()
{
    if (!m_d->model || !m_d->gate.letsUndo(m_d->subjects()))
        return;
    if (std::exchange(m_d->isInserted, false))
        remove();
    m_d->selection.release();
}

void InsertCommand::insert()
{
    const Place there = place(m_d->referenceIndex());
    if (there.row < 0 || !insertAt(there))
        return;
    const FishModel *const subjects = m_d->subjects();
    TreeItem *const subject = m_d->presentSubject();
    m_d->isInserted = subject || (m_d->model && !subjects);
    if (!subject)
        return; // a listener has removed it again, or there are no nodes
    m_d->inserted = keyFromItem(*subjects, subject);
    setSubjectTitles({subject->title()});
    generateMissingSpears(*subjects, subject->parent());
}

bool InsertCommand::insertAt(const Place &place)
{
    FishModel *const subjects = m_d->subjects();
    if (!subjects)
        return m_d->insertRow(place);
    TreeItem *const parent = itemFromIndex(place.parent);
    if (m_d->held.isEmpty() && parent)
        m_d->held.adopt(m_d->makeSubject(TreeItem::tr("子主题"), parent->uuid()));
    else if (m_d->held.isEmpty())
        m_d->held.adoptHead(m_d->makeSubject(FishModel::tr("自由主题"), QStringLiteral("")));
    m_d->inserted.node = m_d->held.item();
    return m_d->held.putBack(*subjects, parent, place.row);
}

void InsertCommand::remove()
{
    m_d->take();
    m_d->isItemTaken = m_d->usesItem && !m_d->held.isEmpty();
    if (!m_d->isItemTaken)
        m_d->item = {}; // whoever has it
}

InsertChild::InsertChild(QAbstractItemModel *model, const QModelIndex &index)
    : InsertCommand([] { return tr("Insert child subject"); }, model, index)
{
}

void InsertChild::setTreeItem(TreeItem *item)
{
    if (item == m_d->item.get())
        return;
    m_d->item = item;
    m_d->usesItem = item;
    m_d->held.adopt(item && item->root() == item ? item : nullptr);
}

TreeItem *InsertChild::treeItem() const
{
    return m_d->item.get();
}

InsertCommand::Place InsertChild::place(const QModelIndex &reference) const
{
    return {reference, m_d->model->rowCount(reference)};
}

bool InsertChild::insertAt(const Place &place)
{
    if (!m_d->usesItem || m_d->isItemTaken)
        return InsertCommand::insertAt(place);
    FishModel *const subjects = m_d->subjects();
    TreeItem *const item = m_d->item.get();
    if (!subjects || !item)
        return false;
    m_d->inserted.node = item;
    m_d->held.release(); // it belongs to the tree, by whomever it came there
    if (subjects->insertExistItemRows(place.parent, {item}))
        return true;
    if (item->root() == item)
        m_d->held.adopt(item); // to none
    return false;
}

InsertBack::InsertBack(QAbstractItemModel *model, const QModelIndex &index)
    : InsertCommand([] { return tr("Insert subject back"); }, model, index)
{
}

InsertCommand::Place InsertBack::place(const QModelIndex &reference) const
{
    return {reference.parent(), reference.row() + 1};
}

InsertFront::InsertFront(QAbstractItemModel *model, const QModelIndex &index)
    : InsertCommand([] { return tr("Insert subject front"); }, model, index)
{
}

InsertCommand::Place InsertFront::place(const QModelIndex &reference) const
{
    return {reference.parent(), reference.row()};
}

InsertParent::InsertParent(QAbstractItemModel *model, const QModelIndex &index)
    : InsertCommand([] { return tr("Insert subject as parent"); }, model, index)
{
}

InsertCommand::Place InsertParent::place(const QModelIndex &reference) const
{
    return {reference.parent(), reference.row()};
}

void InsertParent::insert()
{
    FishModel *const subjects = m_d->subjects();
    TreeItem *const subject = subjects ? findSubject(*subjects, m_d->reference) : nullptr;
    if (!subjects)
        insertElsewhere();
    else if (subject && subject->isTopVaildItem())
        insertAboveHead(*subjects, subject);
    else if (subject)
        insertAbove(*subjects, subject);
    else
        InsertCommand::insert();
}

void InsertParent::insertAbove(FishModel &model, TreeItem *subject)
{
    const GuardedPointer<TreeItem> alive(subject);
    InsertCommand::insert();
    TreeItem *const above = m_d->isInserted ? m_d->presentSubject() : nullptr;
    if (!above)
        return;
    bool isMoved = false;
    if (alive.get()) {
        m_pid = subject->pid();
        const SpearPointer former = subject->spear();
        std::unique_ptr<FishInfo> document; // of a head, which a listener made it
        isMoved = moveSubject(model, subject, above, 0, document);
        if (isMoved && m_d->model && alive.get()) {
            moveSpear(subject, former, m_d->selection);
            generateMissingSpears(model, subject->parent(), {subject});
        }
    }
    if (!isMoved && m_d->model) {
        m_d->isInserted = false;
        m_d->take();
    }
}

/** As insertAbove(), in a model that is known by its rows only. */
void InsertParent::insertElsewhere()
{
    InsertCommand::insert();
    const QModelIndex below = m_d->isInserted ? m_d->referenceIndex() : QModelIndex();
    const QModelIndex above = m_d->isInserted ? m_d->insertedIndex() : QModelIndex();
    const bool isMoved = below.isValid() && above.isValid() &&
                         m_d->model->moveRows(below.parent(), below.row(), 1, above, 0);
    if (!isMoved && m_d->isInserted && m_d->model) {
        m_d->isInserted = false; // a model that cannot move rows keeps them as they were
        m_d->take();
    }
}

void InsertParent::insertAboveHead(FishModel &model, TreeItem *head)
{
    if (m_d->held.isEmpty())
        m_d->held.adopt(m_d->makeSubject(FishModel::tr("自由主题"), QStringLiteral("")));
    TreeItem *const newHead = m_d->held.item();
    const GuardedPointer<TreeItem> alive(newHead);
    const QString pid = head->pid();
    m_d->held.release();
    if (!model.wrapHead(model.fishOf(head), newHead)) {
        m_d->held.adopt(newHead);
        return;
    }
    m_pid = pid;
    m_d->inserted.node = alive;
    TreeItem *const present = m_d->presentSubject();
    m_d->isInserted = present;
    if (present)
        m_d->inserted = keyFromItem(model, present);
}

void InsertParent::remove()
{
    FishModel *const subjects = m_d->subjects();
    if (!subjects) {
        removeElsewhere();
        return;
    }
    TreeItem *const subject = findSubject(*subjects, m_d->reference);
    TreeItem *const inserted = findSubject(*subjects, m_d->inserted);
    if (!inserted)
        return;
    const bool isRemoved = inserted->isTopVaildItem()
                               ? removeAboveHead(*subjects, subject, inserted)
                               : removeAbove(*subjects, subject, inserted);
    // What the model refuses leaves the new subject where it is, for a redo to find it there.
    m_d->isInserted = !isRemoved && m_d->presentSubject();
}

bool InsertParent::removeAbove(FishModel &model, TreeItem *subject, TreeItem *inserted)
{
    if (subject) {
        const GuardedPointer<TreeItem> alive(subject);
        const SpearPointer former = subject->spear();
        std::unique_ptr<FishInfo> document;
        if (!moveSubject(model, subject, inserted->parent(), inserted->index(), document))
            return false;
        if (m_d->model && alive.get())
            restorePid(model, subject, m_pid);
        if (m_d->model && alive.get()) {
            moveSpear(subject, former, m_d->selection);
            generateMissingSpears(model, subject->parent(), {subject});
        }
    }
    if (m_d->model)
        m_d->take();
    return true;
}

void InsertParent::removeElsewhere()
{
    const QModelIndex above = m_d->insertedIndex();
    const QModelIndex below = m_d->referenceIndex();
    if (!above.isValid())
        return;
    if (below.isValid() &&
        !m_d->model->moveRows(below.parent(), below.row(), 1, above.parent(), above.row()))
        return;
    if (m_d->model)
        m_d->take();
}

bool InsertParent::removeAboveHead(FishModel &model, TreeItem *subject, TreeItem *inserted)
{
    if (!subject)
        return true; // nothing to do: the document would be left without a head
    const GuardedPointer<TreeItem> below(subject);
    const GuardedPointer<TreeItem> above(inserted);
    if (subject->parent() != inserted) {
        std::unique_ptr<FishInfo> document;
        if (!moveSubject(model, subject, inserted, 0, document) || !m_d->model || !below.get() ||
            !above.get())
            return false;
    }
    TreeItem *const former = model.unwrapHead(model.fishOf(inserted), subject);
    if (!former)
        return false;
    m_d->held.adopt(former);
    deleteSpears(former, m_d->selection);
    if (below.get())
        subject->setPid(m_pid);
    return true;
}

InsertFree::InsertFree(QAbstractItemModel *model)
    : InsertCommand([] { return tr("Insert free subject"); }, model, QModelIndex())
{
    m_d->reference.uuid.clear(); // there is nothing that the place would be told by
}

InsertCommand::Place InsertFree::place(const QModelIndex &reference) const
{
    Q_UNUSED(reference)
    return {QModelIndex(), m_d->model->rowCount()};
}
