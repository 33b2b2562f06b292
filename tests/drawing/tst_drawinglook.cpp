// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/fishdrawing.h>

#include <QtTest>

#include <fishbone/drawing/classiclook.h>
#include <fishbone/items/spearpasses.h>
#include <fishbone/items/taskstatusitem.h>
#include <fishbone/items/textitem.h>
#include <tests/program/testprogram.h>
#include <tests/support/drawing.h>
#include <tests/support/drawingtext.h>
#include <tests/support/editorfixture.h>

using namespace TestSupport;

/**
 * That a drawing follows whatever look it is given, and nobody else needs to know which one it is.
 */
class TestDrawingLook : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldBeClassicAtFirst();
    void shouldDrawInAnotherLook();
    void shouldGoBack();
    void shouldLayOutOnlyWhatIsNotSettled();
    void shouldFollowSpearsThatComeAndGo();
    void shouldTakeALookThatIsChosenWhileItLaysOut();
    void shouldKeepTheOptionsOfAnEditor();
};

namespace {
const QString document = QStringLiteral("Effect[Man[Training[Course],Shift],Machine[Wear]]");

/** All bones and all texts are level, one below the other. */
class LadderLook : public ClassicLook
{
public:
    QLineF line(const SpearItem &spear, const SpearItem *parent) const override
    {
        const double depth = 40.0 * spear.depth();
        const double top = parent ? 30 + spear.offset() : 0;
        return {depth, top, depth + 100, top};
    }
    QPointF textPosition(const SpearItem &spear) const override { return spear.line().p1(); }
    std::optional<double> textRotation(const SpearItem &) const override { return 0; }
    int rowAt(const SpearItem &, const QPointF &scenePos, int) const override
    {
        return int(scenePos.y() / 100);
    }
    void place(const SpearTree &tree) const override
    {
        double top = 0;
        for (const SpearTree::Entry &entry : tree.entries()) {
            entry.spear->setOffset(top += 20);
            SpearPasses::place(*entry.spear, entry.spear->parentSpear());
        }
    }
};
} // namespace

void TestDrawingLook::shouldBeClassicAtFirst()
{
    const SpearItem spear(QStringLiteral("Spear"), 1, 20);
    QCOMPARE(&spear.look(), SpearLook::standard().get());
    QCOMPARE(FishDrawing().kind(), DiagramLook::Classic);
    QVERIFY(FishDrawing().options() == DiagramLook::Options());
}

void TestDrawingLook::shouldDrawInAnotherLook()
{
    Drawing drawing(document);
    const auto look = std::make_shared<LadderLook>();
    FishDrawing fish;
    fish.setLook(look);

    fish.update(drawing.head);

    double last = -1;
    for (const QString &title : {QStringLiteral("Effect"), QStringLiteral("Man"),
                                 QStringLiteral("Machine"), QStringLiteral("Training")}) {
        const SpearItem *const spear = drawing.spear(title);
        QCOMPARE(&spear->look(), look.get());
        QCOMPARE(spear->line().dy(), 0.0);
        QCOMPARE(spear->line().x1(), 40.0 * spear->depth());
        QVERIFY(spear->line().y1() > last);
        QCOMPARE(spear->textItem()->rotation(), 0.0);
        QCOMPARE(spear->textItem()->pos(), spear->line().p1());
        last = spear->line().y1();
    }
    QCOMPARE(drawing.head->dropRow(QPointF(0, 250), nullptr), 2);
    // Where it is hit and painted follows.
    const SpearItem *const deep = drawing.spear(QStringLiteral("Course"));
    QVERIFY(deep->shape().boundingRect().contains(deep->line().center()));
    QVERIFY(deep->boundingRect().contains(deep->line().center()));
}

void TestDrawingLook::shouldGoBack()
{
    Drawing drawing(document);
    const QStringList classic = drawingText(drawing.head);
    FishDrawing fish;
    fish.setLook(std::make_shared<LadderLook>());
    fish.update(drawing.head);
    QVERIFY(drawingText(drawing.head) != classic);

    fish.choose(DiagramLook::Classic, {});
    fish.update(drawing.head);

    QCOMPARE(drawingText(drawing.head), classic);
}

