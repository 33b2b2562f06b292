// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>
#include <tests/program/testprogram.h>

#include <app/common/canvastheme.h>

#include <QMenu>
#include <QSlider>
#include <QSpinBox>
#include <QToolButton>

class TestViewCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldFillTheScreenAndComeBack();
    void initTestCase();
    void shouldZoomWithSliderActionsAndWheel();
    void shouldKeepTheZoomWithinTheSlidersRange();
    void shouldRotate();
    void shouldFitTheDrawing();
    void shouldSwitchBetweenTaskAndDiagramMode();
    void shouldShowAPartAsADiagramAndComeBack();
    void shouldShowTheWholeAsItWasLeft();
    void shouldListWhatWasShownBefore();
    void shouldFollowADarkPalette();
    void shouldPrintOnPaper();
};

void TestViewCommands::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_viewcommands"));
}

void TestViewCommands::shouldZoomWithSliderActionsAndWheel()
{
    AppFixture app;
    auto *const slider = app.widget<QSlider>("zoom");
    auto *const percentage = app.widget<QToolButton>("percentage");
    GraphicsView *const view = app.window.editor()->view();
    QCOMPARE(slider->value(), 250);
    QCOMPARE(percentage->text(), QStringLiteral("100 %"));

    slider->setValue(300);
    QCOMPARE(view->transform().m11(), 2.0);
    QCOMPARE(percentage->text(), QStringLiteral("200 %"));
    app.trigger("zoomout");
    QCOMPARE(slider->value(), 275);
    app.trigger("zoomin");
    QCOMPARE(view->transform().m11(), 2.0);

    const QPointF at(50, 50);
    QWheelEvent wheel(at, view->viewport()->mapToGlobal(at.toPoint()), QPoint(), QPoint(0, -120),
                      Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(view->viewport(), &wheel);
    QCOMPARE(slider->value(), 294);
    QCOMPARE(view->transform().m11(), std::pow(2.0, 44 / 50.0));

    percentage->click();
    QCOMPARE(slider->value(), 250);
    QCOMPARE(view->transform().m11(), 1.0);
}

void TestViewCommands::shouldKeepTheZoomWithinTheSlidersRange()
{
    AppFixture app;
    for (int i = 0; i < 30; ++i)
        app.window.editor()->zoomIn(25);
    QCOMPARE(app.window.editor()->zoomValue(), 500);
    QCOMPARE(app.widget<QToolButton>("percentage")->text(), QStringLiteral("3,200 %"));
    for (int i = 0; i < 30; ++i)
        app.window.editor()->zoomOut(25);
    QCOMPARE(app.window.editor()->zoomValue(), 0);
    QCOMPARE(app.widget<QToolButton>("percentage")->text(), QStringLiteral("3.1 %"));
}

void TestViewCommands::shouldRotate()
{
    AppFixture app;
    auto *const field = app.widget<QSpinBox>("rotation");
    app.trigger("rotateRight");
    QCOMPARE(field->value(), 15);
    QCOMPARE(app.window.editor()->rotateValue(), 15);
    QVERIFY(app.window.editor()->view()->transform().isRotating());
    app.trigger("rotateLeft");
    app.trigger("rotateLeft");
    QCOMPARE(app.window.editor()->rotateValue(), -15);
    field->setValue(90);
    QCOMPARE(app.window.editor()->rotateValue(), 90);
    app.trigger("rotateReset");
    QCOMPARE(field->value(), 0);
    QVERIFY(!app.window.editor()->view()->transform().isRotating());

    field->setValue(90);
    app.trigger("fit"); // which turns the drawing upright
    QCOMPARE(field->value(), 0);
}

void TestViewCommands::shouldFitTheDrawing()
{
    AppFixture app;
    app.trigger("expandall");
    app.widget<QSlider>("zoom")->setValue(400);
    app.trigger("fit");
    const GraphicsView *const view = app.window.editor()->view();
    const QRectF shown = view->mapToScene(view->viewport()->rect()).boundingRect();
    const QList<QGraphicsItem *> items = app.window.editor()->scene()->items();
    for (const QGraphicsItem *item : items) {
        if (item->isVisible() && !item->boundingRect().isEmpty())
            QVERIFY(shown.contains(item->sceneBoundingRect()));
    }
    const int zoom = app.window.editor()->zoomValue();
    QCOMPARE(app.widget<QSlider>("zoom")->value(), zoom);

    app.select("Rust");
    app.trigger("fitselection");
    QVERIFY(app.window.editor()->zoomValue() > zoom);
}

void TestViewCommands::shouldSwitchBetweenTaskAndDiagramMode()
{
    AppFixture app;
    QCOMPARE(app.window.model()->modelType(), FISH_MODEL_DIAGRAM);
    QVERIFY(app.action("diagramMode")->isChecked());
    QCOMPARE(app.window.editor()->headSpear()->text(), QStringLiteral("Late"));

    app.trigger("taskMode");
    QCOMPARE(app.window.model()->modelType(), FISH_MODEL_NORMAL);
    QVERIFY(!app.action("diagramMode")->isChecked());
    QVERIFY(app.window.editor()->headSpear()->text().startsWith(QLatin1String("Late(")));

    app.trigger("diagramMode");
    QCOMPARE(app.window.editor()->headSpear()->text(), QStringLiteral("Late"));
}

void TestViewCommands::shouldShowAPartAsADiagramAndComeBack()
{
    AppFixture app;
    QVERIFY(!app.action("back")->isEnabled());
    app.select("People");
    app.trigger("asDiagram");
    QCOMPARE(app.window.editor()->rootIndex(), app.find("People"));
    app.select("Too few");
    app.trigger("asDiagram");
    QCOMPARE(app.window.editor()->rootIndex(), app.find("Too few"));

    app.trigger("back");
    QCOMPARE(app.window.editor()->rootIndex(), app.find("People"));
    app.trigger("back");
    QCOMPARE(app.window.editor()->rootIndex(), app.find("Late"));
    QVERIFY(!app.action("back")->isEnabled());

    app.select("People");
    app.trigger("asDiagram");
    app.select("Rust"); // lies elsewhere
    QCOMPARE(app.window.editor()->rootIndex(), app.find("Late"));
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("Rust")));
}

