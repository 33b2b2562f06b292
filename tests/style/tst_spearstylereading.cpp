// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/style/spearstyle.h>

#include <tests/program/testprogram.h>
#include <tests/support/messagecounter.h>
#include <tests/support/spearstyletext.h>

#include <QFont>
#include <QJsonArray>
#include <QJsonObject>
#include <QPen>
#include <QtTest>

using namespace TestSupport;

namespace {

/** A style object with one state object, written inside the braces of @p state. */
QJsonObject withState(const QString &state)
{
    return parse(QStringLiteral(R"({"textCount":6,"spearStates":[{%1}]})").arg(state));
}

} // namespace

class TestSpearStyleReading : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldReadNothingFromAnEmptyObject();
    void shouldReadFlagAndCount_data();
    void shouldReadFlagAndCount();
    void shouldPickTheState_data();
    void shouldPickTheState();
    void shouldReadFonts_data();
    void shouldReadFonts();
    void shouldReadAStyleNameWithAComma();
    void shouldWriteAStyleNameWithACommaReadably();
    void shouldKeepTheFontWhenItsDescriptionIsBroken();
    void shouldReadColors_data();
    void shouldReadColors();
    void shouldUnsetAColorOutOfRange();
    void shouldReadPens_data();
    void shouldReadPens();
    void shouldReadUnknownPenNumbersAsZero_data();
    void shouldReadUnknownPenNumbersAsZero();
    void shouldKeepThePenWhenThereIsNone_data();
    void shouldKeepThePenWhenThereIsNone();
    void shouldMergeWhatItReads();
    void shouldLetLaterElementsOverrideFieldByField();
};

void TestSpearStyleReading::shouldReadNothingFromAnEmptyObject()
{
    SpearStyle style;
    style.setInheritanceParent(true);
    style.setTextColor(SpearStyle::ssNormal, Qt::red);
    const QString before = textOf(style);

    style.read(QJsonObject());

    QCOMPARE(style.textCount(), 6);
    QCOMPARE(textOf(style), before);
}

void TestSpearStyleReading::shouldReadFlagAndCount_data()
{
    QTest::addColumn<QString>("json");
    QTest::addColumn<bool>("flag");
    QTest::addColumn<int>("count");

    QTest::newRow("both") << R"({"inheritanceParent":true,"textCount":9})" << true << 9;
    QTest::newRow("neither") << R"({"spearStates":[]})" << false << 0;
    QTest::newRow("unknown key") << R"({"colour":1})" << false << 0;
    QTest::newRow("flag only") << R"({"inheritanceParent":true})" << true << 0;
    QTest::newRow("count only") << R"({"textCount":-4})" << false << -4;
    QTest::newRow("number for a flag") << R"({"inheritanceParent":1})" << false << 0;
    QTest::newRow("text for a flag") << R"({"inheritanceParent":"true"})" << false << 0;
    QTest::newRow("text for a count") << R"({"textCount":"9"})" << false << 0;
    QTest::newRow("fraction for a count") << R"({"textCount":9.5})" << false << 0;
    QTest::newRow("count too great") << R"({"textCount":1e12})" << false << 0;
    QTest::newRow("null") << R"({"inheritanceParent":null,"textCount":null})" << false << 0;
}

void TestSpearStyleReading::shouldReadFlagAndCount()
{
    QFETCH(const QString, json);
    QFETCH(const bool, flag);
    QFETCH(const int, count);
    SpearStyle style;
    style.setInheritanceParent(!flag);

    style.read(parse(json));

    QCOMPARE(style.inheritanceParent(), flag);
    QCOMPARE(style.textCount(), count);
}

void TestSpearStyleReading::shouldPickTheState_data()
{
    QTest::addColumn<QString>("states");
    QTest::addColumn<int>("changed");

    const QString red = QStringLiteral(R"("textColor":{"r":255,"a":255})");
    const auto with = [&red](const char *state) {
        return QStringLiteral(R"([{"state":%1,%2}])").arg(QLatin1String(state), red);
    };
    constexpr int none = -1;
    QTest::newRow("normal") << with("0") << 0;
    QTest::newRow("selected") << with("1") << 1;
    QTest::newRow("hovered") << with("2") << 2;
    QTest::newRow("linked") << with("3") << 3;
    QTest::newRow("one too many") << with("4") << none;
    QTest::newRow("one too few") << with("-1") << none;
    QTest::newRow("greatest") << with("2147483647") << none;
    QTest::newRow("least") << with("-2147483648") << none;
    QTest::newRow("missing") << QStringLiteral("[{%1}]").arg(red) << 0;
    QTest::newRow("not a number") << with("\"2\"") << 0;
    QTest::newRow("not an object") << QStringLiteral(R"([1,"a",null,[2]])") << none;
    QTest::newRow("not an array") << QStringLiteral(R"({"state":1,%1})").arg(red) << none;
}

