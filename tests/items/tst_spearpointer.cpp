// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/spearpointer.h>

#include <QGraphicsScene>
#include <QtTest>

#include <fishbone/items/spearitem.h>
#include <tests/items/boneparts.h>
#include <tests/program/testprogram.h>

class TestSpearPointer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldBeNullWithoutASpear();
    void shouldPointAtItsSpear();
    void shouldTurnNullWhenTheSpearDies();
    void shouldTurnNullWhenTheSceneIsCleared();
    void shouldTurnNullWhenTheParentSpearDies();
    void shouldPointAtTheSameSpearAsItsCopies();
    void shouldTakeAnotherSpear();
    void shouldNotFollowASpearThatItLeft();
    void shouldBeMadeOfASpearThatHadPointersBefore();
};

namespace {
using BoneParts::newSpear;
} // namespace

void TestSpearPointer::shouldBeNullWithoutASpear()
{
    QCOMPARE(SpearPointer().get(), nullptr);
    QCOMPARE(SpearPointer(nullptr).get(), nullptr);
}

void TestSpearPointer::shouldPointAtItsSpear()
{
    const auto spear = newSpear();

    QCOMPARE(SpearPointer(spear.get()).get(), spear.get());
}

void TestSpearPointer::shouldTurnNullWhenTheSpearDies()
{
    auto spear = newSpear();
    const SpearPointer pointer(spear.get());

    spear.reset();

    QCOMPARE(pointer.get(), nullptr);
}

void TestSpearPointer::shouldTurnNullWhenTheSceneIsCleared()
{
    QGraphicsScene scene;
    SpearItem *const spear = newSpear().release();
    scene.addItem(spear);
    const SpearPointer pointer(spear);

    scene.clear();

    QCOMPARE(pointer.get(), nullptr);
}

void TestSpearPointer::shouldTurnNullWhenTheParentSpearDies()
{
    auto parent = newSpear();
    SpearItem *const child = newSpear().release();
    child->setParentItem(parent.get());
    const SpearPointer pointer(child);

    parent.reset();

    QCOMPARE(pointer.get(), nullptr);
}

void TestSpearPointer::shouldPointAtTheSameSpearAsItsCopies()
{
    auto spear = newSpear();
    const SpearPointer first(spear.get());
    const SpearPointer copy(first);
    SpearPointer assigned;
    assigned = copy;
    const SpearPointer second(spear.get());

    for (const SpearPointer &pointer : {first, copy, assigned, second})
        QCOMPARE(pointer.get(), spear.get());
    spear.reset();
    for (const SpearPointer &pointer : {first, copy, assigned, second})
        QCOMPARE(pointer.get(), nullptr);
}

void TestSpearPointer::shouldTakeAnotherSpear()
{
    auto first = newSpear();
    const auto second = newSpear();
    SpearPointer pointer(first.get());
    first.reset();

    pointer = second.get();

    QCOMPARE(pointer.get(), second.get());
}

void TestSpearPointer::shouldNotFollowASpearThatItLeft()
{
    auto first = newSpear();
    const auto second = newSpear();
    SpearPointer pointer(first.get());
    pointer = second.get();

    first.reset();

    QCOMPARE(pointer.get(), second.get());
}

void TestSpearPointer::shouldBeMadeOfASpearThatHadPointersBefore()
{
    auto spear = newSpear();
    {
        const SpearPointer gone(spear.get());
    }
    const SpearPointer pointer(spear.get());

    QCOMPARE(pointer.get(), spear.get());
    spear.reset();
    QCOMPARE(pointer.get(), nullptr);
}

FISHBONE_TEST(TestSpearPointer)
#include "tst_spearpointer.moc"
