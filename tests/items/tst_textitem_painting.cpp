// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// The part of TextItem that draws.

#include <fishbone/items/textitem.h>

#include <QtTest>

#include <fishbone/items/spearitem.h>
#include <tests/program/testprogram.h>
#include <tests/support/drawing.h>
#include <tests/support/pictures.h>
#include <tests/support/statelooks.h>

using namespace TestSupport;

namespace {
/** Which looks and flags a spear is given before its text box is painted. */
enum class SpearIs { Untouched, Selected, Hovered, Linked };

QColor nothing()
{
    return Qt::white;
}
} // namespace

Q_DECLARE_METATYPE(SpearIs)

class TestTextItemPainting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldLookAsTheStateAsks_data();
    void shouldLookAsTheStateAsks();
    void shouldKeepTheTextOfALinkedHeaderNormal();
    void shouldFrameTheInsideOfItsRectangle_data();
    void shouldFrameTheInsideOfItsRectangle();
    void shouldStayInsideItsRectangleWithAnyPen_data();
    void shouldStayInsideItsRectangleWithAnyPen();
    void shouldHaveNoFrameWithAPenThatDrawsNothing();
    void shouldFillNothingWithoutABackground();
    void shouldUseDefaultsOfAStyleWithoutAnything();
    void shouldUseDefaultsWithoutASpear();

private:
    static Canvas canvasOf(const QGraphicsItem &item)
    {
        return {item.boundingRect().toAlignedRect().adjusted(-30, -30, 30, 30), 4};
    }
};

void TestTextItemPainting::shouldLookAsTheStateAsks_data()
{
    QTest::addColumn<SpearIs>("spearIs");
    QTest::addColumn<int>("optionState");
    QTest::addColumn<int>("look");
    QTest::addColumn<bool>("boxed");

    const int none = 0;
    const int selected = QStyle::State_Selected;
    const int hovered = QStyle::State_MouseOver;
    QTest::newRow("nothing") << SpearIs::Untouched << none << int(SpearStyle::ssNormal) << false;
    QTest::newRow("selected box") << SpearIs::Untouched << selected << int(SpearStyle::ssSelected)
                                  << true;
    QTest::newRow("hovered box") << SpearIs::Untouched << hovered << int(SpearStyle::ssHovered)
                                 << true;
    QTest::newRow("selected and hovered box")
        << SpearIs::Untouched << (selected | hovered) << int(SpearStyle::ssHovered) << true;
    QTest::newRow("focus alone") << SpearIs::Untouched << int(QStyle::State_HasFocus)
                                 << int(SpearStyle::ssNormal) << false;
    QTest::newRow("selected spear")
        << SpearIs::Selected << none << int(SpearStyle::ssSelected) << true;
    QTest::newRow("selected spear, hovered box")
        << SpearIs::Selected << hovered << int(SpearStyle::ssHovered) << true;
    QTest::newRow("hovered spear")
        << SpearIs::Hovered << none << int(SpearStyle::ssHovered) << true;
    QTest::newRow("hovered spear, selected box")
        << SpearIs::Hovered << selected << int(SpearStyle::ssHovered) << true;
    QTest::newRow("linked spear") << SpearIs::Linked << none << int(SpearStyle::ssLinked) << true;
    QTest::newRow("linked spear, selected and hovered box")
        << SpearIs::Linked << (selected | hovered) << int(SpearStyle::ssLinked) << true;
}

void TestTextItemPainting::shouldLookAsTheStateAsks()
{
    QFETCH(SpearIs, spearIs);
    QFETCH(int, optionState);
    QFETCH(int, look);
    QFETCH(bool, boxed);
    const Drawing drawing(QStringLiteral("Effect[Man]"), styleWithLooks());
    SpearItem *const spear = drawing.spear(QStringLiteral("Man"));
    TextItem *const item = spear->textItem();
    if (spearIs == SpearIs::Selected)
        spear->setSelected(true);
    else if (spearIs == SpearIs::Hovered)
        sendHover(*spear, QEvent::GraphicsSceneHoverEnter);
    else if (spearIs == SpearIs::Linked)
        spear->setLinked(true, 0);

    const QImage picture = paintedItem(*item, canvasOf(*item), QStyle::State(optionState));

    for (int i = SpearStyle::ssNormal; i <= SpearStyle::ssLinked; ++i) {
        const StateLook expected = lookOf(SpearStyle::SpearState(i));
        QCOMPARE(pixelsOf(picture, expected.text) > 0, i == look);
        QCOMPARE(pixelsOf(picture, expected.background) > 0, i == look && boxed);
        QCOMPARE(pixelsOf(picture, expected.pen.color()) > 0, i == look && boxed);
    }
    QCOMPARE(item->font(), lookOf(SpearStyle::SpearState(look)).font);
    QCOMPARE(item->defaultTextColor(), lookOf(SpearStyle::SpearState(look)).text);
    QCOMPARE(item->toPlainText(), QStringLiteral("Man"));
}

