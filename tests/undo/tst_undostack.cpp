// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/program/testprogram.h>
#include <tests/support/undorecorder.h>

#include <QMetaMethod>
#include <QtTest>

#include <limits>

using namespace TestSupport;

class TestUndoStack : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldDeclareSignalsAndSlotsInOrder();
    void shouldHaveNoParentUnlessGivenOne();
    void shouldBeEmptyAtFirst();
    void shouldIgnoreNull();
    void shouldRunAPushedCommandAndTellEverybody();
    void shouldCountAPushedCommandAfterItRan();
    void shouldTakeACommandFromItsParent();
    void shouldUndoTheCommandThatWasAppliedLast();
    void shouldRedoTheNextCommand();
    void shouldTellItsStateWhenThereIsNothingToUndo();
    void shouldTellItsStateWhenThereIsNothingToRedo();
    void shouldReplaceWhatCouldBeRedone();
    void shouldDiscardTheNewestFirst();
    void shouldNameTheRedoTailToo();
    void shouldNameCommandsAsTheyAreCalledNow();
    void shouldMoveThroughTheHistory_data();
    void shouldMoveThroughTheHistory();
    void shouldRefuseATargetThatIsNotThere_data();
    void shouldRefuseATargetThatIsNotThere();
    void shouldUndoEverythingNewestFirst();
    void shouldTellEachStepOnTheWay();
    void shouldDeleteTheOldestFirstAtItsEnd();
};

void TestUndoStack::shouldDeclareSignalsAndSlotsInOrder()
{
    const QMetaObject &type = UndoStack::staticMetaObject;

    QStringList declared;
    for (int i = type.methodOffset(); i < type.methodCount(); ++i) {
        const QMetaMethod method = type.method(i);
        const bool isSignal = method.methodType() == QMetaMethod::Signal;
        declared.append((isSignal ? QStringLiteral("signal ") : QStringLiteral("slot ")) +
                        QString::fromLatin1(method.methodSignature()));
    }

    const QStringList expected{QStringLiteral("signal undoAvailable(bool)"),
                               QStringLiteral("signal redoAvailable(bool)"),
                               QStringLiteral("signal stackChanged(UndoStack*,int)"),
                               QStringLiteral("signal currentChanged(int)"),
                               QStringLiteral("slot redo()"),
                               QStringLiteral("slot undo()")};
    QCOMPARE(declared, expected);
}

void TestUndoStack::shouldHaveNoParentUnlessGivenOne()
{
    QObject parent;

    QCOMPARE(UndoStack().parent(), nullptr);
    QCOMPARE((new UndoStack(&parent))->parent(), &parent);
}

void TestUndoStack::shouldBeEmptyAtFirst()
{
    const UndoStack stack;

    QVERIFY(!stack.canUndo());
    QVERIFY(!stack.canRedo());
    QCOMPARE(stack.commandNames(), QStringList());
    QCOMPARE(stack.currentIndex(), -1);
    QCOMPARE(UndoStack::m_limit, 100);
}

void TestUndoStack::shouldIgnoreNull()
{
    const auto history = inTheMiddle();
    history->log.listenTo(*history->stack);

    history->stack->push(nullptr);

    QCOMPARE(history->log.take(), QString());
    QCOMPARE(history->names(), QStringLiteral("X Y Z"));
    QCOMPARE(history->state(), QStringLiteral("1 undo redo"));
}

void TestUndoStack::shouldRunAPushedCommandAndTellEverybody()
{
    UndoHistory history;
    history.log.listenTo(*history.stack);

    history.push({QStringLiteral("X")});
    QCOMPARE(history.log.take(),
             QStringLiteral("redo X, undoAvailable(true), redoAvailable(false), "
                            "stackChanged(stack, 0)"));

    history.push({QStringLiteral("Y")});
    QCOMPARE(history.log.take(),
             QStringLiteral("redo Y, undoAvailable(true), redoAvailable(false), "
                            "stackChanged(stack, 1)"));
    QCOMPARE(history.names(), QStringLiteral("X Y"));
    QCOMPARE(history.state(), QStringLiteral("1 undo"));
}

