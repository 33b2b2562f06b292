// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>
#include <tests/app/dialoganswers.h>

#include <tests/program/testprogram.h>
#include <tests/support/modaldriver.h>

#include <app/documents/closequestion.h>
#include <app/recovery/recoverystore.h>

#include <QFileDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTcpServer>
#include <QTcpSocket>

using DialogAnswers::enter;
using DialogAnswers::press;
using TestSupport::ModalDriver;

namespace {

/** Types a title over that of the selected bone, as a user does. */
void typeTitle(const AppFixture &app, const QString &title)
{
    QTest::keyClicks(app.window.editor()->view(), title.left(1));
    QTest::keyClicks(QApplication::focusWidget(), title.mid(1));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    AppFixture::settle();
}

} // namespace

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
    void shouldCallANewDocumentWhatItsHeadSays();
    void shouldKeepTheNameOfADocumentWithAFile();
    void shouldBeUnmodifiedWhereUndoLeadsBackToTheFile();
    void shouldStayModifiedByWhatTheHistoryDoesNotKnow();
    void shouldAskOneQuestionForSeveralDocuments_data();
    void shouldAskOneQuestionForSeveralDocuments();
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

void TestFileCommands::shouldCallANewDocumentWhatItsHeadSays()
{
    AppFixture app;
    app.trigger("new");
    typeTitle(app, QStringLiteral("Pump: 1/2 fails"));
    QVERIFY2(app.window.windowTitle().startsWith(QLatin1String("Pump 1 2 fails[*]")),
             qPrintable(app.window.windowTitle()));
    auto *const bar = app.window.findChild<QTabWidget *>(QStringLiteral("tabs"))->tabBar();
    QCOMPARE(bar->tabText(1), QStringLiteral("Pump 1 2 fails*"));
    QString proposed;
    QString folder;
    const ModalDriver<QFileDialog> driver([&](QFileDialog &dialog) {
        proposed = dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->text();
        folder = dialog.directory().path();
        dialog.reject();
    });
    QTest::keyClick(app.window.editor()->view(), Qt::Key_S, Qt::ControlModifier);
    QVERIFY(driver.isDone());
    QCOMPARE(proposed, QStringLiteral("Pump 1 2 fails.json"));
    QCOMPARE(folder, QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
}

void TestFileCommands::shouldKeepTheNameOfADocumentWithAFile()
{
    AppFixture app;
    app.select("Late");
    typeTitle(app, QStringLiteral("Early"));
    QVERIFY(app.text().startsWith(QLatin1String("Early")));
    QVERIFY(app.window.windowTitle().startsWith(QLatin1String("late.json")));
}

void TestFileCommands::shouldBeUnmodifiedWhereUndoLeadsBackToTheFile()
{
    AppFixture app;
    FishEditor *const editor = app.window.editor();
    const auto press = [editor](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(editor->view(), key, modifiers);
        AppFixture::settle();
    };
    app.select("Machines");
    press(Qt::Key_Delete);
    QVERIFY(app.window.isWindowModified());
    press(Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(!app.window.isWindowModified());
    app.trigger("redo");
    QVERIFY(app.window.isWindowModified());
    press(Qt::Key_S, Qt::ControlModifier);
    QVERIFY(!app.window.isWindowModified());
    press(Qt::Key_Z, Qt::ControlModifier); // away from what is in the file
    QVERIFY(app.window.isWindowModified());
    app.trigger("redo");
    QVERIFY(!app.window.isWindowModified());
    app.trigger("close"); // without a question
    QCOMPARE(app.tabCount(), 0);
}

/** What undo does not take back stays a change. */
void TestFileCommands::shouldStayModifiedByWhatTheHistoryDoesNotKnow()
{
    AppFixture app;
    app.select("Machines");
    app.trigger("delete");
    app.subject("Rust")->setTitle(QStringLiteral("Dust"));
    app.window.model()->announceChange(app.find("Dust"));
    AppFixture::settle();
    app.trigger("undo");
    QVERIFY(app.window.isWindowModified());
}

void TestFileCommands::shouldAskOneQuestionForSeveralDocuments_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("firstIsSaved");
    QTest::addColumn<bool>("closed");
    QTest::newRow("save one") << QStringLiteral("closeSave") << true << true;
    QTest::newRow("none") << QStringLiteral("closeWithoutSaving") << false << true;
    QTest::newRow("cancel") << QString() << false << false;
}

void TestFileCommands::shouldAskOneQuestionForSeveralDocuments()
{
    QFETCH(QString, button);
    QFETCH(bool, firstIsSaved);
    QFETCH(bool, closed);
    AppFixture app;
    const QString other = app.path(QStringLiteral("other.json"));
    const QByteArray content = R"({"title": "Other", "children": [{"title": "Bone"}]})";
    AppFixture::writeFile(other, content);
    app.window.open({other});
    AppFixture::settle();
    app.select("Bone");
    app.trigger("delete");
    app.showTab(0);
    app.select("Machines");
    app.trigger("delete");
    QStringList names;
    const ModalDriver<CloseQuestion> driver([&](CloseQuestion &question) {
        auto *const list = question.findChild<QListWidget *>();
        for (int row = 0; row < list->count(); ++row)
            names.append(list->item(row)->text());
        list->setFocus();
        // Keys move nothing before the list is laid out.
        for (int tries = 0; tries < 1000 && list->currentRow() == 0; ++tries) {
            QTest::keyClick(list, Qt::Key_Down);
            QCoreApplication::processEvents();
        }
        QTest::keyClick(list, Qt::Key_Space); // the second one is not to be saved
        QCOMPARE(list->item(0)->checkState(), Qt::Checked);
        QCOMPARE(list->item(1)->checkState(), Qt::Unchecked);
        if (button.isEmpty())
            QTest::keyClick(&question, Qt::Key_Escape);
        else
            QTest::mouseClick(question.findChild<QPushButton *>(button), Qt::LeftButton);
    });
    QCOMPARE(app.window.close(), closed);
    QVERIFY(driver.isDone());
    QCOMPARE(names, QStringList({QStringLiteral("late.json"), QStringLiteral("other.json")}));
    QCOMPARE(!AppFixture::contentOf(app.path()).contains("Machines"), firstIsSaved);
    QCOMPARE(AppFixture::contentOf(other), content);
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