void TestSpearStyleReading::shouldPickTheState()
{
    QFETCH(const QString, states);
    QFETCH(const int, changed);
    SpearStyle style;

    style.read(parse(QStringLiteral(R"({"spearStates":%1})").arg(states)));

    for (const SpearStyle::SpearState state : allStates)
        QCOMPARE(style.textColor(state), state == changed ? QColor(Qt::red) : QColor());
}

void TestSpearStyleReading::shouldReadFonts_data()
{
    QTest::addColumn<QString>("description");
    QTest::addColumn<QString>("family");
    QTest::addColumn<int>("pointSize");
    QTest::addColumn<bool>("bold");
    QTest::addColumn<bool>("italic");

    QTest::newRow("plain") << QStringLiteral("Sans,12,-1,5,50,0,0,0,0,0") << QStringLiteral("Sans")
                           << 12 << false << false;
    QTest::newRow("bold") << QStringLiteral("Serif,20,-1,5,75,0,0,0,0,0") << QStringLiteral("Serif")
                          << 20 << true << false;
    QTest::newRow("italic") << QStringLiteral("Sans,8,-1,5,50,1,0,0,0,0") << QStringLiteral("Sans")
                            << 8 << false << true;
    QTest::newRow("with a style name") << QStringLiteral("Sans,8,-1,5,50,0,0,0,0,0,Regular")
                                       << QStringLiteral("Sans") << 8 << false << false;
}

void TestSpearStyleReading::shouldReadFonts()
{
    QFETCH(const QString, description);
    QFETCH(const QString, family);
    QFETCH(const int, pointSize);
    QFETCH(const bool, bold);
    QFETCH(const bool, italic);
    SpearStyle style;

    style.read(withState(QStringLiteral(R"("state":2,"font":"%1")").arg(description)));

    const QFont *font = style.textFont(SpearStyle::ssHovered);
    QVERIFY(font);
    QCOMPARE(font->family(), family);
    QCOMPARE(font->pointSize(), pointSize);
    QCOMPARE(font->bold(), bold);
    QCOMPARE(font->italic(), italic);
    // Nothing of it is lost. What the toolkit makes of it depends on its version.
    QJsonObject written;
    style.write(written);
    const QJsonValue state = written[QLatin1String("spearStates")].toArray().at(0);
    QCOMPARE(state[QLatin1String("font")].toString(), description);
    QCOMPARE(style.textFont(SpearStyle::ssNormal), nullptr);
}

void TestSpearStyleReading::shouldReadAStyleNameWithAComma()
{
    const MessageCounter messages;
    SpearStyle style;

    style.read(withState(QStringLiteral(R"("font":"Sans,8,-1,5,75,1,0,0,0,0,Bold, Condensed")")));

    const QFont *font = style.textFont(SpearStyle::ssNormal);
    QVERIFY(font);
    QCOMPARE(font->family(), QStringLiteral("Sans"));
    QCOMPARE(font->pointSize(), 8);
    QVERIFY(font->bold());
    QVERIFY(font->italic());
    QCOMPARE(messages.count(), 0);
}

void TestSpearStyleReading::shouldWriteAStyleNameWithACommaReadably()
{
    const MessageCounter messages;
    QFont font(QStringLiteral("Sans"), 21);
    font.setStyleName(QStringLiteral("Book, Condensed"));
    SpearStyle style;
    style.setTextFont(SpearStyle::ssNormal, font);

    QJsonObject written;
    style.write(written);
    SpearStyle copy;
    copy.read(written);

    QVERIFY(copy.textFont(SpearStyle::ssNormal));
    QCOMPARE(copy.textFont(SpearStyle::ssNormal)->pointSize(), 21);
    QCOMPARE(messages.count(), 0);
}

void TestSpearStyleReading::shouldKeepTheFontWhenItsDescriptionIsBroken()
{
    SpearStyle style;
    QFont font;
    font.setPointSize(33);
    style.setTextFont(SpearStyle::ssNormal, font);

    QTest::ignoreMessage(QtWarningMsg, "QFont::fromString: Invalid description 'Sans,1,2'");
    style.read(withState(QStringLiteral(R"("font":"Sans,1,2")")));
    QCOMPARE(style.textFont(SpearStyle::ssNormal)->pointSize(), 33);

    // What is not there at all is no reason to warn.
    const MessageCounter messages;
    style.read(withState(QStringLiteral(R"("font":"")")));
    style.read(withState(QStringLiteral(R"("font":12)")));
    style.read(withState(QStringLiteral(R"("textColor":{"r":1})")));
    QCOMPARE(messages.count(), 0);
    QCOMPARE(style.textFont(SpearStyle::ssNormal)->pointSize(), 33);
}

