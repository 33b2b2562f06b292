// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>
#include <tests/app/dialoganswers.h>

#include <tests/app/documents/documenttabsparts.h>
#include <tests/program/testprogram.h>
#include <tests/support/modaldriver.h>

#include <QClipboard>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QSlider>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>

using namespace TestSupport;

using DialogAnswers::press;

class TestDocumentTabs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void shouldNameEachTabAfterItsFile();
    void shouldMarkTheTabsOfModifiedDocuments();
    void shouldShowTheTabThatIsClicked();
    void shouldChangeTabsByKeyboard_data();
    void shouldChangeTabsByKeyboard();
    void shouldGiveEachTabItsOwnModelEditorAndHistory();
    void shouldKeepWhatIsShownOfEachTab();
    void shouldShowTheZoomOfTheCurrentTab();
    void shouldUseTheSwitchesOfTheLibraryInEachTab();
    void shouldCloseTheTabOfAMiddleClick();
    void shouldAskBeforeAModifiedTabCloses_data();
    void shouldAskBeforeAModifiedTabCloses();
    void shouldCloseOthersFromTheContextMenu();
    void shouldCopyThePathFromTheContextMenu();
    void shouldShowTheTabOfAFileThatIsOpen();
    void shouldKeepTabsThatAreMoved();
    void shouldShowAPageWhileNothingIsOpen();
    void shouldOpenARecentFileFromThePage();
    void shouldPasteWithAllAttributesInAnotherTab();
    void shouldGiveADiagramThatComesInATabOfItsOwn();
};

void TestDocumentTabs::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setOrganizationName(QStringLiteral("Fishbone"));
    QCoreApplication::setApplicationName(QStringLiteral("tst_documenttabs"));
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void TestDocumentTabs::init()
{
    QSettings().clear();
}

void TestDocumentTabs::shouldNameEachTabAfterItsFile()
{
    TabsFixture app;
    QCOMPARE(app.bar()->count(), 2);
    QCOMPARE(app.bar()->tabText(0), QStringLiteral("late.json"));
    QCOMPARE(app.bar()->tabText(1), QStringLiteral("other && more.json")); // no mnemonic
    QCOMPARE(app.bar()->tabToolTip(0), QFileInfo(app.path()).canonicalFilePath());
    app.trigger("new");
    QCOMPARE(app.bar()->count(), 3);
    QVERIFY(!app.bar()->tabToolTip(2).contains(QLatin1Char('/')));
    QVERIFY(app.tabWidget()->documentMode());
    QVERIFY(app.bar()->isMovable());
    QVERIFY(app.bar()->tabsClosable());
}

void TestDocumentTabs::shouldMarkTheTabsOfModifiedDocuments()
{
    TabsFixture app;
    app.select("Bone");
    app.trigger("delete");
    QCOMPARE(app.bar()->tabText(1), QStringLiteral("other && more.json*"));
    QCOMPARE(app.bar()->tabText(0), QStringLiteral("late.json"));
    app.trigger("save");
    QCOMPARE(app.bar()->tabText(1), QStringLiteral("other && more.json"));
    app.trigger("undo");
    QCOMPARE(app.bar()->tabText(1), QStringLiteral("other && more.json*"));
    app.showTab(0);
    QVERIFY(!app.window.isWindowModified());
    app.showTab(1);
    QVERIFY(app.window.isWindowModified());
}

void TestDocumentTabs::shouldShowTheTabThatIsClicked()
{
    TabsFixture app;
    app.click(0, Qt::LeftButton);
    QCOMPARE(app.text().left(4), QStringLiteral("Late"));
    QVERIFY(app.window.windowTitle().startsWith(QLatin1String("late.json[*]")));
    QVERIFY(app.window.tree()->isVisible());
    QVERIFY(app.window.editor()->isVisible());
    QVERIFY(app.window.editor()->view()->hasFocus()); // and keys are for the drawing
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down, Qt::ControlModifier);
    AppFixture::settle();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Delete);
    AppFixture::settle();
    app.click(1, Qt::LeftButton);
    QCOMPARE(app.text(), QStringLiteral("Other[Bone[Marrow]]"));
}

