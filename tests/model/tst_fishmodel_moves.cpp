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

/** Moves of rows: between nodes, among documents, and between both. */
class TestFishModelMoves : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void shouldMoveWithinAParent_data();
    void shouldMoveWithinAParent();
    void shouldMoveToAnotherParent();
    void shouldMoveDocuments_data();
    void shouldMoveDocuments();
    void shouldMoveHeadsUnderNodes();
    void shouldMoveNodesToTheTop();
    void shouldMoveNodesByPointer();
    void shouldChangeNothingWhereRowsAlreadyAre_data();
    void shouldChangeNothingWhereRowsAlreadyAre();
    void shouldRefuseMovesOutsideTheRange_data();
    void shouldRefuseMovesOutsideTheRange();
    void shouldRefuseMovesIntoTheOwnSubtree();
    void shouldRefuseMovesBetweenThisModelAndElsewhere();
    void shouldMoveNodesThatAreInNoModel();
    void shouldMoveNothingButHeadsOutOfDocuments();
    void shouldHandOutTheDocumentOfAMovedHead();
    void shouldUseAGivenDocumentForANewHead();
    void shouldRefuseUnusableDocumentsForANewHead();
    void shouldKeepPersistentIndexesOnTheirNodes();

private:
    QString tree() const;
    QModelIndex at(const char *title) const
    {
        return indexTitled(*m_model, QString::fromLatin1(title));
    }

    std::unique_ptr<FishModel> m_model;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
    std::unique_ptr<ModelFollower> m_follower;
};

void TestFishModelMoves::init()
{
    m_model = std::make_unique<FishModel>();
    m_model->setModelType(FISH_MODEL_DIAGRAM);
    for (const char *text : {"A[a,b[x,y],c,d]", "B[e]", "C", "D"})
        loadDocument(*m_model, QString::fromLatin1(text));
    m_tester = std::make_unique<QAbstractItemModelTester>(m_model.get());
    m_follower = std::make_unique<ModelFollower>(*m_model);
}

void TestFishModelMoves::cleanup()
{
    QCOMPARE(m_follower->text(), m_follower->modelText());
    m_follower.reset();
    m_tester.reset();
    m_model.reset();
}

QString TestFishModelMoves::tree() const
{
    return m_follower->text() == m_follower->modelText() ? m_follower->text()
                                                         : QStringLiteral("not as announced");
}

void TestFishModelMoves::shouldMoveWithinAParent_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("destination");
    QTest::addColumn<QString>("children");

    QTest::newRow("one forward") << 0 << 1 << 3 << QStringLiteral("b[x,y],c,a,d");
    QTest::newRow("one to the end") << 1 << 1 << 4 << QStringLiteral("a,c,d,b[x,y]");
    QTest::newRow("one back") << 3 << 1 << 1 << QStringLiteral("a,d,b[x,y],c");
    QTest::newRow("two forward") << 0 << 2 << 3 << QStringLiteral("c,a,d,b[x,y]");
    QTest::newRow("two to the end") << 0 << 2 << 4 << QStringLiteral("c,d,a,b[x,y]");
    QTest::newRow("two back") << 2 << 2 << 0 << QStringLiteral("c,b[x,y],a,d");
    QTest::newRow("none") << 2 << 0 << 0 << QStringLiteral("a,b[x,y],c,d");
    QTest::newRow("less than none") << 2 << -1 << 0 << QStringLiteral("a,b[x,y],c,d");
}

void TestFishModelMoves::shouldMoveWithinAParent()
{
    QFETCH(int, row);
    QFETCH(int, count);
    QFETCH(int, destination);
    QFETCH(QString, children);

    QVERIFY(m_model->moveRows(at("A"), row, count, at("A"), destination));

    QCOMPARE(tree(), QStringLiteral("A[%1];B[e];C;D").arg(children));
}

