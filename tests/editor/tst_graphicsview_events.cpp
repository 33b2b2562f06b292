// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QScrollBar>
#include <QtTest>

#include <fishbone/items/linkitem.h>
#include <fishbone/items/textitem.h>
#include <tests/editor/referencelayout.h>
#include <tests/program/testprogram.h>
#include <tests/support/drawingtext.h>
#include <tests/support/editorfixture.h>
#include <tests/support/signalrecorder.h>
#include <tests/support/viewmouse.h>

using namespace TestSupport;

/** The row of a move, the wheel, double clicks, context menus and the expand button. */
class TestGraphicsViewEvents : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldFindTheRowOnASlantedBone_data();
    void shouldFindTheRowOnASlantedBone();
    void shouldFindTheRowOnAHorizontalBone();
    void shouldSkipTheRowBehindTheMovingSpear();
    void shouldHandADoubleClickToTheEditor();
    void shouldKeepADoubleClickFromTheItems();
    void shouldScrollSidewaysWithAPlainWheel_data();
    void shouldScrollSidewaysWithAPlainWheel();
    void shouldZoomWithControlAndTheWheel_data();
    void shouldZoomWithControlAndTheWheel();
    void shouldAskForTheMenuOfASpear();
    void shouldAskForTheMenuOfASpearAtItsText();
    void shouldAskForTheMenuOfTheCanvas();
    void shouldAskForNoMenuOfACompanion();
    void shouldExpandABoneByItsButton();
    void shouldContractABoneByItsButton();
    void shouldExpandOneLevelAtATime();
    void shouldLeaveABoneAloneForOtherButtons_data();
    void shouldLeaveABoneAloneForOtherButtons();
    void shouldShowChildrenThatWereMadeJustNow();
};

namespace {
/** An expanded diagram on the screen. */
class Stage : public EditorFixture
{
public:
    explicit Stage(const QString &document = QStringLiteral(
                       "Effect[Man[Train[x,y],Cost,Time],Machine[Wear,Tear],Method,Matter]"),
                   bool expanded = true)
        : EditorFixture(document)
        , view(*editor.view())
        , mouse(view)
    {
        if (expanded)
            editor.expandAll();
        if (!show())
            qFatal("The editor does not show.");
    }

    /** Marks @p target by moving @p moved over its outer end, without carrying anything out. */
    void mark(const QString &moved, const QString &target)
    {
        QObject::disconnect(&view, &GraphicsView::moveSpear, &editor, nullptr);
        select({moved});
        mouse.press({8, 8}); // nowhere, so that nothing moves along
        mouse.move(tipOf(view, spear(target)));
    }

    GraphicsView &view;
    ViewMouse mouse;
};

/** Writes down whose context menu the view asks for, and keeps the editor from showing it. */
class MenuRequests
{
public:
    explicit MenuRequests(Stage &stage)
    {
        QObject::disconnect(&stage.view, &GraphicsView::rightClicked, &stage.editor, nullptr);
        QObject::connect(&stage.view, &GraphicsView::rightClicked, &stage.view, [this](void *item) {
            m_texts.append(item ? static_cast<SpearItem *>(item)->text()
                                : QStringLiteral("canvas"));
        });
    }

    QString take()
    {
        const QString text = m_texts.join(QLatin1Char(' '));
        m_texts.clear();
        return text;
    }

private:
    QStringList m_texts;
};
} // namespace

void TestGraphicsViewEvents::shouldFindTheRowOnASlantedBone_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<int>("count");

    QTest::newRow("direction 1") << QStringLiteral("Man") << 3;
    QTest::newRow("direction -1") << QStringLiteral("Machine") << 2;
    QTest::newRow("without children") << QStringLiteral("Matter") << 0;
}

