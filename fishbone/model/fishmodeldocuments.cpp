// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/fishmodeldocuments.h>

#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel_p.h>
#include <fishbone/model/treeitem.h>

#include <QPointer>

/** Makes documents with a new head; the announcement is the caller's. */
void FishModel::Documents::create(int row, int count)
{
    const QString title = FishModel::tr("自由主题");
    const QString empty = QStringLiteral("");
    for (int i = 0; i < count; ++i) {
        auto *const document = new FishInfo;
        document->treeItem()->appendChild(new TreeItem(title, empty, empty, empty, 0));
        documents().insert(row, document);
    }
}

/** Begins a change of the list that no signal tells: @p by documents come or go before @p row. */
void FishModel::Documents::beginSilentChange(int row, int by)
{
    m_model.m_d->changes.noteTreeChange();
    announcer().note(nullptr);
    shiftHeadIndexes(row, by);
}

bool FishModel::Documents::insertToList(int row, int count)
{
    if (announcer().isAnnouncing() || row < 0 || row > documents().count())
        return false;
    if (count < 1)
        return true;
    beginSilentChange(row, count);
    create(row, count);
    return true;
}

bool FishModel::Documents::insertToList(int row, TreeItem *head)
{
    if (announcer().isAnnouncing() || row < 0 || row > documents().count() || !head ||
        !canEnter(head))
        return false;
    beginSilentChange(row, 1);
    auto *const document = new FishInfo;
    document->treeItem()->appendChild(head);
    documents().insert(row, document);
    return true;
}

bool FishModel::Documents::removeFromList(int row, int count)
{
    if (announcer().isAnnouncing() || row < 0 || count > documents().count() - row)
        return false;
    if (count < 1)
        return true;
    dropIndexes(row, count);
    beginSilentChange(row + count, -count);
    for (int i = 0; i < count; ++i)
        delete documents().take(row);
    return true;
}

/** Renumbers the persistent indexes of the heads from @p firstRow on, for a change without signals.
 */
void FishModel::Documents::shiftHeadIndexes(int firstRow, int by)
{
    QModelIndexList from;
    QModelIndexList to;
    const QModelIndexList indexes = m_model.persistentIndexList();
    for (const QModelIndex &index : indexes) {
        if (index.row() < firstRow || !m_model.getTreeItem(index)->isTopVaildItem())
            continue;
        from.append(index);
        to.append(m_model.createIndex(index.row() + by, index.column(), index.internalPointer()));
    }
    m_model.changePersistentIndexList(from, to);
}

/** Makes the persistent indexes of whole documents invalid, for a removal without signals. */
void FishModel::Documents::dropIndexes(int row, int count)
{
    QModelIndexList from;
    const QModelIndexList indexes = m_model.persistentIndexList();
    for (const QModelIndex &index : indexes) {
        const int document = m_model.containerRow(m_model.getTreeItem(index)->root());
        if (document >= row && document < row + count)
            from.append(index);
    }
    QModelIndexList to;
    for (int i = 0; i < from.size(); ++i)
        to.append(QModelIndex());
    m_model.changePersistentIndexList(from, to);
}

FishInfo *FishModel::Documents::take(int row)
{
    if (announcer().isAnnouncing() || row < 0 || row >= documents().count())
        return nullptr;
    QPointer<FishInfo> document; // which a listener may end
    {
        const Change removal = announcer().removing(QModelIndex(), row, row);
        document = documents().take(row);
    }
    return document;
}

bool FishModel::Documents::insert(int row, FishInfo *document)
{
    if (announcer().isAnnouncing() || row < 0 || row > documents().count() || !document ||
        ownerOf(document))
        return false;
    const QPointer<FishInfo> alive(document);
    const Change insertion = announcer().inserting(QModelIndex(), row, row);
    // A row was announced, also when a listener has ended the document.
    documents().insert(row, alive ? document : new FishInfo);
    return true;
}

void FishModel::Documents::rebuild(FishInfo *document, const std::function<void()> &change)
{
    const QPointer<FishInfo> alive(document);
    announcer().whenChanged([this, alive, change] {
        if (ownerOf(alive) != &m_model)
            return;
        const Change reset = announcer().resetting();
        if (alive) // also after the announcement
            change();
    });
}

void FishModel::Documents::forget(FishInfo *dying)
{
    if (!announcer().isAnnouncing()) {
        static_cast<void>(take(documents().rowOf(dying)));
        return;
    }
    // Nobody was told that its row would go, so that another document has it until somebody can be.
    FishInfo *const standIn = documents().replace(dying);
    announcer().whenChanged([this, standIn] { m_model.unloadFish(standIn); });
}
