// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QtTest>

#include <fishbone/undo/attributecommands.h>
#include <fishbone/undo/commandgroup.h>
#include <fishbone/undo/structuralcommands.h>
#include <tests/program/testprogram.h>
#include <tests/support/commandfixture.h>
#include <tests/support/undorecorder.h>

using namespace TestSupport;

namespace {

std::unique_ptr<RecordingCommand> recording(const char *name, UndoLog &log)
{
    return std::make_unique<RecordingCommand>(QLatin1String(name), &log);
}

/** A group named "group" with a recording command for each letter of @p names. */
std::unique_ptr<CommandGroup> groupOf(const char *names, UndoLog &log)
{
    auto group = std::make_unique<CommandGroup>(QStringLiteral("group"));
    for (const char *name = names; *name; ++name)
        group->add(std::make_unique<RecordingCommand>(QString(QLatin1Char(*name)), &log));
    return group;
}

} // namespace

class TestCommandGroup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldRunInOrderAndBackInReverse();
    void shouldBeOneStepOfTheStack();
    void shouldDoNothingWhenEmpty();
    void shouldIgnoreNull();
    void shouldOwnItsMembers();
    void shouldOwnMembersThatHadAParent();
    void shouldRunWhatIsAddedWhileInEffect();
    void shouldNotRunWhatIsAddedWhileUndone();
    void shouldRunOnceWhatAMemberAdds();
    void shouldNest();
    void shouldChangeAndChangeBack();
    void shouldGoOnWhenAMemberFindsNothing();
    void shouldBeOneStepThatIsCompletedLater();
    void shouldOutliveTheModel();
    void shouldDieInAnyState_data();
    void shouldDieInAnyState();
};

void TestCommandGroup::shouldRunInOrderAndBackInReverse()
{
    UndoLog log;
    const auto group = groupOf("XYZ", log);
    QCOMPARE(group->count(), 3);
    QCOMPARE(log.take(), QString()); // nothing before redo()
    group->redo();
    QCOMPARE(log.take(), QStringLiteral("redo X, redo Y, redo Z"));
    group->undo();
    QCOMPARE(log.take(), QStringLiteral("undo Z, undo Y, undo X"));
    group->redo();
    QCOMPARE(log.take(), QStringLiteral("redo X, redo Y, redo Z"));
}

void TestCommandGroup::shouldBeOneStepOfTheStack()
{
    UndoHistory history;
    history.log.listenTo(*history.stack);
    history.stack->push(groupOf("XY", history.log).release());
    QCOMPARE(history.log.take(), QStringLiteral("redo X, redo Y, undoAvailable(true), "
                                                "redoAvailable(false), stackChanged(stack, 0)"));
    QCOMPARE(history.names(), QStringLiteral("group"));
    history.stack->undo();
    QCOMPARE(history.log.take(), QStringLiteral("undo Y, undo X, undoAvailable(false), "
                                                "redoAvailable(true), currentChanged(-1)"));
    history.stack->redo();
    QCOMPARE(history.log.take(), QStringLiteral("redo X, redo Y, undoAvailable(true), "
                                                "redoAvailable(false), currentChanged(0)"));
}

void TestCommandGroup::shouldDoNothingWhenEmpty()
{
    CommandFixture f(QStringLiteral("H[A]"));
    QCOMPARE(f.roundTripFault(new CommandGroup(QStringLiteral("nothing"))), QString());
    QCOMPARE(f.text(), QStringLiteral("H[A]"));
}

void TestCommandGroup::shouldIgnoreNull()
{
    UndoLog log;
    const auto group = groupOf("X", log);
    group->add(nullptr);
    QCOMPARE(group->count(), 1);
    group->redo();
    group->add(nullptr);
    QCOMPARE(log.take(), QStringLiteral("redo X"));
}

void TestCommandGroup::shouldOwnItsMembers()
{
    UndoLog log;
    auto group = groupOf("X", log);
    group.reset();
    QCOMPARE(log.take(), QStringLiteral("delete X"));
}

void TestCommandGroup::shouldOwnMembersThatHadAParent()
{
    UndoLog log;
    auto parent = std::make_unique<QObject>();
    const auto group = groupOf("", log);
    group->add(std::make_unique<RecordingCommand>(QStringLiteral("X"), &log, parent.get()));
    parent.reset();
    QCOMPARE(log.take(), QString());
    group->redo();
    QCOMPARE(log.take(), QStringLiteral("redo X"));
}

void TestCommandGroup::shouldRunWhatIsAddedWhileInEffect()
{
    UndoHistory history;
    auto *const group = groupOf("X", history.log).release();
    history.stack->push(group);
    history.log.take();
    group->add(recording("Y", history.log));
    QCOMPARE(history.log.take(), QStringLiteral("redo Y"));
    QCOMPARE(history.state(), QStringLiteral("0 undo"));
    history.stack->undo();
    QCOMPARE(history.log.take(), QStringLiteral("undo Y, undo X"));
    history.stack->redo();
    QCOMPARE(history.log.take(), QStringLiteral("redo X, redo Y"));
}

void TestCommandGroup::shouldNotRunWhatIsAddedWhileUndone()
{
    UndoLog log;
    const auto group = groupOf("X", log);
    group->redo();
    group->undo();
    log.take();
    group->add(recording("Y", log));
    QCOMPARE(log.take(), QString());
    group->undo(); // nothing is in effect
    QCOMPARE(log.take(), QString());
    group->redo();
    QCOMPARE(log.take(), QStringLiteral("redo X, redo Y"));
}

