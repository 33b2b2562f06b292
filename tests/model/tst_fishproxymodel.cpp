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

namespace {

/** An item with an item below it for each entry of a path. */
QStandardItem *makeItems(const QStringList &path)
{
    auto *const top = new QStandardItem(path.first());
    if (path.size() > 1)
        top->appendRow(makeItems(path.mid(1)));
    return top;
}

} // namespace

/** The filter that keeps ancestors. */
class TestFishProxyModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void shouldFilter_data();
    void shouldFilter();
    void shouldFilterByAnotherColumn();
    void shouldFilterByAnotherRole();
    void shouldFollowEveryKindOfFilter();
    void shouldAnswerForAnyRow();
    void shouldAcceptEverythingWithoutASource();
    void shouldShowAncestorsOfARowThatComes();
    void shouldHideAncestorsOfARowThatGoes();
    void shouldFollowChangesOfData();
    void shouldFollowMoves();
    void shouldFollowResets();
    void shouldKeepStillWhenTold();
    void shouldForgetItsAnswersWhenInvalidated();
    void shouldCopeWithHeadlessDocuments();
    void shouldChangeItsSource();
    void shouldSurviveItsSource();
    void shouldFilterModelsOfOtherKinds();
    void shouldFilterFlatLists();
    void shouldFilterThroughAnotherProxy();

private:
    QString shown() const { return ModelFollower(*m_proxy).text(); }
    TreeItem *node(const char *title) const
    {
        return nodeTitled(*m_model, QString::fromLatin1(title));
    }
    QModelIndex at(const char *title) const { return m_model->indexFromItem(node(title)); }

    std::unique_ptr<CountingModel> m_model;
    std::unique_ptr<FishProxyModel> m_proxy;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
    std::unique_ptr<ModelFollower> m_follower;
};

void TestFishProxyModel::init()
{
    m_model = std::make_unique<CountingModel>();
    m_model->setModelType(FISH_MODEL_DIAGRAM);
    loadDocument(*m_model, QStringLiteral("Effect[Man[Training[Needle],Skill],Machine[Wear]]"));
    loadDocument(*m_model, QStringLiteral("Cause[Method]"));
    m_proxy = std::make_unique<FishProxyModel>();
    m_proxy->setSourceModel(m_model.get());
    m_tester = std::make_unique<QAbstractItemModelTester>(m_proxy.get());
    m_follower = std::make_unique<ModelFollower>(*m_proxy);
}

void TestFishProxyModel::cleanup()
{
    QCOMPARE(m_follower->text(), m_follower->modelText());
    m_follower.reset();
    m_tester.reset();
    m_proxy.reset();
    m_model.reset();
}

void TestFishProxyModel::shouldFilter_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("rows");

    QTest::newRow("nothing to look for")
        << QString()
        << QStringLiteral("Effect[Man[Training[Needle],Skill],Machine[Wear]];Cause[Method]");
    QTest::newRow("grandchild") << QStringLiteral("Skill")
                                << QStringLiteral("Effect[Man[Skill]];Cause");
    QTest::newRow("deeper") << QStringLiteral("Needle")
                            << QStringLiteral("Effect[Man[Training[Needle]]];Cause");
    QTest::newRow("inner row without what is below it")
        << QStringLiteral("Training") << QStringLiteral("Effect[Man[Training]];Cause");
    QTest::newRow("several") << QStringLiteral("M")
                             << QStringLiteral("Effect[Man,Machine];Cause[Method]");
    QTest::newRow("nowhere") << QStringLiteral("xyz") << QStringLiteral("Effect;Cause");
    QTest::newRow("head") << QStringLiteral("Effect") << QStringLiteral("Effect;Cause");
    QTest::newRow("case") << QStringLiteral("needle") << QStringLiteral("Effect;Cause");
}

void TestFishProxyModel::shouldFilter()
{
    QFETCH(QString, pattern);
    QFETCH(QString, rows);

    m_proxy->setFilterRegularExpression(pattern);

    QCOMPARE(shown(), rows);
    QCOMPARE(expectedText(*m_proxy), rows);
}

void TestFishProxyModel::shouldFilterByAnotherColumn()
{
    m_proxy->setFilterFixedString(QStringLiteral("u-Skill"));
    QCOMPARE(shown(), QStringLiteral("Effect;Cause"));

    m_proxy->setFilterKeyColumn(1);
    QCOMPARE(shown(), QStringLiteral("Effect[Man[Skill]];Cause"));
    m_proxy->setFilterKeyColumn(3);
    QCOMPARE(shown(), QStringLiteral("Effect;Cause"));
    m_proxy->setFilterKeyColumn(-1);
    QCOMPARE(shown(), QStringLiteral("Effect[Man[Skill]];Cause"));
}

