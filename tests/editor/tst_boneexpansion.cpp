// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QtTest>

#include <tests/editor/editorparts.h>
#include <tests/program/testprogram.h>

using namespace TestSupport;

/** Expanding and contracting bones. */
class TestBoneExpansion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldMakeMissingSpearsForItsOwnModelAlone();
    void shouldMakeAllSpearsWhenEverythingIsExpanded();
    void shouldTellWhatAUserExpandsAndContracts();
    void shouldTellThatEverythingWasExpandedOrContracted();
    void shouldDoNothingWithoutASelection();
    void shouldMakeABranchBelowASpear();
    void shouldNotLayOutWhatAListenerHasEnded();
};

void TestBoneExpansion::shouldMakeMissingSpearsForItsOwnModelAlone()
{
    OwnEditorParts parts("H[A[B[C]]]");
    FishModel other;
    parts->expansion.makeDescendants(&other, parts->index("A"));
    parts->expansion.makeChildren(nullptr, parts->index("A"));
    QCOMPARE(parts->drawn(), QStringLiteral("H[A]"));
    parts->expansion.makeChildren(&parts.model, parts->index("A"));
    QCOMPARE(parts->drawn(), QStringLiteral("H[A[B]]"));
    parts->expansion.makeDescendants(&parts.model, parts->index("A"));
    QCOMPARE(parts->drawn(), QStringLiteral("H[A[B[C]]]"));
}

void TestBoneExpansion::shouldMakeAllSpearsWhenEverythingIsExpanded()
{
    OwnEditorParts parts("H[A[B[C]],D[E]]");
    parts->expansion.expandAll();
    QCOMPARE(parts->drawn(), QStringLiteral("H[A[B[C]],D[E]]"));
    for (const char *title : {"A", "B", "D"})
        QVERIFY2(parts->spear(title)->isExpand(), title);
    QVERIFY(parts->spear("C")->isVisible());
}

void TestBoneExpansion::shouldTellWhatAUserExpandsAndContracts()
{
    OwnEditorParts parts("H[A[B]]");
    const QSignalSpy expanded(&parts->expansion, &BoneExpansion::expanded);
    const QSignalSpy contracted(&parts->expansion, &BoneExpansion::contracted);
    parts->select("A");
    parts->expansion.setSelected(true);
    QVERIFY(parts->spear("A")->isExpand());
    QCOMPARE(expanded.value(0).value(0).toModelIndex(), parts->index("A"));
    parts->expansion.setSelected(false);
    QVERIFY(!parts->spear("A")->isExpand());
    QCOMPARE(contracted.value(0).value(0).toModelIndex(), parts->index("A"));
    QCOMPARE(expanded.count() + contracted.count(), 2);
}

void TestBoneExpansion::shouldTellThatEverythingWasExpandedOrContracted()
{
    OwnEditorParts parts("H[A[B]]");
    const QSignalSpy expanded(&parts->expansion, &BoneExpansion::allExpanded);
    const QSignalSpy contracted(&parts->expansion, &BoneExpansion::allContracted);
    parts->expansion.setAll(true);
    QCOMPARE(expanded.count(), 1);
    QCOMPARE(parts->drawn(), QStringLiteral("H[A]")); // makes no spears
    QVERIFY(parts->spear("A")->isExpand());
    parts->expansion.setAll(false);
    QCOMPARE(contracted.count(), 1);
    QVERIFY(!parts->spear("A")->isExpand());
}

void TestBoneExpansion::shouldDoNothingWithoutASelection()
{
    OwnEditorParts parts("H[A[B]]");
    const QSignalSpy expanded(&parts->expansion, &BoneExpansion::expanded);
    parts->expansion.setSelected(true);
    QCOMPARE(expanded.count(), 0);
    QVERIFY(!parts->spear("A")->isExpand());
}

void TestBoneExpansion::shouldMakeABranchBelowASpear()
{
    OwnEditorParts parts("H[A[B[C],D]]");
    parts->expansion.makeBranch(parts->index("B"), 2, 0, parts->spear("A"));
    QCOMPARE(parts->drawn(), QStringLiteral("H[A[B[C]]]"));
}

void TestBoneExpansion::shouldNotLayOutWhatAListenerHasEnded()
{
    FishModel model;
    auto parts = std::make_unique<EditorParts>(model, QStringLiteral("H[A[B]]"));
    parts->select("A");
    connect(&parts->expansion, &BoneExpansion::expanded, this, [&parts] { parts.reset(); });
    parts->expansion.setSelected(true);
    QVERIFY(!parts);
}

FISHBONE_TEST(TestBoneExpansion)
#include "tst_boneexpansion.moc"
