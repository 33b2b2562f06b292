// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/style/penselect.h>
#include <tests/program/testprogram.h>
#include <tests/style/styledialogparts.h>
#include <tests/support/modaldriver.h>
#include <tests/support/previewchecks.h>

#include <QColorDialog>
#include <QPointer>
#include <QtTest>

using namespace StyleDialogParts;
using TestSupport::buttonWithText;
using TestSupport::inkedPixels;
using TestSupport::ModalDriver;
using TestSupport::pixelsOf;
using TestSupport::shownPixmap;

class TestPenSelectPreview : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldBeModal();
    void shouldSetTheColorWhenItsDialogIsAccepted();
    void shouldKeepTheColorWhenItsDialogIsCancelled();
    void shouldSurviveItsEndWhileTheColorDialogIsOpen();
    void shouldDrawTheSampleLineWithThePen();
    void shouldDrawNothingWithoutAPen();
    void shouldRefreshTheSampleOnEveryChange();
    void shouldDrawASharpSampleOnADenseScreen();
};

void TestPenSelectPreview::shouldBeModal()
{
    QVERIFY(PenSelect(QPen()).isModal());
}

void TestPenSelectPreview::shouldSetTheColorWhenItsDialogIsAccepted()
{
    const QColor before(10, 20, 30, 40);
    const QColor after(200, 100, 50, 128);
    PenSelect dialog(QPen(before, 2, Qt::DashLine));
    QColor shown;
    bool showsAlpha = false;
    const ModalDriver<QColorDialog> user([&](QColorDialog &colors) {
        shown = colors.currentColor();
        showsAlpha = colors.testOption(QColorDialog::ShowAlphaChannel);
        colors.setCurrentColor(after);
        colors.accept();
    });
    QTest::mouseClick(buttonWithText(dialog, QStringLiteral("Color")), Qt::LeftButton);
    QVERIFY(user.isDone());
    QCOMPARE(shown, before);
    QVERIFY(showsAlpha);
    QCOMPARE(dialog.selectedPen(), QPen(after, 2, Qt::DashLine));
}

void TestPenSelectPreview::shouldKeepTheColorWhenItsDialogIsCancelled()
{
    PenSelect dialog(QPen(Qt::red, 2));
    const ModalDriver<QColorDialog> user([](QColorDialog &colors) {
        colors.setCurrentColor(Qt::green);
        QTest::keyClick(&colors, Qt::Key_Escape);
    });
    dialog.openColor();
    QVERIFY(user.isDone());
    QCOMPARE(dialog.selectedPen(), QPen(Qt::red, 2));
    QVERIFY(!dialog.findChild<QColorDialog *>());
}

void TestPenSelectPreview::shouldSurviveItsEndWhileTheColorDialogIsOpen()
{
    QPointer<PenSelect> dialog(new PenSelect(QPen(Qt::red, 2)));
    const ModalDriver<QColorDialog> user([&](QColorDialog &) { delete dialog.data(); });
    dialog->openColor();
    QVERIFY(user.isDone());
    QVERIFY(!dialog);
}

void TestPenSelectPreview::shouldDrawTheSampleLineWithThePen()
{
    const PenSelect dialog(QPen(QColor(0, 160, 80), 4));
    QVERIFY(pixelsOf(shownPixmap(dialog), QColor(0, 160, 80)) > 0);
    QVERIFY(pixelsOf(shownPixmap(dialog), Qt::white) > 0);
}

void TestPenSelectPreview::shouldDrawNothingWithoutAPen()
{
    const PenSelect dialog{QPen(Qt::NoPen)};
    QVERIFY(!shownPixmap(dialog).isNull());
    QCOMPARE(inkedPixels(shownPixmap(dialog)), 0);
}

void TestPenSelectPreview::shouldRefreshTheSampleOnEveryChange()
{
    PenSelect dialog(QPen(Qt::black, 2));
    QImage last = shownPixmap(dialog).toImage();
    const auto isFresh = [&] {
        const QImage now = shownPixmap(dialog).toImage();
        const bool changed = now != last;
        last = now;
        return changed;
    };
    const int thin = inkedPixels(shownPixmap(dialog));
    QTest::keyClicks(widthEdit(dialog), QStringLiteral("5"));
    QVERIFY(isFresh());
    QVERIFY(inkedPixels(shownPixmap(dialog)) > thin);
    combo(dialog, capCombo)->setCurrentIndex(2);
    QVERIFY(isFresh());
    combo(dialog, joinCombo)->setCurrentIndex(2);
    QVERIFY(isFresh());
    combo(dialog, styleCombo)->setCurrentIndex(3);
    QVERIFY(isFresh());
    const ModalDriver<QColorDialog> user([](QColorDialog &colors) {
        colors.setCurrentColor(Qt::green);
        colors.accept();
    });
    dialog.openColor();
    QVERIFY(user.isDone());
    QVERIFY(isFresh());
    QVERIFY(pixelsOf(shownPixmap(dialog), Qt::green) > 0);
}

void TestPenSelectPreview::shouldDrawASharpSampleOnADenseScreen()
{
    const PenSelect plain(QPen(Qt::black, 3));
    TestSupport::OnDenseScreen<PenSelect> dense(QPen(Qt::black, 3));
    dense.updatePreview();
    QCOMPARE(shownPixmap(dense).devicePixelRatioF(), 2 * shownPixmap(plain).devicePixelRatioF());
    QCOMPARE(shownPixmap(dense).size(), 2 * shownPixmap(plain).size());
    QVERIFY(inkedPixels(shownPixmap(dense)) > 3 * inkedPixels(shownPixmap(plain)));
}

FISHBONE_TEST(TestPenSelectPreview)
#include "tst_penselectpreview.moc"
