// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/style/spearstyledialog.h>
#include <tests/program/testprogram.h>
#include <tests/style/styledialogparts.h>
#include <tests/support/modaldriver.h>
#include <tests/support/previewchecks.h>

#include <QCheckBox>
#include <QColorDialog>
#include <QFile>
#include <QPushButton>
#include <QtTest>

#include <functional>

using namespace StyleDialogParts;
using TestSupport::buttonWithText;
using TestSupport::ModalDriver;
using TestSupport::shownPixmap;

Q_DECLARE_METATYPE(std::function<void(SpearStyleDialog &)>)

class TestSpearStyleDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowTheStyleAndTheTexts();
    void shouldShowACountThatCannotBeTyped_data();
    void shouldShowACountThatCannotBeTyped();
    void shouldBeModalUnlessToldOtherwise();
    void shouldTypeOneOrTwoDigitsOnly_data();
    void shouldTypeOneOrTwoDigitsOnly();
    void shouldKeepTheCountWhenTheFieldIsEmpty();
    void shouldSetACountOnlyFromADecimalInteger_data();
    void shouldSetACountOnlyFromADecimalInteger();
    void shouldSetTheFlagWithTheCheckBox();
    void shouldOfferInheritanceUnlessToldOtherwise();
    void shouldKeepTheStyleWhenAccepted();
    void shouldRestoreWhatWasSetWhenRejected_data();
    void shouldRestoreWhatWasSetWhenRejected();
    void shouldLeaveSetWhatWasUnsetWhenRejected();
    void shouldReportItsResultWhenRunModally();
    void shouldReactToReturn();
    void shouldNameEveryControlInTabOrder();
    void shouldTranslateEveryText();
};

void TestSpearStyleDialog::shouldShowTheStyleAndTheTexts()
{
    SpearStyle style;
    style.setTextCount(12);
    style.setInheritanceParent(true);
    const SpearStyleDialog dialog(style, true);

    QCOMPARE(textCount(dialog)->text(), QStringLiteral("12"));
    QVERIFY(dialog.findChild<QCheckBox *>()->isChecked());
    QCOMPARE(previewText(dialog)->text(), QStringLiteral("Preview 预览测试 ABC xyz"));
    QCOMPARE(stateCombo(dialog)->currentIndex(), 0);
    QStringList states;
    for (int i = 0; i < stateCombo(dialog)->count(); ++i)
        states.append(stateCombo(dialog)->itemText(i));
    QCOMPARE(states.join(QLatin1Char(' ')),
             QStringLiteral("ssNormal ssSelected ssHovered ssLinked"));

    const QStringList texts = TestSupport::writtenTexts(dialog);
    for (const char *const text :
         {"textCount", "Parent", "InheritanceParent", "SpearState", "Preview", "Set TextFont",
          "Set TextColor", "Set TextBkColor", "Set BroderPen", "Accept", "Cancel"})
        QVERIFY2(texts.contains(QLatin1String(text)), text);
    QVERIFY(!shownPixmap(dialog).isNull());

    SpearStyle unchanged;
    unchanged.setTextCount(12);
    unchanged.setInheritanceParent(true);
    QCOMPARE(written(style), written(unchanged));
}

void TestSpearStyleDialog::shouldShowACountThatCannotBeTyped_data()
{
    QTest::addColumn<int>("count");
    QTest::newRow("negative") << -1;
    QTest::newRow("three digits") << 100;
}

void TestSpearStyleDialog::shouldShowACountThatCannotBeTyped()
{
    QFETCH(int, count);
    SpearStyle style;
    style.setTextCount(count);
    const SpearStyleDialog dialog(style);
    QCOMPARE(textCount(dialog)->text(), QString::number(count));
    QCOMPARE(style.textCount(), count);
}

void TestSpearStyleDialog::shouldBeModalUnlessToldOtherwise()
{
    SpearStyle style;
    QVERIFY(SpearStyleDialog(style).isModal());
    QVERIFY(SpearStyleDialog(style, true, nullptr).isModal());
    QVERIFY(!SpearStyleDialog(style, false).isModal());
}

void TestSpearStyleDialog::shouldTypeOneOrTwoDigitsOnly_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("text");
    QTest::newRow("one digit") << "0"
                               << "0";
    QTest::newRow("two digits") << "99"
                                << "99";
    QTest::newRow("three digits") << "123"
                                  << "12";
    QTest::newRow("sign and letters") << "-a+8 "
                                      << "8";
}

