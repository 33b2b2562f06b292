// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include <QColor>
#include <QFont>
#include <QGraphicsTextItem>
#include <QTextCursor>
#include <QTextDocument>

#include <fishbone/base/prefetch.h>
#include <fishbone/fishbone_export.h>

/**
 * A text item that does without a document as long as it can. It measures and paints its text as a
 * document would, to the pixel. A document takes some fifteen kilobytes, so it is made for who asks
 * for it: for document(), and for the functions that set or ask what only a document has, which
 * hide those of the base class for this. A text with tabulators or with one of the characters that
 * stand for something else in a document has one from the start, one that is clicked gets its own.
 *
 * What the base class itself answers, through a pointer to it, is not virtual: as long as there is
 * no document, QGraphicsTextItem::toPlainText() is empty there, font() the default, textCursor()
 * null; document() and the setters make an empty one, which is filled with the text when the item
 * is measured or painted next. Its virtual functions, such as boundingRect(), answer for the text.
 */
class FISHBONE_EXPORT ShapedTextItem : public QGraphicsTextItem
{
    Q_OBJECT

public:
    /** A line of the text. */
    struct Line
    {
        QRectF rect;      ///< what its letters take, without the space beside them
        qreal ascent = 0; ///< of its baseline below the top of rect
    };

    /** An item that shows @p text. */
    explicit ShapedTextItem(const QString &text, QGraphicsItem *parent = nullptr);

    /**
     * @name As in the base class, whether or not there is a document
     * @{
     */
    QString toPlainText() const;                                           ///< makes none
    QFont font() const;                                                    ///< makes none
    QColor defaultTextColor() const;                                       ///< makes none
    QString toHtml() const { return withDocument().toHtml(); }             ///< makes one
    QTextDocument *document() const { return withDocument().document(); }  ///< makes one of its own
    QTextCursor textCursor() const { return withDocument().textCursor(); } ///< makes one
    void setPlainText(const QString &text) { withDocument().setPlainText(text); } ///< makes one
    void setHtml(const QString &text) { withDocument().setHtml(text); }           ///< makes one
    void setFont(const QFont &another) { withDocument().setFont(another); }       ///< makes one
    /** Makes one. */
    void setDefaultTextColor(const QColor &color) { withDocument().setDefaultTextColor(color); }
    /** Makes one and puts @p another, which is not owned, in its place; null for an empty one. */
    void setDocument(QTextDocument *another) { withDocument().setDocument(another); }
    /** Makes one. */
    void setTextCursor(const QTextCursor &cursor) { withDocument().setTextCursor(cursor); }
    void setTextWidth(qreal width) { withDocument().setTextWidth(width); } ///< makes one; in units
    void adjustSize() { withDocument().adjustSize(); }                     ///< makes one
    /** Makes one. */
    void setOpenExternalLinks(bool open) { withDocument().setOpenExternalLinks(open); }
    void setTextInteractionFlags(Qt::TextInteractionFlags flags); ///< makes one for any
    /** @} */

    /** The lines of the text from the top, in the item's coordinates. Makes no document. */
    std::vector<Line> lines() const;

    /** Width of the laid-out text in scene units, margins included. */
    qreal textWidth() const { return textSize().width(); }
    /** Height of the laid-out text in scene units, margins included. */
    qreal textHeight() const { return textSize().height(); }
    /** Size of the laid-out text in scene units, margins included. */
    QSizeF textSize() const { return m_isTouched || !m_size.isValid() ? measuredSize() : m_size; }

    /** Has the processor fetch what the toolkit keeps of the item. */
    void prefetchInsides() const { prefetch(QGraphicsItem::d_ptr.data(), 256); }
    /** Has the processor fetch what the toolkit keeps of who hears of the position. */
    void prefetchListeners() const { prefetch(QObject::d_ptr.data(), 128); }
    /** Whether showText() with the same arguments would change anything. */
    bool shows(const QFont &font, QStringView text) const;
    /** As the other shows(), without a look at the letters of a text that is the one given last. */
    bool shows(const QFont &font, const QString &text) const;
    /** Shows @p text in @p font; what is shown already is not laid out again. */
    void showText(const QFont &font, const QString &text);
    /** Shows what showText() was given last, when anybody has changed the document since. */
    void restoreText();
    /**
     * Shows the text in @p color; the colour shown last schedules no repaint. Whatever other
     * colour the text was given is found when it is painted.
     */
    void showColor(const QColor &color);

    QRectF boundingRect() const override;
    QPainterPath shape() const override;                ///< boundingRect()
    bool contains(const QPointF &point) const override; ///< as shape(); in the item's coordinates

    /** Paints the text. Schedules no repaint. */
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option,
               QWidget *widget = nullptr) override;

protected:
    /** The text given last, whatever was done to the document since. */
    const QString &shownText() const { return m_text; }
    /** Shows the color given last again when the document has got another one. */
    void restoreColor();

    bool sceneEvent(QEvent *event) override;
    void childEvent(QChildEvent *event) override;

private:
    QSizeF measuredSize() const;
    bool hasDocument() const;
    QGraphicsTextItem &withDocument() const;
    void takeDocument();
    void fillDocument(bool isAnotherText);
    void watchDocument();
    void noteTouch() { m_isTouched = true; }

    bool m_hasColor = false;  ///< has been given one
    bool m_isTouched = false; ///< the document is, or may be, no longer as it was filled
    QString m_text;           ///< that was given last, and the document filled with
    QFont m_font;
    mutable QSizeF m_size;                     ///< of that; invalid as long as nobody has asked
    QColor m_color;                            ///< that the text was given
    const QTextDocument *m_document = nullptr; ///< that was filled; may be gone when touched
    QObject *m_documentOwner = nullptr;
};