void TestGraphicsViewEvents::shouldFindTheRowOnASlantedBone()
{
    QFETCH(QString, target);
    QFETCH(int, count);
    Stage stage;
    stage.mark(QStringLiteral("Method"), target);
    const SpearItem *const spear = stage.spear(target);
    QCOMPARE(stage.view.linkedSpear(), spear);
    const QList<SpearItem *> children = spear->childSpears();
    QCOMPARE(children.size(), count);

    // The height counts alone: how far along the bone, which goes down for 1 and up for -1.
    const int sense = spear->direction();
    for (int row = 0; row < count; ++row) {
        const QPoint start = startOf(stage.view, children.at(row));
        for (int x : {start.x() - 300, start.x(), start.x() + 300}) {
            QCOMPARE(stage.view.insertRow({x, start.y() - 2 * sense}, nullptr), row);
            QCOMPARE(stage.view.insertRow({x, start.y() + 2 * sense}, nullptr), row + 1);
        }
    }
    QCOMPARE(stage.view.insertRow(tipOf(stage.view, spear), nullptr), count);
    QCOMPARE(stage.view.insertRow(startOf(stage.view, spear), nullptr), 0);
}

void TestGraphicsViewEvents::shouldFindTheRowOnAHorizontalBone()
{
    Stage stage(QStringLiteral("Effect[Man[Train[x,y,z]],Machine]"));
    stage.mark(QStringLiteral("Machine"), QStringLiteral("Train"));
    QCOMPARE(stage.view.linkedSpear(), stage.spear(QStringLiteral("Train")));

    // Everything grows to the left, so the first child that is left of the mouse is the one.
    int row = 0;
    for (const QString &title : {QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("z")}) {
        const QPoint start = startOf(stage.view, stage.spear(title));
        for (int y : {start.y() - 300, start.y(), start.y() + 300}) {
            QCOMPARE(stage.view.insertRow({start.x() + 2, y}, nullptr), row);
            QCOMPARE(stage.view.insertRow({start.x() - 2, y}, nullptr), row + 1);
        }
        ++row;
    }

    // The backbone has children on two sides; their order counts, not their side.
    Stage head(QStringLiteral("Effect[A,B,C,D]"));
    head.mark(QStringLiteral("D"), QStringLiteral("Effect"));
    QCOMPARE(head.view.linkedSpear(), head.editor.headSpear());
    const QList<SpearItem *> bones = head.editor.headSpear()->childSpears();
    for (int x = -300; x < 1200; x += 3) {
        int expected = 0;
        while (expected < 4 &&
               !(bones.at(expected)->line().x1() <= head.view.mapToScene(x, 50).x()))
            ++expected;
        QCOMPARE(head.view.insertRow({x, 50}, nullptr), expected);
    }
}

void TestGraphicsViewEvents::shouldSkipTheRowBehindTheMovingSpear()
{
    Stage stage;
    stage.mark(QStringLiteral("Method"), QStringLiteral("Man"));
    SpearItem *const train = stage.spear(QStringLiteral("Train"));
    SpearItem *const cost = stage.spear(QStringLiteral("Cost"));
    SpearItem *const time = stage.spear(QStringLiteral("Time"));
    const QPoint beforeTrain = startOf(stage.view, train) - QPoint(0, 2);
    const QPoint beforeCost = startOf(stage.view, cost) - QPoint(0, 2);
    const QPoint beforeTime = startOf(stage.view, time) - QPoint(0, 2);

    // Before Cost is where Train stands already.
    QCOMPARE(stage.view.insertRow(beforeTrain, train), 0);
    QCOMPARE(stage.view.insertRow(beforeCost, train), 2);
    QCOMPARE(stage.view.insertRow(beforeTime, train), 2);
    QCOMPARE(stage.view.insertRow(beforeTrain, cost), 0);
    QCOMPARE(stage.view.insertRow(beforeCost, cost), 1);
    QCOMPARE(stage.view.insertRow(beforeTime, cost), 3);
    QCOMPARE(stage.view.insertRow(beforeTime, time), 2);
    QCOMPARE(stage.view.insertRow(tipOf(stage.view, stage.spear(QStringLiteral("Man"))), time), 3);
    // One from elsewhere skips nothing.
    SpearItem *const wear = stage.spear(QStringLiteral("Wear"));
    QCOMPARE(stage.view.insertRow(beforeCost, wear), 1);
}

