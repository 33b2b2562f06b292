// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// The part of ClearLook that paints.

#include <fishbone/drawing/clearlook.h>

#include <QPainter>

#include <fishbone/drawing/clearpainter.h>
#include <fishbone/drawing/clearspear.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/model/treeitem.h>
#include <fishbone/style/spearstyle.h>
#include <fishbone/style/textbox.h>

namespace {
constexpr double boxCorner = 4;

/** The style that counts in that state: the subject's own one always, the one of all where a bone
 * stands out; null for that of the look. */
const SpearStyle *styleOf(const SpearItem &spear, SpearStyle::SpearState state)
{
    const SpearStyle *const own = spear.treeItem() ? spear.treeItem()->spearStyle() : nullptr;
    if (own)
        return own;
    return state == SpearStyle::ssNormal ? nullptr : SpearStyle::global();
}

/** The pen that a style has for that state; null for none. */
const QPen *penIn(const SpearItem &spear, SpearStyle::SpearState state)
{
    const SpearStyle *const style = styleOf(spear, state);
    return style ? style->broderPen(state) : nullptr;
}

/** The pen of the frame around the title of @p spear, which is not normal, in @p ink. */
QPen framePen(const SpearItem &spear, const ClearInk &ink)
{
    const QPen *const frame = penIn(spear, spear.boxState());
    return frame ? *frame : QPen(ink.accent);
}

/** Whether @p spear is one that leads to another that is selected, pointed at or linked. */
bool isOnTheWay(const SpearItem &spear)
{
    return spear.boxState() == SpearStyle::ssNormal && spear.standsOut();
}
} // namespace

QPen ClearLook::penOf(const SpearItem &spear, const ClearSpear &place) const
{
    if (!spear.isMovable())
        return QPen(Qt::red, place.ink.line.widthF());
    const SpearStyle::SpearState state = spear.currentState();
    if (!spear.standsOut())
        return place.ink.line;
    if (const QPen *const set = state == SpearStyle::ssNormal ? nullptr : penIn(spear, state))
        return *set;
    return place.ink.standingOut(place.bone.level, m_colors).line;
}

/** The colours of the title in the state that it shows. */
ClearInk ClearLook::inkOf(const SpearItem &spear, const ClearSpear &place) const
{
    if (isOnTheWay(spear))
        return place.ink.standingOut(place.bone.level, m_colors);
    ClearInk ink = place.ink;
    if (spear.boxState() == SpearStyle::ssNormal)
        return ink;
    const SpearStyle *const boxStyle = styleOf(spear, spear.boxState());
    const QColor fill = boxStyle ? boxStyle->textBkColor(spear.boxState()) : QColor();
    const SpearStyle *const textStyle = styleOf(spear, spear.textState());
    const QColor text = textStyle ? textStyle->textColor(spear.textState()) : QColor();
    if (fill.isValid()) {
        ink.box = fill;
        ink.background = QColor();
        ink.text = ClearColors::inkOn(fill);
    }
    if (text.isValid())
        ink.text = text;
    return ink;
}

void ClearLook::paint(QPainter &painter, const SpearItem &spear) const
{
    const ClearSpear *const place = ClearSpear::of(spear);
    if (!place)
        return;
    if (place->frame) {
        paintHeader(painter, spear);
        return;
    }
    painter.setPen(penOf(spear, *place));
    if (!spear.isMoving())
        painter.drawLine(spear.line());
}

void ClearLook::paintHeader(QPainter &painter, const SpearItem &spear) const
{
    painter.save();
    ClearPainter sink(painter);
    describeFish(sink, spear);
    describeHead(sink, spear, *ClearSpear::of(spear));
    describeLegend(sink, spear);
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
    ClearPainter sink(painter);
    describeTitle(sink, spear, *place);
    if (state != SpearStyle::ssNormal)
        paintTextBox(painter, box, box, QColor(), framePen(spear, inkOf(spear, *place)));
    painter.restore();
    return true;
}

void ClearLook::paintBadge(QPainter &painter, const SpearItem &spear) const
{
    const ClearSpear *const place = ClearSpear::of(spear);
    if (!place || !place->bone.badgeText)
        return;
    painter.save();
    ClearPainter sink(painter);
    ClearPieces::badge(sink, *place->bone.badgeText, badge(spear), m_colors);
    painter.restore();
}

void ClearLook::describeFish(PictureSink &sink, const SpearItem &spear) const
{
    const ClearFrame &frame = *ClearSpear::of(spear)->frame;
    ClearPieces::fish(sink, frame.backbone, frame.tail, m_colors);
}

void ClearLook::describeHead(PictureSink &sink, const SpearItem &spear,
                             const ClearSpear &header) const
{
    ClearPieces::head(sink, header.frame->head, header.ink, m_colors, isOnTheWay(spear));
}

void ClearLook::describeLegend(PictureSink &sink, const SpearItem &spear) const
{
    const ClearFrame &frame = *ClearSpear::of(spear)->frame;
    ClearPieces::legend(sink, frame.legend, frame.symbols, m_colors);
}

/** Describes the title in the state that it shows, without the frame of that. */
void ClearLook::describeTitle(PictureSink &sink, const SpearItem &spear,
                              const ClearSpear &place) const
{
    const ClearInk ink = inkOf(spear, place);
    const bool hasFill = spear.boxState() != SpearStyle::ssNormal && ink.box.isValid();
    if (hasFill && place.bone.level != 1)
        sink.box(place.box(), boxCorner, ink.box);
    ClearPieces::label(sink, place.bone, ink, m_colors);
}

void ClearLook::describe(PictureSink &sink, const SpearItem &spear) const
{
    const ClearSpear &place = *ClearSpear::of(spear);
    if (place.frame)
        describeHead(sink, spear, place);
    else if (!spear.isMoving())
        sink.line(spear.line(), penOf(spear, place));
    describeTitle(sink, spear, place);
    const QPen frame = framePen(spear, inkOf(spear, place));
    if (spear.boxState() == SpearStyle::ssNormal || frame.style() == Qt::NoPen)
        return;
    QPainterPath outline;
    outline.addRect(place.box());
    sink.shape(outline, QColor(), frame.color(), qMax(frame.widthF(), 1.0));
}

void ClearLook::describeBadge(PictureSink &sink, const SpearItem &spear) const
{
    const ClearLayout::Bone &bone = ClearSpear::of(spear)->bone;
    if (bone.badgeText)
        ClearPieces::badge(sink, *bone.badgeText, bone.badge, m_colors);
}
