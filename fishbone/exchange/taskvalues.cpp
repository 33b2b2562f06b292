// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/taskvalues.h>

#include <fishbone/exchange/taskstatuses.h>
#include <fishbone/exchange/taskwords.h>

#include <QDateTime>
#include <QHash>
#include <QRegularExpression>
#include <QStringList>

#include <cmath>

namespace {

/** A word in the form in which words are compared. */
QString plainWord(const QString &text)
{
    QString word = TaskWords::compared(text);
    word.replace(QLatin1Char('_'), QLatin1Char(' '));
    word.replace(QLatin1Char('-'), QLatin1Char(' '));
    word.remove(QLatin1Char('\''));
    return word.simplified();
}

QHash<QString, int> wordsOf(const TaskWords::Table &table)
{
    QHash<QString, int> words;
    for (const TaskWords::Entry &entry : table) {
        const QStringList listed = TaskWords::listed(entry);
        for (const QString &word : listed)
            words.insert(plainWord(word), entry.meaning);
    }
    return words;
}

/** @p text with the digits of all scripts as 0 to 9, and the signs that go with those of Arabic. */
QString withPlainDigits(const QString &text)
{
    QString plain;
    for (const QChar c : text) {
        const int digit = c.isDigit() ? c.digitValue() : -1;
        if (c == QChar(u'\u066a'))
            plain.append(QLatin1Char('%'));
        else if (c == QChar(u'\u066b'))
            plain.append(QLatin1Char('.'));
        else if (c != QChar(u'\u200e') && c != QChar(u'\u200f')) // marks of direction
            plain.append(digit < 0 ? c : QChar(u'0' + digit));
    }
    return plain.trimmed();
}

std::optional<int> numberOrWord(const QString &text, const QHash<QString, int> &words)
{
    const QString trimmed = withPlainDigits(text);
    bool isNumber = false;
    const int number = trimmed.toInt(&isNumber);
    if (isNumber)
        return number;
    const auto found = words.constFind(plainWord(trimmed));
    return found == words.constEnd() ? std::nullopt : std::make_optional(*found);
}

/** A level with a number and a word, "2 - High", of which the number counts. */
std::optional<int> numberBeforeAWord(const QString &text)
{
    static const QRegularExpression form(
        QStringLiteral("^\\s*[Pp]?([0-9])\\s*[-.:]\\s*[\\p{L} ]{1,30}$"));
    const auto match = form.match(text.left(50));
    return match.hasMatch() ? std::make_optional(match.captured(1).toInt()) : std::nullopt;
}

int fullYear(const QString &digits)
{
    const int year = digits.toInt();
    constexpr int pivot = 70; // two digits from here on belong to the last century
    if (digits.size() > 2)
        return year;
    return year + (year < pivot ? 2000 : 1900);
}

/** A day and what is left of the text behind it. */
struct Day
{
    QDate date;
    QString rest;
};

Day dayOf(const QRegularExpressionMatch &match, const QDate &date, const QString &text)
{
    return {date, text.mid(match.capturedEnd()).trimmed()};
}

/** A day written with the month as a number. */
Day numberedDay(const QString &text, TaskValues::NumberOrder order)
{
    static const QRegularExpression yearFirst(
        QStringLiteral("^(\\d{4})[-/.]\\s?(\\d{1,2})[-/.]\\s?(\\d{1,2})\\.?(?=\\D|$)"));
    static const QRegularExpression signs(
        QString::fromUtf8("^(\\d{4})\\s*[年년]\\s*(\\d{1,2})\\s*[月월]\\s*(\\d{1,2})\\s*[日일]?"));
    static const QRegularExpression dotted(
        QStringLiteral("^(\\d{1,2})\\.\\s?(\\d{1,2})\\.\\s?(\\d{4}|\\d{2})(?=\\D|$)"));
    static const QRegularExpression slashed(
        QStringLiteral("^(\\d{1,2})/(\\d{1,2})/(\\d{4}|\\d{2})(?=\\D|$)"));
    for (const QRegularExpression &form : {yearFirst, signs}) {
        if (const auto match = form.match(text); match.hasMatch())
            return dayOf(match,
                         QDate(match.captured(1).toInt(), match.captured(2).toInt(),
                               match.captured(3).toInt()),
                         text);
    }
    if (const auto match = dotted.match(text); match.hasMatch())
        return dayOf(match,
                     QDate(fullYear(match.captured(3)), match.captured(2).toInt(),
                           match.captured(1).toInt()),
                     text);
    if (const auto match = slashed.match(text); match.hasMatch()) {
        const bool monthFirst = order == TaskValues::NumberOrder::MonthFirst;
        return dayOf(match,
                     QDate(fullYear(match.captured(3)), match.captured(monthFirst ? 1 : 2).toInt(),
                           match.captured(monthFirst ? 2 : 1).toInt()),
                     text);
    }
    return {};
}

/** The number of the month called @p name, in English also by more letters than are usual. */
int monthOf(const QString &name)
{
    const int month = TaskWords::monthOf(name);
    return month > 0 ? month : TaskWords::monthOf(name.left(3));
}

/** A day written with the name of the month: "3 Mar 2024", "3. März 2024", "3 de marzo de 2024",
 * "March 3rd, 2024". */
Day namedDay(const QString &text)
{
    static const QRegularExpression dayFirst(
        QString::fromUtf8("^(?:\\p{L}{2,20}\\.?,?\\s+)?(\\d{1,2})(?:er)?\\.?[-/\\s.]\\s?(?:de )?"
                          "((?:[\\p{L}\\p{M}]{3,12}|\\d{1,2}[月월]))\\.?[-/\\s.,]\\s?(?:de )?"
                          "(\\d{4}|\\d{2})(?:\\s?г\\.)?(?=\\D|$)"));
    static const QRegularExpression monthFirst(QStringLiteral(
        "^(?:[A-Za-z]{3,9},?\\s+)?([A-Za-z]{3,9})\\.?\\s+(\\d{1,2})(?:st|nd|rd|th)?,?\\s+(\\d{4})"
        "(?=\\D|$)"));
    if (const auto match = dayFirst.match(text); match.hasMatch())
        return dayOf(match,
                     QDate(fullYear(match.captured(3)), monthOf(match.captured(2)),
                           match.captured(1).toInt()),
                     text);
    if (const auto match = monthFirst.match(text); match.hasMatch())
        return dayOf(
            match,
            QDate(match.captured(3).toInt(), monthOf(match.captured(1)), match.captured(2).toInt()),
            text);
    return {};
}

/** The time of a day that @p text tells, with its zone; nothing when it tells something else. */
std::optional<QDateTime> timeOf(const QDate &day, const QString &text)
{
    static const QRegularExpression form(QStringLiteral(
        "^(?:T|at|,)?\\s*(\\d{1,2}):(\\d{2})(?::(\\d{2})(?:[.,](\\d{1,3})\\d*)?)?"
        "\\s*([AaPp][Mm])?\\s*(?:(Z|UTC|GMT)?\\s*([+-]\\d{2}):?(\\d{2})?|(Z|UTC|GMT))"
        "?\\s*(?:\\([^)]*\\))?$"));
    const auto match = form.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    int hour = match.captured(1).toInt();
    const QString half = match.captured(5).toLower();
    if (!half.isEmpty())
        hour = hour % 12 + (half == QLatin1String("pm") ? 12 : 0);
    const int milliseconds = match.captured(4).leftJustified(3, QLatin1Char('0')).toInt();
    const QTime time(hour, match.captured(2).toInt(), match.captured(3).toInt(),
                     match.captured(4).isEmpty() ? 0 : milliseconds);
    if (!time.isValid())
        return std::nullopt;
    if (!match.captured(9).isEmpty())
        return QDateTime(day, time, Qt::UTC);
    if (match.captured(7).isEmpty())
        return QDateTime(day, time);
    const int hours = match.captured(7).toInt();
    const int minutes = match.captured(8).toInt();
    const bool isWest = match.captured(7).startsWith(QLatin1Char('-'));
    const int offset = hours * 3600 + (isWest ? -minutes : minutes) * 60;
    return QDateTime(day, time, Qt::UTC).addSecs(-offset);
}

} // namespace

