// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/expanditem.h>

#include <QStandardItemModel>
#include <QtTest>

#include <fishbone/drawing/spearbuilder.h>
#include <fishbone/items/textitem.h>
#include <tests/items/boneparts.h>
#include <tests/items/shownbones.h>
#include <tests/program/testprogram.h>
#include <tests/support/drawing.h>
#include <tests/support/editorfixture.h>

using namespace TestSupport;

class TestExpandItem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowWhatAPressWouldDo();
    void shouldStandAlone();
    void shouldTakeTheLeftButtonOnly();
    void shouldFollowTheFlagWhenUpdated();
    void shouldToggleItsSpear();
    void shouldSelectItsSpearAlone();
    void shouldLetEveryPressPass_data();
    void shouldLetEveryPressPass();
    void shouldIgnoreOtherButtons_data();
    void shouldIgnoreOtherButtons();
    void shouldBuildAndShowChildrenThatWereNeverMade_data();
    void shouldBuildAndShowChildrenThatWereNeverMade();
    void shouldBuildOneLevelOnly();
    void shouldBuildNothingForASubjectWithoutChildren();
    void shouldBuildNothingTwice();
    void shouldLetTheNextLayoutPlaceTheChildren();
    void shouldFindItsOwnEditorAmongSeveral();
    void shouldFallBackOnTheNewestEditor();
    void shouldFallBackWhenItsViewStandsInNoEditor();
    void shouldToggleOutsideAnyScene();
    void shouldToggleASpearWithoutASubject();
    void shouldKeepTheEditorWhenGivenNone();
    void shouldOnlyToggleWhenTheFallbackIsGone();
    void shouldOnlyToggleWhenTheFallbackShowsAnotherModel_data();
    void shouldOnlyToggleWhenTheFallbackShowsAnotherModel();
    void shouldOnlyToggleWithoutAFishModel();
    void shouldDoNothingWithoutASpear();
    void shouldDoNothingAfterItsSpearDied();
    void shouldShowTheHandWhileHovered();
};

namespace {

using BoneParts::contractFile;
using BoneParts::expandFile;
using ShownBones::machine;
using ShownBones::man;
using ShownBones::training;
const QString sample = QStringLiteral("Effect[Man[Training[Course],Shift],Machine]");

ExpandItem *buttonOf(const SpearItem *spear)
{
    return qgraphicsitem_cast<ExpandItem *>(spear->expandBuddy());
}

/** A spear of the subject "Man", which has children without spears, in a scene that no editor
 * shows. */
struct LonelySpear
{
    LonelySpear()
    {
        loadDocument(model, sample);
        spear = makeSpear(model, indexTitled(model, man), 1, 20.0);
        scene.addItem(spear);
        button = std::make_unique<ExpandItem>(spear).release();
        spear->setExpandBuddy(button);
    }

    FishModel model;
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
    QGraphicsScene scene;
    SpearItem *spear = nullptr;
    ExpandItem *button = nullptr;
};
} // namespace

void TestExpandItem::shouldShowWhatAPressWouldDo()
{
    SpearItem spear(QStringLiteral("Cause"), 0, 20.0);

    QCOMPARE(ExpandItem(&spear).svgFile(), expandFile());
    spear.setExpand(true);
    QCOMPARE(ExpandItem(&spear).svgFile(), contractFile());
    QCOMPARE(ExpandItem(nullptr).svgFile(), expandFile());
}

void TestExpandItem::shouldStandAlone()
{
    SpearItem spear(QStringLiteral("Cause"), 0, 20.0);
    ExpandItem item(&spear);
    QGraphicsItem *const base = &item;

    QCOMPARE(item.parentItem(), nullptr);
    QCOMPARE(qgraphicsitem_cast<ExpandItem *>(base), &item);
    QVERIFY(item.acceptHoverEvents());
    QVERIFY(!item.boundingRect().isEmpty());
}

void TestExpandItem::shouldTakeTheLeftButtonOnly()
{
    QCOMPARE(ExpandItem(nullptr).acceptedMouseButtons(), Qt::MouseButtons(Qt::LeftButton));
}

void TestExpandItem::shouldFollowTheFlagWhenUpdated()
{
    SpearItem spear(QStringLiteral("Cause"), 0, 20.0);
    ExpandItem item(&spear);

    spear.setExpand(true);
    QCOMPARE(item.svgFile(), expandFile());
    item.updateSvgIcon();
    QCOMPARE(item.svgFile(), contractFile());

    spear.setExpand(false);
    item.updateSvgIcon();
    QCOMPARE(item.svgFile(), expandFile());
}

