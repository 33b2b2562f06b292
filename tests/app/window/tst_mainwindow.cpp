// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>

#include <app/common/actionset.h>
#include <tests/program/testprogram.h>

#include <QMenuBar>
#include <QStatusBar>
#include <QToolBar>

class TestMainWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldShowTheTemplateWhenNothingIsAskedFor();
    void shouldShowTheDocumentThatIsAskedFor();
    void shouldOpenEachDocumentInATab();
    void shouldOpenAFileOnce();
    void shouldSayWhatCannotBeOpened();
    void shouldMarkChangesInTheTitle();
    void shouldOfferEveryActionInAMenu();
    void shouldUseEveryShortcutOnce();
    void shouldGiveEveryToolBarButtonAnIcon();
    void shouldDisableWhatNeedsADocument();
    void shouldDisableWhatNeedsASelection();
    void shouldDeselectOnAPressOnTheCanvas();
    void shouldNotMoveTheSelectionFromAPressOnTheCanvas();
    void shouldKeepTheLookOfADocumentThatIsLeft();
};

void TestMainWindow::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_mainwindow"));
}

void TestMainWindow::shouldShowTheTemplateWhenNothingIsAskedFor()
{
    MainWindow window;
    window.show();
    window.open({});
    AppFixture::settle();

    QCOMPARE(window.model()->rowCount(), 1);
    QVERIFY(window.editor()->headSpear());
    QVERIFY(window.session()->document()->isUntitled());
    QVERIFY(!window.isWindowModified());
}

void TestMainWindow::shouldShowTheDocumentThatIsAskedFor()
{
    const AppFixture app;
    QCOMPARE(app.window.model()->rowCount(), 1);
    QCOMPARE(app.text(),
             QStringLiteral("Late[People[Too few[Illness],Too new],Machines,Material[Rust]]"));
    QCOMPARE(app.window.editor()->rootIndex(), app.window.model()->index(0, 0));
    QVERIFY2(app.window.windowTitle().startsWith(QLatin1String("late.json[*]")),
             qPrintable(app.window.windowTitle()));
    QVERIFY(!app.document()->isUntitled());
}

void TestMainWindow::shouldOpenEachDocumentInATab()
{
    AppFixture app;
    const QString other = app.path(QStringLiteral("other.json"));
    AppFixture::writeFile(other, R"({"title": "Other", "children": [{"title": "Bone"}]})");
    app.window.open({other});
    AppFixture::settle();

    QCOMPARE(app.tabCount(), 2);
    const QAbstractItemModel *const rows = app.window.tree()->view()->model();
    QCOMPARE(rows->rowCount(), 1);
    QCOMPARE(rows->index(0, 0).data().toString(), QStringLiteral("Other"));
    QCOMPARE(app.text(), QStringLiteral("Other[Bone]")); // the newest one is shown
    QVERIFY(app.window.windowTitle().startsWith(QLatin1String("other.json")));

    app.showTab(0);
    QCOMPARE(app.document()->userFriendlyCurrentFile(), QStringLiteral("late.json"));
    QVERIFY(app.window.windowTitle().startsWith(QLatin1String("late.json")));
}

void TestMainWindow::shouldOpenAFileOnce()
{
    AppFixture app;
    app.window.open({app.path(), QUrl::fromLocalFile(app.path()).toString()});
    QTRY_COMPARE(app.window.statusBar()->currentMessage(), QStringLiteral("late.json loaded"));
    AppFixture::settle();
    QCOMPARE(app.tabCount(), 1);
}

void TestMainWindow::shouldSayWhatCannotBeOpened()
{
    AppFixture app;
    const QString missing = app.path(QStringLiteral("missing.json"));
    app.window.open({missing});
    AppFixture::settle();
    QVERIFY(app.window.statusBar()->currentMessage().contains(missing));
    QVERIFY(app.window.statusBar()->currentMessage().contains(QLatin1String("no such file")));
    QCOMPARE(app.tabCount(), 1);

    MainWindow alone;
    alone.open({missing});
    AppFixture::settle();
    QVERIFY(alone.editor()->headSpear()); // the template, to begin with
}

void TestMainWindow::shouldMarkChangesInTheTitle()
{
    AppFixture app;
    QVERIFY(!app.window.isWindowModified());
    app.select("People");
    app.trigger("child");
    QVERIFY(app.window.isWindowModified());
    QVERIFY(app.document()->modified());
}

void TestMainWindow::shouldOfferEveryActionInAMenu()
{
    const AppFixture app;
    QSet<QString> offered;
    QList<QAction *> entries = app.window.menuBar()->actions();
    QVERIFY(entries.size() >= 5);
    for (int i = 0; i < entries.size(); ++i) { // what comes behind is in menus of menus
        offered.insert(entries.at(i)->objectName());
        if (const QMenu *const menu = entries.at(i)->menu())
            entries += menu->actions();
    }
    const QList<QAction *> actions = app.window.findChild<ActionSet *>()->actions();
    QVERIFY(actions.size() > 50);
    for (const QAction *action : actions)
        QVERIFY2(offered.contains(action->objectName()), qPrintable(action->objectName()));
}

