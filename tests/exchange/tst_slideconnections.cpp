// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/exchange/slideshapes.h>
#include <tests/program/testprogram.h>

#include <fishbone/exchange/slideconnections.h>

#include <QtTest>

using namespace SlideShapes;

/** What the lines of a slide hold on to. */
class TestSlideConnections : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldAttachAnEndToTheShapeItTouches_data();
    void shouldAttachAnEndToTheShapeItTouches();
    void shouldGiveEachEndItsOwnPlaceAtAShape();
    void shouldAttachToTheTopmostShape();
    void shouldLeaveALineWithinAShapeAlone();
    void shouldMakeAJointWhereAnEndMeetsALine();
    void shouldShareTheJointOfLinesThatMeet();
    void shouldNotAttachToTitles();
    void shouldFindShapesFarFromTheOrigin();
};

void TestSlideConnections::shouldAttachAnEndToTheShapeItTouches_data()
{
    QTest::addColumn<QPointF>("end");
    QTest::addColumn<bool>("isAttached");
    QTest::newRow("within") << QPointF(110, 105) << true;
    QTest::newRow("on the edge") << QPointF(100, 105) << true;
    QTest::newRow("within reach") << QPointF(99.2, 105) << true;
    QTest::newRow("beside") << QPointF(98.5, 105) << false;
    QTest::newRow("at a corner") << QPointF(99.5, 99.5) << true;
    QTest::newRow("behind") << QPointF(121.5, 105) << false;
}

void TestSlideConnections::shouldAttachAnEndToTheShapeItTouches()
{
    QFETCH(QPointF, end);
    QFETCH(bool, isAttached);
    const std::vector<SlideShape> shapes{line(QPointF(0, 0), end), box(QRectF(100, 100, 20, 10))};
    const SlideConnections connections(shapes);
    QVERIFY(!connections.start(0).isAttached());
    QCOMPARE(connections.end(0).isAttached(), isAttached);
    QCOMPARE(connections.end(0).shape, isAttached ? 1 : -1);
    const std::vector<QPointF> sites = connections.sites(1);
    QCOMPARE(sites.size(), size_t(isAttached ? 5 : 0));
    QCOMPARE(connections.end(0).site, isAttached ? 4 : 0);
    if (isAttached)
        QCOMPARE(sites.back(), end);
    QVERIFY(connections.joints().empty());
}

void TestSlideConnections::shouldGiveEachEndItsOwnPlaceAtAShape()
{
    const std::vector<SlideShape> shapes{box(QRectF(0, 0, 300, 4)),
                                         line(QPointF(50, 2), QPointF(20, 90)),
                                         line(QPointF(220, 90), QPointF(250, 2))};
    const SlideConnections connections(shapes);
    QCOMPARE(connections.start(1).shape, 0);
    QCOMPARE(connections.start(1).site, 4);
    QCOMPARE(connections.end(2).shape, 0);
    QCOMPARE(connections.end(2).site, 5);
    QCOMPARE(connections.sites(0),
             (std::vector<QPointF>{QPointF(150, 0), QPointF(0, 2), QPointF(150, 4), QPointF(300, 2),
                                   QPointF(50, 2), QPointF(250, 2)}));
}

void TestSlideConnections::shouldAttachToTheTopmostShape()
{
    const std::vector<SlideShape> shapes{box(QRectF(-20, -20, 40, 40)), box(QRectF(-5, -5, 10, 10)),
                                         line(QPointF(0, 0), QPointF(90, 0))};
    QCOMPARE(SlideConnections(shapes).start(2).shape, 1);
}

/** A stroke of an icon is drawn on it, and a page lies below all bones. */
void TestSlideConnections::shouldLeaveALineWithinAShapeAlone()
{
    const std::vector<SlideShape> shapes{box(QRectF(0, 0, 100, 100)),
                                         line(QPointF(10, 10), QPointF(90, 10))};
    const SlideConnections connections(shapes);
    QVERIFY(!connections.start(1).isAttached());
    QVERIFY(!connections.end(1).isAttached());
    QVERIFY(connections.sites(0).empty());
}

void TestSlideConnections::shouldMakeAJointWhereAnEndMeetsALine()
{
    const std::vector<SlideShape> shapes{line(QPointF(0, 0), QPointF(300, 300)),
                                         line(QPointF(200, 200.5), QPointF(250, 20))};
    const SlideConnections connections(shapes);
    QVERIFY(!connections.start(0).isAttached());
    QVERIFY(!connections.end(0).isAttached());
    QVERIFY(!connections.end(1).isAttached());
    QCOMPARE(connections.start(1).shape, 2); // the first behind the shapes
    QCOMPARE(connections.start(1).site, 4);  // the middle
    QCOMPARE(connections.joints(), std::vector<QPointF>{QPointF(200, 200.5)});
}

void TestSlideConnections::shouldShareTheJointOfLinesThatMeet()
{
    const QPointF corner(40, 30);
    const std::vector<SlideShape> shapes{line(QPointF(0, 0), corner), line(corner, QPointF(80, 0)),
                                         line(QPointF(40, 90), corner)};
    const SlideConnections connections(shapes);
    QCOMPARE(connections.joints().size(), size_t(1));
    QCOMPARE(connections.end(0).shape, 3);
    QCOMPARE(connections.start(1).shape, 3);
    QCOMPARE(connections.end(2).shape, 3);
}

/** Their places are in the middle of their sides, where no line ends. */
void TestSlideConnections::shouldNotAttachToTitles()
{
    const std::vector<SlideShape> shapes{title(QRectF(90, -10, 60, 20)),
                                         line(QPointF(0, 0), QPointF(100, 0))};
    QVERIFY(!SlideConnections(shapes).end(1).isAttached());
}

void TestSlideConnections::shouldFindShapesFarFromTheOrigin()
{
    const std::vector<SlideShape> shapes{box(QRectF(-9000, -7000, 8000, 3)),
                                         line(QPointF(-4321, -6998), QPointF(-4000, -6000)),
                                         line(QPointF(-4160, -6499.5), QPointF(-4100, -6499.5))};
    const SlideConnections connections(shapes);
    QCOMPARE(connections.start(1).shape, 0);
    QCOMPARE(connections.start(2).shape, 3);
}

FISHBONE_GUILESS_TEST(TestSlideConnections)

#include "tst_slideconnections.moc"
