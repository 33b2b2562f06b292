// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/spearparts.h>

#include <QtTest>

#include <fishbone/items/taskstatusitem.h>
#include <tests/program/testprogram.h>
#include <tests/support/drawing.h>

using namespace TestSupport;

/** A spear's end of the link to its subject. */
class TestSpearSubject : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldBeNoneToBeginWith();
    void shouldLinkBothEnds();
    void shouldLeaveTheSubjectOfAnotherSpearAlone();
    void shouldForgetASubjectThatLeaves();
    void shouldLeaveNothingBehind();
    void shouldTakeTheStyleOfItsSubject();
    void shouldBeAsMovableAsItsSubject();
};

namespace {
const QString manTitle = QStringLiteral("Man");

SpearSubject &subjectOf(const SpearItem &spear)
{
    return SpearParts::of(spear).subject;
}
} // namespace

void TestSpearSubject::shouldBeNoneToBeginWith()
{
    const SpearItem spear(manTitle, 1, 20);
    QCOMPARE(subjectOf(spear).item(), nullptr);
    QVERIFY(!subjectOf(spear).index().isValid());
    QCOMPARE(subjectOf(spear).style(), SpearStyle::global());
    QVERIFY(subjectOf(spear).isMovable());
}

void TestSpearSubject::shouldLinkBothEnds()
{
    const Drawing drawing(QStringLiteral("Effect[Man,Machine]"));
    SpearItem *const former = drawing.spear(manTitle);
    drawing.node(manTitle)->setStatus(tsFinish);
    SpearItem spear(manTitle, 1, 20);
    subjectOf(spear).setIndex(drawing.index(manTitle));
    QCOMPARE(subjectOf(spear).item(), drawing.node(manTitle));
    QCOMPARE(subjectOf(spear).index(), drawing.index(manTitle));
    QCOMPARE(drawing.node(manTitle)->spear(), &spear);
    QCOMPARE(spear.statusItem()->status(), tsFinish);
    QCOMPARE(subjectOf(*former).item(), nullptr);
}

void TestSpearSubject::shouldLeaveTheSubjectOfAnotherSpearAlone()
{
    const Drawing drawing(QStringLiteral("Effect[Man,Machine]"));
    const SpearItem spear(manTitle, 1, 20);
    subjectOf(spear).attach(drawing.node(manTitle)); // its end alone
    subjectOf(spear).attach(nullptr);
    QVERIFY(drawing.node(manTitle)->spear());
    QVERIFY(drawing.node(manTitle)->spear() != &spear);
}

void TestSpearSubject::shouldForgetASubjectThatLeaves()
{
    const Drawing drawing(QStringLiteral("Effect[Man,Machine]"));
    const SpearItem &spear = *drawing.spear(manTitle);
    drawing.node(manTitle)->setSpear(nullptr, QModelIndex());
    QCOMPARE(subjectOf(spear).item(), nullptr);
    QVERIFY(!subjectOf(spear).index().isValid());
}

void TestSpearSubject::shouldLeaveNothingBehind()
{
    const Drawing drawing(QStringLiteral("Effect[Man,Machine]"));
    subjectOf(*drawing.spear(manTitle)).leave();
    QCOMPARE(drawing.node(manTitle)->spear(), nullptr);
}

void TestSpearSubject::shouldTakeTheStyleOfItsSubject()
{
    const Drawing drawing(QStringLiteral("Effect[Man,Machine]"),
                          {{QStringLiteral("textCount"), 3}});
    QVERIFY(subjectOf(*drawing.spear(manTitle)).style() != SpearStyle::global());
    QCOMPARE(subjectOf(*drawing.spear(manTitle)).style(), drawing.node(manTitle)->spearStyle());
}

void TestSpearSubject::shouldBeAsMovableAsItsSubject()
{
    const Drawing drawing(QStringLiteral("Effect[Man,Machine]"));
    SpearItem &spear = *drawing.spear(manTitle);
    drawing.node(manTitle)->setSpearItemIsMovable(false);
    QVERIFY(!subjectOf(spear).isMovable());
    subjectOf(spear).updateMovableFlag();
    QVERIFY(!spear.flags().testFlag(QGraphicsItem::ItemIsMovable));
    drawing.node(manTitle)->setSpearItemIsMovable(true);
    subjectOf(spear).updateMovableFlag();
    QVERIFY(spear.flags().testFlag(QGraphicsItem::ItemIsMovable));
}

FISHBONE_TEST(TestSpearSubject)
#include "tst_spearsubject.moc"
