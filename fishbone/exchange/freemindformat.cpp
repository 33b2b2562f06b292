// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/diagramexchange.h>
#include <fishbone/exchange/foreignformats.h>
#include <fishbone/exchange/importedtree.h>
#include <fishbone/exchange/outlinewalk.h>
#include <fishbone/exchange/richtext.h>
#include <fishbone/exchange/subjectattributes.h>
#include <fishbone/exchange/xmlsupport.h>
#include <fishbone/model/jsonnodes.h>

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <vector>

namespace {

using SubjectAttributes::Attribute;

const QLatin1String nodeName("node");
const QLatin1String titleName("TEXT");
const QLatin1String richTextName("richcontent");
const QLatin1String attributeName("attribute");
const QLatin1String noteType("NOTE");

/** The XML attribute that stands for an attribute of a subject; empty when none does. */
QString nativeName(const Attribute &attribute)
{
    if (attribute.key == JsonNodes::urlKey)
        return QStringLiteral("LINK");
    if (attribute.key == JsonNodes::createDateKey)
        return QStringLiteral("CREATED");
    return QString();
}

/** Whether an attribute of a subject is an element with a name and a value. */
bool isNamedValue(const Attribute &attribute)
{
    return nativeName(attribute).isEmpty() && attribute.key != JsonNodes::detailKey;
}

/** Reads the nodes of a mind map. */
class MapReader
{
public:
    MapReader(QXmlStreamReader &xml, ImportedTree &tree)
        : m_xml(xml)
        , m_tree(tree)
    {
    }

    /** Reads up to the end of the map; false when the tree failed. */
    bool read()
    {
        while (!m_xml.atEnd()) {
            const QXmlStreamReader::TokenType token = m_xml.readNext();
            if (token == QXmlStreamReader::StartElement) {
                if (!readElement())
                    return false;
            } else if (token == QXmlStreamReader::EndElement) {
                if (m_open.empty())
                    return true;
                m_open.pop_back();
            }
        }
        return true;
    }

private:
    bool readElement()
    {
        if (m_xml.name() == nodeName)
            return openNode();
        if (!m_open.empty() && m_xml.name() == richTextName)
            readRichText();
        else if (!m_open.empty() && m_xml.name() == attributeName)
            readNamedValue();
        else
            m_xml.skipCurrentElement();
        return true;
    }

    bool openNode()
    {
        const QXmlStreamAttributes values = m_xml.attributes();
        TreeItem *const subject =
            m_tree.add(int(m_open.size()), values.value(titleName).toString(), m_xml.lineNumber());
        if (!subject)
            return false;
        m_open.push_back(subject);
        for (const Attribute &attribute : SubjectAttributes::all()) {
            const QString name = nativeName(attribute);
            const QString value = name.isEmpty() ? QString() : values.value(name).toString();
            if (!value.isEmpty())
                attribute.setText(*subject, value);
        }
        return true;
    }

    void readRichText()
    {
        const QString type = m_xml.attributes().value(QLatin1String("TYPE")).toString();
        TreeItem *const subject = m_open.back();
        const QString text = RichText::read(m_xml);
        if (type == noteType)
            subject->setDetail(text);
        else if (type == QLatin1String("NODE") && subject->title().isEmpty())
            subject->setTitle(text);
    }

    /** Other programs may mean something else by the same name: what is no value is left out. */
    void readNamedValue()
    {
        const QXmlStreamAttributes values = m_xml.attributes();
        const QString name = values.value(QLatin1String("NAME")).toString();
        for (const Attribute &attribute : SubjectAttributes::all()) {
            if (isNamedValue(attribute) && name == attribute.key)
                attribute.setText(*m_open.back(), values.value(QLatin1String("VALUE")).toString());
        }
        m_xml.skipCurrentElement();
    }

    QXmlStreamReader &m_xml;
    ImportedTree &m_tree;
    std::vector<TreeItem *> m_open; ///< the nodes around the current place
};

void writeSubject(QXmlStreamWriter &xml, const TreeItem &subject)
{
    xml.writeStartElement(nodeName);
    xml.writeAttribute(titleName, XmlSupport::storable(subject.title()));
    for (const Attribute &attribute : SubjectAttributes::all()) {
        const QString name = nativeName(attribute);
        const QString value = attribute.text(subject);
        if (!name.isEmpty() && !value.isEmpty())
            xml.writeAttribute(name, XmlSupport::storable(value));
    }
    if (!subject.detail().isEmpty()) {
        xml.writeStartElement(richTextName);
        xml.writeAttribute(QStringLiteral("TYPE"), noteType);
        RichText::write(xml, XmlSupport::storable(subject.detail()));
        xml.writeEndElement();
    }
    for (const Attribute &attribute : SubjectAttributes::all()) {
        const QString value = attribute.text(subject);
        if (!isNamedValue(attribute) || value.isEmpty())
            continue;
        xml.writeEmptyElement(attributeName);
        xml.writeAttribute(QStringLiteral("NAME"), attribute.key);
        xml.writeAttribute(QStringLiteral("VALUE"), XmlSupport::storable(value));
    }
}

} // namespace

bool FreeMindFormat::read(const QByteArray &bytes, ImportedTree &tree)
{
    QXmlStreamReader xml(bytes);
    return XmlSupport::enterRoot(xml, QStringLiteral("map"), tree) && MapReader(xml, tree).read() &&
           XmlSupport::finish(xml, tree);
}

QByteArray FreeMindFormat::write(const TreeItem &head)
{
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    xml.setAutoFormatting(true);
    xml.setAutoFormattingIndent(1);
    // The program that the format belongs to does not expect a declaration in front.
    xml.writeStartElement(QStringLiteral("map"));
    xml.writeAttribute(QStringLiteral("version"), QStringLiteral("1.0.1"));
    OutlineWalk::walk(
        head, [&xml](const TreeItem &subject, int) { writeSubject(xml, subject); },
        [&xml](const TreeItem &) { xml.writeEndElement(); });
    xml.writeEndElement();
    // The formatting begins with a line break, and the program looks at the very first characters.
    return bytes.trimmed() + '\n';
}
