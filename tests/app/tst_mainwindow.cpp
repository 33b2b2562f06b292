// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>

#include <app/canvastheme.h>
#include <app/subjectproxymodel.h>

#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QSlider>
#include <QSpinBox>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>

class TestMainWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldShowTheTemplateWhenNothingIsAskedFor();
    void shouldShowTheDocumentThatIsAskedFor();
    void shouldOpenSeveralDocumentsInOneTree();
    void shouldOpenAFileOnce();
    void shouldSayWhatCannotBeOpened();
    void shouldMarkChangesInTheTitle();
    void shouldOfferEveryActionInAMenu();
    void shouldUseEveryShortcutOnce();
    void shouldGiveEveryToolBarButtonAnIcon();
    void shouldDisableWhatNeedsADocument();
    void shouldDisableWhatNeedsASelection();
    void shouldZoomWithSliderActionsAndWheel();
    void shouldKeepTheZoomWithinTheSlidersRange();
    void shouldRotate();
    void shouldFitTheDrawing();
    void shouldDeselectOnAPressOnTheCanvas();
    void shouldNotMoveTheSelectionFromAPressOnTheCanvas();
    void shouldSwitchBetweenTaskAndDiagramMode();
    void shouldShowAPartAsADiagramAndComeBack();
    void shouldListWhatWasShownBefore();
    void shouldKeepTheLookOfADocumentThatIsLeft();
    void shouldFollowADarkPalette();
    void shouldPrintOnPaper();
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

void TestMainWindow::shouldOpenSeveralDocumentsInOneTree()
{
    AppFixture app;
    const QString other = app.path(QStringLiteral("other.json"));
    AppFixture::writeFile(other, R"({"title": "Other", "children": [{"title": "Bone"}]})");
    app.window.open({other});
    AppFixture::settle();

    const QAbstractItemModel *const rows = app.window.tree()->view()->model();
    QCOMPARE(rows->rowCount(), 2);
    QCOMPARE(rows->index(0, 0).data().toString(), QStringLiteral("Late"));
    QCOMPARE(rows->index(1, 0).data().toString(), QStringLiteral("Other"));
    QCOMPARE(app.text(), QStringLiteral("Other[Bone]")); // the newest one is shown
    QVERIFY(app.window.windowTitle().startsWith(QLatin1String("other.json")));

    app.window.tree()->view()->setCurrentIndex(rows->index(0, 0));
    AppFixture::settle();
    QCOMPARE(app.document()->userFriendlyCurrentFile(), QStringLiteral("late.json"));
    QVERIFY(app.window.windowTitle().startsWith(QLatin1String("late.json")));
}

void TestMainWindow::shouldOpenAFileOnce()
{
    AppFixture app;
    app.window.open({app.path(), QUrl::fromLocalFile(app.path()).toString()});
    QTRY_COMPARE(app.window.statusBar()->currentMessage(), QStringLiteral("late.json loaded"));
    AppFixture::settle();
    QCOMPARE(app.window.model()->rowCount(), 1);
}

void TestMainWindow::shouldSayWhatCannotBeOpened()
{
    AppFixture app;
    const QString missing = app.path(QStringLiteral("missing.json"));
    app.window.open({missing});
    AppFixture::settle();
    QVERIFY(app.window.statusBar()->currentMessage().contains(missing));
    QVERIFY(app.window.statusBar()->currentMessage().contains(QLatin1String("no such file")));
    QCOMPARE(app.window.model()->rowCount(), 1);

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
    QList<QMenu *> menus = app.window.menuBar()->findChildren<QMenu *>();
    QVERIFY(menus.size() >= 5);
    for (const QMenu *menu : qAsConst(menus)) {
        const QList<QAction *> actions = menu->actions();
        for (const QAction *action : actions)
            offered.insert(action->objectName());
    }
    for (const char *name :
         {"new",        "newExample", "newFromTemplate", "open",        "url",        "recover",
          "save",       "saveAs",     "saveAll",         "export",      "print",      "close",
          "quit",       "undo",       "redo",            "cut",         "copy",       "paste",
          "delete",     "selectAll",  "find",            "child",       "before",     "after",
          "parent",     "subTask",    "free",            "rename",      "details",    "link",
          "openLink",   "unlink",     "style",           "removeStyle", "zoomin",     "zoomout",
          "fullsize",   "fit",        "fitselection",    "rotateLeft",  "rotateRight", "rotateReset",
          "expand",     "contract",   "expandall",       "contractall", "asDiagram",  "back",
          "whole",      "diagramMode", "taskMode",       "canvasStyle"})
        QVERIFY2(offered.contains(QLatin1String(name)), name);
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
    for (const char *name : {"save", "saveAs", "export", "print", "close", "selectAll", "expandall",
                             "fit", "find", "undo", "redo"})
        QVERIFY2(!app.action(name)->isEnabled(), name);
    for (const char *name : {"new", "open", "url", "quit"})
        QVERIFY2(app.action(name)->isEnabled(), name);
}

