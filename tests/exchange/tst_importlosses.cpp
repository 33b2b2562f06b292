// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/exchange/exchangefixture.h>
#include <tests/exchange/importfixture.h>
#include <tests/program/testprogram.h>

#include <fishbone/exchange/exchangereport.h>
#include <fishbone/exchange/exchangetext.h>
#include <fishbone/exchange/importedtree.h>
#include <fishbone/exchange/tablemapping.h>
#include <fishbone/exchange/ziparchive.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryFile>
#include <QXmlStreamReader>
#include <QtTest>

using namespace ExchangeFixture;
using namespace ImportFixture;

namespace {

/** What files are made of: names of markup, of its values, of dates and of states, which become
 * something else than text. */
const char *const markup =
    "abc alt amp auto background backgroundcolor beta checked china config cubic curve dark date "
    "deadline default done dropped end endheader endmindmap externalobject false features forest "
    "freeplane ruled out format formatteddate formattednumber gmt cet http img init ins ishikawa "
    "lightgreen markdown "
    "mermaid mgrname mindmap mindmapdiagram node nodenote nodes none note org owner plain plugins "
    "accessories progress properties right root src standard startmindmap status styles sub sup "
    "tasklist text theme thu time title todo true unchecked under uuid width xml mon tue wed fri "
    "sat sun jan feb mar apr may jun jul aug sep oct nov dec";

QSet<QString> wordsIn(const QString &text)
{
    static const QRegularExpression word(QStringLiteral("\\p{L}{3,}"),
                                         QRegularExpression::UseUnicodePropertiesOption);
    QSet<QString> words;
    for (auto matches = word.globalMatch(text); matches.hasNext();)
        words.insert(matches.next().captured().toLower());
    return words;
}

/** A text without the tags that may be in it. */
QString withoutTags(QString text)
{
    static const QRegularExpression tag(QStringLiteral("<[^<>]*>"));
    static const QRegularExpression reference(QStringLiteral("&[A-Za-z]+;"));
    return text.replace(tag, QStringLiteral(" ")).replace(reference, QStringLiteral(" "));
}

/** The values and texts of a document whose names the report does not call mere appearance. */
QSet<QString> wordsOfXml(const QByteArray &bytes, const QString &report)
{
    const auto isAppearance = [&report](const QString &name) {
        const QRegularExpression line(QStringLiteral("appearance left out: <?%1>?(?:\\s|$)")
                                          .arg(QRegularExpression::escape(name)));
        return line.match(report).hasMatch();
    };
    QSet<QString> words;
    QStringList open;
    QXmlStreamReader reader(bytes);
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement()) {
            open.append(reader.name().toString());
            const QXmlStreamAttributes attributes = reader.attributes();
            for (const QXmlStreamAttribute &attribute : attributes) {
                if (!isAppearance(open.constLast()) && !isAppearance(attribute.name().toString()))
                    words += wordsIn(withoutTags(attribute.value().toString()));
            }
        } else if (reader.isEndElement()) {
            open.removeLast();
        } else if (reader.isCharacters() && !isAppearance(open.value(open.size() - 1))) {
            words += wordsIn(withoutTags(reader.text().toString()));
        }
    }
    return words;
}

/** The texts in JSON, but for names and looks. */
QSet<QString> wordsOfJson(const QJsonValue &value)
{
    static const QSet<QString> skipped{QStringLiteral("id"),
                                       QStringLiteral("class"),
                                       QStringLiteral("structureClass"),
                                       QStringLiteral("style"),
                                       QStringLiteral("theme"),
                                       QStringLiteral("markerId"),
                                       QStringLiteral("type"),
                                       QStringLiteral("extensions"),
                                       QStringLiteral("topicPositioning"),
                                       QStringLiteral("branch"),
                                       QStringLiteral("end1Id"),
                                       QStringLiteral("end2Id"),
                                       QStringLiteral("visibility")};
    QSet<QString> words = wordsIn(withoutTags(value.toString()));
    const QJsonArray array = value.toArray();
    for (const QJsonValue &entry : array)
        words += wordsOfJson(entry);
    const QJsonObject object = value.toObject();
    for (auto entry = object.begin(); entry != object.end(); ++entry) {
        if (!skipped.contains(entry.key()))
            words += wordsOfJson(entry.value());
    }
    return words;
}

