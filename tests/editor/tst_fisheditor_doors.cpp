// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QMenu>
#include <QTimer>
#include <QtTest>

#include <fishbone/items/textitem.h>
#include <tests/program/testprogram.h>
#include <tests/support/editorfixture.h>
#include <tests/support/viewmouse.h>

using namespace TestSupport;

namespace {

QStringList textsOf(const QMenu &menu)
{
    QStringList texts;
    const QList<QAction *> actions = menu.actions();
    for (const QAction *action : actions)
        texts.append(action->text());
    return texts;
}

/**
 * The text of the last entry of the context menu of a spear, which is chosen; nothing when no menu
 * comes up.
 */
QString chooseLastEntry(FishEditor &editor, SpearItem *spear)
{
    QString text;
    QTimer chooser;
    QObject::connect(&chooser, &QTimer::timeout, &editor, [&text] {
        auto *const menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        if (!menu)
            return;
        text = menu->actions().last()->text();
        menu->setActiveAction(menu->actions().last());
        QTest::keyClick(menu, Qt::Key_Return);
    });
    chooser.start(1);
    editor.onRightClicked(spear);
    return text;
}

QString document()
{
    return QStringLiteral("Effect[Man[Training],Machine]");
}

} // namespace

/** What a host sets and asks beside the slots. */
class TestFishEditorDoors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldStartOneAutosaveTimer();
    void shouldChangeTheAutosaveInterval();
    void shouldTellItsAutosaveInterval();
    void shouldSelectSpearsAndTellOnce();
    void shouldAddEntriesToTheBoneMenu();
    void shouldDoWhatAHostsEntryDoesAndNothingElse();
    void shouldShowAHostsEntriesAtTheHeadOfATaskDiagram();
    void shouldNotTakeAHostsEntryForAnOwnOneThatItTookTheAddressOf();
    void shouldFindTheBoneAtAPoint();
};

void TestFishEditorDoors::shouldStartOneAutosaveTimer()
{
    FishEditor editor;
    const auto timers = [&editor] {
        return editor.findChildren<QTimer *>(QString(), Qt::FindDirectChildrenOnly);
    };
    QCOMPARE(timers().count(), 1);
    QVERIFY(timers().first()->isActive());
    QCOMPARE(timers().first()->interval(), 30000);
    editor.startSaveTmpFileTimer();
    QCOMPARE(timers().count(), 1);
    QVERIFY(timers().first()->isActive());
}

void TestFishEditorDoors::shouldChangeTheAutosaveInterval()
{
    FishEditor editor;
    const auto *const timer = editor.findChild<QTimer *>(QString(), Qt::FindDirectChildrenOnly);
    editor.setAutosaveInterval(5000);
    QCOMPARE(timer->interval(), 5000);
    QVERIFY(timer->isActive());
    editor.setAutosaveInterval(0);
    QVERIFY(!timer->isActive());
    editor.startSaveTmpFileTimer();
    QVERIFY(!timer->isActive());
}

void TestFishEditorDoors::shouldAddEntriesToTheBoneMenu()
{
    EditorFixture f(document());
    const SpearItem *asked = nullptr;
    QMenu before;
    f.editor.createPopMenu(before, f.spear(QStringLiteral("Man")));
    f.editor.setBoneMenuFiller([&asked](QMenu &menu, SpearItem *spear) {
        asked = spear;
        menu.addAction(QStringLiteral("mine"));
    });
    QMenu menu;
    f.editor.createPopMenu(menu, f.spear(QStringLiteral("Man")));
    QCOMPARE(textsOf(menu), textsOf(before) + QStringList{QStringLiteral("mine")});
    QCOMPARE(asked, f.spear(QStringLiteral("Man")));
    f.editor.setBoneMenuFiller({});
    QMenu after;
    f.editor.createPopMenu(after, f.spear(QStringLiteral("Man")));
    QCOMPARE(textsOf(after), textsOf(before));
}

