// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/clearspear.h>
#include <fishbone/exchange/diagrampicture.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>

#include <tests/program/testprogram.h>
#include <tests/support/editorfixture.h>
#include <tests/support/filecontent.h>
#include <tests/support/pictures.h>
#include <tests/support/sourcefolder.h>

#include <QFile>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPainter>
#include <QProcess>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <QtTest>

#include <algorithm>
#include <cmath>

namespace {
using TestSupport::contentOf;

const QString sample = QStringLiteral("samples/checkout-outage.fishbone.json");

/** What of its uuid names a subject in a file. */
QByteArray idOf(const TreeItem &subject)
{
    return subject.uuid().mid(1, 36).toUtf8();
}

} // namespace

class TestDiagramPicture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldWriteAllFormats_data();
    void shouldWriteAllFormats();
    void shouldRefuseOtherNames();
    void shouldFitThePage();
    void shouldBeLargestWhenArranged();
    void shouldTellTheArrangementToAnEditor();
    void shouldSayHowManyAreLeftOut();
    void shouldShowWhatIsExpanded();
    void shouldPaintInParts();
    void shouldTellWhereTextsStand();
    void shouldKeepTheFileThatCannotBeReplaced();
    void shouldSayWhenAPictureIsTooLarge();
    void shouldReportWhatIsDone_data();
    void shouldReportWhatIsDone();
    void shouldKeepTheOldFileWhenCancelled_data();
    void shouldKeepTheOldFileWhenCancelled();
    void shouldEndPaintingWhenCancelled();

private:
    /** Writes the sample, with @p isPage as a page of paper. */
    PictureExport::Result write(const QString &path, bool isPage,
                                const PictureOptions &options) const
    {
        const DiagramPicture picture(head());
        return isPage ? picture.writePage(path, QSizeF(297, 210), 10, options)
                      : picture.write(path, options);
    }
    const TreeItem *head() const { return m_root.childAtIndex(0); }

    TreeItem m_root;
    QTemporaryDir m_folder;
};

void TestDiagramPicture::initTestCase()
{
    const QByteArray bytes = contentOf(TestSupport::sourceFile(sample));
    FishModel().read(QJsonDocument::fromJson(bytes).object(), &m_root, 0);
    QVERIFY(head());
}

void TestDiagramPicture::shouldWriteAllFormats_data()
{
    QTest::addColumn<QByteArray>("start");
    QTest::newRow("png") << QByteArray("\x89PNG");
    QTest::newRow("svg") << QByteArray("<?xml");
    QTest::newRow("pdf") << QByteArray("%PDF");
    QTest::newRow("html") << QByteArray("<!DOCTYPE html>");
    QTest::newRow("HTML") << QByteArray("<!DOCTYPE html>");
}

void TestDiagramPicture::shouldWriteAllFormats()
{
    QFETCH(QByteArray, start);
    const QString name = m_folder.filePath(QStringLiteral("picture.") +
                                           QString::fromLatin1(QTest::currentDataTag()));
    const DiagramPicture picture(head());
    QVERIFY(DiagramPicture::canWrite(name));
    const PictureExport::Result result = picture.write(name);
    QVERIFY2(result, qPrintable(result.reason));
    QVERIFY(contentOf(name).startsWith(start));
    if (name.endsWith(QLatin1String("png"))) {
        const QImage image(name);
        QVERIFY(qAbs(image.width() - picture.size().width() - 40) <= 1);
        QCOMPARE(image.pixelColor(0, 0), QColor(Qt::white));
    }
    const QString pictures = qEnvironmentVariable("FISHBONE_PICTURES");
    if (!pictures.isEmpty())
        QFile::copy(name, pictures + QStringLiteral("/written.") +
                              QString::fromLatin1(QTest::currentDataTag()));
}

void TestDiagramPicture::shouldRefuseOtherNames()
{
    const QString name = m_folder.filePath(QStringLiteral("picture.gif"));
    QVERIFY(!DiagramPicture::canWrite(name));
    const PictureExport::Result result = DiagramPicture(head()).write(name);
    QVERIFY(result.error == PictureExport::Error::UnknownFormat);
    QVERIFY(!result.reason.isEmpty());
    QVERIFY(!QFile::exists(name));
}

