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

using namespace TestSupport;

using MakeCommand = std::function<UndoCommand *(QAbstractItemModel *, const QModelIndex &)>;
Q_DECLARE_METATYPE(MakeCommand)

namespace {
template <typename Command>
UndoCommand *make(QAbstractItemModel *model, const QModelIndex &index)
{
    return new Command(model, index);
}

template <>
UndoCommand *make<InsertFree>(QAbstractItemModel *model, const QModelIndex &)
{
    return new InsertFree(model);
}
} // namespace

class TestInsertCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldInsertAndTakeBack_data();
    void shouldInsertAndTakeBack();
    void shouldNameThemselvesInTheirOwnContext();
    void shouldKnowTheUuidOfTheReference();
    void shouldDrawOneUuidForAllTimes();
    void shouldNameTheParentAsPid();
    void shouldGiveTheReferenceAndItsParentAUuid();
    void shouldLeaveThePidsOfChildrenWhenAUuidIsGiven();
    void shouldInsertInDocumentsWithoutUuids_data();
    void shouldInsertInDocumentsWithoutUuids();
    void shouldStayInTheDocumentTheyWereMadeFor_data();
    void shouldStayInTheDocumentTheyWereMadeFor();
    void shouldTellCopiesOfOneUuidApart();
    void shouldFollowTheRulesWhenTheReferenceIsGone_data();
    void shouldFollowTheRulesWhenTheReferenceIsGone();
    void shouldRemoveNothingWhenTheInsertionFailed();
    void shouldDoNothingWithoutAModel_data();
    void shouldDoNothingWithoutAModel();
    void shouldOutliveTheModel_data();
    void shouldOutliveTheModel();
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

void TestInsertCommands::shouldInsertAndTakeBack_data()
{
    QTest::addColumn<MakeCommand>("command");
    QTest::addColumn<QString>("document");
    QTest::addColumn<QByteArray>("reference");
    QTest::addColumn<QString>("expected");

    const auto row = [](const char *name, MakeCommand command, const char *document,
                        const char *reference, const char *expected) {
        QTest::newRow(name) << command << QString::fromLatin1(document) << QByteArray(reference)
                            << QString::fromLatin1(expected);
    };
    row("child of a bone", make<InsertChild>, "H[A[a],B]", "A", "H[A[a,+],B]");
    row("child of a leaf", make<InsertChild>, "H[A[a],B]", "B", "H[A[a],B[+]]");
    row("child of the head", make<InsertChild>, "H[A[a],B]", "H", "H[A[a],B,+]");
    row("child of a lonely head", make<InsertChild>, "H", "H", "H[+]");
    row("child of the second head", make<InsertChild>, "H[A];G[B]", "G", "H[A];G[B,+]");
    row("back in the middle", make<InsertBack>, "H[A[a],B]", "A", "H[A[a],+,B]");
    row("back at the end", make<InsertBack>, "H[A[a],B]", "B", "H[A[a],B,+]");
    row("back deep down", make<InsertBack>, "H[A[a[x,y]]]", "x", "H[A[a[x,+,y]]]");
    row("back of a head", make<InsertBack>, "H[A];G", "H", "H[A];*;G");
    row("back of the last head", make<InsertBack>, "H[A];G", "G", "H[A];G;*");
    row("front at the start", make<InsertFront>, "H[A[a],B]", "A", "H[+,A[a],B]");
    row("front in the middle", make<InsertFront>, "H[A[a],B]", "B", "H[A[a],+,B]");
    row("front of a head", make<InsertFront>, "H[A];G", "H", "*;H[A];G");
    row("front of the last head", make<InsertFront>, "H[A];G", "G", "H[A];*;G");
    row("parent of a leaf", make<InsertParent>, "H[A[a],B]", "B", "H[A[a],+[B]]");
    row("parent of a bone", make<InsertParent>, "H[A[a,b],B]", "A", "H[+[A[a,b]],B]");
    row("parent in the middle", make<InsertParent>, "H[P[x,y,S[s],z]]", "S", "H[P[x,y,+[S[s]],z]]");
    row("parent of a head", make<InsertParent>, "H[A[a],B]", "H", "*[H[A[a],B]]");
    row("parent of the second head", make<InsertParent>, "H[A];G[B];F", "G", "H[A];*[G[B]];F");
    row("free", make<InsertFree>, "H[A]", "H", "H[A];*");
    row("free in an empty model", make<InsertFree>, "", "", "*");
}

