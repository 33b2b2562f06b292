// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QAbstractItemModelTester>
#include <QTreeView>
#include <QtTest>

#include <tests/program/testprogram.h>
#include <tests/support/documents.h>
#include <tests/support/modelfollower.h>

using namespace TestSupport;

/** Putting a node back with FishModel::putRow(), and exchanging the head of a document. */
class TestFishModelHeads : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void shouldPutANodeIntoARow_data();
    void shouldPutANodeIntoARow();
    void shouldKeepThePidOfAPutNode();
    void shouldPutBackWhatWasTaken();
    void shouldRefuseToPut_data();
    void shouldRefuseToPut();
    void shouldRefuseToPutWhatTheModelHas();
    void shouldRefuseToPutWhatAnotherListHolds();
    void shouldRefuseToPutATreeIntoItself();

    void shouldPutANewHeadAboveTheOldOne();
    void shouldPutAHeadWithChildrenAboveTheOldOne();
    void shouldKeepPersistentIndexesAcrossANewHead();
    void shouldRefuseANewHead();
    void shouldTakeTheHeadOffAgain();
    void shouldTakeTheHeadOffWithItsOtherChildren();
    void shouldDropPersistentIndexesThatLeave();
    void shouldRefuseToTakeTheHeadOff();
    void shouldShowANewHeadInATreeView();

private:
    QString text() const;
    QModelIndex index(const char *title) const;
    TreeItem *node(const char *title) const;

    std::unique_ptr<FishModel> m_model;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
    std::unique_ptr<ModelFollower> m_follower;
};

namespace {
std::unique_ptr<TreeItem> makeNode(const char *title)
{
    auto made = std::make_unique<TreeItem>();
    made->setTitle(QLatin1String(title));
    made->setUuid(QStringLiteral("u-") + QLatin1String(title));
    made->setPid(QStringLiteral("somebody"));
    return made;
}
} // namespace

