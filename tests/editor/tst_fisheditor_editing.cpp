// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QSignalSpy>
#include <QtTest>

#include <fishbone/items/linkitem.h>
#include <fishbone/items/textitem.h>
#include <fishbone/style/spearstyle.h>
#include <fishbone/style/spearstyledialog.h>
#include <fishbone/undo/undostack.h>
#include <tests/editor/sampletrees.h>
#include <tests/program/testprogram.h>
#include <tests/support/editorfixture.h>
#include <tests/support/modaldriver.h>
#include <tests/support/signalrecorder.h>

using namespace TestSupport;

namespace {

/** The tree of the first document, with "+" for a new subject and "*" for a new head. */
QString marked(const EditorFixture &fixture)
{
    return treeToText(*fixture.model.fishList().at(0)->treeItem()->childAtIndex(0))
        .replace(QStringLiteral("子主题"), QStringLiteral("+"))
        .replace(QStringLiteral("自由主题"), QStringLiteral("*"));
}

using Slot = void (FishEditor::*)();

} // namespace
Q_DECLARE_METATYPE(Slot)

class TestFishEditorEditing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldPushTheCommandOfEachSlot_data();
    void shouldPushTheCommandOfEachSlot();
    void shouldDoNothingWithoutASelection_data();
    void shouldDoNothingWithoutASelection();
    void shouldDoNothingWithoutAModel();
    void shouldInsertAGivenItemBelowAnIndex();
    void shouldRefuseAGivenItemThatIsMissing();
    void shouldAppendAFreeSubjectOutsideTheHistory();
    void shouldEditASubjectOutsideTheHistory();
    void shouldDeleteTheSubjectOfAnIndex();
    void shouldDeleteTheSelection();
    void shouldNotDeleteTheHeadThroughTheSelection();
    void shouldRenameThroughTheModel();
    void shouldRebuildContractedAfterUndoAndRedo();
    void shouldRelayoutWithoutRebuildAfterAnInsertion();
    void shouldTellCopyAvailableOfTheSelection();
    void shouldFindTheSpearOfASelectedText();
    void shouldSelectEverythingVisible();
    void shouldReadTheLinkTextFromTheShowIdColumn();
    void shouldOpenTheLinkText();
    void shouldRemoveALinkAndRefreshItsIcon();
    void shouldMakeAnOwnStyleWhenTheDialogIsAccepted();
    void shouldLeaveTheStyleWhenTheDialogIsCancelled();
    void shouldRemoveTheOwnStyle();
    void shouldKeepTheDocumentOfAHeadThatGetsAParent();
    void shouldShowTheHeadAgainWhenItsDeletionIsUndone();
    void shouldKeepUndoingBeyondTheBoundWhenRolling();
};

void TestFishEditorEditing::shouldPushTheCommandOfEachSlot_data()
{
    QTest::addColumn<Slot>("slot");
    QTest::addColumn<QString>("selected");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("tree");
    const auto row = [](const char *tag, Slot slot, const char *selected, const char *name,
                        const char *tree) {
        QTest::newRow(tag) << slot << QString::fromLatin1(selected) << QString::fromLatin1(name)
                           << QString::fromLatin1(tree);
    };
    row("before", &FishEditor::insertSubject, "B", "Insert subject front",
        "Head[A[A1,A2],+,B[B1],C]");
    row("after", &FishEditor::appendSubject, "B", "Insert subject back",
        "Head[A[A1,A2],B[B1],+,C]");
    row("below", static_cast<Slot>(&FishEditor::insertChildSubject), "B", "Insert child subject",
        "Head[A[A1,A2],B[B1,+],C]");
    row("above", &FishEditor::insertParentSubject, "B", "Insert subject as parent",
        "Head[A[A1,A2],+[B[B1]],C]");
    row("below a leaf", static_cast<Slot>(&FishEditor::insertChildSubject), "C",
        "Insert child subject", "Head[A[A1,A2],B[B1],C[+]]");
    row("below the head", static_cast<Slot>(&FishEditor::insertChildSubject), "Head",
        "Insert child subject", "Head[A[A1,A2],B[B1],C,+]");
    row("delete", &FishEditor::del, "B", "Delete selecteds", "Head[A[A1,A2],C]");
    row("cut", &FishEditor::cut, "A", "Delete selecteds", "Head[B[B1],C]");
}