void TestInsertCommands::shouldInsertAndTakeBack()
{
    QFETCH(MakeCommand, command);
    QFETCH(QString, document);
    QFETCH(QByteArray, reference);
    QFETCH(QString, expected);
    CommandFixture f(document);
    f.draw();

    QCOMPARE(f.roundTripFault(command(f.model.get(), f.index(reference))), QString());

    QCOMPARE(f.text(), expected);
    f.stack->undo();
    QCOMPARE(f.text(), document);
}

void TestInsertCommands::shouldNameThemselvesInTheirOwnContext()
{
    CommandFixture f(QStringLiteral("H[A]"));
    FishModel *const model = f.model.get();
    const QModelIndex index = f.index("A");
    QCOMPARE(InsertChild(model, index).text(), QStringLiteral("Insert child subject"));
    QCOMPARE(InsertBack(model, index).text(), QStringLiteral("Insert subject back"));
    QCOMPARE(InsertFront(model, index).text(), QStringLiteral("Insert subject front"));
    QCOMPARE(InsertParent(model, index).text(), QStringLiteral("Insert subject as parent"));
    QCOMPARE(InsertFree(model).text(), QStringLiteral("Insert free subject"));
    const auto translated = [](const char *context, const std::function<QString()> &text) {
        const BracketTranslator translator(context);
        return text();
    };
    QCOMPARE(translated("InsertChild", [&] { return InsertChild(model, index).text(); }),
             QStringLiteral("[Insert child subject]"));
    QCOMPARE(translated("InsertBack", [&] { return InsertBack(model, index).text(); }),
             QStringLiteral("[Insert subject back]"));
    QCOMPARE(translated("InsertFront", [&] { return InsertFront(model, index).text(); }),
             QStringLiteral("[Insert subject front]"));
    QCOMPARE(translated("InsertParent", [&] { return InsertParent(model, index).text(); }),
             QStringLiteral("[Insert subject as parent]"));
    QCOMPARE(translated("InsertFree", [&] { return InsertFree(model).text(); }),
             QStringLiteral("[Insert free subject]"));
}

void TestInsertCommands::shouldKnowTheUuidOfTheReference()
{
    CommandFixture f(QStringLiteral("H[A]"));
    QCOMPARE(InsertChild(f.model.get(), f.index("A")).uuid(), QStringLiteral("u-A"));
    QCOMPARE(InsertBack(f.model.get(), f.index("A")).uuid(), QStringLiteral("u-A"));
    QCOMPARE(InsertFront(f.model.get(), f.index("A")).uuid(), QStringLiteral("u-A"));
    QCOMPARE(InsertParent(f.model.get(), f.index("H")).uuid(), QStringLiteral("u-H"));
    QCOMPARE(InsertChild(f.model.get(), QModelIndex()).uuid(), QStringLiteral("-1"));
    QCOMPARE(InsertChild(f.model.get(), f.index("A").siblingAtColumn(3)).uuid(),
             QStringLiteral("u-A"));
    QCOMPARE(InsertFree(f.model.get()).uuid(), QString());
}

void TestInsertCommands::shouldDrawOneUuidForAllTimes()
{
    CommandFixture f(QStringLiteral("H[A]"));
    auto *const command = new InsertBack(f.model.get(), f.index("A"));
    QVERIFY(command->newUuid().isEmpty());

    f.stack->push(command);
    const QString uuid = command->newUuid();
    QCOMPARE(uuid.size(), 38);
    QCOMPARE(f.node("H")->childAtIndex(1)->uuid(), uuid);
    f.stack->undo();
    f.stack->redo();
    QCOMPARE(command->newUuid(), uuid);
    QCOMPARE(f.node("H")->childAtIndex(1)->uuid(), uuid);
}

void TestInsertCommands::shouldNameTheParentAsPid()
{
    CommandFixture f(QStringLiteral("H[A[a]]"));
    f.stack->push(new InsertChild(f.model.get(), f.index("A")));
    QCOMPARE(f.node("A")->childAtIndex(1)->pid(), QStringLiteral("u-A"));
    f.stack->push(new InsertParent(f.model.get(), f.index("a")));
    const TreeItem *const above = f.node("A")->childAtIndex(0);
    QCOMPARE(above->pid(), QStringLiteral("u-A"));
    QCOMPARE(f.node("a")->pid(), above->uuid());
    f.stack->push(new InsertParent(f.model.get(), f.index("H")));
    QCOMPARE(f.node("H")->pid(), f.document(0)->treeItem()->childAtIndex(0)->uuid());
    QVERIFY(!f.document(0)->treeItem()->childAtIndex(0)->isHaveParentTask());
}

