// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/editing/mousedrags.h>

#include <utility>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/graphicsview.h>

#include <QApplication>
#include <QGraphicsItem>
#include <QGraphicsScene>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>

namespace {

bool isSpace(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Space && event.modifiers() == Qt::NoModifier;
}

} // namespace

MouseDrags::MouseDrags(FishEditor *editor, std::function<void()> tapped, QObject *parent)
    : QObject(parent)
    , m_view(editor->view())
    , m_band(editor)
    , m_tapped(std::move(tapped))
{
    m_view->installEventFilter(this);
    m_view->viewport()->installEventFilter(this);
}

bool MouseDrags::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        // Whether Space was meant alone turns out when it is let go.
        if (!isSpace(*static_cast<QKeyEvent *>(event)))
            break;
        event->accept();
        return true;
    case QEvent::KeyPress:
        return pressKey(*static_cast<QKeyEvent *>(event));
    case QEvent::KeyRelease:
        return releaseKey(*static_cast<QKeyEvent *>(event));
    case QEvent::FocusOut:
        m_isSpaceDown = false;
        break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return press(*static_cast<QMouseEvent *>(event));
    case QEvent::MouseMove:
        return move(*static_cast<QMouseEvent *>(event));
    case QEvent::MouseButtonRelease:
        return release(*static_cast<QMouseEvent *>(event));
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

bool MouseDrags::press(const QMouseEvent &event)
{
    m_isTap = false;
    if (m_drag == Drag::Panning)
        return true;
    const bool isLeft = event.button() == Qt::LeftButton;
    if (event.button() == Qt::MiddleButton || (isLeft && m_isSpaceDown)) {
        m_drag = Drag::Panning;
        m_button = event.button();
        m_from = event.pos();
        showCursor();
        return true;
    }
    if (isLeft && event.type() == QEvent::MouseButtonPress) {
        m_drag = Drag::Waiting;
        m_from = event.pos();
        m_isOnNothing = !m_view->itemAt(m_from);
        // Now, before the press deselects everything.
        if (m_isOnNothing)
            m_band.begin(m_from, event.modifiers() & (Qt::ControlModifier | Qt::ShiftModifier));
    }
    return false;
}

bool MouseDrags::move(const QMouseEvent &event)
{
    switch (m_drag) {
    case Drag::Panning:
        pan(event.pos());
        return true;
    case Drag::Waiting:
        if ((event.pos() - m_from).manhattanLength() < QApplication::startDragDistance())
            return true;
        m_drag = m_isOnNothing ? Drag::Selecting : Drag::Moving;
        if (!m_isOnNothing)
            return false;
        m_view->abandonMove(); // it hears nothing more of this press
        m_band.reach(event.pos());
        return true;
    case Drag::Selecting:
        m_band.reach(event.pos());
        return true;
    case Drag::Cancelled:
        return true;
    case Drag::Moving:
    case Drag::None:
        break;
    }
    return false;
}

bool MouseDrags::release(const QMouseEvent &event)
{
    if (m_drag == Drag::Panning) {
        if (event.button() == m_button) {
            m_drag = Drag::None;
            showCursor();
        }
        return true;
    }
    if (event.button() != Qt::LeftButton)
        return false;
    const Drag ended = std::exchange(m_drag, Drag::None);
    const bool wasFrame = ended == Drag::Selecting || (ended == Drag::Cancelled && m_isOnNothing);
    if (wasFrame)
        m_band.end();
    return wasFrame; // the view would deselect everything, as after a click
}

bool MouseDrags::pressKey(const QKeyEvent &event)
{
    if (isSpace(event)) {
        if (!event.isAutoRepeat()) {
            m_isSpaceDown = true;
            m_isTap = true;
            showCursor();
        }
        return true;
    }
    m_isTap = false;
    const bool isUnderWay =
        m_drag == Drag::Waiting || m_drag == Drag::Moving || m_drag == Drag::Selecting;
    if (event.key() != Qt::Key_Escape || !isUnderWay)
        return false;
    cancel();
    return true;
}

bool MouseDrags::releaseKey(const QKeyEvent &event)
{
    if (event.key() != Qt::Key_Space || !m_isSpaceDown)
        return false;
    if (event.isAutoRepeat())
        return true;
    m_isSpaceDown = false;
    showCursor();
    if (std::exchange(m_isTap, false))
        m_tapped();
    return true;
}

/** Has the bones go back to where they were; the button may stay down as long as it likes. */
void MouseDrags::cancel()
{
    if (std::exchange(m_drag, Drag::Cancelled) == Drag::Selecting)
        m_band.cancel();
    if (QGraphicsItem *const held = m_view->scene() ? m_view->scene()->mouseGrabberItem() : nullptr)
        held->ungrabMouse();
    m_view->abandonMove();
}

void MouseDrags::pan(const QPoint &to)
{
    const QPoint by = to - std::exchange(m_from, to);
    QScrollBar *const across = m_view->horizontalScrollBar();
    across->setValue(across->value() + (m_view->isRightToLeft() ? by.x() : -by.x()));
    QScrollBar *const along = m_view->verticalScrollBar();
    along->setValue(along->value() - by.y());
}

void MouseDrags::showCursor()
{
    const Qt::CursorShape idle = m_isSpaceDown ? Qt::OpenHandCursor : Qt::ArrowCursor;
    m_view->viewport()->setCursor(m_drag == Drag::Panning ? Qt::ClosedHandCursor : idle);
}
