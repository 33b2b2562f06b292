// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/examples/taskmaps.h>
#include <tests/program/testprogram.h>

#include <taskfields.h>
#include <waitingjournal.h>

using namespace TaskMaps;

class TestWaitingJournal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(m_folder->isValid());
    }

    void whatOneWritesTheNextOneHas()
    {
        WaitingJournal::Entry entry = at(qint64(1) << 60);
        entry.mine.remove(b);
        entry.mine[a].fields.insert(QStringLiteral("title"), QStringLiteral("鱼骨 \"a\""));
        entry.mine[a].position = -(qint64(1) << 61) - 1;
        entry.mine[a].author = QStringLiteral("Ada");
        entry.unanswered.append({QStringLiteral("id"), {entry.mine.value(a)}, {b}});
        Conflict conflict;
        conflict.kind = Conflict::TheyDeleted;
        conflict.key = QStringLiteral("title");
        conflict.mine = entry.mine.value(a);
        entry.conflicts.append(conflict);
        QVERIFY(WaitingJournal(folder(), path()).write(entry));

        WaitingJournal next(folder(), path());
        const QList<WaitingJournal::Entry> left = next.left();
        QCOMPARE(left.size(), 1);
        const WaitingJournal::Entry &read = left.constFirst();
        QCOMPARE(read.revision, entry.revision);
        verifySame(read.known, entry.known);
        verifySame(read.mine, entry.mine);
        QCOMPARE(read.unanswered.size(), 1);
        QCOMPARE(read.unanswered.constFirst().id, QStringLiteral("id"));
        verifySame(map(read.unanswered.constFirst().written), map({entry.mine.value(a)}));
        QCOMPARE(read.unanswered.constFirst().removed, QStringList{b});
        QCOMPARE(read.conflicts.size(), 1);
        QCOMPARE(int(read.conflicts.constFirst().kind), int(Conflict::TheyDeleted));
        QCOMPARE(read.conflicts.constFirst().key, conflict.key);
        QCOMPARE(read.conflicts.constFirst().uuid(), a);
        QVERIFY(read.conflicts.constFirst().theirs.uuid.isEmpty());
    }

    void theLastOneThatWasWrittenCounts()
    {
        {
            WaitingJournal journal(folder(), path());
            QVERIFY(journal.write(at(1)));
            QVERIFY(journal.write(at(2)));
            QVERIFY(journal.write(at(2)));
        }
        QCOMPARE(revisions(WaitingJournal(folder(), path()).left()), QList<qint64>{2});
    }

    void whatALivingOneHasIsNobodyElses()
    {
        WaitingJournal living(folder(), path());
        QVERIFY(living.write(at(1)));
        QVERIFY(WaitingJournal(folder(), path()).left().isEmpty());
    }

    void allThatAreLeftComeTheNewestFirst()
    {
        {
            WaitingJournal one(folder(), path());
            WaitingJournal two(folder(), path());
            WaitingJournal three(folder(), path());
            QVERIFY(one.write(at(7)) && two.write(at(9)) && three.write(at(8)));
        }
        WaitingJournal next(folder(), path());
        QCOMPARE(revisions(next.left()), (QList<qint64>{9, 8, 7}));
        QVERIFY(WaitingJournal(folder(), path()).left().isEmpty()); // they are being taken up
        next.removeLeft();
        QVERIFY(files().isEmpty());
    }

    void whatIsNotRemovedIsThereOnceMore()
    {
        QVERIFY(WaitingJournal(folder(), path()).write(at(3)));
        QCOMPARE(WaitingJournal(folder(), path()).left().size(), 1);
        QCOMPARE(WaitingJournal(folder(), path()).left().size(), 1);
    }

    void eachDataBaseHasItsOwn()
    {
        QVERIFY(WaitingJournal(folder(), path()).write(at(3)));
        QVERIFY(WaitingJournal(folder(), path() + QStringLiteral("2")).left().isEmpty());
        const QString server = QStringLiteral("postgresql://ada:%1@server/tasks");
        QVERIFY(WaitingJournal(folder(), server.arg(QStringLiteral("old"))).write(at(4)));
        QCOMPARE(revisions(WaitingJournal(folder(), server.arg(QStringLiteral("new"))).left()),
                 QList<qint64>{4});
    }

    void whatIsClearedIsGone()
    {
        WaitingJournal journal(folder(), path());
        journal.clear(); // of nothing
        QVERIFY(journal.write(at(1)));
        QCOMPARE(files().size(), 1);
        journal.clear();
        QVERIFY(files().isEmpty());
        QVERIFY(journal.write(at(1)));
        QCOMPARE(files().size(), 1);
    }

    void whatIsNoJournalIsLeftAlone()
    {
        QVERIFY(WaitingJournal(folder(), path()).write(at(1)));
        QFile file(QDir(folder()).filePath(files().constFirst()));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("{\"format\": 1, \"known\"");
        file.close();
        WaitingJournal next(folder(), path());
        QVERIFY(next.left().isEmpty());
        next.removeLeft();
        QCOMPARE(files().size(), 1);
    }

    void aFolderThatCannotBeMadeIsTold()
    {
        const QString blocked = m_folder->filePath(QStringLiteral("file"));
        QFile file(blocked);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(!WaitingJournal(blocked + QStringLiteral("/below"), path()).write(at(1)));
    }

private:
    QString folder() const { return m_folder->filePath(QStringLiteral("waiting")); }
    QString path() const { return m_folder->filePath(QStringLiteral("tasks.sqlite")); }
    QStringList files() const
    {
        return QDir(folder()).entryList({QStringLiteral("*.json")}, QDir::Files);
    }
    static WaitingJournal::Entry at(qint64 revision)
    {
        return {revision, small(), small(), {}, {}};
    }
    static QList<qint64> revisions(const QList<WaitingJournal::Entry> &entries)
    {
        QList<qint64> all;
        for (const WaitingJournal::Entry &entry : entries)
            all.append(entry.revision);
        return all;
    }
    static void verifySame(const TaskMap &tasks, const TaskMap &expected)
    {
        QCOMPARE(tasks.size(), expected.size());
        for (const Task &task : expected) {
            const Task there = tasks.value(task.uuid);
            QVERIFY(there.isPlacedAs(task));
            QCOMPARE(there.fields, TaskFields::normalized(task.fields));
            QCOMPARE(there.author, task.author);
        }
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

FISHBONE_GUILESS_TEST(TestWaitingJournal)
#include "tst_waitingjournal.moc"
