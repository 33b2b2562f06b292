// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/exchange/exchangefixture.h>
#include <tests/program/testprogram.h>

#include <fishbone/exchange/exchangereport.h>

#include <QBuffer>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonDocument>
#include <QLocalServer>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

using namespace ExchangeFixture;

/** What all formats share: names, files, limits. */
class TestDiagramExchange : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldNameEachFormatOnce();
    void shouldFindAFormatByItsIdAndEndings_data() { addFormats(); }
    void shouldFindAFormatByItsIdAndEndings();
    void shouldFindNoFormatForOtherNames();
    void shouldOfferEveryForeignFormatInFileDialogs();
    void shouldRefuseWhatIsOnlyReadOrOnlyWritten();
    void shouldGiveEverySubjectAnIdentity_data() { addFormats(); }
    void shouldGiveEverySubjectAnIdentity();
    void shouldReadTheDiagramFormatAsItStands();
    void shouldTellUuidsThatStandTwiceApart();
    void shouldPutSeveralTopSubjectsBelowANewHead_data();
    void shouldPutSeveralTopSubjectsBelowANewHead();
    void shouldReadBranchesWithoutAHead_data();
    void shouldReadBranchesWithoutAHead();
    void shouldSayWhyBranchesCannotBeRead();
    void shouldRefuseWhatHoldsNothing_data() { addFormats(); }
    void shouldRefuseWhatHoldsNothing();
    void shouldRefuseWhatIsTooLarge();
    void shouldCarryAsManyLevelsAsADocumentMayHave_data() { addFormats(); }
    void shouldCarryAsManyLevelsAsADocumentMayHave();
    void shouldRefuseToWriteMoreLevels_data() { addFormats(); }
    void shouldRefuseToWriteMoreLevels();
    void shouldRefuseToReadMoreLevels_data();
    void shouldRefuseToReadMoreLevels();
    void shouldRefuseAHeadForWhatIsAsDeepAsMayBe();
    void shouldRefuseMoreSubjectsThanTheLimit();
};

void TestDiagramExchange::shouldNameEachFormatOnce()
{
    QSet<QString> ids;
    QSet<QString> suffixes;
    const QList<Format> formats = DiagramExchange::formats();
    QCOMPARE(formats.first(), Format::Json);
    for (const Format format : formats) {
        QVERIFY(!DiagramExchange::name(format).isEmpty());
        QVERIFY(!ids.contains(DiagramExchange::id(format)));
        ids.insert(DiagramExchange::id(format));
        const QStringList endings = DiagramExchange::suffixes(format);
        QVERIFY(!endings.isEmpty());
        for (const QString &ending : endings) {
            QVERIFY(!suffixes.contains(ending));
            suffixes.insert(ending);
        }
    }
}

void TestDiagramExchange::shouldFindAFormatByItsIdAndEndings()
{
    QFETCH(Format, format);
    const QString id = DiagramExchange::id(format);
    QCOMPARE(DiagramExchange::formatById(id), std::make_optional(format));
    QCOMPARE(DiagramExchange::formatById(id.toUpper()), std::make_optional(format));
    const QStringList endings = DiagramExchange::suffixes(format);
    for (const QString &ending : endings) {
        QCOMPARE(DiagramExchange::formatOf(QStringLiteral("a.b.") + ending),
                 std::make_optional(format));
        QCOMPARE(DiagramExchange::formatOf(QStringLiteral("/x.y/A.") + ending.toUpper()),
                 std::make_optional(format));
    }
}

void TestDiagramExchange::shouldFindNoFormatForOtherNames()
{
    for (const char *name : {"", "md", "a", "a.", "a.png", "a.md.bak", "folder.md/a"})
        QVERIFY2(!DiagramExchange::formatOf(QLatin1String(name)), name);
    for (const char *id : {"", "markdown", "png", "md "})
        QVERIFY2(!DiagramExchange::formatById(QLatin1String(id)), id);
}

