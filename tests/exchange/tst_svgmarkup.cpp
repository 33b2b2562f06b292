// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/program/testprogram.h>

#include <fishbone/exchange/svgmarkup.h>

#include <QPainterPath>
#include <QPen>
#include <QtTest>

/** The attributes of SVG elements. */
class TestSvgMarkup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldWriteNumbersShort_data();
    void shouldWriteNumbersShort();
    void shouldWriteColours();
    void shouldWritePaths();
    void shouldWriteDashesInTheWidthOfThePen();
};

void TestSvgMarkup::shouldWriteNumbersShort_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("whole") << 12.0 << QByteArray("12");
    QTest::newRow("tenth") << 0.54 << QByteArray("0.5");
    QTest::newRow("nearly nothing") << -0.01 << QByteArray("0");
    QTest::newRow("negative") << -3.21 << QByteArray("-3.2");
}

void TestSvgMarkup::shouldWriteNumbersShort()
{
    QFETCH(double, value);
    QFETCH(QByteArray, text);
    QCOMPARE(SvgMarkup::number(value), text);
    QCOMPARE(SvgMarkup::point(QPointF(value, 1)), text + " 1");
}

void TestSvgMarkup::shouldWriteColours()
{
    QCOMPARE(SvgMarkup::paint("fill", QColor(0x10, 0x80, 0x30)), QByteArray(" fill=\"#108030\""));
    QCOMPARE(SvgMarkup::paint("fill", QColor()), QByteArray(" fill=\"none\""));
    QCOMPARE(SvgMarkup::paint("stroke", QColor(0, 0, 0, 51)),
             QByteArray(" stroke=\"#000000\" stroke-opacity=\"0.2\""));
}

void TestSvgMarkup::shouldWritePaths()
{
    QPainterPath path(QPointF(1, 2));
    path.lineTo(3, 4);
    path.cubicTo(5, 6, 7, 8, 9, 10);
    QCOMPARE(SvgMarkup::pathData(path), QByteArray("M1 2L3 4C5 6 7 8 9 10Z"));
}

void TestSvgMarkup::shouldWriteDashesInTheWidthOfThePen()
{
    QPen pen(Qt::black, 2);
    pen.setCapStyle(Qt::RoundCap);
    QCOMPARE(SvgMarkup::dashes(pen), QByteArray());
    pen.setDashPattern({3, 1});
    pen.setCapStyle(Qt::FlatCap);
    QCOMPARE(SvgMarkup::dashes(pen),
             QByteArray(" stroke-dasharray=\"6 2\" stroke-linecap=\"butt\""));
}

FISHBONE_GUILESS_TEST(TestSvgMarkup)

#include "tst_svgmarkup.moc"
