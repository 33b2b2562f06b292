// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QAccessible>
#include <QtTest>

#include <fishbone/accessibility/accessiblebone.h>
#include <fishbone/accessibility/accessiblediagram.h>
#include <fishbone/items/taskstatusinfo.h>
#include <fishbone/items/textitem.h>
#include <fishbone/model/subjectmarks.h>
#include <fishbone/undo/undostack.h>
#include <tests/accessibility/accessiblestage.h>
#include <tests/program/testprogram.h>
#include <tests/support/dialogchecks.h>
#include <tests/support/editorfixture.h>

using namespace TestSupport;

class TestAccessibleDiagram : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldBeATreeOfTheDrawnBones();
    void shouldShowNoEntriesInContractedBones();
    void shouldBeEmptyWithoutADiagram();
    void shouldLeadUpAndDown();
    void shouldKeepOneEntryABone();
    void shouldTellLevelAndDescription_data();
    void shouldTellLevelAndDescription();
    void shouldTellWhatATeamHasMarked();
    void shouldFollowTheTitle();
    void shouldNameTheDiagram();
    void shouldTellStates();
    void shouldStandWhereTheBoneIsDrawn();
    void shouldFindWhatIsDrawnAtAPoint();
    void shouldOfferActions();
    void shouldSelect();
    void shouldExpandAndContract();
    void shouldAskForTheMenu();
    void shouldIgnoreUnknownActions();
    void shouldTranslateWhatItSays();
};

void TestAccessibleDiagram::shouldBeATreeOfTheDrawnBones()
{
    Fixture f;
    QCOMPARE(f.view()->role(), QAccessible::Tree);
    QCOMPARE(f.view()->childCount(), 1);
    QCOMPARE(f.head()->role(), QAccessible::TreeItem);
    f.editor.expandAll();
    QCOMPARE(tree(*f.head()), document());
    QVERIFY(f.view()->isValid());
    QVERIFY(f.head()->isValid());
}

void TestAccessibleDiagram::shouldShowNoEntriesInContractedBones()
{
    Fixture f;
    QCOMPARE(tree(*f.head()), QStringLiteral("Late[People,Machines,Material]"));
    f.editor.expandAll();
    f.spear(QStringLiteral("Few"))->setExpand(false);
    QCOMPARE(tree(*f.head()), QStringLiteral("Late[People[Few,New],Machines,Material[Rust]]"));
    f.editor.contractAll();
    QCOMPARE(tree(*f.head()), QStringLiteral("Late[People,Machines,Material]"));
}

void TestAccessibleDiagram::shouldBeEmptyWithoutADiagram()
{
    Fixture f;
    f.editor.setRootIndex(QModelIndex());
    QCOMPARE(f.view()->childCount(), 0);
    QVERIFY(!f.view()->child(0));
    QVERIFY(!f.view()->focusChild());
    QVERIFY(f.view()->isValid());
}

void TestAccessibleDiagram::shouldLeadUpAndDown()
{
    Fixture f;
    f.editor.expandAll();
    QCOMPARE(f.head()->parent(), f.view());
    QCOMPARE(f.view()->indexOfChild(f.head()), 0);
    QCOMPARE(f.bone("New")->parent(), f.bone("People"));
    QCOMPARE(f.bone("People")->indexOfChild(f.bone("New")), 1);
    QCOMPARE(f.bone("People")->indexOfChild(f.bone("Rust")), -1);
    QCOMPARE(f.bone("Machines")->indexOfChild(f.bone("Rust")), -1);
    QCOMPARE(f.bone("People")->child(1), f.bone("New"));
    QVERIFY(!f.bone("People")->child(2));
    QVERIFY(!f.bone("People")->child(-1));
    QVERIFY(!f.view()->child(1));
    QCOMPARE(f.view()->indexOfChild(f.bone("People")), -1);
}

