// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/spearsubject.h>

#include <utility>

#include <fishbone/items/spearitem.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>

SpearSubject::SpearSubject(SpearItem &spear)
    : m_spear(spear)
{
}

void SpearSubject::setIndex(const QModelIndex &index)
{
    m_model = qobject_cast<const FishModel *>(index.model());
    TreeItem *const subject = m_model ? m_model->getTreeItem(index) : nullptr;
    if (subject != m_item)
        attach(subject);
    if (subject && subject->spear() != &m_spear) {
        // Given an index directly, not through the subject: link both ends, which comes back here.
        subject->setSpear(&m_spear, index);
        return;
    }
    m_spear.updateTaskStatus();
    m_spear.applyState(m_spear.currentState());
}

QModelIndex SpearSubject::index() const
{
    return m_model && m_item ? m_model->indexFromItem(m_item) : QModelIndex();
}

void SpearSubject::attach(TreeItem *item)
{
    TreeItem *const previous = std::exchange(m_item, item);
    if (previous && previous != item && previous->spear() == &m_spear)
        previous->setSpear(nullptr, QModelIndex());
}

void SpearSubject::forget()
{
    m_item = nullptr;
    m_model.clear();
}

void SpearSubject::leave()
{
    attach(nullptr);
}

SpearStyle *SpearSubject::style() const
{
    SpearStyle *const own = m_item ? m_item->spearStyle() : nullptr;
    return own ? own : SpearStyle::global();
}

bool SpearSubject::isMovable() const
{
    return !m_item || m_item->spearItemIsMovable();
}

void SpearSubject::updateMovableFlag()
{
    m_spear.setFlag(QGraphicsItem::ItemIsMovable, isMovable());
}

void SpearSubject::updateToolTip()
{
    if (m_item)
        m_spear.setToolTip(m_item->toolTipString());
}
