// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <modeltree.h>

#include <taskfields.h>
#include <tasktree.h>

#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>
#include <fishbone/undo/editattributes.h>
#include <fishbone/undo/structuralcommands.h>

#include <QSet>
#include <QUuid>

namespace {

/** All subjects of @p model, each behind the one above it. */
QList<TreeItem *> subjectsOf(const FishModel &model)
{
    QList<TreeItem *> subjects;
    const QList<FishInfo *> documents = model.fishList();
    for (const FishInfo *document : documents)
        subjects += document->treeItem()->childItems();
    for (int i = 0; i < subjects.size(); ++i)
        subjects += subjects.at(i)->childItems();
    return subjects;
}

QString parentOf(const TreeItem &subject)
{
    return subject.isTopVaildItem() ? QString() : subject.parent()->uuid();
}

/** How commands are told of subjects. */
QJsonObject nameOf(const TreeItem &subject)
{
    return {{QStringLiteral("uuid"), subject.uuid()}};
}

} // namespace

TaskMap ModelTree::read(FishModel &model, const TaskMap &known)
{
    TaskMap tasks;
    TaskChildren below;
    const QList<TreeItem *> subjects = subjectsOf(model);
    for (TreeItem *subject : subjects) {
        subject->ensureUuid();
        if (tasks.contains(subject->uuid()))
            subject->setUuid(QUuid::createUuid().toString());
        Task task = known.value(subject->uuid());
        task.uuid = subject->uuid();
        task.parent = parentOf(*subject);
        task.fields = TaskFields::of(*subject);
        tasks.insert(task.uuid, task);
        below[task.parent].append(task.uuid);
    }
    for (const QStringList &siblings : std::as_const(below))
        TaskTree::place(tasks, siblings, known);
    return tasks;
}

void ModelTree::show(FishModel &model, const TaskMap &target)
{
    ModelTree tree(model, target);
    tree.insertMissing();
    tree.arrange(QString());
    for (const QString &uuid : tree.m_order)
        tree.arrange(uuid);
    tree.removeOthers();
    tree.editFields();
}

ModelTree::ModelTree(FishModel &model, const TaskMap &target)
    : m_model(model)
    , m_target(target)
    , m_below(TaskTree::children(target))
    , m_order(TaskTree::preOrder(target))
{
    const QList<TreeItem *> subjects = subjectsOf(model);
    for (TreeItem *subject : subjects)
        m_items.insert(subject->uuid(), subject);
}

/** Whole branches go in at once, as one row each. */
void ModelTree::insertMissing()
{
    QSet<QString> fresh;
    QStringList tops;
    for (const QString &uuid : m_order) {
        if (m_items.contains(uuid))
            continue;
        const Task task = m_target.value(uuid);
        auto *const item = new TreeItem(task.fields);
        item->setUuid(uuid);
        item->setPid(task.parent);
        if (fresh.contains(task.parent))
            m_items.value(task.parent)->appendChild(item);
        else
            tops.append(uuid);
        m_items.insert(uuid, item);
        fresh.insert(uuid);
    }
    for (const QString &uuid : std::as_const(tops))
        insertTop(m_items.value(uuid), m_target.value(uuid).parent);
}

void ModelTree::insertTop(TreeItem *item, const QString &parent)
{
    if (parent.isEmpty()) {
        auto *const document = new FishInfo;
        document->treeItem()->appendChild(item);
        m_model.insertFish(m_model.rowCount(), document);
        return;
    }
    InsertChild command(&m_model, m_model.indexFromItem(m_items.value(parent)));
    command.setTreeItem(item);
    command.redo();
}

/** What stands below a task now and stays there. */
QVector<TreeItem *> ModelTree::standing(const QString &parent) const
{
    QVector<TreeItem *> items;
    const QStringList siblings = m_below.value(parent);
    for (const QString &uuid : siblings) {
        TreeItem *const item = m_items.value(uuid);
        if (parentOf(*item) == parent)
            items.append(item);
    }
    return items;
}

/**
 * Puts the tasks below @p parent in order; what is above it stands already, so that no move goes
 * below what moves.
 */
void ModelTree::arrange(const QString &parent)
{
    const QVector<TreeItem *> there = standing(parent);
    QVector<qint64> rows;
    for (const TreeItem *item : there)
        rows.append(m_model.indexFromItem(item).row());
    QSet<const TreeItem *> stays;
    const QVector<int> kept = TaskTree::ascending(rows);
    for (const int i : kept)
        stays.insert(there.at(i));

    const TreeItem *behind = nullptr;
    const QStringList siblings = m_below.value(parent);
    for (const QString &uuid : siblings) {
        TreeItem *const item = m_items.value(uuid);
        if (!stays.contains(item))
            move(item, m_items.value(parent), behind);
        behind = item;
    }
}

void ModelTree::move(TreeItem *item, TreeItem *parent, const TreeItem *behind)
{
    const int row = behind ? m_model.indexFromItem(behind).row() + 1 : 0;
    EditMove(&m_model, m_model.indexFromItem(parent), row, nameOf(*item), {item}).redo();
}

void ModelTree::removeOthers()
{
    const QList<TreeItem *> subjects = subjectsOf(m_model);
    QList<TreeItem *> tops; // whatever stays has moved out of them
    for (TreeItem *subject : subjects) {
        const QString parent = parentOf(*subject);
        if (!m_target.contains(subject->uuid()) && (parent.isEmpty() || m_target.contains(parent)))
            tops.append(subject);
    }
    for (TreeItem *subject : std::as_const(tops))
        EditDelete(&m_model, nameOf(*subject), {subject}).redo();
}

void ModelTree::editFields()
{
    EditAttributes edit(&m_model);
    for (const QString &uuid : m_order) {
        const QJsonObject now = TaskFields::of(*m_items.value(uuid));
        const QJsonObject wanted = m_target.value(uuid).fields;
        if (now != wanted)
            edit.add(m_model.indexFromItem(m_items.value(uuid)), now, wanted);
    }
    if (edit.count() > 0)
        edit.redo();
}
