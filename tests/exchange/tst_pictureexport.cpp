// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/pictureexport.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/fishscene.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>

#include <tests/exchange/picturefixture.h>
#include <tests/program/testprogram.h>

#include <QGraphicsTextItem>
#include <QImage>
#include <QRegularExpression>
#include <QScreen>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <QtTest>

#include <cmath>

using namespace PictureFixture;

namespace {

/** The smallest rectangle that holds all red pixels. */
QRect redPixels(const QImage &image)
{
    QRect found;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == QColor(Qt::red))
                found |= QRect(x, y, 1, 1);
        }
    }
    return found;
}

/** The texts of an SVG, in their order. */
QStringList svgTexts(const QByteArray &svg)
{
    QStringList texts;
    QXmlStreamReader reader(svg);
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement &&
            reader.name() == QLatin1String("text"))
            texts.append(reader.readElementText());
    }
    return reader.hasError() ? QStringList() : texts;
}

/** Everything in the streams of a PDF. */
QByteArray pdfStreams(const QByteArray &pdf)
{
    QByteArray content;
    for (int at = pdf.indexOf("stream\n"); at >= 0; at = pdf.indexOf("stream\n", at + 7)) {
        if (pdf.mid(at - 3, 3) == "end")
            continue;
        const int begin = at + 7;
        const int end = pdf.indexOf("endstream", begin);
        const QByteArray stream = pdf.mid(begin, end - begin);
        const bool packed = stream.startsWith('\x78');
        // Four bytes in front guess at the size, which the function mends.
        content += packed ? qUncompress(QByteArray("\0\x10\0\0", 4) + stream) : stream;
    }
    return content;
}

int pointsOf(double units)
{
    return int(std::ceil(units * 72 / QGuiApplication::primaryScreen()->logicalDotsPerInchY()));
}

} // namespace

class TestPictureExport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldTellTheFormatFromTheSuffix_data();
    void shouldTellTheFormatFromTheSuffix();
    void shouldCountWhatIsVisible();
    void shouldCountOnlyTheChildrenOfAnItemThatDrawsNothing();
    void shouldMapTransformedItems();
    void shouldFindNothingInAnEmptyScene();
    void shouldCropToTheDrawingAndItsMargin();
    void shouldFillTheBackground();
    void shouldLeaveATransparentBackground_data();
    void shouldLeaveATransparentBackground();
    void shouldLeaveTheScenesBackgroundOutAndInPlace();
    void shouldScaleThePicture();
    void shouldCentreTheDrawingInAGivenSize_data();
    void shouldCentreTheDrawingInAGivenSize();
    void shouldKeepTheTitleInThePng();
    void shouldGiveTheSvgTheViewBoxOfTheDrawing();
    void shouldWriteTextIntoTheSvg();
    void shouldEscapeTheTitleOfTheSvg();
    void shouldMakeThePdfsPageAsLargeAsTheDrawing();
    void shouldWriteTextIntoThePdf();
    void shouldDrawADiagramWithoutBitmaps();
    void shouldCropToTheBonesThatAreExpanded();
    void shouldTakeTheLongestPng();
    void shouldReplaceAFileWhole();
};

void TestPictureExport::shouldTellTheFormatFromTheSuffix_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<bool>("known");
    QTest::addColumn<PictureFormat>("format");

    QTest::newRow("png") << QStringLiteral("a/b.png") << true << PictureFormat::Png;
    QTest::newRow("svg") << QStringLiteral("b.c.svg") << true << PictureFormat::Svg;
    QTest::newRow("pdf") << QStringLiteral("b.pdf") << true << PictureFormat::Pdf;
    QTest::newRow("capitals") << QStringLiteral("b.PnG") << true << PictureFormat::Png;
    QTest::newRow("other suffix") << QStringLiteral("b.jpg") << false << PictureFormat::Png;
    QTest::newRow("no suffix") << QStringLiteral("png") << false << PictureFormat::Png;
    QTest::newRow("suffix of the folder")
        << QStringLiteral("a.png/b") << false << PictureFormat::Png;
    QTest::newRow("empty") << QString() << false << PictureFormat::Png;
}

void TestPictureExport::shouldTellTheFormatFromTheSuffix()
{
    QFETCH(QString, fileName);
    QFETCH(bool, known);
    QFETCH(PictureFormat, format);

    const std::optional<PictureFormat> told = PictureExport::formatOf(fileName);
    QCOMPARE(told.has_value(), known);
    if (known)
        QCOMPARE(*told, format);
}

