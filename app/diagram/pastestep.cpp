// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/diagram/pastestep.h>

#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>
#include <fishbone/undo/commandgroup.h>
#include <fishbone/undo/editattributes.h>
#include <fishbone/undo/structuralcommands.h>

#include <QJsonArray>
#include <QJsonObject>

namespace {

const QLatin1String childrenKey("children"); // of the diagram format, as the next ones
const QLatin1String uuidKey("uuid");
const QLatin1String pidKey("pid");

std::unique_ptr<EditPaste> pastedBelow(FishModel *model, const QModelIndex &target,
                                       const QJsonObject &subjects)
{
    auto command = std::make_unique<EditPaste>(model, target, subjects);
    command->setPasteAsNew(true);
    return command;
}

/** @p children with @p pid as that of each. */
QJsonArray broughtUnder(const QString &pid, QJsonArray children)
{
    for (QJsonValueRef child : children) {
        QJsonObject object = child.toObject();
        object.insert(pidKey, pid);
        child = object;
    }
    return children;
}

} // namespace

bool PasteStep::replacesHead(const FishInfo *document, const QJsonObject &subjects)
{
    const TreeItem *const head = document ? document->treeItem()->childAtIndex(0) : nullptr;
    return subjects.value(childrenKey).toArray().size() == 1 && head && head->childCount() == 0 &&
           document->isUntitled() && !document->modified();
}

std::unique_ptr<UndoCommand> PasteStep::ofHead(FishModel *model, const QModelIndex &head,
                                               const QJsonObject &subjects)
{
    QJsonObject subject = subjects.value(childrenKey).toArray().at(0).toObject();
    TreeItem &item = *model->getTreeItem(head);
    item.ensureUuid();
    const QJsonArray children = broughtUnder(item.uuid(), subject.value(childrenKey).toArray());
    for (const QLatin1String key : {childrenKey, uuidKey, pidKey})
        subject.remove(key);
    auto paste = pastedBelow(model, head, {{childrenKey, children}});
    auto step = std::make_unique<CommandGroup>(paste->name());
    step->add(
        std::make_unique<EditAttributes>(model, head, EditAttributes::stateOf(item), subject));
    step->add(std::move(paste));
    return step;
}

std::unique_ptr<UndoCommand> PasteStep::below(FishModel *model, const QModelIndex &target,
                                              const QJsonObject &subjects)
{
    return pastedBelow(model, target, subjects);
}