void TestTextItemPainting::shouldKeepTheTextOfALinkedHeaderNormal()
{
    const Drawing drawing(QStringLiteral("Effect[Man]"), styleWithLooks());
    TextItem *const item = drawing.head->textItem();
    drawing.head->setLinked(true, 0);

    const QImage picture = paintedItem(*item, canvasOf(*item));

    const StateLook linked = lookOf(SpearStyle::ssLinked);
    const StateLook normal = lookOf(SpearStyle::ssNormal);
    QVERIFY(pixelsOf(picture, linked.background) > 0);
    QVERIFY(pixelsOf(picture, linked.pen.color()) > 0);
    QVERIFY(pixelsOf(picture, normal.text) > 0);
    QCOMPARE(pixelsOf(picture, linked.text), 0);
    QCOMPARE(item->font(), normal.font);
}

void TestTextItemPainting::shouldFrameTheInsideOfItsRectangle_data()
{
    QTest::addColumn<int>("optionState");
    QTest::addColumn<int>("look");

    QTest::newRow("selected") << int(QStyle::State_Selected) << int(SpearStyle::ssSelected);
    QTest::newRow("hovered") << int(QStyle::State_MouseOver) << int(SpearStyle::ssHovered);
}

void TestTextItemPainting::shouldFrameTheInsideOfItsRectangle()
{
    QFETCH(int, optionState);
    QFETCH(int, look);
    const auto state = QStyle::State(optionState);
    const Drawing drawing(QStringLiteral("Effect[Man]"), styleWithLooks());
    TextItem *const item = drawing.spear(QStringLiteral("Man"))->textItem();
    const StateLook expected = lookOf(SpearStyle::SpearState(look));
    paintedItem(*item, canvasOf(*item), state); // the state's font, and so its size

    const Canvas canvas = canvasOf(*item);
    const QImage picture = paintedItem(*item, canvas, state);

    const QRectF rect = item->boundingRect();
    const double y = rect.center().y();
    const double width = expected.pen.widthF();
    QCOMPARE(canvas.colorAt(picture, QPointF(rect.left() - 0.2, y)), nothing());
    QCOMPARE(canvas.colorAt(picture, QPointF(rect.left() + 0.2, y)), expected.pen.color());
    QCOMPARE(canvas.colorAt(picture, QPointF(rect.left() + width - 0.4, y)), expected.pen.color());
    QVERIFY(canvas.colorAt(picture, QPointF(rect.left() + width + 0.4, y)) != expected.pen.color());
    const double x = rect.center().x();
    QCOMPARE(canvas.colorAt(picture, QPointF(x, rect.top() + 0.2)), expected.pen.color());
    QCOMPARE(canvas.colorAt(picture, QPointF(x, rect.top() - 0.2)), nothing());
    // The corners are rounded: 5 per cent of half the box leave less than a unit of this one.
    QVERIFY(canvas.colorAt(picture, rect.topLeft() + QPointF(0.1, 0.1)) == expected.background ||
            canvas.colorAt(picture, rect.topLeft() + QPointF(0.1, 0.1)) == expected.pen.color());
    QVERIFY(
        areaOf(picture, expected.background)
            .contains(QRect(canvas.pixelAt(rect.topLeft() + QPointF(width + 1, width + 1)),
                            canvas.pixelAt(rect.bottomRight() - QPointF(width + 1, width + 1)))));
}

void TestTextItemPainting::shouldStayInsideItsRectangleWithAnyPen_data()
{
    QTest::addColumn<double>("width");

    for (const double width : {0.0, 1.0, 10.0, 25.0, 60.0, 200.0})
        QTest::addRow("%g", width) << width;
}

