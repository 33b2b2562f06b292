// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/svgsymbol.h>

#include <fishbone/exchange/svgpicture.h>

#include <QFile>
#include <QSet>
#include <QXmlStreamReader>

namespace {
constexpr int deepestGroup = 16;

bool isShape(const QString &name)
{
    static const QSet<QString> shapes{
        QStringLiteral("circle"), QStringLiteral("ellipse"),  QStringLiteral("g"),
        QStringLiteral("line"),   QStringLiteral("path"),     QStringLiteral("polygon"),
        QStringLiteral("rect"),   QStringLiteral("polyline"),
    };
    return shapes.contains(name);
}

bool isHarmless(const QString &attribute)
{
    static const QSet<QString> known{
        QStringLiteral("cx"),
        QStringLiteral("cy"),
        QStringLiteral("d"),
        QStringLiteral("fill"),
        QStringLiteral("fill-opacity"),
        QStringLiteral("fill-rule"),
        QStringLiteral("height"),
        QStringLiteral("opacity"),
        QStringLiteral("points"),
        QStringLiteral("r"),
        QStringLiteral("rx"),
        QStringLiteral("ry"),
        QStringLiteral("stroke"),
        QStringLiteral("stroke-linecap"),
        QStringLiteral("stroke-linejoin"),
        QStringLiteral("stroke-opacity"),
        QStringLiteral("stroke-width"),
        QStringLiteral("transform"),
        QStringLiteral("width"),
        QStringLiteral("x"),
        QStringLiteral("x1"),
        QStringLiteral("x2"),
        QStringLiteral("y"),
        QStringLiteral("y1"),
        QStringLiteral("y2"),
    };
    return known.contains(attribute);
}

QByteArray startTag(const QXmlStreamReader &xml)
{
    QByteArray out = '<' + xml.name().toString().toLatin1();
    const QXmlStreamAttributes attributes = xml.attributes();
    for (const QXmlStreamAttribute &attribute : attributes) {
        const QString value = attribute.value().toString();
        if (isHarmless(attribute.qualifiedName().toString()) && !value.contains(u'('))
            out += ' ' + attribute.name().toString().toLatin1() + "=\"" +
                   SvgPicture::escaped(value) + '"';
        else if (attribute.name() == QLatin1String("transform"))
            out += " transform=\"" + SvgPicture::escaped(value) + '"';
    }
    return out + '>';
}

QByteArray viewBoxOf(const QXmlStreamReader &xml)
{
    const QString box = xml.attributes().value(QLatin1String("viewBox")).toString();
    if (!box.isEmpty())
        return SvgPicture::escaped(box);
    return "0 0 " + SvgPicture::escaped(xml.attributes().value(QLatin1String("width")).toString()) +
           ' ' + SvgPicture::escaped(xml.attributes().value(QLatin1String("height")).toString());
}
} // namespace

SvgSymbol::SvgSymbol(const QString &file)
{
    QFile source(file);
    QByteArray box;
    QByteArray shapes;
    if (source.open(QIODevice::ReadOnly)) {
        QXmlStreamReader xml(&source);
        if (xml.readNextStartElement())
            box = viewBoxOf(xml);
        int depth = 0;
        while (!xml.atEnd()) {
            const QXmlStreamReader::TokenType token = xml.readNext();
            if (token == QXmlStreamReader::StartElement) {
                if (depth < deepestGroup && isShape(xml.name().toString())) {
                    shapes += startTag(xml);
                    ++depth;
                } else {
                    xml.skipCurrentElement();
                }
            } else if (token == QXmlStreamReader::EndElement && depth > 0) {
                shapes += "</" + xml.name().toString().toLatin1() + '>';
                --depth;
            }
        }
        if (xml.hasError())
            shapes.clear();
    }
    if (shapes.isEmpty())
        m_markup = " viewBox=\"0 0 16 16\"><circle cx=\"8\" cy=\"8\" r=\"7\" fill=\"#757575\"/>";
    else
        m_markup = " viewBox=\"" + box + "\">" + shapes;
}
