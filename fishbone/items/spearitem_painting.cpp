// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// The part of SpearItem that draws.

#include <fishbone/items/spearitem.h>

#include <cmath>
#include <memory>
#include <utility>

#include <QPainter>
#include <QPixmap>
#include <QStyleOptionGraphicsItem>
#include <QSvgRenderer>

#include <fishbone/items/svgcache.h>
#include <fishbone/items/textitem.h>

namespace {
constexpr double linkCircleRadius = 8;

QColor backboneColor()
{
    return {60, 184, 121, 255};
}

QString headFile()
{
    return QStringLiteral(":/fishboneDiagram/head.svg");
}

QString tailFile()
{
    return QStringLiteral(":/fishboneDiagram/tail.svg");
}

std::unique_ptr<QPixmap> loadedPicture(const QString &file)
{
    QSvgRenderer *const renderer = sharedSvgRenderer(file);
    if (!renderer)
        return std::make_unique<QPixmap>(file);
    auto picture = std::make_unique<QPixmap>(renderer->defaultSize());
    picture->fill(Qt::transparent);
    QPainter painter(picture.get());
    renderer->render(&painter);
    return picture;
}

/// A picture as it was loaded from its file, to be told from one that a host has assigned.
struct Loaded
{
    QString (*file)();
    qint64 key = 0; ///< of the pixmap; 0 when the file was missing
};

Loaded loadedHead{headFile};
Loaded loadedTail{tailFile};

void load(QPixmap *&picture, Loaded &loaded)
{
    picture = loadedPicture(loaded.file()).release();
    loaded.key = picture->cacheKey();
}

/// Looks again for a picture whose file was missing.
void loadMissing(QPixmap *picture, Loaded &loaded)
{
    if (!picture || loaded.key != 0 || !picture->isNull())
        return;
    *picture = *loadedPicture(loaded.file());
    loaded.key = picture->cacheKey();
}

qint64 keyOf(const QPixmap *picture)
{
    return picture ? picture->cacheKey() : 0;
}

/// Draws \a picture at \a topLeft, from the vectors where it was loaded from any, so that it stays
/// sharp at every zoom and in every export.
void drawPicture(QPainter *painter, const QPointF &topLeft, const QPixmap &picture,
                 const Loaded &loaded)
{
    QSvgRenderer *const renderer =
        picture.cacheKey() == loaded.key ? sharedSvgRenderer(loaded.file()) : nullptr;
    if (renderer)
        renderer->render(painter, QRectF(topLeft, QSizeF(picture.size())));
    else
        painter->drawPixmap(topLeft, picture);
}
} // namespace

QPixmap *SpearItem::m_pixHeader = nullptr;
QPixmap *SpearItem::m_pixTail = nullptr;
int SpearItem::m_refCount = 0;

void SpearItem::loadPictures()
{
    ++m_refCount;
    if (!m_pixHeader)
        load(m_pixHeader, loadedHead);
    if (!m_pixTail)
        load(m_pixTail, loadedTail);
}

void SpearItem::releasePictures()
{
    if (--m_refCount > 0)
        return;
    delete std::exchange(m_pixHeader, nullptr);
    delete std::exchange(m_pixTail, nullptr);
}

/** Brings the header in line with the pictures that there are now. */
void SpearItem::showPictures()
{
    loadMissing(m_pixHeader, loadedHead);
    loadMissing(m_pixTail, loadedTail);
    const qint64 keys = keyOf(m_pixHeader) * 31 + keyOf(m_pixTail);
    if (m_paintedPictures == keys)
        return;
    m_paintedPictures = keys;
    prepareGeometryChange();
    update();
}

void SpearItem::paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget)
{
    Q_UNUSED(widget)
    if (isHeader())
        drawHeader(painter, option);
    else
        drawSpearItem(painter, option);
}

void SpearItem::drawSpearItem(QPainter *painter, const QStyleOptionGraphicsItem *option)
{
    const SpearStyle::SpearState state = spearState(option);
    applyState(state);
    painter->setPen(broaderPen(state));
    if (!m_moving) {
        if (!isMovable())
            painter->setPen(QPen(Qt::red));
        painter->drawLine(line());
    }
    drawLinkCircle(painter);
}

void SpearItem::drawHeader(QPainter *painter, const QStyleOptionGraphicsItem *option)
{
    const SpearStyle::SpearState state = spearState(option);
    applyState(state);
    drawBackbone(painter);
    const QPointF head = line().p1();
    const QPointF tail = line().p2();
    // Whole pixels above the line, so that a picture of odd height is not blurred.
    if (m_pixHeader && !m_pixHeader->isNull())
        drawPicture(painter, head - QPointF(0, m_pixHeader->height() / 2), *m_pixHeader,
                    loadedHead);
    if (m_pixTail && !m_pixTail->isNull())
        drawPicture(painter, tail - QPointF(m_pixTail->width(), m_pixTail->height() / 2),
                    *m_pixTail, loadedTail);
    painter->setFont(textFont(textState()));
    painter->setPen(textColor(textState()));
    drawLinkCircle(painter);
}

void SpearItem::drawBackbone(QPainter *painter) const
{
    const QPointF head = line().p1();
    const QPointF tail = line().p2();
    if (tail.y() < head.y())
        return;
    const double halfHeight = std::tan(backboneAngle()) * (tail.x() - head.x());
    const QPolygonF wedge({tail, head + QPointF(0, halfHeight), head - QPointF(0, halfHeight)});
    painter->save();
    painter->setPen(backboneColor());
    painter->setBrush(backboneColor());
    painter->drawPolygon(wedge);
    painter->restore();
}

QPointF SpearItem::linkCircleCenter() const
{
    const QList<SpearItem *> children = childSpears();
    const QLineF first = children.isEmpty() ? line() : children.last()->line();
    const SpearItem *const numbered = children.value(m_linkNumber);
    const QPointF start = first.p1();
    const QPointF end = numbered ? numbered->line().p1() : line().p1();
    return (start + end) / 2;
}

void SpearItem::drawLinkCircle(QPainter *painter) const
{
    if (!m_linked)
        return;
    painter->save();
    painter->setBrush(painter->pen().color());
    painter->drawEllipse(linkCircleCenter(), linkCircleRadius, linkCircleRadius);
    painter->restore();
}

QRectF SpearItem::linkCircleRect() const
{
    const double extent = 2 * linkCircleRadius + qMax(pen().widthF(), 1.0);
    QRectF rect(0, 0, extent, extent);
    rect.moveCenter(linkCircleCenter());
    return rect;
}