void TestAccessibleDiagram::shouldKeepOneEntryABone()
{
    Fixture f;
    QAccessibleInterface *const people = f.head()->child(0);
    QCOMPARE(f.head()->child(0), people);
    QCOMPARE(f.bone("People"), people);
    QCOMPARE(QAccessible::uniqueId(f.head()->child(0)), QAccessible::uniqueId(people));
}

void TestAccessibleDiagram::shouldTellLevelAndDescription_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<int>("progress");
    QTest::addColumn<QString>("url");
    QTest::addColumn<QString>("description");

    QTest::newRow("none") << -1 << 0 << QString() << QStringLiteral("level 2");
    QTest::newRow("unknown") << int(tsUnknown) << 0 << QString() << QStringLiteral("level 2");
    QTest::newRow("under way") << int(tsRunning) << 40 << QString()
                               << QStringLiteral("level 2, under way, 40 %");
    QTest::newRow("finished") << int(tsFinish) << 100 << QString()
                              << QStringLiteral("level 2, finished, 100 %");
    QTest::newRow("late") << int(tsFinishDelay) << 100 << QString()
                          << QStringLiteral("level 2, finished late, 100 %");
    QTest::newRow("cancelled") << int(tsCancel) << 5 << QString()
                               << QStringLiteral("level 2, cancelled, 5 %");
    QTest::newRow("postponed") << int(tsPostpone) << 0 << QString()
                               << QStringLiteral("level 2, postponed, 0 %");
    QTest::newRow("waiting") << int(tsWaitting) << 0 << QString()
                             << QStringLiteral("level 2, waiting, 0 %");
    QTest::newRow("approval") << int(tsWaittingAgree) << 99 << QString()
                              << QStringLiteral("level 2, waiting for approval, 99 %");
    QTest::newRow("strange") << 77 << 0 << QString() << QStringLiteral("level 2");
    QTest::newRow("only progress") << -1 << 30 << QString() << QStringLiteral("level 2, 30 %");
    QTest::newRow("link") << -1 << 0 << QStringLiteral("http://localhost/")
                          << QStringLiteral("level 2, linked");
}

void TestAccessibleDiagram::shouldTellLevelAndDescription()
{
    QFETCH(int, status);
    QFETCH(int, progress);
    QFETCH(QString, url);
    QFETCH(QString, description);
    Fixture f;
    f.editor.expandAll();
    TreeItem *const subject = f.subject(QStringLiteral("Rust"));
    subject->setStatus(status);
    subject->setProgress(progress);
    subject->setUrl(url);
    QCOMPARE(f.bone("Rust")->text(QAccessible::Description), description);
    QCOMPARE(f.bone("Rust")->text(QAccessible::Value), QStringLiteral("2"));
    QCOMPARE(f.head()->text(QAccessible::Value), QStringLiteral("0"));
    QCOMPARE(f.bone("Ill")->text(QAccessible::Value), QStringLiteral("3"));
}

void TestAccessibleDiagram::shouldTellWhatATeamHasMarked()
{
    Fixture f;
    f.editor.expandAll();
    TreeItem &rust = *f.subject(QStringLiteral("Rust"));
    SubjectMarks::setVerdict(rust, Verdict::RuledOut);
    SubjectMarks::setVotes(rust, 3);
    rust.spear()->setData(SpearItem::noteKey, QStringLiteral("pale"));
    QCOMPARE(f.bone("Rust")->text(QAccessible::Description),
             QStringLiteral("level 2, ruled out, 3 vote(s), pale"));
}

void TestAccessibleDiagram::shouldFollowTheTitle()
{
    Fixture f;
    QAccessibleInterface *const people = f.bone("People");
    f.editor.renameItem(f.index(QStringLiteral("People")), QStringLiteral("Staff"));
    QCOMPARE(people->text(QAccessible::Name), QStringLiteral("Staff"));
}

void TestAccessibleDiagram::shouldNameTheDiagram()
{
    Fixture f;
    QCOMPARE(f.view()->text(QAccessible::Name), QStringLiteral("Diagram: Late"));
    f.editor.setRootIndex(QModelIndex());
    QCOMPARE(f.view()->text(QAccessible::Name), QStringLiteral("Diagram"));
    f.editor.view()->setAccessibleName(QStringLiteral("Causes"));
    QCOMPARE(f.view()->text(QAccessible::Name), QStringLiteral("Causes"));
}

