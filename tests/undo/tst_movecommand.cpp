// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QSignalSpy>
#include <QtTest>

#include <fishbone/undo/structuralcommands.h>
#include <tests/program/testprogram.h>
#include <tests/support/commandfixture.h>
#include <tests/support/dialogchecks.h>

using namespace TestSupport;

class TestMoveCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldMoveAndPutBack_data();
    void shouldMoveAndPutBack();
    void shouldMoveInDocumentsWithoutUuids_data();
    void shouldMoveInDocumentsWithoutUuids();
    void shouldPutBackFromEverywhereToEverywhere();
    void shouldNameItselfInItsOwnContext();
    void shouldKnowTargetRowAndSnapshot();
    void shouldNoteTheRowsAsTheMovesGoOn();
    void shouldPutNothingBackThatItDidNotMove();
    void shouldMoveToTheTopLevelWhenTheTargetIsGone();
    void shouldNameTheNewParentAsPid();
    void shouldRestoreAPidThatDoesNotNameTheParent();
    void shouldAnnounceThePidItRestores();
    void shouldKeepMovability();
    void shouldPutBackAtTheEndOfAListThatOthersShortened();
    void shouldMoveAgainIntoAListThatOthersShortened();
    void shouldLeaveASubjectWhoseOldParentIsGone();
    void shouldFindASubjectThatOthersMovedOn();
    void shouldMoveCopiesOfOneUuidEach();
    void shouldStayInTheDocumentOfTheTarget();
    void shouldLookFirstInTheDocumentItIsGiven();
    void shouldTakeAnEndingForAUuid();
    void shouldTakeNoEndingForASubjectThatIsGone();
    void shouldMoveTheUpperOneOfNestedSubjects();

    void shouldOutliveTheModelUnderASanitizer();
    void shouldMoveManySubjectsInReasonableTime();
};

void TestMoveCommand::shouldMoveAndPutBack_data()
{
    QTest::addColumn<QString>("document");
    QTest::addColumn<QString>("titles");
    QTest::addColumn<QByteArray>("target");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("expected");

    const auto row = [](const char *name, const char *document, const char *titles,
                        const char *target, int destination, const char *expected) {
        QTest::newRow(name) << QString::fromLatin1(document) << QString::fromLatin1(titles)
                            << QByteArray(target) << destination << QString::fromLatin1(expected);
    };
    row("into a leaf", "H[A[a],B]", "A", "B", 0, "H[B[A[a]]]");
    row("into the middle", "H[A,T[x,y]]", "A", "T", 1, "H[T[x,A,y]]");
    row("to the end", "H[A,T[x,y]]", "A", "T", 2, "H[T[x,y,A]]");
    row("upwards", "H[A[a[x],b],B]", "a", "H", 1, "H[A[b],a[x],B]");
    row("backwards", "H[A,B,C,D]", "A", "H", 3, "H[B,C,A,D]");
    row("to the very end", "H[A,B,C,D]", "A", "H", 4, "H[B,C,D,A]");
    row("forwards", "H[A,B,C,D]", "D", "H", 1, "H[A,D,B,C]");
    row("to the front", "H[A,B,C,D]", "D", "H", 0, "H[D,A,B,C]");
    row("onto its own row", "H[A,B,C,D]", "B", "H", 1, "H[A,B,C,D]");
    row("onto the row behind", "H[A,B,C,D]", "B", "H", 2, "H[A,B,C,D]");
    row("past the end", "H[A,B]", "A", "B", 1, "H[A,B]");
    row("before the start", "H[A,B]", "A", "B", -1, "H[A,B]");
    row("into itself", "H[A[a],B]", "A", "A", 0, "H[A[a],B]");
    row("into its child", "H[A[a],B]", "A", "a", 0, "H[A[a],B]");
    row("two into one", "H[A,B,T[x]]", "A,B", "T", 0, "H[T[B,A,x]]");
    row("two to the end of one", "H[A,B,T[x]]", "A,B", "T", 1, "H[T[x,B,A]]");
    row("two backwards", "H[A,B,C,D]", "A,B", "H", 4, "H[C,D,A,B]");
    row("two forwards", "H[A,B,C,D]", "C,D", "H", 0, "H[D,C,A,B]");
    row("two around the row", "H[A,B,C,D]", "A,D", "H", 2, "H[B,A,D,C]");
    row("from different parents", "H[A[a,b],B[c,d],T]", "a,d,B", "T", 0, "H[A[b],T[B[c,d],a]]");
    row("a parent and its child", "H[A[a],T]", "A,a", "T", 0, "H[T[A[a]]]");
    row("one into the other", "H[A,B,T]", "A,T", "B", 0, "H[B[T,A]]");
    row("into another document", "H[A[a],B];G[C]", "A", "C", 0, "H[B];G[C[A[a]]]");
    row("into the document before", "H[A];G[C[c],D]", "C", "H", 0, "H[C[c],A];G[D]");
    row("head into another document", "H[A];G[C]", "H", "C", 0, "G[C[H[A]]]");
    row("head into the document before", "H[A];G[C];F", "G", "H", 1, "H[A,G[C]];F");
    row("head into itself", "H[A];G", "H", "A", 0, "H[A];G");
    row("all heads into one", "H[A];G[C];F", "H,F", "C", 0, "G[C[F,H[A]]]");
    row("to the top level", "H[A[a],B];G", "A", "", 1, "H[B];A[a];G");
    row("two to the top level", "H[A[a],B];G", "A,B", "", 0, "B;A[a];H;G");
    row("past the end of the top level", "H[A];G", "A", "", 3, "H[A];G");
    row("head to another row", "H[A];G;F", "H", "", 2, "G;H[A];F");
    row("head to its own row", "H[A];G;F", "G", "", 1, "H[A];G;F");
}