void TestGraphicsViewEvents::shouldHandADoubleClickToTheEditor()
{
    Stage stage;
    stage.select({QStringLiteral("Wear")});
    SignalRecorder recorder(stage.editor);

    QVERIFY(stage.mouse.doubleClick(tipOf(stage.view, stage.spear(QStringLiteral("Man")))));
    QCOMPARE(recorder.take(), QStringLiteral("editTaskDetail(Wear)"));

    QVERIFY(stage.mouse.doubleClick({8, 8}, Qt::RightButton));
    QCOMPARE(recorder.take(), QString());
}

void TestGraphicsViewEvents::shouldKeepADoubleClickFromTheItems()
{
    Stage stage;
    SpearItem *const man = stage.spear(QStringLiteral("Man"));
    QVERIFY(man->isExpand());

    stage.mouse.doubleClick(middleOf(stage.view, man->expandBuddy()));

    QVERIFY(man->isExpand());
    QVERIFY(!man->isSelected());
    QCOMPARE(man->opacity(), 1.0);
}

void TestGraphicsViewEvents::shouldScrollSidewaysWithAPlainWheel_data()
{
    QTest::addColumn<int>("modifiers");

    QTest::newRow("none") << int(Qt::NoModifier);
    QTest::newRow("shift") << int(Qt::ShiftModifier);
}

void TestGraphicsViewEvents::shouldScrollSidewaysWithAPlainWheel()
{
    QFETCH(int, modifiers);
    Stage stage;
    stage.editor.scene()->setSceneRect(-9000, -9000, 18000, 18000);
    stage.view.centerOn(0, 0);
    const int x = stage.view.horizontalScrollBar()->value();
    const int y = stage.view.verticalScrollBar()->value();
    SignalRecorder recorder(stage.editor);

    stage.mouse.wheel({100, 100}, {0, -120}, Qt::KeyboardModifiers(modifiers));
    QVERIFY(stage.view.horizontalScrollBar()->value() > x);
    QCOMPARE(stage.view.verticalScrollBar()->value(), y);
    stage.mouse.wheel({100, 100}, {0, 120}, Qt::KeyboardModifiers(modifiers));
    QCOMPARE(stage.view.horizontalScrollBar()->value(), x);
    QCOMPARE(recorder.take(), QString());
}

void TestGraphicsViewEvents::shouldZoomWithControlAndTheWheel_data()
{
    QTest::addColumn<QPoint>("angle");
    QTest::addColumn<int>("value");

    QTest::newRow("away from the user") << QPoint(0, 120) << 256;
    QTest::newRow("a little away") << QPoint(0, 8) << 256;
    QTest::newRow("towards the user") << QPoint(0, -120) << 244;
    QTest::newRow("not at all") << QPoint(0, 0) << 244;
    // With Alt as well, or on a second wheel.
    QTest::newRow("away on the other axis") << QPoint(120, 0) << 256;
    QTest::newRow("back on the other axis") << QPoint(-120, 0) << 244;
}

void TestGraphicsViewEvents::shouldZoomWithControlAndTheWheel()
{
    QFETCH(QPoint, angle);
    QFETCH(int, value);
    Stage stage;
    stage.editor.zoomFish(250);
    const int x = stage.view.horizontalScrollBar()->value();
    SignalRecorder recorder(stage.editor);

    QVERIFY(stage.mouse.wheel({100, 100}, angle, Qt::ControlModifier));

    QCOMPARE(recorder.take(), QStringLiteral("zoomValueChanged(%1)").arg(value));
    QCOMPARE(stage.editor.zoomValue(), value);
    QCOMPARE(stage.view.transform(), QTransform());
    QCOMPARE(stage.view.horizontalScrollBar()->value(), x);
}

