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

using DialogAnswers::enter;
using DialogAnswers::press;
using namespace TestSupport;

/** Copies that are saved, and documents that are reverted. */
class TestDocumentTabsReverting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void shouldSaveACopy();
    void shouldRevert_data();
    void shouldRevert();
    void shouldLeaveTheDocumentWhenItsFileCannotBeReverted_data();
    void shouldLeaveTheDocumentWhenItsFileCannotBeReverted();
};

void TestDocumentTabsReverting::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setOrganizationName(QStringLiteral("Fishbone"));
    QCoreApplication::setApplicationName(QStringLiteral("tst_documenttabs_reverting"));
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void TestDocumentTabsReverting::init()
{
    QSettings().clear();
}

void TestDocumentTabsReverting::shouldSaveACopy()
{
    TabsFixture app;
    app.select("Marrow");
    app.trigger("delete");
    const QByteArray before = AppFixture::contentOf(app.otherPath());
    const QString copy = app.path(QStringLiteral("copy.json"));
    const ModalDriver<QFileDialog> driver(enter(copy));
    app.trigger("saveCopy");
    QVERIFY(driver.isDone());
    QVERIFY(AppFixture::contentOf(copy).contains("Bone"));
    QVERIFY(!AppFixture::contentOf(copy).contains("Marrow"));
    QCOMPARE(AppFixture::contentOf(app.otherPath()), before);
    QVERIFY(app.window.isWindowModified());
    QCOMPARE(app.window.tabs()->current()->name(), QStringLiteral("other & more.json"));
}

void TestDocumentTabsReverting::shouldRevert_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("reverted");

    QTest::newRow("yes") << int(QMessageBox::Yes) << true;
    QTest::newRow("no") << int(QMessageBox::No) << false;
}

void TestDocumentTabsReverting::shouldRevert()
{
    QFETCH(int, answer);
    QFETCH(bool, reverted);
    TabsFixture app;
    app.showTab(0);
    app.select("Illness");
    app.window.editor()->renameItem(app.find("Machines"), QStringLiteral("Tools"));
    AppFixture::settle();
    const ModalDriver<QMessageBox> driver(press(QMessageBox::StandardButton(answer)));
    app.trigger("revert");
    QVERIFY(driver.isDone());
    QCOMPARE(app.tabCount(), 2);
    QCOMPARE(app.bar()->currentIndex(), 0);
    QCOMPARE(app.find("Machines").isValid(), reverted);
    QCOMPARE(app.window.isWindowModified(), !reverted);
    QCOMPARE(app.action("undo")->isEnabled(), !reverted);
    // What was expanded and selected is so still.
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("Illness")));
    QVERIFY(app.subject("Illness")->spear()->isVisible());
    QVERIFY(!app.subject("Material")->spear()->isExpand());
    QVERIFY(app.window.tree()->isVisible());
}

void TestDocumentTabsReverting::shouldLeaveTheDocumentWhenItsFileCannotBeReverted_data()
{
    QTest::addColumn<QByteArray>("content");

    QTest::newRow("no document") << QByteArray("{");
    QTest::newRow("no diagram") << QByteArray("{}");
}

void TestDocumentTabsReverting::shouldLeaveTheDocumentWhenItsFileCannotBeReverted()
{
    QFETCH(QByteArray, content);
    TabsFixture app;
    AppFixture::writeFile(app.otherPath(), content);
    app.trigger("revert"); // not modified: there is nothing to ask
    QCOMPARE(app.text(), QStringLiteral("Other[Bone[Marrow]]"));
    QVERIFY(app.window.statusBar()->currentMessage().contains(app.otherPath()));
    app.window.findChild<QMessageBox *>()->close();
}

FISHBONE_TEST(TestDocumentTabsReverting)
#include "tst_documenttabs_reverting.moc"
