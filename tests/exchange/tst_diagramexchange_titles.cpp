// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/exchange/exchangefixture.h>
#include <tests/program/sanitized.h>
#include <tests/program/testprogram.h>

#include <QRandomGenerator>
#include <QtTest>

#include <ctime>

using namespace ExchangeFixture;

namespace {

bool isXml(Format format)
{
    return format == Format::Opml || format == Format::FreeMind;
}

/** What becomes of a text in XML, which has no room for these characters. */
QString withoutControls(QString text)
{
    for (QChar &c : text) {
        if (c < QLatin1Char(' ') && !QStringLiteral("\t\n\r").contains(c))
            c = QChar(QChar::ReplacementCharacter);
    }
    return text;
}

QString expectedIn(Format format, const QString &text)
{
    // Qt's JSON reader takes this one at the beginning of a text for a mark of the encoding.
    if ((format == Format::Json || format == Format::Xmind) && text.startsWith(QChar(0xfeff)))
        return text.mid(1);
    return isXml(format) ? withoutControls(text) : text;
}

} // namespace

/** Titles and details that mean something in one format or another. */
class TestDiagramExchangeTitles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldKeepOddTitles_data();
    void shouldKeepOddTitles();
    void shouldKeepOddDetails_data() { shouldKeepOddTitles_data(); }
    void shouldKeepOddDetails();
    void shouldKeepOddLinks_data();
    void shouldKeepOddLinks();
    void shouldKeepRandomTexts_data() { addFormats(); }
    void shouldKeepRandomTexts();
    void shouldTakeTitlesOfAnyLengthInProportion_data();
    void shouldTakeTitlesOfAnyLengthInProportion();
};

void TestDiagramExchangeTitles::shouldKeepOddTitles_data()
{
    QTest::addColumn<Format>("format");
    QTest::addColumn<QString>("text");

    const QList<QByteArray> texts{"",
                                  " ",
                                  "  two  ",
                                  "\n",
                                  "a\nb",
                                  "\na\n",
                                  "a\r\nb\rc",
                                  "\ta\tb\t",
                                  "\n\n- a\n\n# b",
                                  "# heading",
                                  "#",
                                  "##",
                                  "a #",
                                  "C#",
                                  "a # b",
                                  "#35;",
                                  "#amp;",
                                  "#x41;",
                                  "#8203;",
                                  "####### x",
                                  "- item",
                                  "-",
                                  "--",
                                  "---",
                                  "- - -",
                                  "***",
                                  "___",
                                  "===",
                                  "* item",
                                  "*emphasis*",
                                  "**strong**",
                                  "_under_",
                                  "snake_case_name",
                                  "__init__",
                                  "5 * 3 * 2",
                                  "5*3*2",
                                  "+ plus",
                                  "+",
                                  "1. one",
                                  "1)",
                                  "12345678901. x",
                                  "> quote",
                                  ">",
                                  "| a | b |",
                                  "~~~",
                                  "```",
                                  "`code`",
                                  "``a`",
                                  "\\",
                                  "\\n",
                                  "a\\",
                                  "\\*",
                                  "[link](url)",
                                  "[a]",
                                  "[x] done",
                                  "]",
                                  "![a](b)",
                                  "(a)",
                                  "<b>bold</b>",
                                  "<br>",
                                  "<br/>",
                                  "a < b > c",
                                  "<http://example.org>",
                                  "&amp;",
                                  "&",
                                  "&lt;",
                                  "&#65;",
                                  "AT&T",
                                  "R&D;",
                                  "&nosuch;",
                                  "\"quoted\"",
                                  "\"",
                                  "\"\"",
                                  "\"a\" b",
                                  "\"\\\"\"",
                                  "\"a\nb\"",
                                  "'",
                                  "'=1",
                                  "=1+1",
                                  "+1",
                                  "-1",
                                  "@cmd",
                                  "''",
                                  "''=x",
                                  "\t=1",
                                  "a,b",
                                  "a;b",
                                  "a\"b",
                                  ",",
                                  "%%",
                                  "%% comment",
                                  "%",
                                  "ishikawa",
                                  "ishikawa-beta",
                                  "{\"a\": 1}",
                                  "null",
                                  "<![CDATA[x]]>",
                                  "]]>",
                                  "<!ENTITY x>",
                                  "-->",
                                  "title",
                                  "C:\\new\\temp",
                                  "\x01\x07\x1b",
                                  "a\x0b"
                                  "b\x0c",
                                  "\x7f",
                                  "\xc2\x85next\xc2\x85",
                                  "\xe2\x80\xa8line\xe2\x80\xa9",
                                  "\xc2\xa0nbsp\xc2\xa0",
                                  "\xe2\x80\x8b",
                                  "\xef\xbb\xbf"
                                  "mark",
                                  "\xef\xbf\xbd",
                                  "\xe4\xb8\xad\xe6\x96\x87\xe6\xa0\x87\xe9\xa2\x98",
                                  "\xef\xbc\x9d"
                                  "1",
                                  "\xf0\x9f\x90\x9f\xf0\x9f\x91\xa9\xe2\x80\x8d\xf0\x9f\x92\xbb",
                                  "\xd7\xa9\xd7\x9c\xd7\x95\xd7\x9d",
                                  "\xe2\x80\xae"
                                  "rtl\xe2\x80\xac",
                                  QByteArray("a\0b", 3),
                                  QByteArray(10000, 'x'),
                                  QByteArray(10000, '#'),
                                  QByteArray(10000, '[')};
    const QList<Format> formats = wholeFormats();
    for (const Format format : formats) {
        for (int i = 0; i < texts.size(); ++i) {
            const QByteArray name = DiagramExchange::id(format).toLatin1() + ' ' +
                                    QByteArray::number(i) + ' ' +
                                    texts.at(i).left(12).toPercentEncoding(" #*[]<>&\"'");
            QTest::newRow(name.constData())
                << format << QString::fromUtf8("x" + texts.at(i)).mid(1);
        }
    }
}