void TestExpandItem::shouldToggleItsSpear()
{
    const Drawing drawing(sample);
    const SpearItem *const spear = drawing.spear(man);
    ExpandItem *const button = buttonOf(spear);
    button->updateSvgIcon();
    QVERIFY(spear->isExpand());

    sendPress(*button, Qt::LeftButton);
    QVERIFY(!spear->isExpand());
    QVERIFY(!drawing.spear(training)->isVisible());
    QCOMPARE(button->svgFile(), expandFile());

    sendPress(*button, Qt::LeftButton);
    QVERIFY(spear->isExpand());
    QVERIFY(drawing.spear(training)->isVisible());
    QCOMPARE(button->svgFile(), contractFile());
}

void TestExpandItem::shouldSelectItsSpearAlone()
{
    const Drawing drawing(sample);
    drawing.spear(machine)->setSelected(true);
    drawing.spear(training)->setSelected(true);

    sendPress(*buttonOf(drawing.spear(man)), Qt::LeftButton);

    QCOMPARE(drawing.scene.selectedItems(), QList<QGraphicsItem *>{drawing.spear(man)});
}

void TestExpandItem::shouldLetEveryPressPass_data()
{
    QTest::addColumn<int>("button");

    QTest::newRow("left") << int(Qt::LeftButton);
    QTest::newRow("right") << int(Qt::RightButton);
    QTest::newRow("middle") << int(Qt::MiddleButton);
}

void TestExpandItem::shouldLetEveryPressPass()
{
    QFETCH(int, button);
    const Drawing drawing(sample);

    QVERIFY(!sendPress(*buttonOf(drawing.spear(man)), Qt::MouseButton(button)));
}

void TestExpandItem::shouldIgnoreOtherButtons_data()
{
    QTest::addColumn<int>("button");

    QTest::newRow("right") << int(Qt::RightButton);
    QTest::newRow("middle") << int(Qt::MiddleButton);
}

void TestExpandItem::shouldIgnoreOtherButtons()
{
    QFETCH(int, button);
    EditorFixture shown(sample);
    shown.select({machine});
    const QString icon = buttonOf(shown.spear(man))->svgFile();

    sendPress(*buttonOf(shown.spear(man)), Qt::MouseButton(button));

    QVERIFY(!shown.spear(man)->isExpand());
    QCOMPARE(shown.spear(training), nullptr);
    QCOMPARE(buttonOf(shown.spear(man))->svgFile(), icon);
    QCOMPARE(shown.editor.scene()->selectedItems(), QList<QGraphicsItem *>{shown.spear(machine)});
}

void TestExpandItem::shouldBuildAndShowChildrenThatWereNeverMade_data()
{
    QTest::addColumn<bool>("flagBefore");

    QTest::newRow("contracted") << false;
    QTest::newRow("marked as expanded") << true;
}

void TestExpandItem::shouldBuildAndShowChildrenThatWereNeverMade()
{
    QFETCH(bool, flagBefore);
    const EditorFixture shown(sample);
    SpearItem *const spear = shown.spear(man);
    spear->setExpand(flagBefore);
    QCOMPARE(spear->childCount(), 0);

    sendPress(*buttonOf(spear), Qt::LeftButton);

    QCOMPARE(spear->childSpears(),
             (QList<SpearItem *>{shown.spear(training), shown.spear(QStringLiteral("Shift"))}));
    QVERIFY(spear->isExpand());
    QVERIFY(shown.spear(training)->isVisible());
    QVERIFY(shown.spear(QStringLiteral("Shift"))->isVisible());
    QCOMPARE(buttonOf(spear)->svgFile(), contractFile());
}

void TestExpandItem::shouldBuildOneLevelOnly()
{
    const EditorFixture shown(sample);

    sendPress(*buttonOf(shown.spear(man)), Qt::LeftButton);

    QCOMPARE(shown.spear(QStringLiteral("Course")), nullptr);
    QVERIFY(buttonOf(shown.spear(training)));
    QVERIFY(!shown.spear(training)->isExpand());
}

void TestExpandItem::shouldBuildNothingForASubjectWithoutChildren()
{
    const EditorFixture shown(sample);
    SpearItem *const spear = shown.spear(machine);
    spear->setExpandBuddy(std::make_unique<ExpandItem>(spear).release());

    sendPress(*buttonOf(spear), Qt::LeftButton);

    QVERIFY(spear->isExpand());
    QCOMPARE(spear->childCount(), 0);
}

