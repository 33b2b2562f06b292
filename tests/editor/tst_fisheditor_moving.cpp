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
QList<QGraphicsItem *> items(const EditorFixture &fixture, const QStringList &titles)
{
    QList<QGraphicsItem *> found;
    for (const QString &title : titles)
        found.append(fixture.spear(title));
    return found;
}

} // namespace

class TestFishEditorMoving : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldMoveSubjectsUndoably();
    void shouldReportANewParentInTaskModeOnly_data();
    void shouldReportANewParentInTaskModeOnly();
    void shouldReportSubjectsInTheOrderOfTheSnapshot();
    void shouldRefuseAMoveWithAnImmovableSubject();
    void shouldRefuseAMoveWithoutATarget();
    void shouldRefuseAMoveIntoTheMovedSubtree_data();
    void shouldRefuseAMoveIntoTheMovedSubtree();
    void shouldPutItemsBackAfterARefusal();
    void shouldNotMoveTheHead();
    void shouldApplyADropOutsideTheHistory();
    void shouldMoveOnlyTheLastRowOfADrop();
    void shouldMakeSpearsForADroppedSubjectThatHadNone();
    void shouldMakeAllSpearsBelowABoneThatHadNone();
    void shouldIgnoreADropOfForeignData();
    void shouldIgnoreADropOntoTheDroppedSubtree_data();
    void shouldIgnoreADropOntoTheDroppedSubtree();
    void shouldIgnoreADropWithoutATargetOrModel();
    void shouldIgnoreADropOnASubjectThatIsGone();
    void shouldFollowTheTargetOfADropToItsPlace();
};

void TestFishEditorMoving::shouldMoveSubjectsUndoably()
{
    EditorFixture fixture(SampleTrees::lettered());
    fixture.editor.expandAll();
    fixture.editor.moveItems({}, items(fixture, {QStringLiteral("B1")}),
                             fixture.index(QStringLiteral("A")), 1);
    QCOMPARE(treeOf(fixture), QStringLiteral("Head[A[A1,B1,A2],B,C]"));
    QCOMPARE(fixture.subject(QStringLiteral("B1"))->pid(), QStringLiteral("u-A"));
    QVERIFY(fixture.editor.isModified());
    QCOMPARE(fixture.editor.undoStack()->commandNames(),
             QStringList{QStringLiteral("Move subjects")});
    QCOMPARE(fixture.spear(QStringLiteral("A"))->childSpears().at(1)->text(), QStringLiteral("B1"));
    QVERIFY(!fixture.spear(QStringLiteral("B"))->expandBuddy());
    fixture.editor.undo();
    QCOMPARE(treeOf(fixture), SampleTrees::lettered());
    QCOMPARE(fixture.subject(QStringLiteral("B1"))->pid(), QStringLiteral("u-B"));
}

void TestFishEditorMoving::shouldReportANewParentInTaskModeOnly_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("report");
    QTest::newRow("task mode") << int(FISH_MODEL_NORMAL)
                               << QStringLiteral("changeTaskParent([u-C], u-A, 1)");
    QTest::newRow("diagram mode") << int(FISH_MODEL_DIAGRAM) << QString();
}

void TestFishEditorMoving::shouldReportANewParentInTaskModeOnly()
{
    QFETCH(int, type);
    QFETCH(QString, report);
    EditorFixture fixture(SampleTrees::lettered());
    fixture.model.setModelType(FISH_MODEL_TYPE(type));
    SignalRecorder recorder(fixture.editor, {QStringLiteral("changeTaskParent")});
    fixture.editor.moveItems({}, items(fixture, {QStringLiteral("C")}),
                             fixture.index(QStringLiteral("A")), 0);
    QCOMPARE(recorder.take(), report);
}

void TestFishEditorMoving::shouldReportSubjectsInTheOrderOfTheSnapshot()
{
    EditorFixture fixture(SampleTrees::lettered());
    fixture.model.setModelType(FISH_MODEL_NORMAL);
    fixture.editor.expandAll();
    SignalRecorder recorder(fixture.editor, {QStringLiteral("changeTaskParent")});
    fixture.editor.moveItems(
        {}, items(fixture, {QStringLiteral("C"), QStringLiteral("A1"), QStringLiteral("A2")}),
        fixture.index(QStringLiteral("B")), 0);
    QCOMPARE(recorder.take(), QStringLiteral("changeTaskParent([u-C, u-A1, u-A2], u-B, 1)"));
}

void TestFishEditorMoving::shouldRefuseAMoveWithAnImmovableSubject()
{
    EditorFixture fixture(SampleTrees::lettered());
    fixture.model.setModelType(FISH_MODEL_NORMAL);
    fixture.subject(QStringLiteral("C"))->setSpearItemIsMovable(false);
    SignalRecorder recorder(fixture.editor);
    fixture.editor.moveItems({}, items(fixture, {QStringLiteral("B"), QStringLiteral("C")}),
                             fixture.index(QStringLiteral("A")), 0);
    QCOMPARE(treeOf(fixture), SampleTrees::lettered());
    QCOMPARE(recorder.take(), QString());
    QVERIFY(!fixture.editor.canUndo());
    QVERIFY(!fixture.editor.isModified());
}