void TestSpearStyleReading::shouldReadColors_data()
{
    QTest::addColumn<QString>("json");
    QTest::addColumn<QColor>("color");

    const QColor before(9, 9, 9, 9);
    QTest::newRow("whole") << R"({"r":1,"g":2,"b":3,"a":4})" << QColor(1, 2, 3, 4);
    QTest::newRow("without alpha") << R"({"r":255})" << QColor(255, 0, 0, 0);
    QTest::newRow("only alpha") << R"({"a":255})" << QColor(0, 0, 0, 255);
    QTest::newRow("unknown keys") << R"({"red":255})" << QColor(0, 0, 0, 0);
    QTest::newRow("texts") << R"({"r":"1","g":"2","b":"3","a":255})" << QColor(0, 0, 0, 255);
    QTest::newRow("empty") << R"({})" << before;
    QTest::newRow("array") << R"([1,2,3,4])" << before;
    QTest::newRow("text") << R"("#ff0000")" << before;
    QTest::newRow("null") << R"(null)" << before;
}

void TestSpearStyleReading::shouldReadColors()
{
    QFETCH(const QString, json);
    QFETCH(const QColor, color);
    SpearStyle style;
    style.setTextColor(SpearStyle::ssLinked, QColor(9, 9, 9, 9));
    style.setTextBkColor(SpearStyle::ssLinked, QColor(9, 9, 9, 9));

    style.read(withState(QStringLiteral(R"("state":3,"textColor":%1)").arg(json)));
    QCOMPARE(style.textColor(SpearStyle::ssLinked), color);
    QCOMPARE(style.textBkColor(SpearStyle::ssLinked), QColor(9, 9, 9, 9));

    style.read(withState(QStringLiteral(R"("state":3,"textBkColor":%1)").arg(json)));
    QCOMPARE(style.textBkColor(SpearStyle::ssLinked), color);
}

void TestSpearStyleReading::shouldUnsetAColorOutOfRange()
{
    SpearStyle style;
    style.setTextColor(SpearStyle::ssNormal, Qt::red);
    style.setTextBkColor(SpearStyle::ssNormal, Qt::red);

    QTest::ignoreMessage(QtWarningMsg, "QColor::setRgb: RGB parameters out of range");
    QTest::ignoreMessage(QtWarningMsg, "QColor::setRgb: RGB parameters out of range");
    style.read(withState(
        QStringLiteral(R"("textColor":{"r":256,"a":255},"textBkColor":{"r":1,"g":-1,"a":255})")));

    QVERIFY(!style.textColor(SpearStyle::ssNormal).isValid());
    QVERIFY(!style.textBkColor(SpearStyle::ssNormal).isValid());
}

void TestSpearStyleReading::shouldReadPens_data()
{
    QTest::addColumn<QString>("json");
    QTest::addColumn<QPen>("pen");

    QTest::newRow("whole")
        << R"({"r":1,"g":2,"b":3,"a":4,"width":5,"style":3,"capStyle":16,"joinStyle":128})"
        << QPen(QColor(1, 2, 3, 4), 5, Qt::DotLine, Qt::SquareCap, Qt::RoundJoin);
    QTest::newRow("without a style")
        << R"({"r":255,"a":255,"width":2})"
        << QPen(QColor(255, 0, 0), 2, Qt::NoPen, Qt::FlatCap, Qt::MiterJoin);
    QTest::newRow("unknown keys") << R"({"color":"red"})"
                                  << QPen(QColor(0, 0, 0, 0), 0, Qt::NoPen, Qt::FlatCap,
                                          Qt::MiterJoin);
    QTest::newRow("texts") << R"({"width":"3","style":"1","a":255})"
                           << QPen(QColor(0, 0, 0), 0, Qt::NoPen, Qt::FlatCap, Qt::MiterJoin);
    QTest::newRow("fraction") << R"({"width":1.5,"style":1,"a":255})"
                              << QPen(QColor(0, 0, 0), 0, Qt::SolidLine, Qt::FlatCap,
                                      Qt::MiterJoin);
}

