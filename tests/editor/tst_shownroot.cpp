// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QtTest>

#include <tests/editor/editorparts.h>
#include <tests/program/testprogram.h>

using namespace TestSupport;

/** The root that is shown, and what happens to it. */
class TestShownRoot : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowADiagramWithItsMainBones();
    void shouldShowNothingForNoIndex();
    void shouldYieldToALaterOneOnTheSameDocument();
    void shouldShowAnotherDocumentBesideAnother();
    void shouldFollowAHeadThatIsTakenOutAndPutBack();
    void shouldFollowASubjectIntoAnotherDocument();
    void shouldShowNothingWhenItsModelDies();
    void shouldKeepTheDrawingThroughAResetOfLivingSubjects();
    void shouldShowNothingWhenTheDocumentIsEmptied();
    void shouldFollowTheHeadOfItsDocument();
    void shouldMarkWhatTellsOfItsData();
    void shouldIgnoreAModelSetEarlier();
    void shouldLayOutOnceForACallThatDoesSo();
    void shouldEndWithAListener();
};

void TestShownRoot::shouldShowADiagramWithItsMainBones()
{
    OwnEditorParts parts("H[A[B],C]");
    QCOMPARE(parts->drawn(), QStringLiteral("H[A,C]"));
    QCOMPARE(parts->shown.index(), QPersistentModelIndex(parts->index("H")));
    parts->root.show(parts->index("A"));
    QCOMPARE(parts->drawn(), QStringLiteral("A[B]"));
    QVERIFY(!parts->spear("H"));
    QCOMPARE(parts->root.spearOf(parts->index("B")), parts->spear("B"));
    QVERIFY(!parts->root.spearOf(parts->index("C")));
}

void TestShownRoot::shouldShowNothingForNoIndex()
{
    OwnEditorParts parts("H[A]");
    parts->root.show(QModelIndex());
    QCOMPARE(parts->drawn(), QString());
    QVERIFY(parts->shown.index().isValid());
    parts->root.update(true); // which brings the old diagram back
    QCOMPARE(parts->drawn(), QStringLiteral("H[A]"));
}

void TestShownRoot::shouldYieldToALaterOneOnTheSameDocument()
{
    OwnEditorParts parts("H[A]");
    EditorParts later(parts.model, QStringLiteral("I[C]"));
    QCOMPARE(parts->drawn(), QStringLiteral("H[A]"));
    later.root.show(parts->index("A"));
    QCOMPARE(later.drawn(), QStringLiteral("A"));
    QCOMPARE(parts->drawn(), QString());
    QVERIFY(!parts->shown.index().isValid());
}

void TestShownRoot::shouldShowAnotherDocumentBesideAnother()
{
    OwnEditorParts parts("H[A]");
    const EditorParts other(parts.model, QStringLiteral("I[C]"));
    QCOMPARE(parts->drawn(), QStringLiteral("H[A]"));
    QCOMPARE(other.drawn(), QStringLiteral("I[C]"));
}

void TestShownRoot::shouldFollowAHeadThatIsTakenOutAndPutBack()
{
    OwnEditorParts parts("H[A]");
    FishInfo *const taken = parts.model.takeFish(0);
    QCOMPARE(parts->drawn(), QString());
    QVERIFY(parts.model.insertFish(0, taken));
    QCOMPARE(parts->drawn(), QStringLiteral("H[A]"));
}

void TestShownRoot::shouldFollowASubjectIntoAnotherDocument()
{
    OwnEditorParts parts("H[A[B]]");
    FishInfo *const other = loadDocument(parts.model, QStringLiteral("I[C]"));
    parts->root.show(parts->index("A"));
    QVERIFY(parts.model.moveRows(parts->index("H"), 0, 1, parts->index("I"), 0));
    QCOMPARE(parts->drawn(), QStringLiteral("A[B]"));
    QCOMPARE(parts->shown.document(), other);
}

void TestShownRoot::shouldShowNothingWhenItsModelDies()
{
    auto model = std::make_unique<FishModel>();
    EditorParts parts(*model, QStringLiteral("H[A]"));
    model.reset();
    QCOMPARE(parts.drawn(), QString());
    QVERIFY(!parts.shown.model());
    parts.root.update(true);
    QCOMPARE(parts.drawn(), QString());
}

void TestShownRoot::shouldKeepTheDrawingThroughAResetOfLivingSubjects()
{
    OwnEditorParts parts("H[A]");
    const SpearItem *const bone = parts->spear("A");
    parts.model.refreshModel();
    QCOMPARE(parts->drawn(), QStringLiteral("H[A]"));
    QCOMPARE(parts->spear("A"), bone);
    QCOMPARE(parts->shown.index(), QPersistentModelIndex(parts->index("H")));
}

void TestShownRoot::shouldShowNothingWhenTheDocumentIsEmptied()
{
    FishModel model; // untested: a document without a head has a row without an index
    const EditorParts parts(model, QStringLiteral("H[A]"));
    parts.info->reset();
    QCOMPARE(parts.drawn(), QString());
}

void TestShownRoot::shouldFollowTheHeadOfItsDocument()
{
    OwnEditorParts parts("H[A]");
    auto *const head = new TreeItem;
    head->setTitle(QStringLiteral("New"));
    QVERIFY(parts.model.wrapHead(parts->info, head));
    QCOMPARE(parts->drawn(), QStringLiteral("New[H]"));
    const std::unique_ptr<TreeItem> old(parts.model.unwrapHead(parts->info, parts->node("H")));
    QCOMPARE(parts->drawn(), QStringLiteral("H[A]"));
}

void TestShownRoot::shouldMarkWhatTellsOfItsData()
{
    OwnEditorParts parts("H[A]");
    FishInfo *const other = loadDocument(parts.model, QStringLiteral("I"));
    parts->root.followData(&parts.model, parts->index("I"));
    QVERIFY(other->modified());
    QVERIFY(!parts->info->modified());
    parts->root.followData(nullptr, QModelIndex());
    QVERIFY(parts->info->modified());
}

void TestShownRoot::shouldIgnoreAModelSetEarlier()
{
    OwnEditorParts parts("H[A]");
    FishModel later;
    parts->root.setModel(&later);
    parts->root.followData(&parts.model, parts->index("A"));
    QVERIFY(!parts->info->modified());
    parts.model.refreshModel();
    QCOMPARE(parts->drawn(), QStringLiteral("H[A]"));
}

void TestShownRoot::shouldLayOutOnceForACallThatDoesSo()
{
    OwnEditorParts parts("H[A]");
    SpearItem *const bone = parts->spear("A");
    const QPointF place = bone->pos();
    const QPointF elsewhere = place + QPointF(500, 0);
    bone->setPos(elsewhere);
    {
        const EditorCall call(parts->calls, EditorCall::AtItsEnd::LaysOut);
        parts->root.followData(&parts.model, parts->index("A"));
        QCOMPARE(bone->pos(), elsewhere);
    }
    parts->root.followData(&parts.model, parts->index("A"));
    QCOMPARE(bone->pos(), place);
}

void TestShownRoot::shouldEndWithAListener()
{
    FishModel model;
    auto parts = std::make_unique<EditorParts>(model, QStringLiteral("H[A]"));
    parts->select("A");
    connect(&parts->calls, &EditorCalls::selectionChanged, this, [&parts] { parts.reset(); });
    parts->root.update(true); // the selection goes with the old drawing
    QVERIFY(!parts);
}

FISHBONE_TEST(TestShownRoot)
#include "tst_shownroot.moc"
