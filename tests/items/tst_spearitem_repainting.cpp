// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// How a drawing is repainted: a part of it gives the pixels that the whole gives, whatever has
// changed.

#include <fishbone/items/spearitem.h>
#include <fishbone/style/spearstyledialog.h>

#include <functional>

#include <QRandomGenerator>
#include <QtTest>

#include <tests/items/shownbones.h>
#include <tests/program/testprogram.h>
#include <tests/support/drawing.h>
#include <tests/support/editorfixture.h>
#include <tests/support/modaldriver.h>
#include <tests/support/pictures.h>
#include <tests/support/statelooks.h>

using namespace ShownBones;
using namespace TestSupport;

namespace {
QJsonObject thickStyle()
{
    SpearStyle style;
    setLooks(style, 4);
    for (int i = SpearStyle::ssNormal; i <= SpearStyle::ssLinked; ++i) {
        QPen pen = lookOf(SpearStyle::SpearState(i)).pen;
        pen.setWidth(13 + 5 * i);
        style.setBroderPen(SpearStyle::SpearState(i), pen);
    }
    QJsonObject object;
    style.write(object);
    return object;
}

QJsonObject blueStyle()
{
    SpearStyle style;
    setLooks(style, 5);
    style.setTextBkColor(SpearStyle::ssSelected, QColor(180, 180, 255));
    style.setBroderPen(SpearStyle::ssSelected, QPen(Qt::blue, 3));
    QJsonObject object;
    style.write(object);
    return object;
}

void expand(EditorFixture &shown, const QString &title, bool expanded)
{
    shown.spear(title)->setExpand(expanded);
    shown.editor.updateFish(false);
}

/** Something that happens to a shown drawing. */
struct Change
{
    const char *name;
    std::function<void(EditorFixture &)> happen;
};

/** One after the other, so that every state follows another one. */
const QVector<Change> &changes()
{
    static const QVector<Change> all{
        {"select a slanted bone", [](EditorFixture &s) { s.select({man}); }},
        {"select another", [](EditorFixture &s) { s.select({machine}); }},
        {"select a horizontal one", [](EditorFixture &s) { s.select({training}); }},
        {"select the head", [](EditorFixture &s) { s.select({effect}); }},
        {"select several",
         [](EditorFixture &s) {
             s.select({man, training, effect});
         }},
        {"hover a selected text",
         [](EditorFixture &s) { moveMouse(*s.editor.view(), onText(s.spear(man))); }},
        {"select nothing", [](EditorFixture &s) { s.select({}); }},
        {"hover its bone",
         [](EditorFixture &s) { moveMouse(*s.editor.view(), onBone(s.spear(man))); }},
        {"hover a horizontal text",
         [](EditorFixture &s) { moveMouse(*s.editor.view(), onText(s.spear(training))); }},
        {"hover the head", [](EditorFixture &s) { moveMouse(*s.editor.view(), QPointF(30, 10)); }},
        {"leave", [](EditorFixture &s) { leaveView(*s.editor.view()); }},
        {"hover a bone alone",
         [](EditorFixture &s) { moveMouse(*s.editor.view(), onBone(s.spear(machine))); }},
        {"leave the bone", [](EditorFixture &s) { leaveView(*s.editor.view()); }},
        {"hover a child's text",
         [](EditorFixture &s) { moveMouse(*s.editor.view(), onText(s.spear(training))); }},
        {"hover its parent's text",
         [](EditorFixture &s) { moveMouse(*s.editor.view(), onText(s.spear(man))); }},
        {"leave that", [](EditorFixture &s) { leaveView(*s.editor.view()); }},
        {"link before a child", [](EditorFixture &s) { link(s.spear(man), 0); }},
        {"link behind the last", [](EditorFixture &s) { link(s.spear(man), 2); }},
        {"unlink", [](EditorFixture &s) { unlink(s.spear(man)); }},
        {"link the head", [](EditorFixture &s) { link(s.spear(effect), 1); }},
        {"unlink the head", [](EditorFixture &s) { unlink(s.spear(effect)); }},
        {"link a leaf", [](EditorFixture &s) { link(s.spear(QStringLiteral("Method")), 0); }},
        {"unlink the leaf", [](EditorFixture &s) { unlink(s.spear(QStringLiteral("Method"))); }},
        {"contract", [](EditorFixture &s) { expand(s, man, false); }},
        {"link while contracted", [](EditorFixture &s) { link(s.spear(man), 2); }},
        {"move the circle, contracting what is hidden",
         [](EditorFixture &s) { expand(s, training, false); }},
        {"move it back", [](EditorFixture &s) { expand(s, training, true); }},
        {"unlink while contracted", [](EditorFixture &s) { unlink(s.spear(man)); }},
        {"expand", [](EditorFixture &s) { expand(s, man, true); }},
        {"contract a horizontal one", [](EditorFixture &s) { expand(s, training, false); }},
        {"link that", [](EditorFixture &s) { link(s.spear(training), 0); }},
        {"link that elsewhere", [](EditorFixture &s) { link(s.spear(training), 2); }},
        {"expand it while linked", [](EditorFixture &s) { expand(s, training, true); }},
        {"contract it while linked", [](EditorFixture &s) { expand(s, training, false); }},
        {"unlink that", [](EditorFixture &s) { unlink(s.spear(training)); }},
        {"fade", [](EditorFixture &s) { fade(s.spear(machine), true); }},
        {"link what is faded", [](EditorFixture &s) { link(s.spear(machine), 1); }},
        {"drag it", [](EditorFixture &s) { s.spear(machine)->setPos(40, -25); }},
        {"lay out while dragged", [](EditorFixture &s) { s.editor.updateFish(false); }},
        {"end fading", [](EditorFixture &s) { fade(s.spear(machine), false); }},
        {"unlink what was faded", [](EditorFixture &s) { unlink(s.spear(machine)); }},
        {"retitle",
         [](EditorFixture &s) {
             s.model.setData(s.index(QStringLiteral("Shift")), QStringLiteral("Night"));
         }},
        {"change the status", [](EditorFixture &s) { s.spear(machine)->setTaskStatus(3); }},
        {"remove the status", [](EditorFixture &s) { s.spear(machine)->setTaskStatus(0); }},
        {"fix in place",
         [](EditorFixture &s) {
             s.subject(machine)->setSpearItemIsMovable(false);
             repaint(s.spear(machine));
         }},
        {"link what is fixed", [](EditorFixture &s) { link(s.spear(machine), 0); }},
        {"unlink what is fixed", [](EditorFixture &s) { unlink(s.spear(machine)); }},
        {"select only a text box",
         [](EditorFixture &s) {
             s.spear(man)->textItem()->setFlag(QGraphicsItem::ItemIsSelectable);
             s.spear(man)->textItem()->setSelected(true);
         }},
        {"select nothing again", [](EditorFixture &s) { s.select({}); }},
    };
    return all;
}

/** One after the other, of styles alone. Nothing else is done to have them shown. */
const QVector<Change> &styleChanges()
{
    static const QVector<Change> all{
        {"give a style",
         [](EditorFixture &s) { s.subject(machine)->setSpearStyle(styleWithLooks(3)); }},
        {"lay out with it", [](EditorFixture &s) { s.editor.updateFish(false); }},
        {"change the background",
         [](EditorFixture &s) {
             s.subject(machine)->spearStyle()->setTextBkColor(SpearStyle::ssSelected, Qt::cyan);
             s.editor.updateFish(false);
         }},
        {"change it in the dialog",
         [](EditorFixture &s) {
             const ModalDriver<SpearStyleDialog> user([&s](SpearStyleDialog &dialog) {
                 SpearStyle &style = *s.subject(machine)->spearStyle();
                 style.setTextBkColor(SpearStyle::ssSelected, Qt::yellow);
                 style.setBroderPen(SpearStyle::ssSelected, QPen(Qt::red, 6));
                 dialog.accept();
             });
             s.editor.setSpearStyle();
         }},
        {"remove it by the editor", [](EditorFixture &s) { s.editor.delSpearStyle(); }},
        {"give another", [](EditorFixture &s) { s.subject(machine)->setSpearStyle(blueStyle()); }},
        {"give one in its place",
         [](EditorFixture &s) { s.subject(machine)->setSpearStyle(styleWithLooks(2)); }},
        {"remove it by the subject", [](EditorFixture &s) { s.subject(machine)->delSpearStyle(); }},
    };
    return all;
}

/** Makes @p all of these and says which one first leaves something on the screen that a full paint
 * does not show; empty for none. Counts in @p visible those that can be seen. */
QString staleAfter(const QVector<Change> &all, EditorFixture &shown, int tolerance, int &visible)
{
    GraphicsView &view = *shown.editor.view();
    QImage before = shownPicture(view);
    for (const Change &change : all) {
        change.happen(shown);
        const QString stale = staleness(view, tolerance);
        if (!stale.isEmpty())
            return QLatin1String(change.name) + QLatin1String(": ") + stale;
        const QImage after = shownPicture(view);
        visible += !difference(after, before).isEmpty();
        before = after;
    }
    return {};
}
} // namespace

