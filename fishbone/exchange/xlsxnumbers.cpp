// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/xlsxnumbers.h>

#include <QDateTime>
#include <QRegularExpression>

#include <cmath>

namespace {

/** Whether a form of numbers shows a date: it has one of the letters of dates outside of quotes. */
bool showsDate(const QString &form)
{
    static const QRegularExpression fixed(
        QStringLiteral("\"[^\"]*\"|\\\\.|_.|\\[[^\\]]*\\]|General"));
    QString letters = form;
    letters.remove(fixed);
    return letters.contains(
        QRegularExpression(QStringLiteral("[ymdhs]"), QRegularExpression::CaseInsensitiveOption));
}

/** Whether one of the forms that every program knows shows a date. */
bool isDateForm(int number)
{
    return (number >= 14 && number <= 22) || (number >= 27 && number <= 36) ||
           (number >= 45 && number <= 47) || (number >= 50 && number <= 58);
}

} // namespace

void XlsxNumbers::addStyle(int id)
{
    const QString form = m_forms.value(id);
    constexpr int percent = 9; // and the next one, with places behind the point
    const bool isDate = form.isEmpty() ? isDateForm(id) : showsDate(form);
    const bool isPercent =
        form.isEmpty() ? id == percent || id == percent + 1 : form.contains(QLatin1Char('%'));
    m_styles.append(isDate ? Kind::Date : isPercent ? Kind::Percent : Kind::Plain);
}

QString XlsxNumbers::text(const QString &value, int style) const
{
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    constexpr double farthest = 3000000; // days; some thousand years
    const Kind kind = m_styles.value(style, Kind::Plain);
    if (!isNumber || kind == Kind::Plain)
        return value;
    if (kind == Kind::Percent)
        return QString::number(number * 100, 'g', 12) + QLatin1Char('%');
    if (number < 0 || number > farthest)
        return value;
    constexpr qint64 millisecondsOfDay = 86400000;
    const QDate epoch = m_isSince1904 ? QDate(1904, 1, 1) : QDate(1899, 12, 30);
    const qint64 milliseconds = std::llround(number * double(millisecondsOfDay));
    const QDate day = epoch.addDays(milliseconds / millisecondsOfDay);
    const QTime time = QTime::fromMSecsSinceStartOfDay(int(milliseconds % millisecondsOfDay));
    const QString date = day.toString(Qt::ISODate);
    return time.msecsSinceStartOfDay() == 0
               ? date
               : date + QLatin1Char('T') + time.toString(Qt::ISODateWithMs);
}
