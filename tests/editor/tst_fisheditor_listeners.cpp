// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QIdentityProxyModel>
#include <QMimeData>
#include <QSignalSpy>
#include <QtTest>

#include <fishbone/model/fishproxymodel.h>
#include <fishbone/undo/attributecommands.h>
#include <fishbone/undo/commandgroup.h>
#include <fishbone/undo/structuralcommands.h>
#include <fishbone/undo/undostack.h>
#include <tests/program/testprogram.h>
#include <tests/support/commandfixture.h>
#include <tests/support/editorfixture.h>
#include <tests/support/viewmouse.h>

using namespace TestSupport;

namespace {

/** An editor on the first of two documents. */
class Fixture : public EditorFixture
{
public:
    Fixture()
        : EditorFixture(QStringLiteral("Effect[Man[Training,Skill],Machine,Method]"))
    {
        other = loadDocument(model, QStringLiteral("Other[Left[Inner],Right]"));
        editor.expandAll();
        info->setModified(false);
    }

    QString text() const { return treeToText(*info->treeItem()->childAtIndex(0)); }
    void drop(const char *title, const char *target, int row)
    {
        const std::unique_ptr<QMimeData> data(model.mimeData({index(QString::fromLatin1(title))}));
        editor.onDropTo(data.get(), index(QString::fromLatin1(target)), row);
    }
    /** Whether each document is marked. */
    QString marks() const
    {
        return QString(info->modified() ? QStringLiteral("first ") : QString()) +
               QString(other->modified() ? QStringLiteral("second") : QString());
    }

    FishInfo *other = nullptr;
};

} // namespace

/** Whoever hears of the editor, and what it makes of what happens elsewhere. */
class TestFishEditorListeners : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldMarkWhatUndoAndRedoHaveChanged();
    void shouldMarkWhatALinkCommandHasChangedWhenItIsUndone();
    void shouldMarkNothingWhenThereIsNothingToUndo();
    void shouldMarkTheDocumentThatASubjectIsDroppedFrom();
    void shouldMarkTheDocumentThatChanges();
    void shouldRefuseADropOfWhatMayNotMove();
    void shouldFollowItsStackWhoeverMovesIt();
    void shouldLayOutOnceForSeveralSteps();
    void shouldRunACommandAsItsSlotsDo();
    void shouldTellWhenACommandDidNothing();
    void shouldTakeIndexesOfAProxy();
    void shouldTakeNoForeignIndex();
    void shouldIgnoreWhatAModelSetEarlierTells();
    void shouldTellOfTheSelectionOnceWhenTheWorkIsDone();
    void shouldTellOfTheSelectionWhenTheShownRootIsGone();
    void shouldUndoNothingWhenAListenerHasRemovedTheNewRow();
    void shouldKeepTheOriginalWhenAListenerHasRemovedThePastedRow();
    void shouldUndoADeletionWhoseParentAListenerDeletes();
    void shouldLeaveTheNewParentWhereTheModelRefuses();
    void shouldCutWhatItHasCopiedWhateverIsSelectedMeanwhile();
    void shouldEndWithAPressOfTheExpandButton();
    void shouldAskForNoMenuOfABoneThatIsGone();
    void shouldGoOnWhenItEndsWhileItFits();
    void shouldCentreOnlyBonesOfItsOwn();
};

void TestFishEditorListeners::shouldMarkWhatUndoAndRedoHaveChanged()
{
    Fixture f;
    f.select({QStringLiteral("Man")});
    f.editor.appendSubject();
    f.info->setModified(false);
    f.editor.undo();
    QCOMPARE(f.marks(), QStringLiteral("first "));
    f.info->setModified(false);
    f.editor.redo();
    QCOMPARE(f.marks(), QStringLiteral("first "));
}

void TestFishEditorListeners::shouldMarkWhatALinkCommandHasChangedWhenItIsUndone()
{
    Fixture f;
    f.editor.run(std::make_unique<ModifyLinkTo>(&f.model, f.index(QStringLiteral("Man")),
                                                QStringLiteral("http://a")));
    QCOMPARE(f.marks(), QStringLiteral("first "));
    f.info->setModified(false);
    f.editor.undo();
    QCOMPARE(f.marks(), QStringLiteral("first "));
}

