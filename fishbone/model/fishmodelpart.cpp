// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/fishmodelpart.h>

#include <fishbone/model/fishinfo_p.h>
#include <fishbone/model/fishmodel_p.h>

DocumentList &FishModel::Part::documents() const
{
    return m_model.m_d->documents;
}

FishModel::Announcer &FishModel::Part::announcer() const
{
    return m_model.m_d->announcer;
}

int FishModel::Part::rowsBelow(const TreeItem *node) const
{
    return node ? node->childCount() : documents().count();
}

bool FishModel::Part::resolve(const QModelIndex &parent, TreeItem **node) const
{
    *node = m_model.getTreeItem(parent);
    return *node || !parent.isValid();
}

FishModel *FishModel::Part::ownerOf(const FishInfo *document)
{
    return document ? document->m_d->owner : nullptr;
}

bool FishModel::Part::canEnter(const TreeItem *item)
{
    return !item->document() && !ownerOf(item->root()->document());
}
