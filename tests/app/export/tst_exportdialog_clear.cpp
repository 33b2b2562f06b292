// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/exportdialogparts.h>
#include <tests/program/testprogram.h>

using namespace ExportDialogParts;
using TestSupport::ModalDriver;

/** What the dialog that exports a picture offers of the clear look. */
class TestExportDialogClear : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { forget(); }
    void shouldChooseHowItIsDrawn();
    void shouldOfferTheClassicLookNothingElse();
    void shouldBeginWithWhatIsShown();
    void shouldShowAPreview();
    void shouldMakeThePictureForAPage();
    void shouldMakeAPdfOfAPage();
    void shouldMakeAPageForTheBrowser();
    void shouldWriteASmallSvg();
    void shouldOfferAScaleThatFits();
    void shouldExportTheClearLookAsShown();
};

void TestExportDialogClear::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_exportdialog_clear"));
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void TestExportDialogClear::shouldChooseHowItIsDrawn()
{
    const QTemporaryDir folder;
    const DiagramLook::Options usual;
    {
        ExportDialog dialog(folder.filePath(QStringLiteral("a.png")),
                            pictureSubject(DiagramLook::Clear));
        dialog.show();
        QCOMPARE(dialog.wish().view.look, DiagramLook::Clear);
        QVERIFY(dialog.wish().view.options.hasLegend); // on for pictures
        QVERIFY(!dialog.page());
        chooseEntry(field<QComboBox>(dialog, "page"), 2);
        chooseEntry(field<QComboBox>(dialog, "palette"), 3);
        chooseEntry(field<QComboBox>(dialog, "head"), 1);
        focus(field<QCheckBox>(dialog, "legend"));
        QTest::keyClick(field<QCheckBox>(dialog, "legend"), Qt::Key_Space);
        const DiagramView view = dialog.wish().view;
        QCOMPARE(view.page, QStringLiteral("A4"));
        QCOMPARE(dialog.page()->size, QSizeF(297, 210));
        QCOMPARE(view.options.palette, DiagramLook::GrayColors);
        QVERIFY(view.options.isHeadLeft);
        QVERIFY(!view.options.hasLegend);
        QVERIFY(!field<QSpinBox>(dialog, "width")->isEnabled());
        QVERIFY2(resultOf(dialog).contains(QLatin1String("2,245")), qPrintable(resultOf(dialog)));
        dialog.accept();
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
    }
    // Of these the page and the legend are the user's, the others the document's.
    const ExportDialog dialog(QStringLiteral("a.png"), pictureSubject(DiagramLook::Clear));
    QCOMPARE(dialog.wish().view.page, QStringLiteral("A4"));
    QVERIFY(!dialog.wish().view.options.hasLegend);
    QCOMPARE(dialog.wish().view.options.palette, usual.palette);
}

void TestExportDialogClear::shouldOfferTheClassicLookNothingElse()
{
    ExportDialog dialog(QStringLiteral("a.png"), pictureSubject(DiagramLook::Clear));
    dialog.show();
    chooseEntry(field<QComboBox>(dialog, "page"), 1);
    const char *const names[] = {"page", "palette", "head", "legend"};
    for (const char *name : names)
        QVERIFY2(field<QWidget>(dialog, name)->isEnabled(), name);
    QVERIFY(!field<QWidget>(dialog, "light")->isEnabled()); // the palette says it
    chooseEntry(field<QComboBox>(dialog, "look"), 1);
    QCOMPARE(dialog.wish().view.look, DiagramLook::Classic);
    for (const char *name : names)
        QVERIFY2(!field<QWidget>(dialog, name)->isEnabled(), name);
    QVERIFY(field<QWidget>(dialog, "light")->isEnabled());
    QVERIFY(field<QSpinBox>(dialog, "width")->isEnabled());
    QVERIFY(!dialog.page());
}

