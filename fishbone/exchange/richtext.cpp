// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/richtext.h>

#include <fishbone/exchange/exchangetext.h>

#include <QRegularExpression>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <algorithm>
#include <functional>
#include <utility>

namespace {

const QLatin1String preformatted("pre");

/** Gives the value of an attribute of an element. */
using Attributes = std::function<QString(const QString &)>;

/** Puts a content together from its elements. */
class Collector
{
public:
    void enter(const QString &name, const Attributes &attribute)
    {
        if (isPreformatted(name)) {
            endLine();
            ++m_preformatted;
        } else if (name == QLatin1String("a")) {
            m_link = attribute(QStringLiteral("href"));
            m_linkBegin = int(m_line.size());
        } else if (name == QLatin1String("img")) {
            addImage(attribute);
        } else if (name == QLatin1String("mention")) {
            m_mentioned = attribute(QStringLiteral("id"));
            m_mentionBegin = int(m_line.size());
        } else if (breaksLine(name)) {
            endLine();
        } else if (name == QLatin1String("td") || name == QLatin1String("th")) {
            m_line.append(QLatin1Char(' '));
        }
    }

    void leave(const QString &name)
    {
        if (isPreformatted(name) && m_preformatted > 0) {
            if (--m_preformatted == 0)
                m_blocks.append(std::exchange(m_exact, QString()));
        } else if (name == QLatin1String("a")) {
            endLink();
        } else if (name == QLatin1String("mention")) {
            endMention();
        } else if (breaksLine(name)) {
            endLine();
        }
    }

    void add(const QString &text) { (m_preformatted > 0 ? m_exact : m_line).append(text); }

    RichText::Content content()
    {
        if (m_preformatted > 0)
            m_blocks.append(m_exact);
        endLine();
        m_content.text = m_blocks.join(QLatin1Char('\n'));
        return m_content;
    }

private:
    static bool isPreformatted(const QString &element)
    {
        return element == preformatted || element == QLatin1String("text");
    }

    static bool breaksLine(const QString &element)
    {
        static const QStringList blocks{
            QStringLiteral("p"),  QStringLiteral("li"), QStringLiteral("div"),
            QStringLiteral("br"), QStringLiteral("tr"), QStringLiteral("ul"),
            QStringLiteral("ol"), QStringLiteral("h1"), QStringLiteral("h2"),
            QStringLiteral("h3"), QStringLiteral("h4"), QStringLiteral("h5"),
            QStringLiteral("h6"), QStringLiteral("hr"), QStringLiteral("table"),
            QStringLiteral("dt"), QStringLiteral("dd"), QStringLiteral("blockquote")};
        return blocks.contains(element);
    }

    void addImage(const Attributes &attribute)
    {
        const QString source = attribute(QStringLiteral("src"));
        add(attribute(QStringLiteral("alt")));
        // What a picture holds itself would be no name for it.
        if (!source.isEmpty())
            m_content.images.append(
                source.startsWith(QLatin1String("data:")) ? QStringLiteral("data:") : source);
    }

    void endLink()
    {
        const QString shown = m_line.mid(m_linkBegin).trimmed();
        if (!m_link.isEmpty() && m_link != shown)
            m_content.links.append(m_link);
        m_link.clear();
    }

    /** Somebody who is mentioned without a name is told by what the program calls him. */
    void endMention()
    {
        if (m_line.mid(m_mentionBegin).trimmed().isEmpty() && !m_mentioned.isEmpty())
            add(QLatin1Char('@') + m_mentioned);
        m_mentioned.clear();
    }

    void endLine()
    {
        const QString line = m_line.simplified();
        if (!line.isEmpty())
            m_blocks.append(line);
        m_line.clear();
        m_linkBegin = 0;
        m_mentionBegin = 0;
    }

    int m_preformatted = 0; ///< the depth of preformatted elements
    QString m_exact;        ///< what stands in them
    QString m_line;
    QStringList m_blocks; ///< lines, and preformatted texts
    QString m_link;       ///< where the link leads that was entered last
    int m_linkBegin = 0;  ///< where it begins in m_line
    QString m_mentioned;
    int m_mentionBegin = 0; ///< as m_linkBegin
    RichText::Content m_content;
};

/** Goes through HTML that need not be well-formed. */
class HtmlReader
{
public:
    explicit HtmlReader(const QString &html)
        : m_html(html)
    {
    }

    RichText::Content read()
    {
        while (m_position < m_html.size()) {
            if (!readTag())
                readText();
        }
        return m_collector.content();
    }

private:
    void readText()
    {
        const int next = int(m_html.indexOf(QLatin1Char('<'), m_position + 1));
        const int end = next < 0 ? int(m_html.size()) : next;
        m_collector.add(RichText::dereferenced(m_html.mid(m_position, end - m_position)));
        m_position = end;
    }

