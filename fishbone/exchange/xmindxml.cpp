// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/diagramexchange.h>
#include <fishbone/exchange/importedtree.h>
#include <fishbone/exchange/outlinewalk.h>
#include <fishbone/exchange/richtext.h>
#include <fishbone/exchange/subjectattributes.h>
#include <fishbone/exchange/xmindparts.h>
#include <fishbone/exchange/xmindtopics.h>
#include <fishbone/exchange/xmlsupport.h>
#include <fishbone/model/jsonnodes.h>

#include <QDateTime>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace {

using Kind = ExchangeReport::Kind;

/** Reads the document element by element: maps may be deep. */
class XMindMapReader
{
public:
    XMindMapReader(QXmlStreamReader &xml, ImportedTree &tree)
        : m_xml(xml)
        , m_tree(tree)
        , m_topics(tree)
    {
    }

    /**
     * Keeps what people said about topics until these are there. False when not all of it can be
     * read.
     */
    bool readComments(const QByteArray &bytes)
    {
        QXmlStreamReader xml(bytes);
        while (!xml.atEnd()) {
            const QXmlStreamReader::TokenType token = xml.readNext();
            if (token == QXmlStreamReader::DTD)
                return false; // the program writes none, and it may expand to anything
            if (token == QXmlStreamReader::StartElement && xml.name() == XmindNames::comment)
                readComment(xml);
        }
        return !xml.hasError();
    }

    bool read()
    {
        while (!m_xml.atEnd()) {
            const QXmlStreamReader::TokenType token = m_xml.readNext();
            if (token == QXmlStreamReader::StartElement) {
                if (!readElement())
                    return false;
            } else if (token == QXmlStreamReader::EndElement) {
                endElement();
            }
        }
        m_topics.finish();
        return true;
    }

private:
    void readComment(QXmlStreamReader &xml)
    {
        const QXmlStreamAttributes values = xml.attributes();
        const QString author = values.value(QLatin1String("author")).toString();
        const qint64 time = values.value(QLatin1String("time")).toString().toLongLong();
        QString text = XmlSupport::textOf(xml).trimmed();
        text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
        QStringList parts{author, text};
        if (time > 0)
            parts.insert(1, QDateTime::fromMSecsSinceEpoch(time, Qt::UTC).toString(Qt::ISODate));
        parts.removeAll(QString());
        m_topics.addRemark(values.value(QLatin1String("object-id")).toString(), XmindNames::comment,
                           parts.join(QLatin1String(", ")));
    }

    QString value(const char *name) const
    {
        return m_xml.attributes().value(QLatin1String(name)).toString();
    }

    void endElement()
    {
        if (m_xml.name() == QLatin1String("topic") && m_topics.depth() > 0)
            m_topics.close();
        if (m_xml.name() == QLatin1String("sheet"))
            nameSheet();
    }

    /** Keeps the name of a sheet, which comes behind its topics, unless the first one says it. */
    void nameSheet()
    {
        if (m_root && !m_sheetName.isEmpty() && m_sheetName != m_root->title())
            m_tree.addNamedDetail(*m_root, DiagramExchange::tr("Sheet"), m_sheetName,
                                  m_xml.lineNumber());
        m_root = nullptr;
        m_sheetName.clear();
    }

    QString elementText() { return XmlSupport::textOf(m_xml); }

    bool readElement()
    {
        const auto name = m_xml.name();
        if (name == QLatin1String("topic"))
            return openTopic();
        if (name == QLatin1String("relationship"))
            readArrow();
        else if (m_topics.depth() == 0)
            readSheetPart(name.toString());
        else
            readPart(name.toString());
        return true;
    }

    /** Reads an element of a sheet; most of them hold others, which come next. */
    void readSheetPart(const QString &name)
    {
        if (name == QLatin1String("sheet"))
            m_sheetId = value("id");
        else if (name == QLatin1String("title"))
            m_sheetName = elementText();
        else if (name == QLatin1String("marker-description"))
            m_topics.addRemark(m_sheetId, XmindNames::legend,
                               value("marker-id") + QLatin1String(": ") + value("description"));
        else if (name == QLatin1String("extensions"))
            leaveOut(Kind::LeftOut);
    }

    bool openTopic()
    {
        const QXmlStreamAttributes values = m_xml.attributes();
        const bool isRoot = m_topics.depth() == 0;
        if (!m_topics.open(value("id"), m_xml.lineNumber()))
            return false;
        if (isRoot) {
            m_root = m_tree.last();
            m_topics.addId(m_sheetId); // a sheet may have comments, and has the legend
        }
        for (const QXmlStreamAttribute &attribute : values) {
            if (attribute.name() == QLatin1String("href"))
                m_topics.setLink(attribute.value().toString());
            else if (attribute.name() != QLatin1String("id"))
                m_tree.note(Kind::Appearance, attribute.name().toString(), m_xml.lineNumber());
        }
        return true;
    }

