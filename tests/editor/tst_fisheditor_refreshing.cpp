// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QtTest>

#include <fishbone/items/linkitem.h>
#include <fishbone/items/taskstatusitem.h>
#include <tests/support/drawingtext.h>
#include <tests/support/editorfixture.h>

using namespace TestSupport;

/// What a relayout brings up to date, and what it leaves alone.
class TestFishEditorRefreshing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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

void TestFishEditorRefreshing::shouldFollowTheLinksOfItsSubjects()
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

void TestFishEditorRefreshing::shouldKeepTheIconOfALinkThatStays()
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

void TestFishEditorRefreshing::shouldFollowTheStatusOfItsSubjects()
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

void TestFishEditorRefreshing::shouldTakeTheButtonFromABoneWithoutChildren()
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

void TestFishEditorRefreshing::shouldRecountTasksWithoutParent_data()
{
    QTest::addColumn<bool>("rebuild");

    QTest::newRow("relayout") << false;
    QTest::newRow("rebuild") << true;
}

void TestFishEditorRefreshing::shouldRecountTasksWithoutParent()
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

void TestFishEditorRefreshing::shouldShowTheCountsAsTheyAreNow()
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

void TestFishEditorRefreshing::shouldLayOutAfterTitlesOnly_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<bool>("isLaidOut");

    QTest::newRow("title") << 0 << true;
    QTest::newRow("uuid") << 1 << false;
    QTest::newRow("showid") << 2 << false;
    QTest::newRow("pid") << 3 << false;
}

void TestFishEditorRefreshing::shouldLayOutAfterTitlesOnly()
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

void TestFishEditorRefreshing::shouldRepaintNothingWhenNothingHasChanged_data()
{
    QTest::addColumn<bool>("isExpanded");
    QTest::addColumn<bool>("isSelected");

    QTest::newRow("contracted") << false << false;
    QTest::newRow("expanded") << true << false;
    QTest::newRow("selected") << true << true;
}

void TestFishEditorRefreshing::shouldRepaintNothingWhenNothingHasChanged()
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

void TestFishEditorRefreshing::shouldRepaintNothingOnceItIsPainted()
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

QTEST_MAIN(TestFishEditorRefreshing)
#include "tst_fisheditor_refreshing.moc"
