// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <fishbone/undo/undostack.h>
#include <tests/editor/sampletrees.h>
#include <tests/program/testprogram.h>
#include <tests/support/drawingtext.h>
#include <tests/support/editorfixture.h>
#include <tests/support/signalrecorder.h>

using namespace TestSupport;

/** What happens to the drawing when documents and models come and go underneath it. */
class TestFishEditorDocuments : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowNothingWhenTheModelDies();
    void shouldLetTheModelOutliveIt();
    void shouldReportNothingWhileItDies();
    void shouldDieInAnyOrder_data();
    void shouldDieInAnyOrder();
    void shouldKeepItsHistoryUsableWithoutTheModel();
    void shouldGoOnAfterAReset();
    void shouldGoOnBelowASubjectAfterAReset();
    void shouldShowNothingAfterAReload();
    void shouldShowNothingWhenItsDocumentIsEmptied();
    void shouldShowNothingWhenItsDocumentLeaves_data();
    void shouldShowNothingWhenItsDocumentLeaves();
    void shouldStayWhenAnotherDocumentLeaves();
    void shouldNoticeADocumentThatLeftUnannounced();
    void shouldShowNothingWhenASubjectAboveItsRootIsRemoved();
    void shouldShowADocumentThatUndoBringsBack();
    void shouldShowNothingAgainWhenTheDeletionIsRedone();
    void shouldShowTheSubjectInsertedAboveTheHead();
    void shouldSurviveTheDeathOfItsSpears();
};

namespace {
void expectNothing(const FishEditor &editor)
{
    QVERIFY(!editor.headSpear());
    QVERIFY(editor.scene()->items().isEmpty());
    QVERIFY(!editor.rootIndex().isValid());
    QVERIFY(!editor.currentFishInfo());
    QVERIFY(!editor.isModified());
}

/** Everything a host may still call. */
void useAnEmptyOne(FishEditor &editor)
{
    editor.updateFish(false);
    editor.updateFish(true);
    editor.refreshFish();
    editor.expandAll();
    editor.contractAll();
    editor.modifyExpandAll();
    editor.modifyContractAll();
    editor.selectAll();
    editor.showEntire();
    editor.showSelected();
    editor.insertChildSubject();
    editor.copy();
    editor.paste();
    editor.del();
    editor.setModified(true);
    editor.saveTmpFile();
    editor.centerView(editor.rootIndex());
}
} // namespace

void TestFishEditorDocuments::shouldShowNothingWhenTheModelDies()
{
    auto model = std::make_unique<FishModel>();
    loadDocument(*model, SampleTrees::deep());
    FishEditor editor;
    editor.setModel(model.get());
    editor.setRootIndex(model->index(0, 0));
    editor.expandAll();
    editor.selectAll();

    model.reset();

    expectNothing(editor);
    QVERIFY(!editor.model());
    QCOMPARE(SpearItem::m_refCount, 0);
    useAnEmptyOne(editor);
    expectNothing(editor);
}

void TestFishEditorDocuments::shouldLetTheModelOutliveIt()
{
    FishModel model;
    loadDocument(model, SampleTrees::deep());
    auto editor = std::make_unique<FishEditor>();
    editor->setModel(&model);
    editor->setRootIndex(model.index(0, 0));
    editor->expandAll();

    editor.reset();

    QCOMPARE(SpearItem::m_refCount, 0);
    for (const QString &title : {QStringLiteral("Effect"), QStringLiteral("Train")})
        QVERIFY(!nodeTitled(model, title)->spear());
    model.setData(model.index(0, 0), QStringLiteral("Cause"));
    QCOMPARE(model.getFishHeadTreeItem()->title(), QStringLiteral("Cause"));
}

void TestFishEditorDocuments::shouldReportNothingWhileItDies()
{
    FishModel model;
    loadDocument(model, SampleTrees::deep());
    auto editor = std::make_unique<FishEditor>();
    editor->setModel(&model);
    editor->setRootIndex(model.index(0, 0));
    editor->headSpear()->setSelected(true);
    SignalRecorder recorder(*editor);

    editor.reset();

    QCOMPARE(recorder.take(), QString());
}

