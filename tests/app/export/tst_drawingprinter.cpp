// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/diagram/expansion.h>
#include <app/export/drawingprinter.h>
#include <app/export/leveldrawing.h>
#include <tests/program/testprogram.h>

#include <fishbone/editor/fishscene.h>
#include <fishbone/exchange/diagrampicture.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>

#include <QGraphicsRectItem>
#include <QGraphicsScene>
#include <QPrinter>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <memory>
#include <utility>

using Fit = DrawingPrinter::Fit;

Q_DECLARE_METATYPE(DrawingPrinter::Fit)

/**
 * Pages of 10 x 5 inches without margins, which are 960 x 480 scene units at their size on the
 * screen.
 */
class TestDrawingPrinter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pages_data();
    void pages();
    void pagesCoverTheDrawing();
    void refusesTooManyPages();
    void printsNothingOfAnEmptyScene();
    void printsTheChosenPagesOnly();
    void overlapsHaveMarksAndAMap();
    void everyTitleIsWholeOnSomePage();
    void largeTitlesMakeItSmaller_data();
    void largeTitlesMakeItSmaller();
    void cancellingEndsIt();
    void severalPagesAreNotLargerThanSoManyFilesOfOne_data();
    void severalPagesAreNotLargerThanSoManyFilesOfOne();

private:
    static void setUp(QPrinter &printer, const QString &file)
    {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(file);
        printer.setResolution(300);
        printer.setFullPage(true);
        printer.setPageSize(QPageSize(QSizeF(5, 10), QPageSize::Inch));
        printer.setPageOrientation(QPageLayout::Landscape);
        printer.setPageMargins(QMarginsF(), QPageLayout::Inch);
    }
    /** The number of pages that the PDF file has. */
    static int pagesIn(const QString &file)
    {
        QFile pdf(file);
        if (!pdf.open(QIODevice::ReadOnly))
            return -1;
        return int(pdf.readAll().count("/Type /Page\n"));
    }

    /** The pages of the PDF file at 96 dots per inch. */
    QList<QImage> imagesOf(const QString &file) const
    {
        QProcess painter;
        const QString begin = m_folder.filePath(QStringLiteral("image"));
        painter.start(QStringLiteral("pdftoppm"), {QStringLiteral("-r"), QStringLiteral("96"),
                                                   QStringLiteral("-png"), file, begin});
        if (!painter.waitForFinished())
            return {};
        QList<QImage> images;
        const QStringList names =
            QDir(m_folder.path())
                .entryList({QStringLiteral("image*.png")}, QDir::Files, QDir::Name);
        for (const QString &name : names)
            images.append(QImage(m_folder.filePath(name)));
        return images;
    }
    /** Whether there is a mark within a pixel or two. */
    static bool isDark(const QImage &page, const QPointF &at)
    {
        for (int x = -2; x <= 2; ++x) {
            for (int y = -2; y <= 2; ++y) {
                const QPoint point = at.toPoint() + QPoint(x, y);
                if (page.rect().contains(point) && page.pixelColor(point).lightness() < 190)
                    return true;
            }
        }
        return false;
    }
    /** Eight categories with ten causes each, "word0 …" to "word79 …". */
    static std::unique_ptr<TreeItem> diagram()
    {
        auto head = std::make_unique<TreeItem>();
        head->setTitle(QStringLiteral("Head"));
        for (int category = 0; category < 8; ++category) {
            auto *const bone = new TreeItem;
            bone->setTitle(QStringLiteral("Category %1").arg(category));
            head->appendChild(bone); // which takes it over
            for (int cause = 0; cause < 10; ++cause) {
                auto *const item = new TreeItem;
                item->setTitle(
                    QStringLiteral("word%1 and some more of them").arg(category * 10 + cause));
                bone->appendChild(item);
            }
        }
        return head;
    }

    QTemporaryDir m_folder;
};