void TestFishModelMoves::shouldMoveToAnotherParent()
{
    QVERIFY(m_model->moveRows(at("A"), 1, 2, at("B"), 0));
    QCOMPARE(tree(), QStringLiteral("A[a,d];B[b[x,y],c,e];C;D"));
    QCOMPARE(nodeTitled(*m_model, QStringLiteral("b"))->pid(), QStringLiteral("u-B"));
    QCOMPARE(nodeTitled(*m_model, QStringLiteral("c"))->pid(), QStringLiteral("u-B"));
    QCOMPARE(nodeTitled(*m_model, QStringLiteral("x"))->pid(), QStringLiteral("u-b"));

    QVERIFY(m_model->moveRows(at("b"), 0, 1, at("B"), 3));
    QVERIFY(m_model->moveRows(at("B"), 1, 1, at("y"), 0));
    QCOMPARE(tree(), QStringLiteral("A[a,d];B[b[y[c]],e,x];C;D"));
}

void TestFishModelMoves::shouldMoveDocuments_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("destination");
    QTest::addColumn<QString>("documents");

    QTest::newRow("one forward") << 0 << 1 << 3 << QStringLiteral("BCAD");
    QTest::newRow("one to the end") << 1 << 1 << 4 << QStringLiteral("ACDB");
    QTest::newRow("one back") << 3 << 1 << 1 << QStringLiteral("ADBC");
    QTest::newRow("two forward") << 0 << 2 << 3 << QStringLiteral("CADB");
    QTest::newRow("two back") << 2 << 2 << 0 << QStringLiteral("CBAD");
    QTest::newRow("none") << 2 << 0 << 0 << QStringLiteral("ABCD");
}

void TestFishModelMoves::shouldMoveDocuments()
{
    QFETCH(int, row);
    QFETCH(int, count);
    QFETCH(int, destination);
    QFETCH(QString, documents);
    QSet<FishInfo *> before;
    for (FishInfo *document : m_model->fishList())
        before.insert(document);

    QVERIFY(m_model->moveRows(QModelIndex(), row, count, QModelIndex(), destination));

    QString titles;
    QSet<FishInfo *> after;
    for (FishInfo *document : m_model->fishList()) {
        titles += document->treeItem()->childAtIndex(0)->title();
        after.insert(document);
    }
    QCOMPARE(titles, documents);
    QCOMPARE(after, before);
    QCOMPARE(m_follower->text(), m_follower->modelText());
    for (int i = 0; i < 4; ++i)
        QCOMPARE(m_model->fishRow(m_model->fishList().at(i)), i);
}

void TestFishModelMoves::shouldMoveHeadsUnderNodes()
{
    const QPointer<FishInfo> b = m_model->fishList().at(1);
    const QPointer<FishInfo> a = m_model->fishList().at(0);

    QVERIFY(m_model->moveRows(QModelIndex(), 1, 1, at("A"), 2));
    QCOMPARE(tree(), QStringLiteral("A[a,b[x,y],B[e],c,d];C;D"));
    QCOMPARE(nodeTitled(*m_model, QStringLiteral("B"))->pid(), QStringLiteral("u-A"));
    QVERIFY(!b);

    // To a document that moves up when the row in front of it goes.
    QVERIFY(m_model->moveRows(QModelIndex(), 0, 2, at("D"), 0));
    QCOMPARE(tree(), QStringLiteral("D[A[a,b[x,y],B[e],c,d],C]"));
    QVERIFY(!a);
    QCOMPARE(m_model->fishList().size(), 1);
}

void TestFishModelMoves::shouldMoveNodesToTheTop()
{
    QVERIFY(m_model->moveRows(at("A"), 1, 1, QModelIndex(), 0));
    QCOMPARE(tree(), QStringLiteral("b[x,y];A[a,c,d];B[e];C;D"));
    const TreeItem *const b = nodeTitled(*m_model, QStringLiteral("b"));
    QVERIFY(b->isTopVaildItem());
    QVERIFY(!b->isHaveParentTask());
    QCOMPARE(b->uuid(), QStringLiteral("u-b"));
    const FishInfo *const document = m_model->fishList().first();
    QCOMPARE(document->treeItem()->childAtIndex(0), b);
    QCOMPARE(document->model(), m_model.get());
    QVERIFY(document->isUntitled());

    QVERIFY(m_model->moveRows(at("A"), 0, 2, QModelIndex(), 5));
    QCOMPARE(tree(), QStringLiteral("b[x,y];A[d];B[e];C;D;a;c"));
}

