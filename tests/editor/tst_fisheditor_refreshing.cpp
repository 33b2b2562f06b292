// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <functional>

#include <QtTest>

#include <fishbone/items/linkitem.h>
#include <fishbone/items/taskstatusitem.h>
#include <tests/program/testprogram.h>
#include <tests/support/drawingtext.h>
#include <tests/support/editorfixture.h>

using namespace TestSupport;

/** What a relayout brings up to date, and what it leaves alone. */
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
    void shouldPutRightWhatWasChangedByHand_data();
    void shouldPutRightWhatWasChangedByHand();
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
    fish.subject(QStringLiteral("a"))->setProgress(75);
    fish.editor.updateFish(false);
    QCOMPARE(icon(QStringLiteral("a")),
             QStringLiteral(":/fishboneDiagram/status/running_progress_80.svg"));

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

using Change = std::function<void(EditorFixture &)>;
Q_DECLARE_METATYPE(Change)

void TestFishEditorRefreshing::shouldPutRightWhatWasChangedByHand_data()
{
    QTest::addColumn<Change>("change");
    const auto row = [](const char *name, const Change &change) { QTest::newRow(name) << change; };
    const auto man = [](EditorFixture &fish) { return fish.spear(QStringLiteral("Man")); };
    const auto subject = [](EditorFixture &fish) { return fish.subject(QStringLiteral("Man")); };

    row("a spear dragged off", [man](EditorFixture &fish) { man(fish)->setPos(30, -10); });
    row("a line", [man](EditorFixture &fish) { man(fish)->setLine({1, 2, 3, 4}); });
    row("a hidden bone", [man](EditorFixture &fish) { man(fish)->setVisible(false); });
    row("a direction", [man](EditorFixture &fish) { man(fish)->setDirection(0); });
    row("a start of the layout", [man](EditorFixture &fish) { man(fish)->initData(-1); });
    row("a link icon", [man](EditorFixture &fish) { man(fish)->setLinkItem(nullptr); });
    row("an expand button", [man](EditorFixture &fish) { man(fish)->setExpandBuddy(nullptr); });
    row("a status", [subject](EditorFixture &fish) { subject(fish)->setStatus(tsFinish); });
    row("a title", [subject](EditorFixture &fish) {
        subject(fish)->setTitle(QStringLiteral("Somebody else"));
    });
    row("a style of its own", [subject](EditorFixture &fish) {
        SpearStyle style;
        style.setTextFont(SpearStyle::ssNormal, QFont(QStringLiteral("DejaVu Sans"), 40));
        QJsonObject json;
        style.write(json);
        subject(fish)->setSpearStyle(json);
    });
    row("the global style", [](EditorFixture &) { SpearStyle::global()->setTextCount(2); });
    row("the font of the program", [](EditorFixture &) {
        QFont font = QApplication::font();
        font.setPointSize(font.pointSize() * 2);
        QApplication::setFont(font);
    });
    row("a bone taken away", [man](EditorFixture &fish) { delete man(fish); });
}

void TestFishEditorRefreshing::shouldPutRightWhatWasChangedByHand()
{
    QFETCH(Change, change);
    const QFont font = QApplication::font();
    const int textCount = SpearStyle::global()->textCount();
    EditorFixture fish(QStringLiteral("Effect[Man[Train,Cost],Machine[Wear],Method]"));
    fish.subject(QStringLiteral("Man"))->setUrl(QStringLiteral("https://example.org"));
    fish.editor.expandAll();
    fish.editor.updateFish(false);

    change(fish);
    fish.editor.updateFish(false);
    const QStringList drawn = drawingText(fish.editor.headSpear());
    if (fish.editor.headSpear()->childCount() == 3) { // a new drawing would have the missing bone
        fish.editor.updateFish(true);
        fish.editor.expandAll();
    } else {
        fish.editor.refreshFish();
        fish.editor.updateSpearSize();
        fish.editor.updateSpearPostion();
    }
    QCOMPARE(drawn, drawingText(fish.editor.headSpear()));

    SpearStyle::global()->setTextCount(textCount);
    QApplication::setFont(font);
}

FISHBONE_TEST(TestFishEditorRefreshing)
#include "tst_fisheditor_refreshing.moc"
