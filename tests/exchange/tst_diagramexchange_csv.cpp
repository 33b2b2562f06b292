// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/exchange/exchangefixture.h>
#include <tests/program/testprogram.h>

#include <fishbone/exchange/exchangereport.h>

#include <QtTest>

using namespace ExchangeFixture;

/** The table of tasks, as this program and as spreadsheets write it. */
class TestDiagramExchangeCsv : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldReadTrees_data();
    void shouldReadTrees();
    void shouldRefuseTablesThatMakeNoTree_data();
    void shouldRefuseTablesThatMakeNoTree();
    void shouldKeepWhatFitsNothing_data();
    void shouldKeepWhatFitsNothing();
    void shouldReadTheColumnsInAnyOrder();
    void shouldReadDates_data();
    void shouldReadDates();
    void shouldReadFollowers_data();
    void shouldReadFollowers();
    void shouldKeepFollowers_data();
    void shouldKeepFollowers();
    void shouldWriteATable();
    void shouldWriteNothingThatASpreadsheetRuns();
    void shouldKeepApostrophes_data();
    void shouldKeepApostrophes();
    void shouldGiveRowsAUuidToBeFoundBy();
};

void TestDiagramExchangeCsv::shouldReadTrees_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("text");

    const auto row = [](const char *name, const char *content, const char *text) {
        QTest::newRow(name) << QByteArray(content) << QString::fromUtf8(text);
    };
    row("commas", "uuid,parent,title\n1,,a\n2,1,b\n3,2,c\n4,1,d\n", "a[b[c],d]");
    row("semicolons", "uuid;parent;title\r\n1;;a,x\r\n2;1;b\r\n", "a,x[b]");
    row("tabs", "uuid\tparent\ttitle\n1\t\ta\n2\t1\tb", "a[b]");
    row("children first", "uuid,parent,title\n3,2,c\n2,1,b\n4,1,d\n1,,a\n", "a[b[c],d]");
    row("no parent is -1", "uuid,parent,title\n1,-1,a\n2,1,b\n", "a[b]");
    row("quotes", "title\n\"a \"\"b\"\", c\nd\"\n", "a \"b\", c\nd");
    row("CRLF in quotes", "uuid,parent,title\r\n1,,\"a\r\nb\"\r\n", "a\r\nb");
    row("CRLF in quotes of others", "title\r\n\"a\r\nb\"\r\n", "a\nb");
    row("quotes within", "title\na\"b\n", "a\"b");
    row("capitals and blanks", " UUID , Parent,TITLE\n1,,a\n2,1,b", "a[b]");
    row("unknown columns", "x,title,uuid,y\n9,a,1,9\n", "a");
    row("short rows", "title,status,url\na\n", "a");
    row("long rows", "title\na,b,c\n", "a");
    row("empty rows", "uuid,title\n\n1,a\n,\n\n", "a");
    row("empty title", "uuid,parent,title\n1,,\n2,1,b\n", "[b]");
    row("mark", "\xef\xbb\xbftitle\na", "a");
    row("CR", "uuid,parent,title\r1,,a\r2,1,b\r", "a[b]");
}

void TestDiagramExchangeCsv::shouldReadTrees()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, text);
    QCOMPARE(imported(content, Format::Csv).text(), text);
}

void TestDiagramExchangeCsv::shouldRefuseTablesThatMakeNoTree_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("error");

    const auto row = [](const char *name, const char *content, const char *error) {
        QTest::newRow(name) << QByteArray(content) << QString::fromUtf8(error);
    };
    row("no title", "uuid,parent\n1,\n",
        "line 1: there is no column of titles, such as \"title\", \"summary\" or \"name\"; the "
        "columns are \"uuid\", \"parent\"");
    row("only a header", "uuid,parent,title\n", "it holds no diagram");
    row("a circle", "uuid,parent,title\n1,,a\n2,3,b\n3,2,c\n",
        "line 3: the subject lies below itself");
    row("only a circle", "uuid,parent,title\n1,1,a\n", "line 2: the subject lies below itself");
    row("open quote", "title\na\n\"b\nc\n", "line 3: a quote is not closed");
    row("text behind a quote", "title\n\"a\nb\" c\n",
        "line 3: there is text behind a closing quote");
}

void TestDiagramExchangeCsv::shouldRefuseTablesThatMakeNoTree()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, error);
    const Imported result = imported(content, Format::Csv);
    QVERIFY(!result.head);
    QCOMPARE(result.error, error);
}

