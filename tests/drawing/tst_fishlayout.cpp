// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QtTest>

#include <fishbone/drawing/fishlayout.h>
#include <fishbone/items/expanditem.h>
#include <fishbone/items/linkitem.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/items/textitem.h>
#include <tests/program/testprogram.h>
#include <tests/support/drawingtext.h>

using namespace TestSupport;

/** The three passes on spears without subjects. */
class TestFishLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldPlaceAHeadAlone();
    void shouldGiveDirectionsByLevelAndRow();
    void shouldKeepOrResetLines();
    void shouldSizeFromTheLeavesUp();
    void shouldSizeWhatIsExpandedOnly();
    void shouldSizeHorizontalBonesByTheirSide();
    void shouldPlaceTheBonesOfAHeadOnTwoSides();
    void shouldStackBonesAlongASlantedOne();
    void shouldPassTheTextOnTheSecondSideOnly();
    void shouldLeaveHorizontalBonesOfAHorizontalOneWhereTheyAre();
    void shouldSetTheExpandFlagOfAllButTheHead();
    void shouldGiveButtonsToBonesWithChildren();
    void shouldTakeTheLinkFromSpearsWithoutSubject();
    void shouldNoticeNoSpearsThatComeLater();
};

namespace {
/** A tree of spears in a scene, by name. Expanded unless said otherwise. */
class PlainSpears
{
public:
    PlainSpears() { scene.addItem(head); }

    SpearItem *add(SpearItem *parent, const QString &text, int direction)
    {
        auto *const spear = new SpearItem(text, direction, 20);
        spear->setParentItem(parent);
        spear->setExpand(true);
        return spear;
    }

    QGraphicsScene scene;
    SpearItem *head = makeHead();

private:
    static SpearItem *makeHead()
    {
        auto *const spear = new SpearItem(QStringLiteral("Head"), 0, 20);
        spear->setExpand(true);
        return spear;
    }
};

void layOut(SpearItem *head)
{
    FishLayout layout(head);
    layout.refreshSpears();
    layout.sizeSpears();
    layout.placeSpears();
}

const double cos70 = std::cos(qDegreesToRadians(70.0));
} // namespace

void TestFishLayout::shouldPlaceAHeadAlone()
{
    const PlainSpears tree;

    layOut(tree.head);

    QCOMPARE(tree.head->line(), QLineF(0, 0, -tree.head->textWidth(), 0));
    QVERIFY(!tree.head->expandBuddy());
}

void TestFishLayout::shouldGiveDirectionsByLevelAndRow()
{
    PlainSpears tree;
    SpearItem *const first = tree.add(tree.head, QStringLiteral("a"), 0);
    SpearItem *const second = tree.add(tree.head, QStringLiteral("b"), 0);
    SpearItem *const third = tree.add(tree.head, QStringLiteral("c"), 0);
    SpearItem *const below = tree.add(second, QStringLiteral("d"), 1);
    SpearItem *const deeper = tree.add(below, QStringLiteral("e"), 0);
    SpearItem *const deepest = tree.add(deeper, QStringLiteral("f"), 1);
    tree.head->setDirection(1);

    FishLayout(tree.head).refreshSpears();

    QCOMPARE(tree.head->direction(), 0);
    QCOMPARE(first->direction(), 1);
    QCOMPARE(second->direction(), -1);
    QCOMPARE(third->direction(), 1);
    QCOMPARE(below->direction(), 0);
    QCOMPARE(deeper->direction(), -1);
    QCOMPARE(deepest->direction(), 0);
}

void TestFishLayout::shouldKeepOrResetLines()
{
    PlainSpears tree;
    SpearItem *const bone = tree.add(tree.head, QStringLiteral("a"), 1);
    layOut(tree.head);
    const QLineF line = bone->line();

    SettledDrawing settled;
    QVERIFY(FishLayout(tree.head).update(settled));
    QCOMPARE(bone->line(), line);
    QVERIFY(!FishLayout(tree.head).update(settled));
    bone->setLine(0, 0, 5, 5);
    QVERIFY(FishLayout(tree.head).update(settled));
    QCOMPARE(bone->line(), line);
    FishLayout(tree.head).refreshSpears();
    QCOMPARE(bone->line(), QLineF(0, 0, 0, 0));
    QCOMPARE(tree.head->line(), QLineF(0, 0, 0, 0));
}

