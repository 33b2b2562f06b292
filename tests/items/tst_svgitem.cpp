// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/svgitem.h>

#include <QBuffer>
#include <QFile>
#include <QGraphicsScene>
#include <QSet>
#include <QSvgGenerator>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <QtTest>

#include <fishbone/items/expanditem.h>
#include <fishbone/items/linkitem.h>
#include <fishbone/items/svgcache.h>
#include <fishbone/items/taskstatusitem.h>
#include <tests/items/boneparts.h>
#include <tests/program/testprogram.h>
#include <tests/support/drawing.h>
#include <tests/support/pictures.h>

using namespace TestSupport;

class TestSvgItem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowNothingAtFirst();
    void shouldShowTheFileThatItIsMadeWith();
    void shouldBelongToItsParent();
    void shouldBeAsLargeAsItsPicture_data();
    void shouldBeAsLargeAsItsPicture();
    void shouldPaintItsPicture_data();
    void shouldPaintItsPicture();
    void shouldShowNothingWithoutAPicture_data();
    void shouldShowNothingWithoutAPicture();
    void shouldShowAnotherFile();
    void shouldShowAPictureAgainAfterNone();
    void shouldShareTheRendererOfAFile();
    void shouldParseEachFileOnce();
    void shouldChangeNothingForTheFileThatIsShown();
    void shouldScheduleOnePaintForAnotherFile();
    void shouldStayVectorsInAnExport();
    void shouldLookOnScreenAsItIsDrawn_data();
    void shouldLookOnScreenAsItIsDrawn();
    void shouldShowOnScreenThatItIsSelected();
    void shouldStandOnWholePixelsOfTheScreen();
    void shouldPaintNothingBeyondAllNumbers_data();
    void shouldPaintNothingBeyondAllNumbers();
    void shouldShowTheArrowWhileHovered();
    void shouldAcceptHoverWhenMadeWithAFile();
    void shouldFindAMissingPictureWhenItIsSetAgain();
    void shouldBeToldFromOtherItems();
};

namespace {
using BoneParts::contractFile;
using BoneParts::expandFile;

QString picture(const char *name)
{
    return QLatin1String(":/fishboneDiagram/") + QLatin1String(name);
}

QImage pictureOf(const QString &file, const Canvas &canvas)
{
    QImage image = whitePicture(canvas.size());
    QPainter painter(&image);
    canvas.setUp(painter);
    QSvgRenderer renderer(file);
    renderer.render(&painter, QRectF(QPointF(), renderer.defaultSize()));
    return image;
}

const Canvas canvas{{-4, -4, 40, 40}, 3};
} // namespace

void TestSvgItem::shouldShowNothingAtFirst()
{
    SvgItem item;

    QCOMPARE(item.svgFile(), QString());
    QCOMPARE(item.boundingRect(), QRectF());
    QCOMPARE(item.parentItem(), nullptr);
    QVERIFY(!item.acceptHoverEvents());
    QCOMPARE(inkedPixels(paintedItem(item, canvas)), 0);
}

void TestSvgItem::shouldShowTheFileThatItIsMadeWith()
{
    const SvgItem item(expandFile());

    QCOMPARE(item.svgFile(), expandFile());
    QCOMPARE(item.parentItem(), nullptr);
}

void TestSvgItem::shouldBelongToItsParent()
{
    QGraphicsRectItem parent;

    // Both are deleted with their parent.
    const auto *const empty = std::make_unique<SvgItem>(&parent).release();
    const auto *const shown = std::make_unique<SvgItem>(expandFile(), &parent).release();

    QCOMPARE(empty->parentItem(), &parent);
    QCOMPARE(shown->parentItem(), &parent);
}

void TestSvgItem::shouldBeAsLargeAsItsPicture_data()
{
    QTest::addColumn<QString>("file");

    for (const char *name : {"expand.svg", "contract.svg", "link.png", "head.svg", "tail.svg",
                             "status/finish.svg", "status/running_progress_40.svg"})
        QTest::newRow(name) << picture(name);
}

void TestSvgItem::shouldBeAsLargeAsItsPicture()
{
    QFETCH(QString, file);
    const SvgItem item(file);

    QCOMPARE(item.boundingRect(), QRectF(QPointF(), QSvgRenderer(file).defaultSize()));
    QVERIFY(!item.boundingRect().isEmpty());
}

void TestSvgItem::shouldPaintItsPicture_data()
{
    shouldBeAsLargeAsItsPicture_data();
}

void TestSvgItem::shouldPaintItsPicture()
{
    QFETCH(QString, file);
    SvgItem item(file);

    const QImage painted = paintedItem(item, canvas);

    QVERIFY(inkedPixels(painted) > 100);
    QCOMPARE(difference(painted, pictureOf(file, canvas)), QString());
}

void TestSvgItem::shouldShowNothingWithoutAPicture_data()
{
    QTest::addColumn<QString>("file");

    QTest::newRow("no name") << QString();
    QTest::newRow("empty name") << QStringLiteral("");
    QTest::newRow("missing resource") << picture("nothing.svg");
    QTest::newRow("missing file") << QStringLiteral("nothing.svg");
    QTest::newRow("bitmap") << picture("noparent.png");
}

