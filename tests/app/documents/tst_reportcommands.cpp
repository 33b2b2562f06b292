// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>
#include <tests/app/dialoganswers.h>

#include <tests/program/testprogram.h>
#include <tests/support/modaldriver.h>

#include <fishbone/model/subjectmarks.h>

#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QStatusBar>

using TestSupport::ModalDriver;

/** What is mailed after the meeting, from the window. */
class TestReportCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldWriteAReportBesideTheDocument();
    void shouldWriteTheKindThatIsChosen();
    void shouldSayThatItCannotBeWritten();
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

void TestReportCommands::shouldBeThereWithADocumentAlone()
{
    AppFixture app;
    QVERIFY(app.action("report")->isEnabled());
    app.trigger("close");
    QVERIFY(!app.action("report")->isEnabled());
}

FISHBONE_TEST(TestReportCommands)
#include "tst_reportcommands.moc"
