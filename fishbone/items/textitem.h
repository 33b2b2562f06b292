// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/fishbone_export.h>
#include <fishbone/items/shapedtextitem.h>
#include <fishbone/style/spearstyle.h>

class SpearItem;

/**
 * The text box of a spear. It looks as its spear does: a selected, hovered or linked spear has its
 * box filled and framed, otherwise only the text shows.
 */
class FISHBONE_EXPORT TextItem : public ShapedTextItem
{
    Q_OBJECT

public:
    enum { Type = UserType + 4 };

    /** A box that shows @p text; the parent item, when it is a SpearItem, gives the looks. */
    explicit TextItem(const QString &text, QGraphicsItem *parent = nullptr);

    int type() const override { return Type; }

    /**
     * What the box itself gives cause for: ssHovered or ssSelected as it was at its last event or
     * paint, else ssNormal. The mouse may be over the box and not count as being over the spear.
     */
    SpearStyle::SpearState ownState() const { return m_ownState; }

    /** As the look of the parent spear has it, in scene units. */
    QRectF boundingRect() const override;
    /** The box is about to become another one. For SpearItem. */
    void boxChanges();

    /**
     * Paints the box of the parent spear's state or its own, the stronger one, then the text.
     * Schedules no repaint when font, colour and text are those of the state already.
     */
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option,
               QWidget *widget = nullptr) override;

protected:
    QVariant itemChange(GraphicsItemChange change, const QVariant &value) override;
    void hoverEnterEvent(QGraphicsSceneHoverEvent *event) override;
    void hoverMoveEvent(QGraphicsSceneHoverEvent *event) override;
    void hoverLeaveEvent(QGraphicsSceneHoverEvent *event) override;

private:
    SpearItem *parentSpear() const;
    QRectF ownBox() const;
    void followInteraction();
    bool isReadable(const QPainter &painter) const;
    void paintStroke(QPainter *painter) const;

    SpearStyle::SpearState m_ownState = SpearStyle::ssNormal;
    bool m_hovered = false;
};
