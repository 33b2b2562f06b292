// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/items/spearpointer.h>
#include <fishbone/items/svgitem.h>

class FishEditor;

/**
 * The button at the end of a bone that shows or hides the bone's children. A press also builds the
 * children's spears when they were never made.
 */
class FISHBONE_EXPORT ExpandItem : public SvgItem
{
    Q_OBJECT

public:
    enum { Type = UserType + 2 };

    /**
     * The button of @p spear, without a parent; the spear that is given the button becomes its
     * parent. Shows "contract" for an expanded spear, else "expand".
     */
    explicit ExpandItem(SpearItem *spear);

    int type() const override { return Type; }

    /**
     * Sets the editor that builds spears for buttons whose scene is shown by no editor; null is
     * ignored. The editor may be destroyed at any time.
     */
    static void setFishEditor(FishEditor *editor);

    /** The picture, or what the spear's look has in place of it; in scene units. */
    QRectF boundingRect() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option,
               QWidget *widget = nullptr) override;
    /** The bounding rectangle is about to become another one. For SpearItem. */
    void boxChanges();

    /** Brings the picture in line with the spear's expand flag. */
    void updateSvgIcon();

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void hoverEnterEvent(QGraphicsSceneHoverEvent *event) override;

private:
    QRectF badge() const;
    bool generateMissingChildren(SpearItem *spear) const;

    SpearPointer m_spear;
};
