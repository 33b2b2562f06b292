// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/jsonnodes.h>

#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>
#include <fishbone/style/spearstyle.h>

#include <tests/model/nodeobjectsparts.h>
#include <tests/program/sanitized.h>
#include <tests/program/testprogram.h>
#include <tests/support/documents.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

#include <limits>

using namespace TestSupport;

namespace {

QByteArray textOf(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

/** The keys of a node that was made by the program and has no style and no followers. */
QStringList ordinaryKeys()
{
    return {
        QStringLiteral("children"),    QStringLiteral("createdate"), QStringLiteral("creatorid"),
        QStringLiteral("creatorname"), QStringLiteral("detail"),     QStringLiteral("mgrid"),
        QStringLiteral("mgrname"),     QStringLiteral("pid"),        QStringLiteral("planenddate"),
        QStringLiteral("priority"),    QStringLiteral("progress"),   QStringLiteral("showid"),
        QStringLiteral("status"),      QStringLiteral("title"),      QStringLiteral("type"),
        QStringLiteral("url"),         QStringLiteral("uuid")};
}

} // namespace

/** Node objects of the diagram format: nodes and trees from them and to them. */
class TestNodeObjects : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldReadEveryKey();
    void shouldReadDefaultsForMissingKeys();
    void shouldReadDefaultsForValuesOfAWrongType();
    void shouldReadDates_data();
    void shouldReadDates();
    void shouldReadStyles_data();
    void shouldReadStyles();
    void shouldReadFollowers_data();
    void shouldReadFollowers();
    void shouldReadWhetherItIsMovable_data();
    void shouldReadWhetherItIsMovable();
    void shouldNameTheParentWithoutEnteringIt();
    void shouldWriteTheOrdinaryKeys();
    void shouldWriteEveryValue();
    void shouldLeaveOutNullTexts();
    void shouldComeBackFromWhatItWrote();
    void shouldWriteTheSubtreeInOrder();
    void shouldWriteTheLastChildOfAContainer();
    void shouldWriteNothingForNoNode();
    void shouldWriteTheSameBytesForTheSameTree();
    void shouldWriteDeepTrees_data();
    void shouldWriteDeepTrees();
    void shouldWriteWideTrees();
};

void TestNodeObjects::shouldReadEveryKey()
{
    const TreeItem node(objectFrom(R"({
        "title": "Man", "uuid": "u1", "showid": "T-1", "pid": "u0", "detail": "text",
        "priority": 2, "type": 3, "status": 4, "progress": 50, "url": "https://example.org",
        "mgrname": "Li", "mgrid": "m", "creatorname": "Wang", "creatorid": "c",
        "followers": ["a", "b"], "createdate": 1500000000000, "planenddate": 1500000000001,
        "ismovable": false, "spearstyle": {"textCount": 9}, "children": [{"title": "below"}]
    })"));

    QCOMPARE(node.title(), QStringLiteral("Man"));
    QCOMPARE(node.uuid(), QStringLiteral("u1"));
    QCOMPARE(node.showid(), QStringLiteral("T-1"));
    QCOMPARE(node.pid(), QStringLiteral("u0"));
    QCOMPARE(node.detail(), QStringLiteral("text"));
    QCOMPARE(node.priority(), 2);
    QCOMPARE(node.type(), 3);
    QCOMPARE(node.status(), 4);
    QCOMPARE(node.progress(), 50);
    QCOMPARE(node.url(), QStringLiteral("https://example.org"));
    QCOMPARE(node.managerName(), QStringLiteral("Li"));
    QCOMPARE(node.managerId(), QStringLiteral("m"));
    QCOMPARE(node.creatorName(), QStringLiteral("Wang"));
    QCOMPARE(node.creatorId(), QStringLiteral("c"));
    QCOMPARE(node.followers(), QStringList({QStringLiteral("a"), QStringLiteral("b")}));
    QCOMPARE(node.createDate(), qint64(1500000000000));
    QCOMPARE(node.planEndDate(), qint64(1500000000001));
    QVERIFY(!node.spearItemIsMovable());
    QVERIFY(node.spearStyle());
    QCOMPARE(node.spearStyle()->textCount(), 9);
    QCOMPARE(node.childCount(), 0);
    QCOMPARE(node.parent(), nullptr);
}