void TestAccessibleDiagram::shouldTellStates()
{
    Fixture f;
    QVERIFY(f.show());
    QVERIFY(f.view()->state().multiSelectable);
    f.editor.expandAll();
    f.spear(QStringLiteral("Few"))->setExpand(false);
    f.editor.updateFish(false);
    f.editor.equalRatio(f.editor.scene()->itemsBoundingRect());
    f.select({QStringLiteral("Machines")});
    const auto state = [&f](const char *title) { return f.bone(title)->state(); };

    QVERIFY(state("Machines").selected);
    QVERIFY(!state("People").selected);
    for (const char *title : {"Late", "People", "Machines"}) {
        QVERIFY(state(title).selectable);
        QVERIFY(state(title).focusable);
        QVERIFY(!state(title).invisible);
        QVERIFY2(!state(title).offscreen, title);
    }
    QVERIFY(state("People").expandable);
    QVERIFY(state("People").expanded);
    QVERIFY(!state("People").collapsed);
    QVERIFY(state("Few").collapsed);
    QVERIFY(!state("Few").expanded);
    QVERIFY(!state("Machines").expandable);
    QVERIFY(!state("Machines").collapsed);
    QVERIFY(!state("Late").expandable); // which is never contracted
    QVERIFY(state("Ill").invisible);

    f.editor.zoomFish(500);
    f.editor.view()->centerOn(f.spear(QStringLiteral("Late"))->textItem());
    QVERIFY(state("Rust").offscreen);
}

void TestAccessibleDiagram::shouldStandWhereTheBoneIsDrawn()
{
    Fixture f;
    QVERIFY(f.show());
    const GraphicsView *const view = f.editor.view();
    for (int turn = 0; turn < 2; ++turn) {
        const SpearItem *const spear = f.spear(QStringLiteral("Machines"));
        const QRect rect = f.bone("Machines")->rect();
        const auto onScreen = [view](const QPointF &point) {
            return view->viewport()->mapToGlobal(view->mapFromScene(point));
        };
        QVERIFY(rect.contains(onScreen(spear->mapToScene(spear->line().center()))));
        QVERIFY(rect.contains(
            onScreen(spear->textItem()->mapToScene(spear->textItem()->boundingRect().center()))));
        QVERIFY(rect.width() < view->viewport()->width() / 2);
        f.editor.zoomFish(200); // smaller, and elsewhere
    }
}

void TestAccessibleDiagram::shouldFindWhatIsDrawnAtAPoint()
{
    Fixture f;
    QVERIFY(f.show());
    f.editor.expandAll();
    f.editor.equalRatio(f.editor.scene()->itemsBoundingRect());
    const GraphicsView *const view = f.editor.view();
    for (const char *title : {"Machines", "Rust", "Ill"}) {
        const SpearItem *const spear = f.spear(QLatin1String(title));
        const QPoint at = view->viewport()->mapToGlobal(view->mapFromScene(
            spear->textItem()->mapToScene(spear->textItem()->boundingRect().center())));
        QCOMPARE(f.view()->childAt(at.x(), at.y()), f.bone(title));
        QCOMPARE(f.head()->childAt(at.x(), at.y()), f.bone(title));
        QVERIFY(!f.bone(title)->childAt(at.x(), at.y()));
    }
    const QPoint outside = view->viewport()->mapToGlobal(QPoint(-5, -5));
    QVERIFY(!f.view()->childAt(outside.x(), outside.y()));
    const QPoint corner = view->viewport()->mapToGlobal(QPoint(1, 1));
    QVERIFY(!f.view()->childAt(corner.x(), corner.y()));
}

