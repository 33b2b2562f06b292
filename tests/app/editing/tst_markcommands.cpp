// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>
#include <tests/program/testprogram.h>
#include <tests/support/modaldriver.h>

#include <app/editing/markcommands.h>

#include <fishbone/items/taskstatusinfo.h>
#include <fishbone/items/textitem.h>
#include <fishbone/model/subjectmarks.h>

#include <QColorDialog>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDialogButtonBox>
#include <QInputDialog>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSettings>
#include <QStatusBar>

using TestSupport::ModalDriver;

namespace {

/** Where the title of a bone is seen on the canvas. */
QPoint seen(const AppFixture &app, const char *title)
{
    const TextItem *const text = app.subject(title)->spear()->textItem();
    return app.window.editor()->view()->mapFromScene(text->sceneBoundingRect().center());
}

void clickEntry(QMenu &menu, QAction *entry)
{
    QTest::mouseMove(&menu, menu.actionGeometry(entry).center());
    QTest::mouseClick(&menu, Qt::LeftButton, Qt::NoModifier, menu.actionGeometry(entry).center());
}

/** What is marked in a subject: "rootcause 3 #ff0000, status 3, priority 1, Ada/7". */
QString marksOf(const TreeItem &subject)
{
    const QJsonObject fields = subject.otherFields();
    return QStringLiteral("%1 %2 %3, %4, %5, %6/%7")
        .arg(fields.value(QStringLiteral("verdict")).toString())
        .arg(SubjectMarks::votes(subject))
        .arg(fields.value(QStringLiteral("colour")).toString())
        .arg(subject.status())
        .arg(subject.priority())
        .arg(subject.managerName(), subject.managerId());
}

} // namespace

class TestMarkCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { QSettings().clear(); }
    void shouldMarkByKey_data();
    void shouldMarkByKey();
    void shouldMarkAllThatAreSelectedInOneStep();
    void shouldCountVotes();
    void shouldOpenAtTheBone_data();
    void shouldOpenAtTheBone();
    void shouldMarkByTheMenuOfABone_data();
    void shouldMarkByTheMenuOfABone();
    void shouldKeepASelectionOfSeveralOnARightClick();
    void shouldSelectWhatIsRightClickedBesideTheSelection();
    void shouldSelectSeveralWithTheMouse();
    void shouldSelectBranchesAndSiblings();
    void shouldCheckWhatAllSelectedAre();
    void shouldAskWhoIsResponsible();
    void shouldAskForAnotherColour();
    void shouldSortByVotes();
    void shouldNeedASubject();
    void shouldSaveTheMarks();

private:
    /** Selects both with the mouse. */
    static void click(AppFixture &app, const char *first, const char *second)
    {
        QWidget *const canvas = app.window.editor()->view()->viewport();
        QTest::mouseClick(canvas, Qt::LeftButton, Qt::NoModifier, seen(app, first));
        AppFixture::settle();
        QTest::mouseClick(canvas, Qt::LeftButton, Qt::ControlModifier, seen(app, second));
        AppFixture::settle();
        QCOMPARE(app.selectedInDrawing(),
                 (QStringList{QString::fromUtf8(first), QString::fromUtf8(second)}));
    }
    /** Clicks with the right button at @p pos, and does @p act in the menu that comes. */
    static bool rightClick(AppFixture &app, const QPoint &pos,
                           const std::function<void(QMenu &)> &act)
    {
        QWidget *const canvas = app.window.editor()->view()->viewport();
        bool isShown = false;
        QTimer::singleShot(50, canvas, [&] {
            auto *const menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
            if (!menu)
                return;
            isShown = true;
            act(*menu);
            menu->close();
        });
        QTest::mousePress(canvas, Qt::RightButton, Qt::NoModifier, pos);
        QContextMenuEvent event(QContextMenuEvent::Mouse, pos, canvas->mapToGlobal(pos));
        QApplication::sendEvent(canvas, &event);
        QTest::mouseRelease(canvas, Qt::RightButton, Qt::NoModifier, pos);
        AppFixture::settle();
        return isShown;
    }
};

