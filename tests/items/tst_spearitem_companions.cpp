// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// The part of SpearItem that concerns the link icon and the expand button that it is given.

#include <fishbone/items/spearitem.h>
#include <tests/items/boneparts.h>
#include <tests/program/testprogram.h>

#include <QGraphicsRectItem>
#include <QGraphicsScene>
#include <QtTest>

namespace {
using BoneParts::newSpear;

/** An item that counts how many of its kind are deleted. */
class CountedItem : public QGraphicsRectItem
{
public:
    explicit CountedItem(int *deletions)
        : QGraphicsRectItem(0, 0, 24, 10)
        , m_deletions(deletions)
    {
    }
    ~CountedItem() override { ++*m_deletions; }

private:
    int *m_deletions;
};

/** A kind of companion: how it is given to a spear and asked for. */
struct Companion
{
    void (SpearItem::*set)(QGraphicsItem *);
    QGraphicsItem *(SpearItem::*get)() const;
};

/** A spear, in a scene or not, with a companion of one kind. */
struct Owner
{
    Owner(const Companion &kind, bool inScene)
        : m_kind(kind)
    {
        auto made = newSpear();
        spear = made.get();
        if (inScene)
            scene.addItem(made.release());
        else
            owned = std::move(made);
        give(spear, first = std::make_unique<CountedItem>(&deletions).release());
    }

    void give(SpearItem *to, QGraphicsItem *item) const { (to->*m_kind.set)(item); }
    QGraphicsItem *companion() const { return (spear->*m_kind.get)(); }

    int deletions = 0; // first, since what the others own counts into it to the end
    QGraphicsScene scene;
    std::unique_ptr<SpearItem> owned;
    SpearItem *spear = nullptr;
    CountedItem *first = nullptr;

private:
    Companion m_kind;
};
} // namespace

Q_DECLARE_METATYPE(Companion)

class TestSpearItemCompanions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldAdoptACompanion_data();
    void shouldAdoptACompanion();
    void shouldDeleteTheCompanionThatIsReplaced_data();
    void shouldDeleteTheCompanionThatIsReplaced();
    void shouldDeleteTheCompanionForNone_data();
    void shouldDeleteTheCompanionForNone();
    void shouldKeepTheSameCompanion_data();
    void shouldKeepTheSameCompanion();
    void shouldForgetACompanionThatDies_data();
    void shouldForgetACompanionThatDies();
    void shouldForgetACompanionGivenToAnother_data();
    void shouldForgetACompanionGivenToAnother();
    void shouldTakeItsCompanionsAlong_data();
    void shouldTakeItsCompanionsAlong();
    void shouldPlaceACompanionAtOnce();
};

void TestSpearItemCompanions::shouldAdoptACompanion_data()
{
    QTest::addColumn<Companion>("companion");
    QTest::addColumn<bool>("inScene");

    const Companion link{&SpearItem::setLinkItem, &SpearItem::linkItem};
    const Companion expand{&SpearItem::setExpandBuddy, &SpearItem::expandBuddy};
    QTest::newRow("link") << link << false;
    QTest::newRow("link in a scene") << link << true;
    QTest::newRow("expand button") << expand << false;
    QTest::newRow("expand button in a scene") << expand << true;
}

void TestSpearItemCompanions::shouldAdoptACompanion()
{
    QFETCH(Companion, companion);
    QFETCH(bool, inScene);
    const Owner owner(companion, inScene);

    QCOMPARE(owner.companion(), owner.first);
    QCOMPARE(owner.first->parentItem(), owner.spear);
    QCOMPARE(owner.first->scene(), owner.spear->scene());
    QCOMPARE(owner.deletions, 0);
}

void TestSpearItemCompanions::shouldDeleteTheCompanionThatIsReplaced_data()
{
    shouldAdoptACompanion_data();
}

