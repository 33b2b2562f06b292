// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/settleddrawing.h>

#include <fishbone/items/svgitem.h>
#include <fishbone/items/taskstatusitem.h>
#include <fishbone/items/textitem.h>

SettledSpear::SettledSpear(const SpearItem &spear)
    : m_spear(&spear)
    , m_text(spear.textItem()->textSize())
    , m_direction(spear.direction())
    , m_isExpanded(spear.isExpand())
    , m_offset(spear.offset())
    , m_children(spear.childExtents())
    , m_line(spear.line())
    , m_textPosition(spear.textItem()->pos())
    , m_textRotation(spear.textItem()->rotation())
    , m_statusPosition(spear.statusItem()->pos())
    , m_link(partOf(spear.linkItem()))
    , m_button(partOf(spear.expandBuddy()))
{
}

SettledSpear::Part SettledSpear::partOf(const QGraphicsItem *item)
{
    if (!item)
        return {};
    return {item->pos(), item->boundingRect().width()};
}

bool SettledSpear::operator==(const SettledSpear &other) const
{
    return m_spear == other.m_spear && m_text == other.m_text && m_direction == other.m_direction &&
           m_isExpanded == other.m_isExpanded && m_offset == other.m_offset &&
           m_children == other.m_children && m_line == other.m_line &&
           m_textPosition == other.m_textPosition && m_textRotation == other.m_textRotation &&
           m_statusPosition == other.m_statusPosition && m_link == other.m_link &&
           m_button == other.m_button;
}

void SettledDrawing::note(std::vector<SettledSpear> spears, const SpearLook *look)
{
    m_spears = std::move(spears);
    m_look = look;
}
