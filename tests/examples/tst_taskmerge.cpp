// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/examples/taskmaps.h>
#include <tests/program/testprogram.h>

#include <taskmerge.h>

#include <random>

using namespace TaskMaps;

namespace {

const QString c = QStringLiteral("c");
const QString fresh = QStringLiteral("n");

void setField(TaskMap &tasks, const QString &uuid, const char *key, const QString &value)
{
    tasks[uuid].fields.insert(QString::fromLatin1(key), value);
}

QString field(const TaskMap &tasks, const QString &uuid, const char *key)
{
    return tasks.value(uuid).fields.value(QString::fromLatin1(key)).toString();
}

/** One random change of a tree, which stays one. */
void changeSomething(TaskMap &tasks, std::mt19937 &random, const QString &name)
{
    QStringList uuids = TaskTree::preOrder(tasks);
    const auto any = [&] { return uuids.at(int(random() % unsigned(uuids.size()))); };
    const QString one = any();
    const QString other = any();
    switch (random() % 4) {
    case 0:
        tasks.insert(name, task(name, one, qint64(random() % 1000)));
        break;
    case 1:
        tasks[one].fields.insert(QStringLiteral("title"), name);
        break;
    case 2:
        if (!TaskTree::isWithin(tasks, other, one) && !tasks.value(one).parent.isEmpty())
            tasks[one].parent = other;
        break;
    default:
        if (TaskTree::children(tasks).value(one).isEmpty() && tasks.size() > 4)
            tasks.remove(one);
    }
}

} // namespace

