// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QtTest>

#include <fishbone/items/textitem.h>
#include <tests/editor/movingstage.h>
#include <tests/program/testprogram.h>

#include <limits>

using namespace TestSupport;

/** Spears that are moved with the left button held. */
class TestGraphicsViewMoving : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldMarkTheSpearUnderTheMouse();
    void shouldMarkWithinTenPixels_data();
    void shouldMarkWithinTenPixels();
    void shouldMarkNothingBeyondAllNumbers_data();
    void shouldMarkNothingBeyondAllNumbers();
    void shouldMarkTheBottomMostSpear();
    void shouldMarkNoSelectedSpear();
    void shouldMarkNothingUnlessPressed();
    void shouldFollowTheMouseAlongOneTarget();
    void shouldReportTheTargetOfAMove();
    void shouldReportAMoveIntoItselfWithoutTarget();
    void shouldReportTheLastRowWithoutATarget();
    void shouldClearAStaleTargetAtThePress();
    void shouldForgetATargetThatDies();
    void shouldForgetMovedSpearsThatDie();
    void shouldForgetEverythingThatIsRebuilt();
    void shouldCarryOutAMoveInTheEditor();
    void shouldPutEverythingBackWithoutATarget();
    void shouldAbandonAMove();
};

void TestGraphicsViewMoving::shouldMarkTheSpearUnderTheMouse()
{
    MovingStage stage;
    stage.mouse.press(stage.tip("Method"));
    QCOMPARE(stage.linked(), QString());

    stage.mouse.move(stage.tip("Matter"));
    QCOMPARE(stage.linked(), QStringLiteral("Matter 0"));
    stage.mouse.move(stage.tip("Wear"));
    QCOMPARE(stage.linked(), QStringLiteral("Wear 0"));
    stage.mouse.move(stage.nowhere());
    QCOMPARE(stage.linked(), QString());
}

void TestGraphicsViewMoving::shouldMarkWithinTenPixels_data()
{
    QTest::addColumn<QPoint>("offset");
    QTest::addColumn<bool>("isMarked");

    // The pixels from x - 5 to x + 4, against a line of width 1 around x = 100.
    QTest::newRow("far to the left") << QPoint(-20, 0) << false;
    QTest::newRow("six to the left") << QPoint(-6, 0) << false;
    QTest::newRow("five to the left") << QPoint(-5, 0) << true;
    QTest::newRow("on the line") << QPoint(0, 0) << true;
    QTest::newRow("five to the right") << QPoint(5, 0) << true;
    QTest::newRow("six to the right") << QPoint(6, 0) << false;
    QTest::newRow("five below its end") << QPoint(0, 155) << true;
    QTest::newRow("six below its end") << QPoint(0, 156) << false;
}

void TestGraphicsViewMoving::shouldMarkWithinTenPixels()
{
    QFETCH(QPoint, offset);
    QFETCH(bool, isMarked);
    MovingStage stage;
    stage.editor.zoomFish(250);
    // A spear alone, its line vertical through x = 100 of the viewport.
    auto *const target = new SpearItem(QStringLiteral("x"), 0, 20);
    target->setParentItem(stage.editor.headSpear());
    const QPointF at = stage.view.mapToScene(100, 100);
    target->setLine(QLineF(at, at + QPointF(0, 200)));
    target->textItem()->setPos(at + QPointF(50, 300));
    stage.mouse.press(stage.tip("Method"));

    stage.mouse.move(QPoint(100, 150) + offset);

    QCOMPARE(target->isLinked(), isMarked);
    QCOMPARE(stage.view.linkedSpear() == target, isMarked);
}

void TestGraphicsViewMoving::shouldMarkNothingBeyondAllNumbers_data()
{
    QTest::addColumn<QPoint>("pos");

    constexpr int least = std::numeric_limits<int>::min();
    constexpr int most = std::numeric_limits<int>::max();
    QTest::newRow("upper left") << QPoint(least + 1,
                                          least + 1); // the least one no point is rounded to
    QTest::newRow("lower right") << QPoint(most, most);
}

void TestGraphicsViewMoving::shouldMarkNothingBeyondAllNumbers()
{
    QFETCH(QPoint, pos);
    MovingStage stage;
    stage.mouse.press(stage.tip("Method"));
    stage.mouse.move(stage.tip("Matter"));

    stage.mouse.move(pos);

    QCOMPARE(stage.linked(), QString());
    QVERIFY(!stage.view.linkedSpear());
}

void TestGraphicsViewMoving::shouldMarkTheBottomMostSpear()
{
    MovingStage stage;
    stage.mouse.press(stage.tip("Method"));

    // Where a main bone meets the backbone both are under the mouse.
    stage.mouse.move(startOf(stage.view, stage.spear("Man")));

    QCOMPARE(stage.view.linkedSpear(), stage.spear("Effect"));
}

