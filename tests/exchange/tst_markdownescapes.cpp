// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/program/testprogram.h>

#include <fishbone/exchange/markdownescapes.h>
#include <fishbone/exchange/markdowninline.h>

#include <QtTest>

/** Texts as Markdown that shows exactly them. */
class TestMarkdownEscapes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowATextAsItIs_data();
    void shouldShowATextAsItIs();
    void shouldKeepALink_data();
    void shouldKeepALink();
};

void TestMarkdownEscapes::shouldShowATextAsItIs_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("markdown");
    QTest::newRow("plain") << "No vehicle"
                           << "No vehicle";
    QTest::newRow("emphasis") << "*hot* axle"
                              << "\\*hot\\* axle";
    QTest::newRow("word with underscores") << "a_b_c"
                                           << "a_b_c";
    QTest::newRow("item") << "- one"
                          << "\\- one";
    QTest::newRow("number") << "1. one"
                            << "1\\. one";
    QTest::newRow("heading that is closed") << "C#"
                                            << "C\\#";
    QTest::newRow("reference") << "a &amp; b & c"
                               << "a \\&amp; b & c";
    QTest::newRow("lines") << "a\nb"
                           << "a<br>b";
    QTest::newRow("blank at the edge") << " a"
                                       << "&#32;a";
}

void TestMarkdownEscapes::shouldShowATextAsItIs()
{
    QFETCH(QString, text);
    QFETCH(QString, markdown);
    QCOMPARE(MarkdownEscapes::escaped(text), markdown);
    QCOMPARE(MarkdownInline::read(markdown, MarkdownInline::Kind::Title).text, text);
}

void TestMarkdownEscapes::shouldKeepALink_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<QString>("markdown");
    QTest::newRow("plain") << "https://example.org/a"
                           << "[A](https://example.org/a)";
    QTest::newRow("blank") << "https://example.org/a b"
                           << "[A](<https://example.org/a b>)";
    QTest::newRow("brackets") << "https://example.org/(a)"
                              << "[A](<https://example.org/(a)>)";
    QTest::newRow("reference") << "https://example.org/?a&lt;"
                               << "[A](https://example.org/?a&#38;lt;)";
}

void TestMarkdownEscapes::shouldKeepALink()
{
    QFETCH(QString, url);
    QFETCH(QString, markdown);
    QCOMPARE(MarkdownEscapes::link(QStringLiteral("A"), url), markdown);
    const MarkdownInline::Content content =
        MarkdownInline::read(markdown, MarkdownInline::Kind::Title);
    QCOMPARE(content.text, QStringLiteral("A"));
    QCOMPARE(content.links, QStringList(url));
}

FISHBONE_GUILESS_TEST(TestMarkdownEscapes)

#include "tst_markdownescapes.moc"
