// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/fishproxymodel.h>

#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>

#include <tests/program/testprogram.h>
#include <tests/support/documents.h>
#include <tests/support/modelfollower.h>

#include <QtTest>

using namespace TestSupport;

namespace {

/** Accepts what the filter accepts, but for subjects of one title with all that is below them. */
class RestrictedProxy : public FishProxyModel
{
public:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override
    {
        ++m_questions;
        const QString title = sourceModel()->index(row, 0, parent).data().toString();
        return title != m_refused && FishProxyModel::filterAcceptsRow(row, parent);
    }
    int takeQuestions() { return std::exchange(m_questions, 0); }

    QString m_refused;

private:
    mutable int m_questions = 0;
};

using Change = void (*)(RestrictedProxy &proxy);

} // namespace

Q_DECLARE_METATYPE(Change)

/** What the filter asks a subclass, and how long it believes the answers. */
class TestFishProxyModelRemembering : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void shouldAskTheSubclassAboutDescendants();
    void shouldAskTheSubclassABoundedNumberOfTimes();
    void shouldAskTheSubclassAtAnyDepth();
    void shouldForgetWithEveryChangeOfTheFilter_data();
    void shouldForgetWithEveryChangeOfTheFilter();
    void shouldForgetWithAnAnnouncedChange();
    void shouldAskAgainAfterAnUpdate();
    void shouldFollowChangesThroughTheSubclass();

private:
    QModelIndex at(const char *title) const
    {
        return m_model->indexFromItem(nodeTitled(*m_model, QString::fromLatin1(title)));
    }
    bool accepts(const char *title) const
    {
        const QModelIndex index = at(title);
        return m_proxy->filterAcceptsRow(index.row(), index.parent());
    }

    std::unique_ptr<FishModel> m_model;
    std::unique_ptr<RestrictedProxy> m_proxy;
};

void TestFishProxyModelRemembering::init()
{
    m_model = std::make_unique<FishModel>();
    m_model->setModelType(FISH_MODEL_DIAGRAM);
    loadDocument(*m_model, QStringLiteral("Effect[Man[Training[Needle]],Machine[Wear]]"));
    m_proxy = std::make_unique<RestrictedProxy>();
    m_proxy->setSourceModel(m_model.get());
}

void TestFishProxyModelRemembering::cleanup()
{
    m_proxy.reset();
    m_model.reset();
}

void TestFishProxyModelRemembering::shouldAskTheSubclassAboutDescendants()
{
    m_proxy->m_refused = QStringLiteral("Needle");
    m_proxy->setFilterFixedString(QStringLiteral("Needle"));
    const ModelFollower follower(*m_proxy);
    QCOMPARE(follower.text(), QStringLiteral("Effect"));
    m_proxy->m_refused = QStringLiteral("Training");
    m_proxy->setFilterFixedString(QStringLiteral("Needle"));
    QCOMPARE(follower.text(), QStringLiteral("Effect"));
    m_proxy->m_refused = QStringLiteral("Wear");
    m_proxy->setFilterFixedString(QStringLiteral("Needle"));
    QCOMPARE(follower.text(), QStringLiteral("Effect[Man[Training[Needle]]]"));
}

void TestFishProxyModelRemembering::shouldAskTheSubclassABoundedNumberOfTimes()
{
    constexpr int depth = 3000;
    FishModel source;
    addDocument(source, makeChain(depth));
    RestrictedProxy proxy;
    proxy.setSourceModel(&source);
    const ModelFollower follower(proxy); // asks for every row that is shown
    for (const char *text : {"x", "29"}) {
        proxy.takeQuestions();
        proxy.setFilterFixedString(QString::fromLatin1(text));
        const int questions = proxy.takeQuestions();
        QVERIFY2(questions <= 4 * depth, qPrintable(QString::number(questions)));
        QVERIFY2(questions >= depth - 1, qPrintable(QString::number(questions)));
    }
}

void TestFishProxyModelRemembering::shouldAskTheSubclassAtAnyDepth()
{
    constexpr int depth = 100000;
    FishModel source;
    addDocument(source, makeChain(depth));
    RestrictedProxy proxy;
    proxy.setSourceModel(&source);
    proxy.setFilterFixedString(QString::number(depth - 1));
    QVERIFY(proxy.filterAcceptsRow(0, source.index(0, 0)));
    proxy.m_refused = QString::number(depth - 1);
    proxy.setFilterFixedString(QString::number(depth - 1));
    QVERIFY(!proxy.filterAcceptsRow(0, source.index(0, 0)));
}

