// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QtTest>

#include <fishbone/editor/boneselection.h>
#include <fishbone/items/textitem.h>
#include <tests/program/testprogram.h>
#include <tests/support/drawing.h>

using namespace TestSupport;

/** What is selected, and what of it counts. */
class TestBoneSelection : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldListSpearsInDocumentOrder();
    void shouldListWhatElseIsSelectedBehind();
    void shouldListWithoutAHead();
    void shouldFindTheSpearOfATextBox();
    void shouldSelectSpearsOfItsSceneAlone();
    void shouldLeaveOutTops();
    void shouldLeaveOutWhatIsNested();
    void shouldConcernEachSubtreeOnceWithoutTheHead();
    void shouldSelectEverythingWithOneReport();
    void shouldCoverRectanglesInTheirOwnCoordinates();
};

void TestBoneSelection::shouldListSpearsInDocumentOrder()
{
    Drawing drawing(QStringLiteral("H[A[B],C]"));
    for (const char *title : {"C", "B", "H", "A"})
        drawing.spear(QString::fromLatin1(title))->setSelected(true);
    QStringList titles;
    const auto items = BoneSelection::items(drawing.scene, drawing.head);
    for (QGraphicsItem *item : items)
        titles.append(BoneSelection::spearOf(item)->text());
    QCOMPARE(titles.join(QLatin1Char(' ')), QStringLiteral("H A B C"));
}

void TestBoneSelection::shouldListWhatElseIsSelectedBehind()
{
    Drawing drawing(QStringLiteral("H[A]"));
    QGraphicsItem *const stranger = drawing.scene.addRect(0, 0, 1, 1);
    stranger->setFlag(QGraphicsItem::ItemIsSelectable);
    stranger->setSelected(true);
    drawing.spear(QStringLiteral("A"))->setSelected(true);
    const QList<QGraphicsItem *> expected = {drawing.spear(QStringLiteral("A")), stranger};
    QCOMPARE(BoneSelection::items(drawing.scene, drawing.head), expected);
}

void TestBoneSelection::shouldListWithoutAHead()
{
    Drawing drawing(QStringLiteral("H[A,B]"));
    drawing.spear(QStringLiteral("A"))->setSelected(true);
    drawing.spear(QStringLiteral("B"))->setSelected(true);
    QCOMPARE(BoneSelection::items(drawing.scene, nullptr).count(), 2);
}

void TestBoneSelection::shouldFindTheSpearOfATextBox()
{
    Drawing drawing(QStringLiteral("H[A]"));
    SpearItem *const spear = drawing.spear(QStringLiteral("A"));
    TextItem alone((QString()));
    QCOMPARE(BoneSelection::spearOf(spear), spear);
    QCOMPARE(BoneSelection::spearOf(spear->textItem()), spear);
    QVERIFY(!BoneSelection::spearOf(&alone));
    QVERIFY(!BoneSelection::spearOf(nullptr));
    QVERIFY(!BoneSelection::spearOf(drawing.scene.addRect(0, 0, 1, 1)));
}

void TestBoneSelection::shouldSelectSpearsOfItsSceneAlone()
{
    Drawing drawing(QStringLiteral("H[A,B,C]"));
    Drawing other(QStringLiteral("H[A]"));
    const auto bone = [](Drawing &in, const char *title) {
        return in.spear(QString::fromLatin1(title));
    };
    bone(drawing, "A")->setSelected(true);
    const QSignalSpy spy(&drawing.scene, &QGraphicsScene::selectionChanged);
    BoneSelection::select(drawing.scene,
                          {bone(drawing, "C"), bone(other, "A"), bone(drawing, "B")});
    const QList<QGraphicsItem *> expected = {bone(drawing, "B"), bone(drawing, "C")};
    QCOMPARE(BoneSelection::items(drawing.scene, drawing.head), expected);
    QCOMPARE(spy.count(), 1);
    QVERIFY(other.scene.selectedItems().isEmpty());
    BoneSelection::select(drawing.scene, {bone(drawing, "B"), bone(drawing, "C")});
    QCOMPARE(spy.count(), 1); // as they were
    BoneSelection::select(drawing.scene, {});
    QVERIFY(drawing.scene.selectedItems().isEmpty());
}

void TestBoneSelection::shouldLeaveOutTops()
{
    Drawing drawing(QStringLiteral("H[A]"));
    SpearItem *const bone = drawing.spear(QStringLiteral("A"));
    QList<QGraphicsItem *> items = {drawing.head, nullptr, bone};
    BoneSelection::removeTops(items);
    QCOMPARE(items, QList<QGraphicsItem *>{bone});
}

void TestBoneSelection::shouldLeaveOutWhatIsNested()
{
    Drawing drawing(QStringLiteral("H[A[B[C]],D]"));
    const auto bone = [&drawing](const char *title) -> QGraphicsItem * {
        return drawing.spear(QString::fromLatin1(title));
    };
    QList<QGraphicsItem *> items = {bone("C"), bone("D"), bone("A")};
    BoneSelection::removeNested(items);
    const QList<QGraphicsItem *> expected = {bone("D"), bone("A")};
    QCOMPARE(items, expected);
}

void TestBoneSelection::shouldConcernEachSubtreeOnceWithoutTheHead()
{
    Drawing drawing(QStringLiteral("H[A[B],D]"));
    const QList<QGraphicsItem *> items = {drawing.head, drawing.spear(QStringLiteral("D")),
                                          drawing.scene.addRect(0, 0, 1, 1),
                                          drawing.spear(QStringLiteral("B"))};
    // Without the head, below which all of them are, the others count.
    const QList<TreeItem *> expected = {drawing.node(QStringLiteral("D")),
                                        drawing.node(QStringLiteral("B"))};
    QCOMPARE(BoneSelection::subjects(items), expected);
    const QList<QGraphicsItem *> nested = {drawing.spear(QStringLiteral("B")),
                                           drawing.spear(QStringLiteral("A"))};
    QCOMPARE(BoneSelection::subjects(nested), QList<TreeItem *>{drawing.node(QStringLiteral("A"))});
}

void TestBoneSelection::shouldSelectEverythingWithOneReport()
{
    Drawing drawing(QStringLiteral("H[A,B]"));
    const QSignalSpy spy(&drawing.scene, &QGraphicsScene::selectionChanged);
    BoneSelection::selectAll(drawing.scene);
    for (const char *title : {"H", "A", "B"})
        QVERIFY(drawing.spear(QString::fromLatin1(title))->isSelected());
    QCOMPARE(spy.count(), 1);
}

void TestBoneSelection::shouldCoverRectanglesInTheirOwnCoordinates()
{
    QGraphicsScene scene;
    QGraphicsItem *const one = scene.addRect(0, 0, 10, 10, Qt::NoPen);
    QGraphicsItem *const other = scene.addRect(20, 0, 10, 30, Qt::NoPen);
    one->setPos(1000, 1000);
    QCOMPARE(BoneSelection::boundsOf({one, other}), QRectF(0, 0, 30, 30));
    QCOMPARE(BoneSelection::boundsOf({}), QRectF());
}

FISHBONE_TEST(TestBoneSelection)
#include "tst_boneselection.moc"