void TestSvgItem::shouldShowNothingWithoutAPicture()
{
    QFETCH(QString, file);
    SvgItem item(expandFile());

    if (QFile::exists(file))
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("Cannot read file")));
    item.setSvgFile(file);

    QCOMPARE(item.svgFile(), file);
    QCOMPARE(item.boundingRect(), QRectF());
    QCOMPARE(inkedPixels(paintedItem(item, canvas)), 0);
}

void TestSvgItem::shouldShowAnotherFile()
{
    SvgItem item(expandFile());

    item.setSvgFile(contractFile());

    QCOMPARE(item.svgFile(), contractFile());
    QCOMPARE(difference(paintedItem(item, canvas), pictureOf(contractFile(), canvas)), QString());
    QVERIFY(!difference(paintedItem(item, canvas), pictureOf(expandFile(), canvas)).isEmpty());
}

void TestSvgItem::shouldShowAPictureAgainAfterNone()
{
    SvgItem item(expandFile());
    item.setSvgFile(QString());

    item.setSvgFile(expandFile());

    QCOMPARE(difference(paintedItem(item, canvas), pictureOf(expandFile(), canvas)), QString());
    QVERIFY(!item.boundingRect().isEmpty());
}

void TestSvgItem::shouldShareTheRendererOfAFile()
{
    const SvgItem first(expandFile());
    SvgItem second;
    second.setSvgFile(expandFile());
    const SvgItem other(contractFile());

    QCOMPARE(first.renderer(), sharedSvgRenderer(expandFile()));
    QCOMPARE(second.renderer(), first.renderer());
    QVERIFY(other.renderer() != first.renderer());
}

void TestSvgItem::shouldParseEachFileOnce()
{
    const SvgItem expand(expandFile());
    const SvgItem contract(contractFile());
    const int before = parsedSvgFileCount();

    for (int i = 0; i < 50; ++i) {
        SvgItem item(i % 2 ? expandFile() : contractFile());
        item.setSvgFile(i % 2 ? contractFile() : expandFile());
    }

    QCOMPARE(parsedSvgFileCount(), before);
}

void TestSvgItem::shouldChangeNothingForTheFileThatIsShown()
{
    QGraphicsScene scene;
    auto *const item = std::make_unique<SvgItem>(expandFile()).release();
    scene.addItem(item);
    QSignalSpy changes(&scene, &QGraphicsScene::changed);
    QCoreApplication::processEvents();
    changes.clear();

    item->setSvgFile(expandFile());
    QCoreApplication::processEvents();

    QCOMPARE(changes.count(), 0);
}

void TestSvgItem::shouldScheduleOnePaintForAnotherFile()
{
    QGraphicsScene scene;
    auto *const item = std::make_unique<SvgItem>(expandFile()).release();
    scene.addItem(item);
    QSignalSpy changes(&scene, &QGraphicsScene::changed);
    QCoreApplication::processEvents();
    changes.clear();

    item->setSvgFile(contractFile());
    QCoreApplication::processEvents();
    item->setSvgFile(QString());
    QCoreApplication::processEvents();

    QCOMPARE(changes.count(), 2);
}

void TestSvgItem::shouldStayVectorsInAnExport()
{
    QGraphicsScene scene;
    scene.addItem(std::make_unique<SvgItem>(expandFile()).release());
    QBuffer buffer;
    {
        QSvgGenerator generator;
        generator.setOutputDevice(&buffer);
        QPainter painter(&generator);
        scene.render(&painter);
    }

    QVERIFY(buffer.data().contains("<path"));
    QVERIFY(!buffer.data().contains("<image"));
}

void TestSvgItem::shouldLookOnScreenAsItIsDrawn_data()
{
    QTest::addColumn<QTransform>("transform");

    QTest::newRow("as it is") << QTransform();
    QTest::newRow("enlarged") << QTransform::fromScale(3, 3);
    QTest::newRow("so large that nothing is kept") << QTransform(50, 0, 0, 50, -400, -400);
    QTest::newRow("turned") << QTransform().rotate(30);
    QTest::newRow("mirrored") << QTransform::fromScale(-2, 2);
    QTest::newRow("upside down") << QTransform::fromScale(2, -2);
    QTest::newRow("too high to be kept") << QTransform(1, 0, 0, 50, 0, -400);
}

/** Painted for a widget, the picture may come from pixels that were kept. */
void TestSvgItem::shouldLookOnScreenAsItIsDrawn()
{
    QFETCH(QTransform, transform);
    SvgItem item(expandFile());
    QWidget screen;
    const QStyleOptionGraphicsItem option;
    const auto painted = [&](QWidget *widget) {
        QImage image = whitePicture({120, 120});
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(40, 40);
        painter.setTransform(transform, true);
        item.paint(&painter, &option, widget);
        return image;
    };

    const QImage drawn = painted(nullptr);
    QVERIFY(inkedPixels(drawn) > 50);
    QCOMPARE(difference(painted(&screen), drawn, 8), QString());
    QCOMPARE(difference(painted(&screen), drawn, 8), QString()); // now from what was kept
}

