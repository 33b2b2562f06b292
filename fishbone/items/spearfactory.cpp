// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/spearfactory.h>

#include <memory>

#include <fishbone/items/spearitem.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>

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