void TestExportDialogClear::shouldBeginWithWhatIsShown()
{
    AppFixture app;
    app.trigger("lookClear");
    app.trigger("headLeft");
    app.trigger("paletteGray");
    DiagramView view;
    const ModalDriver<ExportDialog> driver([&](ExportDialog &dialog) {
        view = dialog.wish().view;
        dialog.reject();
    });
    app.trigger("export");
    QVERIFY(driver.isDone());
    QCOMPARE(view.look, DiagramLook::Clear);
    QVERIFY(view.options.isHeadLeft);
    QCOMPARE(view.options.palette, DiagramLook::GrayColors);
}

void TestExportDialogClear::shouldShowAPreview()
{
    ExportDialog dialog(QStringLiteral("a.png"), pictureSubject(DiagramLook::Clear));
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const auto shown = [&dialog] {
        return field<QLabel>(dialog, "preview")->pixmap(Qt::ReturnByValue).toImage();
    };
    // A few pixels from the lower right corner of a sheet of A4, which the preview may make room
    // for once more.
    const auto atCorner = [&shown](bool isWithin) {
        const QImage picture = shown();
        const QSizeF sheet = QSizeF(297, 210).scaled(picture.size(), Qt::KeepAspectRatio);
        const QPointF corner(picture.width() / 2.0 + sheet.width() / 2,
                             picture.height() / 2.0 + sheet.height() / 2);
        const bool isBeside = sheet.width() < picture.width() - 12; // else there is room below
        const QPoint within = (corner - QPointF(3, 3)).toPoint();
        const QPoint outside = within + (isBeside ? QPoint(6, 0) : QPoint(0, 6));
        return picture.pixelColor(isWithin ? within : outside);
    };
    QTRY_COMPARE(shown().pixelColor(shown().rect().center()), QColor(Qt::red));
    chooseEntry(field<QComboBox>(dialog, "page"), 2);
    QTRY_VERIFY(atCorner(false).isValid() && atCorner(false) != QColor(Qt::white));
    QTRY_COMPARE(atCorner(true), QColor(Qt::white));
    chooseEntry(field<QComboBox>(dialog, "palette"), 4);
    QTRY_COMPARE(atCorner(true), QColor(0x1e, 0x21, 0x26));
}

void TestExportDialogClear::shouldMakeThePictureForAPage()
{
    AppFixture app;
    app.trigger("lookClear");
    const QString path = app.path(QStringLiteral("a.png"));
    const ModalDriver<ExportDialog> driver([&](ExportDialog &dialog) {
        field<QLineEdit>(dialog, "file")->setText(path);
        chooseEntry(field<QComboBox>(dialog, "page"), 1);
        chooseEntry(field<QComboBox>(dialog, "palette"), 4);
        dialog.accept();
    });
    app.trigger("export");
    QVERIFY(driver.isDone());
    QCOMPARE(QImage(path).size(), QSize(1920, 1080));
    QVERIFY(QImage(path).pixelColor(0, 0).lightness() < 60); // the colours for dark paper
}

void TestExportDialogClear::shouldMakeAPdfOfAPage()
{
    AppFixture app;
    app.trigger("lookClear");
    const QString path = app.path(QStringLiteral("a.pdf"));
    QString result;
    const ModalDriver<ExportDialog> driver([&](ExportDialog &dialog) {
        field<QLineEdit>(dialog, "file")->setText(path);
        chooseEntry(field<QComboBox>(dialog, "page"), 2);
        result = resultOf(dialog);
        dialog.accept();
    });
    app.trigger("export");
    QVERIFY(driver.isDone());
    QVERIFY2(result.contains(QStringLiteral("297 × 210 mm")), qPrintable(result));
    QProcess info;
    info.start(QStringLiteral("pdfinfo"), {path});
    QVERIFY(info.waitForFinished());
    QVERIFY(info.readAllStandardOutput().contains("(A4)"));
}

