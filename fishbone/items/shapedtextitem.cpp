// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/shapedtextitem.h>

#include <algorithm>
#include <iterator>
#include <memory>

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QChildEvent>
#include <QPainterPath>
#include <QStyleOptionGraphicsItem>
#include <QTextBlock>
#include <QTextLayout>

#include <fishbone/items/shapedtext.h>

ShapedTextItem::ShapedTextItem(const QString &text, QGraphicsItem *parent)
    : QGraphicsTextItem(parent)
    , m_text(text)
{
    if (!ShapedText::isPlain(m_text))
        withDocument();
}

bool ShapedTextItem::shows(const QFont &font, QStringView text) const
{
    return m_text == text && m_font == font;
}

bool ShapedTextItem::shows(const QFont &font, const QString &text) const
{
    return (m_text.isSharedWith(text) || m_text == text) && m_font == font;
}

void ShapedTextItem::showText(const QFont &font, const QString &text)
{
    if (shows(font, text))
        return;
    const bool isAnotherText = m_text != text;
    const bool isMade = hasDocument();
    if (isMade)
        withDocument();
    else if (m_size.isValid()) // one that nobody has asked for is noted nowhere
        prepareGeometryChange();
    m_text = text;
    m_font = font;
    m_size = QSizeF();
    if (isMade)
        fillDocument(isAnotherText || m_isTouched);
    else if (!ShapedText::isPlain(text))
        withDocument();
    else
        update();
}

void ShapedTextItem::restoreText()
{
    if (m_isTouched && hasDocument()) {
        withDocument();
        fillDocument(true);
    }
    m_isTouched = false; // something else has become a child
}

/** Whether there is a document, be it one that was made by the base class alone. */
bool ShapedTextItem::hasDocument() const
{
    return m_document || !QGraphicsTextItem::boundingRect().isNull();
}

QGraphicsTextItem &ShapedTextItem::withDocument() const
{
    auto &item = const_cast<ShapedTextItem &>(*this); // which goes on showing what it shows
    if (!m_document)
        item.takeDocument();
    return item;
}

/**
 * Makes the document, or takes over that which somebody has made through the base class: an empty
 * one shows the text from now on, in its color and in the font that the document was given.
 */
void ShapedTextItem::takeDocument()
{
    const bool isForeign = hasDocument();
    const QTextDocument &made = *QGraphicsTextItem::document();
    if (!isForeign || made.defaultFont() == QTextDocument().defaultFont())
        QGraphicsTextItem::setFont(m_font);
    if (made.isEmpty()) {
        QGraphicsTextItem::setPlainText(m_text);
        if (m_hasColor)
            QGraphicsTextItem::setDefaultTextColor(m_color);
    }
    watchDocument();
    m_size = made.size();
    m_isTouched = isForeign;
}

/** Hears of a document that somebody makes through the base class. */
void ShapedTextItem::childEvent(QChildEvent *event)
{
    if (event->added() && !m_document)
        noteTouch();
    QGraphicsTextItem::childEvent(event);
}

void ShapedTextItem::fillDocument(bool isAnotherText)
{
    if (m_isTouched) {
        if (QGraphicsTextItem::document() != m_document)
            QGraphicsTextItem::setDocument(
                std::make_unique<QTextDocument>(m_documentOwner).release());
        QGraphicsTextItem::setTextWidth(-1);
        // The old one would hand its format on to the new text.
        QGraphicsTextItem::setTextCursor(QTextCursor());
    }
    // The font first: the other way round the text would be laid out twice.
    if (font() != m_font)
        QGraphicsTextItem::setFont(m_font);
    if (isAnotherText)
        QGraphicsTextItem::setPlainText(m_text);
    if (m_document != QGraphicsTextItem::document())
        watchDocument();
    m_size = QGraphicsTextItem::document()->size();
    m_isTouched = false;
}

/** Hears of whatever anybody else does to the document, its end included. */
void ShapedTextItem::watchDocument()
{
    m_document = QGraphicsTextItem::document();
    m_documentOwner = m_document->parent(); // with which another document takes its place
    connect(m_document, &QObject::destroyed, this, &ShapedTextItem::noteTouch);
    connect(m_document->documentLayout(), &QAbstractTextDocumentLayout::update, this,
            &ShapedTextItem::noteTouch);
}

