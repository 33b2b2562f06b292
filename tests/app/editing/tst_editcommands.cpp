// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>

#include <tests/app/editing/editcommandsparts.h>
#include <tests/program/testprogram.h>
#include <tests/support/modaldriver.h>

#include <app/editing/titleeditor.h>
#include <fishbone/items/linkitem.h>
#include <fishbone/items/textitem.h>
#include <fishbone/style/spearstyle.h>
#include <fishbone/style/spearstyledialog.h>

#include <QClipboard>
#include <QContextMenuEvent>
#include <QInputDialog>
#include <QLineEdit>
#include <QMenu>

using namespace TestSupport;

class TestEditCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldInsertByShortcutAndName_data();
    void shouldInsertByShortcutAndName();
    void shouldScrollToWhatIsInserted();
    void shouldInsertByMenu_data();
    void shouldInsertByMenu();
    void shouldKeepTheFieldOverTheTitle_data();
    void shouldKeepTheFieldOverTheTitle();
    void shouldTakeANewBoneAwayOnEscape_data();
    void shouldTakeANewBoneAwayOnEscape();
    void shouldKeepTheDefaultTitleOnReturn();
    void shouldRenameInAStepOfItsOwnLater();
    void shouldRenameInAStepOfItsOwnAfterAnotherEdit();
    void shouldLeaveShortcutsToWidgetsThatTakeText();
    void shouldInsertAFreeSubjectAsADocument();
    void shouldRename();
    void shouldDeleteAndSelectANeighbour_data();
    void shouldDeleteAndSelectANeighbour();
    void shouldCutAndPaste();
    void shouldGivePastedSubjectsUuidsOfTheirOwn();
    void shouldSelectAll();
};

void TestEditCommands::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_editcommands"));
}

void TestEditCommands::shouldInsertByShortcutAndName_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("result");

    QTest::newRow("child") << int(Qt::Key_Insert) << int(Qt::NoModifier)
                           << QStringLiteral("Late[People[Too few[Illness],Too new],Machines[New],"
                                             "Material[Rust]]");
    QTest::newRow("child, with Tab")
        << int(Qt::Key_Tab) << int(Qt::NoModifier)
        << QStringLiteral("Late[People[Too few[Illness],Too new],Machines[New],Material[Rust]]");
    QTest::newRow("after, with the number pad")
        << int(Qt::Key_Enter) << int(Qt::KeypadModifier)
        << QStringLiteral("Late[People[Too few[Illness],Too new],Machines,New,Material[Rust]]");
    QTest::newRow("before") << int(Qt::Key_Return) << int(Qt::ShiftModifier)
                            << QStringLiteral("Late[People[Too few[Illness],Too new],New,Machines,"
                                              "Material[Rust]]");
    QTest::newRow("after") << int(Qt::Key_Return) << int(Qt::NoModifier)
                           << QStringLiteral("Late[People[Too few[Illness],Too new],Machines,New,"
                                             "Material[Rust]]");
    QTest::newRow("parent") << int(Qt::Key_Return) << int(Qt::ControlModifier)
                            << QStringLiteral("Late[People[Too few[Illness],Too new],New[Machines],"
                                              "Material[Rust]]");
}

void TestEditCommands::shouldInsertByShortcutAndName()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(QString, result);
    AppFixture app;
    app.select("Machines");

    QTest::keyClick(app.window.editor()->view(), Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    AppFixture::settle();
    TitleEditor *const field = titleField(app);
    QVERIFY(field);
    QVERIFY(field->hasFocus());
    QTest::keyClicks(field, QStringLiteral("New"));
    QTest::keyClick(field, Qt::Key_Return);
    AppFixture::settle();

    QVERIFY(!titleField(app));
    QCOMPARE(app.text(), result);
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("New")));
    QVERIFY(app.subject("New")->spear()->isVisible());
    QVERIFY(app.window.editor()->view()->hasFocus());

    app.trigger("undo"); // the subject and its title
    QCOMPARE(app.text(), original());
    QVERIFY(!app.window.editor()->undoStack()->canUndo());
    app.trigger("redo");
    QCOMPARE(app.text(), result);
    app.select("New");
    QCOMPARE(app.subject("New")->spear()->text(), QStringLiteral("New"));
}

