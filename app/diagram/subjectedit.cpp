// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/diagram/subjectedit.h>

#include <app/diagram/diagramsession.h>

#include <fishbone/dialogs/urldialog.h>
#include <fishbone/items/linkitem.h>
#include <fishbone/model/treeitem.h>
#include <fishbone/undo/attributecommands.h>
#include <fishbone/undo/editattributes.h>

#include <QJsonObject>
#include <QPersistentModelIndex>
#include <QUrl>

namespace SubjectEdit {

bool run(DiagramSession &session, std::unique_ptr<EditAttributes> command,
         const UndoCommand::Name &name)
{
    if (command->count() == 0)
        return false;
    command->setText(name);
    const bool isDone = session.editor()->run(std::move(command));
    session.touch();
    return isDone;
}

bool apply(DiagramSession &session, const QModelIndex &index, const UndoCommand::Name &name,
           const std::function<void(TreeItem &)> &change)
{
    return applyToAll(session, {index}, name, change);
}

bool applyToAll(DiagramSession &session, const QModelIndexList &indexes,
                const UndoCommand::Name &name, const std::function<void(TreeItem &)> &change)
{
    return changeAll(session, indexes, name, [&change](const QJsonObject &state) {
        TreeItem draft(state);
        change(draft);
        return EditAttributes::stateOf(draft);
    });
}

bool changeAll(DiagramSession &session, const QModelIndexList &indexes,
               const UndoCommand::Name &name,
               const std::function<QJsonObject(const QJsonObject &state)> &change)
{
    auto command = std::make_unique<EditAttributes>(session.model());
    for (const QModelIndex &index : indexes) {
        const TreeItem *const subject = session.model()->getTreeItem(index);
        if (!subject)
            continue;
        const QJsonObject before = EditAttributes::stateOf(*subject);
        command->add(index, before, change(before));
    }
    return run(session, std::move(command), name);
}

void editLink(DiagramSession &session, const QModelIndex &index)
{
    const TreeItem *const subject = session.model()->getTreeItem(index);
    if (!subject)
        return;
    const QPersistentModelIndex edited = index; // the dialog runs an event loop
    const QUrl url = URLDialog::linkToUrlDialog(subject->url(), session.editor());
    if (url.isValid())
        apply(
            session, edited, [] { return ModifyLinkTo::tr("Modify link to"); },
            [&url](TreeItem &draft) { draft.setUrl(url.toString()); });
}

void openLink(const DiagramSession &session, const QModelIndex &index)
{
    const TreeItem *const subject = session.model()->getTreeItem(index);
    if (subject && !subject->url().isEmpty())
        LinkItem::open(subject->url());
}

} // namespace SubjectEdit
