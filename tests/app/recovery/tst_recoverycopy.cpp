// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>
#include <tests/program/testprogram.h>

#include <app/recovery/recoverycopy.h>
#include <app/recovery/recoverystore.h>

#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QSettings>
#include <QSignalSpy>

namespace {

QStringList kept(const QString &suffix = QStringLiteral("json"))
{
    return QDir(RecoveryStore::folder()).entryList({QStringLiteral("*.") + suffix}, QDir::Files);
}

RecoveryCopy *recoveryOf(const AppFixture &app)
{
    return app.window.tabs()->current()->recovery();
}

void change(AppFixture &app)
{
    app.select("Machines");
    app.trigger("delete");
}

} // namespace

class TestRecoveryCopy : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void shouldKeepACopyAwayFromTheFile();
    void shouldNoteWhoseCopyItIs();
    void shouldKeepACopyFromWhoeverMayNotReadTheFile();
    void shouldKeepACopyOfEachTab();
    void shouldSaveChangesByItself();
    void shouldSaveManyChangesAtOnce();
    void shouldSaveNothingThatIsNotModified();
    void shouldTakeTheEditorsAutosaveOver();
    void shouldRemoveTheCopyOfASavedDocument();
    void shouldRemoveTheCopyOfAClosedDocument();
    void shouldRemoveTheCopiesWhenTheWindowCloses();
    void shouldKeepTheCopyOfAWindowThatGoesUnasked();
    void shouldSayWhenTheCopyWasWritten();
    void shouldSayThatTheCopyCannotBeWritten();
};

void TestRecoveryCopy::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setOrganizationName(QStringLiteral("Fishbone"));
    QCoreApplication::setApplicationName(QStringLiteral("tst_recoverycopy"));
}

void TestRecoveryCopy::init()
{
    QSettings().clear();
    QDir(RecoveryStore::folder()).removeRecursively();
}

void TestRecoveryCopy::cleanup()
{
    QFile::remove(RecoveryStore::folder()); // in case that it is a file
}

void TestRecoveryCopy::shouldKeepACopyAwayFromTheFile()
{
    AppFixture app;
    change(app);
    QVERIFY(recoveryOf(app)->save());
    QCOMPARE(AppFixture::contentOf(app.path()), AppFixture::diagram());
    QCOMPARE(kept().size(), 1);
    const QByteArray copy = AppFixture::contentOf(recoveryOf(app)->path());
    QVERIFY(copy.contains("Material"));
    QVERIFY(!copy.contains("Machines"));
    QVERIFY(app.document()->modified());
}

void TestRecoveryCopy::shouldNoteWhoseCopyItIs()
{
    AppFixture app;
    change(app);
    QVERIFY(recoveryOf(app)->save());
    const QJsonObject note =
        QJsonDocument::fromJson(
            AppFixture::contentOf(RecoveryStore::noteOf(recoveryOf(app)->path())))
            .object();
    QCOMPARE(note.value(QStringLiteral("file")).toString(),
             QFileInfo(app.path()).canonicalFilePath());
    QCOMPARE(note.value(QStringLiteral("name")).toString(), QStringLiteral("late.json"));
    QCOMPARE(kept(QStringLiteral("lock")).size(), 1);
    QVERIFY(RecoveryStore::left().isEmpty()); // its owner lives
}

void TestRecoveryCopy::shouldKeepACopyFromWhoeverMayNotReadTheFile()
{
    AppFixture app;
    QVERIFY(QFile::setPermissions(app.path(), QFile::ReadOwner | QFile::WriteOwner));
    change(app);
    QVERIFY(recoveryOf(app)->save());
    const QFile::Permissions shared(0x0077);
    const QString copy = recoveryOf(app)->path();
    QCOMPARE(QFile::permissions(copy) & shared, QFile::Permissions());
    QCOMPARE(QFile::permissions(RecoveryStore::noteOf(copy)) & shared, QFile::Permissions());
}

void TestRecoveryCopy::shouldKeepACopyOfEachTab()
{
    AppFixture app;
    change(app);
    QVERIFY(recoveryOf(app)->save());
    for (int i = 0; i < 2; ++i) {
        app.trigger("new");
        QVERIFY(recoveryOf(app)->save());
    }
    QCOMPARE(kept().size(), 3);
}

void TestRecoveryCopy::shouldSaveChangesByItself()
{
    QSettings().setValue(QStringLiteral("autosaveSeconds"), 1);
    AppFixture app;
    app.trigger("new"); // a change in a tab that is not shown counts too
    app.showTab(0);
    change(app);
    app.showTab(1);
    const RecoveryCopy *const copy = app.window.tabs()->tabs().at(0)->recovery();
    QTRY_COMPARE_WITH_TIMEOUT(copy->state(), RecoveryCopy::State::Saved, 10000);
    QVERIFY(!AppFixture::contentOf(copy->path()).contains("Machines"));
}

