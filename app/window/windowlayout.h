// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QPointer>

class QDockWidget;
class QMainWindow;
class QWidget;

/**
 * How a window is divided between the drawing and what stands around it.
 *
 * In a small window panels step aside until the drawing has room enough, and come back when the
 * window grows; a panel that the user opens stays. In focus the drawing stands alone. What the user
 * has arranged is kept for each size of screen.
 */
class WindowLayout : public QObject
{
    Q_OBJECT

public:
    /** The least part of a small window that panels leave to the drawing. */
    static constexpr double drawingShare = 0.6;

    /** The layout of @p window, which owns this object and all @p docks; those in front step aside
     * first. */
    WindowLayout(QMainWindow *window, const QList<QDockWidget *> &docks);

    /** The drawing that is shown now, somewhere in the window. With none, panels have nothing to
     * show and in a small window all step aside. */
    void setDrawing(const QWidget *drawing);

    /** The part of the window that @p widget in it takes up, from 0 to 1. */
    static double shareOf(const QWidget &widget);

    /** Brings back what was kept for this screen; the window is no larger than the screen. */
    void restore();
    /** Keeps the layout for this screen, as it is without focus and with all panels that stepped
     * aside. */
    void save();

    /** Lets @p dock show its whole width when it stands beside the drawing: one that stepped aside
     * where it was narrow, or whose texts have become longer. */
    void widen(QDockWidget *dock);

    bool isFocused() const { return !m_beforeFocus.isEmpty(); }
    /** Shows the drawing alone, or again what was around it. */
    void setFocused(bool focused);

Q_SIGNALS:
    void focusChanged(bool focused);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void scheduleYield();
    void yield();
    void showYielded();
    bool isSmall() const;
    bool hasRoom() const;

    QMainWindow *m_window;
    QPointer<const QWidget> m_drawing;
    QList<QDockWidget *> m_docks;
    QList<QDockWidget *> m_yielded; ///< that stepped aside
    QList<QDockWidget *> m_opened;  ///< by the user, in a small window
    QByteArray m_beforeFocus;       ///< the panels and tool bars, while in focus
    bool m_isYielding = false;
    bool m_isScheduled = false;
};
