// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/pastednotes.h>

#include <fishbone/exchange/diagramexchange.h>
#include <fishbone/exchange/exchangetext.h>
#include <fishbone/exchange/importedtree.h>
#include <fishbone/exchange/markdowninline.h>
#include <fishbone/exchange/markdownmarks.h>
#include <fishbone/exchange/mermaidreader.h>
#include <fishbone/exchange/tasktable.h>

#include <QBuffer>
#include <QRegularExpression>

#include <algorithm>
#include <optional>

namespace {

using NotesKind = PastedNotes::Kind;
using Format = DiagramExchange::Format;

/** The length of the bullet or number in front of a line, 0 for none. */
int markLength(const QString &line)
{
    static const QRegularExpression mark(QString::fromUtf8(
        "^(?:[-*+\u2022\u2023\u25e6\u2043\u25aa\u25cf\u25cb\u00b7\u2013\u2014]|"
        "\\(?(?:[0-9]{1,9}|[a-zA-Z])[.)]|[0-9]{1,3}(?:\\.[0-9]{1,3})+\\.?|"
        "[0-9]{1,3}\u3001|[\u4e00\u4e8c\u4e09\u56db\u4e94\u516d\u4e03\u516b\u4e5d\u5341]\u3001)"
        "(?:[ \\t\u3000]+|(?<=\u3001)|$)"));
    constexpr int longest = 40;
    return int(mark.match(line.left(longest)).capturedLength());
}

/** Whether a line has no word in it: an underline, a line across the page. */
bool isDecoration(const QString &line)
{
    return !line.isEmpty() && std::none_of(line.cbegin(), line.cend(), [](QChar c) {
        return c.isLetterOrNumber() || c.isSurrogate();
    }) && (MarkdownMarks::isRule(line) || MarkdownMarks::underlineLevel(line) > 0);
}

/** The cells of a line of a table, empty when it is none: a tab in front is an indentation. */
QStringList cellsOf(const QString &line)
{
    const QString text = line.trimmed();
    return text.contains(QLatin1Char('\t')) ? line.split(QLatin1Char('\t')) : QStringList();
}

/** Counts what the lines of a text look like. */
struct Looks
{
    int lines = 0;
    int marked = 0;   ///< with a bullet, a number or the mark of a heading
    int indented = 0; ///< and not marked
    int cells = 0;    ///< with tabs between texts

    explicit Looks(const QString &text)
    {
        ExchangeText::Lines all(text);
        while (all.next()) {
            if (all.text().isEmpty())
                continue;
            const bool isMarked =
                markLength(all.text()) > 0 || MarkdownMarks::headingLevel(all.text()) > 0;
            ++lines;
            marked += isMarked ? 1 : 0;
            indented += !isMarked && all.indentation() > 0 ? 1 : 0;
            cells += cellsOf(all.raw()).isEmpty() ? 0 : 1;
        }
    }
};

/** Reads notes line by line. */
class NotesReader
{
public:
    NotesReader(const QString &text, bool isMarkdown, ImportedTree &tree)
        : m_lines(text)
        , m_isMarkdown(isMarkdown)
        , m_tree(tree)
    {
    }

    bool read()
    {
        while (m_lines.next()) {
            const QString &line = m_lines.text();
            if (!line.isEmpty() && !isDecoration(line) && !takeLine(line))
                return false;
        }
        return true;
    }

private:
    bool takeLine(const QString &line)
    {
        if (line.startsWith(QLatin1Char('>')) && m_tree.last()) {
            m_tree.addDetail(*m_tree.last(), line.mid(1).trimmed(),
                             DiagramExchange::tr("a quotation"), m_lines.number());
            return true;
        }
        // What is listed belongs to the line above it, even where it is not indented further.
        constexpr int deepestHeading = 10;
        const int heading = MarkdownMarks::headingLevel(line);
        const int mark = heading > 0 ? 0 : markLength(line);
        const int indented = deepestHeading + 2 * m_lines.indentation() + (mark > 0 ? 1 : 0);
        TreeItem *const subject =
            m_tree.add(heading > 0 ? heading : indented, QString(), m_lines.number());
        if (subject)
            setTitle(*subject, heading > 0 ? MarkdownMarks::headingText(line, heading)
                                           : line.mid(mark).trimmed());
        return subject;
    }