void TestFishProxyModelRemembering::shouldForgetWithEveryChangeOfTheFilter_data()
{
    QTest::addColumn<Change>("change");
    const auto row = [](const char *name, Change change) { QTest::newRow(name) << change; };
    row("the same text", [](RestrictedProxy &proxy) {
        static_cast<QSortFilterProxyModel &>(proxy).setFilterFixedString(QStringLiteral("Needle"));
    });
    row("the same expression", [](RestrictedProxy &proxy) {
        proxy.setFilterRegularExpression(QRegularExpression(QStringLiteral("Needle")));
    });
    row("the same column", [](RestrictedProxy &proxy) { proxy.setFilterKeyColumn(0); });
    row("invalidate",
        [](RestrictedProxy &proxy) { static_cast<QSortFilterProxyModel &>(proxy).invalidate(); });
    row("invalidateFilter", [](RestrictedProxy &proxy) {
        // As a subclass reaches it that knows nothing of the one in between.
        class Reaching : public QSortFilterProxyModel
        {
        public:
            static void reach(QSortFilterProxyModel &model)
            {
                (model.*(&Reaching::invalidateFilter))();
            }
        };
        Reaching::reach(proxy);
    });
}

void TestFishProxyModelRemembering::shouldForgetWithEveryChangeOfTheFilter()
{
    QFETCH(Change, change);
    m_proxy->setFilterFixedString(QStringLiteral("Needle"));
    QVERIFY(accepts("Man"));
    m_proxy->m_refused = QStringLiteral("Needle"); // the rule is another one
    change(*m_proxy);
    QVERIFY(!accepts("Man"));
    m_proxy->m_refused.clear();
    change(*m_proxy);
    QVERIFY(accepts("Man"));
}

void TestFishProxyModelRemembering::shouldForgetWithAnAnnouncedChange()
{
    m_proxy->setFilterFixedString(QStringLiteral("Needle"));
    QVERIFY(accepts("Man"));
    m_proxy->m_refused = QStringLiteral("Needle");
    m_model->setData(at("Wear"), QStringLiteral("Rust"));
    QVERIFY(!accepts("Man"));
    m_proxy->m_refused.clear();
    m_model->insertRows(0, 1, at("Machine"));
    QVERIFY(accepts("Man"));
    m_proxy->m_refused = QStringLiteral("Needle");
    m_model->removeRows(0, 1, at("Machine"));
    QVERIFY(!accepts("Man"));
}

void TestFishProxyModelRemembering::shouldAskAgainAfterAnUpdate()
{
    m_proxy->setFilterFixedString(QStringLiteral("Needle"));
    QVERIFY(accepts("Man"));
    QVERIFY(!accepts("Machine"));
    TreeItem record;
    record.setTitle(QStringLiteral("Thread"));
    m_model->updateItem(at("Needle"), &record); // tells nobody
    QVERIFY(!accepts("Man"));
    record.setTitle(QStringLiteral("Needle 2"));
    m_model->updateItem(at("Wear"), &record);
    QVERIFY(accepts("Machine"));
}

void TestFishProxyModelRemembering::shouldFollowChangesThroughTheSubclass()
{
    m_proxy->m_refused = QStringLiteral("Needle 2");
    m_proxy->setFilterFixedString(QStringLiteral("Needle"));
    const ModelFollower follower(*m_proxy);
    QCOMPARE(follower.text(), QStringLiteral("Effect[Man[Training[Needle]]]"));
    m_model->setData(at("Wear"), QStringLiteral("Needle 2"));
    QCOMPARE(follower.text(), QStringLiteral("Effect[Man[Training[Needle]]]"));
    m_model->setData(at("Needle 2"), QStringLiteral("Needle 3"));
    QCOMPARE(follower.text(), QStringLiteral("Effect[Man[Training[Needle]],Machine[Needle 3]]"));
    m_model->setData(at("Needle"), QStringLiteral("Needle 2"));
    QCOMPARE(follower.text(), QStringLiteral("Effect[Machine[Needle 3]]"));
    m_model->removeRows(0, 1, at("Machine"));
    QCOMPARE(follower.text(), QStringLiteral("Effect"));
}

FISHBONE_TEST(TestFishProxyModelRemembering)

#include "tst_fishproxymodel_remembering.moc"
