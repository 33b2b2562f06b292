// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/style/spearstyledialog.h>
#include <tests/program/testprogram.h>
#include <tests/style/styledialogparts.h>
#include <tests/support/previewchecks.h>

#include <QFontMetrics>
#include <QtTest>

using namespace StyleDialogParts;
using TestSupport::inkedPixels;
using TestSupport::pixelsOf;
using TestSupport::shownPixmap;

namespace {

/** The preview of a text that is not cut, in an otherwise fresh style. */
QImage uncutPreview(const QString &text)
{
    SpearStyle style;
    style.setTextCount(0);
    const SpearStyleDialog dialog(style);
    previewText(dialog)->setText(text);
    return shownPixmap(dialog).toImage();
}

} // namespace

class tst_SpearStylePreview : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldFollowTheTypedCountAtOnce();
    void shouldCutThePreviewText_data();
    void shouldCutThePreviewText();
    void shouldPreviewTheTypedText();
    void shouldPreviewTheChosenState();
    void shouldPreviewTheColors();
    void shouldLeaveAnUnsetBackgroundWhite();
    void shouldPreviewAnUnsetPenAsTheDefaultOne();
    void shouldPreviewTheFont();
    void shouldBoundThePreview();
    void shouldDrawASharpPreviewOnADenseScreen();
};

void tst_SpearStylePreview::shouldFollowTheTypedCountAtOnce()
{
    SpearStyle style;
    const SpearStyleDialog dialog(style);
    QTest::keyClicks(textCount(dialog), QStringLiteral("7"));
    QCOMPARE(style.textCount(), 7);
    QCOMPARE(shownPixmap(dialog).toImage(), uncutPreview(QStringLiteral("Preview...")));
}

void tst_SpearStylePreview::shouldCutThePreviewText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("shown");
    QTest::newRow("no limit") << "abcdef" << 0 << "abcdef";
    QTest::newRow("negative is no limit") << "abcdef" << -3 << "abcdef";
    QTest::newRow("one") << "abcdef" << 1 << "a...";
    QTest::newRow("one short") << "abcdef" << 5 << "abcde...";
    QTest::newRow("just fits") << "abcdef" << 6 << "abcdef";
    QTest::newRow("fits") << "abcdef" << 7 << "abcdef";
    QTest::newRow("empty") << "" << 3 << "";
    QTest::newRow("between surrogates") << QString::fromUtf8("ab😀cd") << 3 << "ab...";
    QTest::newRow("behind surrogates")
        << QString::fromUtf8("ab😀cd") << 4 << QString::fromUtf8("ab😀...");
}

void tst_SpearStylePreview::shouldCutThePreviewText()
{
    QFETCH(QString, text);
    QFETCH(int, count);
    QFETCH(QString, shown);
    SpearStyle style;
    style.setTextCount(count);
    const SpearStyleDialog dialog(style);
    previewText(dialog)->setText(text);
    QCOMPARE(shownPixmap(dialog).toImage(), uncutPreview(shown));
    QVERIFY(shownPixmap(dialog).toImage() != uncutPreview(shown + QLatin1Char('.')));
}

void tst_SpearStylePreview::shouldPreviewTheTypedText()
{
    SpearStyle style;
    const SpearStyleDialog dialog(style);
    previewText(dialog)->selectAll();
    QTest::keyClicks(previewText(dialog), QStringLiteral("Hi"));
    QCOMPARE(shownPixmap(dialog).toImage(), uncutPreview(QStringLiteral("Hi")));
}

void tst_SpearStylePreview::shouldPreviewTheChosenState()
{
    SpearStyle style;
    style.setTextBkColor(SpearStyle::ssNormal, Qt::yellow);
    style.setTextBkColor(SpearStyle::ssLinked, Qt::cyan);
    SpearStyleDialog dialog(style);
    dialog.show();
    QVERIFY(pixelsOf(shownPixmap(dialog), Qt::yellow) > 0);
    QTest::keyClick(stateCombo(dialog), Qt::Key_End);
    QCOMPARE(stateCombo(dialog)->currentText(), QStringLiteral("ssLinked"));
    QVERIFY(pixelsOf(shownPixmap(dialog), Qt::cyan) > 0);
    QCOMPARE(pixelsOf(shownPixmap(dialog), Qt::yellow), 0);
}

