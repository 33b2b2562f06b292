// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/spearbuilder.h>

#include <deque>
#include <memory>

#include <fishbone/items/spearitem.h>
#include <fishbone/items/spearparts.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>

namespace {
constexpr double headZValue = -100;

struct PendingSubtree
{
    SpearItem *spear;
    QModelIndex index;
    int level;
};
} // namespace

void updateLinkItem(SpearItem *spear)
{
    SpearParts::of(*spear).companions.updateLink();
}

SpearItem *makeSpear(const QAbstractItemModel &model, const QModelIndex &index, int direction,
                     double spearSize)
{
    const auto *const subjects = qobject_cast<const FishModel *>(&model);
    TreeItem *const subject = subjects ? subjects->getTreeItem(index) : nullptr;
    if (!subject)
        return nullptr;
    const QString title = model.data(index, Qt::DisplayRole).toString();
    auto spear = std::make_unique<SpearItem>(title, direction, spearSize);
    subject->setSpear(spear.get(), index);
    return spear.release();
}

SpearBuilder::SpearBuilder(const FishModel &model)
    : m_model(model)
{
}

int SpearBuilder::directionFor(const SpearItem *parent, int level, int row)
{
    if (level % 2 == 0)
        return 0;
    if (level == 1)
        return row % 2 == 0 ? 1 : -1;
    const auto *const grandparent =
        parent ? qgraphicsitem_cast<SpearItem *>(parent->parentItem()) : nullptr;
    return grandparent ? grandparent->direction() : 0;
}

SpearItem *SpearBuilder::makeBone(const QModelIndex &index, SpearItem *parent, int direction,
                                  double size) const
{
    SpearItem *const bone = makeSpear(m_model, index, direction, size);
    // Before the bone hangs anywhere: an item that is placed tells all above it.
    if (bone->treeItem()->childCount() > 0)
        bone->updateExpandButton();
    bone->setParentItem(parent);
    return bone;
}

SpearItem *SpearBuilder::buildHead(const QModelIndex &root) const
{
    SpearItem *const head = makeSpear(m_model, root, 0, spearSize);
    if (!head)
        return nullptr;
    head->setExpand(true);
    head->setZValue(headZValue);
    updateLinkItem(head);
    const int rows = m_model.rowCount(root);
    for (int row = 0; row < rows; ++row) {
        const QModelIndex child = m_model.index(row, 0, root);
        updateLinkItem(makeBone(child, head, directionFor(head, 1, row), spearSize));
    }
    return head;
}

void SpearBuilder::buildChildren(const QModelIndex &index) const
{
    const TreeItem *const subject = m_model.getTreeItem(index);
    SpearItem *const parent = subject ? subject->spear() : nullptr;
    if (!parent)
        return;
    bool hadChildren = false;
    bool added = false;
    const int rows = m_model.rowCount(index);
    for (int row = 0; row < rows; ++row) {
        const QModelIndex child = m_model.index(row, 0, index);
        if (m_model.getTreeItem(child)->spear()) {
            hadChildren = true;
        } else {
            makeBone(child, parent, 0, parent->spearSize());
            added = true;
        }
    }
    if (hadChildren && added)
        parent->stackChildrenInRowOrder();
}

void SpearBuilder::buildDescendants(const QModelIndex &index) const
{
    std::deque<QModelIndex> queue{index};
    while (!queue.empty()) {
        const QModelIndex current = queue.front();
        queue.pop_front();
        buildChildren(current);
        const int rows = m_model.rowCount(current);
        for (int row = 0; row < rows; ++row) {
            const QModelIndex child = m_model.index(row, 0, current);
            if (m_model.getTreeItem(child)->childCount() > 0)
                queue.push_back(child);
        }
    }
}

SpearItem *SpearBuilder::buildSubtree(const QModelIndex &index, int level, int row,
                                      SpearItem *parent, SpearItem *head) const
{
    SpearItem *const top = makeSpear(m_model, index, directionFor(parent, level, row), spearSize);
    if (!top)
        return nullptr;
    if (head && !top->treeItem()->url().isEmpty())
        SpearParts::of(*head).companions.showLink(top->treeItem()->url());
    std::deque<PendingSubtree> queue{{top, index, level}};
    while (!queue.empty()) {
        const PendingSubtree current = queue.front();
        queue.pop_front();
        const int rows = m_model.rowCount(current.index);
        for (int childRow = 0; childRow < rows; ++childRow) {
            const QModelIndex child = m_model.index(childRow, 0, current.index);
            const int direction = directionFor(current.spear, current.level, childRow);
            SpearItem *const bone = makeBone(child, current.spear, direction, spearSize);
            updateLinkItem(bone);
            if (bone->treeItem()->childCount() > 0)
                queue.push_back({bone, child, current.level + 1});
        }
        current.spear->setExpand(false);
    }
    top->setParentItem(parent);
    return top;
}