void TestExportDialogClear::shouldMakeAPageForTheBrowser()
{
    AppFixture app;
    app.trigger("lookClear");
    const QString path = app.path(QStringLiteral("a.html"));
    QString refused;
    const ModalDriver<ExportDialog> driver([&](ExportDialog &dialog) {
        field<QLineEdit>(dialog, "file")->setText(path);
        chooseEntry(field<QComboBox>(dialog, "look"), 1);
        {
            const ModalDriver<QMessageBox> warning([&](QMessageBox &box) {
                refused = box.text();
                box.accept();
            });
            dialog.accept();
        }
        chooseEntry(field<QComboBox>(dialog, "look"), 0);
        dialog.accept();
    });
    app.trigger("export");
    QVERIFY(driver.isDone());
    QVERIFY2(refused.contains(QLatin1String("clear look")), qPrintable(refused));
    const QByteArray page = AppFixture::contentOf(path);
    QVERIFY(page.contains("<html"));
    QVERIFY(page.contains("Machines"));
}

void TestExportDialogClear::shouldWriteASmallSvg()
{
    AppFixture app;
    app.trigger("lookClear");
    const QString path = app.path(QStringLiteral("a.svg"));
    const ModalDriver<ExportDialog> driver([&](ExportDialog &dialog) {
        field<QLineEdit>(dialog, "file")->setText(path);
        chooseEntry(field<QComboBox>(dialog, "expansion"), 1);
        dialog.accept();
    });
    app.trigger("export");
    QVERIFY(driver.isDone());
    const QByteArray svg = AppFixture::contentOf(path);
    QVERIFY2(svg.size() < 8 * 500 + 2000, qPrintable(QString::number(svg.size())));
    for (const char *title : {"Illness", "Late", "Machines", "Too new"})
        QVERIFY2(svg.contains(title), title);
}

void TestExportDialogClear::shouldOfferAScaleThatFits()
{
    ExportDialog dialog(QStringLiteral("a.png"), pictureSubject());
    dialog.show();
    auto *const button = field<QPushButton>(dialog, "fit");
    QVERIFY(!button->isVisible());
    type(field<QDoubleSpinBox>(dialog, "scale"), "100"); // 50,000 pixels wide, 20,000 high
    QVERIFY(button->isVisible());
    QVERIFY2(button->text().contains(QLatin1String("51.809")), qPrintable(button->text()));
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(!button->isVisible());
    QCOMPARE(dialog.options().scale, 51.809);
    QVERIFY(PictureExport::check(PictureExport::Format::Png,
                                 PictureExport::sizeOf(QRectF(0, 0, 460, 160), dialog.options())));

    // And where the picture is refused.
    type(field<QSpinBox>(dialog, "width"), "40000");
    QString offered;
    const ModalDriver<QMessageBox> driver([&offered](QMessageBox &box) {
        offered = box.text();
        box.button(QMessageBox::Yes)->click();
    });
    dialog.accept();
    QVERIFY(driver.isDone());
    QVERIFY2(offered.contains(QLatin1String("51.809")), qPrintable(offered));
    QVERIFY(dialog.isVisible());
    QCOMPARE(dialog.options().scale, 51.809);
}

void TestExportDialogClear::shouldExportTheClearLookAsShown()
{
    AppFixture app;
    app.trigger("lookClear");
    app.select("Material");
    app.trigger("expand");
    const QString path = app.path(QStringLiteral("a.svg"));
    const ModalDriver<ExportDialog> driver([&](ExportDialog &dialog) {
        field<QLineEdit>(dialog, "file")->setText(path);
        dialog.accept();
    });
    app.trigger("export");
    QVERIFY(driver.isDone());
    const QByteArray svg = AppFixture::contentOf(path);
    QVERIFY(svg.contains(">Rust<"));
    QVERIFY(!svg.contains(">Illness<"));
    QVERIFY(svg.contains(">+3<")); // of People
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("Material")));
}

FISHBONE_TEST(TestExportDialogClear)
#include "tst_exportdialog_clear.moc"