void TestMarkCommands::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_markcommands"));
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void TestMarkCommands::shouldMarkByKey_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("marks");
    const auto row = [](const char *name, Qt::Key key, int modifiers, const char *marks) {
        QTest::newRow(name) << int(key) << modifiers << QString::fromLatin1(marks);
    };
    row("suspected", Qt::Key_1, Qt::AltModifier, "suspected 2 , -1, -1, /");
    row("being checked", Qt::Key_2, Qt::AltModifier, "checking 2 , -1, -1, /");
    row("confirmed", Qt::Key_3, Qt::AltModifier, "confirmed 2 , -1, -1, /");
    row("ruled out", Qt::Key_4, Qt::AltModifier, "ruledout 2 , -1, -1, /");
    row("root cause", Qt::Key_5, Qt::AltModifier, "rootcause 2 , -1, -1, /");
    row("no verdict", Qt::Key_0, Qt::AltModifier, " 2 , -1, -1, /");
    row("a vote", Qt::Key_F7, Qt::NoModifier, "checking 3 , -1, -1, /");
    row("a vote less", Qt::Key_F7, Qt::ShiftModifier, "checking 1 , -1, -1, /");
}

void TestMarkCommands::shouldMarkByKey()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(QString, marks);
    AppFixture app;
    TreeItem &rust = *app.subject("Rust");
    SubjectMarks::setVotes(rust, 2);
    SubjectMarks::setVerdict(rust, Verdict::Checking);
    app.select("Rust");
    QTest::keyClick(app.window.editor()->view(), Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    AppFixture::settle();
    QCOMPARE(marksOf(*app.subject("Rust")), marks);
}

void TestMarkCommands::shouldMarkAllThatAreSelectedInOneStep()
{
    AppFixture app;
    click(app, "People", "Machines");
    const int steps = app.window.editor()->undoStack()->count();
    QTest::keyClick(app.window.editor()->view(), Qt::Key_5, Qt::AltModifier);
    AppFixture::settle();
    for (const char *title : {"People", "Machines"})
        QCOMPARE(SubjectMarks::verdict(*app.subject(title)), Verdict::RootCause);
    QCOMPARE(SubjectMarks::verdict(*app.subject("Material")), Verdict::None);
    QCOMPARE(app.window.editor()->undoStack()->count(), steps + 1);
    QCOMPARE(app.window.editor()->undoStack()->undoText(), QStringLiteral("Change verdict"));
    QCOMPARE(app.selectedInDrawing(),
             (QStringList{QStringLiteral("People"), QStringLiteral("Machines")}));
    QTest::keyClick(app.window.editor()->view(), Qt::Key_Z, Qt::ControlModifier);
    AppFixture::settle();
    for (const char *title : {"People", "Machines"})
        QCOMPARE(SubjectMarks::verdict(*app.subject(title)), Verdict::None);
    // The same again is no step.
    QTest::keyClick(app.window.editor()->view(), Qt::Key_0, Qt::AltModifier);
    QVERIFY(!app.window.editor()->canUndo());
}

void TestMarkCommands::shouldCountVotes()
{
    AppFixture app;
    SubjectMarks::setVotes(*app.subject("Machines"), 4);
    click(app, "People", "Machines");
    QTest::keyClick(app.window.editor()->view(), Qt::Key_F7);
    QTest::keyClick(app.window.editor()->view(), Qt::Key_F7);
    AppFixture::settle();
    QCOMPARE(SubjectMarks::votes(*app.subject("People")), 2);
    QCOMPARE(SubjectMarks::votes(*app.subject("Machines")), 6); // each from its own
    for (int i = 0; i < 4; ++i)
        QTest::keyClick(app.window.editor()->view(), Qt::Key_F7, Qt::ShiftModifier);
    AppFixture::settle();
    QCOMPARE(SubjectMarks::votes(*app.subject("People")), 0); // and not below
    QCOMPARE(SubjectMarks::votes(*app.subject("Machines")), 2);
}

