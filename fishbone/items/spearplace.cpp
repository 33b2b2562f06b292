// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/spearplace.h>

#include <utility>

#include <QPainter>

#include <fishbone/items/headpictures.h>
#include <fishbone/items/spearcompanions.h>
#include <fishbone/items/spearparts.h>
#include <fishbone/items/textitem.h>

namespace {
constexpr double linkCircleRadius = 8;
} // namespace

SpearPlace::SpearPlace(SpearItem &spear, SpearCompanions &companions, int direction,
                       double spearSize)
    : m_spear(spear)
    , m_companions(companions)
    , m_look(SpearLook::standard())
    , m_spearSize(spearSize)
    , m_direction(direction)
{
}

void SpearPlace::setLook(const std::shared_ptr<const SpearLook> &look)
{
    if (m_look == look)
        return;
    boxesChange();
    m_look = look;
    m_lookData.reset();
    m_companions.scaleIcons();
    m_companions.showButton();
}

void SpearPlace::setLookData(std::unique_ptr<const SpearLookData> data)
{
    if (!data && !m_lookData)
        return;
    boxesChange();
    m_lookData = std::move(data);
}

/** Before something of the spear's geometry and that of its companions changes. */
void SpearPlace::boxesChange()
{
    SpearParts::geometryChanges(m_spear);
    m_spear.update();
    m_companions.boxesChange();
}

void SpearPlace::setDirection(int direction)
{
    if (m_direction == direction)
        return;
    SpearParts::geometryChanges(m_spear);
    m_direction = direction;
}

void SpearPlace::addChild(const QSizeF &size)
{
    m_children.widest = qMax(m_children.widest, size.width());
    m_children.tallest = qMax(m_children.tallest, size.height());
    m_children.heightSum += size.height();
    m_children.widthSum += size.width();
    m_children.sideWidth[m_children.count % 2] += size.width();
    ++m_children.count;
}

void SpearPlace::refresh(int direction)
{
    m_spear.setPos(0, 0);
    setDirection(direction);
    m_companions.text()->restoreText();
    m_spear.applyState(m_spear.currentState());
    if (m_spear.isHeader())
        showPictures();
}

/** Brings the header in line with the pictures that there are now. */
void SpearPlace::showPictures()
{
    HeadPictures::loadMissing();
    const qint64 key = HeadPictures::key();
    if (m_paintedPictures == key)
        return;
    m_paintedPictures = key;
    SpearParts::geometryChanges(m_spear);
    m_spear.update();
}

void SpearPlace::begin()
{
    m_offset = 0;
    m_children = SpearItem::ChildExtents();
}

void SpearPlace::reset(int direction)
{
    refresh(direction);
    begin();
    m_spear.setLine(QLineF(0, 0, 0, 0));
}

void SpearPlace::setBelow(SpearItem *parent)
{
    moveLine(parent, m_look->line(m_spear, parent));
    m_companions.place();
}

void SpearPlace::moveLine(SpearItem *parent, const QLineF &placed)
{
    if (parent && parent->isLinked() && placed != m_spear.line()) {
        SpearParts::geometryChanges(*parent); // its circle stands between the lines of its children
        parent->update();
    }
    m_spear.setLine(placed);
}

int SpearPlace::dropRow(const QPointF &scenePos, const SpearItem *moving) const
{
    const int movingRow = moving && moving->parentItem() == &m_spear
                              ? m_spear.childSpears().indexOf(const_cast<SpearItem *>(moving))
                              : -1;
    return m_look->rowAt(m_spear, scenePos, movingRow);
}

QRectF SpearPlace::boundingRect() const
{
    const QRectF rect = m_look->boundingRect(m_spear);
    return m_spear.isLinked() ? rect | linkCircleRect() : rect;
}

void SpearPlace::paint(QPainter &painter) const
{
    m_look->paint(painter, m_spear);
    if (m_spear.isLinked())
        paintLinkCircle(painter);
}

void SpearPlace::paintLinkCircle(QPainter &painter) const
{
    painter.save();
    painter.setBrush(painter.pen().color());
    painter.drawEllipse(m_look->slot(m_spear, m_spear.linkNumber()), linkCircleRadius,
                        linkCircleRadius);
    painter.restore();
}

QRectF SpearPlace::linkCircleRect() const
{
    const double extent = 2 * linkCircleRadius + qMax(m_spear.pen().widthF(), 1.0);
    QRectF rect(0, 0, extent, extent);
    rect.moveCenter(m_look->slot(m_spear, m_spear.linkNumber()));
    return rect;
}
