// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QtTest>

#include <fishbone/items/linkitem.h>
#include <tests/program/testprogram.h>
#include <tests/support/drawingtext.h>
#include <tests/support/editorfixture.h>
#include <tests/support/signalrecorder.h>

using namespace TestSupport;

/** Which spears there are: showing a diagram and making spears on demand. */
class TestFishEditorBuilding : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowTheHeadAndTheMainBones();
    void shouldShowASubjectInsideADiagram();
    void shouldClearTheSubjectsOfTheFormerDrawing();
    void shouldClearTheSceneForAnInvalidIndexAndKeepTheRoot();
    void shouldTreatAnIndexOfAnotherModelAsInvalid();
    void shouldLoadHeadAndBonesWithoutLayingThemOut();
    void shouldLoadNothingForAnInvalidIndex();
    void shouldGiveLinksAndButtonsWhenItLoads();
    void shouldKeepZoomAndRotationWhenTheDiagramChanges();
    void shouldBringTheHeadIntoView();
    void shouldMakeTheChildrenOfOneBone();
    void shouldMakeMissingChildrenOnly();
    void shouldMakeAllDescendants();
    void shouldMakeMissingDescendantsOfBonesThatHaveSpears();
    void shouldMakeNothingForAnInvalidIndex();
    void shouldMakeASubtreeBelowABone();
    void shouldGiveTheDirectionsOfANewSubtreeByItsLevel_data();
    void shouldGiveTheDirectionsOfANewSubtreeByItsLevel();
    void shouldGiveTheLinkOfANewSubtreeToTheHead();
};

namespace {
QString effect()
{
    return QStringLiteral("Effect[Man[Train[Cost]],Machine[Wear],Method]");
}
} // namespace

void TestFishEditorBuilding::shouldShowTheHeadAndTheMainBones()
{
    EditorFixture fish(effect());

    QCOMPARE(fish.editor.rootIndex(), fish.model.index(0, 0));
    QCOMPARE(spearTreeText(fish.editor.headSpear()), QStringLiteral("Effect[Man,Machine,Method]"));
    QCOMPARE(expansionText(fish.editor.headSpear()),
             QStringLiteral("Effect+ Man- Machine- Method-"));
    QCOMPARE(fish.editor.headSpear()->scene(), fish.editor.scene());
    QCOMPARE(fish.editor.headSpear()->zValue(), -100.0);
    QCOMPARE(fish.editor.headSpear()->direction(), 0);
    int topLevelItems = 0;
    const QList<QGraphicsItem *> items = fish.editor.scene()->items();
    for (const QGraphicsItem *item : items)
        topLevelItems += item->parentItem() ? 0 : 1;
    QCOMPARE(topLevelItems, 1);
    const std::vector<SpearItem *> spears = spearsInOrder(fish.editor.headSpear());
    for (SpearItem *spear : spears) {
        QCOMPARE(spear->spearSize(), 20.0);
        QVERIFY(spear->isVisible());
        QCOMPARE(spear->treeItem()->spear(), spear);
        QCOMPARE(spear->modelIndex(), fish.index(spear->text()));
    }
}

void TestFishEditorBuilding::shouldShowASubjectInsideADiagram()
{
    EditorFixture fish(effect());

    fish.editor.setRootIndex(fish.index(QStringLiteral("Man")));

    QCOMPARE(fish.editor.rootIndex(), fish.index(QStringLiteral("Man")));
    QCOMPARE(spearTreeText(fish.editor.headSpear()), QStringLiteral("Man[Train]"));
    QVERIFY(fish.editor.headSpear()->isHeader());
    QCOMPARE(fish.spear(QStringLiteral("Train"))->direction(), 1);
    QVERIFY(!fish.spear(QStringLiteral("Effect")));
    QVERIFY(!fish.spear(QStringLiteral("Machine")));
}

void TestFishEditorBuilding::shouldClearTheSubjectsOfTheFormerDrawing()
{
    EditorFixture fish(effect());
    loadDocument(fish.model, QStringLiteral("Other[Bone]"));
    fish.editor.expandAll();
    QCOMPARE(SpearItem::m_refCount, 7);

    fish.editor.setRootIndex(fish.index(QStringLiteral("Other")));

    for (const QString &title : {QStringLiteral("Effect"), QStringLiteral("Man"),
                                 QStringLiteral("Train"), QStringLiteral("Cost")})
        QVERIFY(!fish.spear(title));
    QCOMPARE(SpearItem::m_refCount, 2);
    QCOMPARE(spearTreeText(fish.editor.headSpear()), QStringLiteral("Other[Bone]"));
}

