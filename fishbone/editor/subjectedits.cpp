// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/editor/subjectedits.h>

#include <vector>

#include <QPointer>

#include <fishbone/editor/boneselection.h>
#include <fishbone/editor/commandrunner.h>
#include <fishbone/editor/editorcall.h>
#include <fishbone/editor/showndrawing.h>
#include <fishbone/editor/shownroot.h>
#include <fishbone/editor/shownsubject.h>
#include <fishbone/editor/subjectsnapshot.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>
#include <fishbone/undo/attributecommands.h>
#include <fishbone/undo/structuralcommands.h>

SubjectEdits::SubjectEdits(const EditingStage &stage)
    : m_stage(stage)
{
}

template <typename Command>
void SubjectEdits::insertAtSelected()
{
    const QModelIndex index = m_stage.shown.ownIndex(m_stage.drawing.selectedIndex());
    if (index.isValid())
        m_stage.runner.execute(std::make_unique<Command>(m_stage.shown.model(), index));
}

void SubjectEdits::insertBefore()
{
    insertAtSelected<InsertFront>();
}

void SubjectEdits::insertAfter()
{
    insertAtSelected<InsertBack>();
}

void SubjectEdits::insertChild()
{
    insertAtSelected<InsertChild>();
}

void SubjectEdits::insertParent()
{
    insertAtSelected<InsertParent>();
}

void SubjectEdits::insertFree()
{
    m_stage.runner.executeOnce(InsertFree(m_stage.shown.model()));
}

void SubjectEdits::insertChild(const QModelIndex &parent, TreeItem *subject)
{
    FishModel *const model = m_stage.shown.fishModel();
    const QModelIndex own = m_stage.shown.ownIndex(parent);
    if (!own.isValid() || !subject || !model)
        return;
    auto command = std::make_unique<InsertChild>(model, own);
    command->setTreeItem(subject);
    m_stage.runner.execute(std::move(command));
}

void SubjectEdits::edit(const QModelIndex &index, TreeItem *source)
{
    FishModel *const model = m_stage.shown.fishModel();
    const QModelIndex own = m_stage.shown.ownIndex(index);
    if (own.isValid() && source && model)
        m_stage.runner.executeOnce(EditModify(model, own, source));
}

void SubjectEdits::rename(const QModelIndex &index, const QString &title)
{
    const QModelIndex own = m_stage.shown.ownIndex(index);
    if (own.isValid())
        m_stage.runner.execute(std::make_unique<ModifyName>(m_stage.shown.model(), own, title),
                               CommandRunner::Follow::Nothing);
}

void SubjectEdits::remove(const QModelIndex &index)
{
    FishModel *const model = m_stage.shown.fishModel();
    const QModelIndex own = m_stage.shown.ownIndex(index);
    if (own.isValid() && model)
        m_stage.runner.execute(std::make_unique<EditDelete>(model, own));
}

void SubjectEdits::removeSubjects(const QJsonObject &snapshot, const QList<TreeItem *> &subjects)
{
    FishModel *const model = m_stage.shown.fishModel();
    if (snapshot.isEmpty() || !model)
        return;
    auto command = std::make_unique<EditDelete>(model, snapshot, subjects);
    command->setDocument(m_stage.shown.document());
    m_stage.runner.execute(std::move(command));
}

void SubjectEdits::remove(const QJsonObject &snapshot)
{
    removeSubjects(snapshot, {});
}

void SubjectEdits::removeSelected()
{
    const QJsonObject snapshot = selectedSnapshot();
    removeSubjects(snapshot, BoneSelection::subjects(m_stage.drawing.selectedItems()));
}

QJsonObject SubjectEdits::selectedSnapshot() const
{
    return SubjectSnapshot::of(BoneSelection::subjects(m_stage.drawing.selectedItems()));
}

void SubjectEdits::store(const QJsonObject &snapshot)
{
    m_copy = snapshot;
    Q_EMIT copied(hasCopy());
}

void SubjectEdits::copySelected()
{
    store(selectedSnapshot());
}

void SubjectEdits::cutSelected()
{
    const EditorCall call(m_stage.calls);
    // What is cut is what was copied, whatever a listener selects, copies or deletes meanwhile.
    std::vector<GuardedPointer<TreeItem>> subjects;
    const QList<TreeItem *> selected = BoneSelection::subjects(m_stage.drawing.selectedItems());
    subjects.assign(selected.cbegin(), selected.cend());
    const QJsonObject snapshot = SubjectSnapshot::of(selected);
    const QPointer<QAbstractItemModel> model = m_stage.shown.model();
    store(snapshot);
    if (!call.isAlive() || m_stage.shown.model() != model)
        return;
    QList<TreeItem *> living;
    for (const GuardedPointer<TreeItem> &subject : subjects)
        living.append(subject.get());
    removeSubjects(snapshot, living);
}

void SubjectEdits::paste(const QModelIndex &index)
{
    FishModel *const model = m_stage.shown.fishModel();
    const QModelIndex own = m_stage.shown.ownIndex(index);
    if (!own.isValid() || !hasCopy() || !model)
        return;
    auto command = std::make_unique<EditPaste>(model, own, m_copy);
    command->setPasteAsNew(m_pasteAsNew);
    m_stage.runner.execute(std::move(command), CommandRunner::Follow::Rebuild);
}

void SubjectEdits::editStyle()
{
    const SpearItem *const spear = m_stage.drawing.selectedSpear();
    if (!spear || !spear->treeItem())
        return;
    const QPointer<SubjectEdits> alive(this); // the dialog runs an event loop
    spear->treeItem()->setSpearStyle();
    if (alive)
        m_stage.root.update(false);
}

void SubjectEdits::removeStyle()
{
    const SpearItem *const spear = m_stage.drawing.selectedSpear();
    if (!spear || !spear->treeItem())
        return;
    spear->treeItem()->delSpearStyle();
    m_stage.root.update(false);
}
