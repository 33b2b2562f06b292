// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>
#include <tests/app/dialoganswers.h>

#include <tests/program/testprogram.h>
#include <tests/support/modaldriver.h>

#include <app/recovery/recoverystore.h>

#include <fishbone/exchange/diagramexchange.h>

#include <QProcess>
#include <QSettings>
#include <QStatusBar>

using DialogAnswers::enter;
using TestSupport::ModalDriver;

namespace {

/** The name filter of @p format in the dialog. */
QString filterOf(const QFileDialog &dialog, DiagramExchange::Format format)
{
    return dialog.nameFilters().filter(DiagramExchange::name(format)).value(0);
}

} // namespace

class TestExportCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void shouldExportEveryForeignFormat_data();
    void shouldExportEveryForeignFormat();
    void shouldExportASlide();
    void shouldWriteTheTitlesOfASlide_data();
    void shouldWriteTheTitlesOfASlide();
    void shouldShapeTheSlideAsThePage_data();
    void shouldShapeTheSlideAsThePage();
    void shouldSayWhatAnExportLeavesOut();
    void shouldExportTheWholeDocument();
    void shouldLeaveTheDocumentAsItIs();
    void shouldNotExportUnderAnEndingThatTellsNoFormat();
    void shouldSayThatAFileCannotBeWritten();
    void shouldWriteNothingWhenCancelled();
};

void TestExportCommands::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_exportcommands"));
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void TestExportCommands::init()
{
    QDir(RecoveryStore::folder()).removeRecursively();
    QSettings().clear();
}

void TestExportCommands::shouldExportEveryForeignFormat_data()
{
    QTest::addColumn<int>("format");
    const QList<DiagramExchange::Format> formats = DiagramExchange::formats();
    for (const DiagramExchange::Format format : formats) {
        if (format != DiagramExchange::Format::Json && DiagramExchange::canRead(format) &&
            DiagramExchange::canWrite(format))
            QTest::newRow(qPrintable(DiagramExchange::id(format))) << int(format);
    }
}

void TestExportCommands::shouldExportEveryForeignFormat()
{
    QFETCH(int, format);
    const auto foreign = DiagramExchange::Format(format);
    AppFixture app;
    QString proposed;
    const ModalDriver<QFileDialog> driver([&](QFileDialog &dialog) {
        const QString filter = filterOf(dialog, foreign);
        dialog.selectNameFilter(filter);
        Q_EMIT dialog.filterSelected(filter); // as when the user picks it
        proposed = dialog.selectedFiles().value(0);
        enter(app.path(QStringLiteral("out")))(dialog); // the format gives the ending
    });
    QTest::keyClick(&app.window, Qt::Key_E, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(driver.isDone());
    const QString suffix = DiagramExchange::suffixes(foreign).constFirst();
    QCOMPARE(proposed, app.path(QStringLiteral("late.%1").arg(suffix)));

    const QString written = app.path(QStringLiteral("out.%1").arg(suffix));
    const auto head = DiagramExchange::readFile(written, foreign);
    QVERIFY(head);
    QCOMPARE(AppFixture::textOf(head.get()), app.text());
    QCOMPARE(app.window.statusBar()->currentMessage(), QStringLiteral("%1 written").arg(written));
}

void TestExportCommands::shouldExportASlide()
{
    AppFixture app;
    app.select("People"); // which the slide does not show
    const QString path = app.path(QStringLiteral("a.pptx"));
    QStringList filters;
    const ModalDriver<QFileDialog> driver([&](QFileDialog &dialog) {
        filters = dialog.nameFilters();
        enter(path)(dialog);
    });
    app.trigger("exportAs");
    QVERIFY(driver.isDone());
    QVERIFY(filters.contains(QStringLiteral("PowerPoint slide (*.pptx)")));
    QVERIFY(AppFixture::contentOf(path).startsWith("PK"));
    QCOMPARE(app.window.statusBar()->currentMessage(), QStringLiteral("%1 written").arg(path));
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("People")));
}

void TestExportCommands::shouldWriteTheTitlesOfASlide_data()
{
    QTest::addColumn<QByteArray>("look");
    QTest::newRow("clear") << QByteArray("lookClear");
    QTest::newRow("classic") << QByteArray("lookClassic");
}

void TestExportCommands::shouldWriteTheTitlesOfASlide()
{
    QFETCH(QByteArray, look);
    AppFixture app;
    app.trigger(look.constData());
    app.trigger("expandall");
    const QString path = app.path(QStringLiteral("a.pptx"));
    const ModalDriver<QFileDialog> driver(enter(path));
    app.trigger("exportAs");
    QVERIFY(driver.isDone());
    QProcess unpacking;
    unpacking.start(QStringLiteral("unzip"),
                    {QStringLiteral("-p"), path, QStringLiteral("ppt/slides/slide1.xml")});
    QVERIFY(unpacking.waitForFinished());
    const QByteArray slide = unpacking.readAllStandardOutput();
    for (const char *title :
         {"Illness", "Late", "Machines", "Material", "People", "Rust", "Too few", "Too new"})
        QVERIFY2(slide.contains("<a:t>" + QByteArray(title) + "</a:t>"), title);
}

