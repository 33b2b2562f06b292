// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>
#include <tests/app/dialoganswers.h>

#include <tests/program/testprogram.h>
#include <tests/support/modaldriver.h>

#include <app/files/recentfiles.h>

#include <QMenu>
#include <QSettings>

using TestSupport::ModalDriver;

namespace {

/** Opens the menu as the user does and returns its entries. */
QStringList entries(QMenu *menu)
{
    menu->popup(QPoint());
    QStringList texts;
    const QList<QAction *> actions = menu->actions();
    for (const QAction *action : actions)
        texts.append(action->text());
    menu->close();
    return texts;
}

} // namespace

class TestRecentFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void shouldBeWithoutFilesAtFirst();
    void shouldPutTheLatestFileInFront();
    void shouldRememberAFewFiles();
    void shouldRememberAcrossRuns();
    void shouldOfferWhatWasOpenedAndSaved();
    void shouldOpenTheChosenFile();
    void shouldForgetWhatCannotBeOpened();
    void shouldClearTheList();
    void shouldShowLongPathsShortened();
};

void TestRecentFiles::initTestCase()
{
    const QString own = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setOrganizationName(QStringLiteral("Fishbone")); // for files of settings
    QCoreApplication::setApplicationName(QStringLiteral("tst_recentfiles"));
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    const QString file = QSettings().fileName();
    QVERIFY(!file.isEmpty());
    QVERIFY2(!file.startsWith(own + QLatin1Char('/')), qPrintable(file)); // the user's
}

void TestRecentFiles::init()
{
    QSettings().clear();
}

void TestRecentFiles::shouldBeWithoutFilesAtFirst()
{
    QWidget window;
    const RecentFiles recent(&window);
    QCOMPARE(recent.files(), QStringList());
    QCOMPARE(entries(recent.menu()), QStringList(QStringLiteral("(nothing yet)")));
    QVERIFY(!recent.menu()->actions().constFirst()->isEnabled());
}

void TestRecentFiles::shouldPutTheLatestFileInFront()
{
    QWidget window;
    RecentFiles recent(&window);
    for (const char *path : {"/a.json", "/b.json", "/folder/../a.json"})
        recent.add(QString::fromLatin1(path));
    QCOMPARE(recent.files(), QStringList({QStringLiteral("/a.json"), QStringLiteral("/b.json")}));
}

void TestRecentFiles::shouldRememberAFewFiles()
{
    QWidget window;
    RecentFiles recent(&window);
    for (int number = 1; number <= RecentFiles::limit + 3; ++number)
        recent.add(QStringLiteral("/%1.json").arg(number));
    QCOMPARE(recent.files().size(), RecentFiles::limit);
    QCOMPARE(recent.files().constFirst(), QStringLiteral("/%1.json").arg(RecentFiles::limit + 3));
    QCOMPARE(recent.files().constLast(), QStringLiteral("/4.json"));
}

void TestRecentFiles::shouldRememberAcrossRuns()
{
    QWidget window;
    RecentFiles(&window).add(QStringLiteral("/a.json"));
    QCOMPARE(RecentFiles(&window).files(), QStringList(QStringLiteral("/a.json")));
}

void TestRecentFiles::shouldOfferWhatWasOpenedAndSaved()
{
    AppFixture app;
    const QString saved = app.path(QStringLiteral("saved & done.json"));
    const ModalDriver<QFileDialog> driver(DialogAnswers::enter(saved));
    app.trigger("saveAs");
    QVERIFY(driver.isDone());
    const QStringList texts = entries(app.widget<QMenu>("recentMenu"));
    QVERIFY(texts.size() >= 2);
    QVERIFY2(texts.at(0).startsWith(QLatin1String("&1  ")) &&
                 texts.at(0).endsWith(QLatin1String("saved && done.json")),
             qPrintable(texts.at(0)));
    QVERIFY2(texts.at(1).startsWith(QLatin1String("&2  ")) &&
                 texts.at(1).endsWith(QLatin1String("late.json")),
             qPrintable(texts.at(1)));
}

void TestRecentFiles::shouldOpenTheChosenFile()
{
    AppFixture app;
    const QString other = app.path(QStringLiteral("other.md"));
    AppFixture::writeFile(other, "# Other\n");
    app.window.open({other});
    AppFixture::settle();
    app.trigger("close");
    QVERIFY(!app.find("Other").isValid());
    auto *const menu = app.widget<QMenu>("recentMenu");
    entries(menu);
    menu->actions().constFirst()->trigger();
    AppFixture::settle();
    QCOMPARE(app.text(), QStringLiteral("Other"));
}

void TestRecentFiles::shouldForgetWhatCannotBeOpened()
{
    AppFixture app;
    const QString other = app.path(QStringLiteral("other.json"));
    AppFixture::writeFile(other, R"({"title": "Other"})");
    app.window.open({other});
    AppFixture::settle();
    app.trigger("close");
    QVERIFY(QFile::remove(other));
    auto *const menu = app.widget<QMenu>("recentMenu");
    QVERIFY(entries(menu).filter(QStringLiteral("other.json")).size() == 1);
    const ModalDriver<QMessageBox> driver([](QMessageBox &box) { box.accept(); });
    menu->actions().constFirst()->trigger();
    QTRY_VERIFY(driver.isDone());
    QVERIFY(entries(menu).filter(QStringLiteral("other.json")).isEmpty());
}

void TestRecentFiles::shouldClearTheList()
{
    QWidget window;
    RecentFiles recent(&window);
    recent.add(QStringLiteral("/a.json"));
    entries(recent.menu());
    recent.menu()->actions().constLast()->trigger();
    QCOMPARE(recent.files(), QStringList());
}

void TestRecentFiles::shouldShowLongPathsShortened()
{
    QWidget window;
    RecentFiles recent(&window);
    recent.add(QLatin1Char('/') + QString(300, QLatin1Char('x')) + QStringLiteral("/a.json"));
    const QString text = entries(recent.menu()).constFirst();
    QVERIFY(text.size() < 150);
    QVERIFY2(text.endsWith(QLatin1String("/a.json")), qPrintable(text));
}

FISHBONE_TEST(TestRecentFiles)
#include "tst_recentfiles.moc"
