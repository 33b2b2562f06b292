// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/export/picturesource.h>
#include <app/export/printpreview.h>

#include <tests/app/appfixture.h>
#include <tests/program/testprogram.h>
#include <tests/support/modaldriver.h>
#include <tests/support/sourcefolder.h>

#include <fishbone/exchange/diagrampicture.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPrintDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>
#include <QSettings>
#include <QSpinBox>

using TestSupport::ModalDriver;

class TestPrintPreview : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QSettings().clear(); }
    void opensFromTheWindow();
    void showsAsManyPagesAsAreWanted();
    void goesWhileAScaleIsBeingTyped();
    void remembersWhatWasChosen();
    void printsWhatItShows();
    void leavesTheSelectionAlone();
    void isOffWithoutADocument();
    void choosesHowItIsDrawn();
    void arrangesForThePaper();
    void beginsInTheLookOfTheScreen();
    void printsTheWholeDiagramWithoutAPreview();
    void saysWhatItMakesSmaller();
};

void TestPrintPreview::opensFromTheWindow()
{
    AppFixture app;
    int pages = 0;
    const ModalDriver<PrintPreview> driver([&](PrintPreview &preview) {
        QTest::qWait(50); // the preview is made when it is shown
        pages = preview.findChild<QPrintPreviewWidget *>()->pageCount();
        preview.reject();
    });
    QTest::keyClick(&app.window, Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(driver.isDone());
    QCOMPARE(pages, 1);
}

void TestPrintPreview::showsAsManyPagesAsAreWanted()
{
    AppFixture app;
    app.window.editor()->expandAll();
    PictureSource source(app.window.editor());
    PrintPreview preview(&source, DiagramView());
    preview.show();
    preview.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&preview));
    AppFixture::settle();
    auto *const fit = preview.findChild<QComboBox *>(QStringLiteral("fit"));
    auto *const percent = preview.findChild<QSpinBox *>(QStringLiteral("percent"));
    auto *const shown = preview.findChild<QPrintPreviewWidget *>();
    QVERIFY(!percent->isEnabled());
    QCOMPARE(shown->pageCount(), 1);

    fit->setFocus();
    QTest::keyClick(fit, Qt::Key_End); // the scale
    QVERIFY(percent->isEnabled());
    percent->setFocus();
    percent->selectAll();
    QTest::keyClicks(percent, QStringLiteral("400"));
    QTest::keyClick(percent, Qt::Key_Tab);
    AppFixture::settle();
    QVERIFY(shown->pageCount() > 1);
    QVERIFY(preview.findChild<QLabel *>(QStringLiteral("pages"))
                ->text()
                .contains(QString::number(shown->pageCount())));

    QTest::keyClick(fit, Qt::Key_Home);
    AppFixture::settle();
    QCOMPARE(shown->pageCount(), 1);
}

void TestPrintPreview::goesWhileAScaleIsBeingTyped()
{
    AppFixture app;
    PictureSource source(app.window.editor());
    PrintPreview preview(&source, DiagramView());
    preview.findChild<QComboBox *>(QStringLiteral("fit"))->setCurrentIndex(2);
    preview.show();
    preview.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&preview));
    auto *const percent = preview.findChild<QSpinBox *>(QStringLiteral("percent"));
    percent->setFocus();
    percent->selectAll();
    QTest::keyClicks(percent, QStringLiteral("55"));
    QVERIFY(percent->hasFocus());
}

void TestPrintPreview::remembersWhatWasChosen()
{
    AppFixture app;
    {
        PictureSource source(app.window.editor());
        PrintPreview preview(&source, DiagramView());
        preview.findChild<QComboBox *>(QStringLiteral("fit"))->setCurrentIndex(2);
        preview.findChild<QSpinBox *>(QStringLiteral("percent"))->setValue(70);
    }
    PictureSource source(app.window.editor());
    const PrintPreview preview(&source, DiagramView());
    QCOMPARE(preview.findChild<QComboBox *>(QStringLiteral("fit"))->currentIndex(), 2);
    QCOMPARE(preview.findChild<QSpinBox *>(QStringLiteral("percent"))->value(), 70);
}

void TestPrintPreview::printsWhatItShows()
{
    AppFixture app;
    app.window.editor()->expandAll();
    PictureSource source(app.window.editor());
    PrintPreview preview(&source, DiagramView());
    preview.findChild<QComboBox *>(QStringLiteral("fit"))->setCurrentIndex(2);
    preview.findChild<QSpinBox *>(QStringLiteral("percent"))->setValue(400);
    preview.show();
    AppFixture::settle();
    const int shown = preview.findChild<QPrintPreviewWidget *>()->pageCount();
    const QString file = app.path(QStringLiteral("late.pdf"));
    preview.printer()->setOutputFormat(QPrinter::PdfFormat);
    preview.printer()->setOutputFileName(file);
    Q_EMIT preview.paintRequested(preview.printer()); // as its button does after the print dialog
    preview.printer()->setOutputFileName(QString());
    QVERIFY(shown > 1);
    QCOMPARE(int(AppFixture::contentOf(file).count("/Type /Page\n")), shown);
}

void TestPrintPreview::leavesTheSelectionAlone()
{
    AppFixture app;
    app.select("People");
    const ModalDriver<PrintPreview> driver([](PrintPreview &preview) { preview.reject(); });
    app.trigger("printPreview");
    QVERIFY(driver.isDone());
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("People")));
    QVERIFY(!app.document()->modified());
}

