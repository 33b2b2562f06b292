// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <functional>

#include <tests/program/testprogram.h>
#include <tests/support/commandfixture.h>

using namespace TestSupport;

namespace {

using Change = std::function<void(CommandFixture &)>;

QByteArray oneBone()
{
    return QJsonDocument(documentFromText(QStringLiteral("Late[Bone]"))).toJson();
}

/** What listeners of the model's own announcements try to change. */
const std::vector<std::pair<const char *, std::function<bool(CommandFixture &)>>> refused = {
    {"insertRows", [](CommandFixture &f) { return f.model->insertRows(0, 1, f.index("A")); }},
    {"insertExistItemRows",
     [](CommandFixture &f) {
         TreeItem item;
         return f.model->insertExistItemRows(f.index("A"), {&item});
     }},
    {"removeRows", [](CommandFixture &f) { return f.model->removeRows(0, 1, f.index("A")); }},
    {"removeRows at the top", [](CommandFixture &f) { return f.model->removeRows(0, 1); }},
    {"moveRows",
     [](CommandFixture &f) { return f.model->moveRows(f.index("A"), 0, 1, f.index("Y"), 0); }},
    {"takeRow", [](CommandFixture &f) { return f.model->takeRow(0, f.index("A")) != nullptr; }},
    {"putRow",
     [](CommandFixture &f) {
         TreeItem item;
         return f.model->putRow(0, &item, f.index("A"));
     }},
    {"takeFish", [](CommandFixture &f) { return f.model->takeFish(0) != nullptr; }},
    {"insertFish",
     [](CommandFixture &f) {
         FishInfo document;
         return f.model->insertFish(0, &document);
     }},
    {"insertFishToList", [](CommandFixture &f) { return f.model->insertFishToList(0, 1); }},
    {"removeFishFromList", [](CommandFixture &f) { return f.model->removeFishFromList(0, 1); }},
    {"moveHeadUnder",
     [](CommandFixture &f) { return f.model->moveHeadUnder(1, f.index("A"), 0) != nullptr; }},
    {"moveToTopLevel",
     [](CommandFixture &f) {
         FishInfo document;
         return f.model->moveToTopLevel(f.index("A"), 0, &document);
     }},
    {"wrapHead",
     [](CommandFixture &f) {
         TreeItem item;
         return f.model->wrapHead(f.document(0), &item);
     }},
    {"unwrapHead",
     [](CommandFixture &f) { return f.model->unwrapHead(f.document(0), f.node("A")) != nullptr; }},
};

} // namespace
Q_DECLARE_METATYPE(Change)

/** Listeners that change the model themselves, and nodes that are not the model's own. */
class TestFishModelListeners : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldRefuseChangesWithinAnAnnouncement_data();
    void shouldRefuseChangesWithinAnAnnouncement();
    void shouldDoNothingElseThatReportsNoResult();
    void shouldLoadWhenAnAnnouncedChangeIsMade();
    void shouldReloadWhenAnAnnouncedChangeIsMade();
    void shouldKeepTheRowOfADocumentThatDiesWithinAnAnnouncement();
    void shouldSurviveTheEndOfADocumentWithinItsOwnReset();
    void shouldStopAMoveOfSeveralRowsThatAListenerDisturbs();
    void shouldGoOnWhenAListenerEndsTheModelAfterAChange();
    void shouldRefuseNodesOfAnotherModel_data();
    void shouldRefuseNodesOfAnotherModel();
    void shouldCompareADocumentWithItsListBeforeItLooksAtIt();
    void shouldTellOfANodeThatChangedUnseen();
    void shouldKnowWhichDocumentsHaveChanged();
};

void TestFishModelListeners::shouldRefuseChangesWithinAnAnnouncement_data()
{
    QTest::addColumn<Change>("change");
    QTest::newRow("insertion") << Change(
        [](CommandFixture &f) { QVERIFY(f.model->insertRows(0, 1, f.index("Y"))); });
    QTest::newRow("removal") << Change(
        [](CommandFixture &f) { QVERIFY(f.model->removeRows(0, 1, f.index("Y"))); });
    QTest::newRow("move") << Change(
        [](CommandFixture &f) { QVERIFY(f.model->moveRows(f.index("X"), 0, 1, f.index("Y"), 0)); });
    QTest::newRow("reset") << Change([](CommandFixture &f) { f.model->refreshModel(); });
    QTest::newRow("head") << Change(
        [](CommandFixture &f) { QVERIFY(f.model->wrapHead(f.document(1), new TreeItem)); });
}