void TestDrawingPrinter::pages_data()
{
    QTest::addColumn<QSizeF>("drawing");
    QTest::addColumn<Fit>("fit");
    QTest::addColumn<double>("scale");
    QTest::addColumn<int>("count");

    QTest::newRow("small, one page") << QSizeF(50, 50) << Fit::Page << 1.0 << 1;
    QTest::newRow("huge, one page") << QSizeF(90000, 700) << Fit::Page << 1.0 << 1;
    QTest::newRow("wide, fits the width") << QSizeF(5000, 500) << Fit::Width << 1.0 << 1;
    // 400 units wide become 960; 2000 high become 4800, of which 456 are on a page and 37.8 of
    // these are repeated.
    QTest::newRow("high, fits the width") << QSizeF(392, 1992) << Fit::Width << 1.0 << 12;
    QTest::newRow("as on the screen, one page") << QSizeF(900, 440) << Fit::Scale << 1.0 << 1;
    QTest::newRow("as on the screen, just too wide") << QSizeF(960, 440) << Fit::Scale << 1.0 << 2;
    QTest::newRow("as on the screen, two by two") << QSizeF(1500, 800) << Fit::Scale << 1.0 << 4;
    QTest::newRow("half as large") << QSizeF(1500, 800) << Fit::Scale << 0.5 << 1;
    QTest::newRow("twice as large") << QSizeF(1500, 800) << Fit::Scale << 2.0 << 16;
}

void TestDrawingPrinter::pages()
{
    QFETCH(QSizeF, drawing);
    QFETCH(Fit, fit);
    QFETCH(double, scale);
    QFETCH(int, count);

    QGraphicsScene scene;
    scene.addRect(QRectF(QPointF(-100, 30), drawing), Qt::NoPen, Qt::black);
    DrawingPrinter printing(PrintedDrawing::of(scene), QStringLiteral("Late"));
    printing.setLayout({fit, scale});
    const QString file = m_folder.filePath(QStringLiteral("pages.pdf"));
    {
        QPrinter printer;
        setUp(printer, file);
        QCOMPARE(printing.pages(printer).count(), count);
        QVERIFY(printing.print(&printer));
    }
    QCOMPARE(pagesIn(file), count);
}

void TestDrawingPrinter::pagesCoverTheDrawing()
{
    QGraphicsScene scene;
    const QRectF drawing(-300, 200, 2100, 1700);
    scene.addRect(drawing, Qt::NoPen, Qt::black);
    DrawingPrinter printing(PrintedDrawing::of(scene));
    printing.setLayout({Fit::Scale, 1});
    QPrinter printer;
    setUp(printer, m_folder.filePath(QStringLiteral("cover.pdf")));
    const QList<QRectF> parts = printing.pages(printer).parts();
    QRectF all;
    for (const QRectF &part : parts)
        all |= part;
    QVERIFY(all.contains(drawing));
    QCOMPARE(all.center(), drawing.center());
    const double overlap = DrawingPrinter::overlap / 25.4 * 96;
    QVERIFY(parts.at(0).right() - parts.at(1).left() >= overlap - 1e-6);
}

void TestDrawingPrinter::refusesTooManyPages()
{
    QGraphicsScene scene;
    scene.addRect(0, 0, 1e6, 1e6, Qt::NoPen, Qt::black);
    DrawingPrinter printing(PrintedDrawing::of(scene));
    printing.setLayout({Fit::Scale, 4});
    QPrinter printer;
    setUp(printer, m_folder.filePath(QStringLiteral("many.pdf")));
    QVERIFY(printing.pages(printer).count() == 0);
    QVERIFY(!printing.print(&printer));
}

void TestDrawingPrinter::printsNothingOfAnEmptyScene()
{
    QGraphicsScene scene;
    const DrawingPrinter printing(PrintedDrawing::of(scene));
    QPrinter printer;
    setUp(printer, m_folder.filePath(QStringLiteral("empty.pdf")));
    QVERIFY(!printing.print(&printer));
}

void TestDrawingPrinter::printsTheChosenPagesOnly()
{
    QGraphicsScene scene;
    scene.addRect(0, 0, 1500, 800, Qt::NoPen, Qt::black);
    DrawingPrinter printing(PrintedDrawing::of(scene));
    printing.setLayout({Fit::Scale, 1});
    const QString file = m_folder.filePath(QStringLiteral("chosen.pdf"));
    {
        QPrinter printer;
        setUp(printer, file);
        printer.setFromTo(2, 3);
        QVERIFY(printing.print(&printer));
    }
    QCOMPARE(pagesIn(file), 2);
}

