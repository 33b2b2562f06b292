// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QMouseEvent>
#include <QtTest>

#include <cmath>
#include <limits>

#include <tests/editor/sampletrees.h>
#include <tests/program/testprogram.h>
#include <tests/support/editorfixture.h>
#include <tests/support/signalrecorder.h>

using namespace TestSupport;

class TestFishEditorViewport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldAskForAnotherZoomValue_data();
    void shouldAskForAnotherZoomValue();
    void shouldTellOfAPropertyThatIsWritten();
    void shouldKeepAZoomValueWithinItsType();
    void shouldStoreValuesWithoutApplyingThem();
    void shouldScaleByPowersOfTwo_data();
    void shouldScaleByPowersOfTwo();
    void shouldKeepTheMatrixWhenNoMatrixCanHoldTheScale_data();
    void shouldKeepTheMatrixWhenNoMatrixCanHoldTheScale();
    void shouldReplaceTheMatrixRatherThanCombineIt();
    void shouldRotate_data();
    void shouldRotate();
    void shouldAskToEditADoubleClickedSubject_data();
    void shouldAskToEditADoubleClickedSubject();
};

namespace {
constexpr int lowest = std::numeric_limits<int>::min();
constexpr int highest = std::numeric_limits<int>::max();
} // namespace

void TestFishEditorViewport::shouldAskForAnotherZoomValue_data()
{
    QTest::addColumn<bool>("in");
    QTest::addColumn<int>("level");
    QTest::addColumn<int>("value");

    QTest::newRow("in") << true << 10 << 260;
    QTest::newRow("in by a negative level") << true << -10 << 240;
    QTest::newRow("in by nothing") << true << 0 << 250;
    QTest::newRow("out") << false << 10 << 240;
    QTest::newRow("out by a negative level") << false << -10 << 260;
    QTest::newRow("out below zero") << false << 1000 << -750;
}

void TestFishEditorViewport::shouldAskForAnotherZoomValue()
{
    QFETCH(bool, in);
    QFETCH(int, level);
    QFETCH(int, value);
    FishEditor editor;
    SignalRecorder recorder(editor);

    if (in)
        editor.zoomIn(level);
    else
        editor.zoomOut(level);

    QCOMPARE(editor.zoomValue(), value);
    QCOMPARE(recorder.take(), QStringLiteral("zoomValueChanged(%1)").arg(value));
    QCOMPARE(editor.view()->transform(), QTransform());

    // A host hands the value back, and then the view follows.
    editor.zoomFish(value);
    QCOMPARE(editor.view()->transform().m11(), std::pow(2.0, (value - 250) / 50.0));
    QCOMPARE(recorder.take(), QString());
}

void TestFishEditorViewport::shouldTellOfAPropertyThatIsWritten()
{
    FishEditor editor;
    SignalRecorder recorder(editor);

    QVERIFY(editor.setProperty("zoom", 300));
    QCOMPARE(recorder.take(), QStringLiteral("zoomValueChanged(300)"));
    QCOMPARE(editor.view()->transform().m11(), 2.0);
    QVERIFY(editor.setProperty("rotation", 90));
    QCOMPARE(recorder.take(), QStringLiteral("rotateValueChanged(90)"));
    QVERIFY(editor.setProperty("zoom", 300));
    QVERIFY(editor.setProperty("rotation", 90));
    QCOMPARE(recorder.take(), QString());
    editor.zoomFish(250);
    editor.rotateFish(0);
    QCOMPARE(recorder.take(), QString());
}

void TestFishEditorViewport::shouldKeepAZoomValueWithinItsType()
{
    FishEditor editor;

    editor.setZoomValue(highest - 3);
    editor.zoomIn(6);
    QCOMPARE(editor.zoomValue(), highest);
    editor.setZoomValue(lowest + 3);
    editor.zoomOut(6);
    QCOMPARE(editor.zoomValue(), lowest);
    editor.zoomOut(lowest);
    QCOMPARE(editor.zoomValue(), 0);
}

void TestFishEditorViewport::shouldStoreValuesWithoutApplyingThem()
{
    FishEditor editor;
    SignalRecorder recorder(editor);

    editor.setZoomValue(300);
    editor.setRotateValue(90);
    QCOMPARE(editor.zoomValue(), 300);
    QCOMPARE(editor.rotateValue(), 90);
    QCOMPARE(editor.view()->transform(), QTransform());

    editor.setupMatrix();
    QCOMPARE(editor.view()->transform(), QTransform().scale(2, 2).rotate(90));
    QCOMPARE(recorder.take(), QString());
}

void TestFishEditorViewport::shouldScaleByPowersOfTwo_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<double>("scale");

    QTest::newRow("1:1") << 250 << 1.0;
    QTest::newRow("twice") << 300 << 2.0;
    QTest::newRow("half") << 200 << 0.5;
    QTest::newRow("zero") << 0 << 0.03125;
    QTest::newRow("four times") << 350 << 4.0;
    QTest::newRow("one step") << 251 << std::pow(2.0, 0.02);
    QTest::newRow("negative") << -250 << std::pow(2.0, -10);
    QTest::newRow("very large") << 2250 << std::pow(2.0, 40);
    QTest::newRow("very small") << -1250 << std::pow(2.0, -30);
}

