// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/fishproxymodel.h>

#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>

#include <tests/model/fishproxymodelparts.h>
#include <tests/program/testprogram.h>
#include <tests/support/documents.h>
#include <tests/support/modelfollower.h>

#include <QAbstractItemModelTester>
#include <QIdentityProxyModel>
#include <QRandomGenerator>
#include <QStandardItemModel>
#include <QStringListModel>
#include <QTreeView>
#include <QtTest>

using namespace TestSupport;

/** The filter that keeps ancestors. */
/** Any changes of any tree, and what they may cost. */
class TestFishProxyModelBounds : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldStayInStepWithRandomChanges_data();
    void shouldStayInStepWithRandomChanges();
    void shouldAskEachRowABoundedNumberOfTimes_data();
    void shouldAskEachRowABoundedNumberOfTimes();
    void shouldAskLittleAboutSmallChanges();
    void shouldFilterDeepTreesWithoutRecursion();
};

void TestFishProxyModelBounds::shouldStayInStepWithRandomChanges_data()
{
    QTest::addColumn<quint32>("seed");
    QTest::addColumn<bool>("throughProxy");

    for (quint32 seed = 1; seed <= 15; ++seed) {
        QTest::addRow("seed %u", seed) << seed << false;
        QTest::addRow("seed %u, other kind of source", seed) << seed << true;
    }
}

void TestFishProxyModelBounds::shouldStayInStepWithRandomChanges()
{
    QFETCH(quint32, seed);
    QFETCH(bool, throughProxy);
    QRandomGenerator random(seed);
    FishModel source;
    source.setModelType(FISH_MODEL_DIAGRAM);
    for (quint32 i = 0; i < 2; ++i)
        loadDocument(source, randomDocument(seed * 2 + i, {15, 3, 3, 0}));
    QIdentityProxyModel between;
    between.setSourceModel(&source);
    FishProxyModel proxy;
    proxy.setSourceModel(throughProxy ? static_cast<QAbstractItemModel *>(&between) : &source);
    proxy.setFilterRegularExpression(QStringLiteral("a"));
    const QAbstractItemModelTester tester(&proxy);
    const ModelFollower follower(proxy);
    QCOMPARE(follower.text(), expectedText(proxy));

    for (int i = 0; i < 80; ++i) {
        const QModelIndexList all = source.searchModelIndexes(QString());
        if (all.isEmpty())
            break;
        const QModelIndex some = all.at(random.bounded(all.size()));
        const QModelIndex other = all.at(random.bounded(all.size()));
        switch (random.bounded(7)) {
        case 0:
            source.removeRows(some.row(), 1, some.parent());
            break;
        case 1:
            source.read(randomDocument(quint32(i), {3, 2, 3, 0}), source.getTreeItem(some),
                        random.bounded(4));
            break;
        case 2:
            source.insertRows(source.rowCount(some), 2, some);
            break;
        case 3:
            source.moveRows(some.parent(), some.row(), 1, other, 0);
            break;
        case 4:
            proxy.setFilterRegularExpression(QString(QChar('a' + random.bounded(4))));
            break;
        default:
            source.setData(some, QString(QChar('a' + random.bounded(6))));
        }
        QCOMPARE(follower.text(), expectedText(proxy));
    }
}

void TestFishProxyModelBounds::shouldAskEachRowABoundedNumberOfTimes_data()
{
    QTest::addColumn<int>("depth");
    QTest::addColumn<QString>("pattern");

    for (const int depth : {2, 10, 100}) {
        for (const char *pattern : {"x", "y", "last"})
            QTest::addRow("%d deep, %s", depth, pattern) << depth << QString::fromLatin1(pattern);
    }
}

void TestFishProxyModelBounds::shouldAskEachRowABoundedNumberOfTimes()
{
    QFETCH(int, depth);
    QFETCH(QString, pattern);
    constexpr int size = 20000;
    auto head = std::make_unique<TreeItem>();
    for (int i = 0; i < size / depth; ++i) {
        std::unique_ptr<TreeItem> chain = makeChain(depth);
        TreeItem *last = chain.get();
        for (; last->childCount() > 0; last = last->childAtIndex(0))
            last->setTitle(QStringLiteral("x"));
        last->setTitle(QStringLiteral("x last"));
        head->appendChild(chain.release());
    }
    CountingModel source;
    addDocument(source, std::move(head));
    FishProxyModel proxy;
    proxy.setSourceModel(&source);
    QTreeView view; // shows nothing, so that only the filter asks
    view.setModel(&proxy);
    view.expandAll();
    source.takeQuestions();

    proxy.setFilterFixedString(pattern);
    view.expandAll();

    const int questions = source.takeQuestions();
    QVERIFY2(questions <= 2 * size, qPrintable(QString::number(questions)));
    QVERIFY2(questions >= size / depth, qPrintable(QString::number(questions)));
}

void TestFishProxyModelBounds::shouldAskLittleAboutSmallChanges()
{
    constexpr int size = 20000;
    CountingModel source;
    TreeItem *const head = addDocument(source, makeFan(2));
    TreeItem *const bone = head->childAtIndex(0);
    source.insertRows(0, size, source.indexFromItem(bone));
    FishProxyModel proxy;
    proxy.setSourceModel(&source);
    proxy.setFilterFixedString(QStringLiteral("needle"));
    const ModelFollower follower(proxy);
    source.takeQuestions();

    for (int i = 0; i < 100; ++i) {
        source.insertRows(0, 1, source.indexFromItem(bone));
        source.removeRows(size / 2, 1, source.indexFromItem(bone));
        source.setData(source.index(7, 0, source.indexFromItem(bone)), QStringLiteral("x"));
    }

    // The changes made nothing match, so that nothing but the new and the edited is in question.
    const int questions = source.takeQuestions();
    QVERIFY2(questions < 2000, qPrintable(QString::number(questions)));
    QCOMPARE(proxy.rowCount(proxy.index(0, 0)), 0);
    source.setData(source.index(9, 0, source.indexFromItem(bone)), QStringLiteral("needle"));
    QCOMPARE(proxy.rowCount(proxy.index(0, 0)), 1);
}

void TestFishProxyModelBounds::shouldFilterDeepTreesWithoutRecursion()
{
    constexpr int depth = 100000;
    CountingModel source;
    TreeItem *const head = addDocument(source, makeChain(depth));
    FishProxyModel proxy;
    proxy.setSourceModel(&source);
    source.takeQuestions();

    proxy.setFilterFixedString(QString::number(depth - 1));
    QVERIFY(proxy.filterAcceptsRow(0, source.index(0, 0)));
    proxy.setFilterFixedString(QStringLiteral("nowhere"));
    QVERIFY(!proxy.filterAcceptsRow(0, source.index(0, 0)));
    QCOMPARE(proxy.rowCount(), 1);

    QVERIFY(source.takeQuestions() <= 4 * depth);
    TreeItem *const second = head->childAtIndex(0)->childAtIndex(0);
    source.removeRows(0, 1, source.indexFromItem(second));
    QVERIFY(!proxy.filterAcceptsRow(0, source.index(0, 0)));
}

FISHBONE_TEST(TestFishProxyModelBounds)

#include "tst_fishproxymodel_bounds.moc"
