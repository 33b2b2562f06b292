// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/spearitem.h>

#include <QPixmap>
#include <QSvgRenderer>
#include <QtTest>

#include <fishbone/items/linkitem.h>
#include <fishbone/items/svgcache.h>
#include <fishbone/items/taskstatusitem.h>
#include <fishbone/items/textitem.h>
#include <tests/items/boneparts.h>
#include <tests/items/shownbones.h>
#include <tests/program/testprogram.h>
#include <tests/support/drawing.h>
#include <tests/support/pictures.h>
#include <tests/support/statelooks.h>

using namespace TestSupport;

class TestSpearItem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldBeFreshAfterConstruction();
    void shouldHaveTextAndStatusItemsOfItsOwn();
    void shouldShareThePicturesAndReleaseThemWithTheLastSpear();
    void shouldParseEachPictureOnceHoweverManySpearsThereAre();
    void shouldStoreTheLinkMark();
    void shouldStoreTheMovingMark();
    void shouldShowAndHideItsChildSpears();
    void shouldRepaintWhenExpanded();
    void shouldKnowItsPlaceInTheTree();
    void shouldListChildSpearsOnly();
    void shouldStackChildrenInRowOrder_data();
    void shouldStackChildrenInRowOrder();
    void shouldStackOnlyWhatItCarries();
    void shouldBeMovableAsItsSubjectIs();
    void shouldShowTheStatusOfItsSubject();
    void shouldSetTheStatusOfItsSubject();
    void shouldIgnoreTaskOperationsWithoutASubject();
    void shouldShowTheHandWhileItIsTopmost();
    void shouldUpdateTheToolTipWhenTheMouseEnters();
};

namespace {
using BoneParts::newSpear;
using ShownBones::effect;
using ShownBones::man;
} // namespace

void TestSpearItem::shouldBeFreshAfterConstruction()
{
    SpearItem spear(QStringLiteral("Fishbone"), -1, 12.5);
    QGraphicsItem *const base = &spear;

    QCOMPARE(qgraphicsitem_cast<SpearItem *>(base), &spear);
    QCOMPARE(spear.text(), QStringLiteral("Fishbone"));
    QCOMPARE(spear.toolTip(), QStringLiteral("Fishbone"));
    QCOMPARE(spear.direction(), -1);
    QCOMPARE(spear.spearSize(), 12.5);
    QCOMPARE(spear.offset(), 0.0);
    QCOMPARE(spear.side(), -1);
    QCOMPARE(spear.line(), QLineF());
    QCOMPARE(spear.parentItem(), nullptr);
    QCOMPARE(int(spear.flags()), 0x4803);
    QCOMPARE(spear.flags(), QGraphicsItem::ItemIsMovable | QGraphicsItem::ItemIsSelectable |
                                QGraphicsItem::ItemSendsGeometryChanges |
                                QGraphicsItem::ItemIsPanel);
    QVERIFY(spear.acceptHoverEvents());
    QCOMPARE(spear.currentState(), SpearStyle::ssNormal);
    QVERIFY(!spear.modelIndex().isValid());
    QCOMPARE(spear.treeItem(), nullptr);
    QVERIFY(!spear.isLinked());
    QVERIFY(!spear.isMoving());
    QVERIFY(!spear.isExpand());
    QCOMPARE(spear.linkItem(), nullptr);
    QCOMPARE(spear.expandBuddy(), nullptr);
    QCOMPARE(spear.childCount(), 0);
}

void TestSpearItem::shouldHaveTextAndStatusItemsOfItsOwn()
{
    const auto spear = newSpear();

    QCOMPARE(spear->textItem()->parentItem(), spear.get());
    QCOMPARE(spear->textItem()->toPlainText(), QStringLiteral("Cause"));
    QCOMPARE(spear->statusItem()->parentItem(), spear.get());
    QCOMPARE(spear->statusItem()->status(), tsUnknown);
    QCOMPARE(spear->statusItem()->progress(), 0);
    QCOMPARE(spear->textWidth(), spear->textItem()->document()->size().width());
    QCOMPARE(spear->textHeight(), spear->textItem()->document()->size().height());
}

