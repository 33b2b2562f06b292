// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <python/binding/scriptsubject.h>

#include <python/binding/scriptjson.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/undo/commandgroup.h>
#include <fishbone/undo/editattributes.h>
#include <fishbone/undo/structuralcommands.h>

#include <QApplication>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

std::unique_ptr<UndoCommand> moveOf(const ScriptSubject &subject, const ScriptSubject &target,
                                    int row)
{
    TreeItem *const item = subject.item();
    item->ensureUuid();
    const QJsonObject snapshot{{QStringLiteral("uuid"), item->uuid()}};
    return std::make_unique<EditMove>(target.model(), target.index(), row, snapshot,
                                      QList<TreeItem *>{item});
}

} // namespace

ScriptSubject::ScriptSubject(FishModel *model, TreeItem *item)
    : m_model(item ? model : nullptr)
    , m_cell(model && item ? item->guardCell() : nullptr)
{
}

TreeItem *ScriptSubject::item() const
{
    TreeItem *const item = m_cell ? *m_cell : nullptr;
    return item && m_model && m_model->indexFromItem(item).isValid() ? item : nullptr;
}

FishInfo *ScriptSubject::document() const
{
    TreeItem *const subject = item();
    return subject ? m_model->fishOf(subject) : nullptr;
}

bool ScriptSubject::isThere() const
{
    return item();
}

QString ScriptSubject::state() const
{
    TreeItem *const subject = item();
    return subject ? ScriptJson::textOf(EditAttributes::stateOf(*subject)) : QString();
}

QString ScriptSubject::identity() const
{
    TreeItem *const subject = item();
    if (!subject)
        return QString();
    subject->ensureUuid();
    return subject->uuid();
}

int ScriptSubject::childCount() const
{
    TreeItem *const subject = item();
    return subject ? subject->childCount() : 0;
}

ScriptSubject ScriptSubject::child(int row) const
{
    TreeItem *const subject = item();
    return subject ? ScriptSubject(m_model, subject->childAtIndex(row)) : ScriptSubject();
}

ScriptSubject ScriptSubject::parent() const
{
    TreeItem *const subject = item();
    return subject && !subject->isTopVaildItem() ? ScriptSubject(m_model, subject->parent())
                                                 : ScriptSubject();
}

int ScriptSubject::row() const
{
    return index().row();
}

QModelIndex ScriptSubject::index() const
{
    TreeItem *const subject = item();
    return subject ? m_model->indexFromItem(subject) : QModelIndex();
}

bool ScriptSubject::isSame(const ScriptSubject &other) const
{
    return m_cell == other.m_cell;
}

quint64 ScriptSubject::key() const
{
    return reinterpret_cast<quintptr>(m_cell.get());
}

bool ScriptSubject::edit(const QString &json) const
{
    TreeItem *const subject = item();
    if (!subject)
        return false;
    const QJsonObject before = EditAttributes::stateOf(*subject);
    QJsonObject after = before;
    const QJsonObject changes = ScriptJson::objectOf(json);
    for (auto change = changes.begin(); change != changes.end(); ++change) {
        if (change.value().isNull())
            after.remove(change.key());
        else
            after.insert(change.key(), change.value());
    }
    auto command = std::make_unique<EditAttributes>(m_model);
    if (!command->add(index(), before, after))
        return true;
    return run(std::move(command));
}

ScriptSubject ScriptSubject::insert(int row, const QString &json) const
{
    TreeItem *const above = item();
    if (!above)
        return ScriptSubject();
    const int end = above->childCount();
    // The command takes the node over, and keeps it while the step is undone.
    auto *const node = new TreeItem(ScriptJson::objectOf(json));
    node->ensureUuid();
    const ScriptSubject inserted(m_model, node);
    auto insertion = std::make_unique<InsertChild>(m_model, index());
    insertion->setTreeItem(node);
    auto group = std::make_unique<CommandGroup>(insertion->name());
    const QPointer<CommandGroup> step = group.get();
    // Where it shall stand is known by a command only once it is there. Both are one step.
    group->add(std::move(insertion));
    const QPointer<FishEditor> shown = editor();
    if (shown)
        run(std::unique_ptr<UndoCommand>(group.release())); // the history has it now
    else
        group->redo();
    if (step && row >= 0 && row < end && inserted.isThere() && isThere()) {
        step->add(moveOf(inserted, *this, row));
        if (shown)
            shown->updateFish(false);
    }
    if (FishInfo *const changed = document())
        changed->setModified(true);
    return inserted;
}

bool ScriptSubject::remove() const
{
    return isThere() && run(std::make_unique<EditDelete>(m_model, index()));
}

bool ScriptSubject::moveTo(const ScriptSubject &target, int row) const
{
    TreeItem *const subject = item();
    TreeItem *const above = target.item();
    if (!subject || !above || subject == above || target.m_model != m_model ||
        subject->isAncestorOf(above))
        return false;
    // Rows are counted with the subject still in its old place.
    const bool isForward = subject->parent() == above && row > subject->index();
    if (!run(moveOf(*this, target, isForward ? row + 1 : row)))
        return false;
    if (FishInfo *const changed = target.document()) // which may be another one
        changed->setModified(true);
    return true;
}

bool ScriptSubject::run(std::unique_ptr<UndoCommand> command) const
{
    if (FishEditor *const shown = editor())
        return shown->run(std::move(command));
    const QPointer<FishInfo> changed = document();
    command->redo();
    if (changed)
        changed->setModified(true);
    return true;
}

// A document is shown by one editor at most.
FishEditor *ScriptSubject::editor() const
{
    const FishInfo *const shown = document();
    const QWidgetList widgets = shown ? QApplication::allWidgets() : QWidgetList();
    for (QWidget *const widget : widgets) {
        auto *const editor = qobject_cast<FishEditor *>(widget);
        if (editor && editor->currentFishInfo() == shown)
            return editor;
    }
    return nullptr;
}
