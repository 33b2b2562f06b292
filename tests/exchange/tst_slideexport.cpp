// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/exchange/exchangefixture.h>
#include <tests/exchange/slidefixture.h>
#include <tests/program/testprogram.h>
#include <tests/support/editorfixture.h>

#include <fishbone/exchange/importedtree.h>
#include <fishbone/exchange/slideexport.h>
#include <fishbone/exchange/ziparchive.h>

#include <QGraphicsScene>
#include <QGraphicsSimpleTextItem>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <QtTest>

using namespace ExchangeFixture;
using SlideFixture::partOf;
using SlideFixture::slidePart;

namespace {

/** How many elements of that name there are. */
int countOf(const QByteArray &xml, const char *element)
{
    QXmlStreamReader reader(xml);
    int count = 0;
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement)
            count += reader.qualifiedName() == QLatin1String(element) ? 1 : 0;
    }
    return reader.hasError() ? -1 : count;
}

/** The numbers of the frame around the first shape of that kind: left, top, width, height. */
QList<double> frameOf(const QByteArray &slide, const char *kind)
{
    const QString text = QString::fromUtf8(slide);
    const QRegularExpression frame(QStringLiteral("<p:%1>.*?<a:off x=\"(-?\\d+)\" y=\"(-?\\d+)\"/>"
                                                  "<a:ext cx=\"(\\d+)\" cy=\"(\\d+)\"/>")
                                       .arg(QLatin1String(kind)),
                                   QRegularExpression::DotMatchesEverythingOption);
    const auto match = frame.match(text);
    QList<double> numbers;
    for (int i = 1; i <= 4; ++i)
        numbers.append(match.captured(i).toDouble());
    return numbers;
}

} // namespace

/** Slides of presentations. */
class TestSlideExport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void shouldKnowSlidesByTheirEnding();
    void shouldRefuseAnEmptyScene();
    void shouldTellHowFarItIs();
    void shouldKeepTheFileWhenItIsEnded_data();
    void shouldKeepTheFileWhenItIsEnded();
    void shouldHaveAllPartsOfAPresentation();
    void shouldNameOnlyPartsThatThereAre();
    void shouldMakeNativeShapes();
    void shouldPlaceTheDrawingInTheMiddle_data();
    void shouldPlaceTheDrawingInTheMiddle();
    void shouldTurnTextsAsTheyAreDrawn();
    void shouldKeepLinks_data();
    void shouldKeepLinks();
    void shouldSuitThePage_data();
    void shouldSuitThePage();
    void shouldTakeTheColoursIntoTheTheme();
    void shouldDescribeTheDrawing();
    void shouldPutTheOutlineIntoTheNotes();
    void shouldEscapeWhatXmlWouldMisread();
    void shouldMakeTheSameBytesOfTheSameDrawing();
    void shouldWriteAFileWholeOrNotAtAll();

private:
    std::unique_ptr<QGraphicsScene> m_scene;
    std::unique_ptr<TreeItem> m_head;
};

void TestSlideExport::init()
{
    m_scene = SlideFixture::scene();
    m_head = SlideFixture::tree();
}

void TestSlideExport::shouldKnowSlidesByTheirEnding()
{
    QVERIFY(SlideExport::isSlide(QStringLiteral("a.pptx")));
    QVERIFY(SlideExport::isSlide(QStringLiteral("a.b.PPTX")));
    QVERIFY(!SlideExport::isSlide(QStringLiteral("a.ppt")));
    QVERIFY(!SlideExport::isSlide(QStringLiteral("pptx")));
}

void TestSlideExport::shouldRefuseAnEmptyScene()
{
    QGraphicsScene scene;
    QString error;
    QVERIFY(SlideExport::presentation(scene, *m_head, SlideExport::Aspect::Wide, &error).isEmpty());
    QCOMPARE(error, QStringLiteral("there is nothing to draw"));
}

