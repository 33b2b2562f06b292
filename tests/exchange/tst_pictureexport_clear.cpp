// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/exchange/picturefixture.h>
#include <tests/program/testprogram.h>
#include <tests/support/clearpictures.h>
#include <tests/support/editorfixture.h>

#include <fishbone/exchange/diagrampicture.h>
#include <fishbone/model/subjectmarks.h>

#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QXmlStreamReader>

#include <memory>

using namespace PictureFixture;
using TestSupport::EditorFixture;

namespace {

const QString diagram =
    QStringLiteral("Effect[Man[Training[Once a year,Never],Two shifts],Machine[Worn pump]]");

/** An editor that shows all of the diagram in the clear look. */
std::unique_ptr<EditorFixture> clearEditor(bool isExpanded = true)
{
    auto fish = std::make_unique<EditorFixture>(diagram);
    fish->subject(QStringLiteral("Training"))->setUrl(QStringLiteral("https://example.org/?a=1&b"));
    fish->subject(QStringLiteral("Never"))->setUrl(QStringLiteral("javascript:alert(1)"));
    fish->subject(QStringLiteral("Two shifts"))->setStatus(1);
    SubjectMarks::setVotes(*fish->subject(QStringLiteral("Two shifts")), 17);
    fish->subject(QStringLiteral("Worn pump"))->setTitle(QStringLiteral("Worn\npump <&>"));
    DiagramLook::Options options;
    options.hasLegend = true;
    fish->editor.setLookOptions(options);
    fish->editor.setLook(DiagramLook::Clear);
    fish->editor.updateFish(true);
    if (isExpanded)
        fish->editor.expandAll();
    return fish;
}

/** The texts of all elements of that name; the error when it is no XML. */
QStringList textsIn(const QByteArray &svg, const char *element)
{
    QStringList texts;
    QXmlStreamReader xml(svg);
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement &&
            xml.name() == QLatin1String(element))
            texts << xml.readElementText(QXmlStreamReader::IncludeChildElements);
    }
    return xml.hasError() ? QStringList(xml.errorString()) : texts;
}

bool isByTheToolkit(const QByteArray &svg)
{
    return svg.contains("Generated with Qt");
}

} // namespace

/** Pictures of scenes that show the clear look. */
class TestPictureExportClear : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldWriteASmallSvg();
    void shouldWriteWhatTheSceneShows_data();
    void shouldWriteWhatTheSceneShows();
    void shouldSayHowManyAreHidden();
    void shouldHaveTheSizeOfTheOtherFormats();
    void shouldEndWhenCancelled();
    void shouldLeaveOtherScenesToTheToolkit_data();
    void shouldLeaveOtherScenesToTheToolkit();
};

void TestPictureExportClear::shouldWriteASmallSvg()
{
    const auto fish = clearEditor();
    PictureOptions options;
    options.title = QStringLiteral("A <title>");
    const QByteArray svg = rendered(*fish->editor.scene(), PictureFormat::Svg, options);
    QVERIFY(!isByTheToolkit(svg));
    const QStringList texts = textsIn(svg, "text");
    for (const char *line : {"Effect", "Man", "Training", "Once a year", "Never", "Two shifts",
                             "Machine", "Worn", "pump <&>", "cancelled", "17", "votes"})
        QVERIFY2(texts.contains(QLatin1String(line)), line);
    QCOMPARE(textsIn(svg, "title"), QStringList(QStringLiteral("A <title>")));
    QCOMPARE(svg.count("<a xlink:href=\"https://example.org/?a=1&amp;b\""), 1);
    QVERIFY(!svg.contains("javascript"));
    QCOMPARE(svg.count("<symbol "), 2); // the status and the link
    constexpr int bones = 8;
    QCOMPARE(svg.count("<g id="), bones);
    const int aBone = (int(svg.size()) - int(svg.indexOf("</defs>"))) / bones;
    QVERIFY2(aBone < 500, qPrintable(QString::number(aBone)));
    QVERIFY2(svg.contains("<desc>Man; Machine</desc>"), svg.constData());
    QString id = fish->subject(QStringLiteral("Training"))->uuid();
    id.remove(QRegularExpression(QStringLiteral("[^A-Za-z0-9-]")));
    QVERIFY2(svg.contains("id=\"s" + id.toUtf8() + '"'), svg.constData());
}

void TestPictureExportClear::shouldWriteWhatTheSceneShows_data()
{
    QTest::addColumn<QString>("selected");
    QTest::newRow("nothing selected") << QString();
    QTest::newRow("a cause selected") << QStringLiteral("Once a year");
    QTest::newRow("a category selected") << QStringLiteral("Machine");
}

