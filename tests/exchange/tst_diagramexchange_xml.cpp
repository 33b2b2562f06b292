// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/exchange/exchangefixture.h>
#include <tests/program/testprogram.h>

#include <fishbone/exchange/ziparchive.h>

#include <QElapsedTimer>
#include <QXmlStreamReader>
#include <QtTest>

using namespace ExchangeFixture;

namespace {

/** @p text in so many elements that a stack would not do for them. */
QByteArray deepElements(const QByteArray &text)
{
    constexpr int count = 100000;
    return QByteArray("<x>").repeated(count) + text + QByteArray("</x>").repeated(count);
}

} // namespace

/** The XML formats as other programs write them, and as attackers do. */
class TestDiagramExchangeXml : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldReadTrees_data();
    void shouldReadTrees();
    void shouldReadNotesAsPlainText_data();
    void shouldReadNotesAsPlainText();
    void shouldReadTheValuesOfNodes();
    void shouldLeaveOutValuesOfAnotherMeaning();
    void shouldTakeAnEmptyValueForNone();
    void shouldReadOtherEncodings();
    void shouldRefuseOtherDocuments_data();
    void shouldRefuseOtherDocuments();
    void shouldNotExpandEntities_data();
    void shouldNotExpandEntities();
    void shouldPassOverDeepForeignElements_data();
    void shouldPassOverDeepForeignElements();
    void shouldReadTextsOfDeepElements_data();
    void shouldReadTextsOfDeepElements();
    void shouldWriteWellFormedXml_data();
    void shouldWriteWellFormedXml();
    void shouldReplaceHalvesOfCharacters_data();
    void shouldReplaceHalvesOfCharacters();
    void shouldWriteWhatOutlinersKnow();
    void shouldWriteWhatMindMapsKnow();
};

void TestDiagramExchangeXml::shouldReadTrees_data()
{
    QTest::addColumn<Format>("format");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("text");

    const auto row = [](const char *name, Format format, const char *content, const char *text) {
        QTest::newRow(name) << format << QByteArray(content) << QString::fromUtf8(text);
    };
    row("opml", Format::Opml,
        "<?xml version='1.0'?><!-- x --><opml "
        "version='1.0'><head><title>t</title><ownerName/></head>"
        "<body><outline text='a'><outline text='b'><outline text='c'/></outline><!-- y -->"
        "<outline text='d'/></outline></body></opml>",
        "a[b[c],d]");
    row("opml with a document type", Format::Opml,
        "<!DOCTYPE opml><opml><body><outline text='a'/></body></opml>", "a");
    row("opml with other elements", Format::Opml,
        "<opml><x><outline text='no'/></x><body><y><outline text='no'/></y><outline text='a'>"
        "<z/>text<outline text='b'/></outline></body></opml>",
        "a[b]");
    row("opml without text", Format::Opml,
        "<opml><body><outline><outline text='b'/></outline></body></opml>", "[b]");
    row("mm", Format::FreeMind,
        "<map version='0.9.0'><!-- x --><attribute_registry/><node TEXT='a' ID='1' STYLE='fork'>"
        "<edge COLOR='#111111'/><node TEXT='b' POSITION='left'><font NAME='x'/><node TEXT='c'/>"
        "<icon BUILTIN='y'/></node><node TEXT='d'/></node></map>",
        "a[b[c],d]");
    row("mm with formatted titles", Format::FreeMind,
        "<map><node TEXT='a'><node><richcontent TYPE='NODE'><html><head><style>p{}</style></head>"
        "<body><p>\n b\n   c </p>\n<p>d</p></body></html></richcontent></node></node></map>",
        "a[b c\nd]");
    row("mm with two titles", Format::FreeMind,
        "<map><node TEXT='a'><richcontent TYPE='NODE'><html>b</html></richcontent>"
        "<richcontent TYPE='DETAILS'><html>c</html></richcontent></node></map>",
        "a");
    row("mm with notes behind the nodes", Format::FreeMind,
        "<map><node TEXT='a'><node TEXT='b'/><richcontent TYPE='NOTE'><html>n</html></richcontent>"
        "</node></map>",
        "a[b]");
}

