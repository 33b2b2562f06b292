// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>
#include <tests/app/dialoganswers.h>

#include <tests/program/testprogram.h>
#include <tests/support/modaldriver.h>

#include <app/recovery/recoverystore.h>

#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QStatusBar>
#include <QTcpServer>
#include <QTcpSocket>

using DialogAnswers::enter;
using DialogAnswers::press;
using TestSupport::ModalDriver;

class TestFileCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void shouldSaveToTheDocumentsFile();
    void shouldAskForTheNameOfANewDocument();
    void shouldSaveUnderAnotherName();
    void shouldLeaveTheDocumentWhenSavingIsCancelled();
    void shouldSayThatAFileCannotBeWritten();
    void shouldSaveWhatIsTypedIntoTheDetails();
    void shouldSaveWhatIsTypedIntoATitle();
    void shouldAskBeforeWhatIsTypedGoes_data();
    void shouldAskBeforeWhatIsTypedGoes();
    void shouldSaveAll();
    void shouldOpenTheChosenFile();
    void shouldMakeANewDocumentOfATemplate();
    void shouldCloseAnUnchangedDocumentWithoutAQuestion();
    void shouldAskBeforeAChangedDocumentCloses_data();
    void shouldAskBeforeAChangedDocumentCloses();
    void shouldAskBeforeTheWindowCloses_data();
    void shouldAskBeforeTheWindowCloses();
    void shouldShowAnotherDocumentAfterClosing();
    void shouldFetchADocument();
};

void TestFileCommands::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_filecommands"));
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void TestFileCommands::init()
{
    QDir(RecoveryStore::folder()).removeRecursively();
}

void TestFileCommands::shouldSaveToTheDocumentsFile()
{
    AppFixture app;
    app.select("Machines");
    app.trigger("delete");
    QVERIFY(app.window.isWindowModified());
    app.trigger("save");
    QVERIFY(!app.window.isWindowModified());
    QVERIFY(!app.document()->modified());
    const QByteArray saved = AppFixture::contentOf(app.path());
    QVERIFY(saved.contains("Material"));
    QVERIFY(!saved.contains("Machines"));
    QCOMPARE(app.window.statusBar()->currentMessage(), QStringLiteral("late.json saved"));
}

void TestFileCommands::shouldAskForTheNameOfANewDocument()
{
    AppFixture app;
    app.trigger("new");
    QVERIFY(app.document()->isUntitled());
    const QString path = app.path(QStringLiteral("new.json"));
    const ModalDriver<QFileDialog> driver(enter(path));
    app.trigger("save");
    QVERIFY(driver.isDone());
    QVERIFY(AppFixture::contentOf(path).contains("自由主题"));
    QVERIFY(!app.document()->isUntitled());
    QVERIFY(app.window.windowTitle().startsWith(QLatin1String("new.json[*]")));
    app.trigger("save"); // and not a second time
}

void TestFileCommands::shouldSaveUnderAnotherName()
{
    AppFixture app;
    app.select("Machines");
    app.trigger("delete");
    const QString path = app.path(QStringLiteral("other.json"));
    const ModalDriver<QFileDialog> driver(enter(path));
    app.trigger("saveAs");
    QVERIFY(driver.isDone());
    QVERIFY(!AppFixture::contentOf(path).contains("Machines"));
    QCOMPARE(AppFixture::contentOf(app.path()), AppFixture::diagram());
    QVERIFY(!app.window.isWindowModified());
    QVERIFY(app.window.windowTitle().startsWith(QLatin1String("other.json")));
}

void TestFileCommands::shouldLeaveTheDocumentWhenSavingIsCancelled()
{
    AppFixture app;
    app.select("Machines");
    app.trigger("delete");
    const ModalDriver<QFileDialog> driver([](QFileDialog &dialog) { dialog.reject(); });
    app.trigger("saveAs");
    QVERIFY(driver.isDone());
    QVERIFY(app.window.isWindowModified());
    QVERIFY(app.window.windowTitle().startsWith(QLatin1String("late.json")));
}

