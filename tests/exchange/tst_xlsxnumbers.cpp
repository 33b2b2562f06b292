// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/program/testprogram.h>

#include <fishbone/exchange/xlsxnumbers.h>

#include <QtTest>

/** Numbers in cells as they are shown. */
class TestXlsxNumbers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowANumberByItsStyle_data();
    void shouldShowANumberByItsStyle();
    void shouldKnowStylesByTheirForms_data();
    void shouldKnowStylesByTheirForms();
    void shouldCountDaysFrom1904();
    void shouldLeaveANumberOfAnUnknownStyleAlone();
};

void TestXlsxNumbers::shouldShowANumberByItsStyle_data()
{
    QTest::addColumn<int>("form");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("plain") << 0 << "45323"
                           << "45323";
    QTest::newRow("day") << 14 << "45323"
                         << "2024-02-01";
    QTest::newRow("day and time") << 22 << "45324.5"
                                  << "2024-02-02T12:00:00.000";
    QTest::newRow("the first day") << 14 << "1"
                                   << "1899-12-31";
    QTest::newRow("percentage") << 9 << "0.4"
                                << "40%";
    QTest::newRow("percentage with places") << 10 << "0.125"
                                            << "12.5%";
    QTest::newRow("no number") << 14 << "soon"
                               << "soon";
    QTest::newRow("no date") << 14 << "-3"
                             << "-3";
    QTest::newRow("farther than any date") << 14 << "1e9"
                                           << "1e9";
}

void TestXlsxNumbers::shouldShowANumberByItsStyle()
{
    QFETCH(int, form);
    QFETCH(QString, value);
    QFETCH(QString, text);
    XlsxNumbers numbers;
    numbers.addStyle(form);
    QCOMPARE(numbers.text(value, 0), text);
}

void TestXlsxNumbers::shouldKnowStylesByTheirForms_data()
{
    QTest::addColumn<QString>("form");
    QTest::addColumn<QString>("text");
    QTest::newRow("date") << "dd\\.mm\\.yyyy"
                          << "1900-01-01";
    QTest::newRow("percentage") << "0.0%"
                                << "200%";
    QTest::newRow("words in quotes") << "0 \"days\""
                                     << "2";
    QTest::newRow("colour in brackets") << "[Red]0"
                                        << "2";
    QTest::newRow("general") << "General"
                             << "2";
}

void TestXlsxNumbers::shouldKnowStylesByTheirForms()
{
    QFETCH(QString, form);
    QFETCH(QString, text);
    XlsxNumbers numbers;
    numbers.addForm(164, form);
    numbers.addStyle(0);
    numbers.addStyle(164);
    QCOMPARE(numbers.text(QStringLiteral("2"), 0), QStringLiteral("2"));
    QCOMPARE(numbers.text(QStringLiteral("2"), 1), text);
}

void TestXlsxNumbers::shouldCountDaysFrom1904()
{
    XlsxNumbers numbers;
    numbers.setSince1904(true);
    numbers.addStyle(14);
    QCOMPARE(numbers.text(QStringLiteral("0"), 0), QStringLiteral("1904-01-01"));
    QCOMPARE(numbers.text(QStringLiteral("43861"), 0), QStringLiteral("2024-02-01"));
}

void TestXlsxNumbers::shouldLeaveANumberOfAnUnknownStyleAlone()
{
    QCOMPARE(XlsxNumbers().text(QStringLiteral("45323"), 3), QStringLiteral("45323"));
}

FISHBONE_GUILESS_TEST(TestXlsxNumbers)

#include "tst_xlsxnumbers.moc"
