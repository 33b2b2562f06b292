// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/textitem.h>

#include <cmath>
#include <memory>

#include <QAbstractTextDocumentLayout>
#include <QGraphicsSceneHoverEvent>
#include <QPaintEngine>
#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <QTextCursor>
#include <QTextDocument>

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
    : QGraphicsTextItem(parent)
    , m_text(text)
{
    fillDocument(true);
    m_color = defaultTextColor();
    if (!parentSpear()) // a spear gives its own
        showColor(QColor());
}

bool TextItem::shows(const QFont &font, QStringView text) const
{
    return m_text == text && m_font == font;
}

bool TextItem::shows(const QFont &font, const QString &text) const
{
    return (m_text.isSharedWith(text) || m_text == text) && m_font == font;
}

void TextItem::showText(const QFont &font, const QString &text)
{
    if (shows(font, text))
        return;
    const bool isAnotherText = m_text != text;
    m_text = text;
    m_font = font;
    fillDocument(isAnotherText);
}

void TextItem::restoreText()
{
    if (m_isTouched)
        fillDocument(true);
}

void TextItem::fillDocument(bool isAnotherText)
{
    if (m_isTouched) {
        if (document() != m_document)
            setDocument(std::make_unique<QTextDocument>(m_documentOwner).release());
        setTextWidth(-1);
        setTextCursor(QTextCursor()); // which would hand its format on to the new text
    }
    // The font first: the other way round the text would be laid out twice.
    if (font() != m_font)
        setFont(m_font);
    if (isAnotherText)
        setPlainText(m_text);
    if (m_document != document())
        watchDocument();
    m_size = document()->size();
    m_isTouched = false;
}

/** Hears of whatever anybody else does to the document, its end included. */
void TextItem::watchDocument()
{
    m_document = document();
    m_documentOwner = m_document->parent(); // with which another document takes its place
    connect(m_document, &QObject::destroyed, this, &TextItem::noteTouch);
    connect(m_document->documentLayout(), &QAbstractTextDocumentLayout::update, this,
            &TextItem::noteTouch);
}

void TextItem::showColor(const QColor &color)
{
    if (m_color == color)
        return;
    m_color = color;
    setDefaultTextColor(color);
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
    return box.isNull() ? QGraphicsTextItem::boundingRect() : box;
}

QPainterPath TextItem::shape() const
{
    const QRectF box = ownBox();
    if (box.isNull())
        return QGraphicsTextItem::shape();
    QPainterPath path;
    path.addRect(box);
    return path;
}

bool TextItem::contains(const QPointF &point) const
{
    const QRectF box = ownBox();
    return box.isNull() ? QGraphicsTextItem::contains(point) : box.contains(point);
}

void TextItem::boxChanges()
{
    prepareGeometryChange();
    update();
}

void TextItem::paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget)
{
    if (defaultTextColor() != m_color)
        setDefaultTextColor(m_color); // somebody has set another one
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
