// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/fishscene.h>
#include <fishbone/exchange/pictureexport.h>
#include <fishbone/items/expanditem.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/model/fishmodel.h>
#include <tests/exchange/picturefixture.h>
#include <tests/program/testprogram.h>

#include <QFile>
#include <QGraphicsBlurEffect>
#include <QGraphicsItem>
#include <QGraphicsScene>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <memory>

namespace {

using PictureFixture::PictureFormat;

constexpr int manyItems = 500;

/** An item that takes 20 kB of an SVG. */
class Zigzag : public QGraphicsItem
{
public:
    QRectF boundingRect() const override { return {0, 0, points, 100}; }
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override
    {
        Q_UNUSED(option)
        Q_UNUSED(widget)
        QPolygonF line;
        for (int i = 0; i < points; ++i)
            line.append(QPointF(i, i % 2 * 99.123));
        painter->drawPolyline(line);
    }

private:
    static constexpr int points = 2000;
};

void addSquares(QGraphicsScene &scene, int count)
{
    for (int i = 0; i < count; ++i)
        scene.addRect(QRectF(i % 20 * 12, i / 20 * 12, 10, 10), QPen(Qt::black), Qt::red);
}

/** Items one over the other in every way that a scene knows. */
void addPile(QGraphicsScene &scene)
{
    QGraphicsItem *const lower = scene.addRect(QRectF(0, 0, 60, 40), QPen(Qt::NoPen), Qt::red);
    QGraphicsItem *const upper = scene.addRect(QRectF(30, 20, 60, 40), QPen(Qt::NoPen), Qt::green);
    lower->setZValue(1);
    upper->setRotation(20);
    auto *const above = new QGraphicsEllipseItem(QRectF(10, 10, 30, 30), upper);
    above->setBrush(Qt::blue);
    above->setOpacity(0.5);
    auto *const faint = new QGraphicsRectItem(QRectF(20, 20, 30, 30), above);
    faint->setBrush(Qt::yellow);
    faint->setScale(0.7);
    auto *const behind = new QGraphicsRectItem(QRectF(-20, -20, 60, 60), upper);
    behind->setFlag(QGraphicsItem::ItemStacksBehindParent);
    behind->setBrush(Qt::cyan);
    auto *const hidden = new QGraphicsRectItem(QRectF(0, 0, 200, 200), lower);
    hidden->setVisible(false);
    scene.addText(QStringLiteral("Fish"))->setPos(5, 5);
}

/** What the scene itself paints of @p part, a pixel for each unit. */
QImage paintedBy(QGraphicsScene &scene, const QRectF &part)
{
    const QSizeF size(std::ceil(part.width()), std::ceil(part.height()));
    QImage image(size.toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                           QPainter::SmoothPixmapTransform);
    scene.render(&painter, QRectF(QPointF(), part.size()), part);
    return image;
}

QImage exported(QGraphicsScene &scene)
{
    QByteArray picture;
    if (!PictureExport::render(scene, PictureFormat::Png, {}, picture))
        return {};
    return QImage::fromData(picture).convertToFormat(QImage::Format_RGB32);
}

QRectF withMargin(const QGraphicsScene &scene)
{
    const double margin = PictureOptions().margin;
    return PictureExport::visibleRect(scene).adjusted(-margin, -margin, margin, margin);
}

} // namespace

class TestPictureExportProgress : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldPaintAsTheSceneDoes();
    void shouldPaintADiagramWithoutItsButtons_data();
    void shouldPaintADiagramWithoutItsButtons();
    void shouldLeaveEffectsToTheScene();
    void shouldReportWhatIsDone_data();
    void shouldReportWhatIsDone();
    void shouldEndWhenCancelled_data();
    void shouldEndWhenCancelled();
    void shouldKeepTheOldFileWhenCancelled_data();
    void shouldKeepTheOldFileWhenCancelled();
    void shouldLeaveTheSceneAsItWasWhenCancelled();
    void shouldTellTheSizeBeforehand_data();
    void shouldTellTheSizeBeforehand();
    void shouldRefuseAnSvgThatIsTooLarge();
};

void TestPictureExportProgress::shouldPaintAsTheSceneDoes()
{
    QGraphicsScene scene;
    addPile(scene);
    QCOMPARE(exported(scene), paintedBy(scene, withMargin(scene)));
}

