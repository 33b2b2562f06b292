// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/exchange/exchangefixture.h>
#include <tests/program/sanitized.h>
#include <tests/program/testprogram.h>

#include <fishbone/exchange/exchangereport.h>
#include <fishbone/exchange/ziparchive.h>

#include <QBuffer>
#include <QFile>
#include <QJsonDocument>
#include <QLocalServer>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <ctime>
#include <limits>

using namespace ExchangeFixture;

/** Files and texts as they come. */
class TestDiagramExchangeFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldReadAndWriteFiles_data() { addFormats(); }
    void shouldReadAndWriteFiles();
    void shouldSayWhyAFileCannotBeRead();
    void shouldSayWhatIsMissingInJson_data();
    void shouldSayWhatIsMissingInJson();
    void shouldKeepTheFileThatCannotBeReplaced();
    void shouldSayWhyADeviceTakesNothing();
    void shouldReadEveryEncodingWithAMark_data();
    void shouldReadEveryEncodingWithAMark();
    void shouldTellTheCodePageOfTextThatIsNotUtf8();
    void shouldRefuseTextInNoCodePage();
    void shouldReadPastANullCharacter_data();
    void shouldReadPastANullCharacter();
    void shouldSurviveBrokenInput_data() { addFormats(); }
    void shouldSurviveBrokenInput();
    void shouldTakeTimeInProportionToTheSize_data() { addFormats(); }
    void shouldTakeTimeInProportionToTheSize();
};

void TestDiagramExchangeFiles::shouldReadAndWriteFiles()
{
    QFETCH(Format, format);
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("x.") + DiagramExchange::id(format));
    const auto head = treeFrom("a[b,c]");
    QString error;
    QVERIFY2(DiagramExchange::writeFile(name, *head, format, &error), qPrintable(error));
    QVERIFY(DiagramExchange::writeFile(name, *head, format)); // over what was there
    const auto read = DiagramExchange::readFile(name, format, &error);
    QVERIFY2(read, qPrintable(error));
    QCOMPARE(TestSupport::treeToText(*read), QStringLiteral("a[b,c]"));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files).size(), 1);
}

void TestDiagramExchangeFiles::shouldSayWhyAFileCannotBeRead()
{
    const QTemporaryDir folder;
    QString error;
    QVERIFY(!DiagramExchange::readFile(folder.path(), Format::Text, &error));
    QCOMPARE(error, QStringLiteral("it is a folder"));
    QVERIFY(!DiagramExchange::readFile(folder.filePath(QStringLiteral("a")), Format::Text, &error));
    QCOMPARE(error, QStringLiteral("there is no such file"));
    QVERIFY(!DiagramExchange::readFile(QString(), Format::Text));

    // Nobody can open the end of a connection as a file, not even the superuser.
    const QString name = folder.filePath(QStringLiteral("b"));
    QLocalServer server;
    QVERIFY(server.listen(name));
    QVERIFY(!DiagramExchange::readFile(name, Format::Text, &error));
    QVERIFY(!error.isEmpty() && error != QLatin1String("there is no such file"));
}

void TestDiagramExchangeFiles::shouldSayWhatIsMissingInJson_data()
{
    QTest::addColumn<Format>("format");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("reason");
    const auto map = [](const char *content) {
        return ZipWriter::archive({{QStringLiteral("content.json"), content}});
    };
    const QString colon =
        QStringLiteral("it is not a JSON document (line 2: the colon behind a name is missing)");
    QTest::newRow("diagram") << Format::Json << QByteArray("{\n\"title\" 1}") << colon;
    QTest::newRow("map") << Format::Xmind << map("[{\n\"rootTopic\" 1}]")
                         << QStringLiteral("content.json: ") + colon;
    QTest::newRow("one sheet") << Format::Xmind << map("{\"rootTopic\": {}}")
                               << QStringLiteral("content.json: it is no list of sheets");
}

void TestDiagramExchangeFiles::shouldSayWhatIsMissingInJson()
{
    QFETCH(Format, format);
    QFETCH(QByteArray, bytes);
    QFETCH(QString, reason);
    QCOMPARE(imported(bytes, format).text(), reason);
}

void TestDiagramExchangeFiles::shouldKeepTheFileThatCannotBeReplaced()
{
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("a.md"));
    QVERIFY(DiagramExchange::writeFile(name, *treeFrom("old"), Format::Markdown));
    QString error;
    QVERIFY(
        !DiagramExchange::writeFile(name, *TestSupport::makeChain(600), Format::Markdown, &error));
    QVERIFY(!error.isEmpty());
    QCOMPARE(DiagramExchange::readFile(name, Format::Markdown)->title(), QStringLiteral("old"));
    QVERIFY(!DiagramExchange::writeFile(folder.filePath(QStringLiteral("no/a.md")), *treeFrom("a"),
                                        Format::Markdown, &error));
    QVERIFY(error.contains(QLatin1String("No such file")));
}