void TestSpearItem::shouldShareThePicturesAndReleaseThemWithTheLastSpear()
{
    QCOMPARE(SpearItem::m_refCount, 0);
    QCOMPARE(SpearItem::m_pixHeader, nullptr);
    QCOMPARE(SpearItem::m_pixTail, nullptr);
    for (int round = 0; round < 2; ++round) {
        auto first = newSpear();
        QCOMPARE(SpearItem::m_refCount, 1);
        const QPixmap *const head = SpearItem::m_pixHeader;
        const QPixmap *const tail = SpearItem::m_pixTail;
        QCOMPARE(head->size(),
                 QSvgRenderer(QStringLiteral(":/fishboneDiagram/head.svg")).defaultSize());
        QCOMPARE(tail->size(),
                 QSvgRenderer(QStringLiteral(":/fishboneDiagram/tail.svg")).defaultSize());
        QVERIFY(head->hasAlphaChannel());

        auto second = newSpear();
        QCOMPARE(SpearItem::m_refCount, 2);
        first.reset();
        QCOMPARE(SpearItem::m_refCount, 1);
        QCOMPARE(SpearItem::m_pixHeader, head);
        QCOMPARE(SpearItem::m_pixTail, tail);

        second.reset();
        QCOMPARE(SpearItem::m_refCount, 0);
        QCOMPARE(SpearItem::m_pixHeader, nullptr);
        QCOMPARE(SpearItem::m_pixTail, nullptr);
    }
}

void TestSpearItem::shouldParseEachPictureOnceHoweverManySpearsThereAre()
{
    const auto draw = [] {
        const Drawing drawing(QStringLiteral("Effect[A[B[C,D],E],F[G,H[I]],J,K]"));
        for (const QString &title :
             {QStringLiteral("A"), QStringLiteral("C"), QStringLiteral("J")}) {
            SpearItem *const spear = drawing.spear(title);
            spear->setLinkItem(std::make_unique<LinkItem>(title).release());
            spear->setTaskStatus(tsFinish);
            spear->setExpand(!spear->isExpand());
            drawing.layOut();
        }
    };
    draw();
    const int parsed = parsedSvgFileCount();
    QVERIFY(parsed >= 5); // head, tail, link, status and button

    draw();
    draw();

    QCOMPARE(parsedSvgFileCount(), parsed);
}

void TestSpearItem::shouldStoreTheLinkMark()
{
    const auto spear = newSpear();

    spear->setLinked(true, 7);
    QVERIFY(spear->isLinked());
    QCOMPARE(spear->linkNumber(), 7);

    spear->setLinked(false, 0);
    QVERIFY(!spear->isLinked());
    QCOMPARE(spear->linkNumber(), 0);
}

void TestSpearItem::shouldStoreTheMovingMark()
{
    const auto spear = newSpear();

    spear->setMoving(true);
    QVERIFY(spear->isMoving());
    spear->setMoving(false);
    QVERIFY(!spear->isMoving());
}

void TestSpearItem::shouldShowAndHideItsChildSpears()
{
    const Drawing drawing(QStringLiteral("Effect[Man[Training,Shift[Night]]]"));
    SpearItem *const spear = drawing.spear(man);
    auto *const link = std::make_unique<LinkItem>(QStringLiteral("x")).release();
    spear->setLinkItem(link);

    spear->setExpand(false);
    QVERIFY(!spear->isExpand());
    QVERIFY(spear->isVisible());
    QVERIFY(!drawing.spear(QStringLiteral("Training"))->isVisible());
    QVERIFY(!drawing.spear(QStringLiteral("Shift"))->isVisible());
    QVERIFY(!drawing.spear(QStringLiteral("Night"))->isVisible());
    QVERIFY(link->isVisible());
    QVERIFY(spear->textItem()->isVisible());

    spear->setExpand(true);
    QVERIFY(spear->isExpand());
    QVERIFY(drawing.spear(QStringLiteral("Training"))->isVisible());
    QVERIFY(drawing.spear(QStringLiteral("Night"))->isVisible());

    drawing.spear(QStringLiteral("Shift"))->setExpand(false);
    spear->setExpand(false);
    spear->setExpand(true);
    QVERIFY(drawing.spear(QStringLiteral("Shift"))->isVisible());
    QVERIFY(!drawing.spear(QStringLiteral("Night"))->isVisible());
}