void TestRecoveryCopy::shouldSaveManyChangesAtOnce()
{
    QSettings().setValue(QStringLiteral("autosaveSeconds"), 1);
    AppFixture app;
    const QSignalSpy copies(recoveryOf(app), &RecoveryCopy::changed);
    const QPersistentModelIndex subject = app.find("Machines");
    for (int i = 0; i < 50; ++i)
        app.window.editor()->renameItem(subject, QString::number(i));
    QTRY_COMPARE(copies.count(), 1);
    QTest::qWait(1500); // nothing is new
    QCOMPARE(copies.count(), 1);
}

void TestRecoveryCopy::shouldSaveNothingThatIsNotModified()
{
    QSettings().setValue(QStringLiteral("autosaveSeconds"), 1);
    AppFixture app;
    app.trigger("new"); // modified below, so that it tells when the time has come
    app.trigger("child");
    QTRY_COMPARE_WITH_TIMEOUT(kept().size(), 1, 10000);
    QCOMPARE(app.window.tabs()->tabs().at(0)->recovery()->state(), RecoveryCopy::State::None);
}

void TestRecoveryCopy::shouldTakeTheEditorsAutosaveOver()
{
    AppFixture app;
    QCOMPARE(app.window.editor()->autosaveInterval(), 0);
    app.window.editor()->saveTmpFile(); // and who calls that writes no document's file
    QCOMPARE(AppFixture::contentOf(app.path()), AppFixture::diagram());
    QCOMPARE(kept().size(), 1);
}

void TestRecoveryCopy::shouldRemoveTheCopyOfASavedDocument()
{
    AppFixture app;
    change(app);
    QVERIFY(recoveryOf(app)->save());
    app.trigger("save");
    QCOMPARE(kept(), QStringList());
    QCOMPARE(kept(QStringLiteral("info")), QStringList());
    QCOMPARE(kept(QStringLiteral("lock")), QStringList());
    const QByteArray saved = AppFixture::contentOf(app.path());
    app.window.editor()->saveTmpFile();
    QCOMPARE(AppFixture::contentOf(app.path()), saved);
}

void TestRecoveryCopy::shouldRemoveTheCopyOfAClosedDocument()
{
    AppFixture app;
    QVERIFY(recoveryOf(app)->save());
    QCOMPARE(kept().size(), 1);
    app.trigger("close");
    QCOMPARE(kept(), QStringList());
}

void TestRecoveryCopy::shouldRemoveTheCopiesWhenTheWindowCloses()
{
    AppFixture app;
    QVERIFY(recoveryOf(app)->save());
    app.trigger("new");
    QVERIFY(recoveryOf(app)->save());
    QVERIFY(app.window.close());
    QCOMPARE(kept(), QStringList());
}

void TestRecoveryCopy::shouldKeepTheCopyOfAWindowThatGoesUnasked()
{
    {
        AppFixture app;
        change(app);
        QVERIFY(recoveryOf(app)->save());
    }
    QCOMPARE(RecoveryStore::left().size(), 1);
}

void TestRecoveryCopy::shouldSayWhenTheCopyWasWritten()
{
    AppFixture app;
    const auto *const status = app.widget<QLabel>("autosaveStatus");
    QCOMPARE(status->text(), QString());
    change(app);
    QVERIFY(recoveryOf(app)->save());
    const QString time = QLocale().toString(recoveryOf(app)->time().time(), QLocale::ShortFormat);
    QVERIFY2(status->text().contains(time), qPrintable(status->text()));
    QVERIFY(status->toolTip().contains(recoveryOf(app)->path()));
    app.trigger("new");
    QCOMPARE(status->text(), QString()); // that of the tab that is shown
    app.showTab(0);
    QVERIFY(status->text().contains(time));
    app.trigger("save");
    QCOMPARE(status->text(), QString());
}

void TestRecoveryCopy::shouldSayThatTheCopyCannotBeWritten()
{
    AppFixture app;
    change(app);
    QDir(RecoveryStore::folder()).removeRecursively();
    AppFixture::writeFile(RecoveryStore::folder(), "a file where the folder should be");
    QVERIFY(!recoveryOf(app)->save());
    const auto *const status = app.widget<QLabel>("autosaveStatus");
    QVERIFY2(status->text().contains(QLatin1String("failed")), qPrintable(status->text()));
    QVERIFY(QFile::remove(RecoveryStore::folder()));
    QVERIFY(QDir().mkpath(RecoveryStore::folder()));
    QVERIFY(recoveryOf(app)->save()); // the next attempt
    QVERIFY(!status->text().contains(QLatin1String("failed")));
}

FISHBONE_TEST(TestRecoveryCopy)
#include "tst_recoverycopy.moc"
