// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/xmlsupport.h>

#include <fishbone/exchange/diagramexchange.h>
#include <fishbone/exchange/importedtree.h>

#include <QXmlStreamReader>

#include <optional>
#include <vector>

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

/** Whether the error of @p xml is that something else stands where an element should end. */
bool lacksAnEnd(const QXmlStreamReader &xml)
{
    QXmlStreamReader wrong(QByteArray("<a></b>")); // has the reader's text for that
    while (!wrong.atEnd())
        wrong.readNext();
    return xml.error() == QXmlStreamReader::PrematureEndOfDocumentError ||
           xml.errorString() == wrong.errorString();
}

struct OpenElement
{
    QString name;
    qint64 line;
};

/** The innermost element that is open where @p document stops being well-formed. */
std::optional<OpenElement> openElement(const QByteArray &document)
{
    std::vector<OpenElement> open;
    QXmlStreamReader xml(document);
    while (!xml.atEnd()) {
        const QXmlStreamReader::TokenType token = xml.readNext();
        if (token == QXmlStreamReader::StartElement)
            open.push_back({xml.qualifiedName().toString(), xml.lineNumber()});
        else if (token == QXmlStreamReader::EndElement)
            open.pop_back();
    }
    return open.empty() ? std::nullopt : std::make_optional(open.back());
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
    return finish(xml, tree, QByteArray());
}

QString textOf(QXmlStreamReader &xml)
{
    QString text;
    int depth = 1;
    while (depth > 0 && !xml.atEnd()) {
        const QXmlStreamReader::TokenType token = xml.readNext();
        depth += token == QXmlStreamReader::StartElement ? 1 : 0;
        depth -= token == QXmlStreamReader::EndElement ? 1 : 0;
        if (token == QXmlStreamReader::Characters || token == QXmlStreamReader::EntityReference)
            text += xml.text();
    }
    return text;
}

bool finish(QXmlStreamReader &xml, ImportedTree &tree, const QByteArray &document)
{
    while (!xml.atEnd())
        xml.readNext();
    if (!xml.hasError())
        return true;
    const auto open = lacksAnEnd(xml) ? openElement(document) : std::nullopt;
    return tree.fail(xml.lineNumber(),
                     open ? DiagramExchange::tr("</%1> is missing, the end of <%1> in line %2")
                                .arg(open->name)
                                .arg(open->line)
                          : xml.errorString());
}

} // namespace XmlSupport
