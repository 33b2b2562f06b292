// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QtTest>

#include <tests/program/testprogram.h>
#include <tests/support/drawingtext.h>
#include <tests/support/editorfixture.h>

using namespace TestSupport;

class TestFishEditorLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldPlaceAHeadWithoutBones();
    void shouldStaggerTheBonesOfTheTwoSides();
    void shouldAdvanceByThirtyAtLeast();
    void shouldStackTheChildrenOfASlantedBone();
    void shouldPlaceSlantedBonesOfAHorizontalBoneOnTheirSide();
    void shouldLengthenABoneByItsVisibleChildren();
    void shouldShortenAContractedBone();
    void shouldGiveDirectionsByLevel_data();
    void shouldGiveDirectionsByLevel();
    void shouldCorrectWhatWasMadeOnDemand();
    void shouldResetEverythingInTheFirstPass();
    void shouldAddOffsetsUpUntilTheyAreReset();
    void shouldAddSizesUpUntilTheyAreReset();
    void shouldDoNothingWithoutAHead();
    void shouldRebuildWhenAsked();
};

namespace {
const double cos70 = std::cos(qDegreesToRadians(70.0));

/** The width that a slanted bone without children takes up. */
double slantedWidth(const SpearItem *spear)
{
    return spear->textHeight() + spear->textWidth() * cos70;
}

/** "A 30, B 60": what the layout added up along the parent. */
QString offsets(const QList<SpearItem *> &spears)
{
    QStringList texts;
    for (const SpearItem *spear : spears)
        texts.append(spear->text() + QLatin1Char(' ') + numberText(spear->offset()));
    return texts.join(QLatin1String(", "));
}
} // namespace

void TestFishEditorLayout::shouldPlaceAHeadWithoutBones()
{
    EditorFixture fish(QStringLiteral("Effect"));

    const SpearItem *const head = fish.editor.headSpear();
    QCOMPARE(head->line(), QLineF(0, 0, -head->textWidth(), 0));
    QCOMPARE(head->pos(), QPointF(0, 0));
    QCOMPARE(head->childSpears().size(), 0);
    QVERIFY(!head->expandBuddy());
    // The head with its text, nothing else: a status icon would be hidden, and is not made before
    // somebody asks for it.
    QCOMPARE(fish.editor.scene()->items().size(), 2);
    QVERIFY(!head->statusItem()->isVisible());
    QCOMPARE(fish.editor.scene()->items().size(), 3);
}

void TestFishEditorLayout::shouldStaggerTheBonesOfTheTwoSides()
{
    EditorFixture fish(QStringLiteral("Effect[Apples,Berry,Cherry,Dates,Elder]"));

    const QList<SpearItem *> bones = fish.editor.headSpear()->childSpears();
    QCOMPARE(bones.size(), 5);
    const auto advance = [&bones](int row) { return qMax(30.0, slantedWidth(bones.at(row))); };
    QCOMPARE(bones.at(0)->offset(), 30.0);
    QCOMPARE(bones.at(1)->offset(), 60.0);
    QCOMPARE(bones.at(2)->offset(), 30 + advance(0));
    QCOMPARE(bones.at(3)->offset(), 60 + advance(1));
    QCOMPARE(bones.at(4)->offset(), 30 + advance(0) + advance(2));
    for (int row = 0; row < 5; ++row) {
        const SpearItem *const bone = bones.at(row);
        QCOMPARE(bone->direction(), row % 2 == 0 ? 1 : -1);
        QCOMPARE(bone->line().x1(), -bone->offset());
        QVERIFY(row % 2 == 0 ? bone->line().y2() > 0 : bone->line().y2() < 0);
    }
}

