// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>
#include <tests/app/dialoganswers.h>

#include <tests/program/testprogram.h>
#include <tests/support/modaldriver.h>

#include <app/recovery/recoverycopy.h>
#include <app/recovery/recoverydialog.h>
#include <app/recovery/recoverystore.h>

#include <QProcess>
#include <QPushButton>
#include <QSettings>
#include <QStatusBar>
#include <QTreeView>

#include <cstdio>

using DialogAnswers::press;
using TestSupport::ModalDriver;

namespace {

void useTestFolders()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setOrganizationName(QStringLiteral("Fishbone"));
    QCoreApplication::setApplicationName(QStringLiteral("tst_recoverycommands"));
}

/** A copy as a run that is gone has left it. */
QString leaveCopy(const QString &original, const QByteArray &content)
{
    const QString name = QFileInfo(original).fileName();
    const QString copy = RecoveryStore::newCopy(name);
    AppFixture::writeFile(copy, content);
    [&] { QVERIFY(RecoveryStore::writeNote(copy, original, name)); }();
    return copy;
}

QTreeView *list(const RecoveryDialog &dialog)
{
    return dialog.findChild<QTreeView *>();
}

/**
 * The run that does not end well: opens @p path, deletes a bone, and says when that is autosaved.
 */
int runUntilKilled(const QString &path)
{
    MainWindow window;
    window.show();
    window.open({path});
    AppFixture::settle();
    const QModelIndex bone = window.model()->index(1, 0, window.editor()->rootIndex());
    QObject::connect(window.tabs()->current()->recovery(), &RecoveryCopy::changed, [&window] {
        if (window.tabs()->current()->recovery()->state() == RecoveryCopy::State::Saved) {
            std::puts("autosaved");
            std::fflush(stdout);
        }
    });
    window.editor()->deleteItem(bone);
    window.session()->touch();
    return QApplication::exec();
}

} // namespace

class TestRecoveryCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void shouldAskNothingWhenNothingWasLeft();
    void shouldRestoreWhatAKilledRunHasLeft();
    void shouldOpenWithTheNameOfTheFile();
    void shouldOpenWhatHasNoFile();
    void shouldOpenByKeyboard();
    void shouldDiscardByKeyboard_data();
    void shouldDiscardByKeyboard();
    void shouldKeepWhatIsPutOff();
    void shouldTakeThePlaceOfTheDocumentThatIsOpen();
    void shouldNotTakeThePlaceOfOtherChanges();
    void shouldSayWhatCannotBeRecovered();
    void shouldOfferItFromTheMenu();
};

void TestRecoveryCommands::initTestCase()
{
    useTestFolders();
}

void TestRecoveryCommands::init()
{
    QSettings().clear();
    QDir(RecoveryStore::folder()).removeRecursively();
}

void TestRecoveryCommands::shouldAskNothingWhenNothingWasLeft()
{
    AppFixture app;
    app.window.offerRecovery(); // returns at once
    QVERIFY(!app.window.findChild<RecoveryDialog *>());
}

void TestRecoveryCommands::shouldRestoreWhatAKilledRunHasLeft()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("late.json"));
    AppFixture::writeFile(path, AppFixture::diagram());
    QSettings().setValue(QStringLiteral("autosaveSeconds"), 1);
    QSettings().sync();
    QProcess run;
    run.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    run.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--run"), path});
    QByteArray said;
    QTRY_VERIFY_WITH_TIMEOUT((said += run.readAllStandardOutput()).contains("autosaved"), 30000);
    QVERIFY(RecoveryStore::left().isEmpty()); // it still runs
    run.kill();
    QVERIFY(run.waitForFinished());
    QCOMPARE(run.exitStatus(), QProcess::CrashExit);
    QCOMPARE(AppFixture::contentOf(path), AppFixture::diagram());

    MainWindow next;
    next.show();
    const ModalDriver<RecoveryDialog> driver([](RecoveryDialog &dialog) {
        QCOMPARE(list(dialog)->model()->rowCount(), 1);
        dialog.findChild<QPushButton *>(QStringLiteral("recoveryOpen"))->click();
    });
    next.offerRecovery();
    QVERIFY(driver.isDone());
    next.open({});
    AppFixture::settle();
    QCOMPARE(next.tabs()->tabs().size(), 1); // and no template beside it
    QCOMPARE(AppFixture::textOf(next.session()->document()->treeItem()->childAtIndex(0)),
             QStringLiteral("Late[People[Too few[Illness],Too new],Material[Rust]]"));
    QVERIFY(next.isWindowModified());
    QCOMPARE(next.tabs()->current()->path(), QFileInfo(path).canonicalFilePath());
    next.session()->document()->setModified(false);
    QVERIFY(next.close());
    QCOMPARE(QDir(RecoveryStore::folder()).entryList(QDir::Files), QStringList());
}