void TestInsertCommands::shouldGiveTheReferenceAndItsParentAUuid()
{
    CommandFixture f(QStringLiteral("H[A[a,b],B]"));
    f.node("A")->setUuid(QString());
    f.node("a")->setUuid(QStringLiteral("-1"));
    f.node("b")->setUuid(QString());
    f.node("H")->setUuid(QString());
    const QSignalSpy changes(f.model.get(), &FishModel::dataChanged);

    const InsertBack command(f.model.get(), f.index("a"));

    QCOMPARE(command.uuid(), f.node("a")->uuid());
    QCOMPARE(f.node("a")->uuid().size(), 38);
    QCOMPARE(f.node("A")->uuid().size(), 38);
    QVERIFY(f.node("b")->uuid().isEmpty());
    QVERIFY(f.node("H")->uuid().isEmpty());
    QVERIFY(!f.document(0)->modified());
    QCOMPARE(changes.count(), 0);
    QVERIFY(f.document(0)->treeItem()->uuid() == QLatin1String("-1"));
    const InsertChild ofHead(f.model.get(), f.index("H"));
    QVERIFY(f.document(0)->treeItem()->uuid() == QLatin1String("-1"));
}

void TestInsertCommands::shouldLeaveThePidsOfChildrenWhenAUuidIsGiven()
{
    CommandFixture f(QStringLiteral("H[A[a]]"));
    f.node("A")->setUuid(QString());
    const InsertBack command(f.model.get(), f.index("A"));
    QCOMPARE(f.node("a")->pid(), QStringLiteral("u-A"));
}

void TestInsertCommands::shouldInsertInDocumentsWithoutUuids_data()
{
    shouldInsertAndTakeBack_data();
}

void TestInsertCommands::shouldInsertInDocumentsWithoutUuids()
{
    QFETCH(MakeCommand, command);
    QFETCH(QString, document);
    QFETCH(QByteArray, reference);
    QFETCH(QString, expected);
    for (const char *none : {"", "-1"}) {
        CommandFixture f(document);
        for (TreeItem *node : allNodes(*f.model))
            node->setUuid(QLatin1String(none));
        f.draw();
        QCOMPARE(f.roundTripFault(command(f.model.get(), f.index(reference))), QString());
        QCOMPARE(f.text(), expected);
    }
}

void TestInsertCommands::shouldStayInTheDocumentTheyWereMadeFor_data()
{
    QTest::addColumn<MakeCommand>("command");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, MakeCommand command, const char *expected) {
        QTest::newRow(name) << command << QString::fromLatin1(expected);
    };
    row("child", make<InsertChild>, "H[A[a],B];H[A[a,+],B]");
    row("back", make<InsertBack>, "H[A[a],B];H[A[a],+,B]");
    row("front", make<InsertFront>, "H[A[a],B];H[+,A[a],B]");
    row("parent", make<InsertParent>, "H[A[a],B];H[+[A[a]],B]");
}

void TestInsertCommands::shouldStayInTheDocumentTheyWereMadeFor()
{
    QFETCH(MakeCommand, command);
    QFETCH(QString, expected);
    CommandFixture f(QStringLiteral("H[A[a],B];H[A[a],B]"));
    f.draw();
    const QModelIndex second = f.model->index(0, 0, f.model->index(1, 0));

    QCOMPARE(f.roundTripFault(command(f.model.get(), second)), QString());

    QCOMPARE(f.text(), expected);
}

void TestInsertCommands::shouldTellCopiesOfOneUuidApart()
{
    CommandFixture f(QStringLiteral("H[A,B,C]"));
    f.node("C")->setUuid(QStringLiteral("u-A"));
    QCOMPARE(f.roundTripFault(new InsertChild(f.model.get(), f.index("C"))), QString());
    QCOMPARE(f.text(), QStringLiteral("H[A,B,C[+]]"));
}

