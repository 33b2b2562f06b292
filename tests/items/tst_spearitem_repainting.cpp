// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// How a drawing is repainted: a part of it gives the pixels that the whole gives, whatever has
// changed, and painting never asks for more painting.

#include <fishbone/items/spearitem.h>

#include <functional>

#include <QRandomGenerator>
#include <QtTest>

#include <fishbone/items/textitem.h>
#include <tests/support/drawing.h>
#include <tests/support/editorfixture.h>
#include <tests/support/pictures.h>
#include <tests/support/statelooks.h>

using namespace TestSupport;

namespace
{
const QString man = QStringLiteral("Man");
const QString machine = QStringLiteral("Machine");
const QString training = QStringLiteral("Training");
const QString effect = QStringLiteral("Effect");

QJsonObject sampleDocument(const QJsonObject &style)
{
    QJsonObject document = documentFromText(
        QStringLiteral("Effect[Man[Training[Course,Mentor],Shift],Machine[Wear,Tools[Age]],"
                       "Method,Material[Supplier]]"));
    if (style.isEmpty())
        return document;
    QByteArray text = QJsonDocument(document).toJson(QJsonDocument::Compact);
    text.replace("\"title\"",
                 "\"spearstyle\":" + QJsonDocument(style).toJson(QJsonDocument::Compact)
                     + ",\"status\":2,\"url\":\"https://example.org\",\"title\"");
    return QJsonDocument::fromJson(text).object();
}

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

/// The middle of a spear's text box in the scene.
QPointF onText(const SpearItem *spear)
{
    return spear->textItem()->mapToScene(spear->textItem()->boundingRect().center());
}

/// A point of a spear's line in the scene.
QPointF onBone(const SpearItem *spear)
{
    return spear->mapToScene(spear->line().pointAt(0.93));
}

void repaint(SpearItem *spear)
{
    spear->update();
    spear->textItem()->update();
}

void link(SpearItem *spear, int number)
{
    spear->setLinked(true, number);
    repaint(spear);
}

void unlink(SpearItem *spear)
{
    spear->setLinked(false, 0);
    repaint(spear);
}

void fade(SpearItem *spear, bool faded)
{
    spear->setMoving(faded);
    spear->setOpacity(faded ? 0.2 : 1.0);
    repaint(spear);
}

void expand(EditorFixture &shown, const QString &title, bool expanded)
{
    shown.spear(title)->setExpand(expanded);
    shown.editor.updateFish(false);
}

/// Something that happens to a shown drawing.
struct Change
{
    const char *name;
    std::function<void(EditorFixture &)> happen;
};

/// One after the other, so that every state follows another one.
const QVector<Change> &changes()
{
    static const QVector<Change> all{
        {"select a slanted bone", [](EditorFixture &s) { s.select({man}); }},
        {"select another", [](EditorFixture &s) { s.select({machine}); }},
        {"select a horizontal one", [](EditorFixture &s) { s.select({training}); }},
        {"select the head", [](EditorFixture &s) { s.select({effect}); }},
        {"select several", [](EditorFixture &s) { s.select({man, training, effect}); }},
        {"hover a selected text",
         [](EditorFixture &s) { moveMouse(*s.editor.view(), onText(s.spear(man))); }},
        {"select nothing", [](EditorFixture &s) { s.select({}); }},
        {"hover its bone",
         [](EditorFixture &s) { moveMouse(*s.editor.view(), onBone(s.spear(man))); }},
        {"hover a horizontal text",
         [](EditorFixture &s) { moveMouse(*s.editor.view(), onText(s.spear(training))); }},
        {"hover the head", [](EditorFixture &s) { moveMouse(*s.editor.view(), QPointF(30, 10)); }},
        {"leave", [](EditorFixture &s) { leaveView(*s.editor.view()); }},
        {"link before a child", [](EditorFixture &s) { link(s.spear(man), 0); }},
        {"link behind the last", [](EditorFixture &s) { link(s.spear(man), 2); }},
        {"unlink", [](EditorFixture &s) { unlink(s.spear(man)); }},
        {"link the head", [](EditorFixture &s) { link(s.spear(effect), 1); }},
        {"unlink the head", [](EditorFixture &s) { unlink(s.spear(effect)); }},
        {"link a leaf", [](EditorFixture &s) { link(s.spear(QStringLiteral("Method")), 0); }},
        {"unlink the leaf", [](EditorFixture &s) { unlink(s.spear(QStringLiteral("Method"))); }},
        {"contract", [](EditorFixture &s) { expand(s, man, false); }},
        {"link while contracted", [](EditorFixture &s) { link(s.spear(man), 2); }},
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
} // namespace

class TestSpearItemRepainting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldPaintTheSameInPieces_data();
    void shouldPaintTheSameInPieces();
    void shouldShowAfterEveryChangeWhatAFullPaintShows_data();
    void shouldShowAfterEveryChangeWhatAFullPaintShows();
    void shouldStayTheSameWhenPartsOfTheViewArePainted_data();
    void shouldStayTheSameWhenPartsOfTheViewArePainted();
    void shouldPaintNoMoreThanAskedFor_data();
    void shouldPaintNoMoreThanAskedFor();
    void shouldPaintATextWithoutASpearOnce();
    void shouldForgetTheMouseWhenItLeavesItsScene();
};

void TestSpearItemRepainting::shouldPaintTheSameInPieces_data()
{
    QTest::addColumn<int>("scale");
    QTest::addColumn<int>("piece");
    QTest::addColumn<bool>("smooth");

    QTest::newRow("plain") << 1 << 37 << false;
    QTest::newRow("smooth") << 1 << 37 << true;
    QTest::newRow("smooth and large") << 3 << 23 << true;
    QTest::newRow("small pieces") << 2 << 7 << true;
}

void TestSpearItemRepainting::shouldPaintTheSameInPieces()
{
    QFETCH(int, scale);
    QFETCH(int, piece);
    QFETCH(bool, smooth);
    Drawing drawing(QStringLiteral("Effect[Man[Training[Course,Mentor],Shift],Machine[Wear]]"),
                    styleWithLooks());
    const QPainter::RenderHints hints = smooth
        ? QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform
        : QPainter::RenderHints();
    const Canvas canvas{
        drawing.scene.itemsBoundingRect().toAlignedRect().adjusted(-10, -10, 10, 10), scale};
    const auto compare = [&] {
        return difference(paintedInPieces(drawing.scene, canvas, piece, hints),
                          paintedAtOnce(drawing.scene, canvas, hints));
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

    const QJsonObject looks = styleWithLooks();
    QTest::newRow("1:1") << looks << 250 << 0;
    QTest::newRow("turned by 30") << looks << 250 << 30;
    QTest::newRow("turned by 90, larger") << looks << 290 << 90;
    QTest::newRow("turned by -70, smaller") << looks << 205 << -70;
    QTest::newRow("upside down, twice as large") << looks << 300 << 180;
    QTest::newRow("turned by 45, tiny") << looks << 120 << 45;
    QTest::newRow("no style") << QJsonObject() << 250 << 0;
    QTest::newRow("no style, turned by 20") << QJsonObject() << 263 << 20;
    QTest::newRow("thick pens") << thickStyle() << 250 << 0;
    QTest::newRow("thick pens, turned by 110") << thickStyle() << 240 << 110;
}

void TestSpearItemRepainting::shouldShowAfterEveryChangeWhatAFullPaintShows()
{
    QFETCH(QJsonObject, style);
    QFETCH(int, zoom);
    QFETCH(int, rotation);
    EditorFixture shown(sampleDocument(style));
    GraphicsView &view = *shown.editor.view();
    shown.editor.expandAll();
    QVERIFY(shown.show(false));
    shown.editor.zoomFish(zoom);
    shown.editor.rotateFish(rotation);
    view.centerOn(shown.editor.scene()->itemsBoundingRect().center());
    QVERIFY(paintEverything(view));
    int visible = 0;
    QImage before = shownPicture(view);
    QVERIFY(inkedPixels(before) > 100);

    for (const Change &change : changes()) {
        change.happen(shown);
        QVERIFY(paintScheduled(view));
        const QImage actual = shownPicture(view);
        QVERIFY(paintEverything(view));
        const QImage expected = shownPicture(view);
        QVERIFY2(difference(actual, expected).isEmpty(),
                 qPrintable(QLatin1String(change.name) + QStringLiteral(": ")
                            + difference(actual, expected)));
        visible += !difference(expected, before).isEmpty();
        before = expected;
    }
    QVERIFY2(visible > 25, qPrintable(QString::number(visible))); // most changes can be seen
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
    QCOMPARE(difference(shownPicture(view), expected), QString());
}

void TestSpearItemRepainting::shouldPaintNoMoreThanAskedFor_data()
{
    QTest::addColumn<int>("state");

    QTest::newRow("nothing") << 0;
    QTest::newRow("selected") << 1;
    QTest::newRow("hovered") << 2;
    QTest::newRow("hovered text") << 3;
    QTest::newRow("linked") << 4;
    QTest::newRow("linked head") << 5;
    QTest::newRow("moving") << 6;
    QTest::newRow("selected text box") << 7;
    QTest::newRow("selected head, hovered text box") << 8;
}

void TestSpearItemRepainting::shouldPaintNoMoreThanAskedFor()
{
    QFETCH(int, state);
    EditorFixture shown(sampleDocument(styleWithLooks()));
    GraphicsView &view = *shown.editor.view();
    shown.editor.expandAll();
    QVERIFY(shown.show(true));
    SpearItem *const spear = shown.spear(man);
    SpearItem *const head = shown.editor.headSpear();
    if (state == 1)
        spear->setSelected(true);
    else if (state == 2)
        moveMouse(view, onBone(spear));
    else if (state == 3)
        moveMouse(view, onText(spear));
    else if (state == 4)
        link(spear, 1);
    else if (state == 5)
        link(head, 1);
    else if (state == 6)
        fade(spear, true);
    else if (state == 7) {
        spear->textItem()->setFlag(QGraphicsItem::ItemIsSelectable);
        spear->textItem()->setSelected(true);
    } else if (state == 8) {
        head->setSelected(true);
        moveMouse(view, onText(head));
    }
    QVERIFY(paintEverything(view));
    QVERIFY(paintScheduled(view)); // what a paint asked for without need, once
    PaintCounter paints(view.viewport());

    QTest::qWait(500);
    QCOMPARE(paints.count, 0);

    for (QGraphicsItem *item : {static_cast<QGraphicsItem *>(spear), static_cast<QGraphicsItem *>(head),
                                static_cast<QGraphicsItem *>(spear->textItem())}) {
        paints.count = 0;
        item->update();
        QTest::qWait(500);
        QCOMPARE(paints.count, 1);
    }
}

void TestSpearItemRepainting::shouldPaintATextWithoutASpearOnce()
{
    QGraphicsScene scene;
    QGraphicsView view(&scene);
    view.resize(200, 100);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QVERIFY(paintEverything(view));
    PaintCounter paints(view.viewport());

    scene.addItem(std::make_unique<TextItem>(QStringLiteral("Cause")).release());
    QTest::qWait(300);
    const int first = paints.count;
    paints.count = 0;
    scene.items().constFirst()->update();
    QTest::qWait(300);

    QCOMPARE(first, 1);
    QCOMPARE(paints.count, 1);
}

void TestSpearItemRepainting::shouldForgetTheMouseWhenItLeavesItsScene()
{
    Drawing drawing(QStringLiteral("Effect[Man]"), styleWithLooks());
    QGraphicsView view(&drawing.scene);
    SpearItem *const spear = drawing.spear(man);
    moveMouse(view, onBone(spear));
    QCOMPARE(spear->currentState(), SpearStyle::ssHovered);
    QCOMPARE(spear->interactionFlags(), QStyle::State_MouseOver);

    drawing.scene.removeItem(drawing.head);
    QCOMPARE(spear->currentState(), SpearStyle::ssNormal);
    QCOMPARE(spear->interactionFlags(), QStyle::State_None);

    drawing.scene.addItem(drawing.head);
    QCOMPARE(spear->currentState(), SpearStyle::ssNormal);
}

QTEST_MAIN(TestSpearItemRepainting)
#include "tst_spearitem_repainting.moc"
