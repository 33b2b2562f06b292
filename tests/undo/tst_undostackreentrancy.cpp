// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/program/testprogram.h>
#include <tests/support/undorecorder.h>

#include <QtTest>

#include <utility>

using namespace TestSupport;

namespace {

/** Calls @p action once, when the stack emits the named signal the next time. */
void onceOn(UndoStack &stack, const QString &signalName, const Action &action)
{
    const auto isDone = std::make_shared<bool>(false);
    const auto once = [isDone, action] {
        if (!std::exchange(*isDone, true))
            action();
    };
    if (signalName == QLatin1String("undoAvailable"))
        QObject::connect(&stack, &UndoStack::undoAvailable, &stack, once);
    else if (signalName == QLatin1String("redoAvailable"))
        QObject::connect(&stack, &UndoStack::redoAvailable, &stack, once);
    else if (signalName == QLatin1String("stackChanged"))
        QObject::connect(&stack, &UndoStack::stackChanged, &stack, once);
    else if (signalName == QLatin1String("currentChanged"))
        QObject::connect(&stack, &UndoStack::currentChanged, &stack, once);
    else
        QFAIL("There is no such signal.");
}

} // namespace

class TestUndoStackReentrancy : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldEndWhileTellingItsState_data();
    void shouldEndWhileTellingItsState();
    void shouldEndWhileACommandRuns_data();
    void shouldEndWhileACommandRuns();
    void shouldEndWhileACommandGoes_data();
    void shouldEndWhileACommandGoes();
    void shouldBeCalledFromItsSignals_data();
    void shouldBeCalledFromItsSignals();
    void shouldGiveUpWhenAListenerHoldsTheIndex();
    void shouldPutACommandPushedByARedoBehindIt();
    void shouldPutACommandPushedByARepeatedRedoBehindIt();
    void shouldPutACommandPushedByAnUndoInItsPlace();
    void shouldNotStepWhileACommandRuns_data();
    void shouldNotStepWhileACommandRuns();
};

void TestUndoStackReentrancy::shouldEndWhileTellingItsState_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QString>("signalName");
    QTest::addColumn<QString>("told");

    const QString gone = QStringLiteral(", delete X, delete Y, delete Z");
    const QString goneWithNew = QStringLiteral(", delete X, delete Y, delete new");
    struct Operation
    {
        const char *name;
        QString first;
        QString undoTold;
        QString redoTold;
        QString gone;
    };
    const QString yes = QStringLiteral("true");
    const QString no = QStringLiteral("false");
    const QList<Operation> operations{
        {"push", QStringLiteral("delete Z, redo new"), yes, no, goneWithNew},
        {"undo", QStringLiteral("undo Y"), yes, yes, gone},
        {"back", QStringLiteral("undo Y"), yes, yes, gone},
        {"redo", QStringLiteral("redo Z"), yes, no, gone},
        {"forth", QStringLiteral("redo Z"), yes, no, gone},
    };
    for (const Operation &operation : operations) {
        const QString name = QString::fromLatin1(operation.name);
        const bool isPush = name == QLatin1String("push");
        QString told =
            operation.first + QStringLiteral(", undoAvailable(%1)").arg(operation.undoTold);
        QTest::addRow("%s, undoAvailable", operation.name)
            << name << QStringLiteral("undoAvailable") << told + operation.gone;
        told += QStringLiteral(", redoAvailable(%1)").arg(operation.redoTold);
        QTest::addRow("%s, redoAvailable", operation.name)
            << name << QStringLiteral("redoAvailable") << told + operation.gone;
        if (isPush) {
            told += QStringLiteral(", stackChanged(stack, 2)");
            QTest::addRow("%s, stackChanged", operation.name)
                << name << QStringLiteral("stackChanged") << told + operation.gone;
        } else {
            told += QStringLiteral(", currentChanged(%1)").arg(operation.redoTold == yes ? 0 : 2);
            QTest::addRow("%s, currentChanged", operation.name)
                << name << QStringLiteral("currentChanged") << told + operation.gone;
        }
    }
}

void TestUndoStackReentrancy::shouldEndWhileTellingItsState()
{
    QFETCH(const QString, operation);
    QFETCH(const QString, signalName);
    QFETCH(const QString, told);
    const auto history = inTheMiddle();
    history->log.listenTo(*history->stack);
    onceOn(*history->stack, signalName, [&] { delete history->stack.release(); });

    call(*history, operation);

    QCOMPARE(history->log.take(), told);
}

void TestUndoStackReentrancy::shouldEndWhileACommandRuns_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QString>("told");

    QTest::newRow("push") << QStringLiteral("push")
                          << QStringLiteral("redo X, delete W, end redo X, delete X");
    QTest::newRow("undo") << QStringLiteral("undo")
                          << QStringLiteral("undo X, delete W, end undo X, delete X");
    QTest::newRow("redo") << QStringLiteral("redo")
                          << QStringLiteral("redo X, delete W, end redo X, delete X");
    QTest::newRow("back") << QStringLiteral("back")
                          << QStringLiteral("undo X, delete W, end undo X, delete X");
}

