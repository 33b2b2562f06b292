// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/exchangeformat.h>
#include <fishbone/exchange/exchangetext.h>
#include <fishbone/exchange/markdowninline.h>
#include <fishbone/exchange/markdownmarks.h>
#include <fishbone/exchange/markdownreader.h>
#include <fishbone/exchange/outlinewalk.h>

namespace {

/** Stands for an empty title: a mark alone could be taken for the underline of a heading. */
const QLatin1String emptyTitle("<!-- -->");

QString titleOf(const TreeItem &subject)
{
    const QChar box = MarkdownMarks::boxOfStatus(subject.status());
    const QString before = box.isNull() ? QString() : QStringLiteral("[%1] ").arg(box);
    if (!subject.url().isEmpty())
        return before + MarkdownInline::link(subject.title(), subject.url());
    return before +
           (subject.title().isEmpty() ? emptyTitle : MarkdownInline::escaped(subject.title()));
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
        text.append(line(indentation + QLatin1Char('>'), MarkdownInline::escaped(content)));
    return text;
}

bool read(const QByteArray &bytes, ImportedTree &tree)
{
    const std::optional<QString> text = ExchangeText::decode(bytes, tree);
    return text && MarkdownReader(*text, tree).read();
}

QByteArray write(const TreeItem &head)
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

bool keepsStatus(int status)
{
    return !MarkdownMarks::boxOfStatus(status).isNull();
}

} // namespace

const ExchangeFormat ExchangeFormats::markdown{
    DiagramExchange::Format::Markdown,
    "md",
    QT_TRANSLATE_NOOP("DiagramExchange", "Markdown outline"),
    "md markdown",
    "title children detail url status",
    read,
    write,
    keepsStatus};