void TestFishProxyModel::shouldFilterByAnotherRole()
{
    node("Skill")->setManagerName(QStringLiteral("Li"));
    m_proxy->setFilterFixedString(QStringLiteral("Li"));
    QCOMPARE(shown(), QStringLiteral("Effect;Cause"));

    m_proxy->setFilterRole(Qt::ToolTipRole);

    QCOMPARE(shown(), QStringLiteral("Effect[Man[Skill]];Cause"));
}

void TestFishProxyModel::shouldFollowEveryKindOfFilter()
{
    const QString needle = QStringLiteral("Effect[Man[Training[Needle]]];Cause");
    const QString none = QStringLiteral("Effect;Cause");

    m_proxy->setFilterWildcard(QStringLiteral("N*le"));
    QCOMPARE(shown(), needle);
    m_proxy->setFilterFixedString(QStringLiteral("nee"));
    QCOMPARE(shown(), none);
    m_proxy->setFilterCaseSensitivity(Qt::CaseInsensitive);
    QCOMPARE(shown(), needle);
    m_proxy->setFilterRegularExpression(
        QRegularExpression(QStringLiteral("nee"), QRegularExpression::CaseInsensitiveOption));
    QCOMPARE(shown(), needle);
    m_proxy->setFilterRegularExpression(QRegularExpression(QStringLiteral("nee")));
    QCOMPARE(shown(), none);
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0) // the other kind of filter that Qt 5 has
    m_proxy->setFilterRegExp(QStringLiteral("^N"));
    QCOMPARE(shown(), needle);
    m_proxy->setFilterRegExp(QStringLiteral("^n"));
    QCOMPARE(shown(), none);
    m_proxy->setFilterRegExp(QRegExp(QStringLiteral("^n"), Qt::CaseInsensitive));
    QCOMPARE(shown(), needle);
#endif
    m_proxy->setFilterFixedString(QString());
    QCOMPARE(shown(), ModelFollower(*m_model).text());
}

void TestFishProxyModel::shouldAnswerForAnyRow()
{
    m_proxy->setFilterFixedString(QStringLiteral("Needle"));

    QVERIFY(m_proxy->filterAcceptsRow(0, QModelIndex()));
    QVERIFY(m_proxy->filterAcceptsRow(1, QModelIndex()));
    QVERIFY(m_proxy->filterAcceptsRow(0, at("Effect")));  // Man
    QVERIFY(!m_proxy->filterAcceptsRow(1, at("Effect"))); // Machine
    QVERIFY(m_proxy->filterAcceptsRow(0, at("Training")));
    QVERIFY(!m_proxy->filterAcceptsRow(0, at("Machine")));
    QVERIFY(m_proxy->filterAcceptsRow(9, at("Machine"))); // no such row: nothing to reject
}

void TestFishProxyModel::shouldAcceptEverythingWithoutASource()
{
    FishProxyModel proxy;
    proxy.setFilterFixedString(QStringLiteral("x"));

    QVERIFY(proxy.filterAcceptsRow(0, QModelIndex()));
    QCOMPARE(proxy.rowCount(), 0);
}

void TestFishProxyModel::shouldShowAncestorsOfARowThatComes()
{
    m_proxy->setFilterRegularExpression(QStringLiteral("new"));
    QCOMPARE(m_follower->text(), QStringLiteral("Effect;Cause"));

    m_model->read(documentFromText(QStringLiteral("x[y[new]]")), node("Wear"), 0);
    QCOMPARE(m_follower->text(), QStringLiteral("Effect[Machine[Wear[x[y[new]]]]];Cause"));

    m_model->insertExistItemRows(at("Skill"), {new TreeItem});
    QCOMPARE(m_follower->text(), QStringLiteral("Effect[Machine[Wear[x[y[new]]]]];Cause"));

    m_model->read(documentFromText(QStringLiteral("new2")), node("Skill"), 0);
    QCOMPARE(m_follower->text(),
             QStringLiteral("Effect[Man[Skill[new2]],Machine[Wear[x[y[new]]]]];Cause"));

    loadDocument(*m_model, QStringLiteral("Other[a,new3]"));
    QCOMPARE(m_follower->text(), m_follower->modelText());
    QCOMPARE(m_follower->text(), expectedText(*m_proxy));
}

void TestFishProxyModel::shouldHideAncestorsOfARowThatGoes()
{
    m_proxy->setFilterRegularExpression(QStringLiteral("Needle|Skill|Wear"));
    QCOMPARE(m_follower->text(),
             QStringLiteral("Effect[Man[Training[Needle],Skill],Machine[Wear]];Cause"));

    m_model->removeRows(0, 1, at("Training"));
    QCOMPARE(m_follower->text(), QStringLiteral("Effect[Man[Skill],Machine[Wear]];Cause"));
    m_model->removeRows(0, 1, at("Machine"));
    QCOMPARE(m_follower->text(), QStringLiteral("Effect[Man[Skill]];Cause"));
    m_model->removeRows(0, 2, at("Man"));
    QCOMPARE(m_follower->text(), QStringLiteral("Effect;Cause"));
    m_model->removeRows(0, 1);
    QCOMPARE(m_follower->text(), QStringLiteral("Cause"));
}

