// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/classiclook.h>

#include <cmath>

#include <fishbone/drawing/classicmarks.h>
#include <fishbone/items/headpictures.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/items/textitem.h>
#include <fishbone/model/systemhelper.h>

namespace {
constexpr double boneAngle = 70;            ///< slant of a slanted bone, degrees
constexpr double slantedLengthReserve = 30; ///< length of a slanted bone beyond what it carries
constexpr double textGap = 10;              ///< between a level bone's start and its text
constexpr double wedgeHalfHeight = 5;       ///< half the height of a short backbone at the head
constexpr double widestWedgeAngle = 0.002181661564992912; ///< radians; an eighth of a degree

const double boneCos = std::cos(SystemHelper::angleToRadian(boneAngle));
const double boneSin = std::sin(SystemHelper::angleToRadian(boneAngle));
const double widestWedgeSlope = std::tan(widestWedgeAngle);

QRectF spanned(const QLineF &line)
{
    return QRectF(line.p1(), line.p2()).normalized();
}

/** Adds @p polygon to @p path. All of them turn the same way, so that with winding fill parts that
 * overlap do not cancel each other out. */
void addPart(QPainterPath &path, const QPolygonF &polygon)
{
    path.addPolygon(polygon);
    path.closeSubpath();
}

QPolygonF corners(const QRectF &rect)
{
    return QPolygonF({rect.topLeft(), rect.topRight(), rect.bottomRight(), rect.bottomLeft()});
}

QRectF headRect(const SpearItem &header)
{
    const QSizeF size = HeadPictures::headSize();
    return {header.line().p1() - QPointF(0, size.height() / 2), size};
}

QRectF tailRect(const SpearItem &header)
{
    const QSizeF size = HeadPictures::tailSize();
    return {header.line().p2() - QPointF(size.width(), size.height() / 2), size};
}

QLineF headerLine(const SpearItem &header)
{
    return {0, 0, header.side() * header.spearWidth(), 0};
}

QLineF levelLine(const SpearItem &spear, const SpearItem &parent)
{
    const QLineF bone = parent.line();
    const double length = bone.length();
    QPointF start = bone.p1();
    if (length > 0) {
        const double cosine = qBound(-1.0, bone.dx() / length, 1.0);
        const double sine = std::sqrt(1 - cosine * cosine);
        start += QPointF(spear.offset() * cosine, parent.direction() * spear.offset() * sine);
    }
    return {start, start + QPointF(spear.side() * spear.spearWidth(), 0)};
}

QLineF slantedLine(const SpearItem &spear, const SpearItem &parent)
{
    const QLineF bone = parent.line();
    const double length = bone.length();
    QPointF start = bone.p1();
    if (length > 0) {
        start.rx() += spear.side() * spear.offset();
        if (parent.isHeader())
            start.ry() += spear.direction() * (length - spear.offset()) *
                          qMin(wedgeHalfHeight / length, widestWedgeSlope);
    }
    const double height = spear.spearHeight();
    return {start,
            start + QPointF(spear.side() * boneCos * height, spear.direction() * boneSin * height)};
}

/** The text box's corners, turned with the box about its own top left corner. */
QPolygonF slantedTextOutline(const SpearItem &spear)
{
    const QPointF along(boneCos, -spear.direction() * boneSin);
    const QPointF down(spear.direction() * boneSin, boneCos);
    const QSizeF text = spear.textItem()->textSize();
    const QPointF origin = spear.textItem()->pos();
    return QPolygonF({origin, origin + along * text.width(),
                      origin + along * text.width() + down * text.height(),
                      origin + down * text.height()});
}
} // namespace

double ClassicLook::width(const SpearItem &spear) const
{
    const SpearItem::ChildExtents &children = spear.childExtents();
    if (spear.direction() != 0)
        return spear.textHeight() + spear.textWidth() * boneCos + children.widest;
    // The header carries its children on two sides in turn, any other level bone on one.
    const double widest =
        spear.isHeader() ? qMax(children.sideWidth[0], children.sideWidth[1]) : children.widthSum;
    return spear.textWidth() + qMax(0.0, widest);
}

double ClassicLook::height(const SpearItem &spear) const
{
    const SpearItem::ChildExtents &children = spear.childExtents();
    if (spear.direction() != 0)
        return qMax(children.heightSum, spear.textWidth()) + slantedLengthReserve;
    const double own = spear.textHeight() + spear.spearSize();
    const SpearItem *const parent = spear.parentSpear();
    // Only below a bone of direction 1 do the children stand on the far side of the text.
    return parent && parent->direction() == 1 ? own + children.tallest
                                              : qMax(children.tallest, own);
}

double ClassicLook::backboneAngle(const SpearItem &spear) const
{
    if (!spear.isHeader())
        return 0;
    const double length = spear.line().length();
    return length > 0 ? qMin(std::atan(wedgeHalfHeight / length), widestWedgeAngle)
                      : widestWedgeAngle;
}