void TestPictureExport::shouldCountWhatIsVisible()
{
    QGraphicsScene scene;
    QGraphicsRectItem *const shown = addRedRectangle(scene);
    scene.addRect(QRectF(500, 500, 10, 10), QPen(Qt::NoPen))->setVisible(false);
    auto *const hiddenParent = new QGraphicsRectItem(QRectF(1000, 0, 1, 1), shown);
    new QGraphicsRectItem(QRectF(2000, 0, 1, 1), hiddenParent);
    hiddenParent->setVisible(false);

    QCOMPARE(PictureExport::visibleRect(scene), QRectF(100, 50, 40, 20));

    auto *const child = new QGraphicsRectItem(QRectF(0, 0, 10, 10), shown);
    child->setPen(QPen(Qt::NoPen));
    child->setPos(200, 60);
    QCOMPARE(PictureExport::visibleRect(scene), QRectF(100, 50, 110, 20));
}

void TestPictureExport::shouldCountOnlyTheChildrenOfAnItemThatDrawsNothing()
{
    QGraphicsScene scene;
    QGraphicsRectItem *const holder = scene.addRect(QRectF(0, 0, 1000, 1000));
    holder->setFlag(QGraphicsItem::ItemHasNoContents);
    addRedRectangle(scene)->setParentItem(holder);

    QCOMPARE(PictureExport::visibleRect(scene), QRectF(100, 50, 40, 20));
}

void TestPictureExport::shouldMapTransformedItems()
{
    QGraphicsScene scene;
    auto *const parent = new QGraphicsRectItem(QRectF(0, 0, 4, 2));
    parent->setPen(QPen(Qt::NoPen));
    parent->setPos(10, 20);
    parent->setRotation(90);
    auto *const child = new QGraphicsRectItem(QRectF(0, 0, 1, 1), parent);
    child->setPen(QPen(Qt::NoPen));
    child->setPos(100, 0);
    scene.addItem(parent);

    // Turned by 90 degrees, (x, y) of the parent is (10 - y, 20 + x) of the scene.
    const QRectF rect = PictureExport::visibleRect(scene);
    QCOMPARE(rect.toAlignedRect(), QRect(8, 20, 2, 101));
}

void TestPictureExport::shouldFindNothingInAnEmptyScene()
{
    const QGraphicsScene scene;
    QVERIFY(PictureExport::visibleRect(scene).isNull());
}

void TestPictureExport::shouldCropToTheDrawingAndItsMargin()
{
    QGraphicsScene scene;
    addRedRectangle(scene);

    const QImage image = renderedPng(scene, withMargin(5));
    QCOMPARE(image.size(), QSize(50, 30));
    QCOMPARE(redPixels(image), QRect(5, 5, 40, 20));
    QCOMPARE(renderedPng(scene).size(), QSize(80, 60)); // a margin of 20 unless asked otherwise
}

void TestPictureExport::shouldFillTheBackground()
{
    QGraphicsScene scene;
    addRedRectangle(scene);

    QCOMPARE(renderedPng(scene).pixelColor(0, 0), QColor(Qt::white));
    PictureOptions options;
    options.background = QColor(1, 2, 3);
    const QImage image = renderedPng(scene, options);
    QCOMPARE(image.pixelColor(0, 0), QColor(1, 2, 3));
    QCOMPARE(image.pixelColor(79, 59), QColor(1, 2, 3));
    QCOMPARE(image.pixelColor(40, 30), QColor(Qt::red));
}

void TestPictureExport::shouldLeaveATransparentBackground_data()
{
    QTest::addColumn<QColor>("background");

    QTest::newRow("transparent") << QColor(Qt::transparent);
    QTest::newRow("invalid") << QColor();
}

void TestPictureExport::shouldLeaveATransparentBackground()
{
    QFETCH(QColor, background);
    QGraphicsScene scene;
    addRedRectangle(scene);
    PictureOptions options;
    options.background = background;

    const QImage image = renderedPng(scene, options);
    QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
    QCOMPARE(image.pixelColor(40, 30), QColor(Qt::red));
}

