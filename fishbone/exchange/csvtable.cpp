// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/csvtable.h>

#include <fishbone/exchange/diagramexchange.h>
#include <fishbone/exchange/importedtree.h>

#include <QStringView>

#include <algorithm>
#include <array>

namespace {

using TaskTable::Row;

constexpr QLatin1Char quoteMark('"');
constexpr QLatin1Char apostrophe('\'');

bool isLineEnd(QChar c)
{
    return c == QLatin1Char('\n') || c == QLatin1Char('\r');
}

/** The separator that a line in front of the table names, as spreadsheets have it; null when there
 * is no such line. */
QChar namedSeparator(const QString &text)
{
    constexpr int length = 5; // "sep=" and the separator itself
    const bool isNamed = text.startsWith(QLatin1String("sep="), Qt::CaseInsensitive) &&
                         text.size() > length && isLineEnd(text.at(length));
    return isNamed ? text.at(length - 1) : QChar();
}

/** The separator that the first line has most of outside of quotes: the usual ones, and those that
 * a tracker offers beside them. */
QChar separatorOf(const QString &text)
{
    const std::array<QChar, 5> separators{QLatin1Char(','), QLatin1Char(';'), QLatin1Char('\t'),
                                          QLatin1Char('|'), QLatin1Char('^')};
    std::array<int, 5> counts{};
    bool isQuoted = false;
    for (const QChar c : text) {
        if (isLineEnd(c) && !isQuoted)
            break;
        isQuoted = isQuoted != (c == quoteMark);
        const auto found = std::find(separators.cbegin(), separators.cend(), c);
        if (found != separators.cend() && !isQuoted)
            ++counts[std::size_t(found - separators.cbegin())];
    }
    return separators[std::size_t(std::max_element(counts.cbegin(), counts.cend()) -
                                  counts.cbegin())];
}

/** Reads a text row by row. */
class Parser
{
public:
    Parser(const QString &text, ImportedTree &tree)
        : m_text(text)
        , m_tree(tree)
        , m_separator(namedSeparator(text))
    {
        if (m_separator.isNull())
            m_separator = separatorOf(text);
        else
            passNamedSeparator();
    }

    bool atEnd() const { return m_position >= m_text.size(); }

    /** Reads a row into @p row; false, with an error, when a quote is wrong. */
    bool readRow(Row &row)
    {
        row = Row();
        row.line = m_line;
        for (;;) {
            QString cell;
            if (!readCell(cell))
                return false;
            row.cells.append(cell);
            if (current() != m_separator)
                break;
            ++m_position;
        }
        if (!atEnd())
            passLineEnd();
        return true;
    }

private:
    QChar current() const { return atEnd() ? QChar() : m_text.at(m_position); }

    void passNamedSeparator()
    {
        while (!isLineEnd(current()))
            ++m_position;
        passLineEnd();
    }

    bool readCell(QString &cell)
    {
        if (current() == quoteMark)
            return readQuoted(cell);
        const int begin = m_position;
        while (!atEnd() && current() != m_separator && !isLineEnd(current()))
            ++m_position;
        cell = m_text.mid(begin, m_position - begin);
        return true;
    }

    bool readQuoted(QString &cell)
    {
        const qint64 line = m_line;
        ++m_position;
        for (;;) {
            if (atEnd())
                return m_tree.fail(line, DiagramExchange::tr("a quote is not closed"));
            if (isLineEnd(current())) {
                const int begin = m_position;
                passLineEnd();
                cell.append(QStringView(m_text).mid(begin, m_position - begin).toString());
                continue;
            }
            const bool isQuote = current() == quoteMark;
            if (isQuote && !QStringView(m_text).mid(m_position + 1).startsWith(quoteMark))
                break;
            cell.append(current());
            m_position += isQuote ? 2 : 1;
        }
        ++m_position;
        if (!atEnd() && current() != m_separator && !isLineEnd(current()))
            return m_tree.fail(m_line, DiagramExchange::tr("there is text behind a closing quote"));
        return true;
    }

    void passLineEnd()
    {
        const bool isPair = QStringView(m_text).mid(m_position).startsWith(QLatin1String("\r\n"));
        m_position += isPair ? 2 : 1;
        ++m_line;
    }

    const QString m_text;
    ImportedTree &m_tree;
    QChar m_separator;
    int m_position = 0;
    qint64 m_line = 1;
};

/** The number of apostrophes that @p text begins with, and whether a formula could follow them. */
struct Beginning
{
    int apostrophes = 0;
    bool isRisky = false;
};

Beginning beginningOf(const QString &text)
{
    Beginning beginning;
    while (beginning.apostrophes < text.size() && text.at(beginning.apostrophes) == apostrophe)
        ++beginning.apostrophes;
    static const QString risky = QStringLiteral("=+-@\t\r\n\uff1d\uff0b\uff0d\uff20");
    beginning.isRisky =
        beginning.apostrophes < text.size() && risky.contains(text.at(beginning.apostrophes));
    return beginning;
}

bool needsQuotes(const QString &cell, QChar separator)
{
    return cell != cell.trimmed() || std::any_of(cell.cbegin(), cell.cend(), [separator](QChar c) {
               return c == separator || c == quoteMark || isLineEnd(c);
           });
}

} // namespace

namespace CsvTable {

std::vector<Row> parse(const QString &text, ImportedTree &tree)
{
    std::vector<Row> rows;
    Parser parser(text, tree);
    Row row;
    while (!parser.atEnd()) {
        if (!parser.readRow(row))
            return {};
        const bool isEmpty = std::all_of(row.cells.cbegin(), row.cells.cend(),
                                         [](const QString &cell) { return cell.isEmpty(); });
        if (!isEmpty)
            rows.push_back(row);
    }
    return rows;
}

QByteArray line(const QStringList &cells, QChar separator)
{
    QString text;
    for (const QString &cell : cells) {
        if (&cell != &cells.constFirst())
            text.append(separator);
        QString content = cell;
        if (needsQuotes(cell, separator))
            content = quoteMark + content.replace(quoteMark, QLatin1String("\"\"")) + quoteMark;
        text.append(content);
    }
    return text.toUtf8() + "\r\n";
}

QString guarded(const QString &text)
{
    return beginningOf(text).isRisky ? apostrophe + text : text;
}

QString unguarded(const QString &text)
{
    const Beginning beginning = beginningOf(text);
    return beginning.isRisky && beginning.apostrophes > 0 ? text.mid(1) : text;
}

} // namespace CsvTable
