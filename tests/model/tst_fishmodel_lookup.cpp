// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/fishmodel.h>

#include <fishbone/model/fishinfo.h>
#include <fishbone/model/treeitem.h>

#include <tests/program/testprogram.h>
#include <tests/support/documents.h>

#include <QtTest>

using namespace TestSupport;

namespace {

QStringList titles(const FishModel &model, const QModelIndexList &indexes)
{
    QStringList found;
    for (const QModelIndex &index : indexes)
        found.append(model.getTreeItem(index)->title());
    return found;
}

} // namespace

/** How FishModel finds nodes and documents. */
class TestFishModelLookup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldFindNodesByUuid();
    void shouldFindTheFirstInPreOrder();
    void shouldDistinguishCaseInUuids();
    void shouldFindEmptyUuidsToo();
    void shouldSearchTitles_data();
    void shouldSearchTitles();
    void shouldSearchAllDocumentsInPreOrder();
    void shouldAnswerValidIndexesFromASearch();
    void shouldFindDocumentsByFileName();
    void shouldAnswerTheIndexOfItsNodes();
    void shouldAnswerNoIndexForOtherNodes();
    void shouldKnowItsNodesByPointer();
    void shouldNameTheDocumentOfANode();
    void shouldSearchDeepAndWideTrees();
    void shouldIndexAllNodesOfDeepAndWideTrees();
};

void TestFishModelLookup::shouldFindNodesByUuid()
{
    FishModel model;
    loadDocument(model, QStringLiteral("A[x[y],z]"));
    loadDocument(model, QStringLiteral("B[v[w]]"));

    QCOMPARE(model.modelIndexByUuid(QStringLiteral("u-A")), model.index(0, 0));
    QCOMPARE(model.modelIndexByUuid(QStringLiteral("u-w")),
             indexTitled(model, QStringLiteral("w")));
    QVERIFY(!model.modelIndexByUuid(QStringLiteral("w")).isValid());
    QVERIFY(!model.modelIndexByUuid(QStringLiteral("u-")).isValid());
    QVERIFY(!model.modelIndexByUuid(QString()).isValid());
}

void TestFishModelLookup::shouldFindTheFirstInPreOrder()
{
    FishModel model;
    loadDocument(model, QStringLiteral("A[x[deep],near]"));
    loadDocument(model, QStringLiteral("B"));
    for (const char *title : {"deep", "near", "B"})
        nodeTitled(model, QString::fromLatin1(title))->setUuid(QStringLiteral("same"));

    QCOMPARE(model.modelIndexByUuid(QStringLiteral("same")),
             indexTitled(model, QStringLiteral("deep")));
}

void TestFishModelLookup::shouldDistinguishCaseInUuids()
{
    FishModel model;
    loadDocument(model, QStringLiteral("A[x]"));

    QVERIFY(!model.modelIndexByUuid(QStringLiteral("U-X")).isValid());
    QVERIFY(!model.modelIndexByUuid(QStringLiteral("u-X")).isValid());
}

void TestFishModelLookup::shouldFindEmptyUuidsToo()
{
    FishModel model;
    loadDocument(model, QStringLiteral("A[x]"));
    nodeTitled(model, QStringLiteral("x"))->setUuid(QString());

    QCOMPARE(model.modelIndexByUuid(QStringLiteral("")), indexTitled(model, QStringLiteral("x")));
}

void TestFishModelLookup::shouldSearchTitles_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QStringList>("found");

    QTest::newRow("in the middle, other case")
        << QStringLiteral("abc") << QStringList(QStringLiteral("xABCx"));
    QTest::newRow("whole") << QStringLiteral("Ärger") << QStringList(QStringLiteral("ärger"));
    QTest::newRow("several") << QStringLiteral("X")
                             << QStringList({QStringLiteral("xABCx"), QStringLiteral("x")});
    QTest::newRow("none") << QStringLiteral("q") << QStringList();
    QTest::newRow("no pattern") << QStringLiteral(".") << QStringList();
    QTest::newRow("everything") << QString()
                                << QStringList({QStringLiteral("A"), QStringLiteral("xABCx"),
                                                QStringLiteral("ärger"), QStringLiteral("x")});
}

void TestFishModelLookup::shouldSearchTitles()
{
    QFETCH(QString, key);
    QFETCH(QStringList, found);
    FishModel model;
    loadDocument(model, QStringLiteral("A[xABCx[ärger],x]"));

    QCOMPARE(titles(model, model.searchModelIndexes(key)), found);
}

void TestFishModelLookup::shouldSearchAllDocumentsInPreOrder()
{
    FishModel model;
    loadDocument(model, QStringLiteral("t1[t2[t3],t4]"));
    loadDocument(model, QStringLiteral("t5[no,t6]"));

    QCOMPARE(titles(model, model.searchModelIndexes(QStringLiteral("T"))),
             QStringList({QStringLiteral("t1"), QStringLiteral("t2"), QStringLiteral("t3"),
                          QStringLiteral("t4"), QStringLiteral("t5"), QStringLiteral("t6")}));
}

void TestFishModelLookup::shouldAnswerValidIndexesFromASearch()
{
    FishModel model;
    loadDocument(model, QStringLiteral("A[b,c[target]]"));

    const QModelIndexList found = model.searchModelIndexes(QStringLiteral("target"));

    QCOMPARE(found.size(), 1);
    QCOMPARE(found.first(), model.index(0, 0, model.index(1, 0, model.index(0, 0))));
}

