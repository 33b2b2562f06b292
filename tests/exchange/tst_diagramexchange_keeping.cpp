// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/exchange/exchangefixture.h>
#include <tests/program/testprogram.h>
#include <tests/support/sourcefolder.h>

#include <fishbone/exchange/exchangereport.h>
#include <fishbone/style/spearstyle.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

using namespace ExchangeFixture;

namespace {

/** What docs/formats.md says: for each attribute, the ids of the formats that keep it. */
QMap<QString, QStringList> documentedTable()
{
    QFile file(TestSupport::sourceFile(QStringLiteral("docs/formats.md")));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QMap<QString, QStringList> table;
    QStringList ids;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        QStringList cells = line.split(QLatin1Char('|'));
        for (QString &cell : cells)
            cell = cell.trimmed();
        const QString name = cells.value(1);
        if (name == QLatin1String("Attribute"))
            ids = cells.mid(2, cells.size() - 3);
        else if (line.isEmpty())
            ids.removeAll(QString());
        if (ids.isEmpty() || name.isEmpty() || name == QLatin1String("Attribute") ||
            name.startsWith(QLatin1Char('-')))
            continue;
        for (int i = 0; i < ids.size(); ++i) {
            if (cells.value(i + 2) == QLatin1String("yes"))
                table[name].append(ids.at(i));
        }
    }
    return table;
}

/** A value of each attribute that no new subject has. */
QJsonObject unusualValues()
{
    SpearStyle style;
    QJsonObject styleObject;
    style.setTextCount(style.textCount() + 3);
    style.write(styleObject);
    return {{QStringLiteral("title"), QStringLiteral("A title")},
            {QStringLiteral("uuid"), QStringLiteral("{u-1}")},
            {QStringLiteral("showid"), QStringLiteral("T-7")},
            {QStringLiteral("detail"), QStringLiteral("first line\nsecond line")},
            {QStringLiteral("type"), 3},
            {QStringLiteral("status"), 5},
            {QStringLiteral("progress"), 42},
            {QStringLiteral("priority"), 2},
            {QStringLiteral("url"), QStringLiteral("https://example.org/a?b=1&c=(2)#d")},
            {QStringLiteral("mgrname"), QStringLiteral("Li")},
            {QStringLiteral("mgrid"), QStringLiteral("m-1")},
            {QStringLiteral("creatorname"), QStringLiteral("Wang")},
            {QStringLiteral("creatorid"), QStringLiteral("c-1")},
            {QStringLiteral("followers"), QJsonArray{QStringLiteral("a;b"), QStringLiteral("c\\")}},
            {QStringLiteral("createdate"), 1500000000123.0},
            {QStringLiteral("planenddate"), -62135596800001.0}, // before the year 1
            {QStringLiteral("spearstyle"), styleObject},
            {QStringLiteral("verdict"), QStringLiteral("rootcause")},
            {QStringLiteral("votes"), 3},
            {QStringLiteral("colour"), QStringLiteral("#12ab9f")},
            {QStringLiteral("children"),
             QJsonArray{QJsonObject{{QStringLiteral("title"), QStringLiteral("child")},
                                    {QStringLiteral("uuid"), QStringLiteral("{u-2}")}}}}};
}

QJsonObject objectOf(const TreeItem &subject)
{
    QJsonObject object;
    FishModel::write(object, const_cast<TreeItem *>(&subject), true);
    return object;
}

} // namespace

/** The table of docs/formats.md against the readers and writers. */
class TestDiagramExchangeKeeping : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldKeepWhatTheTableSaysAndNoMore_data();
    void shouldKeepWhatTheTableSaysAndNoMore();
    void shouldTellProgramsWhatTheTableTellsPeople();
    void shouldNameWhatIsLeftOutInWriting_data() { addFormats(); }
    void shouldNameWhatIsLeftOutInWriting();
    void shouldNameTheFieldsOfOtherPrograms_data() { addFormats(); }
    void shouldNameTheFieldsOfOtherPrograms();
    void shouldNameStatusesThatHaveNoBox();
    void shouldNameWhatASlideDoesNotHold();
    void shouldNameEveryAttributeInTheTable();
    void shouldKeepEverythingTwice_data() { addFormats(); }
    void shouldKeepEverythingTwice();
};

