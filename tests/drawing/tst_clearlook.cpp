// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/clearlook.h>

#include <QtTest>

#include <fishbone/drawing/clearspear.h>
#include <fishbone/editor/graphicsview.h>
#include <fishbone/items/expanditem.h>
#include <fishbone/items/linkitem.h>
#include <fishbone/items/taskstatusitem.h>
#include <fishbone/items/textitem.h>
#include <tests/drawing/clearfish.h>
#include <tests/program/testprogram.h>
#include <tests/support/drawing.h>
#include <tests/support/drawingtext.h>
#include <tests/support/pictures.h>
#include <tests/support/statelooks.h>

using namespace TestSupport;
using namespace ClearFishes;

/** The clear look on the items of an editor. */
namespace {
/** Where a slanted line is cut, the toolkit rounds anew: single pixels, and few. */
constexpr int cutPixels = 40;
} // namespace

class TestClearLook : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldSetAllTextsLevelAndApart();
    void shouldStandWhereTheLayoutSays();
    void shouldShowNoBonesOfAContractedOne();
    void shouldShowTheButtonOfABoneThatIsPointedAtOnly();
    void shouldShowHowManyAreHidden();
    void shouldComeBackToTheClassicLook();
    void shouldFollowEveryEdit();
    void shouldRepaintNothingThatStays();
    void shouldPaintInPiecesAsAtOnce_data();
    void shouldPaintInPiecesAsAtOnce();
    void shouldPaintThickPensInPiecesAsAtOnce_data();
    void shouldPaintThickPensInPiecesAsAtOnce();
    void shouldDropBetweenTheChildrenThatAreSeen_data();
    void shouldDropBetweenTheChildrenThatAreSeen();
    void shouldBeHitWhereItIsSeen();
    void shouldSelectAndMoveABoneByItsTitle();
    void shouldPreferAnOwnStyle();
    void shouldMirrorForAHeadOnTheLeft();
    void shouldKeepEveryTextReadable_data();
    void shouldKeepEveryTextReadable();
};

void TestClearLook::shouldSetAllTextsLevelAndApart()
{
    ClearFish fish;

    const std::vector<SpearItem *> spears = fish.shownSpears();
    QCOMPARE(int(spears.size()), 16);
    for (const SpearItem *const spear : spears) {
        QCOMPARE(spear->textItem()->rotation(), 0.0);
        for (const SpearItem *const other : spears) {
            if (other == spear)
                continue;
            const QRectF common = sceneRect(*spear->textItem()) & sceneRect(*other->textItem());
            QVERIFY2(common.isEmpty() || common.height() < 4,
                     qPrintable(spear->text() + QLatin1String(" on ") + other->text()));
        }
    }
}

void TestClearLook::shouldStandWhereTheLayoutSays()
{
    ClearFish fish;
    fish.subject(wear)->setStatus(tsRunning);
    fish.subject(wear)->setUrl(QStringLiteral("https://example.org"));
    fish.editor.updateFish(false);

    const SpearItem *const spear = fish.spear(wear);
    const ClearSpear *const place = ClearSpear::of(*spear);
    QVERIFY(place);
    QCOMPARE(spear->line(), place->bone.line);
    QCOMPARE(sceneRect(*spear->textItem()), place->box());
    QCOMPARE(sceneRect(*spear->statusItem()).center(), place->bone.status.center());
    QCOMPARE(sceneRect(*spear->linkItem()).center(), place->bone.link.center());
    QVERIFY(spear->statusItem()->isVisible());
    // Each icon stands beside the text, not on it.
    QVERIFY(!place->bone.status.intersects(place->bone.textRect));
    QVERIFY(!place->bone.link.intersects(place->bone.textRect));
    QVERIFY(!fish.editor.headSpear()->statusItem()->isVisible());
}

void TestClearLook::shouldShowNoBonesOfAContractedOne()
{
    ClearFish fish;
    fish.spear(man)->setExpand(false);
    fish.editor.updateFish(false);

    QVERIFY(!fish.spear(QStringLiteral("No time"))->isVisible());
    QVERIFY(!ClearSpear::of(*fish.spear(QStringLiteral("No time"))));
    QCOMPARE(fish.spear(QStringLiteral("No time"))->line().length(), 0.0);
    QVERIFY(ClearSpear::of(*fish.spear(man)));
}

