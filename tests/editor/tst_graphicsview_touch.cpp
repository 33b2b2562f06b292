// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QGestureEvent>
#include <QNativeGestureEvent>
#include <QPanGesture>
#include <QPinchGesture>
#include <QScrollBar>
#include <QWheelEvent>
#include <QtTest>

#include <tests/program/testprogram.h>
#include <tests/support/editorfixture.h>
#include <tests/support/signalrecorder.h>

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
#include <QPointingDevice>
#endif

using namespace TestSupport;

namespace {

/** A shown editor zoomed in so far that it can be scrolled both ways. */
class ZoomedEditor : public EditorFixture
{
public:
    ZoomedEditor()
        : EditorFixture(QStringLiteral("Head[A,B,C,D,E,F]"))
    {
    }

    bool prepare()
    {
        editor.resize(300, 200);
        if (!show(false))
            return false;
        editor.zoomFish(400);
        horizontal()->setValue((horizontal()->minimum() + horizontal()->maximum()) / 2);
        vertical()->setValue((vertical()->minimum() + vertical()->maximum()) / 2);
        m_start = QPoint(horizontal()->value(), vertical()->value());
        return true;
    }

    QPoint scrolled() const { return QPoint(horizontal()->value(), vertical()->value()) - m_start; }

    void wheel(const QPoint &pixels, const QPoint &angle, Qt::ScrollPhase phase,
               Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QWidget *const viewport = editor.view()->viewport();
        const QPointF pos(50, 50);
        QWheelEvent event(pos, viewport->mapToGlobal(pos.toPoint()), pixels, angle, Qt::NoButton,
                          modifiers, phase, false);
        QCoreApplication::sendEvent(viewport, &event);
    }

private:
    QScrollBar *horizontal() const { return editor.view()->horizontalScrollBar(); }
    QScrollBar *vertical() const { return editor.view()->verticalScrollBar(); }

    QPoint m_start;
};

/** A gesture of two fingers on a touchpad. */
QNativeGestureEvent touchpadGesture(Qt::NativeGestureType type, double value)
{
    const QPointF pos(50, 50);
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return QNativeGestureEvent(type, QPointingDevice::primaryPointingDevice(), 2, pos, pos, pos,
                               value, QPointF());
#else
    return QNativeGestureEvent(type, nullptr, pos, pos, pos, value, 0, 0);
#endif
}

} // namespace

class TestGraphicsViewTouch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldScrollBothWaysWithTwoFingers_data();
    void shouldScrollBothWaysWithTwoFingers();
    void shouldScrollSidewaysWithAWheelThatReportsPixels();
    void shouldZoomInProportionWithTwoFingersAndCtrl();
    void shouldNotZoomWhenTheFingersLift();
    void shouldZoomWithAPinchOnATouchpad();
    void shouldZoomWithAPinchOnAScreen();
    void shouldIgnoreOtherGestures();
};

void TestGraphicsViewTouch::shouldScrollBothWaysWithTwoFingers_data()
{
    QTest::addColumn<QPoint>("pixels");
    QTest::addColumn<QPoint>("angle");
    QTest::addColumn<int>("phase");
    QTest::addColumn<QPoint>("scrolled");
    QTest::newRow("in a phase") << QPoint(7, -11) << QPoint(14, -22) << int(Qt::ScrollUpdate)
                                << QPoint(-7, 11);
    QTest::newRow("without phases")
        << QPoint(7, -11) << QPoint(14, -22) << int(Qt::NoScrollPhase) << QPoint(-7, 11);
    QTest::newRow("without phases, down alone")
        << QPoint(0, -11) << QPoint(0, -22) << int(Qt::NoScrollPhase) << QPoint(0, 11);
    QTest::newRow("momentum") << QPoint(0, 20) << QPoint(0, 40) << int(Qt::ScrollMomentum)
                              << QPoint(0, -20);
    QTest::newRow("angles only") << QPoint() << QPoint(10, 30) << int(Qt::ScrollUpdate)
                                 << QPoint(-5, -15);
    QTest::newRow("lifted") << QPoint() << QPoint() << int(Qt::ScrollEnd) << QPoint(0, 0);
}

void TestGraphicsViewTouch::shouldScrollBothWaysWithTwoFingers()
{
    QFETCH(QPoint, pixels);
    QFETCH(QPoint, angle);
    QFETCH(int, phase);
    QFETCH(QPoint, scrolled);
    ZoomedEditor fixture;
    QVERIFY(fixture.prepare());
    fixture.wheel(pixels, angle, Qt::ScrollPhase(phase));
    QCOMPARE(fixture.scrolled(), scrolled);
}

