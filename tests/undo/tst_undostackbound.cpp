// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/program/testprogram.h>
#include <tests/support/undorecorder.h>

#include <QtTest>

using namespace TestSupport;

class TestUndoStackBound : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldDropTheOldestCommandAtTheBound();
    void shouldKeepTheIndexPastTheCommandsAtTheBound();
    void shouldDoNothingAtTheBoundButTellItsState();
    void shouldGiveUpWhenAStepDoesNotMoveTheIndex();
    void shouldCountOnlyTheCommandsThatAreKept();
    void shouldFollowTheCommandsWhenRolling();
    void shouldRollManyTimes();
    void shouldComeBackFromPastTheCommandsWhenRollingLater();
    void shouldStopRollingWhenAsked();
};

void TestUndoStackBound::shouldDropTheOldestCommandAtTheBound()
{
    UndoHistory history;
    history.pushMany(99);
    QCOMPARE(history.stack->commandNames().size(), 99);
    QCOMPARE(history.state(), QStringLiteral("98 undo"));
    history.log.take();
    history.log.listenTo(*history.stack);

    history.push({QStringLiteral("99")});

    QCOMPARE(history.log.take(),
             QStringLiteral("redo 99, delete 0, undoAvailable(false), redoAvailable(false), "
                            "stackChanged(stack, 99)"));
    QCOMPARE(history.stack->commandNames().size(), 99);
    QCOMPARE(history.stack->commandNames().constFirst(), QStringLiteral("1"));
    QCOMPARE(history.stack->commandNames().constLast(), QStringLiteral("99"));
    QCOMPARE(history.state(), QStringLiteral("99"));
}

void TestUndoStackBound::shouldKeepTheIndexPastTheCommandsAtTheBound()
{
    UndoHistory history;
    history.pushMany(100);
    history.log.take();
    history.log.listenTo(*history.stack);

    for (int number = 100; number < 250; ++number) {
        history.push({QString::number(number)});
        QCOMPARE(history.log.take(),
                 QStringLiteral("redo %1, delete %2, undoAvailable(false), redoAvailable(false), "
                                "stackChanged(stack, %1)")
                     .arg(number)
                     .arg(number - 99));
        QCOMPARE(history.stack->commandNames().size(), 99);
        QCOMPARE(history.state(), QString::number(number));
    }
}

void TestUndoStackBound::shouldDoNothingAtTheBoundButTellItsState()
{
    UndoHistory history;
    history.pushMany(100);
    history.log.take();
    history.log.listenTo(*history.stack);
    const QString told = QStringLiteral("undoAvailable(false), redoAvailable(false), "
                                        "currentChanged(99)");

    history.stack->undo();
    QCOMPARE(history.log.take(), told);

    history.stack->redo();
    QCOMPARE(history.log.take(), told);
    QCOMPARE(history.stack->commandNames().size(), 99);
}

void TestUndoStackBound::shouldGiveUpWhenAStepDoesNotMoveTheIndex()
{
    UndoHistory history;
    history.pushMany(100);
    history.log.take();
    history.log.listenTo(*history.stack);

    QVERIFY(!history.stack->setCurrentIndex(50));
    QCOMPARE(history.log.take(), QStringLiteral("undoAvailable(false), redoAvailable(false), "
                                                "currentChanged(99)"));
    QVERIFY(!history.stack->setCurrentIndex(99));
    QCOMPARE(history.log.take(), QString());
    QCOMPARE(history.state(), QStringLiteral("99"));
}

void TestUndoStackBound::shouldCountOnlyTheCommandsThatAreKept()
{
    UndoHistory history;
    history.pushMany(99);
    history.stack->undo();
    history.log.take();

    history.push({QStringLiteral("new")});

    QCOMPARE(history.log.take(), QStringLiteral("delete 98, redo new"));
    QCOMPARE(history.stack->commandNames().size(), 99);
    QCOMPARE(history.state(), QStringLiteral("98 undo"));
}

void TestUndoStackBound::shouldFollowTheCommandsWhenRolling()
{
    UndoHistory history;
    history.stack->setRolling(true);
    history.pushMany(99);
    history.log.take();
    history.log.listenTo(*history.stack);

    history.push({QStringLiteral("99")});
    QCOMPARE(history.log.take(),
             QStringLiteral("redo 99, delete 0, undoAvailable(true), redoAvailable(false), "
                            "stackChanged(stack, 98)"));
    QCOMPARE(history.state(), QStringLiteral("98 undo"));

    history.stack->undo();
    QCOMPARE(history.log.take(), QStringLiteral("undo 99, undoAvailable(true), "
                                                "redoAvailable(true), currentChanged(97)"));
    history.stack->redo();
    QCOMPARE(history.log.take(), QStringLiteral("redo 99, undoAvailable(true), "
                                                "redoAvailable(false), currentChanged(98)"));
}

void TestUndoStackBound::shouldRollManyTimes()
{
    UndoHistory history;
    history.stack->setRolling(true);

    history.pushMany(350);

    QCOMPARE(history.stack->commandNames().size(), 99);
    QCOMPARE(history.state(), QStringLiteral("98 undo"));
    QVERIFY(history.stack->setCurrentIndex(-1));
    QCOMPARE(history.stack->commandNames().constFirst(), QStringLiteral("251"));
    history.log.take();
    history.push({QStringLiteral("new")});
    QCOMPARE(history.names(), QStringLiteral("new"));
    QCOMPARE(history.state(), QStringLiteral("0 undo"));
}

void TestUndoStackBound::shouldComeBackFromPastTheCommandsWhenRollingLater()
{
    UndoHistory history;
    history.pushMany(120);

    history.stack->setRolling(true);
    QCOMPARE(history.state(), QStringLiteral("119"));

    history.push({QStringLiteral("new")});
    QCOMPARE(history.state(), QStringLiteral("98 undo"));
    history.log.take();
    history.stack->undo();
    QCOMPARE(history.log.take(), QStringLiteral("undo new"));
}

void TestUndoStackBound::shouldStopRollingWhenAsked()
{
    UndoHistory history;
    history.stack->setRolling(true);
    history.pushMany(120);
    history.stack->setRolling(false);

    history.push({QStringLiteral("new")});

    QCOMPARE(history.state(), QStringLiteral("99"));
}

FISHBONE_GUILESS_TEST(TestUndoStackBound)

#include "tst_undostackbound.moc"