class TestSpearItemRepainting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldPaintTheSameInPieces_data();
    void shouldPaintTheSameInPieces();
    void shouldShowAfterEveryChangeWhatAFullPaintShows_data();
    void shouldShowAfterEveryChangeWhatAFullPaintShows();
    void shouldShowAChangedStyleAtOnce_data();
    void shouldShowAChangedStyleAtOnce();
    void shouldStayTheSameWhenPartsOfTheViewArePainted_data();
    void shouldStayTheSameWhenPartsOfTheViewArePainted();
    void shouldForgetTheMouseWhenItLeavesItsScene();
};

void TestSpearItemRepainting::shouldPaintTheSameInPieces_data()
{
    QTest::addColumn<QJsonObject>("style");
    QTest::addColumn<int>("scale");
    QTest::addColumn<int>("piece");
    QTest::addColumn<int>("tolerance");

    QTest::newRow("thin lines") << QJsonObject() << 1 << 37 << 0;
    QTest::newRow("1:1") << styleWithLooks() << 1 << 37 << clipRounding;
    QTest::newRow("large") << styleWithLooks() << 3 << 23 << clipRounding;
    QTest::newRow("small pieces") << styleWithLooks() << 2 << 7 << clipRounding;
    QTest::newRow("thick pens") << thickStyle() << 1 << 19 << clipRounding;
}

