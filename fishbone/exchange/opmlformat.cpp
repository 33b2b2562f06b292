// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/diagramexchange.h>
#include <fishbone/exchange/exchangeformat.h>
#include <fishbone/exchange/importedtree.h>
#include <fishbone/exchange/outlinewalk.h>
#include <fishbone/exchange/richtext.h>
#include <fishbone/exchange/subjectattributes.h>
#include <fishbone/exchange/taskstatuses.h>
#include <fishbone/exchange/taskvalues.h>
#include <fishbone/exchange/xmlsupport.h>
#include <fishbone/model/jsonnodes.h>

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <optional>
#include <vector>

namespace {

const QLatin1String outlineName("outline");
const QLatin1String textName("text");
const QLatin1String noteName("_note");

/**
 * The name of an attribute in the format: the usual ones for link and note, and the key with an
 * underscore in front, as outliners name what is their own, for the rest.
 */
QString nameOf(const SubjectAttributes::Attribute &attribute)
{
    if (attribute.key == JsonNodes::urlKey)
        return QStringLiteral("url");
    if (attribute.key == JsonNodes::detailKey)
        return noteName;
    return QLatin1Char('_') + attribute.key;
}

/** The title or note of an outline without its tags, if it has any; other programs have HTML there.
 */
QString plainFrom(const QString &text, ImportedTree &tree, TreeItem &subject, qint64 line)
{
    if (!RichText::hasTags(text))
        return RichText::dereferenced(text);
    QString html = text;
    html.replace(QLatin1Char('\n'), QLatin1String("<br>")); // an attribute has it for a break
    const RichText::Content content = RichText::fromHtml(html);
    tree.addContent(subject, content.links, content.images, line);
    return content.text;
}

/** @p plain so that plainFrom() gives it back. */
QString plainTo(const QString &plain)
{
    if (!RichText::hasTags(plain) && !RichText::hasReferences(plain))
        return plain;
    QString text = plain;
    return text.replace(QLatin1Char('&'), QLatin1String("&amp;"))
        .replace(QLatin1Char('<'), QLatin1String("&lt;"));
}

/** The field that an attribute of an outline stands for; null when none does. */
const SubjectAttributes::Attribute *attributeNamed(const QString &name)
{
    for (const SubjectAttributes::Attribute &attribute : SubjectAttributes::all()) {
        if (nameOf(attribute) == name)
            return &attribute;
    }
    return nullptr;
}

/** Takes what other outliners say of a task or a feed; false when @p name is something else. */
bool takeForeign(const QString &name, const QString &value, TreeItem &subject)
{
    using TaskStatuses::finished;
    using TaskStatuses::waiting;
    const bool isTrue = value == QLatin1String("true") || value == QLatin1String("1");
    if (name == QLatin1String("created")) {
        const std::optional<qint64> date = TaskValues::date(value);
        if (date)
            subject.setCreateDate(*date);
        return date.has_value();
    }
    if (name == QLatin1String("_complete") || name == QLatin1String("complete") ||
        name == QLatin1String("completed")) {
        const std::optional<int> progress = TaskValues::progress(value);
        if (isTrue || value == QLatin1String("false"))
            subject.setStatus(isTrue ? finished : waiting);
        else if (progress)
            subject.setProgress(*progress);
        return isTrue || value == QLatin1String("false") || progress;
    }
    if (name == QLatin1String("_status") && value.endsWith(QLatin1String("checked"))) {
        subject.setStatus(value == QLatin1String("checked") ? finished : waiting);
        return true;
    }
    const bool isAddress = name == QLatin1String("xmlUrl") || name == QLatin1String("htmlUrl");
    if (!isAddress || !subject.url().isEmpty())
        return false;
    subject.setUrl(value);
    return true;
}

/** Takes the attributes of an outline but its text and its note. */
void takeAttributes(const QXmlStreamAttributes &values, qint64 line, TreeItem &subject,
                    ImportedTree &tree)
{
    // The link itself comes before the addresses of a feed, wherever it stands.
    subject.setUrl(values.value(nameOf(SubjectAttributes::named(JsonNodes::urlKey))).toString());
    for (const QXmlStreamAttribute &entry : values) {
        const QString name = entry.qualifiedName().toString();
        const QString value = entry.value().toString();
        const bool isText =
            name == textName ||
            (name == QLatin1String("title") &&
             (value == subject.title() || value == values.value(textName).toString()));
        if (value.isEmpty() || isText || name == QLatin1String("url") || name == noteName)
            continue;
        const SubjectAttributes::Attribute *const attribute = attributeNamed(name);
        if (attribute && attribute->setText(subject, value))
            continue;
        if (name == QLatin1String("collapsed")) // as the state of a window
            tree.note(ExchangeReport::Kind::Appearance, name, line);
        else if (!takeForeign(name, value, subject))
            tree.addNamedDetail(subject, name, value, line);
    }
}

/** Keeps @p link, which the attributes of a subject may have taken the place of. */
void keepLink(const QString &link, qint64 line, TreeItem &subject, ImportedTree &tree)
{
    if (link.isEmpty() || link == subject.url())
        return;
    if (subject.url().isEmpty())
        subject.setUrl(link);
    else
        tree.addNamedDetail(subject, DiagramExchange::tr("Link"), link, line);
}

/** Adds the outline that @p xml has just entered. */
bool addOutline(const QXmlStreamReader &xml, int depth, ImportedTree &tree)
{
    const QXmlStreamAttributes values = xml.attributes();
    const qint64 line = xml.lineNumber();
    TreeItem *const subject = tree.add(depth, QString(), line);
    if (!subject)
        return false;
    const QString name =
        values.hasAttribute(textName) ? QString(textName) : QStringLiteral("title");
    subject->setTitle(plainFrom(values.value(name).toString(), tree, *subject, line));
    const QString linkInTitle = subject->url();
    takeAttributes(values, line, *subject, tree);
    keepLink(linkInTitle, line, *subject, tree);
    subject->setDetail(plainFrom(values.value(noteName).toString(), tree, *subject, line));
    return true;
}

/** What the head of a document says beside how it is shown. */
struct HeadValue
{
    QString name;
    QString value;
    qint64 line;
};

std::vector<HeadValue> readHead(QXmlStreamReader &xml, ImportedTree &tree)
{
    static const QStringList looks{
        QStringLiteral("expansionState"), QStringLiteral("vertScrollState"),
        QStringLiteral("windowTop"),      QStringLiteral("windowLeft"),
        QStringLiteral("windowBottom"),   QStringLiteral("windowRight")};
    std::vector<HeadValue> values;
    while (xml.readNextStartElement()) {
        const QString name = xml.name().toString();
        const qint64 line = xml.lineNumber();
        const QString value = xml.readElementText(QXmlStreamReader::SkipChildElements).trimmed();
        if (name == QLatin1String("title"))
            tree.setCommonTitle(value);
        if (looks.contains(name))
            tree.note(ExchangeReport::Kind::Appearance, name, line);
        else if (!value.isEmpty())
            values.push_back({name, value, line});
    }
    return values;
}

/** Puts what the head says into the details of the diagram's head. */
void keepHead(const std::vector<HeadValue> &values, ImportedTree &tree)
{
    const bool isSingle = tree.container().childCount() == 1;
    const TreeItem &head = isSingle ? *tree.container().childAtIndex(0) : tree.container();
    for (const HeadValue &entry : values) {
        const bool isTitle = entry.name == QLatin1String("title");
        if (!isTitle || (isSingle && entry.value != head.title().trimmed()))
            tree.addNamedDetail(head, entry.name, entry.value, entry.line);
    }
}

void leaveOut(QXmlStreamReader &xml, ImportedTree &tree)
{
    tree.note(ExchangeReport::Kind::LeftOut, QStringLiteral("<%1>").arg(xml.name().toString()),
              xml.lineNumber());
    xml.skipCurrentElement();
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
            leaveOut(xml, tree);
        else if (!addOutline(xml, depth++, tree))
            return false;
    }
    return true;
}

