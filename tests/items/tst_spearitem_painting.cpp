// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// The part of SpearItem that draws.

#include <fishbone/items/spearitem.h>

#include <QPixmap>
#include <QSvgRenderer>
#include <QtTest>

#include <fishbone/items/textitem.h>
#include <tests/items/boneparts.h>
#include <tests/items/shownbones.h>
#include <tests/program/testprogram.h>
#include <tests/support/drawing.h>
#include <tests/support/pictures.h>
#include <tests/support/statelooks.h>

using namespace TestSupport;

class TestSpearItemPainting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldDrawTheBoneInThePenOfItsState_data();
    void shouldDrawTheBoneInThePenOfItsState();
    void shouldDrawAnImmovableBoneRed_data();
    void shouldDrawAnImmovableBoneRed();
    void shouldDrawTheBoneInADefaultPenWithoutAnother();
    void shouldDrawNoBoneWhileMoving_data();
    void shouldDrawNoBoneWhileMoving();
    void shouldDrawTheCircleWhileLinkedOnly();
    void shouldDrawTheCircleBetweenTheNumberedAndTheLastChild_data();
    void shouldDrawTheCircleBetweenTheNumberedAndTheLastChild();
    void shouldDrawTheCircleAtItsStartWithoutChildren();
    void shouldDrawTheCircleOfAnImmovableBoneAsItsBone();
    void shouldDrawTheHeader_data();
    void shouldDrawTheHeader();
    void shouldDrawNoPictureThatIsMissing();
    void shouldDrawPicturesThatAHostAssigns();
    void shouldMakeTheWedgeThinnerTowardsTheTail();
    void shouldLimitTheWedge_data();
    void shouldLimitTheWedge();
    void shouldDrawNoWedgeWhenTheTailIsHigher();
    void shouldDrawTheCircleOfAHeaderInItsNormalTextColor();
    void shouldNotDrawItsText();
};

namespace {

using ShownBones::man;
const QColor backbone(60, 184, 121);
constexpr int scale = 4;

/** A horizontal bone of 200 units from (0, 0) to the left, of the tests' style. */
struct FlatBone
{
    FlatBone()
        : drawing(QStringLiteral("Effect[Man[Training]]"), styleWithLooks())
        , spear(drawing.spear(QStringLiteral("Training")))
        , node(drawing.node(QStringLiteral("Training")))
    {
        spear->setLine(0, 0, -200, 0);
    }

    QImage painted(QStyle::State state = QStyle::State_None) const
    {
        return paintedItem(*spear, canvas, state);
    }
    /** How many units the line measures across in its middle, in exactly that colour. */
    double thickness(const QImage &picture, const QColor &color) const
    {
        return double(areaOf(picture.copy(canvas.pixelAt(QPointF(-100, 0)).x(), 0, 1,
                                          picture.height()),
                             color)
                          .height()) /
               scale;
    }

    Drawing drawing;
    SpearItem *spear;
    TreeItem *node;
    Canvas canvas{{-230, -30, 260, 60}, scale};
};

/** Where exactly that colour is in a canvas, in units. */
QRectF unitsOf(const QImage &picture, const Canvas &canvas, const QColor &color)
{
    const QRectF pixels = areaOf(picture, color);
    return {pixels.topLeft() / canvas.scale + canvas.area.topLeft(), pixels.size() / canvas.scale};
}

/** Lets a rectangle differ from another by what one pixel makes out on either side. */
bool isAbout(const QRectF &actual, const QRectF &expected)
{
    const QRectF difference(actual.topLeft() - expected.topLeft(),
                            actual.bottomRight() - expected.bottomRight());
    return std::abs(difference.left()) <= 0.5 && std::abs(difference.top()) <= 0.5 &&
           std::abs(difference.right()) <= 0.5 && std::abs(difference.bottom()) <= 0.5;
}

QRectF square(const QPointF &center, double side)
{
    return {center - QPointF(side / 2, side / 2), QSizeF(side, side)};
}
} // namespace

