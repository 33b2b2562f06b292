// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QtTest>

#include <ctime>
#include <functional>

#include <tests/support/editorfixture.h>

using namespace TestSupport;

using Tree = std::function<std::unique_ptr<TreeItem>(int)>;
Q_DECLARE_METATYPE(Tree)

/// Diagrams that are very deep or very wide: nothing overflows, and no operation takes quadratic time.
class TestFishEditorLargeDiagrams : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowEveryLevel();
    void shouldShowEveryRow();
    void shouldShowWideBranchesOfOneBone();
    void shouldTakeLinearTime_data();
    void shouldTakeLinearTime();
};

namespace
{
/// An editor on a document that was never a file.
class LargeFixture
{
public:
    explicit LargeFixture(std::unique_ptr<TreeItem> tree)
    {
        model.setModelType(FISH_MODEL_DIAGRAM);
        head = addDocument(model, std::move(tree));
        editor.setModel(&model);
        editor.setRootIndex(model.index(0, 0));
    }

    FishModel model;
    FishEditor editor;
    TreeItem *head = nullptr;
};

/// A main bone with \a width children.
std::unique_ptr<TreeItem> makeBranch(int width)
{
    auto head = std::make_unique<TreeItem>();
    head->setTitle(QStringLiteral("head"));
    head->appendChild(makeFan(width).release());
    return head;
}

/// Three children everywhere.
std::unique_ptr<TreeItem> makeBushy(int nodes)
{
    auto head = std::make_unique<TreeItem>();
    std::vector<TreeItem *> all{head.get()};
    for (std::size_t i = 0; int(all.size()) < nodes; ++i) {
        for (int row = 0; row < 3; ++row) {
            auto child = std::make_unique<TreeItem>();
            child->setTitle(QString::number(all.size()));
            all.push_back(child.get());
            all[i]->appendChild(child.release());
        }
    }
    return head;
}

double processorSeconds(const std::function<void()> &action)
{
    const std::clock_t start = std::clock();
    action();
    return double(std::clock() - start) / CLOCKS_PER_SEC;
}

/// Everything that touches every spear.
double secondsToUse(std::unique_ptr<TreeItem> tree)
{
    return processorSeconds([&tree] {
        LargeFixture fish(std::move(tree));
        fish.editor.expandAll();
        fish.editor.updateFish(false);
        fish.editor.selectAll();
        fish.editor.contractAll();
        fish.editor.updateFish(true);
    });
}
} // namespace

void TestFishEditorLargeDiagrams::shouldShowEveryLevel()
{
    constexpr int depth = 5000;
    LargeFixture fish(makeChain(depth));
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
    fish.editor.contractAll();
    fish.editor.updateFish(true);
    QCOMPARE(SpearItem::m_refCount, 2);
    fish.editor.expandAll();
    fish.editor.setRootIndex(QModelIndex());
    QCOMPARE(SpearItem::m_refCount, 0);
}

void TestFishEditorLargeDiagrams::shouldShowEveryRow()
{
    constexpr int width = 20000;
    LargeFixture fish(makeFan(width));
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
}

void TestFishEditorLargeDiagrams::shouldShowWideBranchesOfOneBone()
{
    constexpr int width = 20000;
    LargeFixture fish(makeBranch(width));
    fish.editor.generateSpear(&fish.model, fish.model.index(0, 0, fish.model.index(0, 0)));
    fish.editor.expandorContractAll(true);

    const SpearItem *const bone = fish.editor.headSpear()->childSpear(0);
    const QList<SpearItem *> children = bone->childSpears();
    QCOMPARE(children.size(), width);
    QCOMPARE(children.last()->text(), QString::number(width - 1));
    QCOMPARE(children.last()->offset() + children.last()->spearHeight(), bone->spearHeight());
}

void TestFishEditorLargeDiagrams::shouldTakeLinearTime_data()
{
    QTest::addColumn<Tree>("tree");
    QTest::addColumn<int>("nodes");

    QTest::newRow("deep") << Tree(makeChain) << 5000;
    QTest::newRow("wide backbone") << Tree(makeFan) << 20000;
    QTest::newRow("wide bone") << Tree(makeBranch) << 20000;
    QTest::newRow("bushy") << Tree(makeBushy) << 20000;
}

void TestFishEditorLargeDiagrams::shouldTakeLinearTime()
{
    QFETCH(Tree, tree);
    QFETCH(int, nodes);
    secondsToUse(tree(100)); // pictures and fonts are loaded now

    const double small = secondsToUse(tree(nodes / 4));
    const double large = secondsToUse(tree(nodes));

    qDebug("XX %g %g ratio %g", small, large, large/small);
    // Four times the nodes: 4 for linear time, 16 for quadratic time.
    QVERIFY2(large < 10 * small, qPrintable(QStringLiteral("%1 s for %2 nodes, %3 s for %4")
                                                .arg(small).arg(nodes / 4).arg(large).arg(nodes)));
}

QTEST_MAIN(TestFishEditorLargeDiagrams)
#include "tst_fisheditor_largediagrams.moc"