void TestDiagramExchangeXml::shouldReadTrees()
{
    QFETCH(Format, format);
    QFETCH(QByteArray, content);
    QFETCH(QString, text);
    QCOMPARE(imported(content, format).text(), text);
}

void TestDiagramExchangeXml::shouldReadNotesAsPlainText_data()
{
    QTest::addColumn<QByteArray>("html");
    QTest::addColumn<QString>("detail");

    QTest::newRow("paragraphs") << QByteArray("<p>\n  one\n  line\n</p>\n<p> two </p>")
                                << QStringLiteral("one line\ntwo");
    QTest::newRow("inline") << QByteArray("<p>a <b>b</b><i>c</i> d</p>")
                            << QStringLiteral("a bc d");
    QTest::newRow("breaks") << QByteArray("<p>a<br/>b</p>") << QStringLiteral("a\nb");
    QTest::newRow("list") << QByteArray("<ul><li>a</li><li>b</li></ul>") << QStringLiteral("a\nb");
    QTest::newRow("preformatted") << QByteArray("<pre> a\n\n  b </pre>")
                                  << QStringLiteral(" a\n\n  b ");
    QTest::newRow("references") << QByteArray("<p>&lt;a&gt; &amp; &#228;</p>")
                                << QStringLiteral("<a> & ä");
    QTest::newRow("nothing") << QByteArray("<p/>") << QString();
}

void TestDiagramExchangeXml::shouldReadNotesAsPlainText()
{
    QFETCH(QByteArray, html);
    QFETCH(QString, detail);
    const Imported result =
        imported("<map><node TEXT='a'><richcontent TYPE='NOTE'><html><head>\n</head><body>" + html +
                     "</body></html></richcontent></node></map>",
                 Format::FreeMind);
    QCOMPARE(result.text(), QStringLiteral("a"));
    QCOMPARE(result.head->detail(), detail);
}

void TestDiagramExchangeXml::shouldReadTheValuesOfNodes()
{
    const Imported result = imported(
        "<map><node TEXT='a' LINK='http://x' CREATED='1500000000000' MODIFIED='2'><node TEXT='b'/>"
        "<attribute NAME='status' VALUE='2'/><attribute NAME='mgrname' VALUE='Li'/></node></map>",
        Format::FreeMind);
    QCOMPARE(result.text(), QStringLiteral("a[b]"));
    QCOMPARE(result.head->url(), QStringLiteral("http://x"));
    QCOMPARE(result.head->createDate(), Q_INT64_C(1500000000000));
    QCOMPARE(result.head->status(), 2);
    QCOMPARE(result.head->managerName(), QStringLiteral("Li"));
    QCOMPARE(result.head->childAtIndex(0)->status(), -1);
}

void TestDiagramExchangeXml::shouldLeaveOutValuesOfAnotherMeaning()
{
    const Imported outline = imported(
        "<opml><body><outline text='a' _status='maybe' _progress='1e3' _createdate='May'/></body>"
        "</opml>",
        Format::Opml);
    QCOMPARE(outline.head->status(), -1);
    QCOMPARE(outline.head->progress(), 0);
    QCOMPARE(outline.head->createDate(), Q_INT64_C(0));
    const Imported map =
        imported("<map><node TEXT='a' CREATED='x'><attribute NAME='status'"
                 " VALUE='99999999999'/><attribute NAME='url' VALUE='no'/></node></map>",
                 Format::FreeMind);
    QCOMPARE(map.head->status(), -1);
    QCOMPARE(map.head->createDate(), Q_INT64_C(0));
    QCOMPARE(map.head->url(), QString());
}

void TestDiagramExchangeXml::shouldTakeAnEmptyValueForNone()
{
    const Imported result =
        imported("<map><node TEXT='a'>"
                 "<attribute NAME='status' VALUE='2'/><attribute NAME='status' VALUE=''/>"
                 "<attribute NAME='progress' VALUE='40'/><attribute NAME='progress' VALUE=''/>"
                 "<attribute NAME='planenddate' VALUE='5'/><attribute NAME='planenddate' VALUE=''/>"
                 "</node></map>",
                 Format::FreeMind);
    QCOMPARE(result.text(), QStringLiteral("a"));
    QCOMPARE(result.head->status(), -1);
    QCOMPARE(result.head->progress(), 0);
    QCOMPARE(result.head->planEndDate(), Q_INT64_C(0));
}