void TestFishEditorMoving::shouldRefuseAMoveWithoutATarget()
{
    EditorFixture fixture(SampleTrees::lettered());
    fixture.editor.moveItems({}, items(fixture, {QStringLiteral("B")}), QModelIndex(), 0);
    QCOMPARE(treeOf(fixture), SampleTrees::lettered());
    QVERIFY(!fixture.editor.canUndo());
}

void TestFishEditorMoving::shouldRefuseAMoveIntoTheMovedSubtree_data()
{
    QTest::addColumn<QString>("target");
    QTest::newRow("itself") << QStringLiteral("A");
    QTest::newRow("below itself") << QStringLiteral("A2");
}

void TestFishEditorMoving::shouldRefuseAMoveIntoTheMovedSubtree()
{
    QFETCH(QString, target);
    EditorFixture fixture(SampleTrees::lettered());
    fixture.model.setModelType(FISH_MODEL_NORMAL);
    SignalRecorder recorder(fixture.editor);
    fixture.editor.moveItems({}, items(fixture, {QStringLiteral("A")}), fixture.index(target), 0);
    QCOMPARE(treeOf(fixture), SampleTrees::lettered());
    QCOMPARE(recorder.take(), QString());
    QVERIFY(!fixture.editor.canUndo());
    QVERIFY(!fixture.editor.isModified());
}

void TestFishEditorMoving::shouldPutItemsBackAfterARefusal()
{
    EditorFixture fixture(SampleTrees::lettered());
    SpearItem *const dragged = fixture.spear(QStringLiteral("B"));
    const QLineF line = dragged->line();
    dragged->setPos(40, 70);
    fixture.editor.moveItems({}, {dragged}, QModelIndex(), 0);
    QCOMPARE(dragged->pos(), QPointF(0, 0));
    QCOMPARE(dragged->line(), line);
}

void TestFishEditorMoving::shouldNotMoveTheHead()
{
    EditorFixture fixture(SampleTrees::lettered());
    loadDocument(fixture.model, QStringLiteral("Other"));
    fixture.editor.moveItems({}, {fixture.editor.headSpear()},
                             fixture.index(QStringLiteral("Other")), 0);
    QCOMPARE(fixture.model.rowCount(), 2);
    QVERIFY(!fixture.editor.canUndo());
}

void TestFishEditorMoving::shouldApplyADropOutsideTheHistory()
{
    EditorFixture fixture(SampleTrees::lettered());
    fixture.model.setModelType(FISH_MODEL_NORMAL);
    SignalRecorder recorder(fixture.editor, {QStringLiteral("changeTaskParent")});
    const std::unique_ptr<QMimeData> data(
        fixture.model.mimeData({fixture.index(QStringLiteral("C"))}));
    fixture.editor.onDropTo(data.get(), fixture.index(QStringLiteral("B")), 0);
    QCOMPARE(treeOf(fixture), QStringLiteral("Head[A[A1,A2],B[C,B1]]"));
    QCOMPARE(recorder.take(), QStringLiteral("changeTaskParent([u-C], u-B, 0)"));
    QVERIFY(!fixture.editor.canUndo());
    QVERIFY(fixture.editor.isModified());
}

void TestFishEditorMoving::shouldMoveOnlyTheLastRowOfADrop()
{
    EditorFixture fixture(SampleTrees::lettered());
    const std::unique_ptr<QMimeData> data(fixture.model.mimeData(
        {fixture.index(QStringLiteral("A1")), fixture.index(QStringLiteral("A2")),
         fixture.index(QStringLiteral("B1"))}));
    fixture.editor.onDropTo(data.get(), fixture.index(QStringLiteral("C")), 0);
    QCOMPARE(treeOf(fixture), QStringLiteral("Head[A[A1,A2],B,C[B1]]"));
}

void TestFishEditorMoving::shouldMakeSpearsForADroppedSubjectThatHadNone()
{
    EditorFixture fixture(QStringLiteral("Head[A[A1[Deep[Deeper]]],C]"));
    QVERIFY(!fixture.spear(QStringLiteral("A1")));
    const std::unique_ptr<QMimeData> data(
        fixture.model.mimeData({fixture.index(QStringLiteral("A1"))}));
    fixture.editor.onDropTo(data.get(), fixture.index(QStringLiteral("C")), 0);
    QCOMPARE(treeOf(fixture), QStringLiteral("Head[A,C[A1[Deep[Deeper]]]]"));
    SpearItem *const moved = fixture.spear(QStringLiteral("A1"));
    QVERIFY(moved);
    QCOMPARE(moved->parentItem(), fixture.spear(QStringLiteral("C")));
    QVERIFY(fixture.spear(QStringLiteral("Deeper")));
    QCOMPARE(moved->modelIndex(), fixture.index(QStringLiteral("A1")));
}

