// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// The part of SpearItem that computes sizes, positions and shapes.

#include <fishbone/items/spearitem.h>

#include <cmath>
#include <utility>

#include <QPixmap>
#include <QtMath>

#include <fishbone/items/taskstatusitem.h>
#include <fishbone/items/textitem.h>
#include <fishbone/model/systemhelper.h>
#include <fishbone/model/treeitem.h>

namespace {
constexpr double boneAngle = 70;            ///< slant of a slanted bone, degrees
constexpr double slantedLengthReserve = 30; ///< length of a slanted bone beyond what it carries
constexpr double textGap = 10;              ///< between a horizontal bone's start and its text
constexpr double wedgeHalfHeight = 5;       ///< half the height of a short backbone at the head
constexpr double widestWedgeAngle = 0.002181661564992912; ///< radians; an eighth of a degree

const double boneCos = std::cos(SystemHelper::angleToRadian(boneAngle));
const double boneSin = std::sin(SystemHelper::angleToRadian(boneAngle));
const double widestWedgeSlope = std::tan(widestWedgeAngle);

QRectF spanned(const QLineF &line)
{
    return QRectF(line.p1(), line.p2()).normalized();
}

QSizeF sizeOf(const QPixmap *picture)
{
    return picture ? QSizeF(picture->size()) : QSizeF(0, 0);
}

/// Adds \a polygon to \a path. All of them turn the same way, so that with winding fill parts that
/// overlap do not cancel each other out.
void addPart(QPainterPath &path, const QPolygonF &polygon)
{
    path.addPolygon(polygon);
    path.closeSubpath();
}

QPolygonF corners(const QRectF &rect)
{
    return QPolygonF({rect.topLeft(), rect.topRight(), rect.bottomRight(), rect.bottomLeft()});
}
} // namespace

void SpearItem::setLine(const QLineF &line)
{
    QGraphicsLineItem::setLine(line);
}

void SpearItem::setDirection(int direction)
{
    if (m_direction == direction)
        return;
    prepareGeometryChange();
    m_direction = direction;
}

void SpearItem::initData(int direction)
{
    beginLayout(direction);
    setLine(QLineF(0, 0, 0, 0));
    showChildren();
}

void SpearItem::beginLayout(int direction)
{
    setPos(0, 0);
    m_offset = 0;
    setDirection(direction);
    m_children = ChildExtents();
    applyState(m_currentState);
    if (isHeader())
        showPictures();
}

void SpearItem::sumChildSize(const QSizeF &size)
{
    m_children.widest = qMax(m_children.widest, size.width());
    m_children.tallest = qMax(m_children.tallest, size.height());
    m_children.heightSum += size.height();
    m_children.widthSum += size.width();
    m_children.sideWidth[m_children.count % 2] += size.width();
    ++m_children.count;
}

double SpearItem::spearWidth() const
{
    if (m_direction != 0)
        return textHeight() + textWidth() * boneCos + m_children.widest;
    // The header carries its children on two sides in turn, any other horizontal bone on one.
    const double widest =
        isHeader() ? qMax(m_children.sideWidth[0], m_children.sideWidth[1]) : m_children.widthSum;
    return textWidth() + qMax(0.0, widest);
}

double SpearItem::spearHeight() const
{
    if (m_direction != 0)
        return qMax(m_children.heightSum, textWidth()) + slantedLengthReserve;
    const double own = textHeight() + m_spearSize;
    const SpearItem *const parent = parentSpear();
    // Only below a bone of direction 1 do the children stand on the far side of the text.
    return parent && parent->direction() == 1 ? own + m_children.tallest
                                              : qMax(m_children.tallest, own);
}

double SpearItem::backboneAngle() const
{
    if (parentItem())
        return 0;
    const double length = line().length();
    return length > 0 ? qMin(std::atan(wedgeHalfHeight / length), widestWedgeAngle)
                      : widestWedgeAngle;
}

