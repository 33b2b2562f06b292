// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/diagramexchange.h>
#include <fishbone/exchange/exchangetext.h>
#include <fishbone/exchange/foreignformats.h>
#include <fishbone/exchange/importedtree.h>
#include <fishbone/exchange/outlinewalk.h>

#include <QRegularExpression>

namespace {

/** Stands for an empty title, which would leave no line: a space without width. */
const QLatin1String emptyTitle("#8203;");

QString reference(QChar c)
{
    return QStringLiteral("#%1;").arg(c.unicode());
}

/** Whether @p title has a reference or a line break in the form of the format at @p i. */
bool looksSpecial(const QString &title, int i)
{
    static const QRegularExpression special(QStringLiteral("^(#[A-Za-z0-9]{1,10};|<br\\s?/?>)"),
                                            QRegularExpression::CaseInsensitiveOption);
    constexpr int longest = 12; // a match of the whole title would look at all of it each time
    return special.match(title.mid(i, longest)).hasMatch();
}

QString escaped(const QString &title)
{
    if (title.isEmpty())
        return emptyTitle;
    QString text;
    for (int i = 0; i < title.size(); ++i) {
        const QChar c = title.at(i);
        const bool isEdge = i == 0 || i == title.size() - 1;
        const bool isComment = i == 0 && title.startsWith(QLatin1String("%%"));
        const bool isMark = c == QLatin1Char('#') || c == QLatin1Char('<');
        if (c == QLatin1Char('\n'))
            text.append(QLatin1String("<br/>"));
        else if (ExchangeText::isControl(c) || (isEdge && c.isSpace()) || isComment ||
                 (isMark && looksSpecial(title, i)))
            text.append(reference(c));
        else
            text.append(c);
    }
    return text;
}

QString unescaped(const QString &line)
{
    static const QRegularExpression special(QStringLiteral("#([A-Za-z0-9]{1,10});|<br\\s?/?>"),
                                            QRegularExpression::CaseInsensitiveOption);
    if (line == emptyTitle)
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

bool isHeader(const QString &line)
{
    return line == QLatin1String("ishikawa") || line == QLatin1String("ishikawa-beta");
}

/** Goes on to the next line that is no comment and not empty; false at the end. */
bool nextLine(ExchangeText::Lines &lines)
{
    while (lines.next()) {
        if (!lines.text().isEmpty() && !lines.text().startsWith(QLatin1String("%%")))
            return true;
    }
    return false;
}

/** Goes past the settings that may stand before the diagram between two lines of dashes. */
bool skipSettings(ExchangeText::Lines &lines)
{
    const QLatin1String border("---");
    if (!nextLine(lines))
        return false;
    if (lines.text() != border)
        return true;
    while (lines.next() && lines.text() != border) {
    }
    return nextLine(lines);
}

} // namespace

bool MermaidFormat::read(const QByteArray &bytes, ImportedTree &tree)
{
    const std::optional<QString> text = ExchangeText::decode(bytes, tree);
    if (!text)
        return false;
    ExchangeText::Lines lines(*text);
    if (!skipSettings(lines) || !isHeader(lines.text()))
        return tree.fail(lines.number(),
                         DiagramExchange::tr("the diagram does not begin with \"ishikawa\""));
    // All that follows lies below the first line, also where it is not indented further.
    constexpr int headRank = -1;
    while (nextLine(lines)) {
        const int rank = tree.count() == 0 ? headRank : lines.indentation();
        if (!tree.add(rank, unescaped(lines.text()), lines.number()))
            return false;
    }
    return true;
}

QByteArray MermaidFormat::write(const TreeItem &head)
{
    constexpr int indentation = 2;
    QByteArray bytes = "ishikawa\n";
    OutlineWalk::walk(head, [&bytes](const TreeItem &subject, int level) {
        bytes += QByteArray((level + 1) * indentation, ' ');
        bytes += escaped(subject.title()).toUtf8() + '\n';
    });
    return bytes;
}