bool readOpml(const QByteArray &bytes, ImportedTree &tree)
{
    QXmlStreamReader xml(bytes);
    if (!XmlSupport::enterRoot(xml, QStringLiteral("opml"), tree))
        return false;
    std::vector<HeadValue> head;
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("head"))
            head = readHead(xml, tree);
        else if (xml.name() != QLatin1String("body"))
            leaveOut(xml, tree);
        else if (!readBody(xml, tree))
            return false;
    }
    keepHead(head, tree);
    return XmlSupport::finish(xml, tree, bytes);
}

QByteArray writeOpml(const TreeItem &head)
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
            xml.writeAttribute(textName, XmlSupport::storable(plainTo(subject.title())));
            for (const SubjectAttributes::Attribute &attribute : SubjectAttributes::all()) {
                const QString value = attribute.text(subject);
                const QString name = nameOf(attribute);
                if (!value.isEmpty())
                    xml.writeAttribute(
                        name, XmlSupport::storable(name == noteName ? plainTo(value) : value));
            }
        },
        [&xml](const TreeItem &) { xml.writeEndElement(); });
    xml.writeEndDocument();
    return bytes;
}

} // namespace

const ExchangeFormat ExchangeFormats::opml{DiagramExchange::Format::Opml,
                                           "opml",
                                           QT_TRANSLATE_NOOP("DiagramExchange", "OPML outline"),
                                           "opml",
                                           "title children *",
                                           readOpml,
                                           writeOpml};