void TestFishEditorListeners::shouldMarkNothingWhenThereIsNothingToUndo()
{
    Fixture f;
    f.editor.undo();
    f.editor.redo();
    QCOMPARE(f.marks(), QString());
}

void TestFishEditorListeners::shouldMarkTheDocumentThatASubjectIsDroppedFrom()
{
    Fixture f;
    f.drop("Inner", "Man", 0);
    QCOMPARE(f.text(), QStringLiteral("Effect[Man[Inner,Training,Skill],Machine,Method]"));
    QCOMPARE(f.marks(), QStringLiteral("first second"));
}

void TestFishEditorListeners::shouldMarkTheDocumentThatChanges()
{
    Fixture f;
    f.model.setData(f.index(QStringLiteral("Left")), QStringLiteral("L"));
    QCOMPARE(f.marks(), QStringLiteral("second"));
    f.other->setModified(false);
    f.editor.deleteItem(f.index(QStringLiteral("Right")));
    QCOMPARE(f.marks(), QStringLiteral("second"));
    f.other->setModified(false);
    f.editor.undo();
    QCOMPARE(f.marks(), QStringLiteral("second"));
    f.other->setModified(false);
    f.editor.modelDataChanged(QModelIndex(), QModelIndex());
    QCOMPARE(f.marks(), QStringLiteral("first "));
}

void TestFishEditorListeners::shouldRefuseADropOfWhatMayNotMove()
{
    Fixture f;
    f.subject(QStringLiteral("Skill"))->setSpearItemIsMovable(false);
    f.drop("Skill", "Machine", 0);
    QCOMPARE(f.text(), QStringLiteral("Effect[Man[Training,Skill],Machine,Method]"));
    QCOMPARE(f.marks(), QString());
}

void TestFishEditorListeners::shouldFollowItsStackWhoeverMovesIt()
{
    Fixture f;
    f.select({QStringLiteral("Machine")});
    f.editor.del();
    QVERIFY(!f.spear(QStringLiteral("Machine")));
    f.info->setModified(false);
    f.editor.undoStack()->undo();
    QVERIFY(f.spear(QStringLiteral("Machine")));
    QCOMPARE(spearFault(f.model), QString());
    QCOMPARE(f.spear(QStringLiteral("Machine"))->scene(), f.editor.scene());
    QVERIFY(f.spear(QStringLiteral("Machine"))->line().length() > 0);
    QCOMPARE(f.marks(), QStringLiteral("first "));
    f.editor.undoStack()->setCurrentIndex(0);
    QCOMPARE(f.editor.headSpear()->childCount(), 2);
    // A push of a host's own is laid out as well
    f.editor.undoStack()->push(new InsertChild(&f.model, f.index(QStringLiteral("Method"))));
    const SpearItem *const method = f.spear(QStringLiteral("Method"));
    QCOMPARE(method->childCount(), 1);
    QVERIFY(method->expandBuddy());
}

void TestFishEditorListeners::shouldLayOutOnceForSeveralSteps()
{
    Fixture f;
    for (const char *title : {"Machine", "Method", "Skill"})
        f.editor.deleteItem(f.index(QString::fromLatin1(title)));
    const SpearItem *const man = f.spear(QStringLiteral("Man"));
    const QLineF line = man->line();
    connect(f.editor.undoStack(), &UndoStack::currentChanged, &f.editor,
            [&] { QCOMPARE(man->line(), line); }); // within the call the old drawing stands
    QVERIFY(f.editor.undoStack()->setCurrentIndex(-1));
    QVERIFY(man->line() != line);
    QCOMPARE(f.spear(QStringLiteral("Man")), man); // neither rebuilt nor contracted
    QVERIFY(man->isExpand());
    QCOMPARE(f.text(), QStringLiteral("Effect[Man[Training,Skill],Machine,Method]"));
}

