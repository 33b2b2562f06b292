// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QIdentityProxyModel>
#include <QRegularExpression>
#include <QStandardItemModel>
#include <QtTest>

#include <fishbone/undo/structuralcommands.h>
#include <tests/program/testprogram.h>
#include <tests/support/commandfixture.h>
#include <tests/support/signalrecorder.h>

using namespace TestSupport;

/** What InsertParent does beyond the other insertions, above heads in particular. */
class TestInsertParent : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldPutTheSpearOfTheReferenceBelowTheNewParents();
    void shouldRestoreAPidThatDoesNotNameTheParent();
    void shouldKeepTheDocumentOfAHeadThatGetsAParent();
    void shouldAnnounceANewHeadAsALayoutChange();
    void shouldRestoreThePidOfAHead();
    void shouldTakeTheNewHeadsOtherChildrenAlong();
    void shouldBringTheOldHeadBackFromDeeperDown();
    void shouldLeaveANewHeadWhoseOldOneIsGone();
    void shouldTakeANewParentOutWhoseChildIsGone();
    void shouldDoNothingWhenTheNewParentIsGone();
    void shouldLeaveANewParentThatCameBelowItsChild();
    void shouldDrawTheSameUuidForANewHeadAgain();
    void shouldSurviveTheEndOfTheModelWhileTheOldHeadMoves();
    void shouldWorkThroughAModelOfAnotherKind();
    void shouldLeaveAModelThatMovesNoRowsAsItWas();
};

void TestInsertParent::shouldPutTheSpearOfTheReferenceBelowTheNewParents()
{
    CommandFixture f(QStringLiteral("H[P[x,y,S]]"));
    f.draw();
    SpearItem *const spear = f.spear("S");

    f.stack->push(new InsertParent(f.model.get(), f.index("S")));
    const TreeItem *const added = f.node("P")->childAtIndex(2);
    QCOMPARE(added->childItems(), QList<TreeItem *>{f.node("S")});
    QCOMPARE(f.spear("S"), spear);
    QCOMPARE(spear->parentItem(), added->spear());
    QCOMPARE(added->spear()->parentItem(), f.spear("P"));

    f.stack->undo();
    QCOMPARE(f.node("P")->childAtIndex(2), f.node("S"));
    QCOMPARE(f.node("P")->childCount(), 3);
    QCOMPARE(f.spear("S"), spear);
    QCOMPARE(spear->parentItem(), f.spear("P"));
    QCOMPARE(f.spear("P")->childSpears().size(), 3);
}

void TestInsertParent::shouldRestoreAPidThatDoesNotNameTheParent()
{
    CommandFixture f(QStringLiteral("H[A,B]"));
    f.node("A")->setPid(QStringLiteral("elsewhere"));
    QCOMPARE(f.roundTripFault(new InsertParent(f.model.get(), f.index("A"))), QString());
    f.stack->undo();
    QCOMPARE(f.node("A")->pid(), QStringLiteral("elsewhere"));
}

void TestInsertParent::shouldKeepTheDocumentOfAHeadThatGetsAParent()
{
    CommandFixture f(QStringLiteral("H[A];G"));
    FishInfo *const document = f.document(0);
    document->setFileName(QStringLiteral("plan.json"));
    document->setModified(true);
    document->addFishToHistory(f.index("A"));
    const QPersistentModelIndex oldHead = f.index("H");
    const QPersistentModelIndex bone = f.index("A");

    f.stack->push(new InsertParent(f.model.get(), f.index("H")));
    QCOMPARE(f.document(0), document);
    const QModelIndex newHead = f.model->index(0, 0);
    QCOMPARE(f.model->getTreeItem(newHead)->title(), QStringLiteral("自由主题"));
    QCOMPARE(QModelIndex(oldHead), f.model->index(0, 0, newHead));
    QCOMPARE(bone.parent(), QModelIndex(oldHead));
    const QPersistentModelIndex added = newHead;

    f.stack->undo();
    QCOMPARE(f.document(0), document);
    QCOMPARE(QModelIndex(oldHead), f.model->index(0, 0));
    QVERIFY(!added.isValid());
    QCOMPARE(document->fileName(), QStringLiteral("plan.json"));
    QVERIFY(document->modified());
    QCOMPARE(document->fishHistorys(), QStringList{QStringLiteral("u-A")});
}

