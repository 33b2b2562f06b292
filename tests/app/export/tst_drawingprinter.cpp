// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/export/drawingprinter.h>
#include <tests/program/testprogram.h>

#include <QGraphicsRectItem>
#include <QGraphicsScene>
#include <QPrinter>
#include <QTemporaryDir>
#include <QtTest>

using Fit = DrawingPrinter::Fit;

Q_DECLARE_METATYPE(DrawingPrinter::Fit)

/// Pages of 10 x 5 inches without margins, which are 960 x 480 scene units at their size on the
/// screen.
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
    void printsWhatIsSelectedLikeTheRest();

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
    /// The number of pages that the PDF file has.
    static int pagesIn(const QString &file)
    {
        QFile pdf(file);
        if (!pdf.open(QIODevice::ReadOnly))
            return -1;
        return int(pdf.readAll().count("/Type /Page\n"));
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
    // 400 units wide become 960; 2000 high become 4800, of which 456 are on a page.
    QTest::newRow("high, fits the width") << QSizeF(392, 1992) << Fit::Width << 1.0 << 11;
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
    DrawingPrinter printing(&scene, QStringLiteral("Late"));
    printing.setLayout({fit, scale});
    const QString file = m_folder.filePath(QStringLiteral("pages.pdf"));
    {
        QPrinter printer;
        setUp(printer, file);
        QCOMPARE(printing.pages(printer).size(), count);
        QVERIFY(printing.print(&printer));
    }
    QCOMPARE(pagesIn(file), count);
}

void TestDrawingPrinter::pagesCoverTheDrawing()
{
    QGraphicsScene scene;
    const QRectF drawing(-300, 200, 2100, 1700);
    scene.addRect(drawing, Qt::NoPen, Qt::black);
    DrawingPrinter printing(&scene, QString());
    printing.setLayout({Fit::Scale, 1});
    QPrinter printer;
    setUp(printer, m_folder.filePath(QStringLiteral("cover.pdf")));
    const QList<QRectF> parts = printing.pages(printer);
    QRectF all;
    double area = 0;
    for (const QRectF &part : parts) {
        all |= part;
        area += part.width() * part.height();
    }
    QVERIFY(all.contains(drawing));
    QVERIFY2(qAbs(area - all.width() * all.height()) < 1, "no part is on two pages");
    QCOMPARE(all.center(), drawing.center());
}

void TestDrawingPrinter::refusesTooManyPages()
{
    QGraphicsScene scene;
    scene.addRect(0, 0, 1e6, 1e6, Qt::NoPen, Qt::black);
    DrawingPrinter printing(&scene, QString());
    printing.setLayout({Fit::Scale, 4});
    QPrinter printer;
    setUp(printer, m_folder.filePath(QStringLiteral("many.pdf")));
    QVERIFY(printing.pages(printer).isEmpty());
    QVERIFY(!printing.print(&printer));
}

void TestDrawingPrinter::printsNothingOfAnEmptyScene()
{
    QGraphicsScene scene;
    const DrawingPrinter printing(&scene, QString());
    QPrinter printer;
    setUp(printer, m_folder.filePath(QStringLiteral("empty.pdf")));
    QVERIFY(!printing.print(&printer));
}

void TestDrawingPrinter::printsTheChosenPagesOnly()
{
    QGraphicsScene scene;
    scene.addRect(0, 0, 1500, 800, Qt::NoPen, Qt::black);
    DrawingPrinter printing(&scene, QString());
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

void TestDrawingPrinter::printsWhatIsSelectedLikeTheRest()
{
    QGraphicsScene scene;
    QGraphicsRectItem *const item = scene.addRect(0, 0, 100, 100, Qt::NoPen, Qt::black);
    item->setFlag(QGraphicsItem::ItemIsSelectable);
    item->setSelected(true);
    QSignalSpy changes(&scene, &QGraphicsScene::selectionChanged);
    const DrawingPrinter printing(&scene, QString());
    QPrinter printer;
    setUp(printer, m_folder.filePath(QStringLiteral("selected.pdf")));
    QVERIFY(printing.print(&printer));
    QVERIFY(item->isSelected());
    QCOMPARE(changes.count(), 0);
}

FISHBONE_TEST(TestDrawingPrinter)
#include "tst_drawingprinter.moc"
