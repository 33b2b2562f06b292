// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <QtTest>

#include <fishbone/items/spearitem.h>
#include <fishbone/model/fishmodel.h>
#include <tests/program/testprogram.h>
#include <tests/support/pictures.h>

using namespace TestSupport;

// Outside all namespaces, as Qt asks for.
static void takeOwnResourcesAway()
{
    Q_CLEANUP_RESOURCE(fishbone);
}

static void takeHostResourcesAway()
{
    Q_CLEANUP_RESOURCE(hostresources);
}

namespace {
/** A header of 300 pixels as it is drawn, from its head in the middle of the left edge. */
QImage drawnHeader()
{
    SpearItem header(QStringLiteral("Head"), 0, 20.0);
    header.setLine(0, 0, 300, 0);
    QImage image = whitePicture({300, 80});
    QPainter painter(&image);
    painter.translate(0, 40);
    const QStyleOptionGraphicsItem option;
    header.paint(&painter, &option, nullptr);
    return image;
}
} // namespace

/** A host that brings its own pictures and template, or none. */
class TestHostResources : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { takeOwnResourcesAway(); }
    void shouldShowAPictureThatIsNoVectors();
    void shouldRefuseATemplateThatIsNoDiagram();
    void shouldDoWithoutPicturesAndTemplate();
};

void TestHostResources::shouldShowAPictureThatIsNoVectors()
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("Cannot read file")));
    const QImage image = drawnHeader();

    const QRect head(0, 40 - 20, 20, 40); // the picture has 20 by 40 pixels
    for (const QPoint corner : {head.topLeft(), head.topRight(), head.bottomLeft(), head.center()})
        QCOMPARE(image.pixelColor(corner), QColor(Qt::red));
    QCOMPARE(image.pixelColor(head.topRight() + QPoint(1, 0)), QColor(Qt::white));
}

void TestHostResources::shouldRefuseATemplateThatIsNoDiagram()
{
    FishModel model;
    QCOMPARE(model.loadFishTempl(), int(MODEL_DATA_ERROR));
    QCOMPARE(model.rowCount(), 0);
}

void TestHostResources::shouldDoWithoutPicturesAndTemplate()
{
    takeHostResourcesAway();

    FishModel model;
    QCOMPARE(model.loadFishTempl(), int(MODEL_FILE_OPEN_ERROR));
    QCOMPARE(model.rowCount(), 0);
    const QImage image = drawnHeader();
    QCOMPARE(image.pixelColor(QPoint(10, 25)), QColor(Qt::white));   // where the picture was
    QVERIFY(image.pixelColor(QPoint(150, 40)) != QColor(Qt::white)); // the backbone
}

FISHBONE_TEST(TestHostResources)
#include "tst_hostresources.moc"
