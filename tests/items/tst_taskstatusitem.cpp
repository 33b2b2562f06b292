// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/taskstatusitem.h>

#include <QMenu>
#include <QSignalMapper>
#include <QtTest>

#include <fishbone/items/spearitem.h>
#include <tests/program/testprogram.h>
#include <tests/support/drawing.h>
#include <tests/support/pictures.h>

using namespace TestSupport;

class TestTaskStatusItem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldBeAChildOfItsSpear();
    void shouldTakeTheLeftAndTheRightButton();
    void shouldShowTheIconOfStatusAndProgress_data();
    void shouldShowTheIconOfStatusAndProgress();
    void shouldShowAnotherStatus();
    void shouldShowAnotherProgress();
    void shouldIgnoreAStatusThatIsNone_data();
    void shouldIgnoreAStatusThatIsNone();
    void shouldIgnoreAProgressOutsideTheRange_data();
    void shouldIgnoreAProgressOutsideTheRange();
    void shouldShowStoredNumbersAsTheyAre_data();
    void shouldShowStoredNumbersAsTheyAre();
    void shouldShowTheSamePictureAfterAnUpdate();
    void shouldLetEveryPressPass_data();
    void shouldLetEveryPressPass();
    void shouldAddNothingToAMenu();
    void shouldPaintDifferentPicturesForDifferentProgress();

private:
    SpearItem m_spear{QStringLiteral("Cause"), 0, 20.0};
};

namespace {
QString icon(const char *identifier)
{
    return QLatin1String(":/fishboneDiagram/status/") + QLatin1String(identifier) +
           QLatin1String(".svg");
}
} // namespace

void TestTaskStatusItem::shouldBeAChildOfItsSpear()
{
    const TaskStatusItem item(&m_spear, tsFinish, 0);

    QCOMPARE(item.parentItem(), &m_spear);
}

void TestTaskStatusItem::shouldTakeTheLeftAndTheRightButton()
{
    const TaskStatusItem item(&m_spear, tsFinish, 0);

    QCOMPARE(item.acceptedMouseButtons(), Qt::LeftButton | Qt::RightButton);
}

void TestTaskStatusItem::shouldShowTheIconOfStatusAndProgress_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<int>("progress");
    QTest::addColumn<QString>("file");

    QTest::newRow("unknown") << int(tsUnknown) << 0 << QString();
    QTest::newRow("cancelled") << int(tsCancel) << 0 << icon("cancel");
    QTest::newRow("finished") << int(tsFinish) << 37 << icon("finish");
    QTest::newRow("finished late") << int(tsFinishDelay) << 0 << icon("finish_delay");
    QTest::newRow("postponed") << int(tsPostpone) << 0 << icon("postpone");
    QTest::newRow("begun") << int(tsRunning) << 0 << icon("running_progress_0");
    QTest::newRow("half") << int(tsRunning) << 41 << icon("running_progress_50");
    QTest::newRow("nearly done") << int(tsRunning) << 95 << icon("waitting_agree");
    QTest::newRow("waiting") << int(tsWaitting) << 0 << icon("waitting");
    QTest::newRow("for approval") << int(tsWaittingAgree) << 0 << icon("waitting_agree");
    QTest::newRow("no status") << 8 << 50 << QString();
    QTest::newRow("none set") << -1 << 50 << QString();
}

void TestTaskStatusItem::shouldShowTheIconOfStatusAndProgress()
{
    QFETCH(int, status);
    QFETCH(int, progress);
    QFETCH(QString, file);

    const TaskStatusItem item(&m_spear, TaskStatus(status), progress);

    QCOMPARE(int(item.status()), status);
    QCOMPARE(item.progress(), progress);
    QCOMPARE(item.svgFile(), file);
    QCOMPARE(item.boundingRect().isEmpty(), file.isEmpty());
}

void TestTaskStatusItem::shouldShowAnotherStatus()
{
    TaskStatusItem item(&m_spear, tsUnknown, 55);

    item.setStatus(tsRunning);
    QCOMPARE(item.status(), tsRunning);
    QCOMPARE(item.svgFile(), icon("running_progress_60"));

    item.setStatus(tsCancel);
    QCOMPARE(item.svgFile(), icon("cancel"));

    item.setStatus(tsUnknown);
    QCOMPARE(item.svgFile(), QString());
}

