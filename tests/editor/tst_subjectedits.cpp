// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QtTest>

#include <fishbone/editor/subjectsnapshot.h>
#include <tests/editor/editorparts.h>
#include <tests/program/testprogram.h>

using namespace TestSupport;

/** What is inserted, copied, pasted, deleted and changed. */
class TestSubjectEdits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldInsertAtTheSelectedSubject_data();
    void shouldInsertAtTheSelectedSubject();
    void shouldDoNothingWithoutASubject();
    void shouldAppendASubjectOfTheCallers();
    void shouldInsertADocumentOutsideTheHistory();
    void shouldCopyAttributesOutsideTheHistory();
    void shouldRename();
    void shouldDeleteWhatIsNamed();
    void shouldDeleteWhatIsSelectedButTheHead();
    void shouldPasteWhatWasCopied();
    void shouldGivePastedSubjectsNewUuidsWhenTold();
    void shouldCutWhatWasSelectedWhateverAListenerSelects();
    void shouldCutNothingWhenAListenerEndsTheEditor();
    void shouldRemoveAStyleOfItsOwn();
};

using Insert = void (SubjectEdits::*)();
Q_DECLARE_METATYPE(Insert)

void TestSubjectEdits::shouldInsertAtTheSelectedSubject_data()
{
    QTest::addColumn<Insert>("insert");
    QTest::addColumn<QString>("result");
    QTest::newRow("before") << &SubjectEdits::insertBefore << "H[+,A[B]]";
    QTest::newRow("after") << &SubjectEdits::insertAfter << "H[A[B],+]";
    QTest::newRow("child") << Insert(&SubjectEdits::insertChild) << "H[A[B,+]]";
    QTest::newRow("parent") << &SubjectEdits::insertParent << "H[+[A[B]]]";
}

void TestSubjectEdits::shouldInsertAtTheSelectedSubject()
{
    QFETCH(Insert, insert);
    QFETCH(QString, result);
    OwnEditorParts parts("H[A[B]]");
    parts->select("A");
    (parts->edits.*insert)();
    QCOMPARE(parts->text(), result);
    QCOMPARE(parts->stack.count(), 1);
    parts->runner.undo();
    QCOMPARE(parts->text(), QStringLiteral("H[A[B]]"));
}

void TestSubjectEdits::shouldDoNothingWithoutASubject()
{
    OwnEditorParts parts("H[A]");
    TreeItem source;
    parts->edits.insertBefore();
    parts->edits.insertParent();
    parts->edits.insertChild(QModelIndex(), &source);
    parts->edits.insertChild(parts->index("A"), nullptr);
    parts->edits.edit(QModelIndex(), &source);
    parts->edits.edit(parts->index("A"), nullptr);
    parts->edits.rename(QModelIndex(), QStringLiteral("new"));
    parts->edits.remove(QModelIndex());
    parts->edits.remove(QJsonObject());
    parts->edits.removeSelected();
    parts->edits.paste(parts->index("A"));
    parts->edits.editStyle();
    parts->edits.removeStyle();
    QCOMPARE(parts->text(), QStringLiteral("H[A]"));
    QCOMPARE(parts->stack.count(), 0);
    QVERIFY(!parts->info->modified());
}

void TestSubjectEdits::shouldAppendASubjectOfTheCallers()
{
    OwnEditorParts parts("H[A[B]]");
    auto *const subject = new TreeItem;
    subject->setTitle(QStringLiteral("C"));
    parts->edits.insertChild(parts->index("A"), subject);
    QCOMPARE(parts->text(), QStringLiteral("H[A[B,C]]"));
    QCOMPARE(parts->node("C"), subject);
    parts->runner.undo();
    QCOMPARE(parts->text(), QStringLiteral("H[A[B]]"));
    QCOMPARE(subject->title(), QStringLiteral("C")); // still there
}

void TestSubjectEdits::shouldInsertADocumentOutsideTheHistory()
{
    OwnEditorParts parts("H[A]");
    parts->edits.insertFree();
    QCOMPARE(parts.model.rowCount(), 2);
    QCOMPARE(parts->stack.count(), 0);
}

