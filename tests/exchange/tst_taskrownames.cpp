// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/program/testprogram.h>

#include <fishbone/exchange/taskrownames.h>

#include <QtTest>

/** What the rows of a table are called. */
class TestTaskRowNames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldFindARowByItsNames_data();
    void shouldFindARowByItsNames();
    void shouldCountTheFirstOfAName();
    void shouldNotTakeATitleForItself();
};

void TestTaskRowNames::shouldFindARowByItsNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("reference");
    QTest::addColumn<bool>("isFound");
    QTest::newRow("the same") << "12"
                              << "12" << true;
    QTest::newRow("with a sign") << "12"
                                 << "#12" << true;
    QTest::newRow("called with a sign") << "#12"
                                        << "12" << true;
    QTest::newRow("with its kind and title") << "12"
                                             << "Bug #12: Worn tool" << true;
    QTest::newRow("key with its title") << "OPS-1"
                                        << "[OPS-1] Late trains" << true;
    QTest::newRow("address") << "7"
                             << "https://example.org/issues/7" << true;
    QTest::newRow("title with an address") << "Late"
                                           << "Late (https://example.org/late)" << true;
    QTest::newRow("another one") << "12"
                                 << "13" << false;
    QTest::newRow("part of a name") << "12"
                                    << "120" << false;
    QTest::newRow("nothing") << ""
                             << "" << false;
}

void TestTaskRowNames::shouldFindARowByItsNames()
{
    QFETCH(QString, name);
    QFETCH(QString, reference);
    QFETCH(bool, isFound);
    TaskRowNames names;
    names.add(name, 4);
    QCOMPARE(names.find(reference, 9, QStringLiteral("Title")), isFound ? 4 : -1);
}

void TestTaskRowNames::shouldCountTheFirstOfAName()
{
    TaskRowNames names;
    names.add(QStringLiteral("1"), 0);
    names.add(QStringLiteral("1"), 1);
    QCOMPARE(names.find(QStringLiteral("1"), 2, QString()), 0);
}

void TestTaskRowNames::shouldNotTakeATitleForItself()
{
    TaskRowNames names;
    names.add(QStringLiteral("Late"), 3);
    QCOMPARE(names.find(QStringLiteral("Late"), 3, QStringLiteral("Late")), -1);
    QCOMPARE(names.find(QStringLiteral("Late"), 4, QStringLiteral("Late")), 3);
}

FISHBONE_GUILESS_TEST(TestTaskRowNames)

#include "tst_taskrownames.moc"