void TestClearLook::shouldShowTheButtonOfABoneThatIsPointedAtOnly()
{
    ClearFish fish;
    SpearItem *const spear = fish.spear(man);
    QVERIFY(spear->expandBuddy());
    QVERIFY(!spear->expandBuddy()->isVisible());

    spear->setSelected(true);
    QVERIFY(spear->expandBuddy()->isVisible());
    spear->setSelected(false);
    QVERIFY(!spear->expandBuddy()->isVisible());

    DiagramLook::Options options;
    options.hasButtons = false;
    fish.editor.setLookOptions(options);
    spear->setSelected(true);
    QVERIFY(!spear->expandBuddy()->isVisible());
}

void TestClearLook::shouldShowHowManyAreHidden()
{
    ClearFish fish;
    fish.spear(man)->setExpand(false);
    fish.editor.updateFish(false);

    const QGraphicsItem *const button = fish.spear(man)->expandBuddy();
    QVERIFY(button->isVisible());
    const ClearSpear *const place = ClearSpear::of(*fish.spear(man));
    QCOMPARE(place->hidden, 4);
    QCOMPARE(sceneRect(*button), place->bone.badge);
    fish.spear(man)->setExpand(true);
    fish.editor.updateFish(false);
    QVERIFY(ClearSpear::of(*fish.spear(man))->bone.badge.isNull());
    QVERIFY(!button->isVisible());
}

void TestClearLook::shouldComeBackToTheClassicLook()
{
    EditorFixture fish(document());
    fish.subject(wear)->setStatus(tsRunning);
    fish.subject(wear)->setUrl(QStringLiteral("https://example.org"));
    fish.editor.expandAll();
    const QStringList classic = drawingText(fish.editor.headSpear());
    const QImage picture = rendered(*fish.editor.scene());

    fish.editor.setLook(DiagramLook::Clear);
    QVERIFY(drawingText(fish.editor.headSpear()) != classic);
    fish.editor.setLook(DiagramLook::Classic);

    QCOMPARE(drawingText(fish.editor.headSpear()), classic);
    QCOMPARE(rendered(*fish.editor.scene()), picture);
}

void TestClearLook::shouldFollowEveryEdit()
{
    ClearFish fish;
    fish.select({man});
    fish.editor.insertChildSubject();
    fish.editor.appendSubject();
    fish.subject(wear)->setTitle(QStringLiteral("Something much longer than before"));
    fish.editor.updateFish(false);
    fish.editor.deleteItem(fish.index(QStringLiteral("Material")));
    const QStringList edited = drawingText(fish.editor.headSpear());

    fish.editor.refreshFish();
    fish.editor.updateSpearSize();
    fish.editor.updateSpearPostion();
    QCOMPARE(drawingText(fish.editor.headSpear()), edited);
    fish.editor.updateFish(true);
    fish.editor.expandAll();
    QCOMPARE(int(fish.shownSpears().size()), int(spearsInOrder(fish.editor.headSpear()).size()));
    fish.editor.undo();
    QCOMPARE(fish.editor.look(), DiagramLook::Clear);
    QVERIFY(ClearSpear::of(*fish.spear(QStringLiteral("Material"))));
}

void TestClearLook::shouldRepaintNothingThatStays()
{
    ClearFish fish;
    QVERIFY(fish.show());
    QVERIFY(paintEverything(*fish.editor.view()));
    settle();
    const PaintCounter paints(fish.editor.view()->viewport());
    settle();
    QCOMPARE(paints.count, 0);

    fish.editor.updateFish(false);
    settle();

    QCOMPARE(paints.count, 0);
}

void TestClearLook::shouldPaintInPiecesAsAtOnce_data()
{
    QTest::addColumn<int>("palette");
    QTest::newRow("colours") << int(DiagramLook::DistinctColors);
    QTest::newRow("gray") << int(DiagramLook::GrayColors);
    QTest::newRow("dark") << int(DiagramLook::DarkColors);
    QTest::newRow("warm") << int(DiagramLook::WarmColors);
}

