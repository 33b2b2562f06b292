// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/fishmodelrows.h>

#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel_p.h>
#include <fishbone/model/jsonnodes.h>
#include <fishbone/model/treeitem.h>

#include <QHash>
#include <QPointer>

#include <algorithm>
#include <iterator>
#include <limits>
#include <memory>
#include <utility>

bool FishModel::Rows::insert(int row, int count, const QModelIndex &parent)
{
    const QList<TreeItem *> pending = std::exchange(m_pending, {});
    TreeItem *node = nullptr;
    if (announcer().isAnnouncing() || !resolve(parent, &node) || row < 0 || row > rowsBelow(node))
        return false;
    if (!pending.isEmpty())
        return insertPending(row, node, pending);
    if (count < 1)
        return true;
    if (count > std::numeric_limits<int>::max() - rowsBelow(node))
        return false;
    const Change insertion = announcer().inserting(m_model.rowIndex(node), row, row + count - 1);
    if (node)
        node->insertChildren(row, count, node->uuid());
    else
        m_model.m_d->listing.create(row, count);
    for (int i = row; i < row + count; ++i)
        (node ? node->childItems().at(i) : documents().headAt(i))->ensureUuid();
    return true;
}

/**
 * Whether @p items, none of them null, may enter below @p node one after the other: none is in a
 * model, listed twice, above @p node, or below one that entered before it.
 */
bool FishModel::Rows::canEnterInTurn(const QList<TreeItem *> &items, const TreeItem *node)
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
            const int atTop = ownerOf(document) ? inAModel : nowhere;
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

bool FishModel::Rows::insertPending(int row, TreeItem *node, const QList<TreeItem *> &pending)
{
    QList<TreeItem *> entering = pending;
    entering.removeAll(nullptr);
    if (entering.isEmpty())
        return true;
    if (!canEnterInTurn(entering, node))
        return false;
    QList<TreeItem *> inRowOrder; // each goes in front of those before it
    std::reverse_copy(entering.cbegin(), entering.cend(), std::back_inserter(inRowOrder));
    const Change insertion =
        announcer().inserting(m_model.rowIndex(node), row, row + int(inRowOrder.size()) - 1);
    for (TreeItem *item : std::as_const(inRowOrder)) {
        if (node) {
            node->insertChildAtPosition(row, item);
        } else {
            auto *const document = new FishInfo;
            document->treeItem()->appendChild(item);
            documents().insert(row, document);
        }
        item->ensureUuid();
        ++row;
    }
    return true;
}

bool FishModel::Rows::append(const QModelIndex &parent, const QList<TreeItem *> &items)
{
    if (items.isEmpty())
        return true;
    m_pending = items;
    TreeItem *node = nullptr;
    resolve(parent, &node);
    return insert(rowsBelow(node), items.count(), parent);
}

bool FishModel::Rows::remove(int row, int count, const QModelIndex &parent)
{
    TreeItem *node = nullptr;
    if (announcer().isAnnouncing() || !resolve(parent, &node) || row < 0 ||
        count > rowsBelow(node) - row)
        return false;
    if (count < 1)
        return true;
    QList<QPointer<FishInfo>> removed; // which a listener may end
    {
        const Change removal = announcer().removing(m_model.rowIndex(node), row, row + count - 1);
        if (node)
            node->removeChildren(row, count);
        else
            for (int i = 0; i < count; ++i)
                removed.append(documents().take(row));
    }
    for (const QPointer<FishInfo> &document : std::as_const(removed))
        delete document;
    return true;
}

TreeItem *FishModel::Rows::take(int row, const QModelIndex &parent)
{
    TreeItem *node = nullptr;
    if (announcer().isAnnouncing() || !resolve(parent, &node) || row < 0 || row >= rowsBelow(node))
        return nullptr;
    if (!node && documents().at(row)->treeItem()->childCount() != 1)
        return nullptr;
    const Change removal = announcer().removing(m_model.rowIndex(node), row, row);
    const std::unique_ptr<FishInfo> document(node ? nullptr : documents().take(row));
    TreeItem *const taken = node ? node->takeAt(row) : document->treeItem()->takeAt(0);
    taken->setParent(nullptr);
    return taken;
}

bool FishModel::Rows::put(int row, TreeItem *item, const QModelIndex &parent)
{
    TreeItem *const node = m_model.getTreeItem(parent);
    if (announcer().isAnnouncing() || !node || row < 0 || row > node->childCount() || !item ||
        !canEnter(item) || item->root() != item || item == node->root())
        return false;
    const Change insertion = announcer().inserting(m_model.rowIndex(node), row, row);
    node->appendChild(item, row);
    return true;
}

void FishModel::Rows::graft(const QJsonObject &root, TreeItem *parent, int position)
{
    if (!parent || announcer().isAnnouncing() ||
        (!m_model.fishOf(parent) && m_model.isInAnyModel(parent)))
        return;
    std::unique_ptr<TreeItem> node = JsonNodes::read(root, parent, position);
    const QModelIndex parentIndex = m_model.indexFromItem(parent);
    const bool inside = position >= 0 && position < parent->childCount();
    const int row = inside ? position : parent->childCount();
    if (parentIndex.isValid()) {
        const Change insertion = announcer().inserting(parentIndex, row, row);
        parent->appendChild(node.release(), row);
    } else if (m_model.containerRow(parent) >= 0) {
        // A document gets a head: its row is there already, but had no index.
        const Change reset = announcer().resetting();
        parent->appendChild(node.release(), row);
        announcer().note(parent);
    } else {
        parent->appendChild(node.release(), row);
    }
}

void FishModel::Rows::copyAttributes(const TreeItem &source, TreeItem &target)
{
    target.setTitle(source.title());
    target.setDetail(source.detail());
    target.setManagerName(source.managerName());
    target.setManagerId(source.managerId());
    target.setFollowers(source.followers());
    target.setPlanEndDate(source.planEndDate());
    target.setPriority(source.priority());
    target.setEditModified(true);
}