void TestMarkCommands::shouldOpenAtTheBone_data()
{
    QTest::addColumn<QString>("letters");
    QTest::addColumn<QString>("marks");
    QTest::newRow("verdict") << QStringLiteral("o") << QStringLiteral("rootcause 0 , -1, -1, /");
    QTest::newRow("vote") << QStringLiteral("m") << QStringLiteral(" 1 , -1, -1, /");
    QTest::newRow("status") << QStringLiteral("tf") << QStringLiteral(" 0 , 2, -1, /");
    QTest::newRow("priority") << QStringLiteral("p1") << QStringLiteral(" 0 , -1, 1, /");
    QTest::newRow("colour") << QStringLiteral("ur") << QStringLiteral(" 0 #b3261e, -1, -1, /");
}

/** The space bar opens a palette that takes letters. */
void TestMarkCommands::shouldOpenAtTheBone()
{
    QFETCH(QString, letters);
    QFETCH(QString, marks);
    AppFixture app;
    app.window.setGeometry(0, 0, 780, 600); // with room on the screen
    AppFixture::settle();
    app.trigger("fit");
    app.select("People");
    QTest::keyClick(app.window.editor()->view(), Qt::Key_Space);
    AppFixture::settle();
    auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    QVERIFY(menu);
    const QPoint title = app.window.editor()->view()->viewport()->mapToGlobal(seen(app, "People"));
    // At the bone, from which it moves as far as the screen has no room.
    QVERIFY(menu->geometry().adjusted(-100, -100, 100, 100).contains(title));
    for (const QChar letter : letters) {
        menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        QVERIFY(menu);
        QTest::keyClick(menu, letter.toLatin1());
        AppFixture::settle();
    }
    QVERIFY(!QApplication::activePopupWidget());
    QCOMPARE(marksOf(*app.subject("People")), marks);
}

void TestMarkCommands::shouldMarkByTheMenuOfABone_data()
{
    QTest::addColumn<QString>("menu");
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("marks");
    const auto row = [](const char *name, const char *menu, const char *entry, const char *marks) {
        QTest::newRow(name) << QString::fromLatin1(menu) << QString::fromLatin1(entry)
                            << QString::fromLatin1(marks);
    };
    row("verdict", "", "verdictRuledOut", "ruledout 0 , -1, -1, /");
    row("vote", "", "voteMore", " 1 , -1, -1, /");
    row("status", "statusMenu", "statusFinished", " 0 , 2, -1, /");
    row("priority", "priorityMenu", "priority2", " 0 , -1, 2, /");
    row("colour", "colourMenu", "colourRed", " 0 #b3261e, -1, -1, /");
}

/** Of all that are selected, by the mouse alone. */
void TestMarkCommands::shouldMarkByTheMenuOfABone()
{
    QFETCH(QString, menu);
    QFETCH(QString, entry);
    QFETCH(QString, marks);
    AppFixture app;
    click(app, "People", "Machines");
    const bool isShown = rightClick(app, seen(app, "Machines"), [&](QMenu &shown) {
        QMenu *marking = app.window.findChild<MarkCommands *>()->menu();
        clickEntry(shown, marking->menuAction());
        QTRY_VERIFY(marking->isVisible());
        if (!menu.isEmpty()) {
            auto *const below = marking->findChild<QMenu *>(menu);
            clickEntry(*marking, below->menuAction());
            QTRY_VERIFY(below->isVisible());
            marking = below;
        }
        clickEntry(*marking, app.action(entry.toLatin1().constData()));
    });
    QVERIFY(isShown);
    QTRY_COMPARE(marksOf(*app.subject("People")), marks);
    QCOMPARE(marksOf(*app.subject("Machines")), marks);
    QCOMPARE(app.window.editor()->undoStack()->count(), 1);
}

void TestMarkCommands::shouldKeepASelectionOfSeveralOnARightClick()
{
    AppFixture app;
    click(app, "People", "Machines");
    const bool isShown = rightClick(app, seen(app, "Machines"), [&app](QMenu &menu) {
        QCOMPARE(app.selectedInDrawing().size(), 2);
        auto *const marks = app.window.findChild<MarkCommands *>()->menu();
        QVERIFY(menu.actions().contains(marks->menuAction()));
        app.action("verdictConfirmed")->trigger();
    });
    QVERIFY(isShown);
    QCOMPARE(app.selectedInDrawing().size(), 2);
    for (const char *title : {"People", "Machines"})
        QCOMPARE(SubjectMarks::verdict(*app.subject(title)), Verdict::Confirmed);
}

