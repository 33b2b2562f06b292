// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/expanditem.h>

#include <QCursor>
#include <QGraphicsScene>
#include <QGraphicsSceneMouseEvent>

#include <fishbone/items/sceneselection.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/items/spearlook.h>

namespace {
QString iconFile(bool expanded)
{
    return expanded ? QStringLiteral(":/fishboneDiagram/contract.svg")
                    : QStringLiteral(":/fishboneDiagram/expand.svg");
}
} // namespace

ExpandItem::ExpandItem(SpearItem *spear)
    : SvgItem(iconFile(spear && spear->isExpand()), nullptr)
    , m_spear(spear)
{
    setAcceptedMouseButtons(Qt::LeftButton);
}

QRectF ExpandItem::badge() const
{
    const SpearItem *const spear = m_spear.get();
    return spear ? spear->look().badge(*spear) : QRectF();
}

QRectF ExpandItem::boundingRect() const
{
    const QRectF instead = badge();
    return instead.isNull() ? SvgItem::boundingRect() : instead;
}

void ExpandItem::boxChanges()
{
    prepareGeometryChange();
    update();
}

void ExpandItem::paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget)
{
    if (badge().isNull())
        SvgItem::paint(painter, option, widget);
    else
        m_spear.get()->look().paintBadge(*painter, *m_spear.get());
}

void ExpandItem::updateSvgIcon()
{
    if (const SpearItem *const spear = m_spear.get())
        setSvgFile(iconFile(spear->isExpand()));
}

void ExpandItem::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    // Left unaccepted in every case, so that the press also reaches what lies beneath and the view.
    event->ignore();
    SpearItem *const spear = m_spear.get();
    if (event->button() != Qt::LeftButton || !spear)
        return;
    const SelectionHold hold(scene()); // to the end: who hears of it may end the button
    {
        const SelectionSilence silence(scene());
        if (QGraphicsScene *const shownIn = scene())
            shownIn->clearSelection();
        spear->setSelected(true);
    }
    // Children that were built just now are shown, whatever the flag said before.
    const bool generated = generateMissingChildren(spear);
    spear->setExpand(generated || !spear->isExpand());
    updateSvgIcon();
}

void ExpandItem::hoverEnterEvent(QGraphicsSceneHoverEvent *event)
{
    Q_UNUSED(event)
    setCursor(Qt::PointingHandCursor);
}
