// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/diagram/diagramvisits.h>
#include <app/diagram/expansion.h>
#include <tests/program/testprogram.h>
#include <tests/support/editorfixture.h>

#include <QtTest>

using namespace TestSupport;

/** What was shown as a diagram of its own. */
class TestDiagramVisits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldKnowWhatADocumentRemembers();
    void shouldTakeTheFirstOfSubjectsWithOneUuid();
    void shouldKnowNothingWithoutADocument();
    void shouldShowADiagramAsItWasLeft();
};

void TestDiagramVisits::shouldKnowWhatADocumentRemembers()
{
    EditorFixture stage(QStringLiteral("H[A[B],C]"));
    const DiagramVisits visits(&stage.model, &stage.editor);
    QCOMPARE(visits.subjectsOf(stage.info), QModelIndexList());
    const QModelIndexList visited{stage.index(QStringLiteral("C")),
                                  stage.index(QStringLiteral("B"))};
    for (const QModelIndex &index : visited)
        stage.info->addFishToHistory(index);
    QCOMPARE(visits.subjectsOf(stage.info), visited);
    QVERIFY(stage.model.removeRows(1, 1, stage.index(QStringLiteral("H"))));
    QCOMPARE(visits.subjectsOf(stage.info), QModelIndexList{stage.index(QStringLiteral("B"))});
}

void TestDiagramVisits::shouldTakeTheFirstOfSubjectsWithOneUuid()
{
    EditorFixture stage(QStringLiteral("H[A[B],C]"));
    stage.subject(QStringLiteral("C"))->setUuid(QStringLiteral("u-B"));
    const DiagramVisits visits(&stage.model, &stage.editor);
    stage.info->addFishToHistory(stage.index(QStringLiteral("C")));
    QCOMPARE(visits.subjectsOf(stage.info), QModelIndexList{stage.index(QStringLiteral("B"))});
}

void TestDiagramVisits::shouldKnowNothingWithoutADocument()
{
    EditorFixture stage(QStringLiteral("H"));
    const DiagramVisits visits(&stage.model, &stage.editor);
    QCOMPARE(visits.subjectsOf(nullptr), QModelIndexList());
}

void TestDiagramVisits::shouldShowADiagramAsItWasLeft()
{
    EditorFixture stage(QStringLiteral("H[A[B[C]],D[E]]"));
    DiagramVisits visits(&stage.model, &stage.editor);
    Expansion::setExpanded(stage.editor, *stage.spear(QStringLiteral("D")), true);
    stage.editor.updateFish(false);
    stage.select({QStringLiteral("E")});
    visits.show(stage.index(QStringLiteral("A")));
    QCOMPARE(stage.editor.headSpear(), stage.spear(QStringLiteral("A")));
    visits.show(stage.index(QStringLiteral("H")));
    QCOMPARE(stage.editor.headSpear(), stage.spear(QStringLiteral("H")));
    QVERIFY(stage.spear(QStringLiteral("D"))->isExpand());
    QVERIFY(!stage.spear(QStringLiteral("A"))->isExpand());
    QCOMPARE(stage.editor.firstSelectedSpear(), stage.spear(QStringLiteral("E")));
}

FISHBONE_TEST(TestDiagramVisits)
#include "tst_diagramvisits.moc"
