// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/** What is typed in the stories, in one language. */
struct GuideWords
{
    static GuideWords english();
    static GuideWords chinese();

    // The incident.
    QString outage;
    QString change;
    QString load;
    QString alarm;
    QString wayBack;
    QString tests;
    QString dropped;
    QString lateAlarm;
    QString slowWayBack;
    QString untested;
    QString evidence;
    QString anna;
    QString ben;
    // The quality circle.
    QString voids;
    QString settings;
    QString storage;
    QString sampling;
    QString steep;
    QString warm;
    QString fewBoards;
};

inline GuideWords GuideWords::english()
{
    GuideWords words;
    words.outage = QStringLiteral("Checkout down for 47 minutes");
    words.change = QStringLiteral("Change");
    words.load = QStringLiteral("Load");
    words.alarm = QStringLiteral("Alarm");
    words.wayBack = QStringLiteral("Way back");
    words.tests = QStringLiteral("Tests");
    words.dropped = QStringLiteral("A migration dropped an index");
    words.lateAlarm = QStringLiteral("Alarm on error rate only");
    words.slowWayBack = QStringLiteral("Roll-back took 30 minutes");
    words.untested = QStringLiteral("Never tried on a full copy");
    words.evidence = QStringLiteral("Query plans of 09:05 and 09:12: the index is gone.");
    words.anna = QStringLiteral("Anna Ortiz");
    words.ben = QStringLiteral("Ben Okoro");
    words.voids = QStringLiteral("Voids in 4 % of the solder joints");
    words.settings = QStringLiteral("Settings");
    words.storage = QStringLiteral("Storage");
    words.sampling = QStringLiteral("Sampling");
    words.steep = QStringLiteral("Reflow profile too steep");
    words.warm = QStringLiteral("Paste kept too warm");
    words.fewBoards = QStringLiteral("Five boards a shift");
    return words;
}

inline GuideWords GuideWords::chinese()
{
    GuideWords words;
    words.outage = QStringLiteral("结账服务中断 47 分钟");
    words.change = QStringLiteral("变更");
    words.load = QStringLiteral("负载");
    words.alarm = QStringLiteral("告警");
    words.wayBack = QStringLiteral("回退方法");
    words.tests = QStringLiteral("测试");
    words.dropped = QStringLiteral("数据迁移误删索引");
    words.lateAlarm = QStringLiteral("只对错误率告警");
    words.slowWayBack = QStringLiteral("回退耗时 30 分钟");
    words.untested = QStringLiteral("未在完整副本上试运行");
    words.evidence = QStringLiteral("对比 09:05 与 09:12 的查询计划：索引已消失。");
    words.anna = QStringLiteral("李娜");
    words.ben = QStringLiteral("王强");
    words.voids = QStringLiteral("4 % 的焊点有空洞");
    words.settings = QStringLiteral("设置");
    words.storage = QStringLiteral("存放");
    words.sampling = QStringLiteral("抽样");
    words.steep = QStringLiteral("回流曲线过陡");
    words.warm = QStringLiteral("焊膏存放温度过高");
    words.fewBoards = QStringLiteral("每班只抽五块板");
    return words;
}