void TestFishEditorListeners::shouldRunACommandAsItsSlotsDo()
{
    Fixture f;
    QVERIFY(
        f.editor.run(std::make_unique<InsertChild>(&f.model, f.index(QStringLiteral("Machine")))));
    QCOMPARE(f.spear(QStringLiteral("Machine"))->childCount(), 1);
    QVERIFY(f.spear(QStringLiteral("Machine"))->expandBuddy());
    QCOMPARE(f.marks(), QStringLiteral("first "));
    QVERIFY(f.editor.canUndo());
}

void TestFishEditorListeners::shouldTellWhenACommandDidNothing()
{
    Fixture f;
    QVERIFY(!f.editor.run(nullptr));
    QVERIFY(!f.editor.canUndo());
    QVERIFY(!f.editor.run(std::make_unique<ModifyName>(&f.model, QModelIndex(), QString())));
    QVERIFY(!f.editor.run(std::make_unique<CommandGroup>(QString())));
    QCOMPARE(f.marks(), QString());
    QCOMPARE(f.editor.undoStack()->count(), 2);
}

void TestFishEditorListeners::shouldTakeIndexesOfAProxy()
{
    Fixture f;
    FishProxyModel proxy;
    proxy.setSourceModel(&f.model);
    QIdentityProxyModel above;
    above.setSourceModel(&proxy);
    const auto mapped = [&](const char *title) {
        return above.mapFromSource(proxy.mapFromSource(f.index(QString::fromLatin1(title))));
    };
    f.editor.renameItem(mapped("Machine"), QStringLiteral("M"));
    f.editor.deleteItem(mapped("Method"));
    f.editor.insertChildSubject(mapped("M"), new TreeItem);
    f.editor.moveItems({}, {f.spear(QStringLiteral("Skill"))}, mapped("M"), 0);
    QCOMPARE(f.text(), QStringLiteral("Effect[Man[Training],M[Skill,]]"));
    f.editor.setRootIndex(mapped("Man"));
    QCOMPARE(f.editor.rootIndex(), f.index(QStringLiteral("Man")));
    f.editor.centerView(mapped("Training"));
}

void TestFishEditorListeners::shouldTakeNoForeignIndex()
{
    Fixture f;
    FishModel foreign;
    loadDocument(foreign, QStringLiteral("Foreign[One]"));
    const QModelIndex one = indexTitled(foreign, QStringLiteral("One"));
    const QString before = modelText(foreign);
    TreeItem item;
    f.select({QStringLiteral("Man")});
    f.editor.copy();
    f.editor.renameItem(one, QStringLiteral("X"));
    f.editor.deleteItem(one);
    f.editor.deleteSubject(one);
    f.editor.pasteItem(one);
    f.editor.insertChildSubject(one, &item);
    f.editor.editSubject(one, &item);
    f.editor.moveItems({}, {f.spear(QStringLiteral("Skill"))}, one, 0);
    f.editor.loadFish(one);
    QCOMPARE(modelText(foreign), before);
    QCOMPARE(f.text(), QStringLiteral("Effect[Man[Training,Skill],Machine,Method]"));
    QVERIFY(!f.editor.canUndo());
    QCOMPARE(f.marks(), QString());
    QCOMPARE(f.editor.headSpear()->text(), QStringLiteral("Effect"));
}

void TestFishEditorListeners::shouldIgnoreWhatAModelSetEarlierTells()
{
    Fixture f;
    FishModel next;
    FishInfo *const document = loadDocument(next, QStringLiteral("Next[Bone]"));
    f.editor.setModel(&next);
    f.editor.setRootIndex(next.index(0, 0));
    f.model.setData(f.index(QStringLiteral("Man")), QStringLiteral("M"));
    QVERIFY(!document->modified());
    QCOMPARE(f.marks(), QString());
    f.editor.setModel(&f.model); // which was connected already
    f.model.setData(f.index(QStringLiteral("Machine")), QStringLiteral("M"));
    QCOMPARE(f.marks(), QStringLiteral("first "));
}