void TestGraphicsViewTouch::shouldScrollSidewaysWithAWheelThatReportsPixels()
{
    ZoomedEditor fixture;
    QVERIFY(fixture.prepare());
    fixture.wheel(QPoint(0, -15), QPoint(0, -120), Qt::NoScrollPhase);
    QVERIFY(fixture.scrolled().x() > 0);
    QCOMPARE(fixture.scrolled().y(), 0);
}

void TestGraphicsViewTouch::shouldZoomInProportionWithTwoFingersAndCtrl()
{
    ZoomedEditor fixture;
    QVERIFY(fixture.prepare());
    SignalRecorder recorder(fixture.editor, {QStringLiteral("zoomValueChanged")});
    // A notch is 6 steps, so 30 of its 120 are one and a half.
    fixture.wheel(QPoint(0, 15), QPoint(0, 30), Qt::ScrollUpdate, Qt::ControlModifier);
    QCOMPARE(recorder.take(), QStringLiteral("zoomValueChanged(401)"));
    fixture.wheel(QPoint(0, 15), QPoint(0, 30), Qt::ScrollUpdate, Qt::ControlModifier);
    QCOMPARE(recorder.take(), QStringLiteral("zoomValueChanged(403)"));
    fixture.wheel(QPoint(0, -30), QPoint(0, -60), Qt::ScrollUpdate, Qt::ControlModifier);
    QCOMPARE(recorder.take(), QStringLiteral("zoomValueChanged(400)"));
    QCOMPARE(fixture.scrolled(), QPoint(0, 0));
}

void TestGraphicsViewTouch::shouldNotZoomWhenTheFingersLift()
{
    ZoomedEditor fixture;
    QVERIFY(fixture.prepare());
    SignalRecorder recorder(fixture.editor, {QStringLiteral("zoomValueChanged")});
    fixture.wheel(QPoint(), QPoint(), Qt::ScrollEnd, Qt::ControlModifier);
    QCOMPARE(recorder.take(), QString());
}

void TestGraphicsViewTouch::shouldZoomWithAPinchOnATouchpad()
{
    ZoomedEditor fixture;
    QVERIFY(fixture.prepare());
    SignalRecorder recorder(fixture.editor, {QStringLiteral("zoomValueChanged")});
    QNativeGestureEvent twice = touchpadGesture(Qt::ZoomNativeGesture, 1.0);
    QCoreApplication::sendEvent(fixture.editor.view()->viewport(), &twice);
    QCOMPARE(recorder.take(), QStringLiteral("zoomValueChanged(450)"));

    QNativeGestureEvent toNothing = touchpadGesture(Qt::ZoomNativeGesture, -1.0);
    QCoreApplication::sendEvent(fixture.editor.view()->viewport(), &toNothing);
    QCOMPARE(recorder.take(), QString());
}

void TestGraphicsViewTouch::shouldZoomWithAPinchOnAScreen()
{
    ZoomedEditor fixture;
    QVERIFY(fixture.prepare());
    SignalRecorder recorder(fixture.editor, {QStringLiteral("zoomValueChanged")});
    QPinchGesture pinch;
    pinch.setScaleFactor(0.5);
    QGestureEvent event({&pinch});
    QCoreApplication::sendEvent(fixture.editor.view()->viewport(), &event);
    QCOMPARE(recorder.take(), QStringLiteral("zoomValueChanged(350)"));
    QVERIFY(event.isAccepted(Qt::PinchGesture));
}

void TestGraphicsViewTouch::shouldIgnoreOtherGestures()
{
    ZoomedEditor fixture;
    QVERIFY(fixture.prepare());
    SignalRecorder recorder(fixture.editor, {QStringLiteral("zoomValueChanged")});
    QNativeGestureEvent turn = touchpadGesture(Qt::RotateNativeGesture, 10);
    QCoreApplication::sendEvent(fixture.editor.view()->viewport(), &turn);
    QPanGesture pan;
    QGestureEvent event({&pan});
    QCoreApplication::sendEvent(fixture.editor.view()->viewport(), &event);
    QCOMPARE(recorder.take(), QString());
    QCOMPARE(fixture.editor.zoomValue(), 400);
}

FISHBONE_TEST(TestGraphicsViewTouch)
#include "tst_graphicsview_touch.moc"
