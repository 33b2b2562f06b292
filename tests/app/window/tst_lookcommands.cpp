// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>
#include <tests/app/dialoganswers.h>
#include <tests/program/testprogram.h>
#include <tests/support/modaldriver.h>

#include <app/common/canvastheme.h>
#include <app/diagram/diagramview.h>

#include <fishbone/exchange/diagrampicture.h>
#include <fishbone/exchange/pagesize.h>
#include <fishbone/exchange/pictureexport.h>

#include <QJsonDocument>
#include <QMenu>
#include <QMenuBar>
#include <QSettings>

using DialogAnswers::press;
using TestSupport::ModalDriver;

class TestLookCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { QSettings().clear(); }
    void shouldBeginInTheClearLook();
    void shouldSwitchByKeyboard();
    void shouldBeOneStepOfTheHistory();
    void shouldKeepTheLookWithTheDocument();
    void shouldKeepWhatOthersStoreBesideIt();
    void shouldShowWhatWasChosenLastWhereNothingIsTold();
    void shouldLeaveOtherDocumentsAlone();
    void shouldForgetNothingThatIsShown();
    void shouldArrangeForAPage_data();
    void shouldArrangeForAPage();
    void shouldArrangeForTheScreenAgain();
    void shouldNotArrangeOtherDocumentsForThePage();
    void shouldOfferPalettes();
    void shouldSwitchSidesAndLegend();
    void shouldBreakLines();
    void shouldDisableWhatTheClassicLookDoesNotKnow();
    void shouldAdaptToADarkCanvas();
    void shouldFollowTheTab();
    void shouldKeepTheViewWhenTheHeadGetsAParent();
    void shouldReadPages_data();
    void shouldReadPages();

private:
    static DiagramLook::Kind look(const AppFixture &app) { return app.window.editor()->look(); }
    static const DiagramLook::Options &options(const AppFixture &app)
    {
        return app.window.editor()->lookOptions();
    }
    static int steps(const AppFixture &app)
    {
        return app.window.editor()->undoStack()->currentIndex() + 1;
    }
};

void TestLookCommands::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_lookcommands"));
}

void TestLookCommands::shouldBeginInTheClearLook()
{
    AppFixture app;
    QCOMPARE(look(app), DiagramLook::Clear);
    QVERIFY(app.action("lookClear")->isChecked());
    QVERIFY(!app.action("lookClassic")->isChecked());
    QVERIFY(!app.document()->modified());
    QVERIFY(app.document()->view().isEmpty());
    QCOMPARE(steps(app), 0);
}

void TestLookCommands::shouldSwitchByKeyboard()
{
    AppFixture app;
    QTest::keyClick(app.window.menuBar(), Qt::Key_V, Qt::AltModifier);
    QTRY_VERIFY(QApplication::activePopupWidget());
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_K);
    QTRY_COMPARE(QApplication::activePopupWidget()->objectName(), QStringLiteral("lookMenu"));
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_A);
    AppFixture::settle();
    QCOMPARE(look(app), DiagramLook::Classic);
    QVERIFY(app.action("lookClassic")->isChecked());
}

void TestLookCommands::shouldBeOneStepOfTheHistory()
{
    AppFixture app;
    const QRectF clear = PictureExport::visibleRect(*app.window.editor()->scene());
    app.trigger("lookClassic");
    QCOMPARE(look(app), DiagramLook::Classic);
    QVERIFY(PictureExport::visibleRect(*app.window.editor()->scene()) != clear);
    QCOMPARE(steps(app), 1);
    QVERIFY(app.document()->modified());
    QCOMPARE(app.window.editor()->undoStack()->commandNames(),
             QStringList(QStringLiteral("Look: Classic")));
    app.trigger("lookClassic"); // is shown already
    QCOMPARE(steps(app), 1);
    QVERIFY(app.action("lookClassic")->isChecked());

    app.trigger("undo");
    QCOMPARE(look(app), DiagramLook::Clear);
    QVERIFY(app.document()->view().isEmpty());
    QVERIFY(app.action("lookClear")->isChecked());
    QCOMPARE(PictureExport::visibleRect(*app.window.editor()->scene()), clear);
    app.trigger("redo");
    QCOMPARE(look(app), DiagramLook::Classic);
}