/** The texts in the parts of an archive that hold subjects. */
QSet<QString> wordsOfArchive(const QByteArray &bytes)
{
    ImportedTree tree;
    ZipReader archive(bytes, tree);
    const QString json = QStringLiteral("content.json");
    if (const auto content = archive.file(json))
        return wordsOfJson(QJsonDocument::fromJson(*content).array());
    QSet<QString> words;
    const QStringList names = archive.names();
    for (const QString &name : names) {
        const bool isTable = name == QLatin1String("xl/sharedStrings.xml") ||
                             name.startsWith(QLatin1String("xl/worksheets/sheet"));
        if (!isTable && name != QLatin1String("content.xml") &&
            name != QLatin1String("comments.xml"))
            continue;
        QXmlStreamReader reader(archive.file(name).value_or(QByteArray()));
        bool isText = false;
        while (!reader.atEnd()) {
            const auto token = reader.readNext();
            if (token == QXmlStreamReader::StartElement && reader.name() == QLatin1String("rPh"))
                reader.skipCurrentElement(); // how a word is spoken
            else if (token == QXmlStreamReader::StartElement)
                isText = !isTable || reader.name() == QLatin1String("t");
            if (token == QXmlStreamReader::StartElement)
                words +=
                    wordsIn(reader.attributes().value(QLatin1String("description")).toString());
            else if (token == QXmlStreamReader::Characters && isText)
                words += wordsIn(reader.text().toString());
        }
    }
    return words;
}

/** What heads the columns of a table, nothing for what is none. */
QSet<QString> headingsOf(const QByteArray &bytes, Format format)
{
    QTemporaryFile file;
    if (!file.open() || file.write(bytes) != bytes.size() || !file.flush())
        return {};
    const auto mapping = DiagramExchange::tableMapping(file.fileName(), format);
    return mapping ? wordsIn(mapping->headings.join(QLatin1Char(' '))) : QSet<QString>();
}

QString allTextOf(const TreeItem &head)
{
    QString text;
    QVector<const TreeItem *> waiting{&head};
    while (!waiting.isEmpty()) {
        const TreeItem *const subject = waiting.takeLast();
        const QStringList parts{
            subject->title(),       subject->detail(),
            subject->url(),         subject->showid(),
            subject->managerName(), subject->managerId(),
            subject->creatorName(), subject->creatorId(),
            subject->uuid(),        subject->followers().join(QLatin1Char(' '))};
        text += parts.join(QLatin1Char(' ')) + QLatin1Char(' ');
        for (const TreeItem *child : subject->childItems())
            waiting.append(child);
    }
    return text;
}

} // namespace

/** What becomes of the words in files of other programs. */
class TestImportLosses : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qputenv("TZ", "UTC"); }
    void shouldLoseNoWordSilently_data();
    void shouldLoseNoWordSilently();
};

void TestImportLosses::shouldLoseNoWordSilently_data()
{
    QTest::addColumn<Format>("format");
    QTest::addColumn<QString>("path");
    for (const Format format :
         {Format::Opml, Format::FreeMind, Format::Csv, Format::Markdown, Format::Text, Format::Org,
          Format::Mermaid, Format::PlantUml, Format::Xmind, Format::Xlsx}) {
        const QStringList fixtures = fixturesOf(format);
        for (const QString &name : fixtures)
            QTest::newRow(qPrintable(DiagramExchange::id(format) + QLatin1Char('/') + name))
                << format << folderOf(format).filePath(name);
    }
}

/** Each word of a file is in a field of a subject, or the report speaks of it. */
void TestImportLosses::shouldLoseNoWordSilently()
{
    QFETCH(Format, format);
    QFETCH(QString, path);
    QByteArray bytes = bytesOf(path);
    QBuffer buffer(&bytes);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    QString error;
    ExchangeReport report;
    const auto head = DiagramExchange::read(buffer, format, &error, &report);
    if (!head)
        return; // it is one that has to be refused
    const QString said = report.lines().join(QLatin1Char('\n'));
    if (said.contains(QLatin1String("left out: the sheet")))
        return; // with all its words, which lie among those of the others
    QSet<QString> words;
    if (format == Format::Opml || format == Format::FreeMind) {
        words = wordsOfXml(bytes, said);
    } else if (format == Format::Xmind || format == Format::Xlsx) {
        words = wordsOfArchive(bytes) - headingsOf(bytes, format);
    } else {
        ImportedTree tree;
        const auto text = ExchangeText::decode(bytes, tree);
        QVERIFY(text);
        words =
            wordsIn(format == Format::Csv ? *text : withoutTags(*text)) - headingsOf(bytes, format);
    }
    words -= wordsIn(QLatin1String(markup));
    const QString kept = (allTextOf(*head) + said).toLower();
    for (const QString &word : qAsConst(words))
        QVERIFY2(kept.contains(word), qPrintable(word));
}

FISHBONE_GUILESS_TEST(TestImportLosses)

#include "tst_importlosses.moc"
