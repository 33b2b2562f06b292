// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include <QLineF>

#include <fishbone/items/spearitem.h>
#include <fishbone/items/spearlook.h>

class SpearCompanions;

/** Where a spear stands, as its look has it, and what the layout notes with it on the way. */
class SpearPlace
{
public:
    /** That of @p spear, in the classic look; for the rest see SpearItem::SpearItem(). */
    SpearPlace(SpearItem &spear, SpearCompanions &companions, int direction, double spearSize);

    /** What draws the spear. */
    const SpearLook &look() const { return *m_look; }
    /** See SpearItem::setLook(). */
    void setLook(const std::shared_ptr<const SpearLook> &look);
    /** What the look keeps with the spear; null for nothing. */
    const SpearLookData *lookData() const { return m_lookData.get(); }
    /** See SpearItem::setLookData(). */
    void setLookData(std::unique_ptr<const SpearLookData> data);

    /** The direction of the bone. */
    int direction() const { return m_direction; }
    /** Stores the direction; the next layout follows it. */
    void setDirection(int direction);
    /** Extra height of a horizontal bone. */
    double spearSize() const { return m_spearSize; }
    /** Distance along the parent's bone. */
    double offset() const { return m_offset; }
    /** Adds @p distance to the offset. */
    void addOffset(double distance) { m_offset += distance; }
    /** Records the size of the next child spear. */
    void addChild(const QSizeF &size);
    /** What addChild() has recorded. */
    const SpearItem::ChildExtents &children() const { return m_children; }

    /** Brings everything that no layout computes in line with subject, style and state. */
    void refresh(int direction);
    /** Forgets offset and child sizes. */
    void begin();
    /** Both, and the line. */
    void reset(int direction);
    /** Sets the line from that of @p parent, which is null for the head, and places companions. */
    void setBelow(SpearItem *parent);

    /** See SpearItem::dropRow(). */
    int dropRow(const QPointF &scenePos, const SpearItem *moving) const;
    /** What the look paints, and the circle of a link target. */
    QRectF boundingRect() const;
    /** Paints that. */
    void paint(QPainter &painter) const;

private:
    Q_DISABLE_COPY(SpearPlace)

    void moveLine(SpearItem *parent, const QLineF &placed);
    void showPictures();
    void boxesChange();
    void paintLinkCircle(QPainter &painter) const;
    QRectF linkCircleRect() const;

    SpearItem &m_spear;
    SpearCompanions &m_companions;
    std::shared_ptr<const SpearLook> m_look;
    std::unique_ptr<const SpearLookData> m_lookData;
    SpearItem::ChildExtents m_children;
    qint64 m_paintedPictures = 0; ///< the header's
    double m_offset = 0;
    double m_spearSize;
    int m_direction;
};
