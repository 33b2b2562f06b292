// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/style/penselect.h>
#include <tests/program/testprogram.h>
#include <tests/style/styledialogparts.h>

#include <QPushButton>
#include <QtTest>

using namespace StyleDialogParts;
using TestSupport::buttonWithText;

class TestPenSelect : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldOfferTheStylesOfQtWithTheirValues();
    void shouldStartOnTheValuesOfThePen_data();
    void shouldStartOnTheValuesOfThePen();
    void shouldShowAnUnusualWidthAsItIs_data();
    void shouldShowAnUnusualWidthAsItIs();
    void shouldKeepWhatItDoesNotOffer();
    void shouldSetTheTypedWidth_data();
    void shouldSetTheTypedWidth();
    void shouldRefuseToTypeAnotherWidth_data();
    void shouldRefuseToTypeAnotherWidth();
    void shouldRefuseASecondDigit();
    void shouldKeepTheWidthWhileTheFieldIsEmpty();
    void shouldIgnoreATextThatIsNoWidth_data();
    void shouldIgnoreATextThatIsNoWidth();
    void shouldSetTheValueOfTheChosenItem_data();
    void shouldSetTheValueOfTheChosenItem();
    void shouldSetTheValueThatASlotIsGiven();
    void shouldReadAnUnknownValueAsZero_data();
    void shouldReadAnUnknownValueAsZero();
    void shouldCloseAsAccepted();
    void shouldAcceptOnReturn();
    void shouldCloseAsRejected();
    void shouldRejectOnEscape();
    void shouldNameEveryControlInTabOrder();
    void shouldTranslateEveryText();
};

void TestPenSelect::shouldOfferTheStylesOfQtWithTheirValues()
{
    const PenSelect dialog{QPen()};
    const auto items = [&](int which) {
        QStringList texts;
        for (int i = 0; i < combo(dialog, which)->count(); ++i)
            texts.append(QStringLiteral("%1=%2").arg(combo(dialog, which)->itemText(i),
                                                     combo(dialog, which)->itemData(i).toString()));
        return texts.join(QLatin1Char(' '));
    };
    QCOMPARE(dialog.findChildren<QComboBox *>().size(), 3);
    QCOMPARE(items(styleCombo), QStringLiteral("NoPen=0 SolidLine=1 DashLine=2 DotLine=3 "
                                               "DashDotLine=4 DashDotDotLine=5"));
    QCOMPARE(items(capCombo), QStringLiteral("FlatCap=0 SquareCap=16 RoundCap=32"));
    QCOMPARE(items(joinCombo), QStringLiteral("MiterJoin=0 BevelJoin=64 RoundJoin=128"));
    const QStringList texts = TestSupport::writtenTexts(dialog);
    for (const char *const text : {"PenWidth", "PenStyle", "PenCapStyle", "PenJoinStyle",
                                   "PenColor", "Color", "Accept", "Cancel"})
        QVERIFY2(texts.contains(QLatin1String(text)), text);
}

void TestPenSelect::shouldStartOnTheValuesOfThePen_data()
{
    QTest::addColumn<QPen>("pen");
    QTest::addColumn<QString>("width");
    QTest::addColumn<QString>("style");
    QTest::addColumn<QString>("cap");
    QTest::addColumn<QString>("join");

    QTest::newRow("default pen") << QPen() << "1"
                                 << "SolidLine"
                                 << "SquareCap"
                                 << "BevelJoin";
    QTest::newRow("first items") << QPen(Qt::red, 5, Qt::NoPen, Qt::FlatCap, Qt::MiterJoin) << "5"
                                 << "NoPen"
                                 << "FlatCap"
                                 << "MiterJoin";
    QTest::newRow("last items") << QPen(Qt::red, 3, Qt::DashDotDotLine, Qt::RoundCap, Qt::RoundJoin)
                                << "3"
                                << "DashDotDotLine"
                                << "RoundCap"
                                << "RoundJoin";
}

void TestPenSelect::shouldStartOnTheValuesOfThePen()
{
    QFETCH(QPen, pen);
    const PenSelect dialog(pen);
    QTEST(widthEdit(dialog)->text(), "width");
    QTEST(combo(dialog, styleCombo)->currentText(), "style");
    QTEST(combo(dialog, capCombo)->currentText(), "cap");
    QTEST(combo(dialog, joinCombo)->currentText(), "join");
    QCOMPARE(dialog.selectedPen(), pen);
}

void TestPenSelect::shouldShowAnUnusualWidthAsItIs_data()
{
    QTest::addColumn<qreal>("width");
    QTest::addColumn<QString>("text");
    QTest::newRow("hairline") << 0. << "0";
    QTest::newRow("just too wide") << 6. << "6";
    QTest::newRow("two digits") << 12. << "12";
    QTest::newRow("fraction") << 1.5 << "1.5";
}

void TestPenSelect::shouldShowAnUnusualWidthAsItIs()
{
    QFETCH(qreal, width);
    const PenSelect dialog(QPen(Qt::black, width));
    QTEST(widthEdit(dialog)->text(), "text");
    QCOMPARE(dialog.selectedPen().widthF(), width);

    QTest::keyClicks(widthEdit(dialog), QStringLiteral("4"));
    QCOMPARE(dialog.selectedPen().widthF(), 4.);
}