void TestLookCommands::shouldKeepTheLookWithTheDocument()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("kept.json"));
    {
        AppFixture app;
        app.trigger("lookClassic");
        QVERIFY(app.document()->saveFile(file));
    }
    const QJsonObject stored = QJsonDocument::fromJson(AppFixture::contentOf(file)).object();
    QCOMPARE(stored.value(QStringLiteral("view")).toObject().value(QStringLiteral("look")),
             QJsonValue(QStringLiteral("classic")));
    QSettings().clear(); // somebody else opens it
    AppFixture app;
    app.window.open({file});
    AppFixture::settle();
    QCOMPARE(look(app), DiagramLook::Classic);
    QVERIFY(!app.document()->modified());
    QVERIFY(app.action("lookClassic")->isChecked());
    app.showTab(0);
    QCOMPARE(look(app), DiagramLook::Clear);
    QVERIFY(app.action("lookClear")->isChecked());
}

void TestLookCommands::shouldKeepWhatOthersStoreBesideIt()
{
    AppFixture app;
    const QString file = app.path(QStringLiteral("other.json"));
    AppFixture::writeFile(file, R"({"title": "Other", "view": {"camera": [1, 2]}})");
    app.window.open({file});
    AppFixture::settle();
    QCOMPARE(look(app), DiagramLook::Clear);
    app.trigger("lookClassic");
    QCOMPARE(app.document()->view().value(QStringLiteral("camera")), QJsonValue(QJsonArray{1, 2}));
    app.trigger("undo");
    QCOMPARE(app.document()->view().size(), 1);
}

void TestLookCommands::shouldShowWhatWasChosenLastWhereNothingIsTold()
{
    {
        AppFixture app;
        app.trigger("lookClassic");
    }
    AppFixture app;
    QCOMPARE(look(app), DiagramLook::Classic);
    QVERIFY(!app.document()->modified());
    app.trigger("lookClear");
    app.trigger("undo");
    QCOMPARE(look(app), DiagramLook::Classic);
}

void TestLookCommands::shouldLeaveOtherDocumentsAlone()
{
    AppFixture app;
    const QString file = app.path(QStringLiteral("other.json"));
    AppFixture::writeFile(file, R"({"title": "Other"})");
    app.window.open({file});
    AppFixture::settle();
    app.trigger("lookClassic");
    app.showTab(0);
    QCOMPARE(look(app), DiagramLook::Clear);
    app.select("People");
    app.trigger("delete"); // which lays out
    app.trigger("undo");
    QCOMPARE(look(app), DiagramLook::Clear);
}

void TestLookCommands::shouldForgetNothingThatIsShown()
{
    AppFixture app;
    app.select("Rust");
    const bool wasExpanded = app.subject("Material")->spear()->isExpand();
    QVERIFY(wasExpanded);
    app.trigger("lookClassic");
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("Rust")));
    QVERIFY(app.subject("Material")->spear()->isExpand());
    QVERIFY(!app.subject("People")->spear()->isExpand());
    app.trigger("undo");
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("Rust")));
    QVERIFY(app.subject("Material")->spear()->isExpand());
}

void TestLookCommands::shouldArrangeForAPage_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("page");
    QTest::newRow("slide") << QByteArray("page16x9") << QStringLiteral("16:9");
    QTest::newRow("A4") << QByteArray("pageA4") << QStringLiteral("A4");
    QTest::newRow("A3") << QByteArray("pageA3") << QStringLiteral("A3");
    QTest::newRow("Letter") << QByteArray("pageLetter") << QStringLiteral("Letter");
}

void TestLookCommands::shouldArrangeForAPage()
{
    QFETCH(QByteArray, name);
    QFETCH(QString, page);
    AppFixture app;
    app.trigger("headLeft");
    const DiagramLook::Options before = options(app);
    app.trigger(name.constData());
    const TreeItem *const head = app.document()->treeItem()->childAtIndex(0);
    const DiagramLook::Options best =
        DiagramPicture::arrangedFor(PageSize::of(page)->size, head, before);
    QVERIFY(best != before);
    QVERIFY(options(app) == best);
    QVERIFY(options(app).isHeadLeft);
    QVERIFY(app.action(name.constData())->isChecked());
    QVERIFY(!app.action("pageScreen")->isChecked());
    QCOMPARE(steps(app), 2);
    QCOMPARE(app.document()->view().value(QStringLiteral("page")).toString(), page);
    app.trigger("undo");
    QVERIFY(options(app) == before);
    QVERIFY(app.action("pageScreen")->isChecked());
}