void TestFishEditorBuilding::shouldClearTheSceneForAnInvalidIndexAndKeepTheRoot()
{
    EditorFixture fish(effect());
    fish.editor.expandAll();
    fish.select({QStringLiteral("Man"), QStringLiteral("Train"), QStringLiteral("Method")});
    SignalRecorder recorder(fish.editor);

    fish.editor.setRootIndex(QModelIndex());

    QVERIFY(!fish.editor.headSpear());
    QVERIFY(fish.editor.scene()->items().isEmpty());
    QVERIFY(!fish.spear(QStringLiteral("Man")));
    QCOMPARE(SpearItem::m_refCount, 0);
    QCOMPARE(fish.editor.rootIndex(), fish.index(QStringLiteral("Effect")));
    QCOMPARE(fish.editor.currentFishInfo(), fish.info);
    QCOMPARE(recorder.take(), QStringLiteral("copyAvailable(false)"));

    fish.editor.updateFish(true);
    QCOMPARE(spearTreeText(fish.editor.headSpear()), QStringLiteral("Effect[Man,Machine,Method]"));
}

void TestFishEditorBuilding::shouldTreatAnIndexOfAnotherModelAsInvalid()
{
    EditorFixture fish(effect());
    FishModel foreign;
    loadDocument(foreign, QStringLiteral("Foreign[Bone]"));

    fish.editor.setRootIndex(foreign.index(0, 0));

    QVERIFY(!fish.editor.headSpear());
    QCOMPARE(fish.editor.rootIndex(), fish.index(QStringLiteral("Effect")));
    QVERIFY(!nodeTitled(foreign, QStringLiteral("Foreign"))->spear());

    fish.editor.loadFish(foreign.index(0, 0));
    fish.editor.generateSpear(&fish.model, foreign.index(0, 0));
    fish.editor.generateAllSubSpear(&fish.model, foreign.index(0, 0));
    fish.editor.generateSpear(foreign.index(0, 0), 1, 0, nullptr);
    fish.editor.centerView(foreign.index(0, 0));
    fish.editor.ensureVisible(foreign.index(0, 0));
    QCOMPARE(SpearItem::m_refCount, 0);
}

void TestFishEditorBuilding::shouldLoadHeadAndBonesWithoutLayingThemOut()
{
    EditorFixture fish(effect());
    fish.editor.setRootIndex(QModelIndex());

    fish.editor.loadFish(fish.index(QStringLiteral("Effect")));

    QCOMPARE(spearTreeText(fish.editor.headSpear()), QStringLiteral("Effect[Man,Machine,Method]"));
    QCOMPARE(fish.editor.headSpear()->scene(), fish.editor.scene());
    const std::vector<SpearItem *> spears = spearsInOrder(fish.editor.headSpear());
    QString directions;
    for (const SpearItem *spear : spears) {
        QVERIFY(spear->line().isNull());
        QCOMPARE(spear->offset(), 0.0);
        directions.append(QString::number(spear->direction()) + QLatin1Char(' '));
    }
    QCOMPARE(directions, QStringLiteral("0 1 -1 1 "));
    QVERIFY(fish.editor.headSpear()->isExpand());
    QCOMPARE(fish.editor.headSpear()->zValue(), -100.0);
}

void TestFishEditorBuilding::shouldLoadNothingForAnInvalidIndex()
{
    EditorFixture fish(effect());
    const SpearItem *const head = fish.editor.headSpear();

    fish.editor.loadFish(QModelIndex());

    QCOMPARE(fish.editor.headSpear(), head);
    QCOMPARE(SpearItem::m_refCount, 4);
}

void TestFishEditorBuilding::shouldGiveLinksAndButtonsWhenItLoads()
{
    EditorFixture fish(effect());
    fish.subject(QStringLiteral("Effect"))->setUrl(QStringLiteral("https://example.org/head"));
    fish.subject(QStringLiteral("Method"))->setUrl(QStringLiteral("https://example.org/bone"));
    fish.editor.setRootIndex(QModelIndex());

    fish.editor.loadFish(fish.index(QStringLiteral("Effect")));

    const auto url = [&fish](const QString &title) {
        const auto *const link = dynamic_cast<LinkItem *>(fish.spear(title)->linkItem());
        return link ? link->url() : QStringLiteral("none");
    };
    QCOMPARE(url(QStringLiteral("Effect")), QStringLiteral("https://example.org/head"));
    QCOMPARE(url(QStringLiteral("Man")), QStringLiteral("none"));
    QCOMPARE(url(QStringLiteral("Method")), QStringLiteral("https://example.org/bone"));
    QVERIFY(!fish.spear(QStringLiteral("Effect"))->expandBuddy());
    const auto *const button =
        dynamic_cast<ExpandItem *>(fish.spear(QStringLiteral("Man"))->expandBuddy());
    QVERIFY(button);
    QCOMPARE(button->svgFile(), QStringLiteral(":/fishboneDiagram/expand.svg"));
    QVERIFY(fish.spear(QStringLiteral("Machine"))->expandBuddy());
    QVERIFY(!fish.spear(QStringLiteral("Method"))->expandBuddy());
}

