// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/diagramexchange.h>
#include <fishbone/exchange/foreignformats.h>
#include <fishbone/exchange/importedtree.h>
#include <fishbone/exchange/outlinewalk.h>
#include <fishbone/exchange/subjectattributes.h>
#include <fishbone/exchange/xmlsupport.h>
#include <fishbone/model/jsonnodes.h>

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace {

const QLatin1String outlineName("outline");
const QLatin1String textName("text");

/**
 * The name of an attribute in the format: the usual ones for link and note, and the key with an
 * underscore in front, as outliners name what is their own, for the rest.
 */
QString nameOf(const SubjectAttributes::Attribute &attribute)
{
    if (attribute.key == JsonNodes::urlKey)
        return QStringLiteral("url");
    if (attribute.key == JsonNodes::detailKey)
        return QStringLiteral("_note");
    return QLatin1Char('_') + attribute.key;
}

/** Adds the outline that @p xml has just entered. */
bool addOutline(const QXmlStreamReader &xml, int depth, ImportedTree &tree)
{
    const QXmlStreamAttributes values = xml.attributes();
    TreeItem *const subject = tree.add(depth, values.value(textName).toString(), xml.lineNumber());
    if (!subject)
        return false;
    for (const SubjectAttributes::Attribute &attribute : SubjectAttributes::all()) {
        const QString value = values.value(nameOf(attribute)).toString();
        // Other programs may mean something else by the same name: what is no value is left out.
        if (!value.isEmpty())
            attribute.setText(*subject, value);
    }
    return true;
}

void readHead(QXmlStreamReader &xml, ImportedTree &tree)
{
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("title"))
            tree.setCommonTitle(xml.readElementText(QXmlStreamReader::SkipChildElements));
        else
            xml.skipCurrentElement();
    }
}

bool readBody(QXmlStreamReader &xml, ImportedTree &tree)
{
    int depth = 0;
    while (!xml.atEnd()) {
        const QXmlStreamReader::TokenType token = xml.readNext();
        if (token == QXmlStreamReader::EndElement && depth-- == 0)
            return true;
        if (token != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() != outlineName)
            xml.skipCurrentElement();
        else if (!addOutline(xml, depth++, tree))
            return false;
    }
    return true;
}

} // namespace

bool OpmlFormat::read(const QByteArray &bytes, ImportedTree &tree)
{
    QXmlStreamReader xml(bytes);
    if (!XmlSupport::enterRoot(xml, QStringLiteral("opml"), tree))
        return false;
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("head"))
            readHead(xml, tree);
        else if (xml.name() != QLatin1String("body"))
            xml.skipCurrentElement();
        else if (!readBody(xml, tree))
            return false;
    }
    return XmlSupport::finish(xml, tree);
}

QByteArray OpmlFormat::write(const TreeItem &head)
{
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    xml.setAutoFormatting(true);
    xml.setAutoFormattingIndent(1);
    xml.writeStartDocument();
    xml.writeStartElement(QStringLiteral("opml"));
    xml.writeAttribute(QStringLiteral("version"), QStringLiteral("2.0"));
    xml.writeStartElement(QStringLiteral("head"));
    xml.writeTextElement(QStringLiteral("title"), XmlSupport::storable(head.title()));
    xml.writeEndElement();
    xml.writeStartElement(QStringLiteral("body"));
    OutlineWalk::walk(
        head,
        [&xml](const TreeItem &subject, int) {
            xml.writeStartElement(outlineName);
            xml.writeAttribute(textName, XmlSupport::storable(subject.title()));
            for (const SubjectAttributes::Attribute &attribute : SubjectAttributes::all()) {
                const QString value = attribute.text(subject);
                if (!value.isEmpty())
                    xml.writeAttribute(nameOf(attribute), XmlSupport::storable(value));
            }
        },
        [&xml](const TreeItem &) { xml.writeEndElement(); });
    xml.writeEndDocument();
    return bytes;
}