void TestLookCommands::shouldArrangeForTheScreenAgain()
{
    AppFixture app;
    const DiagramLook::Options before = options(app);
    app.trigger("pageA4");
    app.trigger("pageScreen");
    QVERIFY(options(app) == before);
    QVERIFY(!app.document()->view().contains(QStringLiteral("page")));
}

void TestLookCommands::shouldNotArrangeOtherDocumentsForThePage()
{
    AppFixture app;
    const DiagramLook::Options before = options(app);
    app.trigger("pageA4");
    QVERIFY(options(app) != before);
    const QString file = app.path(QStringLiteral("other.json"));
    AppFixture::writeFile(file, R"({"title": "Other"})");
    app.window.open({file});
    AppFixture::settle();
    QVERIFY(options(app) == before);
}

void TestLookCommands::shouldOfferPalettes()
{
    AppFixture app;
    QVERIFY(app.action("paletteColours")->isChecked());
    app.trigger("paletteGray");
    QCOMPARE(options(app).palette, DiagramLook::GrayColors);
    QVERIFY(!app.action("paletteColours")->isChecked());
    const QImage grey = app.window.editor()->view()->grab().toImage();
    for (const char *name : {"paletteWarm", "paletteCool"}) {
        app.trigger(name); // in one click, all of it
        const QImage shown = app.window.editor()->view()->grab().toImage();
        QVERIFY2(shown != grey, name);
        if (const QByteArray folder = qgetenv("FISHBONE_TEST_PICTURES"); !folder.isEmpty())
            shown.save(QString::fromLocal8Bit(folder + '/' + name + ".png"));
        app.trigger("undo");
        QCOMPARE(options(app).palette, DiagramLook::GrayColors);
    }
    app.trigger("paletteDark");
    QCOMPARE(options(app).palette, DiagramLook::DarkColors);
    const GraphicsView *const view = app.window.editor()->view();
    QVERIFY(view->backgroundBrush().color().lightness() < 60);
    app.trigger("undo");
    QCOMPARE(options(app).palette, DiagramLook::GrayColors);
    QVERIFY(view->backgroundBrush().color().lightness() > 200);
}

void TestLookCommands::shouldSwitchSidesAndLegend()
{
    AppFixture app;
    const QRectF right = app.window.editor()->headSpear()->sceneBoundingRect();
    app.trigger("headLeft");
    QVERIFY(options(app).isHeadLeft);
    QVERIFY(app.action("headLeft")->isChecked());
    QVERIFY(app.window.editor()->headSpear()->sceneBoundingRect() != right);
    app.trigger("legend");
    QVERIFY(options(app).hasLegend);
    QVERIFY(app.action("legend")->isChecked());
    app.trigger("bothSides");
    QCOMPARE(options(app).sides, DiagramLook::BothSides);
    for (const char *name : {"headLeft", "legend", "bothSides"}) {
        app.trigger(name);
        QVERIFY2(!app.action(name)->isChecked(), name);
    }
    QVERIFY(options(app) == DiagramLook::Options());
}

void TestLookCommands::shouldBreakLines()
{
    AppFixture app;
    QVERIFY(app.action("linesAny")->isChecked());
    app.trigger("linesShort");
    QCOMPARE(options(app).wrapLimit, 110.0);
    QVERIFY(app.action("linesShort")->isChecked());
    QVERIFY(!app.action("linesAny")->isChecked());
}

void TestLookCommands::shouldDisableWhatTheClassicLookDoesNotKnow()
{
    AppFixture app;
    const char *const names[] = {"pageA4", "pageScreen", "paletteGray", "legend", "headLeft"};
    for (const char *name : names)
        QVERIFY2(app.action(name)->isEnabled(), name);
    app.trigger("lookClassic");
    for (const char *name : names)
        QVERIFY2(!app.action(name)->isEnabled(), name);
    QVERIFY(app.action("lookClear")->isEnabled());
    const ModalDriver<QMessageBox> driver(press(QMessageBox::Discard));
    app.trigger("close");
    QVERIFY(driver.isDone());
    for (const char *name : {"lookClear", "lookClassic", "legend", "pageA4"})
        QVERIFY2(!app.action(name)->isEnabled(), name);
}

