// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/fishmodel.h>

#include <fishbone/model/fishinfo.h>
#include <fishbone/model/treeitem.h>

#include <tests/model/treeitemtreeparts.h>
#include <tests/program/testprogram.h>
#include <tests/support/documents.h>
#include <tests/support/modelfollower.h>

#include <QAbstractItemModelTester>
#include <QtTest>

#include <limits>

using namespace TestSupport;

namespace {

TreeItem *makeNode(const char *title)
{
    return new TreeItem(QString::fromLatin1(title),
                        QStringLiteral("u-") + QString::fromLatin1(title), QString(), QString(), 0);
}

} // namespace

/** Insertion and removal of rows. */
class TestFishModelRows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void shouldInsertSubjects();
    void shouldInsertDocuments();
    void shouldCheckRangesBeforeAnnouncing_data();
    void shouldCheckRangesBeforeAnnouncing();
    void shouldAppendExistingNodes();
    void shouldAppendExistingNodesAsDocuments();
    void shouldReverseSeveralExistingNodes();
    void shouldGiveExistingNodesAUuidWhenTheyHaveNone_data();
    void shouldGiveExistingNodesAUuidWhenTheyHaveNone();
    void shouldSkipNullNodes();
    void shouldAppendNothingFromAnEmptyList();
    void shouldRefuseNodesOfThisModel();
    void shouldRefuseNodesOfAnotherModel();
    void shouldRefuseANodeTwice();
    void shouldJudgeManyNodesInOneWalk();
    void shouldTakeANodeOutOfItsFormerTree();
    void shouldUseWaitingNodesOnce();
    void shouldRemoveSubjects();
    void shouldRemoveDocuments();
    void shouldTakeASubject();
    void shouldTakeAHead();
    void shouldTakeNothingOutsideTheRange();
    void shouldTakeRowsGivenByAnotherColumn();
    void shouldInsertManyRowsInTime();

private:
    /** The model as text, after checking that it announced all it did. */
    QString tree() const;
    QModelIndex head(int row = 0) const { return m_model->index(row, 0); }

    std::unique_ptr<FishModel> m_model;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
    std::unique_ptr<ModelFollower> m_follower;
};

void TestFishModelRows::init()
{
    m_model = std::make_unique<FishModel>();
    m_model->setModelType(FISH_MODEL_DIAGRAM);
    loadDocument(*m_model, QStringLiteral("A[a,b,c]"));
    m_tester = std::make_unique<QAbstractItemModelTester>(m_model.get());
    m_follower = std::make_unique<ModelFollower>(*m_model);
}

void TestFishModelRows::cleanup()
{
    QCOMPARE(m_follower->text(), m_follower->modelText());
    m_follower.reset();
    m_tester.reset();
    m_model.reset();
}

QString TestFishModelRows::tree() const
{
    return m_follower->text() == m_follower->modelText() ? m_follower->text()
                                                         : QStringLiteral("not as announced");
}

void TestFishModelRows::shouldInsertSubjects()
{
    const QPersistentModelIndex c = m_model->index(2, 0, head());

    QVERIFY(m_model->insertRows(1, 2, head()));

    QCOMPARE(tree(), QStringLiteral("A[a,子主题,子主题,b,c]"));
    QCOMPARE(c.row(), 4);
    QSet<QString> uuids;
    for (int row = 1; row <= 2; ++row) {
        const TreeItem *const made = m_model->getTreeItem(m_model->index(row, 0, head()));
        QCOMPARE(made->pid(), QStringLiteral("u-A"));
        QCOMPARE(made->uuid().length(), 38);
        uuids.insert(made->uuid());
    }
    QCOMPARE(uuids.size(), 2);
}

