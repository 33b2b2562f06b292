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

void HeldSubject::release()
{
    static_cast<void>(m_item.release());
}

void HeldSubject::take(FishModel &model, TreeItem *subject)
{
    const QModelIndex index = model.indexFromItem(subject);
    if (index.parent().isValid())
        m_item.reset(model.takeRow(index.row(), index.parent()));
    else
        m_document.reset(model.takeFish(index.row()));
    // Only now: an editor that showed the subject has forgotten its spear by itself.
    deleteSpears(subject);
}

bool HeldSubject::putBack(FishModel &model, TreeItem *parent, int row)
{
    const QModelIndex index = model.indexFromItem(parent);
    const int place = qMin(row, model.rowCount(index));
    if (m_document && !parent)
        model.insertFish(place, m_document.release());
    else if (m_item && parent)
        model.putRow(place, m_item.release(), index);
    return isEmpty();
}