void TestPictureExport::shouldLeaveTheScenesBackgroundOutAndInPlace()
{
    QGraphicsScene scene;
    scene.setBackgroundBrush(Qt::blue);
    addRedRectangle(scene);

    QCOMPARE(renderedPng(scene).pixelColor(0, 0), QColor(Qt::white));
    QCOMPARE(scene.backgroundBrush(), QBrush(Qt::blue));
}

void TestPictureExport::shouldScaleThePicture()
{
    QGraphicsScene scene;
    addRedRectangle(scene);

    const QImage image = renderedPng(scene, scaledBy(3));
    QCOMPARE(image.size(), QSize(240, 180));
    QCOMPARE(redPixels(image), QRect(60, 60, 120, 60));
    QCOMPARE(renderedPng(scene, scaledBy(0.51)).size(), QSize(41, 31)); // whole pixels, rounded up
}

void TestPictureExport::shouldCentreTheDrawingInAGivenSize_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QRect>("red");

    // The drawing with its margin is 80 x 60.
    QTest::newRow("same shape") << QSize(160, 120) << QRect(40, 40, 80, 40);
    QTest::newRow("wider") << QSize(200, 120) << QRect(60, 40, 80, 40);
    QTest::newRow("higher") << QSize(80, 100) << QRect(20, 40, 40, 20);
}

void TestPictureExport::shouldCentreTheDrawingInAGivenSize()
{
    QFETCH(QSize, size);
    QFETCH(QRect, red);
    QGraphicsScene scene;
    addRedRectangle(scene);
    PictureOptions options = ofSize(size);
    options.scale = 7; // does not count

    const QImage image = renderedPng(scene, options);
    QCOMPARE(image.size(), size);
    QCOMPARE(redPixels(image), red);
}

void TestPictureExport::shouldKeepTheTitleInThePng()
{
    QGraphicsScene scene;
    addRedRectangle(scene);
    PictureOptions options;
    options.title = QStringLiteral("Late <first> departures 迟到");

    QCOMPARE(renderedPng(scene, options).text(QStringLiteral("Title")), options.title);
    QVERIFY(renderedPng(scene).textKeys().isEmpty());
}

void TestPictureExport::shouldGiveTheSvgTheViewBoxOfTheDrawing()
{
    QGraphicsScene scene;
    addRedRectangle(scene);

    const QByteArray svg = rendered(scene, PictureFormat::Svg);
    QSvgRenderer renderer(svg);
    QVERIFY(renderer.isValid());
    QCOMPARE(renderer.viewBoxF(), QRectF(0, 0, 80, 60));
    QImage image(80, 60, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    painter.end();
    QCOMPARE(image.pixelColor(2, 2), QColor(Qt::white));
    QCOMPARE(redPixels(image), QRect(20, 20, 40, 20));

    const QByteArray sized = rendered(scene, PictureFormat::Svg, ofSize(QSize(300, 200)));
    QCOMPARE(QSvgRenderer(sized).viewBoxF(), QRectF(0, 0, 300, 200));
}

void TestPictureExport::shouldWriteTextIntoTheSvg()
{
    QGraphicsScene scene;
    scene.addItem(new QGraphicsTextItem(QStringLiteral("Fish & 鱼骨")));

    const QByteArray svg = rendered(scene, PictureFormat::Svg);
    QCOMPARE(svgTexts(svg).join(QString()), QStringLiteral("Fish & 鱼骨"));
    QVERIFY(!svg.contains("<image"));
}

void TestPictureExport::shouldEscapeTheTitleOfTheSvg()
{
    QGraphicsScene scene;
    addRedRectangle(scene);
    PictureOptions options;
    options.title = QStringLiteral("a < b & \"c\"");

    QXmlStreamReader reader(rendered(scene, PictureFormat::Svg, options));
    QString title;
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement &&
            reader.name() == QLatin1String("title"))
            title = reader.readElementText();
    }
    QVERIFY2(!reader.hasError(), qPrintable(reader.errorString()));
    QCOMPARE(title, options.title);
}