void TestFishModelRows::shouldInsertDocuments()
{
    const QPersistentModelIndex first = head();

    QVERIFY(m_model->insertRows(0, 2));

    QCOMPARE(tree(), QStringLiteral("自由主题;自由主题;A[a,b,c]"));
    QCOMPARE(first.row(), 2);
    const TreeItem *const made = m_model->getTreeItem(head(0));
    QCOMPARE(made->uuid().length(), 38);
    QVERIFY(made->uuid() != m_model->getTreeItem(head(1))->uuid());
    QCOMPARE(made->pid(), QString());
    QCOMPARE(made->showid(), QString());
    QCOMPARE(made->type(), 0);
    QCOMPARE(m_model->fishList().at(1)->model(), m_model.get());
    QVERIFY(m_model->fishList().at(1)->isUntitled());
}

void TestFishModelRows::shouldCheckRangesBeforeAnnouncing_data()
{
    QTest::addColumn<bool>("top");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("count");
    QTest::addColumn<bool>("inserts");
    QTest::addColumn<bool>("removes");

    QTest::newRow("before the first") << false << -1 << 1 << false << false;
    QTest::newRow("past the end") << false << 4 << 1 << false << false;
    QTest::newRow("none past the end") << false << 4 << 0 << false << false;
    QTest::newRow("none") << false << 1 << 0 << true << true;
    QTest::newRow("less than none") << false << 1 << -3 << true << true;
    QTest::newRow("more than can be") << false << 1 << TestSupport::maxInt << false << false;
    QTest::newRow("row at the limit")
        << false << TestSupport::maxInt << TestSupport::maxInt << false << false;
    QTest::newRow("document before the first") << true << -1 << 1 << false << false;
    QTest::newRow("document past the end") << true << 2 << 1 << false << false;
    QTest::newRow("no document") << true << 1 << 0 << true << true;
    QTest::newRow("more documents than can be")
        << true << 1 << TestSupport::maxInt << false << false;
}

void TestFishModelRows::shouldCheckRangesBeforeAnnouncing()
{
    QFETCH(bool, top);
    QFETCH(int, row);
    QFETCH(int, count);
    QFETCH(bool, inserts);
    QFETCH(bool, removes);
    const int before = m_follower->announcements();
    const QModelIndex parent = top ? QModelIndex() : head();

    QCOMPARE(m_model->insertRows(row, count, parent), inserts);
    QCOMPARE(m_model->removeRows(row, count, parent), removes);

    QCOMPARE(tree(), QStringLiteral("A[a,b,c]"));
    QCOMPARE(m_follower->announcements(), before);
}

void TestFishModelRows::shouldAppendExistingNodes()
{
    TreeItem *const node = makeNode("new");
    node->appendChild(makeNode("below"));

    QVERIFY(m_model->insertExistItemRows(m_model->index(1, 0, head()), {node}));

    QCOMPARE(tree(), QStringLiteral("A[a,b[new[below]],c]"));
    QCOMPARE(node->pid(), QStringLiteral("u-b"));
    QCOMPARE(node->uuid(), QStringLiteral("u-new"));
}

void TestFishModelRows::shouldAppendExistingNodesAsDocuments()
{
    TreeItem *const node = makeNode("new");
    node->setPid(QStringLiteral("kept"));

    QVERIFY(m_model->insertExistItemRows(QModelIndex(), {node}));

    QCOMPARE(tree(), QStringLiteral("A[a,b,c];new"));
    QCOMPARE(node->pid(), QStringLiteral("kept"));
    QVERIFY(node->isTopVaildItem());
    QCOMPARE(m_model->fishList().last()->model(), m_model.get());
}

void TestFishModelRows::shouldReverseSeveralExistingNodes()
{
    QVERIFY(m_model->insertExistItemRows(head(), {makeNode("1"), makeNode("2"), makeNode("3")}));
    QVERIFY(m_model->insertExistItemRows(QModelIndex(), {makeNode("4"), makeNode("5")}));

    QCOMPARE(tree(), QStringLiteral("A[a,b,c,3,2,1];5;4"));
}

