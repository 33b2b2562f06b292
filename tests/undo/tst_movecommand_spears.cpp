// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QtTest>

#include <fishbone/drawing/spearbuilder.h>
#include <fishbone/undo/structuralcommands.h>
#include <tests/program/testprogram.h>
#include <tests/support/commandfixture.h>
#include <tests/support/drawingtext.h>

using namespace TestSupport;

/** What EditMove does to the drawing. */
class TestMoveCommandSpears : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldMoveTheSpearAlong();
    void shouldKeepTheStackingOfASubjectThatStays();
    void shouldOrderTheSpearsOfManySubjects_data();
    void shouldOrderTheSpearsOfManySubjects();
    void shouldKeepSelectionAndVisibility();
    void shouldMakeAllSpearsOfABoneThatWasNeverExpanded();
    void shouldMakeTheSpearOfASubjectThatHadNone();
    void shouldDeleteTheSpearOfASubjectThatLeavesTheDrawing();
    void shouldDeleteTheSpearOfASubjectThatBecomesAHead();
    void shouldMoveASpearIntoAnotherScene();
    void shouldLeaveTheDrawingOfAHeadWithoutItsSubjects();
    void shouldDeleteASpearWhoseSubjectWasDrawnAnewMeanwhile();
    void shouldKeepTheDrawingOfASubjectThatMovesOutOfSight();
    void shouldTakeInASpearWithoutParent();
    void shouldMoveNoSpearWhenTheModelRefuses();
};

void TestMoveCommandSpears::shouldMoveTheSpearAlong()
{
    CommandFixture f(QStringLiteral("H[A[a],B[b]]"));
    f.draw();
    SpearItem *const spear = f.spear("A");
    f.stack->push(new EditMove(f.model.get(), f.index("B"), 0, f.snapshot({QStringLiteral("A")})));
    QCOMPARE(f.spear("A"), spear);
    QCOMPARE(spear->parentItem(), f.spear("B"));
    QCOMPARE(f.spear("B")->childSpears(), (QList<SpearItem *>{spear, f.spear("b")}));
    f.stack->undo();
    QCOMPARE(f.spear("A"), spear);
    QCOMPARE(f.spear("H")->childSpears(), (QList<SpearItem *>{spear, f.spear("B")}));
}

void TestMoveCommandSpears::shouldKeepTheStackingOfASubjectThatStays()
{
    for (int row : {1, 2}) {
        CommandFixture f(QStringLiteral("H[A,B,C]"));
        f.draw();
        const QList<SpearItem *> before = f.spear("H")->childSpears();
        f.stack->push(
            new EditMove(f.model.get(), f.index("H"), row, f.snapshot({QStringLiteral("B")})));
        QCOMPARE(f.spear("H")->childSpears(), before);
    }
}

void TestMoveCommandSpears::shouldOrderTheSpearsOfManySubjects_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QByteArray>("target");
    for (int count : {7, 8, 9, 20}) {
        for (const char *target : {"H", "T"})
            QTest::addRow("%d below %s", count, target) << count << QByteArray(target);
    }
}

void TestMoveCommandSpears::shouldOrderTheSpearsOfManySubjects()
{
    QFETCH(int, count);
    QFETCH(QByteArray, target);
    QStringList bones;
    QStringList moved;
    for (int i = 0; i < 40; ++i) {
        bones.append(QString::number(i));
        if (i % 2 == 1 && moved.size() < count)
            moved.append(bones.last());
    }
    CommandFixture f(QStringLiteral("H[%1,T[x,y,z]]").arg(bones.join(QLatin1Char(','))));
    f.draw();
    for (int row : {0, 2, 3})
        QCOMPARE(
            f.roundTripFault(new EditMove(f.model.get(), f.index(target), row, f.snapshot(moved))),
            QString());
}

