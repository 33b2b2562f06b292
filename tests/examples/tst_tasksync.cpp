// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/examples/taskmaps.h>
#include <tests/program/sanitized.h>
#include <tests/program/testprogram.h>

#include <modeltree.h>
#include <tasksync.h>
#include <waitingjournal.h>

#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/undo/structuralcommands.h>
#include <fishbone/undo/undostack.h>

#include <QSqlDatabase>

using namespace TaskMaps;

namespace {

/** One host: a model, an editor and the way to the data base. */
class Host
{
    Q_DISABLE_COPY(Host)

public:
    /** With @p folder it keeps what waits there. */
    Host(const QString &path, const QString &author, const QString &folder = QString())
        : store(path, author)
        , journal(folder, path)
        , sync(model, store)
    {
        if (!folder.isEmpty())
            sync.setJournal(&journal);
        editor.setModel(&model);
        editor.setAutosaveInterval(0);
        sync.addEditor(&editor);
    }
    ~Host() { editor.setModel(nullptr); }

    QModelIndex index(const QString &title) const
    {
        return model.searchModelIndexes(title).value(0);
    }
    void rename(const QString &title, const QString &name)
    {
        editor.renameItem(index(title), name);
    }
    QString titles() const
    {
        QStringList all;
        const QModelIndexList indexes = model.searchModelIndexes(QString());
        for (const QModelIndex &each : indexes)
            all.append(model.getTreeItem(each)->title());
        return all.join(QLatin1Char(' '));
    }

    FishModel model;
    TaskStore store;
    WaitingJournal journal;
    TaskSync sync;
    FishEditor editor;
};

} // namespace