void TestDiagramPicture::shouldFitThePage()
{
    const QString name = m_folder.filePath(QStringLiteral("page.pdf"));
    DiagramPicture picture(head());
    picture.arrangeFor(QSizeF(277, 190));
    QVERIFY(picture.writePage(name, QSizeF(297, 210)));
    QProcess info;
    info.start(QStringLiteral("pdfinfo"), {name});
    QVERIFY(info.waitForFinished());
    const QString text = QString::fromUtf8(info.readAllStandardOutput());
    QVERIFY2(text.contains(QLatin1String("Pages:           1")), qPrintable(text));
    QVERIFY2(text.contains(QLatin1String("(A4)")), qPrintable(text));
    info.start(QStringLiteral("pdftotext"), {name, QStringLiteral("-")});
    QVERIFY(info.waitForFinished());
    QVERIFY(info.readAllStandardOutput().contains("Dashboards"));
    // A pixel a millimetre: nothing is drawn in the margins, and the drawing reaches two of them.
    info.start(QStringLiteral("pdftoppm"),
               {QStringLiteral("-r"), QStringLiteral("25.4"), QStringLiteral("-png"), name});
    QVERIFY(info.waitForFinished());
    const QImage paper = QImage::fromData(info.readAllStandardOutput(), "PNG");
    QVERIFY(qAbs(paper.width() - 297) <= 1 && qAbs(paper.height() - 210) <= 1);
    const QRect within = paper.rect().adjusted(9, 9, -9, -9);
    const QRect drawn = TestSupport::inkedArea(paper);
    QVERIFY(!drawn.isEmpty());
    QVERIFY(within.contains(drawn));
    QVERIFY(drawn.width() >= within.width() - 8 || drawn.height() >= within.height() - 8);

    QVERIFY(!picture.writePage(name, QSizeF(15, 210)));
    QVERIFY(!picture.writePage(name, QSizeF(1e6, 210)));
}

void TestDiagramPicture::shouldBeLargestWhenArranged()
{
    const QSizeF slide(1920, 1080);
    DiagramPicture picture(head());
    picture.arrangeFor(slide);
    const double size = picture.textSizeOn(slide);
    QVERIFY(qAbs(size * 2 - picture.textSizeOn(slide * 2)) < 1e-6);
    for (const double headWidth : {70.0, 90.0, 130.0}) {
        for (const auto sides :
             {DiagramLook::OneSide, DiagramLook::UnevenSides, DiagramLook::BothSides}) {
            DiagramLook::Options options;
            options.headWidth = headWidth;
            options.sides = sides;
            QVERIFY(DiagramPicture(head(), options).textSizeOn(slide) <= size * 1.01 + 1e-9);
        }
    }
    picture.arrangeFor(QSizeF(100, 1000));
    QVERIFY(picture.size().width() < picture.size().height());
}

void TestDiagramPicture::shouldTellTheArrangementToAnEditor()
{
    TestSupport::EditorFixture fish(
        QJsonDocument::fromJson(contentOf(TestSupport::sourceFile(sample))).object());
    const TreeItem *const shown = fish.model.getTreeItem(fish.model.index(0, 0));
    const QSizeF narrow(297, 420);
    DiagramLook::Options chosen;
    chosen.isHeadLeft = true;
    chosen.hasButtons = false;
    chosen.palette = DiagramLook::DarkColors;
    DiagramPicture picture(shown, chosen);
    QVERIFY(picture.options() == chosen);
    picture.arrangeFor(narrow);

    const DiagramLook::Options found = DiagramPicture::arrangedFor(narrow, shown, chosen);

    QVERIFY(found == picture.options());
    QVERIFY(found.wrapLimit > 0); // upright paper wants short lines
    QVERIFY(found.widensLines);
    QVERIFY(found.isHeadLeft && !found.hasButtons && found.palette == DiagramLook::DarkColors);
    QCOMPARE(DiagramPicture(shown, found).size(), picture.size());
    fish.editor.setLook(DiagramLook::Clear);
    fish.editor.expandAll();
    fish.editor.setLookOptions(found);
    const ClearSpear *const place = ClearSpear::of(*fish.editor.headSpear());
    QVERIFY(place);
    QCOMPARE(place->extent.size(), picture.size());
}

void TestDiagramPicture::shouldSayHowManyAreLeftOut()
{
    const QString name = m_folder.filePath(QStringLiteral("levels.svg"));
    QVERIFY(DiagramPicture(head(), {}, 0).write(name));
    QStringList counts;
    QXmlStreamReader xml(contentOf(name));
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement || xml.name() != QLatin1String("text"))
            continue;
        const QString text = xml.readElementText();
        if (text.startsWith(u'+'))
            counts << text;
    }
    QVERIFY(!xml.hasError());
    QCOMPARE(counts.size(), head()->childCount());
    int all = 0;
    for (const QString &count : counts)
        all += count.toInt();
    QCOMPARE(all, 78 - head()->childCount()); // 79 subjects with the head
}

void TestDiagramPicture::shouldShowWhatIsExpanded()
{
    const TreeItem *const expanded = head()->childAtIndex(1);
    const DiagramPicture picture(head(), {},
                                 [expanded](const TreeItem &item) { return &item == expanded; });
    QByteArray svg;
    QVERIFY(picture.render(PictureExport::Format::Svg, PictureOptions(), svg));
    for (const TreeItem *category : head()->childItems()) {
        for (const TreeItem *cause : category->childItems()) {
            QCOMPARE(svg.contains(idOf(*cause)), category == expanded);
            for (const TreeItem *deeper : cause->childItems())
                QVERIFY(!svg.contains(idOf(*deeper)));
        }
    }
}

