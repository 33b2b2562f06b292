// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/fishmodel.h>

#include <fishbone/model/fishinfo.h>
#include <fishbone/model/treeitem.h>

#include <tests/model/treeitemtreeparts.h>
#include <tests/program/testprogram.h>
#include <tests/support/documents.h>
#include <tests/support/modelfollower.h>

#include <QAbstractItemModelTester>
#include <QPointer>
#include <QTreeView>
#include <QtTest>

#include <limits>

using namespace TestSupport;

namespace {

QString heads(const FishModel &model)
{
    QStringList titles;
    for (const FishInfo *document : model.fishList())
        titles.append(document->treeItem()->childAtIndex(0)->title());
    return titles.join(QLatin1Char(' '));
}

} // namespace

/** The list of documents: who owns them, how they enter and leave. */
class TestFishModelDocuments : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void shouldMakeDocumentsWithoutSignals();
    void shouldMakeADocumentOfAHeadWithoutSignals();
    void shouldRemoveDocumentsWithoutSignals();
    void shouldKeepPersistentIndexesWithoutSignals();
    void shouldRefuseListChangesOutsideTheRange();
    void shouldRefuseAHeadThatIsInTheModel();
    void shouldUnloadADocumentAnnounced();
    void shouldUnloadNothingElse();
    void shouldTakeADocumentOutAndBack();
    void shouldRefuseDocumentsThatAreListed();
    void shouldTellEveryDocumentItsModel();
    void shouldDeleteItsDocuments();
    void shouldNoticeTheDeathOfADocument();
    void shouldNoticeTheDeathOfADocumentThatLostItsModel();
    void shouldAnnounceTheResetOfADocument();
    void shouldAnnounceALoadIntoADocument();
    void shouldAnnounceAHeadForADocumentWithoutOne();
    void shouldBeUsableByAViewThroughout();

private:
    std::unique_ptr<FishModel> m_model;
};

void TestFishModelDocuments::init()
{
    m_model = std::make_unique<FishModel>();
    m_model->setModelType(FISH_MODEL_DIAGRAM);
    for (const char *text : {"A[a]", "B[b]", "C[c]"})
        loadDocument(*m_model, QString::fromLatin1(text));
}

void TestFishModelDocuments::shouldMakeDocumentsWithoutSignals()
{
    QSignalSpy about(m_model.get(), &QAbstractItemModel::rowsAboutToBeInserted);

    const FishInfo reference; // names count up
    QVERIFY(m_model->insertFishToList(1, 2));

    const auto number = [](const FishInfo *info) {
        return info->fileName().mid(4).section(QLatin1Char('.'), 0, 0).toInt();
    };
    QCOMPARE(number(m_model->fishList().at(1)), number(&reference) + 2); // the newest first
    QCOMPARE(number(m_model->fishList().at(2)), number(&reference) + 1);
    QCOMPARE(heads(*m_model), QStringLiteral("A 自由主题 自由主题 B C"));
    const TreeItem *const head = m_model->fishList().at(1)->treeItem()->childAtIndex(0);
    QCOMPARE(head->uuid(), QString());
    QCOMPARE(head->showid(), QString());
    QCOMPARE(head->pid(), QString());
    QCOMPARE(head->type(), 0);
    QVERIFY(head->isTopVaildItem());
    QCOMPARE(about.count(), 0);
    QCOMPARE(m_model->index(1, 0).parent(), QModelIndex());
}

void TestFishModelDocuments::shouldMakeADocumentOfAHeadWithoutSignals()
{
    QSignalSpy about(m_model.get(), &QAbstractItemModel::rowsAboutToBeInserted);
    auto *const head =
        new TreeItem(QStringLiteral("new"), QString(), QString(), QStringLiteral("kept"), 0);

    QVERIFY(m_model->insertFishToList(3, head));

    QCOMPARE(heads(*m_model), QStringLiteral("A B C new"));
    QCOMPARE(head->pid(), QStringLiteral("kept"));
    QCOMPARE(head->uuid(), QString());
    QCOMPARE(about.count(), 0);
}

void TestFishModelDocuments::shouldRemoveDocumentsWithoutSignals()
{
    QSignalSpy about(m_model.get(), &QAbstractItemModel::rowsAboutToBeRemoved);
    const QPointer<FishInfo> second = m_model->fishList().at(1);

    QVERIFY(m_model->removeFishFromList(0, 2));

    QCOMPARE(heads(*m_model), QStringLiteral("C"));
    QVERIFY(!second);
    QCOMPARE(about.count(), 0);
    QCOMPARE(m_model->parent(m_model->index(0, 0, m_model->index(0, 0))), m_model->index(0, 0));
}

