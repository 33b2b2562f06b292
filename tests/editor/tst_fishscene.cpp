// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QGraphicsRectItem>
#include <QGraphicsView>
#include <QMetaMethod>
#include <QSignalSpy>
#include <QtTest>

#include <fishbone/editor/fishscene.h>
#include <tests/program/testprogram.h>

class TestFishScene : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldHaveNoParentUnlessGivenOne();
    void shouldOfferTheHandlerAsItsOnlySlot();
    void shouldKeepNoSpatialIndex();
    void shouldKnowItsFirstView();
    void shouldKeepASelectionOfLessThanTwo();
    void shouldThinOutASelection_data();
    void shouldThinOutASelection();
    void shouldRememberTheFirstOfThoseThatStay();
    void shouldSurviveTheDeathOfTheRememberedItem();
    void shouldBeSilentWhileItThinsOut();
    void shouldNotHandleItsSelectionByItself();
};

namespace {
/** A scene with selectable items and the handling under test. */
class SelectionFixture
{
public:
    explicit SelectionFixture(int count)
    {
        for (int i = 0; i < count; ++i) {
            QGraphicsItem *const item = scene.addRect(i * 20, 0, 10, 10);
            item->setFlag(QGraphicsItem::ItemIsSelectable);
            items.append(item);
        }
    }

    /** Adds to the selection, without any order of our own. */
    void select(const QList<int> &numbers)
    {
        for (int number : numbers)
            items.at(number)->setSelected(true);
    }

    /** The scene's own list, as item numbers. */
    QList<int> selection() const
    {
        QList<int> numbers;
        const QList<QGraphicsItem *> selected = scene.selectedItems();
        for (QGraphicsItem *item : selected)
            numbers.append(items.indexOf(item));
        return numbers;
    }

    FishScene scene;
    QList<QGraphicsItem *> items;
};
} // namespace

void TestFishScene::shouldHaveNoParentUnlessGivenOne()
{
    QObject parent;

    QCOMPARE(FishScene().parent(), nullptr);
    QCOMPARE((new FishScene(&parent))->parent(), &parent);
}

void TestFishScene::shouldOfferTheHandlerAsItsOnlySlot()
{
    const QMetaObject &type = FishScene::staticMetaObject;

    QCOMPARE(type.superClass(), &QGraphicsScene::staticMetaObject);
    QCOMPARE(type.methodCount() - type.methodOffset(), 1);
    const QMetaMethod method = type.method(type.methodOffset());
    QCOMPARE(method.methodSignature(), QByteArray("handleSelectionChanged()"));
    QCOMPARE(method.methodType(), QMetaMethod::Slot);
    QCOMPARE(method.access(), QMetaMethod::Public);
}

void TestFishScene::shouldKeepNoSpatialIndex()
{
    QCOMPARE(FishScene().itemIndexMethod(), QGraphicsScene::NoIndex);
}

void TestFishScene::shouldKnowItsFirstView()
{
    FishScene scene;
    QCOMPARE(scene.currentGraphicsView(), nullptr);

    auto first = std::make_unique<QGraphicsView>(&scene);
    const QGraphicsView second(&scene);
    QCOMPARE(scene.currentGraphicsView(), first.get());

    first.reset();
    QCOMPARE(scene.currentGraphicsView(), &second);
}

void TestFishScene::shouldKeepASelectionOfLessThanTwo()
{
    SelectionFixture fixture(3);

    fixture.scene.handleSelectionChanged();
    QCOMPARE(fixture.selection(), QList<int>());

    fixture.select({1});
    fixture.scene.handleSelectionChanged();
    QCOMPARE(fixture.selection(), QList<int>({1}));
}

void TestFishScene::shouldThinOutASelection_data()
{
    QTest::addColumn<int>("remembered");
    QTest::addColumn<int>("count");

    for (int count = 2; count <= 4; ++count) {
        for (int remembered = -1; remembered < count; ++remembered)
            QTest::addRow("%d selected, number %d remembered", count, remembered)
                << remembered << count;
    }
}

void TestFishScene::shouldThinOutASelection()
{
    QFETCH(int, remembered);
    QFETCH(int, count);
    SelectionFixture fixture(4);
    if (remembered >= 0) {
        fixture.select({remembered});
        fixture.scene.handleSelectionChanged();
        fixture.scene.clearSelection();
    }
    for (int i = 0; i < count; ++i)
        fixture.select({i});
    // The list's order is the scene's own affair; the rule is about that list.
    QList<int> expected = fixture.selection();
    if (expected.first() == remembered)
        expected.removeFirst();
    else
        expected.removeLast();

    fixture.scene.handleSelectionChanged();

    QList<int> left = fixture.selection();
    std::sort(left.begin(), left.end());
    std::sort(expected.begin(), expected.end());
    QCOMPARE(left, expected);
}

void TestFishScene::shouldRememberTheFirstOfThoseThatStay()
{
    SelectionFixture fixture(3);
    fixture.select({0, 1, 2});
    QList<int> staying = fixture.selection();
    staying.removeLast(); // nothing was remembered
    fixture.scene.handleSelectionChanged();
    QList<int> left = fixture.selection();
    QCOMPARE(QSet<int>(left.cbegin(), left.cend()), QSet<int>(staying.cbegin(), staying.cend()));

    // What was remembered shows in which one goes next.
    left.removeOne(left.first() == staying.first() ? left.first() : left.last());
    fixture.scene.handleSelectionChanged();

    QCOMPARE(fixture.selection(), left);
}

void TestFishScene::shouldSurviveTheDeathOfTheRememberedItem()
{
    SelectionFixture fixture(3);
    fixture.select({0});
    fixture.scene.handleSelectionChanged();
    delete fixture.items.takeFirst();

    fixture.select({0, 1});
    fixture.scene.handleSelectionChanged();

    QCOMPARE(fixture.selection().size(), 1);
}

void TestFishScene::shouldBeSilentWhileItThinsOut()
{
    SelectionFixture fixture(3);
    fixture.select({0, 1, 2});
    QSignalSpy changes(&fixture.scene, &QGraphicsScene::selectionChanged);

    fixture.scene.handleSelectionChanged();
    QCOMPARE(changes.count(), 0);
    QVERIFY(!fixture.scene.signalsBlocked());

    fixture.scene.clearSelection();
    QCOMPARE(changes.count(), 1);
}

void TestFishScene::shouldNotHandleItsSelectionByItself()
{
    SelectionFixture fixture(3);

    fixture.select({0, 1, 2});

    QCOMPARE(fixture.selection().size(), 3);
}

FISHBONE_TEST(TestFishScene)
#include "tst_fishscene.moc"