void TestFishProxyModel::shouldFollowChangesOfData()
{
    m_proxy->setFilterFixedString(QStringLiteral("Needle"));

    m_model->setData(at("Wear"), QStringLiteral("Needle2"));
    QCOMPARE(m_follower->text(),
             QStringLiteral("Effect[Man[Training[Needle]],Machine[Needle2]];Cause"));
    m_model->setData(at("Needle"), QStringLiteral("Thread"));
    QCOMPARE(m_follower->text(), QStringLiteral("Effect[Machine[Needle2]];Cause"));
    m_model->setData(at("Man"), QStringLiteral("Needle3"));
    QCOMPARE(m_follower->text(), QStringLiteral("Effect[Needle3,Machine[Needle2]];Cause"));
    m_model->setData(at("Needle3"), QStringLiteral("Man"));
    m_model->setData(at("Needle2"), QStringLiteral("Wear"));
    QCOMPARE(m_follower->text(), QStringLiteral("Effect;Cause"));
    m_model->setData(at("Effect"), QStringLiteral("Needle4"));
    QCOMPARE(m_follower->text(), QStringLiteral("Needle4;Cause"));
}

void TestFishProxyModel::shouldFollowMoves()
{
    m_proxy->setFilterFixedString(QStringLiteral("Needle"));

    m_model->moveRows(at("Training"), 0, 1, at("Method"), 0);
    QCOMPARE(shown(), QStringLiteral("Effect;Cause[Method[Needle]]"));
    m_model->moveRows(at("Method"), 0, 1, QModelIndex(), 0);
    QCOMPARE(shown(), QStringLiteral("Needle;Effect;Cause"));
    m_model->moveRows(QModelIndex(), 0, 1, at("Wear"), 0);
    QCOMPARE(shown(), QStringLiteral("Effect[Machine[Wear[Needle]]];Cause"));
}

void TestFishProxyModel::shouldFollowResets()
{
    m_proxy->setFilterFixedString(QStringLiteral("Needle"));
    QCOMPARE(shown(), QStringLiteral("Effect[Man[Training[Needle]]];Cause"));

    node("Needle")->setTitle(QStringLiteral("Thread"));
    node("Wear")->setTitle(QStringLiteral("Needle"));
    m_model->refreshModel();

    QCOMPARE(shown(), QStringLiteral("Effect[Machine[Needle]];Cause"));
}

void TestFishProxyModel::shouldKeepStillWhenTold()
{
    m_proxy->setFilterFixedString(QStringLiteral("Needle"));
    m_proxy->setDynamicSortFilter(false);

    m_model->setData(at("Wear"), QStringLiteral("Needle2"));

    QCOMPARE(shown(), QStringLiteral("Effect[Man[Training[Needle]]];Cause"));
}

void TestFishProxyModel::shouldForgetItsAnswersWhenInvalidated()
{
    m_proxy->setFilterFixedString(QStringLiteral("Needle"));
    QCOMPARE(shown(), QStringLiteral("Effect[Man[Training[Needle]]];Cause"));

    node("Wear")->setTitle(QStringLiteral("Needle2")); // tells nobody
    m_proxy->invalidate();

    QCOMPARE(shown(), QStringLiteral("Effect[Man[Training[Needle]],Machine[Needle2]];Cause"));

    class Invalidating : public FishProxyModel
    {
    public:
        using FishProxyModel::invalidateFilter;
    };
    Invalidating proxy;
    proxy.setSourceModel(m_model.get());
    proxy.setFilterFixedString(QStringLiteral("Needle"));
    const ModelFollower follower(proxy);
    node("Needle2")->setTitle(QStringLiteral("Wear"));
    proxy.invalidateFilter();
    QCOMPARE(follower.text(), QStringLiteral("Effect[Man[Training[Needle]]];Cause"));
    m_proxy->invalidate();
}

