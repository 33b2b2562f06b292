// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/taskstatusinfo.h>
#include <tests/program/testprogram.h>

#include <QFile>
#include <QtTest>

#include <limits>
#include <type_traits>

// Whatever number a document holds has to fit, known or not.
static_assert(std::is_same_v<std::underlying_type_t<TaskStatus>, int>);
static_assert(!std::is_convertible_v<QString, TaskStatusInfo>);

namespace {

QString prefix()
{
    return QStringLiteral(":/fishboneDiagram/status/");
}

} // namespace

class TestTaskStatusInfo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldNumberTheStatusesAsDocumentsDo_data();
    void shouldNumberTheStatusesAsDocumentsDo();
    void shouldNameTheStatus_data();
    void shouldNameTheStatus();
    void shouldIgnoreTheProgressUnlessRunning_data();
    void shouldIgnoreTheProgressUnlessRunning();
    void shouldRoundTheProgressOfARunningTaskUp_data();
    void shouldRoundTheProgressOfARunningTaskUp();
    void shouldKeepWhatItIsMadeOf_data();
    void shouldKeepWhatItIsMadeOf();
    void shouldDeriveNothingFromAnIdentifier_data();
    void shouldDeriveNothingFromAnIdentifier();
    void shouldTellKnownStatuses_data();
    void shouldTellKnownStatuses();
    void shouldChangeToAKnownStatusOnly_data();
    void shouldChangeToAKnownStatusOnly();
    void shouldChangeToAProgressInRangeOnly_data();
    void shouldChangeToAProgressInRangeOnly();
    void shouldReplaceAGivenIdentifierOnUpdate();
    void shouldLeaveAGivenIdentifierWhenAChangeIsRefused();
    void shouldNameTheIcon_data();
    void shouldNameTheIcon();
    void shouldHaveAnIconForEveryIdentifierButUnknown();
};

void TestTaskStatusInfo::shouldNumberTheStatusesAsDocumentsDo_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<int>("number");

    QTest::newRow("unknown") << int(tsUnknown) << 0;
    QTest::newRow("cancel") << int(tsCancel) << 1;
    QTest::newRow("finish") << int(tsFinish) << 2;
    QTest::newRow("finish delay") << int(tsFinishDelay) << 3;
    QTest::newRow("postpone") << int(tsPostpone) << 4;
    QTest::newRow("running") << int(tsRunning) << 5;
    QTest::newRow("waitting") << int(tsWaitting) << 6;
    QTest::newRow("waitting agree") << int(tsWaittingAgree) << 7;
}

void TestTaskStatusInfo::shouldNumberTheStatusesAsDocumentsDo()
{
    QFETCH(const int, status);
    QFETCH(const int, number);

    QCOMPARE(status, number);
}

void TestTaskStatusInfo::shouldNameTheStatus_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<int>("progress");
    QTest::addColumn<QString>("identifier");

    QTest::newRow("unknown") << 0 << 50 << QStringLiteral("unknown");
    QTest::newRow("cancel") << 1 << 50 << QStringLiteral("cancel");
    QTest::newRow("finish") << 2 << 37 << QStringLiteral("finish");
    QTest::newRow("finish delay") << 3 << 0 << QStringLiteral("finish_delay");
    QTest::newRow("postpone") << 4 << 50 << QStringLiteral("postpone");
    QTest::newRow("running") << 5 << 50 << QStringLiteral("running_progress_50");
    QTest::newRow("waitting") << 6 << 50 << QStringLiteral("waitting");
    QTest::newRow("waitting agree") << 7 << 50 << QStringLiteral("waitting_agree");
    QTest::newRow("one too many") << 8 << 50 << QStringLiteral("unknown");
    QTest::newRow("one too few") << -1 << 50 << QStringLiteral("unknown");
    QTest::newRow("greatest") << std::numeric_limits<int>::max() << 50 << QStringLiteral("unknown");
    QTest::newRow("least") << std::numeric_limits<int>::min() << 50 << QStringLiteral("unknown");
}

