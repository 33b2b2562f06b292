// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>
#include <tests/program/testprogram.h>

class TestMoveCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldMoveTheSelectedBone_data();
    void shouldMoveTheSelectedBone();
    void shouldStayWhereThereIsNoPlace_data();
    void shouldStayWhereThereIsNoPlace();
    void shouldPromoteNothingOutOfThePartThatIsShown();
    void shouldMoveFromTheTree();
    void shouldNeedABone();
};

void TestMoveCommands::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_movecommands"));
}

void TestMoveCommands::shouldMoveTheSelectedBone_data()
{
    QTest::addColumn<QByteArray>("title");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("result");

    QTest::newRow("up") << QByteArray("Material") << int(Qt::Key_Up)
                        << QStringLiteral(
                               "Late[People[Too few[Illness],Too new],Material[Rust],Machines]");
    QTest::newRow("up to the front")
        << QByteArray("Too new") << int(Qt::Key_Up)
        << QStringLiteral("Late[People[Too new,Too few[Illness]],Machines,Material[Rust]]");
    QTest::newRow("down") << QByteArray("People") << int(Qt::Key_Down)
                          << QStringLiteral(
                                 "Late[Machines,People[Too few[Illness],Too new],Material[Rust]]");
    QTest::newRow("down to the end")
        << QByteArray("Machines") << int(Qt::Key_Down)
        << QStringLiteral("Late[People[Too few[Illness],Too new],Material[Rust],Machines]");
    QTest::newRow("promote")
        << QByteArray("Illness") << int(Qt::Key_Left)
        << QStringLiteral("Late[People[Too few,Illness,Too new],Machines,Material[Rust]]");
    QTest::newRow("promote to a main bone")
        << QByteArray("Too few") << int(Qt::Key_Left)
        << QStringLiteral("Late[People[Too new],Too few[Illness],Machines,Material[Rust]]");
    QTest::newRow("demote")
        << QByteArray("Machines") << int(Qt::Key_Right)
        << QStringLiteral("Late[People[Too few[Illness],Too new,Machines],Material[Rust]]");
    QTest::newRow("demote below a bone without children")
        << QByteArray("Material") << int(Qt::Key_Right)
        << QStringLiteral("Late[People[Too few[Illness],Too new],Machines[Material[Rust]]]");
}

void TestMoveCommands::shouldMoveTheSelectedBone()
{
    QFETCH(QByteArray, title);
    QFETCH(int, key);
    QFETCH(QString, result);
    AppFixture app;
    const QString before = app.text();
    app.select(title.constData());
    QTest::keyClick(app.window.editor()->view(), Qt::Key(key), Qt::AltModifier);
    AppFixture::settle();

    QCOMPARE(app.text(), result);
    QCOMPARE(app.selectedInDrawing(), QStringList(QString::fromUtf8(title)));
    QCOMPARE(app.selectedInTree(), QStringList(QString::fromUtf8(title)));
    QVERIFY(app.subject(title.constData())->spear()->isVisible());
    QCOMPARE(app.subject(title.constData())->pid(),
             app.subject(title.constData())->parent()->uuid());
    QCOMPARE(app.window.editor()->undoStack()->commandNames().size(), 1);
    QVERIFY(app.window.isWindowModified());

    app.trigger("undo");
    QCOMPARE(app.text(), before);
    app.trigger("redo");
    QCOMPARE(app.text(), result);
}

void TestMoveCommands::shouldStayWhereThereIsNoPlace_data()
{
    QTest::addColumn<QByteArray>("title");
    QTest::addColumn<int>("key");

    QTest::newRow("the first one up") << QByteArray("Too few") << int(Qt::Key_Up);
    QTest::newRow("the last one down") << QByteArray("Too new") << int(Qt::Key_Down);
    QTest::newRow("a main bone beside the head") << QByteArray("Machines") << int(Qt::Key_Left);
    QTest::newRow("the first one below another") << QByteArray("People") << int(Qt::Key_Right);
}

void TestMoveCommands::shouldStayWhereThereIsNoPlace()
{
    QFETCH(QByteArray, title);
    QFETCH(int, key);
    AppFixture app;
    const QString before = app.text();
    app.select(title.constData());
    QTest::keyClick(app.window.editor()->view(), Qt::Key(key), Qt::AltModifier);
    AppFixture::settle();
    QCOMPARE(app.text(), before);
    QVERIFY(!app.window.editor()->undoStack()->canUndo());
    QCOMPARE(app.selectedInDrawing(), QStringList(QString::fromUtf8(title)));
    QCOMPARE(app.window.editor()->rootIndex(), app.find("Late")); // and it is no "back" either
}

void TestMoveCommands::shouldPromoteNothingOutOfThePartThatIsShown()
{
    AppFixture app;
    const QString before = app.text();
    app.select("People");
    app.trigger("asDiagram");
    app.select("Too new");
    app.trigger("promote");
    QCOMPARE(app.text(), before);
    QCOMPARE(app.window.editor()->rootIndex(), app.find("People"));
}

void TestMoveCommands::shouldMoveFromTheTree()
{
    AppFixture app;
    app.select("Machines");
    app.window.tree()->view()->setFocus();
    QTest::keyClick(app.window.tree()->view(), Qt::Key_Up, Qt::AltModifier);
    AppFixture::settle();
    QCOMPARE(app.text(),
             QStringLiteral("Late[Machines,People[Too few[Illness],Too new],Material[Rust]]"));
    QCOMPARE(app.selectedInTree(), QStringList(QStringLiteral("Machines")));
}

void TestMoveCommands::shouldNeedABone()
{
    AppFixture app;
    for (const char *name : {"moveUp", "moveDown", "promote", "demote"})
        QVERIFY2(!app.action(name)->isEnabled(), name);
    app.select("Late");
    for (const char *name : {"moveUp", "moveDown", "promote", "demote"})
        QVERIFY2(!app.action(name)->isEnabled(), name);
    app.select("People");
    for (const char *name : {"moveUp", "moveDown", "promote", "demote"})
        QVERIFY2(app.action(name)->isEnabled(), name);
    app.window.session()->select({app.find("People"), app.find("Machines")});
    AppFixture::settle();
    for (const char *name : {"moveUp", "moveDown", "promote", "demote"})
        QVERIFY2(!app.action(name)->isEnabled(), name); // it is not clear which one
}

FISHBONE_TEST(TestMoveCommands)
#include "tst_movecommands.moc"