void TestDiagramExchangeTitles::shouldKeepOddTitles()
{
    QFETCH(Format, format);
    QFETCH(QString, text);
    auto head = treeFrom("a[b[c],d]");
    TreeItem *const bone = head->childAtIndex(0);
    for (TreeItem *subject : {head.get(), bone, bone->childAtIndex(0), head->childAtIndex(1)})
        subject->setTitle(text);
    bone->setUrl(QStringLiteral("http://example.org"));

    const Imported result = carriedThrough(*head, format);
    QVERIFY2(result.head, qPrintable(result.error));
    const QString expected = expectedIn(format, text);
    QCOMPARE(result.head->title(), expected);
    QCOMPARE(result.head->childCount(), 2);
    const TreeItem *const read = result.head->childAtIndex(0);
    QCOMPARE(read->title(), expected);
    QCOMPARE(read->childCount(), 1);
    QCOMPARE(read->childAtIndex(0)->title(), expected);
    QCOMPARE(read->childAtIndex(0)->detail(), QString());
    QCOMPARE(result.head->childAtIndex(1)->title(), expected);
    QCOMPARE(result.head->childAtIndex(1)->url(), QString());
}

void TestDiagramExchangeTitles::shouldKeepOddDetails()
{
    QFETCH(Format, format);
    QFETCH(QString, text);
    if (format == Format::Text || format == Format::Mermaid)
        return; // these keep no details
    auto head = treeFrom("a[b[c],d]");
    head->setDetail(text);
    head->childAtIndex(0)->setDetail(text);

    const Imported result = carriedThrough(*head, format);
    QCOMPARE(result.text(), QStringLiteral("a[b[c],d]"));
    const QString expected = expectedIn(format, text);
    QCOMPARE(result.head->detail(), expected);
    QCOMPARE(result.head->childAtIndex(0)->detail(), expected);
    QCOMPARE(result.head->childAtIndex(1)->detail(), QString());
}

void TestDiagramExchangeTitles::shouldKeepOddLinks_data()
{
    QTest::addColumn<Format>("format");
    QTest::addColumn<QString>("url");

    for (const Format format : {Format::Json, Format::Markdown, Format::Opml, Format::FreeMind,
                                Format::Csv, Format::Xmind, Format::Xlsx, Format::Org}) {
        for (const char *url :
             {"https://example.org/a_b_c?x=1&y=2&amp;z=(3)#d*e*", "file:///C:\\a b\\c.txt",
              "mailto:a@example.org", "<x>", ")", "(", "a\"b", "a'b", "[x](y)", "`", "=cmd",
              "http://[::1]/", "a\tb", "\xe4\xb8\xad", " ", "a\nb", "\\"})
            QTest::newRow((DiagramExchange::id(format).toLatin1() + ' ' + url).constData())
                << format << QString::fromUtf8(url);
    }
}

void TestDiagramExchangeTitles::shouldKeepOddLinks()
{
    QFETCH(Format, format);
    QFETCH(QString, url);
    auto head = treeFrom("a[b,c]");
    head->setUrl(url);
    head->childAtIndex(0)->setUrl(url);
    head->childAtIndex(0)->setTitle(QString());

    const Imported result = carriedThrough(*head, format);
    QCOMPARE(result.text(), QStringLiteral("a[,c]"));
    QCOMPARE(result.head->url(), url);
    QCOMPARE(result.head->childAtIndex(0)->url(), url);
    QCOMPARE(result.head->childAtIndex(1)->url(), QString());
}