void TestFishEditorLayout::shouldAdvanceByThirtyAtLeast()
{
    QJsonObject document = documentFromText(QStringLiteral("Effect[a,b,c,d]"));
    EditorFixture fish(document);
    // A font so small that a bone takes up less than 30.
    QFont small;
    small.setPixelSize(3);
    SpearStyle style;
    style.setTextFont(SpearStyle::ssNormal, small);
    QJsonObject object;
    style.write(object);
    for (const QString &title : {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")})
        fish.subject(title)->setSpearStyle(object);
    fish.editor.updateFish(false);

    const QList<SpearItem *> bones = fish.editor.headSpear()->childSpears();
    QVERIFY(bones.first()->spearWidth() < 30);
    QCOMPARE(offsets(bones), QStringLiteral("a 30, b 60, c 60, d 90"));
}

void TestFishEditorLayout::shouldStackTheChildrenOfASlantedBone()
{
    EditorFixture fish(QStringLiteral("Effect[Man[a,b[x],c],Machine[d,e]]"));
    fish.editor.expandAll();

    for (const QString &title : {QStringLiteral("Man"), QStringLiteral("Machine")}) {
        const SpearItem *const bone = fish.spear(title);
        double expected = 30;
        const QList<SpearItem *> children = bone->childSpears();
        for (const SpearItem *child : children) {
            QCOMPARE(child->direction(), 0);
            QCOMPARE(child->offset(), expected);
            // On the bone, at that distance from where it starts.
            QLineF along(bone->line().p1(), child->line().p1());
            QCOMPARE(along.length(), expected);
            QVERIFY(qAbs(along.angleTo(bone->line())) < 1e-6 ||
                    qAbs(along.angleTo(bone->line()) - 360) < 1e-6);
            QCOMPARE(child->line().y2(), child->line().y1());
            expected += child->spearHeight();
        }
    }
}

void TestFishEditorLayout::shouldPlaceSlantedBonesOfAHorizontalBoneOnTheirSide()
{
    EditorFixture fish(QStringLiteral("Effect[Man[m[x,y]],Machine[n[v,w]]]"));
    fish.editor.expandAll();

    // Below a bone of direction 1 they start at 30, below one of -1 they pass the text as well.
    QCOMPARE(fish.spear(QStringLiteral("x"))->offset(), 30.0);
    QCOMPARE(fish.spear(QStringLiteral("y"))->offset(),
             30 + qMax(30.0, slantedWidth(fish.spear(QStringLiteral("x")))));
    const double pastText = fish.spear(QStringLiteral("n"))->textWidth() + 10;
    QCOMPARE(fish.spear(QStringLiteral("v"))->offset(), 30 + pastText);
    QCOMPARE(fish.spear(QStringLiteral("w"))->offset(),
             30 + qMax(30.0, slantedWidth(fish.spear(QStringLiteral("v")))) + pastText);
}

void TestFishEditorLayout::shouldLengthenABoneByItsVisibleChildren()
{
    EditorFixture fish(QStringLiteral("Effect[Man[a,b,c]]"));
    const SpearItem *const man = fish.spear(QStringLiteral("Man"));
    QCOMPARE(man->spearHeight(), man->textWidth() + 30);

    fish.editor.expandAll();

    const double childHeight = man->childSpear(0)->textHeight() + 20;
    QCOMPARE(man->childSpear(0)->spearHeight(), childHeight);
    QCOMPARE(man->spearHeight(), qMax(3 * childHeight, man->textWidth()) + 30);
    QCOMPARE(man->line().length(), man->spearHeight());
    double widest = 0;
    const QList<SpearItem *> children = man->childSpears();
    for (const SpearItem *child : children)
        widest = qMax(widest, child->textWidth());
    QCOMPARE(man->spearWidth(), slantedWidth(man) + widest);
}

void TestFishEditorLayout::shouldShortenAContractedBone()
{
    EditorFixture fish(QStringLiteral("Effect[Man[a,b,c]]"));
    SpearItem *const man = fish.spear(QStringLiteral("Man"));
    const QLineF contracted = man->line();
    fish.editor.expandAll();
    const QLineF expanded = man->line();
    QVERIFY(expanded.length() > contracted.length());

    man->setExpand(false);
    QCOMPARE(man->line(), expanded);
    fish.editor.updateFish(false);

    QCOMPARE(man->line(), contracted);
    QCOMPARE(man->childSpears().size(), 3);
    QVERIFY(!man->childSpear(0)->isVisible());
}

void TestFishEditorLayout::shouldGiveDirectionsByLevel_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<int>("direction");

    QTest::newRow("head") << QStringLiteral("Effect") << 0;
    QTest::newRow("main bone in row 0") << QStringLiteral("Man") << 1;
    QTest::newRow("main bone in row 1") << QStringLiteral("Machine") << -1;
    QTest::newRow("main bone in row 2") << QStringLiteral("Method") << 1;
    QTest::newRow("level 2 on the first side") << QStringLiteral("a") << 0;
    QTest::newRow("level 2 on the second side") << QStringLiteral("e") << 0;
    QTest::newRow("level 3 on the first side, row 0") << QStringLiteral("b") << 1;
    QTest::newRow("level 3 on the first side, row 1") << QStringLiteral("b2") << 1;
    QTest::newRow("level 3 on the second side, row 0") << QStringLiteral("f") << -1;
    QTest::newRow("level 3 on the second side, row 1") << QStringLiteral("f2") << -1;
    QTest::newRow("level 4") << QStringLiteral("g") << 0;
    QTest::newRow("level 5 on the first side") << QStringLiteral("d") << 1;
    QTest::newRow("level 5 on the second side") << QStringLiteral("h") << -1;
}

void TestFishEditorLayout::shouldGiveDirectionsByLevel()
{
    QFETCH(QString, title);
    QFETCH(int, direction);
    EditorFixture fish(QStringLiteral("Effect[Man[a[b[c[d]],b2]],Machine[e[f[g[h]],f2]],Method]"));

    fish.editor.expandAll();

    QCOMPARE(fish.spear(title)->direction(), direction);
}

void TestFishEditorLayout::shouldCorrectWhatWasMadeOnDemand()
{
    QJsonObject document = documentFromText(QStringLiteral("Effect[Man,Machine[e[f]]]"));
    EditorFixture fish(document);
    fish.subject(QStringLiteral("e"))->setUrl(QStringLiteral("https://example.org/e"));
    fish.editor.generateSpear(&fish.model, fish.index(QStringLiteral("Machine")));
    fish.editor.generateSpear(&fish.model, fish.index(QStringLiteral("e")));
    QCOMPARE(fish.spear(QStringLiteral("f"))->direction(), 0);
    QVERIFY(!fish.spear(QStringLiteral("e"))->linkItem());

    fish.editor.refreshFish();

    QCOMPARE(fish.spear(QStringLiteral("f"))->direction(), -1);
    QVERIFY(fish.spear(QStringLiteral("e"))->linkItem());
}

void TestFishEditorLayout::shouldResetEverythingInTheFirstPass()
{
    EditorFixture fish(QStringLiteral("Effect[Man[a[x],b],Machine]"));
    fish.editor.expandAll();
    fish.spear(QStringLiteral("Man"))->setPos(40, 50);

    fish.editor.refreshFish();

    const std::vector<SpearItem *> spears = spearsInOrder(fish.editor.headSpear());
    QCOMPARE(spears.size(), std::size_t(6));
    for (const SpearItem *spear : spears) {
        QCOMPARE(spear->line(), QLineF(0, 0, 0, 0));
        QCOMPARE(spear->pos(), QPointF(0, 0));
        QCOMPARE(spear->offset(), 0.0);
    }
    const SpearItem *const man = fish.spear(QStringLiteral("Man"));
    QCOMPARE(man->spearHeight(), man->textWidth() + 30);
}

void TestFishEditorLayout::shouldAddOffsetsUpUntilTheyAreReset()
{
    EditorFixture fish(QStringLiteral("Effect[A,B]"));
    const QList<SpearItem *> bones = fish.editor.headSpear()->childSpears();

    fish.editor.updateSpearPostion();
    QCOMPARE(offsets(bones), QStringLiteral("A 60, B 120"));
    fish.editor.refreshFish();
    fish.editor.updateSpearPostion();
    QCOMPARE(offsets(bones), QStringLiteral("A 30, B 60"));
}

void TestFishEditorLayout::shouldAddSizesUpUntilTheyAreReset()
{
    EditorFixture fish(QStringLiteral("Effect[A,B]"));
    const SpearItem *const head = fish.editor.headSpear();
    const double width = head->spearWidth();

    fish.editor.updateSpearSize();
    QVERIFY(head->spearWidth() > width);
    fish.editor.refreshFish();
    QCOMPARE(head->spearWidth(), head->textWidth());
    fish.editor.updateSpearSize();
    QCOMPARE(head->spearWidth(), width);
}

void TestFishEditorLayout::shouldDoNothingWithoutAHead()
{
    EditorFixture fish(QStringLiteral("Effect[Man]"));
    fish.editor.setRootIndex(QModelIndex());

    fish.editor.refreshFish();
    fish.editor.updateSpearSize();
    fish.editor.updateSpearPostion();
    fish.editor.updateFish(false);
    fish.editor.expandorContractAll(true);
    fish.editor.expandAll();

    QVERIFY(!fish.editor.headSpear());
    QVERIFY(fish.editor.scene()->items().isEmpty());
}

void TestFishEditorLayout::shouldRebuildWhenAsked()
{
    EditorFixture fish(QStringLiteral("Effect[Man[a],Machine[b]]"));
    fish.editor.expandAll();
    QCOMPARE(spearTreeText(fish.editor.headSpear()), QStringLiteral("Effect[Man[a],Machine[b]]"));

    fish.editor.updateFish(false);
    QVERIFY(fish.spear(QStringLiteral("Man"))->isExpand());
    fish.editor.updateFish(true);

    QCOMPARE(spearTreeText(fish.editor.headSpear()), QStringLiteral("Effect[Man,Machine]"));
    QVERIFY(!fish.spear(QStringLiteral("Man"))->isExpand());
}

FISHBONE_TEST(TestFishEditorLayout)
#include "tst_fisheditor_layout.moc"