void TestSpearItem::shouldRepaintWhenExpanded()
{
    const Drawing drawing(QStringLiteral("Effect[Man]"));
    QSignalSpy changes(&drawing.scene, &QGraphicsScene::changed);
    QCoreApplication::processEvents();
    changes.clear();

    drawing.spear(man)->setExpand(false); // no child to hide
    QCoreApplication::processEvents();

    QCOMPARE(changes.count(), 1);
}

void TestSpearItem::shouldKnowItsPlaceInTheTree()
{
    const Drawing drawing(QStringLiteral("Effect[Man[Training[Course]]]"));

    QVERIFY(drawing.head->isHeader());
    QVERIFY(!drawing.spear(man)->isHeader());
    QCOMPARE(drawing.head->depth(), 0);
    QCOMPARE(drawing.spear(man)->depth(), 1);
    QCOMPARE(drawing.spear(QStringLiteral("Course"))->depth(), 3);
}

void TestSpearItem::shouldListChildSpearsOnly()
{
    const Drawing drawing(QStringLiteral("Effect[Man[Training,Shift,Night]]"));
    SpearItem *const spear = drawing.spear(man);
    spear->setLinkItem(std::make_unique<LinkItem>(QStringLiteral("x")).release());
    QVERIFY(spear->expandBuddy());
    QVERIFY(spear->childItems().count() > 3);
    const QList<SpearItem *> expected{drawing.spear(QStringLiteral("Training")),
                                      drawing.spear(QStringLiteral("Shift")),
                                      drawing.spear(QStringLiteral("Night"))};

    QCOMPARE(spear->childSpears(), expected);
    QCOMPARE(spear->childCount(), 3);
    for (int i = 0; i < 3; ++i)
        QCOMPARE(spear->childSpear(i), expected.at(i));
    QCOMPARE(spear->childSpear(-1), nullptr);
    QCOMPARE(spear->childSpear(3), nullptr);
}

void TestSpearItem::shouldStackChildrenInRowOrder_data()
{
    QTest::addColumn<QString>("lastOne");

    QTest::newRow("first") << QStringLiteral("A");
    QTest::newRow("middle") << QStringLiteral("B");
    QTest::newRow("last") << QStringLiteral("D");
}

void TestSpearItem::shouldStackChildrenInRowOrder()
{
    QFETCH(QString, lastOne);
    const Drawing drawing(QStringLiteral("Effect[Man[A,B,C,D]]"));
    SpearItem *const spear = drawing.spear(man);
    const QList<SpearItem *> expected = spear->childSpears();
    SpearItem *const moved = drawing.spear(lastOne);
    moved->setParentItem(nullptr);
    moved->setParentItem(spear);
    QCOMPARE(spear->childSpears().last(), moved);

    spear->stackChildrenInRowOrder();

    QCOMPARE(spear->childSpears(), expected);
}

void TestSpearItem::shouldStackOnlyWhatItCarries()
{
    const Drawing drawing(QStringLiteral("Effect[Man[A,B,C,D]]"));
    SpearItem *const spear = drawing.spear(man);
    SpearItem *const moved = drawing.spear(QStringLiteral("A"));
    moved->setParentItem(nullptr);
    moved->setParentItem(spear);
    SpearItem *const elsewhere = drawing.spear(QStringLiteral("B"));
    elsewhere->setParentItem(drawing.head);
    delete drawing.spear(QStringLiteral("C"));

    spear->stackChildrenInRowOrder();

    QCOMPARE(spear->childSpears(), QList<SpearItem *>({moved, drawing.spear(QStringLiteral("D"))}));
    QCOMPARE(elsewhere->parentItem(), drawing.head);

    SpearItem stranger(QStringLiteral("Stranger"), 0, 20.0);
    moved->setParentItem(&stranger);
    stranger.stackChildrenInRowOrder();
    QCOMPARE(stranger.childSpears(), QList<SpearItem *>{moved});
    moved->setParentItem(spear);
}