void TestDrawingPrinter::overlapsHaveMarksAndAMap()
{
    PrintedDrawing drawing;
    drawing.extent = QRectF(0, 0, 1500, 800);
    drawing.paint = [](QPainter &, const QRectF &, const QRectF &,
                       const PrintedDrawing::Progress &) { return true; };
    DrawingPrinter printing(drawing, QStringLiteral("Late"));
    printing.setLayout({Fit::Scale, 1});
    const QString file = m_folder.filePath(QStringLiteral("marks.pdf"));
    {
        QPrinter printer;
        setUp(printer, file);
        QVERIFY(printing.print(&printer));
    }
    const QList<QImage> pages = imagesOf(file);
    QCOMPARE(pages.size(), 4);
    const double dots = pages.at(0).width() / 960.0; // for a unit
    const PageGrid grid = [&] {
        QPrinter printer;
        setUp(printer, m_folder.filePath(QStringLiteral("unused.pdf")));
        return printing.pages(printer);
    }();
    for (int number = 0; number < 4; ++number) {
        const QImage &page = pages.at(number);
        const QPointF cut = (grid.own(number).bottomRight() - grid.part(number).topLeft()) * dots;
        const bool hasRight = number % 2 == 0;
        const bool hasBelow = number < 2;
        QCOMPARE(isDark(page, QPointF(cut.x(), 5 * dots)), hasRight);
        QCOMPARE(isDark(page, QPointF(5 * dots, cut.y())), hasBelow);
        // The map fills the cell of the page, of two by two in a footer of 24 units.
        const double cell = 24 * 7 / 8.0 / 2;
        for (int other = 0; other < 4; ++other) {
            const QPointF center((other % 2 + 0.5) * cell, 480 - (1.5 - other / 2) * cell);
            QCOMPARE(isDark(page, center * dots), other == number);
        }
    }
}

void TestDrawingPrinter::everyTitleIsWholeOnSomePage()
{
    const auto head = diagram();
    const DiagramPicture picture(head.get());
    DrawingPrinter printing(PrintedDrawing::of(picture), QStringLiteral("Large"));
    printing.setLayout({Fit::Scale, 2});
    const QString file = m_folder.filePath(QStringLiteral("titles.pdf"));
    PageGrid grid;
    {
        QPrinter printer;
        setUp(printer, file);
        grid = printing.pages(printer);
        QVERIFY(printing.print(&printer));
    }
    QVERIFY(grid.count() > 4);
    const QList<QRectF> parts = grid.parts();
    const QList<QRectF> texts = picture.texts();
    for (const QRectF &text : texts) {
        QVERIFY(std::any_of(parts.cbegin(), parts.cend(),
                            [&text](const QRectF &part) { return part.contains(text); }));
    }
    QProcess reader;
    reader.start(QStringLiteral("pdftotext"), {file, QStringLiteral("-")});
    QVERIFY(reader.waitForFinished());
    const QByteArray words = reader.readAllStandardOutput();
    for (int category = 0; category < 8; ++category) {
        for (int cause = 0; cause < 10; ++cause) {
            const QByteArray word = "word" + QByteArray::number(category * 10 + cause);
            QVERIFY2(words.contains(word), word.constData());
        }
    }
}

void TestDrawingPrinter::largeTitlesMakeItSmaller_data()
{
    QTest::addColumn<QSizeF>("title");
    QTest::addColumn<Fit>("fit");
    QTest::addColumn<double>("scale");
    QTest::addColumn<bool>("isSmaller");
    // On a page are 960 x 456 units.
    QTest::newRow("one with room") << QSizeF(900, 30) << Fit::Scale << 1.0 << false;
    QTest::newRow("one that is too long") << QSizeF(1500, 30) << Fit::Scale << 1.0 << true;
    QTest::newRow("one that is too high") << QSizeF(300, 700) << Fit::Scale << 1.0 << true;
    QTest::newRow("one as large as the page") << QSizeF(960, 456) << Fit::Scale << 1.0 << true;
    QTest::newRow("one too long when enlarged") << QSizeF(300, 30) << Fit::Scale << 4.0 << true;
    QTest::newRow("fitting the width") << QSizeF(20, 900) << Fit::Width << 1.0 << true;
}

