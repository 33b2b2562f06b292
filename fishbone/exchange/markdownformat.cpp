// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/exchangetext.h>
#include <fishbone/exchange/foreignformats.h>
#include <fishbone/exchange/importedtree.h>
#include <fishbone/exchange/markdowninline.h>
#include <fishbone/exchange/outlinewalk.h>

#include <QRegularExpression>

#include <utility>

namespace {

using MarkdownInline::Kind;

/** Where the subjects of list items rank: below all headings, and by their indentation. */
constexpr int itemRank = 10;
constexpr int highestHeading = 6;

/** Builds a tree of the lines of an outline. */
class OutlineReader
{
public:
    explicit OutlineReader(ImportedTree &tree)
        : m_tree(tree)
    {
    }

    /** Takes the next line; false when the tree failed. */
    bool take(const ExchangeText::Lines &line)
    {
        const QString &text = line.text();
        const bool continuesTitle = std::exchange(m_titleMayGoOn, false);
        if (endsOrBeginsCode(text))
            return true;
        if (!m_fence.isEmpty()) {
            addDetail(text);
            return true;
        }
        if (text.isEmpty()) {
            m_followsBlank = true;
            return true;
        }
        if (isRule(text))
            return true;
        if (const int level = headingLevel(text); level > 0)
            return addSubject(level, headingText(text, level), line.number());
        if (const int length = itemMarkLength(text); length > 0) {
            m_titleMayGoOn = true;
            return addSubject(itemRank + line.indentation(), text.mid(length).trimmed(),
                              line.number());
        }
        return takeParagraph(text, line.number(), continuesTitle);
    }

    /** To be called after the last line. */
    void finish()
    {
        if (TreeItem *const subject = m_tree.last()) {
            const MarkdownInline::Content title =
                MarkdownInline::read(m_title.join(QLatin1Char(' ')), Kind::Title);
            subject->setTitle(title.text);
            subject->setUrl(title.url);
            subject->setDetail(m_detail.join(QLatin1Char('\n')));
        }
        m_detail.clear();
        m_followsBlank = false;
    }

private:
    static QString read(const QString &markdown)
    {
        return MarkdownInline::read(markdown, Kind::Detail).text;
    }

    /** Takes a line of a paragraph or a quotation. */
    bool takeParagraph(const QString &text, qint64 line, bool continuesTitle)
    {
        if (text.startsWith(QLatin1Char('>'))) {
            addDetail(read(text.mid(1).trimmed()));
            return true;
        }
        m_titleMayGoOn = continuesTitle || !m_tree.last();
        if (!m_tree.last())
            return addSubject(0, text, line); // the problem itself, above its causes
        if (continuesTitle)
            m_title.append(text);
        else
            addDetail(read(text));
        return true;
    }

    bool addSubject(int rank, const QString &markdown, qint64 line)
    {
        finish();
        m_title = QStringList(markdown);
        return m_tree.add(rank, QString(), line);
    }

    void addDetail(const QString &text)
    {
        if (m_followsBlank && !m_detail.isEmpty())
            m_detail.append(QString());
        m_followsBlank = false;
        m_detail.append(text);
    }

    /** Whether @p text begins a block of code, or ends the one that has begun. */
    bool endsOrBeginsCode(const QString &text)
    {
        if (!m_fence.isEmpty()) {
            if (text != m_fence)
                return false;
            m_fence.clear();
            return true;
        }
        for (const char *fence : {"```", "~~~"}) {
            if (text.startsWith(QLatin1String(fence)))
                m_fence = QLatin1String(fence);
        }
        return !m_fence.isEmpty();
    }

    /** Whether @p text is a line across the page. */
    static bool isRule(const QString &text)
    {
        static const QRegularExpression rule(
            QStringLiteral("^(-[ \\t]*){3,}$|^(\\*[ \\t]*){3,}$|^(_[ \\t]*){3,}$"));
        constexpr int longest = 200; // any longer would be a strange one
        return text.size() <= longest && rule.match(text).hasMatch();
    }

    /** The level of a heading, 0 when the line is none. */
    static int headingLevel(const QString &text)
    {
        int level = 0;
        while (level < text.size() && text.at(level) == QLatin1Char('#'))
            ++level;
        const bool isHeading =
            level <= highestHeading && (level == text.size() || text.at(level).isSpace());
        return isHeading ? level : 0;
    }

    /** The text of a heading without the marks around it. */
    static QString headingText(const QString &heading, int level)
    {
        const QString text = heading.mid(level).trimmed();
        int end = text.size();
        while (end > 0 && text.at(end - 1) == QLatin1Char('#'))
            --end;
        const bool isClosed = end == 0 || text.at(end - 1).isSpace();
        return isClosed ? text.left(end).trimmed() : text;
    }

    /** The length of the mark in front of a list item, 0 when the line is none. */
    static int itemMarkLength(const QString &text)
    {
        static const QRegularExpression mark(QStringLiteral("^([-*+]|[0-9]{1,9}[.)])([ \\t]|$)"));
        constexpr int longest = 11;
        return mark.match(text.left(longest)).capturedLength(1);
    }

    ImportedTree &m_tree;
    QStringList m_title;         ///< the lines of the last subject's title
    QString m_fence;             ///< what ends the block of code that has begun
    QStringList m_detail;        ///< the lines of the last subject's detail
    bool m_titleMayGoOn = false; ///< in the next line
    bool m_followsBlank = false;
};

QString titleOf(const TreeItem &subject)
{
    return subject.url().isEmpty() ? MarkdownInline::escaped(subject.title())
                                   : MarkdownInline::link(subject.title(), subject.url());
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

} // namespace

bool MarkdownFormat::read(const QByteArray &bytes, ImportedTree &tree)
{
    const std::optional<QString> text = ExchangeText::decode(bytes, tree);
    if (!text)
        return false;
    ExchangeText::Lines lines(*text);
    OutlineReader reader(tree);
    while (lines.next()) {
        if (!reader.take(lines))
            return false;
    }
    reader.finish();
    return true;
}

QByteArray MarkdownFormat::write(const TreeItem &head)
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
