// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/window/windowlayout.h>

#include <QDockWidget>
#include <QMenuBar>
#include <QScreen>
#include <QSettings>
#include <QStatusBar>
#include <QToolBar>

#include <tests/app/appfixture.h>
#include <tests/program/testprogram.h>

class TestWindowLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void shouldLeaveTheDrawingMostOfASmallWindow_data();
    void shouldLeaveTheDrawingMostOfASmallWindow();
    void shouldLeaveThePageWithoutDocumentsMostOfASmallWindow();
    void shouldBringPanelsBackWhenTheWindowGrows();
    void shouldKeepAPanelThatTheUserOpened();
    void shouldNotBringBackWhatTheUserClosed();
    void shouldBeNoLargerThanTheScreen();
    void shouldKeepTheLayoutForTheScreen();
    void shouldNotKeepThatPanelsSteppedAside();
    void shouldShowTheDrawingAlone();
    void shouldLeaveTheFocusWithEscape();
    void shouldNotKeepTheFocus();
};

namespace {
const QStringList names{QStringLiteral("documentsDock"), QStringLiteral("detailsDock"),
                        QStringLiteral("historyDock"), QStringLiteral("overviewDock")};

QStringList shownDocks(const MainWindow &window)
{
    QStringList shown;
    for (const QString &name : names) {
        if (window.findChild<QDockWidget *>(name)->isVisible())
            shown.append(name);
    }
    return shown;
}

void resize(AppFixture &app, const QSize &size)
{
    app.window.resize(size);
    AppFixture::settle();
}
} // namespace

void TestWindowLayout::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_windowlayout"));
}

void TestWindowLayout::init()
{
    QSettings().clear();
}

void TestWindowLayout::shouldLeaveTheDrawingMostOfASmallWindow_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("small") << QSize(1024, 700);
    QTest::newRow("1600x1000 at two pixels a pixel") << QSize(800, 500);
    QTest::newRow("narrow") << QSize(900, 1000);
    QTest::newRow("low") << QSize(1500, 600);
}

void TestWindowLayout::shouldLeaveTheDrawingMostOfASmallWindow()
{
    QFETCH(QSize, size);
    AppFixture app;
    resize(app, size);
    QCOMPARE(app.window.size(), size);
    const double share = WindowLayout::shareOf(*app.window.editor()->view());
    QVERIFY2(share >= 0.6, qPrintable(QString::number(share)));
}

void TestWindowLayout::shouldLeaveThePageWithoutDocumentsMostOfASmallWindow()
{
    AppFixture app;
    const auto *const page = app.window.findChild<QWidget *>(QStringLiteral("emptyPage"));
    QVERIFY(page);
    app.trigger("close");
    for (const QSize &size : {QSize(1024, 700), QSize(800, 500)}) {
        resize(app, size);
        QVERIFY(page->isVisible());
        const double share = WindowLayout::shareOf(*page);
        QVERIFY2(share >= 0.6, qPrintable(QString::number(share)));
        QCOMPARE(shownDocks(app.window), QStringList()); // which are empty
    }
    app.trigger("new");
    AppFixture::settle();
    QVERIFY(WindowLayout::shareOf(*app.window.editor()->view()) >= 0.6);
    resize(app, QSize(1400, 900));
    QCOMPARE(shownDocks(app.window), names);
}

void TestWindowLayout::shouldBringPanelsBackWhenTheWindowGrows()
{
    AppFixture app;
    resize(app, QSize(1400, 900));
    QCOMPARE(shownDocks(app.window), names);

    resize(app, QSize(1024, 700));
    const QStringList fewer = shownDocks(app.window);
    QVERIFY(fewer.contains(QStringLiteral("documentsDock")));
    QVERIFY(!fewer.contains(QStringLiteral("detailsDock")));
    resize(app, QSize(800, 500));
    QCOMPARE(shownDocks(app.window), QStringList());

    resize(app, QSize(1024, 700));
    QCOMPARE(shownDocks(app.window), fewer);
    resize(app, QSize(1400, 900));
    QCOMPARE(shownDocks(app.window), names);
}

void TestWindowLayout::shouldKeepAPanelThatTheUserOpened()
{
    AppFixture app;
    resize(app, QSize(800, 500));
    QTest::keyClick(app.window.editor()->view(), Qt::Key_F4);
    AppFixture::settle();
    QCOMPARE(shownDocks(app.window), {QStringLiteral("detailsDock")});

    resize(app, QSize(820, 500));
    QCOMPARE(shownDocks(app.window), {QStringLiteral("detailsDock")});

    app.window.findChild<QDockWidget *>(QStringLiteral("detailsDock"))
        ->toggleViewAction()
        ->trigger();
    resize(app, QSize(1400, 900));
    QVERIFY(!shownDocks(app.window).contains(QStringLiteral("detailsDock")));
}

