// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT
//
// The example host as processes on one file of SQLite.

#include <tests/examples/hostprocess.h>
#include <tests/examples/taskmaps.h>
#include <tests/program/testprogram.h>

#include <taskstore.h>

namespace {

/** What a host said it had stored. */
struct Told
{
    qint64 revision = 0;
    QHash<QString, QPair<qint64, QString>> titles; // the last one of each task, and when
};

Told toldIn(const QStringList &lines)
{
    Told told;
    QHash<QString, QString> pending;
    for (const QString &line : lines) {
        if (line.startsWith(QLatin1String("task "))) {
            pending.insert(line.section(QLatin1Char(' '), 1, 1), line.section(QLatin1Char(' '), 2));
        } else if (line.startsWith(QLatin1String("stored "))) {
            told.revision = line.mid(7).toLongLong();
            for (auto task = pending.cbegin(); task != pending.cend(); ++task)
                told.titles.insert(task.key(), {told.revision, task.value()});
            pending.clear();
        }
    }
    return told;
}

} // namespace

class TestTaskHost : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_path = m_folder->filePath(QStringLiteral("tasks.sqlite"));
    }

    void theDemoPlaysThrough()
    {
        QProcess process;
        process.start(HostProcess::program(), {QStringLiteral("--demo")});
        QVERIFY(process.waitForFinished(HostProcess::timeLimit));
        QVERIFY2(process.exitCode() == 0, process.readAllStandardError().constData());
    }

    void whatAKilledHostHadStoredIsThere()
    {
        Told told;
        for (int round = 0; round < 3; ++round) {
            HostProcess host(m_path, QStringLiteral("Ada"));
            host.tell(QStringLiteral("edit 100000 %1").arg(round));
            for (int i = 0; i < 30 + round * 17; ++i)
                QVERIFY(host.waitFor(QStringLiteral("stored ")));
            host.kill();
            const Told more = toldIn(host.takeLines());
            told.revision = more.revision;
            for (auto task = more.titles.cbegin(); task != more.titles.cend(); ++task)
                told.titles.insert(task.key(), task.value());
            verifyStored(told);
        }
        // Another host starts with all of it.
        TaskStore store(m_path, QStringLiteral("Test"));
        TaskNews news;
        QVERIFY(store.open() && store.readNews(0, news));
        HostProcess again(m_path, QStringLiteral("Bob"));
        const QStringList tree = again.tree();
        QCOMPARE(tree.size(), news.written.size());
        const QStringList order = TaskTree::preOrder(TaskMaps::map(news.written));
        for (int i = 0; i < tree.size(); ++i)
            QCOMPARE(tree.at(i).section(QLatin1Char(' '), 1, 1), order.at(i));
        QVERIFY(again.quit());
    }

    void twoHostsThatWorkAtOnceEndInTheSameTree()
    {
        HostProcess one(m_path, QStringLiteral("Ada"));
        QVERIFY(!one.tree().isEmpty()); // the template
        HostProcess other(m_path, QStringLiteral("Bob"));
        QVERIFY(!other.tree().isEmpty());
        one.tell(QStringLiteral("edit 150 1"));
        other.tell(QStringLiteral("edit 150 2"));
        QVERIFY(one.waitFor(QStringLiteral("done")));
        QVERIFY(other.waitFor(QStringLiteral("done")));
        QVERIFY(!one.tree().isEmpty()); // all of both is stored
        QVERIFY(!other.tree().isEmpty());
        const QStringList tree = one.tree();
        QVERIFY(tree.size() > 5);
        QCOMPARE(other.tree(), tree);
        QVERIFY(one.quit());
        QVERIFY(other.quit());
    }

private:
    /** All that was told is there, but for what a commit has changed that nobody told of any more.
     */
    void verifyStored(const Told &told)
    {
        TaskStore store(m_path, QStringLiteral("Test"));
        TaskNews news;
        QVERIFY2(store.open() && store.readNews(0, news), qPrintable(store.errorText()));
        QVERIFY(news.revision == told.revision || news.revision == told.revision + 1);
        const TaskMap tasks = TaskMaps::map(news.written);
        QCOMPARE(TaskTree::preOrder(tasks).size(), int(tasks.size()));
        QVERIFY(told.titles.size() > 10);
        for (auto task = told.titles.cbegin(); task != told.titles.cend(); ++task) {
            const bool isThere = tasks.contains(task.key());
            QVERIFY2(isThere || news.removed.contains(task.key()), qPrintable(task.key()));
            if (!isThere)
                continue;
            const Task now = tasks.value(task.key());
            QVERIFY(now.version >= task.value().first);
            if (now.version == task.value().first)
                QCOMPARE(now.title(), task.value().second);
        }
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
};

FISHBONE_GUILESS_TEST(TestTaskHost)
#include "tst_taskhost.moc"