void TestSpearStyleReading::shouldReadPens()
{
    QFETCH(const QString, json);
    QFETCH(const QPen, pen);
    SpearStyle style;

    style.read(withState(QStringLiteral(R"("state":1,"broderPen":%1)").arg(json)));

    QVERIFY(style.broderPen(SpearStyle::ssSelected));
    QCOMPARE(*style.broderPen(SpearStyle::ssSelected), pen);
    QCOMPARE(style.broderPen(SpearStyle::ssSelected)->brush().style(), Qt::SolidPattern);
    QCOMPARE(style.broderPen(SpearStyle::ssNormal), nullptr);
}

void TestSpearStyleReading::shouldReadUnknownPenNumbersAsZero_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("read");

    const QString style = QStringLiteral("style");
    const QString cap = QStringLiteral("capStyle");
    const QString join = QStringLiteral("joinStyle");
    for (const int known : {0, 1, 2, 3, 4, 5, 6})
        QTest::addRow("style %d", known) << style << known << known;
    for (const int unknown : {-1, 7, 15, 1000000})
        QTest::addRow("style %d", unknown) << style << unknown << 0;
    for (const int known : {0, 0x10, 0x20})
        QTest::addRow("cap %d", known) << cap << known << known;
    for (const int unknown : {-1, 1, 0x30, 0x40, 1000000})
        QTest::addRow("cap %d", unknown) << cap << unknown << 0;
    for (const int known : {0, 0x40, 0x80, 0x100})
        QTest::addRow("join %d", known) << join << known << known;
    for (const int unknown : {-1, 1, 0x10, 0xc0, 0x1c0, 1000000})
        QTest::addRow("join %d", unknown) << join << unknown << 0;
}

void TestSpearStyleReading::shouldReadUnknownPenNumbersAsZero()
{
    QFETCH(const QString, key);
    QFETCH(const int, number);
    QFETCH(const int, read);
    SpearStyle style;

    style.read(withState(QStringLiteral(R"("broderPen":{"a":255,"%1":%2})").arg(key).arg(number)));

    const QPen *pen = style.broderPen(SpearStyle::ssNormal);
    QVERIFY(pen);
    QCOMPARE(int(pen->style()), key == QLatin1String("style") ? read : 0);
    QCOMPARE(int(pen->capStyle()), key == QLatin1String("capStyle") ? read : 0);
    QCOMPARE(int(pen->joinStyle()), key == QLatin1String("joinStyle") ? read : 0);
}

void TestSpearStyleReading::shouldKeepThePenWhenThereIsNone_data()
{
    QTest::addColumn<QString>("state");

    QTest::newRow("missing") << R"("state":0)";
    QTest::newRow("empty") << R"("broderPen":{})";
    QTest::newRow("array") << R"("broderPen":[1])";
    QTest::newRow("number") << R"("broderPen":1)";
}

void TestSpearStyleReading::shouldKeepThePenWhenThereIsNone()
{
    QFETCH(const QString, state);
    SpearStyle style;
    const QPen pen(Qt::blue, 4, Qt::DashDotLine);
    style.setBroderPen(SpearStyle::ssNormal, pen);

    style.read(withState(state));

    QCOMPARE(*style.broderPen(SpearStyle::ssNormal), pen);
}

void TestSpearStyleReading::shouldMergeWhatItReads()
{
    SpearStyle style;
    style.setTextColor(SpearStyle::ssNormal, QColor(1, 1, 1));
    style.setTextBkColor(SpearStyle::ssNormal, QColor(2, 2, 2));
    style.setTextColor(SpearStyle::ssLinked, QColor(3, 3, 3));
    style.setBroderPen(SpearStyle::ssNormal, QPen(Qt::red, 2));

    style.read(withState(QStringLiteral(R"("textColor":{"r":9,"a":255})")));

    QCOMPARE(style.textColor(SpearStyle::ssNormal), QColor(9, 0, 0));
    QCOMPARE(style.textBkColor(SpearStyle::ssNormal), QColor(2, 2, 2));
    QCOMPARE(style.textColor(SpearStyle::ssLinked), QColor(3, 3, 3));
    QCOMPARE(*style.broderPen(SpearStyle::ssNormal), QPen(Qt::red, 2));
}

void TestSpearStyleReading::shouldLetLaterElementsOverrideFieldByField()
{
    SpearStyle style;

    style.read(parse(
        QStringLiteral(R"({"spearStates":[)"
                       R"({"state":1,"textColor":{"r":1,"a":255},"textBkColor":{"r":2,"a":255}},)"
                       R"({"state":1,"textColor":{"r":3,"a":255}}]})")));

    QCOMPARE(style.textColor(SpearStyle::ssSelected), QColor(3, 0, 0));
    QCOMPARE(style.textBkColor(SpearStyle::ssSelected), QColor(2, 0, 0));
}

FISHBONE_TEST(TestSpearStyleReading)

#include "tst_spearstylereading.moc"
