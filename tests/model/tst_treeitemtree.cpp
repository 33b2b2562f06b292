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
class TestTreeItemTree : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldAnswerNoChildOutsideItsList();
    void shouldHandOutACopyOfItsChildren();
    void shouldKnowItsRow();
    void shouldKnowItsRowAfterEveryChange();
    void shouldAppend_data();
    void shouldAppend();
    void shouldLeaveThePidAloneWhenAppending();
    void shouldTakeAnAppendedChildOutOfItsFormerList();
    void shouldMoveAChildThatIsAppendedAgain();
    void shouldNotBecomeItsOwnDescendant();
    void shouldIgnoreNoChild();
    void shouldSetThePidWhenInserting();
    void shouldInsertNewChildren_data();
    void shouldInsertNewChildren();
    void shouldMoveChildrenWithinItself_data();
    void shouldMoveChildrenWithinItself();
    void shouldMoveChildrenToAnotherParent();
    void shouldRefuseMoves_data();
    void shouldRefuseMoves();
    void shouldRefuseAMoveBelowTheMovedChild();
};

void TestTreeItemTree::shouldAnswerNoChildOutsideItsList()
{
    const auto parent = makeParent(2);

    QCOMPARE(parent->childAtIndex(-1), nullptr);
    QCOMPARE(parent->childAtIndex(1)->title(), QStringLiteral("c1"));
    QCOMPARE(parent->childAtIndex(2), nullptr);
    QCOMPARE(parent->childAtIndex(maxInt), nullptr);
}

void TestTreeItemTree::shouldHandOutACopyOfItsChildren()
{
    const auto parent = makeParent(2);

    QList<TreeItem *> copy = parent->children();
    copy.clear();

    QCOMPARE(parent->childCount(), 2);
}

void TestTreeItemTree::shouldKnowItsRow()
{
    const auto parent = makeParent(3);
    TreeItem stranger;
    stranger.setParent(parent.get());

    QCOMPARE(parent->index(), 0); // without a parent
    QCOMPARE(parent->childAtIndex(2)->index(), 2);
    QCOMPARE(stranger.index(), -1);
}

void TestTreeItemTree::shouldKnowItsRowAfterEveryChange()
{
    const auto parent = makeParent(5);
    const auto other = makeParent(3);

    parent->appendChild(new TreeItem, 1);
    QVERIFY(childrenAgree(*parent));
    parent->insertChildAtPosition(0, new TreeItem);
    QVERIFY(childrenAgree(*parent));
    parent->insertChildren(3, 4, QString());
    QVERIFY(childrenAgree(*parent));
    parent->moveChildren(1, 3, other.get(), 2);
    QVERIFY(childrenAgree(*parent));
    QVERIFY(childrenAgree(*other));
    parent->moveChildren(5, 2, parent.get(), 1);
    QVERIFY(childrenAgree(*parent));
    delete parent->takeAt(2);
    QVERIFY(childrenAgree(*parent));
    parent->removeChildren(0, 2);
    QVERIFY(childrenAgree(*parent));
}

void TestTreeItemTree::shouldAppend_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<QString>("children");

    QTest::newRow("at the end by default") << -1 << QStringLiteral("c0 c1 new");
    QTest::newRow("at the front") << 0 << QStringLiteral("new c0 c1");
    QTest::newRow("between") << 1 << QStringLiteral("c0 new c1");
    QTest::newRow("at the end") << 2 << QStringLiteral("c0 c1 new");
    QTest::newRow("past the end") << 5 << QStringLiteral("c0 c1 new");
    QTest::newRow("far before") << -maxInt << QStringLiteral("c0 c1 new");
}

void TestTreeItemTree::shouldAppend()
{
    QFETCH(int, position);
    QFETCH(QString, children);
    const auto parent = makeParent(2);
    auto *const child = new TreeItem;
    child->setTitle(QStringLiteral("new"));

    parent->appendChild(child, position);

    QCOMPARE(childText(*parent), children);
    QVERIFY(childrenAgree(*parent));
}

void TestTreeItemTree::shouldLeaveThePidAloneWhenAppending()
{
    const auto parent = makeParent(0);
    auto *const child = new TreeItem;
    child->setPid(QStringLiteral("elsewhere"));

    parent->appendChild(child);

    QCOMPARE(child->pid(), QStringLiteral("elsewhere"));
    QCOMPARE(child->parent(), parent.get());
}

