// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/treeitem.h>

#include <fishbone/items/spearitem.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/systemhelper.h>
#include <fishbone/style/spearstyle.h>
#include <fishbone/style/spearstyledialog.h>

#include <tests/program/testprogram.h>
#include <tests/support/documents.h>
#include <tests/support/modaldriver.h>

#include <QJsonArray>
#include <QJsonObject>
#include <QtTest>

using namespace TestSupport;

namespace {

constexpr qint64 dayOfMarch = 1520000000000; // 2018-03-02

} // namespace

/** The attributes of a node and its links to a spear and a style. */
class TestTreeItem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldStartWithDefaults();
    void shouldStartWithTextsThatAreEmptyButNotNull();
    void shouldTakeItsFirstAttributesFromTheConstructor();
    void shouldNotEnterTheParentThatItNames();
    void shouldKeepEveryAttribute();
    void shouldShowItsColumns_data();
    void shouldShowItsColumns();
    void shouldStoreColumns_data();
    void shouldStoreColumns();
    void shouldReplaceFollowersByAList();
    void shouldAppendFollowersOfAnArray();
    void shouldTellWhetherThereIsAParentTask_data();
    void shouldTellWhetherThereIsAParentTask();
    void shouldBeTopOnlyBelowAContainer();
    void shouldDrawAUuidOnlyWhenThereIsNone_data();
    void shouldDrawAUuidOnlyWhenThereIsNone();
    void shouldDescribeItselfInATooltip_data();
    void shouldDescribeItselfInATooltip();
};

void TestTreeItem::shouldStartWithDefaults()
{
    const TreeItem node;

    QCOMPARE(node.childCount(), 0);
    QCOMPARE(node.parent(), nullptr);
    QCOMPARE(node.title(), QString());
    QCOMPARE(node.uuid(), QStringLiteral("-1"));
    QCOMPARE(node.showid(), QString());
    QCOMPARE(node.pid(), QStringLiteral("-1"));
    QCOMPARE(node.detail(), QString());
    QCOMPARE(node.type(), 0);
    QCOMPARE(node.status(), -1);
    QCOMPARE(node.progress(), 0);
    QCOMPARE(node.priority(), -1);
    QCOMPARE(node.followers(), QStringList());
    QCOMPARE(node.createDate(), qint64(0));
    QCOMPARE(node.planEndDate(), qint64(0));
    QVERIFY(node.spearItemIsMovable());
    QVERIFY(!node.isEditModified());
    QCOMPARE(node.spear(), nullptr);
    QCOMPARE(node.spearStyle(), nullptr);
    QVERIFY(!node.isHaveParentTask());
    QCOMPARE(node.columnCount(), 5);
}

void TestTreeItem::shouldStartWithTextsThatAreEmptyButNotNull()
{
    const TreeItem node;

    const QStringList texts{node.showid(),      node.detail(),    node.url(),
                            node.managerName(), node.managerId(), node.creatorName(),
                            node.creatorId()};
    for (const QString &text : texts) {
        QVERIFY(text.isEmpty());
        QVERIFY(!text.isNull());
    }
}

void TestTreeItem::shouldTakeItsFirstAttributesFromTheConstructor()
{
    TreeItem parent;

    const TreeItem node(QStringLiteral("Man"), QStringLiteral("u1"), QStringLiteral("T-1"),
                        QStringLiteral("u0"), 3, &parent);

    QCOMPARE(node.title(), QStringLiteral("Man"));
    QCOMPARE(node.uuid(), QStringLiteral("u1"));
    QCOMPARE(node.showid(), QStringLiteral("T-1"));
    QCOMPARE(node.pid(), QStringLiteral("u0"));
    QCOMPARE(node.type(), 3);
    QCOMPARE(node.parent(), &parent);
    QCOMPARE(node.status(), -1);
}

void TestTreeItem::shouldNotEnterTheParentThatItNames()
{
    TreeItem parent;

    const TreeItem node(QString(), QString(), QString(), QString(), 0, &parent);

    QCOMPARE(parent.childCount(), 0);
    QCOMPARE(node.index(), -1);
}

