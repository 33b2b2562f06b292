// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QGraphicsTextItem>
#include <QTextDocument>

#include <fishbone/fishbone_export.h>

class SpearItem;

/// The text box of a spear. It looks as its spear does: a selected, hovered or linked spear has its
/// box filled and framed, otherwise only the text shows.
class FISHBONE_EXPORT TextItem : public QGraphicsTextItem
{
    Q_OBJECT

public:
    enum { Type = UserType + 4 };

    /// A box that shows \a text; the parent item, when it is a SpearItem, gives the looks.
    explicit TextItem(const QString &text, QGraphicsItem *parent = nullptr);

    int type() const override { return Type; }

    /// Width of the laid-out text, margins included.
    qreal textWidth() const { return textSize().width(); }
    /// Height of the laid-out text, margins included.
    qreal textHeight() const { return textSize().height(); }
    /// Size of the laid-out text, margins included.
    QSizeF textSize() const { return document()->size(); }

    /// Whether showText() with the same arguments would change anything.
    bool shows(const QFont &font, const QString &text) const;
    /// Shows \a text in \a font; what is shown already is not laid out again.
    void showText(const QFont &font, const QString &text);
    /// Shows the text in \a color; the colour already shown schedules no repaint.
    void showColor(const QColor &color);

    /// Paints the box of the parent spear's state, then the text. Schedules no repaint when font,
    /// colour and text are those of the state already.
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option,
               QWidget *widget = nullptr) override;

protected:
    void hoverEnterEvent(QGraphicsSceneHoverEvent *event) override;
    void hoverMoveEvent(QGraphicsSceneHoverEvent *event) override;
    void hoverLeaveEvent(QGraphicsSceneHoverEvent *event) override;

private:
    SpearItem *parentSpear() const;
    void paintBox(QPainter *painter, const QRectF &exposed, const QColor &fill, const QPen &frame);

    QString m_text; ///< what the document was given last; cheaper to compare than the document
};