void TestDrawingLook::shouldLayOutOnlyWhatIsNotSettled()
{
    /** Counts its layouts. */
    class CountingLook : public ClassicLook
    {
    public:
        mutable int layouts = 0;
        void place(const SpearTree &tree) const override
        {
            ++layouts;
            ClassicLook::place(tree);
        }
    };
    Drawing drawing(document);
    const auto look = std::make_shared<CountingLook>();
    FishDrawing fish;
    fish.setLook(look);

    fish.update(drawing.head);
    fish.update(drawing.head);
    QCOMPARE(look->layouts, 1);

    drawing.node(QStringLiteral("Man"))->setTitle(QStringLiteral("A longer title"));
    fish.update(drawing.head);
    QCOMPARE(look->layouts, 2);

    drawing.spear(QStringLiteral("Wear"))->statusItem()->setPos(5, 5);
    fish.update(drawing.head);
    QCOMPARE(look->layouts, 3);

    delete drawing.spear(QStringLiteral("Wear"));
    fish.update(drawing.head);
    fish.update(drawing.head);
    QCOMPARE(look->layouts, 4);
}

void TestDrawingLook::shouldFollowSpearsThatComeAndGo()
{
    Drawing drawing(document);
    const QGraphicsScene *const scene = drawing.head->scene();
    FishDrawing fish;
    fish.update(drawing.head);
    fish.update(drawing.head); // knows the tree by now
    QVERIFY(fish.isAlone(*scene, drawing.head));

    SpearItem *const man = drawing.spear(QStringLiteral("Man"));
    auto *const added = std::make_unique<SpearItem>(QStringLiteral("Late"), 0, 20).release();
    added->setParentItem(man);
    QVERIFY(!fish.isAlone(*scene, drawing.head));
    fish.update(drawing.head);
    QVERIFY(!added->line().isNull());
    QVERIFY(fish.isAlone(*scene, drawing.head));

    delete drawing.spear(QStringLiteral("Training"));
    fish.update(drawing.head);
    fish.update(drawing.head);
    QVERIFY(fish.isAlone(*scene, drawing.head));
}

void TestDrawingLook::shouldTakeALookThatIsChosenWhileItLaysOut()
{
    Drawing drawing(document);
    FishDrawing fish;
    fish.update(drawing.head);
    SpearItem *const man = drawing.spear(QStringLiteral("Man"));
    SpearItem *const training = drawing.spear(QStringLiteral("Training"));
    // A hidden bone that a host shows and gives the focus loses both to the layout.
    man->setExpand(false);
    fish.update(drawing.head);
    training->setVisible(true);
    training->setFlag(QGraphicsItem::ItemIsFocusable);
    QGraphicsScene *const scene = drawing.head->scene();
    QEvent activation(QEvent::WindowActivate);
    QApplication::sendEvent(scene, &activation);
    scene->setActivePanel(training); // as every bone is one
    training->setFocus();
    QVERIFY(training->hasFocus());
    int chosen = 0;
    connect(scene, &QGraphicsScene::focusItemChanged, scene, [&fish, &chosen] {
        ++chosen;
        fish.choose(DiagramLook::Clear, {});
    });

    fish.update(drawing.head);

    QVERIFY(chosen > 0);
    QVERIFY(!training->isVisible());
    QCOMPARE(fish.kind(), DiagramLook::Clear);
    fish.update(drawing.head);
    QVERIFY(man->lookData());
}

void TestDrawingLook::shouldKeepTheOptionsOfAnEditor()
{
    EditorFixture fish(document);
    DiagramLook::Options options;
    options.wrapLimit = 145;
    QCOMPARE(fish.editor.look(), DiagramLook::Classic);

    fish.editor.setLookOptions(options);
    fish.editor.setLook(DiagramLook::Clear);
    QCOMPARE(fish.editor.look(), DiagramLook::Clear);
    QVERIFY(fish.editor.lookOptions() == options);
    fish.editor.setLook(DiagramLook::Classic);
    QVERIFY(fish.editor.lookOptions() == options);
}

FISHBONE_TEST(TestDrawingLook)
#include "tst_drawinglook.moc"