void TestSlideExport::shouldTellHowFarItIs()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.pptx"));
    QList<int> steps;
    int whole = 0;
    QVERIFY(SlideExport::write(*m_scene, *m_head, path, SlideExport::Aspect::Wide, nullptr,
                               [&](int done, int total) {
                                   steps.append(done);
                                   whole = total;
                                   return true;
                               }));
    QVERIFY(std::is_sorted(steps.cbegin(), steps.cend()));
    QCOMPARE(steps.constFirst(), 0);
    QVERIFY(whole > 0);
    QVERIFY(steps.constLast() > whole / 2 && steps.constLast() <= whole);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), SlideExport::presentation(*m_scene, *m_head));
}

void TestSlideExport::shouldKeepTheFileWhenItIsEnded_data()
{
    QTest::addColumn<bool>("isDrawn");
    QTest::newRow("while it is drawn") << false;
    QTest::newRow("while it is written") << true;
}

void TestSlideExport::shouldKeepTheFileWhenItIsEnded()
{
    QFETCH(bool, isDrawn);
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("a.pptx")));
    QVERIFY(file.open(QIODevice::ReadWrite));
    file.write("old");
    file.flush();
    QString error;
    QVERIFY(!SlideExport::write(
        *m_scene, *m_head, file.fileName(), SlideExport::Aspect::Wide, &error,
        [isDrawn](int done, int total) { return isDrawn && done < total / 2; }));
    QCOMPARE(error, QStringLiteral("it was cancelled"));
    file.seek(0);
    QCOMPARE(file.readAll(), QByteArray("old"));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files).size(), 1);
}

void TestSlideExport::shouldHaveAllPartsOfAPresentation()
{
    const QByteArray bytes = SlideExport::presentation(*m_scene, *m_head);
    ImportedTree tree;
    ZipReader archive(bytes, tree);
    QVERIFY(archive.isOpen());
    QCOMPARE(archive.names().constFirst(), QStringLiteral("[Content_Types].xml"));
    for (const QString &name : archive.names()) {
        QXmlStreamReader reader(*archive.file(name));
        while (!reader.atEnd())
            reader.readNext();
        QVERIFY2(!reader.hasError(), qPrintable(name + reader.errorString()));
    }
}

/** Each relation leads to a part, and each part has a type. */
void TestSlideExport::shouldNameOnlyPartsThatThereAre()
{
    const QByteArray bytes = SlideExport::presentation(*m_scene, *m_head);
    ImportedTree tree;
    ZipReader archive(bytes, tree);
    const QString types = QString::fromUtf8(partOf(bytes, QStringLiteral("[Content_Types].xml")));
    const QRegularExpression target(QStringLiteral("Target=\"([^\"]*)\"/>"));
    int checked = 0;
    for (const QString &name : archive.names()) {
        if (!name.endsWith(QLatin1String(".rels")))
            continue;
        const QString folder = QFileInfo(QFileInfo(name).path()).path();
        const QString relations = QString::fromUtf8(partOf(bytes, name));
        for (auto matches = target.globalMatch(relations); matches.hasNext();) {
            const QString part =
                QDir::cleanPath(folder + QLatin1Char('/') + matches.next().captured(1));
            QVERIFY2(archive.contains(part), qPrintable(name + QLatin1Char(' ') + part));
            QVERIFY2(types.contains(QStringLiteral("PartName=\"/%1\"").arg(part)),
                     qPrintable(part));
            ++checked;
        }
    }
    QVERIFY(checked >= 12);
}

void TestSlideExport::shouldMakeNativeShapes()
{
    const QByteArray slide = partOf(SlideExport::presentation(*m_scene, *m_head), slidePart);
    QCOMPARE(countOf(slide, "p:cxnSp"), 1); // the line
    QCOMPARE(countOf(slide, "p:sp"), 2);    // the box and the text
    QCOMPARE(countOf(slide, "a:custGeom"), 1);
    QCOMPARE(countOf(slide, "p:grpSp"), 1);
    QCOMPARE(countOf(slide, "p:pic"), 0);
    QVERIFY(slide.contains("txBox=\"1\""));
    QVERIFY(slide.contains("<a:t>Late</a:t>"));
    QVERIFY(slide.contains("flipV=\"1\"")); // the line goes up
}

void TestSlideExport::shouldPlaceTheDrawingInTheMiddle_data()
{
    QTest::addColumn<int>("aspect");
    QTest::addColumn<double>("width");
    QTest::newRow("wide") << int(SlideExport::Aspect::Wide) << 12192000.0;
    QTest::newRow("narrow") << int(SlideExport::Aspect::Narrow) << 9144000.0;
}