void TestDiagramExchangeCsv::shouldKeepWhatFitsNothing_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("detail"); ///< of the last subject
    QTest::addColumn<QString>("report");

    const auto row = [](const char *name, const char *content, const char *detail,
                        const char *report) {
        QTest::newRow(name) << QByteArray(content) << QString::fromUtf8(detail)
                            << QString::fromUtf8(report);
    };
    row("no status", "title,status\na,maybe\n", "status: maybe",
        "put into the details: \"status\" (line 2)");
    row("no whole number", "title,progress\na,1.5\n", "progress: 1.5",
        "put into the details: \"progress\" (line 2)");
    row("too large a number", "title,type\na,2147483648\n", "type: 2147483648",
        "put into the details: \"type\" (line 2)");
    row("no date", "title,created\na,tomorrow\n", "created: tomorrow",
        "put into the details: \"created\" (line 2)");
    row("unknown parent", "uuid,parent,title\n1,,a\n2,9,b\n", "parent: 9",
        "put into the details: \"parent\" (line 3)");
    row("a uuid twice", "uuid,parent,title\n1,,\"a\n\"\n1,,b\n", "",
        "left out: the uuid \"1\" a second time (line 4)");
    row("unknown column", "title,colour\na,red\n", "colour: red",
        "put into the details: \"colour\" (line 2)");
    row("more cells than headings", "title\na,b\n", "b",
        "put into the details: cells without a heading (line 2)");
}

void TestDiagramExchangeCsv::shouldKeepWhatFitsNothing()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, detail);
    QFETCH(QString, report);
    QBuffer buffer(&content);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    QString error;
    ExchangeReport found;
    const auto head = DiagramExchange::read(buffer, Format::Csv, &error, &found);
    QVERIFY2(head, qPrintable(error));
    const TreeItem *const last =
        head->childCount() > 0 ? head->childItems().constLast() : head.get();
    QCOMPARE(last->detail(), detail);
    QCOMPARE(found.lines(), QStringList(report));
}

void TestDiagramExchangeCsv::shouldReadTheColumnsInAnyOrder()
{
    const Imported result = imported("planned end,Short ID,title,manager id,status,followers,url\n"
                                     "5,T-1,a,m,2,x;y,http://x\n",
                                     Format::Csv);
    QCOMPARE(result.text(), QStringLiteral("a"));
    QCOMPARE(result.head->planEndDate(), Q_INT64_C(5));
    QCOMPARE(result.head->showid(), QStringLiteral("T-1"));
    QCOMPARE(result.head->managerId(), QStringLiteral("m"));
    QCOMPARE(result.head->status(), 2);
    QCOMPARE(result.head->followers(), QStringList({QStringLiteral("x"), QStringLiteral("y")}));
    QCOMPARE(result.head->url(), QStringLiteral("http://x"));
    QCOMPARE(result.head->priority(), -1);
}

void TestDiagramExchangeCsv::shouldReadDates_data()
{
    QTest::addColumn<QByteArray>("cell");
    QTest::addColumn<qint64>("date");

    const QDate day(2017, 7, 14);
    QTest::newRow("with milliseconds")
        << QByteArray("2017-07-14T02:40:00.123Z") << Q_INT64_C(1500000000123);
    QTest::newRow("without") << QByteArray("2017-07-14T02:40:00Z") << Q_INT64_C(1500000000000);
    QTest::newRow("zone") << QByteArray("2017-07-14T04:40:00+02:00") << Q_INT64_C(1500000000000);
    QTest::newRow("local") << QByteArray("2017-07-14T02:40:00")
                           << QDateTime(day, QTime(2, 40)).toMSecsSinceEpoch();
    QTest::newRow("day") << QByteArray("2017-07-14") << day.startOfDay().toMSecsSinceEpoch();
    QTest::newRow("number") << QByteArray("1500000000000") << Q_INT64_C(1500000000000);
    QTest::newRow("negative number") << QByteArray(" -5 ") << Q_INT64_C(-5);
    QTest::newRow("nothing") << QByteArray() << Q_INT64_C(0);
}

void TestDiagramExchangeCsv::shouldReadDates()
{
    QFETCH(QByteArray, cell);
    QFETCH(qint64, date);
    const Imported result = imported("title,created\na," + cell + '\n', Format::Csv);
    QVERIFY2(result.head, qPrintable(result.error));
    QCOMPARE(result.head->createDate(), date);
}

void TestDiagramExchangeCsv::shouldReadFollowers_data()
{
    QTest::addColumn<QByteArray>("cell");
    QTest::addColumn<QStringList>("followers");

    const QString x = QStringLiteral("x");
    QTest::newRow("one") << QByteArray("x") << QStringList{x};
    QTest::newRow("two") << QByteArray("x;y") << QStringList{x, QStringLiteral("y")};
    QTest::newRow("separator at the end") << QByteArray("x;") << QStringList{x};
    QTest::newRow("an empty one") << QByteArray("x;;") << QStringList{x, QString()};
    QTest::newRow("escaped separator") << QByteArray("x\\;y") << QStringList{QStringLiteral("x;y")};
    QTest::newRow("nothing escaped") << QByteArray("x\\") << QStringList{QStringLiteral("x\\")};
}

void TestDiagramExchangeCsv::shouldReadFollowers()
{
    QFETCH(QByteArray, cell);
    QFETCH(QStringList, followers);
    const Imported result = imported("title,followers\na," + cell + '\n', Format::Csv);
    QVERIFY2(result.head, qPrintable(result.error));
    QCOMPARE(result.head->followers(), followers);
}

