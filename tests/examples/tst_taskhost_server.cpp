// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT
//
// Several hosts on a server of PostgreSQL, which the test starts, crashes and starts again.

#include <tests/examples/hostprocess.h>
#include <tests/examples/postgresserver.h>
#include <tests/examples/taskmaps.h>
#include <tests/program/sanitized.h>
#include <tests/program/testprogram.h>
#include <tests/support/modaldriver.h>

#include <taskdesk.h>
#include <taskstore.h>
#include <taskwindow.h>

#include <QAbstractButton>
#include <QMessageBox>
#include <QRegularExpression>
#include <QSignalSpy>

using namespace TaskMaps;
using namespace TestSupport;

class TestTaskHostServer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY2(m_server.create(), qPrintable(m_server.error())); }

    void init()
    {
        m_address = m_server.address();
        TaskStore store(m_address, QStringLiteral("Test"));
        QVERIFY2(store.open(), qPrintable(store.errorText()));
        TaskNews news;
        QVERIFY(store.readNews(0, news));
        TaskBatch batch;
        batch.id = QStringLiteral("clear %1").arg(news.revision);
        for (const Task &each : std::as_const(news.written))
            batch.removed.append(each.uuid);
        QCOMPARE(store.commit(batch, news.revision), TaskStore::Outcome::Done);
    }

    void theServerTellsTheOthersOfACommit()
    {
        TaskStore one(m_address, QStringLiteral("Ada"));
        TaskStore other(m_address, QStringLiteral("Bob"));
        QVERIFY(one.open() && other.open());
        const QSignalSpy told(&other, &TaskStore::newsAvailable);
        const qint64 revision = one.latestRevision();
        QCOMPARE(one.commit({QStringLiteral("x"), small().values(), {}}, revision),
                 TaskStore::Outcome::Done);
        QTRY_COMPARE(told.count(), 1);
        TaskNews news;
        QVERIFY(other.readNews(revision, news));
        QCOMPARE(outline(map(news.written)), QStringLiteral("h(a(c)b)"));
        QCOMPARE(other.commit({QStringLiteral("y"), {}, {QStringLiteral("b")}}, revision),
                 TaskStore::Outcome::Outdated);
        QCOMPARE(other.commit(
                     {QStringLiteral("z"), {task(QStringLiteral("a"), QStringLiteral("c"), 1)}, {}},
                     revision + 1),
                 TaskStore::Outcome::Refused);
        QCOMPARE(one.latestRevision(), revision + 1);
    }

    void anEditIsShownToTheOthersWithinASecond()
    {
        TaskDesk ada(m_address, QStringLiteral("Ada"));
        QVERIFY(ada.start());
        QVERIFY(ada.sync().synchronize());
        TaskDesk bob(m_server.networkAddress(), QStringLiteral("Bob")); // from another machine
        QVERIFY(bob.start());
        QCOMPARE(bob.windows().size(), 1);
        constexpr int second = unlessSanitized(1000, 10000);
        qint64 longest = 0;
        for (int i = 0; i < 20; ++i) {
            TaskDesk &from = i % 2 == 0 ? ada : bob;
            TaskDesk &to = i % 2 == 0 ? bob : ada;
            const QString title = QStringLiteral("title %1").arg(i);
            const auto bone = [](TaskDesk &desk) {
                return desk.model().index(0, 0, desk.model().index(0, 0));
            };
            QElapsedTimer timer;
            timer.start();
            from.windows().constFirst()->editor().renameItem(bone(from), title);
            QTRY_COMPARE_WITH_TIMEOUT(bone(to).data().toString(), title, second);
            longest = qMax(longest, timer.elapsed());
        }
        qInfo("An edit is shown to the others after %lld ms at most.", longest);
        QVERIFY(longest < second);
    }

    void bothWhoChangeOneTaskLoseNothing()
    {
        TaskDesk ada(m_address, QStringLiteral("Ada"));
        QVERIFY(ada.start(false));
        ada.merge(R"({"title": "Head", "uuid": "h", "children": [{"title": "a", "uuid": "a"}]})");
        QVERIFY(ada.sync().synchronize());
        TaskDesk bob(m_address, QStringLiteral("Bob"));
        QVERIFY(bob.start(false));
        const QString uuid = QStringLiteral("a");
        ada.model().setData(ada.model().modelIndexByUuid(uuid), QStringLiteral("Adas"));
        bob.model().setData(bob.model().modelIndexByUuid(uuid), QStringLiteral("Bobs"));
        QVERIFY(ada.sync().synchronize());
        QVERIFY(bob.sync().synchronize());
        QCOMPARE(bob.sync().conflicts().size(), 1);
        QCOMPARE(bob.sync().conflicts().constFirst().theirs.title(), QStringLiteral("Adas"));
        QCOMPARE(bob.sync().conflicts().constFirst().mine.title(), QStringLiteral("Bobs"));
        bob.sync().settle(0, true);
        QTRY_COMPARE(ada.model().modelIndexByUuid(uuid).data().toString(), QStringLiteral("Bobs"));
    }

    void whatWaitsForTheServerIsStoredWhenItComesBack()
    {
        TaskDesk ada(m_address, QStringLiteral("Ada"));
        QVERIFY(ada.start());
        QTRY_VERIFY(ada.sync().isStored());
        QVERIFY(m_server.stop(SIGINT));
        const QModelIndex bone = ada.model().index(0, 0, ada.model().index(0, 0));
        ada.windows().constFirst()->editor().renameItem(bone, QStringLiteral("While it was away"));
        QTRY_VERIFY(!ada.sync().isOnline());
        QVERIFY(!ada.sync().isStored());
        {
            const ModalDriver<QMessageBox> user(
                [](QMessageBox &box) { box.button(QMessageBox::Cancel)->click(); });
            QVERIFY(!ada.windows().constFirst()->close());
            QVERIFY(user.isDone());
        }
        QVERIFY2(m_server.start(), qPrintable(m_server.error()));
        QTRY_VERIFY_WITH_TIMEOUT(ada.sync().isOnline() && ada.sync().isStored(), 10000);
        const QString uuid = bone.siblingAtColumn(1).data().toString();
        QCOMPARE(ada.sync().known().value(uuid).title(), QStringLiteral("While it was away"));
        QVERIFY(ada.windows().constFirst()->close()); // and nobody asks
    }

    void whatWaitsInAHostThatIsKilledIsFound()
    {
        const QTemporaryDir home; // of Ada
        QStringList before;
        QStringList here;
        {
            HostProcess ada(m_address, QStringLiteral("Ada"), home.path());
            before = ada.tree();
            QVERIFY(!before.isEmpty());
            QVERIFY(m_server.stop(SIGQUIT));
            ada.tell(QStringLiteral("edit 60 5"));
            QVERIFY(ada.waitFor(QStringLiteral("done")));
            here = ada.here();
            QVERIFY(here != before);
            ada.kill();
        }
        {
            HostProcess ada(m_address, QStringLiteral("Ada"), home.path());
            QCOMPARE(ada.here(), here); // without the server
            ada.kill();
        }
        QVERIFY2(m_server.start(), qPrintable(m_server.error()));
        HostProcess bob(m_address, QStringLiteral("Bob"));
        QCOMPARE(bob.tree(), before);
        HostProcess ada(m_address, QStringLiteral("Ada"), home.path());
        QCOMPARE(ada.tree(), here);
        QCOMPARE(bob.tree(), here);
        QVERIFY(ada.quit());
        QVERIFY(bob.quit());
    }

    void hostsThatStartAtOnceBeginWithOneTemplate()
    {
        TaskDesk desk(m_address, QStringLiteral("Eve"));
        TaskDesk late(m_address, QStringLiteral("Lot"));
        QVERIFY(desk.start(false) && late.start(false)); // and both see that there is nothing
        desk.sync().begin(map({task(a, QString(), 1)}));
        late.sync().begin(map({task(b, QString(), 1)}));
        QCOMPARE(desk.sync().known().keys(), QStringList{a});
        QCOMPARE(late.sync().known().keys(), QStringList{a});

        init();
        HostProcess ada(m_address, QStringLiteral("Ada"));
        HostProcess bob(m_address, QStringLiteral("Bob"));
        const QStringList tree = ada.tree();
        QCOMPARE(tree.filter(QRegularExpression(QStringLiteral("^0 "))).size(), 1);
        QCOMPARE(bob.tree(), tree);
        QVERIFY(ada.quit());
        QVERIFY(bob.quit());
    }

    void aThousandEditsOfTwoHostsEndInOneTreeAlsoWhenTheServerCrashes()
    {
        HostProcess ada(m_address, QStringLiteral("Ada"));
        QVERIFY(!ada.tree().isEmpty());
        HostProcess bob(m_server.networkAddress(), QStringLiteral("Bob")); // from another machine
        QVERIFY(!bob.tree().isEmpty());
        constexpr int edits = unlessSanitized(250, 60);
        for (const int signal : {SIGQUIT, SIGINT}) { // a crash, and a restart in good order
            ada.tell(QStringLiteral("edit %1 %2").arg(edits).arg(signal));
            bob.tell(QStringLiteral("edit %1 %2").arg(edits).arg(signal + 100));
            for (int i = 0; i < 20; ++i) {
                QVERIFY(ada.waitFor(QStringLiteral("stored ")));
                QVERIFY(bob.waitFor(QStringLiteral("stored ")));
            }
            QVERIFY(m_server.stop(signal));
            QVERIFY2(m_server.start(), qPrintable(m_server.error()));
            QVERIFY(ada.waitFor(QStringLiteral("done")));
            QVERIFY(bob.waitFor(QStringLiteral("done")));
        }
        QVERIFY(!ada.tree().isEmpty()); // each has stored all of its own
        QVERIFY(!bob.tree().isEmpty());
        // The later of them may have written all tasks last, so each writes some by itself.
        for (HostProcess *host : {&ada, &bob}) {
            host->tell(QStringLiteral("edit 20 300"));
            QVERIFY(host->waitFor(QStringLiteral("done")));
            QVERIFY(!ada.tree().isEmpty());
            QVERIFY(!bob.tree().isEmpty());
            QVERIFY(
                authors().contains(host == &ada ? QStringLiteral("Ada") : QStringLiteral("Bob")));
        }
        const QStringList tree = ada.tree();
        QVERIFY(tree.size() > 10);
        QCOMPARE(bob.tree(), tree);

        TaskStore store(m_address, QStringLiteral("Test"));
        TaskNews news;
        QVERIFY(store.open() && store.readNews(0, news));
        const QStringList order = TaskTree::preOrder(map(news.written));
        QCOMPARE(order.size(), news.written.size());
        QCOMPARE(order.size(), tree.size());
        for (int i = 0; i < tree.size(); ++i)
            QCOMPARE(tree.at(i).section(QLatin1Char(' '), 1, 1), order.at(i));
        QVERIFY(ada.quit());
        QVERIFY(bob.quit());
    }

private:
    /** Who has written each task last. */
    QStringList authors() const
    {
        TaskStore store(m_address, QStringLiteral("Test"));
        TaskNews news;
        if (!store.open() || !store.readNews(0, news))
            return {};
        QStringList names;
        for (const auto &task : news.written)
            names.append(task.author);
        return names;
    }

    PostgresServer m_server;
    QString m_address;
};

FISHBONE_TEST(TestTaskHostServer)
#include "tst_taskhost_server.moc"
