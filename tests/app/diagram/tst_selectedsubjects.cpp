// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/diagram/selectedsubjects.h>
#include <tests/program/testprogram.h>
#include <tests/support/editorfixture.h>

#include <QtTest>

using namespace TestSupport;

/** The selection as subjects. */
class TestSelectedSubjects : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldBeInDocumentOrder();
    void shouldSelectSubjectsAlone();
    void shouldPassOverWhatIsNotDrawn();
};

void TestSelectedSubjects::shouldBeInDocumentOrder()
{
    EditorFixture stage(QStringLiteral("H[A[B],C]"));
    stage.editor.expandAll();
    QCOMPARE(SelectedSubjects::of(stage.editor), QModelIndexList());
    stage.select({QStringLiteral("C"), QStringLiteral("B"), QStringLiteral("A")});
    QCOMPARE(SelectedSubjects::of(stage.editor),
             QModelIndexList({stage.index(QStringLiteral("A")), stage.index(QStringLiteral("B")),
                              stage.index(QStringLiteral("C"))}));
}

void TestSelectedSubjects::shouldSelectSubjectsAlone()
{
    EditorFixture stage(QStringLiteral("H[A,C]"));
    stage.select({QStringLiteral("A")});
    const QModelIndex other = stage.index(QStringLiteral("C"));
    SelectedSubjects::select(stage.editor, stage.model, {other});
    QCOMPARE(SelectedSubjects::of(stage.editor), QModelIndexList{other});
    SelectedSubjects::select(stage.editor, stage.model, {});
    QVERIFY(!stage.editor.hasSelection());
}

void TestSelectedSubjects::shouldPassOverWhatIsNotDrawn()
{
    EditorFixture stage(QStringLiteral("H[A]"));
    loadDocument(stage.model, documentFromText(QStringLiteral("K"))); // is not shown
    SelectedSubjects::select(stage.editor, stage.model,
                             {stage.index(QStringLiteral("K")), QPersistentModelIndex(),
                              stage.index(QStringLiteral("A"))});
    QCOMPARE(SelectedSubjects::of(stage.editor), QModelIndexList{stage.index(QStringLiteral("A"))});
}

FISHBONE_TEST(TestSelectedSubjects)
#include "tst_selectedsubjects.moc"