void TestMoveCommand::shouldMoveAndPutBack()
{
    QFETCH(QString, document);
    QFETCH(QString, titles);
    QFETCH(QByteArray, target);
    QFETCH(int, row);
    QFETCH(QString, expected);
    CommandFixture f(document);
    f.draw();
    const QJsonObject snapshot = f.snapshot(titles.split(QLatin1Char(',')));

    QCOMPARE(f.roundTripFault(new EditMove(f.model.get(), f.index(target), row, snapshot)),
             QString());

    QCOMPARE(f.text(), expected);
    f.stack->undo();
    QCOMPARE(f.text(), document);
}

void TestMoveCommand::shouldMoveInDocumentsWithoutUuids_data()
{
    shouldMoveAndPutBack_data();
}

void TestMoveCommand::shouldMoveInDocumentsWithoutUuids()
{
    QFETCH(QString, document);
    QFETCH(QString, titles);
    QFETCH(QByteArray, target);
    QFETCH(int, row);
    QFETCH(QString, expected);
    CommandFixture f(document);
    for (TreeItem *node : allNodes(*f.model))
        node->setUuid(QString());
    const QStringList subjects = titles.split(QLatin1Char(','));
    for (const QString &subject : subjects)
        f.node(subject.toUtf8())->ensureUuid(); // as the one who takes a snapshot does
    f.draw();
    const QJsonObject snapshot = f.snapshot(subjects);

    QCOMPARE(f.roundTripFault(new EditMove(f.model.get(), f.index(target), row, snapshot)),
             QString());

    QCOMPARE(f.text(), expected);
}