void TestEditCommands::shouldScrollToWhatIsInserted()
{
    AppFixture app;
    app.trigger("expandall");
    app.window.editor()->zoomFish(400); // eight times as large: most of it is out of sight
    GraphicsView *const view = app.window.editor()->view();
    for (const char *title : {"Illness", "Rust", "Machines"}) {
        app.select(title);
        for (int i = 0; i < 3; ++i) { // each one outside of what could be scrolled to before
            QTest::keyClick(view, Qt::Key_Tab);
            AppFixture::settle();
            QVERIFY2(titleField(app), title);
            const SpearItem *const made = app.window.editor()->firstSelectedSpear();
            const QPoint middle = view->mapFromScene(
                made->textItem()->mapToScene(made->textItem()->boundingRect().center()));
            QVERIFY2(view->viewport()->rect().contains(middle), title);
            QTest::keyClick(titleField(app), Qt::Key_Return);
            AppFixture::settle();
        }
    }
}

void TestEditCommands::shouldInsertByMenu_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("result");

    QTest::newRow("child") << QByteArray("child") << QStringLiteral("Material[Rust,子主题]");
    QTest::newRow("before") << QByteArray("before") << QStringLiteral("子主题,Material[Rust]");
    QTest::newRow("after") << QByteArray("after") << QStringLiteral("Material[Rust],子主题");
    QTest::newRow("parent") << QByteArray("parent") << QStringLiteral("子主题[Material[Rust]]");
}

void TestEditCommands::shouldInsertByMenu()
{
    QFETCH(QByteArray, name);
    QFETCH(QString, result);
    AppFixture app;
    app.select("Material");
    app.trigger(name.constData());
    QCOMPARE(app.text(),
             QStringLiteral("Late[People[Too few[Illness],Too new],Machines,%1]").arg(result));
    QCOMPARE(app.selectedInTree(), QStringList(QStringLiteral("子主题")));
}

void TestEditCommands::shouldKeepTheFieldOverTheTitle_data()
{
    QTest::addColumn<QByteArray>("title");
    QTest::addColumn<QByteArray>("action");

    QTest::newRow("child") << QByteArray("Machines") << QByteArray("child");
    QTest::newRow("sibling") << QByteArray("Illness") << QByteArray("after");
    QTest::newRow("head") << QByteArray("Late") << QByteArray("after");
}

void TestEditCommands::shouldKeepTheFieldOverTheTitle()
{
    QFETCH(QByteArray, title);
    QFETCH(QByteArray, action);
    AppFixture app;
    app.window.editor()->expandAll();
    app.select(title.constData());
    const auto distance = [&app] {
        const auto *const spear =
            qgraphicsitem_cast<SpearItem *>(app.window.editor()->selectedItems().value(0));
        const QPointF middle = spear->textItem()->sceneBoundingRect().center();
        const QPoint field = titleField(app)->geometry().center();
        return (app.window.editor()->view()->mapFromScene(middle) - field).manhattanLength();
    };

    app.trigger(action.constData());
    AppFixture::settle();
    QVERIFY(titleField(app));
    QVERIFY2(distance() < 5, QByteArray::number(distance()));

    app.window.resize(900, 900);
    AppFixture::settle();
    QVERIFY2(distance() < 5, QByteArray::number(distance()));
}

void TestEditCommands::shouldTakeANewBoneAwayOnEscape_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("child") << int(Qt::Key_Tab);
    QTest::newRow("sibling") << int(Qt::Key_Return);
}

