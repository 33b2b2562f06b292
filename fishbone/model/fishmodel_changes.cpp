// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT
//
// How FishModel announces its changes, and what becomes of those that are wanted meanwhile.

#include <fishbone/model/fishmodel.h>

#include <fishbone/model/fishinfo.h>
#include <fishbone/model/modelchange.h>
#include <fishbone/model/treeitem.h>

#include <QVector>

#include <algorithm>
#include <utility>

namespace {

quint64 latestStamp = 0;

/** Every model there is. */
QVector<FishModel *> &livingModels()
{
    static QVector<FishModel *> models;
    return models;
}

} // namespace

/** Begins to take part in what concerns all models. */
void FishModel::join()
{
    livingModels().append(this);
}

void FishModel::part()
{
    livingModels().removeOne(this);
}

bool FishModel::isInAnyModel(const TreeItem *item)
{
    const QVector<FishModel *> &models = livingModels();
    return std::any_of(models.cbegin(), models.cend(),
                       [item](const FishModel *model) { return model->fishOf(item) != nullptr; });
}

quint64 FishModel::changeStamp()
{
    return latestStamp;
}

QList<QPointer<FishInfo>> FishModel::fishChangedSince(quint64 stamp)
{
    QList<QPointer<FishInfo>> changed;
    for (const FishModel *model : qAsConst(livingModels())) {
        if (model->m_lastStamp <= stamp)
            continue;
        for (FishInfo *document : model->m_fishList) {
            if (document->m_changeStamp > stamp)
                changed.append(document);
        }
    }
    return changed;
}

/** Notes a change of the document of @p item, or of the list of documents for null. */
void FishModel::stamp(const TreeItem *item)
{
    m_lastStamp = ++latestStamp;
    if (!item)
        m_listStamp = latestStamp;
    else if (FishInfo *const document = fishOf(item))
        document->m_changeStamp = latestStamp;
}

void FishModel::tellData(const QModelIndex &first, const QModelIndex &last)
{
    noteTold(first);
    Q_EMIT dataChanged(first, last);
}

void FishModel::tellNode(const QModelIndex &index)
{
    noteTold(index);
    Q_EMIT nodeChanged(index);
}

/** Notes what a signal is sent for, while it still lives. */
void FishModel::noteTold(const QModelIndex &index)
{
    m_told = getTreeItem(index);
    m_toldDocument = fishOf(m_told);
    m_changesWhenTold = m_changes;
    if (m_told)
        stamp(m_told);
}

FishInfo *FishModel::fishOfTold(const QModelIndex &index) const
{
    const TreeItem *const item = getTreeItem(index);
    if (!item)
        return nullptr;
    const bool isTold = item == m_told;
    if ((isTold && m_changes == m_changesWhenTold) || contains(item))
        return fishOf(item);
    return isTold ? m_toldDocument.data() : nullptr;
}

FishModel::Change FishModel::inserting(const QModelIndex &parent, int first, int last)
{
    stamp(getTreeItem(parent));
    return Change(
        this, [&] { beginInsertRows(parent, first, last); },
        [](FishModel &model) { model.endInsertRows(); });
}

FishModel::Change FishModel::removing(const QModelIndex &parent, int first, int last)
{
    stamp(getTreeItem(parent));
    return Change(
        this, [&] { beginRemoveRows(parent, first, last); },
        [](FishModel &model) { model.endRemoveRows(); });
}

FishModel::Change FishModel::moving(const QModelIndex &from, int row, int count,
                                    const QModelIndex &to, int before)
{
    stamp(getTreeItem(from));
    stamp(getTreeItem(to));
    return Change(
        this, [&] { beginMoveRows(from, row, row + count - 1, to, before); },
        [](FishModel &model) { model.endMoveRows(); });
}

FishModel::Change FishModel::resetting()
{
    return Change(
        this, [this] { beginResetModel(); }, [](FishModel &model) { model.endResetModel(); });
}

FishModel::Change FishModel::arranging()
{
    return Change(
        this, [this] { Q_EMIT layoutAboutToBeChanged(); },
        [](FishModel &model) { Q_EMIT model.layoutChanged(); });
}

/** Does @p action now, or when the change that is announced just now is made. */
void FishModel::whenChanged(const std::function<void()> &action)
{
    if (isAnnouncing())
        m_waiting.push_back(action);
    else
        action();
}

void FishModel::runWaiting()
{
    const QPointer<FishModel> alive(this);
    while (alive && !isAnnouncing() && !m_waiting.empty()) {
        const std::function<void()> action = std::move(m_waiting.front());
        m_waiting.erase(m_waiting.begin());
        action();
    }
}

/** Carries out a @p change of a listed document's whole tree, announced as a reset. */
void FishModel::rebuild(FishInfo *document, const std::function<void()> &change)
{
    const QPointer<FishInfo> alive(document);
    whenChanged([this, alive, change] {
        if (!alive || alive->m_owner != this)
            return;
        const Change reset = resetting();
        if (alive) // also after the announcement
            change();
    });
}

/** A listed document dies. */
void FishModel::forget(FishInfo *dying)
{
    const int row = fishRow(dying);
    if (!isAnnouncing()) {
        static_cast<void>(takeFish(row));
        return;
    }
    // Nobody was told that its row would go, so that another document has it until somebody can be.
    auto *const standIn = new FishInfo;
    standIn->m_treeItem.swap(dying->m_treeItem);
    standIn->m_treeItem->setDocument(standIn);
    dying->m_treeItem->setDocument(dying);
    standIn->m_owner = this;
    standIn->setModel(this);
    m_fishList.replace(row, standIn);
    dying->m_owner = nullptr;
    whenChanged([this, standIn] { unloadFish(standIn); });
}