void TestDiagramExchangeTitles::shouldKeepRandomTexts()
{
    QFETCH(Format, format);
    const QString signs = QString::fromUtf8("ab1 \t\n\r#-+*_`~[]()<>&;\"'=@,.!|\\%/{}:x中\x02");
    QRandomGenerator random(11);
    constexpr int rounds = unlessSanitized(300, 100);
    for (int round = 0; round < rounds; ++round) {
        auto head = treeFrom("a[b[c],d]");
        QStringList expected;
        for (TreeItem *subject : {head.get(), head->childAtIndex(0), head->childAtIndex(1)}) {
            QString text;
            for (int length = random.bounded(12); length > 0; --length)
                text.append(signs.at(random.bounded(signs.size())));
            subject->setTitle(text);
            subject->setDetail(text);
            expected.append(expectedIn(format, text));
        }
        const Imported result = carriedThrough(*head, format);
        QVERIFY2(result.head, qPrintable(result.error));
        QCOMPARE(result.head->childCount(), 2);
        QCOMPARE(result.head->title(), expected.at(0));
        QCOMPARE(result.head->childAtIndex(0)->title(), expected.at(1));
        QCOMPARE(result.head->childAtIndex(0)->childCount(), 1);
        QCOMPARE(result.head->childAtIndex(1)->title(), expected.at(2));
        if (format != Format::Text && format != Format::Mermaid)
            QCOMPARE(result.head->childAtIndex(1)->detail(), expected.at(2));
    }
}

void TestDiagramExchangeTitles::shouldTakeTitlesOfAnyLengthInProportion_data()
{
    QTest::addColumn<Format>("format");
    QTest::addColumn<QByteArray>("piece");

    for (const char *piece : {"[", "[a](", "[a](b[a](<", "<a:", "`", "` `` ", "* a *b ", "*a* ",
                              "&", "\\", "**a _b ", "!["})
        QTest::newRow(qPrintable(QStringLiteral("md ") + QLatin1String(piece)))
            << Format::Markdown << QByteArray(piece);
    for (const char *piece : {"#1", "#", "<br", "#65;"})
        QTest::newRow(qPrintable(QStringLiteral("mmd ") + QLatin1String(piece)))
            << Format::Mermaid << QByteArray(piece);
    QTest::newRow("txt") << Format::Text << QByteArray("\"");
    QTest::newRow("md comments") << Format::Markdown << QByteArray("<!--a-->");
    QTest::newRow("md escaped comments") << Format::Markdown << QByteArray("\\<!-- ");
    QTest::newRow("mmd quotes") << Format::Mermaid << QByteArray("a[\"`\n");
    for (const char *piece : {"x  ", ":a", " :a:", "[1/2] ", "[[a][b]]"})
        QTest::newRow(qPrintable(QStringLiteral("org ") + QLatin1String(piece)))
            << Format::Org << QByteArray(piece);
    for (const char *piece : {"[[a b]]", "**a ", "x  ", "<<a>>"})
        QTest::newRow(qPrintable(QStringLiteral("puml ") + QLatin1String(piece)))
            << Format::PlantUml << QByteArray(piece);
    for (const char *piece : {"&lt;b>", "&amp;amp;", "&lt;a href='"})
        QTest::newRow(qPrintable(QStringLiteral("opml ") + QLatin1String(piece)))
            << Format::Opml << QByteArray(piece);
    for (const char *piece : {"Id,", "x,", "Parent,"})
        QTest::newRow(qPrintable(QStringLiteral("csv ") + QLatin1String(piece)))
            << Format::Csv << QByteArray(piece);
}

void TestDiagramExchangeTitles::shouldTakeTitlesOfAnyLengthInProportion()
{
    QFETCH(Format, format);
    QFETCH(QByteArray, piece);
    // What stands around the pieces for them to be one title, or the headings of a table.
    QByteArray before = "x\n";
    QByteArray after;
    if (format == Format::Mermaid)
        before = piece.contains('\n') ? "mindmap\n" : "ishikawa\nx\n";
    else if (format == Format::Org)
        before = "* x\n* ";
    else if (format == Format::PlantUml)
        before = "@startmindmap\n* x\n** ";
    else if (format == Format::Csv)
        before = "Title,";
    if (format == Format::Csv)
        after = "y\n" + QByteArray("a,b,c\n").repeated(2000);
    if (format == Format::Opml) {
        before = "<opml><body><outline text=\"";
        after = "\"/></body></opml>";
    }
    const std::clock_t begin = std::clock(); // a busy machine gives it less than all the time
    const Imported result =
        imported(before + piece.repeated(500000 / piece.size()) + after, format);
    QVERIFY2(result.head, qPrintable(result.error));
    if (DiagramExchange::canWrite(format))
        QVERIFY(!exported(*result.head, format).isEmpty());
    // Half a megabyte; with the square of that, it would take minutes.
    const double seconds = double(std::clock() - begin) / CLOCKS_PER_SEC;
    QVERIFY2(seconds < 20, qPrintable(QString::number(seconds)));
}

FISHBONE_GUILESS_TEST(TestDiagramExchangeTitles)
#include "tst_diagramexchange_titles.moc"