void TestFishEditorEditing::shouldPushTheCommandOfEachSlot()
{
    QFETCH(Slot, slot);
    QFETCH(QString, selected);
    QFETCH(QString, name);
    QFETCH(QString, tree);
    EditorFixture fixture(SampleTrees::lettered());
    fixture.select({selected});
    (fixture.editor.*slot)();
    QCOMPARE(marked(fixture), tree);
    QCOMPARE(fixture.editor.undoStack()->commandNames(), QStringList{name});
    QVERIFY(fixture.editor.isModified());
    fixture.editor.undo();
    QCOMPARE(marked(fixture), SampleTrees::lettered());
    fixture.editor.redo();
    QCOMPARE(marked(fixture), tree);
}

void TestFishEditorEditing::shouldDoNothingWithoutASelection_data()
{
    QTest::addColumn<Slot>("slot");
    QTest::newRow("before") << Slot(&FishEditor::insertSubject);
    QTest::newRow("after") << Slot(&FishEditor::appendSubject);
    QTest::newRow("below") << Slot(&FishEditor::insertChildSubject);
    QTest::newRow("above") << Slot(&FishEditor::insertParentSubject);
    QTest::newRow("delete") << Slot(&FishEditor::del);
    QTest::newRow("cut") << Slot(&FishEditor::cut);
    QTest::newRow("paste") << Slot(&FishEditor::paste);
    QTest::newRow("link") << Slot(&FishEditor::modifyLink);
    QTest::newRow("unlink") << Slot(&FishEditor::modifyDelLink);
    QTest::newRow("open link") << Slot(&FishEditor::modifyOpenLink);
    QTest::newRow("style") << Slot(&FishEditor::setSpearStyle);
    QTest::newRow("no style") << Slot(&FishEditor::delSpearStyle);
    QTest::newRow("expand") << Slot(&FishEditor::modifyExpand);
    QTest::newRow("contract") << Slot(&FishEditor::modifyContract);
}

void TestFishEditorEditing::shouldDoNothingWithoutASelection()
{
    QFETCH(Slot, slot);
    EditorFixture fixture(SampleTrees::lettered());
    (fixture.editor.*slot)();
    QCOMPARE(marked(fixture), SampleTrees::lettered());
    QVERIFY(fixture.editor.undoStack()->commandNames().isEmpty());
    QVERIFY(!fixture.editor.isModified());
}

void TestFishEditorEditing::shouldDoNothingWithoutAModel()
{
    FishEditor editor;
    TreeItem item;
    editor.insertSubject();
    editor.appendSubject();
    editor.insertChildSubject();
    editor.insertParentSubject();
    editor.insertFreeSubject();
    editor.insertChildSubject(QModelIndex(), &item);
    editor.editSubject(QModelIndex(), &item);
    editor.deleteSubject(QModelIndex());
    editor.renameItem(QModelIndex(), QStringLiteral("X"));
    editor.cut();
    editor.paste();
    editor.selectAll();
    editor.undo();
    editor.redo();
    editor.expandAll();
    editor.showEntire();
    editor.showSelected();
    editor.saveTmpFile();
    QVERIFY(editor.undoStack()->commandNames().isEmpty());
    QVERIFY(!editor.isModified());
}

void TestFishEditorEditing::shouldInsertAGivenItemBelowAnIndex()
{
    EditorFixture fixture(SampleTrees::lettered());
    auto given = std::make_unique<TreeItem>(QStringLiteral("Given"), QStringLiteral("g"), QString(),
                                            QString(), 0);
    TreeItem *const item = given.release();
    fixture.editor.insertChildSubject(fixture.index(QStringLiteral("B")), item);
    QCOMPARE(marked(fixture), QStringLiteral("Head[A[A1,A2],B[B1,Given],C]"));
    fixture.editor.undo();
    QCOMPARE(marked(fixture), SampleTrees::lettered());
    fixture.editor.redo();
    QCOMPARE(fixture.subject(QStringLiteral("Given")), item);
}

void TestFishEditorEditing::shouldRefuseAGivenItemThatIsMissing()
{
    EditorFixture fixture(SampleTrees::lettered());
    fixture.editor.insertChildSubject(fixture.index(QStringLiteral("B")), nullptr);
    QVERIFY(fixture.editor.undoStack()->commandNames().isEmpty());
}

