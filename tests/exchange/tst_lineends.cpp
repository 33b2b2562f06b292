// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/program/testprogram.h>

#include <fishbone/exchange/diagramexchange.h>
#include <fishbone/model/treeitem.h>

#include <QBuffer>
#include <QDateTime>
#include <QLocale>
#include <QtTest>

/** Text is the same whatever its lines end with and wherever it is written. */
class TestLineEnds : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldReadWhatAnotherSystemEndsLinesWith_data();
    void shouldReadWhatAnotherSystemEndsLinesWith();
    void shouldWriteTheSameInEveryCountry_data();
    void shouldWriteTheSameInEveryCountry();

private:
    static void addFormats();
    static QByteArray written(DiagramExchange::Format format);
    static QByteArray read(const QByteArray &contents, DiagramExchange::Format format);
};

void TestLineEnds::addFormats()
{
    QTest::addColumn<int>("format");
    for (const DiagramExchange::Format format : DiagramExchange::formats()) {
        const bool isText = !written(format).contains('\0'); // else an archive
        if (DiagramExchange::canWrite(format) && isText)
            QTest::newRow(qPrintable(DiagramExchange::id(format))) << int(format);
    }
}

/** A diagram with what lines, commas and dates matter to. */
QByteArray TestLineEnds::written(DiagramExchange::Format format)
{
    TreeItem head;
    head.setTitle(QStringLiteral("Line 3 stopped"));
    head.setUuid(QStringLiteral("head")); // or it would be given another one each time
    auto *const machine = new TreeItem;
    machine->setTitle(QStringLiteral("Machine"));
    machine->setUuid(QStringLiteral("machine"));
    head.appendChild(machine); // which takes it over
    auto *const pump = new TreeItem;
    pump->setTitle(QStringLiteral("Pump, 1.5 kW"));
    pump->setUuid(QStringLiteral("pump"));
    pump->setDetail(QStringLiteral("First line\nSecond line"));
    pump->setPlanEndDate(QDateTime(QDate(2026, 12, 31), QTime(), Qt::UTC).toMSecsSinceEpoch());
    pump->setProgress(50);
    machine->appendChild(pump);
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    QString error;
    DiagramExchange::write(file, head, format, &error);
    return file.data();
}

/** What there is in a diagram of that text, as text. */
QByteArray TestLineEnds::read(const QByteArray &contents, DiagramExchange::Format format)
{
    QBuffer file;
    file.setData(contents);
    file.open(QIODevice::ReadOnly);
    QString error;
    const auto head = DiagramExchange::read(file, format, &error);
    if (!head)
        return QByteArray();
    QByteArray text;
    QList<const TreeItem *> waiting{head.get()};
    while (!waiting.isEmpty()) {
        const TreeItem *const item = waiting.takeFirst();
        text += item->title().toUtf8() + '|' + item->detail().toUtf8() + '|' +
                QByteArray::number(item->planEndDate()) + '|' +
                QByteArray::number(item->progress()) + ';';
        for (const TreeItem *child : item->childItems())
            waiting.append(child);
    }
    // A table of this program keeps to the byte what is in quotes.
    return text.replace("\r\n", "\n");
}

void TestLineEnds::shouldReadWhatAnotherSystemEndsLinesWith_data()
{
    addFormats();
}

void TestLineEnds::shouldReadWhatAnotherSystemEndsLinesWith()
{
    QFETCH(int, format);
    const auto wanted = DiagramExchange::Format(format);
    if (!DiagramExchange::canRead(wanted))
        return;
    QByteArray text = written(wanted);
    text.replace("\r\n", "\n");
    const QByteArray expected = read(text, wanted);
    QVERIFY(expected.contains("Pump, 1.5 kW"));
    QCOMPARE(read(QByteArray(text).replace("\n", "\r\n"), wanted), expected);
}

void TestLineEnds::shouldWriteTheSameInEveryCountry_data()
{
    addFormats();
}

void TestLineEnds::shouldWriteTheSameInEveryCountry()
{
    QFETCH(int, format);
    const auto wanted = DiagramExchange::Format(format);
    const QLocale before;
    QLocale::setDefault(QLocale::c());
    const QByteArray expected = written(wanted);
    const QByteArray meant = read(expected, wanted);
    for (const QLocale::Language language : {QLocale::German, QLocale::Arabic, QLocale::Hindi}) {
        QLocale::setDefault(QLocale(language));
        QCOMPARE(written(wanted), expected);
        QCOMPARE(read(expected, wanted), meant);
    }
    QLocale::setDefault(before);
}

FISHBONE_TEST(TestLineEnds)
#include "tst_lineends.moc"
