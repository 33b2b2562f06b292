// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>
#include <tests/program/testprogram.h>

#include <QDockWidget>
#include <QFormLayout>
#include <QScrollArea>
#include <QScrollBar>
#include <QSettings>

/** The order of the rows of the details. */
class TestDetailsRows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldShowFirstWhatIsFilledFirst_data();
    void shouldShowFirstWhatIsFilledFirst();
    void shouldLeadThroughTheRowsByTab();

private:
    /** What a meeting fills of a cause, in its order. */
    static QStringList filledFirst()
    {
        return {QStringLiteral("detailsTitle"), QStringLiteral("detailsVerdict"),
                QStringLiteral("detailsStatus"), QStringLiteral("detailsManager"),
                QStringLiteral("detailsPlannedEnd")};
    }

    static const QScrollArea &area(const AppFixture &app)
    {
        return *app.window.tabs()->current()->details()->findChild<QScrollArea *>();
    }
};

void TestDetailsRows::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_detailsrows"));
}

void TestDetailsRows::shouldShowFirstWhatIsFilledFirst_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("1024 x 700") << QSize(1024, 700);
    QTest::newRow("1600 x 1000 pixels, two a pixel") << QSize(800, 500);
}

/** Without scrolling, on the smallest screens. */
void TestDetailsRows::shouldShowFirstWhatIsFilledFirst()
{
    QFETCH(QSize, size);
    QSettings().clear();
    AppFixture app;
    app.window.resize(size);
    AppFixture::settle();
    app.select("Machines");
    QTest::keyClick(app.window.editor()->view(), Qt::Key_F4);
    AppFixture::settle();
    QCOMPARE(app.window.size(), size);
    const QWidget *const sight = area(app).viewport();
    int above = -1;
    const QStringList names = filledFirst();
    for (const QString &name : names) {
        const QWidget *const field = app.widget<QWidget>(name.toLatin1());
        const QRect place(field->mapTo(sight, QPoint()), field->size());
        QVERIFY2(sight->rect().contains(place), qPrintable(name));
        QVERIFY2(place.top() > above, qPrintable(name));
        above = place.bottom();
    }
    QCOMPARE(area(app).verticalScrollBar()->value(), 0);
    QCOMPARE(area(app).horizontalScrollBar()->maximum(), 0); // nothing is cut at the side
}

void TestDetailsRows::shouldLeadThroughTheRowsByTab()
{
    QSettings().clear();
    AppFixture app;
    QVERIFY(QTest::qWaitForWindowActive(&app.window));
    app.select("Machines");
    QTest::keyClick(app.window.editor()->view(), Qt::Key_F4);
    AppFixture::settle();
    const QWidget *const form = area(app).widget();
    const auto *const rows = qobject_cast<QFormLayout *>(form->layout());
    int last = -1;
    QSet<int> reached;
    QStringList visited;
    for (QWidget *now = QApplication::focusWidget(); now && form->isAncestorOf(now);
         now = QApplication::focusWidget()) {
        visited.append(now->objectName());
        const QWidget *inRow = now;
        while (inRow->parentWidget() != form)
            inRow = inRow->parentWidget();
        int row = -1;
        QFormLayout::ItemRole role{};
        rows->getWidgetPosition(const_cast<QWidget *>(inRow), &row, &role);
        QVERIFY2(row >= last, qPrintable(visited.join(QLatin1Char(' '))));
        reached.insert(row);
        last = row;
        QTest::keyClick(now, Qt::Key_Tab);
    }
    QCOMPARE(reached.size(), rows->rowCount() - 1); // the last one says what cannot be changed
    QStringList first = visited;
    first.removeAll(QStringLiteral("detailsHasPlannedEnd"));
    first.removeAll(QStringLiteral("detailsPlannedEnd")); // there is none, so it is skipped
    QStringList wanted = filledFirst();
    wanted.removeLast();
    QCOMPARE(first.mid(0, wanted.size()), wanted);
}

FISHBONE_TEST(TestDetailsRows)
#include "tst_detailsrows.moc"
