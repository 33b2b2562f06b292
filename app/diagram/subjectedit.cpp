// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/diagram/subjectedit.h>

#include <app/diagram/diagramsession.h>

#include <fishbone/dialogs/urldialog.h>
#include <fishbone/items/linkitem.h>
#include <fishbone/model/treeitem.h>
#include <fishbone/undo/attributecommands.h>
#include <fishbone/undo/editattributes.h>

#include <QCoreApplication>
#include <QJsonObject>
#include <QUrl>

#include <memory>

namespace {

/** Pushes @p command as a step named @p name, unless it changes nothing. */
bool push(DiagramSession &session, std::unique_ptr<EditAttributes> command,
          const UndoCommand::Name &name)
{
    if (command->count() == 0)
        return false;
    command->setText(name);
    const bool isDone = session.editor()->run(std::move(command));
    session.touch();
    return isDone;
}

/** Pushes the step from @p before to @p after, unless they are the same. */
bool push(DiagramSession &session, const QModelIndex &index, const UndoCommand::Name &name,
          const QJsonObject &before, const QJsonObject &after)
{
    return push(session, std::make_unique<EditAttributes>(session.model(), index, before, after),
                name);
}

} // namespace

namespace SubjectEdit {

bool apply(DiagramSession &session, const QModelIndex &index, const UndoCommand::Name &name,
           const std::function<void(TreeItem &)> &change)
{
    return applyToAll(session, {index}, name, change);
}

bool applyToAll(DiagramSession &session, const QModelIndexList &indexes,
                const UndoCommand::Name &name, const std::function<void(TreeItem &)> &change)
{
    auto command = std::make_unique<EditAttributes>(session.model());
    for (const QModelIndex &index : indexes) {
        const TreeItem *const subject = session.model()->getTreeItem(index);
        if (!subject)
            continue;
        const QJsonObject before = EditAttributes::stateOf(*subject);
        TreeItem draft(before);
        change(draft);
        command->add(index, before, EditAttributes::stateOf(draft));
    }
    return push(session, std::move(command), name);
}

bool replace(DiagramSession &session, const QModelIndex &index, const UndoCommand::Name &name,
             const QJsonObject &state)
{
    const TreeItem *const subject = session.model()->getTreeItem(index);
    return subject && push(session, index, name, EditAttributes::stateOf(*subject), state);
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

void editStyle(DiagramSession &session, const QModelIndex &index)
{
    TreeItem *const subject = session.model()->getTreeItem(index);
    if (!subject)
        return;
    // The dialog runs an event loop, in which the subject may go.
    const QPersistentModelIndex edited = index;
    const QJsonObject before = EditAttributes::stateOf(*subject);
    subject->setSpearStyle();
    const TreeItem *const after = session.model()->getTreeItem(edited);
    if (!after)
        return;
    // Only the style: meanwhile something else may have become of the rest.
    const QLatin1String key("spearstyle");
    QJsonObject styled = before;
    styled.insert(key, EditAttributes::stateOf(*after).value(key).toObject());
    QJsonObject plain = before;
    plain.insert(key, before.value(key).toObject());
    push(
        session, edited, [] { return QCoreApplication::translate("SubjectEdit", "Change style"); },
        plain, styled);
}

void removeStyle(DiagramSession &session, const QModelIndex &index)
{
    apply(
        session, index, [] { return QCoreApplication::translate("SubjectEdit", "Remove style"); },
        [](TreeItem &subject) { subject.delSpearStyle(); });
}

} // namespace SubjectEdit
