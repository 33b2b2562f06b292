// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/freemindreader.h>

#include <fishbone/exchange/diagramexchange.h>
#include <fishbone/exchange/freemindicons.h>
#include <fishbone/exchange/freemindnames.h>
#include <fishbone/exchange/importedtree.h>
#include <fishbone/exchange/richtext.h>
#include <fishbone/exchange/subjectattributes.h>

#include <QDateTime>
#include <QFileInfo>
#include <QXmlStreamReader>

namespace {

using Kind = ExchangeReport::Kind;
using SubjectAttributes::Attribute;

QString quoted(const QString &text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}

/** The attributes of a node that only say how it is drawn, or what its program did with it. */
bool isLook(const QString &name)
{
    static const QStringList names{QStringLiteral("POSITION"),
                                   QStringLiteral("STYLE"),
                                   QStringLiteral("COLOR"),
                                   QStringLiteral("BACKGROUND_COLOR"),
                                   QStringLiteral("FOLDED"),
                                   QStringLiteral("HGAP"),
                                   QStringLiteral("VGAP"),
                                   QStringLiteral("VSHIFT"),
                                   QStringLiteral("MODIFIED"),
                                   QStringLiteral("STYLE_REF"),
                                   QStringLiteral("HGAP_QUANTITY"),
                                   QStringLiteral("VGAP_QUANTITY"),
                                   QStringLiteral("VSHIFT_QUANTITY"),
                                   QStringLiteral("LOCALIZED_STYLE_REF"),
                                   QStringLiteral("SHAPE_HORIZONTAL_MARGIN"),
                                   QStringLiteral("SHAPE_VERTICAL_MARGIN"),
                                   QStringLiteral("MAX_WIDTH"),
                                   QStringLiteral("MIN_WIDTH"),
                                   QStringLiteral("BORDER_WIDTH"),
                                   QStringLiteral("BORDER_COLOR"),
                                   QStringLiteral("BORDER_WIDTH_LIKE_EDGE"),
                                   QStringLiteral("BORDER_COLOR_LIKE_EDGE"),
                                   QStringLiteral("BORDER_DASH"),
                                   QStringLiteral("BORDER_DASH_LIKE_EDGE"),
                                   QStringLiteral("TEXT_ALIGN"),
                                   QStringLiteral("FORMAT"),
                                   QStringLiteral("NUMBERED"),
                                   QStringLiteral("AdditionalInfo"),
                                   QStringLiteral("CHILD_NODES_ALIGNMENT"),
                                   QStringLiteral("CHILD_NODES_LAYOUT"),
                                   QStringLiteral("UNIFORM_SHAPE"),
                                   QStringLiteral("ICON_SIZE"),
                                   QStringLiteral("LAST_STYLE_REF"),
                                   QStringLiteral("COMMON_HGAP_QUANTITY")};
    return names.contains(name);
}

/** The hooks that only say how a node is drawn. */
bool isLookHook(const QString &name)
{
    static const QStringList names{
        QStringLiteral("MapStyle"),
        QStringLiteral("AutomaticEdgeColor"),
        QStringLiteral("AlwaysUnfoldedNode"),
        QStringLiteral("FirstGroupNode"),
        QStringLiteral("SummaryNode"),
        QStringLiteral("FreeNode"),
        QStringLiteral("accessories/plugins/AutomaticLayout.properties"),
        QStringLiteral("accessories/plugins/BlinkingNodeHook.properties"),
        QStringLiteral("accessories/plugins/BlinkingNodeHook.xml"),
        QStringLiteral("accessories/plugins/CreationModificationPlugin.properties"),
        QStringLiteral("accessories/plugins/HierarchicalIcons.properties"),
        QStringLiteral("accessories/plugins/RevisionPlugin.properties")};
    return names.contains(name);
}

} // namespace

bool FreeMindReader::read()
{
    while (!m_xml.atEnd()) {
        const QXmlStreamReader::TokenType token = m_xml.readNext();
        if (token == QXmlStreamReader::StartElement) {
            if (!readElement())
                return false;
        } else if (token == QXmlStreamReader::EndElement) {
            if (m_open.empty())
                break;
            closeNode();
        }
    }
    resolveArrows();
    return true;
}