void TestDiagramExchangeXml::shouldReadOtherEncodings()
{
    const Imported latin = imported("<?xml version='1.0' encoding='ISO-8859-1'?>"
                                    "<opml><body><outline text='M\xfcller'/></body></opml>",
                                    Format::Opml);
    QCOMPARE(latin.text(), QString::fromUtf8("Müller"));
    const QString map = QString::fromUtf8("\ufeff<map><node TEXT='头'/></map>");
    const QByteArray utf16(reinterpret_cast<const char *>(map.utf16()), map.size() * 2);
    QCOMPARE(imported(utf16, Format::FreeMind).text(), QString::fromUtf8("头"));
}

void TestDiagramExchangeXml::shouldRefuseOtherDocuments_data()
{
    QTest::addColumn<Format>("format");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("error");

    const auto row = [](const char *name, Format format, const char *content, const char *error) {
        QTest::newRow(name) << format << QByteArray(content) << QString::fromUtf8(error);
    };
    row("another root", Format::Opml, "\n<map/>",
        "line 2: the document begins with <map>, not with <opml>");
    row("another root of a map", Format::FreeMind, "<opml/>",
        "line 1: the document begins with <opml>, not with <map>");
    row("no XML", Format::Opml, "a", "line 1: ");
    row("cut off", Format::Opml, "<opml><body>\n<outline text='a'>\n",
        "line 3: </outline> is missing, the end of <outline> in line 2");
    row("cut off map", Format::FreeMind, "<map>\n<node TEXT='a'>",
        "line 2: </node> is missing, the end of <node> in line 2");
    row("cut off note", Format::FreeMind, "<map>\n<node TEXT='a'><richcontent TYPE='NOTE'><html>x",
        "line 2: </html> is missing, the end of <html> in line 2");
    row("wrong end", Format::FreeMind, "<map>\n<node TEXT='a'>\n</map>",
        "line 3: </node> is missing, the end of <node> in line 2");
    row("two roots", Format::FreeMind, "<map><node TEXT='a'/></map>\n<map/>", "line 2: ");
    row("unknown entity", Format::Opml, "<opml><body>\n<outline text='&x;'/></body></opml>",
        "line 2: ");
    row("no outline", Format::Opml, "<opml><body/></opml>", "it holds no diagram");
    row("no node", Format::FreeMind, "<map></map>", "it holds no diagram");
}

void TestDiagramExchangeXml::shouldRefuseOtherDocuments()
{
    QFETCH(Format, format);
    QFETCH(QByteArray, content);
    QFETCH(QString, error);
    const Imported result = imported(content, format);
    QVERIFY(!result.head);
    QVERIFY2(result.error.startsWith(error), qPrintable(result.error));
    QVERIFY(result.error.size() > error.size() || !error.endsWith(QLatin1Char(' ')));
}

void TestDiagramExchangeXml::shouldNotExpandEntities_data()
{
    QTest::addColumn<QByteArray>("declarations");

    QTest::newRow("one") << QByteArray("<!ENTITY e 'x'>");
    QByteArray laughs = "<!ENTITY e0 'lol'>";
    for (int i = 1; i < 10; ++i)
        laughs += "<!ENTITY e" + QByteArray::number(i) + " '" +
                  ("&e" + QByteArray::number(i - 1) + ';').repeated(10) + "'>";
    QTest::newRow("billion laughs") << laughs + "<!ENTITY e '&e9;'>";
    QTest::newRow("itself") << QByteArray("<!ENTITY e '&e;'>");
    QTest::newRow("a long one") << "<!ENTITY e '" + QByteArray(1000000, 'x') + "'>";
    QTest::newRow("a file") << QByteArray("<!ENTITY e SYSTEM 'file:///etc/hostname'>");
    QTest::newRow("parameter") << QByteArray("<!ENTITY % p '<!ENTITY e \"x\">'> %p;");
    QByteArray parameters = "<!ENTITY % p0 '<!ENTITY e \"x\">'>";
    for (int i = 1; i < 10; ++i)
        parameters += "<!ENTITY % p" + QByteArray::number(i) + " '" +
                      ("&#37;p" + QByteArray::number(i - 1) + ';').repeated(10) + "'>";
    QTest::newRow("many parameters") << parameters + "%p9;";
}