void TestInsertCommands::shouldFollowTheRulesWhenTheReferenceIsGone_data()
{
    QTest::addColumn<MakeCommand>("command");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, MakeCommand command, const char *expected) {
        QTest::newRow(name) << command << QString::fromLatin1(expected);
    };
    // Without a parent the top level is meant, and the row of nothing is -1.
    row("child", make<InsertChild>, "H[B];*");
    row("back", make<InsertBack>, "*;H[B]");
    row("front", make<InsertFront>, "H[B]");
    row("parent", make<InsertParent>, "H[B]");
}

void TestInsertCommands::shouldFollowTheRulesWhenTheReferenceIsGone()
{
    QFETCH(MakeCommand, command);
    QFETCH(QString, expected);
    CommandFixture f(QStringLiteral("H[A,B]"));
    UndoCommand *const pushed = command(f.model.get(), f.index("A"));
    f.model->removeRows(0, 1, f.index("H"));

    QCOMPARE(f.roundTripFault(pushed), QString());

    QCOMPARE(f.text(), expected);
}

void TestInsertCommands::shouldRemoveNothingWhenTheInsertionFailed()
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

void TestInsertCommands::shouldDoNothingWithoutAModel_data()
{
    QTest::addColumn<MakeCommand>("command");
    QTest::newRow("child") << MakeCommand(make<InsertChild>);
    QTest::newRow("back") << MakeCommand(make<InsertBack>);
    QTest::newRow("front") << MakeCommand(make<InsertFront>);
    QTest::newRow("parent") << MakeCommand(make<InsertParent>);
    QTest::newRow("free") << MakeCommand(make<InsertFree>);
}

void TestInsertCommands::shouldDoNothingWithoutAModel()
{
    QFETCH(MakeCommand, command);
    CommandFixture f(QStringLiteral("H[A]"));
    const std::unique_ptr<UndoCommand> made(command(nullptr, f.index("A")));
    made->redo();
    made->undo();
    QCOMPARE(f.text(), QStringLiteral("H[A]"));
}

void TestInsertCommands::shouldOutliveTheModel_data()
{
    shouldDoNothingWithoutAModel_data();
}

void TestInsertCommands::shouldOutliveTheModel()
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

void TestInsertCommands::shouldBringBackWhatWasPutBelowTheNewSubject()
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

void TestInsertCommands::shouldInsertAfreshWhenTheNewSubjectWasRemovedByOthers()
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

void TestInsertCommands::shouldFindTheNewSubjectWhereverItWasMoved()
{
    CommandFixture f(QStringLiteral("H[A,B];G"));
    f.stack->push(new InsertChild(f.model.get(), f.index("A")));
    f.model->moveRows(f.index("A"), 0, 1, f.index("G"), 0);
    f.stack->undo();
    QCOMPARE(f.text(), QStringLiteral("H[A,B];G"));
    f.stack->redo();
    QCOMPARE(f.text(), QStringLiteral("H[A[+],B];G"));
}

void TestInsertCommands::shouldKeepANewDocumentWhileItIsOut_data()
{
    QTest::addColumn<MakeCommand>("command");
    QTest::newRow("back") << MakeCommand(make<InsertBack>);
    QTest::newRow("front") << MakeCommand(make<InsertFront>);
    QTest::newRow("free") << MakeCommand(make<InsertFree>);
}

void TestInsertCommands::shouldKeepANewDocumentWhileItIsOut()
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

void TestInsertCommands::shouldMakeAllSpearsOfABoneThatWasNeverExpanded()
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

void TestInsertCommands::shouldMakeNoSpearBelowASubjectWithout()
{
    CommandFixture f(QStringLiteral("H[A[a],B]"));
    QGraphicsScene scene;
    scene.addItem(SpearBuilder(*f.model).buildHead(f.index("H")));
    const int items = scene.items().size();
    f.stack->push(new InsertChild(f.model.get(), f.index("a")));
    QCOMPARE(scene.items().size(), items);
    QVERIFY(!f.node("a")->childAtIndex(0)->spear());
}

void TestInsertCommands::shouldMakeASpearTheSizeOfItsParents()
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

void TestInsertCommands::shouldWorkOnAnyModelThatShowsUuids_data()
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

void TestInsertCommands::shouldWorkOnAnyModelThatShowsUuids()
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

FISHBONE_TEST(TestInsertCommands)
#include "tst_insertcommands.moc"
