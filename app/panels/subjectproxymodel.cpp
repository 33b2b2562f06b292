// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/panels/subjectproxymodel.h>

#include <app/diagram/marknames.h>

#include <fishbone/items/taskstatusinfo.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>

SubjectProxyModel::SubjectProxyModel(QObject *parent)
    : FishProxyModel(parent)
{
    setFilterCaseSensitivity(Qt::CaseInsensitive);
}

const TreeItem *SubjectProxyModel::subjectAt(const QModelIndex &index) const
{
    const auto *const model = qobject_cast<const FishModel *>(sourceModel());
    return model ? model->getTreeItem(mapToSource(index)) : nullptr;
}

QString SubjectProxyModel::statusIcon(const QModelIndex &index) const
{
    const TreeItem *const subject = subjectAt(index);
    if (!subject || subject->isTopVaildItem())
        return QString();
    return TaskStatusInfo(TaskStatus(subject->status()), subject->progress()).iconPath();
}

QString SubjectProxyModel::statusName(const QModelIndex &index) const
{
    return statusIcon(index).isEmpty() ? QString() : MarkNames::of(subjectAt(index)->status());
}

QVariant SubjectProxyModel::data(const QModelIndex &index, int role) const
{
    const QString path = role == Qt::DecorationRole ? statusIcon(index) : QString();
    if (path.isEmpty())
        return FishProxyModel::data(index, role);
    QIcon &icon = m_icons[path];
    if (icon.isNull())
        icon = QIcon(path);
    return icon;
}

Qt::ItemFlags SubjectProxyModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags base = FishProxyModel::flags(index) | Qt::ItemIsEditable;
    const TreeItem *const subject = subjectAt(index);
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

bool SubjectProxyModel::filterAcceptsColumn(int sourceColumn, const QModelIndex &sourceParent) const
{
    Q_UNUSED(sourceParent)
    return sourceColumn == 0;
}
