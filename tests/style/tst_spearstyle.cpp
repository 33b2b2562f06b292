// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/style/spearstyle.h>

#include <tests/program/testprogram.h>
#include <tests/support/spearstyletext.h>

#include <QFont>
#include <QJsonArray>
#include <QPen>
#include <QtTest>

#include <limits>
#include <type_traits>

using namespace TestSupport;

static_assert(std::is_same_v<std::underlying_type_t<SpearStyle::SpearState>, int>);
static_assert(!std::is_copy_constructible_v<SpearStyle>);
static_assert(!std::is_copy_assignable_v<SpearStyle>);

class TestSpearStyle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldNumberTheStatesAsDocumentsDo();
    void shouldHaveNothingSetAtFirst();
    void shouldKeepWhatIsSetApartByState();
    void shouldStoreCopiesOfFontsAndPens();
    void shouldTakeItsOwnFontAndPen();
    void shouldUnsetAColor();
    void shouldTakeAnyTextCount();
    void shouldWriteAFreshStyle();
    void shouldReplaceWhatTheObjectHeld();
    void shouldWriteEverythingThatIsSet();
    void shouldWriteStatesInOrderAndSkipEmptyOnes();
    void shouldWriteColorsOfAnyKindAsRgb();
    void shouldWriteWholePenWidths_data();
    void shouldWriteWholePenWidths();
    void shouldComeBackFromItsJson_data();
    void shouldComeBackFromItsJson();
};

void TestSpearStyle::shouldNumberTheStatesAsDocumentsDo()
{
    QCOMPARE(int(SpearStyle::ssNormal), 0);
    QCOMPARE(int(SpearStyle::ssSelected), 1);
    QCOMPARE(int(SpearStyle::ssHovered), 2);
    QCOMPARE(int(SpearStyle::ssLinked), 3);
}

void TestSpearStyle::shouldHaveNothingSetAtFirst()
{
    const SpearStyle style;

    for (const SpearStyle::SpearState state : allStates) {
        QCOMPARE(style.textFont(state), nullptr);
        QCOMPARE(style.broderPen(state), nullptr);
        QCOMPARE(style.textColor(state).spec(), QColor::Invalid);
        QCOMPARE(style.textBkColor(state).spec(), QColor::Invalid);
    }
    QCOMPARE(style.textCount(), 6);
    QCOMPARE(style.inheritanceParent(), false);
}

void TestSpearStyle::shouldKeepWhatIsSetApartByState()
{
    SpearStyle style;
    for (const SpearStyle::SpearState state : allStates) {
        QFont font;
        font.setPointSize(10 + state);
        style.setTextFont(state, font);
        style.setTextColor(state, QColor(state, 1, 2, 3));
        style.setTextBkColor(state, QColor(4, state, 5, 6));
        style.setBroderPen(state, QPen(QColor(7, 8, state), 1 + state));
    }

    for (const SpearStyle::SpearState state : allStates) {
        QCOMPARE(style.textFont(state)->pointSize(), 10 + state);
        QCOMPARE(style.textColor(state), QColor(state, 1, 2, 3));
        QCOMPARE(style.textBkColor(state), QColor(4, state, 5, 6));
        QCOMPARE(*style.broderPen(state), QPen(QColor(7, 8, state), 1 + state));
    }
}

void TestSpearStyle::shouldStoreCopiesOfFontsAndPens()
{
    SpearStyle style;
    QFont font;
    font.setPointSize(20);
    QPen pen(Qt::red, 3);
    style.setTextFont(SpearStyle::ssNormal, font);
    style.setBroderPen(SpearStyle::ssNormal, pen);

    font.setPointSize(30);
    pen.setWidth(5);

    QCOMPARE(style.textFont(SpearStyle::ssNormal)->pointSize(), 20);
    QCOMPARE(style.broderPen(SpearStyle::ssNormal)->width(), 3);

    style.setTextFont(SpearStyle::ssNormal, font);
    style.setBroderPen(SpearStyle::ssNormal, pen);

    QCOMPARE(style.textFont(SpearStyle::ssNormal)->pointSize(), 30);
    QCOMPARE(style.broderPen(SpearStyle::ssNormal)->width(), 5);
}