void TestFishModelDocuments::shouldKeepPersistentIndexesWithoutSignals()
{
    const QPersistentModelIndex lost = indexTitled(*m_model, QStringLiteral("b"));
    const QPersistentModelIndex lostHead = m_model->index(1, 2);
    const QPersistentModelIndex first = m_model->index(0, 0);
    const QPersistentModelIndex head = m_model->index(2, 3);
    const QPersistentModelIndex child = indexTitled(*m_model, QStringLiteral("c"));

    QVERIFY(m_model->removeFishFromList(1, 1));
    QVERIFY(!lost.isValid());
    QVERIFY(!lostHead.isValid());
    QCOMPARE(QModelIndex(first), m_model->index(0, 0));
    QCOMPARE(QModelIndex(head), m_model->index(1, 3));
    QCOMPARE(QModelIndex(child), indexTitled(*m_model, QStringLiteral("c")));

    QVERIFY(m_model->insertFishToList(0, 2));
    QCOMPARE(QModelIndex(first), m_model->index(2, 0));
    QCOMPARE(QModelIndex(head), m_model->index(3, 3));
    QCOMPARE(child.parent(), m_model->index(3, 0));

    QVERIFY(m_model->insertFishToList(3, new TreeItem));
    QCOMPARE(QModelIndex(first), m_model->index(2, 0));
    QCOMPARE(QModelIndex(head), m_model->index(4, 3));
}

void TestFishModelDocuments::shouldRefuseListChangesOutsideTheRange()
{
    TreeItem head;

    QVERIFY(!m_model->insertFishToList(-1, 1));
    QVERIFY(!m_model->insertFishToList(4, 1));
    QVERIFY(!m_model->insertFishToList(4, 0));
    QVERIFY(m_model->insertFishToList(3, 0));
    QVERIFY(!m_model->insertFishToList(-1, &head));
    QVERIFY(!m_model->insertFishToList(4, &head));
    QVERIFY(!m_model->insertFishToList(0, nullptr));
    QVERIFY(!m_model->removeFishFromList(-1, 1));
    QVERIFY(!m_model->removeFishFromList(2, 2));
    QVERIFY(!m_model->removeFishFromList(1, TestSupport::maxInt));
    QVERIFY(!m_model->removeFishFromList(4, 0));
    QVERIFY(m_model->removeFishFromList(3, 0));
    QVERIFY(m_model->removeFishFromList(0, -1));

    QCOMPARE(heads(*m_model), QStringLiteral("A B C"));
}

void TestFishModelDocuments::shouldRefuseAHeadThatIsInTheModel()
{
    QVERIFY(!m_model->insertFishToList(0, nodeTitled(*m_model, QStringLiteral("b"))));
    QVERIFY(!m_model->insertFishToList(0, nodeTitled(*m_model, QStringLiteral("B"))));

    QCOMPARE(heads(*m_model), QStringLiteral("A B C"));
    QCOMPARE(treeToText(*nodeTitled(*m_model, QStringLiteral("B"))), QStringLiteral("B[b]"));
}

void TestFishModelDocuments::shouldUnloadADocumentAnnounced()
{
    const QAbstractItemModelTester tester(m_model.get());
    const ModelFollower follower(*m_model);
    const QPointer<FishInfo> document = m_model->fishList().at(1);

    m_model->unloadFish(document);

    QVERIFY(!document);
    QCOMPARE(follower.text(), QStringLiteral("A[a];C[c]"));
}

void TestFishModelDocuments::shouldUnloadNothingElse()
{
    FishInfo free;
    FishModel other;
    FishInfo *const foreign = loadDocument(other, QStringLiteral("F"));

    m_model->unloadFish(nullptr);
    m_model->unloadFish(&free);
    m_model->unloadFish(foreign);

    QCOMPARE(heads(*m_model), QStringLiteral("A B C"));
    QCOMPARE(heads(other), QStringLiteral("F"));
}

void TestFishModelDocuments::shouldTakeADocumentOutAndBack()
{
    const QAbstractItemModelTester tester(m_model.get());
    const ModelFollower follower(*m_model);

    FishInfo *const document = m_model->takeFish(1);
    QCOMPARE(follower.text(), QStringLiteral("A[a];C[c]"));
    QCOMPARE(document->model(), nullptr);
    QCOMPARE(treeToText(*document->treeItem()->childAtIndex(0)), QStringLiteral("B[b]"));

    QVERIFY(m_model->insertFish(0, document));
    QCOMPARE(follower.text(), QStringLiteral("B[b];A[a];C[c]"));
    QCOMPARE(document->model(), m_model.get());
    QCOMPARE(m_model->takeFish(-1), nullptr);
    QCOMPARE(m_model->takeFish(3), nullptr);
}

