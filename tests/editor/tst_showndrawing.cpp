// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QScrollBar>
#include <QtTest>

#include <fishbone/items/textitem.h>
#include <tests/editor/editorparts.h>
#include <tests/program/testprogram.h>

using namespace TestSupport;

/** The drawing in the scene of a view. */
class TestShownDrawing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldBeEmptyAtFirst();
    void shouldKnowTheSpearsOfItsSceneAlone();
    void shouldAnswerTheFirstSelectedSpear();
    void shouldForgetTheHeadWhenItIsCleared();
    void shouldEndUnheard();
    void shouldBringTheTitleOfTheHeadUpToDate();
    void shouldTellWhenOtherOptionsAreChosen();
    void shouldKnowWhetherItIsAlone();
    void shouldRevealTheTextOfABoneInTheClearLook();
    void shouldRevealNothingWithoutASpear();
};

void TestShownDrawing::shouldBeEmptyAtFirst()
{
    QGraphicsView view;
    ShownDrawing drawing(view);
    QVERIFY(drawing.scene());
    QVERIFY(!drawing.head());
    QVERIFY(!drawing.selectedSpear());
    QVERIFY(!drawing.selectedIndex().isValid());
    QVERIFY(!drawing.spearOf(nullptr));
    drawing.expandBones(true);
    drawing.show(nullptr);
    QVERIFY(drawing.scene()->items().isEmpty());
}

void TestShownDrawing::shouldKnowTheSpearsOfItsSceneAlone()
{
    OwnEditorParts parts("H[A]");
    OwnEditorParts other("H[A]");
    QCOMPARE(parts->drawing.spearOf(parts->node("A")), parts->spear("A"));
    QVERIFY(!parts->drawing.spearOf(other->node("A")));
}

void TestShownDrawing::shouldAnswerTheFirstSelectedSpear()
{
    OwnEditorParts parts("H[A,B]");
    parts->spear("B")->setSelected(true);
    parts->spear("A")->setSelected(true);
    QCOMPARE(parts->drawing.selectedSpear(), parts->spear("A"));
    QCOMPARE(parts->drawing.selectedIndex(), parts->index("A"));
    QCOMPARE(parts->drawing.selectedItems().count(), 2);
}

void TestShownDrawing::shouldForgetTheHeadWhenItIsCleared()
{
    OwnEditorParts parts("H[A]");
    parts->drawing.clear();
    QVERIFY(!parts->drawing.head());
    QVERIFY(parts->drawing.scene()->items().isEmpty());
    QVERIFY(!parts->node("A")->spear());
}

void TestShownDrawing::shouldEndUnheard()
{
    OwnEditorParts parts("H[A]");
    parts->select("A");
    const QSignalSpy spy(parts->drawing.scene(), &FishScene::selectionChanged);
    parts->drawing.end();
    QCOMPARE(spy.count(), 0);
    QVERIFY(!parts->drawing.scene());
    QVERIFY(!parts->view.scene());
    QVERIFY(!parts->drawing.head());
    parts->drawing.end(); // once is enough
}

void TestShownDrawing::shouldBringTheTitleOfTheHeadUpToDate()
{
    OwnEditorParts parts("H[A]");
    parts.model.setModelType(FISH_MODEL_NORMAL); // in which the head shows counts, too
    QCOMPARE(parts->drawing.head()->text(), QStringLiteral("H"));
    parts->drawing.updateHeadText();
    QVERIFY(parts->drawing.head()->text().startsWith(QStringLiteral("H(")));
    QCOMPARE(parts->drawing.head()->text(), parts->index("H").data().toString());
}

void TestShownDrawing::shouldTellWhenOtherOptionsAreChosen()
{
    OwnEditorParts parts("H[A]");
    DiagramLook::Options options = parts->drawing.drawing().options();
    QVERIFY(!parts->drawing.chooseOptions(options));
    options.palette = DiagramLook::DarkColors;
    QVERIFY(parts->drawing.chooseOptions(options));
    QVERIFY(parts->drawing.drawing().options() == options);
    parts->drawing.choose(DiagramLook::Clear, options);
    QCOMPARE(parts->drawing.drawing().kind(), DiagramLook::Clear);
}

void TestShownDrawing::shouldKnowWhetherItIsAlone()
{
    OwnEditorParts parts("H[A]");
    QVERIFY(parts->drawing.isAlone());
    parts->drawing.scene()->addRect(0, 0, 1, 1);
    QVERIFY(!parts->drawing.isAlone());
}

void TestShownDrawing::shouldRevealTheTextOfABoneInTheClearLook()
{
    OwnEditorParts parts("H[A[B,C,D,E,F,G,I,J,K],L,M,N,O,P]");
    parts->view.resize(200, 200);
    parts->drawing.choose(DiagramLook::Clear, {});
    parts->root.update(false);
    const SpearItem *const bone = parts->spear("L");
    parts->view.centerOn(parts->drawing.scene()->itemsBoundingRect().bottomLeft());
    parts->drawing.reveal(parts->spear("L"));
    const QRectF shown = parts->view.mapToScene(parts->view.viewport()->rect())
                             .boundingRect()
                             .adjusted(-1, -1, 1, 1);
    QVERIFY(shown.contains(bone->textItem()->sceneBoundingRect()));
}

void TestShownDrawing::shouldRevealNothingWithoutASpear()
{
    OwnEditorParts parts("H[A,B,C,D,E,F]");
    parts->view.resize(200, 200);
    const int before = parts->view.horizontalScrollBar()->value();
    parts->drawing.reveal(nullptr);
    parts->drawing.center(nullptr);
    QCOMPARE(parts->view.horizontalScrollBar()->value(), before);
}

FISHBONE_TEST(TestShownDrawing)
#include "tst_showndrawing.moc"
