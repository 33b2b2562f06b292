// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/export/printpreview.h>

#include <tests/app/appfixture.h>
#include <tests/program/testprogram.h>
#include <tests/support/modaldriver.h>

#include <QComboBox>
#include <QLabel>
#include <QPrintPreviewWidget>
#include <QPrinter>
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
    PrintPreview preview(app.window.editor()->scene(), QStringLiteral("Late"));
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
    PrintPreview preview(app.window.editor()->scene(), QString());
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
        PrintPreview preview(app.window.editor()->scene(), QString());
        preview.findChild<QComboBox *>(QStringLiteral("fit"))->setCurrentIndex(2);
        preview.findChild<QSpinBox *>(QStringLiteral("percent"))->setValue(70);
    }
    const PrintPreview preview(app.window.editor()->scene(), QString());
    QCOMPARE(preview.findChild<QComboBox *>(QStringLiteral("fit"))->currentIndex(), 2);
    QCOMPARE(preview.findChild<QSpinBox *>(QStringLiteral("percent"))->value(), 70);
}

void TestPrintPreview::printsWhatItShows()
{
    AppFixture app;
    app.window.editor()->expandAll();
    PrintPreview preview(app.window.editor()->scene(), QStringLiteral("Late"));
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

FISHBONE_TEST(TestPrintPreview)
#include "tst_printpreview.moc"
