// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/program/testprogram.h>

#include <fishbone/exchange/taskstatuses.h>
#include <fishbone/items/taskstatusinfo.h>

#include <QtTest>

/** The numbers of statuses, which stand in two folders. */
class TestTaskStatuses : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldBeTheNumbersOfTheStatuses();
    void shouldKnowWhichTasksAreEnded();
};

void TestTaskStatuses::shouldBeTheNumbersOfTheStatuses()
{
    QCOMPARE(TaskStatuses::unknown, int(tsUnknown));
    QCOMPARE(TaskStatuses::cancelled, int(tsCancel));
    QCOMPARE(TaskStatuses::finished, int(tsFinish));
    QCOMPARE(TaskStatuses::finishedLate, int(tsFinishDelay));
    QCOMPARE(TaskStatuses::postponed, int(tsPostpone));
    QCOMPARE(TaskStatuses::running, int(tsRunning));
    QCOMPARE(TaskStatuses::waiting, int(tsWaitting));
    QCOMPARE(TaskStatuses::approval, int(tsWaittingAgree));
}

void TestTaskStatuses::shouldKnowWhichTasksAreEnded()
{
    for (const int status : {tsCancel, tsFinish, tsFinishDelay})
        QVERIFY(TaskStatuses::isEnded(status));
    for (const int status : {-1, int(tsUnknown), int(tsPostpone), int(tsRunning), int(tsWaitting),
                             int(tsWaittingAgree), 8})
        QVERIFY(!TaskStatuses::isEnded(status));
}

FISHBONE_GUILESS_TEST(TestTaskStatuses)

#include "tst_taskstatuses.moc"