void TestDiagramExchange::shouldOfferEveryForeignFormatInFileDialogs()
{
    const QStringList writing = DiagramExchange::exportFilter().split(QStringLiteral(";;"));
    const QStringList reading = DiagramExchange::importFilter().split(QStringLiteral(";;"));
    for (const Format format : DiagramExchange::formats()) {
        const bool isForeign = format != Format::Json;
        const QString name = DiagramExchange::name(format) + QLatin1String(" (");
        QCOMPARE(reading.mid(1).filter(name).size(),
                 isForeign && DiagramExchange::canRead(format) ? 1 : 0);
        QCOMPARE(writing.filter(name).size(),
                 isForeign && DiagramExchange::canWrite(format) ? 1 : 0);
    }
    QVERIFY(writing.contains(QStringLiteral("Markdown outline (*.md *.markdown)")));
    const QRegularExpression form(QStringLiteral("^[^()]+ \\((\\*\\.[a-z]+ ?)+\\)$"));
    for (const QString &filter : reading)
        QVERIFY2(form.match(filter).hasMatch(), qPrintable(filter));
    QVERIFY(reading.first().contains(QLatin1String("*.markdown *.txt *.text *.opml *.mm")));
    QVERIFY(!reading.join(QString()).contains(QLatin1String("json")));
}

void TestDiagramExchange::shouldRefuseWhatIsOnlyReadOrOnlyWritten()
{
    for (const Format format : DiagramExchange::formats()) {
        QVERIFY(DiagramExchange::canRead(format) || DiagramExchange::canWrite(format));
        QString error;
        if (!DiagramExchange::canRead(format)) {
            QCOMPARE(imported("x", format).error,
                     QStringLiteral("that format can only be written"));
        } else if (!DiagramExchange::canWrite(format)) {
            QVERIFY(exported(*treeFrom("a"), format, &error).isNull());
            QCOMPARE(error, QStringLiteral("that format can only be read"));
        }
    }
}

void TestDiagramExchange::shouldGiveEverySubjectAnIdentity()
{
    QFETCH(Format, format);
    const Imported result = carriedThrough(*treeFrom("a[b[c,d],e]"), format);
    QCOMPARE(result.text(), QStringLiteral("a[b[c,d],e]"));
    QVERIFY(!result.head->parent());
    QVERIFY(!result.head->isHaveParentTask());
    QSet<QString> uuids;
    std::vector<const TreeItem *> waiting{result.head.get()};
    while (!waiting.empty()) {
        const TreeItem *const subject = waiting.back();
        waiting.pop_back();
        QVERIFY(!subject->uuid().isEmpty());
        QVERIFY(subject->uuid() != QLatin1String("-1"));
        QVERIFY(!uuids.contains(subject->uuid()));
        uuids.insert(subject->uuid());
        for (const TreeItem *child : subject->childItems()) {
            QCOMPARE(child->pid(), subject->uuid());
            QCOMPARE(child->parent(), subject);
            waiting.push_back(child);
        }
    }
    QCOMPARE(uuids.size(), 5);
}

void TestDiagramExchange::shouldReadTheDiagramFormatAsItStands()
{
    const Imported result =
        imported(R"({"title": "a", "children": [{"title": "b", "pid": "x", "children": [{}]}]})",
                 Format::Json);
    QCOMPARE(result.text(), QStringLiteral("a[b]"));
    QCOMPARE(result.head->uuid(), QString());
    QCOMPARE(result.head->childAtIndex(0)->pid(), QStringLiteral("x"));
}

void TestDiagramExchange::shouldTellUuidsThatStandTwiceApart()
{
    auto head = treeFrom("a[b,c]");
    head->childAtIndex(0)->setUuid(QStringLiteral("u"));
    head->childAtIndex(1)->setUuid(QStringLiteral("u"));
    for (const Format format : {Format::Opml, Format::FreeMind, Format::Csv}) {
        const Imported result = carriedThrough(*head, format);
        QCOMPARE(result.text(), QStringLiteral("a[b,c]"));
        QCOMPARE(result.head->childAtIndex(0)->uuid(), QStringLiteral("u"));
        QCOMPARE(result.head->childAtIndex(1)->uuid().size(), 38);
    }
}