void TestFishProxyModel::shouldCopeWithHeadlessDocuments()
{
    m_tester.reset(); // a row without an index is against its rules
    m_proxy->setFilterFixedString(QStringLiteral("Needle"));

    m_model->loadJsonFish("[]");
    m_model->loadJsonFish(R"({"title": "Last", "children": [{"title": "Needle3"}]})");

    QCOMPARE(m_proxy->rowCount(), 4);
    QVERIFY(m_proxy->filterAcceptsRow(2, QModelIndex()));
    QCOMPARE(m_proxy->rowCount(m_proxy->index(3, 0)), 1);
    QTreeView view;
    view.setModel(m_proxy.get());
    view.expandAll();
    QVERIFY(!view.grab().isNull());

    m_model->removeRows(1, 2); // with it
    QCOMPARE(m_proxy->rowCount(), 2);
    QCOMPARE(m_proxy->rowCount(m_proxy->index(1, 0)), 1);
}

void TestFishProxyModel::shouldChangeItsSource()
{
    FishModel other;
    other.setModelType(FISH_MODEL_DIAGRAM);
    loadDocument(other, QStringLiteral("Other[x[Needle2],y]"));
    m_proxy->setFilterRegularExpression(QStringLiteral("Needle"));
    QCOMPARE(shown(), QStringLiteral("Effect[Man[Training[Needle]]];Cause"));

    m_proxy->setSourceModel(&other);
    QCOMPARE(shown(), QStringLiteral("Other[x[Needle2]]"));
    m_model->setData(at("Wear"), QStringLiteral("Needle3"));
    other.setData(indexTitled(other, QStringLiteral("y")), QStringLiteral("Needle4"));
    QCOMPARE(shown(), QStringLiteral("Other[x[Needle2],Needle4]"));

    m_proxy->setSourceModel(nullptr);
    QCOMPARE(m_proxy->rowCount(), 0);
    m_proxy->setSourceModel(m_model.get());
    QCOMPARE(shown(), expectedText(*m_proxy));
}

void TestFishProxyModel::shouldSurviveItsSource()
{
    m_proxy->setFilterFixedString(QStringLiteral("Needle"));

    m_model.reset();

    QCOMPARE(m_proxy->rowCount(), 0);
    QVERIFY(m_proxy->filterAcceptsRow(0, QModelIndex()));
    m_proxy->setFilterFixedString(QStringLiteral("x"));
    QCOMPARE(m_proxy->rowCount(), 0);
    m_follower = std::make_unique<ModelFollower>(*m_proxy);
}

void TestFishProxyModel::shouldFilterModelsOfOtherKinds()
{
    QStandardItemModel source;
    for (const QStringList &path :
         {QStringList({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")}),
          QStringList({QStringLiteral("d"), QStringLiteral("e"), QStringLiteral("needle")})})
        source.appendRow(makeItems(path));
    FishProxyModel proxy;
    proxy.setSourceModel(&source);
    const QAbstractItemModelTester tester(&proxy);
    const ModelFollower follower(proxy);

    proxy.setFilterRegularExpression(QStringLiteral("needle"));
    QCOMPARE(follower.text(), QStringLiteral("a;d[e[needle]]"));

    QStandardItem *const c = source.item(0)->child(0)->child(0);
    c->setText(QStringLiteral("needle"));
    QCOMPARE(follower.text(), QStringLiteral("a[b[needle]];d[e[needle]]"));
    source.item(0)->child(0)->insertRow(0, new QStandardItem(QStringLiteral("z")));
    QCOMPARE(follower.text(), QStringLiteral("a[b[needle]];d[e[needle]]"));
    source.item(0)->child(0)->removeRow(1);
    QCOMPARE(follower.text(), QStringLiteral("a;d[e[needle]]"));
    source.item(0)->child(0)->child(0)->appendRow(
        makeItems({QStringLiteral("y"), QStringLiteral("needle")}));
    QCOMPARE(follower.text(), QStringLiteral("a[b[z[y[needle]]]];d[e[needle]]"));
    source.removeRow(1);
    QCOMPARE(follower.text(), expectedText(proxy));
    source.clear();
    QCOMPARE(follower.text(), QString());
}

void TestFishProxyModel::shouldFilterFlatLists()
{
    QStringListModel source({QStringLiteral("a"), QStringLiteral("b")});
    FishProxyModel proxy;
    proxy.setSourceModel(&source);

    proxy.setFilterFixedString(QStringLiteral("b"));

    QCOMPARE(proxy.rowCount(), 2); // every row is at the top level
}

void TestFishProxyModel::shouldFilterThroughAnotherProxy()
{
    QIdentityProxyModel between;
    between.setSourceModel(m_model.get());
    FishProxyModel proxy;
    proxy.setSourceModel(&between);
    const ModelFollower follower(proxy);

    proxy.setFilterFixedString(QStringLiteral("Needle"));
    m_model->setData(at("Wear"), QStringLiteral("Needle2"));
    m_model->removeRows(0, 1, at("Effect"));

    QCOMPARE(follower.text(), QStringLiteral("Effect[Machine[Needle2]];Cause"));
}

FISHBONE_TEST(TestFishProxyModel)

#include "tst_fishproxymodel.moc"
