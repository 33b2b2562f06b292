// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QFile>
#include <QGraphicsSceneMouseEvent>
#include <QHBoxLayout>
#include <QMenu>
#include <QMimeData>
#include <QPointer>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include <fishbone/items/expanditem.h>
#include <fishbone/undo/undostack.h>
#include <tests/editor/sampletrees.h>
#include <tests/program/testprogram.h>
#include <tests/support/drawingtext.h>
#include <tests/support/editorfixture.h>
#include <tests/support/signalrecorder.h>

using namespace TestSupport;

class TestFishEditorConstruction : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldTakeTheParentItIsGiven();
    void shouldBeASunkenStyledPanel();
    void shouldShowNothingAtFirst();
    void shouldHoldItsViewAloneInAHorizontalLayout();
    void shouldOwnItsScene();
    void shouldOwnItsUndoStack();
    void shouldReportWhetherAnythingIsSelected();
    void shouldReportASelectionThatChangesAtOnceOnlyOnce();
    void shouldNotReportASelectionThatStays();
    void shouldReportASelectionWhenTheTreeIsWholeAgain();
    void shouldReportASelectionWhenTheDrawingIsWholeAgain();
    void shouldCarryOutAMoveAtOnce();
    void shouldCarryOutADropWhenTheDragHasEnded();
    void shouldAnswerARightClickWithAMenu();
    void shouldServeExpandButtonsThatNoEditorShows();
    void shouldAutosaveEveryThirtySeconds();
    void shouldStartTheOneTimerAgain();
    void shouldGoOnAutosaving();
    void shouldAutosaveTheShownDocument();
    void shouldAutosaveNothingWithoutADocument();
};

namespace {
/** A payload as a tree view of the model drags it. */
std::unique_ptr<QMimeData> dragged(const FishModel &model, const QModelIndex &index)
{
    return std::unique_ptr<QMimeData>(model.mimeData({index}));
}

QTimer *autosaveTimer(const FishEditor &editor)
{
    const auto timers = editor.findChildren<QTimer *>(QString(), Qt::FindDirectChildrenOnly);
    return timers.size() == 1 ? timers.first() : nullptr;
}

} // namespace

void TestFishEditorConstruction::shouldTakeTheParentItIsGiven()
{
    QWidget parent;

    QCOMPARE(FishEditor().parentWidget(), nullptr);
    QCOMPARE((new FishEditor(&parent))->parentWidget(), &parent);
}

void TestFishEditorConstruction::shouldBeASunkenStyledPanel()
{
    const FishEditor editor;

    QCOMPARE(editor.frameStyle(), 54);
    QCOMPARE(editor.frameShape(), QFrame::StyledPanel);
    QCOMPARE(editor.frameShadow(), QFrame::Sunken);
}

void TestFishEditorConstruction::shouldShowNothingAtFirst()
{
    const FishEditor editor;

    QVERIFY(!editor.rootIndex().isValid());
    QVERIFY(!editor.headSpear());
    QVERIFY(!editor.model());
    QVERIFY(!editor.currentFishInfo());
    QVERIFY(editor.scene()->items().isEmpty());
    QVERIFY(!editor.hasSelection());
    QVERIFY(!editor.hasClipBoardData());
    QVERIFY(!editor.isModified());
    QVERIFY(!editor.canUndo());
    QVERIFY(!editor.canRedo());
    QCOMPARE(editor.zoomValue(), 250);
    QCOMPARE(editor.rotateValue(), 0);
    QCOMPARE(editor.view()->transform(), QTransform());
}

void TestFishEditorConstruction::shouldHoldItsViewAloneInAHorizontalLayout()
{
    const FishEditor editor;

    QVERIFY(qobject_cast<QHBoxLayout *>(editor.layout()));
    QCOMPARE(editor.layout()->count(), 1);
    QCOMPARE(editor.layout()->itemAt(0)->widget(), editor.view());
    QCOMPARE(editor.view()->parentWidget(), &editor);
}

void TestFishEditorConstruction::shouldOwnItsScene()
{
    auto editor = std::make_unique<FishEditor>();
    const QPointer<FishScene> scene = editor->scene();
    QVERIFY(scene);
    QCOMPARE(scene->parent(), nullptr);
    QCOMPARE(editor->view()->scene(), scene);
    QCOMPARE(scene->currentGraphicsView(), editor->view());

    editor.reset();

    QVERIFY(!scene);
}

void TestFishEditorConstruction::shouldOwnItsUndoStack()
{
    auto editor = std::make_unique<FishEditor>();
    const QPointer<UndoStack> stack = editor->undoStack();
    QCOMPARE(stack->parent(), editor.get());

    editor.reset();

    QVERIFY(!stack);
}

