// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/files/largefilereader.h>
#include <tests/program/testprogram.h>

#include <QJsonDocument>
#include <QJsonObject>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

/** Reading files beside the program. */
class TestLargeFileReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void shouldReadADiagram();
    void shouldTellWhyThereIsNone_data();
    void shouldTellWhyThereIsNone();
    void shouldTellOfAFileThatIsMissing();
    void shouldDropWhatNobodyWants();
    void shouldReadTheNewestFileOnly();
    void shouldEndWhileItReads();

private:
    QString written(const char *name, const QByteArray &content);

    QScopedPointer<QTemporaryDir> m_folder;
};

void TestLargeFileReader::init()
{
    m_folder.reset(new QTemporaryDir);
}

QString TestLargeFileReader::written(const char *name, const QByteArray &content)
{
    QFile file(m_folder->filePath(QLatin1String(name)));
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size()
               ? file.fileName()
               : QString();
}

void TestLargeFileReader::shouldReadADiagram()
{
    const QString path = written("a.json", R"({"title": "Late", "children": []})");
    LargeFileReader reader;
    const QSignalSpy ended(&reader, &LargeFileReader::ended);
    QVERIFY(!reader.isReading());
    reader.read(path);
    QVERIFY(reader.isReading());
    QCOMPARE(ended.count(), 0); // never before the call returns
    QTRY_COMPARE(ended.count(), 1);
    QVERIFY(!reader.isReading());
    QCOMPARE(ended.at(0).at(0).toString(), path);
    QCOMPARE(ended.at(0).at(1).toJsonDocument().object().value(QStringLiteral("title")).toString(),
             QStringLiteral("Late"));
    QCOMPARE(ended.at(0).at(2).toString(), QString());
}

void TestLargeFileReader::shouldTellWhyThereIsNone_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("broken") << QByteArray("{");
    QTest::newRow("something else") << QByteArray("[1, 2]");
}

void TestLargeFileReader::shouldTellWhyThereIsNone()
{
    QFETCH(QByteArray, content);
    LargeFileReader reader;
    const QSignalSpy ended(&reader, &LargeFileReader::ended);
    reader.read(written("a.json", content));
    QTRY_COMPARE(ended.count(), 1);
    QVERIFY(!ended.at(0).at(2).toString().isEmpty());
}

void TestLargeFileReader::shouldTellOfAFileThatIsMissing()
{
    LargeFileReader reader;
    const QSignalSpy ended(&reader, &LargeFileReader::ended);
    reader.read(m_folder->filePath(QStringLiteral("none.json")));
    QTRY_COMPARE(ended.count(), 1);
    QVERIFY(ended.at(0).at(1).toJsonDocument().isNull());
    QVERIFY(!ended.at(0).at(2).toString().isEmpty());
}

void TestLargeFileReader::shouldDropWhatNobodyWants()
{
    LargeFileReader reader;
    const QSignalSpy ended(&reader, &LargeFileReader::ended);
    reader.read(written("a.json", "{}"));
    reader.drop();
    QVERIFY(!reader.isReading());
    reader.read(written("b.json", "{}"));
    QTRY_COMPARE(ended.count(), 1);
    QVERIFY(ended.at(0).at(0).toString().endsWith(QLatin1String("b.json")));
}

void TestLargeFileReader::shouldReadTheNewestFileOnly()
{
    LargeFileReader reader;
    const QSignalSpy ended(&reader, &LargeFileReader::ended);
    for (const char *name : {"a.json", "b.json", "c.json"})
        reader.read(written(name, "{}"));
    QTRY_VERIFY(!reader.isReading());
    QCoreApplication::processEvents();
    QCOMPARE(ended.count(), 1);
    QVERIFY(ended.at(0).at(0).toString().endsWith(QLatin1String("c.json")));
}

void TestLargeFileReader::shouldEndWhileItReads()
{
    auto reader = std::make_unique<LargeFileReader>();
    const QSignalSpy ended(reader.get(), &LargeFileReader::ended);
    reader->read(written("a.json", QByteArray(1 << 20, ' ') + "{}"));
    reader.reset();
    QCoreApplication::processEvents();
    QCOMPARE(ended.count(), 0);
}

FISHBONE_GUILESS_TEST(TestLargeFileReader)
#include "tst_largefilereader.moc"
