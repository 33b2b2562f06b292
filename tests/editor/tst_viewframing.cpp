// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QGraphicsScene>
#include <QGraphicsView>
#include <QtTest>

#include <limits>

#include <fishbone/editor/viewframing.h>
#include <tests/program/testprogram.h>

namespace {

/// A view whose viewport has 300 × 200 pixels.
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

/// Zoom value, rotation and the matrix that they make.
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

FISHBONE_TEST(TestViewFraming)
#include "tst_viewframing.moc"
