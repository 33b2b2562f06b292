// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>
#include <tests/program/testprogram.h>

#include <app/common/busycursor.h>

#include <QSettings>
#include <QStatusBar>

namespace {

std::unique_ptr<TreeItem> treeOf(int children)
{
    auto tree = std::make_unique<TreeItem>();
    tree->insertChildren(0, children, QString());
    return tree;
}

bool isBusy()
{
    return QApplication::overrideCursor() &&
           QApplication::overrideCursor()->shape() == Qt::WaitCursor;
}

} // namespace

class TestBusyCursor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldShowTheCursorAsLongAsItLives();
    void shouldSayItInTheStatusBar();
    void shouldLeaveOtherMessages();
    void shouldShowNothingForWhatIsQuick();
    void shouldShowThatALargeDiagramIsWorkedOn_data();
    void shouldShowThatALargeDiagramIsWorkedOn();
    void shouldSayItWhenADialogHasJustClosed();

private:
    static void openDiagram(AppFixture &app, int causes);
    bool isBusyDuring(AppFixture &app, const char *name);
};

void TestBusyCursor::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_busycursor"));
}

void TestBusyCursor::shouldShowTheCursorAsLongAsItLives()
{
    {
        const BusyCursor busy;
        QVERIFY(isBusy());
        {
            const BusyCursor inner;
            QVERIFY(isBusy());
        }
        QVERIFY(isBusy());
    }
    QVERIFY(!QApplication::overrideCursor());
}

void TestBusyCursor::shouldSayItInTheStatusBar()
{
    const AppFixture app;
    const QStatusBar &bar = *app.window.statusBar();
    {
        const BusyCursor busy;
        QCOMPARE(bar.currentMessage(), QStringLiteral("Working…"));
    }
    QCOMPARE(bar.currentMessage(), QString());
}

void TestBusyCursor::shouldLeaveOtherMessages()
{
    const AppFixture app;
    QStatusBar &bar = *app.window.statusBar();
    {
        const BusyCursor busy;
        bar.showMessage(QStringLiteral("Done"));
    }
    QCOMPARE(bar.currentMessage(), QStringLiteral("Done"));
}

void TestBusyCursor::shouldShowNothingForWhatIsQuick()
{
    const auto small = treeOf(100);
    const auto large = treeOf(6000);
    {
        const BusyCursor busy(small.get());
        QVERIFY(!isBusy());
    }
    {
        const BusyCursor busy(nullptr);
        QVERIFY(!isBusy());
    }
    {
        const BusyCursor busy(large.get());
        QVERIFY(isBusy());
    }
    QVERIFY(!QApplication::overrideCursor());
}

void TestBusyCursor::shouldShowThatALargeDiagramIsWorkedOn_data()
{
    QTest::addColumn<int>("causes");
    QTest::addColumn<bool>("isShown");
    QTest::newRow("small") << 5 << false;
    QTest::newRow("large") << 6000 << true;
}

/** Opens a diagram with so many @p causes below one bone. */
void TestBusyCursor::openDiagram(AppFixture &app, int causes)
{
    QByteArray below;
    for (int i = 0; i < causes; ++i)
        below += (i > 0 ? "," : "") + QByteArray(R"({"title": "Cause"})");
    const QString path = app.path(QStringLiteral("other.json"));
    AppFixture::writeFile(path,
                          R"({"title": "Other", "children": [{"title": "Bone", "children": [)" +
                              below + "]}]}");
    app.window.open({path});
    AppFixture::settle();
}

/** Whether the cursor was busy while the status bar said something during the command @p name. */
bool TestBusyCursor::isBusyDuring(AppFixture &app, const char *name)
{
    bool wasBusy = false;
    const auto watch = connect(app.window.statusBar(), &QStatusBar::messageChanged, this,
                               [&wasBusy] { wasBusy = wasBusy || isBusy(); });
    app.trigger(name);
    disconnect(watch);
    return wasBusy;
}

void TestBusyCursor::shouldShowThatALargeDiagramIsWorkedOn()
{
    QFETCH(int, causes);
    QFETCH(bool, isShown);
    AppFixture app;
    openDiagram(app, causes);
    for (const char *name : {"expandall", "contractall", "child", "undo", "save"}) {
        if (QLatin1String(name) == QLatin1String("child"))
            app.select("Bone");
        const bool wasBusy = isBusyDuring(app, name);
        if (QLatin1String(name) != QLatin1String("child")) // which is one command of many
            QVERIFY2(wasBusy == isShown, name);
        QVERIFY2(!QApplication::overrideCursor(), name);
    }
}

/** No window is active then until the next event. */
void TestBusyCursor::shouldSayItWhenADialogHasJustClosed()
{
    AppFixture app;
    openDiagram(app, 6000);
    const QString patience = QStringLiteral("progressAfterMilliseconds");
    QSettings().setValue(patience, 0);
    const bool wasBusy = isBusyDuring(app, "expandall");
    QSettings().remove(patience);
    QVERIFY(wasBusy);
}

FISHBONE_TEST(TestBusyCursor)
#include "tst_busycursor.moc"
