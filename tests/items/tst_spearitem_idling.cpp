// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// Painting a drawing never asks for more painting, in whatever state the drawing is.

#include <fishbone/items/spearitem.h>

#include <functional>

#include <QtTest>

#include <tests/items/shownbones.h>
#include <tests/program/testprogram.h>
#include <tests/support/drawing.h>
#include <tests/support/editorfixture.h>
#include <tests/support/pictures.h>
#include <tests/support/statelooks.h>

using namespace ShownBones;
using namespace TestSupport;

namespace {
/** Brings a shown drawing into a state. */
using Preparation = std::function<void(EditorFixture &)>;
} // namespace

Q_DECLARE_METATYPE(Preparation)

class TestSpearItemIdling : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldPaintNoMoreThanAskedFor_data();
    void shouldPaintNoMoreThanAskedFor();
    void shouldPaintATextWithoutASpearOnce();
};

void TestSpearItemIdling::shouldPaintNoMoreThanAskedFor_data()
{
    QTest::addColumn<Preparation>("prepare");

    const auto row = [](const char *name, const Preparation &prepare) {
        QTest::newRow(name) << prepare;
    };
    row("nothing", [](EditorFixture &) {});
    row("selected", [](EditorFixture &s) { s.select({man}); });
    row("hovered", [](EditorFixture &s) { moveMouse(*s.editor.view(), onBone(s.spear(man))); });
    row("hovered text",
        [](EditorFixture &s) { moveMouse(*s.editor.view(), onText(s.spear(man))); });
    row("linked", [](EditorFixture &s) { link(s.spear(man), 1); });
    row("linked head", [](EditorFixture &s) { link(s.spear(effect), 1); });
    row("moving", [](EditorFixture &s) { fade(s.spear(man), true); });
    row("selected text box", [](EditorFixture &s) {
        s.spear(man)->textItem()->setFlag(QGraphicsItem::ItemIsSelectable);
        s.spear(man)->textItem()->setSelected(true);
    });
    row("selected head, hovered text box", [](EditorFixture &s) {
        s.select({effect});
        moveMouse(*s.editor.view(), onText(s.spear(effect)));
    });
    row("hovered text box of a spear that is not", [](EditorFixture &s) {
        // A mouse that comes right from the text of a child enters the text box alone.
        moveMouse(*s.editor.view(), onText(s.spear(training)));
        moveMouse(*s.editor.view(), onText(s.spear(man)));
        QCOMPARE(s.spear(man)->currentState(), SpearStyle::ssNormal);
        QCOMPARE(s.spear(man)->textItem()->ownState(), SpearStyle::ssHovered);
    });
}

void TestSpearItemIdling::shouldPaintNoMoreThanAskedFor()
{
    QFETCH(Preparation, prepare);
    EditorFixture shown(sampleDocument(styleWithLooks()));
    GraphicsView &view = *shown.editor.view();
    shown.editor.resize(640, 520);
    shown.editor.expandAll();
    QVERIFY(shown.show(true));
    prepare(shown);
    QVERIFY(paintEverything(view));
    SpearItem *const spear = shown.spear(man);
    PaintCounter paints(view.viewport());

    QTest::qWait(500);
    QCOMPARE(paints.count, 0);

    for (QGraphicsItem *item :
         {static_cast<QGraphicsItem *>(spear), static_cast<QGraphicsItem *>(shown.spear(effect)),
          static_cast<QGraphicsItem *>(spear->textItem())}) {
        paints.count = 0;
        item->update();
        QTest::qWait(300);
        QCOMPARE(paints.count, 1);
    }
}

void TestSpearItemIdling::shouldPaintATextWithoutASpearOnce()
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

FISHBONE_TEST(TestSpearItemIdling)
#include "tst_spearitem_idling.moc"
