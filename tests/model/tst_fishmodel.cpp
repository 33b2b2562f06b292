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

static_assert(std::is_base_of_v<DragDropModel, FishModel>);
static_assert(std::is_same_v<std::underlying_type_t<FISH_MODEL_TYPE>, int>);
static_assert(std::is_same_v<std::underlying_type_t<MODEL_ERROR>, int>);

/** What FishModel shows of its documents. */
class TestFishModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldNumberItsEnumerations();
    void shouldRegisterItsTypes();
    void shouldStartEmpty();
    void shouldAnnounceAChangedNode();
    void shouldShowDocumentsAtTheTop();
    void shouldShowNodesBelowHeads();
    void shouldAnswerNoIndexOutsideTheTree();
    void shouldAnswerParents();
    void shouldAnswerParentsInAnyOfManyDocuments();
    void shouldHaveNoRowsBelowOtherColumns();
    void shouldHaveFiveColumnsEverywhere();
    void shouldTitleItsColumns();
    void shouldHaveHeadersOnlyForColumns_data();
    void shouldHaveHeadersOnlyForColumns();
    void shouldBeSelectableAndEnabledOnly();
    void shouldShowColumns();
    void shouldShowTheCountsOfTheFirstDocumentOnEveryHead();
    void shouldShowAPlainHeadThatHasLeft();
    void shouldShowAPlainHeadInOtherTypes_data();
    void shouldShowAPlainHeadInOtherTypes();
    void shouldDecorateNodesThatHaveAParentTask();
    void shouldExplainNodesInTooltips();
    void shouldPaintImmovableNodesRed();
    void shouldAnswerNothingElse_data();
    void shouldAnswerNothingElse();
};

void TestFishModel::shouldNumberItsEnumerations()
{
    QCOMPARE(int(FISH_MODEL_NORMAL), 0);
    QCOMPARE(int(FISH_MODEL_DIAGRAM), 1);
    QCOMPARE(int(MODEL_NO_ERROR), 0);
    QCOMPARE(int(MODEL_FILE_OPEN_ERROR), -10001);
    QCOMPARE(int(MODEL_DATA_ERROR), -10002);
    QCOMPARE(int(MODEL_NO_DOCUMENT), -10003);
}

void TestFishModel::shouldRegisterItsTypes()
{
    const FishModel model;

    QVERIFY(isRegisteredType("MODEL_ERROR"));
    QVERIFY(isRegisteredType("TreeItem*"));
}

void TestFishModel::shouldStartEmpty()
{
    FishModel model;
    const QAbstractItemModelTester tester(&model);

    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(model.columnCount(), 5);
    QCOMPARE(model.fishList(), QList<FishInfo *>());
    QCOMPARE(model.modelType(), FISH_MODEL_NORMAL);
    QCOMPARE(model.getFishHeadTreeItem(), nullptr);
    QVERIFY(!model.index(0, 0).isValid());
}

void TestFishModel::shouldAnnounceAChangedNode()
{
    FishModel model;
    FishModel other;
    loadDocument(model, QStringLiteral("A[a,b]"));
    loadDocument(other, QStringLiteral("B"));
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    const QModelIndex b = model.index(1, 0, model.index(0, 0));

    model.announceChange(b.siblingAtColumn(2));

    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.first().at(0).toModelIndex(), b);
    QCOMPARE(changed.first().at(1).toModelIndex(), b.siblingAtColumn(4));
    model.announceChange(QModelIndex());
    model.announceChange(other.index(0, 0));
    QCOMPARE(changed.count(), 1);
}

void TestFishModel::shouldShowDocumentsAtTheTop()
{
    FishModel model;
    const QAbstractItemModelTester tester(&model);
    FishInfo *const first = loadDocument(model, QStringLiteral("A[x]"));
    FishInfo *const second = loadDocument(model, QStringLiteral("B"));

    QCOMPARE(model.rowCount(), 2);
    QCOMPARE(model.fishList(), QList<FishInfo *>({first, second}));
    QCOMPARE(model.getTreeItem(model.index(0, 0)), first->treeItem()->childAtIndex(0));
    QCOMPARE(model.getTreeItem(model.index(1, 3)), second->treeItem()->childAtIndex(0));
    QCOMPARE(model.index(1, 3).row(), 1);
    QCOMPARE(model.index(1, 3).column(), 3);
}

