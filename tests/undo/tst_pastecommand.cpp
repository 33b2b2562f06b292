// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QTemporaryDir>
#include <QtTest>

#include <fishbone/undo/structuralcommands.h>
#include <tests/program/testprogram.h>
#include <tests/support/commandfixture.h>
#include <tests/support/dialogchecks.h>

using namespace TestSupport;

class TestPasteCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldPasteAndTakeOut_data();
    void shouldPasteAndTakeOut();
    void shouldNameItselfInItsOwnContext();
    void shouldKnowTargetAndSnapshot();
    void shouldListThePastedSubjectsNewestFirst();
    void shouldKeepUuidsAndPidsOfTheSnapshot();
    void shouldOrderDescendantsAsReadingThereDoes();
    void shouldBringBackTheVeryCopies();
    void shouldPasteASubjectWithoutUuid();
    void shouldGiveTheTargetAUuid();
    void shouldPasteNothingWithoutATarget();

    void shouldTakeOutTheCopyAndNotTheOriginal_data();
    void shouldTakeOutTheCopyAndNotTheOriginal();
    void shouldTakeOutNothingWhenOnlyTheOriginalIsLeft();
    void shouldFindACopyThatWasMoved();
    void shouldFindTheCopyInADocumentThatWasLoadedAnew();
    void shouldPasteAgainWhatOthersRemoved();
    void shouldStayInTheDocumentItWasMadeFor();

    void shouldRenewUuidsThatTheModelHas();
    void shouldKeepUuidsThatTheModelHasNot();
    void shouldRenewUuidsThatTheSnapshotRepeats();
    void shouldKeepTheOrderOfDescendantsOfNewSubjects();
    void shouldGiveTheSameNewUuidsAgain();
    void shouldLeaveMissingUuidsOfNewSubjectsAlone();

    void shouldMakeTheSpearsOfWhatItPastes();
    void shouldMakeAllSpearsOfABoneThatWasNeverExpanded();
    void shouldMakeNoSpearsBelowATargetWithout();

    void shouldOutliveTheModelUnderASanitizer();
    void shouldPasteManySubjectsInReasonableTime();
};

void TestPasteCommand::shouldPasteAndTakeOut_data()
{
    QTest::addColumn<QString>("document");
    QTest::addColumn<QString>("titles");
    QTest::addColumn<QByteArray>("target");
    QTest::addColumn<QString>("expected");

    const auto row = [](const char *name, const char *document, const char *titles,
                        const char *target, const char *expected) {
        QTest::newRow(name) << QString::fromLatin1(document) << QString::fromLatin1(titles)
                            << QByteArray(target) << QString::fromLatin1(expected);
    };
    row("leaf onto a leaf", "H[A,B]", "A", "B", "H[A,B[A]]");
    row("leaf onto its parent", "H[A,B]", "A", "H", "H[A,B,A]");
    row("leaf onto itself", "H[A,B]", "A", "A", "H[A[A],B]");
    row("bone into itself", "H[A[a],B]", "A", "a", "H[A[a[A[a]]],B]");
    row("three onto two", "H[A,B,C,T[x,y]]", "A,B,C", "T", "H[A,B,C,T[x,y,A,B,C]]");
    row("onto the head", "H[A[a,b]]", "a,b", "H", "H[A[a,b],a,b]");
    row("into another document", "H[A[a]];G[B]", "A", "B", "H[A[a]];G[B[A[a]]]");
    row("a head", "H[A];G[B]", "H", "B", "H[A];G[B[H[A]]]");
    row("a head into itself", "H[A]", "H", "A", "H[A[H[A]]]");
    row("one twice", "H[A,B]", "A,A", "B", "H[A,B[A,A]]");
}

