// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/settleddrawing.h>

#include <fishbone/items/spearpasses.h>
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
    , m_status(placeOf(SpearPasses::madeStatus(spear)))
    , m_link(partOf(spear.linkItem()))
    , m_button(partOf(spear.expandBuddy()))
{
}

std::optional<QPointF> SettledSpear::placeOf(const QGraphicsItem *item)
{
    return item ? std::optional<QPointF>(item->pos()) : std::nullopt;
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

bool SettledSpear::Part::holds(const QGraphicsItem *item) const
{
    if (!item)
        return width < 0;
    return isSame(position, item->pos()) && width == item->boundingRect().width();
}

bool SettledSpear::holds(const SpearItem &spear) const
{
    const TextItem &text = *spear.textItem();
    const TaskStatusItem *const status = SpearPasses::madeStatus(spear);
    const QSizeF size = text.textSize();
    const QLineF line = spear.line();
    return m_spear == &spear && m_direction == spear.direction() &&
           m_isExpanded == spear.isExpand() && m_offset == spear.offset() &&
           m_children == spear.childExtents() && isSame(m_line.p1(), line.p1()) &&
           isSame(m_line.p2(), line.p2()) && m_text.width() == size.width() &&
           m_text.height() == size.height() && isSame(m_textPosition, text.pos()) &&
           m_textRotation == text.rotation() && m_status.has_value() == (status != nullptr) &&
           (!status || isSame(*m_status, status->pos())) && m_link.holds(spear.linkItem()) &&
           m_button.holds(spear.expandBuddy());
}
