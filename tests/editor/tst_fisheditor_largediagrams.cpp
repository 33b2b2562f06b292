// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QtTest>

#include <ctime>
#include <functional>

#include <tests/program/sanitized.h>
#include <tests/program/testprogram.h>
#include <tests/support/largefish.h>

using namespace TestSupport;

using Tree = std::function<std::unique_ptr<TreeItem>(int)>;
Q_DECLARE_METATYPE(Tree)

/**
 * Diagrams that are very deep or very wide: nothing overflows, and nothing takes quadratic time.
 */
class TestFishEditorLargeDiagrams : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowEveryLevel();
    void shouldShowEveryRow();
    void shouldShowWideBranchesOfOneBone();
    void shouldAskTheModelLinearlyOften_data();
    void shouldAskTheModelLinearlyOften();
    void shouldTakeLinearTime_data();
    void shouldTakeLinearTime();
};

namespace {
/** A main bone with @p width children. */
std::unique_ptr<TreeItem> makeBranch(int width)
{
    auto head = std::make_unique<TreeItem>();
    head->setTitle(QStringLiteral("head"));
    head->appendChild(makeFan(width).release());
    return head;
}

double processorSeconds(const std::function<void()> &action)
{
    const std::clock_t start = std::clock();
    action();
    return double(std::clock() - start) / CLOCKS_PER_SEC;
}

/** Everything that touches every spear. */
void use(FishEditor &editor)
{
    editor.expandAll();
    settle(); // what was never polished is looked for in a list when it dies
    editor.updateFish(false);
    editor.selectAll();
    editor.contractAll();
    editor.updateFish(true);
    settle();
    editor.expandAll();
    settle();
    editor.selectAll();
    editor.del();
    editor.undo();
    settle();
}

double secondsToUse(std::unique_ptr<TreeItem> tree)
{
    return processorSeconds([&tree] {
        LargeFixture<FishModel> fish(std::move(tree));
        use(fish.editor);
    });
}

int questionsToUse(std::unique_ptr<TreeItem> tree)
{
    LargeFixture<AskedModel> fish(std::move(tree));
    use(fish.editor);
    return fish.model.questions;
}

void addShapes()
{
    QTest::addColumn<Tree>("tree");

    QTest::newRow("wide backbone") << Tree(makeFan);
    QTest::newRow("wide bone") << Tree(makeBranch);
    QTest::newRow("bushy") << Tree(makeBushy);
}
} // namespace

void TestFishEditorLargeDiagrams::shouldShowEveryLevel()
{
    constexpr int depth = 5000;
    LargeFixture<FishModel> fish(makeChain(depth));
    const QAbstractItemModelTester tester(&fish.model,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);

    fish.editor.expandAll();
    QCOMPARE(SpearItem::m_refCount, depth);
    const TreeItem *node = fish.head;
    for (int level = 0; level < depth; ++level) {
        // Main bones are level 1; all are in row 0.
        QCOMPARE(node->spear()->direction(), level % 2);
        QVERIFY(node->spear()->isVisible());
        QVERIFY(node->spear()->line().length() > 0);
        node = node->childAtIndex(0);
    }
    fish.editor.setRootIndex(QModelIndex());
    QCOMPARE(SpearItem::m_refCount, 0);
}

void TestFishEditorLargeDiagrams::shouldShowEveryRow()
{
    constexpr int width = unlessSanitized(10000, 3000);
    LargeFixture<FishModel> fish(makeFan(width));
    const QAbstractItemModelTester tester(&fish.model,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    fish.editor.expandAll();

    const QList<SpearItem *> bones = fish.editor.headSpear()->childSpears();
    QCOMPARE(bones.size(), width);
    double next[2] = {30, 60};
    for (int row = 0; row < width; ++row) {
        const SpearItem *const bone = bones.at(row);
        QCOMPARE(bone->text(), QString::number(row));
        QCOMPARE(bone->direction(), row % 2 == 0 ? 1 : -1);
        QCOMPARE(bone->offset(), next[row % 2]);
        next[row % 2] += qMax(30.0, bone->spearWidth());
    }
    fish.editor.updateFish(true);
    QCOMPARE(fish.editor.headSpear()->childSpears().size(), width);
    settle(); // what was never polished is looked for in a list when it dies
}

void TestFishEditorLargeDiagrams::shouldShowWideBranchesOfOneBone()
{
    constexpr int width = unlessSanitized(10000, 3000);
    LargeFixture<FishModel> fish(makeBranch(width));
    fish.editor.generateSpear(&fish.model, fish.model.index(0, 0, fish.top));
    fish.editor.expandorContractAll(true);

    const SpearItem *const bone = fish.editor.headSpear()->childSpear(0);
    const QList<SpearItem *> children = bone->childSpears();
    QCOMPARE(children.size(), width);
    QCOMPARE(children.last()->text(), QString::number(width - 1));
    QCOMPARE(children.last()->offset() + children.last()->spearHeight(), bone->spearHeight());
}

void TestFishEditorLargeDiagrams::shouldAskTheModelLinearlyOften_data()
{
    addShapes();
    QTest::newRow("deep") << Tree(makeChain);
}

void TestFishEditorLargeDiagrams::shouldAskTheModelLinearlyOften()
{
    QFETCH(Tree, tree);

    const int few = questionsToUse(tree(250));
    const int many = questionsToUse(tree(1000));

    QVERIFY(few > 250);
    QVERIFY2(many <= 4 * few, qPrintable(QStringLiteral("%1, then %2").arg(few).arg(many)));
}

void TestFishEditorLargeDiagrams::shouldTakeLinearTime_data()
{
    // Not for deep ones: an item in a scene tells all above it whenever it changes.
    addShapes();
}

void TestFishEditorLargeDiagrams::shouldTakeLinearTime()
{
    QFETCH(Tree, tree);
    secondsToUse(tree(100)); // pictures and fonts are loaded now

    constexpr int count = unlessSanitized(2000, 600);
    const double small = secondsToUse(tree(count));
    const double large = secondsToUse(tree(4 * count));

    // Four times the nodes: 4 for linear time, 16 for quadratic time.
    QVERIFY2(large < 8 * small,
             qPrintable(QStringLiteral("%1 s, then %2 s").arg(small).arg(large)));
}

FISHBONE_TEST(TestFishEditorLargeDiagrams)
#include "tst_fisheditor_largediagrams.moc"
