// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// The part of SpearItem that draws.

#include <fishbone/items/spearitem.h>

#include <QPainter>
#include <QStyleOptionGraphicsItem>

#include <fishbone/items/headpictures.h>
#include <fishbone/items/spearlook.h>

namespace {
constexpr double linkCircleRadius = 8;
} // namespace

QPixmap *SpearItem::m_pixHeader = nullptr;
QPixmap *SpearItem::m_pixTail = nullptr;
int SpearItem::m_refCount = 0;

/** Brings the header in line with the pictures that there are now. */
void SpearItem::showPictures()
{
    HeadPictures::loadMissing();
    const qint64 key = HeadPictures::key();
    if (m_paintedPictures == key)
        return;
    m_paintedPictures = key;
    prepareGeometryChange();
    update();
}

void SpearItem::paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget)
{
    Q_UNUSED(widget)
    applyState(spearState(option));
    m_look->paint(*painter, *this);
    drawLinkCircle(painter);
}

void SpearItem::drawLinkCircle(QPainter *painter) const
{
    if (!m_linked)
        return;
    painter->save();
    painter->setBrush(painter->pen().color());
    painter->drawEllipse(m_look->slot(*this, m_linkNumber), linkCircleRadius, linkCircleRadius);
    painter->restore();
}

QRectF SpearItem::linkCircleRect() const
{
    const double extent = 2 * linkCircleRadius + qMax(pen().widthF(), 1.0);
    QRectF rect(0, 0, extent, extent);
    rect.moveCenter(m_look->slot(*this, m_linkNumber));
    return rect;
}
