// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QMimeData>
#include <QtTest>

#include <fishbone/undo/structuralcommands.h>
#include <fishbone/undo/undostack.h>
#include <tests/program/testprogram.h>
#include <tests/support/commandfixture.h>
#include <tests/support/drawingtext.h>
#include <tests/support/editorfixture.h>
#include <tests/support/signalrecorder.h>

using namespace TestSupport;

/** Several editors side by side, on one model or on several. */
class TestSeveralFishEditors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowTwoDocumentsOfOneModel();
    void shouldSelectIndependently();
    void shouldKeepTwoHistories();
    void shouldFollowEditsOfEachOther();
    void shouldHandADocumentToTheLaterEditor_data();
    void shouldHandADocumentToTheLaterEditor();
    void shouldNotTakeADocumentBackByRebuilding();
    void shouldLeaveTheDrawingOfTheLaterEditorWhenTheEarlierDies();
    void shouldTakeADocumentOverFromAnEditorThatShowsNothing();
    void shouldKeepADocumentThatIsGivenTwice();
    void shouldExpandInTheEditorWhoseButtonIsPressed();
    void shouldShowAHeadThatMovedBelowAnotherOnce_data();
    void shouldShowAHeadThatMovedBelowAnotherOnce();
    void shouldShowAHeadAgainThatUndoMovesBack();
    void shouldGoOnShowingAHeadThatMovedWhereNobodyLooks();
    void shouldMoveASubjectFromOneDrawingToTheOther();
    void shouldForgetEachSubjectOnce();
    void shouldNotKeepAHeadWhoseSubjectIsDroppedIntoTheOtherDrawing_data();
    void shouldNotKeepAHeadWhoseSubjectIsDroppedIntoTheOtherDrawing();
    void shouldNotKeepAHeadWhoseSubjectComesBackIntoTheOtherDrawing();
};

namespace {
/** One model with two documents and two editors, each on its own. */
class Pair : public EditorFixture
{
public:
    Pair()
        : EditorFixture(QStringLiteral("Effect[Man[Train],Machine]"))
    {
        otherInfo = loadDocument(model, QStringLiteral("Other[Bone[Branch],Rib]"));
        other.resize(900, 700);
        other.setModel(&model);
        other.setRootIndex(model.index(1, 0));
    }

    QString drawn() const { return spearTreeText(editor.headSpear()); }
    QString drawnByOther() const { return spearTreeText(other.headSpear()); }

    FishEditor other;
    FishInfo *otherInfo = nullptr;
};

void expectNothing(const FishEditor &editor)
{
    QVERIFY(!editor.headSpear());
    QVERIFY(editor.scene()->items().isEmpty());
    QVERIFY(!editor.rootIndex().isValid());
    QVERIFY(!editor.currentFishInfo());
}

/** Clicks the middle of an item with the left button. */
void click(const FishEditor &editor, const QGraphicsItem *item)
{
    const QPoint at = editor.view()->mapFromScene(item->sceneBoundingRect().center());
    QTest::mouseClick(editor.view()->viewport(), Qt::LeftButton, Qt::NoModifier, at);
}
} // namespace

void TestSeveralFishEditors::shouldShowTwoDocumentsOfOneModel()
{
    Pair pair;

    QCOMPARE(pair.drawn(), QStringLiteral("Effect[Man,Machine]"));
    QCOMPARE(pair.drawnByOther(), QStringLiteral("Other[Bone,Rib]"));
    pair.editor.expandAll();
    QCOMPARE(pair.drawn(), QStringLiteral("Effect[Man[Train],Machine]"));
    QCOMPARE(pair.drawnByOther(), QStringLiteral("Other[Bone,Rib]"));
    pair.other.setRootIndex(pair.index(QStringLiteral("Bone")));
    QCOMPARE(pair.drawn(), QStringLiteral("Effect[Man[Train],Machine]"));
    QCOMPARE(pair.drawnByOther(), QStringLiteral("Bone[Branch]"));
    QCOMPARE(pair.editor.currentFishInfo(), pair.info);
    QCOMPARE(pair.other.currentFishInfo(), pair.otherInfo);
}

