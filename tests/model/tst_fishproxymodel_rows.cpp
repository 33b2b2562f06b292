// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/fishproxymodel.h>

#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>

#include <tests/program/testprogram.h>
#include <tests/support/documents.h>
#include <tests/support/modelfollower.h>

#include <QAbstractItemModelTester>
#include <QSignalBlocker>
#include <QStandardItemModel>
#include <QtTest>

using namespace TestSupport;

namespace {

/** Two rows with two rows below each; those at the top have nothing behind their indexes. */
class TwoLevels : public QAbstractItemModel
{
public:
    QModelIndex index(int row, int column, const QModelIndex &parent) const override
    {
        if (!hasIndex(row, column, parent))
            return {};
        return createIndex(row, column, quintptr(parent.isValid() ? parent.row() + 1 : 0));
    }
    QModelIndex parent(const QModelIndex &index) const override
    {
        return index.internalId() == 0 ? QModelIndex()
                                       : createIndex(int(index.internalId()) - 1, 0, quintptr(0));
    }
    int rowCount(const QModelIndex &parent) const override
    {
        return parent.isValid() && parent.internalId() != 0 ? 0 : 2;
    }
    int columnCount(const QModelIndex &) const override { return 1; }
    QVariant data(const QModelIndex &index, int role) const override
    {
        return role == Qt::DisplayRole ? QString::number(index.row()) : QVariant();
    }
};

} // namespace

/** The filter that keeps ancestors, while rows change several at a time. */
class TestFishProxyModelRows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void shouldHideAncestorsOfSeveralRowsThatGo();
    void shouldShowTheAncestorsOfRowsThatChangeTogether();
    void shouldFollowChangesWhileSorted();
    void shouldTakeMovesThatItKeptStillAtWhenTold();
    void shouldKeepWhatLiesBelowRowsWithoutANode();

private:
    QString shown() const { return ModelFollower(*m_proxy).text(); }
    QModelIndex at(const char *title) const
    {
        return indexTitled(*m_model, QString::fromLatin1(title));
    }

    std::unique_ptr<FishModel> m_model;
    std::unique_ptr<FishProxyModel> m_proxy;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
    std::unique_ptr<ModelFollower> m_follower;
};

void TestFishProxyModelRows::init()
{
    m_model = std::make_unique<FishModel>();
    m_model->setModelType(FISH_MODEL_DIAGRAM);
    loadDocument(*m_model, QStringLiteral("H[A[x1,b,x2],B[c],C[x3]]"));
    m_proxy = std::make_unique<FishProxyModel>();
    m_proxy->setSourceModel(m_model.get());
    m_tester = std::make_unique<QAbstractItemModelTester>(m_proxy.get());
    m_follower = std::make_unique<ModelFollower>(*m_proxy);
    m_proxy->setFilterFixedString(QStringLiteral("x"));
    QCOMPARE(shown(), QStringLiteral("H[A[x1,x2],C[x3]]"));
}

void TestFishProxyModelRows::cleanup()
{
    QCOMPARE(m_follower->text(), m_follower->modelText());
    m_follower.reset();
    m_tester.reset();
    m_proxy.reset();
    m_model.reset();
}

void TestFishProxyModelRows::shouldHideAncestorsOfSeveralRowsThatGo()
{
    QVERIFY(m_model->removeRows(0, 2, at("A")));
    QCOMPARE(shown(), QStringLiteral("H[A[x2],C[x3]]"));
    QVERIFY(m_model->removeRows(0, 1, at("A")));
    QCOMPARE(shown(), QStringLiteral("H[C[x3]]"));
}

void TestFishProxyModelRows::shouldShowTheAncestorsOfRowsThatChangeTogether()
{
    QStandardItemModel source;
    auto *const top = new QStandardItem(QStringLiteral("top"));
    auto *const middle = new QStandardItem(QStringLiteral("middle"));
    middle->appendRow(new QStandardItem(QStringLiteral("1")));
    middle->appendRow(new QStandardItem(QStringLiteral("2")));
    top->appendRow(middle);
    source.appendRow(top);
    m_proxy->setSourceModel(&source);
    QCOMPARE(shown(), QStringLiteral("top"));

    {
        const QSignalBlocker blocker(&source);
        middle->child(0)->setText(QStringLiteral("x1"));
        middle->child(1)->setText(QStringLiteral("x2"));
    }
    Q_EMIT source.dataChanged(middle->child(0)->index(), middle->child(1)->index());
    QCOMPARE(shown(), QStringLiteral("top[middle[x1,x2]]"));
    m_proxy->setSourceModel(m_model.get());
}

void TestFishProxyModelRows::shouldFollowChangesWhileSorted()
{
    m_proxy->sort(0, Qt::DescendingOrder);
    QCOMPARE(shown(), QStringLiteral("H[C[x3],A[x2,x1]]"));

    m_model->setData(at("c"), QStringLiteral("x4"));
    QCOMPARE(shown(), QStringLiteral("H[C[x3],B[x4],A[x2,x1]]"));
    m_model->setData(at("x3"), QStringLiteral("d"));
    QCOMPARE(shown(), QStringLiteral("H[B[x4],A[x2,x1]]"));
    m_proxy->sort(0, Qt::AscendingOrder);
    QCOMPARE(shown(), QStringLiteral("H[A[x1,x2],B[x4]]"));
}

void TestFishProxyModelRows::shouldTakeMovesThatItKeptStillAtWhenTold()
{
    m_proxy->setDynamicSortFilter(false);
    QVERIFY(m_model->moveRows(at("C"), 0, 1, at("B"), 0));
    m_proxy->setDynamicSortFilter(true);
    QCOMPARE(shown(), QStringLiteral("H[A[x1,x2],B[x3]]"));
}

void TestFishProxyModelRows::shouldKeepWhatLiesBelowRowsWithoutANode()
{
    TwoLevels source;
    m_proxy->setSourceModel(&source);
    m_proxy->setFilterFixedString(QStringLiteral("1"));
    QCOMPARE(m_proxy->rowCount(), 2);
    QCOMPARE(m_proxy->rowCount(m_proxy->index(0, 0)), 2);
    m_proxy->setSourceModel(m_model.get());
}

FISHBONE_TEST(TestFishProxyModelRows)
#include "tst_fishproxymodel_rows.moc"