void TestNodeObjects::shouldReadDefaultsForMissingKeys()
{
    const TreeItem node{QJsonObject()};

    QCOMPARE(node.title(), QString());
    QCOMPARE(node.uuid(), QString()); // not "-1", which a node has that is not read
    QCOMPARE(node.showid(), QString());
    QCOMPARE(node.pid(), QStringLiteral("-1"));
    QCOMPARE(node.detail(), QString());
    QVERIFY(!node.detail().isNull());
    QCOMPARE(node.priority(), -1);
    QCOMPARE(node.type(), 0);
    QCOMPARE(node.status(), -1);
    QCOMPARE(node.progress(), 0);
    QVERIFY(!node.url().isNull());
    QCOMPARE(node.followers(), QStringList());
    QCOMPARE(node.createDate(), qint64(0));
    QCOMPARE(node.planEndDate(), qint64(0));
    QVERIFY(node.spearItemIsMovable());
    QCOMPARE(node.spearStyle(), nullptr);
}

void TestNodeObjects::shouldReadDefaultsForValuesOfAWrongType()
{
    const TreeItem node(objectFrom(R"({
        "title": 1, "uuid": [], "showid": {}, "pid": null, "detail": true, "priority": "2",
        "type": null, "status": [], "progress": {}, "url": 5, "mgrname": 5, "mgrid": 5,
        "creatorname": 5, "creatorid": 5, "followers": "a", "createdate": "x", "planenddate": null,
        "ismovable": "yes", "spearstyle": 5, "children": {}
    })"));

    QCOMPARE(node.title(), QString());
    QCOMPARE(node.uuid(), QString());
    QCOMPARE(node.showid(), QString());
    QCOMPARE(node.pid(), QString());
    QCOMPARE(node.detail(), QString());
    QCOMPARE(node.priority(), 0);
    QCOMPARE(node.type(), 0);
    QCOMPARE(node.status(), 0);
    QCOMPARE(node.progress(), 0);
    QCOMPARE(node.url(), QString());
    QCOMPARE(node.managerName(), QString());
    QCOMPARE(node.followers(), QStringList());
    QCOMPARE(node.createDate(), qint64(0));
    QCOMPARE(node.planEndDate(), qint64(0));
    QVERIFY(!node.spearItemIsMovable());
    QCOMPARE(node.spearStyle(), nullptr);
}

void TestNodeObjects::shouldReadDates_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<qint64>("msecs");

    QTest::newRow("exact") << QByteArray("1500000000000") << qint64(1500000000000);
    QTest::newRow("before the epoch") << QByteArray("-1500000000001") << qint64(-1500000000001);
    QTest::newRow("fraction up") << QByteArray("1500000000000.5") << qint64(1500000000001);
    QTest::newRow("fraction down") << QByteArray("1500000000000.25") << qint64(1500000000000);
    QTest::newRow("2^53") << QByteArray("9007199254740992") << qint64(9007199254740992);
    QTest::newRow("largest below 2^63")
        << QByteArray("9223372036854774784") << qint64(9223372036854774784);
    QTest::newRow("2^63") << QByteArray("9223372036854775808") << qint64(0);
    QTest::newRow("far too large") << QByteArray("1e300") << qint64(0);
    QTest::newRow("far too small") << QByteArray("-1e300") << qint64(0);
    QTest::newRow("text") << QByteArray("\"x\"") << qint64(0);
    QTest::newRow("number as text") << QByteArray("\"15\"") << qint64(0);
}

void TestNodeObjects::shouldReadDates()
{
    QFETCH(QByteArray, value);
    QFETCH(qint64, msecs);

    const TreeItem node(
        objectFrom("{\"createdate\": " + value + ", \"planenddate\": " + value + '}'));

    QCOMPARE(node.createDate(), msecs);
    QCOMPARE(node.planEndDate(), msecs);
}

void TestNodeObjects::shouldReadStyles_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<bool>("hasStyle");

    QTest::newRow("missing") << QByteArray(R"({"title": "a"})") << false;
    QTest::newRow("empty object") << QByteArray(R"({"spearstyle": {}})") << false;
    QTest::newRow("array") << QByteArray(R"({"spearstyle": []})") << false;
    QTest::newRow("null") << QByteArray(R"({"spearstyle": null})") << false;
    QTest::newRow("unknown key") << QByteArray(R"({"spearstyle": {"x": 1}})") << true;
}

void TestNodeObjects::shouldReadStyles()
{
    QFETCH(QByteArray, json);
    QFETCH(bool, hasStyle);

    const TreeItem node(objectFrom(json));

    QCOMPARE(node.spearStyle() != nullptr, hasStyle);
}