class TestTaskSync : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_path = m_folder->filePath(QStringLiteral("tasks.sqlite"));
        m_ada = std::make_unique<Host>(m_path, QStringLiteral("Ada"));
        QVERIFY(m_ada->sync.start());
        QVERIFY(m_ada->model.loadJsonFish(R"({"title": "Head", "uuid": "h", "children": [
            {"title": "One", "uuid": "a", "children": [{"title": "Deep", "uuid": "c"}]},
            {"title": "Two", "uuid": "b"}]})"));
        QTRY_VERIFY(m_ada->sync.isStored());
        m_bob = std::make_unique<Host>(m_path, QStringLiteral("Bob"));
        QVERIFY(m_bob->sync.start());
        m_ada->editor.setRootIndex(m_ada->model.index(0, 0));
        m_bob->editor.setRootIndex(m_bob->model.index(0, 0));
    }
    void cleanup()
    {
        m_ada.reset();
        m_bob.reset();
    }

    void whatOneStoresTheOtherHas()
    {
        QCOMPARE(m_bob->titles(), QStringLiteral("Head One Deep Two"));
    }

    void anEditOfOneIsShownToTheOtherWithinASecond()
    {
        m_ada->rename(QStringLiteral("Two"), QStringLiteral("Second"));
        QTRY_COMPARE_WITH_TIMEOUT(m_bob->titles(), QStringLiteral("Head One Deep Second"),
                                  unlessSanitized(1000, 10000));
        QVERIFY(m_bob->sync.isStored());
    }

    void undoIsStoredAsAnyEdit()
    {
        m_ada->editor.deleteItem(m_ada->index(QStringLiteral("One")));
        QTRY_COMPARE(m_bob->titles(), QStringLiteral("Head Two"));
        m_ada->editor.undo();
        QTRY_COMPARE(m_bob->titles(), QStringLiteral("Head One Deep Two"));
    }

    void oneEditOfSeveralTasksIsOneRevision()
    {
        const qint64 before = m_ada->sync.revision();
        m_ada->editor.deleteItem(m_ada->index(QStringLiteral("One"))); // and Deep
        QTRY_VERIFY(m_ada->sync.isStored());
        QCOMPARE(m_ada->sync.revision(), before + 1);
    }

    void theOthersEditsAreNoStepsOfTheOwnHistory()
    {
        m_ada->rename(QStringLiteral("Two"), QStringLiteral("Second"));
        QTRY_COMPARE(m_bob->titles(), QStringLiteral("Head One Deep Second"));
        QCOMPARE(m_bob->editor.undoStack()->count(), 0);
    }

    void aDocumentIsUnmodifiedOnceItIsStored()
    {
        FishInfo *const document = m_ada->model.fishList().constFirst();
        m_ada->rename(QStringLiteral("Two"), QStringLiteral("Second"));
        QVERIFY(document->modified());
        QTRY_VERIFY(!document->modified());
    }

    void theSameFieldChangedByBothIsAConflictThatCanBeSettled_data()
    {
        QTest::addColumn<bool>("keepsMine");
        QTest::addColumn<QString>("titles");
        QTest::newRow("theirs") << false << QStringLiteral("Head One Deep Adas");
        QTest::newRow("mine") << true << QStringLiteral("Head One Deep Bobs");
    }

    void theSameFieldChangedByBothIsAConflictThatCanBeSettled()
    {
        QFETCH(bool, keepsMine);
        QFETCH(QString, titles);
        m_ada->rename(QStringLiteral("Two"), QStringLiteral("Adas"));
        m_bob->rename(QStringLiteral("Two"), QStringLiteral("Bobs"));
        QVERIFY(m_ada->sync.synchronize());
        QVERIFY(m_bob->sync.synchronize());
        QCOMPARE(m_bob->sync.conflicts().size(), 1);
        QCOMPARE(m_bob->sync.conflicts().constFirst().theirs.author, QStringLiteral("Ada"));
        QCOMPARE(m_bob->titles(), QStringLiteral("Head One Deep Adas"));
        m_bob->sync.settle(0, keepsMine);
        QVERIFY(m_bob->sync.conflicts().isEmpty());
        QTRY_COMPARE(m_ada->titles(), titles);
        QCOMPARE(m_bob->titles(), titles);
        QVERIFY(m_ada->sync.conflicts().isEmpty());
    }

    void movesOfBothThatMakeACircleLeaveATree()
    {
        const auto moveUnder = [](Host &host, const char *what, const char *where) {
            const QModelIndex index = host.index(QString::fromLatin1(what));
            TreeItem *const item = host.model.getTreeItem(index);
            host.editor.run(std::make_unique<EditMove>(
                &host.model, host.index(QString::fromLatin1(where)), 0,
                QJsonObject{{QStringLiteral("uuid"), item->uuid()}}, QList<TreeItem *>{item}));
        };
        moveUnder(*m_ada, "Two", "Deep");
        moveUnder(*m_bob, "One", "Two");
        QVERIFY(m_ada->sync.synchronize());
        QVERIFY(m_bob->sync.synchronize());
        QCOMPARE(m_bob->titles(), QStringLiteral("Head One Deep Two"));
        QCOMPARE(outline(m_bob->sync.known()), QStringLiteral("h(a(c(b)))"));
        QCOMPARE(int(m_bob->sync.conflicts().value(0).kind), int(Conflict::Place));
    }

    void whatWaitsForTheDataBaseIsStoredOnceItIsThere()
    {
        Host carol(m_folder->filePath(QStringLiteral("later/tasks.sqlite")),
                   QStringLiteral("Carol"));
        QVERIFY(!carol.sync.start());
        QVERIFY(!carol.sync.isOnline());
        QVERIFY(carol.model.loadJsonFish(R"({"title": "Waits", "uuid": "w"})"));
        QVERIFY(!carol.sync.synchronize());
        QVERIFY(!carol.sync.isStored());
        QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("later")));
        QTRY_VERIFY(carol.sync.isOnline() && carol.sync.isStored());
        QCOMPARE(outline(carol.sync.known()), QStringLiteral("w"));
    }

    void whatWaitsIsThereInTheNextProcess()
    {
        {
            Host carol(shared(), QStringLiteral("Carol"), journals());
            fillShare(carol);
            QVERIFY(waiting().isEmpty());
            takeShareAway();
            carol.rename(QStringLiteral("Two"), QStringLiteral("Mine"));
            carol.editor.deleteItem(carol.index(QStringLiteral("Deep")));
            QVERIFY(!carol.sync.synchronize());
            QVERIFY(carol.sync.isKept());
        }
        {
            Host again(shared(), QStringLiteral("Carol"), journals());
            QVERIFY(!again.sync.start());
            QCOMPARE(again.titles(), QStringLiteral("Head One Mine"));
            QVERIFY(again.sync.isKept());
            again.rename(QStringLiteral("One"), QStringLiteral("First"));
            QVERIFY(!again.sync.synchronize());
        }
        bringShareBack();
        {
            Host again(shared(), QStringLiteral("Carol"), journals());
            QVERIFY(again.sync.start());
            QCOMPARE(again.titles(), QStringLiteral("Head First Mine"));
            QVERIFY(again.sync.conflicts().isEmpty());
            QVERIFY(waiting().isEmpty());
        }
        Host bob(shared(), QStringLiteral("Bob"));
        QVERIFY(bob.sync.start());
        QCOMPARE(bob.titles(), QStringLiteral("Head First Mine"));
    }

    void aConflictWithWhatWaitedIsToldUntilItIsSettled()
    {
        {
            Host carol(shared(), QStringLiteral("Carol"), journals());
            fillShare(carol);
            takeShareAway();
            carol.rename(QStringLiteral("Two"), QStringLiteral("Mine"));
            QVERIFY(!carol.sync.synchronize());
        }
        bringShareBack();
        {
            Host bob(shared(), QStringLiteral("Bob"));
            QVERIFY(bob.sync.start());
            bob.rename(QStringLiteral("Two"), QStringLiteral("Bobs"));
            QVERIFY(bob.sync.synchronize());
        }
        for (int start = 0; start < 2; ++start) { // nobody settles it in the first of them
            Host again(shared(), QStringLiteral("Carol"), journals());
            QVERIFY(again.sync.start());
            QCOMPARE(again.titles(), QStringLiteral("Head One Deep Bobs"));
            QCOMPARE(again.sync.conflicts().size(), 1);
            QCOMPARE(again.sync.conflicts().constFirst().mine.title(), QStringLiteral("Mine"));
        }
        Host last(shared(), QStringLiteral("Carol"), journals());
        QVERIFY(last.sync.start());
        last.sync.settle(0, true);
        QVERIFY(last.sync.synchronize());
        QCOMPARE(last.titles(), QStringLiteral("Head One Deep Mine"));
        QVERIFY(waiting().isEmpty());
    }

    void whatSeveralProcessesLeftIsTakenUpTogether()
    {
        {
            Host carol(shared(), QStringLiteral("Carol"), journals());
            fillShare(carol);
            Host dave(shared(), QStringLiteral("Dave"), journals());
            QVERIFY(dave.sync.start());
            takeShareAway();
            carol.rename(QStringLiteral("One"), QStringLiteral("Carols"));
            dave.rename(QStringLiteral("Two"), QStringLiteral("Daves"));
            QVERIFY(!carol.sync.synchronize());
            QVERIFY(!dave.sync.synchronize());
            QCOMPARE(waiting().size(), 2);
        }
        Host next(shared(), QStringLiteral("Carol"), journals());
        QVERIFY(!next.sync.start());
        QCOMPARE(next.titles(), QStringLiteral("Head Carols Deep Daves"));
        QCOMPARE(waiting().size(), 1); // its own
        bringShareBack();
        QVERIFY(next.sync.synchronize());
        QVERIFY(next.sync.conflicts().isEmpty());
        QVERIFY(waiting().isEmpty());
    }

    void aNewDataBaseInTheOldPlaceGetsEverything()
    {
        {
            Host carol(shared(), QStringLiteral("Carol"), journals());
            fillShare(carol);
            takeShareAway();
            carol.rename(QStringLiteral("Two"), QStringLiteral("Mine"));
            QVERIFY(!carol.sync.synchronize());
        }
        QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("share")));
        Host again(shared(), QStringLiteral("Carol"), journals());
        QVERIFY(again.sync.start());
        QCOMPARE(outline(again.sync.known()), QStringLiteral("h(a(c)b)"));
        QCOMPARE(again.sync.known().value(b).title(), QStringLiteral("Mine"));
    }

    void whereNothingCanBeKeptThatIsTold()
    {
        QFile file(journals()); // in the place of the folder
        QVERIFY(file.open(QIODevice::WriteOnly));
        Host carol(shared(), QStringLiteral("Carol"), journals());
        fillShare(carol);
        takeShareAway();
        carol.rename(QStringLiteral("Two"), QStringLiteral("Mine"));
        QVERIFY(!carol.sync.synchronize());
        QVERIFY(!carol.sync.isKept());
    }

    void ofTwoThatBeginADataBaseOneDoes()
    {
        const QString path = m_folder->filePath(QStringLiteral("empty.sqlite"));
        Host one(path, QStringLiteral("Ada"));
        Host other(path, QStringLiteral("Bob"));
        QVERIFY(one.sync.start() && other.sync.start()); // and both see that there is nothing
        one.sync.begin(map({task(a, QString(), 1)}));
        other.sync.begin(map({task(b, QString(), 1)}));
        QCOMPARE(one.titles(), a);
        QCOMPARE(other.titles(), a);
        QVERIFY(one.sync.synchronize() && other.sync.synchronize());
        QCOMPARE(outline(one.sync.known()), a);
        QVERIFY(other.sync.conflicts().isEmpty());
    }

