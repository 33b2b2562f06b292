// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>
#include <tests/app/dialoganswers.h>

#include <tests/program/testprogram.h>
#include <tests/support/modaldriver.h>

#include <app/recovery/recoverystore.h>

#include <fishbone/exchange/diagramexchange.h>

#include <QStatusBar>

using DialogAnswers::enter;
using DialogAnswers::press;
using TestSupport::ModalDriver;

/** Files of other programs that are opened and imported. */
class TestFileCommandsForeign : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void shouldOpenEveryForeignFormat_data();
    void shouldOpenEveryForeignFormat();
    void shouldImportTheChosenFiles();
    void shouldOfferForeignFilesWhenOpening();
    void shouldNeverSaveOverAForeignFile();
    void shouldNotSaveADiagramUnderAForeignEnding();
    void shouldNameImportsOfOneNameApart();
    void shouldSayInOneBoxWhatCannotBeOpened();
};

void TestFileCommandsForeign::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_filecommands_foreign"));
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void TestFileCommandsForeign::init()
{
    QDir(RecoveryStore::folder()).removeRecursively();
}

void TestFileCommandsForeign::shouldOpenEveryForeignFormat_data()
{
    QTest::addColumn<int>("format");
    const QList<DiagramExchange::Format> formats = DiagramExchange::formats();
    for (const DiagramExchange::Format format : formats) {
        if (format != DiagramExchange::Format::Json && DiagramExchange::canRead(format) &&
            DiagramExchange::canWrite(format))
            QTest::newRow(qPrintable(DiagramExchange::id(format))) << int(format);
    }
}

void TestFileCommandsForeign::shouldOpenEveryForeignFormat()
{
    QFETCH(int, format);
    const auto foreign = DiagramExchange::Format(format);
    AppFixture app;
    const QString before = app.text();
    const QString path =
        app.path(QStringLiteral("Plan 1.%1").arg(DiagramExchange::suffixes(foreign).constFirst()));
    QVERIFY(DiagramExchange::writeFile(path, *app.subject("Late"), foreign));
    app.window.open({path});
    AppFixture::settle();

    QCOMPARE(app.tabCount(), 2);
    QCOMPARE(app.window.tabs()->tabs().indexOf(app.window.tabs()->current()), 1); // the new one
    QCOMPARE(app.text(), before);
    QVERIFY(app.document()->isUntitled());
    QVERIFY(!app.document()->modified());
    QVERIFY2(app.window.windowTitle().startsWith(QLatin1String("Plan 1.json[*]")),
             qPrintable(app.window.windowTitle()));
}

void TestFileCommandsForeign::shouldImportTheChosenFiles()
{
    AppFixture app;
    const QString path = app.path(QStringLiteral("list.md"));
    AppFixture::writeFile(path, "# Slow\n\n- Staff\n  - Ill\n- Tools\n");
    const ModalDriver<QFileDialog> driver([&path](QFileDialog &dialog) {
        QVERIFY(dialog.nameFilters().first().contains(QLatin1String("*.opml")));
        enter(path)(dialog);
    });
    QTest::keyClick(&app.window, Qt::Key_I, Qt::ControlModifier);
    AppFixture::settle();
    QVERIFY(driver.isDone());
    QCOMPARE(app.text(), QStringLiteral("Slow[Staff[Ill],Tools]"));
    app.select("Tools"); // and it can be edited
    app.trigger("delete");
    QCOMPARE(app.text(), QStringLiteral("Slow[Staff[Ill]]"));
}

void TestFileCommandsForeign::shouldOfferForeignFilesWhenOpening()
{
    AppFixture app;
    const QString path = app.path(QStringLiteral("list.txt"));
    AppFixture::writeFile(path, "Late\n\tPeople\n");
    QStringList filters;
    const ModalDriver<QFileDialog> driver([&](QFileDialog &dialog) {
        filters = dialog.nameFilters();
        enter(path)(dialog);
    });
    app.trigger("open");
    QVERIFY(driver.isDone());
    QVERIFY(filters.first().contains(QLatin1String("*.json")));
    QVERIFY(!filters.filter(QStringLiteral("*.mmd")).isEmpty());
    QCOMPARE(app.text(), QStringLiteral("Late[People]"));
}

