// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/editor/graphicsview.h>

#include <algorithm>
#include <memory>

#include <QContextMenuEvent>
#include <QCursor>
#include <QDebug>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QPointer>
#include <QWheelEvent>

#include <fishbone/base/onepass.h>
#include <fishbone/editor/boneselection.h>
#include <fishbone/editor/droptarget.h>
#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/payloadcopy.h>
#include <fishbone/editor/spearmove.h>
#include <fishbone/editor/speartools.h>
#include <fishbone/editor/wheelinput.h>
#include <fishbone/items/hovercursor.h>
#include <fishbone/items/sceneselection.h>
#include <fishbone/items/spearitem.h>

/** The state of a view. */
struct FISHBONE_NO_EXPORT GraphicsView::Private
{
    Private(GraphicsView &view, FishEditor *shownBy)
        : editor(shownBy)
        , wheel(view, [shownBy](int steps) {
            if (steps > 0)
                shownBy->zoomIn(steps);
            else
                shownBy->zoomOut(-steps);
        })
    {
    }

    FishEditor *const editor;
    WheelInput wheel;
    SpearMove move;
    DropTarget target;
};

GraphicsView::GraphicsView(FishEditor *editor)
    : m_d(std::make_unique<Private>(*this, editor))
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
    return m_d->target.spear();
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

/**
 * Runs a part of an event, and tells of the selection when it is through: the toolkit goes on
 * using its items meanwhile. False, with the event accepted, when a listener has ended the view
 * then.
 */
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
    if (beginsMove)
        m_d->move.press();
    {
        const SelectionSilence silence(scene());
        QGraphicsView::mousePressEvent(event);
    }
    viewport()->setCursor(Qt::ArrowCursor);
    if (!beginsMove || !m_d->move.isPressed())
        return; // also when a dialog that the press has opened took the release
    if (m_d->target.spear())
        m_d->target.clear();
    m_d->move.begin(m_d->editor->selectedItems(), itemsAround(event->pos()));
}

void GraphicsView::abandonMove()
{
    m_d->move.restore();
    m_d->target.unmark();
    const bool wasPressed = m_d->move.isPressed();
    m_d->move.release();
    if (wasPressed)
        reportMove(viewport()->mapFromGlobal(QCursor::pos()), nullptr);
}

void GraphicsView::mouseMoveEvent(QMouseEvent *event)
{
    if (m_d->move.isPressed() && m_d->move.hasSelection()) {
        if (SpearItem *const under = m_d->move.candidate(itemsAround(event->pos())))
            m_d->target.mark(*under, mapToScene(event->pos()), m_d->move.pressedSpear());
        else
            m_d->target.unmark();
    }
    const HoverDispatch dispatch(m_d->editor->showsOwnItemsOnly());
    QGraphicsView::mouseMoveEvent(event);
}

int GraphicsView::insertRow(const QPoint &pos, SpearItem *moving) const
{
    return m_d->target.rowAt(mapToScene(pos), moving);
}

void GraphicsView::mouseReleaseEvent(QMouseEvent *event)
{
    qDebug() << "GraphicsView::mouseReleaseEvent" << event;
    const QPointer<GraphicsView> alive(this);
    if (event->button() == Qt::LeftButton) {
        // Nothing stays faded or marked, also when another button has ended the gesture before.
        SpearItem *const target = m_d->target.spear();
        m_d->move.restore();
        m_d->target.unmark();
        if (m_d->move.isPressed())
            reportMove(event->pos(), target);
    }
    if (!alive) {
        event->accept();
        return;
    }
    m_d->move.release();
    handle(event, [this, event] {
        const SelectionSilence silence(scene());
        QGraphicsView::mouseReleaseEvent(event);
        viewport()->setCursor(Qt::ArrowCursor);
    });
}

void GraphicsView::reportMove(const QPoint &pos, SpearItem *target)
{
    const QList<SpearItem *> selected = m_d->move.selection();
    if (selected.isEmpty())
        return;
    QList<QGraphicsItem *> moved;
    moved.reserve(selected.count());
    for (SpearItem *spear : selected)
        moved.append(spear);
    // A move into the moved subject's own subtree has no target.
    const bool intoItself = m_d->move.isInto(target);
    const QModelIndex index =
        target && !intoItself ? m_d->editor->spearIndex(target) : QModelIndex();
    Q_EMIT moveSpear(pos, moved, index, m_d->target.row());
}

void GraphicsView::mouseDoubleClickEvent(QMouseEvent *event)
{
    event->accept();
    m_d->editor->doubleClicked(event);
}

void GraphicsView::wheelEvent(QWheelEvent *event)
{
    m_d->wheel.turn(*event);
}

bool GraphicsView::viewportEvent(QEvent *event)
{
    return m_d->wheel.gesture(*event) || QGraphicsView::viewportEvent(event);
}

void GraphicsView::contextMenuEvent(QContextMenuEvent *event)
{
    if (!scene())
        return;
    const QList<QGraphicsItem *> under =
        scene()->items(mapToScene(event->pos()), Qt::IntersectsItemShape, Qt::DescendingOrder,
                       viewportTransform());
    const SpearPointer spear(BoneSelection::spearOf(under.value(0)));
    const bool isOnSpear = spear.get();
    const bool isAlive = handle(event, [this, &spear] {
        const SelectionSilence silence(scene());
        scene()->clearSelection();
        if (spear.get())
            spear.get()->setSelected(true);
    });
    if (!isAlive)
        return;
    if (isOnSpear && !spear.get())
        return; // on one that a listener has ended
    if (!isOnSpear)
        QGraphicsView::contextMenuEvent(event);
    const QPointer<GraphicsView> alive(this);
    Q_EMIT rightClicked(spear.get());
    if (!alive)
        event->accept(); // as handle() does
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

void GraphicsView::dragEnterEvent(QDragEnterEvent *event)
{
    m_d->target.clear();
    event->acceptProposedAction();
}

void GraphicsView::dragMoveEvent(QDragMoveEvent *event)
{
    const TreeItem *const dragged = m_d->editor->treeItemFromMimeData(event->mimeData());
    SpearItem *const under = dragged ? topmostSpearAround(event->pos()) : nullptr;
    if (m_d->target.offer(dragged, under, mapToScene(event->pos())))
        event->acceptProposedAction();
    else
        event->ignore();
}

void GraphicsView::dragLeaveEvent(QDragLeaveEvent *event)
{
    event->accept();
}

void GraphicsView::dropEvent(QDropEvent *event)
{
    qDebug() << "GraphicsView::dropEvent";
    event->acceptProposedAction();
    SpearItem *const target = m_d->target.spear();
    if (!target)
        return;
    const int row = m_d->target.row();
    m_d->target.clear();
    QMimeData *const payload = payloadCopy(*event->mimeData()).release();
    Q_EMIT dropTo(payload, m_d->editor->spearIndex(target), row);
    // Posted behind the calls of queued receivers, so that they find it alive; also when somebody
    // who waits has all deletions carried out before anything else, as the end of a drag may.
    QMetaObject::invokeMethod(
        payload, [payload] { payload->deleteLater(); }, Qt::QueuedConnection);
}