void TestTaskStatusInfo::shouldNameTheStatus()
{
    QFETCH(const int, status);
    QFETCH(const int, progress);
    QFETCH(const QString, identifier);

    QCOMPARE(TaskStatusInfo::identifierByStatusAndProgress(TaskStatus(status), progress),
             identifier);
}

void TestTaskStatusInfo::shouldIgnoreTheProgressUnlessRunning_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("identifier");

    QTest::newRow("unknown") << 0 << QStringLiteral("unknown");
    QTest::newRow("cancel") << 1 << QStringLiteral("cancel");
    QTest::newRow("finish") << 2 << QStringLiteral("finish");
    QTest::newRow("finish delay") << 3 << QStringLiteral("finish_delay");
    QTest::newRow("postpone") << 4 << QStringLiteral("postpone");
    QTest::newRow("waitting") << 6 << QStringLiteral("waitting");
    QTest::newRow("waitting agree") << 7 << QStringLiteral("waitting_agree");
    QTest::newRow("out of range") << 8 << QStringLiteral("unknown");
}

void TestTaskStatusInfo::shouldIgnoreTheProgressUnlessRunning()
{
    QFETCH(const int, status);
    QFETCH(const QString, identifier);

    for (const int progress : {-3, 0, 1, 37, 90, 91, 100, 101})
        QCOMPARE(TaskStatusInfo::identifierByStatusAndProgress(TaskStatus(status), progress),
                 identifier);
}

void TestTaskStatusInfo::shouldRoundTheProgressOfARunningTaskUp_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("last");
    QTest::addColumn<QString>("identifier");

    using Limits = std::numeric_limits<int>;
    QTest::newRow("least") << Limits::min() << Limits::min()
                           << QStringLiteral("running_progress_0");
    QTest::newRow("0") << -3 << 0 << QStringLiteral("running_progress_0");
    QTest::newRow("10") << 1 << 10 << QStringLiteral("running_progress_10");
    QTest::newRow("20") << 11 << 20 << QStringLiteral("running_progress_20");
    QTest::newRow("30") << 21 << 30 << QStringLiteral("running_progress_30");
    QTest::newRow("40") << 31 << 40 << QStringLiteral("running_progress_40");
    QTest::newRow("50") << 41 << 50 << QStringLiteral("running_progress_50");
    QTest::newRow("60") << 51 << 60 << QStringLiteral("running_progress_60");
    QTest::newRow("70") << 61 << 70 << QStringLiteral("running_progress_70");
    QTest::newRow("80") << 71 << 80 << QStringLiteral("running_progress_80");
    QTest::newRow("90") << 81 << 90 << QStringLiteral("running_progress_90");
    QTest::newRow("above 90") << 91 << 110 << QStringLiteral("waitting_agree");
    QTest::newRow("greatest") << Limits::max() << Limits::max() << QStringLiteral("waitting_agree");
}

void TestTaskStatusInfo::shouldRoundTheProgressOfARunningTaskUp()
{
    QFETCH(const int, first);
    QFETCH(const int, last);
    QFETCH(const QString, identifier);

    for (qint64 progress = first; progress <= last; ++progress)
        QCOMPARE(TaskStatusInfo::identifierByStatusAndProgress(tsRunning, int(progress)),
                 identifier);
}

void TestTaskStatusInfo::shouldKeepWhatItIsMadeOf_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<int>("progress");
    QTest::addColumn<QString>("identifier");

    QTest::newRow("running") << 5 << 42 << QStringLiteral("running_progress_50");
    QTest::newRow("finished") << 2 << 37 << QStringLiteral("finish");
    QTest::newRow("status too great") << 8 << 50 << QStringLiteral("unknown");
    QTest::newRow("status below zero") << -1 << 50 << QStringLiteral("unknown");
    QTest::newRow("progress too great") << 5 << 101 << QStringLiteral("waitting_agree");
    QTest::newRow("progress below zero") << 5 << -3 << QStringLiteral("running_progress_0");
}

