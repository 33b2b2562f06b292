// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/jsonnodes.h>

#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>
#include <fishbone/style/spearstyle.h>

#include <tests/model/nodeobjectsparts.h>
#include <tests/program/testprogram.h>
#include <tests/support/documents.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

#include <limits>

using namespace TestSupport;

/** Node objects of the diagram format: nodes and trees from them and to them. */
/** Whole trees that are loaded and inserted. */
class TestNodeObjectsTrees : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldMeasureNesting_data();
    void shouldMeasureNesting();
    void shouldLoadADocument();
    void shouldLoadOddDocuments_data();
    void shouldLoadOddDocuments();
    void shouldCountNodesWithoutParentTask_data();
    void shouldCountNodesWithoutParentTask();
    void shouldInsertASubtree_data();
    void shouldInsertASubtree();
    void shouldOrderDescendantsByPosition_data();
    void shouldOrderDescendantsByPosition();
    void shouldNotSkipEmptyObjectsOfASubtree();
    void shouldInsertNothingBelowNoParent();
    void shouldInsertWideSubtreesInTime();
};

void TestNodeObjectsTrees::shouldMeasureNesting_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<int>("depth");

    QTest::newRow("nothing") << QByteArray() << 0;
    QTest::newRow("object") << QByteArray("{}") << 1;
    QTest::newRow("array in object") << QByteArray(R"({"a": [1], "b": 2})") << 2;
    QTest::newRow("one after the other") << QByteArray("[{}, {}, [[]], {}]") << 3;
    QTest::newRow("in texts") << QByteArray(R"({"[{": "[[[{{"})") << 1;
    QTest::newRow("after quotes in texts") << QByteArray(R"({"a": "\"[\\", "b": ["\\\"[["]})") << 2;
}

void TestNodeObjectsTrees::shouldMeasureNesting()
{
    QFETCH(QByteArray, json);
    QFETCH(int, depth);

    QCOMPARE(JsonNodes::nesting(json), depth);
}

void TestNodeObjectsTrees::shouldLoadADocument()
{
    FishModel model;
    FishInfo info;

    info.loadFish(documentFromText(QStringLiteral("Effect[Man[Training],Machine,Method]")), &model);

    QCOMPARE(info.treeItem()->childCount(), 1);
    const TreeItem &head = *info.treeItem()->childAtIndex(0);
    QCOMPARE(treeToText(head), QStringLiteral("Effect[Man[Training],Machine,Method]"));
    QCOMPARE(head.childAtIndex(0)->pid(), head.uuid());
    QCOMPARE(info.nodeCount(), 5);
    QCOMPARE(info.noParentNodeCount(), 0);
    QCOMPARE(info.model(), &model);
}

void TestNodeObjectsTrees::shouldLoadOddDocuments_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("tree");
    QTest::addColumn<int>("nodes");

    QTest::newRow("no node") << QByteArray("{}") << QString() << 0;
    QTest::newRow("no children key") << QByteArray(R"({"title": "a"})") << QStringLiteral("a") << 1;
    QTest::newRow("children no array")
        << QByteArray(R"({"title": "a", "children": {"title": "b"}})") << QStringLiteral("a") << 1;
    QTest::newRow("empty child skipped")
        << QByteArray(R"({"title": "a", "children": [{}, {"title": "b"}]})")
        << QStringLiteral("a[b]") << 2;
    QTest::newRow("child no object skipped")
        << QByteArray(
               R"({"title": "a", "children": [1, null, "x", [{"title": "c"}], {"title": "b"}]})")
        << QStringLiteral("a[b]") << 2;
    QTest::newRow("child without title")
        << QByteArray(R"({"title": "a", "children": [{"uuid": "b"}]})") << QStringLiteral("a[]")
        << 2;
}

void TestNodeObjectsTrees::shouldLoadOddDocuments()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, tree);
    QFETCH(int, nodes);
    FishInfo info;

    info.loadFish(objectFrom(json), nullptr);

    const TreeItem *const head = info.treeItem()->childAtIndex(0);
    QCOMPARE(head ? treeToText(*head) : QString(), tree);
    QCOMPARE(info.nodeCount(), nodes);
}

void TestNodeObjectsTrees::shouldCountNodesWithoutParentTask_data()
{
    QTest::addColumn<QByteArray>("headPid");
    QTest::addColumn<QByteArray>("childPid");
    QTest::addColumn<QByteArray>("grandchildPid");
    QTest::addColumn<int>("count");

    QTest::newRow("all have one but the head")
        << QByteArray("-1") << QByteArray("h") << QByteArray("h") << 0;
    QTest::newRow("one child without")
        << QByteArray("-1") << QByteArray("") << QByteArray("h") << 1;
    QTest::newRow("deeper ones count too")
        << QByteArray("-1") << QByteArray("") << QByteArray("-1") << 2;
    QTest::newRow("head has one") << QByteArray("x") << QByteArray("h") << QByteArray("h") << -1;
    QTest::newRow("case matters") << QByteArray("-1") << QByteArray("H") << QByteArray("-1 ") << 0;
}

void TestNodeObjectsTrees::shouldCountNodesWithoutParentTask()
{
    QFETCH(QByteArray, headPid);
    QFETCH(QByteArray, childPid);
    QFETCH(QByteArray, grandchildPid);
    QFETCH(int, count);
    FishInfo info;

    info.loadFish(objectFrom(R"({"uuid": "h", "pid": ")" + headPid + R"(", "children": [
        {"pid": "h"}, {"pid": "h"}, {"pid": ")" +
                             childPid + R"(", "children": [
            {"pid": ")" + grandchildPid +
                             R"("}]}]})"),
                  nullptr);

    QCOMPARE(info.nodeCount(), 5);
    QCOMPARE(info.noParentNodeCount(), count);
}