void TestMainWindow::shouldUseEveryShortcutOnce()
{
    const AppFixture app;
    QHash<QKeySequence, QString> users;
    const QList<QAction *> actions = app.window.findChildren<QAction *>();
    for (const QAction *action : actions) {
        const QList<QKeySequence> shortcuts = action->shortcuts();
        for (const QKeySequence &shortcut : shortcuts) {
            if (shortcut.isEmpty())
                continue;
            QVERIFY2(!users.contains(shortcut),
                     qPrintable(QStringLiteral("%1: %2 and %3")
                                    .arg(shortcut.toString(), users.value(shortcut),
                                         action->objectName())));
            users.insert(shortcut, action->objectName());
        }
    }
    QVERIFY(users.size() > 25);
}

void TestMainWindow::shouldGiveEveryToolBarButtonAnIcon()
{
    const AppFixture app;
    const QList<QToolBar *> bars = app.window.findChildren<QToolBar *>();
    QVERIFY(bars.size() >= 4);
    for (const QToolBar *bar : bars) {
        const QList<QAction *> actions = bar->actions();
        for (const QAction *action : actions)
            QVERIFY2(action->isSeparator() || !action->icon().isNull(),
                     qPrintable(action->objectName()));
    }
}

void TestMainWindow::shouldDisableWhatNeedsADocument()
{
    AppFixture app;
    QVERIFY(app.action("save")->isEnabled());
    app.trigger("close");
    QCOMPARE(app.window.model()->rowCount(), 0);
    for (const char *name :
         {"save", "saveAs", "export", "print", "close", "selectAll", "expandall", "fit", "find",
          "undo", "redo", "saveCopy", "revert", "nextTab", "previousTab"})
        QVERIFY2(!app.action(name)->isEnabled(), name);
    for (const char *name : {"new", "open", "url", "quit"})
        QVERIFY2(app.action(name)->isEnabled(), name);
}

void TestMainWindow::shouldDisableWhatNeedsASelection()
{
    AppFixture app;
    for (const char *name :
         {"child", "before", "after", "parent", "subTask", "rename", "delete", "cut", "copy",
          "paste", "link", "style", "expand", "contract", "asDiagram", "fitselection"})
        QVERIFY2(!app.action(name)->isEnabled(), name);
    app.select("People");
    for (const char *name : {"child", "before", "after", "parent", "subTask", "rename", "delete",
                             "cut", "copy", "link", "style", "expand", "asDiagram", "fitselection"})
        QVERIFY2(app.action(name)->isEnabled(), name);
    QVERIFY(!app.action("paste")->isEnabled()); // nothing was copied
    QVERIFY(!app.action("contract")->isEnabled());
    app.select("Late");
    for (const char *name : {"delete", "cut", "copy", "expand", "contract", "asDiagram"})
        QVERIFY2(!app.action(name)->isEnabled(), name);
}

void TestMainWindow::shouldDeselectOnAPressOnTheCanvas()
{
    AppFixture app;
    app.select("People");
    QWidget *const viewport = app.window.editor()->view()->viewport();
    QTest::mousePress(viewport, Qt::LeftButton, {}, QPoint(3, 3));
    QCOMPARE(app.selectedInDrawing(), QStringList());
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, QPoint(3, 3));
    AppFixture::settle();
    QCOMPARE(app.selectedInTree(), QStringList());
    QVERIFY(!app.action("child")->isEnabled());
}

void TestMainWindow::shouldNotMoveTheSelectionFromAPressOnTheCanvas()
{
    AppFixture app;
    app.select("Machines");
    const QString before = app.text();
    GraphicsView *const view = app.window.editor()->view();
    const SpearItem *const other = app.subject("Material")->spear();
    const QPoint target = view->mapFromScene(other->line().center());
    QTest::mousePress(view->viewport(), Qt::LeftButton, {}, QPoint(3, 3));
    QTest::mouseMove(view->viewport(), target);
    QTest::mouseRelease(view->viewport(), Qt::LeftButton, {}, target);
    AppFixture::settle();
    QCOMPARE(app.text(), before);
    QVERIFY(!app.window.editor()->undoStack()->canUndo());
}

void TestMainWindow::shouldKeepTheLookOfADocumentThatIsLeft()
{
    AppFixture app;
    app.select("Illness"); // which expands what is above it
    app.trigger("new");
    QCOMPARE(app.tabCount(), 2);
    app.showTab(0);
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("Illness")));
    QVERIFY(app.subject("Illness")->spear()->isVisible());
    QVERIFY(!app.subject("Material")->spear()->isExpand());
}

FISHBONE_TEST(TestMainWindow)
#include "tst_mainwindow.moc"