void TestSeveralFishEditors::shouldSelectIndependently()
{
    Pair pair;
    SignalRecorder recorder(pair.editor);
    SignalRecorder otherRecorder(pair.other);

    pair.spear(QStringLiteral("Man"))->setSelected(true);
    QCOMPARE(recorder.take(), QStringLiteral("copyAvailable(true)"));
    QCOMPARE(otherRecorder.take(), QString());
    QVERIFY(!pair.other.hasSelection());

    pair.editor.copy();
    QVERIFY(pair.editor.hasClipBoardData());
    QVERIFY(!pair.other.hasClipBoardData());
}

void TestSeveralFishEditors::shouldKeepTwoHistories()
{
    Pair pair;
    pair.select({QStringLiteral("Man")});
    pair.editor.appendSubject();
    QCOMPARE(pair.drawn(), QStringLiteral("Effect[Man,子主题,Machine]"));
    QVERIFY(!pair.other.canUndo());

    pair.spear(QStringLiteral("Rib"))->setSelected(true);
    pair.other.del();
    QCOMPARE(pair.drawnByOther(), QStringLiteral("Other[Bone]"));

    pair.editor.undo();
    QCOMPARE(pair.drawn(), QStringLiteral("Effect[Man,Machine]"));
    QCOMPARE(pair.drawnByOther(), QStringLiteral("Other[Bone]"));
    pair.other.undo();
    QCOMPARE(pair.drawnByOther(), QStringLiteral("Other[Bone,Rib]"));
    QVERIFY(pair.editor.canRedo());
    QVERIFY(pair.other.canRedo());
}

void TestSeveralFishEditors::shouldFollowEditsOfEachOther()
{
    Pair pair;

    pair.editor.renameItem(pair.index(QStringLiteral("Rib")), QStringLiteral("Ribs"));

    QCOMPARE(pair.spear(QStringLiteral("Ribs"))->text(), QStringLiteral("Ribs"));
    const QStringList drawn = drawingText(pair.other.headSpear());
    pair.other.updateFish(false);
    QCOMPARE(drawingText(pair.other.headSpear()), drawn);
}

void TestSeveralFishEditors::shouldHandADocumentToTheLaterEditor_data()
{
    QTest::addColumn<QString>("root");
    QTest::addColumn<QString>("drawn");

    QTest::newRow("the head") << QStringLiteral("Effect") << QStringLiteral("Effect[Man,Machine]");
    QTest::newRow("a subject inside") << QStringLiteral("Man") << QStringLiteral("Man[Train]");
}

void TestSeveralFishEditors::shouldHandADocumentToTheLaterEditor()
{
    QFETCH(QString, root);
    QFETCH(QString, drawn);
    Pair pair;
    pair.editor.expandAll();
    SignalRecorder recorder(pair.editor);

    pair.other.setRootIndex(pair.index(root));

    QCOMPARE(pair.drawnByOther(), drawn);
    QCOMPARE(pair.spear(root), pair.other.headSpear());
    expectNothing(pair.editor);
    QCOMPARE(recorder.take(), QString());
    // From then on the earlier one does nothing to the drawing of the later one.
    pair.editor.updateFish(false);
    pair.editor.expandAll();
    pair.editor.contractAll();
    pair.editor.refreshFish();
    pair.model.setData(pair.index(QStringLiteral("Train")).siblingAtColumn(2), QStringLiteral("7"));
    expectNothing(pair.editor);
    QCOMPARE(pair.drawnByOther(), drawn);

    // It is free for another document.
    pair.editor.setRootIndex(pair.index(QStringLiteral("Other")));
    QCOMPARE(pair.drawn(), QStringLiteral("Other[Bone,Rib]"));
    QCOMPARE(pair.drawnByOther().left(drawn.indexOf(QLatin1Char('['))), root);
}