void TestPictureExportProgress::shouldPaintADiagramWithoutItsButtons_data()
{
    QTest::addColumn<int>("look");
    QTest::newRow("classic") << int(DiagramLook::Classic);
    QTest::newRow("clear") << int(DiagramLook::Clear);
}

void TestPictureExportProgress::shouldPaintADiagramWithoutItsButtons()
{
    QFETCH(int, look);
    FishModel model;
    QCOMPARE(model.loadFishTempl(), int(MODEL_NO_ERROR));
    FishEditor editor;
    editor.setModel(&model);
    editor.setRootIndex(model.index(0, 0));
    editor.setLook(DiagramLook::Kind(look));
    editor.expandAll();
    const QList<SpearItem *> categories = editor.headSpear()->childSpears();
    categories.front()->setExpand(false);
    editor.updateFish(false);
    categories.back()->setSelected(true); // which shows the button in the clear look, too
    QGraphicsScene &scene = *editor.scene();
    const QRectF part = withMargin(scene);
    const QImage picture = exported(scene);
    QVERIFY(picture != paintedBy(scene, part));

    // What says how many subjects are hidden stays.
    const QGraphicsItem *const said =
        look == DiagramLook::Clear ? categories.front()->expandBuddy() : nullptr;
    const QList<QGraphicsItem *> items = scene.items();
    for (QGraphicsItem *const item : items) {
        if (qgraphicsitem_cast<ExpandItem *>(item) && item != said)
            item->setVisible(false);
    }
    QCOMPARE(picture, paintedBy(scene, part));
}

void TestPictureExportProgress::shouldLeaveEffectsToTheScene()
{
    QGraphicsScene scene;
    scene.setBackgroundBrush(Qt::blue);
    QGraphicsItem *const item = scene.addRect(QRectF(0, 0, 40, 40), QPen(Qt::NoPen), Qt::red);
    item->setGraphicsEffect(new QGraphicsBlurEffect(&scene));
    const QImage picture = exported(scene);
    QCOMPARE(scene.backgroundBrush(), QBrush(Qt::blue));
    scene.setBackgroundBrush(Qt::NoBrush);
    QCOMPARE(picture, paintedBy(scene, withMargin(scene)));
}

void TestPictureExportProgress::shouldReportWhatIsDone_data()
{
    QTest::addColumn<PictureFormat>("format");
    QTest::newRow("png") << PictureFormat::Png;
    QTest::newRow("svg") << PictureFormat::Svg;
    QTest::newRow("pdf") << PictureFormat::Pdf;
}

void TestPictureExportProgress::shouldReportWhatIsDone()
{
    QFETCH(PictureFormat, format);
    QGraphicsScene scene;
    addSquares(scene, manyItems);
    QList<int> reports;
    int whole = 0;
    PictureOptions options;
    options.progress = [&](int done, int total) {
        reports.append(done);
        whole = total;
        return true;
    };
    QByteArray picture;
    QVERIFY(PictureExport::render(scene, format, options, picture));
    QVERIFY(whole > manyItems);
    QVERIFY2(reports.size() > 5, qPrintable(QString::number(reports.size())));
    QVERIFY(std::is_sorted(reports.cbegin(), reports.cend()));
    QCOMPARE(reports.constFirst(), 0);
    QCOMPARE(reports.constLast(), whole);

    QByteArray unwatched;
    options.progress = nullptr;
    QVERIFY(PictureExport::render(scene, format, options, unwatched));
    if (format != PictureFormat::Pdf) // which holds the time
        QCOMPARE(picture, unwatched);
}

void TestPictureExportProgress::shouldEndWhenCancelled_data()
{
    QTest::addColumn<PictureFormat>("format");
    QTest::addColumn<int>("after"); // the first answer that is no
    const QList<QPair<const char *, PictureFormat>> formats{
        {"png", PictureFormat::Png}, {"svg", PictureFormat::Svg}, {"pdf", PictureFormat::Pdf}};
    for (const auto &[name, format] : formats) {
        QTest::addRow("%s, at once", name) << format << 0;
        QTest::addRow("%s, half way", name) << format << 4;
        QTest::addRow("%s, while it is encoded", name) << format << manyItems / 64 + 1;
    }
}