void TestFileCommandsForeign::shouldNeverSaveOverAForeignFile()
{
    AppFixture app;
    const QString path = app.path(QStringLiteral("list.txt"));
    AppFixture::writeFile(path, "Late\n\tPeople\n");
    app.window.open({path});
    AppFixture::settle();
    const QString target = app.path(QStringLiteral("saved.json"));
    QString proposed;
    const ModalDriver<QFileDialog> driver([&](QFileDialog &dialog) {
        proposed = dialog.selectedFiles().value(0);
        enter(target)(dialog);
    });
    app.trigger("save");
    QVERIFY(driver.isDone());
    QCOMPARE(QFileInfo(proposed).fileName(), QStringLiteral("list.json"));
    QCOMPARE(AppFixture::contentOf(path), QByteArray("Late\n\tPeople\n"));
    QVERIFY(AppFixture::contentOf(target).contains("People"));
    QVERIFY(!app.document()->isUntitled());
}

void TestFileCommandsForeign::shouldNotSaveADiagramUnderAForeignEnding()
{
    AppFixture app;
    const QString path = app.path(QStringLiteral("notes.md"));
    AppFixture::writeFile(path, "# Notes\n");
    QString shown;
    const ModalDriver<QFileDialog> driver([&path](QFileDialog &dialog) {
        dialog.setOption(QFileDialog::DontConfirmOverwrite);
        enter(path)(dialog);
    });
    const ModalDriver<QMessageBox> warning([&shown](QMessageBox &box) {
        shown = box.text();
        box.accept();
    });
    app.trigger("saveAs");
    QVERIFY(driver.isDone());
    QVERIFY(warning.isDone());
    QVERIFY2(shown.contains(path), qPrintable(shown));
    QCOMPARE(AppFixture::contentOf(path), QByteArray("# Notes\n"));
    QVERIFY(app.window.windowTitle().startsWith(QLatin1String("late.json")));
}

void TestFileCommandsForeign::shouldNameImportsOfOneNameApart()
{
    AppFixture app;
    const QString path = app.path(QStringLiteral("list.txt"));
    AppFixture::writeFile(path, "Late\n");
    app.window.open({path, path});
    QTRY_COMPARE(app.tabCount(), 3);
    AppFixture::settle();
    const QList<FishInfo *> documents = app.window.tabs()->documents();
    QCOMPARE(documents.at(1)->userFriendlyCurrentFile(), QStringLiteral("list.json"));
    QCOMPARE(documents.at(2)->userFriendlyCurrentFile(), QStringLiteral("list 2.json"));
    QVERIFY(documents.at(1)->autoSaveFile() != documents.at(2)->autoSaveFile());
}

void TestFileCommandsForeign::shouldSayInOneBoxWhatCannotBeOpened()
{
    AppFixture app;
    const QString broken = app.path(QStringLiteral("broken.opml"));
    AppFixture::writeFile(broken, "<opml><body>\n<outline></body></opml>");
    const QString missing = app.path(QStringLiteral("missing.mm"));
    QString shown;
    const ModalDriver<QMessageBox> driver([&shown](QMessageBox &box) {
        shown = box.text();
        press(QMessageBox::Ok)(box);
    });
    const QString letter = app.path(QStringLiteral("letter.docx"));
    AppFixture::writeFile(letter, "PK");
    app.window.open({broken, letter, missing});
    QTRY_VERIFY(driver.isDone());
    QVERIFY2(shown.contains(broken) && shown.contains(missing), qPrintable(shown));
    QVERIFY2(shown.contains(QLatin1String("</outline> is missing, the end of <outline> in line 2")),
             qPrintable(shown));
    for (const char *ending : {".json", ".md", ".xmind", ".xlsx", ".puml"})
        QVERIFY2(shown.contains(QLatin1String(ending)), qPrintable(shown));
    QVERIFY(app.window.statusBar()->currentMessage().contains(missing));
    QCOMPARE(app.tabCount(), 1);
}

FISHBONE_TEST(TestFileCommandsForeign)
#include "tst_filecommands_foreign.moc"
