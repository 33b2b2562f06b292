// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QMimeData>
#include <QtTest>

#include <fishbone/undo/undostack.h>
#include <tests/editor/sampletrees.h>
#include <tests/program/testprogram.h>
#include <tests/support/editorfixture.h>
#include <tests/support/signalrecorder.h>

using namespace TestSupport;

namespace {

using SampleTrees::treeOf;
} // namespace

class TestFishEditorClipboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldStartWithAnEmptyBuffer();
    void shouldCopyNothingOfTheHeadAlone();
    void shouldSkipItemsThatAreNotThere();
    void shouldCopyOneSubjectAsItsNodeObject();
    void shouldCopyAParentWithItsSelectedChildOnce();
    void shouldCopySeveralInDocumentOrder();
    void shouldPasteManyTimesFromOneCopy();
    void shouldPasteUuidsAsTheyAreUnlessToldOtherwise();
    void shouldGivePastedSubjectsUuidsOfTheirOwn();
    void shouldPasteBackWhatWasCut();
    void shouldEmptyTheBufferWhenNothingUsableIsSelected();
    void shouldKeepTheBufferAcrossAChangeOfTheDiagram();
    void shouldGiveCopiedSubjectsAUuid();
    void shouldReadTheLastRecordOfAPayload();
    void shouldRefuseForeignPayloads();
    void shouldLeaveThePlaceholdersWithoutEffect();
};

void TestFishEditorClipboard::shouldStartWithAnEmptyBuffer()
{
    EditorFixture fixture(SampleTrees::lettered());
    QVERIFY(!fixture.editor.hasClipBoardData());
    fixture.select({QStringLiteral("A")});
    fixture.editor.paste();
    QCOMPARE(treeOf(fixture), SampleTrees::lettered());
}

void TestFishEditorClipboard::shouldCopyNothingOfTheHeadAlone()
{
    EditorFixture fixture(SampleTrees::lettered());
    fixture.select({QStringLiteral("Head")});
    SignalRecorder recorder(fixture.editor);
    fixture.editor.copy();
    QCOMPARE(recorder.take(), QStringLiteral("clipBoardAvailable(false)"));
    QVERIFY(!fixture.editor.hasClipBoardData());
}

void TestFishEditorClipboard::shouldSkipItemsThatAreNotThere()
{
    EditorFixture fixture(SampleTrees::lettered());
    QList<QGraphicsItem *> items{nullptr, fixture.spear(QStringLiteral("A")), nullptr};
    QJsonObject copied;
    fixture.editor.saveObjects(copied, items);
    QCOMPARE(copied.value(QStringLiteral("title")), QJsonValue(QStringLiteral("A")));
    FishEditor::excludeChildSubject(items);
    QCOMPARE(items.size(), 3);
    FishEditor::excludeCenterSubject(items);
    QCOMPARE(items, QList<QGraphicsItem *>{fixture.spear(QStringLiteral("A"))});
}

void TestFishEditorClipboard::shouldCopyOneSubjectAsItsNodeObject()
{
    EditorFixture fixture(SampleTrees::lettered());
    fixture.select({QStringLiteral("A")});
    QJsonObject copied;
    fixture.editor.selectedObjects(copied);
    QJsonObject expected;
    FishModel::write(expected, fixture.subject(QStringLiteral("A")), true);
    QCOMPARE(copied, expected);
    SignalRecorder recorder(fixture.editor);
    fixture.editor.copy();
    QCOMPARE(recorder.take(), QStringLiteral("clipBoardAvailable(true)"));
}

void TestFishEditorClipboard::shouldCopyAParentWithItsSelectedChildOnce()
{
    EditorFixture fixture(SampleTrees::lettered());
    fixture.editor.expandAll();
    fixture.select({QStringLiteral("A2"), QStringLiteral("A")});
    QJsonObject copied;
    fixture.editor.selectedObjects(copied);
    QCOMPARE(copied.value(QStringLiteral("title")).toString(), QStringLiteral("A"));
    QCOMPARE(copied.value(QStringLiteral("children")).toArray().count(), 2);
}

