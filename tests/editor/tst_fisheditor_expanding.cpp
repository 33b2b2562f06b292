// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QtTest>

#include <tests/editor/sampletrees.h>
#include <tests/program/testprogram.h>
#include <tests/support/drawingtext.h>
#include <tests/support/editorfixture.h>
#include <tests/support/signalrecorder.h>

using namespace TestSupport;

/** Expanding and contracting, and the filters of selections. */
class TestFishEditorExpanding : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldExpandAndContractWithoutMakingSpears();
    void shouldExpandEverythingThereIsToShow();
    void shouldContractEverythingButTheHead();
    void shouldReportThatTheUserExpandedEverything();
    void shouldReportThatTheUserExpandedASubject();
    void shouldReportNothingWithoutASelection();
    void shouldExcludeTopLevelItems();
    void shouldExcludeItemsBelowOthers();
};

void TestFishEditorExpanding::shouldExpandAndContractWithoutMakingSpears()
{
    EditorFixture fish(SampleTrees::deep());
    fish.editor.generateSpear(&fish.model, fish.index(QStringLiteral("Man")));

    fish.editor.expandorContractAll(true);
    QCOMPARE(expansionText(fish.editor.headSpear()),
             QStringLiteral("Effect+ Man+ Train+ Machine+ Method+"));
    QVERIFY(fish.spear(QStringLiteral("Train"))->isVisible());

    fish.editor.expandorContractAll(false);
    QCOMPARE(expansionText(fish.editor.headSpear()),
             QStringLiteral("Effect+ Man- Train- Machine- Method-"));
    QVERIFY(!fish.spear(QStringLiteral("Train"))->isVisible());
}

void TestFishEditorExpanding::shouldExpandEverythingThereIsToShow()
{
    EditorFixture fish(SampleTrees::deep());
    SignalRecorder recorder(fish.editor);

    fish.editor.expandAll();

    QCOMPARE(expansionText(fish.editor.headSpear()),
             QStringLiteral("Effect+ Man+ Train+ Cost+ Machine+ Wear+ Method+"));
    QVERIFY(fish.spear(QStringLiteral("Cost"))->isVisible());
    QCOMPARE(
        dynamic_cast<ExpandItem *>(fish.spear(QStringLiteral("Man"))->expandBuddy())->svgFile(),
        QStringLiteral(":/fishboneDiagram/contract.svg"));
    QCOMPARE(recorder.take(), QString());
}

void TestFishEditorExpanding::shouldContractEverythingButTheHead()
{
    EditorFixture fish(SampleTrees::deep());
    const QStringList drawn = drawingText(fish.editor.headSpear());
    fish.editor.expandAll();
    SignalRecorder recorder(fish.editor);

    fish.editor.contractAll();

    QCOMPARE(expansionText(fish.editor.headSpear()),
             QStringLiteral("Effect+ Man- Train- Cost- Machine- Wear- Method-"));
    QCOMPARE(drawingText(fish.editor.headSpear()), drawn);
    QCOMPARE(recorder.take(), QString());
}

void TestFishEditorExpanding::shouldReportThatTheUserExpandedEverything()
{
    EditorFixture fish(SampleTrees::deep());
    SignalRecorder recorder(fish.editor);

    fish.editor.modifyExpandAll();
    QCOMPARE(expansionText(fish.editor.headSpear()),
             QStringLiteral("Effect+ Man+ Machine+ Method+"));
    QCOMPARE(recorder.take(), QStringLiteral("onExpandAll()"));

    fish.editor.modifyContractAll();
    QCOMPARE(expansionText(fish.editor.headSpear()),
             QStringLiteral("Effect+ Man- Machine- Method-"));
    QCOMPARE(recorder.take(), QStringLiteral("onCollapsAll()"));
}

void TestFishEditorExpanding::shouldReportThatTheUserExpandedASubject()
{
    EditorFixture fish(SampleTrees::deep());
    fish.editor.expandAll();
    fish.editor.contractAll();
    fish.select({QStringLiteral("Man")});
    SpearItem *const man = fish.spear(QStringLiteral("Man"));
    const QLineF contracted = man->line();
    SignalRecorder recorder(fish.editor);

    fish.editor.modifyExpand();
    QVERIFY(man->isExpand());
    QVERIFY(fish.spear(QStringLiteral("Train"))->isVisible());
    QVERIFY(man->line().length() > contracted.length());
    QCOMPARE(recorder.take(), QStringLiteral("onExpand(Man)"));

    fish.editor.modifyContract();
    QVERIFY(!man->isExpand());
    QCOMPARE(man->line(), contracted);
    QCOMPARE(recorder.take(), QStringLiteral("onCollaps(Man)"));
}

void TestFishEditorExpanding::shouldReportNothingWithoutASelection()
{
    EditorFixture fish(SampleTrees::deep());
    SignalRecorder recorder(fish.editor);

    fish.editor.modifyExpand();
    fish.editor.modifyContract();

    QCOMPARE(recorder.take(), QString());
    QCOMPARE(expansionText(fish.editor.headSpear()),
             QStringLiteral("Effect+ Man- Machine- Method-"));
}

void TestFishEditorExpanding::shouldExcludeTopLevelItems()
{
    EditorFixture fish(SampleTrees::deep());
    SpearItem *const man = fish.spear(QStringLiteral("Man"));
    SpearItem *const method = fish.spear(QStringLiteral("Method"));
    auto *const other = fish.editor.scene()->addRect(0, 0, 5, 5);

    QList<QGraphicsItem *> items{method, fish.editor.headSpear(), other, man};
    FishEditor::excludeCenterSubject(items);
    QCOMPARE(items, QList<QGraphicsItem *>({method, man}));

    FishEditor::excludeCenterSubject(items);
    QCOMPARE(items, QList<QGraphicsItem *>({method, man}));
}

void TestFishEditorExpanding::shouldExcludeItemsBelowOthers()
{
    EditorFixture fish(SampleTrees::deep());
    fish.editor.expandAll();
    const auto spear = [&fish](const char *title) {
        return static_cast<QGraphicsItem *>(fish.spear(QString::fromLatin1(title)));
    };

    QList<QGraphicsItem *> items{spear("Cost"), spear("Wear"), spear("Man"), spear("Method"),
                                 spear("Train")};
    FishEditor::excludeChildSubject(items);
    QCOMPARE(items, QList<QGraphicsItem *>({spear("Wear"), spear("Man"), spear("Method")}));

    // An ancestor that is not listed excludes nothing.
    items = {spear("Cost"), spear("Wear")};
    FishEditor::excludeChildSubject(items);
    QCOMPARE(items, QList<QGraphicsItem *>({spear("Cost"), spear("Wear")}));

    items = {spear("Effect"), spear("Cost"), spear("Method")};
    FishEditor::excludeChildSubject(items);
    QCOMPARE(items, QList<QGraphicsItem *>({spear("Effect")}));
}

FISHBONE_TEST(TestFishEditorExpanding)
#include "tst_fisheditor_expanding.moc"