    void readArrow()
    {
        const QString from = value("end1");
        const QString to = value("end2");
        QString title;
        while (m_xml.readNextStartElement()) {
            if (m_xml.name() == QLatin1String("title"))
                title = elementText();
            else
                m_xml.skipCurrentElement();
        }
        m_topics.addArrow(from, to, title);
    }

    /** Reads an element within a topic. */
    void readPart(const QString &name)
    {
        static const QStringList groups{QStringLiteral("children"), QStringLiteral("topics"),
                                        QStringLiteral("marker-refs"), QStringLiteral("labels"),
                                        QStringLiteral("notes")};
        if (name == QLatin1String("topics") && value("type") != QLatin1String("attached"))
            m_tree.note(
                Kind::ReadAs,
                DiagramExchange::tr("a topic of the kind \"%1\" as a cause").arg(value("type")),
                m_xml.lineNumber());
        if (groups.contains(name))
            return; // whose elements come next
        if (name == QLatin1String("title"))
            m_topics.setTitle(elementText());
        else if (name == QLatin1String("plain"))
            m_topics.setNote(elementText());
        else if (name == QLatin1String("html"))
            readFormattedNote();
        else if (name == QLatin1String("label"))
            m_topics.addLabel(elementText());
        else if (name == QLatin1String("marker-ref"))
            addMarker();
        else if (name == QLatin1String("img"))
            addImage();
        else if (name == QLatin1String("boundary"))
            m_topics.addDetail(DiagramExchange::tr("Boundary"), elementText());
        else if (name == QLatin1String("extension"))
            readExtension();
        else if (name == QLatin1String("extensions") || name == QLatin1String("boundaries"))
            return;
        else if (name == QLatin1String("numbering"))
            readNumbering();
        else if (name == QLatin1String("position") || name == QLatin1String("summaries"))
            leaveOut(Kind::Appearance);
        else
            leaveOut(Kind::LeftOut);
    }

    /** A note is mostly there as plain text too, which counts. */
    void readFormattedNote()
    {
        const RichText::Content content = RichText::read(m_xml);
        m_topics.setNoteIfNone(content.text);
        for (const QString &link : content.links)
            m_topics.addDetail(DiagramExchange::tr("Link"), link);
        for (const QString &image : content.images)
            m_topics.addImage(image);
    }

    /** Numbers are looks, but for the words around them. */
    void readNumbering()
    {
        m_tree.note(Kind::Appearance, QStringLiteral("<numbering>"), m_xml.lineNumber());
        while (m_xml.readNextStartElement()) {
            const QString name = m_xml.name().toString();
            m_topics.addDetail(name, elementText());
        }
    }

    void addMarker()
    {
        m_topics.addMarker(value("marker-id"));
        m_xml.skipCurrentElement();
    }

    void addImage()
    {
        const QXmlStreamAttributes values = m_xml.attributes();
        for (const QXmlStreamAttribute &attribute : values) {
            if (attribute.name() == QLatin1String("src"))
                m_topics.addImage(attribute.value().toString());
        }
        m_xml.skipCurrentElement();
    }

    void leaveOut(Kind kind)
    {
        m_tree.note(kind, QStringLiteral("<%1>").arg(m_xml.name().toString()), m_xml.lineNumber());
        m_xml.skipCurrentElement();
    }

    /** Reads what a part of a program keeps in a topic: names and values, as elements or
     * attributes. */
    void readExtension()
    {
        const bool isOwn = value("provider") == XmindNames::provider;
        if (value("provider").startsWith(XmindNames::lookProvider)) {
            leaveOut(Kind::Appearance);
            return;
        }
        QString element;
        int depth = 1;
        while (depth > 0 && !m_xml.atEnd()) {
            const QXmlStreamReader::TokenType token = m_xml.readNext();
            depth += token == QXmlStreamReader::StartElement ? 1 : 0;
            depth -= token == QXmlStreamReader::EndElement ? 1 : 0;
            if (token == QXmlStreamReader::Characters && !m_xml.isWhitespace())
                m_topics.setTaskValue(element, m_xml.text().toString().trimmed());
            if (token != QXmlStreamReader::StartElement)
                continue;
            element = m_xml.name().toString();
            if (isOwn && m_xml.name() == QLatin1String("field")) {
                const QString key = value("name");
                m_topics.setOwn(key, elementText());
                --depth;
                continue;
            }
            const QXmlStreamAttributes values = m_xml.attributes();
            for (const QXmlStreamAttribute &attribute : values)
                m_topics.setTaskValue(attribute.name().toString(), attribute.value().toString());
        }
    }

