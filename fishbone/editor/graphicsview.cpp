// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/editor/graphicsview.h>

#include <algorithm>
#include <utility>

#include <QApplication>
#include <QContextMenuEvent>
#include <QDebug>
#include <QPointer>
#include <QScrollBar>
#include <QWheelEvent>

#include <fishbone/base/onepass.h>
#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/graphicsview_p.h>
#include <fishbone/editor/itemancestry.h>
#include <fishbone/items/hovercursor.h>
#include <fishbone/items/sceneselection.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/items/textitem.h>

namespace {
constexpr qreal fadedOpacity = 0.2;

SpearItem *toSpear(QGraphicsItem *item)
{
    return qgraphicsitem_cast<SpearItem *>(item);
}

/// The spear that \a item is or whose text box it is; else null.
SpearItem *spearOfItem(QGraphicsItem *item)
{
    if (SpearItem *const spear = toSpear(item))
        return spear;
    const auto *const text = qgraphicsitem_cast<TextItem *>(item);
    return text ? toSpear(text->parentItem()) : nullptr;
}

/// A spear and its text box are separate items, and both show whether the spear is linked.
void repaintSpear(SpearItem *spear)
{
    spear->update();
    spear->textItem()->update();
}

/// How far a wheel was turned, along the axis that it was mainly turned along.
int deltaOf(const QPoint &angle)
{
    return qAbs(angle.x()) > qAbs(angle.y()) ? angle.x() : angle.y();
}

QSet<const QGraphicsItem *> asSet(const QList<SpearItem *> &spears)
{
    QSet<const QGraphicsItem *> set;
    set.reserve(spears.count());
    for (const SpearItem *spear : spears)
        set.insert(spear);
    return set;
}
} // namespace

GraphicsView::GraphicsView(FishEditor *editor)
    : m_d(std::make_unique<Private>(editor))
{
    setAcceptDrops(true);
    setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                   QPainter::SmoothPixmapTransform);
    setDragMode(ScrollHandDrag);
    setOptimizationFlag(DontSavePainterState);
    setViewportUpdateMode(SmartViewportUpdate);
    setTransformationAnchor(AnchorUnderMouse);
    viewport()->grabGesture(Qt::PinchGesture);
}

GraphicsView::~GraphicsView() = default;

SpearItem *GraphicsView::linkedSpear() const
{
    return m_d->linkedSpear.get();
}

QList<QGraphicsItem *> GraphicsView::itemsAround(const QPoint &pos) const
{
    // Whoever makes events may put the mouse where a rectangle around it would overflow.
    const QPoint at(qBound(-QWIDGETSIZE_MAX, pos.x(), QWIDGETSIZE_MAX),
                    qBound(-QWIDGETSIZE_MAX, pos.y(), QWIDGETSIZE_MAX));
    return items(QRect(at - QPoint(5, 5), at + QPoint(4, 4)), Qt::IntersectsItemShape);
}

SpearItem *GraphicsView::topmostSpearAround(const QPoint &pos) const
{
    const QList<QGraphicsItem *> around = itemsAround(pos);
    const auto spear = std::find_if(around.cbegin(), around.cend(), toSpear);
    return spear != around.cend() ? toSpear(*spear) : nullptr;
}

QList<SpearItem *> GraphicsView::livingSelection() const
{
    QList<SpearItem *> living;
    for (const SpearPointer &spear : m_d->selected) {
        if (spear.get())
            living.append(spear.get());
    }
    return living;
}

void GraphicsView::paintEvent(QPaintEvent *event)
{
    const OnePass pass;
    QGraphicsView::paintEvent(event);
}

bool GraphicsView::event(QEvent *event)
{
    const bool isHandled = QGraphicsView::event(event);
    if (event->type() == QEvent::WindowBlocked)
        abandonMove();
    return isHandled;
}