void TestNodeObjects::shouldReadFollowers_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QStringList>("followers");

    QTest::newRow("two") << QByteArray(R"(["a", "b"])")
                         << QStringList({QStringLiteral("a"), QStringLiteral("b")});
    QTest::newRow("none") << QByteArray("[]") << QStringList();
    QTest::newRow("no texts") << QByteArray(R"([1, null, "a"])")
                              << QStringList({QString(), QString(), QStringLiteral("a")});
    QTest::newRow("no array") << QByteArray(R"({"a": "b"})") << QStringList();
}

void TestNodeObjects::shouldReadFollowers()
{
    QFETCH(QByteArray, value);
    QFETCH(QStringList, followers);

    const TreeItem node(objectFrom("{\"followers\": " + value + '}'));

    QCOMPARE(node.followers(), followers);
}

void TestNodeObjects::shouldReadWhetherItIsMovable_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<bool>("movable");

    QTest::newRow("missing") << QByteArray("{}") << true;
    QTest::newRow("true") << QByteArray(R"({"ismovable": true})") << true;
    QTest::newRow("false") << QByteArray(R"({"ismovable": false})") << false;
    QTest::newRow("number") << QByteArray(R"({"ismovable": 1})") << false;
    QTest::newRow("null") << QByteArray(R"({"ismovable": null})") << false;
}

void TestNodeObjects::shouldReadWhetherItIsMovable()
{
    QFETCH(QByteArray, json);
    QFETCH(bool, movable);

    TreeItem node(objectFrom(json));

    QCOMPARE(node.spearItemIsMovable(), movable);
    // It is never written, so that a saved diagram opens with every bone movable.
    QVERIFY(!written(node).contains(QStringLiteral("ismovable")));
}

void TestNodeObjects::shouldNameTheParentWithoutEnteringIt()
{
    TreeItem parent;
    parent.setUuid(QStringLiteral("u0"));

    const TreeItem node(objectFrom(R"({"pid": "u0"})"), &parent);

    QCOMPARE(node.parent(), &parent);
    QCOMPARE(node.pid(), QStringLiteral("u0"));
    QCOMPARE(parent.childCount(), 0);
}

void TestNodeObjects::shouldWriteTheOrdinaryKeys()
{
    TreeItem node;

    const QJsonObject object = written(node);

    QCOMPARE(object.keys(), ordinaryKeys());
    QCOMPARE(object.value(QStringLiteral("title")), QJsonValue(QString()));
    QCOMPARE(object.value(QStringLiteral("uuid")), QJsonValue(QStringLiteral("-1")));
    QCOMPARE(object.value(QStringLiteral("url")), QJsonValue(QString()));
    QCOMPARE(object.value(QStringLiteral("status")), QJsonValue(-1));
    QCOMPARE(object.value(QStringLiteral("createdate")), QJsonValue(0));
    QCOMPARE(object.value(QStringLiteral("children")), QJsonValue(QJsonArray()));
}

void TestNodeObjects::shouldWriteEveryValue()
{
    const QByteArray json =
        R"({"children":[],"createdate":1500000000000,"creatorid":"c",)"
        R"("creatorname":"Wang","detail":"text","followers":["a","b"],)"
        R"("mgrid":"m","mgrname":"Li","pid":"u0","planenddate":-5,)"
        R"("priority":2,"progress":50,"showid":"T-1",)"
        R"("spearstyle":{"inheritanceParent":true,"spearStates":[],"textCount":9},)"
        R"("status":4,"title":"Man","type":3,"url":"https://example.org",)"
        R"("uuid":"u1"})";
    TreeItem node(objectFrom(json));

    QCOMPARE(textOf(written(node)), json);
}

void TestNodeObjects::shouldLeaveOutNullTexts()
{
    TreeItem node;
    node.setManagerName(QString());
    node.setManagerId(QString());
    node.setCreatorName(QString());
    node.setCreatorId(QString());
    node.setUrl(QString());
    node.setTitle(QString());
    node.setDetail(QString());

    QStringList expected = ordinaryKeys();
    for (const char *key : {"mgrname", "mgrid", "creatorname", "creatorid", "url"})
        expected.removeAll(QString::fromLatin1(key));
    QCOMPARE(written(node).keys(), expected);
}