    QXmlStreamReader &m_xml;
    ImportedTree &m_tree;
    XmindTopics m_topics;
    const TreeItem *m_root = nullptr; ///< of the sheet
    QString m_sheetId;
    QString m_sheetName;
};

/** Writes a text; a carriage return has to be spelt out, or a reader would take it for a line feed.
 */
void writeText(QXmlStreamWriter &xml, const QString &name, const QString &text)
{
    xml.writeStartElement(name);
    const QStringList parts = XmlSupport::storable(text).split(QLatin1Char('\r'));
    xml.writeCharacters(parts.constFirst());
    for (int i = 1; i < parts.size(); ++i) {
        xml.writeEntityReference(QStringLiteral("#13"));
        xml.writeCharacters(parts.at(i));
    }
}

void writeFields(QXmlStreamWriter &xml, const TreeItem &subject)
{
    xml.writeStartElement(QStringLiteral("extensions"));
    xml.writeStartElement(QStringLiteral("extension"));
    xml.writeAttribute(QStringLiteral("provider"), XmindNames::provider);
    xml.writeStartElement(QStringLiteral("content"));
    for (const SubjectAttributes::Attribute &attribute : SubjectAttributes::all()) {
        const QString value = attribute.text(subject);
        const bool isNative =
            attribute.key == JsonNodes::urlKey || attribute.key == JsonNodes::detailKey;
        if (value.isEmpty() || isNative)
            continue;
        xml.writeStartElement(QStringLiteral("field"));
        xml.writeAttribute(QStringLiteral("name"), attribute.key);
        xml.writeCharacters(XmlSupport::storable(value));
        xml.writeEndElement();
    }
    xml.writeEndElement();
    xml.writeEndElement();
    xml.writeEndElement();
}

/** Writes a topic up to the place for those below it. */
void writeTopic(QXmlStreamWriter &xml, const TreeItem &subject, int number)
{
    const QString uuid = SubjectAttributes::named(JsonNodes::uuidKey).text(subject);
    xml.writeStartElement(QStringLiteral("topic"));
    xml.writeAttribute(QStringLiteral("id"), uuid.isEmpty()
                                                 ? XmindNames::noUuid + QString::number(number)
                                                 : XmlSupport::storable(uuid));
    if (!subject.url().isEmpty())
        xml.writeAttribute(QStringLiteral("xlink:href"), XmlSupport::storable(subject.url()));
    writeText(xml, QStringLiteral("title"), subject.title());
    xml.writeEndElement();
    if (!subject.detail().isEmpty()) {
        xml.writeStartElement(QStringLiteral("notes"));
        writeText(xml, QStringLiteral("plain"), subject.detail());
        xml.writeEndElement();
        xml.writeEndElement();
    }
    writeFields(xml, subject);
    if (subject.childCount() == 0)
        return;
    xml.writeStartElement(QStringLiteral("children"));
    xml.writeStartElement(QStringLiteral("topics"));
    xml.writeAttribute(QStringLiteral("type"), QStringLiteral("attached"));
}

} // namespace

bool XmindXml::read(const QByteArray &bytes, const QByteArray &comments, ImportedTree &tree)
{
    QXmlStreamReader xml(bytes);
    if (!XmlSupport::enterRoot(xml, QStringLiteral("xmap-content"), tree))
        return false;
    XMindMapReader reader(xml, tree);
    if (!comments.isEmpty() && !reader.readComments(comments))
        tree.note(Kind::LeftOut,
                  DiagramExchange::tr("the file \"%1\"").arg(QLatin1String("comments.xml")));
    return reader.read() && XmlSupport::finish(xml, tree, bytes);
}

QByteArray XmindXml::write(const TreeItem &head)
{
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    int number = 0;
    xml.writeStartDocument();
    xml.writeStartElement(QStringLiteral("xmap-content"));
    xml.writeAttribute(QStringLiteral("xmlns"), QStringLiteral("urn:xmind:xmap:xmlns:content:2.0"));
    xml.writeAttribute(QStringLiteral("xmlns:xlink"),
                       QStringLiteral("http://www.w3.org/1999/xlink"));
    xml.writeAttribute(QStringLiteral("version"), QStringLiteral("2.0"));
    xml.writeStartElement(QStringLiteral("sheet"));
    xml.writeAttribute(QStringLiteral("id"), QStringLiteral("fishbone-sheet"));
    OutlineWalk::walk(
        head, [&](const TreeItem &subject, int) { writeTopic(xml, subject, ++number); },
        [&xml](const TreeItem &subject) {
            if (subject.childCount() > 0) {
                xml.writeEndElement();
                xml.writeEndElement();
            }
            xml.writeEndElement();
        });
    xml.writeEndDocument();
    return bytes;
}
