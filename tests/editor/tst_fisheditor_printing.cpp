// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QImage>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <tests/program/testprogram.h>
#include <tests/support/editorfixture.h>
#include <tests/support/modaldriver.h>

using namespace TestSupport;

/** What comes out of the printer, read back from a page printed to a file. */
class TestFishEditorPrinting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldPrintNothingWhenTheDialogIsCancelled();
    void shouldPrintTheWholeViewOntoOnePage_data();
    void shouldPrintTheWholeViewOntoOnePage();
    void shouldPrintWhatIsInViewOnly();
    void shouldLeaveTheDrawingAsItIs();
    void shouldSurviveItsOwnEndWhileTheDialogIsOpen();
};

namespace {

/** Answers the dialog like a user who prints to a file; the file stays empty until then. */
void printTo(const QString &path, FishEditor &editor,
             QPageLayout::Orientation orientation = QPageLayout::Portrait)
{
    ModalDriver<QPrintDialog> user([&path, orientation](QPrintDialog &dialog) {
        dialog.printer()->setPageOrientation(orientation);
        dialog.findChild<QLineEdit *>(QStringLiteral("filename"))->setText(path);
        dialog.accept();
    });
    editor.print();
    QVERIFY(user.isDone());
}

/** What a program of the system writes when run with @p arguments; nothing when it fails. */
QByteArray outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    const bool isDone = process.waitForFinished() && process.exitCode() == 0;
    return isDone ? process.readAllStandardOutput() : QByteArray();
}

int pagesOf(const QString &path)
{
    const QString text = QString::fromUtf8(outputOf(QStringLiteral("pdfinfo"), QStringList(path)));
    const auto match = QRegularExpression(QStringLiteral("Pages: +(\\d+)")).match(text);
    return match.captured(1).toInt();
}

QImage pageOf(const QString &path)
{
    return QImage::fromData(
        outputOf(QStringLiteral("pdftoppm"),
                 {QStringLiteral("-r"), QStringLiteral("96"), QStringLiteral("-png"), path}),
        "PNG");
}

/** The rectangle around everything that is not white. */
QRect inkOf(const QImage &picture)
{
    QRect ink;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (qGray(picture.pixel(x, y)) < 250)
                ink |= QRect(x, y, 1, 1);
        }
    }
    return ink;
}

QString documentOfTwoSides()
{
    return QStringLiteral("Effect[Man[Train,Cost],Machine[Wear],Method,Matter]");
}

} // namespace

void TestFishEditorPrinting::shouldPrintNothingWhenTheDialogIsCancelled()
{
    EditorFixture fish(documentOfTwoSides());
    ModalDriver<QPrintDialog> user([](QPrintDialog &dialog) { dialog.reject(); });

    fish.editor.print();

    QVERIFY(user.isDone());
}

void TestFishEditorPrinting::shouldPrintTheWholeViewOntoOnePage_data()
{
    QTest::addColumn<QPageLayout::Orientation>("orientation");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("rotation");

    QTest::newRow("portrait") << QPageLayout::Portrait << QSize(900, 700) << 0;
    QTest::newRow("landscape") << QPageLayout::Landscape << QSize(900, 700) << 0;
    QTest::newRow("a tall window") << QPageLayout::Landscape << QSize(400, 900) << 90;
}

void TestFishEditorPrinting::shouldPrintTheWholeViewOntoOnePage()
{
    QFETCH(QPageLayout::Orientation, orientation);
    QFETCH(QSize, size);
    QFETCH(int, rotation);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("page.pdf"));
    EditorFixture fish(documentOfTwoSides());
    fish.editor.resize(size);
    fish.editor.expandAll();
    fish.editor.rotateFish(rotation);
    QVERIFY(fish.show());

    printTo(path, fish.editor, orientation);

    QCOMPARE(pagesOf(path), 1);
    const QImage page = pageOf(path);
    QCOMPARE(page.width() > page.height(), orientation == QPageLayout::Landscape);
    // The page holds the viewport as large as it fits: what is drawn keeps its proportions.
    const QRect shown = inkOf(fish.editor.view()->viewport()->grab().toImage());
    const QRect ink = inkOf(page);
    QVERIFY(shown.width() > 100);
    const double scale = double(ink.width()) / shown.width();
    const double tooHigh = ink.height() - scale * shown.height();
    QVERIFY2(qAbs(tooHigh) < 4, QByteArray::number(tooHigh).constData());
    // One side of the viewport fills the printable part of the page, which has margins.
    const QSizeF viewport = fish.editor.view()->viewport()->size();
    const double widest =
        qMax(viewport.width() * scale / page.width(), viewport.height() * scale / page.height());
    QVERIFY2(widest > 0.9 && widest <= 1.0, QByteArray::number(widest).constData());
}

void TestFishEditorPrinting::shouldPrintWhatIsInViewOnly()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("page.pdf"));
    EditorFixture fish(documentOfTwoSides());
    QVERIFY(fish.show());
    fish.editor.view()->setSceneRect(fish.editor.scene()->itemsBoundingRect().translated(1e5, 0));
    QCOMPARE(inkOf(fish.editor.view()->viewport()->grab().toImage()), QRect());

    printTo(path, fish.editor);

    QCOMPARE(pagesOf(path), 1);
    QCOMPARE(inkOf(pageOf(path)), QRect());
}

void TestFishEditorPrinting::shouldLeaveTheDrawingAsItIs()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("page.pdf"));
    EditorFixture fish(documentOfTwoSides());
    QVERIFY(fish.show());
    const QImage before = fish.editor.view()->viewport()->grab().toImage();
    const QTransform matrix = fish.editor.view()->transform();

    printTo(path, fish.editor);

    QVERIFY(QFileInfo::exists(path));
    QCOMPARE(fish.editor.view()->viewport()->grab().toImage(), before);
    QCOMPARE(fish.editor.view()->transform(), matrix);
    QVERIFY(!fish.info->modified());
}

void TestFishEditorPrinting::shouldSurviveItsOwnEndWhileTheDialogIsOpen()
{
    auto editor = std::make_unique<FishEditor>();
    ModalDriver<QPrintDialog> user([&editor](QPrintDialog &) { editor.reset(); });

    editor->print();

    QVERIFY(user.isDone());
    QVERIFY(!editor);
}

FISHBONE_TEST(TestFishEditorPrinting)
#include "tst_fisheditor_printing.moc"