void TestDiagramExchange::shouldPutSeveralTopSubjectsBelowANewHead_data()
{
    QTest::addColumn<Format>("format");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("text");

    const QString made = QStringLiteral("Imported diagram[a[b],c]");
    QTest::newRow("md") << Format::Markdown << QByteArray("- a\n  - b\n- c\n") << made;
    QTest::newRow("md headings") << Format::Markdown << QByteArray("# a\n## b\n# c") << made;
    QTest::newRow("txt") << Format::Text << QByteArray("a\n b\nc") << made;
    QTest::newRow("mm") << Format::FreeMind
                        << QByteArray(
                               "<map><node TEXT='a'><node TEXT='b'/></node><node TEXT='c'/></map>")
                        << made;
    QTest::newRow("opml") << Format::Opml
                          << QByteArray("<opml><body><outline text='a'><outline text='b'/>"
                                        "</outline><outline text='c'/></body></opml>")
                          << made;
    QTest::newRow("opml with a title")
        << Format::Opml
        << QByteArray("<opml><head><title>All</title></head><body><outline text='a'/>"
                      "<outline text='c'/></body></opml>")
        << QStringLiteral("All[a,c]");
    QTest::newRow("csv") << Format::Csv << QByteArray("title\na\nc\n")
                         << QStringLiteral("Imported diagram[a,c]");
}

void TestDiagramExchange::shouldPutSeveralTopSubjectsBelowANewHead()
{
    QFETCH(Format, format);
    QFETCH(QByteArray, content);
    QFETCH(QString, text);
    const Imported result = imported(content, format);
    QCOMPARE(result.text(), text);
    QVERIFY(!result.head->isHaveParentTask());
    for (const TreeItem *child : result.head->childItems())
        QCOMPARE(child->pid(), result.head->uuid());
}

void TestDiagramExchange::shouldReadBranchesWithoutAHead_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QStringList>("branches");

    QTest::newRow("several") << QByteArray("a\n\tb\nc\n")
                             << QStringList({QStringLiteral("a[b]"), QStringLiteral("c")});
    QTest::newRow("one") << QByteArray("a\n\tb\n") << QStringList(QStringLiteral("a[b]"));
}

void TestDiagramExchange::shouldReadBranchesWithoutAHead()
{
    QFETCH(QByteArray, content);
    QFETCH(QStringList, branches);
    QBuffer buffer(&content);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    const auto node = DiagramExchange::readBranches(buffer, Format::Text);
    QVERIFY(node);
    QStringList texts;
    for (const TreeItem *branch : node->childItems()) {
        texts.append(TestSupport::treeToText(*branch));
        QVERIFY(!branch->uuid().isEmpty());
        QCOMPARE(branch->pid(), node->uuid());
    }
    QCOMPARE(texts, branches);
}

void TestDiagramExchange::shouldSayWhyBranchesCannotBeRead()
{
    QBuffer buffer;
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    buffer.buffer() = "\n \n";
    QString error;
    QVERIFY(!DiagramExchange::readBranches(buffer, Format::Text, &error));
    QCOMPARE(error, QStringLiteral("it holds no diagram"));
}

void TestDiagramExchange::shouldRefuseWhatHoldsNothing()
{
    QFETCH(Format, format);
    for (const char *content : {"", "\n\n  \n", "\xef\xbb\xbf"}) {
        const Imported result = imported(content, format);
        QVERIFY(!result.head);
        QVERIFY(!result.error.isEmpty());
    }
    QCOMPARE(imported(QByteArray(), format).error, QStringLiteral("it is empty"));
}

void TestDiagramExchange::shouldRefuseWhatIsTooLarge()
{
    const QByteArray content(int(DiagramExchange::maximalBytes) + 1, 'x');
    QCOMPARE(imported(content, Format::Opml).error, QStringLiteral("it is larger than 256 MiB"));
    const QString error = imported(content.mid(1), Format::Opml).error; // not for its size
    QVERIFY2(error.startsWith(QLatin1String("line 1: ")), qPrintable(error));
}

