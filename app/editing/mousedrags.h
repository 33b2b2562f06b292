// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <app/editing/rubberband.h>

#include <functional>

#include <QObject>
#include <QPoint>

class FishEditor;
class GraphicsView;
class QKeyEvent;
class QMouseEvent;

/**
 * How the mouse drags on the canvas: the middle button, or the left one while Space is down, drags
 * the canvas itself. Where there is nothing, the left button draws a frame that selects bones, with
 * Ctrl or Shift beside those that are selected. A bone moves only once the mouse has gone a little
 * way, and goes back when Escape is pressed before the button is let go.
 */
class MouseDrags : public QObject
{
    Q_OBJECT

public:
    /** Drags on the canvas of @p editor. Space alone calls @p tapped. */
    MouseDrags(FishEditor *editor, std::function<void()> tapped, QObject *parent);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    enum class Drag {
        None,
        Waiting,   ///< the button is down, the mouse has hardly moved
        Moving,    ///< of bones, by the view
        Selecting, ///< of what is in a frame
        Cancelled, ///< the button is still down
        Panning,
    };

    bool press(const QMouseEvent &event);
    bool move(const QMouseEvent &event);
    bool release(const QMouseEvent &event);
    bool pressKey(const QKeyEvent &event);
    bool releaseKey(const QKeyEvent &event);
    void cancel();
    void pan(const QPoint &to);
    void showCursor();

    GraphicsView *m_view;
    RubberBand m_band;
    std::function<void()> m_tapped;
    Drag m_drag = Drag::None;
    Qt::MouseButton m_button = Qt::NoButton; ///< that pans
    QPoint m_from;                           ///< of a press, or where panning has come to
    bool m_isSpaceDown = false;
    bool m_isOnNothing = false; ///< the last press of the left button
    bool m_isTap = false;       ///< nothing else happened since Space went down
};
