// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>
#include <tests/app/dialoganswers.h>

#include <app/common/language.h>

#include <tests/program/testprogram.h>
#include <tests/support/modaldriver.h>

#include <fishbone/items/taskstatusinfo.h>
#include <fishbone/model/subjectmarks.h>

#include <QComboBox>
#include <QDateTime>
#include <QDockWidget>
#include <QFileDialog>
#include <QLineEdit>
#include <QLocale>
#include <QMessageBox>
#include <QPrintDialog>
#include <QProcess>
#include <QStatusBar>
#include <QToolButton>

using TestSupport::ModalDriver;

/** What is mailed after the meeting, from the window. */
class TestReportCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldWriteAReportBesideTheDocument();
    void shouldWriteTheKindThatIsChosen();
    void shouldSeparateCellsAsSpreadsheetsOfTheLanguageDo_data();
    void shouldSeparateCellsAsSpreadsheetsOfTheLanguageDo();
    void shouldSayThatItCannotBeWritten();
    void shouldPrintTheActionsAsTheyAreListed();
    void shouldBeThereWithADocumentAlone();
};

void TestReportCommands::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_reportcommands"));
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void TestReportCommands::shouldWriteAReportBesideTheDocument()
{
    AppFixture app;
    SubjectMarks::setVerdict(*app.subject("Rust"), Verdict::RootCause);
    QString proposed;
    const ModalDriver<QFileDialog> driver([&](QFileDialog &dialog) {
        auto *const name = dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
        proposed = dialog.directory().filePath(name->text());
        QTest::keyClick(name, Qt::Key_Return);
    });
    app.trigger("report");
    QVERIFY(driver.isDone());
    const QString path = app.path(QStringLiteral("late.html"));
    QCOMPARE(QFileInfo(proposed).canonicalFilePath(), QFileInfo(path).canonicalFilePath());
    const QByteArray page = AppFixture::contentOf(path);
    QVERIFY(page.contains("<svg"));
    QVERIFY(page.contains("Rust<br>Material"));
    QVERIFY(app.window.statusBar()->currentMessage().contains(QLatin1String("late.html written")));
}

void TestReportCommands::shouldWriteTheKindThatIsChosen()
{
    AppFixture app;
    const ModalDriver<QFileDialog> driver([](QFileDialog &dialog) {
        const QString pdf = dialog.nameFilters().at(1);
        dialog.selectNameFilter(pdf);
        Q_EMIT dialog.filterSelected(pdf);
        QTest::keyClick(dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit")),
                        Qt::Key_Return);
    });
    app.trigger("report");
    QVERIFY(driver.isDone());
    QVERIFY(AppFixture::contentOf(app.path(QStringLiteral("late.pdf"))).startsWith("%PDF"));
}

void TestReportCommands::shouldSeparateCellsAsSpreadsheetsOfTheLanguageDo_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QByteArray>("row");
    QTest::newRow("English") << QStringLiteral("en") << QByteArray("Machines,Late,Ann,");
    QTest::newRow("German") << QStringLiteral("de") << QByteArray("Machines;Late;Ann;");
    QTest::newRow("Japanese") << QStringLiteral("ja") << QByteArray("Machines,Late,Ann,");
    QTest::newRow("Russian") << QStringLiteral("ru") << QByteArray("Machines;Late;Ann;");
}

void TestReportCommands::shouldSeparateCellsAsSpreadsheetsOfTheLanguageDo()
{
    QFETCH(QString, language);
    QFETCH(QByteArray, row);
    Language::install(language);
    AppFixture app;
    app.subject("Machines")->setManagerName(QStringLiteral("Ann"));
    const QString path = app.path(QStringLiteral("actions.csv"));
    const ModalDriver<QFileDialog> driver(DialogAnswers::enter(path));
    app.trigger("exportActions");
    Language::install(QStringLiteral("en"));
    QVERIFY(driver.isDone());
    const QByteArray table = AppFixture::contentOf(path);
    QVERIFY2(table.contains("\r\n" + row), table.constData());
}

void TestReportCommands::shouldSayThatItCannotBeWritten()
{
    AppFixture app;
    const QString path = app.path(QStringLiteral("late.txt"));
    const ModalDriver<QFileDialog> driver(DialogAnswers::enter(path));
    QString said;
    const ModalDriver<QMessageBox> box([&said](QMessageBox &warning) {
        said = warning.text();
        warning.accept();
    });
    app.trigger("report");
    QVERIFY(driver.isDone() && box.isDone());
    QVERIFY2(said.contains(QLatin1String(".html, .pdf or .md")), qPrintable(said));
    QVERIFY(!QFile::exists(path));
}

/** By the button of the panel, and what it prints is what it lists: here by status. */
void TestReportCommands::shouldPrintTheActionsAsTheyAreListed()
{
    AppFixture app;
    TreeItem &rust = *app.subject("Rust");
    rust.setManagerName(QStringLiteral("Ann"));
    rust.setStatus(tsRunning);
    rust.setPlanEndDate(QDateTime(QDate(2020, 3, 4), QTime(12, 0)).toMSecsSinceEpoch());
    app.subject("Machines")->setManagerName(QStringLiteral("Bo <& Co>"));
    app.window.findChild<QDockWidget *>(QStringLiteral("actionsDock"))
        ->toggleViewAction()
        ->trigger();
    app.widget<QComboBox>("actionGroups")->setFocus();
    QTest::keyClick(app.widget<QComboBox>("actionGroups"), Qt::Key_End);
    AppFixture::settle();
    QString proposed;
    const QString file = app.path(QStringLiteral("to do.pdf"));
    const ModalDriver<QPrintDialog> driver([&](QPrintDialog &dialog) {
        auto *const name = dialog.findChild<QLineEdit *>(QStringLiteral("filename"));
        proposed = name->text();
        name->setText(file);
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    QTest::mouseClick(app.widget<QToolButton>("actionsToPrinter"), Qt::LeftButton);
    QVERIFY(driver.isDone());
    QCOMPARE(proposed, app.path(QStringLiteral("late.json-actions.pdf"))
                           .replace(QStringLiteral(".json"), QString()));
    QVERIFY(AppFixture::contentOf(file).startsWith("%PDF"));
    QProcess reader;
    reader.start(QStringLiteral("pdftotext"), {file, QStringLiteral("-")});
    QVERIFY(reader.waitForFinished());
    const QString text = QString::fromUtf8(reader.readAllStandardOutput());
    const QString day = QLocale().toString(QDate(2020, 3, 4), QLocale::ShortFormat);
    for (const QString &word :
         {QStringLiteral("Late"), QStringLiteral("under way"), QStringLiteral("Rust"),
          QStringLiteral("Ann"), day + QStringLiteral(", overdue"), QStringLiteral("No status"),
          QStringLiteral("Machines"), QStringLiteral("Bo <& Co>")})
        QVERIFY2(text.contains(word), qPrintable(word + QLatin1Char('\n') + text));
    QVERIFY(text.indexOf(QLatin1String("under way")) < text.indexOf(QLatin1String("Rust")));
}

void TestReportCommands::shouldBeThereWithADocumentAlone()
{
    AppFixture app;
    QVERIFY(app.action("report")->isEnabled());
    app.trigger("close");
    QVERIFY(!app.action("report")->isEnabled());
}

FISHBONE_TEST(TestReportCommands)
#include "tst_reportcommands.moc"
