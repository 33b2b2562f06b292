// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/textitem.h>

#include <cmath>

#include <QGraphicsSceneHoverEvent>
#include <QPaintEngine>
#include <QPainter>
#include <QStyleOptionGraphicsItem>

#include <fishbone/items/hovercursor.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/items/spearlook.h>
#include <fishbone/items/spearparts.h>
#include <fishbone/style/textbox.h>

namespace {
constexpr qreal lowestReadable = 2; ///< device pixels a text is high
constexpr qreal strokeOpacity = 0.4;

SpearStyle::SpearState stateOf(bool hovered, bool selected)
{
    if (hovered)
        return SpearStyle::ssHovered;
    return selected ? SpearStyle::ssSelected : SpearStyle::ssNormal;
}
} // namespace

TextItem::TextItem(const QString &text, QGraphicsItem *parent)
    : ShapedTextItem(text, parent)
{
    if (!parentSpear()) // a spear gives its own
        showColor(QColor());
}

SpearItem *TextItem::parentSpear() const
{
    return qgraphicsitem_cast<SpearItem *>(parentItem());
}

/** The box that the look has in place of the document's; null for none. */
QRectF TextItem::ownBox() const
{
    const SpearItem *const spear = parentSpear();
    return spear ? spear->look().textBox(*spear) : QRectF();
}

QRectF TextItem::boundingRect() const
{
    const QRectF box = ownBox();
    return box.isNull() ? ShapedTextItem::boundingRect() : box;
}

void TextItem::boxChanges()
{
    prepareGeometryChange();
    update();
}

void TextItem::paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget)
{
    restoreColor();
    m_ownState =
        stateOf(option->state & QStyle::State_MouseOver, option->state & QStyle::State_Selected);
    SpearStyle::SpearState state = m_ownState;
    QColor fill;
    QPen frame = painter->pen();
    if (SpearItem *const spear = parentSpear()) {
        spear->updateTextLooks();
        if (spear->look().paintText(*painter, *spear))
            return;
        state = spear->boxState();
        fill = spear->textBkColor(state);
        frame = spear->broaderPen(state);
    } else {
        showText(QFont(), shownText());
        showColor(QColor());
    }
    if (state != SpearStyle::ssNormal)
        paintTextBox(*painter, boundingRect(), QRectF(option->rect), fill, frame);
    if (isReadable(*painter))
        ShapedTextItem::paint(painter, option, widget);
    else
        paintStroke(painter);
}

/** Whether the text is high enough to be told from a line where @p painter draws it. */
bool TextItem::isReadable(const QPainter &painter) const
{
    if (painter.paintEngine()->type() != QPaintEngine::Raster)
        return true; // drawings can be enlarged
    const QTransform &onDevice = painter.deviceTransform();
    return textHeight() * std::hypot(onDevice.m21(), onDevice.m22()) >= lowestReadable;
}

/** Stands for a text that cannot be read. */
void TextItem::paintStroke(QPainter *painter) const
{
    const QRectF box = boundingRect();
    QColor color = defaultTextColor();
    color.setAlphaF(color.alphaF() * strokeOpacity);
    painter->fillRect(
        QRectF(box.left(), box.top() + box.height() / 3, box.width(), box.height() / 3), color);
}

/** Applied before the next paint, which must find nothing to change. */
void TextItem::followInteraction()
{
    const SpearStyle::SpearState state = stateOf(m_hovered, isSelected());
    if (state == m_ownState)
        return;
    m_ownState = state;
    if (SpearItem *const spear = parentSpear()) {
        spear->updateTextLooks();
        SpearParts::of(*spear).companions.showButton();
    }
    update();
}

QVariant TextItem::itemChange(GraphicsItemChange change, const QVariant &value)
{
    const QVariant result = ShapedTextItem::itemChange(change, value);
    if (change == ItemSceneHasChanged)
        m_hovered = false; // the scene that it left sends no further event
    if (change == ItemSceneHasChanged || change == ItemSelectedHasChanged)
        followInteraction();
    return result;
}

void TextItem::hoverEnterEvent(QGraphicsSceneHoverEvent *event)
{
    m_hovered = true;
    followInteraction();
    showHoverCursor(*this, event->scenePos());
    ShapedTextItem::hoverEnterEvent(event);
}

void TextItem::hoverMoveEvent(QGraphicsSceneHoverEvent *event)
{
    showHoverCursor(*this, event->scenePos());
    ShapedTextItem::hoverMoveEvent(event);
}

void TextItem::hoverLeaveEvent(QGraphicsSceneHoverEvent *event)
{
    m_hovered = false;
    followInteraction();
    showArrowCursor(*this);
    ShapedTextItem::hoverLeaveEvent(event);
}
