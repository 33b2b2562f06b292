// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/spearparts.h>

#include <QGraphicsScene>
#include <QtTest>

#include <memory>

#include <fishbone/items/textitem.h>
#include <tests/program/testprogram.h>
#include <tests/support/drawing.h>

using namespace TestSupport;

/** The child spears of a spear. */
class TestSpearChildren : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldFindSpearsAmongTheCompanions();
    void shouldKnowThemUntilOneComesOrGoes();
    void shouldCountWhatComesAndGoes();
    void shouldShowAndHideThem();
    void shouldShowThemAgainWhateverWasDoneToThem();
    void shouldNotSurviveWhoEndsTheSpear();
    void shouldStackThemInTheOrderOfTheirSubjects();
};

namespace {
SpearChildren &childrenOf(const SpearItem &spear)
{
    return SpearParts::of(spear).children;
}

SpearItem *addTo(SpearItem &parent)
{
    auto spear = std::make_unique<SpearItem>(QStringLiteral("Cause"), 1, 20);
    spear->setParentItem(&parent);
    return spear.release();
}
} // namespace

void TestSpearChildren::shouldFindSpearsAmongTheCompanions()
{
    SpearItem spear(QStringLiteral("Head"), 0, 20);
    QVERIFY(childrenOf(spear).find().isEmpty());
    SpearItem *const first = addTo(spear);
    SpearItem *const second = addTo(spear);
    QCOMPARE(childrenOf(spear).find(), (QList<SpearItem *>{first, second}));
    QVERIFY(spear.childItems().size() > 2);
}

void TestSpearChildren::shouldKnowThemUntilOneComesOrGoes()
{
    SpearItem spear(QStringLiteral("Head"), 0, 20);
    SpearItem *const first = addTo(spear);
    const QList<SpearItem *> *const known = &childrenOf(spear).known();
    QCOMPARE(*known, QList<SpearItem *>{first});
    QCOMPARE(&childrenOf(spear).known(), known);
    SpearItem *const second = addTo(spear);
    QCOMPARE(childrenOf(spear).known(), (QList<SpearItem *>{first, second}));
    delete first;
    QCOMPARE(childrenOf(spear).known(), QList<SpearItem *>{second});
}

void TestSpearChildren::shouldCountWhatComesAndGoes()
{
    SpearItem spear(QStringLiteral("Head"), 0, 20);
    const quint64 before = SpearChildren::changes();
    spear.setSelected(true);
    QCOMPARE(SpearChildren::changes(), before);
    const std::unique_ptr<SpearItem> child(addTo(spear));
    const quint64 added = SpearChildren::changes();
    QVERIFY(added > before);
    child->setParentItem(nullptr);
    QVERIFY(SpearChildren::changes() > added);
}

void TestSpearChildren::shouldShowAndHideThem()
{
    SpearItem spear(QStringLiteral("Head"), 0, 20);
    const SpearItem *const child = addTo(spear);
    QVERIFY(!childrenOf(spear).areShown());
    childrenOf(spear).setShown(false);
    QVERIFY(!child->isVisible());
    childrenOf(spear).setShown(true);
    QVERIFY(childrenOf(spear).areShown());
    QVERIFY(child->isVisible());
    QVERIFY(spear.textItem()->isVisible());
}

void TestSpearChildren::shouldShowThemAgainWhateverWasDoneToThem()
{
    SpearItem spear(QStringLiteral("Head"), 0, 20);
    SpearItem *const child = addTo(spear);
    childrenOf(spear).setShown(true);
    child->setVisible(false);
    childrenOf(spear).show();
    QVERIFY(child->isVisible());
}

void TestSpearChildren::shouldNotSurviveWhoEndsTheSpear()
{
    QGraphicsScene scene;
    auto *const spear = std::make_unique<SpearItem>(QStringLiteral("Head"), 0, 20).release();
    scene.addItem(spear);
    addTo(*spear)->setSelected(true);
    connect(&scene, &QGraphicsScene::selectionChanged, &scene, [&scene] { scene.clear(); });
    childrenOf(*spear).setShown(false); // which unselects the child
    QVERIFY(scene.items().isEmpty());
}

void TestSpearChildren::shouldStackThemInTheOrderOfTheirSubjects()
{
    const Drawing drawing(QStringLiteral("Effect[Man,Machine,Method]"));
    const QList<SpearItem *> inOrder = childrenOf(*drawing.head).find();
    SpearItem *const first = inOrder.first();
    first->setParentItem(nullptr);
    first->setParentItem(drawing.head);
    QVERIFY(childrenOf(*drawing.head).known() != inOrder);
    childrenOf(*drawing.head).stackInRowOrder();
    QCOMPARE(childrenOf(*drawing.head).known(), inOrder);
}

FISHBONE_TEST(TestSpearChildren)
#include "tst_spearchildren.moc"
