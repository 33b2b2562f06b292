// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/hovercursor.h>
#include <tests/program/testprogram.h>

#include <QGraphicsRectItem>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QtTest>

class TestHoverCursor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldDoNothingWithoutAScene();
    void shouldDoNothingWithoutAView();
    void shouldShowTheHandOverTheTopmostItem();
    void shouldShowTheArrowOverAnItemThatIsCovered();
    void shouldShowTheArrowBesideTheItem();
    void shouldShowTheArrow();
    void shouldUseTheFirstViewOnly();
    void shouldLeaveTheItemsOwnCursorAlone();
};

namespace {
/** A square of 10 units in a scene with a view. */
struct Scenery
{
    QGraphicsScene scene;
    QGraphicsView view{&scene};
    QGraphicsRectItem item{0, 0, 10, 10};
    QGraphicsRectItem cover{5, 0, 10, 10};

    Scenery()
    {
        scene.addItem(&item);
        scene.addItem(&cover);
        view.viewport()->setCursor(Qt::CrossCursor);
    }
    Qt::CursorShape shape() const { return view.viewport()->cursor().shape(); }
};
} // namespace

void TestHoverCursor::shouldDoNothingWithoutAScene()
{
    const QGraphicsRectItem item(0, 0, 10, 10);

    showHoverCursor(item, QPointF(5, 5));
    showArrowCursor(item);

    QVERIFY(!item.hasCursor());
}

void TestHoverCursor::shouldDoNothingWithoutAView()
{
    QGraphicsScene scene;
    const QGraphicsRectItem *const item = scene.addRect(0, 0, 10, 10);

    showHoverCursor(*item, QPointF(5, 5));
    showArrowCursor(*item);

    QVERIFY(!item->hasCursor());
}

void TestHoverCursor::shouldShowTheHandOverTheTopmostItem()
{
    const Scenery scenery;

    showHoverCursor(scenery.item, QPointF(2, 5));

    QCOMPARE(scenery.shape(), Qt::PointingHandCursor);
}

void TestHoverCursor::shouldShowTheArrowOverAnItemThatIsCovered()
{
    const Scenery scenery;

    showHoverCursor(scenery.item, QPointF(7, 5));

    QCOMPARE(scenery.shape(), Qt::ArrowCursor);
}

void TestHoverCursor::shouldShowTheArrowBesideTheItem()
{
    const Scenery scenery;

    showHoverCursor(scenery.item, QPointF(50, 50));

    QCOMPARE(scenery.shape(), Qt::ArrowCursor);
}

void TestHoverCursor::shouldShowTheArrow()
{
    const Scenery scenery;
    showHoverCursor(scenery.item, QPointF(2, 5));

    showArrowCursor(scenery.item);

    QCOMPARE(scenery.shape(), Qt::ArrowCursor);
}

void TestHoverCursor::shouldUseTheFirstViewOnly()
{
    Scenery scenery;
    const QGraphicsView second(&scenery.scene);
    second.viewport()->setCursor(Qt::CrossCursor);

    showHoverCursor(scenery.item, QPointF(2, 5));
    QCOMPARE(scenery.shape(), Qt::PointingHandCursor);
    QCOMPARE(second.viewport()->cursor().shape(), Qt::CrossCursor);

    showArrowCursor(scenery.item);
    QCOMPARE(scenery.shape(), Qt::ArrowCursor);
    QCOMPARE(second.viewport()->cursor().shape(), Qt::CrossCursor);
}

void TestHoverCursor::shouldLeaveTheItemsOwnCursorAlone()
{
    const Scenery scenery;

    showHoverCursor(scenery.item, QPointF(2, 5));
    showArrowCursor(scenery.item);

    QVERIFY(!scenery.item.hasCursor());
}

FISHBONE_TEST(TestHoverCursor)
#include "tst_hovercursor.moc"