private:
    QString shared() const { return m_folder->filePath(QStringLiteral("share/tasks.sqlite")); }
    QString journals() const { return m_folder->filePath(QStringLiteral("waiting")); }
    QStringList waiting() const
    {
        return QDir(journals()).entryList({QStringLiteral("*.json")}, QDir::Files);
    }
    /** Has @p host store a few tasks in a data base that can be taken away. */
    void fillShare(Host &host)
    {
        QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("share")));
        QVERIFY(host.sync.start());
        QVERIFY(host.model.loadJsonFish(R"({"title": "Head", "uuid": "h", "children": [
            {"title": "One", "uuid": "a", "children": [{"title": "Deep", "uuid": "c"}]},
            {"title": "Two", "uuid": "b"}]})"));
        QVERIFY(host.sync.synchronize());
    }
    /** As a server that goes: no connection stands, and none can be made. */
    void takeShareAway()
    {
        const QStringList connections = QSqlDatabase::connectionNames();
        for (const QString &connection : connections)
            QSqlDatabase::database(connection, false).close();
        QVERIFY(QDir(m_folder->path()).rename(QStringLiteral("share"), QStringLiteral("gone")));
    }
    void bringShareBack()
    {
        QVERIFY(QDir(m_folder->path()).rename(QStringLiteral("gone"), QStringLiteral("share")));
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
    std::unique_ptr<Host> m_ada;
    std::unique_ptr<Host> m_bob;
};

FISHBONE_TEST(TestTaskSync)
#include "tst_tasksync.moc"