void TestSpearStyleDialog::shouldTypeOneOrTwoDigitsOnly()
{
    QFETCH(QString, keys);
    QFETCH(QString, text);
    SpearStyle style;
    const SpearStyleDialog dialog(style);
    QTest::keyClicks(textCount(dialog), keys);
    QCOMPARE(textCount(dialog)->text(), text);
    QCOMPARE(style.textCount(), text.toInt());
}

void TestSpearStyleDialog::shouldKeepTheCountWhenTheFieldIsEmpty()
{
    SpearStyle style;
    style.setTextCount(8);
    const SpearStyleDialog dialog(style);
    QTest::keyClick(textCount(dialog), Qt::Key_Backspace);
    QCOMPARE(textCount(dialog)->text(), QString());
    QCOMPARE(style.textCount(), 8);
}

void TestSpearStyleDialog::shouldSetACountOnlyFromADecimalInteger_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("count");
    QTest::newRow("number") << "42" << 42;
    QTest::newRow("beyond what can be typed") << "500" << 500;
    QTest::newRow("empty") << "" << 6;
    QTest::newRow("letters") << "ten" << 6;
    QTest::newRow("hexadecimal") << "0x10" << 6;
    QTest::newRow("octal look") << "010" << 10;
    QTest::newRow("fraction") << "1.5" << 6;
}

void TestSpearStyleDialog::shouldSetACountOnlyFromADecimalInteger()
{
    QFETCH(QString, text);
    SpearStyle style;
    SpearStyleDialog dialog(style);
    dialog.textCountChanged(text);
    QTEST(style.textCount(), "count");
}

void TestSpearStyleDialog::shouldSetTheFlagWithTheCheckBox()
{
    SpearStyle style;
    SpearStyleDialog dialog(style);
    auto *const box = dialog.findChild<QCheckBox *>();
    QVERIFY(!box->isChecked());
    QTest::keyClick(box, Qt::Key_Space);
    QVERIFY(style.inheritanceParent());
    QTest::keyClick(box, Qt::Key_Space);
    QVERIFY(!style.inheritanceParent());

    dialog.inheritanceParentChanged(true);
    QVERIFY(style.inheritanceParent());
}

void TestSpearStyleDialog::shouldOfferInheritanceUnlessToldOtherwise()
{
    SpearStyle style;
    style.setInheritanceParent(true);
    SpearStyleDialog dialog(style, false);
    dialog.show();
    const auto *const box = dialog.findChild<QCheckBox *>();
    QVERIFY(box->isVisible());

    dialog.setInheritanceOffered(false);
    QVERIFY(!box->isVisible());
    QVERIFY(style.inheritanceParent());

    dialog.setInheritanceOffered(true, QStringLiteral("as its parent"));
    QVERIFY(box->isVisible());
    QCOMPARE(box->toolTip(), QStringLiteral("as its parent"));
}

void TestSpearStyleDialog::shouldKeepTheStyleWhenAccepted()
{
    SpearStyle style;
    SpearStyleDialog dialog(style);
    dialog.show();
    QTest::keyClicks(textCount(dialog), QStringLiteral("9"));
    click(dialog, "Accept");
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(style.textCount(), 9);
    QVERIFY(!QFile::exists(SpearStyle::spearStyleFilePath()));
}

