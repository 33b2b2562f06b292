// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QSignalSpy>
#include <QtTest>

#include <fishbone/undo/undocommand.h>
#include <fishbone/undo/undostack.h>
#include <fishbone/undo/undostackowner.h>
#include <tests/program/testprogram.h>

namespace {

/** A command that runs a function. */
class Step : public UndoCommand
{
public:
    explicit Step(const QString &text, const std::function<void()> &run = {})
        : UndoCommand(text)
        , m_run(run)
    {
    }
    void redo() override
    {
        if (m_run)
            m_run();
    }
    void undo() override { redo(); }

private:
    std::function<void()> m_run;
};

class Owner final : public UndoStackOwner
{
public:
    void stackCallBegins() override { log.append(QStringLiteral("(")); }
    void stackCallEnds(bool ran) override { log.append(QLatin1String(ran ? "+)" : "-)")); }

    QString log;
};

void push(UndoStack &stack, const char *text)
{
    stack.push(new Step(QString::fromLatin1(text)));
}

} // namespace

/** What a history tells of itself, and who is told of its calls. */
class TestUndoStackState : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldNameTheNextSteps();
    void shouldForgetAllCommands();
    void shouldBeCleanWhereItWasMarked();
    void shouldBeCleanAtTheBeginning();
    void shouldLoseACleanStateThatAPushReplaces();
    void shouldLoseACleanStateThatFallsOff();
    void shouldKeepTheCleanStateBehindTheOldestCommandWhileRolling();
    void shouldStayAsCleanWhenItIsCleared();
    void shouldSurviveToBeClearedByACommand();
    void shouldTellItsOwnerOfEachCallOnce();
};

void TestUndoStackState::shouldNameTheNextSteps()
{
    UndoStack stack;
    QCOMPARE(stack.count(), 0);
    QCOMPARE(stack.undoText(), QString());
    QCOMPARE(stack.redoText(), QString());
    push(stack, "one");
    push(stack, "two");
    stack.undo();
    QCOMPARE(stack.count(), 2);
    QCOMPARE(stack.undoText(), QStringLiteral("one"));
    QCOMPARE(stack.redoText(), QStringLiteral("two"));
}

void TestUndoStackState::shouldForgetAllCommands()
{
    UndoStack stack;
    push(stack, "one");
    push(stack, "two");
    stack.undo();
    QSignalSpy undo(&stack, &UndoStack::undoAvailable);
    QSignalSpy redo(&stack, &UndoStack::redoAvailable);
    QSignalSpy changed(&stack, &UndoStack::stackChanged);
    stack.clear();
    QCOMPARE(stack.count(), 0);
    QCOMPARE(stack.currentIndex(), -1);
    QCOMPARE(undo.last().first().toBool(), false);
    QCOMPARE(redo.last().first().toBool(), false);
    QCOMPARE(changed.count(), 1);
    push(stack, "three");
    QCOMPARE(stack.currentIndex(), 0);
}

void TestUndoStackState::shouldBeCleanWhereItWasMarked()
{
    UndoStack stack;
    push(stack, "one");
    QVERIFY(!stack.isClean());
    stack.setClean();
    QVERIFY(stack.isClean());
    push(stack, "two");
    QVERIFY(!stack.isClean());
    stack.undo();
    QVERIFY(stack.isClean());
    stack.undo();
    QVERIFY(!stack.isClean());
    QVERIFY(stack.setCurrentIndex(0));
    QVERIFY(stack.isClean());
}

void TestUndoStackState::shouldBeCleanAtTheBeginning()
{
    UndoStack stack;
    QVERIFY(stack.isClean());
    push(stack, "one");
    QVERIFY(!stack.isClean());
    stack.undo();
    QVERIFY(stack.isClean());
}

void TestUndoStackState::shouldLoseACleanStateThatAPushReplaces()
{
    UndoStack stack;
    push(stack, "one");
    stack.setClean();
    stack.undo();
    push(stack, "two");
    QVERIFY(!stack.isClean());
    stack.undo();
    QVERIFY(!stack.isClean());
}

void TestUndoStackState::shouldLoseACleanStateThatFallsOff()
{
    UndoStack stack;
    stack.setRolling(true);
    for (int i = 0; i <= UndoStack::m_limit; ++i)
        push(stack, "step");
    QVERIFY(stack.setCurrentIndex(-1));
    QVERIFY(!stack.isClean());
}

void TestUndoStackState::shouldKeepTheCleanStateBehindTheOldestCommandWhileRolling()
{
    UndoStack stack;
    stack.setRolling(true);
    push(stack, "one");
    stack.setClean();
    for (int i = 1; i < UndoStack::m_limit; ++i)
        push(stack, "step"); // the last of which lets the first one fall
    QVERIFY(!stack.isClean());
    QVERIFY(stack.setCurrentIndex(-1));
    QVERIFY(stack.isClean());
}

void TestUndoStackState::shouldStayAsCleanWhenItIsCleared()
{
    UndoStack stack;
    push(stack, "one");
    stack.clear();
    QVERIFY(!stack.isClean());
    push(stack, "two");
    stack.setClean();
    stack.clear();
    QVERIFY(stack.isClean());
}

void TestUndoStackState::shouldSurviveToBeClearedByACommand()
{
    UndoStack stack;
    push(stack, "one");
    stack.push(new Step(QStringLiteral("two"), [&stack] { stack.clear(); }));
    QCOMPARE(stack.count(), 0);
    QCOMPARE(stack.currentIndex(), -1);
    stack.push(new Step(QStringLiteral("three")));
    stack.push(new Step(QStringLiteral("four"), [&stack] { stack.clear(); }));
    QVERIFY(!stack.canUndo());
    QVERIFY(!stack.canRedo());
}

void TestUndoStackState::shouldTellItsOwnerOfEachCallOnce()
{
    Owner owner;
    UndoStack stack;
    stack.setOwner(&owner);
    push(stack, "one");
    push(stack, "two");
    QCOMPARE(std::exchange(owner.log, {}), QStringLiteral("(+)(+)"));
    QVERIFY(stack.setCurrentIndex(-1));
    QCOMPARE(std::exchange(owner.log, {}), QStringLiteral("(+)"));
    stack.undo();
    stack.redo();
    QCOMPARE(std::exchange(owner.log, {}), QStringLiteral("(-)(+)"));
    stack.setOwner(nullptr);
    stack.undo();
    QCOMPARE(owner.log, QString());
}

FISHBONE_TEST(TestUndoStackState)
#include "tst_undostackstate.moc"