void TestSpearItemPainting::shouldDrawTheBoneInThePenOfItsState_data()
{
    QTest::addColumn<bool>("linked");
    QTest::addColumn<int>("optionState");
    QTest::addColumn<int>("look");

    const int selected = QStyle::State_Selected;
    const int hovered = QStyle::State_MouseOver;
    QTest::newRow("normal") << false << 0 << int(SpearStyle::ssNormal);
    QTest::newRow("selected") << false << selected << int(SpearStyle::ssSelected);
    QTest::newRow("hovered") << false << hovered << int(SpearStyle::ssHovered);
    QTest::newRow("selected, hovered")
        << false << (selected | hovered) << int(SpearStyle::ssHovered);
    QTest::newRow("linked") << true << 0 << int(SpearStyle::ssLinked);
    QTest::newRow("all") << true << (selected | hovered) << int(SpearStyle::ssLinked);
}

void TestSpearItemPainting::shouldDrawTheBoneInThePenOfItsState()
{
    QFETCH(bool, linked);
    QFETCH(int, optionState);
    QFETCH(int, look);
    const FlatBone bone;
    bone.spear->setLinked(linked, 0);

    const QImage picture = bone.painted(QStyle::State(optionState));

    for (int i = SpearStyle::ssNormal; i <= SpearStyle::ssLinked; ++i) {
        const QPen pen = lookOf(SpearStyle::SpearState(i)).pen;
        QCOMPARE(bone.thickness(picture, pen.color()), i == look ? pen.widthF() : 0.0);
    }
    const double width = lookOf(SpearStyle::SpearState(look)).pen.widthF();
    const QRectF whole =
        unitsOf(picture, bone.canvas, lookOf(SpearStyle::SpearState(look)).pen.color());
    QVERIFY(std::abs(whole.left() - (-200 - width / 2)) <= 0.5); // to its end, with a square cap
}

void TestSpearItemPainting::shouldDrawAnImmovableBoneRed_data()
{
    QTest::addColumn<int>("optionState");
    QTest::addColumn<QPen>("pen");

    for (const QStyle::State state :
         {QStyle::State_None, QStyle::State_Selected, QStyle::State_MouseOver}) {
        QTest::addRow("thick, state %x", unsigned(state)) << int(state) << QPen(Qt::blue, 9);
        QTest::addRow("dashed, state %x", unsigned(state))
            << int(state) << QPen(Qt::blue, 3, Qt::DotLine);
        QTest::addRow("no pen, state %x", unsigned(state)) << int(state) << QPen(Qt::NoPen);
    }
}

void TestSpearItemPainting::shouldDrawAnImmovableBoneRed()
{
    QFETCH(int, optionState);
    QFETCH(QPen, pen);
    const FlatBone bone;
    bone.node->setSpearItemIsMovable(false);
    for (int i = SpearStyle::ssNormal; i <= SpearStyle::ssLinked; ++i)
        bone.node->spearStyle()->setBroderPen(SpearStyle::SpearState(i), pen);

    const QImage picture = bone.painted(QStyle::State(optionState));

    QCOMPARE(bone.thickness(picture, Qt::red), 1.0);
    QCOMPARE(inkedPixels(picture), pixelsOf(picture, Qt::red));
    QVERIFY(pixelsOf(picture, Qt::red) >= 200 * scale * scale); // a solid line
}

void TestSpearItemPainting::shouldDrawTheBoneInADefaultPenWithoutAnother()
{
    const FlatBone bone;
    bone.node->setSpearStyle(QJsonObject{{QStringLiteral("textCount"), 0}});

    const QImage picture = bone.painted(QStyle::State_Selected);

    QCOMPARE(bone.thickness(picture, Qt::black), 1.0);
    QCOMPARE(inkedPixels(picture), pixelsOf(picture, Qt::black));
}

void TestSpearItemPainting::shouldDrawNoBoneWhileMoving_data()
{
    QTest::addColumn<bool>("movable");
    QTest::addColumn<bool>("linked");

    QTest::newRow("plain") << true << false;
    QTest::newRow("linked") << true << true;
    QTest::newRow("immovable") << false << false;
    QTest::newRow("immovable, linked") << false << true;
}

void TestSpearItemPainting::shouldDrawNoBoneWhileMoving()
{
    QFETCH(bool, movable);
    QFETCH(bool, linked);
    const FlatBone bone;
    bone.node->setSpearItemIsMovable(movable);
    bone.spear->setMoving(true);
    bone.spear->setLinked(linked, 0);

    const QImage picture = bone.painted();

    const QColor color = lookOf(SpearStyle::ssLinked).pen.color();
    QCOMPARE(bone.canvas.colorAt(picture, QPointF(-100, 0)), QColor(Qt::white));
    QCOMPARE(bone.canvas.colorAt(picture, QPointF(0, 0)), linked ? color : QColor(Qt::white));
    QCOMPARE(inkedPixels(picture), pixelsOf(picture, color)); // never red
    QCOMPARE(inkedPixels(picture) > 0, linked);
}

