// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <functional>

class QAbstractScrollArea;
class QEvent;
class QWheelEvent;

/**
 * What wheels and fingers ask of a view: a wheel scrolls it sideways and zooms with Ctrl, two
 * fingers on a touchpad scroll it both ways and zoom with Ctrl, a pinch zooms.
 */
class WheelInput
{
    Q_DISABLE_COPY(WheelInput)

public:
    /** Zooms by so many steps, out when negative. May end the view. */
    using Zoom = std::function<void(int steps)>;

    static constexpr int notchSteps = 6; ///< what a notch of a wheel with Ctrl zooms by

    /** Scrolls @p view, which must outlive it, and zooms with @p zoom. */
    WheelInput(QAbstractScrollArea &view, Zoom zoom);

    /** Does what @p event of the view asks for. */
    void turn(QWheelEvent &event);
    /** Does what a gesture asks for; false when that is nothing that a view does. */
    bool gesture(QEvent &event);

private:
    void scroll(QWheelEvent &event);
    void zoomSmoothly(double steps);

    QAbstractScrollArea &m_view;
    const Zoom m_zoom;
    double m_remainder = 0; ///< what smooth zooming has asked for beyond whole steps
};