void TestPictureExportProgress::shouldEndWhenCancelled()
{
    QFETCH(PictureFormat, format);
    QFETCH(int, after);
    QGraphicsScene scene;
    addSquares(scene, manyItems);
    int questions = 0;
    PictureOptions options;
    options.progress = [&](int, int) { return questions++ < after; };
    QByteArray picture("old");
    const auto result = PictureExport::render(scene, format, options, picture);
    QCOMPARE(result.error, PictureExport::Error::Cancelled);
    QVERIFY(!result.reason.isEmpty());
    QVERIFY(picture.isEmpty());
    QCOMPARE(questions, after + 1); // who has said no is not asked again
}

void TestPictureExportProgress::shouldKeepTheOldFileWhenCancelled_data()
{
    shouldEndWhenCancelled_data();
}

void TestPictureExportProgress::shouldKeepTheOldFileWhenCancelled()
{
    QFETCH(PictureFormat, format);
    QFETCH(int, after);
    const QTemporaryDir folder;
    const char *const suffix = format == PictureFormat::Png   ? "png"
                               : format == PictureFormat::Svg ? "svg"
                                                              : "pdf";
    const QString path = folder.filePath(QStringLiteral("a.") + QLatin1String(suffix));
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("old");
    }
    QGraphicsScene scene;
    addSquares(scene, manyItems);
    int questions = 0;
    PictureOptions options;
    options.progress = [&](int, int) { return questions++ < after; };
    QCOMPARE(PictureExport::write(scene, path, options).error, PictureExport::Error::Cancelled);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("old"));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files).size(), 1);
}

void TestPictureExportProgress::shouldLeaveTheSceneAsItWasWhenCancelled()
{
    QGraphicsScene scene;
    scene.setBackgroundBrush(Qt::blue);
    addPile(scene);
    const QImage before = paintedBy(scene, withMargin(scene));
    PictureOptions options;
    options.progress = [](int, int) { return false; };
    QByteArray picture;
    QVERIFY(!PictureExport::render(scene, PictureFormat::Png, options, picture));
    QCOMPARE(scene.backgroundBrush(), QBrush(Qt::blue));
    QCOMPARE(paintedBy(scene, withMargin(scene)), before);
}

void TestPictureExportProgress::shouldTellTheSizeBeforehand_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QSizeF>("expected");
    // The drawing is 100 x 50, with its margin 140 x 90.
    QTest::newRow("as it is") << 1.0 << QSize() << QSizeF(140, 90);
    QTest::newRow("scaled") << 2.5 << QSize() << QSizeF(350, 225);
    QTest::newRow("whole pixels") << 0.333 << QSize() << QSizeF(47, 30);
    QTest::newRow("sized") << 2.5 << QSize(800, 600) << QSizeF(800, 600);
    QTest::newRow("impossible") << -1.0 << QSize() << QSizeF();
}

void TestPictureExportProgress::shouldTellTheSizeBeforehand()
{
    QFETCH(double, scale);
    QFETCH(QSize, size);
    QFETCH(QSizeF, expected);
    PictureOptions options;
    options.scale = scale;
    options.size = size;
    QCOMPARE(PictureExport::sizeOf(QRectF(10, 20, 100, 50), options), expected);
    QVERIFY(PictureExport::sizeOf(QRectF(), options).isEmpty());

    QGraphicsScene scene;
    scene.addRect(QRectF(10, 20, 100, 50), QPen(Qt::NoPen), Qt::red);
    QByteArray picture;
    if (PictureExport::render(scene, PictureFormat::Png, options, picture))
        QCOMPARE(QSizeF(QImage::fromData(picture).size()), expected);
}

void TestPictureExportProgress::shouldRefuseAnSvgThatIsTooLarge()
{
    // 60,000 items of some 20 kB each.
    QGraphicsScene scene;
    scene.setItemIndexMethod(QGraphicsScene::NoIndex);
    for (int i = 0; i < 60000; ++i)
        scene.addItem(std::make_unique<Zigzag>().release());

    int questions = 0;
    PictureOptions options;
    options.progress = [&questions](int, int) { return ++questions > 0; };
    QByteArray picture;
    const auto result = PictureExport::render(scene, PictureFormat::Svg, options, picture);
    QCOMPARE(result.error, PictureExport::Error::TooLarge);
    QVERIFY(result.reason.contains(QLatin1String("512")));
    QCOMPARE(questions, 0);
}

FISHBONE_TEST(TestPictureExportProgress)
#include "tst_pictureexport_progress.moc"
