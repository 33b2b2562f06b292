// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/exportdialogparts.h>
#include <tests/program/testprogram.h>

using namespace ExportDialogParts;
using TestSupport::ModalDriver;

/** What of a diagram is in an exported picture. */
class TestExportDialogDrawings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { forget(); }
    void shouldExportAPicture();
    void shouldLeaveTheSelectionOutOfAPicture();
    void shouldExportOtherLevelsThanAreShown_data();
    void shouldExportOtherLevelsThanAreShown();
    void shouldExportASubjectShownAsDiagram();
    void shouldExportADarkDrawing();
    void shouldExportWhatWasShownWhenItBegan();
    void shouldLeaveOutTheButtons();
};

void TestExportDialogDrawings::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_exportdialog_drawings"));
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void TestExportDialogDrawings::shouldExportAPicture()
{
    AppFixture app;
    const QString path = app.path(QStringLiteral("a.png"));
    const ModalDriver<ExportDialog> driver([path](ExportDialog &dialog) {
        dialog.findChild<QLineEdit *>(QStringLiteral("file"))->setText(path);
        dialog.findChild<QDoubleSpinBox *>()->setValue(2);
        field<QComboBox>(dialog, "background")->setCurrentIndex(1);
        dialog.accept();
    });
    app.trigger("export");
    QVERIFY(driver.isDone());
    const QImage picture(path);
    QVERIFY(!picture.isNull());
    QCOMPARE(picture.pixelColor(0, 0).alpha(), 0);
    const QRectF drawing = coveredBy(app);
    QCOMPARE(picture.width(), int(std::ceil((drawing.width() + 40) * 2)));
    QCOMPARE(picture.text(QStringLiteral("Title")), QStringLiteral("Late"));
}

void TestExportDialogDrawings::shouldLeaveTheSelectionOutOfAPicture()
{
    AppFixture app;
    const auto exported = [&app](const QString &name) {
        const QString path = app.path(name);
        const ModalDriver<ExportDialog> driver([path](ExportDialog &dialog) {
            dialog.findChild<QLineEdit *>(QStringLiteral("file"))->setText(path);
            dialog.accept();
        });
        app.trigger("export");
        return driver.isDone() ? QImage(path) : QImage();
    };
    const QImage plain = exported(QStringLiteral("a.png"));
    QVERIFY(!plain.isNull());
    app.select("People");
    QCOMPARE(exported(QStringLiteral("b.png")), plain);
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("People")));
}

void TestExportDialogDrawings::shouldExportOtherLevelsThanAreShown_data()
{
    QTest::addColumn<int>("entry");
    QTest::addColumn<QByteArray>("levels");
    QTest::addColumn<QString>("titles");
    QTest::newRow("as shown") << 0 << QByteArray() << "Late,Machines,Material,People,Rust";
    QTest::newRow("all") << 1 << QByteArray()
                         << "Illness,Late,Machines,Material,People,Rust,Too few,Too new";
    QTest::newRow("main bones") << 2 << QByteArray("0") << "Late,Machines,Material,People";
    QTest::newRow("one more") << 2 << QByteArray("1")
                              << "Late,Machines,Material,People,Rust,Too few,Too new";
}

void TestExportDialogDrawings::shouldExportOtherLevelsThanAreShown()
{
    QFETCH(int, entry);
    QFETCH(QByteArray, levels);
    QFETCH(QString, titles);
    AppFixture app;
    app.select("Material");
    app.trigger("expand");
    const QStringList before = visibleTitles(app);
    const QRectF drawing = PictureExport::visibleRect(*app.window.editor()->scene());
    const QByteArray file = AppFixture::contentOf(app.path());
    const QString path = app.path(QStringLiteral("a.svg"));
    const ModalDriver<ExportDialog> driver([&](ExportDialog &dialog) {
        field<QLineEdit>(dialog, "file")->setText(path);
        chooseEntry(field<QComboBox>(dialog, "expansion"), entry);
        if (!levels.isEmpty())
            type(field<QSpinBox>(dialog, "levels"), levels.constData());
        dialog.accept();
    });
    app.trigger("export");
    QVERIFY(driver.isDone());

    const QString svg = QString::fromUtf8(AppFixture::contentOf(path));
    QStringList drawn;
    for (const char *title :
         {"Illness", "Late", "Machines", "Material", "People", "Rust", "Too few", "Too new"}) {
        if (svg.contains(QStringLiteral(">%1<").arg(QLatin1String(title))))
            drawn.append(QLatin1String(title));
    }
    QCOMPARE(drawn.join(QLatin1Char(',')), titles);

    QCOMPARE(visibleTitles(app), before);
    QCOMPARE(PictureExport::visibleRect(*app.window.editor()->scene()), drawing);
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("Material")));
    QVERIFY(!app.document()->modified());
    QCOMPARE(app.window.editor()->undoStack()->currentIndex(), -1);
    QCOMPARE(AppFixture::contentOf(app.path()), file);
}