void TestPenSelect::shouldKeepWhatItDoesNotOffer()
{
    QPen pen(Qt::blue, 2);
    pen.setDashPattern({1, 3, 5, 3});
    pen.setJoinStyle(Qt::SvgMiterJoin);
    const PenSelect dialog(pen);
    QCOMPARE(combo(dialog, styleCombo)->currentIndex(), -1);
    QCOMPARE(combo(dialog, joinCombo)->currentIndex(), -1);
    QCOMPARE(dialog.selectedPen(), pen);

    QTest::keyClicks(widthEdit(dialog), QStringLiteral("3"));
    QCOMPARE(dialog.selectedPen().style(), Qt::CustomDashLine);
    QCOMPARE(dialog.selectedPen().joinStyle(), Qt::SvgMiterJoin);
    QCOMPARE(dialog.selectedPen().width(), 3);
}

void TestPenSelect::shouldSetTheTypedWidth_data()
{
    QTest::addColumn<int>("width");
    for (int width = 1; width <= 5; ++width)
        QTest::addRow("%d", width) << width;
}

void TestPenSelect::shouldSetTheTypedWidth()
{
    QFETCH(int, width);
    const PenSelect dialog(QPen(Qt::black, 20));
    widthEdit(dialog)->selectAll();
    QTest::keyClicks(widthEdit(dialog), QString::number(width));
    QCOMPARE(widthEdit(dialog)->text(), QString::number(width));
    QCOMPARE(dialog.selectedPen().width(), width);
}

void TestPenSelect::shouldRefuseToTypeAnotherWidth_data()
{
    QTest::addColumn<QString>("keys");
    for (const char *const keys : {"0", "6", "7", "8", "9", "a", "-", "+", " ", "."})
        QTest::newRow(keys) << QString::fromLatin1(keys);
}

void TestPenSelect::shouldRefuseToTypeAnotherWidth()
{
    QFETCH(QString, keys);
    const PenSelect dialog(QPen(Qt::black, 2));
    widthEdit(dialog)->clear();
    QTest::keyClicks(widthEdit(dialog), keys);
    QCOMPARE(widthEdit(dialog)->text(), QString());
    QCOMPARE(dialog.selectedPen().width(), 2);
}

void TestPenSelect::shouldRefuseASecondDigit()
{
    const PenSelect dialog(QPen(Qt::black, 2));
    QTest::keyClicks(widthEdit(dialog), QStringLiteral("34"));
    QCOMPARE(widthEdit(dialog)->text(), QStringLiteral("3"));
    QCOMPARE(dialog.selectedPen().width(), 3);
}

void TestPenSelect::shouldKeepTheWidthWhileTheFieldIsEmpty()
{
    const PenSelect dialog(QPen(Qt::black, 4));
    QTest::keyClick(widthEdit(dialog), Qt::Key_Backspace);
    QCOMPARE(widthEdit(dialog)->text(), QString());
    QCOMPARE(dialog.selectedPen().width(), 4);
}

void TestPenSelect::shouldIgnoreATextThatIsNoWidth_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("letters") << "wide";
    QTest::newRow("fraction") << "2.5";
    QTest::newRow("hexadecimal") << "0x3";
    QTest::newRow("beyond 32 bits") << "99999999999";
}

void TestPenSelect::shouldIgnoreATextThatIsNoWidth()
{
    QFETCH(QString, text);
    PenSelect dialog(QPen(Qt::black, 4));
    dialog.widthChanged(text);
    QCOMPARE(dialog.selectedPen().widthF(), 4.);
}

void TestPenSelect::shouldSetTheValueOfTheChosenItem_data()
{
    QTest::addColumn<int>("which");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QPen>("expected");

    const QPen start(Qt::black, 1, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin);
    const auto withStyle = [=](Qt::PenStyle style) {
        QPen pen = start;
        pen.setStyle(style);
        return pen;
    };
    const auto withCap = [=](Qt::PenCapStyle style) {
        QPen pen = start;
        pen.setCapStyle(style);
        return pen;
    };
    const auto withJoin = [=](Qt::PenJoinStyle style) {
        QPen pen = start;
        pen.setJoinStyle(style);
        return pen;
    };
    QTest::newRow("NoPen") << styleCombo << "NoPen" << withStyle(Qt::NoPen);
    QTest::newRow("DashLine") << styleCombo << "DashLine" << withStyle(Qt::DashLine);
    QTest::newRow("DotLine") << styleCombo << "DotLine" << withStyle(Qt::DotLine);
    QTest::newRow("DashDotLine") << styleCombo << "DashDotLine" << withStyle(Qt::DashDotLine);
    QTest::newRow("DashDotDotLine")
        << styleCombo << "DashDotDotLine" << withStyle(Qt::DashDotDotLine);
    QTest::newRow("FlatCap") << capCombo << "FlatCap" << withCap(Qt::FlatCap);
    QTest::newRow("RoundCap") << capCombo << "RoundCap" << withCap(Qt::RoundCap);
    QTest::newRow("MiterJoin") << joinCombo << "MiterJoin" << withJoin(Qt::MiterJoin);
    QTest::newRow("RoundJoin") << joinCombo << "RoundJoin" << withJoin(Qt::RoundJoin);
}

