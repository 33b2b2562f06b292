// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/spearparts.h>

#include <QtTest>

#include <memory>

#include <fishbone/items/expanditem.h>
#include <fishbone/items/linkitem.h>
#include <fishbone/items/taskstatusitem.h>
#include <fishbone/items/textitem.h>
#include <fishbone/model/treeitem.h>
#include <tests/program/testprogram.h>
#include <tests/support/drawing.h>

using namespace TestSupport;

/** Where companions are made, and that they follow subject and look. */
class TestSpearCompanions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldMakeTextAndStatus();
    void shouldMakeNoStatusThatShowsNothing();
    void shouldMakeTheStatusAsIfItHadAlwaysBeenThere();
    void shouldShowTheSameWhetherOrNotTheStatusWasMade();
    void shouldKeepTheStatusInLineWithTheSubject();
    void shouldKeepTheLinkInLineWithTheSubject();
    void shouldMakeTheButtonOnce();
    void shouldForgetWhatIsGivenToSomebodyElse();
    void shouldPlaceAllOfThem();
    void shouldHideTheStatusOfAHeader();
    void shouldLeaveAStatusAloneThatAHostHides();
};

namespace {
const QString boneTitle = QStringLiteral("Man");
const QString machineTitle = QStringLiteral("Machine");
const QString bonedFish = QStringLiteral("Effect[Man[Training],Machine]");

SpearCompanions &companionsOf(const SpearItem &spear)
{
    return SpearParts::of(spear).companions;
}
} // namespace

void TestSpearCompanions::shouldMakeTextAndStatus()
{
    SpearItem spear(boneTitle, 1, 20);
    SpearCompanions companions(spear);
    QCOMPARE(companions.text(), nullptr);
    QCOMPARE(companions.madeStatus(), nullptr);
    companions.make();
    QCOMPARE(companions.text()->parentItem(), &spear);
    QCOMPARE(companions.madeStatus(), nullptr);
    QCOMPARE(companions.status()->parentItem(), &spear);
    QCOMPARE(companions.link(), nullptr);
    QCOMPARE(companions.button(), nullptr);
}

void TestSpearCompanions::shouldMakeNoStatusThatShowsNothing()
{
    const Drawing drawing(bonedFish);
    const SpearItem &spear = *drawing.spear(boneTitle);
    SpearCompanions &companions = companionsOf(spear);
    for (const int nothing : {TreeItem::none, int(tsUnknown), 4711}) {
        drawing.node(boneTitle)->setStatus(nothing);
        companions.updateStatus();
        companions.place();
        QCOMPARE(companions.madeStatus(), nullptr);
    }
    QCOMPARE(int(spear.statusItem()->status()), 4711);
    drawing.node(machineTitle)->setStatus(tsRunning);
    drawing.spear(machineTitle)->updateTaskStatus();
    QVERIFY(companionsOf(*drawing.spear(machineTitle)).madeStatus());
    QVERIFY(companionsOf(*drawing.spear(machineTitle)).madeStatus()->showsPicture());
}

void TestSpearCompanions::shouldMakeTheStatusAsIfItHadAlwaysBeenThere()
{
    const Drawing early(bonedFish);
    const Drawing late(bonedFish);
    early.spear(boneTitle)->statusItem();
    for (const Drawing *drawing : {&early, &late}) {
        SpearItem &spear = *drawing->spear(boneTitle);
        companionsOf(spear).showLink(QStringLiteral("https://example.org"));
        companionsOf(spear).place();
        companionsOf(*drawing->spear(QStringLiteral("Effect"))).place();
    }
    const auto typesOf = [](const SpearItem &spear) {
        QList<int> types;
        for (const QGraphicsItem *item : spear.childItems())
            types.append(item->type());
        return types;
    };
    for (const QString &title : {boneTitle, QStringLiteral("Effect")}) {
        const TaskStatusItem &made = *early.spear(title)->statusItem();
        const TaskStatusItem &fresh = *late.spear(title)->statusItem();
        QCOMPARE(fresh.pos(), made.pos());
        QCOMPARE(fresh.scale(), made.scale());
        QCOMPARE(fresh.isVisible(), made.isVisible());
    }
    const SpearItem &spear = *late.spear(boneTitle);
    QCOMPARE(typesOf(spear), typesOf(*early.spear(boneTitle)));
    QCOMPARE(spear.childItems().at(0), spear.textItem());
    QCOMPARE(spear.childItems().at(1), spear.statusItem());
    QVERIFY(!late.spear(QStringLiteral("Effect"))->statusItem()->isVisible());
}

void TestSpearCompanions::shouldShowTheSameWhetherOrNotTheStatusWasMade()
{
    const Drawing drawing(bonedFish);
    SpearItem &spear = *drawing.spear(boneTitle);
    SpearCompanions &companions = companionsOf(spear);
    companions.place();
    const QRectF before = spear.childrenBoundingRect();
    QVERIFY(companions.status()->boundingRect().isEmpty());
    QCOMPARE(spear.childrenBoundingRect(), before);
    QCOMPARE(companions.status()->pos(), spear.TaskStateItemPosition());
}

