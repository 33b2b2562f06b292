// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/spearparts.h>

#include <QGraphicsScene>
#include <QStyleOptionGraphicsItem>
#include <QtTest>

#include <fishbone/items/textitem.h>
#include <tests/program/testprogram.h>
#include <tests/support/drawing.h>

using namespace TestSupport;

/** The state of a spear and what it shows of it. */
class TestSpearAppearance : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldTakeTheStrongestState_data();
    void shouldTakeTheStrongestState();
    void shouldApplyPenAndColor();
    void shouldFollowTheMouse();
    void shouldForgetTheMouseWithTheScene();
    void shouldFollowTheSelection();
    void shouldKeepTheTextOfALinkedHeader();
    void shouldNoteThatItStandsOut();
};

namespace {
SpearAppearance &appearanceOf(const SpearItem &spear)
{
    return SpearParts::of(spear).appearance;
}
} // namespace

void TestSpearAppearance::shouldTakeTheStrongestState_data()
{
    QTest::addColumn<bool>("linked");
    QTest::addColumn<bool>("hovered");
    QTest::addColumn<bool>("selected");
    QTest::addColumn<int>("state");
    QTest::newRow("none") << false << false << false << int(SpearStyle::ssNormal);
    QTest::newRow("selected") << false << false << true << int(SpearStyle::ssSelected);
    QTest::newRow("hovered, too") << false << true << true << int(SpearStyle::ssHovered);
    QTest::newRow("all") << true << true << true << int(SpearStyle::ssLinked);
}

void TestSpearAppearance::shouldTakeTheStrongestState()
{
    QFETCH(bool, linked);
    QFETCH(bool, hovered);
    QFETCH(bool, selected);
    const SpearItem spear(QStringLiteral("Cause"), 1, 20);
    appearanceOf(spear).setLinked(linked, 2);
    QCOMPARE(appearanceOf(spear).isLinked(), linked);
    QCOMPARE(appearanceOf(spear).linkNumber(), 2);
    QStyleOptionGraphicsItem option;
    option.state.setFlag(QStyle::State_MouseOver, hovered);
    option.state.setFlag(QStyle::State_Selected, selected);
    QTEST(int(appearanceOf(spear).stateOf(option)), "state");
}

void TestSpearAppearance::shouldApplyPenAndColor()
{
    SpearItem head(QStringLiteral("Head"), 0, 20);
    auto *const spear = std::make_unique<SpearItem>(QStringLiteral("Cause"), 1, 20).release();
    spear->setParentItem(&head);
    for (const SpearStyle::SpearState state : {SpearStyle::ssHovered, SpearStyle::ssNormal}) {
        appearanceOf(*spear).apply(state);
        QCOMPARE(appearanceOf(*spear).state(), state);
        QCOMPARE(appearanceOf(*spear).boxState(), state);
        QCOMPARE(spear->pen(), spear->broaderPen(state));
        QCOMPARE(spear->textItem()->defaultTextColor(), spear->textColor(state));
    }
}

void TestSpearAppearance::shouldFollowTheMouse()
{
    const Drawing drawing(QStringLiteral("Effect[Man]"));
    SpearItem &spear = *drawing.spear(QStringLiteral("Man"));
    sendHover(spear, QEvent::GraphicsSceneHoverEnter);
    QCOMPARE(appearanceOf(spear).state(), SpearStyle::ssHovered);
    appearanceOf(spear).leave();
    QCOMPARE(appearanceOf(spear).state(), SpearStyle::ssNormal);
}

void TestSpearAppearance::shouldForgetTheMouseWithTheScene()
{
    const Drawing drawing(QStringLiteral("Effect[Man]"));
    SpearItem &spear = *drawing.spear(QStringLiteral("Man"));
    sendHover(spear, QEvent::GraphicsSceneHoverEnter);
    appearanceOf(spear).leaveScene();
    QCOMPARE(appearanceOf(spear).state(), SpearStyle::ssNormal);
}

void TestSpearAppearance::shouldFollowTheSelection()
{
    const Drawing drawing(QStringLiteral("Effect[Man]"));
    SpearItem &spear = *drawing.spear(QStringLiteral("Man"));
    spear.setSelected(true);
    QCOMPARE(appearanceOf(spear).state(), SpearStyle::ssSelected);
    spear.setSelected(false);
    QCOMPARE(appearanceOf(spear).state(), SpearStyle::ssNormal);
}

void TestSpearAppearance::shouldKeepTheTextOfALinkedHeader()
{
    SpearItem head(QStringLiteral("Head"), 0, 20);
    auto *const bone = std::make_unique<SpearItem>(QStringLiteral("Cause"), 1, 20).release();
    bone->setParentItem(&head);
    for (SpearItem *const spear : {&head, bone})
        appearanceOf(*spear).setLinked(true, 0);
    QCOMPARE(appearanceOf(head).boxState(), SpearStyle::ssLinked);
    QCOMPARE(appearanceOf(head).textState(), SpearStyle::ssNormal);
    QCOMPARE(appearanceOf(*bone).textState(), SpearStyle::ssLinked);
}

void TestSpearAppearance::shouldNoteThatItStandsOut()
{
    SpearItem spear(QStringLiteral("Cause"), 1, 20);
    appearanceOf(spear).apply(SpearStyle::ssHovered);
    QVERIFY(spear.standsOut());
    appearanceOf(spear).apply(SpearStyle::ssNormal);
    QVERIFY(!spear.standsOut());
}

FISHBONE_TEST(TestSpearAppearance)
#include "tst_spearappearance.moc"