void TestSeveralFishEditors::shouldNotTakeADocumentBackByRebuilding()
{
    Pair pair;
    pair.select({QStringLiteral("Man")});
    pair.editor.appendSubject();
    pair.other.setRootIndex(pair.index(QStringLiteral("Effect")));
    const SpearItem *const head = pair.other.headSpear();

    pair.editor.updateFish(true);
    pair.editor.setRootIndex(pair.editor.rootIndex());
    expectNothing(pair.editor);
    QCOMPARE(pair.other.headSpear(), head);

    // Its history still works, in the drawing of the later one.
    pair.editor.undo();
    expectNothing(pair.editor);
    QCOMPARE(treeToText(*pair.subject(QStringLiteral("Effect"))),
             QStringLiteral("Effect[Man[Train],Machine]"));
    pair.other.updateFish(false);
    QCOMPARE(pair.drawnByOther(), QStringLiteral("Effect[Man,Machine]"));
}

void TestSeveralFishEditors::shouldLeaveTheDrawingOfTheLaterEditorWhenTheEarlierDies()
{
    FishModel model;
    loadDocument(model, QStringLiteral("Effect[Man[Train],Machine]"));
    auto earlier = std::make_unique<FishEditor>();
    FishEditor later;
    for (FishEditor *editor : {earlier.get(), &later}) {
        editor->setModel(&model);
        editor->setRootIndex(model.index(0, 0));
    }

    earlier.reset();

    QCOMPARE(spearTreeText(later.headSpear()), QStringLiteral("Effect[Man,Machine]"));
    QCOMPARE(nodeTitled(model, QStringLiteral("Man"))->spear(), later.headSpear()->childSpear(0));
    later.expandAll();
    QCOMPARE(spearTreeText(later.headSpear()), QStringLiteral("Effect[Man[Train],Machine]"));
}

void TestSeveralFishEditors::shouldTakeADocumentOverFromAnEditorThatShowsNothing()
{
    Pair pair;
    pair.editor.setRootIndex(QModelIndex());
    QVERIFY(pair.editor.rootIndex().isValid());

    pair.other.setRootIndex(pair.index(QStringLiteral("Effect")));
    pair.editor.updateFish(true);

    expectNothing(pair.editor);
    QCOMPARE(pair.drawnByOther(), QStringLiteral("Effect[Man,Machine]"));
}

void TestSeveralFishEditors::shouldKeepADocumentThatIsGivenTwice()
{
    Pair pair;

    pair.editor.setRootIndex(pair.index(QStringLiteral("Effect")));
    pair.editor.setRootIndex(pair.index(QStringLiteral("Effect")));

    QCOMPARE(pair.drawn(), QStringLiteral("Effect[Man,Machine]"));
    QCOMPARE(pair.drawnByOther(), QStringLiteral("Other[Bone,Rib]"));
    QCOMPARE(SpearItem::m_refCount, 6);
}

void TestSeveralFishEditors::shouldExpandInTheEditorWhoseButtonIsPressed()
{
    EditorFixture first(QStringLiteral("Effect[Man[Train],Machine]"));
    EditorFixture second(QStringLiteral("Other[Bone[Branch],Rib]"));
    QVERIFY(second.show());
    QVERIFY(first.show());

    click(first.editor, first.spear(QStringLiteral("Man"))->expandBuddy());
    QCOMPARE(spearTreeText(first.editor.headSpear()), QStringLiteral("Effect[Man[Train],Machine]"));
    QCOMPARE(spearTreeText(second.editor.headSpear()), QStringLiteral("Other[Bone,Rib]"));

    click(second.editor, second.spear(QStringLiteral("Bone"))->expandBuddy());
    QCOMPARE(spearTreeText(second.editor.headSpear()), QStringLiteral("Other[Bone[Branch],Rib]"));
}