void TestDocumentTabs::shouldChangeTabsByKeyboard_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QList<int>>("shown");

    const QList<int> forward{0, 1, 2};
    const QList<int> backward{1, 0, 2};
    QTest::newRow("Ctrl+Tab") << int(Qt::Key_Tab) << int(Qt::ControlModifier) << forward;
    QTest::newRow("Ctrl+PageDown") << int(Qt::Key_PageDown) << int(Qt::ControlModifier) << forward;
    QTest::newRow("Ctrl+Shift+Tab")
        << int(Qt::Key_Backtab) << int(Qt::ControlModifier | Qt::ShiftModifier) << backward;
    QTest::newRow("Ctrl+PageUp") << int(Qt::Key_PageUp) << int(Qt::ControlModifier) << backward;
}

void TestDocumentTabs::shouldChangeTabsByKeyboard()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(QList<int>, shown);
    TabsFixture app;
    app.trigger("newExample"); // the third one, which is shown
    for (const int tab : qAsConst(shown)) {
        QTest::keyClick(app.window.editor()->view(), Qt::Key(key),
                        Qt::KeyboardModifiers(modifiers));
        AppFixture::settle();
        QCOMPARE(app.bar()->currentIndex(), tab);
        QVERIFY(app.window.editor()->view()->hasFocus());
    }
}

void TestDocumentTabs::shouldGiveEachTabItsOwnModelEditorAndHistory()
{
    TabsFixture app;
    const QList<DocumentTab *> tabs = app.window.tabs()->tabs();
    QCOMPARE(tabs.size(), 2);
    QVERIFY(tabs.at(0)->model() != tabs.at(1)->model());
    QVERIFY(tabs.at(0)->editor() != tabs.at(1)->editor());
    QVERIFY(tabs.at(0)->editor()->undoStack() != tabs.at(1)->editor()->undoStack());
    QCOMPARE(app.window.model(), tabs.at(1)->model());
    QCOMPARE(app.window.tree(), tabs.at(1)->tree());
    for (const DocumentTab *tab : tabs)
        QCOMPARE(tab->model()->rowCount(), 1);
    app.select("Bone");
    QVERIFY(!tabs.at(0)->editor()->hasSelection());
}

void TestDocumentTabs::shouldKeepWhatIsShownOfEachTab()
{
    TabsFixture app;
    app.widget<QLineEdit>("filter")->setText(QStringLiteral("Marrow"));
    app.showTab(0);
    QCOMPARE(app.widget<QLineEdit>("filter")->text(), QString());
    app.select("Illness");
    app.widget<QLineEdit>("detailsManager")->setText(QStringLiteral("Ann")); // not applied yet
    app.showTab(1);
    QCOMPARE(app.widget<QLineEdit>("detailsManager")->text(), QString());
    QCOMPARE(app.widget<QLineEdit>("filter")->text(), QStringLiteral("Marrow"));
    app.showTab(0);
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("Illness")));
    QVERIFY(app.subject("Illness")->spear()->isVisible());
    QVERIFY(!app.subject("Material")->spear()->isExpand());
    QCOMPARE(app.widget<QLineEdit>("detailsManager")->text(), QStringLiteral("Ann"));
}

void TestDocumentTabs::shouldShowTheZoomOfTheCurrentTab()
{
    TabsFixture app;
    auto *const zoom = app.window.findChild<QSlider *>(QStringLiteral("zoom"));
    app.trigger("zoomin");
    const int larger = app.window.editor()->zoomValue();
    QVERIFY(larger > 250);
    app.showTab(0);
    QCOMPARE(app.window.editor()->zoomValue(), 250);
    QCOMPARE(zoom->value(), 250);
    zoom->setValue(200);
    QCOMPARE(app.window.editor()->zoomValue(), 200);
    app.showTab(1);
    QCOMPARE(zoom->value(), larger);
    QCOMPARE(app.window.editor()->zoomValue(), larger);
}

