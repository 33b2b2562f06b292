// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/base/jsonerrors.h>
#include <fishbone/exchange/diagramexchange.h>
#include <fishbone/exchange/importedtree.h>
#include <fishbone/exchange/outlinewalk.h>
#include <fishbone/exchange/richtext.h>
#include <fishbone/exchange/subjectattributes.h>
#include <fishbone/exchange/xmindparts.h>
#include <fishbone/exchange/xmindtopics.h>
#include <fishbone/model/jsonnodes.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

using Kind = ExchangeReport::Kind;

QString text(const QJsonObject &object, const char *key)
{
    return object.value(QLatin1String(key)).toString();
}

QJsonArray list(const QJsonObject &object, const char *key)
{
    return object.value(QLatin1String(key)).toArray();
}

/** The names of a topic's members that say how it is drawn, or that are read elsewhere. */
bool isRead(const QString &key)
{
    static const QStringList keys{
        QStringLiteral("id"),         QStringLiteral("title"),    QStringLiteral("href"),
        QStringLiteral("notes"),      QStringLiteral("markers"),  QStringLiteral("labels"),
        QStringLiteral("image"),      QStringLiteral("children"), QStringLiteral("extensions"),
        QStringLiteral("boundaries"), QStringLiteral("summaries")};
    return keys.contains(key);
}

bool isLookKey(const QString &key)
{
    static const QStringList keys{
        QStringLiteral("class"),          QStringLiteral("style"),
        QStringLiteral("position"),       QStringLiteral("structureClass"),
        QStringLiteral("branch"),         QStringLiteral("width"),
        QStringLiteral("titleUnedited"),  QStringLiteral("customWidth"),
        QStringLiteral("attributedTitle")};
    return keys.contains(key);
}

/** Reads the topics of a sheet without recursion: maps may be deep. */
class SheetReader
{
public:
    explicit SheetReader(ImportedTree &tree)
        : m_tree(tree)
        , m_topics(tree)
    {
    }

    bool read(const QJsonArray &sheets)
    {
        for (const QJsonValue &sheet : sheets) {
            if (!readSheet(sheet.toObject()))
                return false;
        }
        m_topics.finish();
        return true;
    }

private:
    struct Waiting
    {
        QJsonArray topics;
        int next;
    };

    bool readSheet(const QJsonObject &sheet)
    {
        const QString root = text(sheet.value(QLatin1String("rootTopic")).toObject(), "title");
        const QString name = text(sheet, "title");
        std::vector<Waiting> waiting{{QJsonArray{sheet.value(QLatin1String("rootTopic"))}, 0}};
        while (!waiting.empty()) {
            Waiting &last = waiting.back();
            if (last.next == last.topics.size()) {
                waiting.pop_back();
                if (!waiting.empty())
                    m_topics.close();
                continue;
            }
            const QJsonObject topic = last.topics.at(last.next++).toObject();
            if (!m_topics.open(text(topic, "id"), 0))
                return false;
            readTopic(topic);
            if (waiting.size() == 1 && !name.isEmpty() && name != root)
                m_tree.addNamedDetail(*m_tree.last(), DiagramExchange::tr("Sheet"), name);
            waiting.push_back({childrenOf(topic), 0});
        }
        keepLegend(sheet);
        const QJsonArray arrows = list(sheet, "relationships");
        for (const QJsonValue &value : arrows) {
            const QJsonObject arrow = value.toObject();
            m_topics.addArrow(text(arrow, "end1Id"), text(arrow, "end2Id"), text(arrow, "title"));
        }
        return true;
    }

    /** Keeps what markers stand for in a sheet; the rest of it is how it looks. */
    void keepLegend(const QJsonObject &sheet)
    {
        const QString id = text(sheet.value(QLatin1String("rootTopic")).toObject(), "id");
        const QJsonObject markers = sheet.value(QLatin1String("legend"))
                                        .toObject()
                                        .value(QLatin1String("markers"))
                                        .toObject();
        for (auto marker = markers.begin(); marker != markers.end(); ++marker)
            m_topics.addRemark(id, XmindNames::legend,
                               marker.key() + QLatin1String(": ") +
                                   text(marker.value().toObject(), "name"));
    }

    void readTopic(const QJsonObject &topic)
    {
        m_topics.setTitle(text(topic, "title"));
        m_topics.setLink(text(topic, "href"));
        readNotes(topic.value(QLatin1String("notes")).toObject());
        const QJsonArray extensions = list(topic, "extensions");
        for (const QJsonValue &extension : extensions)
            readExtension(extension.toObject());
        const QJsonArray markers = list(topic, "markers");
        for (const QJsonValue &marker : markers)
            m_topics.addMarker(text(marker.toObject(), "markerId"));
        const QJsonArray labels = list(topic, "labels");
        for (const QJsonValue &label : labels)
            m_topics.addLabel(label.toString());
        m_topics.addImage(text(topic.value(QLatin1String("image")).toObject(), "src"));
        const QJsonArray boundaries = list(topic, "boundaries");
        for (const QJsonValue &boundary : boundaries)
            m_topics.addDetail(DiagramExchange::tr("Boundary"), text(boundary.toObject(), "title"));
        for (auto member = topic.begin(); member != topic.end(); ++member) {
            if (isLookKey(member.key()))
                m_tree.note(Kind::Appearance, member.key());
            else if (!isRead(member.key()))
                m_topics.addDetail(member.key(), plain(member.value()));
        }
    }