void TestMoveCommand::shouldPutBackFromEverywhereToEverywhere()
{
    const QString document = QStringLiteral("H[A,B[a,b,c],C,D[x]];G[E,F]");
    const QStringList titles{QStringLiteral("A"), QStringLiteral("C"), QStringLiteral("D"),
                             QStringLiteral("b"), QStringLiteral("F"), QStringLiteral("G")};
    int moved = 0;
    for (const QString &title : titles) {
        for (const char *target : {"H", "B", "D", "G", ""}) {
            for (int row = 0; row < 5; ++row) {
                CommandFixture f(document);
                f.draw();
                UndoCommand *const command =
                    new EditMove(f.model.get(), f.index(target), row, f.snapshot({title}));
                QCOMPARE(f.roundTripFault(command), QString());
                moved += f.text() != document;
                f.stack->undo();
                QCOMPARE(f.text(), document);
            }
        }
    }
    QVERIFY(moved > 60);
}

void TestMoveCommand::shouldNameItselfInItsOwnContext()
{
    CommandFixture f(QStringLiteral("H"));
    QCOMPARE(EditMove(f.model.get(), f.index("H"), 0, QJsonObject()).text(),
             QStringLiteral("Move subjects"));
    const BracketTranslator translator("EditMove");
    QCOMPARE(EditMove(f.model.get(), f.index("H"), 0, QJsonObject()).text(),
             QStringLiteral("[Move subjects]"));
}

void TestMoveCommand::shouldKnowTargetRowAndSnapshot()
{
    CommandFixture f(QStringLiteral("H[A,B]"));
    const QJsonObject snapshot = f.snapshot({QStringLiteral("A")});
    const EditMove command(f.model.get(), f.index("B"), 3, snapshot);
    QCOMPARE(command.targetUuid(), QStringLiteral("u-B"));
    QCOMPARE(command.row(), 3);
    QCOMPARE(command.objects(), snapshot);
    QCOMPARE(EditMove(f.model.get(), QModelIndex(), 0, snapshot).targetUuid(),
             QStringLiteral("-1"));
}