void TestGraphicsViewEvents::shouldAskForTheMenuOfASpear()
{
    Stage stage;
    MenuRequests requests(stage);
    stage.select({QStringLiteral("Man"), QStringLiteral("Method")});

    stage.mouse.askForMenu(tipOf(stage.view, stage.spear(QStringLiteral("Matter"))));

    QCOMPARE(requests.take(), QStringLiteral("Matter"));
    QCOMPARE(stage.editor.scene()->selectedItems(),
             QList<QGraphicsItem *>({stage.spear(QStringLiteral("Matter"))}));
}

void TestGraphicsViewEvents::shouldAskForTheMenuOfASpearAtItsText()
{
    Stage stage;
    MenuRequests requests(stage);

    for (const QString &title : {QStringLiteral("Matter"), QStringLiteral("Cost")}) {
        const TextItem *const text = stage.spear(title)->textItem();
        stage.mouse.askForMenu(middleOf(stage.view, text));
        QCOMPARE(requests.take(), title);
        QVERIFY(stage.spear(title)->isSelected());
        QVERIFY(!text->isSelected());
    }
}

void TestGraphicsViewEvents::shouldAskForTheMenuOfTheCanvas()
{
    Stage stage;
    MenuRequests requests(stage);
    stage.select({QStringLiteral("Man"), QStringLiteral("Method")});

    stage.mouse.askForMenu({8, 8});

    QCOMPARE(requests.take(), QStringLiteral("canvas"));
    QVERIFY(!stage.editor.hasSelection());
}

void TestGraphicsViewEvents::shouldAskForNoMenuOfACompanion()
{
    Stage stage;
    stage.subject(QStringLiteral("Matter"))->setUrl(QStringLiteral("https://example.org"));
    stage.editor.updateFish(false);
    stage.select({QStringLiteral("Matter")});
    MenuRequests requests(stage);

    const SpearItem *const matter = stage.spear(QStringLiteral("Matter"));
    const QGraphicsItem *const link = matter->linkItem();
    stage.mouse.askForMenu(
        stage.view.mapFromScene(link->mapToScene(QPointF(2, link->boundingRect().bottom() - 2))));

    QCOMPARE(requests.take(), QStringLiteral("canvas"));
    QVERIFY(!matter->isSelected());
}

void TestGraphicsViewEvents::shouldExpandABoneByItsButton()
{
    Stage stage(QStringLiteral("Effect[Man[Train[x,y],Cost],Machine[Wear],Method]"), false);
    SpearItem *const man = stage.spear(QStringLiteral("Man"));
    QCOMPARE(man->childCount(), 0);
    SignalRecorder recorder(stage.editor);

    stage.mouse.press(middleOf(stage.view, man->expandBuddy()));
    QVERIFY(man->isExpand());
    QVERIFY(man->isSelected());
    QCOMPARE(recorder.take(), QStringLiteral("copyAvailable(true)"));
    QCOMPARE(spearTreeText(stage.editor.headSpear()),
             QStringLiteral("Effect[Man[Train,Cost],Machine,Method]"));
    QVERIFY(stage.spear(QStringLiteral("Train"))->isVisible());
    stage.mouse.release(middleOf(stage.view, man->expandBuddy()));

    // The release lays everything out.
    const auto node = [&stage](const char *title) {
        return static_cast<const TreeItem *>(stage.subject(QString::fromLatin1(title)));
    };
    const ReferenceLayout reference(
        stage.model, node("Effect"),
        {node("Man"), node("Train"), node("Cost"), node("Machine"), node("Method")}, {node("Man")});
    QCOMPARE(reference.differenceTo(stage.editor.headSpear()), QString());
    QCOMPARE(dynamic_cast<ExpandItem *>(man->expandBuddy())->svgFile(),
             QStringLiteral(":/fishboneDiagram/contract.svg"));
    QVERIFY(!stage.info->modified());
    QVERIFY(!stage.editor.canUndo());
}

