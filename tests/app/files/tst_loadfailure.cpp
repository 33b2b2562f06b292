// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/files/loadfailure.h>
#include <tests/program/testprogram.h>

#include <QJsonDocument>
#include <QTemporaryDir>
#include <QtTest>

/** Why files cannot be loaded. */
class TestLoadFailure : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldTellWhatIsWrongWithAFile_data();
    void shouldTellWhatIsWrongWithAFile();
    void shouldTellOfAFolderAndOfNothing();
    void shouldNameTheLineOfAnError();
};

void TestLoadFailure::shouldTellWhatIsWrongWithAFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("reason");
    QTest::newRow("empty") << QStringLiteral("a.json") << QByteArray()
                           << QStringLiteral("it is empty");
    QTest::newRow("broken") << QStringLiteral("a.json") << QByteArray("{\n\"title\": ]")
                            << QStringLiteral("it is not a JSON document (line 2: ");
    QTest::newRow("unknown ending")
        << QStringLiteral("a.jpg") << QByteArray("JFIF")
        << QStringLiteral("its ending is none of those that can be read: .json, ");
}

void TestLoadFailure::shouldTellWhatIsWrongWithAFile()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    QFETCH(QString, reason);
    const QTemporaryDir folder;
    QFile file(folder.filePath(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
    file.close();
    const QString told = LoadFailure::reasonOf(file.fileName());
    QVERIFY2(told.startsWith(reason), qPrintable(told));
}

void TestLoadFailure::shouldTellOfAFolderAndOfNothing()
{
    const QTemporaryDir folder;
    QCOMPARE(LoadFailure::reasonOf(folder.path()), QStringLiteral("it is a folder"));
    QCOMPARE(LoadFailure::reasonOf(folder.filePath(QStringLiteral("none.json"))),
             QStringLiteral("there is no such file"));
}

void TestLoadFailure::shouldNameTheLineOfAnError()
{
    const QByteArray json = "{\n\n\"a\" 1}";
    QJsonParseError error;
    QVERIFY(QJsonDocument::fromJson(json, &error).isNull());
    QCOMPARE(LoadFailure::reasonOfText(json, error),
             QStringLiteral("it is not a JSON document (line 3: %1)")
                 .arg(QLatin1String("the colon behind a name is missing")));
}

FISHBONE_GUILESS_TEST(TestLoadFailure)
#include "tst_loadfailure.moc"
