// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/markdownreader.h>

#include <fishbone/exchange/diagramexchange.h>
#include <fishbone/exchange/importedtree.h>
#include <fishbone/exchange/markdownfrontmatter.h>
#include <fishbone/exchange/markdowninline.h>
#include <fishbone/exchange/markdownmarks.h>
#include <fishbone/exchange/mermaidreader.h>

#include <utility>

namespace {

using InlineKind = MarkdownInline::Kind;
using Report = ExchangeReport::Kind;

/** Where the subjects of list items rank: below all headings, and by their indentation. */
constexpr int itemRank = 10;
/** Where diagrams in blocks of code rank: below all that can stand above them. */
constexpr int diagramRank = 1000000;
constexpr int codeIndentation = 4;

/** Whether a line is one of those that a program puts in for itself: a table of contents, the fence
 * of a quotation. */
bool isForProgram(const QString &text)
{
    return text == QLatin1String("[[_TOC_]]") || text == QLatin1String("[TOC]") ||
           text == QLatin1String(">>>");
}

} // namespace

MarkdownReader::MarkdownReader(const QString &text, ImportedTree &tree)
    : m_lines(text)
    , m_tree(tree)
    , m_links(text)
{
}

bool MarkdownReader::read()
{
    const MarkdownFrontMatter frontMatter(m_lines);
    while (m_lines.next()) {
        if (m_lines.number() < frontMatter.firstLine())
            continue;
        if (!take())
            return false;
    }
    const bool isWhole = m_fence.isEmpty() || endCode();
    if (!isWhole || !flush())
        return false;
    finishSubject();
    frontMatter.keep(m_tree);
    m_links.keepUnused(m_tree);
    return true;
}

bool MarkdownReader::take()
{
    if (!m_fence.isEmpty())
        return takeCode();
    m_text = withoutComments(m_lines.text(), m_lines.number());
    const QString &text = m_text;
    if (text.isEmpty() && !m_lines.text().isEmpty())
        return true;
    if (beginsCode())
        return flush();
    if (text.isEmpty() || MarkdownMarks::fenceLength(text) > 0 || isForProgram(text)) {
        if (isForProgram(text))
            m_tree.note(Report::Appearance, text, m_lines.number());
        m_titleMayGoOn = false;
        const bool isFlushed = flush();
        m_followsBlank = true;
        return isFlushed;
    }
    if (!m_pending.empty() && MarkdownMarks::underlineLevel(text) > 0)
        return takeUnderline();
    if (MarkdownMarks::isRule(text)) {
        m_titleMayGoOn = false;
        return flush();
    }
    if (const int level = MarkdownMarks::headingLevel(text); level > 0)
        return takeHeading(level);
    if (const int length = MarkdownMarks::itemMarkLength(text); length > 0)
        return takeItem(length);
    return takeParagraph();
}

/** A text without the comments of HTML in it, which may go on over several lines. */
QString MarkdownReader::withoutComments(const QString &text, qint64 line)
{
    const QLatin1String begin("<!--");
    const QLatin1String end("-->");
    QString kept;
    int position = 0;
    while (position < text.size()) {
        const QLatin1String mark = m_isInComment ? end : begin;
        int next = int(text.indexOf(mark, position));
        while (!m_isInComment && next > 0 && text.at(next - 1) == QLatin1Char('\\'))
            next = int(text.indexOf(mark, next + 1)); // it is text
        const QString before = text.mid(position, next < 0 ? -1 : next - position);
        if (!m_isInComment)
            kept += before;
        else if (!before.trimmed().isEmpty())
            m_tree.note(Report::LeftOut,
                        DiagramExchange::tr("the comment \"%1\"").arg(before.trimmed()), line);
        if (next < 0)
            break;
        position = next + int(mark.size());
        m_isInComment = !m_isInComment;
    }
    return kept.trimmed();
}

/** Whether the line begins or ends a list of tasks, which is in a fence but no code. */
bool MarkdownReader::isTaskListFence(const QString &text, int length)
{
    const QString name = text.mid(length).trimmed();
    const bool isFence = name == QLatin1String("[tasklist]") || (m_isInTaskList && name.isEmpty());
    if (isFence)
        m_isInTaskList = !name.isEmpty();
    return isFence;
}

/** Whether the line begins a block of code. */
bool MarkdownReader::beginsCode()
{
    const QString &text = m_lines.text();
    const int length = MarkdownMarks::fenceLength(text);
    if (length == 0 || isTaskListFence(text, length))
        return false;
    m_fence = text.left(length);
    m_language = text.mid(length).trimmed();
    m_codeIndentation = m_lines.indentation();
    m_code.clear();
    m_titleMayGoOn = false;
    return true;
}

/** Takes a line of a block of code as it is, or ends the block. */
bool MarkdownReader::takeCode()
{
    const QString &text = m_lines.text();
    const bool isEnd = text.size() >= m_fence.size() && text.count(m_fence.at(0)) == text.size();
    if (isEnd)
        return endCode();
    m_code.append(m_lines.rawFrom(m_codeIndentation));
    return true;
}

/** Adds the block of code that has ended: a diagram as what it draws, anything else to the detail.
 */
