// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/program/testprogram.h>

#include <fishbone/base/filenames.h>

#include <QtTest>

using FileNames::System;

/** The rules of each system, tried on this one. */
class TestFileNames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldForbidWhatASystemHasAMeaningFor();
    void shouldKnowDevices_data();
    void shouldKnowDevices();
    void shouldTellFilesApart_data();
    void shouldTellFilesApart();
    void shouldKnowPathsOfWindows_data();
    void shouldKnowPathsOfWindows();
};

void TestFileNames::shouldForbidWhatASystemHasAMeaningFor()
{
    for (const char c : {'/', '\\', '\n', '\t', '\x7f'}) {
        for (const System system : {System::Unix, System::Mac, System::Windows})
            QVERIFY(FileNames::isForbidden(QLatin1Char(c), system));
    }
    for (const char c : {'<', '>', ':', '"', '|', '?', '*'}) {
        QVERIFY(FileNames::isForbidden(QLatin1Char(c), System::Windows));
        QVERIFY(!FileNames::isForbidden(QLatin1Char(c), System::Unix));
    }
    for (const char16_t c : {u'a', u' ', u'.', u'\'', u'é', u'鱼'})
        QVERIFY(!FileNames::isForbidden(QChar(c), System::Windows));
}

void TestFileNames::shouldKnowDevices_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isDevice");
    for (const char *name : {"CON", "prn", "Aux", "NUL", "COM1", "lpt9", "COM0", "nul.txt",
                             "con.tar.gz", "NUL .json", "CONIN$", "conout$", "com\xc2\xb9"})
        QTest::newRow(name) << QString::fromUtf8(name) << true;
    for (const char *name : {"", "Console", "CON1", "COM", "COM10", "COMA", "a.CON", "Null", "LPT",
                             "_CON", "Auxiliary"})
        QTest::newRow(name) << QString::fromUtf8(name) << false;
}

void TestFileNames::shouldKnowDevices()
{
    QFETCH(QString, name);
    QFETCH(bool, isDevice);
    QCOMPARE(FileNames::isDevice(name), isDevice);
}

void TestFileNames::shouldTellFilesApart_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::addColumn<QString>("same"); // where they are one file
    const auto row = [](const char *name, const char *first, const char *second, const char *same) {
        QTest::newRow(name) << QString::fromUtf8(first) << QString::fromUtf8(second)
                            << QString::fromLatin1(same);
    };
    row("equal", "/a/b.json", "/a/b.json", "Unix Mac Windows");
    row("case", "/a/B.json", "/a/b.json", "Mac Windows");
    row("case of a letter with an accent", "/a/\xc3\x89.json", "/a/\xc3\xa9.json", "Mac Windows");
    row("composed and decomposed", "/a/\xc3\xa9.json", "/a/e\xcc\x81.json", "Mac");
    row("drive", "c:/a/b.json", "C:/a/b.json", "Mac Windows");
    row("separators", "C:\\a\\b.json", "c:/a/b.json", "Windows");
    row("share", "\\\\server\\share\\a.json", "//SERVER/share/a.json", "Windows");
    row("others", "/a/b.json", "/a/c.json", "");
}

void TestFileNames::shouldTellFilesApart()
{
    QFETCH(QString, first);
    QFETCH(QString, second);
    QFETCH(QString, same);
    QCOMPARE(FileNames::areSame(first, second, System::Unix), same.contains(QLatin1String("Unix")));
    QCOMPARE(FileNames::areSame(first, second, System::Mac), same.contains(QLatin1String("Mac")));
    QCOMPARE(FileNames::areSame(first, second, System::Windows),
             same.contains(QLatin1String("Windows")));
}

void TestFileNames::shouldKnowPathsOfWindows_data()
{
    QTest::addColumn<QString>("link");
    QTest::addColumn<QString>("url");
    const auto row = [](const char *link, const char *url) {
        QTest::newRow(link) << QString::fromLatin1(link) << QString::fromLatin1(url);
    };
    row("C:\\docs\\a b.xlsx", "file:///C:/docs/a%20b.xlsx");
    row("d:/docs/a.html", "file:///d:/docs/a.html");
    row("\\\\server\\share\\a.json", "file://server/share/a.json");
    row("https://example.org/C:/a", "https://example.org/C:/a");
    row("mailto:a@example.org", "mailto:a@example.org");
    row("c:a", "c:a"); // a file of the working folder of that drive, or a scheme of one letter
    row("/srv/a.html", "/srv/a.html");
    row("example.org", "example.org");
    row("", "");
}

void TestFileNames::shouldKnowPathsOfWindows()
{
    QFETCH(QString, link);
    QFETCH(QString, url);
    QCOMPARE(QString::fromLatin1(FileNames::toUrl(link).toEncoded()), url);
    QCOMPARE(FileNames::isWindowsPath(link), url.startsWith(QLatin1String("file:")));
}

FISHBONE_GUILESS_TEST(TestFileNames)
#include "tst_filenames.moc"