void TestFishEditorClipboard::shouldCopySeveralInDocumentOrder()
{
    EditorFixture fixture(SampleTrees::lettered());
    fixture.editor.expandAll();
    fixture.select({QStringLiteral("C"), QStringLiteral("B"), QStringLiteral("A1")});
    QJsonObject copied;
    fixture.editor.selectedObjects(copied);
    QCOMPARE(copied.keys(), QStringList{QStringLiteral("children")});
    QStringList titles;
    const QJsonArray children = copied.value(QStringLiteral("children")).toArray();
    for (const QJsonValue &child : children)
        titles.append(child.toObject().value(QStringLiteral("title")).toString());
    QCOMPARE(titles.join(QLatin1Char(' ')), QStringLiteral("A1 B C"));
}

void TestFishEditorClipboard::shouldPasteManyTimesFromOneCopy()
{
    EditorFixture fixture(SampleTrees::lettered());
    fixture.select({QStringLiteral("B")});
    fixture.editor.copy();
    fixture.editor.pasteItem(fixture.index(QStringLiteral("C")));
    fixture.editor.pasteItem(fixture.index(QStringLiteral("C")));
    QCOMPARE(treeOf(fixture), QStringLiteral("Head[A[A1,A2],B[B1],C[B[B1],B[B1]]]"));
    QVERIFY(fixture.editor.isModified());
    fixture.editor.undo();
    fixture.editor.undo();
    QCOMPARE(treeOf(fixture), SampleTrees::lettered());
}

void TestFishEditorClipboard::shouldPasteUuidsAsTheyAreUnlessToldOtherwise()
{
    EditorFixture fixture(SampleTrees::lettered());
    fixture.select({QStringLiteral("B")});
    fixture.editor.copy();
    fixture.editor.pasteItem(fixture.index(QStringLiteral("C")));
    const TreeItem *const pasted = fixture.subject(QStringLiteral("C"))->childAtIndex(0);
    QCOMPARE(pasted->uuid(), QStringLiteral("u-B"));
    QCOMPARE(pasted->childAtIndex(0)->pid(), QStringLiteral("u-B"));
}

void TestFishEditorClipboard::shouldGivePastedSubjectsUuidsOfTheirOwn()
{
    EditorFixture fixture(SampleTrees::lettered());
    fixture.editor.setPasteAsNew(true);
    fixture.select({QStringLiteral("B")});
    fixture.editor.copy();
    fixture.editor.pasteItem(fixture.index(QStringLiteral("C")));
    const TreeItem *const pasted = fixture.subject(QStringLiteral("C"))->childAtIndex(0);
    QVERIFY(pasted->uuid() != QStringLiteral("u-B"));
    QCOMPARE(pasted->uuid().length(), 38);
    QCOMPARE(pasted->childAtIndex(0)->pid(), pasted->uuid());
    QVERIFY(pasted->childAtIndex(0)->uuid() != QStringLiteral("u-B1"));
    fixture.editor.undo();
    QCOMPARE(treeOf(fixture), SampleTrees::lettered());
}

void TestFishEditorClipboard::shouldPasteBackWhatWasCut()
{
    EditorFixture fixture(SampleTrees::lettered());
    fixture.select({QStringLiteral("A"), QStringLiteral("C")});
    SignalRecorder recorder(fixture.editor, {QStringLiteral("clipBoardAvailable")});
    fixture.editor.cut();
    QCOMPARE(recorder.take(), QStringLiteral("clipBoardAvailable(true)"));
    QCOMPARE(treeOf(fixture), QStringLiteral("Head[B[B1]]"));
    fixture.editor.pasteItem(fixture.editor.rootIndex());
    QCOMPARE(treeOf(fixture), QStringLiteral("Head[B[B1],A[A1,A2],C]"));
    fixture.editor.undo();
    fixture.editor.undo();
    QCOMPARE(treeOf(fixture), SampleTrees::lettered());
}