void TestClearLook::shouldPaintInPiecesAsAtOnce()
{
    QFETCH(int, palette);
    ClearFish fish;
    DiagramLook::Options options;
    options.palette = DiagramLook::Palette(palette);
    fish.editor.setLookOptions(options);
    fish.select({man});
    fish.spear(wear)->setLinked(true, 0);
    const Canvas canvas{visibleRect(*fish.editor.scene()).toAlignedRect(), 1};

    const QImage whole = paintedAtOnce(*fish.editor.scene(), canvas);
    const QImage pieces = paintedInPieces(*fish.editor.scene(), canvas, 97);

    const int differing = differingPixels(whole, pieces);
    QVERIFY2(differing <= cutPixels, qPrintable(QString::number(differing)));
    QVERIFY(inkedPixels(whole) > 2000);
}

void TestClearLook::shouldPaintThickPensInPiecesAsAtOnce_data()
{
    QTest::addColumn<QString>("selected");
    QTest::newRow("normal") << wear;
    QTest::newRow("selected") << man;
}

void TestClearLook::shouldPaintThickPensInPiecesAsAtOnce()
{
    QFETCH(QString, selected);
    ClearFish fish;
    fish.select({selected});
    SpearStyle style;
    for (const SpearStyle::SpearState state : {SpearStyle::ssNormal, SpearStyle::ssSelected})
        style.setBroderPen(state, QPen(Qt::red, 30));
    QJsonObject object;
    style.write(object);
    fish.subject(man)->setSpearStyle(object);
    for (int turn = 0; turn < 2; ++turn) { // before the next layout and after it
        const Canvas canvas{visibleRect(*fish.editor.scene()).toAlignedRect(), 1};

        const QImage whole = paintedAtOnce(*fish.editor.scene(), canvas);
        const QImage pieces = paintedInPieces(*fish.editor.scene(), canvas, 23);

        const int differing = differingPixels(whole, pieces);
        QVERIFY2(differing <= cutPixels, qPrintable(QString::number(differing)));
        fish.editor.updateFish(false);
    }
    const QRectF bone = fish.spear(man)->boundingRect();
    const QLineF line = fish.spear(man)->line();
    QVERIFY(bone.contains(QRectF(line.p1(), line.p2()).normalized().adjusted(-15, -15, 15, 15)));
}

void TestClearLook::shouldDropBetweenTheChildrenThatAreSeen_data()
{
    QTest::addColumn<QString>("parent");
    QTest::newRow("a category") << man;
    QTest::newRow("a cause") << QStringLiteral("Training is missing");
}

void TestClearLook::shouldDropBetweenTheChildrenThatAreSeen()
{
    QFETCH(QString, parent);
    ClearFish fish;
    const SpearItem *const target = fish.spear(parent);
    const QList<SpearItem *> children = target->childSpears();
    QCOMPARE(children.size(), 2);

    QCOMPARE(target->dropRow(target->line().p1(), nullptr), 0);
    QCOMPARE(
        target->dropRow((children.at(0)->line().p1() + children.at(1)->line().p1()) / 2, nullptr),
        1);
    QCOMPARE(
        target->dropRow(target->line().p2() + (target->line().p2() - target->line().p1()), nullptr),
        2);
    // The circle marks the same places.
    for (int row = 0; row <= 2; ++row)
        QCOMPARE(target->dropRow(target->look().slot(*target, row), nullptr), row);
}

void TestClearLook::shouldBeHitWhereItIsSeen()
{
    ClearFish fish;
    // Also where only the beginning of a title is shown otherwise, and where it has two lines.
    fish.subject(man)->setTitle(QStringLiteral("Man\nand\nwoman"));
    fish.subject(wear)->setTitle(QStringLiteral("Wear and tear of the bearings of the spindle"));
    fish.editor.updateFish(false);
    QVERIFY(fish.show());
    const GraphicsView *const view = fish.editor.view();
    for (const SpearItem *const spear : fish.shownSpears()) {
        const QRectF box = sceneRect(*spear->textItem()).adjusted(3, 3, -3, -3);
        for (const QPointF &point :
             {box.topLeft(), box.topRight(), box.bottomLeft(), box.bottomRight(), box.center()})
            QCOMPARE(view->itemAt(view->mapFromScene(point)), spear->textItem());
    }
    for (const SpearItem *const spear : fish.shownSpears()) {
        const QPointF middle = sceneRect(*spear->textItem()).center();
        QVERIFY(spear->shape().contains(middle));
        QVERIFY(spear->isHeader() || spear->shape().contains(spear->line().center()));
        // A press goes through the text box to the bone, which the scene finds by its rectangle.
        QVERIFY(spear->scene()->items(middle).contains(const_cast<SpearItem *>(spear)));
        QVERIFY(spear->boundingRect().contains(spear->shape().boundingRect()));
        // Paints nothing outside its bounding rectangle.
        QVERIFY(spear->boundingRect().contains(
            QRectF(spear->line().p1(), spear->line().p2()).normalized().center()));
    }
}