QSizeF ShapedTextItem::measuredSize() const
{
    if (!m_document && !hasDocument())
        m_size = ShapedText::of(m_font, m_text).size();
    else if (m_isTouched || !m_document)
        return document()->size();
    return m_size;
}

std::vector<ShapedTextItem::Line> ShapedTextItem::lines() const
{
    if (!hasDocument())
        return ShapedText::of(m_font, m_text).lines();
    std::vector<Line> lines;
    const QTextDocument &shown = *document();
    for (QTextBlock block = shown.begin(); block.isValid(); block = block.next()) {
        const QRectF rect = shown.documentLayout()->blockBoundingRect(block);
        ShapedText::addLines(lines, *block.layout(), rect.topLeft());
    }
    return lines;
}

void ShapedTextItem::showColor(const QColor &color)
{
    if (m_hasColor && m_color == color)
        return;
    m_hasColor = true;
    m_color = color;
    if (m_document)
        QGraphicsTextItem::setDefaultTextColor(color);
    else
        update();
}

QString ShapedTextItem::toPlainText() const
{
    if (!hasDocument())
        return QString(m_text).replace(QChar::Nbsp, QLatin1Char(' ')); // as documents do
    return document()->toPlainText();
}

QFont ShapedTextItem::font() const
{
    return hasDocument() ? document()->defaultFont() : m_font;
}

QColor ShapedTextItem::defaultTextColor() const
{
    if (hasDocument())
        return QGraphicsTextItem::defaultTextColor();
    // That which the toolkit gives a new text.
    return m_hasColor ? m_color : QApplication::palette("QWidgetTextControl").color(QPalette::Text);
}

void ShapedTextItem::setTextInteractionFlags(Qt::TextInteractionFlags flags)
{
    if (flags != textInteractionFlags())
        withDocument();
    if (hasDocument())
        QGraphicsTextItem::setTextInteractionFlags(flags);
}

QRectF ShapedTextItem::boundingRect() const
{
    return hasDocument() ? QGraphicsTextItem::boundingRect() : QRectF(QPointF(), textSize());
}

QPainterPath ShapedTextItem::shape() const
{
    QPainterPath path;
    path.addRect(boundingRect());
    return path;
}

bool ShapedTextItem::contains(const QPointF &point) const
{
    return boundingRect().contains(point);
}

void ShapedTextItem::restoreColor()
{
    if (hasDocument() && m_hasColor && defaultTextColor() != m_color)
        setDefaultTextColor(m_color);
}

void ShapedTextItem::paint(QPainter *painter, const QStyleOptionGraphicsItem *option,
                           QWidget *widget)
{
    if (hasDocument())
        withDocument(); // one of the base class alone has no text yet
    else
        ShapedText::of(m_font, m_text).paint(*painter, defaultTextColor(), option->exposedRect);
    // Without a document this only marks an item that is selected or has the focus.
    QGraphicsTextItem::paint(painter, option, widget);
}

/**
 * Without a document nobody can edit anything: what the base class passes on to its document is
 * refused, as that would do. Of who deals with the mouse it asks the document.
 */
bool ShapedTextItem::sceneEvent(QEvent *event)
{
    static constexpr QEvent::Type passedOn[] = {QEvent::GraphicsSceneContextMenu,
                                                QEvent::GraphicsSceneDragEnter,
                                                QEvent::GraphicsSceneDragMove,
                                                QEvent::GraphicsSceneDragLeave,
                                                QEvent::GraphicsSceneDrop,
                                                QEvent::GraphicsSceneHoverEnter,
                                                QEvent::GraphicsSceneHoverMove,
                                                QEvent::GraphicsSceneHoverLeave,
                                                QEvent::KeyPress,
                                                QEvent::KeyRelease,
                                                QEvent::ShortcutOverride,
                                                QEvent::InputMethod,
                                                QEvent::FocusIn,
                                                QEvent::FocusOut};
    const auto isOneOf = [event](const auto &types) {
        return std::find(std::begin(types), std::end(types), event->type()) != std::end(types);
    };
    static constexpr QEvent::Type ofTheMouse[] = {
        QEvent::GraphicsSceneMousePress, QEvent::GraphicsSceneMouseMove,
        QEvent::GraphicsSceneMouseRelease, QEvent::GraphicsSceneMouseDoubleClick};
    if (isOneOf(ofTheMouse))
        withDocument();
    else if (isOneOf(passedOn) && !hasDocument())
        event->ignore();
    return QGraphicsTextItem::sceneEvent(event);
}