void TestDiagramPicture::shouldPaintInParts()
{
    const DiagramPicture picture(head());
    const QSize size(int(std::ceil(picture.size().width())),
                     int(std::ceil(picture.size().height())));
    const auto painted = [&](const QList<QRectF> &parts) {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        for (const QRectF &part : parts)
            picture.paint(painter, part, part);
        return image;
    };
    const QRectF whole(QPointF(0, 0), size);
    const QImage atOnce = painted({whole});
    QVERIFY(atOnce != painted({}));
    const qreal x = std::floor(whole.width() / 2);
    QCOMPARE(
        painted({QRectF(0, 0, x, whole.height()), QRectF(x, 0, whole.width() - x, whole.height())}),
        atOnce);
    // Half as large.
    QImage small(size / 2, QImage::Format_RGB32);
    small.fill(Qt::white);
    QPainter painter(&small);
    picture.paint(painter, QRectF(QPointF(), QSizeF(size) / 2), whole);
    painter.end();
    QVERIFY(small.pixelColor(small.width() - 20, small.height() / 2) != QColor(Qt::white));
}

void TestDiagramPicture::shouldTellWhereTextsStand()
{
    const DiagramPicture picture(head());
    const QList<QRectF> texts = picture.texts();
    QVERIFY(texts.size() >= 79); // one for each subject
    const QRectF whole(QPointF(), picture.size());
    for (const QRectF &text : texts)
        QVERIFY(whole.adjusted(-1, -1, 1, 1).contains(text));
}

void TestDiagramPicture::shouldKeepTheFileThatCannotBeReplaced()
{
    const PictureExport::Result result =
        DiagramPicture(head()).write(m_folder.filePath(QStringLiteral("none/picture.svg")));
    QVERIFY(result.error == PictureExport::Error::CannotWrite);
    QVERIFY(!result.reason.isEmpty());
}

void TestDiagramPicture::shouldSayWhenAPictureIsTooLarge()
{
    PictureOptions options;
    options.scale = 100;
    const DiagramPicture picture(head());
    const QString name = m_folder.filePath(QStringLiteral("large.png"));
    QVERIFY(picture.write(name, options).error == PictureExport::Error::TooLarge);
    QVERIFY(!QFile::exists(name));
    QVERIFY(picture.write(m_folder.filePath(QStringLiteral("large.svg")), options));
    options.scale = 0;
    QVERIFY(picture.write(name, options).error == PictureExport::Error::BadOptions);
}

void TestDiagramPicture::shouldReportWhatIsDone_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isPage");
    for (const char *suffix : {"png", "svg", "pdf", "html"})
        QTest::newRow(suffix) << QStringLiteral("progress.") + QLatin1String(suffix) << false;
    QTest::newRow("page") << QStringLiteral("page.pdf") << true;
}

void TestDiagramPicture::shouldReportWhatIsDone()
{
    QFETCH(QString, name);
    QFETCH(bool, isPage);
    QList<int> steps;
    int whole = 0;
    PictureOptions options;
    options.progress = [&](int done, int total) {
        steps.append(done);
        whole = total;
        return true;
    };
    QVERIFY(write(m_folder.filePath(name), isPage, options));
    QVERIFY(std::is_sorted(steps.cbegin(), steps.cend()));
    QVERIFY(steps.size() >= 2);
    QCOMPARE(steps.constFirst(), 0);
    QCOMPARE(steps.constLast(), whole);
}

void TestDiagramPicture::shouldKeepTheOldFileWhenCancelled_data()
{
    shouldReportWhatIsDone_data();
}

/** Whenever it is cancelled: at each report that there is. */
void TestDiagramPicture::shouldKeepTheOldFileWhenCancelled()
{
    QFETCH(QString, name);
    QFETCH(bool, isPage);
    const QString path = m_folder.filePath(name);
    int reports = 0;
    PictureOptions options;
    options.progress = [&reports](int, int) {
        ++reports;
        return true;
    };
    QVERIFY(write(path, isPage, options));
    const int all = reports;
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("old");
    file.close();
    for (int allowed : {0, 1, all / 2, all - 1}) {
        options.progress = [&allowed](int, int) { return allowed-- > 0; };
        const auto result = write(path, isPage, options);
        QVERIFY(result.error == PictureExport::Error::Cancelled);
        QCOMPARE(result.reason, QStringLiteral("it was cancelled"));
        QCOMPARE(contentOf(path), QByteArray("old"));
    }
}

void TestDiagramPicture::shouldEndPaintingWhenCancelled()
{
    const DiagramPicture picture(head());
    QImage image(200, 200, QImage::Format_RGB32);
    QPainter painter(&image);
    const QRectF whole(QPointF(), picture.size());
    const QRectF target(0, 0, 200, 200);
    QVERIFY(!picture.paint(painter, target, whole, [](int, int) { return false; }));
    QVERIFY(picture.paint(painter, target, whole, [](int, int) { return true; }));
}

FISHBONE_TEST(TestDiagramPicture)
#include "tst_diagrampicture.moc"
