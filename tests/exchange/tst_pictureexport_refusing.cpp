// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/pictureexport.h>

#include <tests/exchange/picturefixture.h>
#include <tests/program/testprogram.h>

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#include <limits>

using namespace PictureFixture;

/** What the export makes no picture of. */
class TestPictureExportRefusing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldRefuseBadOptions_data();
    void shouldRefuseBadOptions();
    void shouldRefuseADrawingWithoutHeightThatHasNoMargin();
    void shouldRefuseWhatIsTooLarge_data();
    void shouldRefuseWhatIsTooLarge();
    void shouldSayWhichScaleFits_data();
    void shouldSayWhichScaleFits();
    void shouldRefuseAnEmptyScene();
    void shouldRefuseAnUnknownSuffix();
    void shouldRefuseANumberThatIsNoFormat();
    void shouldKeepTheOldFileOnFailure();
    void shouldReportATargetThatCannotBeWritten();
};

void TestPictureExportRefusing::shouldRefuseBadOptions_data()
{
    QTest::addColumn<PictureOptions>("options");

    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    QTest::newRow("no scale") << scaledBy(0);
    QTest::newRow("negative scale") << scaledBy(-1);
    QTest::newRow("infinite scale") << scaledBy(infinity);
    QTest::newRow("undefined scale") << scaledBy(nan);
    QTest::newRow("no width") << ofSize(QSize(0, 10));
    QTest::newRow("no height") << ofSize(QSize(10, 0));
    QTest::newRow("negative margin") << withMargin(-1);
    QTest::newRow("infinite margin") << withMargin(infinity);
    QTest::newRow("undefined margin") << withMargin(nan);
}

void TestPictureExportRefusing::shouldRefuseBadOptions()
{
    QFETCH(PictureOptions, options);
    QGraphicsScene scene;
    addRedRectangle(scene);

    for (const PictureFormat format :
         {PictureFormat::Png, PictureFormat::Svg, PictureFormat::Pdf}) {
        QByteArray picture("old");
        const auto result = PictureExport::render(scene, format, options, picture);
        QCOMPARE(result.error, Error::BadOptions);
        QVERIFY(!result.reason.isEmpty());
        QVERIFY(picture.isEmpty());
    }
}

void TestPictureExportRefusing::shouldRefuseADrawingWithoutHeightThatHasNoMargin()
{
    QGraphicsScene scene;
    scene.addLine(0, 0, 40, 0, QPen(Qt::red, 0));

    QByteArray picture("old");
    const auto result = PictureExport::render(scene, PictureFormat::Png, withMargin(0), picture);
    QCOMPARE(result.error, Error::BadOptions);
    QVERIFY(!result.reason.isEmpty());
    QVERIFY(picture.isEmpty());

    QVERIFY(PictureExport::render(scene, PictureFormat::Png, withMargin(1), picture));
}

void TestPictureExportRefusing::shouldRefuseWhatIsTooLarge_data()
{
    QTest::addColumn<PictureFormat>("format");
    QTest::addColumn<PictureOptions>("options");

    QTest::newRow("wide png") << PictureFormat::Png << ofSize(QSize(32768, 10));
    QTest::newRow("high png") << PictureFormat::Png << ofSize(QSize(10, 32768));
    QTest::newRow("large png") << PictureFormat::Png << ofSize(QSize(20000, 20000)); // 1.5 GiB
    QTest::newRow("scaled png") << PictureFormat::Png << scaledBy(1e4);
    QTest::newRow("pdf") << PictureFormat::Pdf << ofSize(QSize(30000, 10));
    QTest::newRow("svg") << PictureFormat::Svg << scaledBy(1e6);
    QTest::newRow("beyond all numbers") << PictureFormat::Svg << scaledBy(1e300);
}

void TestPictureExportRefusing::shouldRefuseWhatIsTooLarge()
{
    QFETCH(PictureFormat, format);
    QFETCH(PictureOptions, options);
    QGraphicsScene scene;
    addRedRectangle(scene);

    QByteArray picture;
    const auto result = PictureExport::render(scene, format, options, picture);
    QCOMPARE(result.error, Error::TooLarge);
    QVERIFY(!result.reason.isEmpty());
    QVERIFY(picture.isEmpty());
}

