// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/spearitem.h>
#include <fishbone/items/textitem.h>
#include <fishbone/model/treeitem.h>
#include <fishbone/style/spearstyledialog.h>
#include <tests/program/testprogram.h>
#include <tests/style/styledialogparts.h>
#include <tests/support/modaldriver.h>
#include <tests/support/pictures.h>
#include <tests/support/previewchecks.h>
#include <tests/support/statelooks.h>

#include <QFontMetrics>
#include <QtTest>

#include <cstdlib>

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

/** The preview of a text in a state. */
QImage previewOf(const SpearStyle &style, int state, const QString &text)
{
    SpearStyle edited;
    edited.read(written(style));
    const SpearStyleDialog dialog(edited);
    stateCombo(dialog)->setCurrentIndex(state);
    previewText(dialog)->setText(text);
    return shownPixmap(dialog).toImage().convertToFormat(QImage::Format_RGB32);
}

QColor darkest(const QImage &picture)
{
    QColor found = Qt::white;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (qGray(picture.pixel(x, y)) < qGray(found.rgb()))
                found = picture.pixelColor(x, y);
        }
    }
    return found;
}

/** What a bone's text box with that text looks like in a state, with white around it. */
QImage paintedBone(const SpearStyle &style, SpearStyle::SpearState state, const QString &text)
{
    constexpr int margin = 4;
    TreeItem node;
    node.setSpearStyle(written(style));
    SpearItem head(QString(), 0, 20); // which alone shows no link in its text
    SpearItem spear(text, 0, 20);
    spear.setParentItem(&head);
    node.setSpear(&spear, QModelIndex());
    spear.setText(text);
    spear.applyState(state);
    const QRect box = spear.textItem()->boundingRect().toAlignedRect();
    return TestSupport::paintedItem(
        *spear.textItem(), {box.adjusted(-margin, -margin, margin, margin), 1}, QStyle::State_None);
}

} // namespace

class TestSpearStylePreview : public QObject
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
    void shouldPreviewOnTheBackgroundOfTheHost();
    void shouldPreviewAnUnsetPenAsTheDefaultOne();
    void shouldPreviewTheFont();
    void shouldPreviewTheBoxOfABone_data();
    void shouldPreviewTheBoxOfABone();
    void shouldPreviewTheTextOfABone_data();
    void shouldPreviewTheTextOfABone();
    void shouldBoundThePreview();
    void shouldDrawASharpPreviewOnADenseScreen();
};

void TestSpearStylePreview::shouldFollowTheTypedCountAtOnce()
{
    SpearStyle style;
    const SpearStyleDialog dialog(style);
    QTest::keyClicks(textCount(dialog), QStringLiteral("7"));
    QCOMPARE(style.textCount(), 7);
    QCOMPARE(shownPixmap(dialog).toImage(), uncutPreview(QStringLiteral("Preview...")));
}

void TestSpearStylePreview::shouldCutThePreviewText_data()
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

void TestSpearStylePreview::shouldCutThePreviewText()
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

void TestSpearStylePreview::shouldPreviewTheTypedText()
{
    SpearStyle style;
    const SpearStyleDialog dialog(style);
    previewText(dialog)->selectAll();
    QTest::keyClicks(previewText(dialog), QStringLiteral("Hi"));
    QCOMPARE(shownPixmap(dialog).toImage(), uncutPreview(QStringLiteral("Hi")));
}

void TestSpearStylePreview::shouldPreviewTheChosenState()
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

void TestSpearStylePreview::shouldPreviewTheColors()
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

void TestSpearStylePreview::shouldLeaveAnUnsetBackgroundWhite()
{
    SpearStyle style;
    style.setBroderPen(SpearStyle::ssNormal, QPen(Qt::NoPen));
    const SpearStyleDialog dialog(style);
    previewText(dialog)->clear();
    QVERIFY(!shownPixmap(dialog).isNull());
    QCOMPARE(inkedPixels(shownPixmap(dialog)), 0);
}

void TestSpearStylePreview::shouldPreviewOnTheBackgroundOfTheHost()
{
    const QColor night(10, 20, 30);
    SpearStyle style;
    SpearStyleDialog dialog(style);
    dialog.setPreviewBackground(night);
    QCOMPARE(pixelsOf(shownPixmap(dialog), Qt::white), 0);
    QVERIFY(pixelsOf(shownPixmap(dialog), night) > 100);
    previewText(dialog)->setText(QStringLiteral("W")); // and what is drawn anew
    QCOMPARE(shownPixmap(dialog).toImage().pixelColor(0, 0), night);
    int behindPen = -1;
    const TestSupport::ModalDriver<PenSelect> user([&](PenSelect &pen) {
        behindPen = pixelsOf(shownPixmap(pen), night);
        pen.reject();
    });
    dialog.openBroderPen();
    QVERIFY(user.isDone());
    QVERIFY(behindPen > 100);
}