void TestEditCommands::shouldTakeANewBoneAwayOnEscape()
{
    QFETCH(int, key);
    AppFixture app;
    app.select("Machines");
    QTest::keyClick(app.window.editor()->view(), Qt::Key(key));
    AppFixture::settle();
    QVERIFY(titleField(app));
    QVERIFY(app.text() != original());
    QTest::keyClicks(titleField(app), QStringLiteral("abc"));
    QTest::keyClick(titleField(app), Qt::Key_Escape);
    AppFixture::settle();
    QVERIFY(!titleField(app));
    QCOMPARE(app.text(), original());
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("Machines")));
    QVERIFY(!app.window.isWindowModified());
}

/** Return without a word keeps the bone with the title that it began with. */
void TestEditCommands::shouldKeepTheDefaultTitleOnReturn()
{
    AppFixture app;
    app.select("Machines");
    app.trigger("child");
    QTest::keyClick(titleField(app), Qt::Key_Return);
    AppFixture::settle();
    QVERIFY(app.text().contains(QStringLiteral("Machines[子主题]")));
    QCOMPARE(app.window.editor()->undoStack()->commandNames().size(), 1);
}

void TestEditCommands::shouldRenameInAStepOfItsOwnLater()
{
    AppFixture app;
    app.select("Machines");
    app.trigger("child");
    QTest::keyClick(titleField(app), Qt::Key_Return);
    app.trigger("rename");
    QTest::keyClicks(titleField(app), QStringLiteral("New"));
    QTest::keyClick(titleField(app), Qt::Key_Return);
    AppFixture::settle();
    QVERIFY(app.text().contains(QStringLiteral("Machines[New]")));
    app.trigger("undo");
    QVERIFY(app.text().contains(QStringLiteral("Machines[子主题]")));
    app.trigger("undo");
    QCOMPARE(app.text(), original());
}

void TestEditCommands::shouldRenameInAStepOfItsOwnAfterAnotherEdit()
{
    AppFixture app;
    app.select("Machines");
    app.trigger("child");
    QTest::keyClicks(titleField(app), QStringLiteral("New"));
    app.window.editor()->renameItem(app.find("Rust"), QStringLiteral("Wear"));
    QTest::keyClick(titleField(app), Qt::Key_Return);
    AppFixture::settle();
    QVERIFY(app.text().contains(QStringLiteral("Machines[New],Material[Wear]")));
    app.trigger("undo");
    QVERIFY(app.text().contains(QStringLiteral("Machines[子主题],Material[Wear]")));
    app.trigger("undo");
    QVERIFY(app.text().contains(QStringLiteral("Machines[子主题],Material[Rust]")));
    app.trigger("undo");
    QCOMPARE(app.text(), original());
}

void TestEditCommands::shouldLeaveShortcutsToWidgetsThatTakeText()
{
    AppFixture app;
    app.select("Machines");
    auto *const filter = app.widget<QLineEdit>("filter");
    filter->setFocus();
    QTest::keyClicks(filter, QStringLiteral("Mach+-"));
    QTest::keyClick(filter, Qt::Key_Delete);
    QTest::keyClick(filter, Qt::Key_Return);
    AppFixture::settle();
    QCOMPARE(filter->text(), QStringLiteral("Mach+-"));
    QCOMPARE(app.text(), original());
}

void TestEditCommands::shouldInsertAFreeSubjectAsADocument()
{
    AppFixture app;
    app.trigger("free");
    QCOMPARE(app.tabCount(), 2);
    QVERIFY(titleField(app)); // ready to be typed over
    QCOMPARE(app.text(), QStringLiteral("自由主题"));
    QVERIFY(!app.window.editor()->undoStack()->canUndo());
}

