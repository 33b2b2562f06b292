// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/program/testprogram.h>
#include <tests/support/clearpictures.h>

#include <fishbone/exchange/clearwriting.h>

#include <QImage>
#include <QtTest>

namespace {

std::vector<ClearSubject> subjects()
{
    std::vector<ClearSubject> all(2);
    all[0].title = QStringLiteral("Effect");
    all[1].title = QStringLiteral("Category");
    all[1].parent = 0;
    return all;
}

/** A picture of two subjects with all that it needs. */
struct TwoSubjects
{
    ClearPictureContent content = ClearPictures::contentOf(subjects());
    ClearTree tree{content.subjects};
    ClearTextCache cache;
    ClearFonts fonts{QFont(QStringLiteral("Noto Sans CJK SC"))};
    ClearLayout layout{tree, fonts, ClearOptions(), cache, {}};
    ClearPicture picture{content, layout, fonts, ClearColors(DiagramLook::DistinctColors)};
};

} // namespace

/** Pictures in the clear look as files. */
class TestClearWriting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldPaintWithinTheTarget();
    void shouldWriteEachFormat();
    void shouldFillTheBackgroundOfAPng();
    void shouldKeepNoOpacityThatIsTheSameEverywhere();
};

void TestClearWriting::shouldPaintWithinTheTarget()
{
    const TwoSubjects two;
    QImage page(300, 200, QImage::Format_ARGB32_Premultiplied);
    page.fill(Qt::transparent);
    const QRect target(100, 50, 150, 100);
    QPainter painter(&page);
    QVERIFY(ClearWriting::paint(painter, two.picture, target));
    painter.end();
    int inside = 0;
    for (int y = 0; y < page.height(); ++y) {
        for (int x = 0; x < page.width(); ++x) {
            const bool isDrawn = page.pixelColor(x, y).alpha() > 0;
            QVERIFY(!isDrawn || target.adjusted(-1, -1, 1, 1).contains(x, y));
            inside += isDrawn ? 1 : 0;
        }
    }
    QVERIFY(inside > 100);
}

void TestClearWriting::shouldWriteEachFormat()
{
    const TwoSubjects two;
    const PictureOptions options;
    PictureProgress progress(options, two.picture.count());
    const QSizeF size(300, 200);
    const ClearWriting writing{two.picture, options, size, QRectF(QPointF(), size), progress};
    QByteArray svg;
    QByteArray png;
    QByteArray pdf;
    QVERIFY(writing.svg(svg));
    QVERIFY(writing.png(png));
    QVERIFY(writing.pdf(QSizeF(150, 100), pdf));
    QVERIFY(svg.contains("<svg") && svg.contains("Category"));
    QCOMPARE(QImage::fromData(png).size(), QSize(300, 200));
    QVERIFY(pdf.startsWith("%PDF"));
}

void TestClearWriting::shouldFillTheBackgroundOfAPng()
{
    const TwoSubjects two;
    PictureOptions options;
    options.background = Qt::yellow;
    PictureProgress progress(options, two.picture.count());
    const ClearWriting writing{two.picture, options, QSizeF(60, 40), QRectF(20, 10, 20, 20),
                               progress};
    QByteArray png;
    QVERIFY(writing.png(png));
    QCOMPARE(QImage::fromData(png).pixelColor(2, 2), QColor(Qt::yellow));
}

void TestClearWriting::shouldKeepNoOpacityThatIsTheSameEverywhere()
{
    const TwoSubjects two;
    for (const QColor &background : {QColor(Qt::white), QColor(Qt::transparent), QColor()}) {
        PictureOptions options;
        options.background = background;
        PictureProgress progress(options, two.picture.count());
        const ClearWriting writing{two.picture, options, QSizeF(300, 200), QRectF(0, 0, 300, 200),
                                   progress};
        QByteArray png;
        QVERIFY(writing.png(png));
        const QImage image = QImage::fromData(png);
        QCOMPARE(image.hasAlphaChannel(), background != Qt::white);
        QCOMPARE(image.pixelColor(0, 0).alpha(), background == Qt::white ? 255 : 0);
    }
}

FISHBONE_TEST(TestClearWriting)

#include "tst_clearwriting.moc"
