// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/textitem.h>

#include <QBuffer>
#include <QSvgGenerator>
#include <QTextDocument>
#include <QtTest>

#include <fishbone/items/spearitem.h>
#include <tests/program/testprogram.h>
#include <tests/support/drawing.h>
#include <tests/support/pictures.h>
#include <tests/support/statelooks.h>

using namespace TestSupport;

class TestTextItem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowItsText();
    void shouldMeasureItsDocument_data();
    void shouldMeasureItsDocument();
    void shouldTellWhetherItShowsATextInAFont();
    void shouldLayOutNothingThatItShows();
    void shouldScheduleNothingForTheColorThatItShows();
    void shouldFollowItsOwnInteractionBeforeItIsPainted();
    void shouldForgetTheMouseWhenItLeavesItsScene();
    void shouldShowTheHandWhileTopmost();
    void shouldShowTheArrowWhileCovered();
    void shouldPassHoverOnToTheBaseClass();
    void shouldDrawAStrokeForATextTooSmallToRead_data();
    void shouldDrawAStrokeForATextTooSmallToRead();
    void shouldKeepTheSmallestTextInADrawing();
};

void TestTextItem::shouldShowItsText()
{
    TextItem item(QStringLiteral("Cause"));
    QGraphicsItem *const base = &item;

    QCOMPARE(item.toPlainText(), QStringLiteral("Cause"));
    QCOMPARE(item.parentItem(), nullptr);
    QCOMPARE(qgraphicsitem_cast<TextItem *>(base), &item);
    QVERIFY(!qgraphicsitem_cast<QGraphicsTextItem *>(base)); // a type of its own
    QVERIFY(!(item.flags() & QGraphicsItem::ItemIsSelectable));
    QCOMPARE(item.textInteractionFlags(), Qt::NoTextInteraction);
}

void TestTextItem::shouldMeasureItsDocument_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("pixels");

    QTest::newRow("word") << QStringLiteral("Cause") << 14;
    QTest::newRow("large") << QStringLiteral("Cause") << 40;
    QTest::newRow("Chinese") << QStringLiteral("技能与培训") << 14;
    QTest::newRow("two lines") << QStringLiteral("Cause\nand effect") << 14;
    QTest::newRow("empty") << QString() << 14;
}

void TestTextItem::shouldMeasureItsDocument()
{
    QFETCH(QString, text);
    QFETCH(int, pixels);
    QFont font;
    font.setPixelSize(pixels);
    QTextDocument expected;
    expected.setDefaultFont(font);
    expected.setPlainText(text);

    TextItem item(QStringLiteral("before"));
    item.showText(font, text);

    QCOMPARE(item.textSize(), expected.size());
    QCOMPARE(item.textWidth(), expected.size().width());
    QCOMPARE(item.textHeight(), expected.size().height());
}

void TestTextItem::shouldTellWhetherItShowsATextInAFont()
{
    QFont font;
    font.setPixelSize(20);
    TextItem item(QStringLiteral("Cause"));
    item.showText(font, QStringLiteral("Effect"));
    QFont other(font);
    other.setBold(true);

    QVERIFY(item.shows(font, QStringLiteral("Effect")));
    QVERIFY(!item.shows(font, QStringLiteral("Cause")));
    QVERIFY(!item.shows(other, QStringLiteral("Effect")));
    QCOMPARE(item.font(), font);
}

void TestTextItem::shouldLayOutNothingThatItShows()
{
    QFont font;
    font.setPixelSize(20);
    TextItem item(QString{});
    item.showText(font, QStringLiteral("Effect"));
    const QSignalSpy changes(item.document(), &QTextDocument::contentsChanged);

    item.showText(font, QStringLiteral("Effect"));

    QCOMPARE(changes.count(), 0);
}

void TestTextItem::shouldScheduleNothingForTheColorThatItShows()
{
    QGraphicsScene scene;
    auto *const item = std::make_unique<TextItem>(QStringLiteral("Cause")).release();
    scene.addItem(item);
    item->showColor(Qt::blue);
    QSignalSpy changes(&scene, &QGraphicsScene::changed);
    QCoreApplication::processEvents();
    changes.clear();

    item->showColor(Qt::blue);
    QCoreApplication::processEvents();
    QCOMPARE(changes.count(), 0);

    item->showColor(Qt::red);
    QCoreApplication::processEvents();
    QCOMPARE(changes.count(), 1);
    QCOMPARE(item->defaultTextColor(), QColor(Qt::red));
}

void TestTextItem::shouldFollowItsOwnInteractionBeforeItIsPainted()
{
    const Drawing drawing(QStringLiteral("Effect[Man]"), styleWithLooks());
    SpearItem *const spear = drawing.spear(QStringLiteral("Man"));
    TextItem *const item = spear->textItem();
    item->setFlag(QGraphicsItem::ItemIsSelectable);
    const auto shows = [&](SpearStyle::SpearState own, SpearStyle::SpearState look) {
        return item->ownState() == own && item->font() == lookOf(look).font &&
               item->defaultTextColor() == lookOf(look).text;
    };
    QVERIFY(shows(SpearStyle::ssNormal, SpearStyle::ssNormal));

    sendHover(*item, QEvent::GraphicsSceneHoverEnter);
    QVERIFY(shows(SpearStyle::ssHovered, SpearStyle::ssHovered));
    QCOMPARE(spear->currentState(), SpearStyle::ssNormal); // the spear is not below the mouse
    item->setSelected(true);
    QVERIFY(shows(SpearStyle::ssHovered, SpearStyle::ssHovered));
    sendHover(*item, QEvent::GraphicsSceneHoverLeave);
    QVERIFY(shows(SpearStyle::ssSelected, SpearStyle::ssSelected));
    QCOMPARE(spear->currentState(), SpearStyle::ssNormal);
    spear->setLinked(true, 0);
    QVERIFY(shows(SpearStyle::ssSelected, SpearStyle::ssLinked));
    spear->setLinked(false, 0);
    QVERIFY(shows(SpearStyle::ssSelected, SpearStyle::ssSelected));
    item->setSelected(false);
    QVERIFY(shows(SpearStyle::ssNormal, SpearStyle::ssNormal));
    spear->setSelected(true);
    QVERIFY(shows(SpearStyle::ssNormal, SpearStyle::ssSelected));
    sendHover(*item, QEvent::GraphicsSceneHoverEnter);
    QVERIFY(shows(SpearStyle::ssHovered, SpearStyle::ssHovered));
}