bool FreeMindReader::readElement()
{
    if (m_xml.name() == FreeMindNames::nodeName)
        return openNode();
    if (m_open.empty() || !readPart())
        leaveOutLook();
    return true;
}

bool FreeMindReader::readPart()
{
    const auto name = m_xml.name();
    if (name == FreeMindNames::richTextName)
        readRichText();
    else if (name == FreeMindNames::attributeName)
        readNamedValue();
    else if (name == QLatin1String("icon"))
        readIcon();
    else if (name == QLatin1String("arrowlink"))
        readArrow();
    else if (name == QLatin1String("hook"))
        readHook();
    else
        return false;
    return true;
}

void FreeMindReader::leaveOutLook()
{
    m_tree.note(Kind::Appearance, QStringLiteral("<%1>").arg(m_xml.name().toString()),
                m_xml.lineNumber());
    m_xml.skipCurrentElement();
}

bool FreeMindReader::openNode()
{
    QString title = m_xml.attributes().value(FreeMindNames::titleName).toString();
    RichText::Content content;
    if (title.startsWith(QLatin1String("<html"), Qt::CaseInsensitive)) {
        content = RichText::fromHtml(title);
        title = content.text;
    }
    TreeItem *const subject = m_tree.add(int(m_open.size()), title, m_xml.lineNumber());
    if (!subject)
        return false;
    readNodeValues(*subject);
    m_tree.addContent(*subject, content.links, content.images, m_xml.lineNumber());
    m_open.push_back({subject, {}, content.images});
    return true;
}

void FreeMindReader::readNodeValues(TreeItem &subject)
{
    const QXmlStreamAttributes values = m_xml.attributes();
    const qint64 line = m_xml.lineNumber();
    for (const QXmlStreamAttribute &xmlAttribute : values) {
        const QString name = xmlAttribute.name().toString();
        const QString value = xmlAttribute.value().toString();
        const Attribute *const attribute = FreeMindNames::attributeNamed(name);
        if (name == FreeMindNames::titleName || value.isEmpty())
            continue;
        if (attribute && attribute->setText(subject, value)) {
            if (name == FreeMindNames::idName)
                m_byId.insert(value, &subject);
        } else if (name == QLatin1String("ENCRYPTED_CONTENT")) {
            m_tree.note(Kind::LeftOut, DiagramExchange::tr("what is encrypted"), line);
        } else if (isLook(name)) {
            m_tree.note(Kind::Appearance, name, line);
        } else {
            m_tree.addNamedDetail(subject, name, value, line);
        }
    }
}

void FreeMindReader::closeNode()
{
    const Node node = m_open.back();
    m_open.pop_back();
    if (!node.icons.isEmpty())
        m_tree.addNamedDetail(*node.subject, DiagramExchange::tr("Icons"),
                              node.icons.join(QLatin1String(", ")));
    if (node.subject->title().isEmpty() && !node.images.isEmpty())
        node.subject->setTitle(QFileInfo(node.images.constFirst()).fileName());
}

void FreeMindReader::readRichText()
{
    const QString type = m_xml.attributes().value(QLatin1String("TYPE")).toString();
    const qint64 line = m_xml.lineNumber();
    TreeItem *const subject = m_open.back().subject;
    const RichText::Content content = RichText::read(m_xml);
    m_open.back().images += content.images;
    if (type == FreeMindNames::noteType && subject->detail().isEmpty())
        subject->setDetail(content.text);
    else if (type == QLatin1String("NODE") && subject->title().isEmpty())
        subject->setTitle(content.text);
    else
        m_tree.addDetail(*subject, content.text, quoted(type), line);
    m_tree.addContent(*subject, content.links, content.images, line);
}

/** Other programs may mean something else by the same name: what is no value goes to the details,
 * as all other names do. */