void TestViewCommands::shouldShowTheWholeAsItWasLeft()
{
    AppFixture app;
    app.select("Illness"); // which expands what is above it
    QVERIFY(app.subject("Too few")->spear()->isExpand());
    QVERIFY(!app.subject("Material")->spear()->isExpand());
    app.select("People");
    app.trigger("asDiagram");
    app.trigger("back");
    QVERIFY(app.subject("Too few")->spear()->isExpand());
    QVERIFY(app.subject("Illness")->spear()->isVisible());
    QVERIFY(!app.subject("Material")->spear()->isExpand());
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("People")));
}

void TestViewCommands::shouldListWhatWasShownBefore()
{
    AppFixture app;
    app.window.session()->showAsDiagram(app.find("People"));
    app.window.session()->showAsDiagram(app.find("Material"));
    QCOMPARE(app.document()->fishHistorys(),
             QStringList({QStringLiteral("{a}"), QStringLiteral("{f}")}));
    AppFixture::settle();
    app.trigger("whole");

    QMenu *visited = nullptr;
    const QList<QMenu *> menus = app.window.findChildren<QMenu *>();
    for (QMenu *menu : menus) {
        if (menu->title().contains(QLatin1String("Shown")))
            visited = menu;
    }
    QVERIFY(visited);
    Q_EMIT visited->aboutToShow();
    QCOMPARE(visited->actions().size(), 2);
    QCOMPARE(visited->actions().at(0)->text(), QStringLiteral("People"));
    visited->actions().at(1)->trigger();
    QCOMPARE(app.window.editor()->rootIndex(), app.find("Material"));
}

void TestViewCommands::shouldFollowADarkPalette()
{
    AppFixture app;
    GraphicsView *const view = app.window.editor()->view();
    QVERIFY(view->backgroundBrush().color().lightness() > 200);
    const QColor lightText = app.subject("People")->spear()->textColor(SpearStyle::ssNormal);
    QVERIFY(lightText.lightness() < 128);

    const QPalette light = app.window.palette();
    QPalette dark = light;
    dark.setColor(QPalette::Base, QColor(20, 20, 20));
    dark.setColor(QPalette::Window, QColor(40, 40, 40));
    dark.setColor(QPalette::WindowText, Qt::white);
    app.window.setPalette(dark);
    AppFixture::settle();
    QVERIFY(view->backgroundBrush().color().lightness() < 60);
    QVERIFY(app.subject("People")->spear()->textColor(SpearStyle::ssNormal).lightness() > 150);

    app.window.setPalette(light);
    AppFixture::settle();
    QCOMPARE(app.subject("People")->spear()->textColor(SpearStyle::ssNormal), lightText);
    QVERIFY(!app.document()->modified());
}

void TestViewCommands::shouldPrintOnPaper()
{
    AppFixture app;
    QPalette dark = app.window.palette();
    dark.setColor(QPalette::Base, QColor(20, 20, 20));
    app.window.setPalette(dark);
    AppFixture::settle();
    auto *const theme = app.window.findChild<CanvasTheme *>();
    QVERIFY(theme->isDark());
    {
        const CanvasTheme::Paper paper(theme);
        QVERIFY(app.subject("People")->spear()->textColor(SpearStyle::ssNormal).lightness() < 128);
    }
    QVERIFY(app.subject("People")->spear()->textColor(SpearStyle::ssNormal).lightness() > 150);
    QVERIFY(theme->isDark());
    QCOMPARE(app.window.editor()->view()->backgroundBrush().color(), theme->canvasColor());
}

void TestViewCommands::shouldFillTheScreenAndComeBack()
{
    AppFixture app;
    const QSize before = app.window.size();
    QTest::keyClick(&app.window, Qt::Key_F11);
    AppFixture::settle();
    QVERIFY(app.window.isFullScreen());
    QTest::keyClick(&app.window, Qt::Key_F11);
    AppFixture::settle();
    QVERIFY(!app.window.isFullScreen());
    QCOMPARE(app.window.size(), before);
}

FISHBONE_TEST(TestViewCommands)
#include "tst_viewcommands.moc"
