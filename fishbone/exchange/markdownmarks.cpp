// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/markdownmarks.h>

#include <fishbone/exchange/taskstatuses.h>

#include <QRegularExpression>

namespace {

constexpr int highestHeading = 6;

/** The boxes of tasks: the empty one and the ticked one are everybody's, the others those of note
 * taking programs. */
struct TaskBox
{
    char16_t mark;
    int status;
};

constexpr TaskBox boxes[] = {{u'x', TaskStatuses::finished},  {u' ', TaskStatuses::waiting},
                             {u'/', TaskStatuses::running},   {u'-', TaskStatuses::cancelled},
                             {u'~', TaskStatuses::cancelled}, {u'>', TaskStatuses::postponed}};

} // namespace

namespace MarkdownMarks {

bool isRule(const QString &text)
{
    static const QRegularExpression rule(
        QStringLiteral("^(-[ \\t]*){3,}$|^(\\*[ \\t]*){3,}$|^(_[ \\t]*){3,}$"));
    constexpr int longest = 200; // any longer would be a strange one
    return text.size() <= longest && rule.match(text).hasMatch();
}

int underlineLevel(const QString &text)
{
    for (const char mark : {'=', '-'}) {
        if (!text.isEmpty() && text.count(QLatin1Char(mark)) == text.size())
            return mark == '=' ? 1 : 2;
    }
    return 0;
}

int headingLevel(const QString &text)
{
    int level = 0;
    while (level < text.size() && text.at(level) == QLatin1Char('#'))
        ++level;
    const bool isHeading =
        level <= highestHeading && (level == text.size() || text.at(level).isSpace());
    return isHeading ? level : 0;
}

QString headingText(const QString &heading, int level)
{
    const QString text = heading.mid(level).trimmed();
    int end = int(text.size());
    while (end > 0 && text.at(end - 1) == QLatin1Char('#'))
        --end;
    const bool isClosed = end == 0 || text.at(end - 1).isSpace();
    return isClosed ? text.left(end).trimmed() : text;
}

int itemMarkLength(const QString &text)
{
    static const QRegularExpression mark(QStringLiteral("^([-*+]|[0-9]{1,9}[.)])([ \\t]|$)"));
    constexpr int longest = 11;
    return int(mark.match(text.left(longest)).capturedLength(1));
}

int fenceLength(const QString &text)
{
    for (const QChar mark : {QLatin1Char('`'), QLatin1Char('~')}) {
        int length = 0;
        while (length < text.size() && text.at(length) == mark)
            ++length;
        constexpr int shortest = 3;
        // Behind a fence of backticks there is none; else it is code within a line.
        const bool isSpan = mark == QLatin1Char('`') && text.indexOf(mark, length) >= 0;
        if (length >= shortest && !isSpan)
            return length;
    }
    return 0;
}

int boxLength(const QString &title)
{
    constexpr int length = 3;
    const bool isBox = title.size() >= length && title.at(0) == QLatin1Char('[') &&
                       title.at(2) == QLatin1Char(']') &&
                       (title.size() == length || title.at(length).isSpace()) &&
                       statusOfBox(title.at(1)) >= 0;
    return isBox ? length : 0;
}

int statusOfBox(QChar mark)
{
    for (const TaskBox &box : boxes) {
        if (mark.toLower() == QChar(box.mark))
            return box.status;
    }
    return -1;
}

int issueLength(const QString &title)
{
    static const QRegularExpression issue(
        QStringLiteral("^(?:[\\w.-]{1,100}(?:/[\\w.-]{1,100}){1,5})?[#!]\\d{1,9}(?=\\s|$)"));
    return int(issue.match(title).capturedLength());
}

QChar boxOfStatus(int status)
{
    for (const TaskBox &box : boxes) {
        if (status == box.status)
            return QChar(box.mark);
    }
    return QChar();
}

} // namespace MarkdownMarks