void TestMoveCommand::shouldNoteTheRowsAsTheMovesGoOn()
{
    CommandFixture f(QStringLiteral("H[A,B,C,T]"));
    const QJsonObject snapshot =
        f.snapshot({QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")});
    auto *const command = new EditMove(f.model.get(), f.index("T"), 0, snapshot);
    QCOMPARE(command->sourceRows(), QList<int>());
    f.stack->push(command);
    QCOMPARE(command->sourceRows(), (QList<int>{0, 0, 0}));
    f.stack->undo();
    f.model->removeRows(1, 1, f.index("H"));
    f.stack->redo();
    QCOMPARE(command->sourceRows(), (QList<int>{0, -1, 0}));
}

void TestMoveCommand::shouldPutNothingBackThatItDidNotMove()
{
    CommandFixture f(QStringLiteral("H[A[a],B,C]"));
    // Refused: into itself.
    auto *const refused =
        new EditMove(f.model.get(), f.index("a"), 0, f.snapshot({QStringLiteral("A")}));
    f.stack->push(refused);
    f.model->moveRows(f.index("H"), 0, 1, f.index("C"), 0);
    f.stack->undo();
    QCOMPARE(f.text(), QStringLiteral("H[B,C[A[a]]]"));
    // Already there.
    f.stack->push(new EditMove(f.model.get(), f.index("C"), 0, f.snapshot({QStringLiteral("A")})));
    f.model->moveRows(f.index("C"), 0, 1, f.index("B"), 0);
    f.stack->undo();
    QCOMPARE(f.text(), QStringLiteral("H[B[A[a]],C]"));
    f.model->moveRows(f.index("B"), 0, 1, f.index("C"), 0);
    // Not there at first, but later.
    const QJsonObject later{{QStringLiteral("uuid"), QStringLiteral("later")},
                            {QStringLiteral("pid"), QStringLiteral("u-H")}};
    f.stack->push(new EditMove(f.model.get(), f.index("C"), 0, later));
    f.node("B")->setUuid(QStringLiteral("later"));
    f.model->moveRows(f.index("H"), 0, 1, f.index("a"), 0);
    f.stack->undo();
    QCOMPARE(f.text(), QStringLiteral("H[C[A[a[B]]]]"));
}

void TestMoveCommand::shouldMoveToTheTopLevelWhenTheTargetIsGone()
{
    CommandFixture f(QStringLiteral("H[A,B,C]"));
    auto *const command =
        new EditMove(f.model.get(), f.index("B"), 0, f.snapshot({QStringLiteral("C")}));
    f.model->removeRows(1, 1, f.index("H"));
    QCOMPARE(f.roundTripFault(command), QString());
    QCOMPARE(f.text(), QStringLiteral("C;H[A]"));
}

void TestMoveCommand::shouldNameTheNewParentAsPid()
{
    CommandFixture f(QStringLiteral("H[A,B];G"));
    f.stack->push(new EditMove(f.model.get(), f.index("B"), 0, f.snapshot({QStringLiteral("A")})));
    QCOMPARE(f.node("A")->pid(), QStringLiteral("u-B"));
    f.stack->push(new EditMove(f.model.get(), f.index("A"), 0, f.snapshot({QStringLiteral("G")})));
    QCOMPARE(f.node("G")->pid(), QStringLiteral("u-A"));
    f.stack->push(new EditMove(f.model.get(), QModelIndex(), 0, f.snapshot({QStringLiteral("G")})));
    QVERIFY(!f.node("G")->isHaveParentTask());
}

void TestMoveCommand::shouldRestoreAPidThatDoesNotNameTheParent()
{
    for (const char *pid : {"u-B", "nobody", "", "-1"}) {
        for (const char *title : {"a", "H", "A"}) {
            CommandFixture f(QStringLiteral("H[A[a,b],B];G[C]"));
            f.node(title)->setPid(QLatin1String(pid));
            f.draw();
            QCOMPARE(f.roundTripFault(new EditMove(f.model.get(), f.index("C"), 0,
                                                   f.snapshot({QLatin1String(title)}))),
                     QString());
            f.stack->undo();
            QCOMPARE(f.node(title)->pid(), QLatin1String(pid));
        }
    }
}

void TestMoveCommand::shouldAnnounceThePidItRestores()
{
    for (bool namesTheParent : {false, true}) {
        CommandFixture f(QStringLiteral("H[A,B]"));
        if (!namesTheParent)
            f.node("A")->setPid(QStringLiteral("nobody"));
        f.stack->push(
            new EditMove(f.model.get(), f.index("B"), 0, f.snapshot({QStringLiteral("A")})));
        const QSignalSpy changes(f.model.get(), &FishModel::dataChanged);
        f.stack->undo();
        // The move itself gives back a pid that names the parent.
        QCOMPARE(changes.count(), namesTheParent ? 0 : 1);
        if (!namesTheParent)
            QCOMPARE(changes.first().first().toModelIndex(), f.index("A").siblingAtColumn(3));
    }
}

void TestMoveCommand::shouldKeepMovability()
{
    CommandFixture f(QStringLiteral("H[A,B]"));
    f.node("A")->setSpearItemIsMovable(false);
    QCOMPARE(f.roundTripFault(
                 new EditMove(f.model.get(), f.index("B"), 0, f.snapshot({QStringLiteral("A")}))),
             QString());
    QVERIFY(!f.node("A")->spearItemIsMovable());
}

void TestMoveCommand::shouldPutBackAtTheEndOfAListThatOthersShortened()
{
    CommandFixture f(QStringLiteral("H[A,B,C,T];G"));
    f.stack->push(new EditMove(f.model.get(), f.index("T"), 0, f.snapshot({QStringLiteral("C")})));
    f.model->removeRows(0, 2, f.index("H"));
    f.stack->undo();
    QCOMPARE(f.text(), QStringLiteral("H[T,C];G"));

    f.stack->push(new EditMove(f.model.get(), f.index("T"), 0, f.snapshot({QStringLiteral("G")})));
    f.stack->undo();
    QCOMPARE(f.text(), QStringLiteral("H[T,C];G"));
}

void TestMoveCommand::shouldMoveAgainIntoAListThatOthersShortened()
{
    CommandFixture f(QStringLiteral("H[A,T[x,y,z]]"));
    f.stack->push(new EditMove(f.model.get(), f.index("T"), 3, f.snapshot({QStringLiteral("A")})));
    f.stack->undo();
    f.model->removeRows(0, 2, f.index("T"));
    f.stack->redo();
    QCOMPARE(f.text(), QStringLiteral("H[T[z,A]]"));
    f.stack->undo();
    QCOMPARE(f.text(), QStringLiteral("H[A,T[z]]"));
}

void TestMoveCommand::shouldLeaveASubjectWhoseOldParentIsGone()
{
    CommandFixture f(QStringLiteral("H[A[a],B]"));
    f.stack->push(new EditMove(f.model.get(), f.index("B"), 0, f.snapshot({QStringLiteral("a")})));
    f.model->removeRows(0, 1, f.index("H"));
    f.stack->undo();
    QCOMPARE(f.text(), QStringLiteral("H[B[a]]"));
}

void TestMoveCommand::shouldFindASubjectThatOthersMovedOn()
{
    CommandFixture f(QStringLiteral("H[A[a],B];G[C]"));
    f.stack->push(new EditMove(f.model.get(), f.index("B"), 0, f.snapshot({QStringLiteral("a")})));
    f.model->moveRows(f.index("B"), 0, 1, f.index("C"), 0);
    f.stack->undo();
    QCOMPARE(f.text(), QStringLiteral("H[A[a],B];G[C]"));
    QCOMPARE(f.node("a")->pid(), QStringLiteral("u-A"));
}

void TestMoveCommand::shouldMoveCopiesOfOneUuidEach()
{
    CommandFixture f(QStringLiteral("H[A,B,C,T]"));
    f.node("C")->setUuid(QStringLiteral("u-A"));
    f.draw();
    const QJsonObject snapshot = f.snapshot({QStringLiteral("A"), QStringLiteral("C")});
    QCOMPARE(f.roundTripFault(new EditMove(f.model.get(), f.index("T"), 0, snapshot)), QString());
    QCOMPARE(f.text(), QStringLiteral("H[B,T[C,A]]"));
}

void TestMoveCommand::shouldStayInTheDocumentOfTheTarget()
{
    CommandFixture f(QStringLiteral("H[A,B];H[A,B]"));
    f.draw();
    const QModelIndex second = f.model->index(1, 0, f.model->index(1, 0));
    QCOMPARE(
        f.roundTripFault(new EditMove(f.model.get(), second, 0, f.snapshot({QStringLiteral("A")}))),
        QString());
    QCOMPARE(f.text(), QStringLiteral("H[A,B];H[B[A]]"));
}

void TestMoveCommand::shouldLookFirstInTheDocumentItIsGiven()
{
    CommandFixture f(QStringLiteral("H[A,B];H[A,B]"));
    f.draw();
    const QModelIndex second = f.model->index(1, 0, f.model->index(1, 0));
    auto *const command = new EditMove(f.model.get(), second, 0, f.snapshot({QStringLiteral("A")}));
    command->setDocument(f.document(0));
    QCOMPARE(f.roundTripFault(command), QString());
    QCOMPARE(f.text(), QStringLiteral("H[B];H[A,B[A]]"));
}

void TestMoveCommand::shouldTakeAnEndingForAUuid()
{
    CommandFixture f(QStringLiteral("H[A,B,T]"));
    f.node("A")->setUuid(QStringLiteral("some-42"));
    const QJsonObject ending{{QStringLiteral("uuid"), QStringLiteral("42")},
                             {QStringLiteral("pid"), QStringLiteral("u-H")}};
    QCOMPARE(f.roundTripFault(new EditMove(f.model.get(), f.index("T"), 0, ending)), QString());
    QCOMPARE(f.text(), QStringLiteral("H[B,T[A]]"));
}

void TestMoveCommand::shouldTakeNoEndingForASubjectThatIsGone()
{
    CommandFixture f(QStringLiteral("H[A,B,T]"));
    f.node("A")->setUuid(QStringLiteral("x-42"));
    f.node("B")->setUuid(QStringLiteral("42"));
    const QJsonObject snapshot = f.snapshot({QStringLiteral("B")});
    auto *const command = new EditMove(f.model.get(), f.index("T"), 0, snapshot);
    QVERIFY(f.model->removeRows(1, 1, f.index("H")));
    QCOMPARE(f.roundTripFault(command), QString());
    QCOMPARE(f.text(), QStringLiteral("H[A,T]"));
    QCOMPARE(command->sourceRows(), QList<int>{-1});
}

void TestMoveCommand::shouldMoveTheUpperOneOfNestedSubjects()
{
    CommandFixture f(QStringLiteral("H[A[a],B[b],T]"));
    f.draw();
    f.node("b")->setUuid(QStringLiteral("u-a")); // a copy of what goes with A
    const QJsonObject upperFirst = f.snapshot({QStringLiteral("A"), QStringLiteral("a")});
    const QJsonObject lowerFirst = f.snapshot({QStringLiteral("a"), QStringLiteral("A")});
    for (const QJsonObject &snapshot : {upperFirst, lowerFirst}) {
        auto *const command = new EditMove(f.model.get(), f.index("T"), 0, snapshot);
        QCOMPARE(f.roundTripFault(command), QString());
        QCOMPARE(f.text(), QStringLiteral("H[B[b],T[A[a]]]"));
        f.stack->undo();
        QCOMPARE(f.text(), QStringLiteral("H[A[a],B[b],T]"));
    }
}

void TestMoveCommand::shouldOutliveTheModelUnderASanitizer()
{
    for (const char *title : {"A", "H"}) {
        for (const char *target : {"C", ""}) {
            for (int steps = 0; steps < 4; ++steps) {
                auto model = std::make_unique<FishModel>();
                loadDocument(*model, QStringLiteral("H[A[a]]"));
                loadDocument(*model, QStringLiteral("G[C]"));
                QJsonObject snapshot;
                FishModel::write(snapshot, nodeTitled(*model, QLatin1String(title)), true);
                EditMove command(model.get(), indexTitled(*model, QLatin1String(target)), 0,
                                 snapshot);
                for (int step = 0; step < steps; ++step)
                    step % 2 == 0 ? command.redo() : command.undo();
                model.reset();
                command.undo();
                command.redo();
                command.undo();
            }
        }
    }
}

void TestMoveCommand::shouldMoveManySubjectsInReasonableTime()
{
    FishModel model;
    TreeItem *const head = addDocument(model, makeFan(10000));
    QJsonArray names;
    for (int row = 1; row < head->childCount(); row += 2) {
        names.append(QJsonObject{{QStringLiteral("uuid"), head->childAtIndex(row)->uuid()},
                                 {QStringLiteral("pid"), head->uuid()}});
    }
    const QList<TreeItem *> before = head->children();
    EditMove command(&model, model.indexFromItem(head->childAtIndex(0)), 0,
                     QJsonObject{{QStringLiteral("children"), names}});
    QElapsedTimer timer;
    timer.start();
    command.redo();
    QCOMPARE(head->childCount(), 5000);
    const qint64 redone = timer.restart();
    command.undo();
    QCOMPARE(head->children(), before);
    const qint64 undone = timer.elapsed();
    // Walking all nodes for each subject would take minutes.
    QVERIFY2(redone < 5000, qPrintable(QString::number(redone)));
    QVERIFY2(undone < 5000, qPrintable(QString::number(undone)));
}

FISHBONE_TEST(TestMoveCommand)
#include "tst_movecommand.moc"
