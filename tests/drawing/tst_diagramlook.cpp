// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/diagramlook.h>

#include <tests/program/testprogram.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

#include <functional>

using Options = DiagramLook::Options;

/** That the options of a look are one value. */
class TestDiagramLook : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldCompareAndStoreEachOption_data();
    void shouldCompareAndStoreEachOption();
    void shouldStoreNamesThatPeopleUnderstand();
    void shouldReadNothingAsTheDefaults();
    void shouldReadWhatMakesNoSenseAsTheDefault_data();
    void shouldReadWhatMakesNoSenseAsTheDefault();
};

using Change = std::function<void(Options &)>;
Q_DECLARE_METATYPE(Change)

void TestDiagramLook::shouldCompareAndStoreEachOption_data()
{
    QTest::addColumn<Change>("change");
    QTest::newRow("limit") << Change([](Options &o) { o.wrapLimit = 110.5; });
    QTest::newRow("lines") << Change([](Options &o) { o.wrapLines = 2; });
    QTest::newRow("widens") << Change([](Options &o) { o.widensLines = true; });
    QTest::newRow("head width") << Change([](Options &o) { o.headWidth = 90; });
    QTest::newRow("uneven") << Change([](Options &o) { o.sides = DiagramLook::UnevenSides; });
    QTest::newRow("both") << Change([](Options &o) { o.sides = DiagramLook::BothSides; });
    QTest::newRow("head left") << Change([](Options &o) { o.isHeadLeft = true; });
    QTest::newRow("gray") << Change([](Options &o) { o.palette = DiagramLook::GrayColors; });
    QTest::newRow("dark") << Change([](Options &o) { o.palette = DiagramLook::DarkColors; });
    QTest::newRow("warm") << Change([](Options &o) { o.palette = DiagramLook::WarmColors; });
    QTest::newRow("cool") << Change([](Options &o) { o.palette = DiagramLook::CoolColors; });
    QTest::newRow("dark gray") << Change(
        [](Options &o) { o.palette = DiagramLook::DarkGrayColors; });
    QTest::newRow("dark warm") << Change(
        [](Options &o) { o.palette = DiagramLook::DarkWarmColors; });
    QTest::newRow("dark cool") << Change(
        [](Options &o) { o.palette = DiagramLook::DarkCoolColors; });
    QTest::newRow("buttons") << Change([](Options &o) { o.hasButtons = false; });
    QTest::newRow("legend") << Change([](Options &o) { o.hasLegend = true; });
}

void TestDiagramLook::shouldCompareAndStoreEachOption()
{
    QFETCH(Change, change);
    Options options;
    QVERIFY(options == Options());

    change(options);

    QVERIFY(options != Options());
    // Through the bytes of a file.
    const QByteArray bytes = QJsonDocument(options.toJson()).toJson();
    QVERIFY(Options::fromJson(QJsonDocument::fromJson(bytes).object()) == options);
}

void TestDiagramLook::shouldStoreNamesThatPeopleUnderstand()
{
    Options options;
    options.wrapLimit = 145;
    options.sides = DiagramLook::BothSides;
    options.isHeadLeft = true;
    options.palette = DiagramLook::GrayColors;

    QCOMPARE(options.toJson(), QJsonObject({{QStringLiteral("wrap"), 145},
                                            {QStringLiteral("lines"), 3},
                                            {QStringLiteral("widens"), false},
                                            {QStringLiteral("headWidth"), 120},
                                            {QStringLiteral("sides"), QStringLiteral("both")},
                                            {QStringLiteral("head"), QStringLiteral("left")},
                                            {QStringLiteral("palette"), QStringLiteral("gray")},
                                            {QStringLiteral("buttons"), true},
                                            {QStringLiteral("legend"), false}}));
}

void TestDiagramLook::shouldReadNothingAsTheDefaults()
{
    QVERIFY(Options::fromJson({}) == Options());
    QVERIFY(Options::fromJson({{QStringLiteral("of a later version"), 1}}) == Options());
    QVERIFY(Options::fromJson(Options().toJson()) == Options());
}

void TestDiagramLook::shouldReadWhatMakesNoSenseAsTheDefault_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QJsonValue>("value");
    const QStringList keys = Options().toJson().keys();
    for (const QString &key : keys) {
        QTest::addRow("%s null", qPrintable(key)) << key << QJsonValue();
        QTest::addRow("%s text", qPrintable(key)) << key << QJsonValue(QStringLiteral("sideways"));
        QTest::addRow("%s list", qPrintable(key)) << key << QJsonValue(QJsonArray{1, 2});
        QTest::addRow("%s negative", qPrintable(key)) << key << QJsonValue(-5);
        QTest::addRow("%s endless", qPrintable(key)) << key << QJsonValue(1e300);
        QTest::addRow("%s tiny", qPrintable(key)) << key << QJsonValue(1e-9);
    }
}

void TestDiagramLook::shouldReadWhatMakesNoSenseAsTheDefault()
{
    QFETCH(QString, key);
    QFETCH(QJsonValue, value);
    Options options;
    options.wrapLimit = 145;
    QJsonObject json = options.toJson();
    json.insert(key, value);

    // What makes sense beside it counts all the same.
    if (key == QLatin1String("wrap"))
        options.wrapLimit = 0;
    QVERIFY(Options::fromJson(json) == options);
}

FISHBONE_GUILESS_TEST(TestDiagramLook)
#include "tst_diagramlook.moc"
