// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QtTest>

#include <fishbone/drawing/spearbuilder.h>
#include <fishbone/undo/structuralcommands.h>
#include <tests/program/testprogram.h>
#include <tests/support/commandfixture.h>

using namespace TestSupport;

/** Which subjects EditDelete takes, and what it does to the drawing. */
class TestDeleteCommandLookup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldDeleteTheSubjectItWasMadeForAmongCopies();
    void shouldStayInTheDocumentItWasMadeFor();
    void shouldLookFirstInTheDocumentItIsGiven();
    void shouldLookElsewhereWhenTheDocumentHasNoSuchSubject();
    void shouldTellShortUuidsApart();
    void shouldTakeAnEndingForAUuid();
    void shouldTakeNoEndingForASubjectThatIsGone();
    void shouldTakeNoEndingThatComesLater();
    void shouldTakeTheUpperOneOfNestedSubjects();
    void shouldGiveAParentWithoutUuidOne();
    void shouldDeleteTheSpearsOfTheSubtree();
    void shouldPutBackTheSpearsOfTheSubtree();
    void shouldDeleteSpearsBelowASubjectWithout();
};

void TestDeleteCommandLookup::shouldDeleteTheSubjectItWasMadeForAmongCopies()
{
    CommandFixture f(QStringLiteral("H[A,B[C]]"));
    f.node("C")->setUuid(QStringLiteral("u-A"));
    QCOMPARE(f.roundTripFault(new EditDelete(f.model.get(), f.index("C"))), QString());
    QCOMPARE(f.text(), QStringLiteral("H[A,B]"));
}

void TestDeleteCommandLookup::shouldStayInTheDocumentItWasMadeFor()
{
    CommandFixture f(QStringLiteral("H[A,B];H[A,B]"));
    f.draw();
    const QModelIndex second = f.model->index(0, 0, f.model->index(1, 0));
    QCOMPARE(f.roundTripFault(new EditDelete(f.model.get(), second)), QString());
    QCOMPARE(f.text(), QStringLiteral("H[A,B];H[B]"));
    f.stack->undo();
    QCOMPARE(f.roundTripFault(new EditDelete(f.model.get(), f.model->index(1, 0))), QString());
    QCOMPARE(f.text(), QStringLiteral("H[A,B]"));
}

void TestDeleteCommandLookup::shouldLookFirstInTheDocumentItIsGiven()
{
    CommandFixture f(QStringLiteral("H[A,B];H[A,B]"));
    const QJsonObject snapshot = f.snapshot({QStringLiteral("A"), QStringLiteral("B")});
    auto *const first = new EditDelete(f.model.get(), f.snapshot({QStringLiteral("A")}));
    QCOMPARE(f.roundTripFault(first), QString());
    QCOMPARE(f.text(), QStringLiteral("H[B];H[A,B]"));
    f.stack->undo();

    auto *const second = new EditDelete(f.model.get(), snapshot);
    second->setDocument(f.document(1));
    QCOMPARE(f.roundTripFault(second), QString());
    QCOMPARE(f.text(), QStringLiteral("H[A,B];H"));
}

void TestDeleteCommandLookup::shouldLookElsewhereWhenTheDocumentHasNoSuchSubject()
{
    CommandFixture f(QStringLiteral("H[A];G[B]"));
    auto *const command = new EditDelete(f.model.get(), f.snapshot({QStringLiteral("A")}));
    command->setDocument(f.document(1));
    QCOMPARE(f.roundTripFault(command), QString());
    QCOMPARE(f.text(), QStringLiteral("H;G[B]"));
}

void TestDeleteCommandLookup::shouldTellShortUuidsApart()
{
    CommandFixture f(QStringLiteral("H[A,B,C]"));
    f.node("A")->setUuid(QStringLiteral("11"));
    f.node("B")->setUuid(QStringLiteral("1"));
    f.node("C")->setUuid(QStringLiteral("21"));
    const QJsonObject snapshot = f.snapshot({QStringLiteral("B")});
    QCOMPARE(f.roundTripFault(new EditDelete(f.model.get(), snapshot)), QString());
    QCOMPARE(f.text(), QStringLiteral("H[A,C]"));
}

void TestDeleteCommandLookup::shouldTakeAnEndingForAUuid()
{
    CommandFixture f(QStringLiteral("H[A,B,C]"));
    f.node("A")->setUuid(QStringLiteral("first-42x"));
    f.node("B")->setUuid(QStringLiteral("second-X42"));
    f.node("C")->setUuid(QStringLiteral("third-x42"));
    const QJsonObject ending{{QStringLiteral("uuid"), QStringLiteral("x42")},
                             {QStringLiteral("pid"), QStringLiteral("u-H")}};
    QCOMPARE(f.roundTripFault(new EditDelete(f.model.get(), ending)), QString());
    QCOMPARE(f.text(), QStringLiteral("H[A,C]"));
}