void TestRecoveryCommands::shouldOpenWithTheNameOfTheFile()
{
    AppFixture app;
    const QString original = app.path(QStringLiteral("other.json"));
    AppFixture::writeFile(original, R"({"title": "Old"})");
    const QString copy = leaveCopy(original, R"({"title": "New"})");
    const ModalDriver<RecoveryDialog> driver([](RecoveryDialog &dialog) {
        dialog.findChild<QPushButton *>(QStringLiteral("recoveryOpen"))->click();
    });
    app.window.offerRecovery();
    AppFixture::settle();
    QVERIFY(driver.isDone());
    QCOMPARE(app.tabCount(), 2);
    QCOMPARE(app.text(), QStringLiteral("New"));
    QVERIFY(app.window.isWindowModified());
    QCOMPARE(app.window.tabs()->current()->path(), QFileInfo(original).canonicalFilePath());
    QCOMPARE(AppFixture::contentOf(original), QByteArray(R"({"title": "Old"})"));
    // The tab keeps a copy of its own now.
    QVERIFY(!QFileInfo::exists(copy));
    QVERIFY(
        AppFixture::contentOf(app.window.tabs()->current()->recovery()->path()).contains("New"));
    app.trigger("save");
    QVERIFY(AppFixture::contentOf(original).contains("New"));
    QVERIFY(RecoveryStore::left().isEmpty());
}

void TestRecoveryCommands::shouldOpenWhatHasNoFile()
{
    AppFixture app;
    leaveCopy(app.path(QStringLiteral("gone.json")), R"({"title": "New"})");
    const ModalDriver<RecoveryDialog> driver([](RecoveryDialog &dialog) {
        dialog.findChild<QPushButton *>(QStringLiteral("recoveryOpen"))->click();
    });
    app.window.offerRecovery();
    AppFixture::settle();
    QVERIFY(driver.isDone());
    QCOMPARE(app.text(), QStringLiteral("New"));
    QVERIFY(app.document()->isUntitled()); // there is no file that it could be compared with
    QCOMPARE(app.window.tabs()->current()->name(), QStringLiteral("gone.json"));
    QVERIFY(app.window.isWindowModified());
}

void TestRecoveryCommands::shouldOpenByKeyboard()
{
    AppFixture app;
    for (const char *name : {"a.json", "b.json"})
        leaveCopy(app.path(QLatin1String(name)), R"({"title": "New"})");
    const ModalDriver<RecoveryDialog> driver([](RecoveryDialog &dialog) {
        QTRY_VERIFY(list(dialog)->hasFocus());
        QCOMPARE(list(dialog)->selectionModel()->selectedRows().size(), 2);
        QTest::keyClick(list(dialog), Qt::Key_Return);
    });
    app.window.offerRecovery();
    AppFixture::settle();
    QVERIFY(driver.isDone());
    QCOMPARE(app.tabCount(), 3);
}

void TestRecoveryCommands::shouldDiscardByKeyboard_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<int>("left");

    QTest::newRow("yes") << int(QMessageBox::Yes) << 1;
    QTest::newRow("no") << int(QMessageBox::No) << 2;
}

