// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/taskwords.h>

#include <QLocale>

namespace {

constexpr int months = 12;

/** A name of a month as it is compared; some languages end short ones with a dot. */
QString plainMonth(const QString &name)
{
    QString plain = TaskWords::compared(name);
    if (plain.endsWith(QLatin1Char('.')))
        plain.chop(1);
    return plain;
}

void addMonths(QHash<QString, int> &numbers, const QLocale &locale)
{
    for (int month = 1; month <= months; ++month) {
        for (const QLocale::FormatType format : {QLocale::ShortFormat, QLocale::LongFormat}) {
            for (const QString &name :
                 {locale.monthName(month, format), locale.standaloneMonthName(month, format)})
                numbers.insert(plainMonth(name), month);
        }
    }
}

/** What spreadsheets and trackers write in short where the toolkit has another form. */
void addShortMonths(QHash<QString, int> &numbers)
{
    for (const char *names : {"jan|feb|mär|apr|mai|jun|jul|aug|sep|okt|nov|dez",
                              "janv|févr|mars|avr|mai|juin|juil|août|sept|oct|nov|déc",
                              "ene|feb|mar|abr|may|jun|jul|ago|sep|oct|nov|dic",
                              "янв|фев|мар|апр|мая|июн|июл|авг|сен|окт|ноя|дек"}) {
        const QStringList listed = QString::fromUtf8(names).split(QLatin1Char('|'));
        for (int i = 0; i < listed.size(); ++i)
            numbers.insert(plainMonth(listed.at(i)), i + 1);
    }
}

} // namespace

QStringList TaskWords::listed(const Entry &entry)
{
    return QString::fromUtf8(entry.words).split(QLatin1Char('|'));
}

QString TaskWords::compared(const QString &text)
{
    QString plain = text.normalized(QString::NormalizationForm_KC).toLower();
    return plain.replace(QChar(u'\u2019'), QLatin1Char('\'')).trimmed(); // either is written
}

int TaskWords::monthOf(const QString &name)
{
    static const QHash<QString, int> numbers = [] {
        QHash<QString, int> all;
        addShortMonths(all);
        for (const char *language :
             {"ar", "zh", "zh_TW", "ko", "ja", "ru", "pl", "it", "pt_BR", "es", "fr", "de", "en"})
            addMonths(all, QLocale(QLatin1String(language)));
        return all;
    }();
    return numbers.value(plainMonth(name));
}