void TestDiagramExchangeXml::shouldNotExpandEntities()
{
    QFETCH(QByteArray, declarations);
    for (const Format format : {Format::Opml, Format::FreeMind}) {
        const bool isOutline = format == Format::Opml;
        const QByteArray root = isOutline ? "opml" : "map";
        const QByteArray body = isOutline ? "<opml><body><outline text='&e;'/></body></opml>"
                                          : "<map><node TEXT='&e;'/></map>";
        QElapsedTimer timer;
        timer.start();
        const Imported result =
            imported("<!DOCTYPE " + root + " [" + declarations + "]>" + body, format);
        QVERIFY(!result.head);
        QVERIFY2(result.error.startsWith(QLatin1String("line ")), qPrintable(result.error));
        QVERIFY(timer.elapsed() < 5000);
    }
    QCOMPARE(imported("<!DOCTYPE map [<!ENTITY e 'x'>]>\n<map/>", Format::FreeMind).error,
             QStringLiteral("line 1: declarations of entities are not accepted"));
}

void TestDiagramExchangeXml::shouldPassOverDeepForeignElements_data()
{
    QTest::addColumn<Format>("format");
    QTest::addColumn<QByteArray>("content");
    const QByteArray deep = deepElements(QByteArray());
    QTest::newRow("opml") << Format::Opml
                          << "<opml><head>" + deep + "</head><body><outline text='a'>" + deep +
                                 "</outline></body></opml>";
    QTest::newRow("mm") << Format::FreeMind << "<map><node TEXT='a'>" + deep + "</node></map>";
    QTest::newRow("note") << Format::FreeMind
                          << "<map><node TEXT='a'><richcontent TYPE='NOTE'>" + deep +
                                 "</richcontent></node></map>";
}

void TestDiagramExchangeXml::shouldPassOverDeepForeignElements()
{
    QFETCH(Format, format);
    QFETCH(QByteArray, content);
    QCOMPARE(imported(content, format).text(), QStringLiteral("a"));
}

void TestDiagramExchangeXml::shouldReadTextsOfDeepElements_data()
{
    QTest::addColumn<Format>("format");
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray deep = deepElements("a");
    const QByteArray map =
        "<xmap-content><sheet><topic id='t'><title>%1</title></topic></sheet></xmap-content>";
    const QString content = QStringLiteral("content.xml");
    QTest::newRow("xmind") << Format::Xmind
                           << ZipWriter::archive({{content, QByteArray(map).replace("%1", deep)}});
    QTest::newRow("xmind comments")
        << Format::Xmind
        << ZipWriter::archive(
               {{content, QByteArray(map).replace("%1", "a")},
                {QStringLiteral("comments.xml"),
                 "<comments><comment object-id='t'>" + deep + "</comment></comments>"}});
    QTest::newRow("xlsx")
        << Format::Xlsx
        << ZipWriter::archive(
               {{QStringLiteral("xl/workbook.xml"),
                 "<workbook xmlns:r='r'><sheets><sheet name='a' r:id='1'/></sheets></workbook>"},
                {QStringLiteral("xl/_rels/workbook.xml.rels"),
                 "<Relationships><Relationship Id='1' Target='a.xml'/></Relationships>"},
                {QStringLiteral("xl/a.xml"),
                 "<worksheet><sheetData><row r='1'><c r='A1' t='inlineStr'><is><t>Title</t></is>"
                 "</c></row><row r='2'><c r='A2' t='inlineStr'><is><t>" +
                     deep + "</t></is></c></row></sheetData></worksheet>"}});
}

/** However deep elements are in one whose text counts, the stack is not. */
void TestDiagramExchangeXml::shouldReadTextsOfDeepElements()
{
    QFETCH(Format, format);
    QFETCH(QByteArray, bytes);
    QCOMPARE(imported(bytes, format).text(), QStringLiteral("a"));
}

void TestDiagramExchangeXml::shouldWriteWellFormedXml_data()
{
    QTest::addColumn<Format>("format");
    QTest::newRow("opml") << Format::Opml;
    QTest::newRow("mm") << Format::FreeMind;
}