void TestFishModelMoves::shouldMoveNodesByPointer()
{
    TreeItem *const a = nodeTitled(*m_model, QStringLiteral("A"));
    TreeItem *const b = nodeTitled(*m_model, QStringLiteral("B"));

    QVERIFY(m_model->moveSrcToDstWithList(a, 0, 2, b, 1));
    QCOMPARE(tree(), QStringLiteral("A[c,d];B[e,a,b[x,y]];C;D"));
    QVERIFY(m_model->moveSrcToDstWithList(a, 0, 1, nullptr, 4));
    QCOMPARE(tree(), QStringLiteral("A[d];B[e,a,b[x,y]];C;D;c"));
    QVERIFY(m_model->moveSrcToDstWithList(nullptr, 2, 1, a, 0));
    QCOMPARE(tree(), QStringLiteral("A[C,d];B[e,a,b[x,y]];D;c"));
    QVERIFY(m_model->moveSrcToDstWithList(nullptr, 0, 1, nullptr, 4));
    QCOMPARE(tree(), QStringLiteral("B[e,a,b[x,y]];D;c;A[C,d]"));
    QVERIFY(m_model->moveSrcToDstWithList(b, 2, 1, b, 0));
    QCOMPARE(tree(), QStringLiteral("B[b[x,y],e,a];D;c;A[C,d]"));
}

void TestFishModelMoves::shouldChangeNothingWhereRowsAlreadyAre_data()
{
    QTest::addColumn<bool>("top");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("destination");

    QTest::newRow("to its row") << false << 1 << 1 << 1;
    QTest::newRow("behind itself") << false << 1 << 1 << 2;
    QTest::newRow("last behind itself") << false << 3 << 1 << 4;
    QTest::newRow("none") << false << 1 << 0 << 3;
    QTest::newRow("document to its row") << true << 1 << 1 << 1;
    QTest::newRow("document behind itself") << true << 1 << 1 << 2;
}

void TestFishModelMoves::shouldChangeNothingWhereRowsAlreadyAre()
{
    QFETCH(bool, top);
    QFETCH(int, row);
    QFETCH(int, count);
    QFETCH(int, destination);
    const QModelIndex parent = top ? QModelIndex() : at("A");
    m_model->getTreeItem(m_model->index(row, 0, parent))->setPid(QStringLiteral("other"));
    const QString before = tree();
    const int announcements = m_follower->announcements();

    QVERIFY(m_model->moveRows(parent, row, count, parent, destination));

    QCOMPARE(tree(), before);
    QCOMPARE(m_follower->announcements(), announcements);
    QCOMPARE(m_model->getTreeItem(m_model->index(row, 0, parent))->pid(), QStringLiteral("other"));
}

void TestFishModelMoves::shouldRefuseMovesOutsideTheRange_data()
{
    QTest::addColumn<bool>("fromTop");
    QTest::addColumn<bool>("toTop");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("destination");

    for (const bool fromTop : {false, true}) {
        for (const bool toTop : {false, true}) {
            const QByteArray name = QByteArray(fromTop ? "top" : "node") + " to " +
                                    QByteArray(toTop ? "top" : "node") + ": ";
            const auto add = [&](const char *what, int row, int count, int destination) {
                QTest::newRow(name + what) << fromTop << toTop << row << count << destination;
            };
            add("negative row", -1, 1, 0);
            add("negative destination", 0, 1, -1);
            add("row past the end", 4, 1, 0);
            add("too many", 3, 2, 0);
            add("count at the limit", 1, TestSupport::maxInt, 0);
            add("destination past the end", 2, 1, 5);
            add("destination at the limit", 2, 1, TestSupport::maxInt);
            add("none past the end", 5, 0, 0);
        }
    }
}

