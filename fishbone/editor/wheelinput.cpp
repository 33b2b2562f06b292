// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/editor/wheelinput.h>

#include <fishbone/editor/viewframing.h>

#include <cmath>
#include <utility>

#include <QAbstractScrollArea>
#include <QCoreApplication>
#include <QGestureEvent>
#include <QNativeGestureEvent>
#include <QPinchGesture>
#include <QScrollBar>
#include <QWheelEvent>

namespace {

constexpr int notch = 120; ///< what a wheel turns by at the least, eighths of a degree

double zoomStepsOf(double factor)
{
    return factor > 0 ? ViewFraming::doublingSteps * std::log2(factor) : 0;
}

bool isWholeNotches(const QPoint &angle)
{
    return angle.x() % notch == 0 && angle.y() % notch == 0;
}

/** How far a wheel was turned, along the axis that it was mainly turned along. */
int deltaOf(const QPoint &angle)
{
    return qAbs(angle.x()) > qAbs(angle.y()) ? angle.x() : angle.y();
}

bool isTouchpadScroll(const QWheelEvent &event)
{
    // Some platforms give a wheel pixels as well, so that these alone tell nothing: a wheel turns
    // by whole notches and knows neither beginning nor end.
    return event.phase() != Qt::NoScrollPhase ||
           event.source() == Qt::MouseEventSynthesizedBySystem ||
           (!event.pixelDelta().isNull() && !isWholeNotches(event.angleDelta()));
}

bool isZooming(const QWheelEvent &event)
{
    return event.modifiers().testFlag(Qt::ControlModifier);
}

} // namespace

WheelInput::WheelInput(QAbstractScrollArea &view, Zoom zoom)
    : m_view(view)
    , m_zoom(std::move(zoom))
{
}

void WheelInput::turn(QWheelEvent &event)
{
    if (isTouchpadScroll(event)) {
        event.accept();
        if (isZooming(event))
            zoomSmoothly(double(notchSteps) * event.angleDelta().y() / notch);
        else
            scroll(event);
        return;
    }
    if (!isZooming(event)) {
        QCoreApplication::sendEvent(m_view.horizontalScrollBar(), &event);
        return;
    }
    m_zoom(deltaOf(event.angleDelta()) > 0 ? notchSteps : -notchSteps);
    event.accept();
}

/** Scrolls both ways. */
void WheelInput::scroll(QWheelEvent &event)
{
    const QPoint moved = event.pixelDelta().isNull() ? event.angleDelta() / 2 : event.pixelDelta();
    QScrollBar *const across = m_view.horizontalScrollBar();
    QScrollBar *const down = m_view.verticalScrollBar();
    across->setValue(across->value() - moved.x());
    down->setValue(down->value() - moved.y());
}

/**
 * Zooms by whole steps and keeps the rest for the next time, so that a slow movement gets there
 * too.
 */
void WheelInput::zoomSmoothly(double steps)
{
    m_remainder += qBound(-1000.0, steps, 1000.0);
    const int whole = int(m_remainder);
    m_remainder -= whole;
    if (whole != 0)
        m_zoom(whole);
}

bool WheelInput::gesture(QEvent &event)
{
    if (event.type() == QEvent::NativeGesture) {
        const auto &native = static_cast<const QNativeGestureEvent &>(event);
        if (native.gestureType() != Qt::ZoomNativeGesture)
            return false;
        zoomSmoothly(zoomStepsOf(1 + native.value()));
        return true;
    }
    if (event.type() != QEvent::Gesture)
        return false;
    auto &gestures = static_cast<QGestureEvent &>(event);
    const auto *const pinch = static_cast<QPinchGesture *>(gestures.gesture(Qt::PinchGesture));
    if (!pinch)
        return false;
    zoomSmoothly(zoomStepsOf(pinch->scaleFactor()));
    gestures.accept(Qt::PinchGesture);
    return true;
}
