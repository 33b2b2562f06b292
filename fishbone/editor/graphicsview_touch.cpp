// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// The part of GraphicsView that follows fingers on touchpads and screens.

#include <fishbone/editor/graphicsview.h>

#include <cmath>

#include <QGestureEvent>
#include <QNativeGestureEvent>
#include <QPinchGesture>
#include <QScrollBar>
#include <QWheelEvent>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/graphicsview_p.h>
#include <fishbone/editor/viewframing.h>

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

} // namespace

bool GraphicsView::isTouchpadScroll(const QWheelEvent &event)
{
    // Some platforms give a wheel pixels as well, so that these alone tell nothing: a wheel turns
    // by whole notches and knows neither beginning nor end.
    return event.phase() != Qt::NoScrollPhase ||
           event.source() == Qt::MouseEventSynthesizedBySystem ||
           (!event.pixelDelta().isNull() && !isWholeNotches(event.angleDelta()));
}

void GraphicsView::followTouchpad(QWheelEvent &event)
{
    event.accept();
    if (event.modifiers().testFlag(Qt::ControlModifier)) {
        zoomSmoothly(double(wheelZoomStep) * event.angleDelta().y() / notch);
        return;
    }
    const QPoint moved = event.pixelDelta().isNull() ? event.angleDelta() / 2 : event.pixelDelta();
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() - moved.x());
    verticalScrollBar()->setValue(verticalScrollBar()->value() - moved.y());
}

/// Zooms by whole steps and keeps the rest for the next time, so that a slow movement gets there
/// too.
void GraphicsView::zoomSmoothly(double steps)
{
    m_d->zoomRemainder += qBound(-1000.0, steps, 1000.0);
    const int whole = int(m_d->zoomRemainder);
    m_d->zoomRemainder -= whole;
    if (whole > 0)
        m_d->editor->zoomIn(whole);
    else if (whole < 0)
        m_d->editor->zoomOut(-whole);
}

bool GraphicsView::followPinch(QEvent &event)
{
    if (event.type() == QEvent::NativeGesture) {
        const auto &gesture = static_cast<const QNativeGestureEvent &>(event);
        if (gesture.gestureType() != Qt::ZoomNativeGesture)
            return false;
        zoomSmoothly(zoomStepsOf(1 + gesture.value()));
        return true;
    }
    auto &gestures = static_cast<QGestureEvent &>(event);
    const auto *const pinch = static_cast<QPinchGesture *>(gestures.gesture(Qt::PinchGesture));
    if (!pinch)
        return false;
    zoomSmoothly(zoomStepsOf(pinch->scaleFactor()));
    gestures.accept(Qt::PinchGesture);
    return true;
}

bool GraphicsView::viewportEvent(QEvent *event)
{
    const bool isGesture =
        event->type() == QEvent::NativeGesture || event->type() == QEvent::Gesture;
    if (isGesture && followPinch(*event))
        return true;
    return QGraphicsView::viewportEvent(event);
}
