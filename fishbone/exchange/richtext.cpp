// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/richtext.h>

#include <QStringList>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace {

const QLatin1String preformatted("pre");

/** Puts a text together from its elements. */
class Collector
{
public:
    void enter(const QString &name)
    {
        if (name == preformatted)
            ++m_preformatted;
        else if (breaksLine(name))
            endLine();
    }

    void leave(const QString &name)
    {
        if (name == preformatted)
            --m_preformatted;
        else if (breaksLine(name))
            endLine();
    }

    void add(const QString &text) { (m_preformatted > 0 ? m_exact : m_line).append(text); }

    QString text()
    {
        endLine();
        return m_exact.isEmpty() ? m_lines.join(QLatin1Char('\n')) : m_exact;
    }

private:
    static bool breaksLine(const QString &element)
    {
        static const QStringList blocks{QStringLiteral("p"), QStringLiteral("li"),
                                        QStringLiteral("div"), QStringLiteral("br")};
        return blocks.contains(element);
    }

    void endLine()
    {
        const QString line = m_line.simplified();
        if (!line.isEmpty())
            m_lines.append(line);
        m_line.clear();
    }

    int m_preformatted = 0; ///< the depth of preformatted elements
    QString m_exact;
    QString m_line;
    QStringList m_lines;
};

} // namespace

namespace RichText {

QString read(QXmlStreamReader &xml)
{
    Collector collector;
    int depth = 1;
    while (depth > 0 && !xml.atEnd()) {
        switch (xml.readNext()) {
        case QXmlStreamReader::StartElement:
            if (xml.name() == QLatin1String("head")) {
                xml.skipCurrentElement(); // holds a style at most
                break;
            }
            ++depth;
            collector.enter(xml.name().toString());
            break;
        case QXmlStreamReader::EndElement:
            --depth;
            collector.leave(xml.name().toString());
            break;
        case QXmlStreamReader::Characters:
            collector.add(xml.text().toString());
            break;
        default:
            break;
        }
    }
    return collector.text();
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