/// Runs a part of an event, and tells of the selection when it is through: the toolkit goes on
/// using its items meanwhile. False, with the event accepted, when a listener has ended the view
/// then.
template <typename Part>
bool GraphicsView::handle(QEvent *event, Part part)
{
    const QPointer<GraphicsView> alive(this);
    {
        const SelectionHold hold(scene());
        part();
    }
    if (!alive)
        event->accept(); // nobody shall look for the parent of what is gone
    return alive;
}

void GraphicsView::mousePressEvent(QMouseEvent *event)
{
    handle(event, [this, event] { press(event); });
}

void GraphicsView::press(QMouseEvent *event)
{
    qDebug() << "GraphicsView::mousePressEvent" << event;
    const bool beginsMove = event->button() == Qt::LeftButton && scene();
    if (beginsMove) {
        m_d->selected.clear();
        m_d->pressed = true;
    }
    {
        const SelectionSilence silence(scene());
        QGraphicsView::mousePressEvent(event);
    }
    viewport()->setCursor(Qt::ArrowCursor);
    if (!beginsMove || !m_d->pressed)
        return; // also when a dialog that the press has opened took the release
    const QList<QGraphicsItem *> selected = m_d->editor->selectedItems();
    for (QGraphicsItem *item : selected) {
        if (SpearItem *const spear = toSpear(item))
            m_d->selected.append(spear);
    }
    if (m_d->linkedSpear.get()) {
        unmarkTarget();
        m_d->dropRow = 0;
    }
    m_d->pressedSpear = SpearPointer();
    const QSet<const QGraphicsItem *> candidates = asSet(livingSelection());
    const QList<QGraphicsItem *> around = itemsAround(event->pos());
    const auto pressed =
        std::find_if(around.cbegin(), around.cend(),
                     [&candidates](QGraphicsItem *item) { return candidates.contains(item); });
    if (pressed != around.cend())
        m_d->pressedSpear = toSpear(*pressed);
    beginMoving();
}

void GraphicsView::beginMoving()
{
    endMoving(); // a press whose release went elsewhere leaves its items faded
    const QList<SpearItem *> selected = livingSelection();
    const QSet<const QGraphicsItem *> set = asSet(selected);
    for (SpearItem *spear : selected) {
        if (hasAncestorIn(spear, set))
            continue;
        m_d->moving.append(spear);
        fade(spear, true);
    }
}

void GraphicsView::endMoving()
{
    for (const SpearPointer &spear : qAsConst(m_d->moving)) {
        if (spear.get())
            fade(spear.get(), false);
    }
    m_d->moving.clear();
}

/// Ends a move whose release will not come here.
void GraphicsView::abandonMove()
{
    endMoving();
    unmarkTarget();
    m_d->pressedSpear = SpearPointer();
    if (std::exchange(m_d->pressed, false))
        reportMove(viewport()->mapFromGlobal(QCursor::pos()), nullptr);
}

void GraphicsView::fade(SpearItem *spear, bool faded) const
{
    spear->setMoving(faded);
    spear->setOpacity(faded ? fadedOpacity : 1.0);
    repaintSpear(spear);
}

void GraphicsView::markTarget(SpearItem *spear, const QPoint &pos, SpearItem *moving)
{
    if (spear != m_d->linkedSpear.get())
        unmarkTarget();
    m_d->linkedSpear = spear;
    m_d->dropRow = insertRow(pos, moving);
    if (spear->isLinked() && spear->linkNumber() == m_d->dropRow)
        return;
    spear->setLinked(true, m_d->dropRow);
    repaintSpear(spear);
}

void GraphicsView::unmarkTarget()
{
    if (SpearItem *const spear = m_d->linkedSpear.get()) {
        spear->setLinked(false, 0);
        repaintSpear(spear);
    }
    m_d->linkedSpear = SpearPointer();
}