    /** Reads what begins with a bracket here; false when nothing does. */
    bool readTag()
    {
        static const QRegularExpression form(QStringLiteral("^<(/?)([A-Za-z][A-Za-z0-9]*)(.*)$"),
                                             QRegularExpression::DotMatchesEverythingOption);
        if (m_html.at(m_position) != QLatin1Char('<') || m_isCutOff)
            return false;
        if (QStringView(m_html).mid(m_position).startsWith(QLatin1String("<!")))
            return skipPast(QStringLiteral(">"));
        const int end = tagEnd();
        const auto match = form.match(m_html.mid(m_position, std::max(end - m_position, 0)));
        if (!match.hasMatch())
            return false;
        m_position = end + 1;
        const QString name = match.captured(2).toLower();
        if (!match.captured(1).isEmpty()) {
            m_collector.leave(name);
        } else if (name == QLatin1String("head") || name == QLatin1String("style") ||
                   name == QLatin1String("script")) {
            skipPast(QStringLiteral("</%1>").arg(name)); // no text of the document
        } else {
            m_collector.enter(name, [&match](const QString &attribute) {
                return valueOf(attribute, match.captured(3));
            });
        }
        return true;
    }

    /** Where the tag that begins here ends; -1 when it is none. What is looked through up to the
     * end of the text is not looked through again. */
    int tagEnd()
    {
        QChar quote;
        for (int i = m_position + 1; i < m_html.size(); ++i) {
            const QChar c = m_html.at(i);
            if (!quote.isNull())
                quote = c == quote ? QChar() : quote;
            else if (c == QLatin1Char('"') || c == QLatin1Char('\''))
                quote = c;
            else if (c == QLatin1Char('>'))
                return i;
            else if (c == QLatin1Char('<'))
                return -1;
        }
        m_isCutOff = true;
        return -1;
    }

    bool skipPast(const QString &end)
    {
        const int found = int(m_html.indexOf(end, m_position, Qt::CaseInsensitive));
        m_position = found < 0 ? int(m_html.size()) : found + int(end.size());
        return true;
    }

    static QString valueOf(const QString &attribute, const QString &attributes)
    {
        const QRegularExpression form(
            QStringLiteral("\\b%1\\s*=\\s*(?:\"([^\"]*)\"|'([^']*)'|([^\\s\"'>]+))").arg(attribute),
            QRegularExpression::CaseInsensitiveOption);
        const auto match = form.match(attributes);
        return RichText::dereferenced(match.captured(match.lastCapturedIndex()));
    }

    const QString m_html;
    int m_position = 0;
    bool m_isCutOff = false; ///< no tag ends any more
    Collector m_collector;
};

} // namespace

namespace RichText {

Content read(QXmlStreamReader &xml)
{
    Collector collector;
    int depth = 1;
    while (depth > 0 && !xml.atEnd()) {
        switch (xml.readNext()) {
        case QXmlStreamReader::StartElement: {
            const QXmlStreamAttributes attributes = xml.attributes();
            if (xml.name() == QLatin1String("head")) {
                xml.skipCurrentElement(); // holds a style at most
                break;
            }
            ++depth;
            collector.enter(xml.name().toString(), [&attributes](const QString &name) {
                return attributes.value(name).toString();
            });
            break;
        }
        case QXmlStreamReader::EndElement:
            if (--depth > 0)
                collector.leave(xml.name().toString());
            break;
        case QXmlStreamReader::Characters:
            collector.add(xml.text().toString());
            break;
        default:
            break;
        }
    }
    return collector.content();
}

Content fromHtml(const QString &html)
{
    return HtmlReader(html).read();
}

bool hasTags(const QString &text)
{
    static const QRegularExpression tag(
        QStringLiteral(
            "</?(?:html|body|a|b|i|u|s|p|br|strong|em|span|font|code|div|mark|strike|del|"
            "ul|ol|li|pre|sub|sup|table|tr|td|th|h[1-6]|time|mention)(?:\\s[^<>]*)?/?>|"
            "<img\\s[^<>]*>"), // one without a file shows nothing
        QRegularExpression::CaseInsensitiveOption);
    return text.contains(QLatin1Char('<')) && text.contains(tag);
}

bool hasReferences(const QString &text)
{
    return dereferenced(text) != text;
}

QString dereferenced(const QString &text)
{
    QString result;
    int end = 0;
    constexpr int longest = 12;
    for (int i = int(text.indexOf(QLatin1Char('&'))); i >= 0;
         i = int(text.indexOf(QLatin1Char('&'), i + 1))) {
        if (i < end)
            continue;
        const QString ahead = text.mid(i + 1, longest);
        const int length = int(ahead.indexOf(QLatin1Char(';')));
        const QString character =
            length > 0 ? ExchangeText::referenced(ahead.left(length)) : QString();
        if (character.isNull())
            continue;
        result.append(QStringView(text).mid(end, i - end).toString() + character);
        end = i + length + 2;
    }
    return end == 0 ? text : result + text.mid(end);
}

void write(QXmlStreamWriter &xml, const QString &text)
{
    xml.writeStartElement(QStringLiteral("html"));
    xml.writeStartElement(QStringLiteral("body"));
    xml.writeStartElement(preformatted);
    // A carriage return has to be spelt out, or a reader would take it for a line feed.
    const QStringList parts = text.split(QLatin1Char('\r'));
    xml.writeCharacters(parts.constFirst());
    for (int i = 1; i < parts.size(); ++i) {
        xml.writeEntityReference(QStringLiteral("#13"));
        xml.writeCharacters(parts.at(i));
    }
    xml.writeEndElement();
    xml.writeEndElement();
    xml.writeEndElement();
}

} // namespace RichText