void TestFishModelListeners::shouldRefuseChangesWithinAnAnnouncement()
{
    // Given a listener that tries all there is at every announcement
    QFETCH(const Change, change);
    CommandFixture f(QStringLiteral("H[A[B,C],X[V]];Z[Y[W]]"));
    int tried = 0;
    const auto tryAll = [&] {
        QVERIFY(f.model->isAnnouncing());
        const QString before = modelText(*f.model);
        QSignalSpy inserted(f.model.get(), &FishModel::rowsAboutToBeInserted);
        QSignalSpy removed(f.model.get(), &FishModel::rowsAboutToBeRemoved);
        QSignalSpy moved(f.model.get(), &FishModel::rowsAboutToBeMoved);
        for (const auto &[name, refusedChange] : refused) {
            QVERIFY2(!refusedChange(f), name);
            ++tried;
        }
        QCOMPARE(modelText(*f.model), before);
        QCOMPARE(inserted.count() + removed.count() + moved.count(), 0);
    };
    connect(f.model.get(), &FishModel::rowsAboutToBeInserted, this, tryAll);
    connect(f.model.get(), &FishModel::rowsAboutToBeRemoved, this, tryAll);
    connect(f.model.get(), &FishModel::rowsAboutToBeMoved, this, tryAll);
    connect(f.model.get(), &FishModel::modelAboutToBeReset, this, tryAll);
    connect(f.model.get(), &FishModel::layoutAboutToBeChanged, this, tryAll);

    // When something is changed
    change(f);

    // Then each attempt was refused, and the model takes changes again
    QCOMPARE(tried, int(refused.size()));
    QVERIFY(!f.model->isAnnouncing());
    disconnect(f.model.get(), nullptr, this, nullptr);
    QVERIFY(f.model->insertRows(0, 1, f.index("A")));
}

void TestFishModelListeners::shouldDoNothingElseThatReportsNoResult()
{
    CommandFixture f(QStringLiteral("H[A,B];Z"));
    QSignalSpy reset(f.model.get(), &FishModel::modelReset);
    bool isDone = false;
    connect(f.model.get(), &FishModel::rowsAboutToBeRemoved, this, [&] {
        const QString before = modelText(*f.model);
        f.model->unloadFish(f.document(1));
        f.model->refreshModel();
        f.model->read(documentFromText(QStringLiteral("R")), f.node("B"), 0);
        QCOMPARE(modelText(*f.model), before);
        isDone = true;
    });
    QVERIFY(f.model->removeRows(0, 1, f.index("H")));
    QVERIFY(isDone);
    QCOMPARE(reset.count(), 0);
    QCOMPARE(f.text(), QStringLiteral("H[B];Z"));
}

void TestFishModelListeners::shouldLoadWhenAnAnnouncedChangeIsMade()
{
    // Given a listener that loads at the announcement of a removal
    CommandFixture f(QStringLiteral("H[A,B]"));
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("late.json")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(oneBone());
    file.close();
    QSignalSpy loaded(f.model.get(), &FishModel::fishLoaded);
    FishInfo *returned = nullptr;
    int result = -1;
    connect(f.model.get(), &FishModel::rowsAboutToBeRemoved, this, [&] {
        returned = f.model->loadJsonFish(oneBone());
        result = f.model->loadFishFromFile(file.fileName());
        QCOMPARE(f.model->rowCount(), 1);
        QCOMPARE(loaded.count(), 0);
    });

    // When rows are removed
    QVERIFY(f.model->removeRows(0, 1, f.index("H")));

    // Then both documents came afterwards
    QCOMPARE(result, int(MODEL_NO_ERROR));
    QCOMPARE(f.text(), QStringLiteral("H[B];Late[Bone];Late[Bone]"));
    QCOMPARE(f.model->fishRow(returned), 1);
    QVERIFY(!returned->parent());
    QCOMPARE(loaded.count(), 1);
    QCOMPARE(loaded.first().first().toModelIndex(), f.model->index(2, 0));
    QCOMPARE(f.document(2)->fileName(), file.fileName());
}