namespace TaskValues {

std::optional<int> status(const QString &text)
{
    static const QHash<QString, int> words = wordsOf(TaskWords::statuses());
    return numberOrWord(text, words);
}

std::optional<int> storyState(const QString &text)
{
    const QString word = plainWord(text);
    if (word == QLatin1String("delivered"))
        return TaskStatuses::approval;
    if (word == QLatin1String("rejected"))
        return TaskStatuses::waiting;
    return status(text);
}

std::optional<int> priority(const QString &text)
{
    static const QHash<QString, int> words = wordsOf(TaskWords::priorities());
    const std::optional<int> level = numberBeforeAWord(text);
    return level ? level : numberOrWord(text, words);
}

Verdict verdict(const QString &text)
{
    static const QHash<QString, int> words = wordsOf(TaskWords::verdicts());
    return Verdict(words.value(plainWord(text), int(Verdict::None)));
}

std::optional<int> progress(const QString &text)
{
    QString number = withPlainDigits(text);
    const bool isPercent = number.endsWith(QLatin1Char('%')) || number.endsWith(QChar(u'\uff05'));
    if (isPercent)
        number = number.chopped(1).trimmed();
    bool isWhole = false;
    const int whole = number.toInt(&isWhole);
    if (isWhole)
        return whole;
    bool isNumber = false;
    const double value = number.replace(QLatin1Char(','), QLatin1Char('.')).toDouble(&isNumber);
    const double percent = isPercent ? value : value * 100;
    const bool fits = isNumber && percent >= 0 && percent <= 100 &&
                      std::abs(percent - std::round(percent)) < 1e-9;
    return fits ? std::make_optional(int(std::lround(percent))) : std::nullopt;
}

std::optional<qint64> date(const QString &text, NumberOrder order)
{
    const QString trimmed = withPlainDigits(text);
    bool isNumber = false;
    const qint64 number = trimmed.toLongLong(&isNumber);
    if (isNumber)
        return number;
    const QDateTime iso = QDateTime::fromString(trimmed, Qt::ISODateWithMs);
    if (iso.isValid())
        return iso.toMSecsSinceEpoch();
    constexpr int longest = 80;
    if (trimmed.size() > longest)
        return std::nullopt;
    Day day = numberedDay(trimmed, order);
    if (!day.date.isValid())
        day = namedDay(trimmed);
    if (!day.date.isValid())
        return std::nullopt;
    if (day.rest.isEmpty())
        return day.date.startOfDay().toMSecsSinceEpoch();
    const std::optional<QDateTime> time = timeOf(day.date, day.rest);
    return time ? std::make_optional(time->toMSecsSinceEpoch()) : std::nullopt;
}

std::optional<std::pair<int, int>> slashedNumbers(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("^\\s*(\\d{1,2})/(\\d{1,2})/\\d{2,4}\\b"));
    const auto match = form.match(withPlainDigits(text.left(20)));
    if (!match.hasMatch())
        return std::nullopt;
    return std::make_pair(match.captured(1).toInt(), match.captured(2).toInt());
}

} // namespace TaskValues
