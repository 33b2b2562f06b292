// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QApplication>
#include <QContextMenuEvent>
#include <QGraphicsView>
#include <QMouseEvent>
#include <QWheelEvent>

#include <fishbone/items/spearitem.h>

namespace TestSupport {

/** A mouse above the viewport of a view. Events go to the viewport as the window system's would. */
class ViewMouse
{
public:
    explicit ViewMouse(QGraphicsView &view)
        : m_view(view)
    {
    }

    void press(const QPoint &at, Qt::MouseButton button = Qt::LeftButton,
               Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        m_buttons |= button;
        send(QEvent::MouseButtonPress, at, button, modifiers);
    }
    void move(const QPoint &to) { send(QEvent::MouseMove, to, Qt::NoButton, Qt::NoModifier); }
    void release(const QPoint &at, Qt::MouseButton button = Qt::LeftButton)
    {
        m_buttons &= ~Qt::MouseButtons(button);
        send(QEvent::MouseButtonRelease, at, button, Qt::NoModifier);
    }
    void click(const QPoint &at, Qt::MouseButton button = Qt::LeftButton)
    {
        press(at, button);
        release(at, button);
    }
    /** The second press of a double click; whether the view took it. */
    bool doubleClick(const QPoint &at, Qt::MouseButton button = Qt::LeftButton)
    {
        m_buttons |= button;
        return send(QEvent::MouseButtonDblClick, at, button, Qt::NoModifier);
    }
    /** Turns the wheel; whether the view took it. */
    bool wheel(const QPoint &at, const QPoint &angle, Qt::KeyboardModifiers modifiers)
    {
        QWidget *const viewport = m_view.viewport();
        QWheelEvent event(at, viewport->mapToGlobal(at), QPoint(), angle, m_buttons, modifiers,
                          Qt::NoScrollPhase, false);
        event.ignore();
        QApplication::sendEvent(viewport, &event);
        return event.isAccepted();
    }
    void askForMenu(const QPoint &at)
    {
        QContextMenuEvent event(QContextMenuEvent::Mouse, at, m_view.viewport()->mapToGlobal(at));
        QApplication::sendEvent(m_view.viewport(), &event);
    }

private:
    bool send(QEvent::Type type, const QPoint &at, Qt::MouseButton button,
              Qt::KeyboardModifiers modifiers)
    {
        QWidget *const viewport = m_view.viewport();
        QMouseEvent event(type, at, viewport->mapToGlobal(at), button, m_buttons, modifiers);
        QApplication::sendEvent(viewport, &event);
        return event.isAccepted();
    }

    QGraphicsView &m_view;
    Qt::MouseButtons m_buttons;
};

/** Where the outer end of a bone is in a view. */
inline QPoint tipOf(const QGraphicsView &view, const SpearItem *spear)
{
    return view.mapFromScene(spear->mapToScene(spear->line().p2()));
}

/** Where the inner end of a bone, on its parent's bone, is in a view. */
inline QPoint startOf(const QGraphicsView &view, const SpearItem *spear)
{
    return view.mapFromScene(spear->mapToScene(spear->line().p1()));
}

/** Where the middle of an item is in a view. */
inline QPoint middleOf(const QGraphicsView &view, const QGraphicsItem *item)
{
    return view.mapFromScene(item->mapToScene(item->boundingRect().center()));
}

} // namespace TestSupport
