// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QSignalSpy>
#include <QtTest>

#include <fishbone/undo/structuralcommands.h>
#include <tests/program/testprogram.h>
#include <tests/support/commandfixture.h>
#include <tests/support/dialogchecks.h>

using namespace TestSupport;

/** Heads that are moved, and subjects that become heads. */
class TestMoveCommandHeads : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldKeepTheDocumentOfAHeadThatMovesBelow();
    void shouldDeleteTheDocumentItStillHolds();
    void shouldGiveANewHeadTheSameDocumentAgain();
    void shouldReturnAHeadThatOthersMadeAHeadAgain();
};

void TestMoveCommandHeads::shouldKeepTheDocumentOfAHeadThatMovesBelow()
{
    CommandFixture f(QStringLiteral("H[A];G[C];F"));
    FishInfo *const document = f.document(0);
    document->setFileName(QStringLiteral("plan.json"));
    document->setModified(true);
    document->addFishToHistory(f.index("A"));
    const QPersistentModelIndex head = f.index("H");

    f.stack->push(new EditMove(f.model.get(), f.index("C"), 0, f.snapshot({QStringLiteral("H")})));
    QCOMPARE(f.text(), QStringLiteral("G[C[H[A]]];F"));
    QCOMPARE(QModelIndex(head), f.index("H"));
    f.stack->undo();

    QCOMPARE(f.text(), QStringLiteral("H[A];G[C];F"));
    QCOMPARE(f.document(0), document);
    QCOMPARE(document->fileName(), QStringLiteral("plan.json"));
    QVERIFY(document->modified());
    QCOMPARE(document->fishHistorys(), QStringList{QStringLiteral("u-A")});
    QCOMPARE(document->model(), f.model.get());
    QCOMPARE(QModelIndex(head), f.index("H"));
}

void TestMoveCommandHeads::shouldDeleteTheDocumentItStillHolds()
{
    CommandFixture f(QStringLiteral("H[A];G[C]"));
    const QPointer<FishInfo> document = f.document(0);
    // As a drop does, which has no history.
    EditMove(f.model.get(), f.index("C"), 0, f.snapshot({QStringLiteral("H")})).redo();
    QVERIFY(!document);
    QCOMPARE(f.text(), QStringLiteral("G[C[H[A]]]"));
}

void TestMoveCommandHeads::shouldGiveANewHeadTheSameDocumentAgain()
{
    CommandFixture f(QStringLiteral("H[A[a],B]"));
    f.stack->push(new EditMove(f.model.get(), QModelIndex(), 1, f.snapshot({QStringLiteral("A")})));
    FishInfo *const document = f.document(1);
    QCOMPARE(document->model(), f.model.get());
    QVERIFY(document->isUntitled());
    f.stack->undo();
    QCOMPARE(f.model->fishList().size(), 1);
    f.stack->redo();
    QCOMPARE(f.document(1), document);
    QCOMPARE(f.text(), QStringLiteral("H[B];A[a]"));
}

void TestMoveCommandHeads::shouldReturnAHeadThatOthersMadeAHeadAgain()
{
    CommandFixture f(QStringLiteral("H[A];G[C];F"));
    f.stack->push(new EditMove(f.model.get(), f.index("C"), 0, f.snapshot({QStringLiteral("H")})));
    f.model->moveRows(f.index("C"), 0, 1, QModelIndex(), 2);
    QCOMPARE(f.text(), QStringLiteral("G[C];F;H[A]"));
    f.stack->undo();
    QCOMPARE(f.text(), QStringLiteral("H[A];G[C];F"));
}

FISHBONE_TEST(TestMoveCommandHeads)
#include "tst_movecommand_heads.moc"
