// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/spearparts.h>

#include <QtTest>

#include <fishbone/drawing/clearlook.h>
#include <fishbone/items/textitem.h>
#include <tests/program/testprogram.h>
#include <tests/support/drawing.h>

using namespace TestSupport;

/** Where a spear stands, and what a layout notes with it. */
class TestSpearPlace : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldRecordTheSizesOfItsChildren();
    void shouldForgetForANewLayout();
    void shouldRefreshEverythingThatNoLayoutComputes();
    void shouldStandWhereTheLookPlacesIt();
    void shouldHaveRoomForTheCircleOfALink();
    void shouldKeepWhatTheLookGivesIt();
    void shouldForgetWithItsLookWhatThatGaveIt();
};

namespace {
SpearPlace &placeOf(const SpearItem &spear)
{
    return SpearParts::of(spear).place;
}

/** Something that a look could keep. */
class LookNote : public SpearLookData
{
};
} // namespace

void TestSpearPlace::shouldRecordTheSizesOfItsChildren()
{
    const SpearItem spear(QStringLiteral("Cause"), 1, 20);
    SpearPlace &place = placeOf(spear);
    for (const QSizeF &size : {QSizeF(10, 5), QSizeF(30, 1), QSizeF(20, 9)})
        place.addChild(size);
    QCOMPARE(place.children().count, 3);
    QCOMPARE(place.children().widest, 30.0);
    QCOMPARE(place.children().tallest, 9.0);
    QCOMPARE(place.children().widthSum, 60.0);
    QCOMPARE(place.children().heightSum, 15.0);
    QCOMPARE(place.children().sideWidth[0], 30.0);
    QCOMPARE(place.children().sideWidth[1], 30.0);
}

void TestSpearPlace::shouldForgetForANewLayout()
{
    SpearItem spear(QStringLiteral("Cause"), 1, 20);
    SpearPlace &place = placeOf(spear);
    spear.setLine(1, 2, 3, 4);
    place.addOffset(5);
    place.addOffset(2);
    place.addChild(QSizeF(10, 5));
    QCOMPARE(place.offset(), 7.0);
    place.begin();
    QCOMPARE(place.offset(), 0.0);
    QCOMPARE(place.children().count, 0);
    QCOMPARE(spear.line(), QLineF(1, 2, 3, 4));
    place.reset(-1);
    QCOMPARE(place.direction(), -1);
    QCOMPARE(spear.line(), QLineF(0, 0, 0, 0));
}

void TestSpearPlace::shouldRefreshEverythingThatNoLayoutComputes()
{
    SpearItem spear(QStringLiteral("Cause"), 1, 20);
    spear.setPos(10, 20);
    spear.setPen(QPen(Qt::magenta));
    spear.textItem()->setPlainText(QStringLiteral("Typed over"));
    placeOf(spear).refresh(0);
    QCOMPARE(spear.pos(), QPointF());
    QCOMPARE(spear.pen(), spear.broaderPen(SpearStyle::ssNormal));
    QCOMPARE(spear.textItem()->toPlainText(), QStringLiteral("Cause"));
    QCOMPARE(spear.direction(), 0);
}

void TestSpearPlace::shouldStandWhereTheLookPlacesIt()
{
    const Drawing drawing(QStringLiteral("Effect[Man[Training]]"));
    SpearItem &spear = *drawing.spear(QStringLiteral("Man"));
    const QLineF line = spear.line();
    const QPointF text = spear.textItem()->pos();
    QVERIFY(line.length() > 0);
    spear.setLine(0, 0, 0, 0);
    spear.textItem()->setPos(1000, 1000);
    placeOf(spear).setBelow(drawing.head);
    QCOMPARE(spear.line(), line);
    QCOMPARE(spear.textItem()->pos(), text);
}

void TestSpearPlace::shouldHaveRoomForTheCircleOfALink()
{
    const Drawing drawing(QStringLiteral("Effect[Man[Training]]"));
    SpearItem &spear = *drawing.spear(QStringLiteral("Man"));
    const QRectF before = placeOf(spear).boundingRect();
    spear.setLinked(true, 0);
    const QPointF slot = spear.look().slot(spear, 0);
    QVERIFY(placeOf(spear).boundingRect().contains(QRectF(slot - QPointF(8, 8), QSizeF(16, 16))));
    QVERIFY(placeOf(spear).boundingRect().contains(before));
}

void TestSpearPlace::shouldKeepWhatTheLookGivesIt()
{
    const SpearItem spear(QStringLiteral("Cause"), 1, 20);
    QCOMPARE(placeOf(spear).lookData(), nullptr);
    auto note = std::make_unique<const LookNote>();
    const LookNote *const given = note.get();
    placeOf(spear).setLookData(std::move(note));
    QCOMPARE(placeOf(spear).lookData(), given);
    placeOf(spear).setLookData(nullptr);
    QCOMPARE(placeOf(spear).lookData(), nullptr);
}

void TestSpearPlace::shouldForgetWithItsLookWhatThatGaveIt()
{
    const SpearItem spear(QStringLiteral("Cause"), 1, 20);
    placeOf(spear).setLookData(std::make_unique<const LookNote>());
    placeOf(spear).setLook(SpearLook::standard()); // the one that it has
    QVERIFY(placeOf(spear).lookData());
    const auto other = std::make_shared<const ClearLook>(DiagramLook::Options());
    placeOf(spear).setLook(other);
    QCOMPARE(&placeOf(spear).look(), other.get());
    QCOMPARE(placeOf(spear).lookData(), nullptr);
}

FISHBONE_TEST(TestSpearPlace)
#include "tst_spearplace.moc"
