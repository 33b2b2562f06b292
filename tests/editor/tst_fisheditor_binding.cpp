// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QPointer>
#include <QStandardItemModel>
#include <QtTest>

#include <memory>

#include <tests/editor/sampletrees.h>
#include <tests/program/testprogram.h>
#include <tests/support/drawingtext.h>
#include <tests/support/editorfixture.h>

using namespace TestSupport;

/** Which models and documents an editor works on. */
class TestFishEditorBinding : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldStoreTheModelAndShowNothingOfIt();
    void shouldKeepTheDrawingWhenTheModelIsReplaced();
    void shouldConnectAModelOnce();
    void shouldGoOnListeningToAnEarlierModel();
    void shouldTellTheTypeOfItsModel();
    void shouldAnswerWithoutAModel();
    void shouldAnswerWithAModelOfAnotherKind();
    void shouldTellWhereASpearsSubjectStands();
    void shouldFindTheDocumentOfWhatItShows();
    void shouldMarkTheShownDocumentOnly();
    void shouldDrawOnWithoutAModel();
    void shouldIgnoreWhatAnEarlierModelGoesThrough();
    void shouldIgnoreTheDeathOfALaterModel();
    void shouldDieBeforeAModelBelowIt();
};

namespace {
/** A model that tells how many receivers a signal has. */
class CountingModel : public FishModel
{
public:
    int listeners() const
    {
        return receivers(SIGNAL(dataChanged(QModelIndex, QModelIndex, QVector<int>)));
    }
    int allListeners() const
    {
        return listeners() + receivers(SIGNAL(modelReset())) +
               receivers(SIGNAL(layoutChanged(QList<QPersistentModelIndex>,
                                              QAbstractItemModel::LayoutChangeHint))) +
               receivers(SIGNAL(rowsAboutToBeRemoved(QModelIndex, int, int))) +
               receivers(SIGNAL(rowsInserted(QModelIndex, int, int))) +
               receivers(SIGNAL(rowsMoved(QModelIndex, int, int, QModelIndex, int))) +
               receivers(SIGNAL(destroyed(QObject *)));
    }
};

/** Everything that needs a diagram, on an editor that has none. */
void useEverything(FishEditor &editor, const QModelIndex &index)
{
    editor.setRootIndex(index);
    editor.loadFish(index);
    editor.generateSpear(editor.model(), index);
    editor.generateAllSubSpear(editor.model(), index);
    editor.generateSpear(index, 1, 0, nullptr);
    editor.updateFish(false);
    editor.updateFish(true);
    editor.refreshFish();
    editor.updateSpearSize();
    editor.updateSpearPostion();
    editor.expandAll();
    editor.contractAll();
    editor.modifyExpand();
    editor.modifyContract();
    editor.modifyExpandAll();
    editor.modifyContractAll();
    editor.centerView(index);
    editor.ensureVisible(index);
    editor.showEntire();
    editor.showSelected();
    editor.modelDataChanged(index, index);
    editor.setModified(true);
    editor.saveTmpFile();
}
} // namespace

void TestFishEditorBinding::shouldStoreTheModelAndShowNothingOfIt()
{
    FishModel model;
    loadDocument(model, SampleTrees::small());
    FishEditor editor;

    editor.setModel(&model);

    QCOMPARE(editor.model(), &model);
    QVERIFY(!editor.rootIndex().isValid());
    QVERIFY(editor.scene()->items().isEmpty());
}

void TestFishEditorBinding::shouldKeepTheDrawingWhenTheModelIsReplaced()
{
    EditorFixture fish(SampleTrees::small());
    FishModel other;
    const QStringList drawn = drawingText(fish.editor.headSpear());

    fish.editor.setModel(&other);

    QCOMPARE(fish.editor.model(), &other);
    QCOMPARE(fish.editor.rootIndex(), fish.index(QStringLiteral("Effect")));
    QCOMPARE(drawingText(fish.editor.headSpear()), drawn);
}

