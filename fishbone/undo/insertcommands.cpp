// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT
//
// The commands that insert one new subject.

#include <fishbone/undo/structuralcommands.h>

#include <fishbone/items/spearitem.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/systemhelper.h>
#include <fishbone/model/treeitem.h>
#include <fishbone/undo/heldsubject.h>
#include <fishbone/undo/subjectlookup.h>
#include <fishbone/undo/subjectmove.h>
#include <fishbone/undo/subjectspears.h>

#include <utility>

namespace {

constexpr int uuidColumn = 1;

} // namespace

struct InsertCommand::Private
{
    FishModel *subjects() const { return qobject_cast<FishModel *>(model.data()); }
    QModelIndex referenceIndex() const { return indexFromKey(model, reference); }
    QModelIndex insertedIndex() const { return indexFromKey(model, inserted); }

    void remember(const QModelIndex &index, bool isNew);
    void take();

    QPointer<QAbstractItemModel> model;
    SubjectKey reference;
    SubjectKey inserted;
    bool isInserted = false; // by the last redo(), and not taken out since
    HeldSubject held;
    // What only InsertChild has: an item of its own.
    TreeItem *item = nullptr;
    bool usesItem = false;
    bool isItemTaken = false; // by undo()
};

/** Notes the subject at @p index, which gets the uuid that the first one drew when it is new. */
void InsertCommand::Private::remember(const QModelIndex &index, bool isNew)
{
    const QString drawn = uuidFromIndex(index);
    if (!isNew || !namesSubject(inserted.uuid))
        inserted.uuid = namesSubject(drawn) ? drawn : SystemHelper::randomUuid();
    if (inserted.uuid != drawn)
        model->setData(index.siblingAtColumn(uuidColumn), inserted.uuid, Qt::EditRole);
    const FishModel *const known = subjects();
    inserted.node = itemFromIndex(index);
    inserted.document = known ? known->fishOf(inserted.node.get()) : nullptr;
    isInserted = true;
}

/** Takes the inserted subject out, wherever it is. */
void InsertCommand::Private::take()
{
    if (FishModel *const known = subjects()) {
        TreeItem *const subject = findSubject(*known, inserted);
        if (subject && (!usesItem || subject == item))
            held.take(*known, subject);
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
    return namesSubject(m_d->inserted.uuid) ? m_d->inserted.uuid : QString();
}

void InsertCommand::redo()
{
    m_d->isInserted = false;
    if (!m_d->model)
        return;
    const Place there = place(m_d->referenceIndex());
    const bool isNew = m_d->held.isEmpty();
    if (there.row < 0 || !insertAt(there) || !m_d->model)
        return;
    m_d->remember(m_d->model->index(there.row, 0, there.parent), isNew);
    if (const FishModel *const subjects = m_d->subjects())
        generateMissingSpears(*subjects, itemFromIndex(there.parent));
}

bool InsertCommand::insertAt(const Place &place)
{
    if (m_d->held.isEmpty())
        return m_d->model->insertRows(place.row, 1, place.parent);
    return m_d->held.putBack(*m_d->subjects(), itemFromIndex(place.parent), place.row);
}

void InsertCommand::undo()
{
    if (!std::exchange(m_d->isInserted, false) || !m_d->model)
        return;
    m_d->take();
    m_d->isItemTaken = m_d->usesItem && !m_d->held.isEmpty();
    if (!m_d->isItemTaken)
        m_d->item = nullptr; // nobody knows whether it still lives
}

InsertChild::InsertChild(QAbstractItemModel *model, const QModelIndex &index)
    : InsertCommand([] { return tr("Insert child subject"); }, model, index)
{
}

void InsertChild::setTreeItem(TreeItem *item)
{
    if (item == m_d->item)
        return;
    m_d->item = item;
    m_d->usesItem = item;
    m_d->held.adopt(item && item->root() == item ? item : nullptr);
}

TreeItem *InsertChild::treeItem() const
{
    return m_d->item;
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
    if (!subjects || !m_d->item)
        return false;
    const bool isInserted = subjects->insertExistItemRows(place.parent, {m_d->item});
    m_d->held.release(); // it belongs to the tree, by whomever it came there
    return isInserted;
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

void InsertParent::redo()
{
    m_d->isInserted = false;
    FishModel *const subjects = m_d->subjects();
    TreeItem *const subject = subjects ? findSubject(*subjects, m_d->reference) : nullptr;
    if (subject && subject->isTopVaildItem()) {
        insertAboveHead(*subjects, subject);
        return;
    }
    InsertCommand::redo();
    if (!m_d->isInserted || !m_d->model)
        return;
    if (subject)
        m_pid = subject->pid();
    const SpearPointer former = subject ? subject->spear() : nullptr;
    const QModelIndex below = m_d->referenceIndex();
    const bool isMoved =
        m_d->model->moveRows(below.parent(), below.row(), 1, m_d->insertedIndex(), 0);
    if (!isMoved && m_d->model) {
        m_d->isInserted = false; // a model that cannot move rows keeps them as they were
        m_d->take();
    } else if (subject && m_d->model) {
        moveSpear(subject, former);
        generateMissingSpears(*subjects, subject->parent(), {subject});
    }
}

void InsertParent::insertAboveHead(FishModel &model, TreeItem *head)
{
    SubjectKey &inserted = m_d->inserted;
    if (m_d->held.isEmpty()) {
        const QString uuid =
            namesSubject(inserted.uuid) ? inserted.uuid : SystemHelper::randomUuid();
        const QString empty = QStringLiteral("");
        m_d->held.adopt(new TreeItem(FishModel::tr("自由主题"), uuid, empty, empty, 0));
    }
    TreeItem *const newHead = m_d->held.item();
    m_pid = head->pid();
    m_d->held.release();
    model.wrapHead(model.fishOf(head), newHead);
    if (!m_d->model)
        return;
    inserted = keyFromItem(model, newHead);
    m_d->isInserted = true;
}

void InsertParent::undo()
{
    if (!std::exchange(m_d->isInserted, false) || !m_d->model)
        return;
    FishModel *const subjects = m_d->subjects();
    TreeItem *const subject = subjects ? findSubject(*subjects, m_d->reference) : nullptr;
    TreeItem *const inserted = subjects ? findSubject(*subjects, m_d->inserted) : nullptr;
    if (inserted && inserted->isTopVaildItem()) {
        removeAboveHead(*subjects, subject, inserted);
        return;
    }
    const QModelIndex above = m_d->insertedIndex();
    const QModelIndex below = m_d->referenceIndex();
    if (!above.isValid())
        return;
    const SpearPointer former = subject ? subject->spear() : nullptr;
    if (below.isValid() &&
        !m_d->model->moveRows(below.parent(), below.row(), 1, above.parent(), above.row()))
        return;
    if (subject && m_d->model) {
        restorePid(*subjects, subject, m_pid);
        moveSpear(subject, former);
        generateMissingSpears(*subjects, subject->parent(), {subject});
    }
    if (m_d->model)
        m_d->take();
}

void InsertParent::removeAboveHead(FishModel &model, TreeItem *subject, TreeItem *inserted)
{
    if (!subject)
        return; // the document would be left without a head
    if (subject->parent() != inserted) {
        std::unique_ptr<FishInfo> document;
        moveSubject(model, subject, inserted, 0, document);
        if (!m_d->model)
            return;
    }
    subject->setPid(m_pid);
    m_d->held.adopt(model.unwrapHead(model.fishOf(inserted), subject));
    deleteSpears(m_d->held.item());
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
