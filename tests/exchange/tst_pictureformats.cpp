// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/program/testprogram.h>

#include <fishbone/exchange/picturedrawing.h>
#include <fishbone/exchange/pictureformats.h>

#include <QGraphicsScene>
#include <QImage>
#include <QtTest>

/** The formats of pictures. */
class TestPictureFormats : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldKnowWhatHasRoom_data();
    void shouldKnowWhatHasRoom();
    void shouldWriteWhatEachFormatBeginsWith_data();
    void shouldWriteWhatEachFormatBeginsWith();
};

void TestPictureFormats::shouldKnowWhatHasRoom_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<bool>("hasRoom");
    using Format = PictureExport::Format;
    const double pixels = PictureExport::maximalPixels;
    QTest::newRow("PNG") << int(Format::Png) << QSizeF(pixels, 10) << true;
    QTest::newRow("wide PNG") << int(Format::Png) << QSizeF(pixels + 1, 10) << false;
    QTest::newRow("large PNG") << int(Format::Png) << QSizeF(pixels, pixels) << false;
    QTest::newRow("large SVG") << int(Format::Svg) << QSizeF(pixels, pixels) << true;
    QTest::newRow("SVG beyond all")
        << int(Format::Svg) << QSizeF(PictureFormats::maximalUnits + 1, 9) << false;
    QTest::newRow("PDF") << int(Format::Pdf) << QSizeF(1000, 1000) << true;
    QTest::newRow("high PDF") << int(Format::Pdf) << QSizeF(10, 2.0 * PictureExport::maximalPoints)
                              << false;
}

void TestPictureFormats::shouldKnowWhatHasRoom()
{
    QFETCH(int, format);
    QFETCH(QSizeF, size);
    QFETCH(bool, hasRoom);
    const PictureExport::Result result = PictureFormats::check(PictureExport::Format(format), size);
    QCOMPARE(bool(result), hasRoom);
    QCOMPARE(result.reason.isEmpty(), hasRoom);
}

void TestPictureFormats::shouldWriteWhatEachFormatBeginsWith_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<QByteArray>("beginning");
    QTest::newRow("PNG") << int(PictureExport::Format::Png) << QByteArray("\x89PNG");
    QTest::newRow("SVG") << int(PictureExport::Format::Svg) << QByteArray("<?xml");
    QTest::newRow("PDF") << int(PictureExport::Format::Pdf) << QByteArray("%PDF");
}

void TestPictureFormats::shouldWriteWhatEachFormatBeginsWith()
{
    QFETCH(int, format);
    QFETCH(QByteArray, beginning);
    QGraphicsScene scene;
    scene.addRect(QRectF(0, 0, 40, 20));
    const SceneExtent extent = extentOf(scene);
    const PictureFrame frame{extent.rect.size(), QRectF(QPointF(), extent.rect.size()),
                             extent.rect};
    const PictureOptions options;
    PictureDrawing drawing(scene, extent, frame, options);
    QByteArray picture;
    QVERIFY(PictureFormats::draw(PictureExport::Format(format), drawing, picture));
    QVERIFY(picture.startsWith(beginning));
}

FISHBONE_TEST(TestPictureFormats)

#include "tst_pictureformats.moc"