void TestFishEditorDocuments::shouldDieInAnyOrder_data()
{
    QTest::addColumn<QString>("order");

    QStringList order{QStringLiteral("editor1"), QStringLiteral("editor2"), QStringLiteral("model"),
                      QStringLiteral("window")};
    std::sort(order.begin(), order.end());
    do {
        const QString text = order.join(QLatin1Char(' '));
        QTest::newRow(qPrintable(text)) << text;
    } while (std::next_permutation(order.begin(), order.end()));
}

void TestFishEditorDocuments::shouldDieInAnyOrder()
{
    QFETCH(QString, order);
    auto model = std::make_unique<FishModel>();
    loadDocument(*model, SampleTrees::deep());
    loadDocument(*model, QStringLiteral("Other[Bone[Branch]]"));
    auto window = std::make_unique<QWidget>();
    auto editor1 = std::make_unique<FishEditor>();
    auto editor2 = std::make_unique<FishEditor>();
    // One more, owned by its parent widget as in a host, beside the two.
    auto *const editor3 = new FishEditor(window.get());
    int row = 0;
    for (FishEditor *editor : {editor1.get(), editor2.get(), editor3}) {
        editor->setModel(model.get());
        editor->setRootIndex(model->index(row++ % 2, 0));
        editor->expandAll();
        editor->headSpear()->childSpear(0)->setSelected(true);
        editor->insertChildSubject();
        editor->cut();
    }

    const QStringList names = order.split(QLatin1Char(' '));
    for (const QString &name : names) {
        if (name == QLatin1String("model"))
            model.reset();
        else if (name == QLatin1String("window"))
            window.reset();
        else
            (name == QLatin1String("editor1") ? editor1 : editor2).reset();
    }

    QCOMPARE(SpearItem::m_refCount, 0);
}

void TestFishEditorDocuments::shouldKeepItsHistoryUsableWithoutTheModel()
{
    auto model = std::make_unique<FishModel>();
    loadDocument(*model, SampleTrees::deep());
    FishEditor editor;
    editor.setModel(model.get());
    editor.setRootIndex(model->index(0, 0));
    editor.headSpear()->childSpear(0)->setSelected(true);
    editor.insertChildSubject();
    editor.insertSubject();
    editor.undo();

    model.reset();
    editor.redo();
    editor.undo();
    editor.undo();
    editor.undo();

    QVERIFY(!editor.canUndo());
    QVERIFY(editor.canRedo());
    expectNothing(editor);
}

void TestFishEditorDocuments::shouldGoOnAfterAReset()
{
    EditorFixture fish(SampleTrees::deep());
    fish.editor.expandAll();
    fish.spear(QStringLiteral("Machine"))->setExpand(false);
    fish.editor.updateFish(false);
    const QStringList drawn = drawingText(fish.editor.headSpear());
    const SpearItem *const head = fish.editor.headSpear();

    fish.model.refreshModel();

    QCOMPARE(fish.editor.headSpear(), head);
    QCOMPARE(fish.editor.rootIndex(), fish.index(QStringLiteral("Effect")));
    QCOMPARE(fish.editor.currentFishInfo(), fish.info);
    QCOMPARE(drawingText(fish.editor.headSpear()), drawn);
}

void TestFishEditorDocuments::shouldGoOnBelowASubjectAfterAReset()
{
    EditorFixture fish(SampleTrees::deep());
    fish.editor.setRootIndex(fish.index(QStringLiteral("Man")));
    const QStringList drawn = drawingText(fish.editor.headSpear());

    fish.model.refreshModel();

    QCOMPARE(fish.editor.rootIndex(), fish.index(QStringLiteral("Man")));
    QCOMPARE(drawingText(fish.editor.headSpear()), drawn);
}

