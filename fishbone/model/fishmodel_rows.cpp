// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT
//
// The row operations of FishModel: what changes the tree and the list of documents.

#include <fishbone/model/fishmodel.h>

#include <fishbone/model/fishinfo.h>
#include <fishbone/model/modelchange.h>
#include <fishbone/model/treeitem.h>

#include <QHash>
#include <QPointer>

#include <algorithm>
#include <iterator>
#include <limits>
#include <memory>
#include <utility>

/** The node behind @p parent, null for the top level; false when the index is another model's. */
bool FishModel::resolve(const QModelIndex &parent, TreeItem **node) const
{
    *node = getTreeItem(parent);
    return *node || !parent.isValid();
}

int FishModel::rowsBelow(const TreeItem *node) const
{
    return node ? node->childCount() : m_fishList.size();
}

bool FishModel::insertRows(int row, int count, const QModelIndex &parent)
{
    const QList<TreeItem *> pending = std::exchange(m_pendingItems, {});
    TreeItem *node = nullptr;
    if (isAnnouncing() || !resolve(parent, &node) || row < 0 || row > rowsBelow(node))
        return false;
    if (!pending.isEmpty())
        return insertPending(row, node, pending);
    if (count < 1)
        return true;
    if (count > std::numeric_limits<int>::max() - rowsBelow(node))
        return false;
    const Change insertion = inserting(rowIndex(node), row, row + count - 1);
    if (node)
        node->insertChildren(row, count, node->uuid());
    else
        createFish(row, count);
    for (int i = row; i < row + count; ++i)
        (node ? node->childItems().at(i) : headAt(i))->ensureUuid();
    return true;
}

/** Whether @p item is a subject, and in no model. */
bool FishModel::canEnter(const TreeItem *item)
{
    const FishInfo *const document = item->root()->document();
    return !item->document() && (!document || !document->m_owner);
}

/**
 * Whether @p items, none of them null, may enter below @p node one after the other: none is in a
 * model, listed twice, above @p node, or below one that entered before it.
 */
bool FishModel::canEnterInTurn(const QList<TreeItem *> &items, const TreeItem *node)
{
    QHash<const TreeItem *, int> turns;
    for (const TreeItem *item : items) {
        if (item->document() || turns.contains(item))
            return false;
        turns.insert(item, turns.size());
    }
    constexpr int inAModel = -1;
    const int nowhere = items.size();
    QHash<const TreeItem *, int> firstTurns; // the first there or above, to walk each way once
    const auto firstTurn = [&](const TreeItem *below) {
        QList<const TreeItem *> path;
        for (const TreeItem *on = below; on && !firstTurns.contains(on); on = on->m_lister)
            path.prepend(on);
        for (const TreeItem *on : std::as_const(path)) {
            const FishInfo *const document = on->document();
            const int atTop = document && document->m_owner ? inAModel : nowhere;
            const int above = on->m_lister ? firstTurns.value(on->m_lister) : atTop;
            firstTurns.insert(on, qMin(above, turns.value(on, nowhere)));
        }
        return below ? firstTurns.value(below) : nowhere;
    };
    const int aboveNode = firstTurn(node);
    return (aboveNode == nowhere || aboveNode == inAModel) &&
           std::all_of(items.cbegin(), items.cend(), [&](const TreeItem *item) {
               return firstTurn(item->m_lister) >= turns.value(item);
           });
}

bool FishModel::insertPending(int row, TreeItem *node, const QList<TreeItem *> &pending)
{
    QList<TreeItem *> entering = pending;
    entering.removeAll(nullptr);
    if (entering.isEmpty())
        return true;
    if (!canEnterInTurn(entering, node))
        return false;
    QList<TreeItem *> inRowOrder; // each goes in front of those before it
    std::reverse_copy(entering.cbegin(), entering.cend(), std::back_inserter(inRowOrder));
    const Change insertion = inserting(rowIndex(node), row, row + int(inRowOrder.size()) - 1);
    for (TreeItem *item : std::as_const(inRowOrder)) {
        if (node) {
            node->insertChildAtPosition(row, item);
        } else {
            auto *const document = new FishInfo;
            document->treeItem()->appendChild(item);
            enter(row, document);
        }
        item->ensureUuid();
        ++row;
    }
    return true;
}

bool FishModel::insertExistItemRows(const QModelIndex &parent, const QList<TreeItem *> &items)
{
    if (items.isEmpty())
        return true;
    m_pendingItems = items;
    TreeItem *node = nullptr;
    resolve(parent, &node);
    return insertRows(rowsBelow(node), items.count(), parent);
}

