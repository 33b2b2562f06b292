// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/common/datefield.h>

#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QLocale>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <QVector>

#include <algorithm>

namespace {

/** The numbers in @p text, and how many digits each of them has. */
struct Numbers
{
    explicit Numbers(const QString &text)
    {
        bool isWithin = false;
        for (const QChar character : text) {
            if (character.isDigit()) {
                if (!isWithin) {
                    values.append(0);
                    digits.append(0);
                }
                values.last() = values.constLast() * 10 + character.digitValue();
                ++digits.last();
            }
            isWithin = character.isDigit();
        }
    }

    QVector<int> values;
    QVector<int> digits;
};

/** Day, month and year as letters, in the order that @p format has them in. */
QString orderOf(const QString &format)
{
    QString order;
    for (const QChar letter : format) {
        if (QStringLiteral("dMy").contains(letter) && !order.contains(letter))
            order.append(letter);
    }
    return order;
}

bool isMark(QChar character)
{
    return character.isDigit() || character.isPunct();
}

constexpr int longest = 10; ///< digits and marks of a date

} // namespace

DateField::DateField(QWidget *parent)
    : QDateEdit(parent)
{
    setCalendarPopup(true);
    followLanguage();
}

void DateField::followLanguage()
{
    const QLocale now;
    setLocale(now); // otherwise it is that of when its window was made
    setDisplayFormat(now.dateFormat(QLocale::ShortFormat));
}

/** Whether what is typed now is a whole date, not one number of that which is shown. */
bool DateField::isBeginning() const
{
    return m_isUntouched || lineEdit()->selectedText() == lineEdit()->text();
}

void DateField::keyPressEvent(QKeyEvent *event)
{
    const QString text = event->text();
    const bool isTyped = text.size() == 1 && isMark(text.at(0));
    if (isTyped && (!m_typed.isEmpty() || (isBeginning() && text.at(0).isDigit()))) {
        showTyped((m_typed + text).left(longest));
    } else if (event->key() == Qt::Key_Backspace && !m_typed.isEmpty()) {
        showTyped(m_typed.chopped(1));
    } else {
        endTyping();
        QDateEdit::keyPressEvent(event);
    }
}

void DateField::showTyped(const QString &text)
{
    m_typed = text;
    const QDate day = read(text);
    if (day.isValid())
        setDate(day); // at once, so that it can be applied
    const QSignalBlocker quiet(lineEdit());
    lineEdit()->setText(text);
}

/** Shows the date that is meant. */
void DateField::endTyping()
{
    m_isUntouched = false;
    if (m_typed.isEmpty())
        return;
    m_typed.clear();
    const QDate day = date();
    const QSignalBlocker quiet(this);
    lineEdit()->setText(textFromDateTime(QDateTime(day, QTime(0, 0))));
    setDate(day);
}

/** The date that @p text says; invalid when it does not say one. */
QDate DateField::read(const QString &text) const
{
    const Numbers numbers(text);
    if (numbers.values.size() != 3)
        return {};
    constexpr int full = 4;
    const QString order =
        numbers.digits.constFirst() == full ? QStringLiteral("yMd") : orderOf(displayFormat());
    const int year = int(order.indexOf(QLatin1Char('y')));
    if (year < 0 || (numbers.digits.at(year) != full && numbers.digits.at(year) != 2))
        return {};
    constexpr int century = 2000;
    const int shift = numbers.digits.at(year) == 2 ? century : 0;
    return QDate(numbers.values.at(year) + shift,
                 numbers.values.value(int(order.indexOf(QLatin1Char('M')))),
                 numbers.values.value(int(order.indexOf(QLatin1Char('d')))));
}

void DateField::mousePressEvent(QMouseEvent *event)
{
    endTyping();
    QDateEdit::mousePressEvent(event);
}

void DateField::focusInEvent(QFocusEvent *event)
{
    QDateEdit::focusInEvent(event);
    m_isUntouched =
        event->reason() != Qt::MouseFocusReason && event->reason() != Qt::PopupFocusReason;
}

void DateField::focusOutEvent(QFocusEvent *event)
{
    endTyping();
    QDateEdit::focusOutEvent(event);
}
