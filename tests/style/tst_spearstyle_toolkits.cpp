// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/style/spearstyle.h>

#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>
#include <tests/program/testprogram.h>
#include <tests/support/sourcefolder.h>

#include <QFile>
#include <QFont>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPen>
#include <QTemporaryDir>
#include <QtTest>

/**
 * Styles and documents that were written with either version of the toolkit. The files in the
 * folder "toolkits" come from a build with the version that their name begins with.
 */
class TestSpearStyleToolkits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldReadAStyleWhole_data();
    void shouldReadAStyleWhole();
    void shouldWriteAStyleAlike_data();
    void shouldWriteAStyleAlike();
    void shouldReadADocumentWhole_data();
    void shouldReadADocumentWhole();
    void shouldKeepEveryFontWeight_data();
    void shouldKeepEveryFontWeight();
};

namespace {

const SpearStyle::SpearState states[] = {SpearStyle::ssNormal, SpearStyle::ssSelected,
                                         SpearStyle::ssHovered, SpearStyle::ssLinked};

QByteArray fixture(const QString &name)
{
    QFile file(TestSupport::sourceFile(QStringLiteral("tests/style/toolkits/")) + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/** The style that the files hold: something in each field, different in each state. */
void fill(SpearStyle &style)
{
    QFont plain(QStringLiteral("DejaVu Sans"), 11, QFont::Light);
    plain.setStyleHint(QFont::SansSerif);
    QFont bold(QStringLiteral("Noto Sans CJK SC"), 14, QFont::Bold, true);
    bold.setUnderline(true);
    QFont pixels(QStringLiteral("DejaVu Sans Mono"));
    pixels.setPixelSize(17);
    pixels.setWeight(QFont::Black);
    pixels.setFixedPitch(true);
    pixels.setStrikeOut(true);
    QFont named(QStringLiteral("DejaVu Serif"));
    named.setPointSizeF(10.5);
    named.setStyle(QFont::StyleOblique);
    named.setStyleName(QStringLiteral("Condensed Bold"));
    const QFont fonts[] = {plain, bold, pixels, named};
    for (const SpearStyle::SpearState state : states) {
        style.setTextFont(state, fonts[state]);
        style.setTextColor(state, QColor(10 + state, 20, 30, 255 - state));
        style.setTextBkColor(state, QColor(200, 210 + state, 220, 128));
        style.setBroderPen(state,
                           QPen(QColor(1, 2, 3 + state), 1 + state,
                                Qt::PenStyle(Qt::SolidLine + state), Qt::RoundCap, Qt::BevelJoin));
    }
    style.setTextCount(9);
    style.setInheritanceParent(true);
}

QByteArray writtenBytes(const SpearStyle &style)
{
    QJsonObject object;
    style.write(object);
    return QJsonDocument(object).toJson();
}

void compareFonts(const QFont &actual, const QFont &expected)
{
    QCOMPARE(actual.family(), expected.family());
    QCOMPARE(actual.pointSizeF(), expected.pointSizeF());
    QCOMPARE(actual.pixelSize(), expected.pixelSize());
    QCOMPARE(int(actual.weight()), int(expected.weight()));
    QCOMPARE(actual.style(), expected.style());
    QCOMPARE(actual.styleHint(), expected.styleHint());
    QCOMPARE(actual.styleName(), expected.styleName());
    QCOMPARE(actual.underline(), expected.underline());
    QCOMPARE(actual.strikeOut(), expected.strikeOut());
    QCOMPARE(actual.fixedPitch(), expected.fixedPitch());
}

void compareStyles(const SpearStyle &actual, const SpearStyle &expected)
{
    for (const SpearStyle::SpearState state : states) {
        QVERIFY(actual.textFont(state));
        compareFonts(*actual.textFont(state), *expected.textFont(state));
        QCOMPARE(actual.textColor(state), expected.textColor(state));
        QCOMPARE(actual.textBkColor(state), expected.textBkColor(state));
        QVERIFY(actual.broderPen(state));
        QCOMPARE(*actual.broderPen(state), *expected.broderPen(state));
    }
    QCOMPARE(actual.textCount(), expected.textCount());
    QCOMPARE(actual.inheritanceParent(), expected.inheritanceParent());
}

void addToolkits()
{
    QTest::addColumn<QString>("toolkit");
    QTest::newRow("Qt 5") << QStringLiteral("qt5");
    QTest::newRow("Qt 6") << QStringLiteral("qt6");
}

} // namespace

void TestSpearStyleToolkits::shouldReadAStyleWhole_data()
{
    addToolkits();
}

void TestSpearStyleToolkits::shouldReadAStyleWhole()
{
    QFETCH(const QString, toolkit);
    const QByteArray text = fixture(toolkit + QStringLiteral(".spearstyle"));
    QVERIFY(!text.isEmpty());
    SpearStyle style;
    style.read(QJsonDocument::fromJson(text).object());

    SpearStyle expected;
    fill(expected);
    compareStyles(style, expected);
}

void TestSpearStyleToolkits::shouldWriteAStyleAlike_data()
{
    addToolkits();
}

void TestSpearStyleToolkits::shouldWriteAStyleAlike()
{
    QFETCH(const QString, toolkit);
    SpearStyle style;
    fill(style);

    QCOMPARE(writtenBytes(style), fixture(toolkit + QStringLiteral(".spearstyle")));
}

void TestSpearStyleToolkits::shouldReadADocumentWhole_data()
{
    addToolkits();
}

void TestSpearStyleToolkits::shouldReadADocumentWhole()
{
    QFETCH(const QString, toolkit);
    const QString name = toolkit + QStringLiteral(".fishbone.json");
    QVERIFY(!fixture(name).isEmpty());
    const QTemporaryDir folder;
    FishModel model;
    QCOMPARE(model.loadFishFromFile(
                 TestSupport::sourceFile(QStringLiteral("tests/style/toolkits/")) + name),
             int(MODEL_NO_ERROR));

    const TreeItem *const bone = model.getFishHeadTreeItem()->childAtIndex(0);
    QCOMPARE(bone->title(), QStringLiteral("人员 \"and\" tools"));
    QCOMPARE(bone->planEndDate(), Q_INT64_C(1776672000123));
    QCOMPARE(bone->followers(), QStringList({QStringLiteral("a"), QStringLiteral("乙")}));
    SpearStyle expected;
    fill(expected);
    QVERIFY(bone->spearStyle());
    compareStyles(*bone->spearStyle(), expected);
    const QString copy = folder.filePath(QStringLiteral("copy.json"));
    QVERIFY(model.fishList().constFirst()->saveFile(copy));
    QFile file(copy);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), fixture(name));
}

