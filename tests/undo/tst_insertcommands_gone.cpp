// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QSignalSpy>
#include <QStandardItemModel>
#include <QtTest>

#include <functional>

#include <fishbone/undo/structuralcommands.h>
#include <tests/program/testprogram.h>
#include <tests/support/commandfixture.h>
#include <tests/support/dialogchecks.h>
#include <tests/undo/insertcommandsparts.h>

using namespace TestSupport;

/** Insertions after which something has gone, moved or come. */
class TestInsertCommandsGone : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldRemoveNothingWhenTheInsertionFailed();
    void shouldDoNothingWithoutAModel_data();
    void shouldDoNothingWithoutAModel();
    void shouldOutliveTheModelUnderASanitizer_data();
    void shouldOutliveTheModelUnderASanitizer();
    void shouldBringBackWhatWasPutBelowTheNewSubject();
    void shouldInsertAfreshWhenTheNewSubjectWasRemovedByOthers();
    void shouldFindTheNewSubjectWhereverItWasMoved();
    void shouldKeepANewDocumentWhileItIsOut_data();
    void shouldKeepANewDocumentWhileItIsOut();
    void shouldMakeAllSpearsOfABoneThatWasNeverExpanded();
    void shouldMakeNoSpearBelowASubjectWithout();
    void shouldMakeASpearTheSizeOfItsParents();
    void shouldWorkOnAnyModelThatShowsUuids_data();
    void shouldWorkOnAnyModelThatShowsUuids();
};

void TestInsertCommandsGone::shouldRemoveNothingWhenTheInsertionFailed()
{
    CommandFixture f(QStringLiteral("H[A,B]"));
    auto *const command = new InsertFront(f.model.get(), QModelIndex());
    f.stack->push(command);
    QVERIFY(command->newUuid().isEmpty());
    f.stack->undo();
    QCOMPARE(f.text(), QStringLiteral("H[A,B]"));

    // Also when an earlier insertion of the same command succeeded.
    f.stack->push(new InsertFront(f.model.get(), f.index("A")));
    f.stack->undo();
    f.model->removeRows(0, 1, f.index("H"));
    f.stack->redo();
    QCOMPARE(f.text(), QStringLiteral("H[B]"));
    f.stack->undo();
    QCOMPARE(f.text(), QStringLiteral("H[B]"));
}

void TestInsertCommandsGone::shouldDoNothingWithoutAModel_data()
{
    QTest::addColumn<MakeCommand>("command");
    QTest::newRow("child") << MakeCommand(make<InsertChild>);
    QTest::newRow("back") << MakeCommand(make<InsertBack>);
    QTest::newRow("front") << MakeCommand(make<InsertFront>);
    QTest::newRow("parent") << MakeCommand(make<InsertParent>);
    QTest::newRow("free") << MakeCommand(make<InsertFree>);
}

void TestInsertCommandsGone::shouldDoNothingWithoutAModel()
{
    QFETCH(MakeCommand, command);
    CommandFixture f(QStringLiteral("H[A]"));
    const std::unique_ptr<UndoCommand> made(command(nullptr, f.index("A")));
    made->redo();
    made->undo();
    QCOMPARE(f.text(), QStringLiteral("H[A]"));
}

void TestInsertCommandsGone::shouldOutliveTheModelUnderASanitizer_data()
{
    shouldDoNothingWithoutAModel_data();
}

void TestInsertCommandsGone::shouldOutliveTheModelUnderASanitizer()
{
    QFETCH(MakeCommand, command);
    for (int steps = 0; steps < 4; ++steps) {
        auto model = std::make_unique<FishModel>();
        loadDocument(*model, QStringLiteral("H[A]"));
        const QModelIndex index = indexTitled(*model, QStringLiteral("A"));
        const std::unique_ptr<UndoCommand> made(command(model.get(), index));
        for (int step = 0; step < steps; ++step)
            step % 2 == 0 ? made->redo() : made->undo();
        model.reset();
        made->undo();
        made->redo();
        made->undo();
    }
}

void TestInsertCommandsGone::shouldBringBackWhatWasPutBelowTheNewSubject()
{
    CommandFixture f(QStringLiteral("H[A,B]"));
    f.draw();
    f.stack->push(new InsertBack(f.model.get(), f.index("A")));
    const QModelIndex head = f.index("H");
    f.model->moveRows(head, 2, 1, f.model->index(1, 0, head), 0); // as a drop does
    QCOMPARE(f.text(), QStringLiteral("H[A,+[B]]"));

    f.stack->undo();
    QCOMPARE(f.text(), QStringLiteral("H[A]"));
    f.stack->redo();
    QCOMPARE(f.text(), QStringLiteral("H[A,+[B]]"));
    QCOMPARE(spearFault(*f.model), QString());
}

void TestInsertCommandsGone::shouldInsertAfreshWhenTheNewSubjectWasRemovedByOthers()
{
    CommandFixture f(QStringLiteral("H[A,B]"));
    auto *const command = new InsertBack(f.model.get(), f.index("A"));
    f.stack->push(command);
    const QString uuid = command->newUuid();
    f.model->removeRows(1, 1, f.index("H"));

    f.stack->undo();
    QCOMPARE(f.text(), QStringLiteral("H[A,B]"));
    f.stack->redo();
    QCOMPARE(f.text(), QStringLiteral("H[A,+,B]"));
    QCOMPARE(f.node("H")->childAtIndex(1)->uuid(), uuid);
    f.stack->undo();
    QCOMPARE(f.text(), QStringLiteral("H[A,B]"));
}