void TestSlideExport::shouldPlaceTheDrawingInTheMiddle()
{
    QFETCH(int, aspect);
    QFETCH(double, width);
    const QByteArray bytes =
        SlideExport::presentation(*m_scene, *m_head, SlideExport::Aspect(aspect));
    QVERIFY(partOf(bytes, QStringLiteral("ppt/presentation.xml"))
                .contains("<p:sldSz cx=\"" + QByteArray::number(qint64(width)) + "\""));
    const QList<double> frame = frameOf(partOf(bytes, slidePart), "sp");
    // The box is as wide as the drawing, which takes 94 percent of the slide, and a quarter as
    // high.
    QVERIFY(qAbs(frame.at(2) - 0.94 * width) < 10);
    QVERIFY(qAbs(frame.at(3) - 0.94 * width / 4) < 10);
    QVERIFY(qAbs(frame.at(0) - 0.03 * width) < 10);
    QVERIFY(qAbs(frame.at(1) + frame.at(3) / 2 - 6858000 / 2) < 10);
}

void TestSlideExport::shouldTurnTextsAsTheyAreDrawn()
{
    m_scene->items().constFirst()->setRotation(30); // the text is the topmost
    const QByteArray slide = partOf(SlideExport::presentation(*m_scene, *m_head), slidePart);
    QVERIFY2(slide.contains("rot=\"1800000\""), slide.constData());
}

void TestSlideExport::shouldKeepLinks_data()
{
    QTest::addColumn<int>("look");
    QTest::newRow("clear") << int(DiagramLook::Clear);
    QTest::newRow("classic") << int(DiagramLook::Classic);
}

/** Every line of a title, and nothing else, leads to where its subject does. */
void TestSlideExport::shouldKeepLinks()
{
    QFETCH(int, look);
    TestSupport::EditorFixture fish(QStringLiteral("Effect[Man[Twin],Machine[Twin too]]"));
    TreeItem *const linked = fish.subject(QStringLiteral("Twin too"));
    linked->setUrl(QStringLiteral("https://example.org/?a=1&b=2"));
    linked->setTitle(QStringLiteral("Twin\nof somebody"));
    fish.subject(QStringLiteral("Effect"))->setUrl(QStringLiteral("file:///etc/passwd"));
    fish.editor.setLook(DiagramLook::Kind(look));
    fish.editor.updateFish(true);
    fish.editor.expandAll();
    const QByteArray bytes =
        SlideExport::presentation(*fish.editor.scene(), *fish.subject(QStringLiteral("Effect")));
    const QByteArray slide = partOf(bytes, slidePart);
    static const QRegularExpression run(
        QStringLiteral("<a:hlinkClick r:id=\"rId3\"/></a:rPr><a:t>([^<]*)</a:t>"));
    QStringList lines;
    auto matches = run.globalMatch(QString::fromUtf8(slide));
    while (matches.hasNext())
        lines << matches.next().captured(1);
    if (look == DiagramLook::Clear)
        QCOMPARE(lines, (QStringList{QStringLiteral("Twin"), QStringLiteral("of somebody")}));
    else
        QVERIFY2(lines.join(QLatin1Char(' ')).startsWith(QStringLiteral("Twin")),
                 slide.constData());
    QCOMPARE(slide.count("hlinkClick"), int(lines.size()));
    const QByteArray relations = partOf(bytes, QStringLiteral("ppt/slides/_rels/slide1.xml.rels"));
    QVERIFY(
        relations.contains("Target=\"https://example.org/?a=1&amp;b=2\" TargetMode=\"External\""));
    QCOMPARE(relations.count("relationships/hyperlink"), 1);
}

void TestSlideExport::shouldSuitThePage_data()
{
    QTest::addColumn<QSizeF>("page");
    QTest::addColumn<bool>("isNarrow");
    QTest::newRow("none") << QSizeF() << false;
    QTest::newRow("a screen") << QSizeF(1920, 1080) << false;
    QTest::newRow("an old screen") << QSizeF(1024, 768) << true;
    QTest::newRow("A4") << QSizeF(297, 210) << true;
    QTest::newRow("upright") << QSizeF(210, 297) << true;
    QTest::newRow("three to two") << QSizeF(300, 200) << false;
}

