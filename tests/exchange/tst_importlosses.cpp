// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/exchange/exchangefixture.h>
#include <tests/exchange/importfixture.h>
#include <tests/program/testprogram.h>

#include <fishbone/exchange/exchangereport.h>
#include <fishbone/exchange/exchangetext.h>
#include <fishbone/exchange/importedtree.h>
#include <fishbone/exchange/tablemapping.h>

#include <QRegularExpression>
#include <QSet>
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

/** The words of all cells below the headings, which many rows may come before. */
QSet<QString> wordsOfTable(const QString &path, const QString &text)
{
    const auto mapping = DiagramExchange::tableMapping(path, Format::Csv);
    const QString headings = mapping ? mapping->headings.join(QLatin1Char(' ')) : QString();
    return wordsIn(text) - wordsIn(headings);
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
    for (const Format format : {Format::Opml, Format::FreeMind, Format::Csv, Format::Markdown,
                                Format::Text, Format::Org, Format::Mermaid, Format::PlantUml}) {
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
    QSet<QString> words;
    if (format == Format::Opml || format == Format::FreeMind) {
        words = wordsOfXml(bytes, said);
    } else {
        ImportedTree tree;
        const auto text = ExchangeText::decode(bytes, tree);
        QVERIFY(text);
        words = format == Format::Csv ? wordsOfTable(path, *text) : wordsIn(withoutTags(*text));
    }
    words -= wordsIn(QLatin1String(markup));
    const QString kept = (allTextOf(*head) + said).toLower();
    for (const QString &word : qAsConst(words))
        QVERIFY2(kept.contains(word), qPrintable(word));
}

FISHBONE_GUILESS_TEST(TestImportLosses)

#include "tst_importlosses.moc"
