// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/clearlook.h>

#include <fishbone/editor/graphicsview.h>
#include <fishbone/items/textitem.h>
#include <tests/drawing/clearfish.h>
#include <tests/program/testprogram.h>
#include <tests/support/viewmouse.h>

#include <QtTest>

#include <functional>

using namespace TestSupport;
using namespace ClearFishes;

namespace {

QPoint titleOf(const ClearFish &fish, const QString &title)
{
    return middleOf(*fish.editor.view(), fish.spear(title)->textItem());
}

const QPoint nowhere(2, 2);

struct Change
{
    const char *name;
    std::function<void(ClearFish &)> happen;
};

void pointAt(const ClearFish &fish, const QString &title)
{
    ViewMouse(*fish.editor.view()).move(titleOf(fish, title));
}

/** Also the bones that are contracted by that. */
void takeBack(ClearFish &fish)
{
    fish.editor.undo();
    fish.editor.expandAll();
}

/** One after the other, so that every state follows another one. */
const QVector<Change> &changes()
{
    static const QVector<Change> all{
        {"select a category", [](ClearFish &f) { f.select({man}); }},
        {"select a cause", [](ClearFish &f) { f.select({budget}); }},
        {"select the head", [](ClearFish &f) { f.select({f.editor.headSpear()->text()}); }},
        {"select several",
         [](ClearFish &f) {
             f.select({man, wear, training});
         }},
        {"select nothing", [](ClearFish &f) { f.select({}); }},
        {"point at a cause", [](ClearFish &f) { pointAt(f, budget); }},
        {"point at one that has others", [](ClearFish &f) { pointAt(f, training); }},
        {"point at a category", [](ClearFish &f) { pointAt(f, man); }},
        {"point at nothing", [](ClearFish &f) { ViewMouse(*f.editor.view()).move(nowhere); }},
        {"link a category", [](ClearFish &f) { f.spear(man)->setLinked(true, 0); }},
        {"link elsewhere", [](ClearFish &f) { f.spear(man)->setLinked(true, 2); }},
        {"unlink", [](ClearFish &f) { f.spear(man)->setLinked(false, -1); }},
        {"link a cause", [](ClearFish &f) { f.spear(training)->setLinked(true, 1); }},
        {"unlink it", [](ClearFish &f) { f.spear(training)->setLinked(false, -1); }},
        {"contract",
         [](ClearFish &f) {
             f.spear(man)->setExpand(false);
             f.editor.updateFish(false);
         }},
        {"expand",
         [](ClearFish &f) {
             f.spear(man)->setExpand(true);
             f.editor.updateFish(false);
         }},
        {"fade", [](ClearFish &f) { f.spear(wear)->setOpacity(0.2); }},
        {"end fading", [](ClearFish &f) { f.spear(wear)->setOpacity(1); }},
        {"lengthen a title", [](ClearFish &f) { f.editor.renameItem(f.index(wear), wear + wear); }},
        {"shorten it", takeBack},
        {"give a status",
         [](ClearFish &f) {
             f.subject(training)->setStatus(tsRunning);
             f.editor.updateFish(false);
         }},
        {"give a verdict",
         [](ClearFish &f) {
             mark(f, training, "verdict", QStringLiteral("rootcause"));
             f.editor.updateFish(false);
         }},
        {"give a colour",
         [](ClearFish &f) {
             mark(f, training, "colour", QStringLiteral("#d2691e"));
             f.editor.updateFish(false);
         }},
        {"delete", [](ClearFish &f) { f.editor.deleteItem(f.index(budget)); }},
        {"bring back", takeBack},
    };
    return all;
}

} // namespace

/** The clear look in the view of an editor, by the events of the view. */
class TestClearLookRepainting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowAfterEveryChangeWhatAFullPaintShows_data();
    void shouldShowAfterEveryChangeWhatAFullPaintShows();
    void shouldShowDuringADragWhatAFullPaintShows();
    void shouldShowTheButtonUnderTheMouse();
};

void TestClearLookRepainting::shouldShowAfterEveryChangeWhatAFullPaintShows_data()
{
    QTest::addColumn<int>("palette");
    QTest::addColumn<bool>("isHeadLeft");
    QTest::newRow("colours") << int(DiagramLook::DistinctColors) << false;
    QTest::newRow("dark, head left") << int(DiagramLook::DarkColors) << true;
}