void TestFishModelLookup::shouldFindDocumentsByFileName()
{
    FishModel model;
    loadDocument(model, QStringLiteral("A"));
    FishInfo *const second = loadDocument(model, QStringLiteral("B"));
    FishInfo *const third = loadDocument(model, QStringLiteral("C"));
    second->setFileName(QStringLiteral("/x/same.json"));
    third->setFileName(QStringLiteral("/x/same.json"));

    QCOMPARE(model.findFish(QStringLiteral("/x/same.json")), model.index(1, 0));
    QVERIFY(!model.findFish(QStringLiteral("same.json")).isValid());
}

void TestFishModelLookup::shouldAnswerTheIndexOfItsNodes()
{
    FishModel model;
    loadDocument(model, QStringLiteral("A"));
    loadDocument(model, QStringLiteral("B[x,y[z]]"));
    const QModelIndex head = model.index(1, 0);

    QCOMPARE(model.indexFromItem(model.getTreeItem(head)), head);
    QCOMPARE(model.indexFromItem(nodeTitled(model, QStringLiteral("z"))),
             model.index(0, 0, model.index(1, 0, head)));
    QCOMPARE(model.indexFromItem(nodeTitled(model, QStringLiteral("y")), 3),
             model.index(1, 3, head));
}

void TestFishModelLookup::shouldAnswerNoIndexForOtherNodes()
{
    FishModel model;
    FishInfo *const info = loadDocument(model, QStringLiteral("A[x[y]]"));
    FishModel other;
    loadDocument(other, QStringLiteral("A[x]"));
    TreeItem loose;
    TreeItem pretender;
    pretender.setParent(nodeTitled(model, QStringLiteral("x")));
    FishInfo free;
    free.loadFish(documentFromText(QStringLiteral("F[g]")), nullptr);

    QVERIFY(!model.indexFromItem(nullptr).isValid());
    QVERIFY(!model.indexFromItem(&loose).isValid());
    QVERIFY(!model.indexFromItem(&pretender).isValid());
    QVERIFY(!model.indexFromItem(info->treeItem()).isValid());
    QVERIFY(!model.indexFromItem(nodeTitled(other, QStringLiteral("x"))).isValid());
    QVERIFY(!model.indexFromItem(free.treeItem()->childAtIndex(0)->childAtIndex(0)).isValid());

    // Only the first child of a container is a head.
    auto *const second = new TreeItem;
    info->treeItem()->appendChild(second);
    QVERIFY(!model.indexFromItem(second).isValid());

    TreeItem *const y = nodeTitled(model, QStringLiteral("y"));
    const std::unique_ptr<TreeItem> taken(model.takeRow(0, model.index(0, 0)));
    QVERIFY(!model.indexFromItem(y).isValid());
}

void TestFishModelLookup::shouldKnowItsNodesByPointer()
{
    FishModel model;
    FishInfo *const info = loadDocument(model, QStringLiteral("A[x[y]]"));
    loadDocument(model, QStringLiteral("B[z]"));
    const TreeItem loose;

    for (const char *title : {"A", "x", "y", "B", "z"})
        QVERIFY(model.contains(nodeTitled(model, QString::fromLatin1(title))));
    QVERIFY(!model.contains(nullptr));
    QVERIFY(!model.contains(&loose));
    QVERIFY(!model.contains(info->treeItem()));
    QVERIFY(!model.contains(reinterpret_cast<const TreeItem *>(quintptr(0x1234))));
}

void TestFishModelLookup::shouldNameTheDocumentOfANode()
{
    FishModel model;
    FishInfo *const first = loadDocument(model, QStringLiteral("A[x]"));
    FishInfo *const second = loadDocument(model, QStringLiteral("B[y]"));
    FishInfo free;

    QCOMPARE(model.fishOf(nodeTitled(model, QStringLiteral("x"))), first);
    QCOMPARE(model.fishOf(nodeTitled(model, QStringLiteral("B"))), second);
    QCOMPARE(model.fishOf(nullptr), nullptr);
    QCOMPARE(model.fishOf(free.treeItem()), nullptr);
    QCOMPARE(model.fishRow(second), 1);
    QCOMPARE(model.fishRow(&free), -1);
    QCOMPARE(model.fishRow(nullptr), -1);
}

void TestFishModelLookup::shouldSearchDeepAndWideTrees()
{
    constexpr int size = 100000;
    FishModel model;
    const TreeItem *const chain = addDocument(model, makeChain(size));
    const TreeItem *const fan = addDocument(model, makeFan(size));
    const TreeItem *deepest = chain;
    while (deepest->childCount() > 0)
        deepest = deepest->childAtIndex(0);

    QCOMPARE(model.modelIndexByUuid(deepest->uuid()), model.indexFromItem(deepest));
    QCOMPARE(model.modelIndexByUuid(fan->childAtIndex(size - 1)->uuid()).row(), size - 1);
    QCOMPARE(model.searchModelIndexes(QStringLiteral("99999")).size(), 2);
    QCOMPARE(model.searchModelIndexes(QString()).size(), 2 * size + 1);
    QVERIFY(model.contains(deepest));
}

void TestFishModelLookup::shouldIndexAllNodesOfDeepAndWideTrees()
{
    constexpr int size = 100000;
    FishModel model;
    const TreeItem *const fan = addDocument(model, makeFan(size));
    for (int row = 0; row < size; ++row)
        QCOMPARE(model.indexFromItem(fan->childAtIndex(row)).row(), row);

    addDocument(model, makeChain(size));
    QModelIndex index = model.index(1, 0);
    int levels = 0;
    for (; index.isValid(); ++levels)
        index = model.index(0, 0, index);
    QCOMPARE(levels, size);
}

FISHBONE_TEST(TestFishModelLookup)

#include "tst_fishmodel_lookup.moc"