    void setTitle(TreeItem &subject, const QString &text)
    {
        const int box = MarkdownMarks::boxLength(text);
        if (box > 0)
            subject.setStatus(MarkdownMarks::statusOfBox(text.at(1)));
        const QString title = text.mid(box).trimmed();
        subject.setTitle(title);
        if (!m_isMarkdown)
            return;
        const MarkdownInline::Content content =
            MarkdownInline::read(title, MarkdownInline::Kind::Title);
        subject.setTitle(content.text);
        m_tree.addContent(subject, content.links, content.images, m_lines.number());
    }

    ExchangeText::Lines m_lines;
    const bool m_isMarkdown;
    ImportedTree &m_tree;
};

/** Reads rows whose cells are separated by tabs: with headings as a table of tasks, else the first
 * cell with a text is the title, the further to the right the deeper. */
bool readTable(const QString &text, ImportedTree &tree)
{
    std::vector<TaskTable::Row> rows;
    ExchangeText::Lines lines(text);
    while (lines.next()) {
        if (!lines.text().isEmpty())
            rows.push_back({lines.raw().split(QLatin1Char('\t')), lines.number()});
    }
    if (!rows.empty() && TableMapping::hasTitles(TableMapping::guessed(rows.front().cells)))
        return TaskTable::read(rows, tree, TaskTable::Texts::AsTheyAre);
    for (const TaskTable::Row &row : rows) {
        const auto title =
            std::find_if(row.cells.cbegin(), row.cells.cend(),
                         [](const QString &cell) { return !cell.trimmed().isEmpty(); });
        TreeItem *const subject =
            tree.add(int(title - row.cells.cbegin()), title->trimmed(), row.line);
        if (!subject)
            return false;
        for (auto cell = title + 1; cell != row.cells.cend(); ++cell)
            tree.addDetail(*subject, cell->trimmed(), DiagramExchange::tr("further cells"),
                           row.line);
    }
    return true;
}

bool readNotes(const QString &text, NotesKind kind, ImportedTree &tree)
{
    if (kind == NotesKind::Table)
        return readTable(text, tree);
    if (kind == NotesKind::Diagram)
        return MermaidReader(text, tree).read(-1, 0);
    return NotesReader(text, kind == NotesKind::Markdown, tree).read();
}

} // namespace

PastedNotes::Kind PastedNotes::kindOf(const QString &text)
{
    static const QRegularExpression opml(QStringLiteral("^\\s*(?:<\\?xml[^>]*>\\s*)?<opml\\b"));
    static const QRegularExpression map(QStringLiteral("^\\s*(?:<\\?xml[^>]*>\\s*)?<map\\b"));
    constexpr int looked = 1000;
    const QString beginning = text.left(looked);
    if (opml.match(beginning).hasMatch())
        return NotesKind::Opml;
    if (map.match(beginning).hasMatch())
        return NotesKind::FreeMind;
    if (MermaidReader::isTree(text))
        return NotesKind::Diagram;
    const Looks looks(text);
    if (looks.cells > 1 && looks.cells * 2 > looks.lines)
        return NotesKind::Table;
    return looks.marked > 0 && 2 * looks.marked >= looks.lines ? NotesKind::Markdown
                                                               : NotesKind::Notes;
}

bool PastedNotes::isDoubtful(const QString &text)
{
    const NotesKind kind = kindOf(text);
    if (kind == NotesKind::Table)
        return !TableMapping::hasTitles(
            TableMapping::guessed(text.section(QLatin1Char('\n'), 0, 0).split(QLatin1Char('\t'))));
    const Looks looks(text);
    return kind == NotesKind::Notes && looks.cells > 0;
}

std::unique_ptr<TreeItem> PastedNotes::read(const QString &text, NotesKind kind, QString *error,
                                            ExchangeReport *report)
{
    if (kind == NotesKind::Opml || kind == NotesKind::FreeMind) {
        QByteArray bytes = text.trimmed().toUtf8();
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::ReadOnly);
        return DiagramExchange::readBranches(
            buffer, kind == NotesKind::Opml ? Format::Opml : Format::FreeMind, error, report);
    }
    ImportedTree tree;
    std::unique_ptr<TreeItem> branches;
    if (readNotes(text, kind, tree))
        branches = tree.takeBranches();
    if (!branches && error)
        *error = tree.error();
    if (report)
        *report = tree.report();
    return branches;
}
