// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/editor/shownsubject.h>

#include <QAbstractProxyModel>

#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>

FishModel *ShownSubject::fishModel() const
{
    return qobject_cast<FishModel *>(m_model.data());
}

bool ShownSubject::isOfModel() const
{
    return m_index.isValid() && m_index.model() == fishModel();
}

FishInfo *ShownSubject::document() const
{
    // What is shown may come from a model set earlier, whose rows are not those of this one.
    if (!isOfModel())
        return nullptr;
    QModelIndex top = m_index;
    while (top.parent().isValid())
        top = top.parent();
    return fishModel()->fishList().value(top.row());
}

QModelIndex ShownSubject::ownIndex(QModelIndex index) const
{
    while (index.isValid() && index.model() != m_model) {
        const auto *const proxy = qobject_cast<const QAbstractProxyModel *>(index.model());
        index = proxy ? proxy->mapToSource(index) : QModelIndex();
    }
    return index;
}

TreeItem *ShownSubject::subjectOf(const QModelIndex &index) const
{
    const FishModel *const model = fishModel();
    return model ? model->getTreeItem(ownIndex(index)) : nullptr;
}