void TestPenSelect::shouldSetTheValueOfTheChosenItem()
{
    QFETCH(int, which);
    QFETCH(QString, text);
    PenSelect dialog(QPen(Qt::black, 1, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    dialog.show();
    // Typing the name of an item chooses it, as it does for a user.
    QTest::keyClicks(combo(dialog, which), text);
    QCOMPARE(combo(dialog, which)->currentText(), text);
    QTEST(dialog.selectedPen(), "expected");
}

void TestPenSelect::shouldSetTheValueThatASlotIsGiven()
{
    PenSelect dialog{QPen()};
    dialog.styleChanged(Qt::DashDotLine);
    dialog.capStyleChanged(Qt::RoundCap);
    dialog.joinStyleChanged(Qt::RoundJoin);
    dialog.widthChanged(QStringLiteral("5"));
    QCOMPARE(dialog.selectedPen(),
             QPen(Qt::black, 5, Qt::DashDotLine, Qt::RoundCap, Qt::RoundJoin));

    // Values that Qt knows but the combo boxes do not offer.
    dialog.styleChanged(Qt::CustomDashLine);
    dialog.joinStyleChanged(Qt::SvgMiterJoin);
    QCOMPARE(dialog.selectedPen().style(), Qt::CustomDashLine);
    QCOMPARE(dialog.selectedPen().joinStyle(), Qt::SvgMiterJoin);
}

void TestPenSelect::shouldReadAnUnknownValueAsZero_data()
{
    QTest::addColumn<int>("value");
    QTest::newRow("an index") << 7;
    QTest::newRow("negative") << -1;
    QTest::newRow("huge") << (1 << 30);
}

void TestPenSelect::shouldReadAnUnknownValueAsZero()
{
    QFETCH(int, value);
    PenSelect dialog(QPen(Qt::black, 1, Qt::DotLine, Qt::RoundCap, Qt::RoundJoin));
    dialog.styleChanged(value);
    dialog.capStyleChanged(value);
    dialog.joinStyleChanged(value);
    QCOMPARE(dialog.selectedPen(), QPen(Qt::black, 1, Qt::NoPen, Qt::FlatCap, Qt::MiterJoin));
}

void TestPenSelect::shouldCloseAsAccepted()
{
    PenSelect dialog(QPen(Qt::black, 2));
    dialog.show();
    QTest::keyClicks(widthEdit(dialog), QStringLiteral("3"));
    QTest::mouseClick(buttonWithText(dialog, QStringLiteral("Accept")), Qt::LeftButton);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(dialog.selectedPen().width(), 3);
}

void TestPenSelect::shouldAcceptOnReturn()
{
    PenSelect dialog(QPen(Qt::black, 2));
    QVERIFY(buttonWithText<QPushButton>(dialog, QStringLiteral("Accept"))->isDefault());
    dialog.show();
    QTest::keyClicks(widthEdit(dialog), QStringLiteral("4"));
    QTest::keyClick(widthEdit(dialog), Qt::Key_Return);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(dialog.selectedPen().width(), 4);
}

void TestPenSelect::shouldCloseAsRejected()
{
    PenSelect dialog(QPen(Qt::black, 2));
    QSignalSpy rejected(&dialog, &QDialog::rejected);
    dialog.show();
    QTest::mouseClick(buttonWithText(dialog, QStringLiteral("Cancel")), Qt::LeftButton);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(rejected.size(), 1);
}

void TestPenSelect::shouldRejectOnEscape()
{
    PenSelect dialog(QPen(Qt::black, 2));
    QSignalSpy rejected(&dialog, &QDialog::rejected);
    dialog.show();
    QTest::keyClick(widthEdit(dialog), Qt::Key_Escape);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(rejected.size(), 1);
}

void TestPenSelect::shouldNameEveryControlInTabOrder()
{
    PenSelect dialog{QPen()};
    QCOMPARE(TestSupport::tabOrder(dialog).join(QLatin1Char('|')),
             QStringLiteral("PenWidth|PenStyle|PenCapStyle|PenJoinStyle|PenColor|Accept|Cancel"));
    QCOMPARE(TestSupport::strayLabels(dialog), QStringList());
}

void TestPenSelect::shouldTranslateEveryText()
{
    const TestSupport::BracketTranslator translator("PenSelect");
    const PenSelect dialog{QPen()};
    const QStringList texts = TestSupport::writtenTexts(dialog);
    QVERIFY(texts.contains(QStringLiteral("[RoundJoin]")));
    for (const QString &text : texts)
        QVERIFY2(text.startsWith(QLatin1Char('[')), qPrintable(text));
}

FISHBONE_TEST(TestPenSelect)
#include "tst_penselect.moc"
