// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <python/binding/scriptselection.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/model/fishmodel.h>

QList<ScriptSubject> ScriptSelection::of(FishEditor *editor)
{
    QList<ScriptSubject> subjects;
    auto *const model = editor ? qobject_cast<FishModel *>(editor->model()) : nullptr;
    const QList<QGraphicsItem *> items =
        editor ? editor->selectedItems() : QList<QGraphicsItem *>();
    for (QGraphicsItem *const item : items) {
        auto *const spear = dynamic_cast<SpearItem *>(item);
        if (spear && model)
            subjects.append(ScriptSubject(model, model->getTreeItem(editor->spearIndex(spear))));
    }
    return subjects;
}

void ScriptSelection::select(FishEditor *editor, const QList<ScriptSubject> &subjects)
{
    QList<SpearItem *> spears;
    for (const ScriptSubject &subject : subjects) {
        const TreeItem *const item = subject.item();
        if (item && item->spear())
            spears.append(item->spear());
    }
    if (editor)
        editor->selectSpears(spears);
}
