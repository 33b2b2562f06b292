// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/spearparts.h>

#include <QtTest>

#include <fishbone/items/textitem.h>
#include <tests/program/testprogram.h>
#include <tests/support/drawing.h>

using namespace TestSupport;

/** The title of a spear. */
class TestSpearTitle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowTheWholeTitle();
    void shouldCutTheTitleAsTheStyleSays();
    void shouldShowATitleThatIsSet();
    void shouldReportTheTitleOfAHeadWithoutItsCounts();
    void shouldLayOutNoTextTwice();
};

namespace {
const QString shortCause = QStringLiteral("Causes"); // as long as the default style shows it

SpearTitle &titleOf(const SpearItem &spear)
{
    return SpearParts::of(spear).title;
}
} // namespace

void TestSpearTitle::shouldShowTheWholeTitle()
{
    const SpearItem spear(shortCause, 1, 20);
    QCOMPARE(titleOf(spear).text(), shortCause);
    QCOMPARE(titleOf(spear).shownText(), shortCause);
    QCOMPARE(spear.textItem()->toPlainText(), shortCause);
}

void TestSpearTitle::shouldCutTheTitleAsTheStyleSays()
{
    const SpearItem spear(shortCause, 1, 20);
    SpearStyle style;
    style.setTextCount(4);
    titleOf(spear).show(style);
    QCOMPARE(titleOf(spear).text(), shortCause);
    QCOMPARE(titleOf(spear).shownText(), QStringLiteral("Caus"));
    QCOMPARE(spear.textItem()->toPlainText(), QStringLiteral("Caus"));
    style.setTextCount(0);
    titleOf(spear).show(style);
    QCOMPARE(titleOf(spear).shownText(), shortCause);
    QCOMPARE(spear.textItem()->toPlainText(), shortCause);
}

void TestSpearTitle::shouldShowATitleThatIsSet()
{
    const SpearItem spear(QStringLiteral("Before"), 1, 20);
    titleOf(spear).setText(shortCause);
    QCOMPARE(spear.toolTip(), shortCause);
    QCOMPARE(spear.textItem()->toPlainText(), shortCause);
}

void TestSpearTitle::shouldReportTheTitleOfAHeadWithoutItsCounts()
{
    const Drawing drawing(QStringLiteral("Effect[Man]"));
    const QString counted = QStringLiteral("Late(3");
    titleOf(*drawing.head).setText(counted);
    QCOMPARE(titleOf(*drawing.head).shownText(), QStringLiteral("Late"));
    QCOMPARE(drawing.head->textItem()->toPlainText(), counted);
    titleOf(*drawing.spear(QStringLiteral("Man"))).setText(counted);
    QCOMPARE(titleOf(*drawing.spear(QStringLiteral("Man"))).shownText(), counted);
}

void TestSpearTitle::shouldLayOutNoTextTwice()
{
    const SpearItem spear(shortCause, 1, 20);
    QSignalSpy changes(spear.textItem()->document(), &QTextDocument::contentsChanged);
    titleOf(spear).show(*spear.style());
    titleOf(spear).setText(shortCause);
    QCOMPARE(changes.count(), 0);
    titleOf(spear).setText(shortCause.toUpper());
    QVERIFY(changes.count() > 0);
}

FISHBONE_TEST(TestSpearTitle)
#include "tst_speartitle.moc"