void TestSubjectEdits::shouldCopyAttributesOutsideTheHistory()
{
    OwnEditorParts parts("H[A]");
    TreeItem source;
    source.setTitle(QStringLiteral("new"));
    parts->edits.edit(parts->index("A"), &source);
    QCOMPARE(parts->drawn(), QStringLiteral("H[new]"));
    QCOMPARE(parts->stack.count(), 0);
    QVERIFY(parts->info->modified());
}

void TestSubjectEdits::shouldRename()
{
    OwnEditorParts parts("H[A]");
    parts->edits.rename(parts->index("A"), QStringLiteral("new"));
    QCOMPARE(parts->drawn(), QStringLiteral("H[new]"));
    parts->runner.undo();
    QCOMPARE(parts->drawn(), QStringLiteral("H[A]"));
}

void TestSubjectEdits::shouldDeleteWhatIsNamed()
{
    OwnEditorParts parts("H[A,B,C]");
    parts->edits.remove(parts->index("B"));
    QCOMPARE(parts->drawn(), QStringLiteral("H[A,C]"));
    parts->edits.remove(SubjectSnapshot::of({parts->node("A"), parts->node("C")}));
    QCOMPARE(parts->drawn(), QStringLiteral("H"));
    QCOMPARE(parts->stack.count(), 2);
}

void TestSubjectEdits::shouldDeleteWhatIsSelectedButTheHead()
{
    OwnEditorParts parts("H[A,B]");
    parts->spear("H")->setSelected(true);
    parts->spear("B")->setSelected(true);
    parts->edits.removeSelected();
    QCOMPARE(parts->text(), QStringLiteral("H[A]"));
}

void TestSubjectEdits::shouldPasteWhatWasCopied()
{
    OwnEditorParts parts("H[A[B],C]");
    const QSignalSpy copied(&parts->edits, &SubjectEdits::copied);
    QVERIFY(!parts->edits.hasCopy());
    parts->select("A");
    parts->edits.copySelected();
    QCOMPARE(copied.count(), 1);
    QVERIFY(copied.at(0).at(0).toBool());
    QVERIFY(parts->edits.hasCopy());
    parts->edits.paste(parts->index("C"));
    QCOMPARE(parts->text(), QStringLiteral("H[A[B],C[A[B]]]"));
    QVERIFY(parts->edits.hasCopy());
}

void TestSubjectEdits::shouldGivePastedSubjectsNewUuidsWhenTold()
{
    OwnEditorParts parts("H[A,C]");
    parts->select("A");
    parts->edits.copySelected();
    parts->edits.paste(parts->index("C"));
    QCOMPARE(parts->node("C")->childAtIndex(0)->uuid(), QStringLiteral("u-A"));
    parts->edits.setPasteAsNew(true);
    parts->edits.paste(parts->index("C"));
    QVERIFY(parts->node("C")->childAtIndex(1)->uuid() != QStringLiteral("u-A"));
}

void TestSubjectEdits::shouldCutWhatWasSelectedWhateverAListenerSelects()
{
    OwnEditorParts parts("H[A,B]");
    parts->select("A");
    connect(&parts->edits, &SubjectEdits::copied, this, [&parts] { parts->select("B"); });
    parts->edits.cutSelected();
    QCOMPARE(parts->text(), QStringLiteral("H[B]"));
    parts->edits.paste(parts->index("B"));
    QCOMPARE(parts->text(), QStringLiteral("H[B[A]]"));
}

void TestSubjectEdits::shouldCutNothingWhenAListenerEndsTheEditor()
{
    FishModel model;
    auto parts = std::make_unique<EditorParts>(model, QStringLiteral("H[A]"));
    parts->select("A");
    connect(&parts->edits, &SubjectEdits::copied, this, [&parts] { parts.reset(); });
    parts->edits.cutSelected();
    QVERIFY(!parts);
    QVERIFY(nodeTitled(model, QStringLiteral("A")));
}

void TestSubjectEdits::shouldRemoveAStyleOfItsOwn()
{
    OwnEditorParts parts("H[A]");
    parts->node("A")->setSpearStyle(QJsonObject{{QStringLiteral("maxTextLength"), 3}});
    QVERIFY(parts->node("A")->spearStyle());
    parts->select("A");
    parts->edits.removeStyle();
    QVERIFY(!parts->node("A")->spearStyle());
    QCOMPARE(parts->stack.count(), 0);
    QVERIFY(!parts->info->modified());
}

FISHBONE_TEST(TestSubjectEdits)
#include "tst_subjectedits.moc"