void TestMarkCommands::shouldSelectWhatIsRightClickedBesideTheSelection()
{
    AppFixture app;
    click(app, "People", "Machines");
    QVERIFY(rightClick(app, seen(app, "Material"), [](QMenu &) {}));
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("Material")));
    // One alone is nothing to be kept.
    QVERIFY(rightClick(app, seen(app, "Material"), [](QMenu &) {}));
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("Material")));
}

void TestMarkCommands::shouldSelectSeveralWithTheMouse()
{
    AppFixture app;
    app.trigger("expandall");
    QWidget *const canvas = app.window.editor()->view()->viewport();
    const auto selectedAfter = [&](const char *title, Qt::KeyboardModifier modifier) {
        QTest::mouseClick(canvas, Qt::LeftButton, modifier, seen(app, title));
        AppFixture::settle();
        return app.selectedInDrawing().join(QLatin1Char(','));
    };
    QCOMPARE(selectedAfter("Rust", Qt::NoModifier), QStringLiteral("Rust"));
    QCOMPARE(selectedAfter("Machines", Qt::ControlModifier), QStringLiteral("Machines,Rust"));
    QCOMPARE(selectedAfter("Rust", Qt::ControlModifier), QStringLiteral("Machines"));
    QCOMPARE(app.selectedInTree(), QStringList(QStringLiteral("Machines")));
    QCOMPARE(selectedAfter("Too few", Qt::NoModifier), QStringLiteral("Too few"));
    QCOMPARE(selectedAfter("Machines", Qt::ShiftModifier),
             QStringLiteral("Too few,Illness,Too new,Machines"));
    QCOMPARE(selectedAfter("People", Qt::ShiftModifier), QStringLiteral("People,Too few"));
    QCOMPARE(selectedAfter("Rust", Qt::NoModifier), QStringLiteral("Rust"));
    QCOMPARE(app.text(),
             QStringLiteral("Late[People[Too few[Illness],Too new],Machines,Material[Rust]]"));
    QVERIFY(!app.document()->modified());
}

void TestMarkCommands::shouldSelectBranchesAndSiblings()
{
    AppFixture app;
    app.select("People"); // which is contracted
    QTest::keyClick(app.window.editor()->view(), Qt::Key_A,
                    Qt::ControlModifier | Qt::ShiftModifier);
    AppFixture::settle();
    QCOMPARE(app.selectedInDrawing().join(QLatin1Char(',')),
             QStringLiteral("People,Too few,Illness,Too new"));
    app.select("Machines");
    app.trigger("selectSiblings");
    QCOMPARE(app.selectedInDrawing().join(QLatin1Char(',')),
             QStringLiteral("People,Machines,Material"));
    app.select("Late");
    QVERIFY(!app.action("selectSiblings")->isEnabled());
}

void TestMarkCommands::shouldCheckWhatAllSelectedAre()
{
    AppFixture app;
    SubjectMarks::setVerdict(*app.subject("People"), Verdict::Confirmed);
    app.subject("People")->setPriority(2);
    app.subject("Machines")->setPriority(2);
    click(app, "People", "Machines");
    MarkCommands &marks = *app.window.findChild<MarkCommands *>();
    Q_EMIT marks.menu()->aboutToShow();
    QVERIFY(!app.action("verdictConfirmed")->isChecked());
    QVERIFY(!app.action("verdictNone")->isChecked());
    QVERIFY(app.action("priority2")->isChecked());
    QVERIFY(app.action("statusNone")->isChecked());
    app.select("People");
    Q_EMIT marks.menu()->aboutToShow();
    QVERIFY(app.action("verdictConfirmed")->isChecked());
}

