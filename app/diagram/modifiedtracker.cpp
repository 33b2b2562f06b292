// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/diagram/modifiedtracker.h>

#include <fishbone/model/fishinfo.h>

ModifiedTracker::ModifiedTracker(FishModel *model, QObject *parent)
    : QObject(parent)
    , m_model(model)
{
    // Rows of the top level are documents: their coming and going changes none of them.
    connect(model, &FishModel::rowsInserted, this, &ModifiedTracker::mark);
    connect(model, &FishModel::rowsRemoved, this, &ModifiedTracker::mark);
    connect(model, &FishModel::dataChanged, this, &ModifiedTracker::mark);
    connect(model, &FishModel::rowsMoved, this,
            [this](const QModelIndex &from, int, int, const QModelIndex &to) {
                mark(from);
                if (to != from)
                    mark(to);
            });
}

void ModifiedTracker::mark(const QModelIndex &index)
{
    const TreeItem *const item = m_model->getTreeItem(index);
    FishInfo *const document = item ? m_model->fishOf(item) : nullptr;
    if (!document)
        return;
    document->setModified(true);
    Q_EMIT changed(document);
}
