// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>
#include <tests/app/picturesubject.h>

#include <tests/program/testprogram.h>

#include <QLineEdit>
#include <QPushButton>

/** Where Tab leads, and what becomes of a title that is typed when the mouse goes elsewhere. */
class TestTabOrder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldLeadThroughTheDetailsAsTheEyeGoes();
    void shouldLeadThroughTheExportAsTheEyeGoes();
    void shouldEndTheTypingOfATitleThatLosesTheFocus();

private:
    /** Presses Tab from @p first until it comes back there or out of @p within; the widgets that
     * it comes to. */
    static QList<QWidget *> walk(const QWidget &within, QWidget *first)
    {
        QList<QWidget *> visited;
        QWidget *now = first;
        while (now && within.isAncestorOf(now) && !visited.contains(now) && visited.size() < 60) {
            visited.append(now);
            QTest::keyClick(now, Qt::Key_Tab);
            now = QApplication::focusWidget();
        }
        return visited;
    }

    /** Those of @p visited that stand before the one before in the same row, or above it, but for
     * the beginning of the next column. */
    static QString stepsBack(const QWidget &within, const QList<QWidget *> &visited)
    {
        QStringList back;
        const auto placeOf = [&within](const QWidget *widget) {
            return QRect(widget->mapTo(&within, QPoint()), widget->size());
        };
        for (int i = 1; i < int(visited.size()); ++i) {
            const QRect before = placeOf(visited.at(i - 1));
            const QRect now = placeOf(visited.at(i));
            const bool isBeside = now.top() <= before.bottom() && now.bottom() >= before.top();
            const bool isBelow = now.top() >= before.top() || now.left() > before.right();
            if (isBeside ? now.left() < before.left() : !isBelow)
                back.append(visited.at(i - 1)->objectName() + QStringLiteral(" > ") +
                            visited.at(i)->objectName());
        }
        return back.join(QStringLiteral(", "));
    }
};

void TestTabOrder::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_taborder"));
}

void TestTabOrder::shouldLeadThroughTheDetailsAsTheEyeGoes()
{
    AppFixture app;
    app.window.resize(1400, 1600); // with all fields in sight
    QVERIFY(QTest::qWaitForWindowActive(&app.window));
    app.subject("Machines")->setUrl(QStringLiteral("http://localhost/"));
    app.select("Machines");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F4);
    AppFixture::settle();
    const QWidget *const panel = app.window.tabs()->current()->details();
    QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("detailsTitle"));
    const QList<QWidget *> visited = walk(*panel, QApplication::focusWidget());
    QVERIFY(visited.size() >= 12);
    // The buttons below the fields are led to as the next row.
    QCOMPARE(stepsBack(*panel, visited), QString());
}

void TestTabOrder::shouldLeadThroughTheExportAsTheEyeGoes()
{
    ExportDialog dialog(QStringLiteral("a.png"), pictureSubject(DiagramLook::Clear));
    dialog.show();
    dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    auto *const file = dialog.findChild<QWidget *>(QStringLiteral("file"));
    file->setFocus();
    const QList<QWidget *> visited = walk(dialog, file);
    QVERIFY(visited.size() >= 10);
    QCOMPARE(stepsBack(dialog, visited), QString());
}

void TestTabOrder::shouldEndTheTypingOfATitleThatLosesTheFocus()
{
    AppFixture app;
    QVERIFY(QTest::qWaitForWindowActive(&app.window));
    app.select("Machines");
    QTest::keyClick(app.window.editor()->view(), Qt::Key_F4);
    auto *const title = app.widget<QLineEdit>("detailsTitle");
    QTest::keyClicks(title, QStringLiteral("x"));
    app.window.editor()->view()->setFocus();
    QTest::keyClick(app.window.editor()->view(), Qt::Key_F2);
    AppFixture::settle();
    QWidget *const field = QApplication::focusWidget();
    QVERIFY(field && app.window.editor()->isAncestorOf(field));
    QVERIFY(field != app.window.editor()->view());
    const QPointer<QWidget> typed(field);

    auto *const revert = app.widget<QPushButton>("detailsRevert");
    revert->setFocus(Qt::MouseFocusReason); // as a click does first
    QTest::mouseClick(revert, Qt::LeftButton);
    AppFixture::settle();
    QVERIFY(!typed || !typed->isVisible());
    // What Tab does from there is not done to a title that nobody sees.
    const QString before = app.text();
    const auto isAway = [&app] {
        const QWidget *const now = QApplication::focusWidget();
        return now && now != app.window.editor()->view();
    };
    for (int i = 0; i < 10 && isAway(); ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        AppFixture::settle();
        QVERIFY(!typed || !typed->isVisible());
    }
    QCOMPARE(app.text(), before);
}

FISHBONE_TEST(TestTabOrder)
#include "tst_taborder.moc"