void TestFishEditorViewport::shouldScaleByPowersOfTwo()
{
    QFETCH(int, value);
    QFETCH(double, scale);
    FishEditor editor;
    SignalRecorder recorder(editor);

    editor.zoomFish(value);

    const QTransform matrix = editor.view()->transform();
    QVERIFY(matrix.m11() == scale); // exactly
    QVERIFY(matrix.m22() == scale);
    QCOMPARE(matrix.m12(), 0.0);
    QCOMPARE(matrix.m21(), 0.0);
    QCOMPARE(editor.zoomValue(), value);
    QCOMPARE(recorder.take(), QString());
}

void TestFishEditorViewport::shouldKeepTheMatrixWhenNoMatrixCanHoldTheScale_data()
{
    QTest::addColumn<int>("value");

    QTest::newRow("infinite") << 60000;
    QTest::newRow("zero") << -60000;
    QTest::newRow("square is infinite") << 250 + 50 * 600;
    QTest::newRow("square is zero") << 250 - 50 * 600;
    QTest::newRow("highest") << highest;
    QTest::newRow("lowest") << lowest;
}

void TestFishEditorViewport::shouldKeepTheMatrixWhenNoMatrixCanHoldTheScale()
{
    QFETCH(int, value);
    FishEditor editor;
    editor.zoomFish(300);
    const QTransform matrix = editor.view()->transform();

    editor.zoomFish(value);

    QCOMPARE(editor.zoomValue(), value);
    QCOMPARE(editor.view()->transform(), matrix);
    editor.zoomFish(200);
    QCOMPARE(editor.view()->transform(), QTransform::fromScale(0.5, 0.5));
}

void TestFishEditorViewport::shouldReplaceTheMatrixRatherThanCombineIt()
{
    FishEditor editor;

    editor.zoomFish(300);
    editor.zoomFish(300);
    editor.rotateFish(45);
    editor.rotateFish(45);

    QCOMPARE(editor.view()->transform(), QTransform().scale(2, 2).rotate(45));
}

void TestFishEditorViewport::shouldRotate_data()
{
    QTest::addColumn<int>("angle");

    for (int angle : {0, 30, 90, 180, 270, 360, 725, -45})
        QTest::addRow("%d degrees", angle) << angle;
}

void TestFishEditorViewport::shouldRotate()
{
    QFETCH(int, angle);
    FishEditor editor;
    editor.zoomFish(200);
    SignalRecorder recorder(editor);

    editor.rotateFish(angle);
    QCOMPARE(editor.rotateValue(), angle);
    QCOMPARE(editor.zoomValue(), 200);
    const QTransform matrix = editor.view()->transform();
    const double radians = qDegreesToRadians(double(angle));
    const auto alike = [](double a, double b) { return std::fabs(a - b) < 1e-12; };
    QVERIFY(alike(matrix.m11(), 0.5 * std::cos(radians)));
    QVERIFY(alike(matrix.m12(), 0.5 * std::sin(radians)));
    QVERIFY(alike(matrix.m21(), -0.5 * std::sin(radians)));
    QVERIFY(alike(matrix.m22(), 0.5 * std::cos(radians)));

    editor.rotateReset();
    QCOMPARE(editor.rotateValue(), 0);
    QCOMPARE(editor.view()->transform(), QTransform::fromScale(0.5, 0.5));
    QCOMPARE(recorder.take(), QString());
}

void TestFishEditorViewport::shouldAskToEditADoubleClickedSubject_data()
{
    QTest::addColumn<int>("buttons");
    QTest::addColumn<QString>("selected");
    QTest::addColumn<QString>("expected");

    const QString asks = QStringLiteral("editTaskDetail(Man)");
    const QString man = QStringLiteral("Man");
    QTest::newRow("left") << int(Qt::LeftButton) << man << asks;
    QTest::newRow("right") << int(Qt::RightButton) << man << QString();
    QTest::newRow("both") << int(Qt::LeftButton | Qt::RightButton) << man << QString();
    QTest::newRow("none") << int(Qt::NoButton) << man << QString();
    QTest::newRow("nothing selected") << int(Qt::LeftButton) << QString() << QString();
    QTest::newRow("head") << int(Qt::LeftButton) << QStringLiteral("Effect")
                          << QStringLiteral("editTaskDetail(Effect)");
}

void TestFishEditorViewport::shouldAskToEditADoubleClickedSubject()
{
    QFETCH(int, buttons);
    QFETCH(QString, selected);
    QFETCH(QString, expected);
    EditorFixture fish(SampleTrees::narrow());
    if (!selected.isEmpty())
        fish.select({selected});
    SignalRecorder recorder(fish.editor);
    QMouseEvent event(QEvent::MouseButtonDblClick, QPointF(1, 1), Qt::LeftButton,
                      Qt::MouseButtons(buttons), Qt::NoModifier);

    fish.editor.doubleClicked(&event);

    QCOMPARE(recorder.take(), expected);
}

FISHBONE_TEST(TestFishEditorViewport)
#include "tst_fisheditor_viewport.moc"