void TestSlideExport::shouldSuitThePage()
{
    QFETCH(QSizeF, page);
    QFETCH(bool, isNarrow);
    QVERIFY((SlideExport::aspectFor(page) == SlideExport::Aspect::Narrow) == isNarrow);
}

void TestSlideExport::shouldTakeTheColoursIntoTheTheme()
{
    const QByteArray bytes = SlideExport::presentation(*m_scene, *m_head);
    const QByteArray theme = partOf(bytes, QStringLiteral("ppt/theme/theme1.xml"));
    QVERIFY(theme.contains("<a:accent1><a:srgbClr val=\"108030\"/>"));
    QVERIFY(theme.contains("<a:accent2><a:srgbClr val=\"801010\"/>"));
    const QByteArray slide = partOf(bytes, slidePart);
    QVERIFY(slide.contains("<a:schemeClr val=\"accent1\">"));
    QVERIFY(slide.contains("<a:schemeClr val=\"accent2\">"));
    QVERIFY(slide.contains("<a:schemeClr val=\"tx1\">")); // the text
    QVERIFY(!slide.contains("108030"));
}

void TestSlideExport::shouldDescribeTheDrawing()
{
    const QByteArray slide = partOf(SlideExport::presentation(*m_scene, *m_head), slidePart);
    QVERIFY(slide.contains("descr=\"Fishbone diagram &quot;Late&quot; with 3 causes\""));
}

void TestSlideExport::shouldPutTheOutlineIntoTheNotes()
{
    m_head->childAtIndex(1)->setManagerName(QStringLiteral("Ann"));
    m_head->childAtIndex(1)->setProgress(40);
    const QString notes =
        QString::fromUtf8(partOf(SlideExport::presentation(*m_scene, *m_head),
                                 QStringLiteral("ppt/notesSlides/notesSlide1.xml")));
    QStringList lines;
    const QRegularExpression text(QStringLiteral("<a:t>([^<]*)</a:t>"));
    for (auto matches = text.globalMatch(notes); matches.hasNext();)
        lines.append(matches.next().captured(1).replace(QChar(QChar::Nbsp), QLatin1Char('.')));
    QCOMPARE(lines, QStringList({QStringLiteral("Late"), QStringLiteral("....Carrier"),
                                 QStringLiteral("........No vehicle"), QStringLiteral("....Stock"),
                                 QStringLiteral("Actions"), QStringLiteral("Stock: Ann, 40 %")}));
}

void TestSlideExport::shouldEscapeWhatXmlWouldMisread()
{
    m_head->setTitle(QStringLiteral("<a> & \"b\"\x07"));
    auto *const text = qgraphicsitem_cast<QGraphicsSimpleTextItem *>(m_scene->items().constFirst());
    text->setText(m_head->title());
    const QByteArray bytes = SlideExport::presentation(*m_scene, *m_head);
    QVERIFY(countOf(partOf(bytes, slidePart), "a:t") >= 1);
    QVERIFY(countOf(partOf(bytes, QStringLiteral("docProps/core.xml")), "dc:title") == 1);
    QVERIFY(partOf(bytes, slidePart).contains("&lt;a&gt; &amp; &quot;b&quot;"));
}

void TestSlideExport::shouldMakeTheSameBytesOfTheSameDrawing()
{
    QCOMPARE(SlideExport::presentation(*m_scene, *m_head),
             SlideExport::presentation(*m_scene, *m_head));
}

void TestSlideExport::shouldWriteAFileWholeOrNotAtAll()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.pptx"));
    QString error;
    QVERIFY2(SlideExport::write(*m_scene, *m_head, path, SlideExport::Aspect::Wide, &error),
             qPrintable(error));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), SlideExport::presentation(*m_scene, *m_head));
    QVERIFY(!SlideExport::write(*m_scene, *m_head, folder.filePath(QStringLiteral("no/a.pptx")),
                                SlideExport::Aspect::Wide, &error));
    QVERIFY(!error.isEmpty());
}

FISHBONE_TEST(TestSlideExport)

#include "tst_slideexport.moc"