    void readNotes(const QJsonObject &notes)
    {
        const QString plainNote = text(notes.value(QLatin1String("plain")).toObject(), "content");
        const QString html = text(notes.value(QLatin1String("realHTML")).toObject(), "content");
        const RichText::Content content = RichText::fromHtml(html);
        m_topics.setNote(plainNote.isEmpty() ? content.text : plainNote);
        for (const QString &link : content.links)
            m_topics.addDetail(DiagramExchange::tr("Link"), link);
    }

    void readExtension(const QJsonObject &extension)
    {
        const QString provider = text(extension, "provider");
        if (provider.startsWith(XmindNames::lookProvider)) {
            m_tree.note(Kind::Appearance, provider);
            return;
        }
        const QJsonValue content = extension.value(QLatin1String("content"));
        const QJsonObject values = content.toObject();
        for (auto value = values.begin(); value != values.end(); ++value) {
            if (provider == XmindNames::provider)
                m_topics.setOwn(value.key(), value.value().toString());
            else
                m_topics.setTaskValue(value.key(), plain(value.value()));
        }
        const QJsonArray parts = content.toArray();
        for (const QJsonValue &value : parts) {
            const QJsonObject part = value.toObject();
            m_topics.setTaskValue(text(part, "name"), plain(part.value(QLatin1String("content"))));
        }
        if (content.isString())
            m_topics.addDetail(provider, content.toString());
    }

    /** Any value as a text. */
    static QString plain(const QJsonValue &value)
    {
        if (value.isArray())
            return QString::fromUtf8(QJsonDocument(value.toArray()).toJson(QJsonDocument::Compact));
        if (value.isObject())
            return QString::fromUtf8(
                QJsonDocument(value.toObject()).toJson(QJsonDocument::Compact));
        return value.toVariant().toString();
    }

    /** All topics below one: the usual ones first, then those that float, sum up or comment. */
    QJsonArray childrenOf(const QJsonObject &topic)
    {
        const QJsonObject kinds = topic.value(QLatin1String("children")).toObject();
        QJsonArray children = list(kinds, "attached");
        for (auto kind = kinds.begin(); kind != kinds.end(); ++kind) {
            if (kind.key() == QLatin1String("attached"))
                continue;
            const QJsonArray others = kind.value().toArray();
            for (const QJsonValue &other : others) {
                children.append(other);
                m_tree.note(
                    Kind::ReadAs,
                    DiagramExchange::tr("a topic of the kind \"%1\" as a cause").arg(kind.key()));
            }
        }
        return children;
    }

    ImportedTree &m_tree;
    XmindTopics m_topics;
};

/** The topic of a subject, without those below it. */
QJsonObject topicOf(const TreeItem &subject, int number)
{
    QJsonObject own;
    for (const SubjectAttributes::Attribute &attribute : SubjectAttributes::all()) {
        const QString value = attribute.text(subject);
        const bool isNative =
            attribute.key == JsonNodes::urlKey || attribute.key == JsonNodes::detailKey;
        if (!value.isEmpty() && !isNative)
            own.insert(attribute.key, value);
    }
    const QString uuid = SubjectAttributes::named(JsonNodes::uuidKey).text(subject);
    const QString id = uuid.isEmpty() ? XmindNames::noUuid + QString::number(number) : uuid;
    QJsonObject topic{{QStringLiteral("id"), id}, {QStringLiteral("title"), subject.title()}};
    if (!subject.url().isEmpty())
        topic.insert(QStringLiteral("href"), subject.url());
    if (!subject.detail().isEmpty())
        topic.insert(QStringLiteral("notes"),
                     QJsonObject{{QStringLiteral("plain"),
                                  QJsonObject{{QStringLiteral("content"), subject.detail()}}}});
    QJsonArray markers;
    const QStringList names = XmindNames::markersOf(subject);
    for (const QString &name : names)
        markers.append(QJsonObject{{QStringLiteral("markerId"), name}});
    if (!markers.isEmpty())
        topic.insert(QStringLiteral("markers"), markers);
    if (!own.isEmpty())
        topic.insert(QStringLiteral("extensions"),
                     QJsonArray{QJsonObject{{QStringLiteral("provider"), XmindNames::provider},
                                            {QStringLiteral("content"), own}}});
    return topic;
}

} // namespace

bool XmindJson::read(const QByteArray &json, ImportedTree &tree)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (document.isNull())
        return tree.fail(QStringLiteral("content.json: ") + JsonErrors::reason(json, error));
    if (!document.isArray())
        return tree.fail(DiagramExchange::tr("content.json: it is no list of sheets"));
    return SheetReader(tree).read(document.array());
}

QByteArray XmindJson::write(const TreeItem &head)
{
    struct Open
    {
        QJsonObject topic;
        QJsonArray children;
    };
    std::vector<Open> open(1); // what holds the head
    int number = 0;
    OutlineWalk::walk(
        head,
        [&](const TreeItem &subject, int) {
            open.push_back({topicOf(subject, ++number), {}});
        },
        [&](const TreeItem &) {
            Open done = std::move(open.back());
            open.pop_back();
            if (!done.children.isEmpty())
                done.topic.insert(QStringLiteral("children"),
                                  QJsonObject{{QStringLiteral("attached"), done.children}});
            open.back().children.append(done.topic);
        });
    QJsonObject root = open.back().children.at(0).toObject();
    // The program has fishbones of its own.
    root.insert(QStringLiteral("structureClass"),
                QStringLiteral("org.xmind.ui.fishbone.leftHeaded"));
    const QJsonObject sheet{{QStringLiteral("id"), QStringLiteral("fishbone-sheet")},
                            {QStringLiteral("class"), QStringLiteral("sheet")},
                            {QStringLiteral("title"), head.title()},
                            {QStringLiteral("rootTopic"), root}};
    return QJsonDocument(QJsonArray{sheet}).toJson(QJsonDocument::Compact);
}