void TestWindowLayout::shouldNotBringBackWhatTheUserClosed()
{
    AppFixture app;
    resize(app, QSize(1400, 900));
    app.window.findChild<QDockWidget *>(QStringLiteral("historyDock"))->close();
    resize(app, QSize(800, 500));
    resize(app, QSize(1400, 900));
    QCOMPARE(shownDocks(app.window), QStringList({names.at(0), names.at(1), names.at(3)}));
}

void TestWindowLayout::shouldBeNoLargerThanTheScreen()
{
    {
        MainWindow window;
        window.show();
        window.resize(3000, 2000); // on another screen, say
        AppFixture::settle();
        QVERIFY(window.close());
    }
    MainWindow window;
    window.show();
    AppFixture::settle();
    const QSize room = window.screen()->availableSize();
    QVERIFY(window.width() <= room.width());
    QVERIFY(window.height() <= room.height());
}

void TestWindowLayout::shouldKeepTheLayoutForTheScreen()
{
    {
        AppFixture app;
        resize(app, QSize(1400, 900));
        app.window.findChild<QDockWidget *>(QStringLiteral("overviewDock"))->close();
        QVERIFY(app.window.close());
    }
    // What another screen has does not count.
    QSettings settings;
    settings.remove(QStringLiteral("layout"));
    QVERIFY(
        settings.allKeys().contains(QStringLiteral("windows/%1x%2/layout")
                                        .arg(QGuiApplication::primaryScreen()->size().width())
                                        .arg(QGuiApplication::primaryScreen()->size().height())));
    AppFixture app;
    resize(app, QSize(1400, 900));
    QCOMPARE(shownDocks(app.window), names.mid(0, 3));
}

void TestWindowLayout::shouldNotKeepThatPanelsSteppedAside()
{
    {
        AppFixture app;
        resize(app, QSize(800, 500));
        QCOMPARE(shownDocks(app.window), QStringList());
        QVERIFY(app.window.close());
    }
    AppFixture app;
    resize(app, QSize(1400, 900));
    QCOMPARE(shownDocks(app.window), names);
}

void TestWindowLayout::shouldShowTheDrawingAlone()
{
    AppFixture app;
    resize(app, QSize(1400, 900));
    app.window.findChild<QDockWidget *>(QStringLiteral("historyDock"))->close();
    const QStringList before = shownDocks(app.window);

    QTest::keyClick(app.window.editor()->view(), Qt::Key_F,
                    Qt::ControlModifier | Qt::ShiftModifier);
    AppFixture::settle();
    QVERIFY(app.action("focus")->isChecked());
    QCOMPARE(shownDocks(app.window), QStringList());
    QVERIFY(!app.window.menuBar()->isVisible());
    QVERIFY(!app.window.statusBar()->isVisible());
    const QList<QToolBar *> bars = app.window.findChildren<QToolBar *>();
    QVERIFY(!bars.isEmpty());
    for (const QToolBar *bar : bars)
        QVERIFY(!bar->isVisible());
    QCOMPARE(app.window.editor()->view()->height(), app.window.height());
    // The commands go on working.
    QTest::keyClick(app.window.editor()->view(), Qt::Key_A, Qt::ControlModifier);
    QVERIFY(app.window.editor()->scene()->selectedItems().size() > 1);

    QTest::keyClick(app.window.editor()->view(), Qt::Key_F,
                    Qt::ControlModifier | Qt::ShiftModifier);
    AppFixture::settle();
    QVERIFY(!app.action("focus")->isChecked());
    QCOMPARE(shownDocks(app.window), before);
    QVERIFY(app.window.menuBar()->isVisible());
    QVERIFY(app.window.statusBar()->isVisible());
    for (const QToolBar *bar : bars)
        QVERIFY(bar->isVisible());
}

void TestWindowLayout::shouldLeaveTheFocusWithEscape()
{
    AppFixture app;
    app.trigger("focus");
    QVERIFY(!app.window.menuBar()->isVisible());
    QTest::keyClick(app.window.editor()->view()->viewport(), Qt::Key_Escape);
    AppFixture::settle();
    QVERIFY(app.window.menuBar()->isVisible());
    QVERIFY(!app.action("focus")->isChecked());
}

void TestWindowLayout::shouldNotKeepTheFocus()
{
    {
        AppFixture app;
        resize(app, QSize(1400, 900));
        app.trigger("focus");
        QVERIFY(app.window.close());
    }
    AppFixture app;
    resize(app, QSize(1400, 900));
    QCOMPARE(shownDocks(app.window), names);
    QVERIFY(app.window.menuBar()->isVisible());
}

FISHBONE_TEST(TestWindowLayout)
#include "tst_windowlayout.moc"
