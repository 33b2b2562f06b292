// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/exchange/exchangefixture.h>
#include <tests/program/testprogram.h>

#include <fishbone/exchange/pastednotes.h>

#include <QRandomGenerator>
#include <QRegularExpression>
#include <QtTest>

using namespace ExchangeFixture;

namespace {

using Kind = PastedNotes::Kind;

/** The trees that a text makes, "a[b] c"; the error when it makes none. */
QString treesOf(const QString &text)
{
    QString error;
    const auto branches = PastedNotes::read(text, PastedNotes::kindOf(text), &error);
    if (!branches)
        return error;
    QStringList trees;
    for (const TreeItem *branch : branches->childItems())
        trees.append(TestSupport::treeToText(*branch));
    return trees.join(QLatin1Char(' '));
}

/** All words of all fields of a tree. */
QString shownTextOf(const TreeItem &subject)
{
    QString text = subject.title() + QLatin1Char(' ') + subject.detail() + QLatin1Char(' ') +
                   subject.url() + QLatin1Char(' ') + subject.showid() + QLatin1Char(' ') +
                   subject.managerName();
    for (const TreeItem *child : subject.childItems())
        text += QLatin1Char(' ') + shownTextOf(*child);
    return text;
}

} // namespace

/** What people copy out of other programs. */
class TestPastedNotes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldMakeTreesOfNotes_data();
    void shouldMakeTreesOfNotes();
    void shouldTellWhatATextIs_data();
    void shouldTellWhatATextIs();
    void shouldDoubtWhatHasNoHeadings();
    void shouldKeepTheFurtherCellsOfRows();
    void shouldTakeBoxesAndLinks();
    void shouldKeepEveryWord();
    void shouldSayWhyNothingIsRead();
};

void TestPastedNotes::shouldMakeTreesOfNotes_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("trees");

    const auto row = [](const char *name, const char *text, const char *trees) {
        QTest::newRow(name) << QString::fromUtf8(text) << QString::fromUtf8(trees);
    };
    row("one line", "Wear", "Wear");
    row("indented", "Wear\n\tBelt\n\t\tOld\n\tGear\n", "Wear[Belt[Old],Gear]");
    row("lines that head dashes", "People\n- Ill\n- New\nMachines\n- Old\n",
        "People[Ill,New] Machines[Old]");
    row("such lines with blank ones", "People:\n\n- Ill\n\nMachines:\n\n- Old\n",
        "People:[Ill] Machines:[Old]");
    row("dashes below dashes", "People\n- Ill\n  - Flu\n- New\nRest", "People[Ill[Flu],New] Rest");
    row("bullets", "People\n• Ill\n• New\n  ◦ Untaught", "People[Ill,New[Untaught]]");
    row("numbers", "1. Wear\n   a) Belt\n   b) Gear\n2. Heat", "Wear[Belt,Gear] Heat");
    row("chapters", "1 Wear\n1.1 Belt\n1.2 Gear", "1 Wear[Belt,Gear]");
    row("Chinese numbers", "一、人员\n二、机器\n1、皮带", "人员 机器 皮带");
    row("headings", "# People\n- Ill\n## Rest\n- New", "People[Ill,Rest[New]]");
    row("old line ends", "People\r- Ill\r- New\r", "People[Ill,New]");
    row("line ends of another system", "People\r\n- Ill\r\n", "People[Ill]");
    row("underlines", "People\n======\n- Ill\n---\nRest", "People[Ill] Rest");
    row("a dash within", "Wear - and tear\n\t-5 degrees", "Wear - and tear[-5 degrees]");
    row("rows with headings", "Key\tSummary\tParent\nA-1\tLate\t\nA-2\tStock\tA-1\n",
        "Late[Stock]");
    row("rows without headings", "Late\t3\n\tStock\t4\nHeat\t5\n", "Late[Stock] Heat");
    row("topics of a map", "Late\r\n\tCarrier\r\n\t\tNo vehicle\r\n\tStock\r\n",
        "Late[Carrier[No vehicle],Stock]");
    row("opml",
        "<?xml version=\"1.0\"?>\n<opml version=\"2.0\"><body><outline text=\"a\">"
        "<outline text=\"b\"/></outline></body></opml>",
        "a[b]");
    row("mind map", "<map><node TEXT='a'><node TEXT='b'/></node></map>", "a[b]");
    row("mermaid", "ishikawa\n a\n  b", "a[b]");
    row("mermaid mind map", "mindmap\n a\n  b", "a[b]");
}

void TestPastedNotes::shouldMakeTreesOfNotes()
{
    QFETCH(QString, text);
    QFETCH(QString, trees);
    QCOMPARE(treesOf(text), trees);
}