void TestFishModelMoves::shouldRefuseMovesOutsideTheRange()
{
    QFETCH(bool, fromTop);
    QFETCH(bool, toTop);
    QFETCH(int, row);
    QFETCH(int, count);
    QFETCH(int, destination);
    const QString before = tree();
    const int announcements = m_follower->announcements();

    QVERIFY(!m_model->moveRows(fromTop ? QModelIndex() : at("A"), row, count,
                               toTop ? QModelIndex() : at("B"), destination));

    QCOMPARE(tree(), before);
    QCOMPARE(m_follower->announcements(), announcements);
}

void TestFishModelMoves::shouldRefuseMovesIntoTheOwnSubtree()
{
    const QString before = tree();
    const int announcements = m_follower->announcements();

    QVERIFY(!m_model->moveRows(at("A"), 1, 1, at("b"), 0));
    QVERIFY(!m_model->moveRows(at("A"), 0, 3, at("x"), 0));
    QVERIFY(!m_model->moveRows(QModelIndex(), 0, 1, at("A"), 0));
    QVERIFY(!m_model->moveRows(QModelIndex(), 0, 1, at("x"), 0));
    QVERIFY(!m_model->moveRows(QModelIndex(), 0, 4, at("e"), 0));
    QCOMPARE(m_model->moveHeadUnder(0, at("y"), 0), nullptr);

    QCOMPARE(tree(), before);
    QCOMPARE(m_follower->announcements(), announcements);
    QVERIFY(m_model->moveRows(at("A"), 2, 2, at("x"), 0)); // only a neighbour
    QCOMPARE(tree(), QStringLiteral("A[a,b[x[c,d],y]];B[e];C;D"));
}

void TestFishModelMoves::shouldRefuseMovesBetweenThisModelAndElsewhere()
{
    TreeItem loose;
    loose.insertChildren(0, 2, QString());
    TreeItem *const a = nodeTitled(*m_model, QStringLiteral("A"));
    const QString before = tree();

    QVERIFY(!m_model->moveSrcToDstWithList(&loose, 0, 1, a, 0));
    QVERIFY(!m_model->moveSrcToDstWithList(a, 0, 1, &loose, 0));
    QVERIFY(!m_model->moveSrcToDstWithList(&loose, 0, 1, nullptr, 0));
    QVERIFY(!m_model->moveSrcToDstWithList(nullptr, 0, 1, &loose, 0));

    QCOMPARE(tree(), before);
    QCOMPARE(loose.childCount(), 2);
}

void TestFishModelMoves::shouldMoveNodesThatAreInNoModel()
{
    TreeItem from;
    TreeItem to;
    from.insertChildren(0, 3, QString());
    const int announcements = m_follower->announcements();

    QVERIFY(m_model->moveSrcToDstWithList(&from, 0, 2, &to, 0));

    QCOMPARE(from.childCount(), 1);
    QCOMPARE(to.childCount(), 2);
    QCOMPARE(m_follower->announcements(), announcements);
}

void TestFishModelMoves::shouldMoveNothingButHeadsOutOfDocuments()
{
    m_model->fishList().at(2)->treeItem()->appendChild(new TreeItem); // beside the head
    const QString before = tree();

    QVERIFY(!m_model->moveRows(QModelIndex(), 2, 1, at("A"), 0));
    QVERIFY(!m_model->moveRows(QModelIndex(), 1, 2, at("A"), 0));
    QCOMPARE(m_model->takeRow(2, QModelIndex()), nullptr);

    QCOMPARE(tree(), before);
}