void TestTaskStatusInfo::shouldKeepWhatItIsMadeOf()
{
    QFETCH(const int, status);
    QFETCH(const int, progress);
    QFETCH(const QString, identifier);

    const TaskStatusInfo info(TaskStatus(status), progress);

    QCOMPARE(int(info.status()), status);
    QCOMPARE(info.progress(), progress);
    QCOMPARE(info.identifier(), identifier);
}

void TestTaskStatusInfo::shouldDeriveNothingFromAnIdentifier_data()
{
    QTest::addColumn<QString>("identifier");

    QTest::newRow("known") << QStringLiteral("finish_delay");
    QTest::newRow("with progress") << QStringLiteral("running_progress_50");
    QTest::newRow("made up") << QStringLiteral("on_holiday");
    QTest::newRow("empty") << QString();
}

void TestTaskStatusInfo::shouldDeriveNothingFromAnIdentifier()
{
    QFETCH(const QString, identifier);

    const TaskStatusInfo info(identifier);

    QCOMPARE(info.identifier(), identifier);
    QCOMPARE(info.status(), tsUnknown);
    QCOMPARE(info.progress(), 0);
}

void TestTaskStatusInfo::shouldTellKnownStatuses_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<bool>("known");

    for (int status = 0; status <= 7; ++status)
        QTest::addRow("%d", status) << status << true;
    QTest::newRow("one too many") << 8 << false;
    QTest::newRow("one too few") << -1 << false;
    QTest::newRow("greatest") << std::numeric_limits<int>::max() << false;
    QTest::newRow("least") << std::numeric_limits<int>::min() << false;
}

void TestTaskStatusInfo::shouldTellKnownStatuses()
{
    QFETCH(const int, status);
    QFETCH(const bool, known);

    QCOMPARE(TaskStatusInfo(TaskStatus(status), 0).isStatusVaild(), known);
}

void TestTaskStatusInfo::shouldChangeToAKnownStatusOnly_data()
{
    QTest::addColumn<int>("wanted");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("identifier");

    const QString before = QStringLiteral("running_progress_40");
    QTest::newRow("lowest") << 0 << 0 << QStringLiteral("unknown");
    QTest::newRow("finish") << 2 << 2 << QStringLiteral("finish");
    QTest::newRow("highest") << 7 << 7 << QStringLiteral("waitting_agree");
    QTest::newRow("one too many") << 8 << 5 << before;
    QTest::newRow("two too many") << 9 << 5 << before;
    QTest::newRow("one too few") << -1 << 5 << before;
    QTest::newRow("least") << std::numeric_limits<int>::min() << 5 << before;
}

void TestTaskStatusInfo::shouldChangeToAKnownStatusOnly()
{
    QFETCH(const int, wanted);
    QFETCH(const int, status);
    QFETCH(const QString, identifier);
    TaskStatusInfo info(tsRunning, 33);

    info.setStatus(TaskStatus(wanted));

    QCOMPARE(int(info.status()), status);
    QCOMPARE(info.progress(), 33);
    QCOMPARE(info.identifier(), identifier);
}

void TestTaskStatusInfo::shouldChangeToAProgressInRangeOnly_data()
{
    QTest::addColumn<int>("wanted");
    QTest::addColumn<int>("progress");
    QTest::addColumn<QString>("identifier");

    const QString before = QStringLiteral("running_progress_40");
    QTest::newRow("lowest") << 0 << 0 << QStringLiteral("running_progress_0");
    QTest::newRow("within") << 55 << 55 << QStringLiteral("running_progress_60");
    QTest::newRow("highest") << 100 << 100 << QStringLiteral("waitting_agree");
    QTest::newRow("one too many") << 101 << 33 << before;
    QTest::newRow("one too few") << -1 << 33 << before;
    QTest::newRow("least") << std::numeric_limits<int>::min() << 33 << before;
}