void TestFishEditorListeners::shouldTellOfTheSelectionOnceWhenTheWorkIsDone()
{
    Fixture f;
    f.select({QStringLiteral("Man"), QStringLiteral("Machine"), QStringLiteral("Skill")});
    QStringList told;
    connect(f.editor.scene(), &FishScene::selectionChanged, &f.editor,
            [&] { told.append(QStringLiteral("scene ") + f.text()); });
    connect(&f.editor, &FishEditor::copyAvailable, &f.editor,
            [&] { told.append(QStringLiteral("editor ") + f.text()); });
    f.editor.del();
    told.sort();
    QCOMPARE(told, QStringList({QStringLiteral("editor Effect[Method]"),
                                QStringLiteral("scene Effect[Method]")}));
    told.clear();
    f.editor.undoStack()->undo();
    QCOMPARE(told, QStringList()); // nothing was selected
    f.select({QStringLiteral("Man")});
    told.clear();
    f.editor.undoStack()->redo();
    QCOMPARE(told.count(), 2);
}

void TestFishEditorListeners::shouldTellOfTheSelectionWhenTheShownRootIsGone()
{
    Fixture f;
    f.select({QStringLiteral("Man")});
    int told = 0;
    connect(f.editor.scene(), &FishScene::selectionChanged, &f.editor, [&] {
        ++told;
        QVERIFY(!f.model.isAnnouncing()); // so that a listener may end the model as well
        QCOMPARE(f.model.rowCount(), 1);
        QVERIFY(!f.editor.headSpear());
    });
    QVERIFY(f.model.removeRows(0, 1));
    QCOMPARE(told, 1);
}

void TestFishEditorListeners::shouldUndoNothingWhenAListenerHasRemovedTheNewRow()
{
    const std::vector<void (FishEditor::*)()> inserts = {
        &FishEditor::insertSubject, &FishEditor::appendSubject, &FishEditor::insertParentSubject};
    for (const auto insert : inserts) {
        // Given a listener that removes the new row at once
        Fixture f;
        const QMetaObject::Connection connection = connect(
            &f.model, &FishModel::rowsInserted, &f.editor,
            [&f](const QModelIndex &parent, int first) { f.model.removeRows(first, 1, parent); });
        f.select({QStringLiteral("Machine")});
        (f.editor.*insert)();
        disconnect(connection);
        const QString before = f.text();
        QCOMPARE(before, QStringLiteral("Effect[Man[Training,Skill],Machine,Method]"));

        // When the insertion is undone
        f.editor.undo();

        // Then no other subject goes in its place
        QCOMPARE(f.text(), before);
    }
}

void TestFishEditorListeners::shouldKeepTheOriginalWhenAListenerHasRemovedThePastedRow()
{
    Fixture f;
    f.select({QStringLiteral("Skill")});
    f.editor.copy();
    const QMetaObject::Connection connection = connect(
        &f.model, &FishModel::rowsInserted, &f.editor,
        [&f](const QModelIndex &parent, int first) { f.model.removeRows(first, 1, parent); });
    f.editor.pasteItem(f.index(QStringLiteral("Man")));
    disconnect(connection);
    f.editor.undo();
    QCOMPARE(f.text(), QStringLiteral("Effect[Man[Training,Skill],Machine,Method]"));
}

void TestFishEditorListeners::shouldUndoADeletionWhoseParentAListenerDeletes()
{
    Fixture f;
    f.select({QStringLiteral("Training"), QStringLiteral("Skill"), QStringLiteral("Machine")});
    f.editor.del();
    connect(&f.model, &FishModel::rowsInserted, &f.editor, [&f] {
        const QModelIndex man = f.index(QStringLiteral("Man"));
        if (man.isValid())
            f.model.removeRows(man.row(), 1, man.parent());
    });
    f.editor.undo();
    QCOMPARE(f.text(), QStringLiteral("Effect[Machine,Method]"));
}