void TestExportDialogDrawings::shouldExportASubjectShownAsDiagram()
{
    AppFixture app;
    app.select("People");
    app.trigger("asDiagram");
    const QString path = app.path(QStringLiteral("a.svg"));
    const ModalDriver<ExportDialog> driver([&](ExportDialog &dialog) {
        field<QLineEdit>(dialog, "file")->setText(path);
        chooseEntry(field<QComboBox>(dialog, "expansion"), 1);
        dialog.accept();
    });
    app.trigger("export");
    QVERIFY(driver.isDone());
    const QByteArray svg = AppFixture::contentOf(path);
    QVERIFY(svg.contains(">Illness<"));
    QVERIFY(!svg.contains(">Rust<"));
    QVERIFY(svg.contains("<title>People</title>"));
}

void TestExportDialogDrawings::shouldExportADarkDrawing()
{
    AppFixture app;
    QPalette dark = app.window.palette();
    dark.setColor(QPalette::Base, QColor(20, 20, 20));
    app.window.setPalette(dark);
    AppFixture::settle();
    const auto exported = [&app](const QString &name, bool light) {
        const QString path = app.path(name);
        const ModalDriver<ExportDialog> driver([&](ExportDialog &dialog) {
            field<QLineEdit>(dialog, "file")->setText(path);
            field<QCheckBox>(dialog, "light")->setChecked(light);
            dialog.accept();
        });
        app.trigger("export");
        return driver.isDone() ? QImage(path) : QImage();
    };
    const QImage onPaper = exported(QStringLiteral("a.png"), true);
    QCOMPARE(onPaper.pixelColor(0, 0), QColor(Qt::white));
    const QImage asShown = exported(QStringLiteral("b.png"), false);
    QVERIFY(asShown.pixelColor(0, 0).lightness() < 128);
    QVERIFY(asShown != onPaper);
    QVERIFY(app.window.updatesEnabled());
}

void TestExportDialogDrawings::shouldExportWhatWasShownWhenItBegan()
{
    AppFixture app;
    const QString other = app.path(QStringLiteral("other.json"));
    AppFixture::writeFile(other, R"({"title": "Other"})");
    const QString path = app.path(QStringLiteral("a.svg"));
    const ModalDriver<ExportDialog> driver([&](ExportDialog &dialog) {
        app.window.open({other}); // as a load does that ends now
        AppFixture::settle();
        field<QLineEdit>(dialog, "file")->setText(path);
        dialog.accept();
    });
    app.trigger("export");
    QVERIFY(driver.isDone());
    QCOMPARE(app.text(), QStringLiteral("Other"));
    const QByteArray svg = AppFixture::contentOf(path);
    QVERIFY(svg.contains("<title>Late</title>"));
    QVERIFY(svg.contains(">People<"));
}

void TestExportDialogDrawings::shouldLeaveOutTheButtons()
{
    AppFixture app; // People is contracted and has a button
    const QString path = app.path(QStringLiteral("a.png"));
    const ModalDriver<ExportDialog> driver([&](ExportDialog &dialog) {
        field<QLineEdit>(dialog, "file")->setText(path);
        dialog.accept();
    });
    app.trigger("export");
    QVERIFY(driver.isDone());
    FishScene *const scene = app.window.editor()->scene();
    const auto drawn = [scene, &app] {
        PictureOptions options;
        options.title = app.document()->treeItem()->childAtIndex(0)->title();
        QByteArray png;
        PictureExport::render(*scene, PictureExport::Format::Png, options, png);
        return QImage::fromData(png);
    };
    const QImage picture(path);
    int buttons = 0;
    const QList<QGraphicsItem *> items = scene->items();
    for (QGraphicsItem *item : items) {
        if (item->type() == ExpandItem::Type && item->isVisible()) {
            ++buttons;
            item->hide();
        }
    }
    QVERIFY(buttons > 0);
    QCOMPARE(picture, drawn());
}

FISHBONE_TEST(TestExportDialogDrawings)
#include "tst_exportdialog_drawings.moc"
