// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/dialogs/urldialog.h>
#include <tests/dialogs/urldialogparts.h>
#include <tests/program/testprogram.h>
#include <tests/support/messagebox.h>

#include <QtTest>

#include <memory>

#ifdef Q_OS_UNIX
#include <csignal>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

using namespace UrlDialogParts;
using TestSupport::keepMessage;
using TestSupport::Message;
using TestSupport::ModalDriver;
using TestSupport::shownText;

class TestUrlHistory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void shouldOfferTheUrlsOfTheHistoryInOrder_data();
    void shouldOfferTheUrlsOfTheHistoryInOrder();
    void shouldStartEmptyWithoutAReadableHistory_data();
    void shouldStartEmptyWithoutAReadableHistory();
    void shouldWaitWhileLoading();
    void shouldWriteTheHistoryAsUtf8Lines();
    void shouldDropEmptyLinesWhenSaving();
    void shouldKeepWhatFollowsANullCharacter();
    void shouldEmptyListAndFileOnClean();
    void shouldCreateAnEmptyFileOnClean();
    void shouldLeaveTheHistoryAloneWhenCancelled_data();
    void shouldLeaveTheHistoryAloneWhenCancelled();
    void shouldWarnAndCloseWhenTheHistoryCannotBeWritten_data();
    void shouldWarnAndCloseWhenTheHistoryCannotBeWritten();
    void shouldShowMarkupInANameAsItIs();
    void shouldWarnOnCleanWhenTheHistoryCannotBeWritten();
    void shouldSurviveItsOwnEndWhileItWarns();
    void shouldKeepTheOldHistoryWhenTheDiskIsFull();
    void shouldWriteInPlaceWhenTheFolderIsNotWritable();
    void shouldWriteIntoAPipe();
    void shouldLeaveNothingElseInTheFolder();
    void shouldKeepItWhereAHostWants();

private:
    std::unique_ptr<WorkingFolder> m_folder;
};

void TestUrlHistory::init()
{
    m_folder = std::make_unique<WorkingFolder>();
    QVERIFY(m_folder->isValid());
}

void TestUrlHistory::cleanup()
{
    QVERIFY(!QGuiApplication::overrideCursor());
    m_folder.reset();
}

void TestUrlHistory::shouldOfferTheUrlsOfTheHistoryInOrder_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("expected");
    QTest::newRow("empty file") << QByteArray("") << "";
    QTest::newRow("one per line") << QByteArray("http://b/\nhttp://a/\n") << "http://b/|http://a/";
    QTest::newRow("no end of the last line") << QByteArray("b\na") << "b|a";
    QTest::newRow("white space around") << QByteArray(" b \n\ta\t\n") << "b|a";
    QTest::newRow("white space within") << QByteArray("a b\n") << "a b";
    QTest::newRow("line ends of Windows") << QByteArray("b\r\na\r\n") << "b|a";
    QTest::newRow("empty lines") << QByteArray("\n\nb\n \n\na\n\n") << "b|a";
    QTest::newRow("twice the same") << QByteArray("a\nb\na\n") << "a|b|a";
    QTest::newRow("not only ASCII")
        << QByteArray("http://例/ü\n") << QString::fromUtf8("http://例/ü");
    QTest::newRow("byte order mark") << QByteArray("\xef\xbb\xbfhttp://a/\n") << "http://a/";
}

void TestUrlHistory::shouldOfferTheUrlsOfTheHistoryInOrder()
{
    QFETCH(QByteArray, content);
    QVERIFY(writeContent(QStringLiteral("moraine2.urllist"), content));
    const URLDialog dialog;
    QTEST(entries(dialog), "expected");
    QCOMPARE(contentOf(QStringLiteral("moraine2.urllist")), content);
}

void TestUrlHistory::shouldStartEmptyWithoutAReadableHistory_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::newRow("missing") << "missing.urllist";
    QTest::newRow("in a missing folder") << "missing/a.urllist";
    QTest::newRow("a folder") << ".";
}

