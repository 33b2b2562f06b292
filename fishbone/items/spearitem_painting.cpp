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

/// Draws \a picture at \a topLeft, from the vectors where there are any, so that it stays sharp at
/// every zoom and in every export.
void drawPicture(QPainter *painter, const QPointF &topLeft, const QPixmap &picture,
                 const QString &file)
{
    if (picture.isNull())
        return;
    if (QSvgRenderer *const renderer = sharedSvgRenderer(file))
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
        m_pixHeader = loadedPicture(headFile()).release();
    if (!m_pixTail)
        m_pixTail = loadedPicture(tailFile()).release();
}

void SpearItem::releasePictures()
{
    if (--m_refCount > 0)
        return;
    delete std::exchange(m_pixHeader, nullptr);
    delete std::exchange(m_pixTail, nullptr);
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
    // Whole pixels, so that a picture of odd height is not blurred.
    const int aboveHead = m_pixHeader->height() / 2;
    const int aboveTail = m_pixTail->height() / 2;
    drawPicture(painter, head - QPointF(0, aboveHead), *m_pixHeader, headFile());
    drawPicture(painter, tail - QPointF(m_pixTail->width(), aboveTail), *m_pixTail, tailFile());
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