void TestSeveralFishEditors::shouldShowAHeadThatMovedBelowAnotherOnce_data()
{
    QTest::addColumn<bool>("isTargetExpanded");

    QTest::newRow("below a bone that was never expanded") << false;
    QTest::newRow("below an expanded bone") << true;
}

void TestSeveralFishEditors::shouldShowAHeadThatMovedBelowAnotherOnce()
{
    QFETCH(bool, isTargetExpanded);
    Pair pair;
    if (isTargetExpanded)
        pair.other.expandAll();
    const QModelIndex bone = pair.index(QStringLiteral("Bone"));
    const std::unique_ptr<QMimeData> payload(
        pair.model.mimeData({pair.index(QStringLiteral("Effect"))}));

    pair.other.onDropTo(payload.get(), bone, 0);

    QCOMPARE(treeToText(*pair.subject(QStringLiteral("Other"))),
             QStringLiteral("Other[Bone[Effect[Man[Train],Machine],Branch],Rib]"));
    QCOMPARE(pair.drawnByOther(),
             QStringLiteral("Other[Bone[Effect[Man[Train],Machine],Branch],Rib]"));
    expectNothing(pair.editor);
    // Nothing that the editor which lost it does takes it away from the other one.
    pair.editor.updateFish(true);
    pair.editor.updateFish(false);
    pair.editor.setRootIndex(pair.editor.rootIndex());
    QCOMPARE(pair.spear(QStringLiteral("Effect"))->scene(), pair.other.scene());
    pair.other.updateFish(true);
    QCOMPARE(pair.drawnByOther(), QStringLiteral("Other[Bone,Rib]"));
}

void TestSeveralFishEditors::shouldShowAHeadAgainThatUndoMovesBack()
{
    Pair pair;
    pair.editor.expandAll();
    QJsonObject head;
    FishModel::write(head, pair.subject(QStringLiteral("Effect")), true);
    pair.other.undoStack()->push(
        new EditMove(&pair.model, pair.index(QStringLiteral("Bone")), 0, head));
    pair.other.updateFish(false);
    expectNothing(pair.editor);
    QCOMPARE(pair.drawnByOther(),
             QStringLiteral("Other[Bone[Effect[Man[Train],Machine],Branch],Rib]"));

    pair.other.undo();

    QCOMPARE(pair.drawnByOther(), QStringLiteral("Other[Bone,Rib]"));
    QCOMPARE(pair.drawn(), QStringLiteral("Effect[Man,Machine]"));
    QCOMPARE(pair.editor.rootIndex(), pair.model.index(0, 0));
    QCOMPARE(pair.editor.currentFishInfo(), pair.info);
    pair.editor.expandAll();
    QCOMPARE(pair.drawn(), QStringLiteral("Effect[Man[Train],Machine]"));

    pair.other.redo();
    expectNothing(pair.editor);
    pair.other.expandAll();
    QCOMPARE(pair.drawnByOther(),
             QStringLiteral("Other[Bone[Effect[Man[Train],Machine],Branch],Rib]"));
}

void TestSeveralFishEditors::shouldGoOnShowingAHeadThatMovedWhereNobodyLooks()
{
    Pair pair;
    pair.other.setRootIndex(QModelIndex());
    FishModel &model = pair.model;

    QVERIFY(model.moveRows(QModelIndex(), 0, 1, pair.index(QStringLiteral("Bone")), 0));

    QCOMPARE(treeToText(*pair.subject(QStringLiteral("Other"))),
             QStringLiteral("Other[Bone[Effect[Man[Train],Machine],Branch],Rib]"));
    QCOMPARE(pair.editor.rootIndex(), pair.index(QStringLiteral("Effect")));
    pair.editor.updateFish(false);
    QCOMPARE(pair.drawn(), QStringLiteral("Effect[Man,Machine]"));
    QCOMPARE(pair.editor.currentFishInfo(), pair.otherInfo);
}

