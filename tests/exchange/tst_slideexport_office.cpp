// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/program/testprogram.h>
#include <tests/support/editorfixture.h>
#include <tests/support/filecontent.h>

#include <fishbone/drawing/screenonly.h>
#include <fishbone/exchange/outlinewalk.h>
#include <fishbone/exchange/pictureexport.h>
#include <fishbone/exchange/slideexport.h>
#include <fishbone/items/taskstatusinfo.h>

#include <QPainter>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

namespace {
using TestSupport::contentOf;

constexpr int timeLimit = 200000; ///< milliseconds; an office takes long to start
const QSize slide(960, 540);
constexpr double tolerance = 2; ///< of 255; two bones at the wrong places are more

/** Runs a program; whether it went well. */
bool run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    return process.waitForFinished(timeLimit) && process.exitStatus() == QProcess::NormalExit &&
           process.exitCode() == 0;
}

QString withoutBlanks(QString text)
{
    static const QRegularExpression blanks(QStringLiteral("\\s+"));
    return text.remove(blanks);
}

/** The classic look cuts titles. */
QString shownTitle(const TreeItem &subject, int look)
{
    constexpr int cutAfter = 6;
    return look == DiagramLook::Clear ? subject.title() : subject.title().left(cutAfter);
}

/** The buttons of bones are no part of pictures. */
void hideButtons(QGraphicsScene &scene)
{
    const QList<QGraphicsItem *> items = scene.items();
    for (QGraphicsItem *item : items) {
        if (isForTheScreenOnly(*item))
            item->hide();
    }
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
    void shouldLookInAnOfficeAsItIsDrawn_data();
    void shouldLookInAnOfficeAsItIsDrawn();
};

void TestSlideExportOffice::shouldLookInAnOfficeAsItIsDrawn_data()
{
    QTest::addColumn<int>("look");
    QTest::newRow("clear") << int(DiagramLook::Clear);
    QTest::newRow("classic") << int(DiagramLook::Classic);
}

void TestSlideExportOffice::shouldLookInAnOfficeAsItIsDrawn()
{
    const QString office = QStandardPaths::findExecutable(QStringLiteral("soffice"));
    if (office.isEmpty())
        QSKIP("there is no LibreOffice");
    QFETCH(int, look);
    TestSupport::EditorFixture fish(
        QStringLiteral("Late deliveries[Carrier & stock[No vehicle[Flat tyre],Strike],People[Sick"
                       "[Flu],New],Method[No plan,Old map],Machine[Worn]]"));
    fish.subject(QStringLiteral("Worn"))->setStatus(tsRunning);
    fish.subject(QStringLiteral("Worn"))->setProgress(40);
    fish.subject(QStringLiteral("Strike"))->setStatus(tsFinish);
    fish.editor.setLook(DiagramLook::Kind(look));
    fish.editor.updateFish(true);
    fish.editor.expandAll();
    QGraphicsScene &scene = *fish.editor.scene();
    hideButtons(scene);
    const TreeItem &head = *fish.subject(QStringLiteral("Late deliveries"));
    const QTemporaryDir folder;
    const QString presentation = folder.filePath(QStringLiteral("a.pptx"));
    QVERIFY(SlideExport::write(scene, head, presentation));

    QVERIFY(run(office,
                {QStringLiteral("-env:UserInstallation=file://") +
                     folder.filePath(QStringLiteral("profile")),
                 QStringLiteral("--headless"), QStringLiteral("--convert-to"),
                 QStringLiteral("pdf"), QStringLiteral("--outdir"), folder.path(), presentation}));
    const QString pdf = folder.filePath(QStringLiteral("a.pdf"));
    const QString words = folder.filePath(QStringLiteral("a.txt"));
    QVERIFY(run(QStringLiteral("pdftotext"), {QStringLiteral("-raw"), pdf, words}));
    // The letters of a slanted title come in their order, though not on one line.
    const QString letters = withoutBlanks(QString::fromUtf8(contentOf(words)));
    OutlineWalk::walk(head, [&](const TreeItem &subject, int) {
        const QString title = withoutBlanks(shownTitle(subject, look));
        QVERIFY2(letters.contains(title), qPrintable(title));
    });

    const QString page = folder.filePath(QStringLiteral("page"));
    QVERIFY(run(QStringLiteral("pdftoppm"),
                {QStringLiteral("-png"), QStringLiteral("-singlefile"),
                 QStringLiteral("-scale-to-x"), QString::number(slide.width()),
                 QStringLiteral("-scale-to-y"), QString::number(slide.height()), pdf, page}));
    const QImage shown(page + QStringLiteral(".png"));
    QCOMPARE(shown.size(), slide);
    const double difference = differenceOf(shown, expectedPage(scene));
    QVERIFY2(difference < tolerance, qPrintable(QString::number(difference)));
}

FISHBONE_TEST(TestSlideExportOffice)

#include "tst_slideexport_office.moc"