void TestFishModelListeners::shouldReloadWhenAnAnnouncedChangeIsMade()
{
    CommandFixture f(QStringLiteral("H[A,B];Z[Y]"));
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("late.json")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(oneBone());
    file.close();
    QSignalSpy reset(f.model.get(), &FishModel::modelReset);
    connect(f.model.get(), &FishModel::rowsAboutToBeRemoved, this, [&] {
        QCOMPARE(f.model->reloadDataFromFile(file.fileName(), f.document(1)), 0);
        f.document(0)->loadFish({}, f.model.get());
        QCOMPARE(reset.count(), 0);
    });
    QVERIFY(f.model->removeRows(0, 1, f.index("H")));
    QCOMPARE(reset.count(), 2);
    QCOMPARE(f.text(), QStringLiteral("H[B];Late[Bone]"));
}

void TestFishModelListeners::shouldKeepTheRowOfADocumentThatDiesWithinAnAnnouncement()
{
    // Given a listener that deletes a document at the announcement of another change
    CommandFixture f(QStringLiteral("H[A,B];Z[Y]"));
    QPointer<FishInfo> document = f.document(1);
    connect(f.model.get(), &FishModel::rowsAboutToBeInserted, this, [&] {
        delete document;
        QCOMPARE(f.text(), QStringLiteral("H[A,B];Z[Y]"));
    });

    // When that change is made
    QVERIFY(f.model->insertRows(0, 1, f.index("Y")));

    // Then its row went afterwards, announced
    QVERIFY(!document);
    QCOMPARE(f.text(), QStringLiteral("H[A,B]"));
}

void TestFishModelListeners::shouldSurviveTheEndOfADocumentWithinItsOwnReset()
{
    CommandFixture f(QStringLiteral("H[A,B];Z[Y]"));
    const QPointer<FishInfo> document = f.document(1);
    connect(f.model.get(), &FishModel::modelAboutToBeReset, this, [&] { delete document.data(); });
    document->loadFish({}, f.model.get());
    QVERIFY(!document);
    QCOMPARE(f.text(), QStringLiteral("H[A,B]"));
}

void TestFishModelListeners::shouldStopAMoveOfSeveralRowsThatAListenerDisturbs()
{
    // Given a listener that takes the next row away after the first one has moved
    CommandFixture f(QStringLiteral("H[A,B,C,D]"));
    bool isFirst = true;
    connect(f.model.get(), &FishModel::rowsMoved, this, [&] {
        if (std::exchange(isFirst, false))
            f.model->removeRows(0, 1, f.index("H"));
    });

    // When three rows move one by one
    QVERIFY(f.model->moveRows(f.index("H"), 0, 3, f.index("H"), 4));

    // Then none moved in the place of the one that is gone
    QCOMPARE(f.text(), QStringLiteral("H[C,D,A]"));
}

void TestFishModelListeners::shouldGoOnWhenAListenerEndsTheModelAfterAChange()
{
    const std::vector<Change> changes = {
        [](CommandFixture &f) { f.model->insertRows(0, 1, f.index("A")); },
        [](CommandFixture &f) { f.model->removeRows(0, 1); },
        [](CommandFixture &f) { delete f.model->takeFish(0); },
        [](CommandFixture &f) { f.model->moveRows(f.index("H"), 0, 2, QModelIndex(), 0); },
        [](CommandFixture &f) { f.model->moveRows(QModelIndex(), 1, 1, f.index("A"), 0); },
        [](CommandFixture &f) { f.model->loadJsonFish(oneBone()); },
        [](CommandFixture &f) { f.model->wrapHead(f.document(0), new TreeItem); },
        [](CommandFixture &f) { f.model->setData(f.index("A"), QStringLiteral("T")); },
        [](CommandFixture &f) { f.document(0)->loadFish({}, f.model.get()); },
    };
    for (const Change &change : changes) {
        CommandFixture f(QStringLiteral("H[A,B];Z[Y]"));
        const auto end = [&f] { f.model.reset(); };
        connect(f.model.get(), &FishModel::rowsInserted, this, end);
        connect(f.model.get(), &FishModel::rowsRemoved, this, end);
        connect(f.model.get(), &FishModel::rowsMoved, this, end);
        connect(f.model.get(), &FishModel::modelReset, this, end);
        connect(f.model.get(), &FishModel::layoutChanged, this, end);
        connect(f.model.get(), &FishModel::dataChanged, this, end);
        change(f);
        QVERIFY(!f.model);
    }
}

void TestFishModelListeners::shouldRefuseNodesOfAnotherModel_data()
{
    QTest::addColumn<int>("number");
    for (int i = 0; i < 8; ++i)
        QTest::addRow("%d", i) << i;
}