void TestPastedNotes::shouldTellWhatATextIs_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("kind");
    QTest::newRow("lines") << QStringLiteral("a\nb") << int(Kind::Notes);
    QTest::newRow("list") << QStringLiteral("- a\n- b") << int(Kind::Markdown);
    QTest::newRow("rows") << QStringLiteral("a\tb\nc\td") << int(Kind::Table);
    QTest::newRow("indented lines") << QStringLiteral("a\n\tb\n\tc") << int(Kind::Notes);
    QTest::newRow("one row") << QStringLiteral("a\tb") << int(Kind::Notes);
}

void TestPastedNotes::shouldTellWhatATextIs()
{
    QFETCH(QString, text);
    QFETCH(int, kind);
    QCOMPARE(int(PastedNotes::kindOf(text)), kind);
}

void TestPastedNotes::shouldDoubtWhatHasNoHeadings()
{
    QVERIFY(PastedNotes::isDoubtful(QStringLiteral("a\tb\nc\td")));
    QVERIFY(!PastedNotes::isDoubtful(QStringLiteral("Title\tOwner\nc\td")));
    QVERIFY(!PastedNotes::isDoubtful(QStringLiteral("a\n- b\nc")));
}

void TestPastedNotes::shouldKeepTheFurtherCellsOfRows()
{
    const auto branches =
        PastedNotes::read(QStringLiteral("Late\t3\tdays\nHeat\t\t5\n"), Kind::Table);
    QVERIFY(branches);
    QCOMPARE(branches->childAtIndex(0)->detail(), QStringLiteral("3\ndays"));
    QCOMPARE(branches->childAtIndex(1)->detail(), QStringLiteral("5"));
}

void TestPastedNotes::shouldTakeBoxesAndLinks()
{
    const auto branches = PastedNotes::read(
        QStringLiteral("- [x] see [this](http://x) and [that](http://y)\n- [ ] b"), Kind::Markdown);
    QVERIFY(branches);
    const TreeItem *const first = branches->childAtIndex(0);
    QCOMPARE(first->title(), QStringLiteral("see this and that"));
    QCOMPARE(first->status(), 2);
    QCOMPARE(first->url(), QStringLiteral("http://x"));
    QCOMPARE(first->detail(), QStringLiteral("Link: http://y"));
    QCOMPARE(branches->childAtIndex(1)->status(), 6);
}

/** Random notes of words with all marks: each word is somewhere afterwards. */
void TestPastedNotes::shouldKeepEveryWord()
{
    const QStringList marks{QStringLiteral("- "),   QStringLiteral("* "),     QStringLiteral("1. "),
                            QStringLiteral("# "),   QStringLiteral("## "),    QStringLiteral("> "),
                            QStringLiteral("\t"),   QStringLiteral("  "),     QStringLiteral("• "),
                            QStringLiteral("[ ] "), QStringLiteral("- [x] "), QStringLiteral("\"")};
    const QStringList ends{
        QStringLiteral("\n"),  QStringLiteral("\r\n"),    QStringLiteral("\n\n"),
        QStringLiteral("\r"),  QStringLiteral("\n---\n"), QStringLiteral("\t"),
        QStringLiteral("** "), QStringLiteral("`"),       QStringLiteral(" [w](")};
    QRandomGenerator random(5);
    const auto pick = [&random](const QStringList &texts) {
        return texts.at(random.bounded(int(texts.size())));
    };
    for (int round = 0; round < 3000; ++round) {
        QString text;
        QStringList words;
        for (int i = 1 + random.bounded(12); i > 0; --i) {
            words.append(QStringLiteral("word%1").arg(random.bounded(1000)));
            text +=
                (random.bounded(3) > 0 ? pick(marks) : QString()) + words.constLast() + pick(ends);
        }
        const auto branches = PastedNotes::read(text, PastedNotes::kindOf(text));
        QVERIFY2(branches, qPrintable(text));
        const QString all = shownTextOf(*branches);
        for (const QString &word : qAsConst(words))
            QVERIFY2(all.contains(word), qPrintable(word + QLatin1String(" of\n") + text +
                                                    QLatin1String("\nis not in\n") + all));
    }
}

void TestPastedNotes::shouldSayWhyNothingIsRead()
{
    QCOMPARE(treesOf(QStringLiteral("\n \n")), QStringLiteral("it holds no diagram"));
    QVERIFY(treesOf(QStringLiteral("<opml><body>")).startsWith(QLatin1String("line 1: ")));
}

FISHBONE_GUILESS_TEST(TestPastedNotes)

#include "tst_pastednotes.moc"