void TestUndoStackReentrancy::shouldEndWhileACommandRuns()
{
    QFETCH(const QString, operation);
    QFETCH(const QString, told);
    UndoHistory history;
    history.push({QStringLiteral("W")});
    auto *command = new RecordingCommand(QStringLiteral("X"), &history.log);
    const Action end = [&history] { delete history.stack.release(); };

    if (operation == QLatin1String("push")) {
        command->onRedo = end;
        history.log.take();
        history.log.listenTo(*history.stack);
        history.stack->push(command);
    } else {
        history.stack->push(command);
        if (operation == QLatin1String("redo"))
            history.stack->undo();
        command->onUndo = end;
        command->onRedo = end;
        history.log.take();
        history.log.listenTo(*history.stack);
        call(history, operation);
    }

    QCOMPARE(history.log.take(), told);
}

void TestUndoStackReentrancy::shouldEndWhileACommandGoes_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("undone");
    QTest::addColumn<int>("going");
    QTest::addColumn<QString>("told");

    QTest::newRow("discarded") << 2 << 2 << 1 << QStringLiteral("delete 1, delete 0, delete new");
    QTest::newRow("at the bound") << 99 << 0 << 0
                                  << QStringLiteral("redo new, delete 0, delete 1, delete 2");
}

void TestUndoStackReentrancy::shouldEndWhileACommandGoes()
{
    QFETCH(const int, count);
    QFETCH(const int, undone);
    QFETCH(const int, going);
    QFETCH(const QString, told);
    UndoHistory history;
    for (int number = 0; number < count; ++number) {
        auto *command = new RecordingCommand(QString::number(number), &history.log);
        if (number == going)
            connect(command, &QObject::destroyed, this, [&] { delete history.stack.release(); });
        history.stack->push(command);
    }
    history.stack->setCurrentIndex(count - 1 - undone);
    history.log.take();
    history.log.listenTo(*history.stack);

    history.push({QStringLiteral("new")});

    // Whatever was left goes with the stack, and nothing is told any more.
    const QString log = history.log.take();
    QVERIFY2(log.startsWith(told), qPrintable(log));
    QVERIFY(!history.stack);
    QCOMPARE(log.count(QStringLiteral("delete")), count + 1);
    QVERIFY(!log.contains(QStringLiteral("Available")));
}

void TestUndoStackReentrancy::shouldBeCalledFromItsSignals_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QString>("signalName");
    QTest::addColumn<QString>("nested");
    QTest::addColumn<QString>("steps");
    QTest::addColumn<QString>("names");
    QTest::addColumn<QString>("state");

    const QString undoAvailable = QStringLiteral("undoAvailable");
    const QString redoAvailable = QStringLiteral("redoAvailable");
    const QString stackChanged = QStringLiteral("stackChanged");
    const QString currentChanged = QStringLiteral("currentChanged");
    const QString push = QStringLiteral("push");
    const QString undo = QStringLiteral("undo");
    const QString redo = QStringLiteral("redo");
    const QString back = QStringLiteral("back");
    QTest::newRow("undo while pushing")
        << push << undoAvailable << undo << QStringLiteral("delete Z, redo new, undo new")
        << QStringLiteral("X Y new") << QStringLiteral("1 undo redo");
    QTest::newRow("push while pushing")
        << push << stackChanged << push << QStringLiteral("delete Z, redo new, redo new")
        << QStringLiteral("X Y new new") << QStringLiteral("3 undo");
    QTest::newRow("back while pushing")
        << push << redoAvailable << back
        << QStringLiteral("delete Z, redo new, undo new, undo Y, undo X")
        << QStringLiteral("X Y new") << QStringLiteral("-1 redo");
    QTest::newRow("undo while undoing")
        << undo << undoAvailable << undo << QStringLiteral("undo Y, undo X")
        << QStringLiteral("X Y Z") << QStringLiteral("-1 redo");
    QTest::newRow("push while undoing")
        << undo << currentChanged << push << QStringLiteral("undo Y, delete Z, delete Y, redo new")
        << QStringLiteral("X new") << QStringLiteral("1 undo");
    QTest::newRow("redo while undoing")
        << undo << redoAvailable << redo << QStringLiteral("undo Y, redo Y")
        << QStringLiteral("X Y Z") << QStringLiteral("1 undo redo");
    QTest::newRow("undo while redoing")
        << redo << currentChanged << undo << QStringLiteral("redo Z, undo Z")
        << QStringLiteral("X Y Z") << QStringLiteral("1 undo redo");
    QTest::newRow("push while going back")
        << back << currentChanged << push << QStringLiteral("undo Y, delete Z, delete Y, redo new")
        << QStringLiteral("X new") << QStringLiteral("1 undo");
    QTest::newRow("back while going back")
        << back << currentChanged << back << QStringLiteral("undo Y, undo X")
        << QStringLiteral("X Y Z") << QStringLiteral("-1 redo");
}