void GraphicsView::mouseMoveEvent(QMouseEvent *event)
{
    if (m_d->pressed && !m_d->selected.isEmpty()) {
        const QSet<const QGraphicsItem *> selected = asSet(livingSelection());
        const QList<QGraphicsItem *> around = itemsAround(event->pos());
        const auto candidate =
            std::find_if(around.crbegin(), around.crend(), [&selected](QGraphicsItem *item) {
                return toSpear(item) && !selected.contains(item);
            });
        if (candidate != around.crend())
            markTarget(toSpear(*candidate), event->pos(), m_d->pressedSpear.get());
        else
            unmarkTarget();
    }
    const HoverDispatch dispatch(m_d->editor->showsOwnItemsOnly());
    QGraphicsView::mouseMoveEvent(event);
}

int GraphicsView::insertRow(const QPoint &pos, SpearItem *moving) const
{
    const SpearItem *const target = m_d->linkedSpear.get();
    if (!target)
        return 0;
    return target->dropRow(mapToScene(pos), moving);
}

void GraphicsView::mouseReleaseEvent(QMouseEvent *event)
{
    qDebug() << "GraphicsView::mouseReleaseEvent" << event;
    const QPointer<GraphicsView> alive(this);
    if (event->button() == Qt::LeftButton) {
        // Nothing stays faded or marked, also when another button has ended the gesture before.
        SpearItem *const target = m_d->linkedSpear.get();
        endMoving();
        unmarkTarget();
        if (m_d->pressed)
            reportMove(event->pos(), target);
    }
    if (!alive) {
        event->accept();
        return;
    }
    m_d->pressed = false;
    m_d->pressedSpear = SpearPointer();
    handle(event, [this, event] {
        const SelectionSilence silence(scene());
        QGraphicsView::mouseReleaseEvent(event);
        viewport()->setCursor(Qt::ArrowCursor);
    });
}

void GraphicsView::reportMove(const QPoint &pos, SpearItem *target)
{
    const QList<SpearItem *> selected = livingSelection();
    if (selected.isEmpty())
        return;
    QList<QGraphicsItem *> moved;
    moved.reserve(selected.count());
    for (SpearItem *spear : selected)
        moved.append(spear);
    // A move into the moved subject's own subtree has no target.
    const bool intoItself = target && hasAncestorIn(target, asSet(selected));
    const QModelIndex index =
        target && !intoItself ? m_d->editor->spearIndex(target) : QModelIndex();
    Q_EMIT moveSpear(pos, moved, index, m_d->dropRow);
}

void GraphicsView::mouseDoubleClickEvent(QMouseEvent *event)
{
    event->accept();
    m_d->editor->doubleClicked(event);
}

void GraphicsView::wheelEvent(QWheelEvent *event)
{
    if (isTouchpadScroll(*event)) {
        followTouchpad(*event);
        return;
    }
    if (!event->modifiers().testFlag(Qt::ControlModifier)) {
        QApplication::sendEvent(horizontalScrollBar(), event);
        return;
    }
    if (deltaOf(event->angleDelta()) > 0)
        m_d->editor->zoomIn(wheelZoomStep);
    else
        m_d->editor->zoomOut(wheelZoomStep);
    event->accept();
}

void GraphicsView::contextMenuEvent(QContextMenuEvent *event)
{
    if (!scene())
        return;
    const QList<QGraphicsItem *> under =
        scene()->items(mapToScene(event->pos()), Qt::IntersectsItemShape, Qt::DescendingOrder,
                       viewportTransform());
    const SpearPointer spear(spearOfItem(under.value(0)));
    const bool isOnSpear = spear.get();
    const bool isAlive = handle(event, [this, &spear] {
        const SelectionSilence silence(scene());
        scene()->clearSelection();
        if (spear.get())
            spear.get()->setSelected(true);
    });
    if (!isAlive)
        return;
    if (spear.get()) {
        Q_EMIT rightClicked(spear.get());
        return;
    }
    if (isOnSpear)
        return; // on one that a listener has ended
    QGraphicsView::contextMenuEvent(event);
    Q_EMIT rightClicked(nullptr);
}

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
void GraphicsView::enterEvent(QEnterEvent *event)
#else
void GraphicsView::enterEvent(QEvent *event)
#endif
{
    QGraphicsView::enterEvent(event);
    viewport()->setCursor(Qt::ArrowCursor);
}
