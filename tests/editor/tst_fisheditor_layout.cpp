// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QtTest>

#include <fishbone/items/linkitem.h>
#include <fishbone/items/taskstatusitem.h>
#include <fishbone/items/textitem.h>
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
    void shouldFollowTheLinksOfItsSubjects();
    void shouldKeepTheIconOfALinkThatStays();
    void shouldFollowTheStatusOfItsSubjects();
    void shouldTakeTheButtonFromABoneWithoutChildren();
    void shouldRecountTasksWithoutParent_data();
    void shouldRecountTasksWithoutParent();
    void shouldShowTheCountsAsTheyAreNow();
    void shouldLayOutAfterTitlesOnly_data();
    void shouldLayOutAfterTitlesOnly();
    void shouldRepaintNothingWhenNothingHasChanged_data();
    void shouldRepaintNothingWhenNothingHasChanged();
    void shouldRepaintNothingOnceItIsPainted();
};

namespace {
const double cos70 = std::cos(qDegreesToRadians(70.0));

/// The width that a slanted bone without children takes up.
double slantedWidth(const SpearItem *spear)
{
    return spear->textHeight() + spear->textWidth() * cos70;
}

/// "A 30, B 60": what the layout added up along the parent.
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
    // The head with its text and its (hidden) status icon, nothing else.
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

void TestFishEditorLayout::shouldFollowTheLinksOfItsSubjects()
{
    EditorFixture fish(QStringLiteral("Effect[Man[a],Machine]"));
    fish.editor.expandAll();
    for (const QString &title :
         {QStringLiteral("Effect"), QStringLiteral("Man"), QStringLiteral("a")}) {
        const auto shownUrl = [&fish, &title] {
            const auto *const link = dynamic_cast<LinkItem *>(fish.spear(title)->linkItem());
            return link ? link->url() : QStringLiteral("none");
        };
        QCOMPARE(shownUrl(), QStringLiteral("none"));

        fish.subject(title)->setUrl(QStringLiteral("https://example.org/1"));
        fish.editor.updateFish(false);
        QCOMPARE(shownUrl(), QStringLiteral("https://example.org/1"));
        QCOMPARE(fish.spear(title)->linkItem()->parentItem(), fish.spear(title));

        fish.subject(title)->setUrl(QStringLiteral("https://example.org/2"));
        fish.editor.refreshFish();
        QCOMPARE(shownUrl(), QStringLiteral("https://example.org/2"));

        fish.subject(title)->setUrl(QString());
        fish.editor.updateFish(false);
        QCOMPARE(shownUrl(), QStringLiteral("none"));
    }
}

void TestFishEditorLayout::shouldKeepTheIconOfALinkThatStays()
{
    EditorFixture fish(QStringLiteral("Effect[Man[a],Machine]"));
    fish.subject(QStringLiteral("Man"))->setUrl(QStringLiteral("https://example.org"));
    fish.editor.updateFish(false);
    const SpearItem *const man = fish.spear(QStringLiteral("Man"));
    const QGraphicsItem *const link = man->linkItem();
    const QGraphicsItem *const button = man->expandBuddy();

    fish.editor.expandAll();
    fish.editor.updateFish(false);

    QCOMPARE(man->linkItem(), link);
    QCOMPARE(man->expandBuddy(), button);
}

void TestFishEditorLayout::shouldFollowTheStatusOfItsSubjects()
{
    EditorFixture fish(QStringLiteral("Effect[Man[a],Machine]"));
    fish.editor.expandAll();
    const auto icon = [&fish](const QString &title) {
        return fish.spear(title)->statusItem()->svgFile();
    };
    QCOMPARE(icon(QStringLiteral("Man")), QString());

    fish.subject(QStringLiteral("Man"))->setStatus(tsFinish);
    fish.subject(QStringLiteral("a"))->setStatus(tsRunning);
    fish.subject(QStringLiteral("a"))->setProgress(50);
    fish.editor.updateFish(false);
    QCOMPARE(icon(QStringLiteral("Man")), QStringLiteral(":/fishboneDiagram/status/finish.svg"));
    QCOMPARE(icon(QStringLiteral("a")),
             QStringLiteral(":/fishboneDiagram/status/running_progress_50.svg"));

    fish.subject(QStringLiteral("Man"))->setStatus(-1);
    fish.editor.refreshFish();
    QCOMPARE(icon(QStringLiteral("Man")), QString());
}

void TestFishEditorLayout::shouldTakeTheButtonFromABoneWithoutChildren()
{
    EditorFixture fish(QStringLiteral("Effect[Man[a],Machine]"));
    fish.editor.expandAll();
    SpearItem *const man = fish.spear(QStringLiteral("Man"));
    QVERIFY(man->expandBuddy());

    delete fish.spear(QStringLiteral("a"));
    fish.editor.updateFish(false);
    QVERIFY(man->expandBuddy()); // the subject still has a child to show
    fish.model.removeRow(0, fish.index(QStringLiteral("Man")));
    fish.editor.updateFish(false);
    QVERIFY(!man->expandBuddy());
}

void TestFishEditorLayout::shouldRecountTasksWithoutParent_data()
{
    QTest::addColumn<bool>("rebuild");

    QTest::newRow("relayout") << false;
    QTest::newRow("rebuild") << true;
}

void TestFishEditorLayout::shouldRecountTasksWithoutParent()
{
    QFETCH(bool, rebuild);
    EditorFixture fish(QStringLiteral("Effect[Man[a],Machine]"));
    fish.subject(QStringLiteral("Man"))->setPid(QString());
    fish.subject(QStringLiteral("Machine"))->setPid(QStringLiteral("-1"));
    fish.subject(QStringLiteral("a"))->setPid(QString()); // too deep to count
    QCOMPARE(fish.info->noParentNodeCount(), 0);

    fish.editor.updateFish(rebuild);

    QCOMPARE(fish.info->noParentNodeCount(), 2);
}

void TestFishEditorLayout::shouldShowTheCountsAsTheyAreNow()
{
    EditorFixture fish(QStringLiteral("Effect[Man[a],Machine]"));
    fish.model.setModelType(FISH_MODEL_NORMAL);
    fish.editor.updateFish(true);
    QCOMPARE(fish.editor.headSpear()->text(), QStringLiteral("Effect(0个无父任务/共4个任务)"));

    fish.subject(QStringLiteral("Man"))->setPid(QString());
    fish.editor.updateFish(false);
    QCOMPARE(fish.editor.headSpear()->text(), QStringLiteral("Effect(1个无父任务/共4个任务)"));

    fish.subject(QStringLiteral("Machine"))->setPid(QString());
    fish.editor.refreshFish();
    QCOMPARE(fish.editor.headSpear()->text(), QStringLiteral("Effect(2个无父任务/共4个任务)"));

    // After the counts had changed, a rebuild has nothing to add.
    fish.editor.updateFish(false);
    const QStringList drawn = drawingText(fish.editor.headSpear());
    fish.editor.updateFish(true);
    QCOMPARE(drawingText(fish.editor.headSpear()), drawn);
}

void TestFishEditorLayout::shouldLayOutAfterTitlesOnly_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<bool>("isLaidOut");

