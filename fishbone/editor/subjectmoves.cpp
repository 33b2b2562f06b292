// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/editor/subjectmoves.h>

#include <algorithm>

#include <QJsonObject>
#include <QMimeData>
#include <QPersistentModelIndex>

#include <fishbone/editor/boneselection.h>
#include <fishbone/editor/commandrunner.h>
#include <fishbone/editor/editorcall.h>
#include <fishbone/editor/shownroot.h>
#include <fishbone/editor/shownsubject.h>
#include <fishbone/editor/subjectsnapshot.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>
#include <fishbone/undo/structuralcommands.h>

SubjectMoves::SubjectMoves(const EditingStage &stage)
    : m_stage(stage)
{
}

TreeItem *SubjectMoves::carriedBy(const QMimeData *data) const
{
    const FishModel *const model = m_stage.shown.fishModel();
    if (!model || !data || !data->hasFormat(QStringLiteral("QModelIndexList")))
        return nullptr;
    const QModelIndexList indexes = model->indexList(data);
    return indexes.isEmpty() ? nullptr : model->getTreeItem(indexes.last());
}

/** Whether @p target is @p subject or stands below it. */
bool SubjectMoves::isWithin(const QModelIndex &target, const TreeItem *subject) const
{
    const TreeItem *const node = m_stage.shown.subjectOf(target);
    return subject && (node == subject || subject->isAncestorOf(node));
}

bool SubjectMoves::isRefused(const QGraphicsItem *item, const QModelIndex &target) const
{
    const auto *const spear = qgraphicsitem_cast<const SpearItem *>(item);
    return spear && (!spear->isMovable() || isWithin(target, spear->treeItem()));
}

void SubjectMoves::move(const QList<QGraphicsItem *> &items, const QModelIndex &target, int row)
{
    const EditorCall call(m_stage.calls);
    FishModel *const model = m_stage.shown.fishModel();
    const QPersistentModelIndex parent = model ? m_stage.shown.ownIndex(target) : QModelIndex();
    const auto isRefusedThere = [&](const QGraphicsItem *item) { return isRefused(item, parent); };
    // The mouse has dragged the items along already, so a refusal puts them back.
    if (!parent.isValid() || std::any_of(items.cbegin(), items.cend(), isRefusedThere)) {
        m_stage.root.update(false);
        return;
    }
    const QList<TreeItem *> subjects = BoneSelection::subjects(items);
    const QJsonObject snapshot = SubjectSnapshot::of(subjects);
    if (snapshot.isEmpty())
        return;
    auto command = std::make_unique<EditMove>(model, parent, row, snapshot, subjects);
    command->setDocument(m_stage.shown.document());
    if (!m_stage.runner.push(call, std::move(command)))
        return;
    m_stage.runner.finish(call, CommandRunner::Follow::Layout);
    if (call.isAlive())
        report(&SubjectMoves::moved, SubjectSnapshot::uuids(snapshot), parent);
}

void SubjectMoves::drop(const QMimeData *data, const QModelIndex &target, int row, Came came)
{
    const EditorCall call(m_stage.calls);
    FishModel *const model = m_stage.shown.fishModel();
    TreeItem *const carried = carriedBy(data);
    const QPersistentModelIndex parent = model ? livingTarget(target, came) : QModelIndex();
    if (!carried || !carried->spearItemIsMovable() || !parent.isValid() ||
        isWithin(parent, carried))
        return;
    carried->ensureUuid();
    const QString uuid = carried->uuid();
    QJsonObject snapshot;
    FishModel::write(snapshot, carried, true);
    // The command also makes the spears of a subject that was not shown here.
    EditMove command(model, parent, row, snapshot, {carried});
    command.setDocument(model->fishOf(carried));
    m_stage.runner.executeOnce(std::move(command));
    if (call.isAlive())
        report(&SubjectMoves::dropped, {uuid}, parent);
}

/** The target of a drop: it may have gone since, or stand in another row. */
QModelIndex SubjectMoves::livingTarget(const QModelIndex &index, Came came) const
{
    const FishModel *const model = m_stage.shown.fishModel();
    if (index.model() != model) // which may be gone by now when the drop has waited
        return came == Came::Queued ? QModelIndex() : m_stage.shown.ownIndex(index);
    const TreeItem *const under = model->getTreeItem(index);
    return under && model->contains(under) ? model->indexFromItem(under) : QModelIndex();
}

/** Only subjects of task diagrams are tasks that a host knows by their uuids. */
void SubjectMoves::report(void (SubjectMoves::*tell)(const QStringList &, const QString &),
                          const QStringList &uuids, const QModelIndex &parent)
{
    const FishModel *const model = m_stage.shown.fishModel();
    if (!model || model->modelType() != FISH_MODEL_NORMAL)
        return;
    const TreeItem *const subject = model->getTreeItem(parent);
    Q_EMIT(this->*tell)(uuids, subject ? subject->uuid() : QString());
}
