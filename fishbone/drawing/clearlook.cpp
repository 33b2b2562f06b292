// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/clearlook.h>

#include <cmath>

#include <QPainterPath>

#include <fishbone/drawing/clearspear.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/items/taskstatusitem.h>
#include <fishbone/items/textitem.h>

namespace {
constexpr double hitWidth = 8;     ///< of a bone, for the mouse
constexpr double lineMargin = 6;   ///< of where the mouse hits, with its corners
constexpr double penCorner = 0.75; ///< of its width: so far from its line the cap of a pen reaches

/** The end of the nearest bone above that is shown. */
QPointF shownEnd(const SpearItem &spear)
{
    const SpearItem *above = spear.parentSpear();
    while (above && !ClearSpear::of(*above))
        above = above->parentSpear();
    return above ? ClearSpear::of(*above)->bone.line.p2() : QPointF();
}

/** How far along its parent a bone branches off: the bones of a row are sorted by it. */
double distanceAlong(const QLineF &bone, const QPointF &point)
{
    const double length = bone.length();
    return length > 0 ? QPointF::dotProduct(point - bone.p1(), bone.p2() - bone.p1()) / length : 0;
}

/** The backbone as a line from the head, or the bone itself. */
QLineF carrier(const SpearItem &spear)
{
    return spear.line();
}
} // namespace

ClearLook::ClearLook(const DiagramLook::Options &options)
    : m_options(options)
    , m_colors(options.palette)
{
}

double ClearLook::width(const SpearItem &spear) const
{
    const ClearSpear *const place = ClearSpear::of(spear);
    return place ? place->extent.width() : 0;
}

double ClearLook::height(const SpearItem &spear) const
{
    const ClearSpear *const place = ClearSpear::of(spear);
    return place ? place->extent.height() : 0;
}

double ClearLook::backboneAngle(const SpearItem &spear) const
{
    const ClearSpear *const place = ClearSpear::of(spear);
    if (!place || !place->frame)
        return 0;
    const QRectF wedge = place->frame->backbone.boundingRect();
    return wedge.width() > 0 ? std::atan(wedge.height() / 2 / wedge.width()) : 0;
}

QLineF ClearLook::line(const SpearItem &spear, const SpearItem *parent) const
{
    Q_UNUSED(parent)
    const ClearSpear *const place = ClearSpear::of(spear);
    if (!place)
        return {shownEnd(spear), shownEnd(spear)};
    if (!place->frame)
        return place->bone.line;
    const QRectF wedge = place->frame->backbone.boundingRect();
    return {QPointF(0, 0), QPointF(m_options.isHeadLeft ? wedge.right() : wedge.left(), 0)};
}

QPointF ClearLook::textPosition(const SpearItem &spear) const
{
    const ClearSpear *const place = ClearSpear::of(spear);
    return place ? place->box().topLeft() : shownEnd(spear);
}

std::optional<double> ClearLook::textRotation(const SpearItem &spear) const
{
    Q_UNUSED(spear)
    return 0;
}

QPointF ClearLook::statusPosition(const SpearItem &spear) const
{
    const ClearSpear *const place = ClearSpear::of(spear);
    return place ? place->bone.status.topLeft() : shownEnd(spear);
}

QPointF ClearLook::linkPosition(const SpearItem &spear) const
{
    const ClearSpear *const place = ClearSpear::of(spear);
    return place ? place->bone.link.topLeft() : shownEnd(spear);
}

QPointF ClearLook::buttonPosition(const SpearItem &spear) const
{
    const ClearSpear *const place = ClearSpear::of(spear);
    if (!place)
        return shownEnd(spear);
    if (!place->bone.badge.isNull())
        return place->bone.badge.topLeft();
    const QSizeF size = spear.expandBuddy() ? spear.expandBuddy()->boundingRect().size() : QSizeF();
    return place->bone.button - QPointF(size.width() / 2, size.height() / 2);
}