void TestFishModel::shouldShowNodesBelowHeads()
{
    FishModel model;
    const QAbstractItemModelTester tester(&model);
    loadDocument(model, QStringLiteral("A[x[y,z],w]"));

    const QModelIndex head = model.index(0, 0);
    const QModelIndex x = model.index(0, 0, head);
    const QModelIndex z = model.index(1, 0, x);

    QCOMPARE(model.rowCount(head), 2);
    QCOMPARE(model.rowCount(x), 2);
    QCOMPARE(model.rowCount(z), 0);
    QCOMPARE(z.internalPointer(), static_cast<void *>(nodeTitled(model, QStringLiteral("z"))));
    QVERIFY(model.hasChildren(head));
    QVERIFY(!model.hasChildren(z));
}

void TestFishModel::shouldAnswerNoIndexOutsideTheTree()
{
    FishModel model;
    loadDocument(model, QStringLiteral("A[x]"));
    const QModelIndex head = model.index(0, 0);

    QVERIFY(!model.index(-1, 0).isValid());
    QVERIFY(!model.index(0, -1).isValid());
    QVERIFY(!model.index(1, 0).isValid());
    QVERIFY(!model.index(-1, 0, head).isValid());
    QVERIFY(!model.index(0, -1, head).isValid());
    QVERIFY(!model.index(1, 0, head).isValid());
    QVERIFY(!model.index(0, 5, head).isValid());
    QVERIFY(!model.index(0, 0, model.index(0, 1)).isValid());
}

void TestFishModel::shouldAnswerParents()
{
    FishModel model;
    loadDocument(model, QStringLiteral("A"));
    loadDocument(model, QStringLiteral("B[x[y],w[z]]"));
    const QModelIndex head = model.index(1, 0);
    const QModelIndex w = model.index(1, 2, head);

    QVERIFY(!model.parent(QModelIndex()).isValid());
    QVERIFY(!model.parent(head).isValid());
    QCOMPARE(model.parent(w), head);
    QCOMPARE(model.parent(model.index(0, 0, model.index(1, 0, head))), model.index(1, 0, head));
    QCOMPARE(model.getParentTreeItem(w), model.getTreeItem(head));
    QCOMPARE(model.getParentTreeItem(head), nullptr);
    QCOMPARE(model.getParentTreeItem(QModelIndex()), nullptr);
}

void TestFishModel::shouldAnswerParentsInAnyOfManyDocuments()
{
    constexpr int documents = 10000;
    FishModel model;
    model.insertRows(0, documents);
    for (int row = 0; row < documents; ++row)
        model.getTreeItem(model.index(row, 0))->insertChildren(0, 1, QString());

    // With a search among the documents this would take a hundred million steps a round.
    for (int round = 0; round < 20; ++round) {
        for (int row = 0; row < documents; ++row) {
            const QModelIndex head = model.index(row, 0);
            QCOMPARE(model.parent(model.index(0, 0, head)), head);
        }
    }

    model.removeRows(0, 1);
    QCOMPARE(model.parent(model.index(0, 0, model.index(documents - 2, 0))).row(), documents - 2);
}

void TestFishModel::shouldHaveNoRowsBelowOtherColumns()
{
    FishModel model;
    loadDocument(model, QStringLiteral("A[x]"));

    QCOMPARE(model.rowCount(model.index(0, 0)), 1);
    for (int column = 1; column < 5; ++column)
        QCOMPARE(model.rowCount(model.index(0, column)), 0);
}

