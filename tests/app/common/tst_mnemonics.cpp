// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/common/translationfile.h>

#include <tests/program/testprogram.h>

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QtTest>

namespace {

/** The pixels that two letters such as "To" share, which they do not when one is underlined. Menus
 * and buttons have more room than that around a text. */
constexpr int shared = 3;

/** The columns of pixels that @p text takes when it is drawn with @p flags. */
int inkWidth(const QString &text, int flags)
{
    const QFontMetrics metrics(QApplication::font());
    constexpr int margin = 40;
    QImage image(metrics.horizontalAdvance(text) * 2 + 2 * margin, metrics.height() * 2,
                 QImage::Format_Grayscale8);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setFont(QApplication::font());
    painter.drawText(image.rect().adjusted(margin, 0, -margin, 0), flags, text);
    painter.end();
    int first = image.width();
    int last = -1;
    for (int y = 0; y < image.height(); ++y) {
        const uchar *const line = image.constScanLine(y);
        for (int x = 0; x < image.width(); ++x) {
            if (line[x] < 128) {
                first = qMin(first, x);
                last = qMax(last, x);
            }
        }
    }
    return qMax(0, last - first + 1);
}

/** What @p text takes more, with the letter of its menu key underlined, than the place that widgets
 * measure for it, in pixels. */
int growth(const QString &text)
{
    const QFontMetrics metrics(QApplication::font());
    return inkWidth(text, Qt::AlignCenter | Qt::TextShowMnemonic) -
           metrics.size(Qt::TextShowMnemonic, text).width();
}

} // namespace

/**
 * The letters that are underlined in menus and dialogs, as they are drawn: a letter that is joined
 * to the next ones would be drawn alone, and the text would be wider than the place that was
 * measured for it.
 */
class TestMnemonics : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldDrawNoTextWiderThanItIsMeasured_data();
    void shouldDrawNoTextWiderThanItIsMeasured();
    void shouldSeeAJoinedLetterThatIsUnderlined();
};

void TestMnemonics::shouldDrawNoTextWiderThanItIsMeasured_data()
{
    QTest::addColumn<QString>("language");
    const QStringList all = Translations::translatedLanguages();
    for (const QString &language : all)
        QTest::newRow(qPrintable(language)) << language;
}

void TestMnemonics::shouldDrawNoTextWiderThanItIsMeasured()
{
    QFETCH(QString, language);
    const QVector<Translations::Text> texts = Translations::readTexts(language);
    QStringList wide;
    int count = 0;
    for (const Translations::Text &text : texts) {
        for (const QString &form : text.forms) {
            if (!form.contains(QLatin1Char('&')) || form.contains(QLatin1Char('<')))
                continue;
            ++count;
            if (const int pixels = growth(form); pixels > shared)
                wide.append(QStringLiteral("%1 by %2").arg(form).arg(pixels));
        }
    }
    QVERIFY(count > 100);
    QCOMPARE(wide.join(QLatin1Char('\n')), QString());
}

/** That the check above is one: within an Arabic word the underlined letter tears it apart. */
void TestMnemonics::shouldSeeAJoinedLetterThatIsUnderlined()
{
    QVERIFY(inkWidth(QStringLiteral("Save"), Qt::AlignCenter) > 10);
    const QString torn = QString::fromUtf8("تح&ديد ال&كل");
    QVERIFY2(growth(torn) > shared, qPrintable(QString::number(growth(torn))));
}

FISHBONE_TEST(TestMnemonics)
#include "tst_mnemonics.moc"