void TestFishEditorEditing::shouldAppendAFreeSubjectOutsideTheHistory()
{
    EditorFixture fixture(SampleTrees::lettered());
    fixture.editor.insertFreeSubject();
    QCOMPARE(fixture.model.rowCount(), 2);
    QCOMPARE(fixture.model.index(1, 0).data().toString(), QStringLiteral("自由主题"));
    QVERIFY(!fixture.editor.canUndo());
    QVERIFY(fixture.editor.isModified());
}

void TestFishEditorEditing::shouldEditASubjectOutsideTheHistory()
{
    EditorFixture fixture(SampleTrees::lettered());
    TreeItem values(QStringLiteral("New"), QString(), QString(), QString(), 0);
    values.setDetail(QStringLiteral("more"));
    fixture.editor.editSubject(fixture.index(QStringLiteral("B")), &values);
    QCOMPARE(marked(fixture), QStringLiteral("Head[A[A1,A2],New[B1],C]"));
    QCOMPARE(fixture.subject(QStringLiteral("New"))->detail(), QStringLiteral("more"));
    QVERIFY(!fixture.editor.canUndo());
    QVERIFY(fixture.editor.isModified());
}

void TestFishEditorEditing::shouldDeleteTheSubjectOfAnIndex()
{
    EditorFixture fixture(SampleTrees::lettered());
    fixture.editor.deleteSubject(fixture.index(QStringLiteral("A")));
    QCOMPARE(marked(fixture), QStringLiteral("Head[B[B1],C]"));
    QCOMPARE(fixture.editor.undoStack()->commandNames(),
             QStringList{QStringLiteral("Delete current selected")});
    fixture.editor.undo();
    QCOMPARE(marked(fixture), SampleTrees::lettered());
}

void TestFishEditorEditing::shouldDeleteTheSelection()
{
    EditorFixture fixture(SampleTrees::lettered());
    fixture.editor.expandAll();
    fixture.select({QStringLiteral("A"), QStringLiteral("A2"), QStringLiteral("C")});
    fixture.editor.del();
    QCOMPARE(marked(fixture), QStringLiteral("Head[B[B1]]"));
    fixture.editor.undo();
    QCOMPARE(marked(fixture), SampleTrees::lettered());
}

void TestFishEditorEditing::shouldNotDeleteTheHeadThroughTheSelection()
{
    EditorFixture fixture(SampleTrees::lettered());
    fixture.select({QStringLiteral("Head")});
    fixture.editor.del();
    QCOMPARE(marked(fixture), SampleTrees::lettered());
    QVERIFY(!fixture.editor.canUndo());
}

void TestFishEditorEditing::shouldRenameThroughTheModel()
{
    EditorFixture fixture(SampleTrees::lettered());
    QSignalSpy changes(&fixture.model, &FishModel::dataChanged);
    fixture.editor.renameItem(fixture.index(QStringLiteral("B")), QStringLiteral("Renamed"));
    QCOMPARE(changes.count(), 1);
    QCOMPARE(fixture.spear(QStringLiteral("Renamed"))->text(), QStringLiteral("Renamed"));
    QVERIFY(fixture.editor.isModified());
    fixture.editor.undo();
    QCOMPARE(marked(fixture), SampleTrees::lettered());
}

void TestFishEditorEditing::shouldRebuildContractedAfterUndoAndRedo()
{
    EditorFixture fixture(SampleTrees::lettered());
    fixture.select({QStringLiteral("C")});
    fixture.editor.appendSubject();
    fixture.editor.expandAll();
    fixture.editor.undo();
    QVERIFY(!fixture.spear(QStringLiteral("A"))->isExpand());
    QVERIFY(!fixture.spear(QStringLiteral("A1")));
    fixture.editor.expandAll();
    fixture.editor.redo();
    QVERIFY(!fixture.spear(QStringLiteral("A"))->isExpand());
}