/** Whatever its size, each title is whole on one of the pages. */
void TestDrawingPrinter::largeTitlesMakeItSmaller()
{
    QFETCH(QSizeF, title);
    QFETCH(Fit, fit);
    QFETCH(double, scale);
    QFETCH(bool, isSmaller);
    PrintedDrawing drawing;
    drawing.extent = fit == Fit::Width ? QRectF(0, 0, 500, 5000) : QRectF(0, 0, 4000, 3000);
    for (const QPointF &corner : {QPointF(0, 0), QPointF(470, 1300), QPointF(200, 2000)})
        drawing.texts.append(QRectF(corner, title));
    DrawingPrinter printing(drawing);
    printing.setLayout({fit, scale});
    QPrinter printer;
    setUp(printer, m_folder.filePath(QStringLiteral("unused.pdf")));
    const QList<QRectF> parts = printing.pages(printer).parts();
    QVERIFY(parts.size() > 1);
    for (const QRectF &text : qAsConst(drawing.texts)) {
        QVERIFY(std::any_of(parts.cbegin(), parts.cend(),
                            [&text](const QRectF &part) { return part.contains(text); }));
    }
    QCOMPARE(printing.isReducedOn(printer), isSmaller);
    if (fit == Fit::Scale)
        QCOMPARE(printing.scaleOn(printer) < scale, isSmaller);
}

void TestDrawingPrinter::cancellingEndsIt()
{
    const auto head = diagram();
    const DiagramPicture picture(head.get());
    DrawingPrinter printing(PrintedDrawing::of(picture));
    printing.setLayout({Fit::Scale, 1});
    QList<int> reports;
    int whole = 0;
    const auto print = [&](int allowed) {
        QPrinter printer;
        setUp(printer, m_folder.filePath(QStringLiteral("cancelled.pdf")));
        reports.clear();
        return printing.print(&printer, [&](int done, int total) {
            reports.append(done);
            whole = total;
            return reports.size() <= allowed;
        });
    };
    QVERIFY(print(1000000));
    const int all = reports.size();
    QVERIFY(std::is_sorted(reports.cbegin(), reports.cend()));
    QVERIFY(all > 4);
    QVERIFY(reports.constFirst() == 0 && reports.constLast() < whole);
    QVERIFY(!print(0));
    QVERIFY(!print(all / 2));
    QCOMPARE(int(reports.size()), all / 2 + 1);
}

void TestDrawingPrinter::severalPagesAreNotLargerThanSoManyFilesOfOne_data()
{
    QTest::addColumn<bool>("isClear");
    QTest::newRow("clear") << true;
    QTest::newRow("classic") << false;
}

void TestDrawingPrinter::severalPagesAreNotLargerThanSoManyFilesOfOne()
{
    QFETCH(bool, isClear);
    auto head = diagram();
    const DiagramPicture picture(head.get());
    FishModel model;
    model.insertExistItemRows(QModelIndex(), {head.release()}); // which takes it over
    LevelDrawing classic(model, model.index(0, 0));
    classic.expand(Expansion::allLevels);
    const PrintedDrawing drawing =
        isClear ? PrintedDrawing::of(picture) : PrintedDrawing::of(*classic.scene());
    const auto printed = [&](const DrawingPrinter::Layout &layout) {
        DrawingPrinter printing(drawing, QStringLiteral("Large"));
        printing.setLayout(layout);
        const QString file = m_folder.filePath(QStringLiteral("size.pdf"));
        {
            QPrinter printer;
            setUp(printer, file);
            if (!printing.print(&printer))
                return std::pair<qint64, int>(0, 0);
        }
        return std::pair<qint64, int>(QFileInfo(file).size(), pagesIn(file));
    };
    const auto [one, onePage] = printed({Fit::Page, 1});
    QCOMPARE(onePage, 1);
    const auto [all, pages] = printed({Fit::Scale, 3});
    QVERIFY(pages > 4);
    QVERIFY2(all <= one * pages,
             qPrintable(QStringLiteral("%1 <= %2 * %3").arg(all).arg(one).arg(pages)));
}

FISHBONE_TEST(TestDrawingPrinter)
#include "tst_drawingprinter.moc"