void TestFishLayout::shouldSizeFromTheLeavesUp()
{
    PlainSpears tree;
    SpearItem *const bone = tree.add(tree.head, QStringLiteral("a"), 1);
    SpearItem *const below = tree.add(bone, QStringLiteral("bb"), 0);
    SpearItem *const deep = tree.add(below, QStringLiteral("cccc"), 1);

    layOut(tree.head);

    const double deepWidth = deep->textHeight() + deep->textWidth() * cos70;
    const double deepHeight = deep->textWidth() + 30;
    QCOMPARE(deep->spearWidth(), deepWidth);
    QCOMPARE(deep->spearHeight(), deepHeight);
    QCOMPARE(below->spearWidth(), below->textWidth() + deepWidth);
    QCOMPARE(below->spearHeight(), below->textHeight() + 20 + deepHeight);
    QCOMPARE(bone->spearWidth(),
             bone->textHeight() + bone->textWidth() * cos70 + below->spearWidth());
    QCOMPARE(bone->spearHeight(), below->spearHeight() + 30);
    QCOMPARE(tree.head->spearWidth(), tree.head->textWidth() + bone->spearWidth());
}

void TestFishLayout::shouldSizeWhatIsExpandedOnly()
{
    PlainSpears tree;
    SpearItem *const bone = tree.add(tree.head, QStringLiteral("a"), 1);
    SpearItem *const below = tree.add(bone, QStringLiteral("bb"), 0);
    tree.add(below, QStringLiteral("cccc"), 1);
    bone->setExpand(false);

    layOut(tree.head);

    QCOMPARE(bone->spearHeight(), bone->textWidth() + 30);
    QVERIFY(!below->isVisible());
    // What is hidden is sized all the same.
    QVERIFY(below->spearHeight() > below->textHeight() + 20);
    tree.head->setExpand(false);
    layOut(tree.head);
    QCOMPARE(tree.head->spearWidth(), tree.head->textWidth());
}

void TestFishLayout::shouldSizeHorizontalBonesByTheirSide()
{
    PlainSpears tree;
    SpearItem *const first = tree.add(tree.head, QStringLiteral("a"), 1);
    SpearItem *const second = tree.add(tree.head, QStringLiteral("b"), -1);
    SpearItem *const belowFirst = tree.add(first, QStringLiteral("c"), 0);
    SpearItem *const belowSecond = tree.add(second, QStringLiteral("d"), 0);
    const SpearItem *const deepFirst = tree.add(belowFirst, QStringLiteral("eeeeee"), 1);
    const SpearItem *const deepSecond = tree.add(belowSecond, QStringLiteral("ffffff"), -1);

    layOut(tree.head);

    // On the first side the children come on top of the text, on the second beside it.
    const double own = belowFirst->textHeight() + 20;
    QCOMPARE(belowFirst->spearHeight(), own + deepFirst->spearHeight());
    QCOMPARE(belowSecond->spearHeight(), qMax(own, deepSecond->spearHeight()));
}

void TestFishLayout::shouldPlaceTheBonesOfAHeadOnTwoSides()
{
    PlainSpears tree;
    QList<SpearItem *> bones;
    for (const QString &text : {QStringLiteral("aaaaaa"), QStringLiteral("b"),
                                QStringLiteral("cccc"), QStringLiteral("dd"), QStringLiteral("e")})
        bones.append(tree.add(tree.head, text, 0));

    layOut(tree.head);

    const auto advance = [](const SpearItem *bone) { return qMax(30.0, bone->spearWidth()); };
    QCOMPARE(bones.at(0)->offset(), 30.0);
    QCOMPARE(bones.at(1)->offset(), 60.0);
    QCOMPARE(bones.at(2)->offset(), 30 + advance(bones.at(0)));
    QCOMPARE(bones.at(3)->offset(), 60 + advance(bones.at(1)));
    QCOMPARE(bones.at(4)->offset(), 30 + advance(bones.at(0)) + advance(bones.at(2)));
}

void TestFishLayout::shouldStackBonesAlongASlantedOne()
{
    PlainSpears tree;
    SpearItem *const bone = tree.add(tree.head, QStringLiteral("a"), 1);
    const SpearItem *const first = tree.add(bone, QStringLiteral("b"), 0);
    SpearItem *const second = tree.add(bone, QStringLiteral("c"), 0);
    const SpearItem *const third = tree.add(bone, QStringLiteral("d"), 0);
    tree.add(second, QStringLiteral("tall"), 1);

    layOut(tree.head);

    QCOMPARE(first->offset(), 30.0);
    QCOMPARE(second->offset(), 30 + first->spearHeight());
    QCOMPARE(third->offset(), 30 + first->spearHeight() + second->spearHeight());
    QVERIFY(second->spearHeight() > first->spearHeight());
}