void TestGraphicsViewEvents::shouldContractABoneByItsButton()
{
    Stage stage(QStringLiteral("Effect[Man[Train[x,y],Cost],Machine[Wear],Method]"), false);
    const QStringList drawn = drawingText(stage.editor.headSpear());
    SpearItem *const man = stage.spear(QStringLiteral("Man"));

    stage.mouse.click(middleOf(stage.view, man->expandBuddy()));
    stage.mouse.click(middleOf(stage.view, man->expandBuddy()));

    QVERIFY(!man->isExpand());
    QCOMPARE(man->childCount(), 2);
    QVERIFY(!stage.spear(QStringLiteral("Train"))->isVisible());
    QCOMPARE(drawingText(stage.editor.headSpear()), drawn);
    QCOMPARE(dynamic_cast<ExpandItem *>(man->expandBuddy())->svgFile(),
             QStringLiteral(":/fishboneDiagram/expand.svg"));
}

void TestGraphicsViewEvents::shouldExpandOneLevelAtATime()
{
    Stage stage(QStringLiteral("Effect[Man[Train[x[deep],y],Cost],Machine]"), false);

    stage.mouse.click(middleOf(stage.view, stage.spear(QStringLiteral("Man"))->expandBuddy()));
    QCOMPARE(spearTreeText(stage.editor.headSpear()),
             QStringLiteral("Effect[Man[Train,Cost],Machine]"));
    stage.select({QStringLiteral("Man")});
    const QPoint button = middleOf(stage.view, stage.spear(QStringLiteral("Train"))->expandBuddy());
    stage.mouse.press(button);
    QVERIFY(stage.spear(QStringLiteral("Train"))->isSelected());
    QVERIFY(!stage.spear(QStringLiteral("Man"))->isSelected());
    stage.mouse.release(button);
    QCOMPARE(spearTreeText(stage.editor.headSpear()),
             QStringLiteral("Effect[Man[Train[x,y],Cost],Machine]"));
    QCOMPARE(stage.spear(QStringLiteral("x"))->direction(), 1);
}

void TestGraphicsViewEvents::shouldLeaveABoneAloneForOtherButtons_data()
{
    QTest::addColumn<int>("button");

    QTest::newRow("right") << int(Qt::RightButton);
    QTest::newRow("middle") << int(Qt::MiddleButton);
}

void TestGraphicsViewEvents::shouldLeaveABoneAloneForOtherButtons()
{
    QFETCH(int, button);
    Stage stage(QStringLiteral("Effect[Man[Train],Machine]"), false);
    SpearItem *const man = stage.spear(QStringLiteral("Man"));

    stage.mouse.click(middleOf(stage.view, man->expandBuddy()), Qt::MouseButton(button));

    QVERIFY(!man->isExpand());
    QVERIFY(!man->isSelected());
    QCOMPARE(man->childCount(), 0);
}

void TestGraphicsViewEvents::shouldShowChildrenThatWereMadeJustNow()
{
    Stage stage(QStringLiteral("Effect[Man[Train],Machine]"), false);
    stage.editor.modifyExpandAll(); // sets the flag, makes no spears
    SpearItem *const man = stage.spear(QStringLiteral("Man"));
    QVERIFY(man->isExpand());
    QCOMPARE(man->childCount(), 0);

    stage.mouse.click(middleOf(stage.view, man->expandBuddy()));

    QVERIFY(man->isExpand());
    QVERIFY(stage.spear(QStringLiteral("Train"))->isVisible());
}

FISHBONE_TEST(TestGraphicsViewEvents)
#include "tst_graphicsview_events.moc"
