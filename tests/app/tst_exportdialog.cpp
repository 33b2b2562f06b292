// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>
#include <tests/app/dialoganswers.h>

#include <tests/support/modaldriver.h>

#include <app/export/exportdialog.h>
#include <app/recovery/recoverystore.h>

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QImage>
#include <QLineEdit>
#include <QMessageBox>

using DialogAnswers::press;
using TestSupport::ModalDriver;

class TestExportDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void shouldExportAPicture();
    void shouldLeaveTheSelectionOutOfAPicture();
    void shouldRefuseAPictureOfUnknownFormat();
    void shouldAskBeforeAPictureIsReplaced();
    void shouldSayThatAPictureCannotBeWritten();
};

void TestExportDialog::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_exportdialog"));
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void TestExportDialog::init()
{
    QDir(RecoveryStore::folder()).removeRecursively();
}

void TestExportDialog::shouldExportAPicture()
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

void TestExportDialog::shouldLeaveTheSelectionOutOfAPicture()
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

void TestExportDialog::shouldRefuseAPictureOfUnknownFormat()
{
    ExportDialog dialog(QStringLiteral("a.bmp"));
    dialog.show();
    const ModalDriver<QMessageBox> driver(press(QMessageBox::Ok));
    dialog.accept();
    QVERIFY(driver.isDone());
    QVERIFY(dialog.isVisible());
}

void TestExportDialog::shouldAskBeforeAPictureIsReplaced()
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
    QCOMPARE(AppFixture::contentOf(path), QByteArray("old")); // the caller writes
}

void TestExportDialog::shouldSayThatAPictureCannotBeWritten()
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

QTEST_MAIN(TestExportDialog)
#include "tst_exportdialog.moc"