void TestTreeItemTree::shouldTakeAnAppendedChildOutOfItsFormerList()
{
    const auto former = makeParent(3);
    const auto parent = makeParent(0);

    parent->appendChild(former->childAtIndex(1));

    QCOMPARE(childText(*former), QStringLiteral("c0 c2"));
    QCOMPARE(childText(*parent), QStringLiteral("c1"));
    QVERIFY(childrenAgree(*former));

    parent->insertChildAtPosition(0, former->childAtIndex(0));

    QCOMPARE(childText(*former), QStringLiteral("c2"));
    QCOMPARE(childText(*parent), QStringLiteral("c0 c1"));
}

void TestTreeItemTree::shouldMoveAChildThatIsAppendedAgain()
{
    const auto parent = makeParent(3);

    parent->appendChild(parent->childAtIndex(0));
    QCOMPARE(childText(*parent), QStringLiteral("c1 c2 c0"));

    parent->appendChild(parent->childAtIndex(2), 1);
    QCOMPARE(childText(*parent), QStringLiteral("c1 c0 c2"));
    QVERIFY(childrenAgree(*parent));
}

void TestTreeItemTree::shouldNotBecomeItsOwnDescendant()
{
    const auto top = makeParent(1);
    TreeItem *const child = top->childAtIndex(0);
    child->insertChildren(0, 1, QString());
    TreeItem *const grandchild = child->childAtIndex(0);
    const QString before = treeToText(*top);

    top->appendChild(top.get());
    child->appendChild(top.get());
    grandchild->appendChild(top.get());
    grandchild->appendChild(child);
    QVERIFY(!grandchild->insertChildAtPosition(0, top.get()));
    QVERIFY(!child->insertChildAtPosition(0, child));

    QCOMPARE(treeToText(*top), before);
    QCOMPARE(top->parent(), nullptr);
    QCOMPARE(child->parent(), top.get());
}

void TestTreeItemTree::shouldIgnoreNoChild()
{
    const auto parent = makeParent(1);

    parent->appendChild(nullptr);
    QVERIFY(!parent->insertChildAtPosition(0, nullptr));

    QCOMPARE(childText(*parent), QStringLiteral("c0"));
}

void TestTreeItemTree::shouldSetThePidWhenInserting()
{
    const auto parent = makeParent(2);
    auto *const child = new TreeItem;
    child->setTitle(QStringLiteral("new"));

    QVERIFY(parent->insertChildAtPosition(1, child));

    QCOMPARE(childText(*parent), QStringLiteral("c0 new c1"));
    QCOMPARE(child->pid(), QStringLiteral("u"));
    QCOMPARE(child->parent(), parent.get());
}

void TestTreeItemTree::shouldInsertNewChildren_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("count");
    QTest::addColumn<bool>("result");
    QTest::addColumn<QString>("children");

    const QString unchanged = QStringLiteral("c0 c1");
    QTest::newRow("at the end") << 2 << 3 << true << QStringLiteral("c0 c1 子主题 子主题 子主题");
    QTest::newRow("at the front") << 0 << 1 << true << QStringLiteral("子主题 c0 c1");
    QTest::newRow("between") << 1 << 2 << true << QStringLiteral("c0 子主题 子主题 c1");
    QTest::newRow("none") << 1 << 0 << true << unchanged;
    QTest::newRow("less than none") << 1 << -5 << true << unchanged;
    QTest::newRow("past the end") << 3 << 1 << false << unchanged;
    QTest::newRow("none past the end") << 3 << 0 << false << unchanged;
    QTest::newRow("before the front") << -1 << 1 << false << unchanged;
    QTest::newRow("far past the end") << maxInt << 1 << false << unchanged;
}

void TestTreeItemTree::shouldInsertNewChildren()
{
    QFETCH(int, position);
    QFETCH(int, count);
    QFETCH(bool, result);
    QFETCH(QString, children);
    const auto parent = makeParent(2);

    QCOMPARE(parent->insertChildren(position, count, QStringLiteral("ignored")), result);

    QCOMPARE(childText(*parent), children);
    QVERIFY(childrenAgree(*parent));
    for (int i = 0; result && i < count; ++i) {
        const TreeItem *const child = parent->childAtIndex(position + i);
        QCOMPARE(child->pid(), QStringLiteral("u"));
        QCOMPARE(child->uuid(), QString());
        QCOMPARE(child->showid(), QString());
        QCOMPARE(child->type(), 0);
        QCOMPARE(child->status(), -1);
    }
}

