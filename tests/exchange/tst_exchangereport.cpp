// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/program/testprogram.h>

#include <fishbone/exchange/exchangereport.h>

#include <QElapsedTimer>
#include <QtTest>

using Kind = ExchangeReport::Kind;

/** What became of the things that no field holds. */
class TestExchangeReport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldHaveNothingToSayAtFirst();
    void shouldCountWhatIsEqual();
    void shouldTellKindsApart();
    void shouldListTheLossesFirst();
    void shouldSayWhereAndHowOften_data();
    void shouldSayWhereAndHowOften();
    void shouldKeepEachThingInALine();
    void shouldBeBounded();
};

void TestExchangeReport::shouldHaveNothingToSayAtFirst()
{
    const ExchangeReport report;
    QVERIFY(report.isEmpty());
    QVERIFY(!report.losesContent());
    QCOMPARE(report.lines(), QStringList());
}

void TestExchangeReport::shouldCountWhatIsEqual()
{
    ExchangeReport report;
    report.add(Kind::LeftOut, QStringLiteral("a"), 3);
    report.add(Kind::LeftOut, QStringLiteral("b"), 4);
    report.add(Kind::LeftOut, QStringLiteral("a"), 5);
    QCOMPARE(report.entries().size(), 2);
    QCOMPARE(report.entries().at(0).count, 2);
    QCOMPARE(report.entries().at(0).line, qint64(3));
    QCOMPARE(report.count(Kind::LeftOut), 3);
    QCOMPARE(report.count(Kind::InDetails), 0);
}

void TestExchangeReport::shouldTellKindsApart()
{
    ExchangeReport report;
    report.add(Kind::InDetails, QStringLiteral("a"));
    report.add(Kind::Appearance, QStringLiteral("a"));
    report.add(Kind::ReadAs, QStringLiteral("a"));
    QCOMPARE(report.entries().size(), 3);
    QVERIFY(!report.losesContent());
    report.add(Kind::LeftOut, QStringLiteral("a"));
    QVERIFY(report.losesContent());
}

void TestExchangeReport::shouldListTheLossesFirst()
{
    ExchangeReport report;
    report.add(Kind::Appearance, QStringLiteral("a"));
    report.add(Kind::ReadAs, QStringLiteral("b"));
    report.add(Kind::InDetails, QStringLiteral("c"));
    report.add(Kind::LeftOut, QStringLiteral("d"));
    QCOMPARE(report.lines(),
             QStringList({QStringLiteral("left out: d"), QStringLiteral("put into the details: c"),
                          QStringLiteral("taken: b"), QStringLiteral("appearance left out: a")}));
}

void TestExchangeReport::shouldSayWhereAndHowOften_data()
{
    QTest::addColumn<int>("times");
    QTest::addColumn<int>("line");
    QTest::addColumn<QString>("text");
    QTest::newRow("once") << 1 << 0 << QStringLiteral("left out: a");
    QTest::newRow("once in a line") << 1 << 7 << QStringLiteral("left out: a (line 7)");
    QTest::newRow("twice") << 2 << 0 << QStringLiteral("left out: a (2 times)");
    QTest::newRow("twice in lines")
        << 2 << 7 << QStringLiteral("left out: a (2 times, first in line 7)");
}

void TestExchangeReport::shouldSayWhereAndHowOften()
{
    QFETCH(int, times);
    QFETCH(int, line);
    QFETCH(QString, text);
    ExchangeReport report;
    for (int i = 0; i < times; ++i)
        report.add(Kind::LeftOut, QStringLiteral("a"), line == 0 ? 0 : line + i);
    QCOMPARE(report.lines(), QStringList(text));
}

void TestExchangeReport::shouldKeepEachThingInALine()
{
    ExchangeReport report;
    report.add(Kind::LeftOut, QStringLiteral("a\nb") + QString(1000, QLatin1Char('c')));
    QCOMPARE(report.lines().size(), 1);
    QVERIFY(report.lines().constFirst().startsWith(QLatin1String("left out: a bccc")));
    QVERIFY(report.lines().constFirst().size() < 250);
}

void TestExchangeReport::shouldBeBounded()
{
    ExchangeReport report;
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < 500000; ++i)
        report.add(Kind::LeftOut, QString::number(i));
    QCOMPARE(report.entries().size(), ExchangeReport::maximalEntries + 1);
    QCOMPARE(report.count(Kind::LeftOut), 500000);
    QCOMPARE(report.lines().constLast(), QStringLiteral("left out: other things (499000 times)"));
    QVERIFY(timer.elapsed() < 10000);
}

FISHBONE_APPLESS_TEST(TestExchangeReport)

#include "tst_exchangereport.moc"