void TestGraphicsViewMoving::shouldMarkNoSelectedSpear()
{
    MovingStage stage;
    stage.select({QStringLiteral("Method"), QStringLiteral("Matter")});
    // Pressed where nothing moves along, so that the other one stays where it is.
    stage.mouse.press(stage.nowhere());
    QCOMPARE(stage.faded(), QStringLiteral("Method Matter"));

    stage.mouse.move(stage.tip("Matter"));
    QCOMPARE(stage.linked(), QString());
    stage.mouse.move(stage.tip("Wear"));
    QCOMPARE(stage.linked(), QStringLiteral("Wear 0"));
}

void TestGraphicsViewMoving::shouldMarkNothingUnlessPressed()
{
    MovingStage stage;
    stage.select({QStringLiteral("Method")});

    stage.mouse.move(stage.tip("Matter"));
    QCOMPARE(stage.linked(), QString());
    stage.mouse.press(stage.tip("Method"), Qt::RightButton);
    stage.mouse.move(stage.tip("Matter"));
    QCOMPARE(stage.linked(), QString());
    stage.mouse.release(stage.tip("Method"), Qt::RightButton);
    stage.mouse.click(stage.tip("Method"));
    stage.mouse.move(stage.tip("Matter"));
    QCOMPARE(stage.linked(), QString());
}

void TestGraphicsViewMoving::shouldFollowTheMouseAlongOneTarget()
{
    MovingStage stage;
    stage.mouse.press(stage.tip("Method"));
    const SpearItem *const man = stage.spear("Man");
    const auto at = [&stage, man](double part) {
        return stage.view.mapFromScene(man->mapToScene(man->line().pointAt(part)));
    };
    const QList<SpearItem *> children = man->childSpears();
    const auto partOf = [man](const SpearItem *child) {
        return child->offset() / man->line().length();
    };

    stage.mouse.move(at(partOf(children.at(0)) / 2));
    QCOMPARE(stage.linked(), QStringLiteral("Man 0"));
    stage.mouse.move(at((partOf(children.at(0)) + partOf(children.at(1))) / 2));
    QCOMPARE(stage.linked(), QStringLiteral("Man 1"));
    stage.mouse.move(at((partOf(children.at(1)) + partOf(children.at(2))) / 2));
    QCOMPARE(stage.linked(), QStringLiteral("Man 2"));
    stage.mouse.move(at(1));
    QCOMPARE(stage.linked(), QStringLiteral("Man 3"));
    stage.mouse.release(at(1));
    QCOMPARE(stage.takeMoves(), QStringLiteral("Method to Man row 3"));
}

void TestGraphicsViewMoving::shouldReportTheTargetOfAMove()
{
    MovingStage stage;
    stage.mouse.press(stage.tip("Method"));
    stage.mouse.move(stage.tip("Matter"));

    stage.mouse.release(stage.tip("Matter"));

    QCOMPARE(stage.takeMoves(), QStringLiteral("Method to Matter row 0"));
    QCOMPARE(stage.linked(), QString());
    QCOMPARE(stage.faded(), QString());
    stage.mouse.move(stage.tip("Matter"));
    QCOMPARE(stage.linked(), QString());
}

void TestGraphicsViewMoving::shouldReportAMoveIntoItselfWithoutTarget()
{
    MovingStage stage;
    stage.select({QStringLiteral("Man")});
    stage.mouse.press(stage.nowhere());
    stage.mouse.move(stage.tip("Cost"));
    QCOMPARE(stage.linked(), QStringLiteral("Cost 0"));

    stage.mouse.release(stage.tip("Cost"));

    QCOMPARE(stage.takeMoves(), QStringLiteral("Man to nothing row 0"));
    QCOMPARE(stage.linked(), QString());
}

void TestGraphicsViewMoving::shouldReportTheLastRowWithoutATarget()
{
    MovingStage stage;
    stage.mouse.press(stage.tip("Method"));
    stage.mouse.move(stage.tip("Man"));
    stage.mouse.move(stage.nowhere());
    stage.mouse.release(stage.nowhere());
    QCOMPARE(stage.takeMoves(), QStringLiteral("Method to nothing row 3"));

    stage.mouse.click(stage.tip("Matter"));
    QCOMPARE(stage.takeMoves(), QStringLiteral("Matter to nothing row 3"));
}

void TestGraphicsViewMoving::shouldClearAStaleTargetAtThePress()
{
    MovingStage stage;
    stage.mouse.press(stage.tip("Method"));
    stage.mouse.move(stage.tip("Man"));
    QCOMPARE(stage.linked(), QStringLiteral("Man 3"));

    // The release got lost.
    stage.mouse.press(stage.nowhere());

    QCOMPARE(stage.linked(), QString());
    QVERIFY(!stage.view.linkedSpear());
    stage.mouse.release(stage.nowhere());
    QCOMPARE(stage.takeMoves(), QStringLiteral("Method to nothing row 0"));
}