/** The SVG looks as the pixels of the same scene do. */
void TestPictureExportClear::shouldWriteWhatTheSceneShows()
{
    QFETCH(QString, selected);
    const auto fish = clearEditor();
    const QByteArray plain = rendered(*fish->editor.scene(), PictureFormat::Svg);
    if (!selected.isEmpty()) {
        fish->select({selected});
        fish->editor.updateFish(false);
    }
    const QImage expected = renderedPng(*fish->editor.scene());
    const QByteArray svg = rendered(*fish->editor.scene(), PictureFormat::Svg);
    QCOMPARE(svg == plain, selected.isEmpty());
    const QString program = QStandardPaths::findExecutable(QStringLiteral("rsvg-convert"));
    if (program.isEmpty())
        QSKIP("the renderer is not installed");
    QProcess renderer; // the toolkit's own knows no symbols
    renderer.start(program, {});
    renderer.write(svg);
    renderer.closeWriteChannel();
    QVERIFY(renderer.waitForFinished());
    const QImage shown = QImage::fromData(renderer.readAllStandardOutput());
    QCOMPARE(shown.size(), expected.size());
    const qreal alike = ClearPictures::likeness(expected, shown);
    QVERIFY2(alike > 0.98, qPrintable(QString::number(alike)));
}

void TestPictureExportClear::shouldSayHowManyAreHidden()
{
    const auto fish = clearEditor(false);
    const QStringList texts = textsIn(rendered(*fish->editor.scene(), PictureFormat::Svg), "text");
    QVERIFY(texts.contains(QStringLiteral("+4")));
    QVERIFY(!texts.contains(QStringLiteral("Training")));
    // The button of an expanded bone is for the screen.
    const auto open = clearEditor();
    open->select({QStringLiteral("Man")});
    open->editor.updateFish(false);
    const QStringList all = textsIn(rendered(*open->editor.scene(), PictureFormat::Svg), "text");
    QVERIFY(all.filter(QStringLiteral("+")).isEmpty());
}

void TestPictureExportClear::shouldHaveTheSizeOfTheOtherFormats()
{
    const auto fish = clearEditor();
    for (const PictureOptions &options : {PictureOptions(), scaledBy(2), ofSize(QSize(500, 300))}) {
        const QSize size = renderedPng(*fish->editor.scene(), options).size();
        const QByteArray svg = rendered(*fish->editor.scene(), PictureFormat::Svg, options);
        QVERIFY(svg.contains("width=\"" + QByteArray::number(size.width()) + "\" height=\"" +
                             QByteArray::number(size.height()) + '"'));
    }
}

void TestPictureExportClear::shouldEndWhenCancelled()
{
    const auto fish = clearEditor();
    PictureOptions options;
    options.progress = [](int, int) { return false; };
    QByteArray svg;
    const auto result =
        PictureExport::render(*fish->editor.scene(), PictureFormat::Svg, options, svg);
    QCOMPARE(result.error, Error::Cancelled);
    QVERIFY(svg.isEmpty());
    int last = 0;
    int whole = 0;
    options.progress = [&](int done, int total) {
        last = done;
        whole = total;
        return true;
    };
    QVERIFY(PictureExport::render(*fish->editor.scene(), PictureFormat::Svg, options, svg));
    QCOMPARE(last, whole);
}

void TestPictureExportClear::shouldLeaveOtherScenesToTheToolkit_data()
{
    QTest::addColumn<QByteArray>("what");
    for (const char *what : {"classic", "an item beside it", "an item on it", "a pale bone"})
        QTest::newRow(what) << QByteArray(what);
}

void TestPictureExportClear::shouldLeaveOtherScenesToTheToolkit()
{
    QFETCH(QByteArray, what);
    const auto fish = clearEditor();
    FishEditor &editor = fish->editor;
    if (what == "classic")
        editor.setLook(DiagramLook::Classic);
    else if (what == "an item beside it")
        editor.scene()->addRect(QRectF(0, 0, 50, 50));
    else if (what == "an item on it")
        new QGraphicsRectItem(QRectF(0, 0, 9, 9), fish->spear(QStringLiteral("Man")));
    else
        fish->spear(QStringLiteral("Man"))->setOpacity(0.5);
    QVERIFY(isByTheToolkit(rendered(*editor.scene(), PictureFormat::Svg)));
}

FISHBONE_TEST(TestPictureExportClear)
#include "tst_pictureexport_clear.moc"
