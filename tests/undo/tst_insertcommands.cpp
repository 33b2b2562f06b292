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

class TestInsertCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldInsertAndTakeBack_data();
    void shouldInsertAndTakeBack();
    void shouldKeepIndexesThatAreHeld_data() { shouldInsertAndTakeBack_data(); }
    void shouldKeepIndexesThatAreHeld();
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

void TestInsertCommands::shouldKeepIndexesThatAreHeld()
{
    QFETCH(MakeCommand, command);
    QFETCH(QString, document);
    QFETCH(QByteArray, reference);
    CommandFixture f(document);
    f.draw();
    FishModel &model = *f.model;
    std::vector<std::pair<TreeItem *, QPersistentModelIndex>> held;
    const auto holdAll = [&] {
        held.clear();
        for (TreeItem *node : allNodes(model)) {
            const QModelIndex index = model.indexFromItem(node);
            for (int column = 0; column < model.columnCount(); ++column)
                held.emplace_back(node, index.sibling(index.row(), column));
        }
    };
    const auto strays = [&] {
        QStringList titles;
        for (const auto &[node, index] : held) {
            if (model.contains(node) && index.sibling(index.row(), 0) != model.indexFromItem(node))
                titles.append(node->title());
        }
        return titles;
    };
    holdAll();
    f.stack->push(command(&model, f.index(reference)));
    QCOMPARE(strays(), QStringList());
    holdAll();
    f.stack->undo();
    QCOMPARE(strays(), QStringList());
    holdAll();
    f.stack->redo();
    QCOMPARE(strays(), QStringList());
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

FISHBONE_TEST(TestInsertCommands)
#include "tst_insertcommands.moc"
