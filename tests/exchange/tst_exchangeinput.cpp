// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/program/testprogram.h>

#include <fishbone/exchange/exchangeinput.h>

#include <QBuffer>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

/** What diagrams are read from. */
class TestExchangeInput : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldReadAllOfADevice();
    void shouldRefuseAnEmptyDevice();
    void shouldOpenAFile();
    void shouldSayWhyAFileCannotBeOpened();
};

void TestExchangeInput::shouldReadAllOfADevice()
{
    QByteArray bytes(3 << 20, 'x'); // more than is read at once
    QBuffer buffer(&bytes);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    QCOMPARE(ExchangeInput::bytesIn(buffer, nullptr), bytes);
}

void TestExchangeInput::shouldRefuseAnEmptyDevice()
{
    QBuffer buffer;
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    QString error;
    QVERIFY(ExchangeInput::bytesIn(buffer, &error).isNull());
    QCOMPARE(error, QStringLiteral("it is empty"));
}

void TestExchangeInput::shouldOpenAFile()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.txt"));
    QFile made(path);
    QVERIFY(made.open(QIODevice::WriteOnly) && made.write("Late") == 4);
    made.close();
    QFile file;
    QString error;
    QVERIFY(ExchangeInput::openFile(file, path, &error));
    QCOMPARE(file.readAll(), QByteArray("Late"));
    QVERIFY(error.isEmpty());
}

void TestExchangeInput::shouldSayWhyAFileCannotBeOpened()
{
    const QTemporaryDir folder;
    QFile file;
    QString error;
    QVERIFY(!ExchangeInput::openFile(file, folder.path(), &error));
    QCOMPARE(error, QStringLiteral("it is a folder"));
    QVERIFY(!ExchangeInput::openFile(file, folder.filePath(QStringLiteral("none")), &error));
    QCOMPARE(error, QStringLiteral("there is no such file"));
}

FISHBONE_GUILESS_TEST(TestExchangeInput)

#include "tst_exchangeinput.moc"
