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

namespace {
// Exactly, and quicker than the toolkit's comparison, which allows for rounding.
bool isSame(const QPointF &a, const QPointF &b)
{
    return a.x() == b.x() && a.y() == b.y();
}
} // namespace

bool SettledSpear::Part::operator==(const Part &other) const
{
    return isSame(position, other.position) && width == other.width;
}

bool SettledSpear::operator==(const SettledSpear &other) const
{
    return m_spear == other.m_spear && m_text.width() == other.m_text.width() &&
           m_text.height() == other.m_text.height() && m_direction == other.m_direction &&
           m_isExpanded == other.m_isExpanded && m_offset == other.m_offset &&
           m_children == other.m_children && isSame(m_line.p1(), other.m_line.p1()) &&
           isSame(m_line.p2(), other.m_line.p2()) && isSame(m_textPosition, other.m_textPosition) &&
           m_textRotation == other.m_textRotation &&
           isSame(m_statusPosition, other.m_statusPosition) && m_link == other.m_link &&
           m_button == other.m_button;
}

void SettledDrawing::note(std::vector<SettledSpear> spears, const SpearLook *look)
{
    m_spears = std::move(spears);
    m_look = look;
}