void TestCommandGroup::shouldRunOnceWhatAMemberAdds()
{
    UndoLog log;
    const auto group = groupOf("", log);
    auto first = recording("X", log);
    bool isAdded = false;
    first->onRedo = [&] {
        if (!std::exchange(isAdded, true))
            group->add(recording("Z", log));
    };
    group->add(std::move(first));
    group->add(recording("Y", log));
    group->redo();
    QCOMPARE(log.take(), QStringLiteral("redo X, end redo X, redo Y, redo Z"));
    group->undo();
    QCOMPARE(log.take(), QStringLiteral("undo Z, undo Y, undo X"));
}

void TestCommandGroup::shouldNest()
{
    UndoLog log;
    const auto group = groupOf("X", log);
    group->add(groupOf("YZ", log));
    group->redo();
    QCOMPARE(log.take(), QStringLiteral("redo X, redo Y, redo Z"));
    group->undo();
    QCOMPARE(log.take(), QStringLiteral("undo Z, undo Y, undo X"));
}

void TestCommandGroup::shouldChangeAndChangeBack()
{
    CommandFixture f(QStringLiteral("H[A[a],B]"));
    f.draw();
    FishModel *const model = f.model.get();
    auto group = std::make_unique<CommandGroup>(QStringLiteral("several"));
    group->add(std::make_unique<InsertChild>(model, f.index("B")));
    group->add(std::make_unique<ModifyName>(model, f.index("a"), QStringLiteral("new")));
    group->add(std::make_unique<EditDelete>(model, f.index("A")));
    QCOMPARE(f.roundTripFault(group.release()), QString());
    QCOMPARE(f.text(), QStringLiteral("H[B[+]]"));
    f.stack->undo();
    QCOMPARE(f.text(), QStringLiteral("H[A[a],B]"));
}

void TestCommandGroup::shouldGoOnWhenAMemberFindsNothing()
{
    CommandFixture f(QStringLiteral("H[A,B]"));
    FishModel *const model = f.model.get();
    auto group = std::make_unique<CommandGroup>(QStringLiteral("both"));
    group->add(std::make_unique<ModifyName>(model, f.index("A"), QStringLiteral("a")));
    group->add(std::make_unique<ModifyName>(model, f.index("B"), QStringLiteral("b")));
    model->removeRows(0, 1, f.index("H"));
    f.stack->push(group.release());
    QCOMPARE(f.text(), QStringLiteral("H[b]"));
    f.stack->undo();
    QCOMPARE(f.text(), QStringLiteral("H[B]"));
}

void TestCommandGroup::shouldBeOneStepThatIsCompletedLater()
{
    CommandFixture f(QStringLiteral("H[A]"));
    f.draw();
    FishModel *const model = f.model.get();
    const QString before = modelText(*model);
    auto *const group = new CommandGroup(QStringLiteral("Insert"));
    group->add(std::make_unique<InsertChild>(model, f.index("A")));
    f.stack->push(group);
    group->add(std::make_unique<ModifyName>(model, model->index(0, 0, f.index("A")),
                                            QStringLiteral("new")));
    QCOMPARE(f.text(), QStringLiteral("H[A[new]]"));
    QCOMPARE(f.spear("new")->text(), QStringLiteral("new"));
    const QString after = modelText(*model);
    f.stack->undo();
    QCOMPARE(modelText(*model), before);
    f.stack->redo();
    QCOMPARE(modelText(*model), after);
    QCOMPARE(f.spear("new")->text(), QStringLiteral("new"));
}

void TestCommandGroup::shouldOutliveTheModel()
{
    CommandFixture f(QStringLiteral("H[A]"));
    auto *const group = new CommandGroup(QStringLiteral("group"));
    group->add(std::make_unique<InsertChild>(f.model.get(), f.index("A")));
    group->add(std::make_unique<EditDelete>(f.model.get(), f.index("A")));
    f.stack->push(group);
    f.model.reset();
    f.stack->undo();
    f.stack->redo();
    QCOMPARE(f.stack->currentIndex(), 0);
}

void TestCommandGroup::shouldDieInAnyState_data()
{
    QTest::addColumn<bool>("isUndone");
    QTest::addColumn<bool>("modelFirst");
    for (bool isUndone : {false, true}) {
        for (bool modelFirst : {false, true})
            QTest::addRow("%s, %s first", isUndone ? "undone" : "done",
                          modelFirst ? "model" : "stack")
                << isUndone << modelFirst;
    }
}

void TestCommandGroup::shouldDieInAnyState()
{
    QFETCH(bool, isUndone);
    QFETCH(bool, modelFirst);
    CommandFixture f(QStringLiteral("H[A[a],B]"));
    f.draw();
    auto *const group = new CommandGroup(QStringLiteral("group"));
    group->add(std::make_unique<InsertChild>(f.model.get(), f.index("A")));
    group->add(std::make_unique<EditDelete>(f.model.get(), f.index("A")));
    const QPointer<CommandGroup> watched = group;
    f.stack->push(group);
    if (isUndone)
        f.stack->undo();
    if (modelFirst)
        f.model.reset();
    f.stack.reset();
    QVERIFY(!watched);
}

FISHBONE_TEST(TestCommandGroup)
#include "tst_commandgroup.moc"