void TestFishModel::shouldHaveFiveColumnsEverywhere()
{
    FishModel model;
    loadDocument(model, QStringLiteral("A[x]"));

    QCOMPARE(model.columnCount(), 5);
    QCOMPARE(model.columnCount(model.index(0, 0)), 5);
    QCOMPARE(model.columnCount(model.index(0, 0, model.index(0, 0))), 5);
}

void TestFishModel::shouldTitleItsColumns()
{
    const FishModel model;

    QStringList titles;
    for (int section = 0; section < model.columnCount(); ++section)
        titles.append(model.headerData(section, Qt::Horizontal).toString());

    QCOMPARE(titles,
             QStringList({QStringLiteral("title"), QStringLiteral("uuid"), QStringLiteral("showid"),
                          QStringLiteral("pid"), QStringLiteral("type")}));
}

void TestFishModel::shouldHaveHeadersOnlyForColumns_data()
{
    QTest::addColumn<int>("section");
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<int>("role");

    QTest::newRow("past the last") << 5 << Qt::Horizontal << int(Qt::DisplayRole);
    QTest::newRow("before the first") << -1 << Qt::Horizontal << int(Qt::DisplayRole);
    QTest::newRow("rows") << 0 << Qt::Vertical << int(Qt::DisplayRole);
    QTest::newRow("other role") << 0 << Qt::Horizontal << int(Qt::ToolTipRole);
}

void TestFishModel::shouldHaveHeadersOnlyForColumns()
{
    QFETCH(int, section);
    QFETCH(Qt::Orientation, orientation);
    QFETCH(int, role);
    const FishModel model;

    QVERIFY(!model.headerData(section, orientation, role).isValid());
}

void TestFishModel::shouldBeSelectableAndEnabledOnly()
{
    FishModel model;
    loadDocument(model, QStringLiteral("A[x]"));
    const QModelIndex head = model.index(0, 0);

    const Qt::ItemFlags expected = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    QCOMPARE(model.flags(head), expected);
    QCOMPARE(model.flags(model.index(0, 4, head)), expected);
    QCOMPARE(model.flags(QModelIndex()), Qt::ItemFlags(Qt::NoItemFlags));
}

void TestFishModel::shouldShowColumns()
{
    FishModel model;
    loadDocument(model, QStringLiteral("A[x]"));
    TreeItem *const x = nodeTitled(model, QStringLiteral("x"));
    x->setShowid(QStringLiteral("T-1"));
    x->setType(7);
    const QModelIndex index = model.indexFromItem(x);

    QCOMPARE(index.data(), QVariant(QStringLiteral("x")));
    QCOMPARE(index.siblingAtColumn(1).data(), QVariant(QStringLiteral("u-x")));
    QCOMPARE(index.siblingAtColumn(2).data(), QVariant(QStringLiteral("T-1")));
    QCOMPARE(index.siblingAtColumn(3).data(), QVariant(QStringLiteral("u-A")));
    QCOMPARE(index.siblingAtColumn(4).data(), QVariant(7));
    QCOMPARE(model.index(0, 1).data(), QVariant(QStringLiteral("u-A")));
    QVERIFY(!model.index(0, 5).data().isValid());
}

void TestFishModel::shouldShowTheCountsOfTheFirstDocumentOnEveryHead()
{
    FishModel model;
    FishInfo *const first = loadDocument(model, QStringLiteral("T[a,b,c]"));
    loadDocument(model, QStringLiteral("Other"));

    QCOMPARE(model.index(0, 0).data().toString(), QStringLiteral("T(0个无父任务/共4个任务)"));
    QCOMPARE(model.index(1, 0).data().toString(), QStringLiteral("Other(0个无父任务/共4个任务)"));

    first->setNoParentNodeCount(12);
    first->setNodeCount(345);
    QCOMPARE(model.index(1, 0).data().toString(),
             QStringLiteral("Other(12个无父任务/共345个任务)"));
    QCOMPARE(model.index(0, 0, model.index(0, 0)).data().toString(), QStringLiteral("a"));
}