void TestDiagramExchangeXml::shouldWriteWellFormedXml()
{
    QFETCH(Format, format);
    auto head = treeFrom("a[b[c],d]");
    QString all;
    for (char16_t c = 1; c < 0x300; ++c)
        all.append(QChar(c));
    all.append(QChar(0xfffe)).append(QChar(0xffff)).append(QChar(0xd800)).append(QLatin1Char('x'));
    head->setTitle(all);
    head->setDetail(all);
    head->setShowid(all);
    head->setUrl(all);
    QXmlStreamReader xml(exported(*head, format));
    int elements = 0;
    while (!xml.atEnd())
        elements += xml.readNext() == QXmlStreamReader::StartElement ? 1 : 0;
    QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
    QVERIFY(elements >= 5);
}

void TestDiagramExchangeXml::shouldReplaceHalvesOfCharacters_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("expected");

    using Units = std::initializer_list<char16_t>;
    const auto row = [](const char *name, Units title, Units expected) {
        const auto text = [](Units units) {
            return QString::fromUtf16(units.begin(), int(units.size()));
        };
        QTest::newRow(name) << text(title) << text(expected);
    };
    row("whole", {'a', 0xd83d, 0xde00}, {'a', 0xd83d, 0xde00});
    row("first half at the end", {'a', 0xd83d}, {'a', 0xfffd});
    row("first half before a letter", {0xd83d, 'a'}, {0xfffd, 'a'});
    row("second half at the beginning", {0xde00, 'a'}, {0xfffd, 'a'});
    row("second half behind a letter", {'a', 0xde00}, {'a', 0xfffd});
}

void TestDiagramExchangeXml::shouldReplaceHalvesOfCharacters()
{
    QFETCH(QString, title);
    QFETCH(QString, expected);
    TreeItem head;
    head.setTitle(title);

    for (const Format format : {Format::Opml, Format::FreeMind})
        QCOMPARE(carriedThrough(head, format).text(), expected);
}

void TestDiagramExchangeXml::shouldWriteWhatOutlinersKnow()
{
    auto head = treeFrom("a[b]");
    head->setUuid(QStringLiteral("u"));
    head->setUrl(QStringLiteral("http://x"));
    head->setDetail(QStringLiteral("1\n2"));
    TreeItem *const bone = head->childAtIndex(0);
    bone->setUuid(QStringLiteral("v"));
    bone->setStatus(2);
    QCOMPARE(exported(*head, Format::Opml),
             QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                        "<opml version=\"2.0\">\n"
                        " <head>\n"
                        "  <title>a</title>\n"
                        " </head>\n"
                        " <body>\n"
                        "  <outline text=\"a\" _uuid=\"u\" url=\"http://x\" _note=\"1&#10;2\">\n"
                        "   <outline text=\"b\" _uuid=\"v\" _status=\"2\"/>\n"
                        "  </outline>\n"
                        " </body>\n"
                        "</opml>\n"));
}

void TestDiagramExchangeXml::shouldWriteWhatMindMapsKnow()
{
    auto head = treeFrom("a[b]");
    head->setUuid(QString());
    head->setUrl(QStringLiteral("http://x"));
    head->setCreateDate(5);
    TreeItem *const bone = head->childAtIndex(0);
    bone->setUuid(QStringLiteral("v"));
    bone->setDetail(QStringLiteral("1\n 2"));
    QCOMPARE(exported(*head, Format::FreeMind),
             QByteArray("<map version=\"1.0.1\">\n"
                        " <node TEXT=\"a\" CREATED=\"5\" LINK=\"http://x\">\n"
                        "  <node TEXT=\"b\" ID=\"v\">\n"
                        "   <richcontent TYPE=\"NOTE\">\n"
                        "    <html>\n"
                        "     <body>\n"
                        "      <pre>1\n 2</pre>\n"
                        "     </body>\n"
                        "    </html>\n"
                        "   </richcontent>\n"
                        "  </node>\n"
                        " </node>\n"
                        "</map>\n"));
}

FISHBONE_GUILESS_TEST(TestDiagramExchangeXml)
#include "tst_diagramexchange_xml.moc"