void TestFishEditorDocuments::shouldShowNothingAfterAReload()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("fish.json"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(QJsonDocument(documentFromText(QStringLiteral("New[Bone]"))).toJson());
    file.close();
    EditorFixture fish(SampleTrees::deep());
    fish.info->setFileName(path);
    fish.editor.expandAll();

    QCOMPARE(fish.model.reloadDataFromFile(path, fish.info), int(MODEL_NO_ERROR));
    expectNothing(fish.editor);
    QCOMPARE(SpearItem::m_refCount, 0);

    // The host shows what was loaded, and edits reach it.
    fish.editor.setRootIndex(fish.model.findFish(path));
    QCOMPARE(spearTreeText(fish.editor.headSpear()), QStringLiteral("New[Bone]"));
    fish.select({QStringLiteral("Bone")});
    fish.editor.appendSubject();
    QCOMPARE(spearTreeText(fish.editor.headSpear()), QStringLiteral("New[Bone,子主题]"));
}

void TestFishEditorDocuments::shouldShowNothingWhenItsDocumentIsEmptied()
{
    FishModel model;
    FishInfo *const info = loadDocument(model, SampleTrees::deep());
    FishEditor editor;
    editor.setModel(&model);
    editor.setRootIndex(model.index(0, 0));
    editor.expandAll();

    info->reset();

    expectNothing(editor);
    useAnEmptyOne(editor);
    expectNothing(editor);
}

void TestFishEditorDocuments::shouldShowNothingWhenItsDocumentLeaves_data()
{
    QTest::addColumn<QString>("root");
    QTest::addColumn<bool>("unload");

    QTest::newRow("head, unloaded") << QStringLiteral("Effect") << true;
    QTest::newRow("head, deleted") << QStringLiteral("Effect") << false;
    QTest::newRow("subject, unloaded") << QStringLiteral("Train") << true;
    QTest::newRow("subject, deleted") << QStringLiteral("Train") << false;
}

void TestFishEditorDocuments::shouldShowNothingWhenItsDocumentLeaves()
{
    QFETCH(QString, root);
    QFETCH(bool, unload);
    EditorFixture fish(SampleTrees::deep());
    loadDocument(fish.model, QStringLiteral("Other[Bone]"));
    fish.editor.setRootIndex(fish.index(root));
    fish.editor.expandAll();
    fish.editor.selectAll();

    if (unload)
        fish.model.unloadFish(fish.info);
    else
        delete fish.info;

    expectNothing(fish.editor);
    QCOMPARE(SpearItem::m_refCount, 0);
    useAnEmptyOne(fish.editor);
    expectNothing(fish.editor);
    fish.editor.setRootIndex(fish.model.index(0, 0));
    QCOMPARE(spearTreeText(fish.editor.headSpear()), QStringLiteral("Other[Bone]"));
}

void TestFishEditorDocuments::shouldStayWhenAnotherDocumentLeaves()
{
    EditorFixture fish(QStringLiteral("First[Bone]"));
    FishInfo *const second = loadDocument(fish.model, SampleTrees::deep());
    fish.editor.setRootIndex(fish.index(QStringLiteral("Effect")));
    fish.editor.expandAll();
    const QStringList drawn = drawingText(fish.editor.headSpear());

    fish.model.unloadFish(fish.info);

    QCOMPARE(fish.editor.rootIndex(), fish.model.index(0, 0));
    QCOMPARE(fish.editor.currentFishInfo(), second);
    fish.editor.updateFish(false);
    QCOMPARE(drawingText(fish.editor.headSpear()), drawn);
}

void TestFishEditorDocuments::shouldNoticeADocumentThatLeftUnannounced()
{
    FishModel model;
    loadDocument(model, SampleTrees::deep());
    FishEditor editor;
    editor.setModel(&model);
    editor.setRootIndex(model.index(0, 0));
    editor.expandAll();

    QVERIFY(model.removeFishFromList(0, 1));
    editor.updateFish(false);

    expectNothing(editor);
    useAnEmptyOne(editor);
}

void TestFishEditorDocuments::shouldShowNothingWhenASubjectAboveItsRootIsRemoved()
{
    EditorFixture fish(SampleTrees::deep());
    fish.editor.setRootIndex(fish.index(QStringLiteral("Train")));

    fish.model.removeRow(2, fish.index(QStringLiteral("Effect")));
    QCOMPARE(spearTreeText(fish.editor.headSpear()), QStringLiteral("Train[Cost]"));
    fish.model.removeRow(0, fish.index(QStringLiteral("Effect")));

    expectNothing(fish.editor);
}