bool MarkdownReader::endCode()
{
    m_fence.clear();
    const QString code = m_code.join(QLatin1Char('\n'));
    if (m_language == QLatin1String("mermaid") && MermaidReader::isTree(code)) {
        finishSubject();
        return MermaidReader(code, m_tree).read(diagramRank, m_lines.number() - m_code.size() - 1);
    }
    if (!m_language.isEmpty())
        m_tree.note(Report::Appearance,
                    DiagramExchange::tr("the language \"%1\" of a block of code").arg(m_language),
                    m_lines.number());
    for (const QString &line : qAsConst(m_code))
        addDetail(line);
    return true;
}

/** Makes a heading of the paragraph above the line. */
bool MarkdownReader::takeUnderline()
{
    QStringList lines;
    for (const Pending &pending : m_pending)
        lines.append(pending.text);
    const qint64 line = m_pending.front().line;
    m_pending.clear();
    m_itemIndentation = -1;
    return addSubject(MarkdownMarks::underlineLevel(m_lines.text()), lines.join(QLatin1Char(' ')),
                      line);
}

bool MarkdownReader::takeHeading(int level)
{
    const QString text = MarkdownMarks::headingText(m_text, level);
    m_itemIndentation = -1;
    m_titleMayGoOn = false;
    return flush() && addSubject(level, text, m_lines.number());
}

bool MarkdownReader::takeItem(int length)
{
    QString text = m_text.mid(length).trimmed();
    // A heading in an item is its title.
    if (const int level = MarkdownMarks::headingLevel(text); level > 0)
        text = MarkdownMarks::headingText(text, level);
    if (!flush() || !addSubject(itemRank + m_lines.indentation(), text, m_lines.number()))
        return false;
    m_itemIndentation = m_lines.indentation();
    m_titleMayGoOn = true;
    return true;
}

/** Takes a line of a paragraph, a quotation or an indented block of code. */
bool MarkdownReader::takeParagraph()
{
    const QString &text = m_text;
    const int codeFrom = codeIndentation + (m_itemIndentation < 0 ? 0 : m_itemIndentation + 2);
    const bool isCode =
        m_lines.indentation() >= codeFrom && m_pending.empty() && m_tree.last() && !m_titleMayGoOn;
    if (isCode) {
        addDetail(m_lines.rawFrom(codeFrom));
        return true;
    }
    if (text.startsWith(QLatin1Char('>'))) {
        m_titleMayGoOn = false;
        if (!flush())
            return false;
        addDetail(readDetail(text.mid(1).trimmed()));
        return true;
    }
    if (m_titleMayGoOn)
        m_title.append(text);
    else
        m_pending.push_back({text, m_lines.number()});
    return true;
}

/** Takes the paragraph that has ended: the problem itself, above its causes, or a detail. */
bool MarkdownReader::flush()
{
    const std::vector<Pending> lines = std::exchange(m_pending, {});
    if (lines.empty())
        return true;
    if (!m_tree.last()) {
        QStringList title;
        for (const Pending &pending : lines)
            title.append(pending.text);
        return addSubject(0, title.join(QLatin1Char(' ')), lines.front().line);
    }
    for (const Pending &pending : lines) {
        const bool isTable = pending.text.startsWith(QLatin1Char('|')); // whose bars stay apart
        if (!MarkdownLinks::isDefinition(pending.text))
            addDetail(isTable ? pending.text : readDetail(pending.text));
    }
    return true;
}

bool MarkdownReader::addSubject(int rank, const QString &markdown, qint64 line)
{
    finishSubject();
    const int length = MarkdownMarks::boxLength(markdown);
    if (length > 0)
        m_status = MarkdownMarks::statusOfBox(markdown.at(1));
    m_title = QStringList(markdown.mid(length).trimmed());
    m_titleLine = line;
    return m_tree.add(rank, QString(), line);
}

/** Gives the last subject all that was found for it. */
void MarkdownReader::finishSubject()
{
    TreeItem *const subject = m_tree.last();
    if (subject && m_status >= 0)
        takeIssue(*subject);
    if (subject && !m_title.isEmpty()) {
        const MarkdownInline::Content title = MarkdownInline::read(
            m_title.join(QLatin1Char(' ')), InlineKind::Title, m_links.targets());
        m_links.noteUsed(title.links);
        subject->setTitle(title.text);
        m_tree.addContent(*subject, title.links, title.images, m_titleLine);
        if (m_status >= 0)
            subject->setStatus(m_status);
    }
    if (subject && !m_detail.isEmpty()) {
        const QString before =
            subject->detail().isEmpty() ? QString() : subject->detail() + QLatin1Char('\n');
        subject->setDetail(before + m_detail.join(QLatin1Char('\n')));
    }
    m_title.clear();
    m_detail.clear();
    m_status = -1;
    m_followsBlank = false;
}

/** Takes the number of an issue in front of the title of a task. */
void MarkdownReader::takeIssue(TreeItem &subject)
{
    QString &title = m_title.first();
    const int length = MarkdownMarks::issueLength(title);
    if (length == 0)
        return;
    subject.setShowid(title.left(length));
    if (length < title.size()) // else it is all the title there is
        title = title.mid(length).trimmed();
}

void MarkdownReader::addDetail(const QString &text)
{
    if (m_followsBlank && !m_detail.isEmpty())
        m_detail.append(QString());
    m_followsBlank = false;
    m_detail.append(text);
}

QString MarkdownReader::readDetail(const QString &markdown) const
{
    return MarkdownInline::read(markdown, InlineKind::Detail).text;
}