void TestFishModelRows::shouldGiveExistingNodesAUuidWhenTheyHaveNone_data()
{
    QTest::addColumn<bool>("top");
    QTest::addColumn<QString>("uuid");
    QTest::addColumn<int>("length");

    QTest::newRow("none") << false << QString() << 38;
    QTest::newRow("empty") << false << QStringLiteral("") << 38;
    QTest::newRow("minus one") << false << QStringLiteral("-1") << 38;
    QTest::newRow("one") << false << QStringLiteral("1") << 1;
    QTest::newRow("none for a head") << true << QStringLiteral("") << 38;
    QTest::newRow("one for a head") << true << QStringLiteral("1") << 1;
}

void TestFishModelRows::shouldGiveExistingNodesAUuidWhenTheyHaveNone()
{
    QFETCH(bool, top);
    QFETCH(QString, uuid);
    QFETCH(int, length);
    TreeItem *const node = makeNode("new");
    node->setUuid(uuid);

    QVERIFY(m_model->insertExistItemRows(top ? QModelIndex() : head(), {node}));

    QCOMPARE(node->uuid().length(), length);
}

void TestFishModelRows::shouldSkipNullNodes()
{
    const int before = m_follower->announcements();

    QVERIFY(m_model->insertExistItemRows(head(), {nullptr, nullptr}));
    QCOMPARE(m_follower->announcements(), before);

    QVERIFY(m_model->insertExistItemRows(head(), {nullptr, makeNode("1"), nullptr}));
    QVERIFY(m_model->insertExistItemRows(QModelIndex(), {makeNode("2"), nullptr}));
    QCOMPARE(tree(), QStringLiteral("A[a,b,c,1];2"));
}

void TestFishModelRows::shouldAppendNothingFromAnEmptyList()
{
    const int before = m_follower->announcements();

    QVERIFY(m_model->insertExistItemRows(head(), {}));
    QVERIFY(m_model->insertExistItemRows(QModelIndex(), {}));

    QCOMPARE(tree(), QStringLiteral("A[a,b,c]"));
    QCOMPARE(m_follower->announcements(), before);
}

void TestFishModelRows::shouldRefuseNodesOfThisModel()
{
    const QModelIndex b = m_model->index(1, 0, head());
    TreeItem *const item = m_model->getTreeItem(b);
    TreeItem *const top = m_model->getTreeItem(head());
    const int before = m_follower->announcements();

    QVERIFY(!m_model->insertExistItemRows(head(), {item}));
    QVERIFY(!m_model->insertExistItemRows(b, {item}));
    QVERIFY(!m_model->insertExistItemRows(b, {top}));
    QVERIFY(!m_model->insertExistItemRows(b, {m_model->fishList().first()->treeItem()}));
    QVERIFY(!m_model->insertExistItemRows(QModelIndex(), {item}));
    QVERIFY(!m_model->insertExistItemRows(QModelIndex(), {top}));
    QCOMPARE(m_follower->announcements(), before);
    QCOMPARE(tree(), QStringLiteral("A[a,b,c]"));

    const std::unique_ptr<TreeItem> one(makeNode("1"));
    QVERIFY(!m_model->insertExistItemRows(b, {one.get(), item}));
    QVERIFY(!m_model->insertExistItemRows(b, {item, one.get()}));
    QVERIFY(!m_model->insertExistItemRows(QModelIndex(), {one.get(), item}));
    QCOMPARE(m_follower->announcements(), before);
    QCOMPARE(tree(), QStringLiteral("A[a,b,c]"));
    QVERIFY(!one->parent());
    QCOMPARE(one->uuid(), QStringLiteral("u-1"));
}

