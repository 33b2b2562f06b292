// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/diagram/modelchanges.h>

#include <app/diagram/modifiedtracker.h>

ModelChanges::ModelChanges(FishModel *model, QObject *parent)
    : QObject(parent)
{
    auto *const tracker = new ModifiedTracker(model, this);
    connect(tracker, &ModifiedTracker::changed, this, [this](FishInfo *document) {
        m_document = document;
        Q_EMIT documentChanged();
        Q_EMIT happened();
    });
    connect(model, &FishModel::rowsInserted, this,
            [this, model](const QModelIndex &parentIndex, int first) {
                m_inserted = model->index(first, 0, parentIndex);
                Q_EMIT happened();
            });
    connect(model, &FishModel::rowsRemoved, this, [this](const QModelIndex &parentIndex) {
        m_removedFrom = parentIndex;
        Q_EMIT happened();
    });
    connect(model, &FishModel::modelReset, this, &ModelChanges::happened);
}

void ModelChanges::forget()
{
    m_inserted = QModelIndex();
    m_removedFrom = QModelIndex();
    m_document.clear();
}
