// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/common/jsonfile.h>
#include <tests/program/testprogram.h>

#include <QFile>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QtTest>

/** Small files of the program's own. */
class TestJsonFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldReadWhatItWrote();
    void shouldReadNothingElse_data();
    void shouldReadNothingElse();
    void shouldKeepOthersFromReading();
    void shouldSayThatItCouldNotWrite();

private:
    QTemporaryDir m_folder;
};

namespace {
const QJsonObject content{{QStringLiteral("name"), QStringLiteral("鱼骨")},
                          {QStringLiteral("count"), 3}};
} // namespace

void TestJsonFile::shouldReadWhatItWrote()
{
    const QString path = m_folder.filePath(QStringLiteral("written.json"));
    QVERIFY(JsonFile::write(path, {}));
    QVERIFY(JsonFile::write(path, content));
    QCOMPARE(JsonFile::read(path), content);
}

void TestJsonFile::shouldReadNothingElse_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("broken") << QByteArray("{\"name\": ");
    QTest::newRow("array") << QByteArray("[1]");
}

void TestJsonFile::shouldReadNothingElse()
{
    QFETCH(QByteArray, text);
    const QString path = m_folder.filePath(QStringLiteral("other.json"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text);
    file.close();
    QCOMPARE(JsonFile::read(path), QJsonObject());
    QCOMPARE(JsonFile::read(m_folder.filePath(QStringLiteral("missing.json"))), QJsonObject());
}

void TestJsonFile::shouldKeepOthersFromReading()
{
    const QString path = m_folder.filePath(QStringLiteral("own.json"));
    QVERIFY(JsonFile::write(path, content, JsonFile::Readers::Owner));
    const QFile::Permissions others =
        QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    QCOMPARE(QFile::permissions(path) & others, QFile::Permissions());
    QCOMPARE(JsonFile::read(path), content);
}

void TestJsonFile::shouldSayThatItCouldNotWrite()
{
    QVERIFY(!JsonFile::write(m_folder.filePath(QStringLiteral("no/folder.json")), content));
}

FISHBONE_GUILESS_TEST(TestJsonFile)
#include "tst_jsonfile.moc"
