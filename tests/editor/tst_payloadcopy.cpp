// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/editor/payloadcopy.h>
#include <tests/program/testprogram.h>

#include <QMimeData>
#include <QtTest>

/** The copy of what was dropped. */
class TestPayloadCopy : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldHaveEveryFormat();
    void shouldOutliveTheOriginal();
};

void TestPayloadCopy::shouldHaveEveryFormat()
{
    QMimeData payload;
    payload.setData(QStringLiteral("application/x-one"), "1");
    payload.setData(QStringLiteral("application/x-two"), QByteArray("a\0b", 3));
    const auto copy = payloadCopy(payload);
    QCOMPARE(copy->formats(), payload.formats());
    const QStringList formats = payload.formats();
    for (const QString &format : formats)
        QCOMPARE(copy->data(format), payload.data(format));
    QVERIFY(payloadCopy(QMimeData())->formats().isEmpty());
}

void TestPayloadCopy::shouldOutliveTheOriginal()
{
    auto payload = std::make_unique<QMimeData>();
    payload->setText(QStringLiteral("text"));
    const auto copy = payloadCopy(*payload);
    payload.reset();
    QCOMPARE(copy->text(), QStringLiteral("text"));
}

FISHBONE_GUILESS_TEST(TestPayloadCopy)
#include "tst_payloadcopy.moc"
