// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/program/testprogram.h>

#include <fishbone/base/jsonerrors.h>

#include <QJsonDocument>
#include <QtTest>

/** What is said about broken JSON. */
class TestJsonErrors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldSayWhatWasExpected_data();
    void shouldSayWhatWasExpected();
    void shouldHaveWordsForEveryError();
    void shouldSayThatThereIsNothing();
};

void TestJsonErrors::shouldSayWhatWasExpected_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("reason");

    const auto row = [](const char *name, const char *json, int line, const char *expectation) {
        QTest::newRow(name) << QByteArray(json)
                            << QStringLiteral("it is not a JSON document (line %1: %2)")
                                   .arg(line)
                                   .arg(QLatin1String(expectation));
    };
    row("no value", "{\n\"title\": tru}", 2,
        "a text in quotes, a number, true, false, null, { or [ is missing");
    row("no name", "{\n\"title\": 1,}", 2, "a name or a value is missing");
    row("no colon", "{\n\n\"a\" 1}", 3, "the colon behind a name is missing");
    row("open list", "{\"a\": [1,\n2 ", 2, "a comma or ] is missing");
    row("end in a number", "{\"a\": [1,\n2", 2, "it ends with a number");
    row("open text", "{\"a\": \"b", 1, "the quote at the end of a text is missing");
    row("no end", "{\"a\": 1\n", 2, "a name in quotes or } is missing");
    row("a second end", "{\"a\": 1}\n}", 2, "there is more behind its end");
    row("an escape", "{\"a\": \"\\u12x\"}", 1, "a backslash begins no escape sequence");
    row("another encoding", "{\"a\": \"M\xfcller\"}", 1, "a text is not encoded as UTF-8");
    row("no number", "{\"a\": -}", 1,
        "a text in quotes, a number, true, false, null, { or [ is missing");
}

void TestJsonErrors::shouldSayWhatWasExpected()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, reason);
    QJsonParseError error;
    QVERIFY(QJsonDocument::fromJson(json, &error).isNull());
    QCOMPARE(JsonErrors::reason(json, error), reason);
}

void TestJsonErrors::shouldHaveWordsForEveryError()
{
    for (int error = QJsonParseError::UnterminatedObject; error <= QJsonParseError::GarbageAtEnd;
         ++error)
        QVERIFY2(!JsonErrors::expectation(QJsonParseError::ParseError(error)).isEmpty(),
                 qPrintable(QString::number(error)));
    QVERIFY(JsonErrors::expectation(QJsonParseError::NoError).isEmpty());
}

void TestJsonErrors::shouldSayThatThereIsNothing()
{
    QCOMPARE(JsonErrors::reason(QByteArray(), QJsonParseError()),
             QStringLiteral("it is not a JSON document"));
}

FISHBONE_APPLESS_TEST(TestJsonErrors)

#include "tst_jsonerrors.moc"