void TestMainWindow::shouldDisableWhatNeedsASelection()
{
    AppFixture app;
    for (const char *name : {"child", "before", "after", "parent", "subTask", "rename", "delete",
                             "cut", "copy", "paste", "link", "style", "expand", "contract",
                             "asDiagram", "fitselection"})
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

void TestMainWindow::shouldZoomWithSliderActionsAndWheel()
{
    AppFixture app;
    auto *const slider = app.widget<QSlider>("zoom");
    auto *const percentage = app.widget<QToolButton>("percentage");
    GraphicsView *const view = app.window.editor()->view();
    QCOMPARE(slider->value(), 250);
    QCOMPARE(percentage->text(), QStringLiteral("100 %"));

    slider->setValue(300);
    QCOMPARE(view->transform().m11(), 2.0);
    QCOMPARE(percentage->text(), QStringLiteral("200 %"));
    app.trigger("zoomout");
    QCOMPARE(slider->value(), 275);
    app.trigger("zoomin");
    QCOMPARE(view->transform().m11(), 2.0);

    const QPointF at(50, 50);
    QWheelEvent wheel(at, view->viewport()->mapToGlobal(at.toPoint()), QPoint(), QPoint(0, -120),
                      Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(view->viewport(), &wheel);
    QCOMPARE(slider->value(), 294);
    QCOMPARE(view->transform().m11(), std::pow(2.0, 44 / 50.0));

    percentage->click();
    QCOMPARE(slider->value(), 250);
    QCOMPARE(view->transform().m11(), 1.0);
}

void TestMainWindow::shouldKeepTheZoomWithinTheSlidersRange()
{
    AppFixture app;
    for (int i = 0; i < 30; ++i)
        app.window.editor()->zoomIn(25);
    QCOMPARE(app.window.editor()->zoomValue(), 500);
    QCOMPARE(app.widget<QToolButton>("percentage")->text(), QStringLiteral("3,200 %"));
    for (int i = 0; i < 30; ++i)
        app.window.editor()->zoomOut(25);
    QCOMPARE(app.window.editor()->zoomValue(), 0);
    QCOMPARE(app.widget<QToolButton>("percentage")->text(), QStringLiteral("3.1 %"));
}

void TestMainWindow::shouldRotate()
{
    AppFixture app;
    auto *const field = app.widget<QSpinBox>("rotation");
    app.trigger("rotateRight");
    QCOMPARE(field->value(), 15);
    QCOMPARE(app.window.editor()->rotateValue(), 15);
    QVERIFY(app.window.editor()->view()->transform().isRotating());
    app.trigger("rotateLeft");
    app.trigger("rotateLeft");
    QCOMPARE(app.window.editor()->rotateValue(), -15);
    field->setValue(90);
    QCOMPARE(app.window.editor()->rotateValue(), 90);
    app.trigger("rotateReset");
    QCOMPARE(field->value(), 0);
    QVERIFY(!app.window.editor()->view()->transform().isRotating());

    field->setValue(90);
    app.trigger("fit"); // which turns the drawing upright
    QCOMPARE(field->value(), 0);
}

void TestMainWindow::shouldFitTheDrawing()
{
    AppFixture app;
    app.trigger("expandall");
    app.widget<QSlider>("zoom")->setValue(400);
    app.trigger("fit");
    const GraphicsView *const view = app.window.editor()->view();
    const QRectF shown = view->mapToScene(view->viewport()->rect()).boundingRect();
    const QList<QGraphicsItem *> items = app.window.editor()->scene()->items();
    for (const QGraphicsItem *item : items) {
        if (item->isVisible() && !item->boundingRect().isEmpty())
            QVERIFY(shown.contains(item->sceneBoundingRect()));
    }
    const int zoom = app.window.editor()->zoomValue();
    QCOMPARE(app.widget<QSlider>("zoom")->value(), zoom);

    app.select("Rust");
    app.trigger("fitselection");
    QVERIFY(app.window.editor()->zoomValue() > zoom);
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

void TestMainWindow::shouldSwitchBetweenTaskAndDiagramMode()
{
    AppFixture app;
    QCOMPARE(app.window.model()->modelType(), FISH_MODEL_DIAGRAM);
    QVERIFY(app.action("diagramMode")->isChecked());
    QCOMPARE(app.window.editor()->headSpear()->text(), QStringLiteral("Late"));

    app.trigger("taskMode");
    QCOMPARE(app.window.model()->modelType(), FISH_MODEL_NORMAL);
    QVERIFY(!app.action("diagramMode")->isChecked());
    QVERIFY(app.window.editor()->headSpear()->text().startsWith(QLatin1String("Late(")));

    app.trigger("diagramMode");
    QCOMPARE(app.window.editor()->headSpear()->text(), QStringLiteral("Late"));
}

void TestMainWindow::shouldShowAPartAsADiagramAndComeBack()
{
    AppFixture app;
    QVERIFY(!app.action("back")->isEnabled());
    app.select("People");
    app.trigger("asDiagram");
    QCOMPARE(app.window.editor()->rootIndex(), app.find("People"));
    app.select("Too few");
    Q_EMIT app.window.editor()->changeFishWithModelIndex(app.find("Too few"));
    AppFixture::settle();
    QCOMPARE(app.window.editor()->rootIndex(), app.find("Too few"));

    app.trigger("back");
    QCOMPARE(app.window.editor()->rootIndex(), app.find("People"));
    app.trigger("back");
    QCOMPARE(app.window.editor()->rootIndex(), app.find("Late"));
    QVERIFY(!app.action("back")->isEnabled());

    app.select("People");
    app.trigger("asDiagram");
    app.select("Rust"); // lies elsewhere
    QCOMPARE(app.window.editor()->rootIndex(), app.find("Late"));
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("Rust")));
}

void TestMainWindow::shouldListWhatWasShownBefore()
{
    AppFixture app;
    app.window.session()->showAsDiagram(app.find("People"));
    app.window.session()->showAsDiagram(app.find("Material"));
    QCOMPARE(app.document()->fishHistorys(),
             QStringList({QStringLiteral("{a}"), QStringLiteral("{f}")}));
    AppFixture::settle();
    app.trigger("whole");

    QMenu *visited = nullptr;
    const QList<QMenu *> menus = app.window.findChildren<QMenu *>();
    for (QMenu *menu : menus) {
        if (menu->title().contains(QLatin1String("Shown")))
            visited = menu;
    }
    QVERIFY(visited);
    Q_EMIT visited->aboutToShow();
    QCOMPARE(visited->actions().size(), 2);
    QCOMPARE(visited->actions().at(0)->text(), QStringLiteral("People"));
    visited->actions().at(1)->trigger();
    QCOMPARE(app.window.editor()->rootIndex(), app.find("Material"));
}

void TestMainWindow::shouldKeepTheLookOfADocumentThatIsLeft()
{
    AppFixture app;
    app.select("Illness"); // which expands what is above it
    FishInfo *const first = app.document();
    app.trigger("new");
    QVERIFY(app.document() != first);
    app.window.session()->showDocument(first);
    AppFixture::settle();
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("Illness")));
    QVERIFY(app.subject("Illness")->spear()->isVisible());
    QVERIFY(!app.subject("Material")->spear()->isExpand());
}