void TestSpearItem::shouldBeMovableAsItsSubjectIs()
{
    const Drawing drawing(QStringLiteral("Effect[Man]"));
    SpearItem *const spear = drawing.spear(man);
    QVERIFY(spear->isMovable());
    QCOMPARE(int(spear->flags()), 0x4803);

    drawing.node(man)->setSpearItemIsMovable(false);
    QVERIFY(!spear->isMovable());
    spear->updateMovableFlag();
    QCOMPARE(int(spear->flags()), 0x4802);

    drawing.node(man)->setSpearItemIsMovable(true);
    spear->updateMovableFlag();
    QCOMPARE(int(spear->flags()), 0x4803);

    QVERIFY(newSpear()->isMovable()); // without a subject
}

void TestSpearItem::shouldShowTheStatusOfItsSubject()
{
    const Drawing drawing(QStringLiteral("Effect[Man]"));
    TreeItem *const subject = drawing.node(man);
    SpearItem *const spear = drawing.spear(man);
    QCOMPARE(subject->status(), -1);
    QVERIFY(spear->statusItem()->svgFile().isEmpty());

    subject->setStatus(tsRunning);
    subject->setProgress(42);
    spear->updateTaskStatus();

    QCOMPARE(spear->statusItem()->svgFile(),
             QStringLiteral(":/fishboneDiagram/status/running_progress_50.svg"));
}

void TestSpearItem::shouldSetTheStatusOfItsSubject()
{
    const Drawing drawing(QStringLiteral("Effect[Man]"));
    SpearItem *const spear = drawing.spear(man);
    spear->textItem()->setPos(1000, 1000); // so that placing the companions shows

    spear->setTaskStatus(tsFinish);

    QCOMPARE(drawing.node(man)->status(), int(tsFinish));
    QCOMPARE(spear->statusItem()->status(), tsFinish);
    QVERIFY(spear->textItem()->pos() != QPointF(1000, 1000));
    QVERIFY(spear->statusItem()->isVisible());

    spear->setTaskStatus(9); // stored, though it is none that could be shown
    QCOMPARE(drawing.node(man)->status(), 9);
    QCOMPARE(spear->statusItem()->status(), tsFinish);
}

void TestSpearItem::shouldIgnoreTaskOperationsWithoutASubject()
{
    const auto spear = newSpear();

    spear->setTaskStatus(tsFinish);
    spear->updateTaskStatus();

    QCOMPARE(spear->statusItem()->status(), tsUnknown);
    QVERIFY(spear->statusItem()->svgFile().isEmpty());
}

void TestSpearItem::shouldShowTheHandWhileItIsTopmost()
{
    Drawing drawing(QStringLiteral("Effect[Man]"));
    SpearItem *const spear = drawing.spear(man);
    const QGraphicsView view(&drawing.scene);
    const QWidget *const viewport = view.viewport();
    const QPointF onBone = spear->line().p2() * 0.9 + spear->line().p1() * 0.1;
    const QPointF onText =
        spear->mapFromItem(spear->textItem(), spear->textItem()->boundingRect().center());

    sendHover(*spear, QEvent::GraphicsSceneHoverEnter, onBone);
    QCOMPARE(viewport->cursor().shape(), Qt::PointingHandCursor);
    sendHover(*spear, QEvent::GraphicsSceneHoverMove, onText); // the text box is above
    QCOMPARE(viewport->cursor().shape(), Qt::ArrowCursor);
    sendHover(*spear, QEvent::GraphicsSceneHoverMove, onBone);
    QCOMPARE(viewport->cursor().shape(), Qt::PointingHandCursor);
    sendHover(*spear, QEvent::GraphicsSceneHoverLeave, onBone);
    QCOMPARE(viewport->cursor().shape(), Qt::ArrowCursor);
    sendHover(*spear, QEvent::GraphicsSceneHoverEnter, onText);
    QCOMPARE(viewport->cursor().shape(), Qt::ArrowCursor);
}

void TestSpearItem::shouldUpdateTheToolTipWhenTheMouseEnters()
{
    const Drawing drawing(QStringLiteral("Effect[Man]"));
    SpearItem *const spear = drawing.spear(man);
    drawing.node(man)->setManagerName(QStringLiteral("Li"));

    sendHover(*spear, QEvent::GraphicsSceneHoverMove);
    QCOMPARE(spear->toolTip(), man);

    sendHover(*spear, QEvent::GraphicsSceneHoverEnter);
    QCOMPARE(spear->toolTip(), QStringLiteral("Man\n 负责人:Li"));
}

FISHBONE_TEST(TestSpearItem)
#include "tst_spearitem.moc"