void TestSpearItemRepainting::shouldPaintTheSameInPieces()
{
    QFETCH(QJsonObject, style);
    QFETCH(int, scale);
    QFETCH(int, piece);
    QFETCH(int, tolerance);
    Drawing drawing(QStringLiteral("Effect[Man[Training[Course,Mentor],Shift],Machine[Wear]]"),
                    style);
    const QPainter::RenderHints hints =
        QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform;
    const Canvas canvas{
        drawing.scene.itemsBoundingRect().toAlignedRect().adjusted(-10, -10, 10, 10), scale};
    const auto compare = [&] {
        return difference(paintedInPieces(drawing.scene, canvas, piece, hints),
                          paintedAtOnce(drawing.scene, canvas, hints), tolerance);
    };

    QCOMPARE(compare(), QString());
    drawing.spear(man)->setSelected(true);
    drawing.spear(training)->setSelected(true);
    drawing.head->setSelected(true);
    QCOMPARE(compare(), QString());
    link(drawing.spear(man), 1);
    link(drawing.head, 0);
    QCOMPARE(compare(), QString());
    fade(drawing.spear(machine), true);
    QCOMPARE(compare(), QString());
    drawing.spear(man)->setExpand(false);
    drawing.layOut();
    QCOMPARE(compare(), QString());
}

void TestSpearItemRepainting::shouldShowAfterEveryChangeWhatAFullPaintShows_data()
{
    QTest::addColumn<QJsonObject>("style");
    QTest::addColumn<int>("zoom");
    QTest::addColumn<int>("rotation");
    QTest::addColumn<int>("tolerance");

    const QJsonObject looks = styleWithLooks();
    QTest::newRow("1:1") << looks << 250 << 0 << clipRounding;
    QTest::newRow("turned by 30") << looks << 250 << 30 << clipRounding;
    QTest::newRow("turned by 90, larger") << looks << 290 << 90 << clipRounding;
    QTest::newRow("turned by -70, smaller") << looks << 205 << -70 << clipRounding;
    QTest::newRow("upside down, twice as large") << looks << 300 << 180 << clipRounding;
    QTest::newRow("turned by 45, tiny") << looks << 120 << 45 << clipRounding;
    QTest::newRow("no style") << QJsonObject() << 250 << 0 << 0;
    QTest::newRow("no style, turned by 20") << QJsonObject() << 263 << 20 << clipRounding;
    QTest::newRow("thick pens") << thickStyle() << 250 << 0 << clipRounding;
    QTest::newRow("thick pens, turned by 110") << thickStyle() << 240 << 110 << clipRounding;
}