void TestPrintPreview::isOffWithoutADocument()
{
    AppFixture app;
    app.trigger("close");
    QVERIFY(!app.window.findChild<QAction *>(QStringLiteral("printPreview"))->isEnabled());
}

void TestPrintPreview::choosesHowItIsDrawn()
{
    AppFixture app;
    PictureSource source(app.window.editor());
    PrintPreview preview(&source, DiagramView());
    preview.show();
    preview.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&preview));
    AppFixture::settle();
    auto *const look = preview.findChild<QComboBox *>(QStringLiteral("look"));
    auto *const palette = preview.findChild<QComboBox *>(QStringLiteral("palette"));
    auto *const legend = preview.findChild<QCheckBox *>(QStringLiteral("legend"));
    QCOMPARE(source.look(), DiagramLook::Clear);
    QVERIFY(source.picture().options().hasLegend);
    palette->setFocus();
    QTest::keyClick(palette, Qt::Key_End);
    AppFixture::settle();
    QCOMPARE(source.picture().options().palette, DiagramLook::GrayColors);
    legend->setFocus();
    QTest::keyClick(legend, Qt::Key_Space);
    AppFixture::settle();
    QVERIFY(!source.picture().options().hasLegend);
    look->setFocus();
    QTest::keyClick(look, Qt::Key_End);
    AppFixture::settle();
    QCOMPARE(source.look(), DiagramLook::Classic);
    QVERIFY(!palette->isEnabled());
    QVERIFY(!legend->isEnabled());
    QCOMPARE(preview.findChild<QPrintPreviewWidget *>()->pageCount(), 1);
}

void TestPrintPreview::arrangesForThePaper()
{
    AppFixture app;
    app.window.open(
        {TestSupport::sourceFile(QStringLiteral("samples/checkout-outage.fishbone.json"))});
    AppFixture::settle();
    app.trigger("expandall");
    PictureSource source(app.window.editor());
    PrintPreview preview(&source, DiagramView());
    preview.show();
    AppFixture::settle();
    const QSizeF lying = source.picture().size();
    preview.printer()->setPageOrientation(QPageLayout::Portrait);
    preview.findChild<QPrintPreviewWidget *>()->updatePreview();
    AppFixture::settle();
    const QSizeF standing = source.picture().size();
    QVERIFY(standing.width() / standing.height() < lying.width() / lying.height());
    QTest::mouseClick(preview.findChild<QCheckBox *>(QStringLiteral("arranged")), Qt::LeftButton);
    AppFixture::settle();
    QVERIFY(source.picture().options().wrapLimit == DiagramLook::Options().wrapLimit);
}

void TestPrintPreview::beginsInTheLookOfTheScreen()
{
    AppFixture app;
    app.trigger("lookClassic");
    QString look;
    const ModalDriver<PrintPreview> driver([&look](PrintPreview &preview) {
        look = preview.findChild<QComboBox *>(QStringLiteral("look"))->currentText();
        preview.reject();
    });
    app.trigger("printPreview");
    QVERIFY(driver.isDone());
    QCOMPARE(look, QStringLiteral("Classic"));
}

void TestPrintPreview::printsTheWholeDiagramWithoutAPreview()
{
    AppFixture app;
    app.trigger("expandall");
    app.window.editor()->zoomFish(500); // of which the window shows next to nothing
    const QString file = app.path(QStringLiteral("printed.pdf"));
    const ModalDriver<QPrintDialog> driver([&file](QPrintDialog &dialog) {
        dialog.printer()->setOutputFormat(QPrinter::PdfFormat);
        dialog.printer()->setOutputFileName(file);
        dialog.QDialog::accept();
    });
    app.trigger("print");
    QVERIFY(driver.isDone());
    QProcess reader;
    reader.start(QStringLiteral("pdftotext"), {file, QStringLiteral("-")});
    QVERIFY(reader.waitForFinished());
    const QByteArray text = reader.readAllStandardOutput();
    for (const char *title : {"Late", "People", "Illness", "Rust", "Machines"})
        QVERIFY2(text.contains(title), title);
    QVERIFY(!app.document()->modified());
}

void TestPrintPreview::saysWhatItMakesSmaller()
{
    AppFixture app;
    app.subject("Machines")->setTitle(QString(120, QLatin1Char('m')));
    app.window.editor()->updateFish(false);
    DiagramView classic; // which breaks no titles
    classic.look = DiagramLook::Classic;
    PictureSource source(app.window.editor());
    PrintPreview preview(&source, classic);
    preview.show();
    auto *const label = preview.findChild<QLabel *>(QStringLiteral("pages"));
    QCOMPARE(label->text(), QStringLiteral("1 page(s)"));
    preview.findChild<QComboBox *>(QStringLiteral("fit"))->setCurrentIndex(2);
    preview.findChild<QSpinBox *>(QStringLiteral("percent"))->setValue(400);
    AppFixture::settle();
    static const QRegularExpression said(
        QStringLiteral("^(\\d+) page\\(s\\), at (\\d+) % so that no title is cut$"));
    const auto match = said.match(label->text());
    QVERIFY2(match.hasMatch(), qPrintable(label->text()));
    QCOMPARE(match.captured(1).toInt(), preview.findChild<QPrintPreviewWidget *>()->pageCount());
    QVERIFY(match.captured(2).toInt() < 400);
}

FISHBONE_TEST(TestPrintPreview)
#include "tst_printpreview.moc"
