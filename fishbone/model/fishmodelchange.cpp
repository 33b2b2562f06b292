// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/fishmodelchange.h>

#include <fishbone/model/fishmodel_p.h>

#include <utility>

void FishModel::Announcer::note(const TreeItem *item)
{
    FishInfo *const document = m_model.fishOf(item);
    if (document || !item)
        m_model.m_d->changes.note(document);
}

/** Notes what a signal is sent for, while it still lives. */
void FishModel::Announcer::noteTold(const QModelIndex &index)
{
    const TreeItem *const item = m_model.getTreeItem(index);
    m_model.m_d->changes.noteTold(item, m_model.fishOf(item));
}

void FishModel::Announcer::tellData(const QModelIndex &first, const QModelIndex &last)
{
    noteTold(first);
    Q_EMIT m_model.dataChanged(first, last);
}

void FishModel::Announcer::tellNode(const QModelIndex &index)
{
    noteTold(index);
    Q_EMIT m_model.nodeChanged(index);
}

FishModel::Change FishModel::Announcer::inserting(const QModelIndex &parent, int first, int last)
{
    note(m_model.getTreeItem(parent));
    return Change(
        m_model, [&] { m_model.beginInsertRows(parent, first, last); },
        [](FishModel &model) { model.endInsertRows(); });
}

FishModel::Change FishModel::Announcer::removing(const QModelIndex &parent, int first, int last)
{
    note(m_model.getTreeItem(parent));
    return Change(
        m_model, [&] { m_model.beginRemoveRows(parent, first, last); },
        [](FishModel &model) { model.endRemoveRows(); });
}

FishModel::Change FishModel::Announcer::moving(const QModelIndex &from, int row, int count,
                                               const QModelIndex &to, int before)
{
    note(m_model.getTreeItem(from));
    note(m_model.getTreeItem(to));
    return Change(
        m_model, [&] { m_model.beginMoveRows(from, row, row + count - 1, to, before); },
        [](FishModel &model) { model.endMoveRows(); });
}

FishModel::Change FishModel::Announcer::resetting()
{
    return Change(
        m_model, [this] { m_model.beginResetModel(); },
        [](FishModel &model) { model.endResetModel(); });
}

FishModel::Change FishModel::Announcer::arranging()
{
    return Change(
        m_model, [this] { Q_EMIT m_model.layoutAboutToBeChanged(); },
        [](FishModel &model) { Q_EMIT model.layoutChanged(); });
}

void FishModel::Announcer::whenChanged(const std::function<void()> &action)
{
    if (isAnnouncing())
        m_waiting.push_back(action);
    else
        action();
}

/** Does what has waited; each may end the model. */
void FishModel::Announcer::runWaiting()
{
    const QPointer<FishModel> alive(&m_model);
    while (alive && !isAnnouncing() && !m_waiting.empty()) {
        const std::function<void()> action = std::move(m_waiting.front());
        m_waiting.erase(m_waiting.begin());
        action();
    }
}

FishModel::Announcer &FishModel::Change::beginTreeChange(FishModel &model)
{
    model.m_d->changes.noteTreeChange();
    return model.m_d->announcer;
}

FishModel::Change::~Change()
{
    const QPointer<FishModel> alive(m_model);
    m_end(*m_model);
    if (alive)
        alive->m_d->announcer.runWaiting();
}
