// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/exchange/exchangefixture.h>
#include <tests/program/testprogram.h>

#include <QtTest>

using namespace ExchangeFixture;

/** The text formats as other programs and people write them: Markdown, indented text, Mermaid. */
class TestDiagramExchangeOutlines : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldReadTrees_data();
    void shouldReadTrees();
    void shouldReadDetailsOfMarkdown_data();
    void shouldReadDetailsOfMarkdown();
    void shouldReadTitlesOfMarkdown_data();
    void shouldReadTitlesOfMarkdown();
    void shouldWriteMarkdownThatReadsWell();
    void shouldWriteAnIndentedLineForEachSubject();
    void shouldWriteMermaidAsItsProgramReadsIt();
    void shouldRefuseMermaidWithoutItsHeader_data();
    void shouldRefuseMermaidWithoutItsHeader();
};

void TestDiagramExchangeOutlines::shouldReadTrees_data()
{
    QTest::addColumn<Format>("format");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("text");

    const auto row = [](const char *name, Format format, const char *content, const char *text) {
        QTest::newRow(name) << format << QByteArray(content) << QString::fromUtf8(text);
    };
    row("md heading and list", Format::Markdown, "# a\n\n- b\n  - c\n- d\n", "a[b[c],d]");
    row("md headings", Format::Markdown, "# a\n## b\n### c\n## d\n", "a[b[c],d]");
    row("md headings with lists", Format::Markdown, "# a\n## b\n- c\n  - d\n## e\n- f",
        "a[b[c[d]],e[f]]");
    row("md heading that skips a level", Format::Markdown, "# a\n### b\n## c\n", "a[b,c]");
    row("md closed headings", Format::Markdown, "# a #\n## b ####\n##   c  \n", "a[b,c]");
    row("md numbers", Format::Markdown, "# a\n1. b\n   1) c\n2. d", "a[b[c],d]");
    row("md all marks", Format::Markdown, "# a\n* b\n+ c\n- d\n", "a[b,c,d]");
    row("md one list", Format::Markdown, "- a\n    - b\n        - c\n", "a[b[c]]");
    row("md tabs", Format::Markdown, "- a\n\t- b\n\t\t- c\n\t- d", "a[b[c],d]");
    row("md uneven indentation", Format::Markdown, "- a\n   - b\n     - c\n  - d", "a[b[c],d]");
    row("md paragraph first", Format::Markdown, "Why?\n\n- b\n- c", "Why?[b,c]");
    row("md rules", Format::Markdown, "---\n# a\n***\n- b\n- - -\n- c\n", "a[b,c]");
    row("md code that ends in blanks", Format::Markdown, "# a\n- b\n  ```\n  x\n ", "a[b]");
    row("md code", Format::Markdown, "# a\n- b\n```sh\n# no\n- no\n```\n- c", "a[b,c]");
    row("md tildes", Format::Markdown, "# a\n~~~\n# no\n```\n~~~\n- c", "a[c]");
    row("md no heading", Format::Markdown, "# a\n- #b\n- #### \n", "a[#b,]");
    row("md wrapped items", Format::Markdown,
        "Why\nlate?\n\n- b\n  b\nb\n  - c\n    [c\n    c](x)\n- d", "Why late?[b b b[c c c],d]");
    row("md CRLF", Format::Markdown, "# a\r\n\r\n- b\r\n- c\r\n", "a[b,c]");
    row("md CR", Format::Markdown, "# a\r- b\r- c\r", "a[b,c]");
    row("md empty item", Format::Markdown, "# a\n-\n  - c\n", "a[[c]]");

    row("txt tabs", Format::Text, "a\n\tb\n\t\tc\n\td", "a[b[c],d]");
    row("txt blanks", Format::Text, "a\n  b\n    c\n  d", "a[b[c],d]");
    row("txt one blank", Format::Text, "a\n b\n  c\n d", "a[b[c],d]");
    row("txt mixed", Format::Text, "a\n    b\n\t  c\n\td", "a[b[c],d]");
    row("txt indented head", Format::Text, "    a\n      b\n", "a[b]");
    row("txt empty lines", Format::Text, "\n\na\n\n  b\n   \n  c\n\n", "a[b,c]");
    row("txt jump back between", Format::Text, "a\n    b\n        c\n      d\n  e", "a[b[c,d],e]");
    row("txt marks are text", Format::Text, "# a\n\t- b\n\t* c", "# a[b,c]");
    row("txt backslashes are text", Format::Text, "C:\\new\n\t\\t", "C:\\new[\\t]");
    row("txt usual quotes are text", Format::Text, "\"a\"\n\t\"b\" c\n\t\"", "\"a\"[\"b\" c,\"]");
    row("txt needed quotes are not", Format::Text, "\"\"\n\t\" b\"\n\t\"c\\u0007\"", "[ b,c\a]");
    row("txt broken quotes are text", Format::Text, "\"a\\\"\n\t\"b\\q\"", "\"a\\\"[\"b\\q\"]");
    row("txt quotes around two are text", Format::Text, "\" a\", \" b\"", "\" a\", \" b\"");

    row("mmd", Format::Mermaid, "ishikawa\n  a\n    b\n      c\n    d\n", "a[b[c],d]");
    row("mmd beta", Format::Mermaid, "ishikawa-beta\n    a\n    b\n        c\n    d", "a[b[c],d]");
    row("mmd causes left of the head", Format::Mermaid, "ishikawa\n      a\n  b\n    c\nd",
        "a[b[c],d]");
    row("mmd comments", Format::Mermaid, "%% x\n\nishikawa\n%%{init: {}}%%\n a\n  %% y\n  b",
        "a[b]");
    row("mmd settings", Format::Mermaid, "---\ntitle: x\n---\nishikawa\na\n b", "a[b]");
    row("mmd references", Format::Mermaid, "ishikawa\na#35;#quot;#nosuch;\n  b<br>c<BR />d",
        "a#\"#nosuch;[b\nc\nd]");
    row("mmd no colour", Format::Mermaid, "ishikawa\nissue #12\n  #", "issue #12[#]");
}