void TestSpearItemPainting::shouldDrawTheCircleWhileLinkedOnly()
{
    const FlatBone bone;

    bone.spear->setLinked(true, 0);
    const QImage linked = bone.painted();
    bone.spear->setLinked(false, 0);
    const QImage unlinked = bone.painted();

    QCOMPARE(bone.canvas.colorAt(linked, QPointF(4, 4)), lookOf(SpearStyle::ssLinked).pen.color());
    QCOMPARE(bone.canvas.colorAt(unlinked, QPointF(4, 4)), QColor(Qt::white));
}

void TestSpearItemPainting::shouldDrawTheCircleBetweenTheNumberedAndTheLastChild_data()
{
    QTest::addColumn<int>("children");
    QTest::addColumn<int>("number");
    QTest::addColumn<QPointF>("center");

    // The first points of the children, in their order; the bone's own is (10, -60).
    const QPointF own(10, -60);
    const QPointF first(-20, 0);
    const QPointF second(-60, 20);
    const QPointF third(-120, 60);
    QTest::newRow("one, before it") << 1 << 0 << first;
    QTest::newRow("one, behind it") << 1 << 1 << (first + own) / 2;
    QTest::newRow("three, before the first") << 3 << 0 << (third + first) / 2;
    QTest::newRow("three, before the second") << 3 << 1 << (third + second) / 2;
    QTest::newRow("three, before the last") << 3 << 2 << third;
    QTest::newRow("three, behind the last") << 3 << 3 << (third + own) / 2;
    QTest::newRow("three, far behind") << 3 << 99 << (third + own) / 2;
    QTest::newRow("none") << 0 << 0 << own;
}

void TestSpearItemPainting::shouldDrawTheCircleBetweenTheNumberedAndTheLastChild()
{
    QFETCH(int, children);
    QFETCH(int, number);
    QFETCH(QPointF, center);
    const Drawing drawing(children == 0   ? QStringLiteral("Effect[Man]")
                          : children == 1 ? QStringLiteral("Effect[Man[A]]")
                                          : QStringLiteral("Effect[Man[A,B,C]]"),
                          styleWithLooks());
    SpearItem *const spear = drawing.spear(man);
    spear->setLine(10, -60, -160, 90);
    const QVector<QLineF> lines{{-20, 0, -99, 0}, {-60, 20, -99, 20}, {-120, 60, -199, 60}};
    for (int i = 0; i < children; ++i)
        spear->childSpear(i)->setLine(lines.at(i));
    spear->setMoving(true); // the circle alone
    spear->setLinked(true, number);
    const Canvas canvas{{-200, -100, 250, 220}, scale};

    const QImage picture = paintedItem(*spear, canvas);

    const QPen pen = lookOf(SpearStyle::ssLinked).pen;
    QVERIFY(isAbout(unitsOf(picture, canvas, pen.color()), square(center, 16 + pen.widthF())));
    QCOMPARE(canvas.colorAt(picture, center), pen.color());
    QCOMPARE(canvas.colorAt(picture, center + QPointF(5, 5)), pen.color());
    QCOMPARE(canvas.colorAt(picture, center + QPointF(7.5, 7.5)), QColor(Qt::white)); // round
    const double radius = 8 + pen.widthF() / 2;
    QVERIFY(std::abs(inkedPixels(picture) - std::acos(-1.0) * radius * radius * scale * scale) <
            100);
}

void TestSpearItemPainting::shouldDrawTheCircleAtItsStartWithoutChildren()
{
    const FlatBone bone;
    bone.spear->setMoving(true);
    bone.spear->setLinked(true, 3);

    const QImage picture = bone.painted();

    const QPen pen = lookOf(SpearStyle::ssLinked).pen;
    QVERIFY(isAbout(unitsOf(picture, bone.canvas, pen.color()),
                    square(QPointF(0, 0), 16 + pen.widthF())));
}

void TestSpearItemPainting::shouldDrawTheCircleOfAnImmovableBoneAsItsBone()
{
    const FlatBone bone;
    bone.node->setSpearItemIsMovable(false);
    bone.spear->setLinked(true, 0);

    const QImage picture = bone.painted();

    QCOMPARE(bone.canvas.colorAt(picture, QPointF(4, 4)), QColor(Qt::red));
    QCOMPARE(inkedPixels(picture), pixelsOf(picture, Qt::red));
}