void TestFishModelRows::shouldRefuseNodesOfAnotherModel()
{
    FishModel other;
    TreeItem *const theirs = loadDocument(other, QStringLiteral("B[b[x]]"))->treeItem();
    TreeItem *const b = theirs->childAtIndex(0)->childAtIndex(0);
    const std::unique_ptr<TreeItem> one(makeNode("1"));
    const int before = m_follower->announcements();

    QVERIFY(!m_model->insertExistItemRows(head(), {b}));
    QVERIFY(!m_model->insertExistItemRows(head(), {one.get(), b->childAtIndex(0)}));
    QVERIFY(!m_model->insertExistItemRows(QModelIndex(), {theirs->childAtIndex(0)}));
    QVERIFY(!m_model->insertExistItemRows(QModelIndex(), {theirs}));
    QVERIFY(!m_model->putRow(0, b, head()));
    QVERIFY(!m_model->insertFishToList(0, b));
    const FishInfo loose;
    QVERIFY(!m_model->insertExistItemRows(head(), {loose.treeItem()}));

    QCOMPARE(m_follower->announcements(), before);
    QCOMPARE(tree(), QStringLiteral("A[a,b,c]"));
    QCOMPARE(treeToText(*theirs->childAtIndex(0)), QStringLiteral("B[b[x]]"));
}

void TestFishModelRows::shouldRefuseANodeTwice()
{
    const std::unique_ptr<TreeItem> node(makeNode("new"));
    TreeItem *const below = makeNode("below");
    node->appendChild(below);
    below->appendChild(makeNode("child"));

    QVERIFY(!m_model->insertExistItemRows(head(), {node.get(), node.get()}));
    QVERIFY(!m_model->insertExistItemRows(head(), {node.get(), below}));
    QVERIFY(!m_model->insertExistItemRows(head(), {node.get(), below->childAtIndex(0)}));
    QCOMPARE(tree(), QStringLiteral("A[a,b,c]"));
    QCOMPARE(treeToText(*node), QStringLiteral("new[below[child]]"));
}

void TestFishModelRows::shouldJudgeManyNodesInOneWalk()
{
    constexpr int depth = 100000;
    const std::unique_ptr<TreeItem> chain = makeChain(depth);
    TreeItem *last = chain.get();
    while (last->childCount() > 0)
        last = last->childAtIndex(0);
    QList<TreeItem *> leaves;
    for (int i = 0; i < depth; ++i) {
        leaves.append(makeNode("leaf"));
        last->appendChild(leaves.last());
    }

    QVERIFY(m_model->insertExistItemRows(head(), leaves)); // a walk for each would take minutes
    QCOMPARE(m_model->rowCount(head()), 3 + depth);
}

void TestFishModelRows::shouldTakeANodeOutOfItsFormerTree()
{
    TreeItem former;
    former.appendChild(makeNode("1"));
    former.appendChild(makeNode("2"));

    QVERIFY(m_model->insertExistItemRows(head(), {former.childAtIndex(0)}));

    QCOMPARE(tree(), QStringLiteral("A[a,b,c,1]"));
    QCOMPARE(former.childCount(), 1);

    // First the child, then what it was below: both come, side by side.
    TreeItem *const above = makeNode("above");
    above->appendChild(makeNode("child"));
    QVERIFY(m_model->insertExistItemRows(head(), {above->childAtIndex(0), above}));
    QCOMPARE(tree(), QStringLiteral("A[a,b,c,1,above,child]"));
}

void TestFishModelRows::shouldUseWaitingNodesOnce()
{
    QVERIFY(m_model->insertExistItemRows(head(), {makeNode("1")}));
    QVERIFY(m_model->insertRows(0, 1, head()));
    QCOMPARE(tree(), QStringLiteral("A[子主题,a,b,c,1]"));

    // A refused insertion uses them up as well.
    FishModel other;
    loadDocument(other, QStringLiteral("B"));
    const std::unique_ptr<TreeItem> node(makeNode("2"));
    QVERIFY(!m_model->insertExistItemRows(other.index(0, 0), {node.get()}));
    QVERIFY(m_model->insertRows(0, 1, head()));
    QCOMPARE(tree(), QStringLiteral("A[子主题,子主题,a,b,c,1]"));
}