void TestSpearCompanions::shouldKeepTheStatusInLineWithTheSubject()
{
    const Drawing drawing(bonedFish);
    SpearCompanions &companions = companionsOf(*drawing.spear(boneTitle));
    companions.setStatus(tsFinish);
    QCOMPARE(drawing.node(boneTitle)->status(), int(tsFinish));
    QCOMPARE(companions.status()->status(), tsFinish);
    drawing.node(boneTitle)->setStatus(tsPostpone);
    companions.updateStatus();
    QCOMPARE(companions.status()->status(), tsPostpone);
}

void TestSpearCompanions::shouldKeepTheLinkInLineWithTheSubject()
{
    const Drawing drawing(bonedFish);
    SpearCompanions &companions = companionsOf(*drawing.spear(boneTitle));
    companions.updateLink();
    QCOMPARE(companions.link(), nullptr);
    drawing.node(boneTitle)->setUrl(QStringLiteral("https://example.org/a"));
    companions.updateLink();
    QGraphicsItem *const link = companions.link();
    QVERIFY(link);
    QCOMPARE(link->pos(), drawing.spear(boneTitle)->linkBuddyPosition());
    companions.updateLink();
    QCOMPARE(companions.link(), link);
    drawing.node(boneTitle)->setUrl(QStringLiteral("https://example.org/b"));
    companions.updateLink();
    QCOMPARE(qgraphicsitem_cast<LinkItem *>(companions.link())->url(),
             QStringLiteral("https://example.org/b"));
    drawing.node(boneTitle)->setUrl(QString());
    companions.updateLink();
    QCOMPARE(companions.link(), nullptr);
}

void TestSpearCompanions::shouldMakeTheButtonOnce()
{
    SpearItem spear(boneTitle, 1, 20);
    SpearCompanions &companions = companionsOf(spear);
    companions.updateButton();
    QGraphicsItem *const button = companions.button();
    QCOMPARE(button->parentItem(), &spear);
    QCOMPARE(button->pos(), spear.expandBuddyPosition());
    const QString contracted = qgraphicsitem_cast<ExpandItem *>(button)->svgFile();
    spear.setExpand(true);
    companions.updateButton();
    QCOMPARE(companions.button(), button);
    QVERIFY(qgraphicsitem_cast<ExpandItem *>(button)->svgFile() != contracted);
}

void TestSpearCompanions::shouldForgetWhatIsGivenToSomebodyElse()
{
    SpearItem spear(boneTitle, 1, 20);
    SpearItem other(boneTitle, 1, 20);
    SpearCompanions &companions = companionsOf(spear);
    companions.updateButton();
    companions.showLink(QStringLiteral("https://example.org"));
    companions.button()->setParentItem(&other);
    QCOMPARE(companions.button(), nullptr);
    delete companions.link();
    QCOMPARE(companions.link(), nullptr);
}

void TestSpearCompanions::shouldPlaceAllOfThem()
{
    const Drawing drawing(bonedFish);
    SpearItem &spear = *drawing.spear(boneTitle);
    SpearCompanions &companions = companionsOf(spear);
    companions.showLink(QStringLiteral("https://example.org"));
    const QPointF elsewhere(1000, 1000);
    for (QGraphicsItem *const item : {static_cast<QGraphicsItem *>(companions.text()),
                                      static_cast<QGraphicsItem *>(companions.status()),
                                      companions.link(), companions.button()})
        item->setPos(elsewhere);
    companions.text()->setRotation(7);
    companions.place();
    QCOMPARE(companions.text()->pos(), spear.textBuddyPosition());
    QVERIFY(companions.text()->rotation() != 7);
    QCOMPARE(companions.status()->pos(), spear.TaskStateItemPosition());
    QCOMPARE(companions.link()->pos(), spear.linkBuddyPosition());
    QCOMPARE(companions.button()->pos(), spear.expandBuddyPosition());
}

void TestSpearCompanions::shouldHideTheStatusOfAHeader()
{
    SpearItem head(QStringLiteral("Head"), 0, 20);
    SpearItem spear(boneTitle, 1, 20);
    SpearCompanions &companions = companionsOf(spear);
    companions.place(); // without a parent
    QVERIFY(!companions.status()->isVisible());
    spear.setParentItem(&head);
    companions.place();
    QVERIFY(companions.status()->isVisible());
    spear.setParentItem(nullptr);
}

void TestSpearCompanions::shouldLeaveAStatusAloneThatAHostHides()
{
    const Drawing drawing(bonedFish);
    SpearCompanions &companions = companionsOf(*drawing.spear(boneTitle));
    companions.status()->setVisible(false);
    companions.place();
    QVERIFY(!companions.status()->isVisible());
}

FISHBONE_TEST(TestSpearCompanions)
#include "tst_spearcompanions.moc"
