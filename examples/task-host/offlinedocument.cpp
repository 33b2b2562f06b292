// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <offlinedocument.h>

#include <modeltree.h>
#include <tasktree.h>

#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>

#include <QJsonDocument>

namespace {

const QString &revisionKey()
{
    static const QString key = QStringLiteral("taskHostRevision");
    return key;
}

} // namespace

QByteArray OfflineDocument::write(const FishModel &model, const QModelIndex &head, qint64 revision)
{
    QJsonObject document;
    FishModel::write(document, model.getTreeItem(head), true);
    if (document.isEmpty())
        return {};
    document.insert(revisionKey(), double(revision));
    return QJsonDocument(document).toJson();
}

TaskMerge::Result OfflineDocument::merge(const TaskMap &known, const QByteArray &document)
{
    FishModel draft;
    draft.loadJsonFish(document);
    TreeItem *const head = draft.getFishHeadTreeItem();
    if (!head)
        return {known, {}};
    QJsonObject others = head->otherFields();
    const qint64 revision = qint64(others.take(revisionKey()).toDouble(-1));
    head->setOtherFields(others);

    TaskMap mine = ModelTree::read(draft, known);
    TaskMap base;
    const QStringList heads = TaskTree::children(mine).value(QString());
    for (const Task &task : known) {
        const bool isInDiagram = TaskTree::isWithin(known, task.uuid, heads.value(0));
        const bool isUnchanged = task.version <= revision;
        if (!mine.contains(task.uuid) && !(isInDiagram && isUnchanged))
            mine.insert(task.uuid, task); // of other diagrams, or newer than the document
        if (!isInDiagram || isUnchanged)
            base.insert(task.uuid, task);
    }
    return TaskMerge::merge(base, known, mine);
}
