// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/style/spearstyledialog.h>
#include <tests/program/testprogram.h>
#include <tests/style/styledialogparts.h>
#include <tests/support/modaldriver.h>
#include <tests/support/previewchecks.h>

#include <QColorDialog>
#include <QFontDialog>
#include <QPointer>
#include <QtTest>

using namespace StyleDialogParts;
using TestSupport::buttonWithText;
using TestSupport::ModalDriver;
using TestSupport::pixelsOf;
using TestSupport::shownPixmap;

class TestSpearStyleSetters : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldSetTheFontOfTheChosenState();
    void shouldKeepTheFontWhenNoneIsChosen();
    void shouldSetTheTextColorOfTheChosenState();
    void shouldSetTheBackgroundColorOfTheChosenState();
    void shouldSetThePenOfTheChosenState();
    void shouldStartSubDialogsOnDefaultsWhenNothingIsSet();
    void shouldChangeNothingWhenASubDialogIsCancelled_data();
    void shouldChangeNothingWhenASubDialogIsCancelled();
    void shouldSurviveItsEndWhileASubDialogIsOpen_data();
    void shouldSurviveItsEndWhileASubDialogIsOpen();
};

void TestSpearStyleSetters::shouldSetTheFontOfTheChosenState()
{
    SpearStyle style;
    fillStyle(style);
    const SpearStyleDialog dialog(style);
    stateCombo(dialog)->setCurrentIndex(SpearStyle::ssHovered);
    const QImage before = shownPixmap(dialog).toImage();
    QFont shown;
    QFont chosen;
    const ModalDriver<QFontDialog> user([&](QFontDialog &fonts) {
        shown = fonts.currentFont();
        fonts.setCurrentFont(QFont(QStringLiteral("DejaVu Sans"), 21));
        chosen = fonts.currentFont();
        fonts.accept();
    });
    click(dialog, "Set TextFont");
    QVERIFY(user.isDone());
    QCOMPARE(shown.pointSize(), 14);
    QCOMPARE(*style.textFont(SpearStyle::ssHovered), chosen);
    QCOMPARE(style.textFont(SpearStyle::ssHovered)->pointSize(), 21);
    QCOMPARE(style.textFont(SpearStyle::ssNormal)->pointSize(), 10);
    QCOMPARE(style.textFont(SpearStyle::ssSelected)->pointSize(), 12);
    QCOMPARE(style.textFont(SpearStyle::ssLinked)->pointSize(), 16);
    QVERIFY(shownPixmap(dialog).toImage() != before);
}

void TestSpearStyleSetters::shouldKeepTheFontWhenNoneIsChosen()
{
    SpearStyle style;
    // The dialog shows a family that is installed in its place.
    const QFont font(QStringLiteral("A family that nobody has"), 14);
    style.setTextFont(SpearStyle::ssNormal, font);
    const SpearStyleDialog dialog(style);
    const ModalDriver<QFontDialog> user([](QFontDialog &fonts) { fonts.accept(); });
    click(dialog, "Set TextFont");
    QVERIFY(user.isDone());
    QCOMPARE(*style.textFont(SpearStyle::ssNormal), font);
}

void TestSpearStyleSetters::shouldSetTheTextColorOfTheChosenState()
{
    SpearStyle style;
    fillStyle(style);
    const SpearStyleDialog dialog(style);
    stateCombo(dialog)->setCurrentIndex(SpearStyle::ssSelected);
    const QImage before = shownPixmap(dialog).toImage();
    QColor shown;
    bool showsAlpha = false;
    const ModalDriver<QColorDialog> user([&](QColorDialog &colors) {
        shown = colors.currentColor();
        showsAlpha = colors.testOption(QColorDialog::ShowAlphaChannel);
        colors.setCurrentColor(QColor(1, 200, 3, 200));
        colors.accept();
    });
    click(dialog, "Set TextColor");
    QVERIFY(user.isDone());
    QCOMPARE(shown, QColor(10, 0, 0));
    QVERIFY(showsAlpha);
    QCOMPARE(style.textColor(SpearStyle::ssSelected), QColor(1, 200, 3, 200));
    QCOMPARE(style.textColor(SpearStyle::ssNormal), QColor(0, 0, 0));
    QCOMPARE(style.textBkColor(SpearStyle::ssSelected), QColor(200, 200, 110, 250));
    QVERIFY(shownPixmap(dialog).toImage() != before);
}

void TestSpearStyleSetters::shouldSetTheBackgroundColorOfTheChosenState()
{
    SpearStyle style;
    fillStyle(style);
    const SpearStyleDialog dialog(style);
    stateCombo(dialog)->setCurrentIndex(SpearStyle::ssLinked);
    QColor shown;
    bool showsAlpha = false;
    const ModalDriver<QColorDialog> user([&](QColorDialog &colors) {
        shown = colors.currentColor();
        showsAlpha = colors.testOption(QColorDialog::ShowAlphaChannel);
        colors.setCurrentColor(Qt::cyan);
        colors.accept();
    });
    click(dialog, "Set TextBkColor");
    QVERIFY(user.isDone());
    QCOMPARE(shown, QColor(200, 200, 130, 250));
    QVERIFY(showsAlpha);
    QCOMPARE(style.textBkColor(SpearStyle::ssLinked), QColor(Qt::cyan));
    QCOMPARE(style.textBkColor(SpearStyle::ssNormal), QColor(200, 200, 100, 250));
    QCOMPARE(style.textColor(SpearStyle::ssLinked), QColor(30, 0, 0));
    QVERIFY(pixelsOf(shownPixmap(dialog), Qt::cyan) > 0);
}