void TestUrlHistory::shouldStartEmptyWithoutAReadableHistory()
{
    QFETCH(QString, fileName);
    const URLDialog dialog(QString(), fileName);
    QCOMPARE(combo(dialog)->count(), 0);
    QCOMPARE(combo(dialog)->currentText(), QString());
    QVERIFY(dialog.url().isEmpty());
    QVERIFY(m_folder->entries().isEmpty());
}

void TestUrlHistory::shouldWaitWhileLoading()
{
    QVERIFY(writeContent(QStringLiteral("moraine2.urllist"), "http://a/\n"));
    URLDialog dialog;
    int shape = -1;
    connect(combo(dialog)->model(), &QAbstractItemModel::rowsInserted, &dialog, [&] {
        const QCursor *const cursor = QGuiApplication::overrideCursor();
        shape = cursor ? cursor->shape() : -1;
    });
    dialog.loadUrl();
    QCOMPARE(shape, int(Qt::WaitCursor));
    QVERIFY(!QGuiApplication::overrideCursor());
    QCOMPARE(entries(dialog), QStringLiteral("http://a/|http://a/"));
}

void TestUrlHistory::shouldWriteTheHistoryAsUtf8Lines()
{
    QVERIFY(writeContent(QStringLiteral("moraine2.urllist"), "a\r\n  b\n"));
    URLDialog dialog;
    dialog.setUrl(QString::fromUtf8("http://例/ü"));
    dialog.accept();
    QCOMPARE(contentOf(QStringLiteral("moraine2.urllist")), QByteArray("a\nb\nhttp://例/ü\n"));
}

void TestUrlHistory::shouldDropEmptyLinesWhenSaving()
{
    QVERIFY(writeContent(QStringLiteral("moraine2.urllist"), "a\n\n \nb\n"));
    URLDialog dialog;
    dialog.saveUrl();
    QCOMPARE(contentOf(QStringLiteral("moraine2.urllist")), QByteArray("a\nb\n"));
}

void TestUrlHistory::shouldKeepWhatFollowsANullCharacter()
{
    const QByteArray content("http://a\0b\nhttp://c\n", 20);
    QVERIFY(writeContent(QStringLiteral("nul.urllist"), content));
    URLDialog dialog(QString(), QStringLiteral("nul.urllist"));
    QCOMPARE(combo(dialog)->count(), 2);
    dialog.saveUrl();
    QCOMPARE(contentOf(QStringLiteral("nul.urllist")), content);
}

void TestUrlHistory::shouldEmptyListAndFileOnClean()
{
    QVERIFY(writeContent(QStringLiteral("moraine2.urllist"), "http://b/\nhttp://a/\n"));
    URLDialog dialog;
    dialog.show();
    click(dialog, "Clean");
    QVERIFY(dialog.isVisible());
    QCOMPARE(combo(dialog)->count(), 0);
    QVERIFY(QFile::exists(QStringLiteral("moraine2.urllist")));
    QCOMPARE(contentOf(QStringLiteral("moraine2.urllist")), QByteArray());
}

void TestUrlHistory::shouldCreateAnEmptyFileOnClean()
{
    URLDialog dialog;
    dialog.clean();
    QVERIFY(QFile::exists(QStringLiteral("moraine2.urllist")));
    QCOMPARE(contentOf(QStringLiteral("moraine2.urllist")), QByteArray());
}

void TestUrlHistory::shouldLeaveTheHistoryAloneWhenCancelled_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("Cancel") << false;
    QTest::newRow("Escape") << true;
}

void TestUrlHistory::shouldLeaveTheHistoryAloneWhenCancelled()
{
    QFETCH(bool, byKey);
    QVERIFY(writeContent(QStringLiteral("moraine2.urllist"), "a\n\nb"));
    URLDialog dialog;
    QSignalSpy rejected(&dialog, &QDialog::rejected);
    dialog.show();
    QTest::keyClicks(combo(dialog), QStringLiteral("http://new/"));
    if (byKey)
        QTest::keyClick(combo(dialog), Qt::Key_Escape);
    else
        click(dialog, "Cancel");
    QCOMPARE(rejected.size(), 1);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(contentOf(QStringLiteral("moraine2.urllist")), QByteArray("a\n\nb"));
}