void TestSpearStyleToolkits::shouldKeepEveryFontWeight_data()
{
    QTest::addColumn<int>("weight");
    QTest::addColumn<QString>("text"); // on the scale of Qt 5
    QTest::newRow("thin") << int(QFont::Thin) << QStringLiteral("0");
    QTest::newRow("extra light") << int(QFont::ExtraLight) << QStringLiteral("12");
    QTest::newRow("light") << int(QFont::Light) << QStringLiteral("25");
    QTest::newRow("normal") << int(QFont::Normal) << QStringLiteral("50");
    QTest::newRow("medium") << int(QFont::Medium) << QStringLiteral("57");
    QTest::newRow("demi bold") << int(QFont::DemiBold) << QStringLiteral("63");
    QTest::newRow("bold") << int(QFont::Bold) << QStringLiteral("75");
    QTest::newRow("extra bold") << int(QFont::ExtraBold) << QStringLiteral("81");
    QTest::newRow("black") << int(QFont::Black) << QStringLiteral("87");
}

void TestSpearStyleToolkits::shouldKeepEveryFontWeight()
{
    QFETCH(const int, weight);
    QFETCH(const QString, text);
    QFont font(QStringLiteral("DejaVu Sans"), 12);
    font.setWeight(QFont::Weight(weight));
    SpearStyle style;
    style.setTextFont(SpearStyle::ssNormal, font);

    const QByteArray json = writtenBytes(style);
    SpearStyle read;
    read.read(QJsonDocument::fromJson(json).object());

    QVERIFY2(json.contains("\"DejaVu Sans,12,-1,5," + text.toLatin1() + ",0,0,0,0,0\""),
             json.constData());
    QCOMPARE(int(read.textFont(SpearStyle::ssNormal)->weight()), weight);
}

FISHBONE_TEST(TestSpearStyleToolkits)
#include "tst_spearstyle_toolkits.moc"