void TestRecoveryCommands::shouldDiscardByKeyboard()
{
    QFETCH(int, answer);
    QFETCH(int, left);
    AppFixture app;
    for (const char *name : {"a.json", "b.json"})
        leaveCopy(app.path(QLatin1String(name)), R"({"title": "New"})");
    const ModalDriver<RecoveryDialog> driver([&](RecoveryDialog &dialog) {
        QTRY_VERIFY(list(dialog)->hasFocus());
        QTest::keyClick(list(dialog), Qt::Key_Down); // that one alone
        const ModalDriver<QMessageBox> question(press(QMessageBox::StandardButton(answer)));
        QTest::keyClick(list(dialog), Qt::Key_Delete);
        QVERIFY(question.isDone());
        QCOMPARE(list(dialog)->model()->rowCount(), left);
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    app.window.offerRecovery();
    QVERIFY(driver.isDone());
    QCOMPARE(app.tabCount(), 1);
    QCOMPARE(RecoveryStore::left().size(), left);
}

void TestRecoveryCommands::shouldKeepWhatIsPutOff()
{
    AppFixture app;
    leaveCopy(app.path(), R"({"title": "New"})");
    const ModalDriver<RecoveryDialog> driver([](RecoveryDialog &dialog) {
        dialog.findChild<QPushButton *>(QStringLiteral("recoveryLater"))->click();
    });
    app.window.offerRecovery();
    QVERIFY(driver.isDone());
    QVERIFY(app.window.close()); // which removes the copies of this run alone
    QCOMPARE(RecoveryStore::left().size(), 1);
}

void TestRecoveryCommands::shouldTakeThePlaceOfTheDocumentThatIsOpen()
{
    AppFixture app;
    app.trigger("new");
    leaveCopy(QFileInfo(app.path()).canonicalFilePath(), R"({"title": "Late", "uuid": "{h}"})");
    const ModalDriver<RecoveryDialog> driver([](RecoveryDialog &dialog) {
        dialog.findChild<QPushButton *>(QStringLiteral("recoveryOpen"))->click();
    });
    app.trigger("recover");
    QVERIFY(driver.isDone());
    QCOMPARE(app.tabCount(), 2);
    QCOMPARE(app.window.tabs()->tabs().indexOf(app.window.tabs()->current()), 0);
    QCOMPARE(app.text(), QStringLiteral("Late"));
    QVERIFY(app.window.isWindowModified());
    app.trigger("save");
    QVERIFY(!AppFixture::contentOf(app.path()).contains("Machines"));
}

void TestRecoveryCommands::shouldNotTakeThePlaceOfOtherChanges()
{
    AppFixture app;
    app.select("Machines");
    app.trigger("delete");
    leaveCopy(QFileInfo(app.path()).canonicalFilePath(), R"({"title": "Late", "uuid": "{h}"})");
    const ModalDriver<RecoveryDialog> driver([](RecoveryDialog &dialog) {
        dialog.findChild<QPushButton *>(QStringLiteral("recoveryOpen"))->click();
    });
    app.trigger("recover");
    QVERIFY(driver.isDone());
    QCOMPARE(app.tabCount(), 2);
    QCOMPARE(app.text(), QStringLiteral("Late"));
    QVERIFY(app.document()->isUntitled()); // so that it is not saved over the other one
    app.showTab(0);
    QCOMPARE(app.text(), QStringLiteral("Late[People[Too few[Illness],Too new],Material[Rust]]"));
}

void TestRecoveryCommands::shouldSayWhatCannotBeRecovered()
{
    AppFixture app;
    const QString copy = leaveCopy(app.path(QStringLiteral("a.json")), R"({"title": "Ne)");
    QString said;
    const ModalDriver<RecoveryDialog> driver([&](RecoveryDialog &dialog) {
        const ModalDriver<QMessageBox> box([&said](QMessageBox &each) {
            said = each.text();
            each.accept();
        });
        dialog.findChild<QPushButton *>(QStringLiteral("recoveryOpen"))->click();
        QVERIFY(box.isDone());
        dialog.reject();
    });
    app.window.offerRecovery();
    QVERIFY(driver.isDone());
    QVERIFY2(said.contains(QLatin1String("a.json")), qPrintable(said));
    QVERIFY(QFileInfo::exists(copy)); // somebody may mend it
    QCOMPARE(app.tabCount(), 1);
}

void TestRecoveryCommands::shouldOfferItFromTheMenu()
{
    AppFixture app;
    app.trigger("recover");
    QVERIFY(!app.window.statusBar()->currentMessage().isEmpty()); // there is nothing
    leaveCopy(app.path(QStringLiteral("a.json")), R"({"title": "New"})");
    const ModalDriver<RecoveryDialog> driver([](RecoveryDialog &dialog) { dialog.reject(); });
    app.trigger("recover");
    QVERIFY(driver.isDone());
}

static int run(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.value(1) == QLatin1String("--run")) {
        useTestFolders();
        return runUntilKilled(arguments.value(2));
    }
    TestRecoveryCommands test;
    return QTest::qExec(&test, arguments);
}

FISHBONE_TEST_MAIN(run)
#include "tst_recoverycommands.moc"
