// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// The part of SpearItem that computes sizes. Expected numbers are computed here anew, from nothing
// but the size of the text's document.

#include <fishbone/items/spearitem.h>
#include <fishbone/items/spearpasses.h>

#include <QTextDocument>
#include <QtTest>

#include <tests/items/boneparts.h>
#include <tests/program/testprogram.h>
#include <tests/support/drawing.h>
#include <tests/support/statelooks.h>

using namespace BoneParts;
using namespace TestSupport;

class TestSpearItemGeometry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldAddUpOffsets();
    void shouldResetForANewLayout();
    void shouldKeepTheLineForALayoutThatMayChangeNothing();
    void shouldCapTheBackboneAngle_data();
    void shouldCapTheBackboneAngle();
    void shouldHaveABackboneAngleAsHeaderOnly();
    void shouldBeAsWideAsItsText_data();
    void shouldBeAsWideAsItsText();
    void shouldBeAsHighAsItsText_data();
    void shouldBeAsHighAsItsText();
};

void TestSpearItemGeometry::shouldAddUpOffsets()
{
    SpearItem spear(QStringLiteral("Cause"), 0, 20.0);

    spear.setOffset(5);
    spear.setOffset(5);
    QCOMPARE(spear.offset(), 10.0);
    spear.setOffset(-3.5);
    QCOMPARE(spear.offset(), 6.5);

    spear.initData(0);
    QCOMPARE(spear.offset(), 0.0);
}

void TestSpearItemGeometry::shouldResetForANewLayout()
{
    const Drawing drawing(QStringLiteral("Effect[Man[Training[Course]]]"), styleWithLooks());
    SpearItem *const spear = drawing.spear(QStringLiteral("Man"));
    SpearItem *const child = drawing.spear(QStringLiteral("Training"));
    spear->setPos(12, 34);
    spear->sumChildSize(QSizeF(500, 700));
    drawing.node(QStringLiteral("Man"))->spearStyle()->setTextCount(2);
    child->setVisible(false);

    spear->initData(-1);

    QCOMPARE(spear->pos(), QPointF(0, 0));
    QCOMPARE(spear->offset(), 0.0);
    QCOMPARE(spear->direction(), -1);
    QCOMPARE(spear->line(), QLineF(0, 0, 0, 0));
    QCOMPARE(spear->textDisplay(), QStringLiteral("Ma"));
    QVERIFY(alike(spear->spearWidth(), spear->textHeight() + spear->textWidth() * cos70));
    QVERIFY(alike(spear->spearHeight(), spear->textWidth() + 30));
    QVERIFY(child->isVisible()); // expanded

    child->setExpand(false);
    drawing.spear(QStringLiteral("Course"))->setVisible(true);
    child->initData(0);
    QVERIFY(!drawing.spear(QStringLiteral("Course"))->isVisible());
}

void TestSpearItemGeometry::shouldKeepTheLineForALayoutThatMayChangeNothing()
{
    MainBone bones(1);
    bones.spear->setLine(1, 2, 3, 4);
    bones.spear->setPos(5, 6);
    bones.spear->setOffset(7);
    bones.spear->sumChildSize(QSizeF(500, 700));

    SpearPasses::refresh(*bones.spear, -1);
    SpearPasses::begin(*bones.spear);

    QCOMPARE(bones.spear->line(), QLineF(1, 2, 3, 4));
    QCOMPARE(bones.spear->pos(), QPointF(0, 0));
    QCOMPARE(bones.spear->offset(), 0.0);
    QCOMPARE(bones.spear->direction(), -1);
    QVERIFY(alike(bones.spear->spearHeight(), bones.spear->textWidth() + 30));
}

void TestSpearItemGeometry::shouldCapTheBackboneAngle_data()
{
    QTest::addColumn<QLineF>("line");
    QTest::addColumn<double>("angle");

    QTest::newRow("1000 long") << QLineF(0, 0, -1000, 0) << widestBackboneAngle;
    QTest::newRow("5000 long") << QLineF(0, 0, -5000, 0) << std::atan(0.001);
    QTest::newRow("5000 long, slanted") << QLineF(100, 100, -2900, 4100) << std::atan(0.001);
    QTest::newRow("just short of the cap") << QLineF(0, 0, 2291, 0) << widestBackboneAngle;
    QTest::newRow("just beyond the cap") << QLineF(0, 0, 2293, 0) << std::atan(5.0 / 2293);
    QTest::newRow("without length") << QLineF() << widestBackboneAngle;
}

void TestSpearItemGeometry::shouldCapTheBackboneAngle()
{
    QFETCH(QLineF, line);
    QFETCH(double, angle);
    SpearItem header(QStringLiteral("Head"), 0, 20.0);

    header.setLine(line);

    QVERIFY(std::abs(header.backboneAngle() - angle) < 1e-15);
}