void TestFishEditorConstruction::shouldReportWhetherAnythingIsSelected()
{
    EditorFixture fish(SampleTrees::small());
    SignalRecorder recorder(fish.editor);

    fish.spear(QStringLiteral("Man"))->setSelected(true);
    QCOMPARE(recorder.take(), QStringLiteral("copyAvailable(true)"));
    fish.spear(QStringLiteral("Machine"))->setSelected(true);
    QCOMPARE(recorder.take(), QStringLiteral("copyAvailable(true)"));
    fish.editor.scene()->clearSelection();
    QCOMPARE(recorder.take(), QStringLiteral("copyAvailable(false)"));
}

void TestFishEditorConstruction::shouldReportASelectionThatChangesAtOnceOnlyOnce()
{
    EditorFixture fish(QStringLiteral("Effect[Man[Training,Cost,Time],Machine[Wear]]"));
    fish.editor.expandAll();
    SignalRecorder recorder(fish.editor);

    fish.editor.selectAll();
    QCOMPARE(recorder.take(), QStringLiteral("copyAvailable(true)"));
    // What is hidden is not selected any more, while head and main bones stay so.
    fish.editor.contractAll();
    QCOMPARE(fish.editor.selectedItems().size(), 3);
    QCOMPARE(recorder.take(), QStringLiteral("copyAvailable(true)"));
    fish.editor.expandAll();
    fish.select({QStringLiteral("Cost"), QStringLiteral("Time"), QStringLiteral("Wear")});
    recorder.take();
    fish.editor.del();
    QCOMPARE(recorder.take(), QStringLiteral("copyAvailable(false)"));
    fish.editor.undo();
    fish.editor.expandAll();
    fish.editor.selectAll();
    recorder.take();
    fish.editor.redo();
    QCOMPARE(recorder.take(), QStringLiteral("copyAvailable(false)"));
    fish.editor.selectAll();
    recorder.take();
    fish.editor.setRootIndex(QModelIndex());
    QCOMPARE(recorder.take(), QStringLiteral("copyAvailable(false)"));
}

void TestFishEditorConstruction::shouldNotReportASelectionThatStays()
{
    FishEditor empty;
    SignalRecorder nothing(empty);
    empty.selectAll();
    QCOMPARE(nothing.take(), QString());

    EditorFixture fish(SampleTrees::small());
    fish.editor.selectAll();
    SignalRecorder recorder(fish.editor);
    fish.editor.selectAll();
    QCOMPARE(recorder.take(), QString());
}

void TestFishEditorConstruction::shouldReportASelectionWhenTheTreeIsWholeAgain()
{
    EditorFixture fish(QStringLiteral("Effect[Man[Training,Cost],Machine[Wear]]"));
    fish.editor.expandAll();
    fish.select({QStringLiteral("Man"), QStringLiteral("Wear")});
    QStringList seen;
    connect(&fish.editor, &FishEditor::copyAvailable, &fish.editor, [&fish, &seen] {
        seen.append(treeToText(*fish.subject(QStringLiteral("Effect"))) + QLatin1Char('/') +
                    spearTreeText(fish.editor.headSpear()));
    });

    fish.editor.del();

    QCOMPARE(seen, QStringList{QStringLiteral("Effect[Machine]/Effect[Machine]")});
}

void TestFishEditorConstruction::shouldReportASelectionWhenTheDrawingIsWholeAgain()
{
    EditorFixture fish(SampleTrees::small());
    const QModelIndex other =
        fish.model.index(fish.model.fishRow(loadDocument(fish.model, QStringLiteral("B[C]"))), 0);
    fish.select({QStringLiteral("Man")});
    QStringList seen;
    connect(&fish.editor, &FishEditor::copyAvailable, &fish.editor, [&fish, &seen] {
        seen.append(spearTreeText(fish.editor.headSpear()) + QLatin1Char('/') +
                    fish.editor.rootIndex().data().toString());
    });

    fish.editor.setRootIndex(other);

    QCOMPARE(seen, QStringList{QStringLiteral("B[C]/B")});
}

void TestFishEditorConstruction::shouldCarryOutAMoveAtOnce()
{
    EditorFixture fish(SampleTrees::small());
    SpearItem *const man = fish.spear(QStringLiteral("Man"));
    man->setPos(40, 50);

    // No target: the drawing goes back to where it was.
    Q_EMIT fish.editor.view()->moveSpear(QPoint(), {man}, QModelIndex(), 0);

    QCOMPARE(man->pos(), QPointF(0, 0));
}

void TestFishEditorConstruction::shouldCarryOutADropWhenTheDragHasEnded()
{
    EditorFixture fish(SampleTrees::small());
    const auto payload = dragged(fish.model, fish.index(QStringLiteral("Machine")));

    Q_EMIT fish.editor.view()->dropTo(payload.get(), fish.index(QStringLiteral("Man")), 0);
    QCOMPARE(treeToText(*fish.subject(QStringLiteral("Effect"))), SampleTrees::small());

    QTRY_COMPARE(treeToText(*fish.subject(QStringLiteral("Effect"))),
                 QStringLiteral("Effect[Man[Machine,Training]]"));
}