void TestDiagramExchangeOutlines::shouldReadTrees()
{
    QFETCH(Format, format);
    QFETCH(QByteArray, content);
    QFETCH(QString, text);
    QCOMPARE(imported(content, format).text(), text);
}

void TestDiagramExchangeOutlines::shouldReadDetailsOfMarkdown_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("ofHead");
    QTest::addColumn<QString>("ofBone");

    const auto row = [](const char *name, const char *content, const char *head, const char *bone) {
        QTest::newRow(name) << QByteArray(content) << QString::fromUtf8(head)
                            << QString::fromUtf8(bone);
    };
    row("quotation", "# a\n> x\n> y\n- b\n  > z", "x\ny", "z");
    row("quotation without blanks", "# a\n>x\n- b\n  >", "x", "");
    row("paragraph", "# a\nx *y*\nz\n\n- b\n\n  v\n", "x y\nz", "v");
    row("seven marks", "# a\n####### x\n- b", "####### x", "");
    row("two paragraphs", "# a\n\nx\n\n\ny\n\n- b", "x\n\ny", "");
    row("code", "# a\n- b\n```\n# *x*\n```\n", "", "# *x*");
    row("links stay", "# a\nsee [x](http://y) &amp; z\n- b", "see [x](http://y) & z", "");
    row("last line", "# a\n- b\n\n  x", "", "x");
    row("behind a quotation", "# a\n- b\n  > x\n  y", "", "x\ny");
}

void TestDiagramExchangeOutlines::shouldReadDetailsOfMarkdown()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, ofHead);
    QFETCH(QString, ofBone);
    const Imported result = imported(content, Format::Markdown);
    QCOMPARE(result.text(), QStringLiteral("a[b]"));
    QCOMPARE(result.head->detail(), ofHead);
    QCOMPARE(result.head->childAtIndex(0)->detail(), ofBone);
}

void TestDiagramExchangeOutlines::shouldReadTitlesOfMarkdown_data()
{
    QTest::addColumn<QByteArray>("markdown");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("url");

    const auto row = [](const char *markdown, const char *title, const char *url) {
        QTest::newRow(markdown) << QByteArray(markdown) << QString::fromUtf8(title)
                                << QString::fromUtf8(url);
    };
    row("plain", "plain", "");
    row("**strong** and *weak*", "strong and weak", "");
    row("__strong__ and _weak_", "strong and weak", "");
    row("***both***", "both", "");
    row("snake_case_name", "snake_case_name", "");
    row("2 * 3 * 4", "2 * 3 * 4", "");
    row("a* b*", "a* b*", "");
    row("*open", "*open", "");
    row("`a*b*` ``c`d``", "a*b* c`d", "");
    row("`open", "`open", "");
    row("a &amp; b &#65;&#x42; &nosuch; &", "a & b AB &nosuch; &", "");
    row("\\*a\\* \\q \\\\", "*a* \\q \\", "");
    row("a<br>b<br/>c", "a\nb\nc", "");
    row("<b>a</b>", "a", "");
    row("\\<b>a\\</b>", "<b>a</b>", "");
    row("<unknown>a</unknown>", "<unknown>a</unknown>", "");
    row("[a](http://x)", "a", "http://x");
    row("[a](<http://x y>)", "a", "http://x y");
    row("[a](http://x \"title\")", "a", "http://x");
    row("see [**a**](http://x_y_z) and [b](http://z)", "see a and b", "http://x_y_z");
    row("[a](http://x?a&amp;b\\))", "a", "http://x?a&b)");
    row("<http://x>", "http://x", "http://x");
    row("[a] (b)", "[a] (b)", "");
    row("[a](b", "[a](b", "");
    row("[a", "[a", "");
    row("[x] done", "done", "");
    row("a*b*c", "abc", "");
    row("*a b_", "*a b_", "");
    row("*foo**bar", "*foo**bar", "");
    row("`x \\``", "`x ``", "");
    row("\\ä \\中", "\\ä \\中", "");
    row("&#x1F600;", "\xf0\x9f\x98\x80", "");
    row("&#x10FFFF;", "\xf4\x8f\xbf\xbf", "");
    row("&#x110000;", "&#x110000;", "");
    row("&#xD800;", "&#xD800;", "");
    const QByteArray marks(40, '`');
    row(marks + 'x' + marks, marks + 'x' + marks, ""); // code that long is nobody's
}

