// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// The part of SpearItem that computes positions. Expected numbers are computed here anew, from
// nothing but the size of the text's document.

#include <fishbone/items/spearitem.h>

#include <QGraphicsRectItem>
#include <QTextDocument>
#include <QtTest>

#include <fishbone/items/taskstatusitem.h>
#include <fishbone/items/textitem.h>
#include <tests/items/boneparts.h>
#include <tests/program/testprogram.h>
#include <tests/support/drawing.h>
#include <tests/support/statelooks.h>

using namespace BoneParts;
using namespace TestSupport;

class TestSpearItemPositions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldPlaceTheExpandButton_data();
    void shouldPlaceTheExpandButton();
    void shouldPlaceTheLinkIcon_data();
    void shouldPlaceTheLinkIcon();
    void shouldPlaceTheStatusIcon_data();
    void shouldPlaceTheStatusIcon();
    void shouldPlaceAndTurnTheText_data();
    void shouldPlaceAndTurnTheText();
    void shouldPlaceTheTextOfAHeaderWithoutTurningIt();
    void shouldDrawTheHeadersLineToTheLeft();
    void shouldStartAHorizontalBoneOnItsParent_data();
    void shouldStartAHorizontalBoneOnItsParent();
    void shouldStartAMainBoneOnTheEdgeOfTheWedge_data();
    void shouldStartAMainBoneOnTheEdgeOfTheWedge();
    void shouldStartADeeperSlantedBoneAtItsParentsHeight_data();
    void shouldStartADeeperSlantedBoneAtItsParentsHeight();
    void shouldStartAtAParentWithoutLength_data();
    void shouldStartAtAParentWithoutLength();
    void shouldPlaceAllCompanions_data();
    void shouldPlaceAllCompanions();
    void shouldLeaveAStatusIconHiddenThatAHostHides();
    void shouldShowTheStatusIconOfAHeaderThatBecomesABone();
    void shouldNotUseThePositionThatItIsGiven();
    void shouldChangeNothingWhenNothingMoves();
    void shouldHoldTheFormulasThroughoutADrawing();
    void shouldStayBelowALinkedParentWhenPlacedAgain();
};

void TestSpearItemPositions::shouldPlaceTheExpandButton_data()
{
    QTest::addColumn<int>("direction");
    QTest::addColumn<QPointF>("fromEnd");

    QTest::newRow("0") << 0 << QPointF(0, -8);
    QTest::newRow("1") << 1 << QPointF(-10, -10);
    QTest::newRow("-1") << -1 << QPointF(-5, 0);
    QTest::newRow("2") << 2 << QPointF(0, 0);
    QTest::newRow("-7") << -7 << QPointF(0, 0);
}

void TestSpearItemPositions::shouldPlaceTheExpandButton()
{
    QFETCH(int, direction);
    QFETCH(QPointF, fromEnd);
    const MainBone bones(direction);

    bones.spear->setLine(10, 20, -300, 45);

    QVERIFY(alike(bones.spear->expandBuddyPosition(), QPointF(-300, 45) + fromEnd));
}

void TestSpearItemPositions::shouldPlaceTheLinkIcon_data()
{
    QTest::addColumn<double>("expandWidth"); ///< 0 without a button
    QTest::addColumn<double>("linkWidth");

    QTest::newRow("neither") << 0.0 << 0.0;
    QTest::newRow("icon alone") << 0.0 << 16.0;
    QTest::newRow("button alone") << 20.0 << 0.0;
    QTest::newRow("both") << 21.0 << 16.0;
}

void TestSpearItemPositions::shouldPlaceTheLinkIcon()
{
    QFETCH(double, expandWidth);
    QFETCH(double, linkWidth);
    const MainBone bones(-1);
    bones.spear->setLine(10, 20, -300, 45);
    const auto rectangle = [](double width) {
        auto item = std::make_unique<QGraphicsRectItem>(0, 0, width, 5);
        item->setPen(Qt::NoPen);
        return item.release();
    };

    if (expandWidth > 0)
        bones.spear->setExpandBuddy(rectangle(expandWidth));
    if (linkWidth > 0)
        bones.spear->setLinkItem(rectangle(linkWidth));

    QVERIFY(alike(bones.spear->linkBuddyPosition(),
                  QPointF(-300 - expandWidth / 2 - linkWidth / 2, 45)));
}

void TestSpearItemPositions::shouldPlaceTheStatusIcon_data()
{
    QTest::addColumn<int>("direction");
    QTest::addColumn<QPointF>("fromText");

    QTest::newRow("0") << 0 << QPointF(-10, 10);
    QTest::newRow("1") << 1 << QPointF(0, 0);
    QTest::newRow("-1") << -1 << QPointF(-20, -10);
}

