// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// The part of ClearLook that paints.

#include <fishbone/drawing/clearlook.h>

#include <QPainter>

#include <fishbone/drawing/clearspear.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/model/treeitem.h>
#include <fishbone/style/spearstyle.h>
#include <fishbone/style/textbox.h>

namespace {
constexpr double categoryLine = 2.2;
constexpr double causeLine = 1.2;
constexpr double deepLine = 1;
constexpr double outlineWidth = 1.5;
constexpr double boxCorner = 4;

double lineWidth(int level)
{
    if (level == 1)
        return categoryLine;
    return level == 2 ? causeLine : deepLine;
}

/** The style that counts in that state: the subject's own one always, the one of all where a bone
 * stands out; null for that of the look. */
const SpearStyle *styleOf(const SpearItem &spear, SpearStyle::SpearState state)
{
    const SpearStyle *const own = spear.treeItem() ? spear.treeItem()->spearStyle() : nullptr;
    if (own)
        return own;
    return state == SpearStyle::ssNormal ? nullptr : SpearStyle::global();
}
} // namespace

QPen ClearLook::penOf(const SpearItem &spear, const ClearSpear &place) const
{
    if (!spear.isMovable())
        return QPen(Qt::red, lineWidth(place.bone.level));
    const SpearStyle *const style = styleOf(spear, spear.currentState());
    if (const QPen *const set = style ? style->broderPen(spear.currentState()) : nullptr)
        return *set;
    QPen pen(m_colors.category(place.bone.category), lineWidth(place.bone.level));
    pen.setCapStyle(Qt::RoundCap);
    return pen;
}

QColor ClearLook::fillOf(const SpearItem &spear, const ClearSpear &place) const
{
    const SpearStyle *const style = styleOf(spear, spear.boxState());
    const QColor set = style ? style->textBkColor(spear.boxState()) : QColor();
    if (set.isValid())
        return set;
    return place.bone.level == 1 ? m_colors.category(place.bone.category) : QColor();
}

QColor ClearLook::inkOf(const SpearItem &spear, const ClearSpear &place) const
{
    const SpearStyle *const style = styleOf(spear, spear.textState());
    const QColor set = style ? style->textColor(spear.textState()) : QColor();
    return set.isValid() ? set : m_colors.ink(place.bone.level);
}

void ClearLook::paint(QPainter &painter, const SpearItem &spear) const
{
    const ClearSpear *const place = ClearSpear::of(spear);
    if (!place)
        return;
    if (place->frame) {
        paintHeader(painter, *place);
        return;
    }
    painter.setPen(penOf(spear, *place));
    if (!spear.isMoving())
        painter.drawLine(spear.line());
}

void ClearLook::paintHeader(QPainter &painter, const ClearSpear &header) const
{
    painter.save();
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_colors.backbone());
    painter.drawPolygon(header.frame->backbone);
    painter.setPen(QPen(m_colors.outline(), outlineWidth));
    painter.drawPath(header.frame->tail);
    painter.setBrush(m_colors.head());
    painter.drawPath(header.frame->head);
    painter.restore();
    painter.setPen(m_colors.outline());
}

bool ClearLook::paintText(QPainter &painter, const SpearItem &spear) const
{
    const ClearSpear *const place = ClearSpear::of(spear);
    if (!place)
        return true;
    const SpearStyle::SpearState state = spear.boxState();
    const QRectF box = place->box();
    painter.save();
    painter.translate(-box.topLeft());
    if (const QColor fill = fillOf(spear, *place); fill.isValid()) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(fill);
        painter.drawRoundedRect(box, boxCorner, boxCorner);
    }
    if (state != SpearStyle::ssNormal)
        paintTextBox(painter, box, box, QColor(), spear.broaderPen(state));
    const QColor ink = inkOf(spear, *place);
    for (int line = 0; line < place->bone.text->lineCount(); ++line)
        place->bone.text->paintLine(painter, line, place->bone.base(line), ink);
    painter.restore();
    return true;
}

void ClearLook::paintBadge(QPainter &painter, const SpearItem &spear) const
{
    const ClearSpear *const place = ClearSpear::of(spear);
    if (!place)
        return;
    painter.save();
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_colors.badge());
    const QRectF rect = badge(spear);
    painter.drawRoundedRect(rect, rect.height() / 2, rect.height() / 2);
    painter.setPen(m_colors.badgeInk());
    painter.setFont(place->badgeFont);
    painter.drawText(rect, Qt::AlignCenter, QLatin1Char('+') + QString::number(place->hidden));
    painter.restore();
}
