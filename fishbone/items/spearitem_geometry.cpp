// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// The part of SpearItem that asks the look for sizes, positions and shapes.

#include <fishbone/items/spearitem.h>

#include <utility>

#include <fishbone/base/prefetch.h>
#include <fishbone/items/expanditem.h>
#include <fishbone/items/linkitem.h>
#include <fishbone/items/spearlook.h>
#include <fishbone/items/taskstatusitem.h>
#include <fishbone/items/textitem.h>
#include <fishbone/model/treeitem.h>

namespace {
constexpr int itemPrivateSize = 320; ///< what the toolkit keeps of a line, about
constexpr int lookDataSize = 512;    ///< what a look keeps of a spear, about
} // namespace

void SpearItem::setLine(const QLineF &line)
{
    QGraphicsLineItem::setLine(line);
}

void SpearItem::setDirection(int direction)
{
    if (m_direction == direction)
        return;
    prepareGeometryChange();
    m_direction = direction;
}

void SpearItem::initData(int direction)
{
    refresh(direction);
    beginLayout();
    setLine(QLineF(0, 0, 0, 0));
    showChildren();
}

void SpearItem::beginLayout()
{
    m_offset = 0;
    m_children = ChildExtents();
}

void SpearItem::prefetchParts() const
{
    prefetch(d_ptr.data(), itemPrivateSize);
    prefetch(m_treeItem, int(sizeof(TreeItem)));
    prefetch(m_textItem, int(sizeof(TextItem)));
    prefetch(m_statusItem, int(sizeof(TaskStatusItem)));
    prefetch(m_linkItem, int(sizeof(LinkItem)));
    prefetch(m_expandBuddy, int(sizeof(ExpandItem)));
    prefetch(m_lookData.get(), lookDataSize);
}

void SpearItem::prefetchInsides() const
{
    m_textItem->prefetchInsides();
    m_statusItem->prefetchInsides();
    if (const auto *const link = qgraphicsitem_cast<LinkItem *>(m_linkItem))
        link->prefetchInsides();
    if (const auto *const button = qgraphicsitem_cast<ExpandItem *>(m_expandBuddy))
        button->prefetchInsides();
}

void SpearItem::prefetchListeners() const
{
    m_textItem->prefetchListeners();
    m_statusItem->prefetchListeners();
    if (const auto *const link = qgraphicsitem_cast<LinkItem *>(m_linkItem))
        link->prefetchListeners();
    if (const auto *const button = qgraphicsitem_cast<ExpandItem *>(m_expandBuddy))
        button->prefetchListeners();
}

void SpearItem::prefetchText() const
{
    prefetch(m_textItem, int(sizeof(TextItem)));
}

void SpearItem::refresh(int direction)
{
    setPos(0, 0);
    setDirection(direction);
    m_textItem->restoreText();
    applyState(m_currentState);
    if (isHeader())
        showPictures();
}

void SpearItem::sumChildSize(const QSizeF &size)
{
    m_children.widest = qMax(m_children.widest, size.width());
    m_children.tallest = qMax(m_children.tallest, size.height());
    m_children.heightSum += size.height();
    m_children.widthSum += size.width();
    m_children.sideWidth[m_children.count % 2] += size.width();
    ++m_children.count;
}

double SpearItem::spearWidth() const
{
    return m_look->width(*this);
}

double SpearItem::spearHeight() const
{
    return m_look->height(*this);
}

double SpearItem::backboneAngle() const
{
    return m_look->backboneAngle(*this);
}

QPointF SpearItem::expandBuddyPosition() const
{
    return m_look->buttonPosition(*this);
}

QPointF SpearItem::linkBuddyPosition() const
{
    return m_look->linkPosition(*this);
}

QPointF SpearItem::TaskStateItemPosition() const
{
    return m_look->statusPosition(*this);
}