void TestPasteCommand::shouldPasteAndTakeOut()
{
    QFETCH(QString, document);
    QFETCH(QString, titles);
    QFETCH(QByteArray, target);
    QFETCH(QString, expected);
    for (bool asNew : {false, true}) {
        CommandFixture f(document);
        f.draw();
        const QJsonObject snapshot = f.snapshot(titles.split(QLatin1Char(',')));
        auto *const command = new EditPaste(f.model.get(), f.index(target), snapshot);
        command->setPasteAsNew(asNew);

        QCOMPARE(f.roundTripFault(command), QString());

        QCOMPARE(f.text(), expected);
        f.stack->undo();
        QCOMPARE(f.text(), document);
    }
}

void TestPasteCommand::shouldNameItselfInItsOwnContext()
{
    CommandFixture f(QStringLiteral("H"));
    QCOMPARE(EditPaste(f.model.get(), f.index("H"), QJsonObject()).text(),
             QStringLiteral("Paste from clipborad"));
    const BracketTranslator translator("EditPaste");
    QCOMPARE(EditPaste(f.model.get(), f.index("H"), QJsonObject()).text(),
             QStringLiteral("[Paste from clipborad]"));
}

void TestPasteCommand::shouldKnowTargetAndSnapshot()
{
    CommandFixture f(QStringLiteral("H[A]"));
    const QJsonObject snapshot = f.snapshot({QStringLiteral("A")});
    const EditPaste command(f.model.get(), f.index("H"), snapshot);
    QCOMPARE(command.targetUuid(), QStringLiteral("u-H"));
    QCOMPARE(command.objects(), snapshot);
    QCOMPARE(command.pastedUuids(), QStringList());
    QCOMPARE(EditPaste(f.model.get(), QModelIndex(), snapshot).targetUuid(), QStringLiteral("-1"));
}