void TestTreeItem::shouldKeepEveryAttribute()
{
    TreeItem node;

    node.setTitle(QStringLiteral("title"));
    node.setUuid(QStringLiteral("uuid"));
    node.setShowid(QStringLiteral("showid"));
    node.setPid(QStringLiteral("pid"));
    node.setUrl(QStringLiteral("url"));
    node.setDetail(QStringLiteral("detail"));
    node.setType(1);
    node.setStatus(2);
    node.setProgress(3);
    node.setPriority(4);
    node.setManagerName(QStringLiteral("manager"));
    node.setManagerId(QStringLiteral("m"));
    node.setCreatorName(QStringLiteral("creator"));
    node.setCreatorId(QStringLiteral("c"));
    node.setCreateDate(std::numeric_limits<qint64>::max());
    node.setPlanEndDate(std::numeric_limits<qint64>::min());
    node.setEditModified(true);
    node.setSpearItemIsMovable(false);

    QCOMPARE(node.title(), QStringLiteral("title"));
    QCOMPARE(node.uuid(), QStringLiteral("uuid"));
    QCOMPARE(node.showid(), QStringLiteral("showid"));
    QCOMPARE(node.pid(), QStringLiteral("pid"));
    QCOMPARE(node.url(), QStringLiteral("url"));
    QCOMPARE(node.detail(), QStringLiteral("detail"));
    QCOMPARE(node.type(), 1);
    QCOMPARE(node.status(), 2);
    QCOMPARE(node.progress(), 3);
    QCOMPARE(node.priority(), 4);
    QCOMPARE(node.managerName(), QStringLiteral("manager"));
    QCOMPARE(node.managerId(), QStringLiteral("m"));
    QCOMPARE(node.creatorName(), QStringLiteral("creator"));
    QCOMPARE(node.creatorId(), QStringLiteral("c"));
    QCOMPARE(node.createDate(), std::numeric_limits<qint64>::max());
    QCOMPARE(node.planEndDate(), std::numeric_limits<qint64>::min());
    QVERIFY(node.isEditModified());
    QVERIFY(!node.spearItemIsMovable());
}

void TestTreeItem::shouldShowItsColumns_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QVariant>("value");

    QTest::newRow("title") << 0 << QVariant(QStringLiteral("Man"));
    QTest::newRow("uuid") << 1 << QVariant(QStringLiteral("u1"));
    QTest::newRow("showid") << 2 << QVariant(QStringLiteral("T-1"));
    QTest::newRow("pid") << 3 << QVariant(QStringLiteral("u0"));
    QTest::newRow("type") << 4 << QVariant(7);
    QTest::newRow("past the last") << 5 << QVariant();
    QTest::newRow("before the first") << -1 << QVariant();
}

void TestTreeItem::shouldShowItsColumns()
{
    QFETCH(int, column);
    QFETCH(QVariant, value);
    const TreeItem node(QStringLiteral("Man"), QStringLiteral("u1"), QStringLiteral("T-1"),
                        QStringLiteral("u0"), 7);

    QCOMPARE(node.data(column), value);
    QCOMPARE(node.data(column).type(), value.type());
}

void TestTreeItem::shouldStoreColumns_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("result");
    QTest::addColumn<QVariant>("stored");

    const QVariant text = QStringLiteral("12");
    QTest::newRow("title") << 0 << text << true << text;
    QTest::newRow("uuid") << 1 << text << true << text;
    QTest::newRow("showid") << 2 << text << true << text;
    QTest::newRow("pid") << 3 << text << true << text;
    QTest::newRow("number as title") << 0 << QVariant(12) << true << text;
    QTest::newRow("type is stored and denied") << 4 << QVariant(7) << false << QVariant(7);
    QTest::newRow("text as type") << 4 << text << false << QVariant(12);
    QTest::newRow("no number as type")
        << 4 << QVariant(QStringLiteral("x")) << false << QVariant(0);
    QTest::newRow("past the last") << 5 << text << false << QVariant();
    QTest::newRow("before the first") << -1 << text << false << QVariant();
}

void TestTreeItem::shouldStoreColumns()
{
    QFETCH(int, column);
    QFETCH(QVariant, value);
    QFETCH(bool, result);
    QFETCH(QVariant, stored);
    TreeItem node;

    QCOMPARE(node.setData(column, value), result);
    QCOMPARE(node.data(column), stored);
}