void TestSpearItemPainting::shouldDrawTheHeader_data()
{
    QTest::addColumn<QLineF>("line");

    QTest::newRow("level") << QLineF(0, 0, -700, 0);
    QTest::newRow("elsewhere") << QLineF(40, 20, -300, 20);
    QTest::newRow("tail below the head") << QLineF(0, 0, -400, 60);
    QTest::newRow("long") << QLineF(0, 0, -6000, 0);
    QTest::newRow("rightwards") << QLineF(0, 0, 400, 0);
}

void TestSpearItemPainting::shouldDrawTheHeader()
{
    QFETCH(QLineF, line);
    const Drawing drawing(QStringLiteral("Effect[Man]"), styleWithLooks());
    drawing.head->setLine(line);
    const Canvas canvas{drawing.head->boundingRect().toAlignedRect().adjusted(-20, -20, 20, 20), 2};
    QImage expected = whitePicture(canvas.size());
    {
        QPainter painter(&expected);
        canvas.setUp(painter);
        const double angle = std::min(std::atan(5 / line.length()), 0.002181661564992912);
        const QPointF half(0, std::tan(angle) * (line.x2() - line.x1()));
        painter.setPen(backbone);
        painter.setBrush(backbone);
        painter.drawPolygon(QPolygonF({line.p2(), line.p1() + half, line.p1() - half}));
        QSvgRenderer head(QStringLiteral(":/fishboneDiagram/head.svg"));
        QSvgRenderer tail(QStringLiteral(":/fishboneDiagram/tail.svg"));
        const QSize headSize = head.defaultSize();
        const QSize tailSize = tail.defaultSize();
        head.render(&painter, QRectF(line.p1() - QPointF(0, headSize.height() / 2), headSize));
        tail.render(&painter,
                    QRectF(line.p2() - QPointF(tailSize.width(), tailSize.height() / 2), tailSize));
    }

    const QImage picture = paintedItem(*drawing.head, canvas);

    QVERIFY(pixelsOf(picture, backbone) > 500);
    QCOMPARE(difference(picture, expected), QString());
}

void TestSpearItemPainting::shouldDrawNoPictureThatIsMissing()
{
    const Drawing drawing(QStringLiteral("Effect[Man]"), styleWithLooks());
    drawing.head->setLine(0, 0, -500, 0);
    const Canvas canvas{drawing.head->boundingRect().toAlignedRect(), 2};
    const QPixmap head = *SpearItem::m_pixHeader;
    const QPixmap tail = *SpearItem::m_pixTail;

    *SpearItem::m_pixHeader = QPixmap();
    *SpearItem::m_pixTail = QPixmap();
    const QImage picture = paintedItem(*drawing.head, canvas);
    *SpearItem::m_pixHeader = head;
    *SpearItem::m_pixTail = tail;

    QVERIFY(pixelsOf(picture, backbone) > 500);
    QCOMPARE(inkedPixels(picture), pixelsOf(picture, backbone)); // the wedge alone
}

void TestSpearItemPainting::shouldDrawPicturesThatAHostAssigns()
{
    SpearItem header(QString(), 0, 20);
    header.setLine(0, 0, -300, 0);
    const Canvas canvas{QRect(-340, -60, 420, 120), 1};
    SpearItem::m_pixHeader->fill(Qt::red);
    delete SpearItem::m_pixTail;
    SpearItem::m_pixTail = new QPixmap(30, 40);
    SpearItem::m_pixTail->fill(Qt::blue);

    const QImage picture = paintedItem(header, canvas);

    const QSize head = SpearItem::m_pixHeader->size();
    QCOMPARE(areaOf(picture, Qt::red).size(), head);
    QCOMPARE(areaOf(picture, Qt::blue), QRect(10, 40, 30, 40));
    delete std::exchange(SpearItem::m_pixHeader, nullptr); // none at all
    QCOMPARE(pixelsOf(paintedItem(header, canvas), Qt::red), 0);
    QVERIFY(header.boundingRect().isValid());
}