void TestFishEditorConstruction::shouldAnswerARightClickWithAMenu()
{
    EditorFixture fish(SampleTrees::small());
    int entries = 0;
    QTimer closer;
    connect(&closer, &QTimer::timeout, &closer, [&entries] {
        if (auto *const menu = qobject_cast<QMenu *>(QApplication::activePopupWidget())) {
            entries = menu->actions().count();
            menu->close();
        }
    });
    closer.start(2);

    Q_EMIT fish.editor.view()->rightClicked(fish.spear(QStringLiteral("Man")));

    QCOMPARE(entries, 3);
}

void TestFishEditorConstruction::shouldServeExpandButtonsThatNoEditorShows()
{
    FishModel model;
    loadDocument(model, SampleTrees::small());
    FishEditor first;
    first.setModel(nullptr);
    FishEditor last;
    last.setModel(&model);
    const QModelIndex man = indexTitled(model, QStringLiteral("Man"));
    QGraphicsScene scene;
    auto *const spear = new SpearItem(QStringLiteral("Man"), 1, 20);
    scene.addItem(spear);
    nodeTitled(model, QStringLiteral("Man"))->setSpear(spear, man);
    auto *const button = new ExpandItem(spear);
    spear->setExpandBuddy(button);

    QGraphicsSceneMouseEvent press(QEvent::GraphicsSceneMousePress);
    press.setButton(Qt::LeftButton);
    scene.sendEvent(button, &press);

    QCOMPARE(spear->childCount(), 1);
    QCOMPARE(spear->childSpear(0)->text(), QStringLiteral("Training"));
}

void TestFishEditorConstruction::shouldAutosaveEveryThirtySeconds()
{
    const FishEditor editor;

    const QTimer *const timer = autosaveTimer(editor);
    QVERIFY(timer);
    QCOMPARE(timer->interval(), 30000);
    QVERIFY(timer->isActive());
    QVERIFY(!timer->isSingleShot());
}

void TestFishEditorConstruction::shouldStartTheOneTimerAgain()
{
    FishEditor editor;
    QTimer *const timer = autosaveTimer(editor);
    timer->start(1000);

    editor.startSaveTmpFileTimer();

    QCOMPARE(editor.findChildren<QTimer *>(QString(), Qt::FindDirectChildrenOnly).size(), 1);
    QCOMPARE(autosaveTimer(editor), timer);
    QCOMPARE(timer->interval(), 30000);
    QVERIFY(timer->isActive());
}

void TestFishEditorConstruction::shouldGoOnAutosaving()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("saved"));
    EditorFixture fish(SampleTrees::small());
    fish.info->setAutoSaveFile(file);

    autosaveTimer(fish.editor)->start(1);

    for (int round = 0; round < 3; ++round) {
        QTRY_VERIFY(QFile::exists(file));
        // In between, so that each round needs an autosave of its own.
        QVERIFY(QFile::remove(file));
    }
}

void TestFishEditorConstruction::shouldAutosaveTheShownDocument()
{
    const QTemporaryDir folder;
    EditorFixture fish(SampleTrees::small());
    FishInfo *const other = loadDocument(fish.model, QStringLiteral("Other[Bone[Branch]]"));
    fish.info->setAutoSaveFile(folder.filePath(QStringLiteral("first")));
    other->setAutoSaveFile(folder.filePath(QStringLiteral("second")));
    // A subject inside the document stands for the document as well.
    fish.editor.setRootIndex(fish.index(QStringLiteral("Bone")));

    fish.editor.saveTmpFile();

    QVERIFY(!QFile::exists(folder.filePath(QStringLiteral("first"))));
    QFile saved(folder.filePath(QStringLiteral("second")));
    QVERIFY(saved.open(QIODevice::ReadOnly));
    FishModel again;
    QVERIFY(again.loadJsonFish(saved.readAll()));
    QCOMPARE(treeToText(*again.getFishHeadTreeItem()), QStringLiteral("Other[Bone[Branch]]"));
}

void TestFishEditorConstruction::shouldAutosaveNothingWithoutADocument()
{
    FishModel model;
    loadDocument(model, SampleTrees::small());
    FishEditor editor;
    const QString folder = QCoreApplication::applicationDirPath() + QStringLiteral("/tmp");
    QVERIFY(!QFile::exists(folder));

    editor.saveTmpFile();
    editor.setModel(&model);
    editor.saveTmpFile();

    QVERIFY(!QFile::exists(folder));
}

FISHBONE_TEST(TestFishEditorConstruction)
#include "tst_fisheditor_construction.moc"