void TestInsertParent::shouldAnnounceANewHeadAsALayoutChange()
{
    CommandFixture f(QStringLiteral("H[A]"));
    SignalRecorder recorder(
        *f.model, {QStringLiteral("layoutAboutToBeChanged"), QStringLiteral("layoutChanged"),
                   QStringLiteral("rowsInserted"), QStringLiteral("rowsRemoved"),
                   QStringLiteral("rowsMoved"), QStringLiteral("modelReset")});
    const auto names = [&recorder] {
        const QString text = recorder.take();
        // Each comes once for every number of arguments that it can be connected with.
        QStringList unique =
            text.split(QRegularExpression(QStringLiteral("\\([^)]*\\)(, )?")), Qt::SkipEmptyParts);
        unique.removeDuplicates();
        return unique.join(QLatin1Char(' '));
    };
    f.stack->push(new InsertParent(f.model.get(), f.index("H")));
    QCOMPARE(names(), QStringLiteral("layoutAboutToBeChanged layoutChanged"));
    f.stack->undo();
    QCOMPARE(names(), QStringLiteral("layoutAboutToBeChanged layoutChanged"));
}

void TestInsertParent::shouldRestoreThePidOfAHead()
{
    CommandFixture f(QStringLiteral("H[A]"));
    f.node("H")->setPid(QStringLiteral("project"));
    f.stack->push(new InsertParent(f.model.get(), f.index("H")));
    QVERIFY(f.node("H")->pid() != QLatin1String("project"));
    f.stack->undo();
    QCOMPARE(f.node("H")->pid(), QStringLiteral("project"));
}

void TestInsertParent::shouldTakeTheNewHeadsOtherChildrenAlong()
{
    CommandFixture f(QStringLiteral("H[A];G[B]"));
    f.stack->push(new InsertParent(f.model.get(), f.index("H")));
    f.model->moveRows(f.index("G"), 0, 1, f.model->index(0, 0), 0);
    const QPersistentModelIndex dropped = f.index("B");
    QCOMPARE(f.text(), QStringLiteral("*[B,H[A]];G"));

    f.stack->undo();
    QCOMPARE(f.text(), QStringLiteral("H[A];G"));
    QVERIFY(!dropped.isValid());
    f.stack->redo();
    QCOMPARE(f.text(), QStringLiteral("*[H[A],B];G"));
}

void TestInsertParent::shouldBringTheOldHeadBackFromDeeperDown()
{
    CommandFixture f(QStringLiteral("H[A];G[B]"));
    f.stack->push(new InsertParent(f.model.get(), f.index("H")));
    f.model->moveRows(f.index("G"), 0, 1, f.model->index(0, 0), 0);
    f.model->moveRows(f.model->index(0, 0), 1, 1, f.index("B"), 0);
    QCOMPARE(f.text(), QStringLiteral("*[B[H[A]]];G"));
    f.stack->undo();
    QCOMPARE(f.text(), QStringLiteral("H[A];G"));
    QCOMPARE(f.node("H")->pid(), QStringLiteral("-1"));
}

void TestInsertParent::shouldLeaveANewHeadWhoseOldOneIsGone()
{
    CommandFixture f(QStringLiteral("H[A]"));
    f.stack->push(new InsertParent(f.model.get(), f.index("H")));
    f.model->removeRows(0, 1, f.model->index(0, 0));
    f.stack->undo();
    QCOMPARE(f.text(), QStringLiteral("*"));
}

void TestInsertParent::shouldTakeANewParentOutWhoseChildIsGone()
{
    CommandFixture f(QStringLiteral("H[A,B,C]"));
    f.draw();
    f.stack->push(new InsertParent(f.model.get(), f.index("B")));
    f.model->removeRows(0, 1, f.model->index(1, 0, f.index("H")));
    QCOMPARE(f.text(), QStringLiteral("H[A,+,C]"));
    f.stack->undo();
    QCOMPARE(f.text(), QStringLiteral("H[A,C]"));
    QCOMPARE(spearFault(*f.model), QString());
}

