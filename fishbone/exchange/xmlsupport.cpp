// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/xmlsupport.h>

#include <fishbone/exchange/diagramexchange.h>
#include <fishbone/exchange/importedtree.h>

#include <QXmlStreamReader>

namespace {

/** Whether the UTF-16 unit of @p text at @p i belongs to a character of XML 1.0. */
bool isStorable(const QString &text, int i)
{
    const QChar c = text.at(i);
    if (c.isHighSurrogate())
        return i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
    if (c.isLowSurrogate())
        return i > 0 && text.at(i - 1).isHighSurrogate();
    if (c < QLatin1Char(' '))
        return c == QLatin1Char('\t') || c == QLatin1Char('\n') || c == QLatin1Char('\r');
    return c.unicode() < 0xfffe;
}

} // namespace

namespace XmlSupport {

QString storable(const QString &text)
{
    QString result = text;
    for (int i = 0; i < text.size(); ++i) {
        if (!isStorable(text, i))
            result[i] = QChar(QChar::ReplacementCharacter);
    }
    return result;
}

bool enterRoot(QXmlStreamReader &xml, const QString &root, ImportedTree &tree)
{
    while (!xml.atEnd()) {
        const QXmlStreamReader::TokenType token = xml.readNext();
        if (token == QXmlStreamReader::DTD && xml.text().contains(QLatin1String("<!ENTITY")))
            return tree.fail(xml.lineNumber(),
                             DiagramExchange::tr("declarations of entities are not accepted"));
        if (token != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == root)
            return true;
        return tree.fail(xml.lineNumber(),
                         DiagramExchange::tr("the document begins with <%1>, not with <%2>")
                             .arg(xml.name().toString(), root));
    }
    return finish(xml, tree);
}

bool finish(QXmlStreamReader &xml, ImportedTree &tree)
{
    while (!xml.atEnd())
        xml.readNext();
    if (!xml.hasError())
        return true;
    return tree.fail(xml.lineNumber(), xml.errorString());
}

} // namespace XmlSupport