void TestUrlHistory::shouldWarnAndCloseWhenTheHistoryCannotBeWritten_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::newRow("in a missing folder") << "missing/a.urllist";
    QTest::newRow("a folder") << ".";
    QTest::newRow("placeholders in the name") << "missing/%2%1.urllist";
}

void TestUrlHistory::shouldWarnAndCloseWhenTheHistoryCannotBeWritten()
{
    QFETCH(QString, fileName);
    URLDialog dialog(QString(), fileName);
    dialog.setUrl(QStringLiteral("http://a/"));
    for (int time = 0; time < 2; ++time) {
        dialog.show();
        Message message;
        const ModalDriver<QMessageBox> user(keepMessage(message));
        click(dialog, "Open");
        QVERIFY(user.isDone());
        QCOMPARE(message.title, QStringLiteral("Error"));
        QCOMPARE(message.icon, QMessageBox::Warning);
        const QStringList lines = message.text.split(QLatin1Char('\n'));
        QCOMPARE(lines.size(), 2);
        QCOMPARE(lines.first(), QStringLiteral("Failed to open ") + fileName);
        QVERIFY(!lines.last().isEmpty());
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QCOMPARE(dialog.url(), QUrl(QStringLiteral("http://a/")));
    }
}

void TestUrlHistory::shouldShowMarkupInANameAsItIs()
{
    const QString name = QStringLiteral("missing/<b>bold</b><br>&amp;.urllist");
    URLDialog dialog(QString(), name);
    Message message;
    const ModalDriver<QMessageBox> user(keepMessage(message));
    dialog.saveUrl();
    QVERIFY(user.isDone());
    QCOMPARE(shownText(message).section(QLatin1Char('\n'), 0, 0),
             QStringLiteral("Failed to open ") + name);
}

void TestUrlHistory::shouldWarnOnCleanWhenTheHistoryCannotBeWritten()
{
    URLDialog dialog(QString(), QStringLiteral("missing/a.urllist"));
    Message message;
    const ModalDriver<QMessageBox> user(keepMessage(message));
    dialog.clean();
    QVERIFY(user.isDone());
    QCOMPARE(message.title, QStringLiteral("Error"));
}

void TestUrlHistory::shouldSurviveItsOwnEndWhileItWarns()
{
    auto dialog = std::make_unique<URLDialog>(QString(), QStringLiteral("missing/a.urllist"));
    dialog->setUrl(QStringLiteral("http://a/"));
    const ModalDriver<QMessageBox> user([&dialog](QMessageBox &) { dialog.reset(); });
    dialog->accept();
    QVERIFY(user.isDone());
    QVERIFY(!dialog);
}

void TestUrlHistory::shouldKeepTheOldHistoryWhenTheDiskIsFull()
{
#ifdef Q_OS_UNIX
    // A limit on the size of files stands in for the end of the disk.
    const QByteArray before = "http://a/\nhttp://b/\n";
    QVERIFY(writeContent(QStringLiteral("moraine2.urllist"), before));
    URLDialog dialog;
    dialog.setUrl(QStringLiteral("http://c/"));

    rlimit old = {};
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &old), 0);
    const auto oldHandler = std::signal(SIGXFSZ, SIG_IGN);
    rlimit small = old;
    small.rlim_cur = 8;
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &small), 0);
    Message message;
    const ModalDriver<QMessageBox> user(keepMessage(message));
    dialog.accept();
    setrlimit(RLIMIT_FSIZE, &old);
    std::signal(SIGXFSZ, oldHandler);

    QVERIFY(user.isDone());
    QCOMPARE(message.title, QStringLiteral("Error"));
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(contentOf(QStringLiteral("moraine2.urllist")), before);
    QCOMPARE(m_folder->entries(), QStringList{QStringLiteral("moraine2.urllist")});
