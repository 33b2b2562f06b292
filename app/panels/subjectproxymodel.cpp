// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/panels/subjectproxymodel.h>

#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>

SubjectProxyModel::SubjectProxyModel(QObject *parent)
    : FishProxyModel(parent)
{
    setFilterCaseSensitivity(Qt::CaseInsensitive);
}

Qt::ItemFlags SubjectProxyModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags base = FishProxyModel::flags(index);
    const auto *const model = qobject_cast<const FishModel *>(sourceModel());
    const TreeItem *const subject = model ? model->getTreeItem(mapToSource(index)) : nullptr;
    const bool draggable = subject && !subject->isTopVaildItem() && subject->spearItemIsMovable();
    return draggable ? base | Qt::ItemIsDragEnabled : base;
}

void SubjectProxyModel::setShown(const std::optional<QSet<const TreeItem *>> &subjects)
{
    m_shown = subjects;
    invalidateFilter();
}

bool SubjectProxyModel::filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const
{
    const auto *const model = qobject_cast<const FishModel *>(sourceModel());
    if (m_shown && model && sourceParent.isValid() &&
        !m_shown->contains(model->getTreeItem(model->index(sourceRow, 0, sourceParent))))
        return false;
    return FishProxyModel::filterAcceptsRow(sourceRow, sourceParent);
}