bool FishModel::removeRows(int row, int count, const QModelIndex &parent)
{
    TreeItem *node = nullptr;
    if (isAnnouncing() || !resolve(parent, &node) || row < 0 || count > rowsBelow(node) - row)
        return false;
    if (count < 1)
        return true;
    QList<QPointer<FishInfo>> documents; // which a listener may end
    {
        const Change removal = removing(rowIndex(node), row, row + count - 1);
        if (node)
            node->removeChildren(row, count);
        else
            for (int i = 0; i < count; ++i)
                documents.append(leave(row));
    }
    for (const QPointer<FishInfo> &document : std::as_const(documents))
        delete document;
    return true;
}

TreeItem *FishModel::takeRow(int row, const QModelIndex &parent)
{
    TreeItem *node = nullptr;
    if (isAnnouncing() || !resolve(parent, &node) || row < 0 || row >= rowsBelow(node))
        return nullptr;
    if (!node && m_fishList.at(row)->treeItem()->childCount() != 1)
        return nullptr;
    const Change removal = removing(rowIndex(node), row, row);
    const std::unique_ptr<FishInfo> document(node ? nullptr : leave(row));
    TreeItem *const taken = node ? node->takeAt(row) : document->treeItem()->takeAt(0);
    taken->setParent(nullptr);
    return taken;
}

bool FishModel::moveRows(const QModelIndex &sourceParent, int sourceRow, int count,
                         const QModelIndex &destinationParent, int destinationChild)
{
    TreeItem *source = nullptr;
    TreeItem *destination = nullptr;
    return resolve(sourceParent, &source) && resolve(destinationParent, &destination) &&
           moveSrcToDstWithList(source, sourceRow, count, destination, destinationChild);
}

/** Whether the rows may go below @p destination, as far as the tree is concerned. */
bool FishModel::canMove(const TreeItem *source, int sourceRow, int count,
                        const TreeItem *destination) const
{
    if (source == destination || !destination)
        return true;
    const int branch = source ? source->branchOf(destination) : containerRow(destination->root());
    if (branch >= sourceRow && branch < sourceRow + count)
        return false;
    for (int row = sourceRow; !source && row < sourceRow + count; ++row) {
        if (m_fishList.at(row)->treeItem()->childCount() != 1)
            return false; // no head, or more than would move
    }
    return true;
}

bool FishModel::moveSrcToDstWithList(TreeItem *source, int sourceRow, int count,
                                     TreeItem *destination, int destinationChild)
{
    if (isAnnouncing() || sourceRow < 0 || destinationChild < 0 ||
        count > rowsBelow(source) - sourceRow || destinationChild > rowsBelow(destination))
        return false;
    if (count < 1)
        return true;
    const bool sourceIsHere = !source || indexFromItem(source).isValid();
    const bool destinationIsHere = !destination || indexFromItem(destination).isValid();
    if (!sourceIsHere && !destinationIsHere)
        return !isInAnyModel(source) && !isInAnyModel(destination) &&
               source->moveChildren(sourceRow, count, destination, destinationChild);
    if (!sourceIsHere || !destinationIsHere || !canMove(source, sourceRow, count, destination))
        return false;

    if (source && destination && source != destination) {
        const Change move =
            moving(rowIndex(source), sourceRow, count, rowIndex(destination), destinationChild);
        source->moveChildren(sourceRow, count, destination, destinationChild);
        return true;
    }
    // Within one list the rows that follow close up after each step, so that several rows do not
    // stay together; no single announcement could tell that.
    const int back = source == destination && destinationChild > sourceRow ? 1 : 0;
    const QPointer<FishModel> alive(this);
    for (int k = 0; k < count && alive; ++k) {
        const int before = m_changes;
        moveRow(source, sourceRow, destination, destinationChild - back + k);
        if (alive && m_changes > before + 1)
            break; // by a listener: the rows that follow may be others now
    }
    return true;
}

/** Moves one row, announced. @p position is where it stands afterwards, or the end when past it. */
void FishModel::moveRow(TreeItem *source, int sourceRow, TreeItem *destination, int position)
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
    const QModelIndex parent = rowIndex(source);
    const Change move = moving(parent, sourceRow, 1, parent, before);
    if (source)
        source->moveChildren(sourceRow, 1, source, before);
    else
        moveFish(sourceRow, row);
}