void TestSpearStyleDialog::shouldRestoreWhatWasSetWhenRejected_data()
{
    using Leave = std::function<void(SpearStyleDialog &)>;
    QTest::addColumn<Leave>("leave");
    QTest::newRow("Cancel") << Leave([](SpearStyleDialog &dialog) { click(dialog, "Cancel"); });
    QTest::newRow("Escape") << Leave(
        [](SpearStyleDialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    QTest::newRow("window closed") << Leave([](SpearStyleDialog &dialog) { dialog.close(); });
    QTest::newRow("slot") << Leave([](SpearStyleDialog &dialog) { dialog.reject(); });
}

void TestSpearStyleDialog::shouldRestoreWhatWasSetWhenRejected()
{
    QFETCH(std::function<void(SpearStyleDialog &)>, leave);
    SpearStyle style;
    fillStyle(style);
    style.setTextCount(8);
    style.setInheritanceParent(true);
    const QJsonObject before = written(style);

    SpearStyleDialog dialog(style);
    QSignalSpy rejected(&dialog, &QDialog::rejected);
    dialog.show();
    QTest::keyClicks(textCount(dialog), QStringLiteral("3"));
    dialog.inheritanceParentChanged(false);
    for (int i = 0; i < 4; ++i) {
        const auto state = static_cast<SpearStyle::SpearState>(i);
        style.setTextFont(state, QFont(QStringLiteral("DejaVu Serif"), 40));
        style.setTextColor(state, Qt::green);
        style.setTextBkColor(state, Qt::magenta);
        style.setBroderPen(state, QPen(Qt::green, 5, Qt::DotLine));
    }
    QVERIFY(written(style) != before);

    leave(dialog);
    QCOMPARE(rejected.size(), 1);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(written(style), before);
}

void TestSpearStyleDialog::shouldLeaveSetWhatWasUnsetWhenRejected()
{
    SpearStyle style;
    style.setTextColor(SpearStyle::ssNormal, Qt::red);
    SpearStyleDialog dialog(style);
    const ModalDriver<QColorDialog> user([](QColorDialog &colors) {
        colors.setCurrentColor(Qt::cyan);
        colors.accept();
    });
    dialog.openTextBkColor();
    QVERIFY(user.isDone());
    style.setTextColor(SpearStyle::ssNormal, Qt::green);
    dialog.reject();
    QCOMPARE(style.textColor(SpearStyle::ssNormal), QColor(Qt::red));
    QCOMPARE(style.textBkColor(SpearStyle::ssNormal), QColor(Qt::cyan));
}

void TestSpearStyleDialog::shouldReportItsResultWhenRunModally()
{
    SpearStyle style;
    {
        SpearStyleDialog dialog(style);
        const ModalDriver<SpearStyleDialog> user([](SpearStyleDialog &d) { click(d, "Accept"); });
        QCOMPARE(dialog.exec(), int(QDialog::Accepted));
        QVERIFY(user.isDone());
    }
    SpearStyleDialog dialog(style);
    const ModalDriver<SpearStyleDialog> user([](SpearStyleDialog &d) { click(d, "Cancel"); });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QVERIFY(user.isDone());
}

void TestSpearStyleDialog::shouldReactToReturn()
{
    SpearStyle style;
    SpearStyleDialog dialog(style);
    QVERIFY(buttonWithText<QPushButton>(dialog, QStringLiteral("Accept"))->isDefault());
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    auto *const button = buttonWithText(dialog, QStringLiteral("Set BroderPen"));
    button->setFocus();
    const ModalDriver<PenSelect> user([](PenSelect &pens) { pens.reject(); });
    QTest::keyClick(button, Qt::Key_Return);
    QVERIFY(user.isDone());
    QVERIFY(dialog.isVisible());

    textCount(dialog)->setFocus();
    QTest::keyClick(textCount(dialog), Qt::Key_Return);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
}

void TestSpearStyleDialog::shouldNameEveryControlInTabOrder()
{
    SpearStyle style;
    SpearStyleDialog dialog(style);
    QCOMPARE(TestSupport::tabOrder(dialog).join(QLatin1Char('|')),
             QStringLiteral("textCount|InheritanceParent|SpearState|Preview|Preview|Set TextFont|"
                            "Set TextColor|Set TextBkColor|Set BroderPen|Accept|Cancel"));
    QCOMPARE(TestSupport::strayLabels(dialog), QStringList());
}

void TestSpearStyleDialog::shouldTranslateEveryText()
{
    const TestSupport::BracketTranslator translator("SpearStyleDialog");
    SpearStyle style;
    const SpearStyleDialog dialog(style);
    QCOMPARE(previewText(dialog)->text(), QStringLiteral("[Preview 预览测试 ABC xyz]"));
    const QStringList texts = TestSupport::writtenTexts(dialog);
    QVERIFY(texts.contains(QStringLiteral("[ssLinked]")));
    for (const QString &text : texts)
        QVERIFY2(text.startsWith(QLatin1Char('[')), qPrintable(text));
}

FISHBONE_TEST(TestSpearStyleDialog)
#include "tst_spearstyledialog.moc"