void TestFishEditorEditing::shouldRelayoutWithoutRebuildAfterAnInsertion()
{
    EditorFixture fixture(SampleTrees::lettered());
    fixture.editor.expandAll();
    SpearItem *const kept = fixture.spear(QStringLiteral("A"));
    fixture.select({QStringLiteral("B")});
    fixture.editor.insertSubject();
    QCOMPARE(fixture.spear(QStringLiteral("A")), kept);
    QVERIFY(kept->isExpand());
    const QList<SpearItem *> bones = fixture.editor.headSpear()->childSpears();
    QCOMPARE(bones.count(), 4);
    QCOMPARE(bones.at(1)->text(), QStringLiteral("子主题"));
    QCOMPARE(bones.at(1)->direction(), -1);
    QCOMPARE(bones.at(2)->direction(), 1);
}

void TestFishEditorEditing::shouldTellCopyAvailableOfTheSelection()
{
    EditorFixture fixture(SampleTrees::lettered());
    SignalRecorder recorder(fixture.editor);
    fixture.spear(QStringLiteral("A"))->setSelected(true);
    QVERIFY(fixture.editor.hasSelection());
    fixture.editor.scene()->clearSelection();
    QCOMPARE(recorder.take(), QStringLiteral("copyAvailable(true), copyAvailable(false)"));
    QVERIFY(!fixture.editor.hasSelection());
}

void TestFishEditorEditing::shouldFindTheSpearOfASelectedText()
{
    EditorFixture fixture(SampleTrees::lettered());
    SpearItem *const spear = fixture.spear(QStringLiteral("B"));
    spear->textItem()->setFlag(QGraphicsItem::ItemIsSelectable);
    spear->textItem()->setSelected(true);
    QCOMPARE(fixture.editor.firstSelectedSpear(), spear);
    QCOMPARE(fixture.editor.firstSelectedSpearIndex(), fixture.index(QStringLiteral("B")));
}

void TestFishEditorEditing::shouldSelectEverythingVisible()
{
    EditorFixture fixture(SampleTrees::lettered());
    QSignalSpy changes(fixture.editor.scene(), &QGraphicsScene::selectionChanged);
    fixture.editor.selectAll();
    QCOMPARE(fixture.editor.selectedItems().count(), 4);
    QCOMPARE(changes.count(), 1);
}

void TestFishEditorEditing::shouldReadTheLinkTextFromTheShowIdColumn()
{
    EditorFixture fixture(SampleTrees::lettered());
    fixture.subject(QStringLiteral("B"))->setShowid(QStringLiteral("T-7"));
    fixture.subject(QStringLiteral("B"))->setUrl(QStringLiteral("https://example.org"));
    QCOMPARE(fixture.editor.currItemUrl(), QString());
    fixture.select({QStringLiteral("B")});
    QCOMPARE(fixture.editor.currItemUrl(), QStringLiteral("T-7"));
}

void TestFishEditorEditing::shouldOpenTheLinkText()
{
    QList<QUrl> opened;
    LinkItem::setOpener([&opened](const QUrl &url) { opened.append(url); });
    EditorFixture fixture(SampleTrees::lettered());
    fixture.select({QStringLiteral("B")});
    fixture.editor.modifyOpenLink();
    QVERIFY(opened.isEmpty());
    fixture.subject(QStringLiteral("B"))->setShowid(QStringLiteral("https://example.org/b"));
    fixture.editor.modifyOpenLink();
    QCOMPARE(opened, QList<QUrl>{QUrl(QStringLiteral("https://example.org/b"))});
    LinkItem::setOpener({});
}

void TestFishEditorEditing::shouldRemoveALinkAndRefreshItsIcon()
{
    EditorFixture fixture(SampleTrees::lettered());
    fixture.subject(QStringLiteral("B"))->setUrl(QStringLiteral("https://example.org"));
    fixture.editor.updateFish(false);
    QVERIFY(fixture.spear(QStringLiteral("B"))->linkItem());
    fixture.select({QStringLiteral("B")});
    fixture.editor.modifyDelLink();
    QCOMPARE(fixture.subject(QStringLiteral("B"))->url(), QString());
    QVERIFY(!fixture.spear(QStringLiteral("B"))->linkItem());
    fixture.editor.undo();
    QCOMPARE(fixture.subject(QStringLiteral("B"))->url(), QStringLiteral("https://example.org"));
    QVERIFY(fixture.spear(QStringLiteral("B"))->linkItem());
}