void TestMoveCommandSpears::shouldKeepSelectionAndVisibility()
{
    for (const char *target : {"H", "T"}) {
        CommandFixture f(QStringLiteral("H[A[a],B,C,T[x]]"));
        f.draw();
        f.spear("A")->setExpand(true);
        f.spear("T")->setExpand(true);
        f.spear("A")->setSelected(true);
        f.spear("a")->setSelected(true);
        const int row = f.node(target)->childCount();
        const QJsonObject snapshot = f.snapshot({QStringLiteral("A"), QStringLiteral("C")});
        f.stack->push(new EditMove(f.model.get(), f.index(target), row, snapshot));
        for (const char *title : {"A", "a"}) {
            QVERIFY(f.spear(title)->isSelected());
            QVERIFY(f.spear(title)->isVisible());
        }
        f.stack->undo();
        for (const char *title : {"A", "a"}) {
            QVERIFY(f.spear(title)->isSelected());
            QVERIFY(f.spear(title)->isVisible());
        }
        f.spear("A")->setExpand(false);
        f.stack->redo();
        QVERIFY(!f.spear("a")->isVisible());
        QVERIFY(f.spear("A")->isVisible());
    }
}

void TestMoveCommandSpears::shouldMakeAllSpearsOfABoneThatWasNeverExpanded()
{
    CommandFixture f(QStringLiteral("H[A,B[b[x],c]]"));
    QGraphicsScene scene;
    scene.addItem(SpearBuilder(*f.model).buildHead(f.index("H")));
    f.stack->push(new EditMove(f.model.get(), f.index("B"), 1, f.snapshot({QStringLiteral("A")})));
    QCOMPARE(spearFault(*f.model), QString());
    QCOMPARE(f.spear("B")->childSpears(),
             (QList<SpearItem *>{f.spear("b"), f.spear("A"), f.spear("c")}));
    QCOMPARE(f.spear("x")->parentItem(), f.spear("b"));
    f.stack->undo();
    QCOMPARE(spearFault(*f.model), QString());
}

void TestMoveCommandSpears::shouldMakeTheSpearOfASubjectThatHadNone()
{
    CommandFixture f(QStringLiteral("H[A[a[x]],B]"));
    QGraphicsScene scene;
    scene.addItem(SpearBuilder(*f.model).buildHead(f.index("H")));
    QVERIFY(!f.spear("a"));
    f.stack->push(new EditMove(f.model.get(), f.index("H"), 0, f.snapshot({QStringLiteral("a")})));
    QCOMPARE(spearFault(*f.model), QString());
    QCOMPARE(f.spear("a")->parentItem(), f.spear("H"));
    QCOMPARE(f.spear("x")->parentItem(), f.spear("a"));
}

void TestMoveCommandSpears::shouldDeleteTheSpearOfASubjectThatLeavesTheDrawing()
{
    CommandFixture f(QStringLiteral("H[A[a],B];G[C]"));
    QGraphicsScene scene;
    scene.addItem(SpearBuilder(*f.model).buildHead(f.index("H")));
    SpearBuilder(*f.model).buildDescendants(f.index("H"));
    f.stack->push(new EditMove(f.model.get(), f.index("C"), 0, f.snapshot({QStringLiteral("A")})));
    QVERIFY(!f.spear("A"));
    QVERIFY(!f.spear("a"));
    QCOMPARE(f.spear("H")->childSpears(), QList<SpearItem *>{f.spear("B")});
    f.stack->undo();
    QCOMPARE(spearFault(*f.model), QString());
    QVERIFY(f.spear("a"));
}

void TestMoveCommandSpears::shouldDeleteTheSpearOfASubjectThatBecomesAHead()
{
    CommandFixture f(QStringLiteral("H[A[a],B]"));
    f.draw();
    f.stack->push(new EditMove(f.model.get(), QModelIndex(), 0, f.snapshot({QStringLiteral("A")})));
    QVERIFY(!f.spear("A"));
    QVERIFY(!f.spear("a"));
    QCOMPARE(f.spear("H")->childSpears(), QList<SpearItem *>{f.spear("B")});
}

void TestMoveCommandSpears::shouldMoveASpearIntoAnotherScene()
{
    CommandFixture f(QStringLiteral("H[A[a],B];G[C]"));
    f.draw();
    QGraphicsScene *const first = f.spear("H")->scene();
    QGraphicsScene *const second = f.spear("G")->scene();
    QVERIFY(first != second);
    f.stack->push(new EditMove(f.model.get(), f.index("C"), 0, f.snapshot({QStringLiteral("A")})));
    QCOMPARE(f.spear("A")->scene(), second);
    QCOMPARE(f.spear("a")->scene(), second);
    f.stack->undo();
    QCOMPARE(f.spear("A")->scene(), first);
    QCOMPARE(f.spear("a")->scene(), first);
}