void TestTextItem::shouldForgetTheMouseWhenItLeavesItsScene()
{
    Drawing drawing(QStringLiteral("Effect[Man]"), styleWithLooks());
    TextItem *const item = drawing.spear(QStringLiteral("Man"))->textItem();
    sendHover(*item, QEvent::GraphicsSceneHoverEnter);

    drawing.scene.removeItem(drawing.head);
    QCOMPARE(item->ownState(), SpearStyle::ssNormal);
    QCOMPARE(item->font(), lookOf(SpearStyle::ssNormal).font);

    drawing.scene.addItem(drawing.head);
    QCOMPARE(item->ownState(), SpearStyle::ssNormal);
}

void TestTextItem::shouldShowTheHandWhileTopmost()
{
    Drawing drawing(QStringLiteral("Effect[Man]"));
    TextItem *const item = drawing.spear(QStringLiteral("Man"))->textItem();
    QGraphicsView view(&drawing.scene);
    const QPointF middle = item->boundingRect().center();

    sendHover(*item, QEvent::GraphicsSceneHoverEnter, middle);
    QCOMPARE(view.viewport()->cursor().shape(), Qt::PointingHandCursor);

    sendHover(*item, QEvent::GraphicsSceneHoverLeave, middle);
    QCOMPARE(view.viewport()->cursor().shape(), Qt::ArrowCursor);

    sendHover(*item, QEvent::GraphicsSceneHoverMove, middle);
    QCOMPARE(view.viewport()->cursor().shape(), Qt::PointingHandCursor);
}

void TestTextItem::shouldShowTheArrowWhileCovered()
{
    Drawing drawing(QStringLiteral("Effect[Man]"));
    TextItem *const item = drawing.spear(QStringLiteral("Man"))->textItem();
    const QPointF middle = item->boundingRect().center();
    drawing.scene.addRect(QRectF(item->mapToScene(middle), QSizeF(0, 0)).adjusted(-5, -5, 5, 5));
    QGraphicsView view(&drawing.scene);
    view.viewport()->setCursor(Qt::CrossCursor);

    sendHover(*item, QEvent::GraphicsSceneHoverEnter, middle);
    QCOMPARE(view.viewport()->cursor().shape(), Qt::ArrowCursor);

    view.viewport()->setCursor(Qt::CrossCursor);
    sendHover(*item, QEvent::GraphicsSceneHoverMove, middle);
    QCOMPARE(view.viewport()->cursor().shape(), Qt::ArrowCursor);
}

void TestTextItem::shouldPassHoverOnToTheBaseClass()
{
    // A link in a text is told apart from the text around it by the base class alone.
    QGraphicsScene scene;
    auto *const item = std::make_unique<TextItem>(QString()).release();
    scene.addItem(item);
    item->setHtml(QStringLiteral("<a href='https://example.org'>Cause</a>"));
    item->setTextInteractionFlags(Qt::LinksAccessibleByMouse);
    const QSignalSpy hovered(item, &QGraphicsTextItem::linkHovered);

    sendHover(*item, QEvent::GraphicsSceneHoverEnter, item->boundingRect().center());
    sendHover(*item, QEvent::GraphicsSceneHoverMove, item->boundingRect().center());

    QCOMPARE(hovered.count(), 1);
}

void TestTextItem::shouldDrawAStrokeForATextTooSmallToRead_data()
{
    QTest::addColumn<double>("height"); // in pixels of the device
    QTest::addColumn<double>("ratio");
    QTest::addColumn<bool>("isStroke");

    QTest::newRow("readable") << 12.0 << 1.0 << false;
    QTest::newRow("two pixels") << 2.01 << 1.0 << false;
    QTest::newRow("less") << 1.9 << 1.0 << true;
    QTest::newRow("less, on a fine screen") << 1.9 << 2.0 << true;
}

void TestTextItem::shouldDrawAStrokeForATextTooSmallToRead()
{
    QFETCH(double, height);
    QFETCH(double, ratio);
    QFETCH(bool, isStroke);
    // Blanks have no ink, so that only a stroke shows.
    TextItem item(QStringLiteral("                              "));
    QImage image(QSize(100, 40) * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::white);
    {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(10, 10);
        const double scale = height / ratio / item.textHeight();
        painter.scale(scale, scale);
        QStyleOptionGraphicsItem option;
        option.rect = item.boundingRect().toAlignedRect();
        item.paint(&painter, &option);
    }

    QCOMPARE(inkedPixels(image) > 0, isStroke);
}

void TestTextItem::shouldKeepTheSmallestTextInADrawing()
{
    TextItem item(QStringLiteral("Cause"));
    QBuffer buffer;
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    {
        QPainter painter(&generator);
        painter.scale(0.01, 0.01);
        QStyleOptionGraphicsItem option;
        option.rect = item.boundingRect().toAlignedRect();
        item.paint(&painter, &option);
    }

    QVERIFY(buffer.data().contains("Cause"));
}

FISHBONE_TEST(TestTextItem)
#include "tst_textitem.moc"
