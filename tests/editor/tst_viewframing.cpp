// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QGraphicsScene>
#include <QGraphicsView>
#include <QtTest>

#include <limits>

#include <fishbone/editor/viewframing.h>
#include <tests/program/testprogram.h>

namespace {

/** A view whose viewport has 300 × 200 pixels. */
struct Stage
{
    Stage()
    {
        view.setFrameShape(QFrame::NoFrame);
        view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        view.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        view.resize(300, 200);
        view.viewport()->resize(300, 200);
    }

    QGraphicsScene scene;
    QGraphicsView view{&scene};
    ViewFraming framing{view};
};

} // namespace

/** Zoom value, rotation and the matrix that they make. */
class TestViewFraming : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldDoubleTheScaleEachFiftySteps();
    void shouldTurn();
    void shouldLeaveTheViewWhenNoMatrixCanBe();
    void shouldCountUpToWhatANumberHolds();
    void shouldKnowTheScaleThatFits();
    void shouldKnowNoScaleOfNothing();
    void shouldGiveTheZoomValueOfAScale();
    void shouldShowARectangleAtItsScale();
    void shouldTellEachStepOfTheZoom();
    void shouldTellNewValuesWhenAsked();
    void shouldTellBeforeItFits();
    void shouldShowTheOriginUnscaled();
    void shouldDoNothingMoreWhenAListenerEndsIt();
};

void TestViewFraming::shouldDoubleTheScaleEachFiftySteps()
{
    Stage stage;
    QCOMPARE(stage.framing.zoom(), 250);
    for (const auto &[zoom, scale] : {std::pair(250, 1.0), {300, 2.0}, {200, 0.5}, {0, 1 / 32.0}}) {
        stage.framing.setZoom(zoom);
        stage.framing.apply();
        QCOMPARE(stage.view.transform(), QTransform::fromScale(scale, scale));
    }
}

void TestViewFraming::shouldTurn()
{
    Stage stage;
    stage.framing.setRotation(90);
    QCOMPARE(stage.view.transform(), QTransform()); // until it is applied
    stage.framing.apply();
    QCOMPARE(stage.view.transform().map(QPointF(1, 0)), QPointF(0, 1));
}

void TestViewFraming::shouldLeaveTheViewWhenNoMatrixCanBe()
{
    Stage stage;
    for (const int zoom : {100000, -100000, std::numeric_limits<int>::max()}) {
        stage.framing.setZoom(zoom);
        stage.framing.apply();
        QCOMPARE(stage.framing.zoom(), zoom);
        QCOMPARE(stage.view.transform(), QTransform());
    }
}

void TestViewFraming::shouldCountUpToWhatANumberHolds()
{
    Stage stage;
    stage.framing.addZoom(10);
    QCOMPARE(stage.framing.zoom(), 260);
    stage.framing.addZoom(std::numeric_limits<int>::max());
    QCOMPARE(stage.framing.zoom(), std::numeric_limits<int>::max());
    stage.framing.addZoom(-4LL * std::numeric_limits<int>::max());
    QCOMPARE(stage.framing.zoom(), std::numeric_limits<int>::min());
}

void TestViewFraming::shouldKnowTheScaleThatFits()
{
    const Stage stage;
    QCOMPARE(stage.framing.scaleFor(QRectF(0, 0, 100, 10)), 2.0); // 300 less the margins
    QCOMPARE(stage.framing.scaleFor(QRectF(0, 0, 10, 200)), 0.5);
}

void TestViewFraming::shouldKnowNoScaleOfNothing()
{
    Stage stage;
    QCOMPARE(stage.framing.scaleFor(QRectF()), 0.0);
    QCOMPARE(stage.framing.scaleFor(QRectF(0, 0, 1e-320, 1e-320)), 0.0);
    stage.view.viewport()->resize(100, 200);
    QCOMPARE(stage.framing.scaleFor(QRectF(0, 0, 100, 100)), 0.0);
}

void TestViewFraming::shouldGiveTheZoomValueOfAScale()
{
    QCOMPARE(ViewFraming::zoomFor(0.5), 200);
    QCOMPARE(ViewFraming::zoomFor(0.7), 224); // 224.27
    QCOMPARE(ViewFraming::zoomFor(2), 300);
}

