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
const QString man = QStringLiteral("Man");

SpearSubject &subjectOf(const SpearItem &spear)
{
    return SpearParts::of(spear).subject;
}
} // namespace

void TestSpearSubject::shouldBeNoneToBeginWith()
{
    const SpearItem spear(man, 1, 20);
    QCOMPARE(subjectOf(spear).item(), nullptr);
    QVERIFY(!subjectOf(spear).index().isValid());
    QCOMPARE(subjectOf(spear).style(), SpearStyle::global());
    QVERIFY(subjectOf(spear).isMovable());
}

void TestSpearSubject::shouldLinkBothEnds()
{
    const Drawing drawing(QStringLiteral("Effect[Man,Machine]"));
    SpearItem *const former = drawing.spear(man);
    drawing.node(man)->setStatus(tsFinish);
    SpearItem spear(man, 1, 20);
    subjectOf(spear).setIndex(drawing.index(man));
    QCOMPARE(subjectOf(spear).item(), drawing.node(man));
    QCOMPARE(subjectOf(spear).index(), drawing.index(man));
    QCOMPARE(drawing.node(man)->spear(), &spear);
    QCOMPARE(spear.statusItem()->status(), tsFinish);
    QCOMPARE(subjectOf(*former).item(), nullptr);
}

void TestSpearSubject::shouldLeaveTheSubjectOfAnotherSpearAlone()
{
    const Drawing drawing(QStringLiteral("Effect[Man,Machine]"));
    const SpearItem spear(man, 1, 20);
    subjectOf(spear).attach(drawing.node(man)); // its end alone
    subjectOf(spear).attach(nullptr);
    QVERIFY(drawing.node(man)->spear());
    QVERIFY(drawing.node(man)->spear() != &spear);
}

void TestSpearSubject::shouldForgetASubjectThatLeaves()
{
    const Drawing drawing(QStringLiteral("Effect[Man,Machine]"));
    const SpearItem &spear = *drawing.spear(man);
    drawing.node(man)->setSpear(nullptr, QModelIndex());
    QCOMPARE(subjectOf(spear).item(), nullptr);
    QVERIFY(!subjectOf(spear).index().isValid());
}

void TestSpearSubject::shouldLeaveNothingBehind()
{
    const Drawing drawing(QStringLiteral("Effect[Man,Machine]"));
    subjectOf(*drawing.spear(man)).leave();
    QCOMPARE(drawing.node(man)->spear(), nullptr);
}

void TestSpearSubject::shouldTakeTheStyleOfItsSubject()
{
    const Drawing drawing(QStringLiteral("Effect[Man,Machine]"),
                          {{QStringLiteral("textCount"), 3}});
    QVERIFY(subjectOf(*drawing.spear(man)).style() != SpearStyle::global());
    QCOMPARE(subjectOf(*drawing.spear(man)).style(), drawing.node(man)->spearStyle());
}

void TestSpearSubject::shouldBeAsMovableAsItsSubject()
{
    const Drawing drawing(QStringLiteral("Effect[Man,Machine]"));
    SpearItem &spear = *drawing.spear(man);
    drawing.node(man)->setSpearItemIsMovable(false);
    QVERIFY(!subjectOf(spear).isMovable());
    subjectOf(spear).updateMovableFlag();
    QVERIFY(!spear.flags().testFlag(QGraphicsItem::ItemIsMovable));
    drawing.node(man)->setSpearItemIsMovable(true);
    subjectOf(spear).updateMovableFlag();
    QVERIFY(spear.flags().testFlag(QGraphicsItem::ItemIsMovable));
}

FISHBONE_TEST(TestSpearSubject)
#include "tst_spearsubject.moc"
