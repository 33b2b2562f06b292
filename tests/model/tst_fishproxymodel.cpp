// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/fishproxymodel.h>

#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>

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

/** Counts how often it is asked for a title. */
class CountingModel : public FishModel
{
public:
    QVariant data(const QModelIndex &index, int role) const override
    {
        m_questions += role == Qt::DisplayRole ? 1 : 0;
        return FishModel::data(index, role);
    }
    int takeQuestions() { return std::exchange(m_questions, 0); }

private:
    mutable int m_questions = 0;
};

/** What the proxy should show, worked out row by row as the rule says. */
bool isShown(const FishProxyModel &proxy, const QModelIndex &index)
{
    if (!index.parent().isValid())
        return true;
    const QString text = index.siblingAtColumn(proxy.filterKeyColumn()).data().toString();
    if (text.contains(proxy.filterRegularExpression()))
        return true;
    for (int row = 0; row < index.model()->rowCount(index); ++row) {
        if (isShown(proxy, index.model()->index(row, 0, index)))
            return true;
    }
    return false;
}

QString expectedText(const FishProxyModel &proxy, const QModelIndex &parent, QChar separator)
{
    QStringList parts;
    const QAbstractItemModel &source = *proxy.sourceModel();
    for (int row = 0; row < source.rowCount(parent); ++row) {
        const QModelIndex index = source.index(row, 0, parent);
        if (!isShown(proxy, index))
            continue;
        const QString below = expectedText(proxy, index, QLatin1Char(','));
        parts.append(below.isEmpty()
                         ? index.data().toString()
                         : index.data().toString() + QLatin1Char('[') + below + QLatin1Char(']'));
    }
    return parts.join(separator);
}

QString expectedText(const FishProxyModel &proxy)
{
    return expectedText(proxy, QModelIndex(), QLatin1Char(';'));
}

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
    void shouldStayInStepWithRandomChanges_data();
    void shouldStayInStepWithRandomChanges();
    void shouldAskEachRowABoundedNumberOfTimes_data();
    void shouldAskEachRowABoundedNumberOfTimes();
    void shouldAskLittleAboutSmallChanges();
    void shouldFilterDeepTreesWithoutRecursion();

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

void TestFishProxyModel::shouldStayInStepWithRandomChanges_data()
{
    QTest::addColumn<quint32>("seed");
    QTest::addColumn<bool>("throughProxy");

    for (quint32 seed = 1; seed <= 15; ++seed) {
        QTest::addRow("seed %u", seed) << seed << false;
        QTest::addRow("seed %u, other kind of source", seed) << seed << true;
    }
}

void TestFishProxyModel::shouldStayInStepWithRandomChanges()
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

void TestFishProxyModel::shouldAskEachRowABoundedNumberOfTimes_data()
{
    QTest::addColumn<int>("depth");
    QTest::addColumn<QString>("pattern");

    for (const int depth : {2, 10, 100}) {
        for (const char *pattern : {"x", "y", "last"})
            QTest::addRow("%d deep, %s", depth, pattern) << depth << QString::fromLatin1(pattern);
    }
}

void TestFishProxyModel::shouldAskEachRowABoundedNumberOfTimes()
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

void TestFishProxyModel::shouldAskLittleAboutSmallChanges()
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

void TestFishProxyModel::shouldFilterDeepTreesWithoutRecursion()
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

FISHBONE_TEST(TestFishProxyModel)

#include "tst_fishproxymodel.moc"
