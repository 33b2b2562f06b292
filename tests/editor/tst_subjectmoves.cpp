// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QMimeData>
#include <QtTest>

#include <fishbone/editor/subjectmoves.h>
#include <tests/editor/editorparts.h>
#include <tests/program/testprogram.h>

using namespace TestSupport;

/** Moves of subjects, with the mouse and by drops. */
class TestSubjectMoves : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldMoveWithUndo();
    void shouldPutBackWhatMayNotBeMoved();
    void shouldNotMoveIntoItself();
    void shouldDropOutsideTheHistory();
    void shouldDropNothingOnATargetThatDiedInTheQueue();
    void shouldDropNothingThatIsNoSubjectOfTheModel();
    void shouldTellOfTasksAlone();
    void shouldTellNothingWhenAListenerEndsTheEditor();
};

namespace {

struct MoveStage
{
    explicit MoveStage(const char *document)
        : model(std::make_unique<FishModel>())
        , parts(std::make_unique<EditorParts>(*model, QString::fromLatin1(document)))
        , moves({parts->shown, parts->drawing, parts->root, parts->calls, parts->runner})
        , moved(&moves, &SubjectMoves::moved)
        , dropped(&moves, &SubjectMoves::dropped)
    {
        parts->expansion.expandAll();
    }

    std::unique_ptr<QMimeData> drag(const char *title) const
    {
        return std::unique_ptr<QMimeData>(model->mimeData({parts->index(title)}));
    }

    std::unique_ptr<FishModel> model;
    std::unique_ptr<EditorParts> parts;
    SubjectMoves moves;
    QSignalSpy moved;
    QSignalSpy dropped;
};

constexpr auto atOnce = SubjectMoves::Came::AtOnce;
constexpr auto queued = SubjectMoves::Came::Queued;

} // namespace

void TestSubjectMoves::shouldMoveWithUndo()
{
    MoveStage stage("H[A,B[C]]");
    stage.moves.move({stage.parts->spear("A")}, stage.parts->index("B"), 1);
    QCOMPARE(stage.parts->text(), QStringLiteral("H[B[C,A]]"));
    QCOMPARE(stage.parts->drawn(), QStringLiteral("H[B[C,A]]"));
    QVERIFY(stage.parts->info->modified());
    stage.parts->runner.undo();
    QCOMPARE(stage.parts->text(), QStringLiteral("H[A,B[C]]"));
}

void TestSubjectMoves::shouldPutBackWhatMayNotBeMoved()
{
    MoveStage stage("H[A,B]");
    SpearItem *const bone = stage.parts->spear("A");
    stage.parts->node("A")->setSpearItemIsMovable(false);
    const QPointF before = bone->scenePos();
    bone->setPos(before + QPointF(500, 500));
    stage.moves.move({bone}, stage.parts->index("B"), 0);
    QCOMPARE(stage.parts->text(), QStringLiteral("H[A,B]"));
    QCOMPARE(stage.parts->stack.count(), 0);
    QCOMPARE(bone->scenePos(), before);
}

void TestSubjectMoves::shouldNotMoveIntoItself()
{
    MoveStage stage("H[A[B],C]");
    stage.moves.move({stage.parts->spear("C"), stage.parts->spear("A")}, stage.parts->index("B"),
                     0);
    stage.moves.move({stage.parts->spear("A")}, stage.parts->index("A"), 0);
    stage.moves.move({stage.parts->spear("A")}, QModelIndex(), 0);
    stage.moves.drop(stage.drag("A").get(), stage.parts->index("B"), 0, atOnce);
    QCOMPARE(stage.parts->text(), QStringLiteral("H[A[B],C]"));
    QCOMPARE(stage.parts->stack.count(), 0);
    QVERIFY(!stage.parts->info->modified());
}

void TestSubjectMoves::shouldDropOutsideTheHistory()
{
    MoveStage stage("H[A,B[C]]");
    stage.moves.drop(stage.drag("A").get(), stage.parts->index("B"), 0, queued);
    QCOMPARE(stage.parts->text(), QStringLiteral("H[B[A,C]]"));
    QCOMPARE(stage.parts->drawn(), QStringLiteral("H[B[A,C]]"));
    QCOMPARE(stage.parts->stack.count(), 0);
    QVERIFY(stage.parts->info->modified());
}

void TestSubjectMoves::shouldDropNothingOnATargetThatDiedInTheQueue()
{
    MoveStage stage("H[A,B]");
    const std::unique_ptr<QMimeData> data = stage.drag("A");
    const QModelIndex target = stage.parts->index("B");
    stage.parts->edits.remove(target);
    stage.moves.drop(data.get(), target, 0, queued);
    QCOMPARE(stage.parts->text(), QStringLiteral("H[A]"));
}

void TestSubjectMoves::shouldDropNothingThatIsNoSubjectOfTheModel()
{
    MoveStage stage("H[A,B]");
    const MoveStage other("I[C]");
    const QMimeData text;
    QCOMPARE(stage.moves.carriedBy(stage.drag("A").get()), stage.parts->node("A"));
    QVERIFY(!stage.moves.carriedBy(other.drag("C").get()));
    QVERIFY(!stage.moves.carriedBy(&text));
    QVERIFY(!stage.moves.carriedBy(nullptr));
    stage.moves.drop(other.drag("C").get(), stage.parts->index("A"), 0, atOnce);
    QCOMPARE(stage.parts->text(), QStringLiteral("H[A,B]"));
}

void TestSubjectMoves::shouldTellOfTasksAlone()
{
    MoveStage stage("H[A,B,C]");
    stage.moves.move({stage.parts->spear("A")}, stage.parts->index("C"), 0);
    stage.moves.drop(stage.drag("B").get(), stage.parts->index("C"), 0, atOnce);
    QCOMPARE(stage.moved.count() + stage.dropped.count(), 0);
    stage.model->setModelType(FISH_MODEL_NORMAL);
    stage.moves.move({stage.parts->spear("A")}, stage.parts->index("H"), 0);
    const QList<QVariant> moved{QStringList{QStringLiteral("u-A")}, QStringLiteral("u-H")};
    QCOMPARE(stage.moved.value(0), moved);
    stage.moves.drop(stage.drag("B").get(), stage.parts->index("H"), 0, atOnce);
    const QList<QVariant> dropped{QStringList{QStringLiteral("u-B")}, QStringLiteral("u-H")};
    QCOMPARE(stage.dropped.value(0), dropped);
    QCOMPARE(stage.moved.count() + stage.dropped.count(), 2);
}

void TestSubjectMoves::shouldTellNothingWhenAListenerEndsTheEditor()
{
    MoveStage stage("H[A,B]");
    stage.model->setModelType(FISH_MODEL_NORMAL);
    const std::unique_ptr<QMimeData> data = stage.drag("A");
    connect(stage.model.get(), &FishModel::rowsMoved, this, [&stage] { stage.parts.reset(); });
    stage.moves.drop(data.get(), stage.parts->index("B"), 0, atOnce);
    QVERIFY(!stage.parts);
    QCOMPARE(stage.dropped.count(), 0);
}

FISHBONE_TEST(TestSubjectMoves)
#include "tst_subjectmoves.moc"
