// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/undo/heldsubject.h>

#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>
#include <fishbone/undo/subjectspears.h>

HeldSubject::HeldSubject() = default;
HeldSubject::HeldSubject(HeldSubject &&other) noexcept = default;
HeldSubject &HeldSubject::operator=(HeldSubject &&other) noexcept = default;
HeldSubject::~HeldSubject() = default;

TreeItem *HeldSubject::item() const
{
    return m_document ? m_document->treeItem()->childAtIndex(0) : m_item.get();
}

void HeldSubject::adopt(TreeItem *item)
{
    m_item.reset(item);
}

void HeldSubject::adoptHead(TreeItem *item)
{
    m_document = std::make_unique<FishInfo>();
    m_document->treeItem()->appendChild(item);
}

void HeldSubject::release()
{
    static_cast<void>(m_item.release());
}

bool HeldSubject::take(FishModel &model, TreeItem *subject, SelectionHold &hold)
{
    const QModelIndex index = model.indexFromItem(subject);
    if (!index.isValid())
        return false;
    if (index.parent().isValid())
        m_item.reset(model.takeRow(index.row(), index.parent()));
    else
        m_document.reset(model.takeFish(index.row()));
    // Only now: an editor that showed the subject has forgotten its spear by itself.
    if (item())
        deleteSpears(item(), hold);
    return !isEmpty();
}

bool HeldSubject::putBack(FishModel &model, TreeItem *parent, int row)
{
    const QModelIndex index = model.indexFromItem(parent);
    const int place = qMin(row, model.rowCount(index));
    // Given up before it is announced: who hears of it may end what it went into.
    if (m_document && !parent) {
        FishInfo *const document = m_document.release();
        if (!model.insertFish(place, document))
            m_document.reset(document);
    } else if (m_item && index.isValid()) {
        TreeItem *const item = m_item.release();
        if (!model.putRow(place, item, index))
            m_item.reset(item);
    }
    return isEmpty();
}
