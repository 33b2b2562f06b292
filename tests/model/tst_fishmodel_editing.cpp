// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/fishmodel.h>

#include <fishbone/model/fishinfo.h>
#include <fishbone/model/treeitem.h>

#include <tests/program/testprogram.h>
#include <tests/support/documents.h>
#include <tests/support/metatypes.h>

#include <QAbstractItemModelTester>
#include <QBrush>
#include <QIcon>
#include <QMimeData>
#include <QStandardItemModel>
#include <QtTest>

#include <memory>

#include <type_traits>

using namespace TestSupport;

/** Changing what the columns show. */
class TestFishModelEditing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldEditColumnsAnnounced_data();
    void shouldEditColumnsAnnounced();
    void shouldStoreTheTypeButDenyIt();
    void shouldRefuseOtherEdits();
    void shouldIgnoreIndexesOfOtherModels();
    void shouldUpdateAnItemFromAnother();
    void shouldUpdateNothingWithoutItemOrSource();
    void shouldAnnounceAReset();
    void shouldSkipDocumentsWithoutAHead();
};

void TestFishModelEditing::shouldEditColumnsAnnounced_data()
{
    QTest::addColumn<int>("column");

    QTest::newRow("title") << 0;
    QTest::newRow("uuid") << 1;
    QTest::newRow("showid") << 2;
    QTest::newRow("pid") << 3;
}

void TestFishModelEditing::shouldEditColumnsAnnounced()
{
    QFETCH(int, column);
    FishModel model;
    loadDocument(model, QStringLiteral("T[a]"));
    const QModelIndex index = model.index(0, column, model.index(0, 0));
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);

    QVERIFY(model.setData(index, QStringLiteral("new")));

    QCOMPARE(index.data().toString(), QStringLiteral("new"));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.first().at(0).toModelIndex(), index);
    QCOMPARE(changed.first().at(1).toModelIndex(), index);
}

void TestFishModelEditing::shouldStoreTheTypeButDenyIt()
{
    FishModel model;
    loadDocument(model, QStringLiteral("T[a]"));
    const QModelIndex index = model.index(0, 4, model.index(0, 0));
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);

    QVERIFY(!model.setData(index, 7));

    QCOMPARE(index.data().toInt(), 7);
    QCOMPARE(changed.count(), 0);
}

void TestFishModelEditing::shouldRefuseOtherEdits()
{
    FishModel model;
    loadDocument(model, QStringLiteral("T[a]"));
    const QModelIndex index = model.index(0, 0, model.index(0, 0));
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);

    QVERIFY(!model.setData(index, QStringLiteral("new"), Qt::DisplayRole));
    QVERIFY(!model.setData(QModelIndex(), QStringLiteral("new")));

    QCOMPARE(index.data().toString(), QStringLiteral("a"));
    QCOMPARE(changed.count(), 0);
}

void TestFishModelEditing::shouldIgnoreIndexesOfOtherModels()
{
    FishModel model;
    loadDocument(model, QStringLiteral("T[a]"));
    FishModel second;
    loadDocument(second, QStringLiteral("T[a]"));
    QStandardItemModel other(1, 1);

    for (const QModelIndex &foreign : {second.index(0, 0), other.index(0, 0)}) {
        QCOMPARE(model.getTreeItem(foreign), nullptr);
        QCOMPARE(model.flags(foreign), Qt::ItemFlags(Qt::NoItemFlags));
        QVERIFY(!model.data(foreign).isValid());
        QVERIFY(!model.setData(foreign, QStringLiteral("x")));
        QVERIFY(!model.parent(foreign).isValid());
        QCOMPARE(model.rowCount(foreign), 0);
        QVERIFY(!model.insertRows(0, 1, foreign));
        QVERIFY(!model.removeRows(0, 1, foreign));
        QVERIFY(!model.moveRows(foreign, 0, 1, model.index(0, 0), 0));
        QVERIFY(!model.moveRows(model.index(0, 0), 0, 1, foreign, 0));
        QCOMPARE(model.takeRow(0, foreign), nullptr);
    }
    QCOMPARE(treeToText(*model.getFishHeadTreeItem()), QStringLiteral("T[a]"));
}

