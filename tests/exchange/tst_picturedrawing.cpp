// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/program/testprogram.h>

#include <fishbone/exchange/picturedrawing.h>
#include <fishbone/exchange/pictureexport.h>

#include <QGraphicsScene>
#include <QImage>
#include <QPainter>
#include <QtTest>

/** A picture under way. */
class TestPictureDrawing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void shouldFillTheBackground();
    void shouldPlaceTheSourceInTheTarget();
    void shouldDrawASampleWithoutABackground();

private:
    QImage drawn(bool isSample);

    QScopedPointer<QGraphicsScene> m_scene;
    PictureOptions m_options;
};

/** Two boxes side by side. */
void TestPictureDrawing::init()
{
    m_scene.reset(new QGraphicsScene);
    for (const int left : {0, 20})
        m_scene->addRect(QRectF(left, 0, 20, 20), QPen(Qt::NoPen), QBrush(Qt::red));
    m_options = PictureOptions();
}

/** A page of 100 x 60, with the boxes at twice their size in the middle. */
QImage TestPictureDrawing::drawn(bool isSample)
{
    const SceneExtent extent = extentOf(*m_scene);
    const PictureFrame frame{QSizeF(100, 60), QRectF(10, 10, 80, 40), extent.rect};
    PictureDrawing drawing(*m_scene, extent, frame, m_options);
    QImage page(100, 60, QImage::Format_ARGB32_Premultiplied);
    page.fill(Qt::transparent);
    QPainter painter(&page);
    if (isSample)
        drawing.paintSample(painter, 2);
    else if (!drawing.paint(painter))
        return QImage();
    painter.end();
    return page;
}

void TestPictureDrawing::shouldFillTheBackground()
{
    m_options.background = Qt::green;
    QCOMPARE(drawn(false).pixelColor(5, 5), QColor(Qt::green));
    m_options.background = QColor();
    QCOMPARE(drawn(false).pixelColor(5, 5).alpha(), 0);
}

void TestPictureDrawing::shouldPlaceTheSourceInTheTarget()
{
    m_options.background = Qt::white;
    const QImage page = drawn(false);
    QCOMPARE(page.pixelColor(12, 12), QColor(Qt::red));
    QCOMPARE(page.pixelColor(87, 47), QColor(Qt::red));
    QCOMPARE(page.pixelColor(8, 30), QColor(Qt::white));
    QCOMPARE(page.pixelColor(92, 30), QColor(Qt::white));
}

void TestPictureDrawing::shouldDrawASampleWithoutABackground()
{
    m_options.background = Qt::white;
    const QImage page = drawn(true);
    QCOMPARE(page.pixelColor(5, 5).alpha(), 0);
    // One box of two.
    QVERIFY(page.pixelColor(20, 30).alpha() != page.pixelColor(80, 30).alpha());
}

FISHBONE_TEST(TestPictureDrawing)

#include "tst_picturedrawing.moc"
