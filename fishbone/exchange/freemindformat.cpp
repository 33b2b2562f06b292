// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/diagramexchange.h>
#include <fishbone/exchange/exchangeformat.h>
#include <fishbone/exchange/freemindnames.h>
#include <fishbone/exchange/freemindreader.h>
#include <fishbone/exchange/importedtree.h>
#include <fishbone/exchange/outlinewalk.h>
#include <fishbone/exchange/richtext.h>
#include <fishbone/exchange/subjectattributes.h>
#include <fishbone/exchange/xmlsupport.h>

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace {

using SubjectAttributes::Attribute;

/** Whether a title in an attribute would be taken for a formatted one. */
bool looksFormatted(const QString &title)
{
    return title.startsWith(QLatin1String("<html"), Qt::CaseInsensitive);
}

void writeRichText(QXmlStreamWriter &xml, const QString &type, const QString &text)
{
    xml.writeStartElement(FreeMindNames::richTextName);
    xml.writeAttribute(QStringLiteral("TYPE"), type);
    RichText::write(xml, XmlSupport::storable(text));
    xml.writeEndElement();
}

void writeSubject(QXmlStreamWriter &xml, const TreeItem &subject)
{
    const bool isFormatted = looksFormatted(subject.title());
    xml.writeStartElement(FreeMindNames::nodeName);
    if (!isFormatted)
        xml.writeAttribute(FreeMindNames::titleName, XmlSupport::storable(subject.title()));
    for (const Attribute &attribute : SubjectAttributes::all()) {
        const QString name = FreeMindNames::nativeName(attribute);
        const QString value = attribute.text(subject);
        if (!name.isEmpty() && !value.isEmpty())
            xml.writeAttribute(name, XmlSupport::storable(value));
    }
    if (isFormatted)
        writeRichText(xml, QStringLiteral("NODE"), subject.title());
    if (!subject.detail().isEmpty())
        writeRichText(xml, FreeMindNames::noteType, subject.detail());
    for (const Attribute &attribute : SubjectAttributes::all()) {
        const QString value = attribute.text(subject);
        if (!FreeMindNames::isNamedValue(attribute) || value.isEmpty())
            continue;
        xml.writeEmptyElement(FreeMindNames::attributeName);
        xml.writeAttribute(QStringLiteral("NAME"), attribute.key);
        xml.writeAttribute(QStringLiteral("VALUE"), XmlSupport::storable(value));
    }
}

bool readFreeMind(const QByteArray &bytes, ImportedTree &tree)
{
    QXmlStreamReader xml(bytes);
    return XmlSupport::enterRoot(xml, QStringLiteral("map"), tree) &&
           FreeMindReader(xml, tree).read() && XmlSupport::finish(xml, tree, bytes);
}

QByteArray writeFreeMind(const TreeItem &head)
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

} // namespace

const ExchangeFormat ExchangeFormats::freeMind{
    DiagramExchange::Format::FreeMind,
    "mm",
    QT_TRANSLATE_NOOP("DiagramExchange", "FreeMind mind map"),
    "mm",
    "title children *",
    readFreeMind,
    writeFreeMind};