void TestDiagramExchangeKeeping::shouldKeepWhatTheTableSaysAndNoMore_data()
{
    QTest::addColumn<Format>("format");
    QTest::addColumn<QString>("key");
    QTest::addColumn<bool>("isKept");

    const QMap<QString, QStringList> table = documentedTable();
    const QStringList keys = unusualValues().keys();
    const QList<Format> formats = wholeFormats();
    for (const Format format : formats) {
        const QString id = DiagramExchange::id(format);
        for (const QString &key : keys)
            QTest::newRow(qPrintable(id + QLatin1Char(' ') + key))
                << format << key << table.value(key).contains(id);
    }
}

void TestDiagramExchangeKeeping::shouldKeepWhatTheTableSaysAndNoMore()
{
    QFETCH(Format, format);
    QFETCH(QString, key);
    QFETCH(bool, isKept);
    const TreeItem original(unusualValues());
    TreeItem head(unusualValues());
    head.appendChild(new TreeItem(QStringLiteral("child"), QStringLiteral("{u-2}"), QString(),
                                  QStringLiteral("{u-1}"), 0));
    const QJsonValue unset = objectOf(TreeItem()).value(key);
    const QJsonValue expected = objectOf(head).value(key);
    QVERIFY(expected != unset);

    const Imported result = carriedThrough(head, format);
    QVERIFY2(result.head, qPrintable(result.error));
    const QJsonValue kept = objectOf(*result.head).value(key);
    if (key == QLatin1String("children")) {
        QCOMPARE(isKept, true); // a format without a tree would be none for diagrams
        QCOMPARE(result.head->childCount(), 1);
        QCOMPARE(result.head->childAtIndex(0)->title(), QStringLiteral("child"));
    } else if (isKept) {
        QCOMPARE(kept, expected);
    } else if (key == QLatin1String("uuid")) {
        QVERIFY(kept != expected);
        QVERIFY(!kept.toString().isEmpty());
    } else {
        QCOMPARE(kept, unset);
    }
}

void TestDiagramExchangeKeeping::shouldTellProgramsWhatTheTableTellsPeople()
{
    const QMap<QString, QStringList> table = documentedTable();
    for (const Format format : DiagramExchange::formats()) {
        QStringList keys;
        for (auto row = table.cbegin(); row != table.cend(); ++row) {
            if (row.value().contains(DiagramExchange::id(format)))
                keys.append(row.key());
        }
        QStringList kept = DiagramExchange::keptKeys(format);
        kept.sort();
        QCOMPARE(kept, keys);
    }
}

/** What is named is what has another value after writing and reading, and nothing else. */
void TestDiagramExchangeKeeping::shouldNameWhatIsLeftOutInWriting()
{
    QFETCH(Format, format);
    const TreeItem head(unusualValues());
    const Imported result = carriedThrough(head, format);
    QVERIFY2(result.head, qPrintable(result.error));
    const QJsonObject before = objectOf(head);
    const QJsonObject after = objectOf(*result.head);
    QStringList expected;
    for (const QString &key : before.keys()) {
        const bool isMadeAnew = key == QLatin1String("uuid") || key == QLatin1String("pid") ||
                                key == QLatin1String("children");
        if (!isMadeAnew && key != QLatin1String("spearstyle") &&
            before.value(key) != after.value(key))
            expected.append(QStringLiteral("left out: \"%1\"").arg(key));
    }
    if (before.value(QStringLiteral("spearstyle")) != after.value(QStringLiteral("spearstyle")))
        expected.append(QStringLiteral("appearance left out: a style"));
    QStringList named = DiagramExchange::lossesOf(head, format).lines();
    named.sort();
    expected.sort();
    QCOMPARE(named, expected);
}

