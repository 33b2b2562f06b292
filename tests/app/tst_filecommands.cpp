// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>

#include <tests/support/modaldriver.h>

#include <app/autosave.h>
#include <app/exportdialog.h>

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QStatusBar>
#include <QTcpServer>
#include <QTcpSocket>

using TestSupport::ModalDriver;

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Answers the next file dialog with \a path.
std::function<void(QFileDialog &)> enter(const QString &path)
{
    return [path](QFileDialog &dialog) {
        dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->setText(path);
        QMetaObject::invokeMethod(&dialog, "accept");
    };
}

/// Answers the next message box with \a button.
std::function<void(QMessageBox &)> press(QMessageBox::StandardButton button)
{
    return [button](QMessageBox &box) { box.button(button)->click(); };
}

QStringList autosaves()
{
    return QDir(Autosave::folder()).entryList(QDir::Files);
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
    void shouldSaveAll();
    void shouldOpenTheChosenFile();
    void shouldMakeANewDocumentOfATemplate();
    void shouldCloseAnUnchangedDocumentWithoutAQuestion();
    void shouldAskBeforeAChangedDocumentCloses_data();
    void shouldAskBeforeAChangedDocumentCloses();
    void shouldAskBeforeTheWindowCloses_data();
    void shouldAskBeforeTheWindowCloses();
    void shouldShowAnotherDocumentAfterClosing();
    void shouldExportAPicture();
    void shouldLeaveTheSelectionOutOfAPicture();
    void shouldRefuseAPictureOfUnknownFormat();
    void shouldAskBeforeAPictureIsReplaced();
    void shouldSayThatAPictureCannotBeWritten();
    void shouldFetchADocument();
    void shouldAutosaveAwayFromTheFile();
    void shouldRemoveTheAutosave();
    void shouldOfferWhatACrashHasLeft_data();
    void shouldOfferWhatACrashHasLeft();
    void shouldNotOfferAnAutosaveThatIsTheSame();
};

void TestFileCommands::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_filecommands"));
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void TestFileCommands::init()
{
    QDir(Autosave::folder()).removeRecursively();
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
    const QByteArray saved = contentOf(app.path());
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
    QVERIFY(contentOf(path).contains("自由主题"));
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
    QVERIFY(!contentOf(path).contains("Machines"));
    QCOMPARE(contentOf(app.path()), AppFixture::diagram());
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
    const ModalDriver<QMessageBox> driver(press(QMessageBox::Ok));
    app.trigger("save");
    QVERIFY(driver.isDone());
    QVERIFY(app.window.isWindowModified());
}

void TestFileCommands::shouldSaveAll()
{
    AppFixture app;
    const QString other = app.path(QStringLiteral("other.json"));
    AppFixture::writeFile(other, R"({"title": "Other", "children": [{"title": "Bone"}]})");
    app.window.open({other});
    AppFixture::settle();
    for (const char *title : {"Machines", "Bone"}) {
        app.select(title);
        app.trigger("delete");
    }
    app.trigger("saveAll");
    QVERIFY(!contentOf(app.path()).contains("Machines"));
    QVERIFY(!contentOf(other).contains("Bone"));
    for (const FishInfo *document : app.window.model()->fishList())
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
    QCOMPARE(app.window.model()->rowCount(), 3);
    QVERIFY(app.document()->isUntitled());
}

void TestFileCommands::shouldCloseAnUnchangedDocumentWithoutAQuestion()
{
    AppFixture app;
    app.trigger("close");
    QCOMPARE(app.window.model()->rowCount(), 0);
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
    QCOMPARE(app.window.model()->rowCount(), left);
    QCOMPARE(!contentOf(app.path()).contains("Machines"), written);
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

void TestFileCommands::shouldExportAPicture()
{
    AppFixture app;
    const QString path = app.path(QStringLiteral("a.png"));
    const ModalDriver<ExportDialog> driver([path](ExportDialog &dialog) {
        dialog.findChild<QLineEdit *>(QStringLiteral("file"))->setText(path);
        dialog.findChild<QDoubleSpinBox *>()->setValue(2);
        dialog.findChild<QComboBox *>()->setCurrentIndex(1);
        dialog.accept();
    });
    app.trigger("export");
    QVERIFY(driver.isDone());
    const QImage picture(path);
    QVERIFY(!picture.isNull());
    QCOMPARE(picture.pixelColor(0, 0).alpha(), 0);
    const QRectF drawing = PictureExport::visibleRect(*app.window.editor()->scene());
    QCOMPARE(picture.width(), int(std::ceil((drawing.width() + 40) * 2)));
    QCOMPARE(picture.text(QStringLiteral("Title")), QStringLiteral("Late"));
}

void TestFileCommands::shouldLeaveTheSelectionOutOfAPicture()
{
    AppFixture app;
    const auto exported = [&app](const QString &name) {
        const QString path = app.path(name);
        const ModalDriver<ExportDialog> driver([path](ExportDialog &dialog) {
            dialog.findChild<QLineEdit *>(QStringLiteral("file"))->setText(path);
            dialog.accept();
        });
        app.trigger("export");
        return driver.isDone() ? QImage(path) : QImage();
    };
    const QImage plain = exported(QStringLiteral("a.png"));
    QVERIFY(!plain.isNull());
    app.select("People");
    QCOMPARE(exported(QStringLiteral("b.png")), plain);
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("People")));
}

