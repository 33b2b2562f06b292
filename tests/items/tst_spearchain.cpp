// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/spearparts.h>

#include <QGraphicsScene>
#include <QtTest>

#include <fishbone/items/textitem.h>
#include <tests/program/testprogram.h>

#include <memory>
#include <vector>

/** That bones know whether they lead to one that is selected, hovered or linked. */
class TestSpearChain : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldLeadToWhatIsSelected();
    void shouldLeadToSeveral();
    void shouldLeadToALinkTargetAndToATextBox();
    void shouldFollowABoneToAnotherParent();
    void shouldForgetABoneThatIsEnded();
    void shouldForgetABoneThatLeavesTheScene();
    void shouldKeepUpWithManyOfAnyDepth();
    void shouldCountWhatIsNotedOnce();
    void shouldKnowItsDepth();
};

namespace {
/** A header with two bones, each with a cause. */
struct Fish
{
    QGraphicsScene scene;
    SpearItem *head = new SpearItem(QStringLiteral("head"), 0, 0);
    SpearItem *man = add(head);
    SpearItem *training = add(man);
    SpearItem *machine = add(head);
    SpearItem *wear = add(machine);

    Fish() { scene.addItem(head); }

    static SpearItem *add(SpearItem *parent)
    {
        auto *const spear = new SpearItem(QStringLiteral("bone"), 1, 0);
        spear->setParentItem(parent);
        return spear;
    }

    /** Those that stand out, in order. */
    QString out() const
    {
        QString names;
        const std::pair<const SpearItem *, char> all[] = {
            {head, 'h'}, {man, 'm'}, {training, 't'}, {machine, 'c'}, {wear, 'w'}};
        for (const auto &[spear, name] : all) {
            if (spear && spear->standsOut())
                names += QLatin1Char(name);
        }
        return names;
    }
};
} // namespace

void TestSpearChain::shouldLeadToWhatIsSelected()
{
    Fish fish;
    QCOMPARE(fish.out(), QString());
    fish.training->setSelected(true);
    QCOMPARE(fish.out(), QStringLiteral("hmt"));
    fish.training->setSelected(false);
    QCOMPARE(fish.out(), QString());
    fish.head->setSelected(true);
    QCOMPARE(fish.out(), QStringLiteral("h"));
}

void TestSpearChain::shouldLeadToSeveral()
{
    Fish fish;
    fish.man->setSelected(true);
    fish.training->setSelected(true);
    fish.wear->setSelected(true);
    QCOMPARE(fish.out(), QStringLiteral("hmtcw"));
    fish.training->setSelected(false);
    QCOMPARE(fish.out(), QStringLiteral("hmcw"));
    fish.man->setSelected(false);
    QCOMPARE(fish.out(), QStringLiteral("hcw"));
    fish.scene.clearSelection();
    QCOMPARE(fish.out(), QString());
}

void TestSpearChain::shouldLeadToALinkTargetAndToATextBox()
{
    Fish fish;
    fish.wear->setLinked(true, 0);
    QCOMPARE(fish.out(), QStringLiteral("hcw"));
    fish.wear->setLinked(false, -1);
    QCOMPARE(fish.out(), QString());
    fish.wear->textItem()->setFlag(QGraphicsItem::ItemIsSelectable);
    fish.wear->textItem()->setSelected(true);
    QCOMPARE(fish.out(), QStringLiteral("hcw"));
    fish.wear->textItem()->setSelected(false);
    QCOMPARE(fish.out(), QString());
}

void TestSpearChain::shouldFollowABoneToAnotherParent()
{
    Fish fish;
    fish.training->setSelected(true);
    fish.training->setParentItem(fish.machine);
    QCOMPARE(fish.out(), QStringLiteral("htc"));
    fish.training->setParentItem(nullptr);
    QCOMPARE(fish.out(), QStringLiteral("t"));
    fish.training->setParentItem(fish.man);
    QCOMPARE(fish.out(), QStringLiteral("hmt"));
    fish.training->setSelected(false);
    QCOMPARE(fish.out(), QString());
}

void TestSpearChain::shouldForgetABoneThatIsEnded()
{
    Fish fish;
    fish.training->setSelected(true);
    fish.wear->setSelected(true);
    delete fish.training;
    fish.training = nullptr;
    QCOMPARE(fish.out(), QStringLiteral("hcw"));
    delete fish.machine; // and with it what hangs off it
    fish.machine = fish.wear = nullptr;
    QCOMPARE(fish.out(), QString());
}

void TestSpearChain::shouldForgetABoneThatLeavesTheScene()
{
    Fish fish;
    fish.training->setSelected(true);
    fish.scene.removeItem(fish.man);
    QVERIFY(!fish.head->standsOut());
    const std::unique_ptr<SpearItem> owner(fish.man);
    fish.man = fish.training = nullptr;
    QCOMPARE(fish.out(), QString());
}

void TestSpearChain::shouldKeepUpWithManyOfAnyDepth()
{
    constexpr int count = 3000;
    QGraphicsScene scene;
    std::vector<SpearItem *> chain{new SpearItem(QStringLiteral("head"), 0, 0)};
    while (int(chain.size()) < count)
        chain.push_back(Fish::add(chain.back()));
    // Each as the one below does not stand out any more, and the other way round.
    for (SpearItem *const spear : chain)
        spear->setLinked(true, 0);
    for (auto spear = chain.rbegin(); spear != chain.rend(); ++spear) {
        QVERIFY((*spear)->standsOut());
        (*spear)->setLinked(false, -1);
        QVERIFY(!(*spear)->standsOut());
    }
    chain.back()->setLinked(true, 0);
    QVERIFY(chain.front()->standsOut());
    chain.back()->setLinked(false, -1);
    QVERIFY(!chain.front()->standsOut());
    delete chain.front();
}

void TestSpearChain::shouldCountWhatIsNotedOnce()
{
    Fish fish;
    SpearChain &chain = SpearParts::of(*fish.training).chain;
    chain.note(true);
    chain.note(true);
    QCOMPARE(fish.out(), QStringLiteral("hmt"));
    chain.note(false);
    QCOMPARE(fish.out(), QString());
}

void TestSpearChain::shouldKnowItsDepth()
{
    Fish fish;
    QCOMPARE(SpearParts::of(*fish.head).chain.depth(), 0);
    QCOMPARE(SpearParts::of(*fish.wear).chain.depth(), 2);
}

FISHBONE_TEST(TestSpearChain)
#include "tst_spearchain.moc"