void TestFishEditorDocuments::shouldShowADocumentThatUndoBringsBack()
{
    EditorFixture fish(SampleTrees::deep());
    loadDocument(fish.model, QStringLiteral("Other[Bone]"));
    fish.info->setFileName(QStringLiteral("mine.json"));
    const QPointer<FishInfo> info = fish.info;
    fish.editor.expandAll();
    fish.select({QStringLiteral("Effect"), QStringLiteral("Man"), QStringLiteral("Wear")});

    fish.editor.deleteItem(fish.editor.rootIndex());
    expectNothing(fish.editor);
    QCOMPARE(fish.model.rowCount(), 1);
    QCOMPARE(SpearItem::m_refCount, 0);

    fish.editor.undo();
    QCOMPARE(fish.editor.rootIndex(), fish.model.index(0, 0));
    QCOMPARE(fish.editor.currentFishInfo(), info);
    QVERIFY(info);
    QCOMPARE(info->fileName(), QStringLiteral("mine.json"));
    QCOMPARE(spearTreeText(fish.editor.headSpear()), QStringLiteral("Effect[Man,Machine,Method]"));
}

void TestFishEditorDocuments::shouldShowNothingAgainWhenTheDeletionIsRedone()
{
    EditorFixture fish(SampleTrees::deep());
    fish.editor.deleteItem(fish.editor.rootIndex());
    fish.editor.undo();

    fish.editor.redo();
    expectNothing(fish.editor);
    fish.editor.undo();
    QCOMPARE(spearTreeText(fish.editor.headSpear()), QStringLiteral("Effect[Man,Machine,Method]"));

    // A host that shows something else meanwhile keeps it.
    loadDocument(fish.model, QStringLiteral("Other[Bone]"));
    fish.editor.redo();
    fish.editor.setRootIndex(fish.index(QStringLiteral("Other")));
    fish.editor.undo();
    QCOMPARE(spearTreeText(fish.editor.headSpear()), QStringLiteral("Other[Bone]"));
}

void TestFishEditorDocuments::shouldShowTheSubjectInsertedAboveTheHead()
{
    EditorFixture fish(SampleTrees::deep());
    const QString pid = fish.subject(QStringLiteral("Effect"))->pid();
    fish.select({QStringLiteral("Effect")});

    fish.editor.insertParentSubject();
    QCOMPARE(spearTreeText(fish.editor.headSpear()), QStringLiteral("自由主题[Effect]"));
    QCOMPARE(fish.editor.rootIndex(), fish.model.index(0, 0));
    QCOMPARE(fish.editor.currentFishInfo(), fish.info);

    fish.editor.undo();
    QCOMPARE(spearTreeText(fish.editor.headSpear()), QStringLiteral("Effect[Man,Machine,Method]"));
    QCOMPARE(fish.editor.rootIndex(), fish.model.index(0, 0));
    QCOMPARE(fish.subject(QStringLiteral("Effect"))->pid(), pid);

    fish.editor.redo();
    QCOMPARE(spearTreeText(fish.editor.headSpear()), QStringLiteral("自由主题[Effect]"));
}

void TestFishEditorDocuments::shouldSurviveTheDeathOfItsSpears()
{
    EditorFixture fish(SampleTrees::deep());
    fish.editor.expandAll();

    delete fish.spear(QStringLiteral("Man"));
    fish.editor.updateFish(false);
    QCOMPARE(spearTreeText(fish.editor.headSpear()),
             QStringLiteral("Effect[Machine[Wear],Method]"));

    delete fish.editor.headSpear();
    QVERIFY(!fish.editor.headSpear());
    fish.editor.updateFish(false);
    fish.editor.expandAll();
    fish.editor.showEntire();
    QCOMPARE(SpearItem::m_refCount, 0);

    fish.editor.updateFish(true);
    QCOMPARE(spearTreeText(fish.editor.headSpear()), QStringLiteral("Effect[Man,Machine,Method]"));
    fish.editor.scene()->clear();
    QVERIFY(!fish.editor.headSpear());
    useAnEmptyOne(fish.editor);
}

FISHBONE_TEST(TestFishEditorDocuments)
#include "tst_fisheditor_documents.moc"
