// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/fishmodelmoves.h>

#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel_p.h>
#include <fishbone/model/treeitem.h>

#include <QPointer>

/** Whether the rows may go below @p destination, as far as the tree is concerned. */
bool FishModel::Moves::canMove(const TreeItem *source, int sourceRow, int count,
                               const TreeItem *destination) const
{
    if (source == destination || !destination)
        return true;
    const int branch =
        source ? source->branchOf(destination) : m_model.containerRow(destination->root());
    if (branch >= sourceRow && branch < sourceRow + count)
        return false;
    for (int row = sourceRow; !source && row < sourceRow + count; ++row) {
        if (documents().at(row)->treeItem()->childCount() != 1)
            return false; // no head, or more than would move
    }
    return true;
}

bool FishModel::Moves::move(TreeItem *source, int sourceRow, int count, TreeItem *destination,
                            int destinationChild)
{
    if (announcer().isAnnouncing() || sourceRow < 0 || destinationChild < 0 ||
        count > rowsBelow(source) - sourceRow || destinationChild > rowsBelow(destination))
        return false;
    if (count < 1)
        return true;
    const bool sourceIsHere = !source || m_model.indexFromItem(source).isValid();
    const bool destinationIsHere = !destination || m_model.indexFromItem(destination).isValid();
    if (!sourceIsHere && !destinationIsHere)
        return !m_model.isInAnyModel(source) && !m_model.isInAnyModel(destination) &&
               source->moveChildren(sourceRow, count, destination, destinationChild);
    if (!sourceIsHere || !destinationIsHere || !canMove(source, sourceRow, count, destination))
        return false;

    if (source && destination && source != destination) {
        const Change step = announcer().moving(m_model.rowIndex(source), sourceRow, count,
                                               m_model.rowIndex(destination), destinationChild);
        source->moveChildren(sourceRow, count, destination, destinationChild);
        return true;
    }
    const int back = source == destination && destinationChild > sourceRow ? 1 : 0;
    moveOneByOne(source, sourceRow, count, destination, destinationChild - back);
    return true;
}

/**
 * Within one list the rows that follow close up after each step, so that several rows do not stay
 * together; no single announcement could tell that. @p position is where the first one stands then.
 */
void FishModel::Moves::moveOneByOne(TreeItem *source, int sourceRow, int count,
                                    TreeItem *destination, int position)
{
    const ChangeRecord &changes = m_model.m_d->changes;
    const QPointer<FishModel> alive(&m_model);
    for (int k = 0; k < count && alive; ++k) {
        const int before = changes.treeChanges();
        moveRow(source, sourceRow, destination, position + k);
        if (alive && changes.treeChanges() > before + 1)
            break; // by a listener: the rows that follow may be others now
    }
}

/** Moves one row, announced. @p position is where it stands afterwards, or the end when past it. */
void FishModel::Moves::moveRow(TreeItem *source, int sourceRow, TreeItem *destination, int position)
{
    if (source != destination) {
        if (source)
            moveToTop(source, sourceRow, position, new FishInfo);
        else
            delete moveHead(sourceRow, destination, position);
        return;
    }
    const int row = qMin(position, rowsBelow(source) - 1);
    if (row == sourceRow)
        return;
    const int before = row > sourceRow ? row + 1 : row; // counted while the row is still there
    const QModelIndex parent = m_model.rowIndex(source);
    const Change step = announcer().moving(parent, sourceRow, 1, parent, before);
    if (source)
        source->moveChildren(sourceRow, 1, source, before);
    else
        documents().move(sourceRow, row);
}

FishInfo *FishModel::Moves::moveHeadUnder(int row, const QModelIndex &parent, int position)
{
    TreeItem *const destination = m_model.getTreeItem(parent);
    if (announcer().isAnnouncing() || row < 0 || row >= documents().count() || !destination ||
        position < 0 || position > destination->childCount() ||
        !canMove(nullptr, row, 1, destination))
        return nullptr;
    return moveHead(row, destination, position);
}

/** moveHeadUnder() with everything checked. */
FishInfo *FishModel::Moves::moveHead(int row, TreeItem *destination, int position)
{
    QPointer<FishInfo> document;
    {
        const Change step =
            announcer().moving(QModelIndex(), row, 1, m_model.rowIndex(destination), position);
        document = documents().take(row);
        destination->insertChildAtPosition(position, document->treeItem()->childAtIndex(0));
    }
    return document;
}

bool FishModel::Moves::moveToTopLevel(const QModelIndex &index, int row, FishInfo *document)
{
    const TreeItem *const item = m_model.getTreeItem(index);
    TreeItem *const source = item ? item->parent() : nullptr;
    if (announcer().isAnnouncing() || !source || item->isTopVaildItem() || row < 0 ||
        row > documents().count() || !document || ownerOf(document) ||
        document->treeItem()->childCount() != 0)
        return false;
    moveToTop(source, item->index(), row, document);
    return true;
}

/** moveToTopLevel() with everything checked. */
void FishModel::Moves::moveToTop(TreeItem *source, int sourceRow, int row, FishInfo *document)
{
    const QPointer<FishInfo> alive(document);
    const Change step =
        announcer().moving(m_model.rowIndex(source), sourceRow, 1, QModelIndex(), row);
    FishInfo *const entering = alive ? document : new FishInfo; // as in insertFish()
    // The container has no identity, which as a pid says that there is no parent task.
    entering->treeItem()->insertChildAtPosition(0, source->childAtIndex(sourceRow));
    documents().insert(row, entering);
}
