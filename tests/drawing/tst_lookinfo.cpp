// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QSet>
#include <QtTest>

#include <fishbone/drawing/fishdrawing.h>
#include <fishbone/drawing/lookinfo.h>
#include <tests/program/testprogram.h>
#include <tests/support/dialogchecks.h>
#include <tests/support/drawing.h>

using namespace TestSupport;

/** The list of looks. */
class TestLookInfo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldOfferTheClearLookFirst();
    void shouldTellTheLooksApart();
    void shouldFindALookByItsName();
    void shouldTakeUnknownNumbersForTheClassicLook();
    void shouldDrawInEachLook();
    void shouldNameTheLooksInTheLanguageOfTheUser();
};

void TestLookInfo::shouldOfferTheClearLookFirst()
{
    QCOMPARE(LookInfo::all().first().kind(), DiagramLook::Clear);
}

void TestLookInfo::shouldTellTheLooksApart()
{
    QSet<int> kinds;
    QSet<QString> names;
    QSet<QString> titles;
    for (const LookInfo &look : LookInfo::all()) {
        kinds.insert(look.kind());
        names.insert(look.name());
        titles.insert(look.title());
        QVERIFY(!look.title().isEmpty());
        QCOMPARE(QString(look.name()), QString(look.name()).toLower());
    }
    for (const int count : {int(kinds.count()), int(names.count()), int(titles.count())})
        QCOMPARE(count, int(LookInfo::all().count()));
}

void TestLookInfo::shouldFindALookByItsName()
{
    for (const LookInfo &look : LookInfo::all()) {
        QCOMPARE(LookInfo::find(look.name()), &look);
        QCOMPARE(&LookInfo::of(look.kind()), &look);
    }
    QCOMPARE(LookInfo::find(QStringLiteral("classic"))->kind(), DiagramLook::Classic);
    QVERIFY(!LookInfo::find(QString()));
    QVERIFY(!LookInfo::find(QStringLiteral("Classic")));
}

void TestLookInfo::shouldTakeUnknownNumbersForTheClassicLook()
{
    QCOMPARE(LookInfo::of(DiagramLook::Kind(4711)).kind(), DiagramLook::Classic);
}

void TestLookInfo::shouldDrawInEachLook()
{
    const Drawing drawing(QStringLiteral("H[A[B],C]"));
    QSet<QString> places;
    for (const LookInfo &look : LookInfo::all()) {
        FishDrawing shown;
        shown.choose(look.kind(), {});
        shown.update(drawing.head);
        const QRectF place = drawing.spear(QStringLiteral("B"))->textItem()->sceneBoundingRect();
        places.insert(QStringLiteral("%1 %2").arg(place.x()).arg(place.y()));
    }
    QCOMPARE(int(places.count()), int(LookInfo::all().count()));
}

void TestLookInfo::shouldNameTheLooksInTheLanguageOfTheUser()
{
    const BracketTranslator translator("LookInfo");
    for (const LookInfo &look : LookInfo::all())
        QVERIFY2(look.title().startsWith(QLatin1Char('[')), look.name().data());
}

FISHBONE_TEST(TestLookInfo)
#include "tst_lookinfo.moc"