void TestUndoStack::shouldCountAPushedCommandAfterItRan()
{
    UndoHistory history;
    QString duringRedo;
    auto command = std::make_unique<RecordingCommand>(QStringLiteral("X"), &history.log);
    command->onRedo = [&] { duringRedo = history.names() + QLatin1Char(' ') + history.state(); };

    history.stack->push(command.release());

    QCOMPARE(duringRedo, QStringLiteral("X -1 redo"));
    QCOMPARE(history.state(), QStringLiteral("0 undo"));
}

void TestUndoStack::shouldTakeACommandFromItsParent()
{
    UndoHistory history;
    {
        QObject parent;
        history.stack->push(new RecordingCommand(QStringLiteral("X"), &history.log, &parent));
    }
    QCOMPARE(history.log.take(), QStringLiteral("redo X"));

    history.stack.reset();
    QCOMPARE(history.log.take(), QStringLiteral("delete X"));
}

void TestUndoStack::shouldUndoTheCommandThatWasAppliedLast()
{
    const auto history = inTheMiddle();
    history->log.listenTo(*history->stack);

    history->stack->undo();
    QCOMPARE(history->log.take(), QStringLiteral("undo Y, undoAvailable(true), "
                                                 "redoAvailable(true), currentChanged(0)"));

    history->stack->undo();
    QCOMPARE(history->log.take(), QStringLiteral("undo X, undoAvailable(false), "
                                                 "redoAvailable(true), currentChanged(-1)"));
    QCOMPARE(history->names(), QStringLiteral("X Y Z"));
}

void TestUndoStack::shouldRedoTheNextCommand()
{
    const auto history = inTheMiddle();
    history->stack->undo();
    history->log.take();
    history->log.listenTo(*history->stack);

    history->stack->redo();
    QCOMPARE(history->log.take(), QStringLiteral("redo Y, undoAvailable(true), "
                                                 "redoAvailable(true), currentChanged(1)"));

    history->stack->redo();
    QCOMPARE(history->log.take(), QStringLiteral("redo Z, undoAvailable(true), "
                                                 "redoAvailable(false), currentChanged(2)"));
    QCOMPARE(history->names(), QStringLiteral("X Y Z"));
}

void TestUndoStack::shouldTellItsStateWhenThereIsNothingToUndo()
{
    UndoHistory history;
    history.log.listenTo(*history.stack);

    history.stack->undo();
    QCOMPARE(history.log.take(), QStringLiteral("undoAvailable(false), redoAvailable(false), "
                                                "currentChanged(-1)"));

    history.push({QStringLiteral("X")});
    history.stack->undo();
    history.log.take();
    history.stack->undo();
    QCOMPARE(history.log.take(), QStringLiteral("undoAvailable(false), redoAvailable(true), "
                                                "currentChanged(-1)"));
}

void TestUndoStack::shouldTellItsStateWhenThereIsNothingToRedo()
{
    UndoHistory history;
    history.log.listenTo(*history.stack);

    history.stack->redo();
    QCOMPARE(history.log.take(), QStringLiteral("undoAvailable(false), redoAvailable(false), "
                                                "currentChanged(-1)"));

    history.push({QStringLiteral("X")});
    history.log.take();
    history.stack->redo();
    QCOMPARE(history.log.take(), QStringLiteral("undoAvailable(true), redoAvailable(false), "
                                                "currentChanged(0)"));
}

void TestUndoStack::shouldReplaceWhatCouldBeRedone()
{
    UndoHistory history;
    history.push({QStringLiteral("X"), QStringLiteral("Y")});
    history.stack->undo();
    history.log.take();
    history.log.listenTo(*history.stack);

    history.push({QStringLiteral("Z")});

    QCOMPARE(history.log.take(),
             QStringLiteral("delete Y, redo Z, undoAvailable(true), redoAvailable(false), "
                            "stackChanged(stack, 1)"));
    QCOMPARE(history.names(), QStringLiteral("X Z"));
    QCOMPARE(history.state(), QStringLiteral("1 undo"));
}