void TestFileCommands::shouldSayThatAFileCannotBeWritten()
{
    AppFixture app;
    app.select("Machines");
    app.trigger("delete");
    QVERIFY(QFile::remove(app.path()));
    QVERIFY(QDir().mkdir(app.path())); // a folder stands in the way
    QString shown;
    const ModalDriver<QMessageBox> driver([&shown](QMessageBox &box) {
        shown = box.text();
        press(QMessageBox::Ok)(box);
    });
    app.trigger("save");
    QVERIFY(driver.isDone());
    QVERIFY(app.window.isWindowModified());
    const QString reason = app.document()->saveError();
    QVERIFY(!reason.isEmpty());
    QCOMPARE(shown, QStringLiteral("%1 cannot be written: %2.").arg(app.path(), reason));
}

void TestFileCommands::shouldSaveWhatIsTypedIntoTheDetails()
{
    AppFixture app;
    app.select("Machines");
    app.trigger("details");
    QTest::keyClicks(app.widget<QLineEdit>("detailsTitle"), QStringLiteral("Tools"));
    app.trigger("save");
    QVERIFY(AppFixture::contentOf(app.path()).contains("Tools"));
    QVERIFY(!app.window.isWindowModified());
}

void TestFileCommands::shouldSaveWhatIsTypedIntoATitle()
{
    AppFixture app;
    app.select("Machines");
    QTest::keyClick(app.window.editor()->view(), Qt::Key_F2);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("Tools"));
    app.trigger("save"); // from the menu or the tool bar, which takes no focus
    QVERIFY(AppFixture::contentOf(app.path()).contains("Tools"));
    QVERIFY(!app.window.isWindowModified());
}

void TestFileCommands::shouldAskBeforeWhatIsTypedGoes_data()
{
    QTest::addColumn<bool>("isInDetails");
    QTest::newRow("details") << true;
    QTest::newRow("title") << false;
}

void TestFileCommands::shouldAskBeforeWhatIsTypedGoes()
{
    QFETCH(bool, isInDetails);
    AppFixture app;
    app.select("Machines");
    if (isInDetails)
        app.trigger("details");
    else
        QTest::keyClick(app.window.editor()->view(), Qt::Key_F2);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("Tools"));
    QVERIFY(!app.window.isWindowModified());
    const ModalDriver<QMessageBox> driver(press(QMessageBox::Save));
    app.trigger("close");
    QVERIFY(driver.isDone());
    QCOMPARE(app.tabCount(), 0);
    QVERIFY(AppFixture::contentOf(app.path()).contains("Tools"));
}

void TestFileCommands::shouldSaveAll()
{
    AppFixture app;
    const QString other = app.path(QStringLiteral("other.json"));
    AppFixture::writeFile(other, R"({"title": "Other", "children": [{"title": "Bone"}]})");
    app.window.open({other});
    AppFixture::settle();
    app.select("Bone");
    app.trigger("delete");
    app.showTab(0);
    app.select("Machines");
    app.trigger("delete");
    app.trigger("saveAll");
    QVERIFY(!AppFixture::contentOf(app.path()).contains("Machines"));
    QVERIFY(!AppFixture::contentOf(other).contains("Bone"));
    for (const FishInfo *document : app.window.tabs()->documents())
        QVERIFY(!document->modified());
}

void TestFileCommands::shouldOpenTheChosenFile()
{
    AppFixture app;
    const QString other = app.path(QStringLiteral("other.json"));
    AppFixture::writeFile(other, R"({"title": "Other"})");
    const ModalDriver<QFileDialog> driver(enter(other));
    app.trigger("open");
    QVERIFY(driver.isDone());
    QCOMPARE(app.text(), QStringLiteral("Other"));
}

