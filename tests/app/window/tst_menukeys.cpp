// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>
#include <tests/program/testprogram.h>

#include <QMenu>
#include <QMenuBar>

class TestMenuKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldLeaveAnOpenMenuItsKeys_data();
    void shouldLeaveAnOpenMenuItsKeys();
    void shouldWalkFromMenuToMenu();
};

void TestMenuKeys::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_menukeys"));
}

void TestMenuKeys::shouldLeaveAnOpenMenuItsKeys_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("left") << int(Qt::Key_Left);
    QTest::newRow("right") << int(Qt::Key_Right);
    QTest::newRow("home") << int(Qt::Key_Home);
    QTest::newRow("tab") << int(Qt::Key_Tab);
    QTest::newRow("delete") << int(Qt::Key_Delete);
    QTest::newRow("plus") << int(Qt::Key_Plus);
}

void TestMenuKeys::shouldLeaveAnOpenMenuItsKeys()
{
    QFETCH(int, key);
    AppFixture app;
    app.select("People");
    const QString before = app.text();
    const QTransform view = app.window.editor()->view()->transform();
    QMenu menu; // such as the one of a bone
    menu.addAction(QStringLiteral("First"));
    menu.addAction(QStringLiteral("Second"));
    menu.popup(QPoint(10, 10));
    QTest::keyClick(&menu, Qt::Key(key));
    AppFixture::settle();
    QCOMPARE(app.text(), before);
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("People")));
    QCOMPARE(app.window.editor()->view()->transform(), view);
    QVERIFY(!app.subject("People")->spear()->isExpand());
}

void TestMenuKeys::shouldWalkFromMenuToMenu()
{
    AppFixture app;
    app.select("People");
    auto *const first = app.widget<QMenu>("subjectMenu");
    auto *const second = app.widget<QMenu>("goMenu");
    app.window.menuBar()->setActiveAction(first->menuAction());
    QTRY_VERIFY(first->isVisible());
    QTest::keyClick(first, Qt::Key_Right);
    QTRY_VERIFY(second->isVisible());
    QVERIFY(!first->isVisible());
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("People")));
    QTest::keyClick(second, Qt::Key_Escape);
}

FISHBONE_TEST(TestMenuKeys)
#include "tst_menukeys.moc"