void TestPasteCommand::shouldListThePastedSubjectsNewestFirst()
{
    CommandFixture f(QStringLiteral("H[A,B,C,T]"));
    auto *const command =
        new EditPaste(f.model.get(), f.index("T"),
                      f.snapshot({QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")}));
    const QStringList expected{QStringLiteral("u-C"), QStringLiteral("u-B"), QStringLiteral("u-A")};
    f.stack->push(command);
    QCOMPARE(command->pastedUuids(), expected);
    f.stack->undo();
    f.stack->redo();
    QCOMPARE(command->pastedUuids(), expected);
}

void TestPasteCommand::shouldKeepUuidsAndPidsOfTheSnapshot()
{
    CommandFixture f(QStringLiteral("H[A[a],B]"));
    f.stack->push(new EditPaste(f.model.get(), f.index("B"), f.snapshot({QStringLiteral("A")})));
    const TreeItem *const copy = f.node("B")->childAtIndex(0);
    QCOMPARE(copy->uuid(), QStringLiteral("u-A"));
    QCOMPARE(copy->pid(), QStringLiteral("u-H"));
    QCOMPARE(copy->childAtIndex(0)->uuid(), QStringLiteral("u-a"));
}

void TestPasteCommand::shouldOrderDescendantsAsReadingThereDoes()
{
    // A target without children: all descendants go to the front, one after the other. With one
    // child, the first descendant stays first.
    CommandFixture f(QStringLiteral("H[A[x,y,z],B,C[c]]"));
    f.draw();
    const QJsonObject snapshot = f.snapshot({QStringLiteral("A")});
    QCOMPARE(f.roundTripFault(new EditPaste(f.model.get(), f.index("B"), snapshot)), QString());
    QCOMPARE(f.text(), QStringLiteral("H[A[x,y,z],B[A[z,y,x]],C[c]]"));
    QCOMPARE(f.roundTripFault(new EditPaste(f.model.get(), f.index("C"), snapshot)), QString());
    QCOMPARE(f.text(), QStringLiteral("H[A[x,y,z],B[A[z,y,x]],C[c,A[x,z,y]]]"));
    QCOMPARE(f.roundTripFault(new EditPaste(f.model.get(), f.index("H"), snapshot)), QString());
    QCOMPARE(f.text(), QStringLiteral("H[A[x,y,z],B[A[z,y,x]],C[c,A[x,z,y]],A[x,y,z]]"));
}

void TestPasteCommand::shouldBringBackTheVeryCopies()
{
    CommandFixture f(QStringLiteral("H[A[a],B]"));
    f.stack->push(new EditPaste(f.model.get(), f.index("B"), f.snapshot({QStringLiteral("A")})));
    const TreeItem *const copy = f.node("B")->childAtIndex(0);
    f.stack->undo();
    f.stack->redo();
    QCOMPARE(f.node("B")->childAtIndex(0), copy);
}

void TestPasteCommand::shouldPasteASubjectWithoutUuid()
{
    CommandFixture f(QStringLiteral("H[A,B]"));
    f.draw();
    const QJsonObject unnamed{{QStringLiteral("title"), QStringLiteral("x")}};
    const QJsonObject snapshot{{QStringLiteral("children"), QJsonArray{unnamed, unnamed}}};
    QCOMPARE(f.roundTripFault(new EditPaste(f.model.get(), f.index("B"), snapshot)), QString());
    QCOMPARE(f.text(), QStringLiteral("H[A,B[x,x]]"));
    QVERIFY(f.node("B")->childAtIndex(0)->uuid() != f.node("B")->childAtIndex(1)->uuid());
}

void TestPasteCommand::shouldGiveTheTargetAUuid()
{
    CommandFixture f(QStringLiteral("H[A,B[b]]"));
    f.node("B")->setUuid(QString());
    auto *const command =
        new EditPaste(f.model.get(), f.index("B"), f.snapshot({QStringLiteral("A")}));
    QCOMPARE(command->targetUuid(), f.node("B")->uuid());
    QCOMPARE(command->targetUuid().size(), 38);
    QCOMPARE(f.node("b")->pid(), QStringLiteral("u-B"));
    QCOMPARE(f.roundTripFault(command), QString());
    QCOMPARE(f.text(), QStringLiteral("H[A,B[b,A]]"));
}

void TestPasteCommand::shouldPasteNothingWithoutATarget()
{
    CommandFixture f(QStringLiteral("H[A,B]"));
    const QJsonObject snapshot = f.snapshot({QStringLiteral("A")});
    auto *const nowhere = new EditPaste(f.model.get(), QModelIndex(), snapshot);
    QCOMPARE(f.roundTripFault(nowhere), QString());
    auto *const gone = new EditPaste(f.model.get(), f.index("B"), snapshot);
    f.model->removeRows(1, 1, f.index("H"));
    QCOMPARE(f.roundTripFault(gone), QString());
    QCOMPARE(gone->pastedUuids(), QStringList());
    QCOMPARE(f.roundTripFault(new EditPaste(f.model.get(), f.index("A"), QJsonObject())),
             QString());
    QCOMPARE(f.text(), QStringLiteral("H[A]"));
}

void TestPasteCommand::shouldTakeOutTheCopyAndNotTheOriginal_data()
{
    QTest::addColumn<QString>("document");
    QTest::addColumn<QByteArray>("target");
    QTest::newRow("original before the target") << QStringLiteral("H[A[a],B]") << QByteArray("B");
    QTest::newRow("original behind the target") << QStringLiteral("H[B,A[a]]") << QByteArray("B");
    QTest::newRow("original below the target") << QStringLiteral("H[A[a],B]") << QByteArray("H");
    QTest::newRow("target below the original") << QStringLiteral("H[A[a],B]") << QByteArray("a");
}

void TestPasteCommand::shouldTakeOutTheCopyAndNotTheOriginal()
{
    QFETCH(QString, document);
    QFETCH(QByteArray, target);
    CommandFixture f(document);
    f.draw();
    const std::vector<TreeItem *> before = allNodes(*f.model);
    const QJsonObject snapshot = f.snapshot({QStringLiteral("A")});
    for (int copies = 0; copies < 3; ++copies)
        f.stack->push(new EditPaste(f.model.get(), f.index(target), snapshot));
    for (int copies = 0; copies < 3; ++copies) {
        f.stack->undo();
        QCOMPARE(spearFault(*f.model), QString());
    }
    QCOMPARE(f.text(), document);
    QVERIFY(allNodes(*f.model) == before);
}

void TestPasteCommand::shouldTakeOutNothingWhenOnlyTheOriginalIsLeft()
{
    for (const char *target : {"H", "B"}) {
        CommandFixture f(QStringLiteral("H[A,B]"));
        const TreeItem *const original = f.node("A");
        f.stack->push(
            new EditPaste(f.model.get(), f.index(target), f.snapshot({QStringLiteral("A")})));
        f.model->removeRows(f.node(target)->childCount() - 1, 1, f.index(target));
        f.stack->undo();
        QCOMPARE(f.text(), QStringLiteral("H[A,B]"));
        QCOMPARE(f.node("A"), original);
    }
}

void TestPasteCommand::shouldFindACopyThatWasMoved()
{
    CommandFixture f(QStringLiteral("H[A,B];G"));
    f.stack->push(new EditPaste(f.model.get(), f.index("B"), f.snapshot({QStringLiteral("A")})));
    f.model->moveRows(f.index("B"), 0, 1, f.index("G"), 0);
    QCOMPARE(f.text(), QStringLiteral("H[A,B];G[A]"));
    f.stack->undo();
    QCOMPARE(f.text(), QStringLiteral("H[A,B];G"));
    f.stack->redo();
    QCOMPARE(f.text(), QStringLiteral("H[A,B[A]];G"));
}

void TestPasteCommand::shouldFindTheCopyInADocumentThatWasLoadedAnew()
{
    for (const char *target : {"H", "B"}) {
        CommandFixture f(QStringLiteral("H[A,B]"));
        f.stack->push(
            new EditPaste(f.model.get(), f.index(target), f.snapshot({QStringLiteral("A")})));
        QJsonObject saved;
        FishModel::write(saved, f.node("H"), true);
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("saved.json"));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(QJsonDocument(saved).toJson());
        file.close();
        QCOMPARE(f.model->reloadDataFromFile(path, f.document(0)), 0);

        f.stack->undo();
        QCOMPARE(f.text(), QStringLiteral("H[A,B]"));
    }
}

void TestPasteCommand::shouldPasteAgainWhatOthersRemoved()
{
    CommandFixture f(QStringLiteral("H[A,B,C]"));
    f.stack->push(new EditPaste(f.model.get(), f.index("C"),
                                f.snapshot({QStringLiteral("A"), QStringLiteral("B")})));
    f.model->removeRows(0, 1, f.index("C"));
    f.stack->undo();
    QCOMPARE(f.text(), QStringLiteral("H[A,B,C]"));
    f.stack->redo();
    QCOMPARE(f.text(), QStringLiteral("H[A,B,C[A,B]]"));
}

void TestPasteCommand::shouldStayInTheDocumentItWasMadeFor()
{
    CommandFixture f(QStringLiteral("H[A,B];H[A,B]"));
    const QModelIndex second = f.model->index(1, 0, f.model->index(1, 0));
    QCOMPARE(
        f.roundTripFault(new EditPaste(f.model.get(), second, f.snapshot({QStringLiteral("A")}))),
        QString());
    QCOMPARE(f.text(), QStringLiteral("H[A,B];H[A,B[A]]"));
}

void TestPasteCommand::shouldRenewUuidsThatTheModelHas()
{
    CommandFixture f(QStringLiteral("H[A[a[x],b],B]"));
    f.node("b")->setPid(QStringLiteral("elsewhere"));
    auto *const command =
        new EditPaste(f.model.get(), f.index("B"), f.snapshot({QStringLiteral("A")}));
    command->setPasteAsNew(true);
    f.stack->push(command);

    const TreeItem *const copy = f.node("B")->childAtIndex(0);
    const TreeItem *const a = copy->childAtIndex(0);
    const TreeItem *const b = copy->childAtIndex(1);
    QSet<QString> uuids;
    for (const TreeItem *node : {copy, a, b, static_cast<const TreeItem *>(a->childAtIndex(0))}) {
        QCOMPARE(node->uuid().size(), 38);
        uuids.insert(node->uuid());
    }
    QCOMPARE(uuids.size(), 4);
    QCOMPARE(a->pid(), copy->uuid());
    QCOMPARE(a->childAtIndex(0)->pid(), a->uuid());
    QCOMPARE(b->pid(), QStringLiteral("elsewhere"));
    QCOMPARE(command->pastedUuids(), QStringList{copy->uuid()});
    QCOMPARE(f.node("A")->uuid(), QStringLiteral("u-A"));
    QCOMPARE(f.node("a")->pid(), QStringLiteral("u-A"));
}

void TestPasteCommand::shouldKeepUuidsThatTheModelHasNot()
{
    CommandFixture f(QStringLiteral("H[A[a,b],B]"));
    const QJsonObject snapshot = f.snapshot({QStringLiteral("A")});
    f.model->removeRows(0, 1, f.index("H"));
    f.node("B")->setUuid(QStringLiteral("u-a")); // one of them is taken
    auto *const command = new EditPaste(f.model.get(), f.index("B"), snapshot);
    command->setPasteAsNew(true);
    f.stack->push(command);
    QCOMPARE(f.node("A")->uuid(), QStringLiteral("u-A"));
    QCOMPARE(f.node("b")->uuid(), QStringLiteral("u-b"));
    QCOMPARE(f.node("a")->uuid().size(), 38);
    QCOMPARE(f.node("a")->pid(), QStringLiteral("u-A"));
}

void TestPasteCommand::shouldRenewUuidsThatTheSnapshotRepeats()
{
    CommandFixture f(QStringLiteral("H[A[a],B]"));
    const QJsonObject twice = f.snapshot({QStringLiteral("A"), QStringLiteral("A")});
    f.model->removeRows(0, 1, f.index("H"));
    auto *const command = new EditPaste(f.model.get(), f.index("B"), twice);
    command->setPasteAsNew(true);
    f.stack->push(command);
    const TreeItem *const second = f.node("B")->childAtIndex(1);
    QCOMPARE(f.node("A")->uuid(), QStringLiteral("u-A"));
    QCOMPARE(second->uuid().size(), 38);
    QCOMPARE(second->childAtIndex(0)->pid(), second->uuid());
    QCOMPARE(second->childAtIndex(0)->uuid().size(), 38);
}

void TestPasteCommand::shouldKeepTheOrderOfDescendantsOfNewSubjects()
{
    CommandFixture f(QStringLiteral("H[A[x,y,z[1,2,3]],B]"));
    f.draw();
    auto *const command =
        new EditPaste(f.model.get(), f.index("B"), f.snapshot({QStringLiteral("A")}));
    command->setPasteAsNew(true);
    QCOMPARE(f.roundTripFault(command), QString());
    QCOMPARE(f.text(), QStringLiteral("H[A[x,y,z[1,2,3]],B[A[x,y,z[1,2,3]]]]"));
}

void TestPasteCommand::shouldGiveTheSameNewUuidsAgain()
{
    CommandFixture f(QStringLiteral("H[A,B]"));
    auto *const command =
        new EditPaste(f.model.get(), f.index("B"), f.snapshot({QStringLiteral("A")}));
    command->setPasteAsNew(true);
    f.stack->push(command);
    const QStringList uuids = command->pastedUuids();
    f.stack->undo();
    f.stack->redo();
    QCOMPARE(command->pastedUuids(), uuids);
    QCOMPARE(f.node("B")->childAtIndex(0)->uuid(), uuids.first());
}

void TestPasteCommand::shouldLeaveMissingUuidsOfNewSubjectsAlone()
{
    CommandFixture f(QStringLiteral("H[A[a[x]],B]"));
    f.node("a")->setUuid(QString());
    f.node("x")->setPid(QString());
    auto *const command =
        new EditPaste(f.model.get(), f.index("B"), f.snapshot({QStringLiteral("A")}));
    command->setPasteAsNew(true);
    f.stack->push(command);
    const TreeItem *const a = f.node("B")->childAtIndex(0)->childAtIndex(0);
    QVERIFY(a->uuid().isEmpty());
    QVERIFY(a->childAtIndex(0)->pid().isEmpty());
}

void TestPasteCommand::shouldMakeTheSpearsOfWhatItPastes()
{
    CommandFixture f(QStringLiteral("H[A[a[x]],B]"));
    f.draw();
    f.stack->push(new EditPaste(f.model.get(), f.index("B"), f.snapshot({QStringLiteral("A")})));
    const TreeItem *const copy = f.node("B")->childAtIndex(0);
    QCOMPARE(copy->spear()->parentItem(), f.spear("B"));
    QCOMPARE(copy->childAtIndex(0)->childAtIndex(0)->spear()->depth(), 4);
    QCOMPARE(f.spear("A")->parentItem(), f.spear("H"));
}

void TestPasteCommand::shouldMakeAllSpearsOfABoneThatWasNeverExpanded()
{
    CommandFixture f(QStringLiteral("H[A,B[b[x],c]]"));
    QGraphicsScene scene;
    scene.addItem(SpearBuilder(*f.model).buildHead(f.index("H")));
    f.stack->push(new EditPaste(f.model.get(), f.index("B"), f.snapshot({QStringLiteral("A")})));
    QCOMPARE(spearFault(*f.model), QString());
    QCOMPARE(f.spear("B")->childSpears().size(), 3);
    QCOMPARE(f.spear("x")->parentItem(), f.spear("b"));
}

void TestPasteCommand::shouldMakeNoSpearsBelowATargetWithout()
{
    CommandFixture f(QStringLiteral("H[A,B[b]]"));
    QGraphicsScene scene;
    scene.addItem(SpearBuilder(*f.model).buildHead(f.index("H")));
    f.stack->push(new EditPaste(f.model.get(), f.index("b"), f.snapshot({QStringLiteral("A")})));
    QVERIFY(!f.node("b")->childAtIndex(0)->spear());
}

void TestPasteCommand::shouldOutliveTheModelUnderASanitizer()
{
    for (int steps = 0; steps < 4; ++steps) {
        auto model = std::make_unique<FishModel>();
        loadDocument(*model, QStringLiteral("H[A[a]]"));
        EditPaste command(model.get(), indexTitled(*model, QStringLiteral("A")),
                          documentFromText(QStringLiteral("X[Y]")));
        for (int step = 0; step < steps; ++step)
            step % 2 == 0 ? command.redo() : command.undo();
        model.reset();
        command.undo();
        command.redo();
        command.undo();
    }
}

void TestPasteCommand::shouldPasteManySubjectsInReasonableTime()
{
    FishModel model;
    TreeItem *const head = addDocument(model, makeFan(10000));
    QJsonObject snapshot;
    FishModel::write(snapshot, head, true);
    snapshot.remove(QStringLiteral("uuid"));
    for (bool asNew : {false, true}) {
        EditPaste command(&model, model.indexFromItem(head->childAtIndex(0)), snapshot);
        command.setPasteAsNew(asNew);
        QElapsedTimer timer;
        timer.start();
        command.redo();
        QCOMPARE(head->childAtIndex(0)->childCount(), 10000);
        const qint64 redone = timer.restart();
        command.undo();
        QCOMPARE(head->childAtIndex(0)->childCount(), 0);
        const qint64 undone = timer.elapsed();
        QVERIFY2(redone < 5000, qPrintable(QString::number(redone)));
        QVERIFY2(undone < 5000, qPrintable(QString::number(undone)));
    }
}

FISHBONE_TEST(TestPasteCommand)
#include "tst_pastecommand.moc"
