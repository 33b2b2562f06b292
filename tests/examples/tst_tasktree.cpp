// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/examples/taskmaps.h>
#include <tests/program/testprogram.h>

using namespace TaskMaps;

class TestTaskTree : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void preOrderGoesDownBeforeItGoesOn()
    {
        QCOMPARE(TaskTree::preOrder(small()).join(QLatin1Char(' ')), QStringLiteral("h a c b"));
    }

    void equalPositionsCountByUuid()
    {
        TaskMap tasks = small();
        tasks[QStringLiteral("b")].position = 10;
        QCOMPARE(outline(tasks), QStringLiteral("h(a(c)b)"));
    }

    void whatHangsOnNothingIsInNoOrder()
    {
        TaskMap tasks = small();
        tasks[QStringLiteral("a")].parent = QStringLiteral("c"); // a circle
        QCOMPARE(TaskTree::preOrder(tasks).join(QLatin1Char(' ')), QStringLiteral("h b"));
        QVERIFY(!TaskTree::isWithin(tasks, QStringLiteral("a"), QStringLiteral("h"))); // ends
    }

    void aTaskIsWithinItselfAndWhatIsAbove()
    {
        const TaskMap tasks = small();
        QVERIFY(TaskTree::isWithin(tasks, QStringLiteral("c"), QStringLiteral("c")));
        QVERIFY(TaskTree::isWithin(tasks, QStringLiteral("c"), QStringLiteral("h")));
        QVERIFY(!TaskTree::isWithin(tasks, QStringLiteral("c"), QStringLiteral("b")));
        QVERIFY(!TaskTree::isWithin(tasks, QStringLiteral("h"), QStringLiteral("c")));
    }

    void ascendingFindsALongestRun()
    {
        QCOMPARE(TaskTree::ascending({}).size(), 0);
        QCOMPARE(TaskTree::ascending({5, 1, 2, 3, 4}), QVector<int>({1, 2, 3, 4}));
        QCOMPARE(TaskTree::ascending({2, 3, 4, 1}), QVector<int>({0, 1, 2}));
        QCOMPARE(TaskTree::ascending({9, 8, 7}).size(), 1);
    }

    void oneThatMovesGetsAPositionAndTheOthersKeepTheirs_data()
    {
        QTest::addColumn<QStringList>("order");
        QTest::addColumn<QString>("mover");
        const auto list = [](const char *text) {
            return QString::fromLatin1(text).split(QLatin1Char(' '));
        };
        QTest::newRow("to the front") << list("d a b c") << QStringLiteral("d");
        QTest::newRow("to the end") << list("b c d a") << QStringLiteral("a");
        QTest::newRow("into the middle") << list("a d b c") << QStringLiteral("d");
    }

    void oneThatMovesGetsAPositionAndTheOthersKeepTheirs()
    {
        QFETCH(QStringList, order);
        QFETCH(QString, mover);
        TaskMap known;
        for (const QString &uuid :
             {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c"), QStringLiteral("d")})
            known.insert(uuid, task(uuid, QString(), 1000 * (known.size() + 1)));
        TaskMap tasks = known;
        TaskTree::place(tasks, order, known);
        QCOMPARE(TaskTree::children(tasks).value(QString()), order);
        for (const QString &uuid : order) {
            if (uuid != mover)
                QCOMPARE(tasks.value(uuid).position, known.value(uuid).position);
        }
    }

    void whereTheGapIsUsedUpAllAreNumberedAnew()
    {
        const QString first = QStringLiteral("a");
        const QString last = QStringLiteral("b");
        TaskMap known = map({task(first, QString(), 1), task(last, QString(), 2)});
        QStringList order{first, last};
        for (int i = 0; i < 200; ++i) { // always behind the first one
            const QString uuid = QStringLiteral("n%1").arg(i);
            known.insert(uuid, task(uuid, QString(), 0));
            TaskMap tasks = known;
            known.remove(uuid);
            order.insert(1, uuid);
            TaskTree::place(tasks, order, known);
            QCOMPARE(TaskTree::children(tasks).value(QString()), order);
            known = tasks;
        }
    }
};

FISHBONE_GUILESS_TEST(TestTaskTree)
#include "tst_tasktree.moc"