QLineF ClassicLook::line(const SpearItem &spear, const SpearItem *parent) const
{
    if (!parent)
        return headerLine(spear);
    return spear.direction() == 0 ? levelLine(spear, *parent) : slantedLine(spear, *parent);
}

QPointF ClassicLook::textPosition(const SpearItem &spear) const
{
    const QPointF start = spear.line().p1();
    if (spear.isHeader())
        return start;
    const QSizeF text = spear.textItem()->textSize();
    if (spear.direction() == 0)
        return start + QPointF((text.width() + textGap) * spear.side(), -text.height());
    if (spear.direction() == 1)
        return start + QPointF(text.width() * boneCos * spear.side(), text.width() * boneSin);
    // The lower left corner of the turned text comes to stand on the bone.
    return start + QPointF((text.width() * boneCos - text.height() * boneSin) * spear.side(),
                           -text.height() * boneCos - text.width() * boneSin);
}

std::optional<double> ClassicLook::textRotation(const SpearItem &spear) const
{
    if (spear.isHeader())
        return {};
    return -boneAngle * spear.direction();
}

QPointF ClassicLook::statusPosition(const SpearItem &spear) const
{
    const QPointF text = spear.textItem()->pos();
    switch (spear.direction()) {
    case 0:
        return text + QPointF(10 * spear.side(), 10);
    case -1:
        return text + QPointF(20 * spear.side(), -10);
    default:
        return text;
    }
}

QPointF ClassicLook::linkPosition(const SpearItem &spear) const
{
    const auto halfWidth = [](const QGraphicsItem *item) {
        return item ? item->boundingRect().width() / 2 : 0;
    };
    const QPointF end = spear.line().p2();
    return {end.x() - halfWidth(spear.expandBuddy()) - halfWidth(spear.linkItem()), end.y()};
}

QPointF ClassicLook::buttonPosition(const SpearItem &spear) const
{
    const QPointF end = spear.line().p2();
    switch (spear.direction()) {
    case 0:
        return end - QPointF(0, 8);
    case 1:
        return end - QPointF(10, 10);
    case -1:
        return end - QPointF(5, 0);
    default:
        return end;
    }
}

bool ClassicLook::showsStatus(const SpearItem &spear) const
{
    return !spear.isHeader();
}

int ClassicLook::rowAt(const SpearItem &spear, const QPointF &scenePos, int movingRow) const
{
    const QList<SpearItem *> children = spear.childSpears();
    const int direction = spear.direction();
    for (int row = 0; row < children.count(); ++row) {
        // Before the spear behind the moving one is where the moving one stands already.
        if (movingRow >= 0 && row == movingRow + 1)
            continue;
        const SpearItem *const child = children.at(row);
        const QPointF start = child->mapToScene(child->line().p1());
        const bool reached = direction == 0 ? start.x() <= scenePos.x()
                                            : direction * scenePos.y() <= direction * start.y();
        if (reached)
            return row;
    }
    return children.count();
}

QPointF ClassicLook::slot(const SpearItem &spear, int row) const
{
    const QList<SpearItem *> children = spear.childSpears();
    const QLineF first = children.isEmpty() ? spear.line() : children.last()->line();
    const SpearItem *const numbered = children.value(row);
    const QPointF end = numbered ? numbered->line().p1() : spear.line().p1();
    return (first.p1() + end) / 2;
}

QRectF ClassicLook::textRect(const SpearItem &spear) const
{
    if (spear.isHeader()) {
        const double height = spear.textHeight();
        const double sense = spear.line().y1() <= spear.line().y2() ? 1 : -1;
        return {spear.line().p1(), QSizeF(height, height * sense)};
    }
    if (spear.direction() == 0)
        return {spear.textItem()->pos(), spear.textItem()->textSize()};
    return {spear.textItem()->pos(), QSizeF(1, 1)};
}

QRectF ClassicLook::boundingRect(const SpearItem &spear) const
{
    QRectF rect = spanned(spear.line());
    if (!spear.isHeader()) {
        const double margin = (spear.pen().width() + 20) * 0.5;
        return (rect | textRect(spear)).normalized().adjusted(-margin, -margin, margin, margin);
    }
    // A united empty rectangle would count, so a picture that is not there is left out.
    for (const QRectF &picture : {headRect(spear), tailRect(spear)}) {
        if (!picture.isEmpty())
            rect |= picture;
    }
    return rect;
}

/** The title itself stays as the item has it: what shows a verdict lies behind. */
bool ClassicLook::paintText(QPainter &painter, const SpearItem &spear) const
{
    ClassicMarks::paint(painter, spear);
    return false;
}

QPainterPath ClassicLook::shape(const SpearItem &spear) const
{
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    const QList<QPolygonF> stroke = spear.QGraphicsLineItem::shape().toSubpathPolygons();
    for (const QPolygonF &part : stroke)
        addPart(path, part);
    if (spear.isHeader()) {
        addPart(path, corners(headRect(spear)));
        addPart(path, corners(tailRect(spear)));
    } else if (spear.direction() == 0) {
        addPart(path, corners(textRect(spear)));
    } else {
        addPart(path, slantedTextOutline(spear));
    }
    return path;
}
