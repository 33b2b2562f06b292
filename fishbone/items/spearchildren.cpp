// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/spearchildren.h>

#include <fishbone/items/sceneselection.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/items/stackorder.h>
#include <fishbone/model/treeitem.h>

SpearChildren::SpearChildren(SpearItem &spear)
    : m_spear(spear)
{
}

QList<SpearItem *> SpearChildren::find() const
{
    QList<SpearItem *> spears;
    const QList<QGraphicsItem *> items = m_spear.childItems();
    for (QGraphicsItem *item : items) {
        if (auto *const spear = qgraphicsitem_cast<SpearItem *>(item))
            spears.append(spear);
    }
    return spears;
}

const QList<SpearItem *> &SpearChildren::known() const
{
    if (!m_isKnown) {
        m_known = find();
        m_isKnown = true;
    }
    return m_known;
}

void SpearChildren::forget()
{
    m_known.clear(); // one of them may be dying
    m_isKnown = false;
    ++m_changes;
}

void SpearChildren::stackInRowOrder()
{
    const TreeItem *const subject = m_spear.treeItem();
    if (!subject)
        return;
    forget();
    QList<QGraphicsItem *> inRowOrder;
    for (const TreeItem *child : subject->childItems()) {
        if (child->spear() && child->spear()->parentItem() == &m_spear)
            inRowOrder.append(child->spear());
    }
    StackOrder::arrange(&m_spear, inRowOrder);
}

void SpearChildren::setShown(bool shown)
{
    m_areShown = shown;
    m_spear.update();
    show(); // the last: who hears of the selection may end the spear
}

void SpearChildren::show()
{
    const QList<SpearItem *> children = known();
    const bool areShown = m_areShown;
    const SelectionSilence silence(m_spear.scene()); // what is hidden is not selected any more
    for (SpearItem *child : children)
        child->setVisible(areShown);
}