void TestFishLayout::shouldPassTheTextOnTheSecondSideOnly()
{
    PlainSpears tree;
    SpearItem *const first = tree.add(tree.head, QStringLiteral("a"), 1);
    SpearItem *const second = tree.add(tree.head, QStringLiteral("b"), -1);
    SpearItem *const belowFirst = tree.add(first, QStringLiteral("c"), 0);
    SpearItem *const belowSecond = tree.add(second, QStringLiteral("d"), 0);
    const SpearItem *const x = tree.add(belowFirst, QStringLiteral("x"), 1);
    const SpearItem *const y = tree.add(belowFirst, QStringLiteral("y"), 1);
    const SpearItem *const v = tree.add(belowSecond, QStringLiteral("v"), -1);
    const SpearItem *const w = tree.add(belowSecond, QStringLiteral("w"), -1);

    layOut(tree.head);

    QCOMPARE(x->offset(), 30.0);
    QCOMPARE(y->offset(), 30 + qMax(30.0, x->spearWidth()));
    const double text = belowSecond->textWidth() + 10;
    QCOMPARE(v->offset(), 30 + text);
    QCOMPARE(w->offset(), 30 + qMax(30.0, v->spearWidth()) + text);
}

void TestFishLayout::shouldLeaveHorizontalBonesOfAHorizontalOneWhereTheyAre()
{
    PlainSpears tree;
    SpearItem *const bone = tree.add(tree.head, QStringLiteral("a"), 0);
    const SpearItem *const x = tree.add(bone, QStringLiteral("x"), 1);
    SpearItem *const flat = tree.add(bone, QStringLiteral("flat"), 0);
    const SpearItem *const y = tree.add(bone, QStringLiteral("y"), 1);
    flat->setOffset(7);

    // Not refreshed, which would give other directions.
    FishLayout layout(tree.head);
    layout.sizeSpears();
    layout.placeSpears();

    QCOMPARE(x->offset(), 30.0);
    QCOMPARE(flat->offset(), 7.0);
    QCOMPARE(y->offset(), 30 + qMax(30.0, x->spearWidth()));
}

void TestFishLayout::shouldSetTheExpandFlagOfAllButTheHead()
{
    PlainSpears tree;
    SpearItem *const bone = tree.add(tree.head, QStringLiteral("a"), 1);
    SpearItem *const below = tree.add(bone, QStringLiteral("b"), 0);
    FishLayout layout(tree.head);

    layout.expandBones(false);
    QVERIFY(tree.head->isExpand());
    QVERIFY(!bone->isExpand());
    QVERIFY(!below->isExpand());
    QVERIFY(bone->isVisible());
    QVERIFY(!below->isVisible());

    tree.head->setExpand(false);
    layout.expandBones(true);
    QVERIFY(!tree.head->isExpand());
    QVERIFY(bone->isExpand());
    QVERIFY(below->isExpand());
}

void TestFishLayout::shouldGiveButtonsToBonesWithChildren()
{
    PlainSpears tree;
    SpearItem *const bone = tree.add(tree.head, QStringLiteral("a"), 1);
    SpearItem *const below = tree.add(bone, QStringLiteral("b"), 0);

    layOut(tree.head);
    auto *const button = dynamic_cast<ExpandItem *>(bone->expandBuddy());
    QVERIFY(button);
    QCOMPARE(button->svgFile(), QStringLiteral(":/fishboneDiagram/contract.svg"));
    QVERIFY(!below->expandBuddy());
    QVERIFY(!tree.head->expandBuddy());

    bone->setExpand(false);
    layOut(tree.head);
    QCOMPARE(bone->expandBuddy(), button);
    QCOMPARE(button->svgFile(), QStringLiteral(":/fishboneDiagram/expand.svg"));

    // Without its child it keeps the button: what it stands for is not known to have none.
    delete below;
    layOut(tree.head);
    QCOMPARE(bone->expandBuddy(), button);
}

void TestFishLayout::shouldTakeTheLinkFromSpearsWithoutSubject()
{
    PlainSpears tree;
    SpearItem *const bone = tree.add(tree.head, QStringLiteral("a"), 1);
    bone->setLinkItem(new LinkItem(QStringLiteral("https://example.org")));
    tree.head->setLinkItem(new LinkItem(QStringLiteral("https://example.org")));

    layOut(tree.head);

    QVERIFY(!bone->linkItem());
    QVERIFY(!tree.head->linkItem());
}

void TestFishLayout::shouldNoticeNoSpearsThatComeLater()
{
    PlainSpears tree;
    tree.add(tree.head, QStringLiteral("a"), 1);
    FishLayout layout(tree.head);
    const SpearItem *const late = tree.add(tree.head, QStringLiteral("b"), 0);

    layout.refreshSpears();
    layout.sizeSpears();
    layout.placeSpears();

    QCOMPARE(late->offset(), 0.0);
    layOut(tree.head);
    QCOMPARE(late->offset(), 60.0);
}

FISHBONE_TEST(TestFishLayout)
#include "tst_fishlayout.moc"
