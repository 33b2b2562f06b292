// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>
#include <tests/program/testprogram.h>

#include <fishbone/model/subjectmarks.h>

#include <QDockWidget>
#include <QTreeWidget>

namespace {

QStringList rows(const QTreeWidget &list)
{
    QStringList texts;
    for (int row = 0; row < list.topLevelItemCount(); ++row)
        texts.append(list.topLevelItem(row)->text(0));
    return texts;
}

int currentRow(const QTreeWidget &list)
{
    return list.indexOfTopLevelItem(list.currentItem());
}

/** Where @p row is seen, to be clicked. */
QPoint placeOf(const QTreeWidget &list, const QTreeWidgetItem *row)
{
    return list.visualItemRect(row).center();
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
    void shouldFoldStepsOfOneKind();
    void shouldKeepARunUnfolded();
    void shouldKeepARunUnfoldedWhoseBeginningFallsOff();
    void shouldFoldARunInThePlaceOfAnother();
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
    QCOMPARE(app.widget<QTreeWidget>("history")->topLevelItemCount(), 1);
    app.trigger("child");
    app.trigger("undo");
    QCOMPARE(app.text(), QStringLiteral("自由主题"));
    QVERIFY(!app.action("undo")->isEnabled());

    app.showTab(0);
    QCOMPARE(app.text(), changed);
    QVERIFY(app.action("undo")->isEnabled());
    QCOMPARE(app.widget<QTreeWidget>("history")->topLevelItemCount(), 2);
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
    auto *const list = app.widget<QTreeWidget>("history");
    QCOMPARE(list->topLevelItemCount(), 1);
    QCOMPARE(currentRow(*list), 0);
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
    QCOMPARE(list->topLevelItemCount(), 4);
    QCOMPARE(currentRow(*list), 3);

    list->setCurrentItem(list->topLevelItem(1));
    AppFixture::settle();
    QCOMPARE(app.text(),
             QStringLiteral("Late[People[Too few[Illness],Too new],Machines,Material]"));
    QCOMPARE(app.window.editor()->undoStack()->currentIndex(), 0);
    QVERIFY(app.subject("Machines")->spear()); // the drawing follows

    list->setCurrentItem(list->topLevelItem(0));
    AppFixture::settle();
    QCOMPARE(app.text(), original());
    QVERIFY(!app.action("undo")->isEnabled());
    list->setCurrentItem(list->topLevelItem(3));
    AppFixture::settle();
    QCOMPARE(app.text(), QStringLiteral("Late[子主题[People[Too few[Illness],Too new]],Material]"));
    QVERIFY(!app.action("redo")->isEnabled());

    app.trigger("undo");
    QCOMPARE(currentRow(*list), 2);
    app.select("Material");
    app.trigger("voteMore"); // in place of what was undone
    QCOMPARE(list->topLevelItemCount(), 4);
    QCOMPARE(currentRow(*list), 3);
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
    auto *const list = app.widget<QTreeWidget>("history");
    const int steps = app.window.editor()->undoStack()->count(); // all of one kind
    QCOMPARE(rows(*list).mid(1).join(QLatin1Char('|')),
             QStringLiteral("Modify subject name (%1 of %2)").arg(steps - 1).arg(steps));
}

void TestUndoHistory::shouldFoldStepsOfOneKind()
{
    AppFixture app;
    app.select("Machines");
    for (int i = 0; i < 5; ++i)
        QTest::keyClick(app.window.editor()->view(), Qt::Key_F7);
    app.select("Rust");
    QTest::keyClick(app.window.editor()->view(), Qt::Key_5, Qt::AltModifier);
    QTest::keyClick(app.window.editor()->view(), Qt::Key_1, Qt::AltModifier);
    AppFixture::settle();
    auto *const list = app.widget<QTreeWidget>("history");
    auto *const dock = app.window.findChild<QDockWidget *>(QStringLiteral("historyDock"));
    dock->show();
    dock->raise();
    QTRY_VERIFY(list->isVisible());
    AppFixture::settle();
    QCOMPARE(rows(*list),
             QStringList({QStringLiteral("(beginning)"), QStringLiteral("Vote (5 times)"),
                          QStringLiteral("Change verdict “Rust”"),
                          QStringLiteral("Change verdict “Rust”")})); // two are no run
    const auto votes = [&app] { return SubjectMarks::votes(*app.subject("Machines")); };
    QTreeWidgetItem *const run = list->topLevelItem(1);
    QVERIFY(!run->isExpanded());

    // The run goes to its last step, and the arrow keys to each when it is unfolded.
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, placeOf(*list, run));
    AppFixture::settle();
    QCOMPARE(app.window.editor()->undoStack()->currentIndex(), 4);
    QCOMPARE(votes(), 5);
    QCOMPARE(SubjectMarks::verdict(*app.subject("Rust")), Verdict::None);
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Right);
    QVERIFY(run->isExpanded());
    QCOMPARE(run->childCount(), 5);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                      placeOf(*list, run->child(1)));
    AppFixture::settle();
    QCOMPARE(votes(), 2);
    QCOMPARE(list->currentItem(), run->child(1));
    QCOMPARE(run->text(0), QStringLiteral("Vote (2 of 5)"));
    if (const QByteArray folder = qgetenv("FISHBONE_TEST_PICTURES"); !folder.isEmpty())
        app.window.grab().save(QString::fromLocal8Bit(folder) + QStringLiteral("/history.png"));
    QTest::keyClick(list, Qt::Key_Down);
    AppFixture::settle();
    QCOMPARE(votes(), 3);
    QTest::keyClick(list, Qt::Key_Left); // folds, and changes nothing
    AppFixture::settle();
    QVERIFY(!run->isExpanded());
    QCOMPARE(list->currentItem(), run);
    QCOMPARE(votes(), 3);
    QCOMPARE(run->text(0), QStringLiteral("Vote (3 of 5)"));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, placeOf(*list, run));
    AppFixture::settle();
    QCOMPARE(votes(), 5);
    QTest::keyClick(list, Qt::Key_Up);
    AppFixture::settle();
    QCOMPARE(votes(), 0);
}

