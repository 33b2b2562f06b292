// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/exchangeformat.h>
#include <fishbone/exchange/exchangetext.h>
#include <fishbone/exchange/markdownescapes.h>
#include <fishbone/exchange/markdownmarks.h>
#include <fishbone/exchange/markdownreader.h>
#include <fishbone/exchange/outlinewalk.h>
#include <fishbone/model/jsonnodes.h>

namespace {

/** Stands for an empty title: a mark alone could be taken for the underline of a heading. */
const QLatin1String emptyTitle("<!-- -->");

/** Whether the short id of a subject is the number of an issue, which stands in front of the title
 * of a task. */
bool hasIssue(const TreeItem &subject)
{
    return !MarkdownMarks::boxOfStatus(subject.status()).isNull() && !subject.showid().isEmpty() &&
           !subject.title().isEmpty() &&
           MarkdownMarks::issueLength(subject.showid()) == subject.showid().size();
}

/** The title or link behind the box of a task. */
QString contentOf(const TreeItem &subject)
{
    if (!subject.url().isEmpty())
        return MarkdownEscapes::link(subject.title(), subject.url());
    if (subject.title().isEmpty())
        return emptyTitle;
    const QString text = MarkdownEscapes::escaped(subject.title());
    if (MarkdownMarks::issueLength(text) == 0)
        return text;
    // The beginning of the title would be taken for the number of an issue.
    return QStringLiteral("&#%1;").arg(text.at(0).unicode()) + text.mid(1);
}

QString titleOf(const TreeItem &subject)
{
    const QChar box = MarkdownMarks::boxOfStatus(subject.status());
    if (box.isNull())
        return contentOf(subject);
    const QString issue = hasIssue(subject) ? subject.showid() + QLatin1Char(' ') : QString();
    return QStringLiteral("[%1] ").arg(box) + issue + contentOf(subject);
}

/** A line that begins with @p mark, which stands alone before an empty text. */
QString line(const QString &mark, const QString &text)
{
    return (text.isEmpty() ? mark : mark + QLatin1Char(' ') + text) + QLatin1Char('\n');
}

/** The detail of a subject as a quotation, each line behind @p indentation. */
QString quotation(const TreeItem &subject, const QString &indentation)
{
    QString text;
    if (subject.detail().isEmpty())
        return text;
    const QStringList lines = subject.detail().split(QLatin1Char('\n'));
    for (const QString &content : lines)
        text.append(line(indentation + QLatin1Char('>'), MarkdownEscapes::escaped(content)));
    return text;
}

bool readMarkdown(const QByteArray &bytes, ImportedTree &tree)
{
    const std::optional<QString> text = ExchangeText::decode(bytes, tree);
    return text && MarkdownReader(*text, tree).read();
}

QByteArray writeMarkdown(const TreeItem &head)
{
    constexpr int indentation = 2; // the text of an item begins behind its mark
    QString text = line(QStringLiteral("#"), titleOf(head));
    const QString detail = quotation(head, QString());
    if (!detail.isEmpty())
        text.append(QLatin1Char('\n') + detail);
    if (head.childCount() > 0)
        text.append(QLatin1Char('\n'));
    OutlineWalk::walk(head, [&text](const TreeItem &subject, int level) {
        if (level == 0)
            return;
        const QString before((level - 1) * indentation, QLatin1Char(' '));
        text.append(line(before + QLatin1Char('-'), titleOf(subject)));
        text.append(quotation(subject, before + QLatin1String("  ")));
    });
    return text.toUtf8();
}

bool keeps(const TreeItem &subject, QLatin1String key)
{
    if (key == JsonNodes::statusKey)
        return !MarkdownMarks::boxOfStatus(subject.status()).isNull();
    if (key == JsonNodes::showidKey)
        return hasIssue(subject);
    return key == JsonNodes::detailKey || key == JsonNodes::urlKey;
}

} // namespace

const ExchangeFormat ExchangeFormats::markdown{
    DiagramExchange::Format::Markdown,
    "md",
    QT_TRANSLATE_NOOP("DiagramExchange", "Markdown outline"),
    "md markdown",
    "title children detail url status",
    readMarkdown,
    writeMarkdown,
    nullptr,
    keeps};