void TestFishEditorBuilding::shouldKeepZoomAndRotationWhenTheDiagramChanges()
{
    EditorFixture fish(effect());
    loadDocument(fish.model, QStringLiteral("Other[Bone]"));
    fish.editor.zoomFish(300);
    fish.editor.rotateFish(30);
    const QTransform matrix = fish.editor.view()->transform();

    fish.editor.setRootIndex(fish.index(QStringLiteral("Other")));

    QCOMPARE(fish.editor.zoomValue(), 300);
    QCOMPARE(fish.editor.rotateValue(), 30);
    QCOMPARE(fish.editor.view()->transform(), matrix);
}

void TestFishEditorBuilding::shouldBringTheHeadIntoView()
{
    EditorFixture fish(effect());
    QVERIFY(fish.show(false));
    fish.editor.scene()->setSceneRect(-5000, -5000, 10000, 10000);
    fish.editor.view()->centerOn(4000, 4000);

    fish.editor.setRootIndex(fish.index(QStringLiteral("Effect")));

    const QPointF center = fish.editor.headSpear()->sceneBoundingRect().center();
    const QPoint shown = fish.editor.view()->mapFromScene(center);
    QVERIFY((shown - fish.editor.view()->viewport()->rect().center()).manhattanLength() <= 4);
}

void TestFishEditorBuilding::shouldMakeTheChildrenOfOneBone()
{
    EditorFixture fish(effect());
    SpearItem *const man = fish.spear(QStringLiteral("Man"));

    fish.editor.generateSpear(&fish.model, fish.index(QStringLiteral("Man")));

    QCOMPARE(spearTreeText(fish.editor.headSpear()),
             QStringLiteral("Effect[Man[Train],Machine,Method]"));
    const SpearItem *const child = man->childSpear(0);
    QCOMPARE(child->direction(), 0);
    QCOMPARE(child->spearSize(), man->spearSize());
    QCOMPARE(child->modelIndex(), fish.index(QStringLiteral("Train")));
    QVERIFY(child->expandBuddy());
    QVERIFY(!man->isExpand());
}

void TestFishEditorBuilding::shouldMakeMissingChildrenOnly()
{
    EditorFixture fish(QStringLiteral("Effect[Man[a,b,c,d]]"));
    fish.editor.generateSpear(&fish.model, fish.index(QStringLiteral("Man")));
    const QList<SpearItem *> made = fish.spear(QStringLiteral("Man"))->childSpears();
    delete made.at(0);
    delete made.at(2);

    fish.editor.generateSpear(&fish.model, fish.index(QStringLiteral("Man")));

    const QList<SpearItem *> now = fish.spear(QStringLiteral("Man"))->childSpears();
    QCOMPARE(spearTreeText(fish.editor.headSpear()), QStringLiteral("Effect[Man[a,b,c,d]]"));
    QCOMPARE(now.at(1), made.at(1));
    QCOMPARE(now.at(3), made.at(3));
}

void TestFishEditorBuilding::shouldMakeAllDescendants()
{
    EditorFixture fish(effect());

    fish.editor.generateAllSubSpear(&fish.model, fish.index(QStringLiteral("Effect")));

    QCOMPARE(spearTreeText(fish.editor.headSpear()), effect());
    for (const QString &title : {QStringLiteral("Man"), QStringLiteral("Train")})
        QVERIFY(fish.spear(title)->expandBuddy());
    for (const QString &title : {QStringLiteral("Cost"), QStringLiteral("Wear")})
        QVERIFY(!fish.spear(title)->expandBuddy());
}

void TestFishEditorBuilding::shouldMakeMissingDescendantsOfBonesThatHaveSpears()
{
    EditorFixture fish(QStringLiteral("Effect[Man[a[x,y],b]]"));
    fish.editor.generateAllSubSpear(&fish.model, fish.index(QStringLiteral("Effect")));
    const SpearItem *const a = fish.spear(QStringLiteral("a"));
    delete fish.spear(QStringLiteral("x"));

    fish.editor.generateAllSubSpear(&fish.model, fish.index(QStringLiteral("Effect")));

    QCOMPARE(fish.spear(QStringLiteral("a")), a);
    QCOMPARE(spearTreeText(fish.editor.headSpear()), QStringLiteral("Effect[Man[a[x,y],b]]"));
}

