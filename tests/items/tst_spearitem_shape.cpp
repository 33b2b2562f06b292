// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// The part of SpearItem that says where it is: rectangles and hit shape.

#include <fishbone/items/spearitem.h>

#include <QPixmap>
#include <QTextDocument>
#include <QtTest>

#include <fishbone/items/textitem.h>
#include <tests/items/boneparts.h>
#include <tests/program/testprogram.h>

using namespace BoneParts;

class TestSpearItemShape : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldReserveASquareForTheTextOfAHeader_data();
    void shouldReserveASquareForTheTextOfAHeader();
    void shouldCoverTheTextOfAHorizontalBone();
    void shouldCoverAPointOfTheTextOfASlantedBone_data();
    void shouldCoverAPointOfTheTextOfASlantedBone();
    void shouldSurroundLineAndText_data();
    void shouldSurroundLineAndText();
    void shouldGrowByTheWholePenWidth_data();
    void shouldGrowByTheWholePenWidth();
    void shouldCoverThePicturesOfAHeader();
    void shouldLeaveOutAPictureThatIsMissing();
    void shouldCoverItsLinkCircle_data();
    void shouldCoverItsLinkCircle();
    void shouldBeHitOnLineAndText_data();
    void shouldBeHitOnLineAndText();
    void shouldBeHitAsHeaderOnLineAndPictures();

private:
    static QSizeF textSize(const SpearItem &spear) { return spear.textItem()->document()->size(); }
};

void TestSpearItemShape::shouldReserveASquareForTheTextOfAHeader_data()
{
    QTest::addColumn<QLineF>("line");
    QTest::addColumn<int>("sense");

    QTest::newRow("level") << QLineF(10, 20, -300, 20) << 1;
    QTest::newRow("downwards") << QLineF(10, 20, -300, 21) << 1;
    QTest::newRow("upwards") << QLineF(10, 20, -300, 19) << -1;
}

void TestSpearItemShape::shouldReserveASquareForTheTextOfAHeader()
{
    QFETCH(QLineF, line);
    QFETCH(int, sense);
    SpearItem header(QStringLiteral("Head"), 0, 20.0);

    header.setLine(line);

    const double height = textSize(header).height();
    QCOMPARE(header.textRect(), QRectF(10, 20, height, height * sense));
}

void TestSpearItemShape::shouldCoverTheTextOfAHorizontalBone()
{
    const MainBone bones(0);
    bones.spear->textItem()->setPos(-70, 33);

    QCOMPARE(bones.spear->textRect(), QRectF(QPointF(-70, 33), textSize(*bones.spear)));
}

void TestSpearItemShape::shouldCoverAPointOfTheTextOfASlantedBone_data()
{
    QTest::addColumn<int>("direction");

    QTest::newRow("1") << 1;
    QTest::newRow("-1") << -1;
}

void TestSpearItemShape::shouldCoverAPointOfTheTextOfASlantedBone()
{
    QFETCH(int, direction);
    const MainBone bones(direction);
    bones.spear->textItem()->setPos(-70, 33);

    QCOMPARE(bones.spear->textRect(), QRectF(-70, 33, 1, 1));
}

void TestSpearItemShape::shouldSurroundLineAndText_data()
{
    QTest::addColumn<int>("direction");
    QTest::addColumn<QLineF>("line");
    QTest::addColumn<QPointF>("text");

    QTest::newRow("horizontal") << 0 << QLineF(-50, 40, -300, 40) << QPointF(-80, 12);
    QTest::newRow("horizontal, text beside it")
        << 0 << QLineF(-50, 40, -60, 40) << QPointF(-200, 0);
    QTest::newRow("slanted down") << 1 << QLineF(-50, 40, -130, 260) << QPointF(-70, 80);
    QTest::newRow("slanted up") << -1 << QLineF(-50, 40, -130, -180) << QPointF(-70, 0);
    QTest::newRow("rightwards") << 1 << QLineF(-130, 260, -50, 40) << QPointF(-40, 80);
}

void TestSpearItemShape::shouldSurroundLineAndText()
{
    QFETCH(int, direction);
    QFETCH(QLineF, line);
    QFETCH(QPointF, text);
    const MainBone bones(direction);
    bones.spear->setPen(QPen(Qt::black, 4));
    bones.spear->setLine(line);
    bones.spear->textItem()->setPos(text);

    const QSizeF size = direction == 0 ? textSize(*bones.spear) : QSizeF(1, 1);
    const double e = (4 + 20) * 0.5;
    const QPointF topLeft(std::min({line.x1(), line.x2(), text.x()}) - e,
                          std::min({line.y1(), line.y2(), text.y()}) - e);
    const QPointF bottomRight(std::max({line.x1(), line.x2(), text.x() + size.width()}) + e,
                              std::max({line.y1(), line.y2(), text.y() + size.height()}) + e);
    QVERIFY(alike(bones.spear->boundingRect().topLeft(), topLeft));
    QVERIFY(alike(bones.spear->boundingRect().bottomRight(), bottomRight));
}

