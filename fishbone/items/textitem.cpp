// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/textitem.h>

#include <cmath>

#include <QGraphicsSceneHoverEvent>
#include <QPaintEngine>
#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <QTextCursor>
#include <QTextDocument>

#include <fishbone/items/hovercursor.h>
#include <fishbone/items/spearitem.h>
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
    : QGraphicsTextItem(parent)
{
    showText(QFont(), text);
    if (!parentSpear()) // a spear gives its own
        showColor(QColor());
}

bool TextItem::shows(const QFont &font, QStringView text) const
{
    const QTextDocument *const shown = document();
    return m_text == text && shown == m_document && shown->revision() == m_revision &&
           shown->defaultFont() == font;
}

void TextItem::showText(const QFont &font, const QString &text)
{
    // The font first: the other way round the text would be laid out twice.
    if (this->font() != font)
        setFont(font);
    const bool isEdited = document() != m_document || document()->revision() != m_revision;
    if (isEdited)
        setTextCursor(QTextCursor()); // which would hand its format on to the new text
    if (m_text != text || isEdited) {
        m_text = text;
        setPlainText(text);
    }
    m_document = document();
    m_revision = m_document->revision();
}

void TextItem::showColor(const QColor &color)
{
    if (defaultTextColor() != color)
        setDefaultTextColor(color);
}

SpearItem *TextItem::parentSpear() const
{
    return qgraphicsitem_cast<SpearItem *>(parentItem());
}

void TextItem::paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget)
{
    m_ownState =
        stateOf(option->state & QStyle::State_MouseOver, option->state & QStyle::State_Selected);
    SpearStyle::SpearState state = m_ownState;
    QColor fill;
    QPen frame = painter->pen();
    if (SpearItem *const spear = parentSpear()) {
        spear->updateTextLooks();
        state = spear->boxState();
        fill = spear->textBkColor(state);
        frame = spear->broaderPen(state);
    } else {
        showText(QFont(), m_text);
        showColor(QColor());
    }
    if (state != SpearStyle::ssNormal)
        paintTextBox(*painter, boundingRect(), QRectF(option->rect), fill, frame);
    if (isReadable(*painter))
        QGraphicsTextItem::paint(painter, option, widget);
    else
        paintStroke(painter);
}

/** Whether the text is high enough to be told from a line where \a painter draws it. */
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

/// Applied before the next paint, which must find nothing to change.
void TextItem::followInteraction()
{
    const SpearStyle::SpearState state = stateOf(m_hovered, isSelected());
    if (state == m_ownState)
        return;
    m_ownState = state;
    if (SpearItem *const spear = parentSpear())
        spear->updateTextLooks();
    update();
}

QVariant TextItem::itemChange(GraphicsItemChange change, const QVariant &value)
{
    const QVariant result = QGraphicsTextItem::itemChange(change, value);
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
    QGraphicsTextItem::hoverEnterEvent(event);
}

void TextItem::hoverMoveEvent(QGraphicsSceneHoverEvent *event)
{
    showHoverCursor(*this, event->scenePos());
    QGraphicsTextItem::hoverMoveEvent(event);
}

void TextItem::hoverLeaveEvent(QGraphicsSceneHoverEvent *event)
{
    m_hovered = false;
    followInteraction();
    showArrowCursor(*this);
    QGraphicsTextItem::hoverLeaveEvent(event);
}