void TestTreeItem::shouldReplaceFollowersByAList()
{
    TreeItem node;
    node.addFollower(QStringLiteral("old"));

    node.setFollowers(QStringList{QStringLiteral("a"), QStringLiteral("b")});
    node.addFollower(QStringLiteral("c"));

    QCOMPARE(node.followers(),
             QStringList({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")}));
}

void TestTreeItem::shouldAppendFollowersOfAnArray()
{
    TreeItem node;
    node.addFollower(QStringLiteral("old"));

    node.setFollowers(QJsonArray{QStringLiteral("a"), 5, QStringLiteral("b")});

    QCOMPARE(node.followers(), QStringList({QStringLiteral("old"), QStringLiteral("a"), QString(),
                                            QStringLiteral("b")}));
}

void TestTreeItem::shouldTellWhetherThereIsAParentTask_data()
{
    QTest::addColumn<QString>("pid");
    QTest::addColumn<bool>("hasParentTask");

    QTest::newRow("null") << QString() << false;
    QTest::newRow("empty") << QStringLiteral("") << false;
    QTest::newRow("minus one") << QStringLiteral("-1") << false;
    QTest::newRow("minus one and a blank") << QStringLiteral("-1 ") << true;
    QTest::newRow("other number") << QStringLiteral("1") << true;
    QTest::newRow("uuid") << SystemHelper::randomUuid() << true;
}

void TestTreeItem::shouldTellWhetherThereIsAParentTask()
{
    QFETCH(QString, pid);
    QFETCH(bool, hasParentTask);
    TreeItem node;
    node.setPid(pid);

    QCOMPARE(node.isHaveParentTask(), hasParentTask);
}

void TestTreeItem::shouldBeTopOnlyBelowAContainer()
{
    TreeItem container;
    auto *const head = new TreeItem;
    auto *const bone = new TreeItem;
    container.appendChild(head);
    head->appendChild(bone);

    QVERIFY(!container.isTopVaildItem());
    QVERIFY(head->isTopVaildItem());
    QVERIFY(!bone->isTopVaildItem());
}

void TestTreeItem::shouldDrawAUuidOnlyWhenThereIsNone_data()
{
    QTest::addColumn<QString>("uuid");
    QTest::addColumn<bool>("drawn");

    QTest::newRow("null") << QString() << true;
    QTest::newRow("empty") << QStringLiteral("") << true;
    QTest::newRow("minus one") << QStringLiteral("-1") << true;
    QTest::newRow("given") << QStringLiteral("1") << false;
}

void TestTreeItem::shouldDrawAUuidOnlyWhenThereIsNone()
{
    QFETCH(QString, uuid);
    QFETCH(bool, drawn);
    TreeItem node;
    node.setUuid(uuid);

    QCOMPARE(node.ensureUuid(), drawn);
    if (drawn)
        QCOMPARE(node.uuid().length(), 38);
    else
        QCOMPARE(node.uuid(), uuid);
    QVERIFY(!node.ensureUuid());
}

void TestTreeItem::shouldDescribeItselfInATooltip_data()
{
    QTest::addColumn<QString>("showid");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("manager");
    QTest::addColumn<qint64>("created");
    QTest::addColumn<qint64>("due");
    QTest::addColumn<QString>("tooltip");

    const QString none;
    const QString a = QStringLiteral("A");
    const QString id = QStringLiteral("T-1");
    const QString li = QStringLiteral("Li");
    const QString date = SystemHelper::stringFromDateTimeMsecs(dayOfMarch);
    QTest::newRow("nothing") << none << none << none << qint64(0) << qint64(0) << none;
    QTest::newRow("title") << none << a << none << qint64(0) << qint64(0) << a;
    QTest::newRow("showid") << id << none << none << qint64(0) << qint64(0)
                            << QStringLiteral("T-1 ");
    QTest::newRow("showid and title")
        << id << a << none << qint64(0) << qint64(0) << QStringLiteral("T-1 A");
    QTest::newRow("manager") << none << a << li << qint64(0) << qint64(0)
                             << QStringLiteral("A\n 负责人:Li");
    QTest::newRow("created") << none << a << none << dayOfMarch << qint64(0)
                             << QStringLiteral("A\n 创建时间:") + date;
    QTest::newRow("due") << none << a << none << qint64(0) << dayOfMarch
                         << QStringLiteral("A\n 截止时间:") + date;
    QTest::newRow("before the epoch")
        << none << a << none << qint64(0) << qint64(-86400000 * 3)
        << QStringLiteral("A\n 截止时间:") + SystemHelper::stringFromDateTimeMsecs(-86400000 * 3);
    QTest::newRow("everything")
        << id << a << li << dayOfMarch << dayOfMarch
        << QStringLiteral("T-1 A\n 负责人:Li\n 创建时间:%1\n 截止时间:%1").arg(date);
}

void TestTreeItem::shouldDescribeItselfInATooltip()
{
    QFETCH(QString, showid);
    QFETCH(QString, title);
    QFETCH(QString, manager);
    QFETCH(qint64, created);
    QFETCH(qint64, due);
    QFETCH(QString, tooltip);
    TreeItem node;
    node.setShowid(showid);
    node.setTitle(title);
    node.setManagerName(manager);
    node.setCreateDate(created);
    node.setPlanEndDate(due);

    QCOMPARE(node.toolTipString(), tooltip);
}

FISHBONE_TEST(TestTreeItem)

#include "tst_treeitem.moc"