void TestSpearStylePreview::shouldPreviewAnUnsetPenAsTheDefaultOne()
{
    SpearStyle unset;
    SpearStyle set;
    set.setBroderPen(SpearStyle::ssNormal, QPen());
    const SpearStyleDialog dialog(unset);
    QCOMPARE(shownPixmap(dialog).toImage(), shownPixmap(SpearStyleDialog(set)).toImage());
    previewText(dialog)->clear();
    QVERIFY(pixelsOf(shownPixmap(dialog), Qt::black) > 0);
}

void TestSpearStylePreview::shouldPreviewTheFont()
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

void TestSpearStylePreview::shouldPreviewTheBoxOfABone_data()
{
    QTest::addColumn<bool>("isSet");
    QTest::addColumn<int>("state");
    for (const bool isSet : {true, false}) {
        // A bone in its normal state has no box.
        for (int state = SpearStyle::ssSelected; state <= SpearStyle::ssLinked; ++state)
            QTest::addRow("%s, state %d", isSet ? "set" : "unset", state) << isSet << state;
    }
}

void TestSpearStylePreview::shouldPreviewTheBoxOfABone()
{
    QFETCH(bool, isSet);
    QFETCH(int, state);
    SpearStyle style;
    style.setTextCount(0);
    if (isSet)
        TestSupport::setLooks(style);
    // Letters stand a fraction of a pixel elsewhere in a bone.
    const QImage preview = previewOf(style, state, QString());
    const QImage bone = paintedBone(style, SpearStyle::SpearState(state), QString());
    QVERIFY(TestSupport::inkedPixels(bone) > 20);
    if (preview.size() == bone.size()) {
        QCOMPARE(TestSupport::difference(preview, bone), QString());
        return;
    }
    // A line of letters is a whole number of pixels high in a preview, a fraction more or less in a
    // bone. Then their upper halves are alike but for the roundness of the corners.
    QCOMPARE(preview.width(), bone.width());
    QVERIFY(std::abs(preview.height() - bone.height()) == 1);
    constexpr int ofCorners = 8;
    const QRect half(0, 0, preview.width(), preview.height() / 2);
    const int differing = TestSupport::differingPixels(preview.copy(half), bone.copy(half));
    QVERIFY2(differing <= ofCorners, qPrintable(QString::number(differing)));
}

void TestSpearStylePreview::shouldPreviewTheTextOfABone_data()
{
    QTest::addColumn<int>("state");
    for (int state = SpearStyle::ssNormal; state <= SpearStyle::ssLinked; ++state)
        QTest::addRow("state %d", state) << state;
}

void TestSpearStylePreview::shouldPreviewTheTextOfABone()
{
    QFETCH(int, state);
    const auto shown = SpearStyle::SpearState(state);
    const QString text = QStringLiteral("Machine");
    SpearStyle style;
    TestSupport::setLooks(style);
    style.setBroderPen(shown, QPen(Qt::NoPen));
    style.setTextBkColor(shown, QColor());

    const QImage preview = previewOf(style, state, text);
    const QImage bone = paintedBone(style, shown, text);
    const QRect letters = TestSupport::inkedArea(preview);
    const QRect painted = TestSupport::inkedArea(bone);
    // A preview counts letters in whole pixels, a bone in fractions of them.
    constexpr int rounding = 2;
    QVERIFY(std::abs(letters.top() - painted.top()) <= 1);
    QVERIFY(std::abs(letters.bottom() - painted.bottom()) <= 1);
    QVERIFY(std::abs(letters.left() - painted.left()) <= rounding);
    QVERIFY(std::abs(letters.right() - painted.right()) <= rounding);
    // No pixel of a thin letter need be covered whole.
    constexpr int smoothing = 60;
    const QColor one = darkest(preview);
    const QColor other = darkest(bone);
    QVERIFY(std::abs(one.red() - other.red()) <= smoothing);
    QVERIFY(std::abs(one.green() - other.green()) <= smoothing);
    QVERIFY(std::abs(one.blue() - other.blue()) <= smoothing);
}

void TestSpearStylePreview::shouldBoundThePreview()
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

void TestSpearStylePreview::shouldDrawASharpPreviewOnADenseScreen()
{
    SpearStyle style;
    const SpearStyleDialog plain(style);
    TestSupport::OnDenseScreen<SpearStyleDialog> dense(style);
    dense.updatePreview();
    QCOMPARE(shownPixmap(dense).devicePixelRatioF(), 2 * shownPixmap(plain).devicePixelRatioF());
    QCOMPARE(shownPixmap(dense).size(), 2 * shownPixmap(plain).size());
}

FISHBONE_TEST(TestSpearStylePreview)
#include "tst_spearstylepreview.moc"