void TestInsertParent::shouldDoNothingWhenTheNewParentIsGone()
{
    CommandFixture f(QStringLiteral("H[A[a],B]"));
    f.stack->push(new InsertParent(f.model.get(), f.index("A")));
    f.model->removeRows(0, 1, f.index("H"));
    f.stack->undo();
    QCOMPARE(f.text(), QStringLiteral("H[B]"));
    f.stack->redo();
    QCOMPARE(f.text(), QStringLiteral("H[B]"));
}

void TestInsertParent::shouldLeaveANewParentThatCameBelowItsChild()
{
    CommandFixture f(QStringLiteral("H[A,B]"));
    f.stack->push(new InsertParent(f.model.get(), f.index("A")));
    f.model->moveRows(f.model->index(0, 0, f.index("H")), 0, 1, f.index("H"), 0);
    f.model->moveRows(f.index("H"), 1, 1, f.index("A"), 0);
    QCOMPARE(f.text(), QStringLiteral("H[A[+],B]"));
    f.stack->undo();
    QCOMPARE(f.text(), QStringLiteral("H[A[+],B]"));
}

void TestInsertParent::shouldDrawTheSameUuidForANewHeadAgain()
{
    CommandFixture f(QStringLiteral("H[A]"));
    auto *const command = new InsertParent(f.model.get(), f.index("H"));
    f.stack->push(command);
    const QString uuid = command->newUuid();
    QVERIFY(!uuid.isEmpty());
    TreeItem *const head = f.model->takeRow(0, f.model->index(0, 0));
    f.stack->undo(); // without the old head the document keeps the new one
    QVERIFY(f.model->insertFishToList(1, head));

    f.stack->redo();
    QCOMPARE(f.text(), QStringLiteral("*;*[H[A]]"));
    QCOMPARE(f.node("H")->parent()->uuid(), uuid);
}

void TestInsertParent::shouldSurviveTheEndOfTheModelWhileTheOldHeadMoves()
{
    CommandFixture f(QStringLiteral("H[A];G[B]"));
    f.stack->push(new InsertParent(f.model.get(), f.index("H")));
    f.model->moveRows(f.model->index(0, 0), 0, 1, f.index("B"), 0);
    QCOMPARE(f.text(), QStringLiteral("*;G[B[H[A]]]"));
    QObject::connect(f.model.get(), &FishModel::rowsMoved, this, [&f] { f.model.reset(); });

    f.stack->undo();
    QVERIFY(!f.model);
    f.stack->redo();
}

void TestInsertParent::shouldWorkThroughAModelOfAnotherKind()
{
    CommandFixture f(QStringLiteral("H[A[a],B]"));
    QIdentityProxyModel proxy;
    proxy.setSourceModel(f.model.get());

    f.stack->push(new InsertParent(&proxy, proxy.mapFromSource(f.index("A"))));
    for (int pass = 0; pass < 2; ++pass) {
        QCOMPARE(f.text(), QStringLiteral("H[+[A[a]],B]"));
        f.stack->undo();
        QCOMPARE(f.text(), QStringLiteral("H[A[a],B]"));
        f.stack->redo();
    }
}

void TestInsertParent::shouldLeaveAModelThatMovesNoRowsAsItWas()
{
    QStandardItemModel model(2, 2);
    model.setItem(0, 0, new QStandardItem(QStringLiteral("one")));
    model.setItem(0, 1, new QStandardItem(QStringLiteral("1")));
    model.setItem(1, 0, new QStandardItem(QStringLiteral("two")));
    model.setItem(1, 1, new QStandardItem(QStringLiteral("2")));
    const QString before = treeToText(model, QModelIndex());

    UndoStack stack;
    stack.push(new InsertParent(&model, model.index(1, 0)));
    QCOMPARE(treeToText(model, QModelIndex()), before);
    stack.undo();
    QCOMPARE(treeToText(model, QModelIndex()), before);
}

FISHBONE_TEST(TestInsertParent)
#include "tst_insertparent.moc"
