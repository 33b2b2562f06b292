// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// The part of FishEditor that changes subjects.

#include <fishbone/editor/fisheditor.h>

#include <fishbone/dialogs/urldialog.h>
#include <fishbone/drawing/spearbuilder.h>
#include <fishbone/editor/fishscene.h>
#include <fishbone/editor/selectionhold.h>
#include <fishbone/items/linkitem.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/undo/attributecommands.h>
#include <fishbone/undo/structuralcommands.h>
#include <fishbone/undo/undostack.h>

namespace {
constexpr int linkColumn = 2; ///< the column whose text counts as a subject's link
} // namespace

/// Runs a command on the stack; false when a listener has ended the editor meanwhile.
bool FishEditor::execute(std::unique_ptr<UndoCommand> command)
{
    const QPointer<FishEditor> alive(this);
    {
        const SelectionHold hold(this);
        m_undoStack->push(command.release());
    }
    return !alive.isNull();
}

/// Runs a command outside the history; false when a listener has ended the editor meanwhile.
bool FishEditor::executeOnce(UndoCommand &&command)
{
    const QPointer<FishEditor> alive(this);
    command.redo();
    return !alive.isNull();
}

void FishEditor::afterEdit()
{
    updateFish(false);
    setModified(true);
}

bool FishEditor::canUndo() const
{
    return m_undoStack->canUndo();
}

bool FishEditor::canRedo() const
{
    return m_undoStack->canRedo();
}

void FishEditor::undo()
{
    const QPointer<FishEditor> alive(this);
    const SelectionHold hold(this);
    m_undoStack->undo();
    if (alive)
        updateFish(true);
}

void FishEditor::redo()
{
    const QPointer<FishEditor> alive(this);
    const SelectionHold hold(this);
    m_undoStack->redo();
    if (alive)
        updateFish(true);
}

void FishEditor::insertSubject()
{
    const QModelIndex index = firstSelectedSpearIndex();
    if (!index.isValid())
        return;
    if (execute(std::make_unique<InsertFront>(m_model, index)))
        afterEdit();
}

void FishEditor::appendSubject()
{
    const QModelIndex index = firstSelectedSpearIndex();
    if (!index.isValid())
        return;
    if (execute(std::make_unique<InsertBack>(m_model, index)))
        afterEdit();
}

void FishEditor::insertChildSubject()
{
    const QModelIndex index = firstSelectedSpearIndex();
    if (!index.isValid())
        return;
    if (execute(std::make_unique<InsertChild>(m_model, index)))
        afterEdit();
}

void FishEditor::insertParentSubject()
{
    const QModelIndex index = firstSelectedSpearIndex();
    if (!index.isValid())
        return;
    if (execute(std::make_unique<InsertParent>(m_model, index)))
        afterEdit();
}

void FishEditor::insertChildSubject(const QModelIndex &parent, TreeItem *item)
{
    if (!parent.isValid() || !item || !fishModel())
        return;
    auto command = std::make_unique<InsertChild>(m_model, parent);
    command->setTreeItem(item);
    if (execute(std::move(command)))
        afterEdit();
}

void FishEditor::insertFreeSubject()
{
    if (executeOnce(InsertFree(m_model)))
        afterEdit();
}

void FishEditor::editSubject(const QModelIndex &index, TreeItem *item)
{
    FishModel *const model = fishModel();
    if (!index.isValid() || !item || !model)
        return;
    executeOnce(EditModify(model, index, item)); // which nobody hears of
    afterEdit();
}

void FishEditor::deleteItem(const QModelIndex &index)
{
    FishModel *const model = fishModel();
    if (!index.isValid() || !model)
        return;
    if (execute(std::make_unique<EditDelete>(model, index)))
        afterEdit();
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
    if (execute(std::move(command)))
        afterEdit();
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
    const QPointer<FishEditor> alive(this);
    copyItemToClipBoard();
    if (alive)
        deleteSubjects(m_copyBuffer, subjectsOf(selectedItems()));
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
    if (!index.isValid() || !hasClipBoardData() || !model)
        return;
    auto command = std::make_unique<EditPaste>(model, index, m_copyBuffer);
    command->setPasteAsNew(m_pasteAsNew);
    if (!execute(std::move(command)))
        return;
    const SelectionHold hold(this);
    updateFish(true);
    setModified(true);
}

void FishEditor::renameItem(const QModelIndex &index, const QString &name)
{
    if (!index.isValid())
        return;
    if (execute(std::make_unique<ModifyName>(m_model, index, name)))
        setModified(true);
}

void FishEditor::updateLinkOf(const QModelIndex &index) const
{
    if (SpearItem *const spear = spearOf(index))
        updateLinkItem(spear);
}

void FishEditor::modifyLink()
{
    const QPersistentModelIndex index = firstSelectedSpearIndex();
    if (!index.isValid())
        return;
    // The dialog runs an event loop, in which the host may edit, unload or destroy what is shown.
    const QPointer<FishEditor> alive(this);
    const QUrl url = URLDialog::linkToUrlDialog(currItemUrl(), this);
    if (!alive || !url.isValid() || !index.isValid())
        return;
    if (!execute(std::make_unique<ModifyLinkTo>(m_model, index, url.toString())))
        return;
    updateLinkOf(index);
    setModified(true);
}

void FishEditor::modifyDelLink()
{
    const QModelIndex index = firstSelectedSpearIndex();
    if (!index.isValid())
        return;
    if (!execute(std::make_unique<ModifyDelLink>(m_model, index)))
        return;
    updateLinkOf(index);
    setModified(true);
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

void FishEditor::selectAll()
{
    const int selected = m_scene->selectedItems().count();
    {
        // One report for all of them: each one costs its listeners a look at the whole selection.
        const QSignalBlocker blocker(m_scene.get());
        const QList<QGraphicsItem *> items = m_scene->items();
        for (QGraphicsItem *item : items)
            item->setSelected(true);
    }
    if (m_scene->selectedItems().count() != selected)
        Q_EMIT m_scene->selectionChanged();
}