void TestNodeObjects::shouldComeBackFromWhatItWrote()
{
    TreeItem plain;
    const QByteArray once = textOf(written(plain));

    TreeItem again(objectFrom(once));

    // Empty texts come back empty and not null, so that no key is lost on the way.
    QCOMPARE(textOf(written(again)), once);
}

void TestNodeObjects::shouldWriteTheSubtreeInOrder()
{
    const QJsonObject document = documentFromText(QStringLiteral("E[M[T,S[x]],A,B[y]]"));
    FishInfo info;
    info.loadFish(document, nullptr);
    const TreeItem &head = *info.treeItem()->childAtIndex(0);
    QCOMPARE(treeToText(head), QStringLiteral("E[M[T,S[x]],A,B[y]]"));

    QJsonObject object;
    FishModel::write(object, head.childAtIndex(0), true);
    FishInfo copy;
    copy.loadFish(object, nullptr);

    QCOMPARE(treeToText(*copy.treeItem()->childAtIndex(0)), QStringLiteral("M[T,S[x]]"));
}

void TestNodeObjects::shouldWriteTheLastChildOfAContainer()
{
    TreeItem container;
    QJsonObject object{{QStringLiteral("before"), 1}};
    FishModel::write(object, &container, false);
    QCOMPARE(object.keys(), QStringList(QStringLiteral("before")));

    for (const char *title : {"first", "last"}) {
        auto *const child = new TreeItem;
        child->setTitle(QString::fromLatin1(title));
        container.appendChild(child);
    }
    FishModel::write(object, &container, false);

    QCOMPARE(object.value(QStringLiteral("title")), QJsonValue(QStringLiteral("last")));
    QCOMPARE(object.keys(), ordinaryKeys());
}

void TestNodeObjects::shouldWriteNothingForNoNode()
{
    QJsonObject object{{QStringLiteral("before"), 1}};

    FishModel::write(object, nullptr, true);
    FishModel::write(object, nullptr, false);

    QCOMPARE(object.keys(), QStringList(QStringLiteral("before")));
}

void TestNodeObjects::shouldWriteTheSameBytesForTheSameTree()
{
    for (quint32 seed = 1; seed <= unlessSanitized(10u, 4u); ++seed) {
        FishInfo first;
        first.loadFish(randomDocument(seed, {60}), nullptr);
        QJsonObject once;
        FishModel::write(once, first.treeItem(), false);
        FishInfo second;
        second.loadFish(objectFrom(QJsonDocument(once).toJson()), nullptr);
        QJsonObject again;
        FishModel::write(again, second.treeItem(), false);

        QCOMPARE(QJsonDocument(again).toJson(), QJsonDocument(once).toJson());
    }
}

void TestNodeObjects::shouldWriteDeepTrees_data()
{
    QTest::addColumn<int>("depth");
    QTest::addColumn<bool>("isWritten");

    QTest::newRow("deeper than a file may be") << 5000 << true;
    QTest::newRow("as deep as possible") << JsonNodes::buildableLevels << true;
    QTest::newRow("a level too deep") << JsonNodes::buildableLevels + 1 << false;
    QTest::newRow("far too deep") << 100000 << false;
}

void TestNodeObjects::shouldWriteDeepTrees()
{
    QFETCH(int, depth);
    QFETCH(bool, isWritten);
    const auto chain = makeChain(depth);

    QJsonObject object{{QStringLiteral("before"), 1}};
    FishModel::write(object, chain.get(), true);

    QCOMPARE(object.isEmpty(), !isWritten);
    if (!isWritten)
        return;
    const std::unique_ptr<TreeItem> back = JsonNodes::read(object, nullptr, -1);
    const TreeItem *last = back.get();
    int nodes = 1;
    for (; last->childCount() > 0; ++nodes)
        last = last->childAtIndex(0);
    QCOMPARE(nodes, depth);
    QCOMPARE(last->title(), QString::number(depth - 1));
}

void TestNodeObjects::shouldWriteWideTrees()
{
    constexpr int width = 100000;
    const auto fan = makeFan(width);

    const QJsonObject object = written(*fan);
    const std::unique_ptr<TreeItem> back = JsonNodes::read(object, nullptr, -1);

    QCOMPARE(back->childCount(), width);
    QCOMPARE(back->childAtIndex(width - 1)->uuid(), fan->childAtIndex(width - 1)->uuid());
}

FISHBONE_TEST(TestNodeObjects)

#include "tst_nodeobjects.moc"