void TestTreeItemTree::shouldMoveChildrenWithinItself_data()
{
    QTest::addColumn<int>("source");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("destination");
    QTest::addColumn<QString>("children");

    QTest::newRow("one forward") << 0 << 1 << 3 << QStringLiteral("c1 c2 c0 c3");
    QTest::newRow("one to the end") << 0 << 1 << 4 << QStringLiteral("c1 c2 c3 c0");
    QTest::newRow("one back") << 2 << 1 << 0 << QStringLiteral("c2 c0 c1 c3");
    QTest::newRow("one where it is") << 1 << 1 << 1 << QStringLiteral("c0 c1 c2 c3");
    QTest::newRow("one behind itself") << 1 << 1 << 2 << QStringLiteral("c0 c1 c2 c3");
    QTest::newRow("two forward") << 0 << 2 << 3 << QStringLiteral("c2 c0 c3 c1");
    QTest::newRow("two to the end") << 0 << 2 << 4 << QStringLiteral("c2 c3 c0 c1");
    QTest::newRow("two back") << 2 << 2 << 0 << QStringLiteral("c2 c1 c0 c3");
    QTest::newRow("three forward") << 1 << 3 << 3 << QStringLiteral("c0 c3 c2 c1");
    QTest::newRow("none") << 1 << 0 << 3 << QStringLiteral("c0 c1 c2 c3");
}

void TestTreeItemTree::shouldMoveChildrenWithinItself()
{
    QFETCH(int, source);
    QFETCH(int, count);
    QFETCH(int, destination);
    QFETCH(QString, children);
    const auto parent = makeParent(4);

    QVERIFY(parent->moveChildren(source, count, parent.get(), destination));

    QCOMPARE(childText(*parent), children);
    QVERIFY(childrenAgree(*parent));
}

void TestTreeItemTree::shouldMoveChildrenToAnotherParent()
{
    const auto from = makeParent(4);
    const auto to = makeParent(2);
    to->setUuid(QStringLiteral("target"));

    QVERIFY(from->moveChildren(1, 2, to.get(), 1));

    QCOMPARE(childText(*from), QStringLiteral("c0 c3"));
    QCOMPARE(childText(*to), QStringLiteral("c0 c1 c2 c1"));
    QVERIFY(childrenAgree(*from));
    QVERIFY(childrenAgree(*to));
    QCOMPARE(to->childAtIndex(1)->pid(), QStringLiteral("target"));
    QCOMPARE(to->childAtIndex(2)->pid(), QStringLiteral("target"));
    QCOMPARE(to->childAtIndex(3)->pid(), QStringLiteral("-1")); // stood there before
}

void TestTreeItemTree::shouldRefuseMoves_data()
{
    QTest::addColumn<int>("source");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("destination");

    QTest::newRow("from before the front") << -1 << 1 << 0;
    QTest::newRow("to before the front") << 0 << 1 << -1;
    QTest::newRow("from past the end") << 4 << 1 << 0;
    QTest::newRow("more than there are") << 2 << 3 << 0;
    QTest::newRow("to past the end") << 0 << 1 << 3;
    QTest::newRow("count at the limit") << 1 << maxInt << 0;
    QTest::newRow("source at the limit") << maxInt << 1 << 0;
    QTest::newRow("destination at the limit") << 0 << 1 << maxInt;
    QTest::newRow("none from past the end") << 5 << 0 << 0;
}

void TestTreeItemTree::shouldRefuseMoves()
{
    QFETCH(int, source);
    QFETCH(int, count);
    QFETCH(int, destination);
    const auto from = makeParent(4);
    const auto to = makeParent(2);

    QVERIFY(!from->moveChildren(source, count, to.get(), destination));
    QVERIFY(!from->moveChildren(source, count, nullptr, destination));

    QCOMPARE(childText(*from), QStringLiteral("c0 c1 c2 c3"));
    QCOMPARE(childText(*to), QStringLiteral("c0 c1"));
}

void TestTreeItemTree::shouldRefuseAMoveBelowTheMovedChild()
{
    const auto top = makeParent(3);
    TreeItem *const middle = top->childAtIndex(1);
    middle->insertChildren(0, 1, QString());
    TreeItem *const below = middle->childAtIndex(0);

    QVERIFY(!top->moveChildren(1, 1, middle, 0));
    QVERIFY(!top->moveChildren(0, 3, below, 0));
    QCOMPARE(childText(*top), QStringLiteral("c0 c1 c2"));

    QVERIFY(top->moveChildren(0, 1, below, 0));
    QCOMPARE(treeToText(*top), QStringLiteral("p[c1[子主题[c0]],c2]"));
}

FISHBONE_GUILESS_TEST(TestTreeItemTree)

#include "tst_treeitemtree.moc"