void TestGraphicsViewMoving::shouldForgetATargetThatDies()
{
    MovingStage stage;
    stage.mouse.press(stage.tip("Method"));
    const QPoint tip = stage.tip("Matter");
    stage.mouse.move(tip);

    delete stage.spear("Matter");
    QVERIFY(!stage.view.linkedSpear());
    QCOMPARE(stage.view.insertRow(tip, nullptr), 0);
    stage.mouse.release(tip);

    QCOMPARE(stage.takeMoves(), QStringLiteral("Method to nothing row 0"));
}

void TestGraphicsViewMoving::shouldForgetMovedSpearsThatDie()
{
    MovingStage stage;
    stage.select({QStringLiteral("Method"), QStringLiteral("Wear")});
    stage.mouse.press(stage.tip("Method"));
    delete stage.spear("Wear");
    stage.mouse.move(stage.tip("Matter"));
    stage.mouse.release(stage.tip("Matter"));
    QCOMPARE(stage.takeMoves(), QStringLiteral("Method to Matter row 0"));

    MovingStage another;
    another.mouse.press(another.tip("Method"));
    another.mouse.move(another.tip("Matter"));
    delete another.spear("Method");
    another.mouse.release(another.tip("Matter"));
    QCOMPARE(another.takeMoves(), QString());
    QCOMPARE(another.linked(), QString());
}

void TestGraphicsViewMoving::shouldForgetEverythingThatIsRebuilt()
{
    MovingStage stage;
    const QPoint tip = stage.tip("Matter");
    stage.mouse.press(stage.tip("Method"));
    stage.mouse.move(tip);

    stage.editor.updateFish(true);
    QCOMPARE(stage.linked(), QString());
    QCOMPARE(stage.faded(), QString());
    stage.mouse.move(tip);
    stage.mouse.release(tip);

    QCOMPARE(stage.takeMoves(), QString());
    QCOMPARE(stage.linked(), QString());
}

void TestGraphicsViewMoving::shouldCarryOutAMoveInTheEditor()
{
    MovingStage stage(true);
    stage.mouse.press(stage.tip("Method"));
    stage.mouse.move(stage.tip("Matter"));
    stage.mouse.release(stage.tip("Matter"));

    QCOMPARE(treeToText(*stage.subject(QStringLiteral("Effect"))),
             QStringLiteral("Effect[Man[Train,Cost,Time],Machine[Wear],Matter[Method]]"));
    QCOMPARE(stage.spear("Method")->parentItem(), stage.spear("Matter"));
    QVERIFY(stage.editor.canUndo());
    QVERIFY(stage.info->modified());
    stage.editor.undo();
    QCOMPARE(treeToText(*stage.subject(QStringLiteral("Effect"))), MovingStage::document());
}

void TestGraphicsViewMoving::shouldPutEverythingBackWithoutATarget()
{
    MovingStage stage(true);
    const QPoint tip = stage.tip("Method");
    stage.mouse.press(tip);
    stage.mouse.move(tip + QPoint(30, 30));
    QVERIFY(stage.spear("Method")->pos() != QPointF(0, 0));
    stage.mouse.move(stage.nowhere());

    stage.mouse.release(stage.nowhere());

    QCOMPARE(stage.spear("Method")->pos(), QPointF(0, 0));
    QVERIFY(!stage.editor.canUndo());
    QVERIFY(!stage.info->modified());
}

void TestGraphicsViewMoving::shouldAbandonAMove()
{
    MovingStage stage(true);
    stage.view.abandonMove(); // none
    QCOMPARE(stage.moves, QStringList());
    const QPointF place = stage.spear("Method")->pos();
    stage.mouse.press(stage.tip("Method"));
    stage.mouse.move(stage.tip("Matter"));
    QCOMPARE(stage.faded(), QStringLiteral("Method"));

    stage.view.abandonMove();

    QCOMPARE(stage.faded(), QString());
    QVERIFY(!stage.view.linkedSpear());
    QCOMPARE(stage.spear("Method")->pos(), place);
    QCOMPARE(stage.moves.size(), 1);
    QVERIFY(stage.moves.constFirst().startsWith(QLatin1String("Method to nothing")));
    QVERIFY(!stage.editor.canUndo());
    stage.mouse.release(stage.tip("Matter"));
    QCOMPARE(stage.moves.size(), 1);
}

FISHBONE_TEST(TestGraphicsViewMoving)
#include "tst_graphicsview_moving.moc"