void TestTaskStatusInfo::shouldChangeToAProgressInRangeOnly()
{
    QFETCH(const int, wanted);
    QFETCH(const int, progress);
    QFETCH(const QString, identifier);
    TaskStatusInfo info(tsRunning, 33);

    info.setProgress(wanted);

    QCOMPARE(info.status(), tsRunning);
    QCOMPARE(info.progress(), progress);
    QCOMPARE(info.identifier(), identifier);
}

void TestTaskStatusInfo::shouldReplaceAGivenIdentifierOnUpdate()
{
    TaskStatusInfo updated(QStringLiteral("finish"));
    updated.updateIdentifier();
    QCOMPARE(updated.identifier(), QStringLiteral("unknown"));

    TaskStatusInfo restarted(QStringLiteral("finish"));
    restarted.setStatus(tsRunning);
    QCOMPARE(restarted.identifier(), QStringLiteral("running_progress_0"));

    TaskStatusInfo advanced(QStringLiteral("finish"));
    advanced.setProgress(20);
    QCOMPARE(advanced.identifier(), QStringLiteral("unknown"));
    QCOMPARE(advanced.progress(), 20);
}

void TestTaskStatusInfo::shouldLeaveAGivenIdentifierWhenAChangeIsRefused()
{
    TaskStatusInfo info(QStringLiteral("finish"));

    info.setStatus(TaskStatus(9));
    info.setProgress(101);
    info.setProgress(-1);

    QCOMPARE(info.identifier(), QStringLiteral("finish"));
    QCOMPARE(info.status(), tsUnknown);
    QCOMPARE(info.progress(), 0);
}

void TestTaskStatusInfo::shouldNameTheIcon_data()
{
    QTest::addColumn<QString>("identifier");
    QTest::addColumn<QString>("path");

    QTest::newRow("known") << QStringLiteral("finish_delay")
                           << QStringLiteral(":/fishboneDiagram/status/finish_delay.svg");
    QTest::newRow("made up") << QStringLiteral("on_holiday")
                             << QStringLiteral(":/fishboneDiagram/status/on_holiday.svg");
    QTest::newRow("empty") << QString() << QStringLiteral(":/fishboneDiagram/status/.svg");
    QTest::newRow("unknown") << QStringLiteral("unknown") << QString();
    QTest::newRow("unknown in capitals")
        << QStringLiteral("Unknown") << QStringLiteral(":/fishboneDiagram/status/Unknown.svg");
}

void TestTaskStatusInfo::shouldNameTheIcon()
{
    QFETCH(const QString, identifier);
    QFETCH(const QString, path);

    QCOMPARE(TaskStatusInfo(identifier).iconPath(), path);
}

void TestTaskStatusInfo::shouldHaveAnIconForEveryIdentifierButUnknown()
{
    QVERIFY(TaskStatusInfo(tsUnknown, 50).iconPath().isEmpty());
    QVERIFY(TaskStatusInfo(TaskStatus(8), 50).iconPath().isEmpty());
    QVERIFY(TaskStatusInfo(TaskStatus(-1), 50).iconPath().isEmpty());
    QCOMPARE(TaskStatusInfo(tsFinishDelay, 0).iconPath(),
             prefix() + QStringLiteral("finish_delay.svg"));

    for (int status = tsCancel; status <= tsWaittingAgree; ++status) {
        for (int progress = 0; progress <= 100; ++progress) {
            const QString path = TaskStatusInfo(TaskStatus(status), progress).iconPath();
            QVERIFY2(QFile::exists(path), qPrintable(path));
        }
    }
}

FISHBONE_GUILESS_TEST(TestTaskStatusInfo)

#include "tst_taskstatusinfo.moc"