void TestSpearStyle::shouldTakeItsOwnFontAndPen()
{
    SpearStyle style;
    QFont font;
    font.setPointSize(20);
    style.setTextFont(SpearStyle::ssNormal, font);
    style.setBroderPen(SpearStyle::ssNormal, QPen(Qt::red, 3));

    style.setTextFont(SpearStyle::ssNormal, *style.textFont(SpearStyle::ssNormal));
    style.setBroderPen(SpearStyle::ssNormal, *style.broderPen(SpearStyle::ssNormal));

    QCOMPARE(style.textFont(SpearStyle::ssNormal)->pointSize(), 20);
    QCOMPARE(*style.broderPen(SpearStyle::ssNormal), QPen(Qt::red, 3));
}

void TestSpearStyle::shouldUnsetAColor()
{
    SpearStyle style;
    style.setTextColor(SpearStyle::ssHovered, Qt::red);
    style.setTextBkColor(SpearStyle::ssHovered, Qt::blue);

    style.setTextColor(SpearStyle::ssHovered, QColor());
    style.setTextBkColor(SpearStyle::ssHovered, QColor());

    QCOMPARE(textOf(style), freshText());
}

void TestSpearStyle::shouldTakeAnyTextCount()
{
    SpearStyle style;
    for (const int count :
         {std::numeric_limits<int>::min(), -1, 0, 1, 99, std::numeric_limits<int>::max()}) {
        style.setTextCount(count);
        QCOMPARE(style.textCount(), count);
    }
}

void TestSpearStyle::shouldWriteAFreshStyle()
{
    QCOMPARE(textOf(SpearStyle()), freshText());
}

void TestSpearStyle::shouldReplaceWhatTheObjectHeld()
{
    QJsonObject object{{QStringLiteral("title"), QStringLiteral("Man")},
                       {QStringLiteral("textCount"), 40}};

    SpearStyle().write(object);

    QCOMPARE(object, parse(freshText()));
}

void TestSpearStyle::shouldWriteEverythingThatIsSet()
{
    SpearStyle style;
    style.setInheritanceParent(true);
    style.setTextCount(-2);
    QFont font(QStringLiteral("Sans"), 12);
    font.setBold(true);
    style.setTextFont(SpearStyle::ssSelected, font);
    style.setTextColor(SpearStyle::ssSelected, QColor(1, 2, 3, 4));
    style.setTextBkColor(SpearStyle::ssSelected, QColor(5, 6, 7));
    style.setBroderPen(SpearStyle::ssSelected,
                       QPen(QColor(8, 9, 10, 11), 2, Qt::DashLine, Qt::RoundCap, Qt::BevelJoin));

    QCOMPARE(
        textOf(style),
        QStringLiteral(
            R"({"inheritanceParent":true,"spearStates":[{)"
            R"("broderPen":{"a":11,"b":10,"capStyle":32,"g":9,"joinStyle":64,"r":8,"style":2,"width":2},)"
            R"("font":"Sans,12,-1,5,75,0,0,0,0,0","state":1,)"
            R"("textBkColor":{"a":255,"b":7,"g":6,"r":5},)"
            R"("textColor":{"a":4,"b":3,"g":2,"r":1}}],"textCount":-2})"));
}

void TestSpearStyle::shouldWriteStatesInOrderAndSkipEmptyOnes()
{
    SpearStyle style;
    style.setTextColor(SpearStyle::ssLinked, Qt::black);
    style.setTextBkColor(SpearStyle::ssNormal, Qt::black);

    QCOMPARE(textOf(style),
             QStringLiteral(R"({"inheritanceParent":false,"spearStates":[)"
                            R"({"state":0,"textBkColor":{"a":255,"b":0,"g":0,"r":0}},)"
                            R"({"state":3,"textColor":{"a":255,"b":0,"g":0,"r":0}}],)"
                            R"("textCount":6})"));
}