void TestDocumentTabs::shouldUseTheSwitchesOfTheLibraryInEachTab()
{
    TabsFixture app;
    for (int tab = 0; tab < 2; ++tab) {
        app.showTab(tab);
        app.window.session()->select(
            app.window.model()->index(0, 0, app.window.editor()->rootIndex()));
        AppFixture::settle();
        app.trigger("copy");
        app.trigger("paste");
        QSet<QString> uuids;
        const QModelIndexList all = app.window.model()->searchModelIndexes(QString());
        for (const QModelIndex &index : all)
            uuids.insert(app.window.model()->getTreeItem(index)->uuid());
        QCOMPARE(int(uuids.size()), int(all.size()));
        const QModelIndex head = app.window.editor()->rootIndex();
        for (int i = 0; i < UndoStack::m_limit + 5; ++i)
            app.window.editor()->renameItem(head, QString::number(i));
        QVERIFY(app.window.editor()->canUndo()); // the index stands at the last command
        AppFixture::settle();
        app.trigger("undo");
        QCOMPARE(head.data().toString(), QString::number(UndoStack::m_limit + 3));
    }
}

void TestDocumentTabs::shouldCloseTheTabOfAMiddleClick()
{
    TabsFixture app;
    app.click(0, Qt::MiddleButton);
    QCOMPARE(app.tabCount(), 1);
    QCOMPARE(app.bar()->tabText(0), QStringLiteral("other && more.json"));
    QCOMPARE(app.text(), QStringLiteral("Other[Bone[Marrow]]"));
}

void TestDocumentTabs::shouldAskBeforeAModifiedTabCloses_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<int>("left");
    QTest::addColumn<bool>("written");

    QTest::newRow("save") << int(QMessageBox::Save) << 1 << true;
    QTest::newRow("discard") << int(QMessageBox::Discard) << 1 << false;
    QTest::newRow("cancel") << int(QMessageBox::Cancel) << 2 << false;
}

void TestDocumentTabs::shouldAskBeforeAModifiedTabCloses()
{
    QFETCH(int, answer);
    QFETCH(int, left);
    QFETCH(bool, written);
    TabsFixture app;
    app.showTab(0);
    app.select("Machines");
    app.trigger("delete");
    app.showTab(1);
    int shown = -1;
    const ModalDriver<QMessageBox> driver([&](QMessageBox &box) {
        shown = app.bar()->currentIndex(); // what the question is about
        press(QMessageBox::StandardButton(answer))(box);
    });
    Q_EMIT app.tabWidget()->tabCloseRequested(0);
    AppFixture::settle();
    QVERIFY(driver.isDone());
    QCOMPARE(shown, 0);
    QCOMPARE(app.tabCount(), left);
    QCOMPARE(!AppFixture::contentOf(app.path()).contains("Machines"), written);
}

void TestDocumentTabs::shouldCloseOthersFromTheContextMenu()
{
    TabsFixture app;
    app.trigger("new");
    QCOMPARE(app.tabCount(), 3);
    QAction *const entry = app.menuEntry(1, QStringLiteral("Close others"));
    QVERIFY(entry);
    entry->trigger();
    AppFixture::settle();
    QCOMPARE(app.tabCount(), 1);
    QCOMPARE(app.text(), QStringLiteral("Other[Bone[Marrow]]"));
}

void TestDocumentTabs::shouldCopyThePathFromTheContextMenu()
{
    TabsFixture app;
    QAction *const entry = app.menuEntry(0, QStringLiteral("Copy path"));
    QVERIFY(entry);
    entry->trigger();
    QCOMPARE(QGuiApplication::clipboard()->text(), QFileInfo(app.path()).canonicalFilePath());
}

void TestDocumentTabs::shouldShowTheTabOfAFileThatIsOpen()
{
    TabsFixture app;
    QVERIFY(QFile::link(app.path(), app.path(QStringLiteral("link.json"))));
    app.window.open({app.path(QStringLiteral("link.json"))});
    AppFixture::settle();
    QCOMPARE(app.tabCount(), 2);
    QCOMPARE(app.bar()->currentIndex(), 0);
}

