// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/treeitem.h>

#include <tests/model/treeitemtreeparts.h>
#include <tests/program/testprogram.h>
#include <tests/support/documents.h>

#include <QtTest>

#include <limits>
#include <memory>

using namespace TestSupport;

/** The operations on a tree of nodes. */
/** Taking nodes out, and trees of any shape. */
class TestTreeItemTreeRemoving : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldTakeAChildWithoutClearingItsParent();
    void shouldRemoveChildren_data();
    void shouldRemoveChildren();
    void shouldSeeItsAncestors();
    void shouldNotNameAParentBelowItself();
    void shouldCopeWithDepth();
    void shouldCopeWithWidth();
    void shouldDeleteOnlyWhatIsListedUnderASanitizer();
};

void TestTreeItemTreeRemoving::shouldTakeAChildWithoutClearingItsParent()
{
    const auto parent = makeParent(3);

    const std::unique_ptr<TreeItem> taken(parent->takeAt(1));

    QCOMPARE(taken->title(), QStringLiteral("c1"));
    QCOMPARE(taken->parent(), parent.get());
    QCOMPARE(taken->index(), -1);
    QCOMPARE(childText(*parent), QStringLiteral("c0 c2"));
    QCOMPARE(parent->takeAt(-1), nullptr);
    QCOMPARE(parent->takeAt(2), nullptr);
}

void TestTreeItemTreeRemoving::shouldRemoveChildren_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("count");
    QTest::addColumn<bool>("result");
    QTest::addColumn<QString>("children");

    const QString unchanged = QStringLiteral("c0 c1 c2");
    QTest::newRow("first") << 0 << 1 << true << QStringLiteral("c1 c2");
    QTest::newRow("last two") << 1 << 2 << true << QStringLiteral("c0");
    QTest::newRow("all") << 0 << 3 << true << QString();
    QTest::newRow("none") << 3 << 0 << true << unchanged;
    QTest::newRow("less than none") << 1 << -1 << true << unchanged;
    QTest::newRow("too many") << 2 << 2 << false << unchanged;
    QTest::newRow("before the front") << -1 << 1 << false << unchanged;
    QTest::newRow("past the end") << 3 << 1 << false << unchanged;
    QTest::newRow("count at the limit") << 1 << maxInt << false << unchanged;
    QTest::newRow("position at the limit") << maxInt << maxInt << false << unchanged;
}

void TestTreeItemTreeRemoving::shouldRemoveChildren()
{
    QFETCH(int, position);
    QFETCH(int, count);
    QFETCH(bool, result);
    QFETCH(QString, children);
    const auto parent = makeParent(3);

    QCOMPARE(parent->removeChildren(position, count), result);

    QCOMPARE(childText(*parent), children);
    QVERIFY(childrenAgree(*parent));
}

void TestTreeItemTreeRemoving::shouldSeeItsAncestors()
{
    const auto top = makeParent(3);
    TreeItem *const middle = top->childAtIndex(2);
    middle->insertChildren(0, 1, QString());
    const TreeItem *const below = middle->childAtIndex(0);

    QVERIFY(top->isAncestorOf(middle));
    QVERIFY(top->isAncestorOf(below));
    QVERIFY(!below->isAncestorOf(top.get()));
    QVERIFY(!top->isAncestorOf(top.get()));
    QVERIFY(!top->isAncestorOf(nullptr));
    QCOMPARE(below->root(), top.get());
    QCOMPARE(top->root(), top.get());
    QCOMPARE(top->branchOf(below), 2);
    QCOMPARE(top->branchOf(middle), 2);
    QCOMPARE(top->branchOf(top.get()), -1);
    QCOMPARE(middle->branchOf(top.get()), -1);
}

void TestTreeItemTreeRemoving::shouldNotNameAParentBelowItself()
{
    const auto top = makeParent(1);
    TreeItem *const child = top->childAtIndex(0);

    top->setParent(child);
    QCOMPARE(top->parent(), nullptr);
    child->setParent(child);
    QCOMPARE(child->parent(), top.get());

    TreeItem other;
    top->setParent(&other);
    QCOMPARE(top->parent(), &other);
    child->setParent(&other);
    QCOMPARE(child->parent(), &other);
    QCOMPARE(child->index(), -1); // the other one does not list it
    QCOMPARE(top->childCount(), 1);
}

void TestTreeItemTreeRemoving::shouldCopeWithDepth()
{
    constexpr int depth = 100000;
    auto top = makeChain(depth);

    const TreeItem *last = top.get();
    int nodes = 1;
    for (; last->childCount() > 0; ++nodes)
        last = last->childAtIndex(0);
    QCOMPARE(nodes, depth);
    QVERIFY(top->isAncestorOf(last));
    QCOMPARE(last->root(), top.get());

    // And from below: each step puts all there is under a new node.
    std::unique_ptr<TreeItem> grown;
    for (int i = 0; i < depth; ++i) {
        auto above = std::make_unique<TreeItem>();
        above->appendChild(grown.release());
        grown = std::move(above);
    }
    QVERIFY(top->childAtIndex(0)->insertChildAtPosition(0, grown.release()));
    QCOMPARE(top->childAtIndex(0)->childCount(), 2);
    top.reset();
}

void TestTreeItemTreeRemoving::shouldCopeWithWidth()
{
    constexpr int width = 100000;
    const auto fan = makeFan(width);
    const auto other = makeFan(width);

    QVERIFY(childrenAgree(*fan));
    QVERIFY(fan->insertChildren(width / 2, width, QString()));
    QVERIFY(childrenAgree(*fan));
    QVERIFY(fan->moveChildren(10, width, other.get(), width / 2));
    QVERIFY(childrenAgree(*fan));
    QVERIFY(childrenAgree(*other));
    QCOMPARE(other->childCount(), 2 * width);
    QVERIFY(other->removeChildren(5, width));
    QVERIFY(childrenAgree(*other));
}

void TestTreeItemTreeRemoving::shouldDeleteOnlyWhatIsListedUnderASanitizer()
{
    // Lives on when its former parent goes; a sanitizer build sees both mistakes.
    auto parent = makeParent(2);
    const std::unique_ptr<TreeItem> taken(parent->takeAt(0));
    TreeItem named(QString(), QString(), QString(), QString(), 0, parent.get());

    parent.reset();

    QCOMPARE(taken->title(), QStringLiteral("c0"));
    QCOMPARE(named.title(), QString());
}

FISHBONE_GUILESS_TEST(TestTreeItemTreeRemoving)

#include "tst_treeitemtree_removing.moc"
