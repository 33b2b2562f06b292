// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QFont>
#include <QGraphicsTextItem>
#include <QTextDocument>

#include <fishbone/base/prefetch.h>
#include <fishbone/fishbone_export.h>
#include <fishbone/style/spearstyle.h>

class SpearItem;

/**
 * The text box of a spear. It looks as its spear does: a selected, hovered or linked spear has its
 * box filled and framed, otherwise only the text shows.
 */
class FISHBONE_EXPORT TextItem : public QGraphicsTextItem
{
    Q_OBJECT

public:
    enum { Type = UserType + 4 };

    /** A box that shows @p text; the parent item, when it is a SpearItem, gives the looks. */
    explicit TextItem(const QString &text, QGraphicsItem *parent = nullptr);

    int type() const override { return Type; }

    /** Width of the laid-out text, margins included. */
    qreal textWidth() const { return textSize().width(); }
    /** Height of the laid-out text, margins included. */
    qreal textHeight() const { return textSize().height(); }
    /** Size of the laid-out text, margins included. */
    QSizeF textSize() const { return m_isTouched ? document()->size() : m_size; }

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

    /**
     * What the box itself gives cause for: ssHovered or ssSelected as it was at its last event or
     * paint, else ssNormal. The mouse may be over the box and not count as being over the spear.
     */
    SpearStyle::SpearState ownState() const { return m_ownState; }

    /** As the look of the parent spear has it. */
    QRectF boundingRect() const override;
    /** The outline of the box, as the look of the parent spear has it. */
    QPainterPath shape() const override;
    /** Whether the outline of the box holds @p point. */
    bool contains(const QPointF &point) const override;
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
    void fillDocument(bool isAnotherText);
    void watchDocument();
    void noteTouch() { m_isTouched = true; }
    void followInteraction();
    bool isReadable(const QPainter &painter) const;
    void paintStroke(QPainter *painter) const;

    SpearStyle::SpearState m_ownState = SpearStyle::ssNormal;
    bool m_hovered = false;
    bool m_isTouched = false; ///< the document is no longer as it was filled
    QString m_text;           ///< what the document was filled with
    QFont m_font;
    QSizeF m_size;                             ///< of that
    QColor m_color;                            ///< that the text was given
    const QTextDocument *m_document = nullptr; ///< that was filled; may be gone when touched
    QObject *m_documentOwner = nullptr;
};