void TestFileCommands::shouldMakeANewDocumentOfATemplate()
{
    AppFixture app;
    const QString pattern = app.path(QStringLiteral("pattern.json"));
    AppFixture::writeFile(pattern, R"({"title": "Pattern"})");
    const ModalDriver<QFileDialog> driver(enter(pattern));
    app.trigger("newFromTemplate");
    QVERIFY(driver.isDone());
    QCOMPARE(app.text(), QStringLiteral("Pattern"));
    QVERIFY(app.document()->isUntitled());

    app.trigger("newExample");
    QCOMPARE(app.tabCount(), 3);
    QVERIFY(app.document()->isUntitled());
}

void TestFileCommands::shouldCloseAnUnchangedDocumentWithoutAQuestion()
{
    AppFixture app;
    app.trigger("close");
    QCOMPARE(app.tabCount(), 0);
    QCOMPARE(app.window.windowTitle(), QStringLiteral("Fishbone"));
    QVERIFY(!app.window.editor()->headSpear());
    app.trigger("new");
    QVERIFY(app.window.editor()->headSpear());
}

void TestFileCommands::shouldAskBeforeAChangedDocumentCloses_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<int>("left");
    QTest::addColumn<bool>("written");

    QTest::newRow("save") << int(QMessageBox::Save) << 0 << true;
    QTest::newRow("discard") << int(QMessageBox::Discard) << 0 << false;
    QTest::newRow("cancel") << int(QMessageBox::Cancel) << 1 << false;
}

void TestFileCommands::shouldAskBeforeAChangedDocumentCloses()
{
    QFETCH(int, answer);
    QFETCH(int, left);
    QFETCH(bool, written);
    AppFixture app;
    app.select("Machines");
    app.trigger("delete");
    const ModalDriver<QMessageBox> driver(press(QMessageBox::StandardButton(answer)));
    app.trigger("close");
    QVERIFY(driver.isDone());
    QCOMPARE(app.tabCount(), left);
    QCOMPARE(!AppFixture::contentOf(app.path()).contains("Machines"), written);
}

void TestFileCommands::shouldAskBeforeTheWindowCloses_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("closed");

    QTest::newRow("discard") << int(QMessageBox::Discard) << true;
    QTest::newRow("cancel") << int(QMessageBox::Cancel) << false;
}

void TestFileCommands::shouldAskBeforeTheWindowCloses()
{
    QFETCH(int, answer);
    QFETCH(bool, closed);
    AppFixture app;
    app.select("Machines");
    app.trigger("delete");
    FishInfo *const changed = app.document();
    app.trigger("new"); // the changed document is not the one that is shown
    const ModalDriver<QMessageBox> driver(press(QMessageBox::StandardButton(answer)));
    QCOMPARE(app.window.close(), closed);
    QVERIFY(driver.isDone());
    QCOMPARE(app.window.isVisible(), !closed);
    QCOMPARE(app.document(), changed);
}

void TestFileCommands::shouldShowAnotherDocumentAfterClosing()
{
    AppFixture app;
    app.trigger("new");
    app.trigger("close");
    QCOMPARE(app.text().left(4), QStringLiteral("Late"));
    QVERIFY(app.window.windowTitle().startsWith(QLatin1String("late.json")));
}

void TestFileCommands::shouldFetchADocument()
{
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    connect(&server, &QTcpServer::newConnection, &server, [&server] {
        QTcpSocket *const socket = server.nextPendingConnection();
        connect(socket, &QTcpSocket::readyRead, socket, [socket] {
            socket->write("HTTP/1.0 200 OK\r\n\r\n{\"title\": \"Fetched\"}");
            socket->disconnectFromHost();
        });
    });
    AppFixture app;
    const QString url = QStringLiteral("http://127.0.0.1:%1/a.json").arg(server.serverPort());
    app.window.open({url});
    QTRY_COMPARE_WITH_TIMEOUT(app.tabCount(), 2, 20000);
    AppFixture::settle();
    QCOMPARE(app.text(), QStringLiteral("Fetched"));
    QVERIFY(app.document()->isUntitled()); // there is nowhere to save it to
}

FISHBONE_TEST(TestFileCommands)
#include "tst_filecommands.moc"