void TestDiagramExchangeFiles::shouldSayWhyADeviceTakesNothing()
{
    QFile full(QStringLiteral("/dev/full"));
    if (!full.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        QSKIP("there is no device that is always full");
    QString error;
    QVERIFY(!DiagramExchange::write(full, *treeFrom("a"), Format::Text, &error));
    QVERIFY(!error.isEmpty());
}

void TestDiagramExchangeFiles::shouldReadEveryEncodingWithAMark_data()
{
    QTest::addColumn<QByteArray>("content");

    const std::u32string text = U"\ufeff头\r\n\t\U0001f41f\r\t\tü\n";
    const QString string = QChar(0xfeff) + QString::fromStdU32String(text.substr(1));
    QTest::newRow("utf-8") << string.mid(1).toUtf8();
    QTest::newRow("utf-8 with a mark") << string.toUtf8();
    QByteArray little;
    QByteArray big;
    for (const QChar c : string) {
        little.append(char(c.cell())).append(char(c.row()));
        big.append(char(c.row())).append(char(c.cell()));
    }
    QTest::newRow("utf-16, little") << little;
    QTest::newRow("utf-16, big") << big;
    little.clear();
    big.clear();
    for (const char32_t c : text) {
        for (const int shift : {0, 8, 16, 24}) {
            little.append(char(c >> shift & 0xff));
            big.append(char(c >> (24 - shift) & 0xff));
        }
    }
    QTest::newRow("utf-32, little") << little;
    QTest::newRow("utf-32, big") << big;
}

void TestDiagramExchangeFiles::shouldReadEveryEncodingWithAMark()
{
    QFETCH(QByteArray, content);
    QCOMPARE(imported(content, Format::Text).text(), QString::fromUtf8("头[🐟[ü]]"));
}

void TestDiagramExchangeFiles::shouldTellTheCodePageOfTextThatIsNotUtf8()
{
    QByteArray latin("a\n\n M\xfcller\n");
    QBuffer buffer(&latin);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    ExchangeReport report;
    const auto head = DiagramExchange::read(buffer, Format::Text, nullptr, &report);
    QCOMPARE(TestSupport::treeToText(*head), QString::fromUtf8("a[Müller]"));
    QCOMPARE(report.lines(), QStringList(QStringLiteral(
                                 "taken: the text as Windows-1252, since it is not encoded as "
                                 "UTF-8 (line 3)")));
    // Common Chinese characters come in pairs of high bytes.
    QCOMPARE(imported("\xd6\xd0\xce\xc4\n", Format::Text).text(), QString::fromUtf8("中文"));
}

void TestDiagramExchangeFiles::shouldRefuseTextInNoCodePage()
{
    for (const Format format : {Format::Text, Format::Markdown, Format::Mermaid, Format::Csv})
        QVERIFY2(imported("a\n\nM\x81ller\n", format)
                     .error.startsWith(QLatin1String("line 3: the text is not encoded as UTF-8")),
                 qPrintable(DiagramExchange::id(format)));
    // The character that stands for what cannot be decoded is one like any other.
    QCOMPARE(imported("\xef\xbf\xbd", Format::Text).text(), QString(QChar(0xfffd)));
}

void TestDiagramExchangeFiles::shouldReadPastANullCharacter_data()
{
    QTest::addColumn<Format>("format");
    QTest::addColumn<QByteArray>("content");

    QTest::newRow("text") << Format::Text << QByteArray("a\0b\n\tc\n", 7);
    QTest::newRow("Markdown") << Format::Markdown << QByteArray("# a\0b\n\n- c\n", 11);
    QTest::newRow("Mermaid") << Format::Mermaid << QByteArray("ishikawa\n  a\0b\n    c\n", 21);
    QTest::newRow("table") << Format::Csv << QByteArray("uuid,parent,title\n1,,a\0b\n2,1,c\n", 31);
}

void TestDiagramExchangeFiles::shouldReadPastANullCharacter()
{
    QFETCH(Format, format);
    QFETCH(QByteArray, content);
    QCOMPARE(imported(content, format).text(), QString::fromLatin1("a\0b[c]", 6));
}

void TestDiagramExchangeFiles::shouldSurviveBrokenInput()
{
    QFETCH(Format, format);
    auto head = treeFrom("a[b[c,d],e[f]]");
    head->setDetail(QStringLiteral("x\n\"y\","));
    head->childAtIndex(0)->setUrl(QStringLiteral("http://x/(y)"));
    const QByteArray whole = exported(*head, format);
    QRandomGenerator random(quint32(format) + 1);
    constexpr int times = unlessSanitized(1500, 400);
    for (int i = 0; i < times; ++i) {
        QByteArray broken = whole.left(random.bounded(whole.size() + 1));
        for (int change = random.bounded(4); change > 0 && !broken.isEmpty(); --change)
            broken[random.bounded(broken.size())] = char(random.bounded(256));
        const Imported result = imported(broken, format);
        QVERIFY(bool(result.head) == result.error.isEmpty());
        if (result.head)
            QVERIFY(!exported(*result.head, format).isEmpty());
    }
}

void TestDiagramExchangeFiles::shouldTakeTimeInProportionToTheSize()
{
    QFETCH(Format, format);
    const auto secondsFor = [format](int subjects) {
        TestSupport::RandomShape shape;
        shape.nodes = subjects;
        FishModel model;
        FishInfo *const document =
            TestSupport::loadDocument(model, TestSupport::randomDocument(7, shape));
        const TreeItem &head = *document->treeItem()->childAtIndex(0);
        // The time of this process: others may keep the machine busy.
        std::clock_t best = std::numeric_limits<std::clock_t>::max();
        for (int run = 0; run < 3; ++run) {
            const std::clock_t begin = std::clock();
            const Imported result = carriedThrough(head, format);
            best = std::min(best, std::clock() - begin);
            if (result.text() != TestSupport::treeToText(head))
                return -1.0;
        }
        return double(best) / CLOCKS_PER_SEC;
    };
    const double some = secondsFor(1000);
    const double many = secondsFor(10000);
    QVERIFY(some > 0);
    QVERIFY(many > 0);
    // Ten times as much; anything that grows with the square would take a hundred times as long.
    QVERIFY2(many < 35 * some, qPrintable(QStringLiteral("%1 s, %2 s").arg(some).arg(many)));
}

FISHBONE_GUILESS_TEST(TestDiagramExchangeFiles)
#include "tst_diagramexchange_files.moc"
