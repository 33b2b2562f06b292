// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// The part of FishEditor that moves subjects to another place.

#include <fishbone/editor/fisheditor.h>

#include <algorithm>

#include <QJsonObject>

#include <fishbone/editor/editorcall.h>
#include <fishbone/editor/fisheditor_p.h>
#include <fishbone/editor/graphicsview.h>
#include <fishbone/editor/subjectsnapshot.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/undo/structuralcommands.h>
#include <fishbone/undo/undostack.h>

namespace {
bool isImmovable(const QGraphicsItem *item)
{
    const auto *const spear = qgraphicsitem_cast<const SpearItem *>(item);
    return spear && !spear->isMovable();
}
} // namespace

/// Whether \a target is \a subject or stands below it.
bool FishEditor::isWithin(const QModelIndex &target, const TreeItem *subject) const
{
    const TreeItem *const node = fishModel()->getTreeItem(target);
    return subject && (node == subject || subject->isAncestorOf(node));
}

void FishEditor::moveItems(const QPoint &pos, const QList<QGraphicsItem *> &srcs,
                           const QModelIndex &target, int row)
{
    Q_UNUSED(pos)
    const Call call(this);
    FishModel *const model = fishModel();
    const QPersistentModelIndex parent = model ? ownIndex(target) : QModelIndex();
    const auto movesIntoItself = [&](const QGraphicsItem *item) {
        const auto *const spear = qgraphicsitem_cast<const SpearItem *>(item);
        return spear && isWithin(parent, spear->treeItem());
    };
    // The mouse has dragged the items along already, so a refusal puts them back.
    if (!parent.isValid() || std::any_of(srcs.cbegin(), srcs.cend(), isImmovable) ||
        std::any_of(srcs.cbegin(), srcs.cend(), movesIntoItself)) {
        updateFish(false);
        return;
    }
    QJsonObject snapshot;
    saveObjects(snapshot, srcs);
    if (snapshot.isEmpty())
        return;
    auto command = std::make_unique<EditMove>(model, parent, row, snapshot, subjectsOf(srcs));
    command->setDocument(currentFishInfo());
    if (!push(call, std::move(command)))
        return;
    finish(call, Follow::Layout);
    if (call.isAlive())
        reportNewParent(SubjectSnapshot::uuids(snapshot), parent, CHANGE_PARENT_BY_MOVE);
}

void FishEditor::onDropTo(const QMimeData *mimeData, const QModelIndex &indexTo, int row)
{
    const Call call(this);
    FishModel *const model = fishModel();
    TreeItem *const dropped = treeItemFromMimeData(mimeData);
    const QPersistentModelIndex target = model ? livingTarget(indexTo) : QModelIndex();
    if (!dropped || !dropped->spearItemIsMovable() || !target.isValid() ||
        isWithin(target, dropped))
        return;
    dropped->ensureUuid();
    const QString uuid = dropped->uuid();
    QJsonObject snapshot;
    FishModel::write(snapshot, dropped, true);
    // The command also makes the spears of a subject that was not shown here.
    EditMove command(model, target, row, snapshot, {dropped});
    command.setDocument(model->fishOf(dropped));
    executeOnce(std::move(command));
    if (call.isAlive())
        reportNewParent({uuid}, target, CHANGE_PARENT_BY_DROP);
}

/// The target of a drop, which was queued: it may have gone since, or stand in another row.
QModelIndex FishEditor::livingTarget(const QModelIndex &index) const
{
    const FishModel *const model = fishModel();
    if (index.model() != model) // which may be gone by now when the view has sent the index
        return sender() == m_d->view ? QModelIndex() : ownIndex(index);
    const TreeItem *const under = model->getTreeItem(index);
    return under && model->contains(under) ? model->indexFromItem(under) : QModelIndex();
}

void FishEditor::reportNewParent(const QStringList &children, const QModelIndex &parent,
                                 CHANGE_PARENT_TYPE type)
{
    const FishModel *const model = fishModel();
    if (!model || model->modelType() != FISH_MODEL_NORMAL)
        return;
    const TreeItem *const subject = model->getTreeItem(parent);
    Q_EMIT changeTaskParent(children, subject ? subject->uuid() : QString(), type);
}