void TestDiagramExchangeCsv::shouldKeepFollowers_data()
{
    QTest::addColumn<QStringList>("followers");

    const QString empty = QStringLiteral("");
    QTest::newRow("an empty one at the end") << QStringList{QStringLiteral("x"), empty};
    QTest::newRow("an empty one at the beginning") << QStringList{empty, QStringLiteral("x")};
    QTest::newRow("an empty one alone") << QStringList{empty};
    QTest::newRow("two empty ones") << QStringList{empty, empty};
    QTest::newRow("marks") << QStringList{QStringLiteral(";"), QStringLiteral("\\")};
}

void TestDiagramExchangeCsv::shouldKeepFollowers()
{
    QFETCH(QStringList, followers);
    TreeItem head;
    head.setFollowers(followers);
    QCOMPARE(carriedThrough(head, Format::Csv).head->followers(), followers);
}

void TestDiagramExchangeCsv::shouldWriteATable()
{
    auto head = treeFrom("a[\"b\"]");
    head->setUuid(QStringLiteral("1"));
    TreeItem *const bone = head->childAtIndex(0);
    bone->setUuid(QStringLiteral("2"));
    bone->setStatus(5);
    bone->setProgress(40);
    bone->setCreateDate(Q_INT64_C(1500000000123));
    bone->setFollowers(QStringList{QStringLiteral("x"), QStringLiteral("y;z")});
    bone->setDetail(QStringLiteral("1\n2, 3"));
    QCOMPARE(exported(*head, Format::Csv),
             QByteArray("\xef\xbb\xbfuuid,parent,title,status,progress,priority,manager,manager id,"
                        "creator,creator id,followers,created,planned end,url,detail,short id,type,"
                        "verdict,votes,colour"
                        "\r\n"
                        "1,,a,,,,,,,,,,,,,,,,,\r\n"
                        "2,1,\"\"\"b\"\"\",5,40,,,,,,x;y\\;z,2017-07-14T02:40:00.123Z,,,"
                        "\"1\n2, 3\",,,,,\r\n"));
}

void TestDiagramExchangeCsv::shouldWriteNothingThatASpreadsheetRuns()
{
    const QString formula = QStringLiteral("=HYPERLINK(\"http://x\")");
    auto head = treeFrom("a");
    head->setTitle(formula);
    head->setUuid(formula);
    head->setShowid(QStringLiteral("+1"));
    head->setUrl(QStringLiteral("-1"));
    head->setDetail(QStringLiteral("@x"));
    head->setManagerName(QString::fromUtf8("＝1"));
    head->setCreatorName(QStringLiteral("\t=1"));
    head->setFollowers(QStringList{QStringLiteral("=1"), QStringLiteral("b")});
    const QByteArray table = exported(*head, Format::Csv);
    const QByteArray rest = table.mid(table.indexOf('\n') + 1);
    QVERIFY(rest.startsWith("\"'=HYPERLINK(\"\"http://x\"\")\",,\"'=HYPERLINK("));
    QVERIFY(rest.contains(",'+1,"));
    QVERIFY(rest.contains(",'-1,"));
    QVERIFY(rest.contains(",'@x,"));
    QVERIFY(rest.contains(QString::fromUtf8(",'＝1,").toUtf8()));
    QVERIFY(rest.contains(",'\t=1,"));
    QVERIFY(rest.contains(",'=1;b,"));

    const Imported result = imported(table, Format::Csv);
    QCOMPARE(result.text(), formula);
    QCOMPARE(result.head->uuid(), formula);
    QCOMPARE(result.head->creatorName(), QStringLiteral("\t=1"));
    QCOMPARE(result.head->followers(), head->followers());
}

void TestDiagramExchangeCsv::shouldKeepApostrophes_data()
{
    QTest::addColumn<QByteArray>("cell");
    QTest::addColumn<QString>("title");

    QTest::newRow("before text") << QByteArray("'tis") << QStringLiteral("'tis");
    QTest::newRow("alone") << QByteArray("'") << QStringLiteral("'");
    QTest::newRow("guard") << QByteArray("'=1") << QStringLiteral("=1");
    QTest::newRow("guarded apostrophe") << QByteArray("''=1") << QStringLiteral("'=1");
    QTest::newRow("no guard") << QByteArray("=1") << QStringLiteral("=1");
}

void TestDiagramExchangeCsv::shouldKeepApostrophes()
{
    QFETCH(QByteArray, cell);
    QFETCH(QString, title);
    QCOMPARE(imported("title\n" + cell + '\n', Format::Csv).text(), title);
}

void TestDiagramExchangeCsv::shouldGiveRowsAUuidToBeFoundBy()
{
    auto head = treeFrom("a[b[c],d[e]]");
    head->setUuid(QString());
    head->childAtIndex(0)->setUuid(QStringLiteral("-1"));
    head->childAtIndex(1)->setUuid(QStringLiteral("-1"));
    QCOMPARE(carriedThrough(*head, Format::Csv).text(), QStringLiteral("a[b[c],d[e]]"));
    QCOMPARE(head->uuid(), QString()); // writing changes nothing
}

FISHBONE_GUILESS_TEST(TestDiagramExchangeCsv)
#include "tst_diagramexchange_csv.moc"