void TestFishModelHeads::init()
{
    m_model = std::make_unique<FishModel>();
    m_model->setModelType(FISH_MODEL_DIAGRAM);
    loadDocument(*m_model, QStringLiteral("G"));
    loadDocument(*m_model, QStringLiteral("H[A[a,b],B]"));
    m_tester = std::make_unique<QAbstractItemModelTester>(
        m_model.get(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    m_follower = std::make_unique<ModelFollower>(*m_model);
}

void TestFishModelHeads::cleanup()
{
    QCOMPARE(m_follower->text(), m_follower->modelText());
    m_follower.reset();
    m_tester.reset();
    m_model.reset();
}

QString TestFishModelHeads::text() const
{
    return m_follower->modelText();
}

QModelIndex TestFishModelHeads::index(const char *title) const
{
    return indexTitled(*m_model, QLatin1String(title));
}

TreeItem *TestFishModelHeads::node(const char *title) const
{
    return nodeTitled(*m_model, QLatin1String(title));
}

void TestFishModelHeads::shouldPutANodeIntoARow_data()
{
    QTest::addColumn<QByteArray>("parent");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("expected");
    QTest::newRow("front") << QByteArray("A") << 0 << QStringLiteral("G;H[A[n[m],a,b],B]");
    QTest::newRow("middle") << QByteArray("A") << 1 << QStringLiteral("G;H[A[a,n[m],b],B]");
    QTest::newRow("end") << QByteArray("A") << 2 << QStringLiteral("G;H[A[a,b,n[m]],B]");
    QTest::newRow("leaf") << QByteArray("B") << 0 << QStringLiteral("G;H[A[a,b],B[n[m]]]");
    QTest::newRow("head") << QByteArray("G") << 0 << QStringLiteral("G[n[m]];H[A[a,b],B]");
}

void TestFishModelHeads::shouldPutANodeIntoARow()
{
    QFETCH(QByteArray, parent);
    QFETCH(int, row);
    QFETCH(QString, expected);
    auto put = makeNode("n");
    put->appendChild(makeNode("m").release());
    QVERIFY(m_model->putRow(row, put.release(), index(parent)));
    QCOMPARE(text(), expected);
    QCOMPARE(m_follower->text(), expected);
    QCOMPARE(index("n").row(), row);
}

void TestFishModelHeads::shouldKeepThePidOfAPutNode()
{
    QVERIFY(m_model->putRow(0, makeNode("n").release(), index("A")));
    QCOMPARE(node("n")->pid(), QStringLiteral("somebody"));
    QCOMPARE(node("n")->parent(), node("A"));
}

void TestFishModelHeads::shouldPutBackWhatWasTaken()
{
    const QString before = text();
    TreeItem *const taken = m_model->takeRow(0, index("H"));
    QCOMPARE(text(), QStringLiteral("G;H[B]"));
    QVERIFY(m_model->putRow(0, taken, index("H")));
    QCOMPARE(text(), before);
}

void TestFishModelHeads::shouldRefuseToPut_data()
{
    QTest::addColumn<QByteArray>("parent");
    QTest::addColumn<int>("row");
    QTest::newRow("before the start") << QByteArray("A") << -1;
    QTest::newRow("past the end") << QByteArray("A") << 3;
    QTest::newRow("at the top level") << QByteArray("") << 0;
}

void TestFishModelHeads::shouldRefuseToPut()
{
    QFETCH(QByteArray, parent);
    QFETCH(int, row);
    const QString before = text();
    const int announcements = m_follower->announcements();
    const auto refused = makeNode("n");
    QVERIFY(!m_model->putRow(row, refused.get(), index(parent)));
    QVERIFY(!m_model->putRow(0, nullptr, index("A")));
    QCOMPARE(text(), before);
    QCOMPARE(m_follower->announcements(), announcements);
}

void TestFishModelHeads::shouldRefuseToPutWhatTheModelHas()
{
    const QString before = text();
    QVERIFY(!m_model->putRow(0, node("a"), index("B")));
    QVERIFY(!m_model->putRow(0, node("G"), index("B")));
    QVERIFY(!m_model->putRow(0, node("H"), index("B")));
    QCOMPARE(text(), before);
}

void TestFishModelHeads::shouldRefuseToPutWhatAnotherListHolds()
{
    const QString before = text();
    const auto other = makeNode("n");
    other->appendChild(makeNode("m").release());
    QVERIFY(!m_model->putRow(0, other->childAtIndex(0), index("A")));
    QCOMPARE(text(), before);
    QCOMPARE(other->childCount(), 1);
}

void TestFishModelHeads::shouldRefuseToPutATreeIntoItself()
{
    const QString before = text();
    QVERIFY(!m_model->putRow(0, m_model->fishList().at(1)->treeItem(), index("A")));
    QCOMPARE(text(), before);

    // Below an index that was good as long as the tree was in the model.
    const QModelIndex below = index("a");
    const std::unique_ptr<TreeItem> taken(m_model->takeRow(0, index("H")));
    QVERIFY(!m_model->putRow(0, taken.get(), below));
    QCOMPARE(treeToText(*taken), QStringLiteral("A[a,b]"));
}

void TestFishModelHeads::shouldPutANewHeadAboveTheOldOne()
{
    FishInfo *const document = m_model->fishList().at(1);
    QVERIFY(m_model->wrapHead(document, makeNode("n").release()));
    QCOMPARE(text(), QStringLiteral("G;n[H[A[a,b],B]]"));
    QCOMPARE(m_follower->text(), text());
    QCOMPARE(m_model->fishList().at(1), document);
    QCOMPARE(node("H")->pid(), QStringLiteral("u-n"));
    QCOMPARE(node("n")->pid(), QStringLiteral("somebody"));
    QVERIFY(node("n")->isTopVaildItem());
}

void TestFishModelHeads::shouldPutAHeadWithChildrenAboveTheOldOne()
{
    auto head = makeNode("n");
    head->appendChild(makeNode("m").release());
    QVERIFY(m_model->wrapHead(m_model->fishList().at(1), head.release()));
    QCOMPARE(text(), QStringLiteral("G;n[H[A[a,b],B],m]"));
}

void TestFishModelHeads::shouldKeepPersistentIndexesAcrossANewHead()
{
    const QPersistentModelIndex head = index("H");
    const QPersistentModelIndex pid = index("H").siblingAtColumn(3);
    const QPersistentModelIndex bone = index("A");
    const QPersistentModelIndex leaf = index("b");
    const QPersistentModelIndex other = index("G");
    QVERIFY(m_model->wrapHead(m_model->fishList().at(1), makeNode("n").release()));
    QCOMPARE(QModelIndex(head), m_model->index(0, 0, m_model->index(1, 0)));
    QCOMPARE(QModelIndex(pid), m_model->index(0, 3, m_model->index(1, 0)));
    QCOMPARE(QModelIndex(bone), index("A"));
    QCOMPARE(QModelIndex(leaf), index("b"));
    QCOMPARE(QModelIndex(other), index("G"));
    QCOMPARE(bone.parent(), QModelIndex(head));
    QCOMPARE(head.parent(), m_model->index(1, 0));
}

void TestFishModelHeads::shouldRefuseANewHead()
{
    const QString before = text();
    const int announcements = m_follower->announcements();
    FishInfo *const document = m_model->fishList().at(1);
    const auto spare = makeNode("n");
    spare->appendChild(makeNode("m").release());
    FishInfo stranger;
    stranger.treeItem()->appendChild(makeNode("s").release());
    QVERIFY(!m_model->wrapHead(nullptr, spare.get()));
    QVERIFY(!m_model->wrapHead(&stranger, spare.get()));
    QVERIFY(!m_model->wrapHead(document, nullptr));
    QVERIFY(!m_model->wrapHead(document, node("a")));
    QVERIFY(!m_model->wrapHead(document, node("H")));
    QVERIFY(!m_model->wrapHead(document, node("G")));
    QVERIFY(!m_model->wrapHead(document, spare->childAtIndex(0)));
    QCOMPARE(text(), before);
    QCOMPARE(m_follower->announcements(), announcements);
}

void TestFishModelHeads::shouldTakeTheHeadOffAgain()
{
    const QString before = text();
    FishInfo *const document = m_model->fishList().at(1);
    TreeItem *const added = makeNode("n").release();
    const QPersistentModelIndex head = index("H");
    m_model->wrapHead(document, added);

    const std::unique_ptr<TreeItem> taken(m_model->unwrapHead(document, node("H")));

    QCOMPARE(taken.get(), added);
    QVERIFY(!taken->parent());
    QCOMPARE(taken->childCount(), 0);
    QCOMPARE(text(), before);
    QCOMPARE(m_follower->text(), before);
    QCOMPARE(QModelIndex(head), m_model->index(1, 0));
    QCOMPARE(node("H")->pid(), QStringLiteral("u-n"));
}

void TestFishModelHeads::shouldTakeTheHeadOffWithItsOtherChildren()
{
    FishInfo *const document = m_model->fishList().at(1);
    const std::unique_ptr<TreeItem> taken(m_model->unwrapHead(document, node("B")));
    QCOMPARE(treeToText(*taken), QStringLiteral("H[A[a,b]]"));
    QCOMPARE(text(), QStringLiteral("G;B"));
}

void TestFishModelHeads::shouldDropPersistentIndexesThatLeave()
{
    const QPersistentModelIndex head = index("H");
    const QPersistentModelIndex leaving = index("B");
    const QPersistentModelIndex staying = index("b");
    const QPersistentModelIndex promoted = index("A").siblingAtColumn(2);
    const std::unique_ptr<TreeItem> taken(
        m_model->unwrapHead(m_model->fishList().at(1), node("A")));
    QVERIFY(!head.isValid());
    QVERIFY(!leaving.isValid());
    QCOMPARE(QModelIndex(staying), index("b"));
    QCOMPARE(QModelIndex(promoted), m_model->index(1, 2));
}

void TestFishModelHeads::shouldRefuseToTakeTheHeadOff()
{
    const QString before = text();
    const int announcements = m_follower->announcements();
    FishInfo *const document = m_model->fishList().at(1);
    QVERIFY(!m_model->unwrapHead(nullptr, node("A")));
    QVERIFY(!m_model->unwrapHead(document, nullptr));
    QVERIFY(!m_model->unwrapHead(document, node("a")));
    QVERIFY(!m_model->unwrapHead(document, node("H")));
    QVERIFY(!m_model->unwrapHead(document, node("G")));
    QVERIFY(!m_model->unwrapHead(m_model->fishList().at(0), node("A")));
    TreeItem pretender;
    pretender.setParent(node("H")); // which does not list it
    QVERIFY(!m_model->unwrapHead(document, &pretender));
    QCOMPARE(text(), before);
    QCOMPARE(m_follower->announcements(), announcements);
}

void TestFishModelHeads::shouldShowANewHeadInATreeView()
{
    QTreeView view;
    view.setModel(m_model.get());
    view.expandAll();
    view.setCurrentIndex(index("A"));
    FishInfo *const document = m_model->fishList().at(1);
    m_model->wrapHead(document, makeNode("n").release());
    view.expandAll();
    QCOMPARE(view.currentIndex(), index("A"));
    QCOMPARE(view.indexBelow(index("n")), index("H"));
    const std::unique_ptr<TreeItem> taken(m_model->unwrapHead(document, node("H")));
    view.expandAll();
    QCOMPARE(view.currentIndex(), index("A"));
    QCOMPARE(view.indexBelow(index("G")), index("H"));
}

FISHBONE_TEST(TestFishModelHeads)
#include "tst_fishmodel_heads.moc"