void TestFishEditorDoors::shouldDoWhatAHostsEntryDoesAndNothingElse()
{
    // Given an entry of a host's with the data of the library's own deletion
    EditorFixture f(document());
    int triggered = 0;
    f.editor.setBoneMenuFiller([&triggered](QMenu &menu, SpearItem *) {
        QAction *const mine = menu.addAction(QStringLiteral("mine"), [&triggered] { ++triggered; });
        mine->setData(1006);
    });

    // When it is chosen
    QCOMPARE(chooseLastEntry(f.editor, f.spear(QStringLiteral("Man"))), QStringLiteral("mine"));

    // Then nothing is deleted
    QCOMPARE(triggered, 1);
    QVERIFY(f.subject(QStringLiteral("Man")));
}

void TestFishEditorDoors::shouldShowAHostsEntriesAtTheHeadOfATaskDiagram()
{
    // Given a task diagram, whose head has no menu of the library's
    EditorFixture f(document());
    f.model.setModelType(FISH_MODEL_NORMAL);
    SpearItem *const head = f.spear(QStringLiteral("Effect"));
    QCOMPARE(chooseLastEntry(f.editor, head), QString());

    // When a host adds an entry
    QStringList given;
    f.editor.setBoneMenuFiller([&given](QMenu &menu, SpearItem *) {
        given = textsOf(menu);
        menu.addAction(QStringLiteral("mine"));
    });

    // Then the menu has it alone
    QCOMPARE(chooseLastEntry(f.editor, head), QStringLiteral("mine"));
    QCOMPARE(given, QStringList());
}

void TestFishEditorDoors::shouldNotTakeAHostsEntryForAnOwnOneThatItTookTheAddressOf()
{
    EditorFixture f(document());
    f.editor.setBoneMenuFiller([](QMenu &menu, SpearItem *) {
        menu.clear();
        for (int i = 0; i < 20; ++i)
            menu.addAction(QStringLiteral("mine"))->setData(1006);
    });
    for (int i = 0; i < 20; ++i)
        QCOMPARE(chooseLastEntry(f.editor, f.spear(QStringLiteral("Man"))), QStringLiteral("mine"));
    QVERIFY(f.subject(QStringLiteral("Man")));
}

void TestFishEditorDoors::shouldFindTheBoneAtAPoint()
{
    EditorFixture f(document());
    QVERIFY(f.show());
    SpearItem *const machine = f.spear(QStringLiteral("Machine"));
    const FishEditor &editor = f.editor;
    QCOMPARE(editor.boneAt(middleOf(*editor.view(), machine->textItem())), machine);
    QCOMPARE(editor.boneAt(QPoint(2, 2)), nullptr);
}

void TestFishEditorDoors::shouldTellItsAutosaveInterval()
{
    FishEditor editor;
    QCOMPARE(editor.autosaveInterval(), 30000);
    editor.setAutosaveInterval(50);
    QCOMPARE(editor.autosaveInterval(), 50);
    editor.setAutosaveInterval(-1);
    QCOMPARE(editor.autosaveInterval(), 0);
}

void TestFishEditorDoors::shouldSelectSpearsAndTellOnce()
{
    EditorFixture fish(document());
    fish.select({QStringLiteral("Effect")});
    const QSignalSpy told(&fish.editor, &FishEditor::copyAvailable);
    fish.editor.selectSpears(
        {fish.spear(QStringLiteral("Machine")), fish.spear(QStringLiteral("Man"))});
    const QList<QGraphicsItem *> expected = {fish.spear(QStringLiteral("Man")),
                                             fish.spear(QStringLiteral("Machine"))};
    QCOMPARE(fish.editor.selectedItems(), expected);
    QCOMPARE(told.count(), 1);
    QCOMPARE(told.at(0).at(0).toBool(), true);
    fish.editor.selectSpears({});
    QVERIFY(!fish.editor.hasSelection());
    QCOMPARE(told.count(), 2);
}

FISHBONE_TEST(TestFishEditorDoors)
#include "tst_fisheditor_doors.moc"
