// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// The part of FishEditor that changes subjects.

#include <fishbone/editor/fisheditor.h>

#include <fishbone/dialogs/urldialog.h>
#include <fishbone/drawing/spearbuilder.h>
#include <fishbone/editor/editorcall.h>
#include <fishbone/editor/fisheditor_p.h>
#include <fishbone/editor/fishscene.h>
#include <fishbone/editor/stackowner.h>
#include <fishbone/items/linkitem.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/undo/attributecommands.h>
#include <fishbone/undo/structuralcommands.h>
#include <fishbone/undo/undostack.h>

namespace {
constexpr int linkColumn = 2; ///< the column whose text counts as a subject's link
} // namespace

/// Runs a command on the stack as one of the editor's own; false when a listener has ended it.
bool FishEditor::push(const Call &call, std::unique_ptr<UndoCommand> command)
{
    m_d->stackOwner.expectOwnCall();
    m_d->undoStack->push(command.release());
    return call.isAlive();
}

/// What follows a command: the drawing, then the documents.
void FishEditor::finish(const Call &call, Follow follow)
{
    if (follow != Follow::Nothing)
        updateFish(follow == Follow::Rebuild);
    if (call.isAlive())
        call.mark(Call::Otherwise::Shown);
}

void FishEditor::execute(std::unique_ptr<UndoCommand> command, Follow follow)
{
    const Call call(this,
                    follow == Follow::Nothing ? Call::AtItsEnd::Nothing : Call::AtItsEnd::LaysOut);
    if (push(call, std::move(command)))
        finish(call, follow);
}

/// Runs a command outside the history.
void FishEditor::executeOnce(UndoCommand &&command)
{
    const Call call(this, Call::AtItsEnd::LaysOut);
    command.redo();
    if (call.isAlive())
        finish(call, Follow::Layout);
}

bool FishEditor::run(std::unique_ptr<UndoCommand> command)
{
    if (!command)
        return false;
    const Call call(this, Call::AtItsEnd::LaysOut);
    if (!push(call, std::move(command)))
        return false;
    updateFish(false);
    const bool hasChanges = call.isAlive() && call.hasChanges();
    if (hasChanges)
        call.mark(Call::Otherwise::Nothing);
    return hasChanges;
}

bool FishEditor::canUndo() const
{
    return m_d->undoStack->canUndo();
}

bool FishEditor::canRedo() const
{
    return m_d->undoStack->canRedo();
}

void FishEditor::undo()
{
    step(&UndoStack::undo);
}

void FishEditor::redo()
{
    step(&UndoStack::redo);
}

void FishEditor::step(void (UndoStack::*side)())
{
    const Call call(this, Call::AtItsEnd::LaysOut);
    m_d->stackOwner.expectOwnCall();
    (m_d->undoStack->*side)();
    if (call.isAlive())
        updateFish(true);
    if (call.isAlive())
        call.mark(Call::Otherwise::Nothing);
}

void FishEditor::insertSubject()
{
    const QModelIndex index = ownIndex(firstSelectedSpearIndex());
    if (index.isValid())
        execute(std::make_unique<InsertFront>(m_d->model, index));
}

void FishEditor::appendSubject()
{
    const QModelIndex index = ownIndex(firstSelectedSpearIndex());
    if (index.isValid())
        execute(std::make_unique<InsertBack>(m_d->model, index));
}

void FishEditor::insertChildSubject()
{
    const QModelIndex index = ownIndex(firstSelectedSpearIndex());
    if (index.isValid())
        execute(std::make_unique<InsertChild>(m_d->model, index));
}

void FishEditor::insertParentSubject()
{
    const QModelIndex index = ownIndex(firstSelectedSpearIndex());
    if (index.isValid())
        execute(std::make_unique<InsertParent>(m_d->model, index));
}

void FishEditor::insertChildSubject(const QModelIndex &parent, TreeItem *item)
{
    const QModelIndex index = ownIndex(parent);
    if (!index.isValid() || !item || !fishModel())
        return;
    auto command = std::make_unique<InsertChild>(m_d->model, index);
    command->setTreeItem(item);
    execute(std::move(command));
}

void FishEditor::insertFreeSubject()
{
    executeOnce(InsertFree(m_d->model));
}

void FishEditor::editSubject(const QModelIndex &index, TreeItem *item)
{
    FishModel *const model = fishModel();
    const QModelIndex own = ownIndex(index);
    if (own.isValid() && item && model)
        executeOnce(EditModify(model, own, item));
}

