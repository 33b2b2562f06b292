// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QSignalSpy>
#include <QtTest>

#include <fishbone/undo/structuralcommands.h>
#include <tests/program/testprogram.h>
#include <tests/support/commandfixture.h>
#include <tests/support/dialogchecks.h>

using namespace TestSupport;

class TestDeleteCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldDeleteAndPutBack_data();
    void shouldDeleteAndPutBack();
    void shouldDeleteTheSubjectAtAnIndex_data();
    void shouldDeleteTheSubjectAtAnIndex();
    void shouldNameItselfInItsOwnContext();
    void shouldKeepTheSnapshot();
    void shouldTakeANewModelAndSnapshot();
    void shouldNoteTheRowsAsTheDeletionsGoOn();
    void shouldNoteNoRowOfWhatIsNotThere();
    void shouldNoteNoRowsForNoSubject();
    void shouldPutNothingBackThatItDidNotDelete();
    void shouldReadNoSnapshotInANullUuid();

    void shouldBringBackTheVeryNodes();
    void shouldPutBackWhatNoSnapshotHolds();
    void shouldPutBackASubjectWhosePidNamesAnother();
    void shouldKeepTheOrderOfDescendantsOfAFrontRow();
    void shouldDeleteDeeperThanAnySnapshot();
    void shouldAnnounceOneRowEachWay();
    void shouldPutBackAtTheEndOfAListThatOthersShortened();
    void shouldKeepWhatCannotGoBackYet();
    void shouldKeepAllThatCannotGoBackYet();
    void shouldTakeAChildOnlyWithItsParent();

    void shouldTakeAHeadWithItsDocument();
    void shouldPutSeveralDocumentsBack();
    void shouldDeleteTheDocumentItStillHolds();

    void shouldDoNothingWithoutAModel();
    void shouldOutliveTheModelUnderASanitizer();
    void shouldDeleteManySiblingsInReasonableTime();
};

void TestDeleteCommand::shouldDeleteAndPutBack_data()
{
    QTest::addColumn<QString>("document");
    QTest::addColumn<QString>("titles");
    QTest::addColumn<QString>("expected");

    const auto row = [](const char *name, const char *document, const char *titles,
                        const char *expected) {
        QTest::newRow(name) << QString::fromLatin1(document) << QString::fromLatin1(titles)
                            << QString::fromLatin1(expected);
    };
    row("leaf", "H[A[a],B]", "B", "H[A[a]]");
    row("bone", "H[A[a[x],b],B]", "A", "H[B]");
    row("first of three", "H[A,B,C]", "A", "H[B,C]");
    row("last of three", "H[A,B,C]", "C", "H[A,B]");
    row("two siblings", "H[A,B,C,D]", "B,D", "H[A,C]");
    row("two siblings, last first", "H[A,B,C,D]", "D,B", "H[A,C]");
    row("neighbours", "H[A,B,C,D]", "B,C", "H[A,D]");
    row("all", "H[A,B,C]", "A,B,C", "H");
    row("different parents", "H[A[a,b],B[c,d]]", "a,d,B", "H[A[b]]");
    row("a parent and its child", "H[A[a,b],B]", "A,a", "H[B]");
    row("a child and its parent", "H[A[a,b],B]", "a,A", "H[B]");
    row("from two documents", "H[A,B];G[C,D]", "A,D", "H[B];G[C]");
    row("a head", "H[A,B];G[C]", "H", "G[C]");
    row("the last head", "H[A,B]", "H", "");
    row("all heads", "H[A];G[C];F", "G,H,F", "");
    row("a head and a bone", "H[A];G[C]", "C,H", "G");
    row("a head and what is below it", "H[A];G[C]", "A,H", "G[C]");
    row("one twice", "H[A,B,C]", "B,B", "H[A,C]");
}

void TestDeleteCommand::shouldDeleteAndPutBack()
{
    QFETCH(QString, document);
    QFETCH(QString, titles);
    QFETCH(QString, expected);
    CommandFixture f(document);
    f.draw();
    const QJsonObject snapshot = f.snapshot(titles.split(QLatin1Char(',')));

    QCOMPARE(f.roundTripFault(new EditDelete(f.model.get(), snapshot)), QString());

    QCOMPARE(f.text(), expected);
    f.stack->undo();
    QCOMPARE(f.text(), document);
}