void TestPictureExport::shouldMakeThePdfsPageAsLargeAsTheDrawing()
{
    QGraphicsScene scene;
    addRedRectangle(scene);

    const auto mediaBox = [](const QByteArray &pdf) {
        const QRegularExpression box(QStringLiteral("/MediaBox \\[([0-9. ]+)\\]"));
        const QString text = QString::fromLatin1(pdf.constData(), pdf.size());
        const QString found = box.match(text).captured(1);
        QStringList numbers;
        const QStringList parts = found.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        for (const QString &number : parts)
            numbers.append(QString::number(number.toDouble()));
        return numbers.join(QLatin1Char(' '));
    };
    QCOMPARE(mediaBox(rendered(scene, PictureFormat::Pdf)),
             QStringLiteral("0 0 %1 %2").arg(pointsOf(80)).arg(pointsOf(60)));
    QCOMPARE(mediaBox(rendered(scene, PictureFormat::Pdf, ofSize(QSize(1190, 1683)))), // nearly A4
             QStringLiteral("0 0 %1 %2").arg(pointsOf(1190)).arg(pointsOf(1683)));
}

void TestPictureExport::shouldWriteTextIntoThePdf()
{
    QGraphicsScene scene;
    scene.addItem(new QGraphicsTextItem(QStringLiteral("Fish")));
    PictureOptions options;
    options.title = QStringLiteral("Bones");

    const QByteArray pdf = rendered(scene, PictureFormat::Pdf, options);
    QVERIFY(pdf.startsWith("%PDF-"));
    QVERIFY(pdf.contains("/ToUnicode"));
    QVERIFY(!pdf.contains("/Subtype /Image"));
    const QByteArray streams = pdfStreams(pdf);
    QVERIFY2(streams.contains(" Tj") || streams.contains("TJ"), "no operator that shows text");
    for (const char letter : {'F', 'i', 's', 'h'}) // what a reader copies as text
        QVERIFY(streams.contains("<00" + QByteArray::number(letter, 16).toUpper() + '>'));
}

void TestPictureExport::shouldDrawADiagramWithoutBitmaps()
{
    FishModel model;
    model.setModelType(FISH_MODEL_DIAGRAM);
    QCOMPARE(model.loadFishTempl(), int(MODEL_NO_ERROR));
    FishEditor editor;
    editor.setModel(&model);
    editor.setRootIndex(model.index(0, 0));
    editor.expandAll();

    const QByteArray svg = rendered(*editor.scene(), PictureFormat::Svg);
    QVERIFY(!svg.contains("<image"));
    const QStringList texts = svgTexts(svg);
    const TreeItem *const head = model.getFishHeadTreeItem();
    for (const TreeItem *bone : head->childItems()) {
        const QString shown = bone->title().left(6); // what fits even without a style file
        QVERIFY2(texts.join(QLatin1Char('\n')).contains(shown), qPrintable(shown));
    }
    const QByteArray pdf = rendered(*editor.scene(), PictureFormat::Pdf);
    QVERIFY(!pdf.contains("/Subtype /Image"));
}

void TestPictureExport::shouldCropToTheBonesThatAreExpanded()
{
    FishModel model;
    QCOMPARE(model.loadFishTempl(), int(MODEL_NO_ERROR));
    FishEditor editor;
    editor.setModel(&model);
    editor.setRootIndex(model.index(0, 0));
    const QRectF before = PictureExport::visibleRect(*editor.scene());

    editor.expandAll();
    const QRectF expanded = PictureExport::visibleRect(*editor.scene());
    QVERIFY(expanded.width() > before.width());
    editor.contractAll();
    QCOMPARE(PictureExport::visibleRect(*editor.scene()), before);
}

void TestPictureExport::shouldTakeTheLongestPng()
{
    QGraphicsScene scene;
    addRedRectangle(scene);
    QCOMPARE(renderedPng(scene, ofSize(QSize(32767, 4))).size(), QSize(32767, 4));
}

void TestPictureExport::shouldReplaceAFileWhole()
{
    const QTemporaryDir folder;
    QGraphicsScene scene;
    addRedRectangle(scene);
    const QString path = folder.filePath(QStringLiteral("a.svg"));
    writeFile(path, QByteArray(100000, 'x'));

    const auto result = PictureExport::write(scene, path);
    QVERIFY2(bool(result), qPrintable(result.reason));
    QVERIFY(result.reason.isEmpty());
    const QByteArray content = contentOf(path);
    QVERIFY(content.startsWith("<?xml"));
    QVERIFY(!content.contains('x' + QByteArray(10, 'x')));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList(QStringLiteral("a.svg")));
}

FISHBONE_TEST(TestPictureExport)
#include "tst_pictureexport.moc"