void TestClearLook::shouldSelectAndMoveABoneByItsTitle()
{
    ClearFish fish;
    QVERIFY(fish.show());
    QWidget *const viewport = fish.editor.view()->viewport();
    const auto seen = [&fish](const QString &title) {
        return fish.editor.view()->mapFromScene(sceneRect(*fish.spear(title)->textItem()).center());
    };
    const QPoint from = seen(wear);
    QTest::mousePress(viewport, Qt::LeftButton, {}, from);
    QCOMPARE(fish.editor.firstSelectedSpear(), fish.spear(wear));
    for (const QPoint &to : {from + QPoint(20, 20), seen(man)}) {
        QMouseEvent move(QEvent::MouseMove, to, viewport->mapToGlobal(to), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(viewport, &move);
    }
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, seen(man));
    QCOMPARE(fish.subject(wear)->parent(), fish.subject(man));
}

void TestClearLook::shouldPreferAnOwnStyle()
{
    ClearFish fish;
    fish.subject(man)->setSpearStyle(styleWithLooks());
    fish.editor.updateFish(false);
    const Canvas canvas{sceneRect(*fish.spear(man)->textItem()).toAlignedRect(), 2};

    const QImage picture = paintedAtOnce(*fish.editor.scene(), canvas);

    // The background shows in the normal state, too.
    QVERIFY(pixelsOf(picture, lookOf(SpearStyle::ssNormal).background) > 200);
}

void TestClearLook::shouldMirrorForAHeadOnTheLeft()
{
    ClearFish fish;
    const double right = fish.editor.headSpear()->line().x2();
    DiagramLook::Options options;
    options.isHeadLeft = true;

    fish.editor.setLookOptions(options);

    QVERIFY(right < 0);
    QVERIFY(fish.editor.headSpear()->line().x2() > 0);
    QVERIFY(sceneRect(*fish.editor.headSpear()->textItem()).center().x() < 0);
}

void TestClearLook::shouldKeepEveryTextReadable_data()
{
    QTest::addColumn<int>("palette");
    QTest::addColumn<QColor>("canvas");
    QTest::newRow("colours") << int(DiagramLook::DistinctColors) << QColor(Qt::white);
    QTest::newRow("gray") << int(DiagramLook::GrayColors) << QColor(Qt::white);
    QTest::newRow("warm") << int(DiagramLook::WarmColors) << QColor(Qt::white);
    QTest::newRow("cool") << int(DiagramLook::CoolColors) << QColor(Qt::white);
    const QColor canvas(0x1e, 0x1e, 0x22);
    QTest::newRow("dark") << int(DiagramLook::DarkColors) << canvas;
    QTest::newRow("dark gray") << int(DiagramLook::DarkGrayColors) << canvas;
    QTest::newRow("dark warm") << int(DiagramLook::DarkWarmColors) << canvas;
    QTest::newRow("dark cool") << int(DiagramLook::DarkCoolColors) << canvas;
}

void TestClearLook::shouldKeepEveryTextReadable()
{
    QFETCH(int, palette);
    QFETCH(QColor, canvas);
    const ClearColors colors{DiagramLook::Palette(palette)};
    for (int category = 0; category < 20; ++category) {
        QVERIFY(contrast(colors.ink(1), colors.category(category)) >= 4.5);
        QVERIFY(contrast(colors.category(category), canvas) >= 3); // the lines
        QVERIFY(colors.category(category) != colors.category(category + 1));
    }
    QVERIFY(contrast(colors.ink(0), colors.head()) >= 4.5);
    QVERIFY(contrast(colors.badgeInk(), colors.badge()) >= 4.5);
    for (int level = 2; level < 8; ++level)
        QVERIFY(contrast(colors.ink(level), canvas) >= 4.5);
}

FISHBONE_TEST(TestClearLook)
#include "tst_clearlook.moc"