void tst_SpearStylePreview::shouldPreviewTheColors()
{
    SpearStyle style;
    style.setTextFont(SpearStyle::ssNormal, QFont(QStringLiteral("DejaVu Sans"), 30));
    style.setTextColor(SpearStyle::ssNormal, Qt::darkBlue);
    style.setTextBkColor(SpearStyle::ssNormal, Qt::yellow);
    style.setBroderPen(SpearStyle::ssNormal, QPen(Qt::red, 4));
    const SpearStyleDialog dialog(style);
    const QPixmap preview = shownPixmap(dialog);
    const QImage image = preview.toImage();

    QVERIFY(pixelsOf(preview, Qt::darkBlue) > 20);
    QCOMPARE(image.pixelColor(0, 0), QColor(Qt::white));
    // From the middle of the left edge: paper, border, fill.
    QString colors;
    for (int x = 0; x < image.width() / 4; ++x) {
        const QColor color = image.pixelColor(x, image.height() / 2);
        const QChar name = color == Qt::white    ? QLatin1Char('w')
                           : color == Qt::red    ? QLatin1Char('r')
                           : color == Qt::yellow ? QLatin1Char('y')
                                                 : QLatin1Char('?');
        if (!colors.endsWith(name))
            colors.append(name);
    }
    QVERIFY2(colors.startsWith(QLatin1String("wry")), qPrintable(colors));
}

void tst_SpearStylePreview::shouldLeaveAnUnsetBackgroundWhite()
{
    SpearStyle style;
    style.setBroderPen(SpearStyle::ssNormal, QPen(Qt::NoPen));
    const SpearStyleDialog dialog(style);
    previewText(dialog)->clear();
    QVERIFY(!shownPixmap(dialog).isNull());
    QCOMPARE(inkedPixels(shownPixmap(dialog)), 0);
}

void tst_SpearStylePreview::shouldPreviewAnUnsetPenAsTheDefaultOne()
{
    SpearStyle unset;
    SpearStyle set;
    set.setBroderPen(SpearStyle::ssNormal, QPen());
    const SpearStyleDialog dialog(unset);
    QCOMPARE(shownPixmap(dialog).toImage(), shownPixmap(SpearStyleDialog(set)).toImage());
    previewText(dialog)->clear();
    QVERIFY(pixelsOf(shownPixmap(dialog), Qt::black) > 0);
}

void tst_SpearStylePreview::shouldPreviewTheFont()
{
    const auto previewWith = [](int pointSize) {
        SpearStyle style;
        style.setBroderPen(SpearStyle::ssNormal, QPen(Qt::NoPen));
        style.setTextFont(SpearStyle::ssNormal, QFont(QStringLiteral("DejaVu Sans"), pointSize));
        return shownPixmap(SpearStyleDialog(style));
    };
    const auto height = [](int pointSize) {
        return QFontMetrics(QFont(QStringLiteral("DejaVu Sans"), pointSize)).height();
    };
    QCOMPARE(previewWith(40).height() - previewWith(10).height(), height(40) - height(10));
    QVERIFY(previewWith(40).width() > 2 * previewWith(10).width());
    QVERIFY(inkedPixels(previewWith(40)) > 4 * inkedPixels(previewWith(10)));
}

void tst_SpearStylePreview::shouldBoundThePreview()
{
    SpearStyle style;
    style.setTextCount(0);
    style.setTextFont(SpearStyle::ssNormal, QFont(QStringLiteral("DejaVu Sans"), 72));
    style.setBroderPen(SpearStyle::ssNormal, QPen(Qt::black, 4e9));
    const SpearStyleDialog dialog(style);
    previewText(dialog)->setText(QString(20000, QLatin1Char('W')));
    QVERIFY(!shownPixmap(dialog).isNull());
    QVERIFY(shownPixmap(dialog).width() < 5000);
    QVERIFY(shownPixmap(dialog).height() < 5000);
}

void tst_SpearStylePreview::shouldDrawASharpPreviewOnADenseScreen()
{
    SpearStyle style;
    const SpearStyleDialog plain(style);
    TestSupport::OnDenseScreen<SpearStyleDialog> dense(style);
    dense.updatePreview();
    QCOMPARE(shownPixmap(dense).devicePixelRatioF(), 2 * shownPixmap(plain).devicePixelRatioF());
    QCOMPARE(shownPixmap(dense).size(), 2 * shownPixmap(plain).size());
}

FISHBONE_TEST(tst_SpearStylePreview)
#include "tst_spearstylepreview.moc"