void TestSpearItemCompanions::shouldDeleteTheCompanionThatIsReplaced()
{
    QFETCH(Companion, companion);
    QFETCH(bool, inScene);
    int laterDeletions = 0; // before the owner, whose end it counts
    Owner owner(companion, inScene);
    auto *const second = std::make_unique<CountedItem>(&laterDeletions).release();

    owner.give(owner.spear, second);

    QCOMPARE(owner.deletions, 1);
    QCOMPARE(laterDeletions, 0);
    QCOMPARE(owner.companion(), second);
    QCOMPARE(second->parentItem(), owner.spear);
}

void TestSpearItemCompanions::shouldDeleteTheCompanionForNone_data()
{
    shouldAdoptACompanion_data();
}

void TestSpearItemCompanions::shouldDeleteTheCompanionForNone()
{
    QFETCH(Companion, companion);
    QFETCH(bool, inScene);
    const Owner owner(companion, inScene);

    owner.give(owner.spear, nullptr);
    QCOMPARE(owner.deletions, 1);
    QCOMPARE(owner.companion(), nullptr);

    owner.give(owner.spear, nullptr);
    QCOMPARE(owner.deletions, 1);
}

void TestSpearItemCompanions::shouldKeepTheSameCompanion_data()
{
    shouldAdoptACompanion_data();
}

void TestSpearItemCompanions::shouldKeepTheSameCompanion()
{
    QFETCH(Companion, companion);
    QFETCH(bool, inScene);
    const Owner owner(companion, inScene);

    owner.give(owner.spear, owner.first);

    QCOMPARE(owner.deletions, 0);
    QCOMPARE(owner.companion(), owner.first);
    QCOMPARE(owner.first->parentItem(), owner.spear);
}

void TestSpearItemCompanions::shouldForgetACompanionThatDies_data()
{
    shouldAdoptACompanion_data();
}

void TestSpearItemCompanions::shouldForgetACompanionThatDies()
{
    QFETCH(Companion, companion);
    QFETCH(bool, inScene);
    Owner owner(companion, inScene);

    delete owner.first;

    QCOMPARE(owner.companion(), nullptr);
    owner.spear->updatePosition(QPointF());
    auto *const second = std::make_unique<CountedItem>(&owner.deletions).release();
    owner.give(owner.spear, second);
    QCOMPARE(owner.companion(), second);
    QCOMPARE(owner.deletions, 1);
}

void TestSpearItemCompanions::shouldForgetACompanionGivenToAnother_data()
{
    shouldAdoptACompanion_data();
}

void TestSpearItemCompanions::shouldForgetACompanionGivenToAnother()
{
    QFETCH(Companion, companion);
    QFETCH(bool, inScene);
    Owner owner(companion, inScene);
    auto other = newSpear();

    owner.give(other.get(), owner.first);
    QCOMPARE(owner.companion(), nullptr);
    QCOMPARE(owner.first->parentItem(), other.get());
    owner.give(owner.spear, nullptr);
    QCOMPARE(owner.deletions, 0);

    other.reset();
    QCOMPARE(owner.deletions, 1);
}

void TestSpearItemCompanions::shouldTakeItsCompanionsAlong_data()
{
    shouldAdoptACompanion_data();
}

void TestSpearItemCompanions::shouldTakeItsCompanionsAlong()
{
    QFETCH(Companion, companion);
    QFETCH(bool, inScene);
    Owner owner(companion, inScene);

    owner.owned.reset();
    owner.scene.clear();

    QCOMPARE(owner.deletions, 1);
}

void TestSpearItemCompanions::shouldPlaceACompanionAtOnce()
{
    int deletions = 0; // before the spear, whose end it counts
    const auto spear = newSpear();
    spear->setLine(0, 0, -100, 0);
    auto *const expand = std::make_unique<CountedItem>(&deletions).release();
    auto *const link = std::make_unique<CountedItem>(&deletions).release();

    spear->setExpandBuddy(expand);
    spear->setLinkItem(link);

    QCOMPARE(expand->pos(), QPointF(-100, -8));
    const double halves = expand->boundingRect().width() / 2 + link->boundingRect().width() / 2;
    QCOMPARE(link->pos(), QPointF(-100 - halves, 0));
}

FISHBONE_TEST(TestSpearItemCompanions)
#include "tst_spearitem_companions.moc"
