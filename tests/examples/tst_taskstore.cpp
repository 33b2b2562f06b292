// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/examples/taskmaps.h>
#include <tests/program/testprogram.h>

#include <taskschema.h>
#include <taskstore.h>

#include <QSqlQuery>

using namespace TaskMaps;

namespace {

TaskBatch batchOf(const QList<Task> &written, const QStringList &removed = {})
{
    static int number = 0;
    return {QStringLiteral("batch %1").arg(++number), written, removed};
}

/** Runs @p statements on the file at @p path by other means than the store. */
bool runOn(const QString &path, const QStringList &statements)
{
    bool isDone = true;
    const QString name = QStringLiteral("other means");
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
        database.setDatabaseName(path);
        isDone = database.open();
        for (const QString &statement : statements)
            isDone = isDone && QSqlQuery(database).exec(statement);
    }
    QSqlDatabase::removeDatabase(name);
    return isDone;
}

} // namespace

class TestTaskStore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_path = m_folder->filePath(QStringLiteral("tasks.sqlite"));
    }

    void theFirstStartMakesTheFile()
    {
        TaskStore store(m_path, QStringLiteral("Ada"));
        QVERIFY(store.open());
        QVERIFY(QFile::exists(m_path));
        QCOMPARE(store.latestRevision(), qint64(0));
    }

    void whatIsCommittedIsThereAfterwards()
    {
        {
            TaskStore store(m_path, QStringLiteral("Ada"));
            QVERIFY(store.open());
            QCOMPARE(store.commit(batchOf(small().values()), 0), TaskStore::Outcome::Done);
        }
        TaskStore store(m_path, QStringLiteral("Bob"));
        QVERIFY(store.open());
        TaskNews news;
        QVERIFY(store.readNews(0, news));
        QCOMPARE(news.revision, qint64(1));
        QCOMPARE(outline(map(news.written)), QStringLiteral("h(a(c)b)"));
        QCOMPARE(news.written.constFirst().author, QStringLiteral("Ada"));
        QCOMPARE(news.written.constFirst().version, qint64(1));
    }

    void newsAreWhatCameSince()
    {
        TaskStore store(m_path, QStringLiteral("Ada"));
        QVERIFY(store.open());
        QCOMPARE(store.commit(batchOf(small().values()), 0), TaskStore::Outcome::Done);
        const TaskBatch second = batchOf({task(a, h, 10, QStringLiteral("new"))}, {b});
        QCOMPARE(store.commit(second, 1), TaskStore::Outcome::Done);
        TaskNews news;
        QVERIFY(store.readNews(1, news));
        QCOMPARE(news.written.size(), 1);
        QCOMPARE(news.written.constFirst().title(), QStringLiteral("new"));
        QCOMPARE(news.removed, QStringList{b});
        QCOMPARE(news.batches, QStringList{second.id});
    }

    void whoComesTooLateChangesNothing()
    {
        TaskStore one(m_path, QStringLiteral("Ada"));
        TaskStore other(m_path, QStringLiteral("Bob"));
        QVERIFY(one.open() && other.open());
        QCOMPARE(one.commit(batchOf(small().values()), 0), TaskStore::Outcome::Done);
        QCOMPARE(other.commit(batchOf({task(QStringLiteral("n"), QString(), 1)}), 0),
                 TaskStore::Outcome::Outdated);
        TaskNews news;
        QVERIFY(one.readNews(1, news));
        QCOMPARE(news.revision, qint64(1));
        QVERIFY(news.written.isEmpty());
    }

    void aMoveThatMakesACircleIsRefusedWithAllBesideIt()
    {
        TaskStore store(m_path, QStringLiteral("Ada"));
        QVERIFY(store.open());
        QCOMPARE(store.commit(batchOf(small().values()), 0), TaskStore::Outcome::Done);
        const TaskBatch circle =
            batchOf({task(b, h, 20, QStringLiteral("changed")), task(a, QStringLiteral("c"), 1)});
        QCOMPARE(store.commit(circle, 1), TaskStore::Outcome::Refused);
        QCOMPARE(store.latestRevision(), qint64(1));
        TaskNews news;
        QVERIFY(store.readNews(0, news));
        QCOMPARE(outline(map(news.written)), QStringLiteral("h(a(c)b)"));
        QCOMPARE(map(news.written).value(b).title(), b);
    }

    void aTaskBelowNothingIsRefused()
    {
        TaskStore store(m_path, QStringLiteral("Ada"));
        QVERIFY(store.open());
        QCOMPARE(store.commit(batchOf({task(a, QStringLiteral("nobody"), 1)}), 0),
                 TaskStore::Outcome::Refused);
        QCOMPARE(store.latestRevision(), qint64(0));
    }

    void filesOfAllVersionsAreMigrated_data()
    {
        QTest::addColumn<int>("version");
        for (int version = 1; version < TaskSchema::version(); ++version)
            QTest::addRow("version %d", version) << version;
    }

    void filesOfAllVersionsAreMigrated()
    {
        QFETCH(int, version);
        QStringList statements;
        for (int from = 0; from < version; ++from)
            statements += TaskSchema::migration(from);
        const QString columns =
            QStringLiteral("INSERT INTO task (uuid, parent, position, fields) ");
        statements << columns + QStringLiteral("VALUES ('h', '', 5, '{\"title\": \"Head\"}')")
                   << columns + QStringLiteral("VALUES ('a', 'h', 7, '{\"title\": \"Old\"}')");
        if (version > 1)
            statements << QStringLiteral("CREATE TABLE schema_version (version INTEGER)")
                       << QStringLiteral("INSERT INTO schema_version VALUES (%1)").arg(version)
                       << QStringLiteral("INSERT INTO edit VALUES (1, 'x', 'Old Ada', 0)")
                       << QStringLiteral("UPDATE task SET version = 1");
        QVERIFY(runOn(m_path, statements));

        TaskStore store(m_path, QStringLiteral("Ada"));
        QVERIFY2(store.open(), qPrintable(store.errorText()));
        TaskNews news;
        QVERIFY(store.readNews(0, news));
        QCOMPARE(outline(map(news.written)), QStringLiteral("h(a)"));
        QCOMPARE(map(news.written).value(a).title(), QStringLiteral("Old"));
        QCOMPARE(store.commit(batchOf({}, {a}), 1), TaskStore::Outcome::Done);
        news = {};
        QVERIFY(store.readNews(1, news));
        QCOMPARE(news.removed, QStringList{a});
    }

    void aFileOfANewerVersionIsLeftAlone()
    {
        QVERIFY(runOn(m_path, {QStringLiteral("CREATE TABLE schema_version (version INTEGER)"),
                               QStringLiteral("INSERT INTO schema_version VALUES (%1)")
                                   .arg(TaskSchema::version() + 1)}));
        TaskStore store(m_path, QStringLiteral("Ada"));
        QVERIFY(!store.open());
        QVERIFY(!store.errorText().isEmpty());
    }

    void aFolderThatIsNotThereIsToldAndTriedAgain()
    {
        TaskStore store(m_folder->filePath(QStringLiteral("later/tasks.sqlite")),
                        QStringLiteral("Ada"));
        QVERIFY(!store.open());
        QVERIFY(!store.errorText().isEmpty());
        QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("later")));
        QVERIFY(store.open());
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
};

FISHBONE_GUILESS_TEST(TestTaskStore)
#include "tst_taskstore.moc"