void TestUndoStackReentrancy::shouldBeCalledFromItsSignals()
{
    QFETCH(const QString, operation);
    QFETCH(const QString, signalName);
    QFETCH(const QString, nested);
    QFETCH(const QString, steps);
    QFETCH(const QString, names);
    QFETCH(const QString, state);
    const auto history = inTheMiddle();
    onceOn(*history->stack, signalName, [&] { call(*history, nested); });

    call(*history, operation);

    QCOMPARE(history->log.take(), steps);
    QCOMPARE(history->names(), names);
    QCOMPARE(history->state(), state);
}

void TestUndoStackReentrancy::shouldGiveUpWhenAListenerHoldsTheIndex()
{
    const auto history = inTheMiddle();
    connect(history->stack.get(), &UndoStack::currentChanged, this, [&](int index) {
        if (index == 0)
            history->stack->redo();
    });

    QVERIFY(!history->stack->setCurrentIndex(-1));

    QCOMPARE(history->log.take(), QStringLiteral("undo Y, redo Y"));
    QCOMPARE(history->state(), QStringLiteral("1 undo redo"));
}

void TestUndoStackReentrancy::shouldPutACommandPushedByARedoBehindIt()
{
    UndoHistory history;
    history.push({QStringLiteral("W")});
    auto *command = new RecordingCommand(QStringLiteral("X"), &history.log);
    command->onRedo = [&] { history.push({QStringLiteral("Y")}); };
    history.log.take();
    history.log.listenTo(*history.stack);

    history.stack->push(command);

    QCOMPARE(history.log.take(),
             QStringLiteral("redo X, "
                            "redo Y, undoAvailable(true), redoAvailable(false), "
                            "stackChanged(stack, 2), "
                            "end redo X, undoAvailable(true), redoAvailable(false), "
                            "stackChanged(stack, 2)"));
    QCOMPARE(history.names(), QStringLiteral("W X Y"));
    QCOMPARE(history.state(), QStringLiteral("2 undo"));
}

void TestUndoStackReentrancy::shouldPutACommandPushedByARepeatedRedoBehindIt()
{
    UndoHistory history;
    auto *command = new RecordingCommand(QStringLiteral("X"), &history.log);
    history.stack->push(command);
    history.push({QStringLiteral("Y")});
    history.stack->setCurrentIndex(-1);
    history.log.take();
    command->onRedo = [&] { history.push({QStringLiteral("Z")}); };

    history.stack->redo();

    QCOMPARE(history.log.take(), QStringLiteral("redo X, delete Y, redo Z, end redo X"));
    QCOMPARE(history.names(), QStringLiteral("X Z"));
    QCOMPARE(history.state(), QStringLiteral("1 undo"));
}

void TestUndoStackReentrancy::shouldPutACommandPushedByAnUndoInItsPlace()
{
    UndoHistory history;
    history.push({QStringLiteral("W")});
    auto *command = new RecordingCommand(QStringLiteral("X"), &history.log);
    command->onUndo = [&] { history.push({QStringLiteral("Y")}); };
    history.stack->push(command);
    history.log.take();

    history.stack->undo();

    QCOMPARE(history.log.take(), QStringLiteral("undo X, redo Y, end undo X, delete X"));
    QCOMPARE(history.names(), QStringLiteral("W Y"));
    QCOMPARE(history.state(), QStringLiteral("1 undo"));
}

void TestUndoStackReentrancy::shouldNotStepWhileACommandRuns_data()
{
    QTest::addColumn<QString>("nested");

    QTest::newRow("undo") << QStringLiteral("undo");
    QTest::newRow("redo") << QStringLiteral("redo");
    QTest::newRow("back") << QStringLiteral("back");
}

void TestUndoStackReentrancy::shouldNotStepWhileACommandRuns()
{
    QFETCH(const QString, nested);
    UndoHistory history;
    history.push({QStringLiteral("W")});
    auto *command = new RecordingCommand(QStringLiteral("X"), &history.log);
    command->onRedo = [&] { call(history, nested); };
    command->onUndo = command->onRedo;
    history.log.take();

    history.stack->push(command);
    QCOMPARE(history.log.take(), QStringLiteral("redo X, end redo X"));
    QCOMPARE(history.state(), QStringLiteral("1 undo"));

    history.stack->undo();
    QCOMPARE(history.log.take(), QStringLiteral("undo X, end undo X"));
    QCOMPARE(history.state(), QStringLiteral("0 undo redo"));

    history.stack->redo();
    QCOMPARE(history.log.take(), QStringLiteral("redo X, end redo X"));
    QCOMPARE(history.state(), QStringLiteral("1 undo"));
}

FISHBONE_GUILESS_TEST(TestUndoStackReentrancy)

#include "tst_undostackreentrancy.moc"