void TestPictureExportRefusing::shouldSayWhichScaleFits_data()
{
    QTest::addColumn<PictureFormat>("format");
    QTest::addColumn<QSizeF>("size");
    QTest::newRow("wide png") << PictureFormat::Png << QSizeF(100000, 50);
    QTest::newRow("large png") << PictureFormat::Png << QSizeF(30000, 30000);
    QTest::newRow("pdf") << PictureFormat::Pdf << QSizeF(100, 90000);
    QTest::newRow("svg") << PictureFormat::Svg << QSizeF(3e6, 100);
}

void TestPictureExportRefusing::shouldSayWhichScaleFits()
{
    QFETCH(PictureFormat, format);
    QFETCH(QSizeF, size);
    const double factor = PictureExport::fittingFactor(format, size);
    QVERIFY(factor > 0 && factor < 1);
    QVERIFY(PictureExport::check(format, size * factor));
    QVERIFY(!PictureExport::check(format, size * (factor * 1.01)));
    QCOMPARE(PictureExport::fittingFactor(format, QSizeF(100, 100)), 1.0);

    const double scale = PictureExport::roundedScale(2 * factor);
    QVERIFY(scale <= 2 * factor && scale > 2 * factor - 0.001);
    const auto result = PictureExport::check(format, size, scaledBy(2));
    QCOMPARE(result.error, Error::TooLarge);
    QVERIFY2(result.reason.endsWith(QStringLiteral(" %1").arg(scale)), qPrintable(result.reason));
    QVERIFY(PictureExport::check(format, QSizeF(100, 100), scaledBy(2)));
    const auto sized = PictureExport::check(format, size, ofSize(size.toSize()));
    QCOMPARE(sized.reason, PictureExport::check(format, size).reason); // it has no scale
}

void TestPictureExportRefusing::shouldRefuseAnEmptyScene()
{
    QGraphicsScene scene;
    addRedRectangle(scene)->setVisible(false);

    QByteArray picture;
    const auto result = PictureExport::render(scene, PictureFormat::Png, {}, picture);
    QCOMPARE(result.error, Error::NothingToDraw);
    QVERIFY(!result);
    QVERIFY(!result.reason.isEmpty());
}

void TestPictureExportRefusing::shouldRefuseAnUnknownSuffix()
{
    const QTemporaryDir folder;
    QGraphicsScene scene;
    addRedRectangle(scene);

    const QString path = folder.filePath(QStringLiteral("a.bmp"));
    const auto result = PictureExport::write(scene, path);
    QCOMPARE(result.error, Error::UnknownFormat);
    QVERIFY(!result.reason.isEmpty());
    QVERIFY(!QFile::exists(path));
}

void TestPictureExportRefusing::shouldRefuseANumberThatIsNoFormat()
{
    QGraphicsScene scene;
    addRedRectangle(scene);

    QByteArray picture("old");
    const auto result = PictureExport::render(scene, static_cast<PictureFormat>(3), {}, picture);
    QCOMPARE(result.error, Error::UnknownFormat);
    QVERIFY(!result.reason.isEmpty());
    QVERIFY(picture.isEmpty());
}

void TestPictureExportRefusing::shouldKeepTheOldFileOnFailure()
{
    const QTemporaryDir folder;
    QGraphicsScene scene;
    addRedRectangle(scene);
    const QString path = folder.filePath(QStringLiteral("a.png"));
    writeFile(path, "old");

    QCOMPARE(PictureExport::write(scene, path, ofSize(QSize(40000, 10))).error, Error::TooLarge);
    QCOMPARE(contentOf(path), QByteArray("old"));
    scene.clear();
    QCOMPARE(PictureExport::write(scene, path).error, Error::NothingToDraw);
    QCOMPARE(contentOf(path), QByteArray("old"));
}

void TestPictureExportRefusing::shouldReportATargetThatCannotBeWritten()
{
    const QTemporaryDir folder;
    QGraphicsScene scene;
    addRedRectangle(scene);
    QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("folder.png")));

    for (const char *name : {"missing/a.png", "folder.png"}) {
        const auto result = PictureExport::write(scene, folder.filePath(QString::fromLatin1(name)));
        QCOMPARE(result.error, Error::CannotWrite);
        QVERIFY(!result.reason.isEmpty());
    }
    QVERIFY(!QFile::exists(folder.filePath(QStringLiteral("missing"))));
}

FISHBONE_TEST(TestPictureExportRefusing)
#include "tst_pictureexport_refusing.moc"