void TestExpandItem::shouldBuildNothingTwice()
{
    const EditorFixture shown(sample);
    SpearItem *const spear = shown.spear(man);
    sendPress(*buttonOf(spear), Qt::LeftButton);
    const QList<SpearItem *> children = spear->childSpears();

    sendPress(*buttonOf(spear), Qt::LeftButton);
    QVERIFY(!spear->isExpand());
    sendPress(*buttonOf(spear), Qt::LeftButton);

    QVERIFY(spear->isExpand());
    QCOMPARE(spear->childSpears(), children);
}

void TestExpandItem::shouldLetTheNextLayoutPlaceTheChildren()
{
    using namespace BoneParts;
    EditorFixture shown(sample);
    QVERIFY(shown.show());
    SpearItem *const spear = shown.spear(man);
    const double contracted = spear->line().length();
    QVERIFY(alike(contracted, spear->textItem()->textWidth() + 30));
    GraphicsView *const view = shown.editor.view();
    const QGraphicsItem *const button = buttonOf(spear);
    const QPoint pos = view->mapFromScene(button->mapToScene(button->boundingRect().center()));

    QTest::mousePress(view->viewport(), Qt::LeftButton, Qt::NoModifier, pos);
    QVERIFY(spear->isExpand());
    QVERIFY(spear->isSelected());
    // The release, away from any target, lays the drawing out.
    QTest::mouseRelease(view->viewport(), Qt::LeftButton, Qt::NoModifier, pos);

    QCOMPARE(buttonOf(spear)->svgFile(), contractFile());
    const QList<SpearItem *> children = spear->childSpears();
    QCOMPARE(children.count(), 2);
    double sum = 0;
    for (const SpearItem *child : children) {
        const QPointF start = spear->line().p1() + QPointF(-cos70 * (30 + sum), sin70 * (30 + sum));
        QCOMPARE(child->direction(), 0);
        QVERIFY(alike(child->line().p1(), start));
        QVERIFY(alike(child->line().p2(), start - QPointF(child->textItem()->textWidth(), 0)));
        sum += child->textItem()->textHeight() + 20;
    }
    QVERIFY(
        alike(spear->line().length(), std::max(sum, double(spear->textItem()->textWidth())) + 30));

    // And contracting takes the children's sizes out again.
    const QGraphicsItem *const moved = buttonOf(spear);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier,
                      view->mapFromScene(moved->mapToScene(moved->boundingRect().center())));
    QVERIFY(!spear->isExpand());
    QVERIFY(alike(spear->line().length(), contracted));
}

void TestExpandItem::shouldFindItsOwnEditorAmongSeveral()
{
    const EditorFixture first(sample);
    const EditorFixture second(sample); // the newest, and so the one for scenes without an editor
    QVERIFY(first.subject(man) != second.subject(man));

    sendPress(*buttonOf(first.spear(man)), Qt::LeftButton);
    QVERIFY(first.spear(training));
    QCOMPARE(second.spear(training), nullptr);

    sendPress(*buttonOf(second.spear(man)), Qt::LeftButton);
    QVERIFY(second.spear(training));
}

void TestExpandItem::shouldFallBackOnTheNewestEditor()
{
    LonelySpear lonely;
    const FishEditor older;
    FishEditor newest;
    newest.setModel(&lonely.model);

    sendPress(*lonely.button, Qt::LeftButton);

    QCOMPARE(lonely.spear->childCount(), 2);
    QVERIFY(lonely.spear->isExpand());
}

void TestExpandItem::shouldFallBackWhenItsViewStandsInNoEditor()
{
    LonelySpear lonely;
    QFrame frame;
    const QGraphicsView view(&lonely.scene, &frame);
    FishEditor editor;
    editor.setModel(&lonely.model);

    sendPress(*lonely.button, Qt::LeftButton);

    QCOMPARE(lonely.spear->childCount(), 2);
}

void TestExpandItem::shouldToggleOutsideAnyScene()
{
    class Button : public ExpandItem
    {
    public:
        using ExpandItem::ExpandItem;
        using ExpandItem::mousePressEvent;
    };
    LonelySpear lonely;
    lonely.scene.removeItem(lonely.spear);
    const std::unique_ptr<SpearItem> spear(lonely.spear);
    Button button(spear.get());
    FishEditor editor;
    editor.setModel(&lonely.model);

    QGraphicsSceneMouseEvent event(QEvent::GraphicsSceneMousePress);
    event.setButton(Qt::LeftButton);
    button.mousePressEvent(&event);

    QVERIFY(spear->isExpand());
    QCOMPARE(spear->childCount(), 2);
    QCOMPARE(button.svgFile(), contractFile());
}