#else
    QSKIP("Needs a limit on the size of files.");
#endif
}

void TestUrlHistory::shouldWriteInPlaceWhenTheFolderIsNotWritable()
{
#ifdef Q_OS_UNIX
    QVERIFY(writeContent(QStringLiteral("moraine2.urllist"), "http://a/\n"));
    URLDialog dialog;
    dialog.setUrl(QStringLiteral("http://b/"));

    QCOMPARE(chmod("moraine2.urllist", 0666), 0);
    QCOMPARE(chmod(".", 0555), 0);
    // The superuser may write everywhere, so a test run by it becomes somebody else meanwhile.
    const uid_t user = geteuid();
    const bool isChanged = user == 0 && seteuid(65534) == 0;
    const bool isWritable = writeContent(QStringLiteral("probe"), "");
    dialog.accept();
    if (isChanged)
        QCOMPARE(seteuid(user), 0);
    QCOMPARE(chmod(".", 0755), 0);

    QVERIFY(!isWritable);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(contentOf(QStringLiteral("moraine2.urllist")), QByteArray("http://a/\nhttp://b/\n"));
#else
    QSKIP("Needs the permissions of Unix folders.");
#endif
}

void TestUrlHistory::shouldWriteIntoAPipe()
{
#ifdef Q_OS_UNIX
    URLDialog dialog;
    QCOMPARE(mkfifo("moraine2.urllist", 0600), 0);
    const int pipe = open("moraine2.urllist", O_RDWR | O_NONBLOCK);
    QVERIFY(pipe >= 0);
    dialog.setUrl(QStringLiteral("http://a/"));
    dialog.accept();
    char buffer[100] = {};
    const auto size = read(pipe, buffer, sizeof(buffer));
    close(pipe);
    QCOMPARE(QByteArray(buffer, int(qMax<ssize_t>(size, 0))), QByteArray("http://a/\n"));
    struct stat status = {};
    QCOMPARE(stat("moraine2.urllist", &status), 0);
    QVERIFY(S_ISFIFO(status.st_mode));
#else
    QSKIP("Needs a named pipe.");
#endif
}

void TestUrlHistory::shouldLeaveNothingElseInTheFolder()
{
    URLDialog dialog;
    dialog.setUrl(QStringLiteral("http://a/"));
    dialog.accept();
    QCOMPARE(m_folder->entries(), QStringList{QStringLiteral("moraine2.urllist")});
}

void TestUrlHistory::shouldKeepItWhereAHostWants()
{
    QCOMPARE(URLDialog::historyFolder(), QString());
    const QTemporaryDir elsewhere;
    URLDialog::setHistoryFolder(elsewhere.path());
    {
        URLDialog dialog(QString(), QStringLiteral("a.urllist"));
        URLDialog::setHistoryFolder(QString()); // for those made from now on
        dialog.setUrl(QStringLiteral("http://a/"));
        dialog.accept();
    }
    QCOMPARE(contentOf(elsewhere.filePath(QStringLiteral("a.urllist"))), QByteArray("http://a/\n"));
    QCOMPARE(m_folder->entries(), QStringList());
    QCOMPARE(entries(URLDialog(QString(), QStringLiteral("a.urllist"))), QString());

    URLDialog::setHistoryFolder(elsewhere.path());
    QCOMPARE(URLDialog::historyFolder(), elsewhere.path());
    QCOMPARE(entries(URLDialog(QString(), QStringLiteral("a.urllist"))),
             QStringLiteral("http://a/"));
    const QString absolute = m_folder->filePath(QStringLiteral("b.urllist"));
    URLDialog(QString(), absolute).saveUrl();
    QVERIFY(QFile::exists(absolute));
    URLDialog::setHistoryFolder(QString());
}

FISHBONE_TEST(TestUrlHistory)
#include "tst_urlhistory.moc"