void TestMainWindow::shouldFollowADarkPalette()
{
    AppFixture app;
    GraphicsView *const view = app.window.editor()->view();
    QVERIFY(view->backgroundBrush().color().lightness() > 200);
    const QColor lightText = app.subject("People")->spear()->textColor(SpearStyle::ssNormal);
    QVERIFY(lightText.lightness() < 128);

    const QPalette light = app.window.palette();
    QPalette dark = light;
    dark.setColor(QPalette::Base, QColor(20, 20, 20));
    dark.setColor(QPalette::Window, QColor(40, 40, 40));
    dark.setColor(QPalette::WindowText, Qt::white);
    app.window.setPalette(dark);
    AppFixture::settle();
    QVERIFY(view->backgroundBrush().color().lightness() < 60);
    QVERIFY(app.subject("People")->spear()->textColor(SpearStyle::ssNormal).lightness() > 150);

    app.window.setPalette(light);
    AppFixture::settle();
    QCOMPARE(app.subject("People")->spear()->textColor(SpearStyle::ssNormal), lightText);
    QVERIFY(!app.document()->modified());
}

void TestMainWindow::shouldPrintOnPaper()
{
    AppFixture app;
    QPalette dark = app.window.palette();
    dark.setColor(QPalette::Base, QColor(20, 20, 20));
    app.window.setPalette(dark);
    AppFixture::settle();
    auto *const theme = app.window.findChild<CanvasTheme *>();
    QVERIFY(theme->isDark());
    {
        const CanvasTheme::Paper paper(theme);
        QCOMPARE(app.window.editor()->view()->backgroundBrush().color(), QColor(Qt::white));
        QVERIFY(app.subject("People")->spear()->textColor(SpearStyle::ssNormal).lightness() < 128);
    }
    QVERIFY(theme->isDark());
    QCOMPARE(app.window.editor()->view()->backgroundBrush().color(), theme->canvasColor());
}

QTEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"