bool ClearLook::showsStatus(const SpearItem &spear) const
{
    return !spear.isHeader();
}

bool ClearLook::showsButton(const SpearItem &spear) const
{
    if (!spear.isExpand())
        return true;
    return m_options.hasButtons && spear.boxState() != SpearStyle::ssNormal;
}

double ClearLook::iconScale(const QGraphicsItem &icon) const
{
    const QSizeF size = icon.boundingRect().size();
    const double longest = qMax(size.width(), size.height());
    return longest > 0 ? ClearMeasure::icon / longest : 1;
}

int ClearLook::rowAt(const SpearItem &spear, const QPointF &scenePos, int movingRow) const
{
    const QList<SpearItem *> children = spear.childSpears();
    const QLineF bone = carrier(spear);
    const double dropped = distanceAlong(bone, spear.mapFromScene(scenePos));
    for (int row = 0; row < children.count(); ++row) {
        // Before the one behind the moving one is where the moving one stands already.
        if (movingRow >= 0 && row == movingRow + 1)
            continue;
        const QLineF child = children.at(row)->line();
        // Of the categories only those on the same side are passed.
        const bool isAcross =
            spear.isHeader() && (child.dy() > 0) != (spear.mapFromScene(scenePos).y() > 0);
        if (!isAcross && distanceAlong(bone, child.p1()) >= dropped)
            return row;
    }
    return children.count();
}

QPointF ClearLook::slot(const SpearItem &spear, int row) const
{
    const QList<SpearItem *> children = spear.childSpears();
    const QLineF bone = carrier(spear);
    // Categories alternate sides; the one before in the row of a side is two before.
    const int step = spear.isHeader() ? 2 : 1;
    const SpearItem *const before = children.value(row - step);
    const SpearItem *const after = children.value(row);
    const QPointF from = before ? before->line().p1() : bone.p1();
    const QPointF to = after ? after->line().p1() : bone.p2();
    return (from + to) / 2;
}

QRectF ClearLook::textRect(const SpearItem &spear) const
{
    const ClearSpear *const place = ClearSpear::of(spear);
    return place ? place->box() : QRectF();
}

QRectF ClearLook::boundingRect(const SpearItem &spear) const
{
    const ClearSpear *const place = ClearSpear::of(spear);
    const QLineF line = spear.line();
    QRectF rect = QRectF(line.p1(), line.p2()).normalized();
    if (place && place->frame)
        rect |= place->frame->rect();
    else if (place)
        rect |= place->box(); // where it is hit as well, which its text box leaves to the bone
    const qreal widest =
        qMax(spear.pen().widthF(), place ? place->ink.line.widthF() + ClearInk::broader : 0);
    const qreal margin = qMax(lineMargin, widest * penCorner + 1);
    return rect.adjusted(-margin, -margin, margin, margin);
}

QPainterPath ClearLook::shape(const SpearItem &spear) const
{
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    const ClearSpear *const place = ClearSpear::of(spear);
    if (!place)
        return path;
    if (place->frame) {
        path.addPath(place->frame->head);
        path.addPath(place->frame->tail);
    } else {
        path.addRect(place->box());
    }
    QPainterPath bone(spear.line().p1());
    bone.lineTo(spear.line().p2());
    QPainterPathStroker stroker;
    stroker.setWidth(hitWidth);
    path.addPath(stroker.createStroke(bone));
    return path;
}

QRectF ClearLook::textBox(const SpearItem &spear) const
{
    const ClearSpear *const place = ClearSpear::of(spear);
    return QRectF(QPointF(0, 0), place ? place->box().size() : QSizeF(1, 1));
}

QRectF ClearLook::badge(const SpearItem &spear) const
{
    const ClearSpear *const place = ClearSpear::of(spear);
    return place && !place->bone.badge.isNull() ? QRectF(QPointF(0, 0), place->bone.badge.size())
                                                : QRectF();
}