void TestExpandItem::shouldToggleASpearWithoutASubject()
{
    QGraphicsScene scene;
    auto *const spear = std::make_unique<SpearItem>(QStringLiteral("Cause"), 0, 20.0).release();
    scene.addItem(spear);
    auto *const button = std::make_unique<ExpandItem>(spear).release();
    spear->setExpandBuddy(button);

    sendPress(*button, Qt::LeftButton);
    QVERIFY(spear->isExpand());
    QCOMPARE(button->svgFile(), contractFile());
    sendPress(*button, Qt::LeftButton);
    QVERIFY(!spear->isExpand());
}

void TestExpandItem::shouldKeepTheEditorWhenGivenNone()
{
    LonelySpear lonely;
    FishEditor chosen;
    chosen.setModel(&lonely.model);
    const FishEditor newest;
    ExpandItem::setFishEditor(&chosen);

    ExpandItem::setFishEditor(nullptr);

    sendPress(*lonely.button, Qt::LeftButton);
    QCOMPARE(lonely.spear->childCount(), 2);
}

void TestExpandItem::shouldOnlyToggleWhenTheFallbackIsGone()
{
    LonelySpear lonely;
    {
        FishEditor editor;
        editor.setModel(&lonely.model);
    }

    sendPress(*lonely.button, Qt::LeftButton);
    QCOMPARE(lonely.spear->childCount(), 0);
    QVERIFY(lonely.spear->isExpand());
    QCOMPARE(lonely.button->svgFile(), contractFile());

    sendPress(*lonely.button, Qt::LeftButton);
    QVERIFY(!lonely.spear->isExpand());
}

void TestExpandItem::shouldOnlyToggleWhenTheFallbackShowsAnotherModel_data()
{
    QTest::addColumn<bool>("expanded");

    QTest::newRow("contracted") << false;
    QTest::newRow("expanded") << true;
}

void TestExpandItem::shouldOnlyToggleWhenTheFallbackShowsAnotherModel()
{
    QFETCH(bool, expanded);
    const LonelySpear lonely;
    const EditorFixture other(sample);
    lonely.spear->setExpand(expanded);

    sendPress(*lonely.button, Qt::LeftButton);

    QCOMPARE(lonely.spear->childCount(), 0);
    QCOMPARE(other.spear(training), nullptr);
    QCOMPARE(lonely.spear->isExpand(), !expanded);
}

void TestExpandItem::shouldOnlyToggleWithoutAFishModel()
{
    const LonelySpear lonely;
    QStandardItemModel model(1, 1);
    FishEditor editor;
    editor.setModel(&model);

    sendPress(*lonely.button, Qt::LeftButton);

    QCOMPARE(lonely.spear->childCount(), 0);
    QVERIFY(lonely.spear->isExpand());
}

void TestExpandItem::shouldDoNothingWithoutASpear()
{
    QGraphicsScene scene;
    auto *const item = std::make_unique<ExpandItem>(nullptr).release();
    scene.addItem(item);
    QGraphicsItem *const other = scene.addRect(0, 0, 5, 5);
    other->setFlag(QGraphicsItem::ItemIsSelectable);
    other->setSelected(true);

    QVERIFY(!sendPress(*item, Qt::LeftButton));

    QVERIFY(other->isSelected());
    QCOMPARE(item->svgFile(), expandFile());
}

void TestExpandItem::shouldDoNothingAfterItsSpearDied()
{
    QGraphicsScene scene;
    auto spear = std::make_unique<SpearItem>(QStringLiteral("Cause"), 0, 20.0);
    auto *const item = std::make_unique<ExpandItem>(spear.get()).release();
    scene.addItem(item);
    spear.reset();

    QVERIFY(!sendPress(*item, Qt::LeftButton));
    item->updateSvgIcon();

    QCOMPARE(item->svgFile(), expandFile());
}

void TestExpandItem::shouldShowTheHandWhileHovered()
{
    const Drawing drawing(sample);
    ExpandItem *const button = buttonOf(drawing.spear(man));

    sendHover(*button, QEvent::GraphicsSceneHoverEnter);
    QCOMPARE(button->cursor().shape(), Qt::PointingHandCursor);

    sendHover(*button, QEvent::GraphicsSceneHoverLeave);
    QVERIFY(!button->hasCursor());
}

FISHBONE_TEST(TestExpandItem)
#include "tst_expanditem.moc"
