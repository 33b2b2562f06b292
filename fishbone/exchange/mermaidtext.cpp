// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/mermaidtext.h>

#include <fishbone/exchange/exchangetext.h>

#include <QRegularExpression>
#include <QStringView>

namespace {

/** Stands for an empty title, which would leave no line: a space without width. */
const QLatin1String blankTitle("#8203;");

QString entity(QChar c)
{
    return QStringLiteral("#%1;").arg(c.unicode());
}

/** Whether @p title has a entity or a line break in the form of the format at @p i. */
bool looksSpecial(const QString &title, int i)
{
    static const QRegularExpression special(QStringLiteral("^(#[A-Za-z0-9]{1,10};|<br\\s?/?>)"),
                                            QRegularExpression::CaseInsensitiveOption);
    constexpr int longest = 12; // a match of the whole title would look at all of it each time
    return special.match(title.mid(i, longest)).hasMatch();
}

/** Whether the parser would take a title for the beginning of the diagram. */
bool looksLikeHeader(const QString &title)
{
    return title.startsWith(QLatin1String("ishikawa"), Qt::CaseInsensitive);
}

/** Whether a title has what would be taken for tags, and not shown. */
bool looksLikeTags(const QString &title)
{
    const int open = int(title.indexOf(QLatin1Char('<')));
    return open >= 0 && title.indexOf(QLatin1Char('>'), open) >= 0;
}

} // namespace

namespace MermaidText {

QString escaped(const QString &title)
{
    if (title.isEmpty())
        return blankTitle;
    const bool hasTags = looksLikeTags(title);
    QString text;
    for (int i = 0; i < title.size(); ++i) {
        const QChar c = title.at(i);
        const bool isEdge = i == 0 || i == title.size() - 1;
        const bool isComment = i == 0 && title.startsWith(QLatin1String("%%"));
        const bool isMark = c == QLatin1Char('#') || c == QLatin1Char('<');
        const bool isKeyword = i == 0 && looksLikeHeader(title);
        if (c == QLatin1Char('\n'))
            text.append(QLatin1String("<br/>"));
        else if (hasTags && c == QLatin1Char('<'))
            text.append(QLatin1String("#lt;"));
        else if (hasTags && c == QLatin1Char('>'))
            text.append(QLatin1String("#gt;"));
        else if (ExchangeText::isControl(c) || (isEdge && c.isSpace()) || isComment || isKeyword ||
                 (isMark && looksSpecial(title, i)))
            text.append(entity(c));
        else
            text.append(c);
    }
    return text;
}

QString unescaped(const QString &line)
{
    static const QRegularExpression special(QStringLiteral("#([A-Za-z0-9]{1,10});|<br\\s?/?>"),
                                            QRegularExpression::CaseInsensitiveOption);
    if (line == blankTitle)
        return QString();
    QString title;
    int end = 0;
    for (auto matches = special.globalMatch(line); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        title.append(QStringView(line).mid(end, match.capturedStart() - end).toString());
        end = match.capturedEnd();
        const QString name = match.captured(1);
        const bool isNumber = !name.isEmpty() && name.at(0).isDigit();
        const QString character =
            ExchangeText::referenced(isNumber ? QLatin1Char('#') + name : name);
        if (name.isEmpty())
            title.append(QLatin1Char('\n'));
        else
            title.append(character.isNull() ? match.captured() : character);
    }
    return title + line.mid(end);
}

} // namespace MermaidText