void TestUndoStack::shouldDiscardTheNewestFirst()
{
    const auto history = inTheMiddle();
    history->stack->setCurrentIndex(-1);
    history->log.take();

    history->push({QStringLiteral("A")});

    QCOMPARE(history->log.take(), QStringLiteral("delete Z, delete Y, delete X, redo A"));
    QCOMPARE(history->names(), QStringLiteral("A"));
    QCOMPARE(history->state(), QStringLiteral("0 undo"));
}

void TestUndoStack::shouldNameTheRedoTailToo()
{
    const auto history = inTheMiddle();
    history->stack->setCurrentIndex(-1);

    QCOMPARE(history->names(), QStringLiteral("X Y Z"));
    QCOMPARE(history->state(), QStringLiteral("-1 redo"));
}

void TestUndoStack::shouldNameCommandsAsTheyAreCalledNow()
{
    UndoHistory history;
    UndoCommand *command = new RecordingCommand(QStringLiteral("X"), &history.log);
    history.stack->push(command);

    command->setText(QStringLiteral("Rename X"));

    QCOMPARE(history.stack->commandNames(), QStringList{QStringLiteral("Rename X")});
}

void TestUndoStack::shouldMoveThroughTheHistory_data()
{
    QTest::addColumn<int>("target");
    QTest::addColumn<QString>("steps");
    QTest::addColumn<QString>("state");

    QTest::newRow("to the beginning")
        << -1 << QStringLiteral("undo Y, undo X") << QStringLiteral("-1 redo");
    QTest::newRow("one back") << 0 << QStringLiteral("undo Y") << QStringLiteral("0 undo redo");
    QTest::newRow("to the end") << 2 << QStringLiteral("redo Z") << QStringLiteral("2 undo");
}

void TestUndoStack::shouldMoveThroughTheHistory()
{
    QFETCH(const int, target);
    QFETCH(const QString, steps);
    QFETCH(const QString, state);
    const auto history = inTheMiddle();

    QVERIFY(history->stack->setCurrentIndex(target));

    QCOMPARE(history->log.take(), steps);
    QCOMPARE(history->state(), state);
}

void TestUndoStack::shouldRefuseATargetThatIsNotThere_data()
{
    QTest::addColumn<int>("target");

    QTest::newRow("before the beginning") << -2;
    QTest::newRow("least") << std::numeric_limits<int>::min();
    QTest::newRow("current") << 1;
    QTest::newRow("past the end") << 3;
    QTest::newRow("greatest") << std::numeric_limits<int>::max();
}

void TestUndoStack::shouldRefuseATargetThatIsNotThere()
{
    QFETCH(const int, target);
    const auto history = inTheMiddle();
    history->log.listenTo(*history->stack);

    QVERIFY(!history->stack->setCurrentIndex(target));

    QCOMPARE(history->log.take(), QString());
    QCOMPARE(history->names(), QStringLiteral("X Y Z"));
    QCOMPARE(history->state(), QStringLiteral("1 undo redo"));
}

void TestUndoStack::shouldUndoEverythingNewestFirst()
{
    UndoHistory history;
    history.push({QStringLiteral("X"), QStringLiteral("Y"), QStringLiteral("Z")});
    history.log.take();

    QVERIFY(history.stack->setCurrentIndex(-1));
    QCOMPARE(history.log.take(), QStringLiteral("undo Z, undo Y, undo X"));

    QVERIFY(!history.stack->setCurrentIndex(-1));
    QCOMPARE(history.log.take(), QString());
}

void TestUndoStack::shouldTellEachStepOnTheWay()
{
    const auto history = inTheMiddle();
    history->log.listenTo(*history->stack);

    QVERIFY(history->stack->setCurrentIndex(-1));

    QCOMPARE(history->log.take(),
             QStringLiteral("undo Y, undoAvailable(true), redoAvailable(true), currentChanged(0), "
                            "undo X, undoAvailable(false), redoAvailable(true), "
                            "currentChanged(-1)"));
}

void TestUndoStack::shouldDeleteTheOldestFirstAtItsEnd()
{
    const auto history = inTheMiddle();
    history->log.listenTo(*history->stack);

    history->stack.reset();

    QCOMPARE(history->log.take(), QStringLiteral("delete X, delete Y, delete Z"));
}

FISHBONE_GUILESS_TEST(TestUndoStack)

#include "tst_undostack.moc"