void TestFishEditorListeners::shouldLeaveTheNewParentWhereTheModelRefuses()
{
    // Given a new parent that was dropped below its own child's sibling tree
    Fixture f;
    f.select({QStringLiteral("Man")});
    f.editor.insertParentSubject();
    const QModelIndex above = f.index(QStringLiteral("Man")).parent();
    const QString uuid = f.model.getTreeItem(above)->uuid();
    // The reference leaves, and the new one comes to stand below it
    f.drop("Man", "Machine", 0);
    EditMove(&f.model, f.index(QStringLiteral("Training")), 0, {{QStringLiteral("uuid"), uuid}})
        .redo();
    const QString before = f.text();

    // When the insertion is undone, which would move the reference below itself
    f.editor.undo();

    // Then all stays, redo included
    QCOMPARE(f.text(), before);
    f.editor.redo();
    QCOMPARE(f.text(), before);
}

void TestFishEditorListeners::shouldCutWhatItHasCopiedWhateverIsSelectedMeanwhile()
{
    Fixture f;
    f.select({QStringLiteral("Machine")});
    connect(&f.editor, &FishEditor::clipBoardAvailable, &f.editor, [&f] {
        f.select({QStringLiteral("Man")});
        QJsonObject objects;
        f.editor.selectedObjects(objects);
    });
    f.editor.cut();
    QCOMPARE(f.text(), QStringLiteral("Effect[Man[Training,Skill],Method]"));
}

void TestFishEditorListeners::shouldEndWithAPressOfTheExpandButton()
{
    FishModel model;
    loadDocument(model, QStringLiteral("Effect[Man[Training],Machine]"));
    auto editor = std::make_unique<FishEditor>();
    editor->resize(900, 700);
    editor->setModel(&model);
    editor->setRootIndex(model.index(0, 0));
    editor->show();
    editor->equalRatio(editor->scene()->itemsBoundingRect());
    connect(editor.get(), &FishEditor::copyAvailable, &model, [&editor] { editor.reset(); });
    ViewMouse mouse(*editor->view());
    const SpearItem *const man = nodeTitled(model, QStringLiteral("Man"))->spear();
    mouse.press(middleOf(*editor->view(), man->expandBuddy()));
    QVERIFY(!editor);
}

void TestFishEditorListeners::shouldAskForNoMenuOfABoneThatIsGone()
{
    Fixture f;
    QVERIFY(f.show());
    QSignalSpy asked(f.editor.view(), &GraphicsView::rightClicked);
    connect(&f.editor, &FishEditor::copyAvailable, &f.editor, [&f] { f.editor.updateFish(true); });
    ViewMouse mouse(*f.editor.view());
    mouse.askForMenu(tipOf(*f.editor.view(), f.spear(QStringLiteral("Machine"))));
    QCOMPARE(asked.count(), 0);
}

void TestFishEditorListeners::shouldGoOnWhenItEndsWhileItFits()
{
    for (const bool byRotation : {false, true}) {
        auto editor = std::make_unique<FishEditor>();
        editor->resize(400, 400);
        const auto end = [&editor] { editor.reset(); };
        if (byRotation)
            connect(editor.get(), &FishEditor::rotateValueChanged, this, end);
        else
            connect(editor.get(), &FishEditor::zoomValueChanged, this, end);
        editor->view()->resize(400, 400);
        editor->equalRatio(QRectF(0, 0, 100, 100));
        QVERIFY(!editor);
    }
}

void TestFishEditorListeners::shouldCentreOnlyBonesOfItsOwn()
{
    Fixture f;
    QVERIFY(f.show(false));
    FishEditor second;
    second.setModel(&f.model);
    second.setRootIndex(f.model.index(1, 0));
    f.editor.zoomFish(500);
    const QPointF before = f.editor.view()->mapToScene(QPoint(0, 0));
    f.editor.centerView(f.index(QStringLiteral("Left")));
    f.editor.ensureVisible(f.index(QStringLiteral("Left")));
    QCOMPARE(f.editor.view()->mapToScene(QPoint(0, 0)), before);
}

FISHBONE_TEST(TestFishEditorListeners)
#include "tst_fisheditor_listeners.moc"
