// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <deskmodel.h>

#include <fishbone/model/treeitem.h>

QVariant DeskModel::data(const QModelIndex &index, int role) const
{
    const bool isTitle = role == Qt::DisplayRole && index.column() == 0;
    const TreeItem *const task = isTitle ? getTreeItem(index) : nullptr;
    return task ? task->title() : FishModel::data(index, role);
}
