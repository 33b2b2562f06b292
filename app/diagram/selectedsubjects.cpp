// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/diagram/selectedsubjects.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>

QModelIndexList SelectedSubjects::of(const FishEditor &editor)
{
    QModelIndexList indexes;
    const QList<QGraphicsItem *> items = editor.selectedItems();
    for (QGraphicsItem *item : items) {
        const auto *const spear = qgraphicsitem_cast<const SpearItem *>(item);
        if (spear && spear->treeItem())
            indexes.append(spear->modelIndex());
    }
    return indexes;
}

QList<SpearItem *> SelectedSubjects::spearsOf(const FishModel &model,
                                              const QList<QPersistentModelIndex> &indexes)
{
    QList<SpearItem *> spears;
    for (const QPersistentModelIndex &index : indexes) {
        const TreeItem *const subject = model.getTreeItem(index);
        if (SpearItem *const spear = subject ? subject->spear() : nullptr)
            spears.append(spear);
    }
    return spears;
}

void SelectedSubjects::select(FishEditor &editor, const FishModel &model,
                              const QList<QPersistentModelIndex> &indexes)
{
    editor.selectSpears(spearsOf(model, indexes));
}