void TestSpearStyleSetters::shouldSetThePenOfTheChosenState()
{
    SpearStyle style;
    fillStyle(style);
    const SpearStyleDialog dialog(style);
    stateCombo(dialog)->setCurrentIndex(SpearStyle::ssHovered);
    const QImage before = shownPixmap(dialog).toImage();
    QPen shown;
    const ModalDriver<PenSelect> user([&](PenSelect &pens) {
        shown = pens.selectedPen();
        QTest::keyClicks(pens.findChild<QLineEdit *>(), QStringLiteral("5"));
        QTest::mouseClick(buttonWithText(pens, QStringLiteral("Accept")), Qt::LeftButton);
    });
    click(dialog, "Set BroderPen");
    QVERIFY(user.isDone());
    QCOMPARE(shown, QPen(QColor(0, 0, 120), 3));
    QCOMPARE(*style.broderPen(SpearStyle::ssHovered), QPen(QColor(0, 0, 120), 5));
    QCOMPARE(*style.broderPen(SpearStyle::ssNormal), QPen(QColor(0, 0, 100), 1));
    QVERIFY(shownPixmap(dialog).toImage() != before);
}

void TestSpearStyleSetters::shouldStartSubDialogsOnDefaultsWhenNothingIsSet()
{
    SpearStyle style;
    const SpearStyleDialog dialog(style);
    {
        QFont shown;
        const ModalDriver<QFontDialog> user([&](QFontDialog &fonts) {
            shown = fonts.currentFont();
            fonts.accept();
        });
        click(dialog, "Set TextFont");
        QVERIFY(user.isDone());
        QCOMPARE(shown.family(), QFontInfo(QFont()).family());
        QCOMPARE(shown.pointSize(), QFontInfo(QFont()).pointSize());
        QVERIFY(!style.textFont(SpearStyle::ssNormal)); // nothing was chosen
    }
    {
        const ModalDriver<QColorDialog> user([](QColorDialog &colors) { colors.accept(); });
        click(dialog, "Set TextColor");
        QVERIFY(user.isDone());
        QVERIFY(style.textColor(SpearStyle::ssNormal).isValid());
    }
    {
        QPen shown;
        const ModalDriver<PenSelect> user([&](PenSelect &pens) {
            shown = pens.selectedPen();
            pens.accept();
        });
        click(dialog, "Set BroderPen");
        QVERIFY(user.isDone());
        QCOMPARE(shown, QPen());
        QCOMPARE(*style.broderPen(SpearStyle::ssNormal), QPen());
    }
}

void TestSpearStyleSetters::shouldChangeNothingWhenASubDialogIsCancelled_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<bool>("isFilled");
    for (const char *const button :
         {"Set TextFont", "Set TextColor", "Set TextBkColor", "Set BroderPen"}) {
        QTest::addRow("%s, set", button) << QByteArray(button) << true;
        QTest::addRow("%s, unset", button) << QByteArray(button) << false;
    }
}

void TestSpearStyleSetters::shouldChangeNothingWhenASubDialogIsCancelled()
{
    QFETCH(QByteArray, button);
    QFETCH(bool, isFilled);
    SpearStyle style;
    if (isFilled)
        fillStyle(style);
    const QJsonObject before = written(style);
    const SpearStyleDialog dialog(style);
    const QImage preview = shownPixmap(dialog).toImage();
    const ModalDriver<QDialog> user([](QDialog &subDialog) {
        if (auto *const fonts = qobject_cast<QFontDialog *>(&subDialog))
            fonts->setCurrentFont(QFont(QStringLiteral("DejaVu Serif"), 30));
        if (auto *const colors = qobject_cast<QColorDialog *>(&subDialog))
            colors->setCurrentColor(Qt::green);
        if (auto *const pens = qobject_cast<PenSelect *>(&subDialog))
            pens->widthChanged(QStringLiteral("5"));
        QTest::keyClick(&subDialog, Qt::Key_Escape);
    });
    click(dialog, button.constData());
    QVERIFY(user.isDone());
    QCOMPARE(written(style), before);
    QCOMPARE(shownPixmap(dialog).toImage(), preview);
    QVERIFY(!dialog.findChild<QDialog *>());
}

void TestSpearStyleSetters::shouldSurviveItsEndWhileASubDialogIsOpen_data()
{
    QTest::addColumn<QByteArray>("slot");
    QTest::newRow("font") << QByteArray("openTextFont");
    QTest::newRow("text colour") << QByteArray("openTextColor");
    QTest::newRow("background colour") << QByteArray("openTextBkColor");
    QTest::newRow("pen") << QByteArray("openBroderPen");
}

void TestSpearStyleSetters::shouldSurviveItsEndWhileASubDialogIsOpen()
{
    QFETCH(QByteArray, slot);
    SpearStyle style;
    const QJsonObject before = written(style);
    const QPointer<SpearStyleDialog> dialog(new SpearStyleDialog(style));
    const ModalDriver<QDialog> user([&](QDialog &) { delete dialog.data(); });
    QVERIFY(QMetaObject::invokeMethod(dialog, slot.constData()));
    QVERIFY(user.isDone());
    QVERIFY(!dialog);
    QCOMPARE(written(style), before);
}

FISHBONE_TEST(TestSpearStyleSetters)
#include "tst_spearstylesetters.moc"