    QTest::newRow("title") << 0 << true;
    QTest::newRow("uuid") << 1 << false;
    QTest::newRow("showid") << 2 << false;
    QTest::newRow("pid") << 3 << false;
}

void TestFishEditorLayout::shouldLayOutAfterTitlesOnly()
{
    QFETCH(int, column);
    QFETCH(bool, isLaidOut);
    EditorFixture fish(QStringLiteral("Effect[Man,Machine]"));
    SpearItem *const machine = fish.spear(QStringLiteral("Machine"));
    machine->setPos(40, 50);
    QVERIFY(!fish.info->modified());

    const QModelIndex man = fish.index(QStringLiteral("Man"));
    QVERIFY(fish.model.setData(man.siblingAtColumn(column), QStringLiteral("new")));

    QCOMPARE(machine->pos(), isLaidOut ? QPointF(0, 0) : QPointF(40, 50));
    QVERIFY(fish.info->modified());
}

void TestFishEditorLayout::shouldRepaintNothingWhenNothingHasChanged_data()
{
    QTest::addColumn<bool>("isExpanded");
    QTest::addColumn<bool>("isSelected");

    QTest::newRow("contracted") << false << false;
    QTest::newRow("expanded") << true << false;
    QTest::newRow("selected") << true << true;
}

void TestFishEditorLayout::shouldRepaintNothingWhenNothingHasChanged()
{
    QFETCH(bool, isExpanded);
    QFETCH(bool, isSelected);
    EditorFixture fish(randomDocument(7, {40, 6, 12, 50}));
    if (isExpanded)
        fish.editor.expandAll();
    QVERIFY(fish.show());
    if (isSelected)
        fish.editor.headSpear()->childSpear(0)->setSelected(true);
    settle();
    EventCounter paints(fish.editor.view()->viewport(), QEvent::Paint);

    fish.editor.updateFish(false);
    fish.editor.updateFish(false);
    settle();
    QCOMPARE(paints.count, 0);

    // The counter does count.
    TreeItem *const bone = fish.editor.headSpear()->childSpear(0)->treeItem();
    bone->setTitle(QStringLiteral("another"));
    fish.editor.updateFish(false);
    settle();
    QVERIFY(paints.count > 0);
}

void TestFishEditorLayout::shouldRepaintNothingOnceItIsPainted()
{
    EditorFixture fish(randomDocument(7, {40, 6, 12, 50}));
    fish.editor.expandAll();
    QVERIFY(fish.show());
    fish.editor.headSpear()->childSpear(0)->setSelected(true);
    settle();
    EventCounter paints(fish.editor.view()->viewport(), QEvent::Paint);

    fish.editor.view()->viewport()->update();
    settle();

    QCOMPARE(paints.count, 1);
}

QTEST_MAIN(TestFishEditorLayout)
#include "tst_fisheditor_layout.moc"
