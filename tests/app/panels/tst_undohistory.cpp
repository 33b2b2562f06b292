// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>
#include <tests/program/testprogram.h>

#include <QListWidget>

namespace {

QStringList rows(const QListWidget &list)
{
    QStringList texts;
    for (int row = 0; row < list.count(); ++row)
        texts.append(list.item(row)->text());
    return texts;
}

QString original()
{
    return QStringLiteral("Late[People[Too few[Illness],Too new],Machines,Material[Rust]]");
}

} // namespace

class TestUndoHistory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldEnableUndoAndRedoWithTheStack();
    void shouldKeepTheDrawingsLookOnUndo();
    void shouldUndoInTheCurrentTabAlone();
    void shouldMarkTheDocumentOnUndo();
    void shouldListTheHistoryAndJump();
    void shouldGoOnUndoingBeyondTheBound();
};

void TestUndoHistory::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_undohistory"));
}

void TestUndoHistory::shouldEnableUndoAndRedoWithTheStack()
{
    AppFixture app;
    QVERIFY(!app.action("undo")->isEnabled());
    QVERIFY(!app.action("redo")->isEnabled());
    app.select("Machines");
    app.trigger("delete");
    QVERIFY(app.action("undo")->isEnabled());
    QVERIFY(!app.action("redo")->isEnabled());
    QTest::keyClick(&app.window, Qt::Key_Z, Qt::ControlModifier);
    AppFixture::settle();
    QCOMPARE(app.text(), original());
    QVERIFY(!app.action("undo")->isEnabled());
    QVERIFY(app.action("redo")->isEnabled());
    QTest::keyClick(&app.window, Qt::Key_Y, Qt::ControlModifier);
    AppFixture::settle();
    QCOMPARE(app.text(), QStringLiteral("Late[People[Too few[Illness],Too new],Material[Rust]]"));
}

void TestUndoHistory::shouldKeepTheDrawingsLookOnUndo()
{
    AppFixture app;
    app.select("Illness");
    app.select("Rust");
    app.trigger("child");
    app.trigger("undo");
    QVERIFY(app.subject("People")->spear()->isExpand());
    QVERIFY(app.subject("Too few")->spear()->isExpand());
    QVERIFY(app.subject("Illness")->spear()->isVisible());
    QVERIFY(app.subject("Rust")->spear()->isVisible());

    app.select("People");
    app.trigger("delete");
    app.trigger("undo"); // other objects, the same subjects
    QVERIFY(app.subject("Material")->spear()->isExpand());
}

void TestUndoHistory::shouldUndoInTheCurrentTabAlone()
{
    AppFixture app;
    app.select("Machines");
    app.trigger("delete");
    const QString changed = app.text();
    app.trigger("new");
    QVERIFY(!app.action("undo")->isEnabled());
    QCOMPARE(app.widget<QListWidget>("history")->count(), 1);
    app.trigger("child");
    app.trigger("undo");
    QCOMPARE(app.text(), QStringLiteral("自由主题"));
    QVERIFY(!app.action("undo")->isEnabled());

    app.showTab(0);
    QCOMPARE(app.text(), changed);
    QVERIFY(app.action("undo")->isEnabled());
    QCOMPARE(app.widget<QListWidget>("history")->count(), 2);
    app.trigger("undo");
    QCOMPARE(app.text(), original());
}

void TestUndoHistory::shouldMarkTheDocumentOnUndo()
{
    AppFixture app;
    app.select("Machines");
    app.trigger("delete");
    app.trigger("save");
    app.trigger("undo");
    QVERIFY(app.document()->modified());

    app.document()->setModified(false);
    app.subject("Machines")->setUrl(QStringLiteral("http://localhost/"));
    app.select("Machines");
    app.window.session()->touch();
    AppFixture::settle();
    app.trigger("unlink");
    app.document()->setModified(false);
    app.trigger("undo"); // the model does not tell of links
    QCOMPARE(app.subject("Machines")->url(), QStringLiteral("http://localhost/"));
    QVERIFY(app.document()->modified());
}

void TestUndoHistory::shouldListTheHistoryAndJump()
{
    AppFixture app;
    auto *const list = app.widget<QListWidget>("history");
    QCOMPARE(list->count(), 1);
    QCOMPARE(list->currentRow(), 0);
    app.select("Rust");
    app.trigger("delete");
    app.select("Machines");
    app.trigger("delete");
    app.select("People");
    app.trigger("parent");
    QCOMPARE(rows(*list).mid(1),
             QStringList({QStringLiteral("Delete selecteds “Rust”"),
                          QStringLiteral("Delete selecteds “Machines”"),
                          QStringLiteral("Insert subject as parent “子主题”")}));
    QCOMPARE(list->count(), 4);
    QCOMPARE(list->currentRow(), 3);

    list->setCurrentRow(1);
    AppFixture::settle();
    QCOMPARE(app.text(),
             QStringLiteral("Late[People[Too few[Illness],Too new],Machines,Material]"));
    QCOMPARE(app.window.editor()->undoStack()->currentIndex(), 0);
    QVERIFY(app.subject("Machines")->spear()); // the drawing follows

    list->setCurrentRow(0);
    AppFixture::settle();
    QCOMPARE(app.text(), original());
    QVERIFY(!app.action("undo")->isEnabled());
    list->setCurrentRow(3);
    AppFixture::settle();
    QCOMPARE(app.text(), QStringLiteral("Late[子主题[People[Too few[Illness],Too new]],Material]"));
    QVERIFY(!app.action("redo")->isEnabled());

    app.trigger("undo");
    QCOMPARE(list->currentRow(), 2);
    app.select("Material");
    app.trigger("delete"); // in place of what was undone
    QCOMPARE(list->count(), 4);
    QCOMPARE(list->currentRow(), 3);
}

void TestUndoHistory::shouldGoOnUndoingBeyondTheBound()
{
    AppFixture app;
    const QModelIndex machines = app.find("Machines");
    for (int i = 0; i < 120; ++i)
        app.window.editor()->renameItem(machines, QString::number(i));
    AppFixture::settle();
    QVERIFY(app.action("undo")->isEnabled());
    app.trigger("undo");
    QCOMPARE(machines.data().toString(), QStringLiteral("118"));
    auto *const list = app.widget<QListWidget>("history");
    QCOMPARE(list->currentRow(), list->count() - 2);
}

FISHBONE_TEST(TestUndoHistory)
#include "tst_undohistory.moc"