void TestSpearItemShape::shouldGrowByTheWholePenWidth_data()
{
    QTest::addColumn<double>("width");
    QTest::addColumn<double>("margin");

    QTest::newRow("0") << 0.0 << 10.0;
    QTest::newRow("1") << 1.0 << 10.5;
    QTest::newRow("2.4") << 2.4 << 11.0;
    QTest::newRow("2.6") << 2.6 << 11.5; // an integer width is a rounded one
    QTest::newRow("7") << 7.0 << 13.5;
}

void TestSpearItemShape::shouldGrowByTheWholePenWidth()
{
    QFETCH(double, width);
    QFETCH(double, margin);
    const MainBone bones(1);
    bones.spear->setLine(-50, 40, -130, 260);
    bones.spear->textItem()->setPos(-70, 80);

    bones.spear->setPen(QPen(Qt::black, width));

    const QRectF expected =
        QRectF(QPointF(-130, 40), QPointF(-50, 260)).adjusted(-margin, -margin, margin, margin);
    QCOMPARE(bones.spear->boundingRect(), expected);
}

void TestSpearItemShape::shouldCoverThePicturesOfAHeader()
{
    SpearItem header(QStringLiteral("Head"), 0, 20.0);
    header.setLine(10, 20, -500, 26);

    const QSizeF head = SpearItem::m_pixHeader->size();
    const QSizeF tail = SpearItem::m_pixTail->size();
    const QRectF expected = QRectF(QPointF(-500, 20), QPointF(10, 26)) |
                            QRectF(QPointF(10, 20 - head.height() / 2), head) |
                            QRectF(QPointF(-500 - tail.width(), 26 - tail.height() / 2), tail);
    QCOMPARE(header.boundingRect(), expected);
}

void TestSpearItemShape::shouldLeaveOutAPictureThatIsMissing()
{
    SpearItem header(QStringLiteral("Head"), 0, 20.0);
    header.setLine(10, 20, -500, 26);
    const QPixmap head = *SpearItem::m_pixHeader;
    const QPixmap tail = *SpearItem::m_pixTail;
    const QRectF line(QPointF(-500, 20), QPointF(10, 26));

    *SpearItem::m_pixHeader = QPixmap();
    const QRectF withoutHead = header.boundingRect();
    *SpearItem::m_pixTail = QPixmap();
    const QRectF withoutBoth = header.boundingRect();
    const bool hitWhereTheHeadWas = header.shape().contains(QPointF(30, 5));
    *SpearItem::m_pixHeader = head;
    *SpearItem::m_pixTail = tail;

    QCOMPARE(withoutHead, line | QRectF(QPointF(-500 - tail.width(), 26 - tail.height() / 2.0),
                                        QSizeF(tail.size())));
    QCOMPARE(withoutBoth, line);
    QVERIFY(!hitWhereTheHeadWas);
}

void TestSpearItemShape::shouldCoverItsLinkCircle_data()
{
    QTest::addColumn<QPointF>("lastChild");
    QTest::addColumn<bool>("beside");

    QTest::newRow("on the bone") << QPointF(-90, 150) << false;
    QTest::newRow("at its end") << QPointF(-210, 420) << false; // half way to there
    QTest::newRow("beyond a contracted bone") << QPointF(-400, 800) << true;
}

void TestSpearItemShape::shouldCoverItsLinkCircle()
{
    QFETCH(QPointF, lastChild);
    QFETCH(bool, beside);
    DeeperBone bones(1, 0);
    SpearItem &bone = *bones.parent;
    bone.setLine(-50, 40, -130, 260);
    bone.textItem()->setPos(-70, 80);
    bones.spear->setLine(QLineF(lastChild, lastChild - QPointF(80, 0)));
    const QRectF plain = bone.boundingRect();

    bone.setLinked(true, 1); // behind its only child: half way between that and its own start
    const QRectF linked = bone.boundingRect();
    bone.setLinked(false, 0);

    const QPointF center = (lastChild + QPointF(-50, 40)) / 2;
    const double extent = 8 + bone.pen().widthF() / 2;
    const QRectF circle = QRectF(center, QSizeF(0, 0)).adjusted(-extent, -extent, extent, extent);
    QCOMPARE(linked, plain | circle);
    QCOMPARE(linked != plain, beside);
    QCOMPARE(bone.boundingRect(), plain);
}