void TestFishModelDocuments::shouldRefuseDocumentsThatAreListed()
{
    FishInfo free;
    FishModel other;

    QVERIFY(!m_model->insertFish(0, nullptr));
    QVERIFY(!m_model->insertFish(-1, &free));
    QVERIFY(!m_model->insertFish(4, &free));
    QVERIFY(!m_model->insertFish(0, m_model->fishList().first()));
    QVERIFY(!other.insertFish(0, m_model->fishList().first()));

    QCOMPARE(heads(*m_model), QStringLiteral("A B C"));
    QCOMPARE(other.rowCount(), 0);
}

void TestFishModelDocuments::shouldTellEveryDocumentItsModel()
{
    m_model->insertRows(0, 1);
    m_model->insertFishToList(0, 1);
    m_model->insertFishToList(0, new TreeItem);
    m_model->insertExistItemRows(QModelIndex(), {new TreeItem});
    m_model->insertFish(0, new FishInfo);
    m_model->loadJsonFish("{}");

    QCOMPARE(m_model->fishList().size(), 9);
    for (const FishInfo *document : m_model->fishList())
        QCOMPARE(document->model(), m_model.get());
}

void TestFishModelDocuments::shouldDeleteItsDocuments()
{
    const QPointer<FishInfo> document = m_model->fishList().at(1);
    const std::unique_ptr<FishInfo> taken(m_model->takeFish(0));

    m_model.reset();

    QVERIFY(!document);
    QCOMPARE(taken->model(), nullptr);
    QCOMPARE(treeToText(*taken->treeItem()->childAtIndex(0)), QStringLiteral("A[a]"));
}

void TestFishModelDocuments::shouldNoticeTheDeathOfADocument()
{
    const QAbstractItemModelTester tester(m_model.get());
    const ModelFollower follower(*m_model);
    const QPersistentModelIndex b = indexTitled(*m_model, QStringLiteral("b"));

    delete m_model->fishList().at(1);

    QCOMPARE(follower.text(), QStringLiteral("A[a];C[c]"));
    QVERIFY(!b.isValid());
}

void TestFishModelDocuments::shouldNoticeTheDeathOfADocumentThatLostItsModel()
{
    FishInfo *const document = m_model->fishList().at(1);
    document->setModel(nullptr);

    delete document;

    QCOMPARE(heads(*m_model), QStringLiteral("A C"));
}

void TestFishModelDocuments::shouldAnnounceTheResetOfADocument()
{
    const ModelFollower follower(*m_model);
    const QPersistentModelIndex b = indexTitled(*m_model, QStringLiteral("b"));

    m_model->fishList().at(1)->reset();

    QVERIFY(!b.isValid());
    QCOMPARE(follower.text(), follower.modelText());
    QVERIFY(!m_model->index(1, 0).isValid());
    QCOMPARE(m_model->rowCount(), 3);
}

void TestFishModelDocuments::shouldAnnounceALoadIntoADocument()
{
    const ModelFollower follower(*m_model);
    FishInfo *const document = m_model->fishList().at(1);

    document->reset();
    document->loadFish(documentFromText(QStringLiteral("N[n]")), nullptr);

    QCOMPARE(follower.text(), QStringLiteral("A[a];N[n];C[c]"));
    QCOMPARE(document->model(), nullptr); // as it was told
    QCOMPARE(m_model->fishRow(document), 1);
}

void TestFishModelDocuments::shouldAnnounceAHeadForADocumentWithoutOne()
{
    const ModelFollower follower(*m_model);
    m_model->fishList().at(1)->reset();

    m_model->read(documentFromText(QStringLiteral("N[n]")), m_model->fishList().at(1)->treeItem(),
                  0);

    QCOMPARE(follower.text(), QStringLiteral("A[a];N[n];C[c]"));
}

void TestFishModelDocuments::shouldBeUsableByAViewThroughout()
{
    QTreeView view;
    view.setModel(m_model.get());
    view.show();
    view.expandAll();
    const auto draw = [&view] { return !view.grab().isNull(); };
    QVERIFY(draw());

    m_model->insertRows(0, 1);
    QVERIFY(draw());
    m_model->moveRows(QModelIndex(), 0, 1, m_model->index(1, 0), 0);
    view.expandAll();
    QVERIFY(draw());
    m_model->moveRows(m_model->index(1, 0), 0, 1, QModelIndex(), 3);
    QVERIFY(draw());
    m_model->fishList().at(0)->reset();
    QVERIFY(draw());
    delete m_model->fishList().at(1);
    QVERIFY(draw());
    m_model->loadJsonFish("[]");
    view.expandAll();
    QVERIFY(draw());
    m_model.reset();
    QVERIFY(draw());
}

FISHBONE_TEST(TestFishModelDocuments)

#include "tst_fishmodel_documents.moc"
