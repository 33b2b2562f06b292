// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/program/testprogram.h>

#include <fishbone/exchange/jsondiagram.h>

#include <QJsonDocument>
#include <QtTest>

/** Diagrams, and what else is kept as JSON. */
class TestJsonDiagram : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldTellDiagramsFromOtherJson_data();
    void shouldTellDiagramsFromOtherJson();
    void shouldSayWhatIsWrongWithAText_data();
    void shouldSayWhatIsWrongWithAText();
};

void TestJsonDiagram::shouldTellDiagramsFromOtherJson_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("mention"); ///< of the reason; empty for a diagram

    const auto row = [](const char *name, const char *json, const char *mention) {
        QTest::newRow(name) << QByteArray(json) << QString::fromUtf8(mention);
    };
    row("a diagram", R"({"title": "a", "children": []})", "");
    row("only a title", R"({"title": "a"})", "");
    row("only children", R"({"children": [{"title": "b"}]})", "");
    row("a diagram with more", R"({"title": "a", "colour": "red"})", "");
    row("nothing in it", "{}", "");
    row("an empty list", "[]", "");
    row("a package", R"({"name": "x", "version": "1"})", R"("name", "version")");
    row("a list", R"([{"title": "a"}])", "list");
    row("a title that is none", R"({"title": {"text": "a"}})", "title");
    row("children that are none", R"({"title": "a", "children": {"attached": []}})", "children");
    row("many names", R"({"a":1,"b":1,"c":1,"d":1,"e":1,"f":1,"g":1})", R"("f")");
}

void TestJsonDiagram::shouldTellDiagramsFromOtherJson()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, mention);
    const QString reason = JsonDiagram::reasonAgainst(QJsonDocument::fromJson(json));
    QCOMPARE(reason.isEmpty(), mention.isEmpty());
    QVERIFY2(reason.contains(mention), qPrintable(reason));
    QVERIFY(!reason.contains(QLatin1String("\"g\""))); // a message is no list of everything
}

void TestJsonDiagram::shouldSayWhatIsWrongWithAText_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("mention");
    QTest::newRow("no JSON") << QByteArray("{\n\"title\" 1}") << QStringLiteral("line 2");
    QTest::newRow("another kind") << QByteArray(R"({"name": "x"})") << QStringLiteral("\"name\"");
    QTest::newRow("no document") << QByteArray("[]") << QStringLiteral("JSON document");
}

void TestJsonDiagram::shouldSayWhatIsWrongWithAText()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, mention);
    QJsonParseError error;
    QJsonDocument::fromJson(json, &error);
    const QString reason = JsonDiagram::reasonAgainst(json, error);
    QVERIFY2(reason.contains(mention), qPrintable(reason));
}

FISHBONE_APPLESS_TEST(TestJsonDiagram)

#include "tst_jsondiagram.moc"
