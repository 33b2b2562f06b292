// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT
//
// What a TreeItem tells the spear that draws it: defined here, since a subject knows nothing of
// items.

#include <fishbone/items/spearparts.h>
#include <fishbone/items/textitem.h>
#include <fishbone/model/stylesession.h>
#include <fishbone/model/treeitem.h>

#include <QModelIndex>

#include <utility>

void TreeItem::setSpear(SpearItem *spear, const QModelIndex &index)
{
    if (m_spear && m_spear != spear)
        leaveSpear();
    m_spear = spear;
    if (!spear)
        return;
    spear->setModelIndex(index);
    m_spear = spear; // an index of another node, or of none, made the spear leave this one
    if (spear->treeItem() != this)
        SpearParts::of(*spear).subject.attach(this);
    spear->updateMovableFlag();
}

void TreeItem::showTitle()
{
    m_spear->setText(m_title);
}

void showStyle(SpearItem &spear)
{
    spear.applyState(spear.currentState());
    spear.update();
    spear.textItem()->update();
}

/** Forgets the spear, which forgets this node unless it shows another one already. */
void TreeItem::leaveSpear()
{
    SpearItem *const former = std::exchange(m_spear, nullptr);
    if (former->treeItem() == this)
        SpearParts::of(*former).subject.forget();
}