void TestFishModelMoves::shouldHandOutTheDocumentOfAMovedHead()
{
    FishInfo *const b = m_model->fishList().at(1);
    b->setModified(true);

    const std::unique_ptr<FishInfo> document(m_model->moveHeadUnder(1, at("A"), 4));

    QCOMPARE(document.get(), b);
    QVERIFY(document->modified());
    QCOMPARE(document->treeItem()->childCount(), 0);
    QCOMPARE(document->model(), nullptr);
    QCOMPARE(tree(), QStringLiteral("A[a,b[x,y],c,d,B[e]];C;D"));
    QCOMPARE(m_model->moveHeadUnder(-1, at("A"), 0), nullptr);
    QCOMPARE(m_model->moveHeadUnder(3, at("A"), 0), nullptr);
    QCOMPARE(m_model->moveHeadUnder(1, at("A"), 6), nullptr);
    QCOMPARE(m_model->moveHeadUnder(1, at("A"), -1), nullptr);
    QCOMPARE(m_model->moveHeadUnder(1, QModelIndex(), 0), nullptr);
}

void TestFishModelMoves::shouldUseAGivenDocumentForANewHead()
{
    auto *const document = new FishInfo;
    document->setFileName(QStringLiteral("kept"));
    const QPersistentModelIndex x = at("x");

    QVERIFY(m_model->moveToTopLevel(at("b"), 1, document));

    QCOMPARE(tree(), QStringLiteral("A[a,c,d];b[x,y];B[e];C;D"));
    QCOMPARE(m_model->fishList().at(1), document);
    QCOMPARE(document->fileName(), QStringLiteral("kept"));
    QCOMPARE(document->model(), m_model.get());
    QCOMPARE(x.parent(), m_model->index(1, 0));
    QVERIFY(!nodeTitled(*m_model, QStringLiteral("b"))->isHaveParentTask());
}

void TestFishModelMoves::shouldRefuseUnusableDocumentsForANewHead()
{
    FishInfo empty;
    FishInfo full;
    full.loadFish(documentFromText(QStringLiteral("F")), nullptr);
    const QString before = tree();

    QVERIFY(!m_model->moveToTopLevel(at("b"), 1, nullptr));
    QVERIFY(!m_model->moveToTopLevel(at("b"), 1, &full));
    QVERIFY(!m_model->moveToTopLevel(at("b"), 1, m_model->fishList().first()));
    QVERIFY(!m_model->moveToTopLevel(at("b"), -1, &empty));
    QVERIFY(!m_model->moveToTopLevel(at("b"), 5, &empty));
    QVERIFY(!m_model->moveToTopLevel(at("B"), 0, &empty));
    QVERIFY(!m_model->moveToTopLevel(QModelIndex(), 0, &empty));

    QCOMPARE(tree(), before);
}

void TestFishModelMoves::shouldKeepPersistentIndexesOnTheirNodes()
{
    QVector<QPersistentModelIndex> indexes;
    QVector<TreeItem *> nodes;
    for (const QModelIndex &index : m_model->searchModelIndexes(QString())) {
        indexes << index << index.siblingAtColumn(4);
        nodes << m_model->getTreeItem(index) << m_model->getTreeItem(index);
    }

    QVERIFY(m_model->moveRows(at("A"), 0, 2, at("A"), 3));
    QVERIFY(m_model->moveRows(QModelIndex(), 0, 2, QModelIndex(), 3));
    QVERIFY(m_model->moveRows(QModelIndex(), 0, 1, at("y"), 0));
    QVERIFY(m_model->moveRows(at("A"), 2, 2, QModelIndex(), 0));
    QVERIFY(m_model->moveRows(at("b"), 0, 2, at("A"), 1));

    for (int i = 0; i < indexes.size(); ++i) {
        QCOMPARE(m_model->getTreeItem(indexes.at(i)), nodes.at(i));
        QCOMPARE(QModelIndex(indexes.at(i)),
                 m_model->indexFromItem(nodes.at(i), i % 2 == 0 ? 0 : 4));
    }
}

FISHBONE_TEST(TestFishModelMoves)

#include "tst_fishmodel_moves.moc"
