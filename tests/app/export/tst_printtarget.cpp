// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/export/exportdialog.h>
#include <app/export/printpreview.h>
#include <app/export/printtarget.h>

#include <tests/app/appfixture.h>
#include <tests/program/testprogram.h>
#include <tests/support/modaldriver.h>

#include <QLineEdit>
#include <QPrintDialog>

using TestSupport::ModalDriver;

namespace {

/** Notes in @p path where a print into a file would go, and prints nothing. */
std::function<void(QPrintDialog &)> note(QString &path)
{
    return [&path](QPrintDialog &dialog) {
        const auto *const field = dialog.findChild<QLineEdit *>(QStringLiteral("filename"));
        path = field ? field->text() : QString();
        dialog.reject();
    };
}

} // namespace

/** Where prints and exports go unless the user says otherwise: beside the document. */
class TestPrintTarget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldPrintBesideTheDocument();
    void shouldPrintBesideTheDocumentFromThePreview();
    void shouldExportBesideTheDocument();
    void shouldLeaveTheWorkingFolderAlone();
};

void TestPrintTarget::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_printtarget"));
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void TestPrintTarget::shouldPrintBesideTheDocument()
{
    AppFixture app;
    QString path;
    const ModalDriver<QPrintDialog> driver(note(path));
    QTest::keyClick(&app.window, Qt::Key_P, Qt::ControlModifier);
    QVERIFY(driver.isDone());
    QCOMPARE(path, app.path(QStringLiteral("late.pdf")));
}

void TestPrintTarget::shouldPrintBesideTheDocumentFromThePreview()
{
    AppFixture app;
    QString path;
    const ModalDriver<QPrintDialog> dialog(note(path));
    const ModalDriver<PrintPreview> preview([](PrintPreview &shown) {
        const QList<QAction *> actions = shown.findChildren<QAction *>();
        for (QAction *action : actions) {
            if (action->text() == QLatin1String("Print"))
                action->trigger();
        }
        shown.reject();
    });
    app.trigger("printPreview");
    QVERIFY(preview.isDone() && dialog.isDone());
    QCOMPARE(path, app.path(QStringLiteral("late.pdf")));
}

void TestPrintTarget::shouldExportBesideTheDocument()
{
    AppFixture app;
    QString path;
    const ModalDriver<ExportDialog> driver([&path](ExportDialog &dialog) {
        path = dialog.fileName();
        dialog.reject();
    });
    QTest::keyClick(&app.window, Qt::Key_E, Qt::ControlModifier);
    QVERIFY(driver.isDone());
    QCOMPARE(path, app.path(QStringLiteral("late.png")));
}

void TestPrintTarget::shouldLeaveTheWorkingFolderAlone()
{
    const QString before = QDir::currentPath();
    AppFixture app;
    app.trigger("save");
    QCOMPARE(QDir::currentPath(), before);
}

FISHBONE_TEST(TestPrintTarget)
#include "tst_printtarget.moc"