void TestSpearItemPainting::shouldMakeTheWedgeThinnerTowardsTheTail()
{
    const Drawing drawing(QStringLiteral("Effect[Man]"), styleWithLooks());
    drawing.head->setLine(0, 0, -3000, 0);
    const Canvas canvas{{-3000, -10, 3000, 20}, 2};

    const QImage picture = paintedItem(*drawing.head, canvas);

    // 5 units on either side of the axis at the head, none at the tail, and the pen everywhere.
    for (const int x : {-1, -300, -1500, -2700}) {
        const int column = canvas.pixelAt(QPointF(x, 0)).x();
        const QRect area = areaOf(picture.copy(column, 0, 1, picture.height()), backbone);
        const double expected = 2 * 5 * (3000.0 + x) / 3000 + 1;
        QVERIFY2(std::abs(area.height() / 2.0 - expected) <= 1, qPrintable(QString::number(x)));
    }
}

void TestSpearItemPainting::shouldLimitTheWedge_data()
{
    QTest::addColumn<double>("length");

    for (const double length : {100.0, 1000.0, 2291.0, 5000.0})
        QTest::addRow("%g", length) << length;
}

void TestSpearItemPainting::shouldLimitTheWedge()
{
    QFETCH(double, length);
    const Drawing drawing(QStringLiteral("Effect[Man]"), styleWithLooks());
    drawing.head->setLine(0, 0, -length, 0);
    const Canvas canvas{{-60, -10, 60, 20}, 10};

    const QImage picture = paintedItem(*drawing.head, canvas);

    const double half = std::min(5.0, std::tan(0.002181661564992912) * length);
    const double atProbe = half * (length - 2) / length + 0.5;
    QCOMPARE(canvas.colorAt(picture, QPointF(-2, atProbe - 0.2)), backbone);
    QCOMPARE(canvas.colorAt(picture, QPointF(-2, -atProbe + 0.2)), backbone);
    QCOMPARE(canvas.colorAt(picture, QPointF(-2, atProbe + 0.3)), QColor(Qt::white));
    QCOMPARE(canvas.colorAt(picture, QPointF(-2, -atProbe - 0.3)), QColor(Qt::white));
}

void TestSpearItemPainting::shouldDrawNoWedgeWhenTheTailIsHigher()
{
    const Drawing drawing(QStringLiteral("Effect[Man]"), styleWithLooks());
    const Canvas canvas{{-600, -80, 700, 160}, 2};

    drawing.head->setLine(0, 0, -500, -1);
    const QImage higher = paintedItem(*drawing.head, canvas);
    drawing.head->setLine(0, 0, -500, 0);
    const QImage level = paintedItem(*drawing.head, canvas);

    QCOMPARE(pixelsOf(higher, backbone), 0);
    QVERIFY(inkedPixels(higher) > 500); // the pictures are there
    QVERIFY(pixelsOf(level, backbone) > 500);
}

void TestSpearItemPainting::shouldDrawTheCircleOfAHeaderInItsNormalTextColor()
{
    const Drawing drawing(QStringLiteral("Effect[Man,Machine]"), styleWithLooks());
    drawing.head->setLine(0, 0, -500, 0);
    drawing.spear(man)->setLine(-100, 0, -150, 90);
    drawing.spear(QStringLiteral("Machine"))->setLine(-200, 0, -250, -90);
    drawing.head->setLinked(true, 0);
    const Canvas canvas{{-600, -80, 700, 160}, 4};

    const QImage picture = paintedItem(*drawing.head, canvas);

    const QColor color = lookOf(SpearStyle::ssNormal).text;
    QVERIFY(isAbout(unitsOf(picture, canvas, color), square(QPointF(-150, 0), 17)));
    QCOMPARE(canvas.colorAt(picture, QPointF(-150, 0)), color);
    for (const SpearStyle::SpearState state :
         {SpearStyle::ssSelected, SpearStyle::ssHovered, SpearStyle::ssLinked}) {
        QCOMPARE(pixelsOf(picture, lookOf(state).text), 0);
        QCOMPARE(pixelsOf(picture, lookOf(state).pen.color()), 0);
    }
}

void TestSpearItemPainting::shouldNotDrawItsText()
{
    // The text box does: it is an item of its own.
    const FlatBone bone;

    const QImage picture = bone.painted(QStyle::State_Selected);

    QCOMPARE(pixelsOf(picture, lookOf(SpearStyle::ssSelected).text), 0);
    QCOMPARE(pixelsOf(picture, lookOf(SpearStyle::ssSelected).background), 0);
}

FISHBONE_TEST(TestSpearItemPainting)
#include "tst_spearitem_painting.moc"