void TestSpearStyle::shouldWriteColorsOfAnyKindAsRgb()
{
    SpearStyle style;
    style.setTextColor(SpearStyle::ssNormal, QColor::fromHsv(120, 255, 255, 128));

    QCOMPARE(textOf(style),
             QStringLiteral(R"({"inheritanceParent":false,"spearStates":[)"
                            R"({"state":0,"textColor":{"a":128,"b":0,"g":255,"r":0}}],)"
                            R"("textCount":6})"));
}

void TestSpearStyle::shouldWriteWholePenWidths_data()
{
    QTest::addColumn<double>("width");
    QTest::addColumn<int>("written");

    QTest::newRow("cosmetic") << 0.0 << 0;
    QTest::newRow("hair") << 0.4 << 0;
    QTest::newRow("almost one") << 0.9 << 0;
    QTest::newRow("one") << 1.0 << 1;
    QTest::newRow("one and a half") << 1.5 << 1;
    QTest::newRow("almost two") << 1.99 << 1;
    QTest::newRow("thick") << 30.0 << 30;
}

void TestSpearStyle::shouldWriteWholePenWidths()
{
    QFETCH(const double, width);
    QFETCH(const int, written);
    SpearStyle style;
    style.setBroderPen(SpearStyle::ssNormal, QPen(Qt::red, width));

    QJsonObject object;
    style.write(object);
    SpearStyle copy;
    copy.read(object);

    const QJsonValue state = object[QLatin1String("spearStates")].toArray().at(0);
    QCOMPARE(state[QLatin1String("broderPen")][QLatin1String("width")], QJsonValue(written));
    QCOMPARE(copy.broderPen(SpearStyle::ssNormal)->widthF(), double(written));
}

void TestSpearStyle::shouldComeBackFromItsJson_data()
{
    QTest::addColumn<bool>("everything");

    QTest::newRow("fresh") << false;
    QTest::newRow("everything set") << true;
}

void TestSpearStyle::shouldComeBackFromItsJson()
{
    QFETCH(const bool, everything);
    SpearStyle style;
    if (everything) {
        style.setTextCount(12);
        style.setInheritanceParent(true);
        for (const SpearStyle::SpearState state : allStates) {
            QFont font(QStringLiteral("Noto Sans"), 10 + state);
            font.setUnderline(state % 2 == 0);
            style.setTextFont(state, font);
            style.setTextColor(state, QColor(10 * state, 20, 30, 40));
            style.setTextBkColor(state, QColor(50, 10 * state, 60, 70));
            style.setBroderPen(state, QPen(QColor(1, 2, 3 + state, 4), state,
                                           Qt::PenStyle(Qt::SolidLine + state), Qt::RoundCap,
                                           Qt::SvgMiterJoin));
        }
    }

    QJsonObject object;
    style.write(object);
    SpearStyle copy;
    copy.read(object);

    QCOMPARE(textOf(copy), textOf(style));
    QCOMPARE(copy.textCount(), style.textCount());
    QCOMPARE(copy.inheritanceParent(), style.inheritanceParent());
    for (const SpearStyle::SpearState state : allStates) {
        QCOMPARE(copy.textColor(state), style.textColor(state));
        QCOMPARE(copy.textBkColor(state), style.textBkColor(state));
        QCOMPARE(copy.textFont(state) != nullptr, everything);
        QCOMPARE(copy.broderPen(state) != nullptr, everything);
        if (everything) {
            QCOMPARE(*copy.textFont(state), *style.textFont(state));
            QCOMPARE(*copy.broderPen(state), *style.broderPen(state));
        }
    }
}

FISHBONE_TEST(TestSpearStyle)

#include "tst_spearstyle.moc"