void TestExportCommands::shouldShapeTheSlideAsThePage_data()
{
    QTest::addColumn<QByteArray>("page");
    QTest::addColumn<QByteArray>("look");
    QTest::addColumn<QByteArray>("width");
    QTest::newRow("screen") << QByteArray("pageScreen") << QByteArray("lookClear")
                            << QByteArray("cx=\"12192000\"");
    QTest::newRow("16:9") << QByteArray("page16x9") << QByteArray("lookClear")
                          << QByteArray("cx=\"12192000\"");
    QTest::newRow("A4") << QByteArray("pageA4") << QByteArray("lookClear")
                        << QByteArray("cx=\"9144000\"");
    QTest::newRow("classic") << QByteArray("pageA4") << QByteArray("lookClassic")
                             << QByteArray("cx=\"12192000\"");
}

void TestExportCommands::shouldShapeTheSlideAsThePage()
{
    QFETCH(QByteArray, page);
    QFETCH(QByteArray, look);
    QFETCH(QByteArray, width);
    AppFixture app;
    app.trigger(page.constData());
    app.trigger(look.constData());
    const QString path = app.path(QStringLiteral("a.pptx"));
    const ModalDriver<QFileDialog> driver(enter(path));
    app.trigger("exportAs");
    QVERIFY(driver.isDone());
    QProcess unpacking;
    unpacking.start(QStringLiteral("unzip"),
                    {QStringLiteral("-p"), path, QStringLiteral("ppt/presentation.xml")});
    QVERIFY(unpacking.waitForFinished());
    const QByteArray presentation = unpacking.readAllStandardOutput();
    QVERIFY2(presentation.contains("<p:sldSz " + width), presentation.constData());
}

void TestExportCommands::shouldSayWhatAnExportLeavesOut()
{
    AppFixture app;
    app.subject("Rust")->setDetail(QStringLiteral("brown"));
    const QString path = app.path(QStringLiteral("a.txt"));
    const ModalDriver<QFileDialog> driver(enter(path));
    app.trigger("exportAs");
    QVERIFY(driver.isDone());
    QCOMPARE(app.window.statusBar()->currentMessage(),
             QStringLiteral("%1 written; left out: \"detail\"").arg(path));
}

void TestExportCommands::shouldExportTheWholeDocument()
{
    AppFixture app;
    app.select("People");
    app.trigger("asDiagram");
    const QString path = app.path(QStringLiteral("a.txt"));
    const ModalDriver<QFileDialog> driver(enter(path));
    app.trigger("exportAs");
    QVERIFY(driver.isDone());
    QVERIFY(AppFixture::contentOf(path).startsWith("Late\n\tPeople\n"));
}

void TestExportCommands::shouldLeaveTheDocumentAsItIs()
{
    AppFixture app;
    app.select("Machines");
    app.trigger("delete");
    const ModalDriver<QFileDialog> driver(enter(app.path(QStringLiteral("a.md"))));
    app.trigger("exportAs");
    QVERIFY(driver.isDone());
    QVERIFY(app.document()->modified());
    QVERIFY(app.window.windowTitle().startsWith(QLatin1String("late.json")));
}

void TestExportCommands::shouldNotExportUnderAnEndingThatTellsNoFormat()
{
    AppFixture app;
    const QString path = app.path(QStringLiteral("a.doc"));
    QString shown;
    const ModalDriver<QFileDialog> driver(enter(path));
    const ModalDriver<QMessageBox> warning([&shown](QMessageBox &box) {
        shown = box.text();
        box.accept();
    });
    app.trigger("exportAs");
    QVERIFY(driver.isDone());
    QVERIFY(warning.isDone());
    QVERIFY2(shown.contains(path), qPrintable(shown));
    QVERIFY(!QFile::exists(path));
}

void TestExportCommands::shouldSayThatAFileCannotBeWritten()
{
    AppFixture app;
    const QString path = app.path(QStringLiteral("missing/a.md"));
    QString shown;
    const ModalDriver<QFileDialog> driver([&path](QFileDialog &dialog) { enter(path)(dialog); });
    const ModalDriver<QMessageBox> warning([&shown](QMessageBox &box) {
        shown = box.text();
        box.accept();
    });
    app.trigger("exportAs");
    QVERIFY(driver.isDone());
    QVERIFY(warning.isDone());
    QVERIFY2(shown.contains(path), qPrintable(shown));
}

void TestExportCommands::shouldWriteNothingWhenCancelled()
{
    AppFixture app;
    const ModalDriver<QFileDialog> driver([](QFileDialog &dialog) { dialog.reject(); });
    app.trigger("exportAs");
    QVERIFY(driver.isDone());
    QCOMPARE(QDir(app.folder.path()).entryList(QDir::Files),
             QStringList(QStringLiteral("late.json")));
}

FISHBONE_TEST(TestExportCommands)
#include "tst_exportcommands.moc"