void TestSpearItemPositions::shouldPlaceTheStatusIcon()
{
    QFETCH(int, direction);
    QFETCH(QPointF, fromText);
    const MainBone bones(direction);

    bones.spear->textItem()->setPos(-70, 33);

    QVERIFY(alike(bones.spear->TaskStateItemPosition(), QPointF(-70, 33) + fromText));
}

void TestSpearItemPositions::shouldPlaceAndTurnTheText_data()
{
    QTest::addColumn<int>("direction");
    QTest::addColumn<QString>("text");

    for (const int direction : {0, 1, -1}) {
        QTest::addRow("%d, short", direction) << direction << QStringLiteral("A");
        QTest::addRow("%d, long", direction) << direction << QStringLiteral("Causes");
        QTest::addRow("%d, empty", direction) << direction << QString();
    }
}

void TestSpearItemPositions::shouldPlaceAndTurnTheText()
{
    QFETCH(int, direction);
    QFETCH(QString, text);
    const MainBone bones(direction, text);
    const QPointF start(10, 20);
    bones.spear->setLine(QLineF(start, QPointF(-300, 45)));
    const QSizeF size = bones.spear->textItem()->document()->size();
    const double w = size.width();
    const double h = size.height();
    const double d = std::sqrt(w * w + h * h);
    const double a = std::acos(w / d) / degree + 70;
    const QPointF expected =
        direction == 0   ? start + QPointF(-(w + 10), -h)
        : direction == 1 ? start + QPointF(-w * cos70, w * sin70)
                         : start + QPointF(-d * std::cos(a * degree), -d * std::sin(a * degree));

    const QPointF position = bones.spear->textBuddyPosition();

    QVERIFY(alike(position, expected));
    QCOMPARE(bones.spear->textItem()->rotation() + 1, -70.0 * direction + 1);
}

void TestSpearItemPositions::shouldPlaceTheTextOfAHeaderWithoutTurningIt()
{
    SpearItem header(QStringLiteral("Head"), 0, 20.0);
    header.setLine(10, 20, -300, 45);
    header.textItem()->setRotation(12);

    QCOMPARE(header.textBuddyPosition(), QPointF(10, 20));
    QCOMPARE(header.textItem()->rotation(), 12.0);
}

void TestSpearItemPositions::shouldDrawTheHeadersLineToTheLeft()
{
    SpearItem header(QStringLiteral("Head"), 0, 20.0);
    header.setLine(10, 20, -300, 45);
    for (const double width : {100.0, 20.0, 30.0})
        header.sumChildSize(QSizeF(width, 1));
    header.statusItem()->setVisible(true);

    header.updatePosition(QPointF(0, 0));

    const double width = header.textItem()->document()->size().width() + 130;
    QVERIFY(alike(header.line().p1(), QPointF(0, 0)));
    QVERIFY(alike(header.line().p2(), QPointF(-width, 0)));
    QCOMPARE(header.textItem()->pos(), QPointF(0, 0));
    QVERIFY(!header.statusItem()->isVisible());
}

void TestSpearItemPositions::shouldStartAHorizontalBoneOnItsParent_data()
{
    QTest::addColumn<int>("parentDirection");
    QTest::addColumn<QLineF>("parentLine");
    QTest::addColumn<double>("offset");
    QTest::addColumn<QPointF>("start");

    // The parent of a slanted bone runs leftwards, down for 1 and up for -1.
    const double length = 400;
    const QPointF from(-50, 30);
    const auto slanted = [&](int d) {
        return QLineF(from, from + QPointF(-cos70 * length, d * sin70 * length));
    };
    QTest::newRow("1") << 1 << slanted(1) << 30.0 << from + QPointF(-30 * cos70, 30 * sin70);
    QTest::newRow("-1") << -1 << slanted(-1) << 30.0 << from + QPointF(-30 * cos70, -30 * sin70);
    QTest::newRow("1, at its start") << 1 << slanted(1) << 0.0 << from;
    QTest::newRow("1, beyond its end")
        << 1 << slanted(1) << 900.0 << from + QPointF(-900 * cos70, 900 * sin70);
    QTest::newRow("horizontal parent")
        << 0 << QLineF(from, from - QPointF(400, 0)) << 30.0 << from - QPointF(30, 0);
    QTest::newRow("parent to the right") << 1 << QLineF(0, 0, 300, 400) << 50.0 << QPointF(30, 40);
}

void TestSpearItemPositions::shouldStartAHorizontalBoneOnItsParent()
{
    QFETCH(int, parentDirection);
    QFETCH(QLineF, parentLine);
    QFETCH(double, offset);
    QFETCH(QPointF, start);
    const DeeperBone bones(parentDirection, 0);
    bones.parent->setLine(parentLine);
    bones.spear->setOffset(offset);
    bones.spear->sumChildSize(QSizeF(77, 1));

    bones.spear->updatePosition(QPointF(0, 0));

    const double width = bones.spear->textItem()->document()->size().width() + 77;
    QVERIFY(alike(bones.spear->line().p1(), start));
    QVERIFY(alike(bones.spear->line().p2(), start - QPointF(width, 0)));
}

