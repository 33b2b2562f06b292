// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QtTest>

#include <fishbone/model/recentsubjects.h>
#include <tests/program/testprogram.h>

/** The subjects that were shown last. */
class TestRecentSubjects : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldRememberEachOnce();
    void shouldForgetTheOldestOne();
};

void TestRecentSubjects::shouldRememberEachOnce()
{
    RecentSubjects recent;
    QVERIFY(recent.add(QStringLiteral("a")));
    QVERIFY(recent.add(QStringLiteral("b")));
    QVERIFY(!recent.add(QStringLiteral("a")));
    QCOMPARE(recent.uuids(), QStringList({QStringLiteral("a"), QStringLiteral("b")}));
}

void TestRecentSubjects::shouldForgetTheOldestOne()
{
    RecentSubjects recent;
    for (const char sign : {'a', 'b', 'c', 'd', 'e'})
        QVERIFY(recent.add(QString(QLatin1Char(sign))));
    QCOMPARE(recent.uuids().join(QString()), QStringLiteral("bcde"));
    QVERIFY(recent.add(QStringLiteral("a")));
}

FISHBONE_GUILESS_TEST(TestRecentSubjects)
#include "tst_recentsubjects.moc"