void TestDeleteCommand::shouldDeleteTheSubjectAtAnIndex_data()
{
    QTest::addColumn<QByteArray>("title");
    QTest::addColumn<QString>("expected");
    QTest::newRow("leaf") << QByteArray("B") << QStringLiteral("H[A[a]];G");
    QTest::newRow("bone") << QByteArray("A") << QStringLiteral("H[B];G");
    QTest::newRow("deep") << QByteArray("a") << QStringLiteral("H[A,B];G");
    QTest::newRow("head") << QByteArray("H") << QStringLiteral("G");
    QTest::newRow("second head") << QByteArray("G") << QStringLiteral("H[A[a],B]");
}

void TestDeleteCommand::shouldDeleteTheSubjectAtAnIndex()
{
    QFETCH(QByteArray, title);
    QFETCH(QString, expected);
    for (const char *uuid : {"as it is", "", "-1"}) {
        CommandFixture f(QStringLiteral("H[A[a],B];G"));
        if (QLatin1String(uuid) != QLatin1String("as it is")) {
            for (TreeItem *node : allNodes(*f.model))
                node->setUuid(QLatin1String(uuid));
        }
        f.draw();
        QCOMPARE(f.roundTripFault(new EditDelete(f.model.get(), f.index(title))), QString());
        QCOMPARE(f.text(), expected);
    }
}

void TestDeleteCommand::shouldNameItselfInItsOwnContext()
{
    CommandFixture f(QStringLiteral("H[A]"));
    QCOMPARE(EditDelete(f.model.get(), QJsonObject()).text(), QStringLiteral("Delete selecteds"));
    QCOMPARE(EditDelete(f.model.get(), f.index("A")).text(),
             QStringLiteral("Delete current selected"));
    const BracketTranslator translator("EditDelete");
    QCOMPARE(EditDelete(f.model.get(), QJsonObject()).text(), QStringLiteral("[Delete selecteds]"));
    QCOMPARE(EditDelete(f.model.get(), f.index("A")).text(),
             QStringLiteral("[Delete current selected]"));
}

void TestDeleteCommand::shouldKeepTheSnapshot()
{
    CommandFixture f(QStringLiteral("H[A[a],B]"));
    const QJsonObject several = f.snapshot({QStringLiteral("A"), QStringLiteral("B")});
    QCOMPARE(EditDelete(f.model.get(), several).objects(), several);
    QCOMPARE(EditDelete(f.model.get(), f.index("A")).objects(), f.snapshot({QStringLiteral("A")}));
    QCOMPARE(EditDelete(f.model.get(), QModelIndex()).objects(), QJsonObject());
}

void TestDeleteCommand::shouldTakeANewModelAndSnapshot()
{
    CommandFixture f(QStringLiteral("H[A,B]"));
    CommandFixture other(QStringLiteral("G[C,D]"));
    EditDelete command(f.model.get(), f.snapshot({QStringLiteral("A")}));
    command.init(other.model.get(), other.snapshot({QStringLiteral("D")}));
    QCOMPARE(command.objects(), other.snapshot({QStringLiteral("D")}));
    command.redo();
    QCOMPARE(f.text(), QStringLiteral("H[A,B]"));
    QCOMPARE(other.text(), QStringLiteral("G[C]"));
    command.undo();
    QCOMPARE(other.text(), QStringLiteral("G[C,D]"));
}

void TestDeleteCommand::shouldNoteTheRowsAsTheDeletionsGoOn()
{
    CommandFixture f(QStringLiteral("H[A,B,C,D]"));
    auto *const command =
        new EditDelete(f.model.get(), f.snapshot({QStringLiteral("B"), QStringLiteral("D")}));
    QCOMPARE(command->rows(), QList<int>());
    f.stack->push(command);
    QCOMPARE(command->rows(), (QList<int>{1, 2}));
    f.stack->undo();
    f.stack->redo();
    QCOMPARE(command->rows(), (QList<int>{1, 2}));
}

