// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QMimeData>
#include <QtTest>

#include <functional>

#include <tests/program/testprogram.h>
#include <tests/support/editorfixture.h>

using namespace TestSupport;

namespace {

/** A model and an editor that a listener may end at any time. */
struct Stage
{
    Stage()
    {
        model.setModelType(FISH_MODEL_DIAGRAM);
        loadDocument(model, QStringLiteral("Effect[Man[Training],Machine]"));
        editor->setModel(&model);
        editor->setRootIndex(model.index(0, 0));
        nodeTitled(model, QStringLiteral("Man"))->spear()->setSelected(true);
    }

    QModelIndex index(const char *title) const
    {
        return indexTitled(model, QString::fromLatin1(title));
    }

    FishModel model;
    std::unique_ptr<FishEditor> editor = std::make_unique<FishEditor>();
};

using Step = std::function<void(Stage &)>;

/** Ends the editor as soon as @p sender sends @p signal. */
template <typename Sender, typename Signal>
Step endedBy(Sender sender, Signal signal)
{
    return [sender, signal](Stage &stage) {
        QObject::connect(sender(stage), signal, &stage.model, [&stage] { stage.editor.reset(); });
    };
}

FishModel *modelOf(Stage &stage)
{
    return &stage.model;
}

FishEditor *editorOf(Stage &stage)
{
    return stage.editor.get();
}

void moveMachine(Stage &stage)
{
    stage.editor->moveItems({}, {nodeTitled(stage.model, QStringLiteral("Machine"))->spear()},
                            stage.index("Man"), 0);
}

void dropMachine(Stage &stage)
{
    const std::unique_ptr<QMimeData> data(stage.model.mimeData({stage.index("Machine")}));
    stage.editor->onDropTo(data.get(), stage.index("Man"), 0);
}

void editMachine(Stage &stage)
{
    TreeItem values;
    stage.editor->editSubject(stage.index("Machine"), &values);
}

} // namespace
Q_DECLARE_METATYPE(Step)

/**
 * The end of the editor in the middle of what it does, by a host that closes it when a document
 * leaves, say.
 */
class TestFishEditorEnding : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldSurviveAListenerThatEndsIt_data();
    void shouldSurviveAListenerThatEndsIt();
};

void TestFishEditorEnding::shouldSurviveAListenerThatEndsIt_data()
{
    QTest::addColumn<Step>("prepare");
    QTest::addColumn<Step>("arm");
    QTest::addColumn<Step>("act");

    const Step nothing = [](Stage &) {};
    const Step removed = endedBy(modelOf, &FishModel::rowsRemoved);
    const Step inserted = endedBy(modelOf, &FishModel::rowsInserted);
    const Step moved = endedBy(modelOf, &FishModel::rowsMoved);
    const Step selected = endedBy(editorOf, &FishEditor::copyAvailable);
    const Step deleteHead = [](Stage &stage) {
        stage.editor->deleteSubject(stage.index("Effect"));
    };
    const Step undo = [](Stage &stage) { stage.editor->undo(); };
    const Step redo = [](Stage &stage) { stage.editor->redo(); };
    const Step append = [](Stage &stage) { stage.editor->appendSubject(); };
    const Step copy = [](Stage &stage) { stage.editor->copy(); };
    const Step del = [](Stage &stage) { stage.editor->del(); };

    QTest::newRow("delete a head") << nothing << removed << deleteHead;
    QTest::newRow("delete the selection") << nothing << removed << del;
    QTest::newRow("lose the selection") << nothing << selected << del;
    QTest::newRow("undo") << append << removed << undo;
    QTest::newRow("redo") << Step([=](Stage &stage) {
        append(stage);
        undo(stage);
    }) << inserted << redo;
    QTest::newRow("insert before")
        << nothing << inserted << Step([](Stage &stage) { stage.editor->insertSubject(); });
    QTest::newRow("insert after") << nothing << inserted << append;
    QTest::newRow("insert below") << nothing << inserted
                                  << Step([](Stage &stage) { stage.editor->insertChildSubject(); });
    QTest::newRow("insert above") << nothing << inserted << Step([](Stage &stage) {
        stage.editor->insertParentSubject();
    });
    QTest::newRow("insert a free subject")
        << nothing << inserted << Step([](Stage &stage) { stage.editor->insertFreeSubject(); });
    QTest::newRow("insert a given item") << nothing << inserted << Step([](Stage &stage) {
        stage.editor->insertChildSubject(stage.index("Man"),
                                         std::make_unique<TreeItem>().release());
    });
    QTest::newRow("paste") << copy << inserted << Step([](Stage &stage) { stage.editor->paste(); });
    QTest::newRow("cut") << nothing << endedBy(editorOf, &FishEditor::clipBoardAvailable)
                         << Step([](Stage &stage) { stage.editor->cut(); });
    QTest::newRow("move") << nothing << moved << Step(moveMachine);
    QTest::newRow("drop") << nothing << moved << Step(dropMachine);
    QTest::newRow("edit") << nothing << endedBy(modelOf, &FishModel::dataChanged)
                          << Step([](Stage &stage) {
                                 editMachine(stage);
                                 stage.editor->renameItem(stage.index("Man"), QStringLiteral("X"));
                             });
    QTest::newRow("expand") << nothing << endedBy(editorOf, &FishEditor::onExpand)
                            << Step([](Stage &stage) { stage.editor->modifyExpand(); });
    const Step train = [](Stage &stage) {
        stage.editor->expandAll();
        nodeTitled(stage.model, QStringLiteral("Training"))->spear()->setSelected(true);
    };
    QTest::newRow("lose the selection by contracting")
        << train << selected << Step([](Stage &stage) { stage.editor->modifyContract(); });
    QTest::newRow("contract everything")
        << train << selected << Step([](Stage &stage) { stage.editor->modifyContractAll(); });
    QTest::newRow("rebuild") << nothing << selected
                             << Step([](Stage &stage) { stage.editor->updateFish(true); });
    QTest::newRow("rebuild by pasting")
        << copy << selected << Step([](Stage &stage) { stage.editor->paste(); });
    QTest::newRow("contract") << nothing << endedBy(editorOf, &FishEditor::onCollaps)
                              << Step([](Stage &stage) { stage.editor->modifyContract(); });
}

void TestFishEditorEnding::shouldSurviveAListenerThatEndsIt()
{
    QFETCH(Step, prepare);
    QFETCH(Step, arm);
    QFETCH(Step, act);
    Stage stage;
    prepare(stage);
    if (stage.editor->firstSelectedSpear() == nullptr)
        nodeTitled(stage.model, QStringLiteral("Man"))->spear()->setSelected(true);
    arm(stage);

    act(stage);

    QVERIFY(!stage.editor);
    QCOMPARE(SpearItem::m_refCount, 0);
}

FISHBONE_TEST(TestFishEditorEnding)
#include "tst_fisheditor_ending.moc"
