// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/files/welcome.h>

#include <tests/app/appfixture.h>
#include <tests/program/testprogram.h>
#include <tests/support/sourcefolder.h>

#include <QDir>
#include <QSettings>

/** The diagram that greets a new user. */
class TestWelcome : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QSettings().clear(); }
    void teachesTheKeysOnThreeLevels();
    void namesTheKeyThatLooksLikeABullet();
    void greetsAtTheFirstStartAlone();
    void comesUntitledAndUnmodifiedAndAllInView();
    void showsTheClearLookAsSamplesDo();
    void comesAgainFromTheMenu();
    void namesKeysThatWork_data();
    void namesKeysThatWork();
};

void TestWelcome::teachesTheKeysOnThreeLevels()
{
    const auto head = Welcome::diagram();
    QVERIFY(head);
    QCOMPARE(head->title(), QStringLiteral("Your first fishbone"));
    QCOMPARE(head->childCount(), 7);
    for (const TreeItem *bone : head->childItems())
        QVERIFY2(bone->childCount() >= 2, qPrintable(bone->title()));
}

void TestWelcome::namesTheKeyThatLooksLikeABullet()
{
    const auto head = Welcome::diagram();
    QStringList titles;
    for (const TreeItem *bone : head->childItems()) {
        for (const TreeItem *key : bone->childItems())
            titles.append(key->title());
    }
    QVERIFY(titles.contains(QStringLiteral("+ and −: expand, contract")));
}

void TestWelcome::greetsAtTheFirstStartAlone()
{
    const auto shownAtStart = [] {
        MainWindow window;
        window.show();
        window.open({});
        AppFixture::settle();
        return window.model()->getTreeItem(window.editor()->rootIndex())->title();
    };
    QCOMPARE(shownAtStart(), QStringLiteral("Your first fishbone"));
    QVERIFY(shownAtStart() != QStringLiteral("Your first fishbone"));
}

void TestWelcome::comesUntitledAndUnmodifiedAndAllInView()
{
    MainWindow window;
    window.resize(1200, 800);
    window.show();
    window.open({});
    AppFixture::settle();
    QVERIFY(window.session()->document()->isUntitled());
    QVERIFY(!window.session()->document()->modified());
    const GraphicsView *const view = window.editor()->view();
    const QRectF shown = view->mapToScene(view->viewport()->rect()).boundingRect();
    const QModelIndexList deepest =
        window.model()->searchModelIndexes(QStringLiteral("F1: all keys"));
    QCOMPARE(deepest.size(), 1);
    const SpearItem *const spear = window.model()->getTreeItem(deepest.constFirst())->spear();
    QVERIFY(spear && spear->isVisible());
    QVERIFY(shown.contains(spear->sceneBoundingRect()));
}

void TestWelcome::showsTheClearLookAsSamplesDo()
{
    MainWindow window;
    window.show();
    window.open({});
    AppFixture::settle();
    QCOMPARE(window.editor()->look(), DiagramLook::Clear);
    const QDir samples(TestSupport::sourceFile(QStringLiteral("samples")));
    const QStringList names = samples.entryList({QStringLiteral("*.fishbone.json")});
    QVERIFY(names.size() >= 5);
    for (const QString &name : names) {
        window.open({samples.filePath(name)});
        AppFixture::settle();
        QCOMPARE(window.session()->document()->fileName(), samples.filePath(name));
        QVERIFY2(window.editor()->look() == DiagramLook::Clear, qPrintable(name));
    }
}

void TestWelcome::comesAgainFromTheMenu()
{
    AppFixture app;
    app.trigger("welcome");
    QCOMPARE(app.tabCount(), 2);
    QVERIFY(app.text().startsWith(QLatin1String("Your first fishbone[Build it[")));
}

void TestWelcome::namesKeysThatWork_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("action");

    QTest::newRow("child") << "Tab: a child"
                           << "child";
    QTest::newRow("after") << "Enter: one after it"
                           << "after";
    QTest::newRow("before") << "Shift+Enter: one before it"
                            << "before";
    QTest::newRow("parent") << "Ctrl+Enter: a parent"
                            << "parent";
    QTest::newRow("rename") << "F2: edit the title"
                            << "rename";
    QTest::newRow("details") << "F4: details"
                             << "details";
    QTest::newRow("mark") << "Space: all marks"
                          << "markHere";
    QTest::newRow("vote") << "F7: a vote"
                          << "voteMore";
    QTest::newRow("undo") << "Ctrl+Z: undo"
                          << "undo";
    QTest::newRow("fit") << "Home: all of it"
                         << "fit";
    QTest::newRow("save") << "Ctrl+S: save"
                          << "save";
    QTest::newRow("export") << "Ctrl+E: a picture"
                            << "export";
    QTest::newRow("keys") << "F1: all keys"
                          << "keys";
}

void TestWelcome::namesKeysThatWork()
{
    QFETCH(QString, title);
    QFETCH(QString, action);

    AppFixture app;
    app.trigger("welcome");
    QVERIFY(app.find(qPrintable(title)).isValid());
    const QKeySequence key(title.section(QLatin1String(": "), 0, 0));
    QVERIFY(!key.isEmpty());
    QVERIFY(app.window.findChild<QAction *>(action)->shortcuts().contains(key));
}

FISHBONE_TEST(TestWelcome)
#include "tst_welcome.moc"
