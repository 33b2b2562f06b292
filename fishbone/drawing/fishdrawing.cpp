// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/fishdrawing.h>

#include <QGraphicsScene>

#include <fishbone/drawing/classiclook.h>
#include <fishbone/drawing/clearlook.h>

FishDrawing::FishDrawing()
{
    choose(DiagramLook::Classic, {});
}

void FishDrawing::choose(DiagramLook::Kind kind, const DiagramLook::Options &options)
{
    m_kind = kind;
    m_options = options;
    if (kind == DiagramLook::Clear)
        m_look = std::make_shared<ClearLook>(options);
    else
        m_look = std::static_pointer_cast<const DrawingLook>(SpearLook::standard());
}

void FishDrawing::update(SpearItem *head)
{
    FishLayout layout(head, m_look);
    layout.update(m_settled);
    m_head = head;
    m_treeChanges = SpearItem::treeChanges();
    m_items = layout.itemCount();
}

bool FishDrawing::isAlone(const QGraphicsScene &scene, const SpearItem *head) const
{
    // Counting the items of a scene without an index takes constant time.
    return m_head == head && m_treeChanges == SpearItem::treeChanges() &&
           scene.items().size() == m_items;
}