void TestMoveCommandSpears::shouldLeaveTheDrawingOfAHeadWithoutItsSubjects()
{
    CommandFixture f(QStringLiteral("H[A[a]];G[C]"));
    f.draw();
    SpearItem *const former = f.spear("H");
    f.stack->push(new EditMove(f.model.get(), f.index("C"), 0, f.snapshot({QStringLiteral("H")})));
    QCOMPARE(spearFault(*f.model), QString());
    QVERIFY(f.spear("H") != former);
    QCOMPARE(f.spear("H")->parentItem(), f.spear("C"));
    QCOMPARE(f.spear("a")->scene(), f.spear("G")->scene());
    QVERIFY(!former->treeItem());
    QCOMPARE(former->childSpears().size(), 1);
    QVERIFY(!former->childSpear(0)->treeItem());
    f.stack->undo();
    QVERIFY(!f.spear("H"));
    QVERIFY(!f.spear("a"));
}

void TestMoveCommandSpears::shouldDeleteASpearWhoseSubjectWasDrawnAnewMeanwhile()
{
    CommandFixture f(QStringLiteral("H[A[a]];G[C]"));
    f.draw();
    f.stack->push(new EditMove(f.model.get(), f.index("C"), 0, f.snapshot({QStringLiteral("H")})));
    QCOMPARE(spearTreeText(f.spear("G")), QStringLiteral("G[C[H[A[a]]]]"));

    // An editor that showed the head shows it again as soon as it is back.
    QGraphicsScene scene;
    connect(f.model.get(), &FishModel::rowsMoved, &scene,
            [&f, &scene] { scene.addItem(SpearBuilder(*f.model).buildHead(f.index("H"))); });
    f.stack->undo();
    QCOMPARE(spearTreeText(f.spear("H")), QStringLiteral("H[A]"));
    QCOMPARE(f.spear("A")->scene(), &scene);
    QCOMPARE(spearTreeText(f.spear("G")), QStringLiteral("G[C]"));
    QVERIFY(!f.spear("a"));
}

void TestMoveCommandSpears::shouldKeepTheDrawingOfASubjectThatMovesOutOfSight()
{
    CommandFixture f(QStringLiteral("H[A[a],B]"));
    QGraphicsScene scene;
    scene.addItem(SpearBuilder(*f.model).buildHead(f.index("A")));
    SpearItem *const shown = f.spear("A");
    f.stack->push(new EditMove(f.model.get(), f.index("B"), 0, f.snapshot({QStringLiteral("A")})));
    QCOMPARE(f.spear("A"), shown);
    QVERIFY(!shown->parentItem());
    f.stack->undo();
    QCOMPARE(f.spear("A"), shown);
    QCOMPARE(shown->childSpears().size(), 1);
}

void TestMoveCommandSpears::shouldTakeInASpearWithoutParent()
{
    CommandFixture f(QStringLiteral("H[A,B]"));
    QGraphicsScene scene;
    scene.addItem(makeSpear(*f.model, f.index("A"), 0, 20));
    scene.addItem(makeSpear(*f.model, f.index("B"), 0, 20));
    f.spear("A")->setZValue(-100);
    f.stack->push(new EditMove(f.model.get(), f.index("B"), 0, f.snapshot({QStringLiteral("A")})));
    QCOMPARE(f.spear("A")->parentItem(), f.spear("B"));
    QCOMPARE(f.spear("A")->zValue(), 0.0);
}

void TestMoveCommandSpears::shouldMoveNoSpearWhenTheModelRefuses()
{
    CommandFixture f(QStringLiteral("H[A[a],B]"));
    f.draw();
    f.stack->push(new EditMove(f.model.get(), f.index("a"), 0, f.snapshot({QStringLiteral("A")})));
    QCOMPARE(f.spear("A")->parentItem(), f.spear("H"));
    QCOMPARE(spearFault(*f.model), QString());
    f.stack->undo();
    QCOMPARE(spearFault(*f.model), QString());
}

FISHBONE_TEST(TestMoveCommandSpears)
#include "tst_movecommand_spears.moc"
