// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// What FishEditor offers for what is selected, and for changing subjects.

#include <fishbone/editor/fisheditor.h>

#include <QMimeData>

#include <fishbone/editor/boneselection.h>
#include <fishbone/editor/editorcall.h>
#include <fishbone/editor/fisheditor_p.h>
#include <fishbone/editor/fishscene.h>
#include <fishbone/editor/graphicsview.h>
#include <fishbone/editor/subjectsnapshot.h>
#include <fishbone/undo/undocommand.h>
#include <fishbone/undo/undostack.h>

QList<QGraphicsItem *> FishEditor::selectedItems() const
{
    return m_d->drawing.selectedItems();
}

bool FishEditor::hasSelection() const
{
    return !scene()->selectedItems().isEmpty();
}

SpearItem *FishEditor::firstSelectedSpear() const
{
    return m_d->drawing.selectedSpear();
}

QModelIndex FishEditor::firstSelectedSpearIndex() const
{
    return m_d->drawing.selectedIndex();
}

void FishEditor::selectSpears(const QList<SpearItem *> &spears)
{
    const EditorCall call(m_d->calls);
    BoneSelection::select(*scene(), spears);
}

void FishEditor::selectAll()
{
    const EditorCall call(m_d->calls);
    BoneSelection::selectAll(*scene());
}

void FishEditor::sceneSelectionChanged()
{
    m_d->calls.noteSelection();
}

void FishEditor::excludeCenterSubject(QList<QGraphicsItem *> &items)
{
    BoneSelection::removeTops(items);
}

void FishEditor::excludeChildSubject(QList<QGraphicsItem *> &items)
{
    BoneSelection::removeNested(items);
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
    m_d->runner.undo();
}

void FishEditor::redo()
{
    m_d->runner.redo();
}

bool FishEditor::run(std::unique_ptr<UndoCommand> command)
{
    return m_d->runner.run(std::move(command));
}

void FishEditor::insertSubject()
{
    m_d->edits.insertBefore();
}

void FishEditor::appendSubject()
{
    m_d->edits.insertAfter();
}

void FishEditor::insertChildSubject()
{
    m_d->edits.insertChild();
}

void FishEditor::insertParentSubject()
{
    m_d->edits.insertParent();
}

void FishEditor::insertChildSubject(const QModelIndex &parent, TreeItem *item)
{
    m_d->edits.insertChild(parent, item);
}

void FishEditor::insertFreeSubject()
{
    m_d->edits.insertFree();
}

void FishEditor::editSubject(const QModelIndex &index, TreeItem *item)
{
    m_d->edits.edit(index, item);
}

void FishEditor::renameItem(const QModelIndex &index, const QString &name)
{
    m_d->edits.rename(index, name);
}

void FishEditor::deleteItem(const QModelIndex &index)
{
    m_d->edits.remove(index);
}

void FishEditor::deleteSubject(const QModelIndex &index)
{
    m_d->edits.remove(index);
}

void FishEditor::deleteItems(const QJsonObject &objects)
{
    m_d->edits.remove(objects);
}

void FishEditor::del()
{
    m_d->edits.removeSelected();
}

void FishEditor::cut()
{
    m_d->edits.cutSelected();
}

void FishEditor::copy()
{
    copyItemToClipBoard();
}

void FishEditor::paste()
{
    m_d->edits.paste(firstSelectedSpearIndex());
}

void FishEditor::pasteItem(const QModelIndex &index)
{
    m_d->edits.paste(index);
}

bool FishEditor::hasClipBoardData() const
{
    return m_d->edits.hasCopy();
}

void FishEditor::setPasteAsNew(bool pasteAsNew)
{
    m_d->edits.setPasteAsNew(pasteAsNew);
}

void FishEditor::copyItemToClipBoard()
{
    m_d->edits.copySelected();
}

void FishEditor::selectedObjects(QJsonObject &objects) const
{
    objects = m_d->edits.selectedSnapshot();
}

void FishEditor::saveObjects(QJsonObject &objects, const QList<QGraphicsItem *> &items) const
{
    objects = SubjectSnapshot::of(BoneSelection::subjects(items));
}

void FishEditor::insertItem(const QModelIndex &index, QAbstractItemModel *model,
                            const QModelIndex &parent)
{
    Q_UNUSED(index)
    Q_UNUSED(model)
    Q_UNUSED(parent)
}

bool FishEditor::pasteItemFromClipBoard()
{
    return false;
}

void FishEditor::setSpearStyle()
{
    m_d->edits.editStyle();
}

void FishEditor::delSpearStyle()
{
    m_d->edits.removeStyle();
}

QString FishEditor::currItemUrl() const
{
    return m_d->links.url();
}

void FishEditor::modifyLink()
{
    m_d->links.ask();
}

void FishEditor::modifyDelLink()
{
    m_d->links.remove();
}

void FishEditor::modifyOpenLink()
{
    m_d->links.open();
}

TreeItem *FishEditor::treeItemFromMimeData(const QMimeData *mimeData) const
{
    return m_d->moves.carriedBy(mimeData);
}

void FishEditor::moveItems(const QPoint &pos, const QList<QGraphicsItem *> &srcs,
                           const QModelIndex &target, int row)
{
    Q_UNUSED(pos)
    m_d->moves.move(srcs, target, row);
}

void FishEditor::onDropTo(const QMimeData *mimeData, const QModelIndex &indexTo, int row)
{
    const bool isFromView = sender() == m_d->view;
    m_d->moves.drop(mimeData, indexTo, row,
                    isFromView ? SubjectMoves::Came::Queued : SubjectMoves::Came::AtOnce);
}