void TestViewFraming::shouldShowARectangleAtItsScale()
{
    Stage stage;
    stage.framing.setRotation(30);
    stage.framing.apply();
    stage.framing.show(QRectF(0, 0, 100, 50), 2);
    QCOMPARE(stage.view.transform(), QTransform::fromScale(2, 2));
    QCOMPARE(stage.framing.rotation(), 30); // for the next matrix
}

void TestViewFraming::shouldTellEachStepOfTheZoom()
{
    Stage stage;
    const QSignalSpy spy(&stage.framing, &ViewFraming::zoomChanged);
    stage.framing.stepZoom(50);
    stage.framing.stepZoom(0);
    QCOMPARE(spy.count(), 2);
    QCOMPARE(spy.at(0).at(0).toInt(), 300);
    QCOMPARE(stage.view.transform(), QTransform()); // until it is applied
}

void TestViewFraming::shouldTellNewValuesWhenAsked()
{
    Stage stage;
    const QSignalSpy zooms(&stage.framing, &ViewFraming::zoomChanged);
    const QSignalSpy turns(&stage.framing, &ViewFraming::rotationChanged);
    stage.framing.zoomTo(300, false);
    stage.framing.rotateTo(90, false);
    QCOMPARE(zooms.count() + turns.count(), 0);
    QCOMPARE(stage.view.transform().map(QPointF(1, 0)), QPointF(0, 2));
    stage.framing.zoomTo(300, true);
    stage.framing.rotateTo(90, true);
    QCOMPARE(zooms.count() + turns.count(), 0);
    stage.framing.zoomTo(250, true);
    stage.framing.rotateTo(0, true);
    QCOMPARE(zooms.value(0).value(0).toInt(), 250);
    QCOMPARE(turns.count(), 1);
    QCOMPARE(stage.view.transform(), QTransform());
}

void TestViewFraming::shouldTellBeforeItFits()
{
    Stage stage;
    stage.framing.setRotation(30);
    QStringList told;
    connect(&stage.framing, &ViewFraming::zoomChanged, &stage.view, [&](int value) {
        told.append(QStringLiteral("zoom %1 %2").arg(value).arg(stage.view.transform().m11()));
    });
    connect(&stage.framing, &ViewFraming::rotationChanged, &stage.view, [&](int degrees) {
        told.append(QStringLiteral("turn %1 %2").arg(degrees).arg(stage.view.transform().m11()));
    });
    stage.framing.fit(QRectF(0, 0, 100, 10));
    QCOMPARE(told, QStringList({QStringLiteral("zoom 300 1"), QStringLiteral("turn 0 1")}));
    QCOMPARE(stage.view.transform(), QTransform::fromScale(2, 2));
    stage.framing.fit(QRectF());
    QCOMPARE(told.count(), 2);
}

void TestViewFraming::shouldShowTheOriginUnscaled()
{
    Stage stage;
    stage.scene.setSceneRect(-5000, -5000, 10000, 10000);
    stage.framing.zoomTo(400, false);
    stage.view.centerOn(4000, 4000);
    stage.framing.showUnscaled();
    QCOMPARE(stage.view.transform(), QTransform());
    QVERIFY(stage.view.viewport()->rect().contains(stage.view.mapFromScene(QPointF())));
}

void TestViewFraming::shouldDoNothingMoreWhenAListenerEndsIt()
{
    QGraphicsScene scene;
    QGraphicsView view(&scene);
    view.resize(300, 300);
    for (const bool unscaled : {true, false}) {
        auto framing = std::make_unique<ViewFraming>(view);
        framing->zoomTo(300, false);
        connect(framing.get(), &ViewFraming::zoomChanged, &view, [&framing] { framing.reset(); });
        if (unscaled)
            framing->showUnscaled();
        else
            framing->fit(QRectF(0, 0, 1000, 1000));
        QVERIFY(!framing);
        QCOMPARE(view.transform(), QTransform::fromScale(2, 2));
    }
}

FISHBONE_TEST(TestViewFraming)
#include "tst_viewframing.moc"
