// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QtTest>

#include <fishbone/editor/subjectsnapshot.h>
#include <fishbone/undo/attributecommands.h>
#include <fishbone/undo/structuralcommands.h>
#include <tests/editor/editorparts.h>
#include <tests/program/testprogram.h>

using namespace TestSupport;

/** The way from a command to the screen. */
class TestCommandRunner : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldRunDrawAndMark();
    void shouldKeepWhatItRunsOnceOutOfTheHistory();
    void shouldSayWhenACommandDidNothing();
    void shouldMarkTheShownDocumentWhateverTheCommandTold();
    void shouldUndoAndRedoWithTheDrawing();
    void shouldFollowWhoeverElseCallsTheStack();
    void shouldMakeTheDrawingAnewWhenTold();
    void shouldDoNothingMoreWhenAListenerEndsTheEditor();
    void shouldLeaveTheStackAtItsEnd();
};

void TestCommandRunner::shouldRunDrawAndMark()
{
    OwnEditorParts parts("H[A]");
    parts->runner.execute(std::make_unique<InsertBack>(&parts.model, parts->index("A")));
    QCOMPARE(parts->text(), QStringLiteral("H[A,+]"));
    QCOMPARE(parts->drawing.head()->childSpears().count(), 2);
    QCOMPARE(parts->stack.count(), 1);
    QVERIFY(parts->info->modified());
}

void TestCommandRunner::shouldKeepWhatItRunsOnceOutOfTheHistory()
{
    OwnEditorParts parts("H[A]");
    parts->runner.executeOnce(InsertBack(&parts.model, parts->index("A")));
    QCOMPARE(parts->text(), QStringLiteral("H[A,+]"));
    QCOMPARE(parts->drawing.head()->childSpears().count(), 2);
    QCOMPARE(parts->stack.count(), 0);
    QVERIFY(parts->info->modified());
}

void TestCommandRunner::shouldSayWhenACommandDidNothing()
{
    OwnEditorParts parts("H[A]");
    QVERIFY(!parts->runner.run(nullptr));
    auto same = std::make_unique<EditMove>(&parts.model, parts->index("H"), 0,
                                           SubjectSnapshot::of({parts->node("A")}),
                                           QList<TreeItem *>{parts->node("A")});
    QVERIFY(!parts->runner.run(std::move(same)));
    QVERIFY(!parts->info->modified());
    auto renames =
        std::make_unique<ModifyName>(&parts.model, parts->index("A"), QStringLiteral("a"));
    QVERIFY(parts->runner.run(std::move(renames)));
    QVERIFY(parts->info->modified());
}

void TestCommandRunner::shouldMarkTheShownDocumentWhateverTheCommandTold()
{
    /** Changes nothing that a model could tell of. */
    class Silent : public UndoCommand
    {
    public:
        Silent()
            : UndoCommand(QString())
        {
        }
        void undo() override {}
        void redo() override {}
    };
    OwnEditorParts parts("H[A]");
    QVERIFY(!parts->runner.run(std::make_unique<Silent>()));
    QVERIFY(!parts->info->modified());
    parts->runner.execute(std::make_unique<Silent>(), CommandRunner::Follow::Nothing);
    QVERIFY(parts->info->modified());
}

void TestCommandRunner::shouldUndoAndRedoWithTheDrawing()
{
    OwnEditorParts parts("H[A]");
    parts->runner.execute(std::make_unique<EditDelete>(&parts.model, parts->index("A")));
    QCOMPARE(parts->drawn(), QStringLiteral("H"));
    parts->info->setModified(false);
    parts->runner.undo();
    QCOMPARE(parts->drawn(), QStringLiteral("H[A]"));
    QVERIFY(parts->info->modified());
    parts->runner.redo();
    QCOMPARE(parts->drawn(), QStringLiteral("H"));
    parts->info->setModified(false);
    parts->runner.redo(); // there is nothing more
    QVERIFY(!parts->info->modified());
}

void TestCommandRunner::shouldFollowWhoeverElseCallsTheStack()
{
    OwnEditorParts parts("H[A]");
    auto command =
        std::make_unique<ModifyName>(&parts.model, parts->index("A"), QStringLiteral("a"));
    parts->stack.push(command.release());
    QCOMPARE(parts->drawn(), QStringLiteral("H[a]"));
    QVERIFY(parts->info->modified());
    parts->info->setModified(false);
    parts->stack.undo();
    QCOMPARE(parts->drawn(), QStringLiteral("H[A]"));
    QVERIFY(parts->info->modified());
}

void TestCommandRunner::shouldMakeTheDrawingAnewWhenTold()
{
    OwnEditorParts parts("H[A[B]]");
    parts->expansion.expandAll();
    const SpearItem *const bone = parts->spear("A");
    parts->runner.execute(std::make_unique<InsertBack>(&parts.model, parts->index("A")));
    QCOMPARE(parts->spear("A"), bone);
    parts->runner.execute(std::make_unique<InsertBack>(&parts.model, parts->index("A")),
                          CommandRunner::Follow::Rebuild);
    QCOMPARE(parts->drawn(), QStringLiteral("H[A,子主题,子主题]")); // contracted again
}

void TestCommandRunner::shouldDoNothingMoreWhenAListenerEndsTheEditor()
{
    FishModel model;
    auto parts = std::make_unique<EditorParts>(model, QStringLiteral("H[A]"));
    FishInfo *const info = parts->info;
    connect(&model, &FishModel::rowsInserted, this, [&parts] { parts.reset(); });
    CommandRunner &runner = parts->runner;
    QVERIFY(!runner.run(std::make_unique<InsertBack>(&model, parts->index("A"))));
    QVERIFY(!parts);
    QCOMPARE(treeToText(*info->treeItem()->childAtIndex(0)), QStringLiteral("H[A,子主题]"));
}

void TestCommandRunner::shouldLeaveTheStackAtItsEnd()
{
    OwnEditorParts parts("H[A]");
    UndoStack stack;
    {
        const CommandRunner runner(stack, parts->root, parts->calls);
    }
    stack.push(new ModifyName(&parts.model, parts->index("A"), QStringLiteral("a")));
    QCOMPARE(parts->text(), QStringLiteral("H[a]"));
}

FISHBONE_TEST(TestCommandRunner)
#include "tst_commandrunner.moc"