void TestSpearItemRepainting::shouldShowAfterEveryChangeWhatAFullPaintShows()
{
    QFETCH(QJsonObject, style);
    QFETCH(int, zoom);
    QFETCH(int, rotation);
    QFETCH(int, tolerance);
    EditorFixture shown(sampleDocument(style));
    GraphicsView &view = *shown.editor.view();
    shown.editor.resize(640, 520);
    shown.editor.expandAll();
    QVERIFY(shown.show(false));
    shown.editor.zoomFish(zoom);
    shown.editor.rotateFish(rotation);
    view.centerOn(shown.editor.scene()->itemsBoundingRect().center());
    QVERIFY(paintEverything(view));
    QVERIFY(inkedPixels(shownPicture(view)) > 100);
    int visible = 0;

    const QString stale = staleAfter(changes(), shown, tolerance, visible);
    QVERIFY2(stale.isEmpty(), qPrintable(stale));
    QVERIFY2(visible > 25, qPrintable(QString::number(visible))); // most changes can be seen
}

void TestSpearItemRepainting::shouldShowAChangedStyleAtOnce_data()
{
    QTest::addColumn<int>("look");
    QTest::addColumn<QJsonObject>("style");

    QTest::newRow("classic") << int(DiagramLook::Classic) << QJsonObject();
    QTest::newRow("classic, all with a style") << int(DiagramLook::Classic) << styleWithLooks();
    QTest::newRow("clear") << int(DiagramLook::Clear) << QJsonObject();
}

void TestSpearItemRepainting::shouldShowAChangedStyleAtOnce()
{
    QFETCH(int, look);
    QFETCH(QJsonObject, style);
    EditorFixture shown(sampleDocument(style));
    GraphicsView &view = *shown.editor.view();
    shown.editor.resize(640, 520);
    shown.editor.setLook(DiagramLook::Kind(look));
    shown.editor.expandAll();
    QVERIFY(shown.show(false));
    view.centerOn(shown.spear(machine));
    shown.select({machine});
    QVERIFY(paintEverything(view));
    int visible = 0;

    const QString stale = staleAfter(styleChanges(), shown, clipRounding, visible);
    QVERIFY2(stale.isEmpty(), qPrintable(stale));
    QVERIFY2(visible >= 6, qPrintable(QString::number(visible)));
}

void TestSpearItemRepainting::shouldStayTheSameWhenPartsOfTheViewArePainted_data()
{
    QTest::addColumn<int>("zoom");
    QTest::addColumn<int>("rotation");

    QTest::newRow("1:1") << 250 << 0;
    QTest::newRow("turned by 30") << 250 << 30;
    QTest::newRow("turned by 90, larger") << 290 << 90;
    QTest::newRow("turned by -70, smaller") << 205 << -70;
}

void TestSpearItemRepainting::shouldStayTheSameWhenPartsOfTheViewArePainted()
{
    QFETCH(int, zoom);
    QFETCH(int, rotation);
    EditorFixture shown(sampleDocument(styleWithLooks()));
    GraphicsView &view = *shown.editor.view();
    shown.editor.resize(640, 520);
    shown.editor.expandAll();
    QVERIFY(shown.show(false));
    shown.editor.zoomFish(zoom);
    shown.editor.rotateFish(rotation);
    view.centerOn(shown.editor.scene()->itemsBoundingRect().center());
    shown.select({man});
    moveMouse(view, onText(shown.spear(training)));
    link(shown.spear(machine), 1);
    fade(shown.spear(QStringLiteral("Material")), true);
    QVERIFY(paintEverything(view));
    const QImage expected = shownPicture(view);
    QRandomGenerator random(42);

    for (int i = 0; i < 60; ++i) {
        const QRect part(random.bounded(view.width()), random.bounded(view.height()),
                         1 + random.bounded(80), 1 + random.bounded(80));
        view.viewport()->update(part);
        if (i % 3 == 0) // several at once make a region that is no rectangle
            QVERIFY(paintScheduled(view));
    }

    QVERIFY(paintScheduled(view));
    QCOMPARE(difference(shownPicture(view), expected, clipRounding), QString());
}

void TestSpearItemRepainting::shouldForgetTheMouseWhenItLeavesItsScene()
{
    Drawing drawing(QStringLiteral("Effect[Man]"), styleWithLooks());
    QGraphicsView view(&drawing.scene);
    SpearItem *const spear = drawing.spear(man);
    moveMouse(view, onBone(spear));
    QCOMPARE(spear->currentState(), SpearStyle::ssHovered);

    drawing.scene.removeItem(drawing.head);
    QCOMPARE(spear->currentState(), SpearStyle::ssNormal);

    drawing.scene.addItem(drawing.head);
    QCOMPARE(spear->currentState(), SpearStyle::ssNormal);
}

FISHBONE_TEST(TestSpearItemRepainting)
#include "tst_spearitem_repainting.moc"