void TestDiagramExchangeKeeping::shouldNameTheFieldsOfOtherPrograms()
{
    QFETCH(Format, format);
    const QJsonObject fields{{QStringLiteral("cost"), 12},
                             {QStringLiteral("verdict"), QStringLiteral("of another program")},
                             {QStringLiteral("view"), QJsonObject{{QStringLiteral("zoom"), 1}}}};
    TreeItem head;
    head.setTitle(QStringLiteral("Effect"));
    head.setOtherFields(fields);
    const Imported result = carriedThrough(head, format);
    QVERIFY2(result.head, qPrintable(result.error));
    QStringList expected;
    if (result.head->otherFields() != fields) {
        QCOMPARE(result.head->otherFields(), QJsonObject());
        expected = QStringList{QStringLiteral("left out: \"cost\""),
                               QStringLiteral("left out: \"verdict\""),
                               QStringLiteral("appearance left out: \"view\"")};
    }
    QCOMPARE(DiagramExchange::lossesOf(head, format).lines(), expected);
}

void TestDiagramExchangeKeeping::shouldNameStatusesThatHaveNoBox()
{
    for (int status = -1; status <= 7; ++status) {
        TreeItem head;
        head.setStatus(status);
        const bool isKept = carriedThrough(head, Format::Markdown).head->status() == status;
        QCOMPARE(DiagramExchange::lossesOf(head, Format::Markdown).losesContent(), !isKept);
    }
}

void TestDiagramExchangeKeeping::shouldNameWhatASlideDoesNotHold()
{
    const TreeItem head(unusualValues());
    QStringList lines = DiagramExchange::lossesOfSlide(head, true).lines();
    lines.sort();
    const QStringList expected{
        QStringLiteral("left out: \"createdate\""),  QStringLiteral("left out: \"creatorid\""),
        QStringLiteral("left out: \"creatorname\""), QStringLiteral("left out: \"detail\""),
        QStringLiteral("left out: \"followers\""),   QStringLiteral("left out: \"mgrid\""),
        QStringLiteral("left out: \"priority\""),    QStringLiteral("left out: \"showid\""),
        QStringLiteral("left out: \"type\"")};
    QCOMPARE(lines, expected);
    lines = DiagramExchange::lossesOfSlide(head, false).lines();
    QVERIFY(lines.contains(QStringLiteral("left out: \"verdict\"")));
    QVERIFY(lines.contains(QStringLiteral("left out: \"colour\"")));
    QVERIFY(lines.contains(QStringLiteral("left out: \"votes\"")));
    QVERIFY(!DiagramExchange::lossesOfSlide(TreeItem(), false).losesContent());
}

void TestDiagramExchangeKeeping::shouldNameEveryAttributeInTheTable()
{
    const QMap<QString, QStringList> table = documentedTable();
    QStringList written = objectOf(TreeItem(unusualValues())).keys();
    written.removeAll(QStringLiteral("pid")); // follows from the place in the tree
    QCOMPARE(QStringList(table.keys()), written);
    QStringList keys = unusualValues().keys();
    QCOMPARE(keys, written);
}

void TestDiagramExchangeKeeping::shouldKeepEverythingTwice()
{
    QFETCH(Format, format);
    FishModel model;
    QFile sample(TestSupport::sourceFile(QStringLiteral("samples/checkout-outage.fishbone.json")));
    QVERIFY(sample.open(QIODevice::ReadOnly));
    const Imported original = imported(sample.readAll(), Format::Json);
    QVERIFY2(original.head, qPrintable(original.error));

    const Imported once = carriedThrough(*original.head, format);
    QVERIFY2(once.head, qPrintable(once.error));
    QCOMPARE(once.text(), original.text());
    // What was left out the first time is all that the format leaves out.
    QCOMPARE(exported(*once.head, format), exported(*original.head, format));
}

FISHBONE_TEST(TestDiagramExchangeKeeping)
#include "tst_diagramexchange_keeping.moc"
