// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <optional>

#include <QLineF>
#include <QPainterPath>
#include <QPointF>
#include <QRectF>

class QGraphicsItem;
class QPainter;
class SpearItem;

/** What a look keeps with a spear. */
class SpearLookData
{
public:
    SpearLookData() = default;
    virtual ~SpearLookData();

private:
    Q_DISABLE_COPY(SpearLookData)
};

/**
 * What a spear asks its look: its measures, where it and its companions stand, what is hit and what
 * is painted. Every function is asked by a spear with this look and changes nothing. The diagram's
 * looks implement it; they are made a folder above this one.
 */
class SpearLook
{
public:
    SpearLook() = default;
    virtual ~SpearLook();

    /** The look of a spear that was given no other: the classic one. */
    static const std::shared_ptr<const SpearLook> &standard();

    /**
     * @name Measures, children included
     * @{
     */
    /** Extent along the horizontal. */
    virtual double width(const SpearItem &spear) const = 0;
    /** Extent along the vertical of a level bone, length of a slanted one. */
    virtual double height(const SpearItem &spear) const = 0;
    /** Half the angle of the header's backbone in radians; 0 for a spear with a parent. */
    virtual double backboneAngle(const SpearItem &spear) const = 0;
    /** @} */

    /**
     * @name Places, in the coordinates that the whole drawing shares
     * @{
     */
    /** The bone of @p spear below @p parent, which is null for the header. */
    virtual QLineF line(const SpearItem &spear, const SpearItem *parent) const = 0;
    /** Where the text box's own origin stands. */
    virtual QPointF textPosition(const SpearItem &spear) const = 0;
    /** The turn of the text box in degrees; none where the box stays as it is. */
    virtual std::optional<double> textRotation(const SpearItem &spear) const = 0;
    virtual QPointF statusPosition(const SpearItem &spear) const = 0;
    virtual QPointF linkPosition(const SpearItem &spear) const = 0;
    virtual QPointF buttonPosition(const SpearItem &spear) const = 0;
    /** Whether a spear shows the status of its subject. */
    virtual bool showsStatus(const SpearItem &spear) const = 0;
    /** Whether the expand button of a spear is shown now. */
    virtual bool showsButton(const SpearItem &spear) const;
    /** Whether status and link icons have another size than their pictures. */
    virtual bool scalesIcons() const;
    /** How much such an icon is scaled then. */
    virtual double iconScale(const QGraphicsItem &icon) const;
    /** @} */

    /**
     * @name Drops
     * @{
     */
    /** The row of the child before which something is inserted that is dropped at @p scenePos over
     * @p spear. The child in row @p movingRow is what is dropped; -1 for something else. */
    virtual int rowAt(const SpearItem &spear, const QPointF &scenePos, int movingRow) const = 0;
    /** The middle of the circle that marks the place before the child in @p row. */
    virtual QPointF slot(const SpearItem &spear, int row) const = 0;
    /** @} */

    /**
     * @name Painting
     * @{
     */
    /** What the text adds to the bounding rectangle. */
    virtual QRectF textRect(const SpearItem &spear) const = 0;
    /** Everything that paint() touches. */
    virtual QRectF boundingRect(const SpearItem &spear) const = 0;
    /** Where the mouse hits the spear. */
    virtual QPainterPath shape(const SpearItem &spear) const = 0;
    /** Paints the spear in its current state, without its companions, and leaves pen and font as
     * the circle of a drop needs them. */
    virtual void paint(QPainter &painter, const SpearItem &spear) const = 0;
    /** The text box in its own coordinates; null where the laid-out text says it. */
    virtual QRectF textBox(const SpearItem &spear) const;
    /** Paints the text box; false where it paints itself. */
    virtual bool paintText(QPainter &painter, const SpearItem &spear) const;
    /** What stands in place of the button's picture, in the button's coordinates; null for none. */
    virtual QRectF badge(const SpearItem &spear) const;
    /** Paints what badge() has room for. */
    virtual void paintBadge(QPainter &painter, const SpearItem &spear) const;
    /** Whether the bones that lead to one that stands out look otherwise than in their normal
     * state.
     */
    virtual bool showsChains() const;
    /** @} */

private:
    Q_DISABLE_COPY(SpearLook)
};