void TestLookCommands::shouldAdaptToADarkCanvas()
{
    AppFixture app;
    const QPalette light = app.window.palette();
    QPalette dark = light;
    dark.setColor(QPalette::Base, QColor(20, 20, 20));
    app.window.setPalette(dark);
    AppFixture::settle();
    const GraphicsView *const view = app.window.editor()->view();
    QCOMPARE(options(app).palette, DiagramLook::DarkColors);
    QVERIFY(view->backgroundBrush().color().lightness() < 60);
    QVERIFY(app.action("paletteColours")->isChecked()); // is what was chosen
    // No palette lights up a window that is dark.
    for (const char *name : {"paletteGray", "paletteWarm", "paletteCool", "paletteDark"}) {
        app.trigger(name);
        QVERIFY2(view->backgroundBrush().color().lightness() < 60, name);
        QVERIFY(DiagramLook::isDark(options(app).palette));
        QVERIFY(app.action(name)->isChecked());
    }
    app.trigger("paletteWarm");
    QCOMPARE(options(app).palette, DiagramLook::DarkWarmColors);
    QCOMPARE(app.document()->view().value(QStringLiteral("palette")), QStringLiteral("warm"));
    app.trigger("lookClassic");
    QVERIFY(view->backgroundBrush().color().lightness() < 60);
    for (int step = 0; step < 6; ++step)
        app.trigger("undo");
    app.window.setPalette(light);
    AppFixture::settle();
    QCOMPARE(options(app).palette, DiagramLook::DistinctColors);
    QVERIFY(view->backgroundBrush().color().lightness() > 200);
    QVERIFY(!app.document()->view().contains(QStringLiteral("palette")));
}

void TestLookCommands::shouldFollowTheTab()
{
    AppFixture app;
    app.trigger("headLeft");
    const QString file = app.path(QStringLiteral("other.json"));
    AppFixture::writeFile(file, R"({"title": "Other", "view": {"look": "clear"}})");
    app.window.open({file});
    AppFixture::settle();
    QVERIFY(!app.action("headLeft")->isChecked());
    app.showTab(0);
    QVERIFY(app.action("headLeft")->isChecked());
}

void TestLookCommands::shouldKeepTheViewWhenTheHeadGetsAParent()
{
    AppFixture app;
    app.trigger("headLeft");
    app.select("Late");
    app.trigger("parent");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    AppFixture::settle();
    QVERIFY(options(app).isHeadLeft);
    QVERIFY(app.action("headLeft")->isChecked());
    QVERIFY(!app.document()->view().isEmpty());
}

void TestLookCommands::shouldReadPages_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<bool>("isPaper");
    for (const QString &name : PageSize::names())
        QTest::newRow(qPrintable(name))
            << name << PageSize::of(name)->size << !name.contains(QLatin1Char(':'));
    QTest::newRow("any case") << "a4" << QSizeF(297, 210) << true;
    QTest::newRow("pixels") << "1280x720" << QSizeF(1280, 720) << false;
    QTest::newRow("named pixels") << "1280X720PX" << QSizeF(1280, 720) << false;
    QTest::newRow("millimetres") << "200x100.5mm" << QSizeF(200, 100.5) << true;
    QTest::newRow("nothing") << "" << QSizeF() << false;
    QTest::newRow("no height") << "100x0" << QSizeF() << false;
    QTest::newRow("inches") << "8x11in" << QSizeF() << false;
}

void TestLookCommands::shouldReadPages()
{
    QFETCH(QString, text);
    QFETCH(QSizeF, size);
    QFETCH(bool, isPaper);
    const auto page = PageSize::of(text);
    QCOMPARE(page.has_value(), !size.isEmpty());
    if (!page)
        return;
    QCOMPARE(page->size, size);
    QCOMPARE(page->isMillimetres, isPaper);
    QCOMPARE(page->pixels(), isPaper ? (size * 192 / 25.4).toSize() : size.toSize());
    QVERIFY(qAbs(page->millimetres().width() -
                 (isPaper ? size.width() : size.width() * 25.4 / 96)) < 0.001);
}

FISHBONE_TEST(TestLookCommands)
#include "tst_lookcommands.moc"