void TestSvgItem::shouldShowOnScreenThatItIsSelected()
{
    SvgItem item(expandFile());
    item.setFlag(QGraphicsItem::ItemIsSelectable);
    QWidget screen;
    const auto painted = [&](QStyle::State state) {
        QStyleOptionGraphicsItem option;
        option.state = state;
        option.palette = QPalette(Qt::black, Qt::white);
        QImage image = whitePicture({60, 60});
        QPainter painter(&image);
        painter.translate(20, 20);
        item.paint(&painter, &option, &screen);
        return image;
    };

    const int without = inkedPixels(painted(QStyle::State_None));
    QVERIFY(inkedPixels(painted(QStyle::State_Selected)) > without); // a frame around it
}

void TestSvgItem::shouldStandOnWholePixelsOfTheScreen()
{
    SvgItem item(expandFile());
    QWidget screen;
    const QStyleOptionGraphicsItem option;
    const auto painted = [&](qreal x) {
        QImage image = whitePicture({60, 60});
        QPainter painter(&image);
        painter.translate(x, 20);
        item.paint(&painter, &option, &screen);
        return image;
    };

    QCOMPARE(painted(20.3), painted(20));
    QCOMPARE(painted(20.7), painted(21));
    QVERIFY(painted(20) != painted(21));
}

void TestSvgItem::shouldPaintNothingBeyondAllNumbers_data()
{
    QTest::addColumn<QTransform>("transform");

    constexpr double far = 1e10; // more than an int holds
    QTest::newRow("left") << QTransform::fromTranslate(-far, 0);
    QTest::newRow("right") << QTransform::fromTranslate(far, 0);
    QTest::newRow("above") << QTransform::fromTranslate(0, -far);
    QTest::newRow("below") << QTransform::fromTranslate(0, far);
    QTest::newRow("enlarged")
        << QTransform::fromTranslate(-10 * far, 0).scale(far / 100, far / 100);
}

void TestSvgItem::shouldPaintNothingBeyondAllNumbers()
{
    QFETCH(QTransform, transform);
    SvgItem item(expandFile());
    QWidget screen;
    const QStyleOptionGraphicsItem option;
    QImage image = whitePicture({60, 60});
    QPainter painter(&image);
    painter.setTransform(transform);
    item.paint(&painter, &option, &screen);
    painter.end();
    QCOMPARE(image, whitePicture({60, 60}));
}

void TestSvgItem::shouldShowTheArrowWhileHovered()
{
    QGraphicsScene scene;
    auto *const item = std::make_unique<SvgItem>(expandFile()).release();
    scene.addItem(item);
    QVERIFY(!item->hasCursor());

    sendHover(*item, QEvent::GraphicsSceneHoverEnter);
    QVERIFY(item->hasCursor());
    QCOMPARE(item->cursor().shape(), Qt::ArrowCursor);

    sendHover(*item, QEvent::GraphicsSceneHoverMove, QPointF(3, 3));
    QCOMPARE(item->cursor().shape(), Qt::ArrowCursor);

    sendHover(*item, QEvent::GraphicsSceneHoverLeave);
    QVERIFY(!item->hasCursor());
}

void TestSvgItem::shouldFindAMissingPictureWhenItIsSetAgain()
{
    QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("late.svg"));
    SvgItem item(file);
    QVERIFY(!item.showsPicture());
    QVERIFY(QFile::copy(expandFile(), file));
    QVERIFY(!item.showsPicture());

    item.setSvgFile(file);

    QVERIFY(item.showsPicture());
    QCOMPARE(item.boundingRect(), SvgItem(expandFile()).boundingRect());
}

void TestSvgItem::shouldBeToldFromOtherItems()
{
    SpearItem spear(QStringLiteral("Spear"), 0, 20);
    SvgItem plain(expandFile());
    ExpandItem button(&spear);
    LinkItem link(QStringLiteral("https://example.org"));
    QGraphicsSvgItem foreign;
    QSet<int> types{foreign.type(), spear.type(), spear.textItem()->type()};

    for (QGraphicsItem *const item :
         std::initializer_list<QGraphicsItem *>{&plain, &button, &link, spear.statusItem()})
        types.insert(item->type());

    QCOMPARE(types.size(), 7);
    QVERIFY(qgraphicsitem_cast<SvgItem *>(static_cast<QGraphicsItem *>(&plain)));
    QVERIFY(!qgraphicsitem_cast<TaskStatusItem *>(static_cast<QGraphicsItem *>(&plain)));
    QVERIFY(!qgraphicsitem_cast<TaskStatusItem *>(static_cast<QGraphicsItem *>(&link)));
    QVERIFY(qgraphicsitem_cast<TaskStatusItem *>(static_cast<QGraphicsItem *>(spear.statusItem())));
}

void TestSvgItem::shouldAcceptHoverWhenMadeWithAFile()
{
    QVERIFY(SvgItem(expandFile()).acceptHoverEvents());
    QVERIFY(SvgItem(QString()).acceptHoverEvents());
}

FISHBONE_TEST(TestSvgItem)
#include "tst_svgitem.moc"