void TestFishEditorBinding::shouldConnectAModelOnce()
{
    CountingModel model;
    loadDocument(model, SampleTrees::small());
    FishEditor editor;
    QCOMPARE(model.listeners(), 0);

    editor.setModel(&model);
    QCOMPARE(model.listeners(), 1);
    const int all = model.allListeners();
    editor.setModel(&model);
    editor.setModel(&model);

    QCOMPARE(model.listeners(), 1);
    QCOMPARE(model.allListeners(), all);
}

void TestFishEditorBinding::shouldGoOnListeningToAnEarlierModel()
{
    CountingModel model;
    FishInfo *const info = loadDocument(model, SampleTrees::small());
    CountingModel other;
    FishEditor editor;
    editor.setModel(&model);

    editor.setModel(&other);
    QCOMPARE(model.listeners(), 1);
    editor.setModel(nullptr);
    QCOMPARE(model.listeners(), 1);
    QCOMPARE(other.listeners(), 1);
    QVERIFY(!editor.model());

    // What it hears is acted on: the document that is shown again is marked.
    editor.setModel(&other);
    editor.setModel(&model);
    editor.setRootIndex(model.index(0, 0));
    model.setData(model.index(0, 0), QStringLiteral("Cause"));
    QVERIFY(info->modified());
}

void TestFishEditorBinding::shouldTellTheTypeOfItsModel()
{
    FishModel model;
    FishEditor editor;
    QCOMPARE(editor.modelType(), 0);

    editor.setModel(&model);
    QCOMPARE(editor.modelType(), 0);
    model.setModelType(FISH_MODEL_DIAGRAM);
    QCOMPARE(editor.modelType(), 1);
    model.setModelType(static_cast<FISH_MODEL_TYPE>(7));
    QCOMPARE(editor.modelType(), 7);
    editor.setModel(nullptr);
    QCOMPARE(editor.modelType(), 0);
}

void TestFishEditorBinding::shouldAnswerWithoutAModel()
{
    FishModel foreign;
    loadDocument(foreign, SampleTrees::small());
    FishEditor editor;

    useEverything(editor, QModelIndex());
    useEverything(editor, foreign.index(0, 0));

    QVERIFY(!editor.headSpear());
    QVERIFY(!editor.rootIndex().isValid());
    QVERIFY(editor.scene()->items().isEmpty());
    QVERIFY(!nodeTitled(foreign, QStringLiteral("Effect"))->spear());
}

void TestFishEditorBinding::shouldAnswerWithAModelOfAnotherKind()
{
    QStandardItemModel model(3, 1);
    FishEditor editor;
    editor.setModel(&model);

    useEverything(editor, model.index(1, 0));

    QCOMPARE(editor.model(), &model);
    QCOMPARE(editor.modelType(), 0);
    QVERIFY(!editor.headSpear());
    QVERIFY(!editor.currentFishInfo());
    QVERIFY(editor.scene()->items().isEmpty());
}

void TestFishEditorBinding::shouldTellWhereASpearsSubjectStands()
{
    EditorFixture fish(SampleTrees::small());
    const SpearItem unlinked(QStringLiteral("x"), 0, 20);

    QCOMPARE(fish.editor.spearIndex(fish.spear(QStringLiteral("Machine"))),
             fish.index(QStringLiteral("Machine")));
    QVERIFY(!fish.editor.spearIndex(nullptr).isValid());
    QVERIFY(!fish.editor.spearIndex(const_cast<SpearItem *>(&unlinked)).isValid());
}

void TestFishEditorBinding::shouldFindTheDocumentOfWhatItShows()
{
    EditorFixture fish(SampleTrees::small());
    FishInfo *const other = loadDocument(fish.model, QStringLiteral("Other[Bone[Branch[Twig]]]"));
    QCOMPARE(fish.editor.currentFishInfo(), fish.info);

    fish.editor.setRootIndex(fish.index(QStringLiteral("Branch")));
    QCOMPARE(fish.editor.currentFishInfo(), other);

    // Another document in front moves the row, not the answer.
    fish.model.insertRows(0, 1);
    QCOMPARE(fish.editor.currentFishInfo(), other);

    FishModel unrelated;
    loadDocument(unrelated, QStringLiteral("A"));
    loadDocument(unrelated, QStringLiteral("B"));
    loadDocument(unrelated, QStringLiteral("C"));
    fish.editor.setModel(&unrelated);
    QCOMPARE(fish.editor.currentFishInfo(), nullptr);
    fish.editor.setModel(nullptr);
    QCOMPARE(fish.editor.currentFishInfo(), nullptr);
}

