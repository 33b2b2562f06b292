// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/program/testprogram.h>

#include <app/common/themedicon.h>

#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QtTest>

namespace {

QPalette redAndBlue()
{
    QPalette palette;
    palette.setColor(QPalette::Active, QPalette::WindowText, Qt::red);
    palette.setColor(QPalette::Disabled, QPalette::WindowText, Qt::blue);
    return palette;
}

/** The colour of the pixels of @p image that are fully there; invalid when there are several. */
QColor colorOf(const QImage &image)
{
    QColor color;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            if (pixel.alpha() == 255 && color.isValid() && pixel != color)
                return {};
            if (pixel.alpha() == 255)
                color = pixel;
        }
    }
    return color;
}

QIcon anIcon()
{
    return ThemedIcon::icon(QStringLiteral("closepanel"), redAndBlue());
}

} // namespace

class TestThemedIcon : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldTakeTheColorsOfThePalette();
    void shouldBeDrawnInTheSizeThatIsAskedFor();
    void shouldBePaintedInTheMiddle();
    void shouldDrawASizeOnce();
    void shouldBeEmptyWithoutAPicture();
};

void TestThemedIcon::shouldTakeTheColorsOfThePalette()
{
    const QIcon icon = anIcon();
    for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Active, QIcon::Selected})
        QCOMPARE(colorOf(icon.pixmap(QSize(200, 200), mode).toImage()), QColor(Qt::red));
    QCOMPARE(colorOf(icon.pixmap(QSize(200, 200), QIcon::Disabled).toImage()), QColor(Qt::blue));
}

void TestThemedIcon::shouldBeDrawnInTheSizeThatIsAskedFor()
{
    const QIcon icon = anIcon();
    for (const int side : {1, 16, 24, 48, 200})
        QCOMPARE(icon.pixmap(QSize(side, side)).toImage().size(), QSize(side, side));
    QCOMPARE(icon.pixmap(QSize(40, 20)).toImage().size(), QSize(20, 20));
    QVERIFY(icon.pixmap(QSize(0, 20)).isNull());
}

void TestThemedIcon::shouldBePaintedInTheMiddle()
{
    QImage image(300, 100, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    anIcon().paint(&painter, image.rect());
    painter.end();
    QCOMPARE(colorOf(image), QColor(Qt::red));
    QImage sides = image;
    QPainter eraser(&sides);
    eraser.setCompositionMode(QPainter::CompositionMode_Clear);
    eraser.fillRect(100, 0, 100, 100, Qt::black);
    eraser.end();
    QCOMPARE(colorOf(sides), QColor());
}

void TestThemedIcon::shouldDrawASizeOnce()
{
    const QIcon icon = anIcon();
    QCOMPARE(icon.pixmap(QSize(24, 24)).cacheKey(), icon.pixmap(QSize(24, 24)).cacheKey());
    QVERIFY(icon.pixmap(QSize(24, 24)).cacheKey() != icon.pixmap(QSize(32, 32)).cacheKey());
}

void TestThemedIcon::shouldBeEmptyWithoutAPicture()
{
    QVERIFY(ThemedIcon::icon(QStringLiteral("nothing of the kind"), redAndBlue()).isNull());
}

FISHBONE_TEST(TestThemedIcon)
#include "tst_themedicon.moc"