void TestFishEditorEditing::shouldMakeAnOwnStyleWhenTheDialogIsAccepted()
{
    EditorFixture fixture(SampleTrees::lettered());
    fixture.select({QStringLiteral("B")});
    ModalDriver<SpearStyleDialog> user([](SpearStyleDialog &dialog) { dialog.accept(); });
    fixture.editor.setSpearStyle();
    QVERIFY(user.isDone());
    QVERIFY(fixture.subject(QStringLiteral("B"))->spearStyle());
    QVERIFY(!fixture.editor.isModified());
    QVERIFY(!fixture.editor.canUndo());
}

void TestFishEditorEditing::shouldLeaveTheStyleWhenTheDialogIsCancelled()
{
    EditorFixture fixture(SampleTrees::lettered());
    fixture.select({QStringLiteral("B")});
    ModalDriver<SpearStyleDialog> user([](SpearStyleDialog &dialog) { dialog.reject(); });
    fixture.editor.setSpearStyle();
    QVERIFY(user.isDone());
    QVERIFY(!fixture.subject(QStringLiteral("B"))->spearStyle());
}

void TestFishEditorEditing::shouldRemoveTheOwnStyle()
{
    EditorFixture fixture(SampleTrees::lettered());
    const QJsonObject style{{QStringLiteral("textCount"), 1}};
    fixture.subject(QStringLiteral("B"))->setSpearStyle(style);
    fixture.editor.updateFish(false);
    fixture.select({QStringLiteral("B")});
    fixture.editor.delSpearStyle();
    QVERIFY(!fixture.subject(QStringLiteral("B"))->spearStyle());
    QVERIFY(!fixture.editor.isModified());
}

void TestFishEditorEditing::shouldKeepTheDocumentOfAHeadThatGetsAParent()
{
    EditorFixture fixture(SampleTrees::lettered());
    const QString pid = fixture.subject(QStringLiteral("Head"))->pid();
    fixture.select({QStringLiteral("Head")});
    fixture.editor.insertParentSubject();
    QCOMPARE(marked(fixture), QStringLiteral("*[Head[A[A1,A2],B[B1],C]]"));
    QCOMPARE(fixture.model.fishList(), QList<FishInfo *>{fixture.info});
    QCOMPARE(fixture.editor.rootIndex(), fixture.model.index(0, 0));
    QCOMPARE(fixture.editor.headSpear()->text(), QStringLiteral("自由主题"));
    fixture.editor.undo();
    QCOMPARE(marked(fixture), SampleTrees::lettered());
    QCOMPARE(fixture.editor.headSpear()->text(), QStringLiteral("Head"));
    QCOMPARE(fixture.editor.rootIndex(), fixture.model.index(0, 0));
    QCOMPARE(fixture.subject(QStringLiteral("Head"))->pid(), pid);
}

void TestFishEditorEditing::shouldShowTheHeadAgainWhenItsDeletionIsUndone()
{
    EditorFixture fixture(SampleTrees::lettered());
    fixture.info->setFileName(QStringLiteral("kept.json"));
    fixture.editor.deleteItem(fixture.editor.rootIndex());
    QCOMPARE(fixture.model.rowCount(), 0);
    QVERIFY(!fixture.editor.headSpear());
    QVERIFY(fixture.editor.scene()->items().isEmpty());
    fixture.editor.undo();
    QCOMPARE(marked(fixture), SampleTrees::lettered());
    QCOMPARE(fixture.model.fishList(), QList<FishInfo *>{fixture.info});
    QCOMPARE(fixture.info->fileName(), QStringLiteral("kept.json"));
    QVERIFY(fixture.editor.headSpear());
    QCOMPARE(fixture.editor.headSpear()->text(), QStringLiteral("Head"));
}

void TestFishEditorEditing::shouldKeepUndoingBeyondTheBoundWhenRolling()
{
    EditorFixture fixture(SampleTrees::lettered());
    fixture.editor.undoStack()->setRolling(true);
    const QPersistentModelIndex head = fixture.model.index(0, 0);
    for (int i = 0; i < 120; ++i) {
        fixture.select({QStringLiteral("C")});
        fixture.editor.appendSubject();
    }
    QCOMPARE(fixture.model.rowCount(head), 123);
    int undone = 0;
    while (fixture.editor.canUndo()) {
        fixture.editor.undo();
        ++undone;
    }
    QCOMPARE(undone, 99);
    QCOMPARE(fixture.model.rowCount(head), 24);
}

FISHBONE_TEST(TestFishEditorEditing)
#include "tst_fisheditor_editing.moc"
