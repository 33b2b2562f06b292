// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/version.h>
#include <tests/program/testprogram.h>
#include <tests/support/sourcefolder.h>

#include <QFile>
#include <QRegularExpression>
#include <QVersionNumber>
#include <QtTest>

/** The version that headers and library tell, which is the one that the build declares. */
class TestVersion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldBeTheVersionOfTheProject();
    void shouldBeTheSameInTheHeadersAndInTheLibrary();
    void shouldCompareAsANumber();
};

void TestVersion::shouldBeTheVersionOfTheProject()
{
    QFile file(TestSupport::sourceFile(QStringLiteral("CMakeLists.txt")));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QRegularExpression declaration(QStringLiteral("^project\\(Fishbone VERSION ([0-9.]+) "),
                                         QRegularExpression::MultilineOption);
    const QRegularExpressionMatch match = declaration.match(QString::fromUtf8(file.readAll()));
    QVERIFY(match.hasMatch());
    QCOMPARE(QStringLiteral(FISHBONE_VERSION_STRING), match.captured(1));
}

void TestVersion::shouldBeTheSameInTheHeadersAndInTheLibrary()
{
    QCOMPARE(QString::fromLatin1(fishboneVersion()), QStringLiteral(FISHBONE_VERSION_STRING));
    QCOMPARE(
        QVersionNumber::fromString(QString::fromLatin1(fishboneVersion())),
        QVersionNumber(FISHBONE_VERSION_MAJOR, FISHBONE_VERSION_MINOR, FISHBONE_VERSION_PATCH));
}

void TestVersion::shouldCompareAsANumber()
{
    QCOMPARE(FISHBONE_VERSION_CHECK(1, 2, 3), 0x010203);
    QVERIFY(FISHBONE_VERSION_CHECK(1, 10, 0) > FISHBONE_VERSION_CHECK(1, 9, 9));
    QVERIFY(FISHBONE_VERSION_CHECK(2, 0, 0) > FISHBONE_VERSION_CHECK(1, 255, 255));
    QCOMPARE(FISHBONE_VERSION,
             FISHBONE_VERSION_CHECK(FISHBONE_VERSION_MAJOR, FISHBONE_VERSION_MINOR,
                                    FISHBONE_VERSION_PATCH));
}

FISHBONE_APPLESS_TEST(TestVersion)
#include "tst_version.moc"