void TestSpearItemPositions::shouldStartAMainBoneOnTheEdgeOfTheWedge_data()
{
    QTest::addColumn<int>("direction");
    QTest::addColumn<double>("length");
    QTest::addColumn<double>("offset");

    for (const int direction : {1, -1}) {
        for (const double length : {500.0, 2000.0, 5000.0}) {
            for (const double offset : {0.0, 30.0, 400.0})
                QTest::addRow("%d, %g of %g", direction, offset, length)
                    << direction << length << offset;
        }
    }
}

void TestSpearItemPositions::shouldStartAMainBoneOnTheEdgeOfTheWedge()
{
    QFETCH(int, direction);
    QFETCH(double, length);
    QFETCH(double, offset);
    MainBone bones(direction);
    bones.head.setLine(5, 7, 5 - length, 7);
    bones.spear->setOffset(offset);
    bones.spear->sumChildSize(QSizeF(1, 200));
    bones.spear->sumChildSize(QSizeF(1, 50));

    bones.spear->updatePosition(QPointF(0, 0));

    const double angle = std::min(std::atan(5 / length), widestBackboneAngle);
    const QPointF start(5 - offset, 7 + direction * (length - offset) * std::tan(angle));
    const double height = std::max(250.0, bones.spear->textItem()->document()->size().width()) + 30;
    QVERIFY(alike(bones.spear->line().p1(), start));
    QVERIFY(alike(bones.spear->line().p2(),
                  start + QPointF(-cos70 * height, direction * sin70 * height)));
}

void TestSpearItemPositions::shouldStartADeeperSlantedBoneAtItsParentsHeight_data()
{
    QTest::addColumn<int>("direction");

    QTest::newRow("1") << 1;
    QTest::newRow("-1") << -1;
}

void TestSpearItemPositions::shouldStartADeeperSlantedBoneAtItsParentsHeight()
{
    QFETCH(int, direction);
    const DeeperBone bones(0, direction);
    bones.parent->setLine(-40, 60, -440, 60);
    bones.spear->setOffset(35);

    bones.spear->updatePosition(QPointF(0, 0));

    const double height = bones.spear->textItem()->document()->size().width() + 30;
    QVERIFY(alike(bones.spear->line().p1(), QPointF(-75, 60)));
    QVERIFY(alike(bones.spear->line().p2(),
                  QPointF(-75 - cos70 * height, 60 + direction * sin70 * height)));
}

void TestSpearItemPositions::shouldStartAtAParentWithoutLength_data()
{
    QTest::addColumn<bool>("belowHeader");
    QTest::addColumn<int>("direction");

    for (const int direction : {0, 1, -1}) {
        QTest::addRow("%d below a header", direction) << true << direction;
        QTest::addRow("%d deeper", direction) << false << direction;
    }
}

void TestSpearItemPositions::shouldStartAtAParentWithoutLength()
{
    QFETCH(bool, belowHeader);
    QFETCH(int, direction);
    MainBone mainBone(direction);
    DeeperBone deeper(1, direction);
    SpearItem *const parent = belowHeader ? &mainBone.head : deeper.parent;
    SpearItem *const spear = belowHeader ? mainBone.spear : deeper.spear;
    parent->setLine(15, 25, 15, 25);
    spear->setOffset(30);

    spear->updatePosition(QPointF(0, 0));

    QCOMPARE(spear->line().p1(), QPointF(15, 25));
    QVERIFY(std::isfinite(spear->line().x2()) && std::isfinite(spear->line().y2()));
}

void TestSpearItemPositions::shouldPlaceAllCompanions_data()
{
    QTest::addColumn<int>("direction");

    for (const int direction : {0, 1, -1})
        QTest::addRow("%d", direction) << direction;
}