QPointF SpearItem::textBuddyPosition()
{
    // Compared first: setting the rotation that is there already would schedule a repaint.
    const std::optional<double> rotation = m_look->textRotation(*this);
    if (rotation && !qFuzzyCompare(m_textItem->rotation() + 1, *rotation + 1))
        m_textItem->setRotation(*rotation);
    return m_look->textPosition(*this);
}

void SpearItem::updatePosition(const QPointF &position)
{
    Q_UNUSED(position)
    place(parentSpear());
}

void SpearItem::place(SpearItem *parent)
{
    moveLine(parent, m_look->line(*this, parent));
    placeCompanions();
}

void SpearItem::moveLine(SpearItem *parent, const QLineF &placed)
{
    if (parent && parent->isLinked() && placed != line()) {
        parent->prepareGeometryChange(); // its circle stands between the lines of its children
        parent->update();
    }
    setLine(placed);
}

void SpearItem::placeCompanions()
{
    const QPointF textPosition = textBuddyPosition();
    if (m_textItem->pos() != textPosition) {
        prepareGeometryChange(); // the bounding rectangle covers the text box of a horizontal bone
        m_textItem->setPos(textPosition);
    }
    if (m_look->scalesIcons())
        scaleIcons();
    if (m_linkItem)
        m_linkItem->setPos(linkBuddyPosition());
    if (m_expandBuddy)
        m_expandBuddy->setPos(expandBuddyPosition());
    showButton();
    if (!m_look->showsStatus(*this)) {
        m_hasHiddenStatus = m_hasHiddenStatus || m_statusItem->isVisible();
        m_statusItem->setVisible(false);
        return;
    }
    // Otherwise left as it is: a host may have hidden it.
    if (std::exchange(m_hasHiddenStatus, false))
        m_statusItem->setVisible(true);
    m_statusItem->setPos(TaskStateItemPosition());
}

QRectF SpearItem::textRect() const
{
    return m_look->textRect(*this);
}

QRectF SpearItem::boundingRect() const
{
    const QRectF rect = m_look->boundingRect(*this);
    return m_linked ? rect | linkCircleRect() : rect;
}

QPainterPath SpearItem::shape() const
{
    return m_look->shape(*this);
}

int SpearItem::dropRow(const QPointF &scenePos, const SpearItem *moving) const
{
    const int movingRow = moving && moving->parentItem() == this
                              ? childSpears().indexOf(const_cast<SpearItem *>(moving))
                              : -1;
    return m_look->rowAt(*this, scenePos, movingRow);
}

void SpearItem::setLook(const std::shared_ptr<const SpearLook> &look)
{
    if (m_look == look)
        return;
    repaintAll();
    m_look = look;
    m_lookData.reset();
    scaleIcons();
    showButton();
}

void SpearItem::setLookData(std::unique_ptr<const SpearLookData> data)
{
    if (!data && !m_lookData)
        return;
    repaintAll();
    m_lookData = std::move(data);
}

/** Before something of its geometry and that of its companions changes. */
void SpearItem::repaintAll()
{
    prepareGeometryChange();
    update();
    m_textItem->boxChanges();
    if (auto *const button = qgraphicsitem_cast<ExpandItem *>(m_expandBuddy))
        button->boxChanges();
}

/** Gives the icons the size that the look has for them; that of their pictures where it has none.
 */
void SpearItem::scaleIcons()
{
    for (QGraphicsItem *const icon : {static_cast<QGraphicsItem *>(m_statusItem), m_linkItem}) {
        // Compared first: the scale that is there already would schedule a repaint.
        const double scale = icon ? m_look->iconScale(*icon) : 1;
        if (icon && icon->scale() != scale)
            icon->setScale(scale);
    }
}

void SpearItem::showButton()
{
    if (m_expandBuddy && m_look->showsButton(*this) == m_isButtonHidden) {
        m_isButtonHidden = !m_isButtonHidden;
        m_expandBuddy->setVisible(!m_isButtonHidden);
    }
}