/** Also while other steps come. */
void TestUndoHistory::shouldKeepARunUnfolded()
{
    AppFixture app;
    app.select("Machines");
    for (int i = 0; i < 3; ++i)
        app.trigger("voteMore");
    auto *const list = app.widget<QTreeWidget>("history");
    list->topLevelItem(1)->setExpanded(true);
    app.trigger("voteMore");
    QCOMPARE(rows(*list).mid(1), QStringList(QStringLiteral("Vote (4 times)")));
    QVERIFY(list->topLevelItem(1)->isExpanded());
    app.trigger("verdictSuspected");
    QVERIFY(list->topLevelItem(1)->isExpanded());
    QCOMPARE(currentRow(*list), 2);
    app.trigger("undo");
    QCOMPARE(list->currentItem(), list->topLevelItem(1)->child(3));
}

/** At the bound of the history the first step goes with each new one: the rest moves up. */
void TestUndoHistory::shouldKeepARunUnfoldedWhoseBeginningFallsOff()
{
    AppFixture app;
    app.select("Machines");
    for (int i = 0; i < 5; ++i)
        app.trigger("voteMore");
    app.trigger("verdictSuspected");
    for (int i = 0; i < 4; ++i)
        app.trigger("voteMore");
    auto *const list = app.widget<QTreeWidget>("history");
    list->setFocus();
    list->topLevelItem(1)->setExpanded(true);
    QVERIFY(!list->topLevelItem(3)->isExpanded());
    bool isConfirmed = true;
    const auto pushUntil = [&](const char *first) {
        for (int i = 0; i < 2 * UndoStack::m_limit && rows(*list).at(1) != QLatin1String(first);
             ++i) {
            app.trigger(isConfirmed ? "verdictConfirmed" : "verdictSuspected");
            isConfirmed = !isConfirmed;
        }
        QCOMPARE(rows(*list).at(1), QLatin1String(first));
    };
    pushUntil("Vote (3 times)"); // two of the five are gone
    QVERIFY(list->topLevelItem(1)->isExpanded());
    QCOMPARE(rows(*list).mid(3, 1), QStringList(QStringLiteral("Vote (4 times)")));
    QVERIFY(!list->topLevelItem(3)->isExpanded());
    pushUntil("Vote (4 times)"); // what comes in the place of the run is folded
    QVERIFY(!list->topLevelItem(1)->isExpanded());
}

void TestUndoHistory::shouldFoldARunInThePlaceOfAnother()
{
    AppFixture app;
    app.select("Machines");
    for (int i = 0; i < 3; ++i)
        app.trigger("voteMore");
    auto *const list = app.widget<QTreeWidget>("history");
    list->topLevelItem(1)->setExpanded(true);
    for (int i = 0; i < 3; ++i)
        app.trigger("undo");
    QVERIFY(list->topLevelItem(1)->isExpanded()); // it can be redone
    app.select("Rust");
    for (int i = 0; i < 3; ++i)
        app.trigger("voteMore");
    QCOMPARE(rows(*list).mid(1), QStringList(QStringLiteral("Vote (3 times)")));
    QVERIFY(!list->topLevelItem(1)->isExpanded());
}

FISHBONE_TEST(TestUndoHistory)
#include "tst_undohistory.moc"
