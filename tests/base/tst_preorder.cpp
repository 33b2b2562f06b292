// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QtTest>

#include <fishbone/base/preorder.h>
#include <tests/program/testprogram.h>

#include <memory>

namespace {

struct Node
{
    QString name;
    std::vector<Node *> below;
};

const std::vector<Node *> &childrenOf(const Node &node)
{
    return node.below;
}

/** a[b[c,d],e] */
struct Tree
{
    Node c{QStringLiteral("c"), {}};
    Node d{QStringLiteral("d"), {}};
    Node e{QStringLiteral("e"), {}};
    Node b{QStringLiteral("b"), {&c, &d}};
    Node a{QStringLiteral("a"), {&b, &e}};
};

} // namespace

/** The one walk over trees. */
class TestPreorder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldVisitParentsFirstAndSiblingsInTheirOrder();
    void shouldEndWhenTheVisitorWantsNoMore();
    void shouldVisitNothingWithoutATop();
    void shouldGoBelowWhatAVisitHasMade();
    void shouldTakeNoStack();
};

void TestPreorder::shouldVisitParentsFirstAndSiblingsInTheirOrder()
{
    Tree tree;
    QString names;
    QVERIFY(visitPreOrder(&tree.a, childrenOf, [&names](const Node *node) {
        names += node->name;
        return true;
    }));
    QCOMPARE(names, QStringLiteral("abcde"));
}

void TestPreorder::shouldEndWhenTheVisitorWantsNoMore()
{
    Tree tree;
    QString names;
    QVERIFY(!visitPreOrder(&tree.a, childrenOf, [&names](const Node *node) {
        names += node->name;
        return node->name != QLatin1String("c");
    }));
    QCOMPARE(names, QStringLiteral("abc"));
}

void TestPreorder::shouldVisitNothingWithoutATop()
{
    Node *const none = nullptr;
    bool isVisited = false;
    QVERIFY(
        visitPreOrder(none, childrenOf, [&isVisited](const Node *) { return isVisited = true; }));
    QVERIFY(!isVisited);
}

void TestPreorder::shouldGoBelowWhatAVisitHasMade()
{
    Tree tree;
    Node added{QStringLiteral("f"), {}};
    QString names;
    visitPreOrder(&tree.a, childrenOf, [&](Node *node) {
        names += node->name;
        if (node == &tree.e)
            node->below.push_back(&added);
        return true;
    });
    QCOMPARE(names, QStringLiteral("abcdef"));
}

void TestPreorder::shouldTakeNoStack()
{
    std::vector<Node> chain(200000);
    for (std::size_t i = 1; i < chain.size(); ++i)
        chain[i - 1].below.push_back(&chain[i]);
    std::size_t count = 0;
    QVERIFY(
        visitPreOrder(&chain.front(), childrenOf, [&count](const Node *) { return ++count > 0; }));
    QCOMPARE(count, chain.size());
}

FISHBONE_TEST(TestPreorder)
#include "tst_preorder.moc"
