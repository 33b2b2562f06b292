// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/export/picturepreview.h>
#include <tests/program/testprogram.h>

#include <QImage>
#include <QPainter>
#include <QtTest>

/** The small picture of what is going to be exported. */
class TestPicturePreview : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowPaperInTheMiddle();
    void shouldKeepAMarginAroundWhatIsPainted();
    void shouldShowThatPaperIsTransparent();
    void shouldShowNothingWithoutPaper();
    void shouldFillTheRoomThatThereIs();
};

namespace {

void paintNothing(QPainter &, const QRectF &) {}

QImage imageOf(const PicturePreview &preview)
{
    return preview.pixmap(Qt::ReturnByValue).toImage();
}

} // namespace

void TestPicturePreview::shouldShowPaperInTheMiddle()
{
    PicturePreview preview;
    preview.draw(QSizeF(1000, 250), Qt::red, paintNothing); // four times as wide as high
    const QImage image = imageOf(preview);
    QCOMPARE(image.size(), preview.size() * preview.devicePixelRatioF());
    const QColor window = preview.palette().color(QPalette::Window);
    const int middle = image.width() / 2;
    QCOMPARE(image.pixelColor(middle, image.height() / 2), QColor(Qt::red));
    QCOMPARE(image.pixelColor(2, image.height() / 2), QColor(Qt::red));
    QCOMPARE(image.pixelColor(middle, 2), window);
    QCOMPARE(image.pixelColor(middle, image.height() - 3), window);
}

void TestPicturePreview::shouldKeepAMarginAroundWhatIsPainted()
{
    PicturePreview preview;
    QRectF painted;
    preview.draw(QSizeF(400, 300), Qt::white,
                 [&painted](QPainter &, const QRectF &target) { painted = target; });
    const QRectF whole(QPointF(0, 0), QSizeF(preview.size()));
    QVERIFY(whole.adjusted(2, 2, -2, -2).contains(painted));
    QVERIFY(painted.width() > 0.9 * whole.width());
    QCOMPARE(painted.center(), whole.center());
}

void TestPicturePreview::shouldShowThatPaperIsTransparent()
{
    PicturePreview preview;
    preview.draw(QSizeF(400, 300), Qt::white, paintNothing);
    const QImage white = imageOf(preview);
    preview.draw(QSizeF(400, 300), Qt::transparent, paintNothing);
    QVERIFY(imageOf(preview) != white);
}

void TestPicturePreview::shouldShowNothingWithoutPaper()
{
    PicturePreview preview;
    bool isPainted = false;
    preview.draw(QSizeF(), Qt::red, [&isPainted](QPainter &, const QRectF &) { isPainted = true; });
    QVERIFY(!isPainted);
    const QImage image = imageOf(preview);
    QCOMPARE(image.pixelColor(image.rect().center()), preview.palette().color(QPalette::Window));
}

void TestPicturePreview::shouldFillTheRoomThatThereIs()
{
    PicturePreview preview;
    preview.show();
    QVERIFY(QTest::qWaitForWindowExposed(&preview));
    preview.draw(QSizeF(400, 300), Qt::red, paintNothing);
    for (const QSize &size : {QSize(240, 180), QSize(600, 450)}) {
        preview.resize(size);
        const QImage image = imageOf(preview);
        QCOMPARE(image.size(), size * preview.devicePixelRatioF());
        QCOMPARE(image.pixelColor(3, 3), QColor(Qt::red));
        QCOMPARE(image.pixelColor(image.width() - 3, image.height() - 3), QColor(Qt::red));
    }
}

FISHBONE_TEST(TestPicturePreview)
#include "tst_picturepreview.moc"