void TestDiagramExchangeOutlines::shouldReadTitlesOfMarkdown()
{
    QFETCH(QByteArray, markdown);
    QFETCH(QString, title);
    QFETCH(QString, url);
    const Imported result = imported("# a\n- " + markdown + "\n", Format::Markdown);
    QCOMPARE(result.head->childCount(), 1);
    QCOMPARE(result.head->childAtIndex(0)->title(), title);
    QCOMPARE(result.head->childAtIndex(0)->url(), url);
}

void TestDiagramExchangeOutlines::shouldWriteMarkdownThatReadsWell()
{
    auto head = treeFrom("Late deliveries[R&D,C# (new)[1. one],a_b - c]");
    head->setDetail(QStringLiteral("since May\n\n- daily"));
    head->childAtIndex(0)->setUrl(QStringLiteral("https://example.org/a?b=1&c=2"));
    head->childAtIndex(1)->setDetail(QStringLiteral("x"));
    QCOMPARE(exported(*head, Format::Markdown),
             QByteArray("# Late deliveries\n"
                        "\n"
                        "> since May\n"
                        ">\n"
                        "> \\- daily\n"
                        "\n"
                        "- [R&D](https://example.org/a?b=1&c=2)\n"
                        "- C# (new)\n"
                        "  > x\n"
                        "  - 1\\. one\n"
                        "- a_b - c\n"));
    // Nothing of what has no title may be the underline of a heading for any reader.
    head = treeFrom("a[b[c]]");
    head->setTitle(QString());
    head->childAtIndex(0)->setTitle(QString());
    QCOMPARE(exported(*head, Format::Markdown), QByteArray("# <!-- -->\n\n- <!-- -->\n  - c\n"));
}

void TestDiagramExchangeOutlines::shouldWriteAnIndentedLineForEachSubject()
{
    auto head = treeFrom("a[b[c],d]");
    head->childAtIndex(1)->setTitle(QStringLiteral("two\n\"lines\""));
    QCOMPARE(exported(*head, Format::Text),
             QByteArray("a\n\tb\n\t\tc\n\t\"two\\n\\\"lines\\\"\"\n"));
}

void TestDiagramExchangeOutlines::shouldWriteMermaidAsItsProgramReadsIt()
{
    auto head = treeFrom("a[b[c],issue #12]");
    head->childAtIndex(0)->setTitle(QStringLiteral("two\nlines"));
    head->childAtIndex(0)->childAtIndex(0)->setTitle(QStringLiteral("#35;"));
    QCOMPARE(exported(*head, Format::Mermaid),
             QByteArray("ishikawa\n  a\n    two<br/>lines\n      #35;35;\n    issue #12\n"));
    // What would be taken for the beginning of a diagram, for a tag or for nothing at all.
    head = treeFrom("a[b,c,d]");
    head->setTitle(QStringLiteral("Ishikawa was right"));
    head->childAtIndex(0)->setTitle(QStringLiteral("Use <stdio.h> here"));
    head->childAtIndex(1)->setTitle(QString());
    head->childAtIndex(2)->setTitle(QStringLiteral("1 < 2"));
    QCOMPARE(exported(*head, Format::Mermaid),
             QByteArray("ishikawa\n  #73;shikawa was right\n    Use #lt;stdio.h#gt; here\n"
                        "    #8203;\n    1 < 2\n"));
}

void TestDiagramExchangeOutlines::shouldRefuseMermaidWithoutItsHeader_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("line");

    QTest::newRow("another diagram") << QByteArray("flowchart TD\n  a --> b\n") << 1;
    QTest::newRow("nearly") << QByteArray("\n%% x\nishikawa a\n") << 3;
    QTest::newRow("only settings") << QByteArray("---\nishikawa\n") << 2;
    QTest::newRow("only comments") << QByteArray("%% a\n%% b\n") << 2;
}

void TestDiagramExchangeOutlines::shouldRefuseMermaidWithoutItsHeader()
{
    QFETCH(QByteArray, content);
    QFETCH(int, line);
    QCOMPARE(imported(content, Format::Mermaid).error,
             QStringLiteral("line %1: the diagram does not begin with \"ishikawa\" or \"mindmap\"")
                 .arg(line));
}

FISHBONE_GUILESS_TEST(TestDiagramExchangeOutlines)
#include "tst_diagramexchange_outlines.moc"