void TestClearLookRepainting::shouldShowAfterEveryChangeWhatAFullPaintShows()
{
    QFETCH(int, palette);
    QFETCH(bool, isHeadLeft);
    ClearFish fish;
    DiagramLook::Options options;
    options.palette = DiagramLook::Palette(palette);
    options.isHeadLeft = isHeadLeft;
    options.hasLegend = true;
    fish.editor.setLookOptions(options);
    QVERIFY(fish.show());
    GraphicsView &view = *fish.editor.view();
    ViewMouse(view).move(nowhere);
    QVERIFY(paintEverything(view));
    QImage before = shownPicture(view);

    for (const Change &change : changes()) {
        change.happen(fish);
        const QString stale = staleness(view);
        QVERIFY2(stale.isEmpty(),
                 qPrintable(QString::fromLatin1(change.name) + QLatin1String(": ") + stale));
        const QImage after = shownPicture(view);
        QVERIFY2(after != before, change.name); // or it could not be stale
        before = after;
    }
}

void TestClearLookRepainting::shouldShowDuringADragWhatAFullPaintShows()
{
    ClearFish fish;
    QVERIFY(fish.show());
    GraphicsView &view = *fish.editor.view();
    const QPoint from = titleOf(fish, training);
    ViewMouse mouse(view);
    mouse.press(from);
    mouse.move(from + QPoint(25, 10));
    const SpearItem *const moved = fish.spear(training);
    QVERIFY(moved->isMoving());
    QVERIFY(moved->opacity() < 1);
    QCOMPARE(fish.spear(wear)->opacity(), 1.0);
    QCOMPARE(staleness(view), QString());

    for (const QString &target : {wear, QStringLiteral("Supplier"), man}) {
        mouse.move(titleOf(fish, target));
        QCOMPARE(view.linkedSpear(), fish.spear(target));
        QVERIFY(fish.spear(target)->isLinked());
        const QString stale = staleness(view);
        QVERIFY2(stale.isEmpty(), qPrintable(target + QLatin1String(": ") + stale));
    }
    mouse.move(nowhere);
    QVERIFY(!view.linkedSpear());
    QCOMPARE(staleness(view), QString());
    mouse.move(titleOf(fish, wear));
    mouse.release(titleOf(fish, wear));
    QCOMPARE(fish.subject(training)->parent(), fish.subject(wear));
    QCOMPARE(fish.spear(training)->opacity(), 1.0);
    QCOMPARE(staleness(view), QString());
}

void TestClearLookRepainting::shouldShowTheButtonUnderTheMouse()
{
    ClearFish fish;
    QVERIFY(fish.show());
    ViewMouse mouse(*fish.editor.view());
    mouse.move(nowhere);
    const auto withButton = [&fish] {
        QStringList titles;
        for (const SpearItem *const spear : fish.shownSpears()) {
            if (spear->expandBuddy() && spear->expandBuddy()->isVisible())
                titles << spear->text();
        }
        return titles;
    };
    QCOMPARE(withButton(), QStringList());
    mouse.move(titleOf(fish, training));
    QCOMPARE(withButton(), QStringList(training));
    mouse.move(titleOf(fish, man)); // coming from one of its children
    QCOMPARE(withButton(), QStringList(man));
    mouse.move(titleOf(fish, training));
    QCOMPARE(withButton(), QStringList(training));
    mouse.move(nowhere);
    QCOMPARE(withButton(), QStringList());
    mouse.move(titleOf(fish, man));
    QCOMPARE(withButton(), QStringList(man));

    // It stays while the mouse goes to it, and takes the press.
    const QPoint button = middleOf(*fish.editor.view(), fish.spear(man)->expandBuddy());
    const QPoint title = titleOf(fish, man);
    for (int step = 1; step <= 20; ++step) {
        mouse.move(title + (button - title) * step / 20);
        QVERIFY2(withButton() == QStringList(man), qPrintable(QString::number(step)));
    }
    mouse.click(button);
    QVERIFY(!fish.spear(man)->isExpand());
    QVERIFY(!fish.spear(training)->isVisible());
    mouse.move(nowhere);
    QCOMPARE(withButton(), QStringList(man)); // it says how many are hidden
}

FISHBONE_TEST(TestClearLookRepainting)
#include "tst_clearlook_repainting.moc"