void TestDiagramExchange::shouldCarryAsManyLevelsAsADocumentMayHave()
{
    QFETCH(Format, format);
    const auto chain = TestSupport::makeChain(DiagramExchange::maximalLevels);
    const Imported result = carriedThrough(*chain, format);
    QVERIFY2(result.head, qPrintable(result.error));
    QCOMPARE(result.text(), TestSupport::treeToText(*chain));
    // What was read can be saved and opened as a document.
    const QByteArray json = exported(*result.head, Format::Json);
    QVERIFY(!QJsonDocument::fromJson(json).isNull());
}

void TestDiagramExchange::shouldRefuseToWriteMoreLevels()
{
    QFETCH(Format, format);
    QString error;
    const auto chain = TestSupport::makeChain(DiagramExchange::maximalLevels + 1);
    QVERIFY(exported(*chain, format, &error).isNull());
    QCOMPARE(error, QStringLiteral("it has more than 512 levels"));
    // Nor does it take stack for the depth.
    QVERIFY(exported(*TestSupport::makeChain(100000), format).isNull());
}

void TestDiagramExchange::shouldRefuseToReadMoreLevels_data()
{
    QTest::addColumn<Format>("format");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("line"); ///< of the first subject that is too deep

    for (const int levels : {DiagramExchange::maximalLevels + 1, 3000}) {
        QByteArray text;
        QByteArray markdown;
        QByteArray mermaid = "ishikawa\n";
        QByteArray opml = "<opml><body>\n";
        QByteArray map = "<map>\n";
        QByteArray table = "title,uuid,parent\n";
        for (int i = 0; i < levels; ++i) {
            text += QByteArray(i, ' ') + "a\n";
            markdown += QByteArray(i, ' ') + "- a\n";
            mermaid += QByteArray(i, ' ') + "a\n";
            opml += "<outline text='a'>\n";
            map += "<node TEXT='a'>\n";
            table += "a," + QByteArray::number(i) + ',' +
                     (i > 0 ? QByteArray::number(i - 1) : QByteArray()) + '\n';
        }
        const auto row = [levels](const char *name, Format format, const QByteArray &content,
                                  int line) {
            QTest::newRow(qPrintable(QStringLiteral("%1 %2").arg(QLatin1String(name)).arg(levels)))
                << format << content << QStringLiteral("line %1: ").arg(line);
        };
        row("txt", Format::Text, text, 513);
        row("md", Format::Markdown, markdown, 513);
        row("mmd", Format::Mermaid, mermaid, 514);
        row("opml", Format::Opml, opml, 514);
        row("mm", Format::FreeMind, map, 514);
        row("csv", Format::Csv, table, 514);
    }
}

void TestDiagramExchange::shouldRefuseToReadMoreLevels()
{
    QFETCH(Format, format);
    QFETCH(QByteArray, content);
    QFETCH(QString, line);
    const Imported result = imported(content, format);
    QVERIFY(!result.head);
    QCOMPARE(result.error, line + QStringLiteral("there are more than 512 levels"));
}

void TestDiagramExchange::shouldRefuseAHeadForWhatIsAsDeepAsMayBe()
{
    QByteArray text;
    for (int i = 0; i < DiagramExchange::maximalLevels; ++i)
        text += QByteArray(i, '\t') + "a\n";
    QVERIFY(imported(text, Format::Text).head);
    QCOMPARE(imported(text + "b\n", Format::Text).error,
             QStringLiteral("there are more than 512 levels"));
}

void TestDiagramExchange::shouldRefuseMoreSubjectsThanTheLimit()
{
    QByteArray text = "a\n";
    for (int i = 0; i < DiagramExchange::maximalSubjects; ++i)
        text += "\tb\n";
    QCOMPARE(imported(text, Format::Text).error,
             QStringLiteral("line 500001: there are more than 500000 subjects"));
}

FISHBONE_GUILESS_TEST(TestDiagramExchange)
#include "tst_diagramexchange.moc"