void TestFishEditorBinding::shouldMarkTheShownDocumentOnly()
{
    EditorFixture fish(SampleTrees::small());
    FishInfo *const other = loadDocument(fish.model, QStringLiteral("Other[Bone]"));
    QVERIFY(!fish.editor.isModified());

    fish.editor.setModified(true);
    QVERIFY(fish.editor.isModified());
    QVERIFY(fish.info->modified());
    QVERIFY(!other->modified());

    fish.editor.setRootIndex(fish.index(QStringLiteral("Other")));
    QVERIFY(!fish.editor.isModified());
    fish.info->setModified(false);
    other->setModified(true);
    QVERIFY(fish.editor.isModified());
    fish.editor.setModified(false);
    QVERIFY(!other->modified());
}

void TestFishEditorBinding::shouldDrawOnWithoutAModel()
{
    EditorFixture fish(SampleTrees::small());
    fish.editor.expandAll();
    const QStringList drawn = drawingText(fish.editor.headSpear());

    fish.editor.setModel(nullptr);
    fish.editor.updateFish(false);
    fish.editor.expandAll();
    fish.editor.setModified(true);

    QCOMPARE(drawingText(fish.editor.headSpear()), drawn);
    QVERIFY(!fish.info->modified());
    // The model is still heard, and the drawing follows it.
    fish.model.setData(fish.index(QStringLiteral("Man")), QStringLiteral("Men"));
    QCOMPARE(fish.spear(QStringLiteral("Men"))->text(), QStringLiteral("Men"));
    fish.model.unloadFish(fish.info);
    QVERIFY(fish.editor.scene()->items().isEmpty());
}

void TestFishEditorBinding::shouldIgnoreWhatAnEarlierModelGoesThrough()
{
    auto earlier = std::make_unique<FishModel>();
    FishInfo *const info = loadDocument(*earlier, QStringLiteral("Former[Bone]"));
    EditorFixture fish(SampleTrees::small());
    fish.editor.setModel(earlier.get());
    fish.editor.setRootIndex(earlier->index(0, 0));
    fish.editor.setModel(&fish.model);
    fish.editor.setRootIndex(fish.index(QStringLiteral("Effect")));
    const SpearItem *const head = fish.editor.headSpear();

    earlier->refreshModel();
    earlier->insertRows(0, 1);
    earlier->unloadFish(info);
    earlier.reset();

    QCOMPARE(fish.editor.headSpear(), head);
    QCOMPARE(fish.editor.rootIndex(), fish.index(QStringLiteral("Effect")));
    QCOMPARE(SpearItem::m_refCount, 3); // the head and its main bones
}

void TestFishEditorBinding::shouldIgnoreTheDeathOfALaterModel()
{
    EditorFixture fish(SampleTrees::small());
    const SpearItem *const head = fish.editor.headSpear();
    {
        FishModel later;
        fish.editor.setModel(&later);
    }
    QVERIFY(!fish.editor.model());
    QCOMPARE(fish.editor.headSpear(), head);

    fish.model.setData(fish.index(QStringLiteral("Man")), QStringLiteral("Men"));
    fish.editor.updateFish(false);
    QCOMPARE(fish.spear(QStringLiteral("Men"))->text(), QStringLiteral("Men"));
}

void TestFishEditorBinding::shouldDieBeforeAModelBelowIt()
{
    auto editor = std::make_unique<FishEditor>();
    const QPointer<FishModel> model = new FishModel(editor.get());
    loadDocument(*model, QStringLiteral("Effect[Man,Machine]"));
    editor->setModel(model);
    editor->setRootIndex(model->index(0, 0));
    QVERIFY(editor->headSpear());

    editor.reset(); // the model calls nothing of the editor that is gone

    QVERIFY(!model);
}

FISHBONE_TEST(TestFishEditorBinding)
#include "tst_fisheditor_binding.moc"