void TestAccessibleDiagram::shouldOfferActions()
{
    Fixture f;
    QAccessibleActionInterface *const people = f.bone("People")->actionInterface();
    QVERIFY(people);
    QVERIFY(people->actionNames().contains(QAccessibleActionInterface::pressAction()));
    QVERIFY(people->actionNames().contains(toggle()));
    QVERIFY(!f.bone("Machines")->actionInterface()->actionNames().contains(toggle()));
    QVERIFY(!f.head()->actionInterface()->actionNames().contains(toggle()));
    QCOMPARE(people->localizedActionName(toggle()), QStringLiteral("Expand"));
    f.act("People", toggle());
    QCOMPARE(people->localizedActionName(toggle()), QStringLiteral("Contract"));
    const QStringList names = people->actionNames();
    for (const QString &name : names) {
        QVERIFY2(!people->localizedActionName(name).isEmpty(), qPrintable(name));
        QVERIFY2(!people->localizedActionDescription(name).isEmpty(), qPrintable(name));
    }
}

void TestAccessibleDiagram::shouldSelect()
{
    Fixture f;
    QVERIFY(f.show());
    f.select({QStringLiteral("People"), QStringLiteral("Material")});
    f.act("Machines", QAccessibleActionInterface::pressAction());
    QCOMPARE(f.editor.selectedItems().size(), 1);
    QCOMPARE(f.editor.firstSelectedSpear(), f.spear(QStringLiteral("Machines")));
    f.act("People", QAccessibleActionInterface::setFocusAction());
    QCOMPARE(f.editor.firstSelectedSpear(), f.spear(QStringLiteral("People")));
    QCOMPARE(f.editor.focusWidget(), f.editor.view());
}

void TestAccessibleDiagram::shouldExpandAndContract()
{
    Fixture f;
    QSignalSpy expanded(&f.editor, &FishEditor::onExpand);
    QSignalSpy contracted(&f.editor, &FishEditor::onCollaps);
    f.act("People", toggle());
    QCOMPARE(tree(*f.bone("People")), QStringLiteral("People[Few,New]"));
    QVERIFY(f.spear(QStringLiteral("New"))->isVisible());
    QCOMPARE(expanded.count(), 1);
    QCOMPARE(expanded.first().first().toModelIndex(), f.index(QStringLiteral("People")));
    f.act("People", toggle());
    QCOMPARE(tree(*f.bone("People")), QStringLiteral("People"));
    QVERIFY(!f.spear(QStringLiteral("New"))->isVisible());
    QCOMPARE(contracted.count(), 1);
    f.act("People", toggle());
    QVERIFY(f.spear(QStringLiteral("New"))->isVisible());
}

void TestAccessibleDiagram::shouldAskForTheMenu()
{
    Fixture f;
    QObject::disconnect(f.editor.view(), &GraphicsView::rightClicked, &f.editor, nullptr);
    void *asked = nullptr;
    QObject::connect(f.editor.view(), &GraphicsView::rightClicked, &f.editor,
                     [&asked](void *item) { asked = item; });
    f.act("People", QAccessibleActionInterface::showMenuAction());
    QCOMPARE(asked, static_cast<void *>(f.spear(QStringLiteral("People"))));
    QVERIFY(f.spear(QStringLiteral("People"))->isSelected());
}

void TestAccessibleDiagram::shouldIgnoreUnknownActions()
{
    Fixture f;
    f.act("People", QStringLiteral("fly"));
    f.act("Machines", toggle());
    QVERIFY(!f.editor.hasSelection());
    f.bone("People")->setText(QAccessible::Name, QStringLiteral("x"));
    QCOMPARE(f.bone("People")->text(QAccessible::Name), QStringLiteral("People"));
}

void TestAccessibleDiagram::shouldTranslateWhatItSays()
{
    Fixture f;
    const BracketTranslator translator("AccessibleBone");
    QCOMPARE(f.bone("People")->text(QAccessible::Description), QStringLiteral("[level 1]"));
    QCOMPARE(f.bone("People")->actionInterface()->localizedActionName(toggle()),
             QStringLiteral("[Expand]"));
}

FISHBONE_TEST(TestAccessibleDiagram)
#include "tst_accessiblediagram.moc"