void TestSpearItemShape::shouldBeHitOnLineAndText_data()
{
    QTest::addColumn<int>("direction");
    QTest::addColumn<QString>("text");

    for (const int direction : {0, 1, -1}) {
        QTest::addRow("%d", direction) << direction << QStringLiteral("Causes");
        QTest::addRow("%d, high text", direction) << direction << QStringLiteral("A\nB\nC");
    }
}

void TestSpearItemShape::shouldBeHitOnLineAndText()
{
    QFETCH(int, direction);
    QFETCH(QString, text);
    constexpr double penWidth = 6;
    MainBone bones(direction, text);
    bones.head.setLine(0, 0, -900, 0);
    bones.spear->setOffset(50);
    bones.spear->updatePosition(QPointF());
    bones.spear->setPen(QPen(Qt::black, penWidth));
    const QLineF line = bones.spear->line();
    const TextItem *const box = bones.spear->textItem();
    const QRectF boxRect(QPointF(), textSize(*bones.spear));

    const QPainterPath shape = bones.spear->shape();

    int hits = 0;
    int misses = 0;
    int both = 0;
    const QRectF around = bones.spear->boundingRect() | box->mapRectToParent(box->boundingRect());
    for (double y = around.top() - 20; y < around.bottom() + 20; y += 1.3) {
        for (double x = around.left() - 20; x < around.right() + 20; x += 1.3) {
            const QPointF point(x, y);
            // How far the point is inside (below 0) or outside of the text box and the stroke.
            const QPointF inBox = bones.spear->mapToItem(box, point);
            const double fromBox =
                std::max({boxRect.left() - inBox.x(), inBox.x() - boxRect.right(),
                          boxRect.top() - inBox.y(), inBox.y() - boxRect.bottom()});
            const QPointF along = line.p2() - line.p1();
            const QPointF to = point - line.p1();
            const double t = QPointF::dotProduct(along, to) / line.length();
            const double across =
                std::abs(along.x() * to.y() - along.y() * to.x()) / line.length() - penWidth / 2;
            const double beyond = std::max(-t, t - line.length()) - penWidth / 2; // square caps
            const double fromStroke = std::max(across, beyond);
            const double distance = std::min(fromBox, fromStroke);
            if (std::abs(distance) < 0.3)
                continue; // on the edge
            hits += distance < 0;
            misses += distance > 0;
            both += fromBox < 0 && fromStroke < 0;
            QVERIFY2(shape.contains(point) == (distance < 0),
                     qPrintable(QStringLiteral("%1, %2").arg(x).arg(y)));
        }
    }
    QVERIFY(hits > 100);
    QVERIFY(misses > 100);
    QVERIFY(both > 10); // so that a hole where the parts overlap would have shown
    QVERIFY(shape.contains(line.p1()));
    QVERIFY(shape.contains(line.p2()));
}

void TestSpearItemShape::shouldBeHitAsHeaderOnLineAndPictures()
{
    SpearItem header(QStringLiteral("Head"), 0, 20.0);
    header.setLine(0, 0, -2000, 0);
    header.setPen(QPen(Qt::black, 1));
    const QSizeF head = SpearItem::m_pixHeader->size();
    const QSizeF tail = SpearItem::m_pixTail->size();
    const QRectF headRect(QPointF(0, -head.height() / 2), head);
    const QRectF tailRect(QPointF(-2000 - tail.width(), -tail.height() / 2), tail);

    const QPainterPath shape = header.shape();

    for (const QRectF &rect : {headRect, tailRect}) {
        const QRectF inside = rect.adjusted(0.5, 0.5, -0.5, -0.5);
        const QRectF outside = rect.adjusted(-0.5, -0.5, 0.5, 0.5);
        QVERIFY(shape.contains(inside));
        QVERIFY(!shape.contains(outside.topLeft()) && !shape.contains(outside.bottomRight()));
    }
    QVERIFY(shape.contains(QPointF(-1000, 0)));
    QVERIFY(std::tan(header.backboneAngle()) * 1800 >
            3.5); // there is a wedge, but it does not count
    QVERIFY(!shape.contains(QPointF(-200, 3)));
    QVERIFY(!shape.contains(QPointF(-200, -3)));
}

FISHBONE_TEST(TestSpearItemShape)
#include "tst_spearitem_shape.moc"
