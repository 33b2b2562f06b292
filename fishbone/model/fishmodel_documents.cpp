// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT
//
// The list of documents in FishModel.

#include <fishbone/model/fishmodel.h>

#include <fishbone/model/fishinfo.h>
#include <fishbone/model/modelchange.h>
#include <fishbone/model/rownumbers.h>
#include <fishbone/model/treeitem.h>

#include <QPointer>

/** Lists @p document at @p row; the announcement is the caller's. */
void FishModel::enter(int row, FishInfo *document)
{
    RowNumbers::shift(m_firstFishNumber, row, 1, m_fishList.size());
    m_fishList.insert(row, document);
    document->treeItem()->m_rowNumber = RowNumbers::numberOf(m_firstFishNumber, row);
    document->m_owner = this;
    document->setModel(this);
}

/** Takes the document at @p row out of the list; the announcement is the caller's. */
FishInfo *FishModel::leave(int row)
{
    FishInfo *const document = m_fishList.takeAt(row);
    RowNumbers::shift(m_firstFishNumber, row, -1, m_fishList.size());
    document->m_owner = nullptr;
    document->setModel(nullptr);
    return document;
}

/** Moves a document within the list; the announcement is the caller's. */
void FishModel::moveFish(int from, int to)
{
    m_fishList.move(from, to);
    for (int row = qMin(from, to); row <= qMax(from, to); ++row)
        m_fishList.at(row)->treeItem()->m_rowNumber = RowNumbers::numberOf(m_firstFishNumber, row);
}

/** Makes documents with a new head; the announcement is the caller's. */
void FishModel::createFish(int row, int count)
{
    const QString title = tr("自由主题");
    const QString empty = QStringLiteral("");
    for (int i = 0; i < count; ++i) {
        auto *const document = new FishInfo;
        document->treeItem()->appendChild(new TreeItem(title, empty, empty, empty, 0));
        enter(row, document);
    }
}

bool FishModel::insertFishToList(int row, int count)
{
    if (isAnnouncing() || row < 0 || row > m_fishList.size())
        return false;
    if (count < 1)
        return true;
    ++m_changes;
    stamp(nullptr);
    shiftHeadIndexes(row, count);
    createFish(row, count);
    return true;
}

bool FishModel::insertFishToList(int row, TreeItem *head)
{
    if (isAnnouncing() || row < 0 || row > m_fishList.size() || !head || !canEnter(head))
        return false;
    ++m_changes;
    stamp(nullptr);
    shiftHeadIndexes(row, 1);
    auto *const document = new FishInfo;
    document->treeItem()->appendChild(head);
    enter(row, document);
    return true;
}

bool FishModel::removeFishFromList(int row, int count)
{
    if (isAnnouncing() || row < 0 || count > m_fishList.size() - row)
        return false;
    if (count < 1)
        return true;
    ++m_changes;
    stamp(nullptr);
    dropIndexes(row, count);
    shiftHeadIndexes(row + count, -count);
    for (int i = 0; i < count; ++i)
        delete leave(row);
    return true;
}

/** Renumbers the persistent indexes of the heads from @p firstRow on, for a change without signals.
 */
void FishModel::shiftHeadIndexes(int firstRow, int by)
{
    QModelIndexList from;
    QModelIndexList to;
    const QModelIndexList indexes = persistentIndexList();
    for (const QModelIndex &index : indexes) {
        if (index.row() < firstRow || !getTreeItem(index)->isTopVaildItem())
            continue;
        from.append(index);
        to.append(createIndex(index.row() + by, index.column(), index.internalPointer()));
    }
    changePersistentIndexList(from, to);
}

/** Makes the persistent indexes of whole documents invalid, for a removal without signals. */
void FishModel::dropIndexes(int row, int count)
{
    QModelIndexList from;
    const QModelIndexList indexes = persistentIndexList();
    for (const QModelIndex &index : indexes) {
        const int document = containerRow(getTreeItem(index)->root());
        if (document >= row && document < row + count)
            from.append(index);
    }
    QModelIndexList to;
    for (int i = 0; i < from.size(); ++i)
        to.append(QModelIndex());
    changePersistentIndexList(from, to);
}

void FishModel::unloadFish(FishInfo *document)
{
    // Compared with the list before anybody looks at it.
    delete takeFish(m_fishList.indexOf(document));
}

FishInfo *FishModel::takeFish(int row)
{
    if (isAnnouncing() || row < 0 || row >= m_fishList.size())
        return nullptr;
    QPointer<FishInfo> document; // which a listener may end
    {
        const Change removal = removing(QModelIndex(), row, row);
        document = leave(row);
    }
    return document;
}

bool FishModel::insertFish(int row, FishInfo *document)
{
    if (isAnnouncing() || row < 0 || row > m_fishList.size() || !document || document->m_owner)
        return false;
    const QPointer<FishInfo> alive(document);
    const Change insertion = inserting(QModelIndex(), row, row);
    // A row was announced, also when a listener has ended the document.
    enter(row, alive ? document : new FishInfo);
    return true;
}

FishInfo *FishModel::moveHeadUnder(int row, const QModelIndex &parent, int position)
{
    TreeItem *const destination = getTreeItem(parent);
    if (isAnnouncing() || row < 0 || row >= m_fishList.size() || !destination || position < 0 ||
        position > destination->childCount() || !canMove(nullptr, row, 1, destination))
        return nullptr;
    return moveHead(row, destination, position);
}

/** moveHeadUnder() with everything checked. */
FishInfo *FishModel::moveHead(int row, TreeItem *destination, int position)
{
    QPointer<FishInfo> document;
    {
        const Change move = moving(QModelIndex(), row, 1, rowIndex(destination), position);
        document = leave(row);
        destination->insertChildAtPosition(position, document->treeItem()->childAtIndex(0));
    }
    return document;
}

bool FishModel::moveToTopLevel(const QModelIndex &index, int row, FishInfo *document)
{
    const TreeItem *const item = getTreeItem(index);
    TreeItem *const source = item ? item->parent() : nullptr;
    if (isAnnouncing() || !source || item->isTopVaildItem() || row < 0 || row > m_fishList.size() ||
        !document || document->m_owner || document->treeItem()->childCount() != 0)
        return false;
    moveToTop(source, item->index(), row, document);
    return true;
}

/** moveToTopLevel() with everything checked. */
void FishModel::moveToTop(TreeItem *source, int sourceRow, int row, FishInfo *document)
{
    const QPointer<FishInfo> alive(document);
    const Change move = moving(rowIndex(source), sourceRow, 1, QModelIndex(), row);
    FishInfo *const entering = alive ? document : new FishInfo; // as in insertFish()
    // The container's own uuid is "-1", which as a pid says that there is no parent task.
    entering->treeItem()->insertChildAtPosition(0, source->childAtIndex(sourceRow));
    enter(row, entering);
}
