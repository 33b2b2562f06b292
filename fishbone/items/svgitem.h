// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QGraphicsSvgItem>

#include <fishbone/base/prefetch.h>
#include <fishbone/fishbone_export.h>

/**
 * A picture item whose file can be set. Items that show the same file share one renderer, so that
 * the file is parsed once per process whatever the number of items.
 */
class FISHBONE_EXPORT SvgItem : public QGraphicsSvgItem
{
    Q_OBJECT

public:
    enum { Type = UserType + 5 };

    int type() const override { return Type; }

    /** An item without a picture; it has an empty bounding rectangle and paints nothing. */
    explicit SvgItem(QGraphicsItem *parent = nullptr);
    /** An item that shows @p file and accepts hover events. */
    explicit SvgItem(const QString &file, QGraphicsItem *parent = nullptr);

    /**
     * Shows @p file from now on. An empty name, a missing file and one that is no SVG picture show
     * nothing; setting the file that is shown already changes nothing. One that was missing is
     * looked for again when it is set again.
     */
    void setSvgFile(const QString &file);
    /** The file given last, whether or not it could be shown. */
    QString svgFile() const { return m_file; }
    /** Has the processor fetch what the toolkit keeps of the item. */
    void prefetchInsides() const { prefetch(QGraphicsItem::d_ptr.data(), 384); }
    /** Has the processor fetch what the toolkit keeps of who hears of the position. */
    void prefetchListeners() const { prefetch(QObject::d_ptr.data(), 128); }
    /** Whether there is a picture behind svgFile(). */
    bool showsPicture() const { return m_shown; }

    QRectF boundingRect() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option,
               QWidget *widget = nullptr) override;

protected:
    /** The file whose picture is shown. */
    const QString &shownFile() const { return m_file; }
    void hoverEnterEvent(QGraphicsSceneHoverEvent *event) override;
    void hoverLeaveEvent(QGraphicsSceneHoverEvent *event) override;

private:
    bool paintPixels(QPainter &painter) const;

    QString m_file;
    bool m_shown = false; ///< a picture is there to paint
};