void TestFishModelListeners::shouldRefuseNodesOfAnotherModel()
{
    // Given two models
    QFETCH(const int, number);
    CommandFixture f(QStringLiteral("H[A,B]"));
    CommandFixture other(QStringLiteral("O[P,Q]"));
    TreeItem *const foreign = other.node("P");
    TreeItem free;
    const QString before = modelText(*other.model);

    // When one is given a node of the other
    bool isTaken = false;
    switch (number) {
    case 0:
        isTaken = f.model->insertExistItemRows(f.index("H"), {foreign});
        break;
    case 1:
        isTaken = f.model->insertExistItemRows(QModelIndex(), {foreign});
        break;
    case 2:
        isTaken = f.model->insertFishToList(0, foreign);
        break;
    case 3:
        isTaken = f.model->moveSrcToDstWithList(other.node("O"), 0, 1, f.node("H"), 0);
        break;
    case 4:
        isTaken = f.model->moveSrcToDstWithList(other.node("O"), 0, 1, &free, 0);
        break;
    case 5:
        isTaken = f.model->wrapHead(f.document(0), foreign);
        break;
    case 6:
        isTaken = f.model->wrapHead(f.document(0), other.node("O"));
        break;
    default:
        f.model->read(documentFromText(QStringLiteral("R")), foreign, 0);
        break;
    }

    // Then it stays where it is
    QVERIFY(!isTaken);
    QCOMPARE(modelText(*other.model), before);
    QCOMPARE(f.text(), QStringLiteral("H[A,B]"));
}

void TestFishModelListeners::shouldCompareADocumentWithItsListBeforeItLooksAtIt()
{
    CommandFixture f(QStringLiteral("H[A,B];Z"));
    FishInfo *const document = f.document(1);
    f.model->unloadFish(document);
    f.model->unloadFish(document); // which is gone
    QCOMPARE(f.text(), QStringLiteral("H[A,B]"));
}

void TestFishModelListeners::shouldTellOfANodeThatChangedUnseen()
{
    CommandFixture f(QStringLiteral("H[A,B];Z[Y]"));
    QSignalSpy changed(f.model.get(), &FishModel::nodeChanged);
    QVERIFY(f.model->wrapHead(f.document(1), new TreeItem));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.first().first().toModelIndex(), f.model->index(1, 0));
    delete f.model->unwrapHead(f.document(1), f.node("Z"));
    QCOMPARE(changed.count(), 2);
}

void TestFishModelListeners::shouldKnowWhichDocumentsHaveChanged()
{
    CommandFixture f(QStringLiteral("H[A,B];Z[Y]"));
    const auto changedBy = [&f](const Change &change) {
        const quint64 before = FishModel::changeStamp();
        change(f);
        QStringList titles;
        const auto changed = FishModel::fishChangedSince(before);
        for (const QPointer<FishInfo> &document : changed)
            titles.append(document->treeItem()->childAtIndex(0)->title());
        if (f.model->isListChangedSince(before))
            titles.append(QStringLiteral("list"));
        return titles.join(QLatin1Char(' '));
    };
    QCOMPARE(changedBy([](CommandFixture &) {}), QString());
    QCOMPARE(changedBy([](CommandFixture &g) { g.model->insertRows(0, 1, g.index("Y")); }),
             QStringLiteral("Z"));
    QCOMPARE(changedBy([](CommandFixture &g) { g.model->removeRows(0, 1, g.index("Y")); }),
             QStringLiteral("Z"));
    QCOMPARE(changedBy(
                 [](CommandFixture &g) { g.model->moveRows(g.index("H"), 0, 1, g.index("Z"), 0); }),
             QStringLiteral("H Z"));
    QCOMPARE(changedBy([](CommandFixture &g) { g.model->setData(g.index("B"), QString()); }),
             QStringLiteral("H"));
    QCOMPARE(changedBy([](CommandFixture &g) { g.model->updateItem(g.index("Y"), g.node("H")); }),
             QStringLiteral("Z"));
    QCOMPARE(changedBy([](CommandFixture &g) { g.model->insertRows(2, 1); }),
             QStringLiteral("list"));
    QCOMPARE(changedBy([](CommandFixture &g) { g.document(0)->loadFish({}, g.model.get()); }),
             QString());
}

FISHBONE_TEST(TestFishModelListeners)
#include "tst_fishmodel_listeners.moc"