void TestFishEditorMoving::shouldMakeAllSpearsBelowABoneThatHadNone()
{
    EditorFixture fixture(SampleTrees::lettered());
    QVERIFY(!fixture.spear(QStringLiteral("A1")));
    fixture.editor.moveItems({}, items(fixture, {QStringLiteral("C")}),
                             fixture.index(QStringLiteral("A")), 1);
    QCOMPARE(treeOf(fixture), QStringLiteral("Head[A[A1,C,A2],B[B1]]"));
    const QList<SpearItem *> children = fixture.spear(QStringLiteral("A"))->childSpears();
    QCOMPARE(children.count(), 3);
    QCOMPARE(children.at(0)->text(), QStringLiteral("A1"));
    QCOMPARE(children.at(1)->text(), QStringLiteral("C"));
    QCOMPARE(children.at(2)->text(), QStringLiteral("A2"));
}

void TestFishEditorMoving::shouldIgnoreADropOfForeignData()
{
    EditorFixture fixture(SampleTrees::lettered());
    EditorFixture other(SampleTrees::lettered());
    const std::unique_ptr<QMimeData> foreign(
        other.model.mimeData({other.index(QStringLiteral("A"))}));
    fixture.editor.onDropTo(foreign.get(), fixture.index(QStringLiteral("B")), 0);
    QMimeData text;
    text.setText(QStringLiteral("C;"));
    fixture.editor.onDropTo(&text, fixture.index(QStringLiteral("B")), 0);
    fixture.editor.onDropTo(nullptr, fixture.index(QStringLiteral("B")), 0);
    QCOMPARE(treeOf(fixture), SampleTrees::lettered());
    QVERIFY(!fixture.editor.isModified());
}

void TestFishEditorMoving::shouldIgnoreADropOntoTheDroppedSubtree_data()
{
    shouldRefuseAMoveIntoTheMovedSubtree_data();
}

void TestFishEditorMoving::shouldIgnoreADropOntoTheDroppedSubtree()
{
    QFETCH(QString, target);
    EditorFixture fixture(SampleTrees::lettered());
    fixture.model.setModelType(FISH_MODEL_NORMAL);
    SignalRecorder recorder(fixture.editor);
    const std::unique_ptr<QMimeData> data(
        fixture.model.mimeData({fixture.index(QStringLiteral("A"))}));
    fixture.editor.onDropTo(data.get(), fixture.index(target), 0);
    QCOMPARE(treeOf(fixture), SampleTrees::lettered());
    QCOMPARE(recorder.take(), QString());
    QVERIFY(!fixture.editor.isModified());
}

void TestFishEditorMoving::shouldIgnoreADropWithoutATargetOrModel()
{
    EditorFixture fixture(SampleTrees::lettered());
    const std::unique_ptr<QMimeData> data(
        fixture.model.mimeData({fixture.index(QStringLiteral("A"))}));
    fixture.editor.onDropTo(data.get(), QModelIndex(), 0);
    QCOMPARE(treeOf(fixture), SampleTrees::lettered());
    FishEditor empty;
    empty.onDropTo(data.get(), fixture.index(QStringLiteral("B")), 0);
    QCOMPARE(treeOf(fixture), SampleTrees::lettered());
}

void TestFishEditorMoving::shouldIgnoreADropOnASubjectThatIsGone()
{
    EditorFixture fixture(SampleTrees::lettered());
    const std::unique_ptr<QMimeData> data(
        fixture.model.mimeData({fixture.index(QStringLiteral("C"))}));
    Q_EMIT fixture.editor.view()->dropTo(data.get(), fixture.index(QStringLiteral("B")), 0);
    fixture.model.removeRows(1, 1, fixture.editor.rootIndex());
    fixture.info->setModified(false);

    QCoreApplication::processEvents();

    QCOMPARE(fixture.model.rowCount(), 1);
    QCOMPARE(treeOf(fixture), QStringLiteral("Head[A[A1,A2],C]"));
    QVERIFY(!fixture.editor.isModified());
}

void TestFishEditorMoving::shouldFollowTheTargetOfADropToItsPlace()
{
    EditorFixture fixture(SampleTrees::lettered());
    fixture.model.setModelType(FISH_MODEL_NORMAL);
    SignalRecorder recorder(fixture.editor, {QStringLiteral("changeTaskParent")});
    const std::unique_ptr<QMimeData> data(
        fixture.model.mimeData({fixture.index(QStringLiteral("C"))}));
    Q_EMIT fixture.editor.view()->dropTo(data.get(), fixture.index(QStringLiteral("B")), 0);
    fixture.model.removeRows(0, 1, fixture.editor.rootIndex());

    QCoreApplication::processEvents();

    QCOMPARE(treeOf(fixture), QStringLiteral("Head[B[C,B1]]"));
    QCOMPARE(recorder.take(), QStringLiteral("changeTaskParent([u-C], u-B, 0)"));
}

FISHBONE_TEST(TestFishEditorMoving)
#include "tst_fisheditor_moving.moc"