void TestFishModel::shouldShowAPlainHeadThatHasLeft()
{
    FishModel model;
    loadDocument(model, QStringLiteral("T[a]"));
    const QModelIndex head = model.index(0, 0);

    const std::unique_ptr<FishInfo> taken(model.takeFish(0));

    QCOMPARE(model.data(head, Qt::DisplayRole).toString(), QStringLiteral("T"));
}

void TestFishModel::shouldShowAPlainHeadInOtherTypes_data()
{
    QTest::addColumn<int>("type");

    QTest::newRow("diagram") << int(FISH_MODEL_DIAGRAM);
    QTest::newRow("unknown") << 42;
    QTest::newRow("negative") << -1;
}

void TestFishModel::shouldShowAPlainHeadInOtherTypes()
{
    QFETCH(int, type);
    FishModel model;
    loadDocument(model, QStringLiteral("T"));

    model.setModelType(FISH_MODEL_TYPE(type));

    QCOMPARE(int(model.modelType()), type);
    QCOMPARE(model.index(0, 0).data().toString(), QStringLiteral("T"));
}

void TestFishModel::shouldDecorateNodesThatHaveAParentTask()
{
    FishModel model;
    loadDocument(model, QStringLiteral("T[a]"));
    const QModelIndex a = model.index(0, 0, model.index(0, 0));

    QVERIFY(!model.index(0, 0).data(Qt::DecorationRole).isValid());
    const auto icon = a.data(Qt::DecorationRole).value<QIcon>();
    QVERIFY(!icon.isNull());
    QCOMPARE(icon.pixmap(16).toImage(),
             QIcon(QStringLiteral(":/fishboneDiagram/noparent.png")).pixmap(16).toImage());
    QVERIFY(a.siblingAtColumn(2).data(Qt::DecorationRole).isValid());

    model.getTreeItem(a)->setPid(QStringLiteral("-1"));
    QVERIFY(!a.data(Qt::DecorationRole).isValid());
}

void TestFishModel::shouldExplainNodesInTooltips()
{
    FishModel model;
    loadDocument(model, QStringLiteral("T[a]"));
    const QModelIndex head = model.index(0, 0);
    const QModelIndex a = model.index(0, 0, head);
    model.getTreeItem(a)->setManagerName(QStringLiteral("Li"));

    QVERIFY(!head.data(Qt::ToolTipRole).isValid());
    QCOMPARE(head.siblingAtColumn(1).data(Qt::ToolTipRole), QVariant(QStringLiteral("T")));
    QCOMPARE(a.data(Qt::ToolTipRole), QVariant(QStringLiteral("a\n 负责人:Li")));
}

void TestFishModel::shouldPaintImmovableNodesRed()
{
    FishModel model;
    loadDocument(model, QStringLiteral("T[a]"));
    const QModelIndex a = model.index(0, 0, model.index(0, 0));

    QVERIFY(!a.data(Qt::ForegroundRole).isValid());
    model.getTreeItem(a)->setSpearItemIsMovable(false);
    QCOMPARE(a.data(Qt::ForegroundRole).value<QBrush>().color(), QColor(Qt::red));
}

void TestFishModel::shouldAnswerNothingElse_data()
{
    QTest::addColumn<int>("role");

    QTest::newRow("edit") << int(Qt::EditRole);
    QTest::newRow("status tip") << int(Qt::StatusTipRole);
    QTest::newRow("font") << int(Qt::FontRole);
    QTest::newRow("check state") << int(Qt::CheckStateRole);
    QTest::newRow("user") << int(Qt::UserRole);
}

void TestFishModel::shouldAnswerNothingElse()
{
    QFETCH(int, role);
    FishModel model;
    loadDocument(model, QStringLiteral("T[a]"));

    QVERIFY(!model.index(0, 0).data(role).isValid());
    QVERIFY(!model.data(QModelIndex(), role).isValid());
    QVERIFY(!model.data(QModelIndex()).isValid());
}

FISHBONE_TEST(TestFishModel)

#include "tst_fishmodel.moc"