void TestSpearItemPositions::shouldPlaceAllCompanions()
{
    QFETCH(int, direction);
    MainBone bones(direction);
    SpearItem &spear = *bones.spear;
    bones.head.setLine(0, 0, -900, 0);
    auto *const expand = std::make_unique<QGraphicsRectItem>(0, 0, 20, 20).release();
    auto *const link = std::make_unique<QGraphicsRectItem>(0, 0, 16, 16).release();
    spear.setExpandBuddy(expand);
    spear.setLinkItem(link);
    for (QGraphicsItem *item :
         {static_cast<QGraphicsItem *>(spear.textItem()),
          static_cast<QGraphicsItem *>(spear.statusItem()), static_cast<QGraphicsItem *>(expand),
          static_cast<QGraphicsItem *>(link)})
        item->setPos(-5000, 5000);
    spear.setOffset(60);

    spear.updatePosition(QPointF(0, 0));

    QVERIFY(spear.line().length() > 0);
    QCOMPARE(spear.textItem()->pos(), spear.textBuddyPosition());
    QCOMPARE(expand->pos(), spear.expandBuddyPosition());
    QCOMPARE(link->pos(), spear.linkBuddyPosition());
    QCOMPARE(spear.statusItem()->pos(), spear.TaskStateItemPosition());
    QVERIFY(spear.statusItem()->isVisible());
    QVERIFY((spear.textItem()->pos() - spear.line().p1()).manhattanLength() < 500);
}

void TestSpearItemPositions::shouldLeaveAStatusIconHiddenThatAHostHides()
{
    MainBone bones(1);
    SpearItem &spear = *bones.spear;
    spear.updatePosition(QPointF(0, 0));
    spear.statusItem()->setVisible(false);

    spear.updatePosition(QPointF(0, 0));

    QVERIFY(!spear.statusItem()->isVisible());
}

void TestSpearItemPositions::shouldShowTheStatusIconOfAHeaderThatBecomesABone()
{
    SpearItem head(QStringLiteral("Head"), 0, 20);
    SpearItem spear(QStringLiteral("Spear"), 0, 20);
    spear.updatePosition(QPointF(0, 0));
    QVERIFY(!spear.statusItem()->isVisible());

    spear.setParentItem(&head);
    spear.updatePosition(QPointF(0, 0));
    QVERIFY(spear.statusItem()->isVisible());
    spear.setParentItem(nullptr);
}

void TestSpearItemPositions::shouldNotUseThePositionThatItIsGiven()
{
    MainBone bones(1);
    bones.head.setLine(0, 0, -900, 0);
    bones.spear->updatePosition(QPointF(0, 0));
    const QLineF line = bones.spear->line();

    bones.spear->updatePosition(QPointF(123, 456));

    QCOMPARE(bones.spear->line(), line);
    QCOMPARE(bones.spear->pos(), QPointF(0, 0));
}

void TestSpearItemPositions::shouldChangeNothingWhenNothingMoves()
{
    const Drawing drawing(QStringLiteral("Effect[Man[Training[Course],Shift],Machine]"),
                          styleWithLooks());
    QSignalSpy changes(&drawing.scene, &QGraphicsScene::changed);
    QCoreApplication::processEvents();
    changes.clear();

    drawing.layOut();
    QCoreApplication::processEvents();

    QCOMPARE(changes.count(), 0);
}

void TestSpearItemPositions::shouldHoldTheFormulasThroughoutADrawing()
{
    const Drawing drawing(QStringLiteral("Effect[A[B[C[D,E],F],G[H]],I,J[K[L[M[N[O]]]]],P[Q]]"),
                          styleWithLooks());
    QList<SpearItem *> spears{drawing.head};
    for (int i = 0; i < spears.count(); ++i)
        spears.append(spears.at(i)->childSpears());
    QCOMPARE(spears.count(), 18);
    for (const SpearItem *spear : qAsConst(spears)) {
        const auto *const parent = qgraphicsitem_cast<SpearItem *>(spear->parentItem());
        if (!parent)
            continue;
        const QLineF bone = parent->line();
        const double t = spear->offset() / bone.length();
        QPointF start = bone.pointAt(t);
        if (spear->direction() != 0)
            start.ry() += parent->isHeader() ? spear->direction() * bone.length() * (1 - t) *
                                                   std::tan(parent->backboneAngle())
                                             : 0;
        QVERIFY(alike(spear->line().p1(), start));
        const double angle = spear->line().angle(); // counter-clockwise from the right
        const double expected = spear->direction() == 0 ? 180 : spear->direction() > 0 ? 250 : 110;
        QVERIFY(std::abs(angle - expected) < 1e-6);
        const double length = spear->direction() == 0 ? spear->spearWidth() : spear->spearHeight();
        QVERIFY(alike(spear->line().length(), length));
    }
}

void TestSpearItemPositions::shouldStayBelowALinkedParentWhenPlacedAgain()
{
    const Drawing drawing(QStringLiteral("Effect[Man[Training]]"));
    drawing.spear(QStringLiteral("Man"))->setLinked(true, 0);
    SpearItem *const spear = drawing.spear(QStringLiteral("Training"));
    const QLineF line = spear->line();
    QVERIFY(line.length() > 0);

    spear->updatePosition({});
    QCOMPARE(spear->line(), line);
}

FISHBONE_TEST(TestSpearItemPositions)
#include "tst_spearitem_positions.moc"