void FishEditor::deleteItem(const QModelIndex &index)
{
    FishModel *const model = fishModel();
    const QModelIndex own = ownIndex(index);
    if (own.isValid() && model)
        execute(std::make_unique<EditDelete>(model, own));
}

void FishEditor::deleteSubject(const QModelIndex &index)
{
    deleteItem(index);
}

void FishEditor::deleteSubjects(const QJsonObject &objects, const QList<TreeItem *> &subjects)
{
    FishModel *const model = fishModel();
    if (objects.isEmpty() || !model)
        return;
    auto command = std::make_unique<EditDelete>(model, objects, subjects);
    command->setDocument(currentFishInfo());
    execute(std::move(command));
}

void FishEditor::deleteItems(const QJsonObject &objects)
{
    deleteSubjects(objects, {});
}

void FishEditor::del()
{
    QJsonObject objects;
    selectedObjects(objects);
    deleteSubjects(objects, subjectsOf(selectedItems()));
}

void FishEditor::cut()
{
    const Call call(this);
    // What is cut is what was copied, whatever a listener selects, copies or deletes meanwhile.
    std::vector<GuardedPointer<TreeItem>> subjects;
    const QList<TreeItem *> selected = subjectsOf(selectedItems());
    subjects.assign(selected.cbegin(), selected.cend());
    QJsonObject objects;
    selectedObjects(objects);
    const QPointer<QAbstractItemModel> model = m_d->model;
    storeCopy(objects);
    if (!call.isAlive() || m_d->model != model)
        return;
    QList<TreeItem *> living;
    for (const GuardedPointer<TreeItem> &subject : subjects)
        living.append(subject.get());
    deleteSubjects(objects, living);
}

void FishEditor::copy()
{
    copyItemToClipBoard();
}

void FishEditor::paste()
{
    pasteItem(firstSelectedSpearIndex());
}

void FishEditor::pasteItem(const QModelIndex &index)
{
    FishModel *const model = fishModel();
    const QModelIndex own = ownIndex(index);
    if (!own.isValid() || !hasClipBoardData() || !model)
        return;
    auto command = std::make_unique<EditPaste>(model, own, m_d->copyBuffer);
    command->setPasteAsNew(m_d->pasteAsNew);
    execute(std::move(command), Follow::Rebuild);
}

void FishEditor::renameItem(const QModelIndex &index, const QString &name)
{
    const QModelIndex own = ownIndex(index);
    if (own.isValid())
        execute(std::make_unique<ModifyName>(m_d->model, own, name), Follow::Nothing);
}

void FishEditor::updateLinkOf(const QModelIndex &index) const
{
    if (SpearItem *const spear = spearOf(index))
        updateLinkItem(spear);
}

void FishEditor::changeLink(std::unique_ptr<UndoCommand> command,
                            const QPersistentModelIndex &index)
{
    const Call call(this);
    if (!push(call, std::move(command)))
        return;
    updateLinkOf(index);
    finish(call, Follow::Nothing);
}

void FishEditor::modifyLink()
{
    const QPersistentModelIndex index = ownIndex(firstSelectedSpearIndex());
    if (!index.isValid())
        return;
    // The dialog runs an event loop, in which the host may edit, unload or destroy what is shown.
    const QPointer<FishEditor> alive(this);
    const QUrl url = URLDialog::linkToUrlDialog(currItemUrl(), this);
    if (alive && url.isValid() && ownIndex(index).isValid())
        changeLink(std::make_unique<ModifyLinkTo>(m_d->model, index, url.toString()), index);
}

void FishEditor::modifyDelLink()
{
    const QModelIndex index = ownIndex(firstSelectedSpearIndex());
    if (index.isValid())
        changeLink(std::make_unique<ModifyDelLink>(m_d->model, index), index);
}

QString FishEditor::currItemUrl() const
{
    const QModelIndex index = firstSelectedSpearIndex();
    return index.sibling(index.row(), linkColumn).data(Qt::DisplayRole).toString();
}

void FishEditor::modifyOpenLink()
{
    const QString url = currItemUrl();
    if (!url.isEmpty())
        LinkItem::open(url);
}

void FishEditor::setSpearStyle()
{
    const SpearItem *const spear = firstSelectedSpear();
    if (!spear || !spear->treeItem())
        return;
    const QPointer<FishEditor> alive(this);
    spear->treeItem()->setSpearStyle();
    if (alive)
        updateFish(false);
}

void FishEditor::delSpearStyle()
{
    const SpearItem *const spear = firstSelectedSpear();
    if (!spear || !spear->treeItem())
        return;
    spear->treeItem()->delSpearStyle();
    updateFish(false);
}