void TestFishEditorBuilding::shouldMakeNothingForAnInvalidIndex()
{
    EditorFixture fish(effect());

    fish.editor.generateSpear(&fish.model, QModelIndex());
    fish.editor.generateSpear(nullptr, fish.index(QStringLiteral("Man")));
    fish.editor.generateAllSubSpear(&fish.model, QModelIndex());
    fish.editor.generateAllSubSpear(nullptr, fish.index(QStringLiteral("Man")));
    fish.editor.generateSpear(QModelIndex(), 1, 0, fish.editor.headSpear());

    QCOMPARE(SpearItem::m_refCount, 4);
}

void TestFishEditorBuilding::shouldMakeASubtreeBelowABone()
{
    EditorFixture fish(QStringLiteral("Effect[Man,Machine]"));
    loadDocument(fish.model, QStringLiteral("Other[a[b[c],d]]"));
    SpearItem *const machine = fish.spear(QStringLiteral("Machine"));

    fish.editor.generateSpear(fish.index(QStringLiteral("Other")), 2, 0, machine);

    QCOMPARE(spearTreeText(machine), QStringLiteral("Machine[Other[a[b[c],d]]]"));
    const std::vector<SpearItem *> spears = spearsInOrder(fish.spear(QStringLiteral("Other")));
    for (const SpearItem *spear : spears) {
        QVERIFY(!spear->isExpand());
        QCOMPARE(spear->spearSize(), 20.0);
    }
    QVERIFY(fish.spear(QStringLiteral("a"))->expandBuddy());
    QVERIFY(!fish.spear(QStringLiteral("d"))->expandBuddy());
    QVERIFY(!fish.spear(QStringLiteral("Other"))->expandBuddy());
}

void TestFishEditorBuilding::shouldGiveTheDirectionsOfANewSubtreeByItsLevel_data()
{
    QTest::addColumn<QString>("parent");
    QTest::addColumn<int>("level");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("directions");

    // The children of the top are made on the level of the top itself, and while the top hangs
    // nowhere yet. What is deeper follows the bone two above.
    QTest::newRow("level 1, even row")
        << QStringLiteral("Effect") << 1 << 2 << QStringLiteral("1[1[0[1,1]],-1[0]]");
    QTest::newRow("level 1, odd row")
        << QStringLiteral("Effect") << 1 << 3 << QStringLiteral("-1[1[0[1,1]],-1[0]]");
    QTest::newRow("level 2") << QStringLiteral("Machine") << 2 << 1
                             << QStringLiteral("0[0[0[0,0]],0[0]]");
    QTest::newRow("level 3") << QStringLiteral("m") << 3 << 0
                             << QStringLiteral("-1[0[0[0,0]],0[0]]");
}

void TestFishEditorBuilding::shouldGiveTheDirectionsOfANewSubtreeByItsLevel()
{
    QFETCH(QString, parent);
    QFETCH(int, level);
    QFETCH(int, row);
    QFETCH(QString, directions);
    EditorFixture fish(QStringLiteral("Effect[Man,Machine[m]]"));
    loadDocument(fish.model, QStringLiteral("Other[a[b[c,d]],e[f]]"));
    fish.editor.expandAll();

    fish.editor.generateSpear(fish.index(QStringLiteral("Other")), level, row, fish.spear(parent));

    QString text = spearTreeText(fish.spear(QStringLiteral("Other")));
    for (const QString &title :
         {QStringLiteral("Other"), QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c"),
          QStringLiteral("d"), QStringLiteral("e"), QStringLiteral("f")})
        text.replace(title, QString::number(fish.spear(title)->direction()));
    QCOMPARE(text, directions);
}

void TestFishEditorBuilding::shouldGiveTheLinkOfANewSubtreeToTheHead()
{
    EditorFixture fish(QStringLiteral("Effect[Man]"));
    loadDocument(fish.model, QStringLiteral("Other[a[b]]"));
    fish.subject(QStringLiteral("Other"))->setUrl(QStringLiteral("https://example.org/top"));
    fish.subject(QStringLiteral("b"))->setUrl(QStringLiteral("https://example.org/below"));

    fish.editor.generateSpear(fish.index(QStringLiteral("Other")), 2, 0,
                              fish.spear(QStringLiteral("Man")));

    const auto *const link = dynamic_cast<LinkItem *>(fish.editor.headSpear()->linkItem());
    QVERIFY(link);
    QCOMPARE(link->url(), QStringLiteral("https://example.org/top"));
    QVERIFY(!fish.spear(QStringLiteral("Other"))->linkItem());
    QVERIFY(fish.spear(QStringLiteral("b"))->linkItem());

    fish.editor.refreshFish();
    QVERIFY(!fish.editor.headSpear()->linkItem());
    QVERIFY(fish.spear(QStringLiteral("Other"))->linkItem());
}

FISHBONE_TEST(TestFishEditorBuilding)
#include "tst_fisheditor_building.moc"
