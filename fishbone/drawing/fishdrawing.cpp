// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/fishdrawing.h>

#include <utility>

#include <QGraphicsScene>

#include <fishbone/drawing/lookinfo.h>

FishDrawing::FishDrawing()
{
    choose(DiagramLook::Classic, {});
}

void FishDrawing::choose(DiagramLook::Kind kind, const DiagramLook::Options &options)
{
    m_layout.reset();
    m_kind = kind;
    m_options = options;
    m_look = LookInfo::of(kind).m_make(options);
}

void FishDrawing::update(SpearItem *head)
{
    const quint64 changes = SpearItem::treeChanges();
    const bool isSameTree = m_head == head && m_treeChanges == changes;
    // Taken out: who hears of something meanwhile may choose another look.
    std::optional<FishLayout> layout = std::exchange(m_layout, std::nullopt);
    if (!layout || !isSameTree)
        layout.emplace(head, m_look);
    layout->update(m_settled);
    m_treeChanges = SpearItem::treeChanges();
    if (!isSameTree || m_treeChanges != changes)
        m_items = layout->itemCount();
    m_head = head;
    if (m_treeChanges == changes && layout->look() == m_look.get())
        m_layout = std::move(layout); // whose tree is the one of the next time, too
}

void FishDrawing::setLook(std::shared_ptr<const DrawingLook> look)
{
    m_layout.reset();
    m_look = std::move(look);
}

bool FishDrawing::isAlone(const QGraphicsScene &scene, const SpearItem *head) const
{
    // Counting the items of a scene without an index takes constant time.
    return m_head == head && m_treeChanges == SpearItem::treeChanges() &&
           scene.items().size() == m_items;
}