class TestTaskMerge : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void changesOfDifferentFieldsComeTogether()
    {
        TaskMap mine = small();
        TaskMap theirs = small();
        setField(mine, a, "title", QStringLiteral("mine"));
        setField(theirs, a, "mgrname", QStringLiteral("theirs"));
        const TaskMerge::Result merged = TaskMerge::merge(small(), theirs, mine);
        QVERIFY(merged.conflicts.isEmpty());
        QCOMPARE(field(merged.tasks, a, "title"), QStringLiteral("mine"));
        QCOMPARE(field(merged.tasks, a, "mgrname"), QStringLiteral("theirs"));
    }

    void theSameFieldStaysTheirsAndIsToldAndCanBeMine()
    {
        TaskMap mine = small();
        TaskMap theirs = small();
        setField(mine, a, "title", QStringLiteral("mine"));
        setField(theirs, a, "title", QStringLiteral("theirs"));
        TaskMerge::Result merged = TaskMerge::merge(small(), theirs, mine);
        QCOMPARE(field(merged.tasks, a, "title"), QStringLiteral("theirs"));
        QCOMPARE(merged.conflicts.size(), 1);
        QCOMPARE(int(merged.conflicts.constFirst().kind), int(Conflict::Value));
        QCOMPARE(merged.conflicts.constFirst().key, QStringLiteral("title"));
        TaskMerge::keepMine(merged.tasks, merged.conflicts.constFirst());
        QCOMPARE(field(merged.tasks, a, "title"), QStringLiteral("mine"));
    }

    void theSameChangeByBothIsNoConflict()
    {
        TaskMap both = small();
        setField(both, a, "title", QStringLiteral("both"));
        both[c].parent = b;
        both.insert(fresh, task(fresh, a, 5));
        const TaskMerge::Result merged = TaskMerge::merge(small(), both, both);
        QVERIFY(merged.conflicts.isEmpty());
        QCOMPARE(outline(merged.tasks), outline(both));
    }

    void aFieldThatITakeAwayGoes()
    {
        TaskMap base = small();
        setField(base, a, "mgrname", QStringLiteral("Ada"));
        TaskMap mine = base;
        mine[a].fields.remove(QStringLiteral("mgrname"));
        const TaskMerge::Result merged = TaskMerge::merge(base, base, mine);
        QVERIFY(!merged.tasks.value(a).fields.contains(QStringLiteral("mgrname")));
    }

    void whatBothMoveElsewhereStaysTheirs()
    {
        TaskMap mine = small();
        TaskMap theirs = small();
        mine[c].parent = b;
        theirs[c].parent = h;
        TaskMerge::Result merged = TaskMerge::merge(small(), theirs, mine);
        QCOMPARE(merged.tasks.value(c).parent, h);
        QCOMPARE(merged.conflicts.size(), 1);
        QCOMPARE(int(merged.conflicts.constFirst().kind), int(Conflict::Place));
        TaskMerge::keepMine(merged.tasks, merged.conflicts.constFirst());
        QCOMPARE(merged.tasks.value(c).parent, b);
    }

    void movesThatWouldMakeACircleStayTheirs()
    {
        TaskMap mine = small();
        TaskMap theirs = small();
        mine[a].parent = b;
        theirs[b].parent = c; // which is below a
        TaskMerge::Result merged = TaskMerge::merge(small(), theirs, mine);
        QCOMPARE(outline(merged.tasks), QStringLiteral("h(a(c(b)))"));
        QCOMPARE(merged.conflicts.size(), 1);
        TaskMerge::keepMine(merged.tasks, merged.conflicts.constFirst());
        QCOMPARE(outline(merged.tasks), QStringLiteral("h(a(c(b)))")); // still impossible
    }

    void whatTheyDeletedGoesUnlessIHaveChangedIt()
    {
        TaskMap theirs = small();
        theirs.remove(b);
        QCOMPARE(outline(TaskMerge::merge(small(), theirs, small()).tasks),
                 QStringLiteral("h(a(c))"));
        TaskMap mine = small();
        setField(mine, b, "title", QStringLiteral("mine"));
        TaskMerge::Result merged = TaskMerge::merge(small(), theirs, mine);
        QVERIFY(!merged.tasks.contains(b));
        QCOMPARE(int(merged.conflicts.value(0).kind), int(Conflict::TheyDeleted));
        TaskMerge::keepMine(merged.tasks, merged.conflicts.constFirst());
        QCOMPARE(field(merged.tasks, b, "title"), QStringLiteral("mine"));
        QCOMPARE(merged.tasks.value(b).parent, h);
    }

    void whatIDeletedStaysWhenTheyHaveChangedIt()
    {
        TaskMap mine = small();
        mine.remove(b);
        TaskMap theirs = small();
        setField(theirs, b, "title", QStringLiteral("theirs"));
        TaskMerge::Result merged = TaskMerge::merge(small(), theirs, mine);
        QVERIFY(merged.tasks.contains(b));
        QCOMPARE(int(merged.conflicts.value(0).kind), int(Conflict::IDeleted));
        TaskMerge::keepMine(merged.tasks, merged.conflicts.constFirst());
        QVERIFY(!merged.tasks.contains(b));
    }

    void whatIsNewBelowADeletedOneMovesUp()
    {
        TaskMap deleted = small();
        deleted.remove(a);
        deleted.remove(c);
        TaskMap added = small();
        added.insert(fresh, task(fresh, c, 1));
        QCOMPARE(outline(TaskMerge::merge(small(), deleted, added).tasks),
                 QStringLiteral("h(nb)")); // theirs is gone, mine is new
        QCOMPARE(outline(TaskMerge::merge(small(), added, deleted).tasks),
                 QStringLiteral("h(nb)")); // and the other way round
    }

    void anyTwoHistoriesGiveATreeThatLosesNothingNew()
    {
        for (unsigned seed = 0; seed < 500; ++seed) {
            std::mt19937 random(seed);
            TaskMap base = small();
            for (int i = 0; i < 10; ++i)
                changeSomething(base, random, QStringLiteral("x%1").arg(i));
            TaskMap mine = base;
            TaskMap theirs = base;
            for (int i = 0; i < 10; ++i) {
                changeSomething(mine, random, QStringLiteral("m%1").arg(i));
                changeSomething(theirs, random, QStringLiteral("t%1").arg(i));
            }
            const TaskMap merged = TaskMerge::merge(base, theirs, mine).tasks;
            QCOMPARE(TaskTree::preOrder(merged).size(), int(merged.size()));
            for (const Task &each : std::as_const(mine))
                QVERIFY2(base.contains(each.uuid) || merged.contains(each.uuid),
                         qPrintable(each.uuid));
            for (const Task &each : std::as_const(theirs))
                QVERIFY2(base.contains(each.uuid) || merged.contains(each.uuid),
                         qPrintable(each.uuid));
        }
    }
};

FISHBONE_GUILESS_TEST(TestTaskMerge)
#include "tst_taskmerge.moc"