void TestFishModelEditing::shouldUpdateAnItemFromAnother()
{
    FishModel model;
    loadDocument(model, QStringLiteral("T[a]"));
    const QModelIndex index = model.index(0, 0, model.index(0, 0));
    TreeItem *const item = model.getTreeItem(index);
    item->addFollower(QStringLiteral("old"));
    TreeItem source(QStringLiteral("new"), QStringLiteral("other"), QStringLiteral("T-9"),
                    QStringLiteral("p"), 5);
    source.setDetail(QStringLiteral("detail"));
    source.setManagerName(QStringLiteral("Li"));
    source.setManagerId(QStringLiteral("m"));
    source.setFollowers(QStringList(QStringLiteral("f")));
    source.setPlanEndDate(5);
    source.setPriority(3);
    source.setStatus(2);
    source.setProgress(40);
    source.setUrl(QStringLiteral("url"));
    source.setCreateDate(9);
    source.setCreatorName(QStringLiteral("Wang"));
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);

    model.updateItem(index, &source);

    QCOMPARE(item->title(), QStringLiteral("new"));
    QCOMPARE(item->detail(), QStringLiteral("detail"));
    QCOMPARE(item->managerName(), QStringLiteral("Li"));
    QCOMPARE(item->managerId(), QStringLiteral("m"));
    QCOMPARE(item->followers(), QStringList(QStringLiteral("f")));
    QCOMPARE(item->planEndDate(), qint64(5));
    QCOMPARE(item->priority(), 3);
    QVERIFY(item->isEditModified());
    // Everything else is its own.
    QCOMPARE(item->uuid(), QStringLiteral("u-a"));
    QCOMPARE(item->pid(), QStringLiteral("u-T"));
    QCOMPARE(item->showid(), QString());
    QCOMPARE(item->type(), 0);
    QCOMPARE(item->status(), -1);
    QCOMPARE(item->progress(), 0);
    QCOMPARE(item->url(), QString());
    QCOMPARE(item->createDate(), qint64(0));
    QCOMPARE(item->creatorName(), QString());
    QCOMPARE(changed.count(), 0);
}

void TestFishModelEditing::shouldUpdateNothingWithoutItemOrSource()
{
    FishModel model;
    loadDocument(model, QStringLiteral("T[a]"));
    const QModelIndex index = model.index(0, 0, model.index(0, 0));
    TreeItem source;

    model.updateItem(index, nullptr);
    model.updateItem(QModelIndex(), &source);

    QVERIFY(!model.getTreeItem(index)->isEditModified());
    QCOMPARE(treeToText(*model.getFishHeadTreeItem()), QStringLiteral("T[a]"));
}

void TestFishModelEditing::shouldAnnounceAReset()
{
    FishModel model;
    loadDocument(model, QStringLiteral("T[a]"));
    QSignalSpy about(&model, &QAbstractItemModel::modelAboutToBeReset);
    QSignalSpy reset(&model, &QAbstractItemModel::modelReset);

    model.refreshModel();

    QCOMPARE(about.count(), 1);
    QCOMPARE(reset.count(), 1);
}

void TestFishModelEditing::shouldSkipDocumentsWithoutAHead()
{
    FishModel model;
    FishInfo *const headless = model.loadJsonFish("[]");
    QVERIFY(headless);
    loadDocument(model, QStringLiteral("T[a]"));

    QCOMPARE(model.rowCount(), 2);
    QCOMPARE(headless->nodeCount(), 0);
    QVERIFY(!model.index(0, 0).isValid());
    QVERIFY(!model.index(0, 0).data().isValid());
    QCOMPARE(model.getFishHeadTreeItem(), nullptr);
    QCOMPARE(model.index(1, 0).data().toString(), QStringLiteral("T(-1个无父任务/共0个任务)"));
    QCOMPARE(model.modelIndexByUuid(QStringLiteral("u-a")),
             indexTitled(model, QStringLiteral("a")));
    QCOMPARE(model.searchModelIndexes(QStringLiteral("a")).size(), 1);
    QVERIFY(!model.findFish(headless->fileName()).isValid());
    QVERIFY(model.contains(nodeTitled(model, QStringLiteral("a"))));
    const std::unique_ptr<QMimeData> dragged(model.mimeData({model.index(1, 0)}));
    QCOMPARE(model.indexList(dragged.get()), QModelIndexList{model.index(1, 0)});
    QCOMPARE(model.takeRow(0, QModelIndex()), nullptr);
    QVERIFY(!model.moveRows(QModelIndex(), 0, 1, model.index(1, 0), 0));
    QVERIFY(model.moveRows(QModelIndex(), 0, 1, QModelIndex(), 2));
    QCOMPARE(model.fishList().last(), headless);

    model.read(documentFromText(QStringLiteral("H")), headless->treeItem(), 0);
    QCOMPARE(model.index(1, 0).siblingAtColumn(1).data().toString(), QStringLiteral("u-H"));
    QVERIFY(model.removeRows(0, 2));
    QCOMPARE(model.rowCount(), 0);
}

FISHBONE_TEST(TestFishModelEditing)

#include "tst_fishmodel_editing.moc"