void TestFishModelRows::shouldRemoveSubjects()
{
    const QPersistentModelIndex b = m_model->index(1, 0, head());
    const QPersistentModelIndex c = m_model->index(2, 3, head());

    QVERIFY(m_model->removeRows(0, 2, head()));

    QCOMPARE(tree(), QStringLiteral("A[c]"));
    QVERIFY(!b.isValid());
    QCOMPARE(c.row(), 0);
    QVERIFY(m_model->removeRows(0, 1, head()));
    QCOMPARE(tree(), QStringLiteral("A"));
    QVERIFY(!m_model->removeRows(0, 1, head()));
}

void TestFishModelRows::shouldRemoveDocuments()
{
    loadDocument(*m_model, QStringLiteral("B[x]"));
    loadDocument(*m_model, QStringLiteral("C"));
    const QPointer<FishInfo> first = m_model->fishList().at(0);
    const QPersistentModelIndex x = m_model->index(0, 0, head(1));
    const QPersistentModelIndex last = head(2);

    QVERIFY(m_model->removeRows(0, 2));

    QCOMPARE(tree(), QStringLiteral("C"));
    QVERIFY(!first);
    QVERIFY(!x.isValid());
    QCOMPARE(last.row(), 0);
}

void TestFishModelRows::shouldTakeASubject()
{
    const std::unique_ptr<TreeItem> taken(m_model->takeRow(1, head()));

    QCOMPARE(tree(), QStringLiteral("A[a,c]"));
    QCOMPARE(taken->title(), QStringLiteral("b"));
    QCOMPARE(taken->parent(), nullptr);
    QCOMPARE(taken->pid(), QStringLiteral("u-A"));
}

void TestFishModelRows::shouldTakeAHead()
{
    const QPointer<FishInfo> document = m_model->fishList().first();

    const std::unique_ptr<TreeItem> taken(m_model->takeRow(0, QModelIndex()));

    QCOMPARE(tree(), QString());
    QCOMPARE(treeToText(*taken), QStringLiteral("A[a,b,c]"));
    QCOMPARE(taken->parent(), nullptr);
    QVERIFY(!document);
}

void TestFishModelRows::shouldTakeNothingOutsideTheRange()
{
    const int before = m_follower->announcements();

    QCOMPARE(m_model->takeRow(-1, head()), nullptr);
    QCOMPARE(m_model->takeRow(3, head()), nullptr);
    QCOMPARE(m_model->takeRow(-1, QModelIndex()), nullptr);
    QCOMPARE(m_model->takeRow(1, QModelIndex()), nullptr);

    QCOMPARE(tree(), QStringLiteral("A[a,b,c]"));
    QCOMPARE(m_follower->announcements(), before);
}

void TestFishModelRows::shouldTakeRowsGivenByAnotherColumn()
{
    // Views know rows below the first column only, and so do the announcements.
    const QModelIndex uuidColumn = m_model->index(0, 1);

    QVERIFY(m_model->insertRows(0, 1, uuidColumn));
    QVERIFY(m_model->removeRows(1, 1, uuidColumn));
    QVERIFY(m_model->moveRows(uuidColumn, 0, 1, uuidColumn, 3));

    QCOMPARE(tree(), QStringLiteral("A[b,c,子主题]"));
}

void TestFishModelRows::shouldInsertManyRowsInTime()
{
    constexpr int rows = 100000;
    m_tester.reset(); // asks every row again after each change
    m_follower = std::make_unique<ModelFollower>(*m_model);

    QVERIFY(m_model->insertRows(1, rows, head()));
    QCOMPARE(m_model->rowCount(head()), rows + 3);
    QList<TreeItem *> nodes;
    for (int i = 0; i < rows; ++i)
        nodes.append(makeNode("n"));
    QVERIFY(m_model->insertExistItemRows(head(), nodes));
    QCOMPARE(m_model->getTreeItem(m_model->index(rows + 3, 0, head())), nodes.last());
    QCOMPARE(m_model->getTreeItem(m_model->index(2 * rows + 2, 0, head())), nodes.first());
    QVERIFY(m_model->removeRows(0, 2 * rows, head()));
    QCOMPARE(m_model->rowCount(head()), 3);
}

FISHBONE_TEST(TestFishModelRows)

#include "tst_fishmodel_rows.moc"
