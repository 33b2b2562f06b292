// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/program/testprogram.h>

#include <app/files/safename.h>

#include <QtTest>

/** Titles become names of files that every system takes. */
class TestSafeName : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldMakeNamesThatEverySystemTakes_data();
    void shouldMakeNamesThatEverySystemTakes();
    void shouldBoundTheLength();
};

void TestSafeName::shouldMakeNamesThatEverySystemTakes_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("name");
    const auto row = [](const char *title, const char *name) {
        QTest::newRow(title) << QString::fromUtf8(title) << QString::fromUtf8(name);
    };
    row("Pump worn", "Pump worn");
    row("Größe 大", "Größe 大");
    row("a/b\\c:d*e?f\"g<h>i|j", "a b c d e f g h i j");
    row("two\nlines\tand  blanks", "two lines and blanks");
    row("CON", "_CON");
    row("nul.txt", "_nul.txt");
    row("Com1", "_Com1");
    row("Console", "Console");
    row("ends with a dot.", "ends with a dot");
    row("and dots. . .", "and dots");
    row("..hidden", "hidden");
    row(". . .", "Untitled");
    row("C:\\Users", "C Users");
    row("", "Untitled");
}

void TestSafeName::shouldMakeNamesThatEverySystemTakes()
{
    QFETCH(QString, title);
    QFETCH(QString, name);
    QCOMPARE(safeFileName(title), name);
}

void TestSafeName::shouldBoundTheLength()
{
    const QString fish = QString::fromUtf8("\xf0\x9f\x90\x9f"); // two UTF-16 units
    const QString name = safeFileName(QLatin1Char('a') + fish.repeated(100));
    QVERIFY(name.size() <= 60);
    QVERIFY(name.endsWith(fish)); // and not with half of one
}

FISHBONE_GUILESS_TEST(TestSafeName)
#include "tst_safename.moc"
