// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/exchange/exchangefixture.h>
#include <tests/program/testprogram.h>

#include <fishbone/exchange/pictureexport.h>
#include <fishbone/exchange/slideexport.h>

#include <QGraphicsRectItem>
#include <QGraphicsScene>
#include <QGraphicsSimpleTextItem>
#include <QPainter>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

using namespace ExchangeFixture;

namespace {

constexpr int timeLimit = 200000; ///< milliseconds; an office takes long to start
const QSize slide(960, 540);

/** Runs a program; whether it went well. */
bool run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    return process.waitForFinished(timeLimit) && process.exitStatus() == QProcess::NormalExit &&
           process.exitCode() == 0;
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/** A slide as it should look: the drawing in the middle, on 94 percent of the page. */
QImage expectedPage(QGraphicsScene &scene)
{
    const QRectF drawing = PictureExport::visibleRect(scene);
    const double scale =
        0.94 * qMin(slide.width() / drawing.width(), slide.height() / drawing.height());
    QRectF target(QPointF(), drawing.size() * scale);
    target.moveCenter(QPointF(slide.width() / 2.0, slide.height() / 2.0));
    QImage page(slide, QImage::Format_RGB32);
    page.fill(Qt::white);
    QPainter painter(&page);
    painter.setRenderHint(QPainter::Antialiasing);
    scene.render(&painter, target, drawing);
    return page;
}

/** How far two pages are apart on average, from 0 to 255, seen from a distance. */
double differenceOf(const QImage &a, const QImage &b)
{
    const QSize far(96, 54);
    const auto seen = [&far](const QImage &page) {
        return page.scaled(far, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
            .convertToFormat(QImage::Format_Grayscale8);
    };
    const QImage one = seen(a);
    const QImage other = seen(b);
    double sum = 0;
    for (int y = 0; y < far.height(); ++y) {
        for (int x = 0; x < far.width(); ++x)
            sum += qAbs(qGray(one.pixel(x, y)) - qGray(other.pixel(x, y)));
    }
    return sum / (far.width() * far.height());
}

} // namespace

/** Slides as an office shows them, where there is one. */
class TestSlideExportOffice : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldLookInAnOfficeAsItIsDrawn();
};

void TestSlideExportOffice::shouldLookInAnOfficeAsItIsDrawn()
{
    const QString office = QStandardPaths::findExecutable(QStringLiteral("soffice"));
    if (office.isEmpty())
        QSKIP("there is no LibreOffice");
    QGraphicsScene scene;
    scene.addRect(QRectF(0, 0, 800, 400), QPen(Qt::gray, 3), QBrush(QColor(0xe0, 0xf0, 0xe0)));
    scene.addLine(QLineF(40, 360, 760, 40), QPen(QColor(0x80, 0x10, 0x10), 6));
    scene.addEllipse(QRectF(600, 150, 160, 100), QPen(Qt::NoPen), QBrush(QColor(0x20, 0x40, 0xa0)));
    QFont font = QGuiApplication::font();
    font.setPixelSize(36);
    int place = 0;
    const QStringList titles{QStringLiteral("Late deliveries"), QStringLiteral("Carrier & stock"),
                             QStringLiteral("No vehicle")};
    for (const QString &title : titles) {
        QGraphicsSimpleTextItem *const text = scene.addSimpleText(title, font);
        text->setPos(60 + 120 * place, 60 + 90 * place);
        ++place;
    }
    const auto head = treeFrom("Late deliveries[Carrier & stock[No vehicle]]");
    const QTemporaryDir folder;
    const QString presentation = folder.filePath(QStringLiteral("a.pptx"));
    QVERIFY(SlideExport::write(scene, *head, presentation));

    QVERIFY(run(office,
                {QStringLiteral("-env:UserInstallation=file://") +
                     folder.filePath(QStringLiteral("profile")),
                 QStringLiteral("--headless"), QStringLiteral("--convert-to"),
                 QStringLiteral("pdf"), QStringLiteral("--outdir"), folder.path(), presentation}));
    const QString pdf = folder.filePath(QStringLiteral("a.pdf"));
    const QString words = folder.filePath(QStringLiteral("a.txt"));
    QVERIFY(run(QStringLiteral("pdftotext"), {pdf, words}));
    for (const QString &title : titles)
        QVERIFY2(contentOf(words).contains(title.toUtf8()), qPrintable(title));

    const QString page = folder.filePath(QStringLiteral("page"));
    QVERIFY(run(QStringLiteral("pdftoppm"),
                {QStringLiteral("-png"), QStringLiteral("-singlefile"),
                 QStringLiteral("-scale-to-x"), QString::number(slide.width()),
                 QStringLiteral("-scale-to-y"), QString::number(slide.height()), pdf, page}));
    const QImage shown(page + QStringLiteral(".png"));
    QCOMPARE(shown.size(), slide);
    const double difference = differenceOf(shown, expectedPage(scene));
    QVERIFY2(difference < 3, qPrintable(QString::number(difference))); // of 255
}

FISHBONE_TEST(TestSlideExportOffice)

#include "tst_slideexport_office.moc"