void TestEditCommands::shouldRename()
{
    AppFixture app;
    app.select("Too few");
    QTest::keyClick(app.window.editor()->view(), Qt::Key_F2);
    TitleEditor *const field = titleField(app);
    QVERIFY(field);
    QCOMPARE(field->text(), QStringLiteral("Too few"));
    field->setPlainText(QStringLiteral("Not enough"));
    app.window.editor()->view()->setFocus(); // leaving the field takes the title
    AppFixture::settle();
    QVERIFY(!titleField(app));
    QVERIFY(app.text().contains(QLatin1String("Not enough[Illness]")));
    QCOMPARE(app.find("Not enough").data().toString(), QStringLiteral("Not enough"));
    QVERIFY(app.window.isWindowModified());

    app.trigger("rename");
    QTest::keyClick(titleField(app), Qt::Key_Return); // nothing changed
    QCOMPARE(app.window.editor()->undoStack()->commandNames().size(), 1);
}

void TestEditCommands::shouldDeleteAndSelectANeighbour_data()
{
    QTest::addColumn<QByteArray>("title");
    QTest::addColumn<QString>("result");
    QTest::addColumn<QString>("selected");

    QTest::newRow("the next one") << QByteArray("People")
                                  << QStringLiteral("Late[Machines,Material[Rust]]")
                                  << QStringLiteral("Machines");
    QTest::newRow("the previous one")
        << QByteArray("Material")
        << QStringLiteral("Late[People[Too few[Illness],Too new],Machines]")
        << QStringLiteral("Machines");
    QTest::newRow("the parent") << QByteArray("Rust")
                                << QStringLiteral(
                                       "Late[People[Too few[Illness],Too new],Machines,Material]")
                                << QStringLiteral("Material");
}

void TestEditCommands::shouldDeleteAndSelectANeighbour()
{
    QFETCH(QByteArray, title);
    QFETCH(QString, result);
    QFETCH(QString, selected);
    AppFixture app;
    app.select(title.constData());
    QTest::keyClick(app.window.editor()->view(), Qt::Key_Delete);
    AppFixture::settle();
    QCOMPARE(app.text(), result);
    QCOMPARE(app.selectedInDrawing(), QStringList(selected));
    QCOMPARE(app.selectedInTree(), QStringList(selected));
    app.trigger("undo");
    QCOMPARE(app.text(), original());
}

void TestEditCommands::shouldCutAndPaste()
{
    AppFixture app;
    app.select("Too few");
    app.trigger("cut");
    QCOMPARE(app.text(), QStringLiteral("Late[People[Too new],Machines,Material[Rust]]"));
    app.select("Machines");
    app.trigger("paste");
    QCOMPARE(app.text(),
             QStringLiteral("Late[People[Too new],Machines[Too few[Illness]],Material[Rust]]"));
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("Too few")));
    QCOMPARE(app.subject("Too few")->uuid(), QStringLiteral("{b}")); // it is the same one
}

void TestEditCommands::shouldGivePastedSubjectsUuidsOfTheirOwn()
{
    AppFixture app;
    app.select("Material");
    app.trigger("copy");
    app.select("Machines");
    app.trigger("paste");
    QCOMPARE(app.text(), QStringLiteral("Late[People[Too few[Illness],Too new],"
                                        "Machines[Material[Rust]],Material[Rust]]"));
    QSet<QString> uuids;
    const QModelIndexList all = app.window.model()->searchModelIndexes(QString());
    for (const QModelIndex &index : all)
        uuids.insert(app.window.model()->getTreeItem(index)->uuid());
    QCOMPARE(uuids.size(), all.size());
}

void TestEditCommands::shouldSelectAll()
{
    AppFixture app;
    QTest::keyClick(app.window.editor()->view(), Qt::Key_A, Qt::ControlModifier);
    AppFixture::settle();
    for (const char *title : {"People", "Machines", "Material"})
        QVERIFY2(app.selectedInDrawing().contains(QLatin1String(title)), title);
    app.trigger("delete");
    QCOMPARE(app.text(), QStringLiteral("Late"));
}

FISHBONE_TEST(TestEditCommands)
#include "tst_editcommands.moc"
