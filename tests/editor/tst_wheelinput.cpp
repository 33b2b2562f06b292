// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QNativeGestureEvent>
#include <QPinchGesture>
#include <QScrollArea>
#include <QScrollBar>
#include <QWheelEvent>
#include <QtTest>

#include <fishbone/editor/wheelinput.h>
#include <tests/program/testprogram.h>

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
#include <QPointingDevice>
#endif

namespace {

/** A view of something large, and how it was asked to zoom. */
class ScrolledView
{
public:
    ScrolledView()
    {
        auto *const content = new QWidget; // the area takes it over
        content->resize(2000, 2000);
        m_area.setWidget(content);
        m_area.resize(300, 200);
        m_area.show();
        m_area.horizontalScrollBar()->setValue(500);
        m_area.verticalScrollBar()->setValue(500);
    }

    QPoint scrolled() const
    {
        return {m_area.horizontalScrollBar()->value() - 500,
                m_area.verticalScrollBar()->value() - 500};
    }
    void turn(const QPoint &pixels, const QPoint &angle, Qt::ScrollPhase phase,
              Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QWheelEvent event(QPointF(), QPointF(), pixels, angle, Qt::NoButton, modifiers, phase,
                          false);
        m_input.turn(event);
    }
    bool gesture(QEvent &event) { return m_input.gesture(event); }
    QList<int> takeZooms() { return std::exchange(m_zooms, {}); }

private:
    QScrollArea m_area;
    QList<int> m_zooms;
    WheelInput m_input{m_area, [this](int steps) { m_zooms.append(steps); }};
};

QNativeGestureEvent touchpadGesture(Qt::NativeGestureType type, double value)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return QNativeGestureEvent(type, QPointingDevice::primaryPointingDevice(), 2, QPointF(),
                               QPointF(), QPointF(), value, QPointF());
#else
    return QNativeGestureEvent(type, nullptr, QPointF(), QPointF(), QPointF(), value, 0, 0);
#endif
}

} // namespace

/** What wheels and fingers ask of a view. */
class TestWheelInput : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldScrollSidewaysWithAWheel();
    void shouldScrollBothWaysWithTwoFingers();
    void shouldZoomByANotchWithCtrl();
    void shouldZoomInProportionWithTwoFingers();
    void shouldZoomWithPinches();
    void shouldLeaveOtherEventsAlone();
};

void TestWheelInput::shouldScrollSidewaysWithAWheel()
{
    ScrolledView view;
    view.turn(QPoint(), QPoint(0, -120), Qt::NoScrollPhase);
    QVERIFY(view.scrolled().x() > 0);
    QCOMPARE(view.scrolled().y(), 0);
    QCOMPARE(view.takeZooms(), QList<int>());
}

void TestWheelInput::shouldScrollBothWaysWithTwoFingers()
{
    ScrolledView view;
    view.turn(QPoint(7, -11), QPoint(14, -22), Qt::ScrollUpdate);
    QCOMPARE(view.scrolled(), QPoint(-7, 11));
    view.turn(QPoint(), QPoint(14, -22), Qt::ScrollUpdate); // angles alone count half
    QCOMPARE(view.scrolled(), QPoint(-14, 22));
}

void TestWheelInput::shouldZoomByANotchWithCtrl()
{
    ScrolledView view;
    view.turn(QPoint(), QPoint(0, 120), Qt::NoScrollPhase, Qt::ControlModifier);
    view.turn(QPoint(), QPoint(0, -240), Qt::NoScrollPhase, Qt::ControlModifier);
    view.turn(QPoint(), QPoint(120, 0), Qt::NoScrollPhase, Qt::ControlModifier);
    QCOMPARE(view.takeZooms(), QList<int>({6, -6, 6}));
    QCOMPARE(view.scrolled(), QPoint());
}

void TestWheelInput::shouldZoomInProportionWithTwoFingers()
{
    ScrolledView view;
    // A notch is 6 steps, so 30 of its 120 are one and a half.
    for (int i = 0; i < 3; ++i)
        view.turn(QPoint(0, 15), QPoint(0, 30), Qt::ScrollUpdate, Qt::ControlModifier);
    QCOMPARE(view.takeZooms(), QList<int>({1, 2, 1}));
    view.turn(QPoint(), QPoint(), Qt::ScrollEnd, Qt::ControlModifier);
    QCOMPARE(view.takeZooms(), QList<int>());
}

void TestWheelInput::shouldZoomWithPinches()
{
    ScrolledView view;
    QNativeGestureEvent twice = touchpadGesture(Qt::ZoomNativeGesture, 1.0);
    QVERIFY(view.gesture(twice));
    QPinchGesture pinch;
    pinch.setScaleFactor(0.5);
    QGestureEvent half({&pinch});
    QVERIFY(view.gesture(half));
    QVERIFY(half.isAccepted(Qt::PinchGesture));
    QCOMPARE(view.takeZooms(), QList<int>({50, -50}));
    QNativeGestureEvent toNothing = touchpadGesture(Qt::ZoomNativeGesture, -1.0);
    QVERIFY(view.gesture(toNothing));
    QCOMPARE(view.takeZooms(), QList<int>());
}

void TestWheelInput::shouldLeaveOtherEventsAlone()
{
    ScrolledView view;
    QNativeGestureEvent turn = touchpadGesture(Qt::RotateNativeGesture, 10);
    QVERIFY(!view.gesture(turn));
    QEvent leave(QEvent::Leave);
    QVERIFY(!view.gesture(leave));
    QGestureEvent none({});
    QVERIFY(!view.gesture(none));
    QCOMPARE(view.takeZooms(), QList<int>());
}

FISHBONE_TEST(TestWheelInput)
#include "tst_wheelinput.moc"