void TestSpearItemGeometry::shouldHaveABackboneAngleAsHeaderOnly()
{
    const MainBone bones(0);
    bones.spear->setLine(0, 0, -1000, 0);

    QCOMPARE(bones.spear->backboneAngle(), 0.0);
}

void TestSpearItemGeometry::shouldBeAsWideAsItsText_data()
{
    QTest::addColumn<bool>("header");
    QTest::addColumn<int>("direction");
    QTest::addColumn<QVector<double>>("childWidths");
    QTest::addColumn<double>("children"); ///< what the children add

    using Widths = QVector<double>;
    QTest::newRow("header alone") << true << 0 << Widths() << 0.0;
    QTest::newRow("header with one") << true << 0 << Widths{10} << 10.0;
    QTest::newRow("header with three") << true << 0 << Widths{10, 20, 30} << 40.0;
    QTest::newRow("header, second side wider") << true << 0 << Widths{10, 50, 30} << 50.0;
    QTest::newRow("header with four") << true << 0 << Widths{1, 2, 4, 8} << 10.0;
    QTest::newRow("header below 0") << true << 0 << Widths{-10, -20} << 0.0;
    QTest::newRow("horizontal alone") << false << 0 << Widths() << 0.0;
    QTest::newRow("horizontal with three") << false << 0 << Widths{10, 20, 30} << 60.0;
    QTest::newRow("horizontal below 0") << false << 0 << Widths{-10, 5} << 0.0;
    QTest::newRow("slanted alone") << false << 1 << Widths() << 0.0;
    QTest::newRow("slanted with three") << false << 1 << Widths{10, 30, 20} << 30.0;
    QTest::newRow("slanted to the other side") << false << -1 << Widths{10, 30, 20} << 30.0;
}

void TestSpearItemGeometry::shouldBeAsWideAsItsText()
{
    QFETCH(bool, header);
    QFETCH(int, direction);
    QFETCH(QVector<double>, childWidths);
    QFETCH(double, children);
    MainBone bones(direction);
    SpearItem &spear = header ? bones.head : *bones.spear;

    for (const double width : childWidths)
        spear.sumChildSize(QSizeF(width, 1000));

    const QSizeF text = spear.textItem()->document()->size();
    const double own = direction == 0 ? text.width() : text.height() + text.width() * cos70;
    QVERIFY(alike(spear.spearWidth(), own + children));
}

void TestSpearItemGeometry::shouldBeAsHighAsItsText_data()
{
    QTest::addColumn<QString>("parentKind"); ///< "none", "header" or the direction of the parent
    QTest::addColumn<int>("direction");
    QTest::addColumn<QVector<double>>("childHeights");
    QTest::addColumn<double>("added"); ///< to the text's height and the spear size, or as it stands

    using Heights = QVector<double>;
    const QString none = QStringLiteral("none");
    const QString header = QStringLiteral("header");
    const QString up = QStringLiteral("1");
    const QString down = QStringLiteral("-1");
    const QString flat = QStringLiteral("0");
    QTest::newRow("no parent, alone") << none << 0 << Heights() << 0.0;
    QTest::newRow("no parent, higher child") << none << 0 << Heights{300, 900} << -900.0;
    QTest::newRow("below a header") << header << 0 << Heights{900} << -900.0;
    QTest::newRow("below 1, alone") << up << 0 << Heights() << 0.0;
    QTest::newRow("below 1") << up << 0 << Heights{300, 900, 10} << 900.0;
    QTest::newRow("below 1, small child") << up << 0 << Heights{1} << 1.0;
    QTest::newRow("below -1") << down << 0 << Heights{300, 900, 10} << -900.0;
    QTest::newRow("below -1, small child") << down << 0 << Heights{1} << 0.0;
    QTest::newRow("below 0") << flat << 0 << Heights{900} << -900.0;
}

void TestSpearItemGeometry::shouldBeAsHighAsItsText()
{
    QFETCH(QString, parentKind);
    QFETCH(int, direction);
    QFETCH(QVector<double>, childHeights);
    QFETCH(double, added);
    const DeeperBone deeper(parentKind.toInt(), direction);
    MainBone mainBone(direction);
    SpearItem &spear = parentKind == QLatin1String("none")     ? mainBone.head
                       : parentKind == QLatin1String("header") ? *mainBone.spear
                                                               : *deeper.spear;

    for (const double height : childHeights)
        spear.sumChildSize(QSizeF(1000, height));

    const double own = spear.textItem()->document()->size().height() + 20.0;
    QVERIFY(alike(spear.spearHeight(), added < 0 ? -added : own + added));

    // A slanted bone is as long as its children together, or as its text.
    for (const int slant : {1, -1}) {
        spear.setDirection(slant);
        double sum = 0;
        for (const double height : childHeights)
            sum += height;
        const double text = spear.textItem()->document()->size().width();
        QVERIFY(alike(spear.spearHeight(), std::max(sum, text) + 30));
    }
}

FISHBONE_TEST(TestSpearItemGeometry)
#include "tst_spearitem_geometry.moc"