void TestDocumentTabs::shouldKeepTabsThatAreMoved()
{
    TabsFixture app;
    app.bar()->moveTab(0, 1);
    QCOMPARE(app.window.tabs()->tabs().at(1)->name(), QStringLiteral("late.json"));
    QCOMPARE(app.text(), QStringLiteral("Other[Bone[Marrow]]"));
    app.click(0, Qt::MiddleButton);
    QCOMPARE(app.text().left(4), QStringLiteral("Late"));
}

void TestDocumentTabs::shouldShowAPageWhileNothingIsOpen()
{
    TabsFixture app;
    const auto *const page = app.widget<QWidget>("emptyPage");
    QVERIFY(!page->isVisible());
    app.trigger("close");
    app.trigger("close");
    QVERIFY(page->isVisible());
    QVERIFY(!app.tabWidget()->isVisible());
    QCOMPARE(app.window.tree()->view()->model()->rowCount(), 0);
    QTest::mouseClick(app.widget<QPushButton>("newButton"), Qt::LeftButton);
    AppFixture::settle();
    QVERIFY(!page->isVisible());
    QCOMPARE(app.tabCount(), 1);
    QVERIFY(app.window.editor()->isVisible());
}

void TestDocumentTabs::shouldOpenARecentFileFromThePage()
{
    TabsFixture app;
    app.trigger("close");
    app.trigger("close");
    auto *const list = app.widget<QListWidget>("recentList");
    QVERIFY(list->isVisible());
    QCOMPARE(list->count(), 2);
    QCOMPARE(list->item(1)->text(), QStringLiteral("late.json"));
    list->setFocus();
    list->setCurrentRow(1);
    QTest::keyClick(list, Qt::Key_Return);
    AppFixture::settle();
    QCOMPARE(app.text().left(4), QStringLiteral("Late"));
}

void TestDocumentTabs::shouldPasteWithAllAttributesInAnotherTab()
{
    TabsFixture app;
    app.showTab(0);
    app.subject("Rust")->setProgress(70);
    app.window.session()->select({app.find("Machines"), app.find("Rust")});
    AppFixture::settle();
    app.trigger("copy");
    app.showTab(1);
    app.select("Marrow");
    app.trigger("paste");
    QCOMPARE(app.text(), QStringLiteral("Other[Bone[Marrow[Machines,Rust]]]"));
    QCOMPARE(app.subject("Rust")->progress(), 70);
    QCOMPARE(app.subject("Rust")->pid(), app.subject("Marrow")->uuid());
    app.trigger("undo");
    QCOMPARE(app.text(), QStringLiteral("Other[Bone[Marrow]]"));
    app.select("Bone");
    app.trigger("copy");
    app.showTab(0);
    app.select("Machines");
    app.trigger("paste"); // one bone alone
    QVERIFY2(app.text().contains(QLatin1String("Machines[Bone[Marrow]]")), qPrintable(app.text()));
}

void TestDocumentTabs::shouldGiveADiagramThatComesInATabOfItsOwn()
{
    TabsFixture app;
    app.window.editor()->insertFreeSubject();
    AppFixture::settle();
    QCOMPARE(app.tabCount(), 3);
    QCOMPARE(app.text(), QStringLiteral("自由主题"));
    QCOMPARE(app.window.model()->rowCount(), 1);
    app.showTab(1);
    QCOMPARE(app.text(), QStringLiteral("Other[Bone[Marrow]]"));
    QCOMPARE(app.window.model()->rowCount(), 1);

    app.select("Other");
    app.window.editor()->appendSubject(); // beside the head
    AppFixture::settle();
    QCOMPARE(app.tabCount(), 4);
    app.showTab(1);
    if (app.action("undo")->isEnabled())
        app.trigger("undo"); // there is nothing left to take back here
    QCOMPARE(app.text(), QStringLiteral("Other[Bone[Marrow]]"));
    QCOMPARE(app.tabCount(), 4);
}

FISHBONE_TEST(TestDocumentTabs)
#include "tst_documenttabs.moc"