void TestTextItemPainting::shouldStayInsideItsRectangleWithAnyPen()
{
    QFETCH(double, width);
    const Drawing drawing(QStringLiteral("Effect[Man]"), styleWithLooks());
    drawing.node(QStringLiteral("Man"))
        ->spearStyle()
        ->setBroderPen(SpearStyle::ssSelected, QPen(Qt::red, width));
    TextItem *const item = drawing.spear(QStringLiteral("Man"))->textItem();
    paintedItem(*item, canvasOf(*item), QStyle::State_Selected);

    const Canvas canvas = canvasOf(*item);
    QImage picture = paintedItem(*item, canvas, QStyle::State_Selected);

    QVERIFY(pixelsOf(picture, Qt::red) > 0);
    const QRect inside = item->boundingRect().toAlignedRect();
    QPainter painter(&picture);
    canvas.setUp(painter);
    painter.fillRect(inside, Qt::white);
    painter.end();
    QCOMPARE(inkedPixels(picture), 0);
}

void TestTextItemPainting::shouldHaveNoFrameWithAPenThatDrawsNothing()
{
    const Drawing drawing(QStringLiteral("Effect[Man]"), styleWithLooks());
    drawing.node(QStringLiteral("Man"))
        ->spearStyle()
        ->setBroderPen(SpearStyle::ssSelected, QPen(Qt::red, 4, Qt::NoPen));
    TextItem *const item = drawing.spear(QStringLiteral("Man"))->textItem();

    const QImage picture = paintedItem(*item, canvasOf(*item), QStyle::State_Selected);

    QCOMPARE(pixelsOf(picture, Qt::red), 0);
    QVERIFY(pixelsOf(picture, lookOf(SpearStyle::ssSelected).background) > 0);
}

void TestTextItemPainting::shouldFillNothingWithoutABackground()
{
    const Drawing drawing(QStringLiteral("Effect[Man]"), styleWithLooks());
    drawing.node(QStringLiteral("Man"))
        ->spearStyle()
        ->setTextBkColor(SpearStyle::ssSelected, QColor());
    TextItem *const item = drawing.spear(QStringLiteral("Man"))->textItem();

    const QImage picture = paintedItem(*item, canvasOf(*item), QStyle::State_Selected);

    const StateLook look = lookOf(SpearStyle::ssSelected);
    QVERIFY(pixelsOf(picture, look.pen.color()) > 0);
    QCOMPARE(pixelsOf(picture, look.background), 0);
    QCOMPARE(canvasOf(*item).colorAt(picture, item->boundingRect().topLeft() + QPointF(5, 5)),
             nothing());
}

void TestTextItemPainting::shouldUseDefaultsOfAStyleWithoutAnything()
{
    const Drawing drawing(QStringLiteral("Effect[Man]"),
                          {{QStringLiteral("textCount"), 0}}); // a style, but nothing set in it
    TextItem *const item = drawing.spear(QStringLiteral("Man"))->textItem();

    const Canvas canvas = canvasOf(*item);
    const QImage plain = paintedItem(*item, canvas);
    const QImage picture = paintedItem(*item, canvas, QStyle::State_Selected);

    QCOMPARE(item->font(), QFont());
    const QPointF left(item->boundingRect().left() + 0.2, item->boundingRect().center().y());
    QCOMPARE(canvas.colorAt(plain, left), nothing());
    QCOMPARE(canvas.colorAt(picture, left), QColor(Qt::black));           // the default pen
    QCOMPARE(canvas.colorAt(picture, left + QPointF(1.5, 0)), nothing()); // one unit wide
}

void TestTextItemPainting::shouldUseDefaultsWithoutASpear()
{
    TextItem item(QStringLiteral("Cause"));
    QFont font;
    font.setPixelSize(33);
    item.showText(font, QStringLiteral("Cause"));
    item.showColor(Qt::red);

    const QImage plain = paintedItem(item, canvasOf(item));
    const Canvas canvas = canvasOf(item);
    const QImage picture = paintedItem(item, canvas, QStyle::State_MouseOver);

    QCOMPARE(item.font(), QFont());
    QCOMPARE(item.toPlainText(), QStringLiteral("Cause"));
    QCOMPARE(pixelsOf(picture, Qt::red), 0);
    QVERIFY(pixelsOf(plain, Qt::black) > 0);
    const QPointF left(item.boundingRect().left() + 0.2, item.boundingRect().center().y());
    QCOMPARE(canvas.colorAt(picture, left), QColor(Qt::black));
    QCOMPARE(canvas.colorAt(picture, left + QPointF(1.5, 0)), nothing());
}

FISHBONE_TEST(TestTextItemPainting)
#include "tst_textitem_painting.moc"