void TestInsertCommandsGone::shouldFindTheNewSubjectWhereverItWasMoved()
{
    CommandFixture f(QStringLiteral("H[A,B];G"));
    f.stack->push(new InsertChild(f.model.get(), f.index("A")));
    f.model->moveRows(f.index("A"), 0, 1, f.index("G"), 0);
    f.stack->undo();
    QCOMPARE(f.text(), QStringLiteral("H[A,B];G"));
    f.stack->redo();
    QCOMPARE(f.text(), QStringLiteral("H[A[+],B];G"));
}

void TestInsertCommandsGone::shouldKeepANewDocumentWhileItIsOut_data()
{
    QTest::addColumn<MakeCommand>("command");
    QTest::newRow("back") << MakeCommand(make<InsertBack>);
    QTest::newRow("front") << MakeCommand(make<InsertFront>);
    QTest::newRow("free") << MakeCommand(make<InsertFree>);
}

void TestInsertCommandsGone::shouldKeepANewDocumentWhileItIsOut()
{
    QFETCH(MakeCommand, command);
    CommandFixture f(QStringLiteral("H"));
    const QList<FishInfo *> before = f.model->fishList();
    f.stack->push(command(f.model.get(), f.index("H")));
    const QList<FishInfo *> after = f.model->fishList();
    QCOMPARE(after.size(), 2);

    f.stack->undo();
    QCOMPARE(f.model->fishList(), before);
    f.stack->redo();
    QCOMPARE(f.model->fishList(), after);
    for (const FishInfo *document : after)
        QCOMPARE(document->model(), f.model.get());
}

void TestInsertCommandsGone::shouldMakeAllSpearsOfABoneThatWasNeverExpanded()
{
    CommandFixture f(QStringLiteral("H[A[a[x],b],B]"));
    QGraphicsScene scene;
    scene.addItem(SpearBuilder(*f.model).buildHead(f.index("H")));
    QVERIFY(!f.spear("a"));

    f.stack->push(new InsertChild(f.model.get(), f.index("A")));

    QCOMPARE(spearFault(*f.model), QString());
    QCOMPARE(f.spear("A")->childSpears().size(), 3);
    QCOMPARE(f.spear("x")->parentItem(), f.spear("a"));
}

void TestInsertCommandsGone::shouldMakeNoSpearBelowASubjectWithout()
{
    CommandFixture f(QStringLiteral("H[A[a],B]"));
    QGraphicsScene scene;
    scene.addItem(SpearBuilder(*f.model).buildHead(f.index("H")));
    const int items = scene.items().size();
    f.stack->push(new InsertChild(f.model.get(), f.index("a")));
    QCOMPARE(scene.items().size(), items);
    QVERIFY(!f.node("a")->childAtIndex(0)->spear());
}

void TestInsertCommandsGone::shouldMakeASpearTheSizeOfItsParents()
{
    CommandFixture f(QStringLiteral("H[A]"));
    QGraphicsScene scene;
    auto *const head = new SpearItem(QStringLiteral("H"), 0, 47);
    scene.addItem(head);
    f.node("H")->setSpear(head, f.index("H"));
    f.stack->push(new InsertBack(f.model.get(), f.index("A")));
    QCOMPARE(f.spear("A")->spearSize(), 47.0);
    QCOMPARE(f.spear("A")->direction(), 0);
    QCOMPARE(f.spear("A")->text(), QStringLiteral("A"));
    QCOMPARE(f.node("H")->childAtIndex(1)->spear()->text(), QStringLiteral("子主题"));
}

void TestInsertCommandsGone::shouldWorkOnAnyModelThatShowsUuids_data()
{
    QTest::addColumn<MakeCommand>("command");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, MakeCommand command, const char *expected) {
        QTest::newRow(name) << command << QString::fromLatin1(expected);
    };
    row("child", make<InsertChild>, "[one[1,],11]");
    row("back", make<InsertBack>, "[one[1],,11]");
    row("front", make<InsertFront>, "[,one[1],11]");
    row("free", make<InsertFree>, "[one[1],11,]");
}

void TestInsertCommandsGone::shouldWorkOnAnyModelThatShowsUuids()
{
    QFETCH(MakeCommand, command);
    QFETCH(QString, expected);
    QStandardItemModel model(0, 2);
    const auto items = [](const char *title, const char *uuid) {
        return QList<QStandardItem *>{new QStandardItem(QLatin1String(title)),
                                      new QStandardItem(QLatin1String(uuid))};
    };
    model.appendRow(items("one", "1"));
    model.appendRow(items("11", "11"));
    model.item(0)->appendRow(items("1", "x1"));
    const QString before = treeToText(model, QModelIndex());
    QCOMPARE(before, QStringLiteral("[one[1],11]"));

    UndoStack stack;
    stack.push(command(&model, model.index(0, 0)));
    for (int pass = 0; pass < 2; ++pass) {
        QCOMPARE(treeToText(model, QModelIndex()), expected);
        const QString uuids = treeToText(model, QModelIndex(), 1);
        stack.undo();
        QCOMPARE(treeToText(model, QModelIndex()), before);
        stack.redo();
        QCOMPARE(treeToText(model, QModelIndex(), 1), uuids);
    }
    model.removeRows(0, model.rowCount());
    stack.undo(); // what was inserted is gone
    QCOMPARE(model.rowCount(), 0);
}

FISHBONE_TEST(TestInsertCommandsGone)
#include "tst_insertcommands_gone.moc"