QPointF SpearItem::expandBuddyPosition() const
{
    const QPointF end = line().p2();
    switch (m_direction) {
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

QPointF SpearItem::linkBuddyPosition() const
{
    const double expandWidth = m_expandBuddy ? m_expandBuddy->boundingRect().width() : 0;
    const double linkWidth = m_linkItem ? m_linkItem->boundingRect().width() : 0;
    const QPointF end = line().p2();
    return {end.x() - expandWidth / 2 - linkWidth / 2, end.y()};
}

QPointF SpearItem::TaskStateItemPosition() const
{
    const QPointF text = m_textItem->pos();
    switch (m_direction) {
    case 0:
        return text + QPointF(10 * m_side, 10);
    case -1:
        return text + QPointF(20 * m_side, -10);
    default:
        return text;
    }
}

QPointF SpearItem::textBuddyPosition()
{
    const QPointF start = line().p1();
    if (isHeader())
        return start;
    const QSizeF text = m_textItem->textSize();
    // Compared first: setting the rotation that is there already would schedule a repaint.
    const double rotation = -boneAngle * m_direction;
    if (!qFuzzyCompare(m_textItem->rotation() + 1, rotation + 1))
        m_textItem->setRotation(rotation);
    if (m_direction == 0)
        return start + QPointF((text.width() + textGap) * m_side, -text.height());
    if (m_direction == 1)
        return start + QPointF(text.width() * boneCos * m_side, text.width() * boneSin);
    // The lower left corner of the turned text comes to stand on the bone.
    return start + QPointF((text.width() * boneCos - text.height() * boneSin) * m_side,
                           -text.height() * boneCos - text.width() * boneSin);
}

QLineF SpearItem::headerLine() const
{
    return {0, 0, m_side * spearWidth(), 0};
}

QLineF SpearItem::horizontalLine(const SpearItem &parent) const
{
    const QLineF bone = parent.line();
    const double length = bone.length();
    QPointF start = bone.p1();
    if (length > 0) {
        const double cosine = qBound(-1.0, bone.dx() / length, 1.0);
        const double sine = std::sqrt(1 - cosine * cosine);
        start += QPointF(m_offset * cosine, parent.direction() * m_offset * sine);
    }
    return {start, start + QPointF(m_side * spearWidth(), 0)};
}

QLineF SpearItem::slantedLine(const SpearItem &parent) const
{
    const QLineF bone = parent.line();
    const double length = bone.length();
    QPointF start = bone.p1();
    if (length > 0) {
        start.rx() += m_side * m_offset;
        if (parent.isHeader())
            start.ry() += m_direction * (length - m_offset) *
                          qMin(wedgeHalfHeight / length, widestWedgeSlope);
    }
    const double height = spearHeight();
    return {start, start + QPointF(m_side * boneCos * height, m_direction * boneSin * height)};
}

QLineF SpearItem::placedLine(const SpearItem *parent) const
{
    if (!parent)
        return headerLine();
    return m_direction == 0 ? horizontalLine(*parent) : slantedLine(*parent);
}

void SpearItem::updatePosition(const QPointF &position)
{
    Q_UNUSED(position)
    place(parentSpear());
}

void SpearItem::place(SpearItem *parent)
{
    moveLine(parent, placedLine(parent));
    placeCompanions();
}

void SpearItem::moveLine(SpearItem *parent, const QLineF &placed)
{
    if (parent && parent->isLinked() && placed != line()) {
        parent->prepareGeometryChange(); // its circle stands between the lines of its children
        parent->update();
    }
    setLine(placed);
}

void SpearItem::placeCompanions()
{
    const QPointF textPosition = textBuddyPosition();
    if (m_textItem->pos() != textPosition) {
        prepareGeometryChange(); // the bounding rectangle covers the text box of a horizontal bone
        m_textItem->setPos(textPosition);
    }
    if (m_linkItem)
        m_linkItem->setPos(linkBuddyPosition());
    if (m_expandBuddy)
        m_expandBuddy->setPos(expandBuddyPosition());
    if (isHeader()) {
        m_hasHiddenStatus = m_hasHiddenStatus || m_statusItem->isVisible();
        m_statusItem->setVisible(false);
        return;
    }
    // Otherwise left as it is: a host may have hidden it.
    if (std::exchange(m_hasHiddenStatus, false))
        m_statusItem->setVisible(true);
    m_statusItem->setPos(TaskStateItemPosition());
}

QRectF SpearItem::textRect() const
{
    if (isHeader()) {
        const double height = textHeight();
        const double sense = line().y1() <= line().y2() ? 1 : -1;
        return {line().p1(), QSizeF(height, height * sense)};
    }
    if (m_direction == 0)
        return {m_textItem->pos(), m_textItem->textSize()};
    return {m_textItem->pos(), QSizeF(1, 1)};
}

QRectF SpearItem::headRect() const
{
    const QSizeF size = sizeOf(m_pixHeader);
    return {line().p1() - QPointF(0, size.height() / 2), size};
}

QRectF SpearItem::tailRect() const
{
    const QSizeF size = sizeOf(m_pixTail);
    return {line().p2() - QPointF(size.width(), size.height() / 2), size};
}

QRectF SpearItem::boundingRect() const
{
    QRectF rect = spanned(line());
    if (isHeader()) {
        // A united empty rectangle would count, so a picture that is not there is left out.
        for (const QRectF &picture : {headRect(), tailRect()}) {
            if (!picture.isEmpty())
                rect |= picture;
        }
    } else {
        const double margin = (pen().width() + 20) * 0.5;
        rect = (rect | textRect()).normalized().adjusted(-margin, -margin, margin, margin);
    }
    return m_linked ? rect | linkCircleRect() : rect;
}

QPolygonF SpearItem::slantedTextOutline() const
{
    // The text box's corners, turned with the box about its own top left corner.
    const QPointF along(boneCos, -m_direction * boneSin);
    const QPointF down(m_direction * boneSin, boneCos);
    const QSizeF text = m_textItem->textSize();
    const QPointF origin = m_textItem->pos();
    return QPolygonF({origin, origin + along * text.width(),
                      origin + along * text.width() + down * text.height(),
                      origin + down * text.height()});
}

QPainterPath SpearItem::shape() const
{
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    const QList<QPolygonF> stroke = QGraphicsLineItem::shape().toSubpathPolygons();
    for (const QPolygonF &part : stroke)
        addPart(path, part);
    if (isHeader()) {
        addPart(path, corners(headRect()));
        addPart(path, corners(tailRect()));
    } else if (m_direction == 0) {
        addPart(path, corners(QRectF(m_textItem->pos(), m_textItem->textSize())));
    } else {
        addPart(path, slantedTextOutline());
    }
    return path;
}
