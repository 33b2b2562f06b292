// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/mermaidreader.h>

#include <fishbone/exchange/diagramexchange.h>
#include <fishbone/exchange/importedtree.h>
#include <fishbone/exchange/markdowninline.h>
#include <fishbone/exchange/mermaidtext.h>

#include <QRegularExpression>

namespace {

using Kind = ExchangeReport::Kind;

bool isComment(const QString &line)
{
    return line.startsWith(QLatin1String("%%"));
}

bool isIshikawa(const QString &line)
{
    return line == QLatin1String("ishikawa") || line == QLatin1String("ishikawa-beta");
}

bool isMindMap(const QString &line)
{
    return line == QLatin1String("mindmap");
}

/** The marks that a node of a mind map stands between, the longer ones first. */
struct Shape
{
    QLatin1String open;
    QLatin1String close;
};

const Shape nodeShapes[] = {
    {QLatin1String("(("), QLatin1String("))")}, {QLatin1String("))"), QLatin1String("((")},
    {QLatin1String("{{"), QLatin1String("}}")}, {QLatin1String("["), QLatin1String("]")},
    {QLatin1String("("), QLatin1String(")")},   {QLatin1String(")"), QLatin1String("(")},
};

/** A node's text between its marks, without the name that may stand in front of them. */
QString withoutShape(const QString &line)
{
    static const QRegularExpression name(QStringLiteral("^[^\\s\\[\\](){}\"]*"));
    const int begin = int(name.match(line).capturedLength());
    for (const Shape &shape : nodeShapes) {
        const bool isShape = line.mid(begin).startsWith(shape.open) && line.endsWith(shape.close) &&
                             line.size() >= begin + shape.open.size() + shape.close.size();
        if (isShape)
            return line.mid(begin + shape.open.size(),
                            line.size() - begin - shape.open.size() - shape.close.size());
    }
    return line;
}

} // namespace

MermaidReader::MermaidReader(const QString &text, ImportedTree &tree)
    : m_lines(text)
    , m_tree(tree)
{
}

bool MermaidReader::isTree(const QString &text)
{
    ExchangeText::Lines lines(text);
    while (lines.next() && (lines.text().isEmpty() || isComment(lines.text()))) {
    }
    return isIshikawa(lines.text()) || isMindMap(lines.text());
}

bool MermaidReader::read(int headRank, qint64 linesBefore)
{
    m_linesBefore = linesBefore;
    const bool isFound = skipSettings();
    bool isRead = false;
    if (isFound && isIshikawa(m_lines.text()))
        isRead = readIshikawa(headRank);
    else if (isFound && isMindMap(m_lines.text()))
        isRead = readMindMap(headRank);
    else
        return m_tree.fail(line(),
                           DiagramExchange::tr("the diagram does not begin with \"ishikawa\" or "
                                               "\"mindmap\""));
    keepSettings();
    return isRead;
}

/** Goes on to the next line that is no comment and not empty; false at the end. */
bool MermaidReader::nextLine()
{
    while (m_lines.next()) {
        const QString &text = m_lines.text();
        if (!text.isEmpty() && !isComment(text))
            return true;
        if (text.startsWith(QLatin1String("%%{")))
            m_tree.note(Kind::Appearance, DiagramExchange::tr("settings"), line());
        else if (text.size() > 2)
            m_tree.note(Kind::LeftOut,
                        DiagramExchange::tr("the comment \"%1\"").arg(text.mid(2).trimmed()),
                        line());
    }
    return false;
}

/** Goes past the settings that may stand before the diagram between two lines of dashes. */
bool MermaidReader::skipSettings()
{
    const QLatin1String border("---");
    if (!nextLine())
        return false;
    if (m_lines.text() != border)
        return true;
    while (m_lines.next() && m_lines.text() != border)
        m_settings.append(m_lines.text());
    return nextLine();
}

void MermaidReader::keepSettings()
{
    if (m_tree.container().childCount() == 0)
        return;
    for (const QString &setting : qAsConst(m_settings)) {
        if (setting.startsWith(QLatin1String("title:")))
            m_tree.addDetail(*m_tree.container().childAtIndex(0), setting,
                             QStringLiteral("\"title\""));
        else if (!setting.isEmpty())
            m_tree.note(Kind::Appearance, DiagramExchange::tr("settings"));
    }
}

bool MermaidReader::readIshikawa(int headRank)
{
    bool isHead = true;
    while (nextLine()) {
        const int rank = isHead ? headRank : headRank + 1 + m_lines.indentation();
        if (!m_tree.add(rank, MermaidText::unescaped(m_lines.text()), line()))
            return false;
        isHead = false;
    }
    return true;
}

bool MermaidReader::readMindMap(int headRank)
{
    while (nextLine()) {
        if (!addMindNode(headRank))
            return false;
    }
    return true;
}

/** Takes the line of a mind map that the reader stands on, and those that belong to its text. */
bool MermaidReader::addMindNode(int headRank)
{
    const qint64 first = line();
    const int rank = headRank + 1 + m_lines.indentation();
    QString text = m_lines.text();
    if (takeDecoration(text))
        return true;
    // A text in quotes may go on over several lines.
    bool isOpen = text.count(QLatin1String("\"`")) > text.count(QLatin1String("`\""));
    while (isOpen && m_lines.next()) {
        text += QLatin1Char('\n') + m_lines.text();
        isOpen = !m_lines.text().contains(QLatin1String("`\""));
    }
    return m_tree.add(rank, nodeText(text), first);
}

/** Takes a line that says how the node above it is drawn; false when it is none. */
bool MermaidReader::takeDecoration(const QString &text)
{
    static const QRegularExpression icon(QStringLiteral("^::icon\\((.*)\\)$"));
    if (text.startsWith(QLatin1String(":::"))) {
        m_tree.note(Kind::Appearance, text, line());
        return true;
    }
    const auto match = icon.match(text);
    if (!match.hasMatch() || !m_tree.last())
        return false;
    m_tree.addNamedDetail(*m_tree.last(), DiagramExchange::tr("Icons"), match.captured(1), line());
    return true;
}

QString MermaidReader::nodeText(const QString &text)
{
    const QString inner = withoutShape(text).trimmed();
    const bool isQuoted =
        inner.size() > 1 && inner.startsWith(QLatin1Char('"')) && inner.endsWith(QLatin1Char('"'));
    const QString content = isQuoted ? inner.mid(1, inner.size() - 2) : inner;
    const bool isMarkdown = content.size() > 1 && content.startsWith(QLatin1Char('`')) &&
                            content.endsWith(QLatin1Char('`'));
    if (!isMarkdown)
        return MermaidText::unescaped(content);
    return MarkdownInline::read(content.mid(1, content.size() - 2).trimmed(),
                                MarkdownInline::Kind::Detail)
        .text;
}