void TestDeleteCommand::shouldNoteNoRowOfWhatIsNotThere()
{
    CommandFixture f(QStringLiteral("H[A,B,C]"));
    const QJsonObject snapshot =
        f.snapshot({QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")});
    f.model->removeRows(1, 1, f.index("H"));
    EditDelete command(f.model.get(), snapshot);
    command.redo();
    QCOMPARE(command.rows(), (QList<int>{0, -1, 0}));
}

void TestDeleteCommand::shouldNoteNoRowsForNoSubject()
{
    CommandFixture f(QStringLiteral("H[A]"));
    EditDelete command(f.model.get(), QModelIndex());
    command.redo();
    QCOMPARE(command.objects(), QJsonObject());
    QCOMPARE(command.rows(), QList<int>());
    command.undo();
    QCOMPARE(f.text(), QStringLiteral("H[A]"));
}

void TestDeleteCommand::shouldPutNothingBackThatItDidNotDelete()
{
    CommandFixture f(QStringLiteral("H[A,B,C]"));
    const QJsonObject snapshot = f.snapshot({QStringLiteral("A"), QStringLiteral("B")});
    f.model->removeRows(1, 1, f.index("H"));
    QCOMPARE(f.roundTripFault(new EditDelete(f.model.get(), snapshot)), QString());
    f.stack->undo();
    QCOMPARE(f.text(), QStringLiteral("H[A,C]"));
    for (const char *uuid : {"", "-1", "nobody"}) {
        const QJsonObject named{{QStringLiteral("uuid"), QLatin1String(uuid)},
                                {QStringLiteral("pid"), QStringLiteral("u-H")}};
        QCOMPARE(f.roundTripFault(new EditDelete(f.model.get(), named)), QString());
        QCOMPARE(f.text(), QStringLiteral("H[A,C]"));
    }
}

void TestDeleteCommand::shouldReadNoSnapshotInANullUuid()
{
    CommandFixture f(QStringLiteral("H[A,B]"));
    QJsonObject snapshot = f.snapshot({QStringLiteral("A"), QStringLiteral("B")});
    snapshot.insert(QStringLiteral("uuid"), QJsonValue());
    QCOMPARE(f.roundTripFault(new EditDelete(f.model.get(), snapshot)), QString());
    QCOMPARE(f.text(), QStringLiteral("H"));
}

void TestDeleteCommand::shouldBringBackTheVeryNodes()
{
    CommandFixture f(QStringLiteral("H[A[a],B]"));
    const TreeItem *const bone = f.node("A");
    const TreeItem *const child = f.node("a");
    f.stack->push(new EditDelete(f.model.get(), f.index("A")));
    f.stack->undo();
    QCOMPARE(f.node("A"), bone);
    QCOMPARE(f.node("a"), child);
}

void TestDeleteCommand::shouldPutBackWhatNoSnapshotHolds()
{
    CommandFixture f(QStringLiteral("H[A[a],B]"));
    f.node("A")->setSpearItemIsMovable(false);
    f.node("a")->setSpearItemIsMovable(false);
    f.node("a")->setEditModified(true);
    f.node("a")->setManagerName(QString());
    f.node("a")->setCreateDate((Q_INT64_C(1) << 53) + 1);
    QCOMPARE(f.roundTripFault(new EditDelete(f.model.get(), f.index("A"))), QString());
    f.stack->undo();
    QVERIFY(!f.node("A")->spearItemIsMovable());
    QVERIFY(!f.node("a")->spearItemIsMovable());
    QVERIFY(f.node("a")->isEditModified());
    QVERIFY(f.node("a")->managerName().isNull());
    QCOMPARE(f.node("a")->createDate(), (Q_INT64_C(1) << 53) + 1);
}

void TestDeleteCommand::shouldPutBackASubjectWhosePidNamesAnother()
{
    for (const char *pid : {"u-B", "nobody", "", "-1"}) {
        CommandFixture f(QStringLiteral("H[A[a,b],B]"));
        f.node("a")->setPid(QLatin1String(pid));
        f.draw();
        QCOMPARE(f.roundTripFault(new EditDelete(f.model.get(), f.snapshot({QStringLiteral("a")}))),
                 QString());
        f.stack->undo();
        QCOMPARE(f.text(), QStringLiteral("H[A[a,b],B]"));
        QCOMPARE(f.node("a")->pid(), QLatin1String(pid));
    }
}

void TestDeleteCommand::shouldKeepTheOrderOfDescendantsOfAFrontRow()
{
    // Reading a snapshot at a row puts the children past that row in reverse.
    CommandFixture f(QStringLiteral("H[A[a,b,c,d[x,y,z]],B]"));
    f.draw();
    QCOMPARE(f.roundTripFault(new EditDelete(f.model.get(), f.snapshot({QStringLiteral("A")}))),
             QString());
    f.stack->undo();
    QCOMPARE(f.text(), QStringLiteral("H[A[a,b,c,d[x,y,z]],B]"));
}

void TestDeleteCommand::shouldDeleteDeeperThanAnySnapshot()
{
    FishModel model;
    const TreeItem *const head = addDocument(model, makeChain(30000));
    TreeItem *const second = head->childAtIndex(0);
    UndoStack stack;
    stack.push(new EditDelete(&model, model.indexFromItem(second)));
    QCOMPARE(head->childCount(), 0);
    stack.undo();
    QCOMPARE(head->childAtIndex(0), second);
    stack.redo();
    QCOMPARE(head->childCount(), 0);
}

void TestDeleteCommand::shouldAnnounceOneRowEachWay()
{
    CommandFixture f(QStringLiteral("H[A[a],B[b],C]"));
    const QSignalSpy inserted(f.model.get(), &FishModel::rowsInserted);
    const QSignalSpy removed(f.model.get(), &FishModel::rowsRemoved);
    const QSignalSpy changed(f.model.get(), &FishModel::dataChanged);
    f.stack->push(new EditDelete(f.model.get(), f.index("B")));
    QCOMPARE(removed.count(), 1);
    QCOMPARE(removed.first().at(0).toModelIndex(), f.index("H"));
    QCOMPARE(removed.first().at(1).toInt(), 1);
    QCOMPARE(removed.first().at(2).toInt(), 1);
    f.stack->undo();
    QCOMPARE(inserted.count(), 1);
    QCOMPARE(inserted.first().at(0).toModelIndex(), f.index("H"));
    QCOMPARE(inserted.first().at(1).toInt(), 1);
    QCOMPARE(inserted.first().at(2).toInt(), 1);
    QCOMPARE(removed.count(), 1);
    QCOMPARE(changed.count(), 0);
}

void TestDeleteCommand::shouldPutBackAtTheEndOfAListThatOthersShortened()
{
    CommandFixture f(QStringLiteral("H[A,B,C];G"));
    f.stack->push(new EditDelete(f.model.get(), f.index("C")));
    f.model->removeRows(0, 2, f.index("H"));
    f.stack->undo();
    QCOMPARE(f.text(), QStringLiteral("H[C];G"));

    f.stack->push(new EditDelete(f.model.get(), f.index("G")));
    f.model->removeRows(0, 1, QModelIndex());
    f.stack->undo();
    QCOMPARE(f.text(), QStringLiteral("G"));
}

void TestDeleteCommand::shouldKeepWhatCannotGoBackYet()
{
    CommandFixture f(QStringLiteral("H[A[a,b],B]"));
    auto *const command =
        new EditDelete(f.model.get(), f.snapshot({QStringLiteral("a"), QStringLiteral("B")}));
    f.stack->push(command);
    const std::unique_ptr<TreeItem> parent(f.model->takeRow(0, f.index("H")));
    f.stack->undo();
    QCOMPARE(f.text(), QStringLiteral("H[B]"));

    // Its parent comes back, and the next undo brings the subject as well.
    f.stack->redo();
    QCOMPARE(f.text(), QStringLiteral("H"));
    QVERIFY(f.model->insertExistItemRows(f.index("H"), {new TreeItem}));
    TreeItem *const again = f.node("H")->childAtIndex(0);
    again->setTitle(QStringLiteral("A"));
    again->setUuid(QStringLiteral("u-A"));
    f.stack->undo();
    QCOMPARE(f.text(), QStringLiteral("H[B,A[a]]"));
}

void TestDeleteCommand::shouldKeepAllThatCannotGoBackYet()
{
    CommandFixture f(QStringLiteral("H[A[a,b,c]]"));
    f.stack->push(new EditDelete(
        f.model.get(),
        f.snapshot({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")})));
    TreeItem *const parent = f.model->takeRow(0, f.index("H"));
    f.stack->undo();
    QCOMPARE(f.text(), QStringLiteral("H"));

    QVERIFY(f.model->putRow(0, parent, f.index("H")));
    f.stack->redo(); // finds none of them, and keeps what waits
    f.stack->undo();
    QCOMPARE(f.text(), QStringLiteral("H[A[a,b,c]]"));
}

void TestDeleteCommand::shouldTakeAChildOnlyWithItsParent()
{
    CommandFixture f(QStringLiteral("H[A[a,b],B]"));
    auto *const command = new EditDelete(
        f.model.get(), f.snapshot({QStringLiteral("b"), QStringLiteral("a"), QStringLiteral("A")}));
    QCOMPARE(f.roundTripFault(command), QString());
    QCOMPARE(command->rows(), (QList<int>{-1, -1, 0}));
    f.stack->undo();
    QCOMPARE(f.text(), QStringLiteral("H[A[a,b],B]"));
}

void TestDeleteCommand::shouldTakeAHeadWithItsDocument()
{
    CommandFixture f(QStringLiteral("H[A];G"));
    FishInfo *const document = f.document(0);
    document->setFileName(QStringLiteral("plan.json"));
    document->setModified(true);
    document->addFishToHistory(f.index("A"));

    f.stack->push(new EditDelete(f.model.get(), f.index("H")));
    QCOMPARE(f.text(), QStringLiteral("G"));
    f.stack->undo();

    QCOMPARE(f.document(0), document);
    QCOMPARE(document->fileName(), QStringLiteral("plan.json"));
    QVERIFY(document->modified());
    QCOMPARE(document->fishHistorys(), QStringList{QStringLiteral("u-A")});
    QCOMPARE(document->model(), f.model.get());
}

void TestDeleteCommand::shouldPutSeveralDocumentsBack()
{
    CommandFixture f(QStringLiteral("H[A];G[B];F[C];E"));
    const QList<FishInfo *> documents = f.model->fishList();
    auto *const command = new EditDelete(
        f.model.get(), f.snapshot({QStringLiteral("F"), QStringLiteral("B"), QStringLiteral("H")}));
    QCOMPARE(f.roundTripFault(command), QString());
    QCOMPARE(command->rows(), (QList<int>{2, 0, 0}));
    QCOMPARE(f.text(), QStringLiteral("G;E"));
    f.stack->undo();
    QCOMPARE(f.model->fishList(), documents);
}

void TestDeleteCommand::shouldDeleteTheDocumentItStillHolds()
{
    CommandFixture f(QStringLiteral("H[A];G"));
    const QPointer<FishInfo> document = f.document(0);
    f.stack->push(new EditDelete(f.model.get(), f.index("H")));
    QVERIFY(document);
    f.stack.reset();
    QVERIFY(!document);
    QCOMPARE(f.text(), QStringLiteral("G"));
}

void TestDeleteCommand::shouldDoNothingWithoutAModel()
{
    CommandFixture f(QStringLiteral("H[A]"));
    EditDelete named(nullptr, f.snapshot({QStringLiteral("A")}));
    EditDelete indexed(nullptr, f.index("A"));
    for (EditDelete *command : {&named, &indexed}) {
        command->redo();
        command->undo();
    }
    QCOMPARE(f.text(), QStringLiteral("H[A]"));
}

void TestDeleteCommand::shouldOutliveTheModelUnderASanitizer()
{
    for (const char *title : {"A", "H"}) {
        for (int steps = 0; steps < 4; ++steps) {
            auto model = std::make_unique<FishModel>();
            loadDocument(*model, QStringLiteral("H[A[a]]"));
            EditDelete command(model.get(), indexTitled(*model, QLatin1String(title)));
            for (int step = 0; step < steps; ++step)
                step % 2 == 0 ? command.redo() : command.undo();
            model.reset();
            command.undo();
            command.redo();
            command.undo();
        }
    }
}

void TestDeleteCommand::shouldDeleteManySiblingsInReasonableTime()
{
    FishModel model;
    const TreeItem *const head = addDocument(model, makeFan(10000));
    QJsonArray names;
    for (int row = 0; row < head->childCount(); row += 2) {
        names.append(QJsonObject{{QStringLiteral("uuid"), head->childAtIndex(row)->uuid()},
                                 {QStringLiteral("pid"), head->uuid()}});
    }
    const QList<TreeItem *> before = head->children();
    EditDelete command(&model, QJsonObject{{QStringLiteral("children"), names}});
    QElapsedTimer timer;
    timer.start();
    command.redo();
    const qint64 redone = timer.restart();
    QCOMPARE(head->childCount(), 5000);
    command.undo();
    const qint64 undone = timer.elapsed();
    QCOMPARE(head->children(), before);
    // Walking all nodes for each subject would take minutes.
    QVERIFY2(redone < 5000, qPrintable(QString::number(redone)));
    QVERIFY2(undone < 5000, qPrintable(QString::number(undone)));
}

FISHBONE_TEST(TestDeleteCommand)
#include "tst_deletecommand.moc"