void TestTaskStatusItem::shouldShowAnotherProgress()
{
    TaskStatusItem item(&m_spear, tsRunning, 0);

    item.setProgress(1);
    QCOMPARE(item.progress(), 1);
    QCOMPARE(item.svgFile(), icon("running_progress_10"));

    item.setProgress(100);
    QCOMPARE(item.svgFile(), icon("waitting_agree"));
}

void TestTaskStatusItem::shouldIgnoreAStatusThatIsNone_data()
{
    QTest::addColumn<int>("status");

    for (const int status : {8, 9, -1, 1000})
        QTest::addRow("%d", status) << status;
}

void TestTaskStatusItem::shouldIgnoreAStatusThatIsNone()
{
    QFETCH(int, status);
    TaskStatusItem item(&m_spear, tsPostpone, 10);

    item.setStatus(TaskStatus(status));

    QCOMPARE(item.status(), tsPostpone);
    QCOMPARE(item.svgFile(), icon("postpone"));
}

void TestTaskStatusItem::shouldIgnoreAProgressOutsideTheRange_data()
{
    QTest::addColumn<int>("progress");

    for (const int progress : {101, -1, 1000})
        QTest::addRow("%d", progress) << progress;
}

void TestTaskStatusItem::shouldIgnoreAProgressOutsideTheRange()
{
    QFETCH(int, progress);
    TaskStatusItem item(&m_spear, tsRunning, 30);

    item.setProgress(progress);

    QCOMPARE(item.progress(), 30);
    QCOMPARE(item.svgFile(), icon("running_progress_30"));
}

void TestTaskStatusItem::shouldShowStoredNumbersAsTheyAre_data()
{
    shouldShowTheIconOfStatusAndProgress_data();
    QTest::newRow("progress below the range") << int(tsRunning) << -3 << icon("running_progress_0");
    QTest::newRow("progress above the range") << int(tsRunning) << 500 << icon("waitting_agree");
}

void TestTaskStatusItem::shouldShowStoredNumbersAsTheyAre()
{
    QFETCH(int, status);
    QFETCH(int, progress);
    QFETCH(QString, file);
    TaskStatusItem item(&m_spear, tsPostpone, 10);

    item.setTask(status, progress);

    QCOMPARE(int(item.status()), status);
    QCOMPARE(item.progress(), progress);
    QCOMPARE(item.svgFile(), file);
}

void TestTaskStatusItem::shouldShowTheSamePictureAfterAnUpdate()
{
    TaskStatusItem item(&m_spear, tsPostpone, 10);
    item.setSvgFile(QString());

    item.updateStatusIcon();

    QCOMPARE(item.svgFile(), icon("postpone"));
}

void TestTaskStatusItem::shouldLetEveryPressPass_data()
{
    QTest::addColumn<int>("button");

    QTest::newRow("left") << int(Qt::LeftButton);
    QTest::newRow("right") << int(Qt::RightButton);
}

void TestTaskStatusItem::shouldLetEveryPressPass()
{
    QFETCH(int, button);
    const Drawing drawing(QStringLiteral("Effect[Man]"));
    SpearItem *const spear = drawing.spear(QStringLiteral("Man"));
    spear->setTaskStatus(tsFinish);

    QVERIFY(!sendPress(*spear->statusItem(), Qt::MouseButton(button)));

    QCOMPARE(spear->statusItem()->status(), tsFinish);
    QVERIFY(!spear->isSelected());
}

void TestTaskStatusItem::shouldAddNothingToAMenu()
{
    TaskStatusItem item(&m_spear, tsFinish, 0);
    QMenu menu;
    QSignalMapper mapper;

    item.createPopMenu(&menu, &mapper);
    item.createPopMenu(nullptr, nullptr);

    QVERIFY(menu.isEmpty());
}

void TestTaskStatusItem::shouldPaintDifferentPicturesForDifferentProgress()
{
    TaskStatusItem item(&m_spear, tsRunning, 10);
    const Canvas canvas{{-2, -2, 16, 16}, 4};

    const QImage tenth = paintedItem(item, canvas);
    item.setProgress(20);
    const QImage fifth = paintedItem(item, canvas);

    QVERIFY(inkedPixels(tenth) > 0);
    QVERIFY(!difference(fifth, tenth).isEmpty());
}

FISHBONE_TEST(TestTaskStatusItem)
#include "tst_taskstatusitem.moc"