void TestFileCommands::shouldRefuseAPictureOfUnknownFormat()
{
    ExportDialog dialog(QStringLiteral("a.bmp"));
    dialog.show();
    const ModalDriver<QMessageBox> driver(press(QMessageBox::Ok));
    dialog.accept();
    QVERIFY(driver.isDone());
    QVERIFY(dialog.isVisible());
}

void TestFileCommands::shouldAskBeforeAPictureIsReplaced()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.png"));
    AppFixture::writeFile(path, "old");
    ExportDialog dialog(path);
    dialog.show();
    {
        const ModalDriver<QMessageBox> driver(press(QMessageBox::No));
        dialog.accept();
        QVERIFY(driver.isDone());
    }
    QVERIFY(dialog.isVisible());
    const ModalDriver<QMessageBox> driver(press(QMessageBox::Yes));
    dialog.accept();
    QVERIFY(driver.isDone());
    QVERIFY(!dialog.isVisible());
    QCOMPARE(contentOf(path), QByteArray("old")); // the caller writes
}

void TestFileCommands::shouldSayThatAPictureCannotBeWritten()
{
    AppFixture app;
    bool warned = false;
    const ModalDriver<ExportDialog> driver([&](ExportDialog &dialog) {
        dialog.findChild<QLineEdit *>(QStringLiteral("file"))
            ->setText(app.path(QStringLiteral("missing/a.png")));
        dialog.accept();
    });
    const ModalDriver<QMessageBox> warning([&warned](QMessageBox &box) {
        warned = box.text().contains(QLatin1String("missing/a.png"));
        box.accept();
    });
    app.trigger("export");
    QVERIFY(driver.isDone());
    QVERIFY(warning.isDone());
    QVERIFY(warned);
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
    QTRY_COMPARE_WITH_TIMEOUT(app.window.model()->rowCount(), 2, 20000);
    AppFixture::settle();
    QCOMPARE(app.text(), QStringLiteral("Fetched"));
    QVERIFY(app.document()->isUntitled()); // there is nowhere to save it to
}

void TestFileCommands::shouldAutosaveAwayFromTheFile()
{
    AppFixture app;
    app.select("Machines");
    app.trigger("delete");
    app.window.editor()->saveTmpFile();
    QCOMPARE(contentOf(app.path()), AppFixture::diagram());
    QCOMPARE(autosaves().size(), 1);
    QVERIFY(!contentOf(app.document()->autoSaveFile()).contains("Machines"));

    app.trigger("new");
    app.window.editor()->saveTmpFile();
    QCOMPARE(autosaves().size(), 2);
}

void TestFileCommands::shouldRemoveTheAutosave()
{
    AppFixture app;
    app.select("Machines");
    app.trigger("delete");
    app.window.editor()->saveTmpFile();
    QCOMPARE(autosaves().size(), 1);
    app.trigger("save");
    QCOMPARE(autosaves(), QStringList());
    app.window.editor()->saveTmpFile();
    app.trigger("close");
    QCOMPARE(autosaves(), QStringList());

    app.trigger("new");
    app.window.editor()->saveTmpFile();
    QCOMPARE(autosaves().size(), 1);
    QVERIFY(app.window.close());
    QCOMPARE(autosaves(), QStringList());
}

void TestFileCommands::shouldOfferWhatACrashHasLeft_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<QString>("shown");

    QTest::newRow("yes") << int(QMessageBox::Yes) << QStringLiteral("Rescued");
    QTest::newRow("no") << int(QMessageBox::No)
                        << QStringLiteral("Late[People[Too few[Illness],Too new],Machines,"
                                          "Material[Rust]]");
}

void TestFileCommands::shouldOfferWhatACrashHasLeft()
{
    QFETCH(int, answer);
    QFETCH(QString, shown);
    AppFixture app;
    const QString path = app.path();
    const QString left = app.document()->autoSaveFile();
    app.trigger("close");
    AppFixture::writeFile(left, R"({"title": "Rescued"})");

    const ModalDriver<QMessageBox> driver(press(QMessageBox::StandardButton(answer)));
    app.window.open({path});
    AppFixture::settle();
    QVERIFY(driver.isDone());
    QCOMPARE(app.text(), shown);
    QVERIFY(app.window.windowTitle().startsWith(QLatin1String("late.json")));
    QCOMPARE(app.document()->modified(), answer == QMessageBox::Yes);
    QCOMPARE(contentOf(path), AppFixture::diagram());
}

void TestFileCommands::shouldNotOfferAnAutosaveThatIsTheSame()
{
    AppFixture app;
    app.window.editor()->saveTmpFile();
    const QByteArray left = contentOf(app.document()->autoSaveFile());
    const QString file = app.document()->autoSaveFile();
    app.trigger("close");
    AppFixture::writeFile(file, left);
    bool asked = false;
    const ModalDriver<QMessageBox> driver([&asked](QMessageBox &box) {
        asked = true;
        box.reject();
    });
    app.window.open({app.path()});
    AppFixture::settle();
    QVERIFY(!asked);
    QVERIFY(!app.document()->modified());
}

QTEST_MAIN(TestFileCommands)
#include "tst_filecommands.moc"
