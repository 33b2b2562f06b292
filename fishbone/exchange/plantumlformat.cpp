// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/exchangeformat.h>
#include <fishbone/exchange/exchangetext.h>
#include <fishbone/exchange/importedtree.h>

#include <QRegularExpression>

namespace {

using Kind = ExchangeReport::Kind;

/** Reads a mind map line by line. */
class MapReader
{
public:
    MapReader(const QString &text, ImportedTree &tree)
        : m_lines(text)
        , m_tree(tree)
    {
    }

    bool read()
    {
        while (m_lines.next() && m_lines.text().isEmpty()) {
        }
        if (!m_lines.text().startsWith(QLatin1String("@startmindmap")))
            return m_tree.fail(
                m_lines.number(),
                DiagramExchange::tr("the diagram does not begin with \"@startmindmap\""));
        while (m_lines.next()) {
            if (m_lines.text() == QLatin1String("@endmindmap"))
                break;
            if (!takeLine())
                return false;
        }
        keepTexts();
        return true;
    }

private:
    /** The length of the marks in front of a node, which tell its level; 0 for no node. */
    static int marksIn(const QString &line)
    {
        if (line.isEmpty() || !QStringLiteral("*+-").contains(line.at(0)))
            return 0;
        int length = 0;
        while (length < line.size() && line.at(length) == line.at(0))
            ++length;
        return length;
    }

    bool takeLine()
    {
        const QString line = m_lines.text();
        if (line.isEmpty() || takeComment(line) || takeBlock(line))
            return true;
        const int marks = marksIn(line);
        if (marks > 0)
            return takeNode(line, marks);
        return takeSetting(line);
    }

    bool takeNode(const QString &line, int marks)
    {
        static const QRegularExpression look(QStringLiteral("^(?:_|\\[#[^\\]]*\\])+"));
        static const QRegularExpression style(QStringLiteral("<<([^<>]+)>>$"));
        constexpr int longestStyle = 100;
        const qint64 number = m_lines.number();
        // Levels are told by the number of marks, or by how far a single one is indented.
        const int rank = marks == 1 ? m_lines.indentation() : marks * 1000 + m_lines.indentation();
        QString text = line.mid(marks);
        if (const auto match = look.match(text); match.hasMatch()) {
            m_tree.note(Kind::Appearance, match.captured(), number);
            text = text.mid(match.capturedLength());
        }
        if (text.startsWith(QLatin1Char(':')))
            text = restOfNode(text.mid(1));
        if (const auto match = style.match(text.right(longestStyle)); match.hasMatch()) {
            m_tree.note(Kind::Appearance, match.captured(), number);
            text = text.chopped(match.capturedLength());
        }
        TreeItem *const subject = m_tree.add(rank, QString(), number);
        if (subject)
            setText(*subject, text.trimmed(), number);
        return subject;
    }

    /** The text of a node that goes on up to a semicolon at the end of a line. */
    QString restOfNode(const QString &first)
    {
        QString text = first;
        while (!text.endsWith(QLatin1Char(';')) && m_lines.next())
            text += QLatin1Char('\n') + m_lines.text();
        return text.endsWith(QLatin1Char(';')) ? text.chopped(1) : text;
    }

    struct Links
    {
        QString text;      ///< what is shown
        QStringList links; ///< where they lead
        QString tooltips;
    };

    /** Takes the links out of a text. */
    static Links linksIn(const QString &text)
    {
        static const QRegularExpression link(
            QStringLiteral("\\[\\[([^\\s{\\]]+)(?:\\{([^}]*)\\})?(?:\\s+([^\\]]*))?\\]\\]"));
        Links found;
        int end = 0;
        for (auto matches = link.globalMatch(text); matches.hasNext();) {
            const auto match = matches.next();
            found.text += text.mid(end, match.capturedStart() - end);
            found.text += match.captured(3).isEmpty() ? match.captured(1) : match.captured(3);
            found.links.append(match.captured(1));
            found.tooltips += match.captured(2);
            end = match.capturedEnd();
        }
        found.text += text.mid(end);
        return found;
    }