void TestFishEditorClipboard::shouldEmptyTheBufferWhenNothingUsableIsSelected()
{
    EditorFixture fixture(SampleTrees::lettered());
    fixture.select({QStringLiteral("A")});
    fixture.editor.copy();
    fixture.editor.scene()->clearSelection();
    fixture.editor.copy();
    QVERIFY(!fixture.editor.hasClipBoardData());
}

void TestFishEditorClipboard::shouldKeepTheBufferAcrossAChangeOfTheDiagram()
{
    EditorFixture fixture(SampleTrees::lettered());
    loadDocument(fixture.model, QStringLiteral("Other[X]"));
    fixture.select({QStringLiteral("B")});
    fixture.editor.copy();
    fixture.editor.setRootIndex(fixture.model.index(1, 0));
    fixture.editor.pasteItem(fixture.index(QStringLiteral("X")));
    QCOMPARE(treeToText(fixture.model, fixture.model.index(1, 0)),
             QStringLiteral("Other[X[B[B1]]]"));
}

void TestFishEditorClipboard::shouldGiveCopiedSubjectsAUuid()
{
    QJsonObject anonymous = documentFromText(QStringLiteral("Head[A]"));
    QJsonObject child = anonymous.value(QStringLiteral("children")).toArray().at(0).toObject();
    child.remove(QStringLiteral("uuid"));
    anonymous.insert(QStringLiteral("children"), QJsonArray{child});
    EditorFixture fixture(anonymous);
    QCOMPARE(fixture.subject(QStringLiteral("A"))->uuid(), QString());
    fixture.select({QStringLiteral("A")});
    fixture.editor.copy();
    QCOMPARE(fixture.subject(QStringLiteral("A"))->uuid().length(), 38);
    QVERIFY(!fixture.editor.isModified());
}

void TestFishEditorClipboard::shouldReadTheLastRecordOfAPayload()
{
    EditorFixture fixture(SampleTrees::lettered());
    const std::unique_ptr<QMimeData> data(fixture.model.mimeData(
        {fixture.index(QStringLiteral("A")), fixture.index(QStringLiteral("B1"))}));
    QCOMPARE(fixture.editor.treeItemFromMimeData(data.get()),
             fixture.subject(QStringLiteral("B1")));
}

void TestFishEditorClipboard::shouldRefuseForeignPayloads()
{
    EditorFixture fixture(SampleTrees::lettered());
    EditorFixture other(SampleTrees::lettered());
    const std::unique_ptr<QMimeData> foreign(
        other.model.mimeData({other.index(QStringLiteral("A"))}));
    QCOMPARE(fixture.editor.treeItemFromMimeData(foreign.get()), nullptr);
    QMimeData text;
    text.setText(QStringLiteral("A;"));
    QCOMPARE(fixture.editor.treeItemFromMimeData(&text), nullptr);
    QMimeData garbage;
    garbage.setData(QStringLiteral("QModelIndexList"), QByteArray(16, '\x7f'));
    QCOMPARE(fixture.editor.treeItemFromMimeData(&garbage), nullptr);
    QCOMPARE(fixture.editor.treeItemFromMimeData(nullptr), nullptr);
}

void TestFishEditorClipboard::shouldLeaveThePlaceholdersWithoutEffect()
{
    EditorFixture fixture(SampleTrees::lettered());
    fixture.editor.insertItem(fixture.index(QStringLiteral("A")), &fixture.model,
                              fixture.index(QStringLiteral("B")));
    QVERIFY(!fixture.editor.pasteItemFromClipBoard());
    QCOMPARE(treeOf(fixture), SampleTrees::lettered());
}

FISHBONE_TEST(TestFishEditorClipboard)
#include "tst_fisheditor_clipboard.moc"
