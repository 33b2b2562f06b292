// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/markdownescapes.h>

#include <fishbone/exchange/exchangetext.h>

#include <QRegularExpression>

#include <algorithm>

namespace {

/** Whether a reference such as "&amp;" begins at @p i. */
bool isReference(const QString &text, int i)
{
    static const QRegularExpression reference(QStringLiteral("^&#?[A-Za-z0-9]{1,10};"));
    constexpr int longest = 13;
    return reference.match(text.mid(i, longest)).hasMatch();
}

/** Whether the character at @p i would begin something other than text in front of a line. */
bool marksBeginning(const QString &text, int i)
{
    const QChar c = text.at(i);
    if (i == 0)
        return QStringLiteral("-+#>=~|").contains(c);
    if (c != QLatin1Char('.') && c != QLatin1Char(')'))
        return false;
    // Behind digits alone, it makes a numbered item. No number of an item is longer.
    constexpr int longest = 9;
    return i <= longest && std::all_of(text.cbegin(), text.cbegin() + i,
                                       [](QChar digit) { return digit.isDigit(); });
}

bool needsBackslash(const QString &text, int i)
{
    const QChar c = text.at(i);
    if (QStringLiteral("\\`*[]<").contains(c) || marksBeginning(text, i))
        return true;
    if (c == QLatin1Char('#'))
        return i == text.size() - 1; // as the end of a heading it would be left out
    if (c == QLatin1Char('&'))
        return isReference(text, i);
    if (c != QLatin1Char('_'))
        return false;
    const bool isInWord = i > 0 && i + 1 < text.size() && text.at(i - 1).isLetterOrNumber() &&
                          text.at(i + 1).isLetterOrNumber();
    return !isInWord;
}

QString reference(QChar c)
{
    return QStringLiteral("&#%1;").arg(c.unicode());
}

} // namespace

namespace MarkdownEscapes {

QString escaped(const QString &text)
{
    QString markdown;
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        const bool isEdge = i == 0 || i == text.size() - 1;
        if (c == QLatin1Char('\n')) {
            markdown.append(QLatin1String("<br>"));
        } else if (ExchangeText::isControl(c) || (isEdge && c.isSpace())) {
            markdown.append(reference(c));
        } else {
            if (needsBackslash(text, i))
                markdown.append(QLatin1Char('\\'));
            markdown.append(c);
        }
    }
    return markdown;
}

QString link(const QString &text, const QString &url)
{
    QString target;
    for (int i = 0; i < url.size(); ++i) {
        const QChar c = url.at(i);
        if (ExchangeText::isControl(c) || QStringLiteral("\\<>").contains(c) ||
            (c == QLatin1Char('&') && isReference(url, i)))
            target.append(reference(c));
        else
            target.append(c);
    }
    const bool isPlain = std::none_of(url.cbegin(), url.cend(), [](QChar c) {
        return c.isSpace() || QStringLiteral("()").contains(c);
    });
    if (!isPlain)
        target = QLatin1Char('<') + target + QLatin1Char('>');
    return QStringLiteral("[%1](%2)").arg(escaped(text), target);
}

} // namespace MarkdownEscapes