void TestNodeObjectsTrees::shouldInsertASubtree_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("row");

    QTest::newRow("at the front") << 0 << 0;
    QTest::newRow("between") << 1 << 1;
    QTest::newRow("at the end") << 2 << 2;
    QTest::newRow("past the end") << 7 << 2;
    QTest::newRow("negative") << -1 << 2;
}

void TestNodeObjectsTrees::shouldInsertASubtree()
{
    QFETCH(int, position);
    QFETCH(int, row);
    FishModel model;
    loadDocument(model, QStringLiteral("Effect[a,b]"));
    TreeItem *const head = model.getFishHeadTreeItem();
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);

    model.read(documentFromText(QStringLiteral("new[x]")), head, position);

    QCOMPARE(inserted.count(), 1);
    QCOMPARE(inserted.first().at(0).toModelIndex(), model.index(0, 0));
    QCOMPARE(inserted.first().at(1).toInt(), row);
    QCOMPARE(inserted.first().at(2).toInt(), row);
    QCOMPARE(treeToText(*head->childAtIndex(row)), QStringLiteral("new[x]"));
    QCOMPARE(head->childCount(), 3);
    QCOMPARE(head->childAtIndex(row)->uuid(), QStringLiteral("u-new"));
    QCOMPARE(head->childAtIndex(row)->pid(), QStringLiteral("-1")); // as it stands in the object
    QCOMPARE(model.fishList().first()->nodeCount(), 3);
}

void TestNodeObjectsTrees::shouldOrderDescendantsByPosition_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<QString>("subtree");

    QTest::newRow("negative") << -1 << QStringLiteral("n[w,x[1,2,3],y,z]");
    QTest::newRow("0") << 0 << QStringLiteral("n[z,y,x[3,2,1],w]");
    QTest::newRow("1") << 1 << QStringLiteral("n[w,z,y,x[1,3,2]]");
    QTest::newRow("2") << 2 << QStringLiteral("n[w,x[1,2,3],z,y]");
    QTest::newRow("3") << 3 << QStringLiteral("n[w,x[1,2,3],y,z]");
    QTest::newRow("9") << 9 << QStringLiteral("n[w,x[1,2,3],y,z]");
}

void TestNodeObjectsTrees::shouldOrderDescendantsByPosition()
{
    QFETCH(int, position);
    QFETCH(QString, subtree);
    TreeItem parent;
    parent.appendChild(new TreeItem);

    FishModel model;
    model.read(documentFromText(QStringLiteral("n[w,x[1,2,3],y,z]")), &parent, position);

    const TreeItem *const top = parent.childAtIndex(position == 0 ? 0 : 1);
    QCOMPARE(treeToText(*top), subtree);
}

void TestNodeObjectsTrees::shouldNotSkipEmptyObjectsOfASubtree()
{
    TreeItem parent;
    FishModel model;

    model.read(objectFrom(R"({"title": "a", "children": [{}, 5, {"title": "b"}]})"), &parent, -1);
    model.read(QJsonObject(), &parent, -1);

    QCOMPARE(treeToText(*parent.childAtIndex(0)), QStringLiteral("a[,,b]"));
    QCOMPARE(parent.childAtIndex(1)->pid(), QStringLiteral("-1"));
    QCOMPARE(parent.childAtIndex(1)->uuid(), QString());
}

void TestNodeObjectsTrees::shouldInsertNothingBelowNoParent()
{
    FishModel model;
    loadDocument(model, QStringLiteral("Effect[a,b]"));
    QSignalSpy about(&model, &QAbstractItemModel::rowsAboutToBeInserted);

    model.read(documentFromText(QStringLiteral("new")), nullptr, 0);

    QCOMPARE(about.count(), 0);
    QCOMPARE(treeToText(*model.getFishHeadTreeItem()), QStringLiteral("Effect[a,b]"));
}

void TestNodeObjectsTrees::shouldInsertWideSubtreesInTime()
{
    constexpr int width = 100000;
    const QJsonObject object = written(*makeFan(width));
    TreeItem parent;
    parent.insertChildren(0, width, QString());
    FishModel model;

    model.read(object, &parent, width / 2);

    const TreeItem *const top = parent.childAtIndex(width / 2);
    QCOMPARE(top->childCount(), width);
    QCOMPARE(top->childAtIndex(width / 2 - 1)->title(), QString::number(width / 2 - 1));
    QCOMPARE(top->childAtIndex(width / 2)->title(), QString::number(width - 1));
    QCOMPARE(top->childAtIndex(width - 1)->title(), QString::number(width / 2));
}

FISHBONE_TEST(TestNodeObjectsTrees)

#include "tst_nodeobjects_trees.moc"