void TestDeleteCommandLookup::shouldTakeNoEndingForASubjectThatIsGone()
{
    CommandFixture f(QStringLiteral("H[A,B,C]"));
    f.node("A")->setUuid(QStringLiteral("x-42"));
    f.node("B")->setUuid(QStringLiteral("42"));
    const QJsonObject snapshot = f.snapshot({QStringLiteral("B")});
    auto *const command = new EditDelete(f.model.get(), snapshot);
    QVERIFY(f.model->removeRows(1, 1, f.index("H")));
    QCOMPARE(f.roundTripFault(command), QString());
    QCOMPARE(f.text(), QStringLiteral("H[A,C]"));
    QCOMPARE(command->rows(), QList<int>{-1});
}

void TestDeleteCommandLookup::shouldTakeNoEndingThatComesLater()
{
    CommandFixture f(QStringLiteral("H[A,B]"));
    const QJsonObject ending{{QStringLiteral("uuid"), QStringLiteral("x42")}};
    auto *const command = new EditDelete(f.model.get(), ending);
    f.node("A")->setUuid(QStringLiteral("first-x42"));
    QCOMPARE(f.roundTripFault(command), QString());
    QCOMPARE(f.text(), QStringLiteral("H[A,B]"));
}

void TestDeleteCommandLookup::shouldTakeTheUpperOneOfNestedSubjects()
{
    CommandFixture f(QStringLiteral("H[A[a],B[b]]"));
    f.draw();
    f.node("b")->setUuid(QStringLiteral("u-a")); // a copy of what goes with A
    const QJsonObject upperFirst = f.snapshot({QStringLiteral("A"), QStringLiteral("a")});
    const QJsonObject lowerFirst = f.snapshot({QStringLiteral("a"), QStringLiteral("A")});
    for (const QJsonObject &snapshot : {upperFirst, lowerFirst}) {
        QCOMPARE(f.roundTripFault(new EditDelete(f.model.get(), snapshot)), QString());
        QCOMPARE(f.text(), QStringLiteral("H[B[b]]"));
        f.stack->undo();
        QCOMPARE(f.text(), QStringLiteral("H[A[a],B[b]]"));
    }
}

void TestDeleteCommandLookup::shouldGiveAParentWithoutUuidOne()
{
    CommandFixture f(QStringLiteral("H[A[a,b],B]"));
    f.node("A")->setUuid(QString());
    EditDelete command(f.model.get(), f.snapshot({QStringLiteral("b")}));
    QCOMPARE(f.node("A")->uuid().size(), 38);
    QCOMPARE(f.node("a")->pid(), QStringLiteral("u-A"));
    command.redo();
    command.undo();
    QCOMPARE(f.text(), QStringLiteral("H[A[a,b],B]"));
    QCOMPARE(f.node("b")->pid(), QStringLiteral("u-A"));
}

void TestDeleteCommandLookup::shouldDeleteTheSpearsOfTheSubtree()
{
    CommandFixture f(QStringLiteral("H[A[a[x],b],B]"));
    f.draw();
    QGraphicsScene *const scene = f.spear("H")->scene();
    const auto countSpears = [scene] {
        int count = 0;
        const QList<QGraphicsItem *> items = scene->items();
        for (const QGraphicsItem *item : items)
            count += item->type() == SpearItem::Type;
        return count;
    };
    QCOMPARE(countSpears(), 6);
    f.stack->push(new EditDelete(f.model.get(), f.index("A")));
    QCOMPARE(countSpears(), 2);
    f.stack->undo();
    QCOMPARE(countSpears(), 6);
    f.stack->push(new EditDelete(f.model.get(), f.index("H")));
    QCOMPARE(countSpears(), 0);
}

void TestDeleteCommandLookup::shouldPutBackTheSpearsOfTheSubtree()
{
    CommandFixture f(QStringLiteral("H[A[a[x],b],B]"));
    QGraphicsScene scene;
    scene.addItem(SpearBuilder(*f.model).buildHead(f.index("H")));
    f.stack->push(new EditDelete(f.model.get(), f.index("A")));
    f.stack->undo();
    QCOMPARE(spearFault(*f.model), QString());
    QCOMPARE(f.spear("A")->parentItem(), f.spear("H"));
    QCOMPARE(f.spear("x")->parentItem(), f.spear("a"));
}

void TestDeleteCommandLookup::shouldDeleteSpearsBelowASubjectWithout()
{
    CommandFixture f(QStringLiteral("H[A[a]]"));
    QGraphicsScene scene;
    scene.addItem(makeSpear(*f.model, f.index("a"), 0, 20));
    f.stack->push(new EditDelete(f.model.get(), f.index("A")));
    QVERIFY(scene.items().isEmpty());
}

FISHBONE_TEST(TestDeleteCommandLookup)
#include "tst_deletecommand_lookup.moc"
