// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>
#include <tests/app/dialoganswers.h>

#include <tests/program/testprogram.h>
#include <tests/support/modaldriver.h>

#include <app/files/lastdocuments.h>

#include <QDockWidget>
#include <QSettings>
#include <QTcpServer>

/** What one run of the program leaves for the next one. */
class TestLastDocuments : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void shouldReopenWhatWasOpen();
    void shouldShowTheTemplateWhenNothingIsLeft();
    void shouldOpenNothingElseWhenAFileIsAskedFor();
    void shouldReopenNothingUnlessWanted();
    void shouldRememberWhatIsOpenAllTheTime();
    void shouldForgetWhatIsBeingLoaded();
    void shouldRememberWhereEverythingWas();
};

void TestLastDocuments::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setOrganizationName(QStringLiteral("Fishbone")); // for files of settings
    QCoreApplication::setApplicationName(QStringLiteral("tst_lastdocuments"));
}

void TestLastDocuments::init()
{
    QSettings().clear();
}

void TestLastDocuments::shouldReopenWhatWasOpen()
{
    AppFixture app;
    const QString other = app.path(QStringLiteral("other.json"));
    AppFixture::writeFile(other, R"({"title": "Other"})");
    app.window.open({other});
    AppFixture::settle();
    app.trigger("newExample"); // which has no file
    app.showTab(0);
    QVERIFY(app.window.close());

    MainWindow next;
    next.show();
    next.open({});
    QTRY_COMPARE(next.tabs()->tabs().size(), 2);
    AppFixture::settle();
    QCOMPARE(next.session()->document()->fileName(), QFileInfo(app.path()).canonicalFilePath());
    QVERIFY(!next.session()->document()->isUntitled());
    QCOMPARE(next.tabs()->tabs().at(0), next.tabs()->current()); // in the order that they had
    QCOMPARE(next.tabs()->tabs().at(1)->path(), QFileInfo(other).canonicalFilePath());
}

void TestLastDocuments::shouldShowTheTemplateWhenNothingIsLeft()
{
    {
        AppFixture app;
        QVERIFY(app.window.close());
        QCOMPARE(LastDocuments::files().size(), 1);
    }
    QCOMPARE(LastDocuments::files(), QStringList()); // the file is gone
    MainWindow next;
    next.open({});
    AppFixture::settle();
    QCOMPARE(next.model()->rowCount(), 1);
    QVERIFY(next.session()->document()->isUntitled());
}

void TestLastDocuments::shouldOpenNothingElseWhenAFileIsAskedFor()
{
    AppFixture app;
    const QString other = app.path(QStringLiteral("other.json"));
    AppFixture::writeFile(other, R"({"title": "Other"})");
    QVERIFY(app.window.close());
    MainWindow next;
    next.open({other});
    AppFixture::settle();
    QCOMPARE(next.model()->rowCount(), 1);
    QCOMPARE(next.session()->document()->fileName(), QFileInfo(other).canonicalFilePath());
}

void TestLastDocuments::shouldReopenNothingUnlessWanted()
{
    AppFixture app;
    QVERIFY(app.action("reopen")->isChecked());
    app.trigger("reopen");
    QVERIFY(!app.action("reopen")->isChecked());
    QVERIFY(app.window.close());

    MainWindow next;
    const auto *const reopen = next.findChild<QAction *>(QStringLiteral("reopen"));
    QVERIFY(!reopen->isChecked());
    next.open({});
    AppFixture::settle();
    QVERIFY(next.session()->document()->isUntitled());
}

/** A run that does not end well leaves what was open, too. */
void TestLastDocuments::shouldRememberWhatIsOpenAllTheTime()
{
    AppFixture app;
    const QString other = app.path(QStringLiteral("other.json"));
    AppFixture::writeFile(other, R"({"title": "Other"})");
    const QString first = QFileInfo(app.path()).canonicalFilePath();
    QTRY_COMPARE(LastDocuments::files(), QStringList(first));
    app.window.open({other});
    QTRY_COMPARE(LastDocuments::files().size(), 2);
    QCOMPARE(LastDocuments::shownFile(), QFileInfo(other).canonicalFilePath());
    app.trigger("close");
    QTRY_COMPARE(LastDocuments::files(), QStringList(first));
}

/** A file that ends the program while it is loaded does not do so at every start. */
void TestLastDocuments::shouldForgetWhatIsBeingLoaded()
{
    QTcpServer server; // which never answers
    QVERIFY(server.listen(QHostAddress::LocalHost));
    LastDocuments::remember({QCoreApplication::applicationFilePath()}, QString());
    QCOMPARE(LastDocuments::files().size(), 1);
    MainWindow window;
    window.open({QStringLiteral("http://127.0.0.1:%1/a.json").arg(server.serverPort())});
    QCOMPARE(LastDocuments::files(), QStringList());
}

void TestLastDocuments::shouldRememberWhereEverythingWas()
{
    const QString dock = QStringLiteral("historyDock");
    {
        AppFixture app;
        app.window.resize(760, 560);
        app.widget<QDockWidget>("historyDock")->hide();
        app.window.addDockWidget(Qt::LeftDockWidgetArea, app.widget<QDockWidget>("detailsDock"));
        AppFixture::settle();
        QVERIFY(app.window.close());
    }
    MainWindow next;
    next.show();
    AppFixture::settle();
    QCOMPARE(next.size(), QSize(760, 560));
    QVERIFY(next.findChild<QDockWidget *>(dock)->isHidden());
    auto *const details = next.findChild<QDockWidget *>(QStringLiteral("detailsDock"));
    QCOMPARE(next.dockWidgetArea(details), Qt::LeftDockWidgetArea);
}

FISHBONE_TEST(TestLastDocuments)
#include "tst_lastdocuments.moc"