void TestSeveralFishEditors::shouldMoveASubjectFromOneDrawingToTheOther()
{
    Pair pair;
    pair.editor.expandAll();
    pair.other.expandAll();
    const std::unique_ptr<QMimeData> payload(
        pair.model.mimeData({pair.index(QStringLiteral("Man"))}));

    pair.other.onDropTo(payload.get(), pair.index(QStringLiteral("Bone")), 1);

    QCOMPARE(pair.drawn(), QStringLiteral("Effect[Machine]"));
    QCOMPARE(pair.drawnByOther(), QStringLiteral("Other[Bone[Branch,Man[Train]],Rib]"));
    pair.editor.contractAll();
    const QStringList drawn = drawingText(pair.editor.headSpear());
    pair.editor.updateFish(true);
    QCOMPARE(drawingText(pair.editor.headSpear()), drawn);
}

void TestSeveralFishEditors::shouldForgetEachSubjectOnce()
{
    Pair pair;
    pair.editor.expandAll();
    pair.other.expandAll();
    pair.other.setRootIndex(pair.index(QStringLiteral("Effect")));

    QVERIFY(!pair.spear(QStringLiteral("Bone")));
    QCOMPARE(SpearItem::m_refCount, 3);
    pair.other.setRootIndex(QModelIndex());
    QCOMPARE(SpearItem::m_refCount, 0);
}

void TestSeveralFishEditors::shouldNotKeepAHeadWhoseSubjectIsDroppedIntoTheOtherDrawing_data()
{
    QTest::addColumn<QString>("target");
    QTest::newRow("the head") << QStringLiteral("Other");
    QTest::newRow("a bone that shows its children") << QStringLiteral("Bone");
    QTest::newRow("a bone that shows none") << QStringLiteral("Rib");
    QTest::newRow("a bone that is not drawn") << QStringLiteral("Branch");
}

void TestSeveralFishEditors::shouldNotKeepAHeadWhoseSubjectIsDroppedIntoTheOtherDrawing()
{
    QFETCH(QString, target);
    Pair pair;
    pair.editor.setRootIndex(pair.index(QStringLiteral("Man")));
    if (target == QLatin1String("Bone"))
        pair.other.generateSpear(&pair.model, pair.index(target));
    const std::unique_ptr<QMimeData> data(pair.model.mimeData({pair.index(QStringLiteral("Man"))}));

    pair.other.onDropTo(data.get(), pair.index(target), 0);

    QCOMPARE(pair.subject(QStringLiteral("Man"))->parent(), pair.subject(target));
    if (pair.editor.headSpear())
        QCOMPARE(pair.editor.headSpear()->treeItem(), pair.subject(QStringLiteral("Man")));
    QCOMPARE(spearFault(pair.model), QString());
}

void TestSeveralFishEditors::shouldNotKeepAHeadWhoseSubjectComesBackIntoTheOtherDrawing()
{
    Pair pair;
    loadDocument(pair.model, QStringLiteral("Third[Leg]"));
    pair.other.setRootIndex(pair.model.index(2, 0));
    pair.editor.setRootIndex(pair.index(QStringLiteral("Bone")));
    // Away, to a document that nobody shows, and back, when another editor shows where it was.
    QVERIFY(pair.model.moveRows(pair.index(QStringLiteral("Other")), 0, 1,
                                pair.index(QStringLiteral("Effect")), 0));
    QCOMPARE(pair.drawn(), QStringLiteral("Bone[Branch]"));
    pair.other.setRootIndex(pair.index(QStringLiteral("Other")));
    const std::unique_ptr<QMimeData> data(
        pair.model.mimeData({pair.index(QStringLiteral("Bone"))}));

    pair.other.onDropTo(data.get(), pair.index(QStringLiteral("Rib")), 0);

    expectNothing(pair.editor);
    QCOMPARE(spearFault(pair.model), QString());
}

FISHBONE_TEST(TestSeveralFishEditors)
#include "tst_fisheditor_several.moc"