    /** Takes the marks of formatting, those that a tilde does not make text of, and links out of a
     * text. */
    void setText(TreeItem &subject, const QString &text, qint64 line)
    {
        static const QRegularExpression pair(QStringLiteral(
            "(?<!~)(?<!~[*/_~\"-])(\\*\\*|//|__|--|~~|\"\")(?=\\S)(.+?)(?<=\\S)\\1"));
        static const QRegularExpression escape(
            QStringLiteral("~(?=\\*\\*|//|__|--|~~|\"\"|\\[\\[|<)"));
        static const QRegularExpression tag(
            QStringLiteral("</?(?:b|i|u|s|w|color|size|font|back)(?:[:=\\s][^<>]*)?>"));
        const Links found = linksIn(text);
        QString plain = found.text;
        plain.remove(tag);
        // The marks of an address are none; and pairs are sought for each mark, again and again.
        constexpr int longest = 300;
        if (found.links.isEmpty() && plain.size() <= longest)
            plain.replace(pair, QStringLiteral("\\2"));
        if (found.links.isEmpty())
            plain.remove(escape);
        subject.setTitle(plain.replace(QLatin1String("\\n"), QLatin1String("\n")));
        m_tree.addContent(subject, found.links, {}, line);
        if (!found.tooltips.isEmpty())
            m_tree.addNamedDetail(subject, QStringLiteral("Tooltip"), found.tooltips, line);
    }

    bool takeComment(const QString &line)
    {
        const bool isLong = line.startsWith(QLatin1String("/'"));
        if (!isLong && !line.startsWith(QLatin1Char('\'')))
            return false;
        QString text = line.mid(isLong ? 2 : 1);
        bool isOpen = isLong && !text.contains(QLatin1String("'/"));
        while (isOpen && m_lines.next()) {
            text += QLatin1Char(' ') + m_lines.text();
            isOpen = !m_lines.text().contains(QLatin1String("'/"));
        }
        m_tree.note(Kind::LeftOut,
                    DiagramExchange::tr("the comment \"%1\"")
                        .arg(text.remove(QLatin1String("'/")).trimmed()),
                    m_lines.number());
        return true;
    }

    /** Takes a block of style, or a legend that goes over several lines. */
    bool takeBlock(const QString &line)
    {
        static const QRegularExpression block(
            QStringLiteral("^(title|header|footer|caption|legend)(?:\\s+(?:left|right|center))?$"));
        if (line.startsWith(QLatin1String("<style>"))) {
            m_tree.note(Kind::Appearance, QStringLiteral("<style>"), m_lines.number());
            while (!m_lines.text().contains(QLatin1String("</style>")) && m_lines.next()) {
            }
            return true;
        }
        const auto match = block.match(line);
        if (!match.hasMatch())
            return false;
        QStringList texts;
        while (m_lines.next() && !m_lines.text().startsWith(QLatin1String("end")))
            texts.append(m_lines.text());
        m_texts.append(match.captured(1) + QLatin1String(": ") + texts.join(QLatin1Char(' ')));
        return true;
    }

    bool takeSetting(const QString &line)
    {
        static const QRegularExpression text(
            QStringLiteral("^(title|header|footer|caption|legend)\\s+(.+)$"));
        static const QRegularExpression look(QStringLiteral(
            "^(?:left side|right side|left to right direction|right to left direction|"
            "top to bottom direction|skinparam\\b.*|!theme\\b.*|scale\\b.*|hide\\b.*)$"));
        if (const auto match = text.match(line); match.hasMatch())
            m_texts.append(match.captured(1) + QLatin1String(": ") + match.captured(2));
        else if (look.match(line).hasMatch())
            m_tree.note(Kind::Appearance, line, m_lines.number());
        else
            m_tree.note(Kind::LeftOut, QLatin1Char('"') + line + QLatin1Char('"'),
                        m_lines.number());
        return true;
    }

    void keepTexts()
    {
        if (m_tree.container().childCount() == 0)
            return;
        for (const QString &text : qAsConst(m_texts))
            m_tree.addDetail(*m_tree.container().childAtIndex(0), text,
                             DiagramExchange::tr("text beside the drawing"));
    }

    ExchangeText::Lines m_lines;
    ImportedTree &m_tree;
    QStringList m_texts; ///< that stand beside the map
};

bool readPlantUml(const QByteArray &bytes, ImportedTree &tree)
{
    const std::optional<QString> text = ExchangeText::decode(bytes, tree);
    return text && MapReader(*text, tree).read();
}

} // namespace

const ExchangeFormat ExchangeFormats::plantUml{
    DiagramExchange::Format::PlantUml,
    "puml",
    QT_TRANSLATE_NOOP("DiagramExchange", "PlantUML mind map"),
    "puml plantuml pu",
    "",
    readPlantUml,
    nullptr};
