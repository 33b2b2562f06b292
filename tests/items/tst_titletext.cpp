// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/titletext.h>
#include <tests/program/testprogram.h>

#include <QtTest>

/** What of a title is shown. */
class TestTitleText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowAsManyCharactersAsAreAllowed_data();
    void shouldShowAsManyCharactersAsAreAllowed();
    void shouldShowAHeadWithoutItsCounts_data();
    void shouldShowAHeadWithoutItsCounts();
};

void TestTitleText::shouldShowAsManyCharactersAsAreAllowed_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("shown");
    const QString plain = QStringLiteral("abcdef");
    const QString pairs = QString::fromUtf8("a\xF0\x9F\x90\x9F"
                                            "b"); // of four units
    QTest::newRow("fewer than there are") << plain << 3 << 3;
    QTest::newRow("as many as there are") << plain << 6 << -1;
    QTest::newRow("more than there are") << plain << 7 << -1;
    QTest::newRow("no limit") << plain << 0 << -1;
    QTest::newRow("a limit below none") << plain << -5 << -1;
    QTest::newRow("within a pair") << pairs << 2 << 1;
    QTest::newRow("behind a pair") << pairs << 3 << 3;
    QTest::newRow("nothing") << QString() << 3 << -1;
}

void TestTitleText::shouldShowAsManyCharactersAsAreAllowed()
{
    QFETCH(QString, title);
    QFETCH(int, count);
    QTEST(TitleText::shownLength(title, count), "shown");
}

void TestTitleText::shouldShowAHeadWithoutItsCounts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown");
    QTest::newRow("counts") << "Late(3 in all)"
                            << "Late";
    QTest::newRow("none") << "Late"
                          << "Late";
    QTest::newRow("words in parentheses") << "Late (again)"
                                          << "Late (again)";
    QTest::newRow("words, then counts") << "Late (again)(3)"
                                        << "Late (again)";
    QTest::newRow("a parenthesis at the end") << "Late("
                                              << "Late(";
    QTest::newRow("a digit that is not ASCII")
        << QString::fromUtf8("Late(\xD9\xA3)") << QString::fromUtf8("Late(\xD9\xA3)");
    QTest::newRow("nothing but counts") << "(3)"
                                        << "";
}

void TestTitleText::shouldShowAHeadWithoutItsCounts()
{
    QFETCH(QString, text);
    QTEST(TitleText::withoutCounts(text), "shown");
}

FISHBONE_GUILESS_TEST(TestTitleText)
#include "tst_titletext.moc"