void FreeMindReader::readNamedValue()
{
    const QXmlStreamAttributes values = m_xml.attributes();
    const QString name = values.value(QLatin1String("NAME")).toString();
    const QString value = values.value(QLatin1String("VALUE")).toString();
    TreeItem &subject = *m_open.back().subject;
    const Attribute *const attribute = FreeMindNames::namedValue(name);
    if (!attribute || !attribute->setText(subject, value))
        m_tree.addNamedDetail(subject, name, value, m_xml.lineNumber());
    m_xml.skipCurrentElement();
}

void FreeMindReader::readIcon()
{
    const QString name = m_xml.attributes().value(QLatin1String("BUILTIN")).toString();
    const qint64 line = m_xml.lineNumber();
    Node &node = m_open.back();
    m_xml.skipCurrentElement();
    if (const std::optional<int> value = FreeMindIcons::apply(name, *node.subject)) {
        m_tree.note(Kind::ReadAs,
                    DiagramExchange::tr("the icon \"%1\" as %2").arg(name).arg(*value), line);
        return;
    }
    if (!name.isEmpty())
        node.icons.append(name);
}

void FreeMindReader::readArrow()
{
    const QXmlStreamAttributes values = m_xml.attributes();
    QStringList labels;
    for (const char *name : {"SOURCE_LABEL", "MIDDLE_LABEL", "TARGET_LABEL"}) {
        const QString label = values.value(QLatin1String(name)).toString();
        if (!label.isEmpty())
            labels.append(label);
    }
    m_arrows.push_back({m_open.back().subject,
                        values.value(QLatin1String("DESTINATION")).toString(),
                        labels.join(QLatin1String(", ")), m_xml.lineNumber()});
    m_xml.skipCurrentElement();
}

void FreeMindReader::resolveArrows()
{
    for (const Arrow &arrow : m_arrows) {
        const TreeItem *const target = m_byId.value(arrow.to);
        QString text = QChar(u'\u2192') + QLatin1Char(' ') + (target ? target->title() : arrow.to);
        if (!arrow.label.isEmpty())
            text += QStringLiteral(" (%1)").arg(arrow.label);
        m_tree.addDetail(*arrow.from, text, DiagramExchange::tr("an arrow"), arrow.line);
    }
}

/** Hooks are what a part of the program keeps at a node: notes of old, pictures, formulas,
 * reminders. */
void FreeMindReader::readHook()
{
    const QXmlStreamAttributes values = m_xml.attributes();
    const QString name = values.value(QLatin1String("NAME")).toString();
    const qint64 line = m_xml.lineNumber();
    TreeItem &subject = *m_open.back().subject;
    if (isLookHook(name)) {
        leaveOutLook();
        return;
    }
    QStringList parts;
    for (const QXmlStreamAttribute &value : values) {
        if (value.name() == QLatin1String("URI")) {
            m_open.back().images.append(value.value().toString());
            m_tree.addContent(subject, {}, {value.value().toString()}, line);
        } else if (value.name() != QLatin1String("NAME") && value.name() != QLatin1String("SIZE")) {
            parts.append(value.value().toString());
        }
    }
    int depth = 1;
    while (depth > 0 && !m_xml.atEnd()) {
        const auto token = m_xml.readNext();
        depth += token == QXmlStreamReader::StartElement ? 1 : 0;
        depth -= token == QXmlStreamReader::EndElement ? 1 : 0;
        if (token == QXmlStreamReader::Characters && !m_xml.isWhitespace())
            parts.append(m_xml.text().toString().trimmed());
        if (token == QXmlStreamReader::StartElement &&
            m_xml.name() == QLatin1String("Parameters")) {
            const QXmlStreamAttributes parameters = m_xml.attributes();
            for (const QXmlStreamAttribute &value : parameters)
                parts.append(FreeMindNames::parameterText(value.name().toString(),
                                                          value.value().toString()));
        }
    }
    const bool isNote = name.contains(QLatin1String("NodeNote"));
    const QString text = parts.join(isNote ? QLatin1String("\n") : QLatin1String(" "));
    if (isNote && subject.detail().isEmpty())
        subject.setDetail(text);
    else
        m_tree.addNamedDetail(subject, QFileInfo(name).baseName(), text, line);
}