void TestMarkCommands::shouldAskWhoIsResponsible()
{
    AppFixture app;
    app.subject("Rust")->setManagerName(QStringLiteral("Ada"));
    app.subject("Rust")->setManagerId(QStringLiteral("7"));
    app.subject("Illness")->setFollowers(QStringList{QStringLiteral("Bo"), QStringLiteral("Ada")});
    click(app, "People", "Machines");
    QStringList known;
    const ModalDriver<QInputDialog> driver([&known](QInputDialog &dialog) {
        auto *const box = dialog.findChild<QComboBox *>();
        for (int i = 0; i < box->count(); ++i)
            known << box->itemText(i);
        box->lineEdit()->selectAll();
        QTest::keyClicks(box->lineEdit(), QStringLiteral("ad")); // completed
        QTest::mouseClick(dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok),
                          Qt::LeftButton);
    });
    QTest::keyClick(app.window.editor()->view(), Qt::Key_F4, Qt::ShiftModifier);
    QVERIFY(driver.isDone());
    AppFixture::settle();
    QCOMPARE(known, (QStringList{QStringLiteral("Ada"), QStringLiteral("Bo")}));
    for (const char *title : {"People", "Machines"})
        QCOMPARE(marksOf(*app.subject(title)), QStringLiteral(" 0 , -1, -1, Ada/7"));
    app.trigger("undo");
    QCOMPARE(app.subject("People")->managerName(), QString());
    QVERIFY(!app.window.editor()->canUndo());
}

void TestMarkCommands::shouldAskForAnotherColour()
{
    AppFixture app;
    click(app, "People", "Machines");
    const ModalDriver<QColorDialog> driver([](QColorDialog &dialog) {
        dialog.setCurrentColor(QColor(1, 2, 3));
        dialog.accept();
    });
    app.trigger("colourOther");
    QVERIFY(driver.isDone());
    for (const char *title : {"People", "Machines"})
        QCOMPARE(SubjectMarks::colour(*app.subject(title)), QColor(1, 2, 3));
    app.trigger("colourNone");
    QVERIFY(!SubjectMarks::colour(*app.subject("People")).isValid());
}

void TestMarkCommands::shouldSortByVotes()
{
    AppFixture app;
    const QString before = app.text();
    app.select("Material");
    QTest::keyClick(app.window.editor()->view(), Qt::Key_F7);
    QTest::keyClick(app.window.editor()->view(), Qt::Key_F7);
    app.select("Machines");
    QTest::keyClick(app.window.editor()->view(), Qt::Key_F7);
    QTest::keyClick(app.window.editor()->view(), Qt::Key_F7, Qt::ControlModifier);
    AppFixture::settle();
    QCOMPARE(app.text(),
             QStringLiteral("Late[Material[Rust],Machines,People[Too few[Illness],Too new]]"));
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("Machines")));
    QCOMPARE(app.window.statusBar()->currentMessage(), QStringLiteral("Sorted by votes"));
    // What is in order already is no step.
    const QString step = app.window.editor()->undoStack()->undoText();
    app.trigger("sortByVotes");
    app.trigger("undo");
    QCOMPARE(step, QStringLiteral("Sort by votes"));
    QCOMPARE(app.text(), before);
    app.trigger("redo");
    QVERIFY(app.text().startsWith(QLatin1String("Late[Material")));
}

void TestMarkCommands::shouldNeedASubject()
{
    AppFixture app;
    app.window.editor()->scene()->clearSelection();
    AppFixture::settle();
    for (const char *name : {"verdictSuspected", "voteMore", "statusFinished", "priority1",
                             "colourRed", "manager", "sortByVotes", "markHere"})
        QVERIFY2(!app.action(name)->isEnabled(), name);
    app.select("Late");
    QVERIFY(app.action("colourRed")->isEnabled());
    QVERIFY(!app.action("sortByVotes")->isEnabled()); // the head has none beside it
}

void TestMarkCommands::shouldSaveTheMarks()
{
    AppFixture app;
    app.select("Rust");
    app.trigger("voteMore");
    app.trigger("verdictRuledOut");
    app.trigger("save");
    const QByteArray saved = AppFixture::contentOf(app.path());
    QVERIFY(saved.contains("\"votes\": 1"));
    QVERIFY(saved.contains("\"verdict\": \"ruledout\""));
}

FISHBONE_TEST(TestMarkCommands)
#include "tst_markcommands.moc"
