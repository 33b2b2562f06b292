// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QJsonArray>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QtTest>

#include <fishbone/drawing/spearbuilder.h>
#include <fishbone/items/textitem.h>
#include <fishbone/undo/undostack.h>
#include <tests/program/testprogram.h>
#include <tests/support/editorfixture.h>

using namespace TestSupport;

namespace {
const QString document = QStringLiteral("Head[A[a],B]");
const QString head = QStringLiteral("Head");
const QString a = QStringLiteral("A");
const QString b = QStringLiteral("B");

/** An editor whose head has lost its subject in a way that nobody announced. */
struct Orphaned
{
    Orphaned()
    {
        fish.select({head});
        lost.reset(fish.info->treeItem()->takeAt(0));
        lost.reset();
    }

    EditorFixture fish{document};
    std::unique_ptr<TreeItem> lost;
};
} // namespace

/** What a host may ask of an editor at an unusual moment, or with what is not the editor's. */
class TestFishEditorHostCalls : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldTellTheDirectionOfABone();
    void shouldDeleteTheSubjectsOfASnapshot();
    void shouldChangeNothingInAModelOfAnotherKind();
    void shouldEditNothingFromNoItem();
    void shouldDoNothingToASubjectThatIsGone();
    void shouldShowNothingOnceTheHeadIsFoundGone();
    void shouldSurviveItsEndWhenTheHeadIsFoundGone();
    void shouldSaveNoObjectsOfOtherItems();
    void shouldMoveNothingFromOrToElsewhere();
    void shouldReportNoParentThatIsGone();
    void shouldReportNoParentInAModelThatHasEnded();
    void shouldListTheHostsItemsBehindTheBones();
    void shouldRefreshNoLinkInAnotherDrawing();
    void shouldSurviveItsEndWhileALinkIsDeleted();
    void shouldKeepTheScaleForARectangleBeyondNumbers();
};

void TestFishEditorHostCalls::shouldTellTheDirectionOfABone()
{
    const EditorFixture fish(document);
    QCOMPARE(FishEditor::directionFor(fish.spear(head), 1, 0), 1);
    QCOMPARE(FishEditor::directionFor(fish.spear(head), 1, 1), -1);
    QCOMPARE(FishEditor::directionFor(fish.spear(a), 2, 0), 0);
    QCOMPARE(FishEditor::directionFor(nullptr, 3, 0), 0);
}

void TestFishEditorHostCalls::shouldDeleteTheSubjectsOfASnapshot()
{
    EditorFixture fish(document);
    QJsonObject snapshot;
    FishModel::write(snapshot, fish.subject(a), true);

    fish.editor.deleteItems(snapshot);
    QCOMPARE(treeToText(*fish.subject(head)), QStringLiteral("Head[B]"));
    QVERIFY(fish.editor.isModified());
    fish.editor.undo();
    QCOMPARE(treeToText(*fish.subject(head)), document);
    fish.editor.deleteItems({});
    QCOMPARE(treeToText(*fish.subject(head)), document);
}

void TestFishEditorHostCalls::shouldChangeNothingInAModelOfAnotherKind()
{
    EditorFixture fish(document);
    fish.select({a});
    fish.editor.copy();
    QJsonObject snapshot;
    FishModel::write(snapshot, fish.subject(a), true);
    TreeItem item;
    const QList<QGraphicsItem *> items{fish.spear(a)};
    QStandardItemModel other(2, 2);
    fish.editor.setModel(&other);
    const QModelIndex index = other.index(0, 0);

    fish.editor.insertChildSubject(index, &item);
    fish.editor.editSubject(index, &item);
    fish.editor.deleteItem(index);
    fish.editor.deleteItems(snapshot);
    fish.editor.pasteItem(index);
    fish.editor.moveItems({}, items, index, 0);

    QCOMPARE(other.rowCount(), 2);
    QVERIFY(!other.hasChildren(index));
    QVERIFY(!fish.editor.canUndo());
    QCOMPARE(treeToText(*fish.subject(head)), document);
}

void TestFishEditorHostCalls::shouldEditNothingFromNoItem()
{
    EditorFixture fish(document);
    fish.editor.editSubject(fish.index(a), nullptr);
    fish.editor.insertChildSubject(fish.index(a), nullptr);
    QVERIFY(!fish.subject(a)->isEditModified());
    QVERIFY(!fish.editor.isModified());
}

void TestFishEditorHostCalls::shouldDoNothingToASubjectThatIsGone()
{
    Orphaned orphan;
    FishEditor &editor = orphan.fish.editor;
    QVERIFY(editor.headSpear());

    editor.setSpearStyle();
    editor.delSpearStyle();
    editor.onRightClicked(editor.headSpear());
    editor.refreshFish();
    editor.moveItems({}, {editor.headSpear()}, {}, 0);
    QVERIFY(!editor.canUndo());
}

void TestFishEditorHostCalls::shouldShowNothingOnceTheHeadIsFoundGone()
{
    Orphaned orphan;
    orphan.fish.editor.updateFish(false);
    QVERIFY(!orphan.fish.editor.headSpear());
    QVERIFY(orphan.fish.editor.scene()->items().isEmpty());
}

void TestFishEditorHostCalls::shouldSurviveItsEndWhenTheHeadIsFoundGone()
{
    FishModel model;
    FishInfo *const info = loadDocument(model, document);
    const QPointer<FishEditor> editor = new FishEditor;
    editor->setModel(&model);
    editor->setRootIndex(model.index(0, 0));
    editor->headSpear()->setSelected(true);
    delete info->treeItem()->takeAt(0);
    QSignalSpy expanded(editor.data(), &FishEditor::onExpandAll);
    connect(editor.data(), &FishEditor::copyAvailable, this, [editor] { delete editor.data(); });

    editor->modifyExpandAll(); // the selection is told last
    QVERIFY(!editor);
    QCOMPARE(expanded.count(), 1);
}

void TestFishEditorHostCalls::shouldSaveNoObjectsOfOtherItems()
{
    const EditorFixture fish(document);
    SpearItem stray(QStringLiteral("Stray"), 0, 20.0);
    stray.setParentItem(fish.spear(a));

    QJsonObject objects;
    fish.editor.saveObjects(objects, {fish.spear(a)->textItem(), &stray});
    QVERIFY(objects.isEmpty());
    fish.editor.saveObjects(objects, {fish.spear(b), fish.spear(a)->textItem()});
    QCOMPARE(objects.value(QStringLiteral("uuid")).toString(), QStringLiteral("u-B"));
}

void TestFishEditorHostCalls::shouldMoveNothingFromOrToElsewhere()
{
    EditorFixture fish(document);
    FishModel other;
    loadDocument(other, QStringLiteral("Other"));
    SpearItem stray(QStringLiteral("Stray"), 0, 20.0);
    stray.setParentItem(fish.spear(a));

    fish.editor.moveItems({}, {fish.spear(a)}, other.index(0, 0), 0);
    fish.editor.moveItems({}, {fish.spear(a)->textItem(), &stray}, fish.index(b), 0);
    QCOMPARE(treeToText(*fish.subject(head)), document);
    QVERIFY(!fish.editor.canUndo());
}

void TestFishEditorHostCalls::shouldReportNoParentThatIsGone()
{
    EditorFixture fish(document);
    fish.model.setModelType(FISH_MODEL_NORMAL);
    QSignalSpy reported(&fish.editor, &FishEditor::changeTaskParent);
    connect(&fish.model, &FishModel::rowsMoved, this, [&fish] {
        if (fish.subject(b))
            fish.model.removeRows(fish.index(b).row(), 1, fish.index(head));
    });

    fish.editor.moveItems({}, {fish.spear(a)}, fish.index(b), 0);
    QCOMPARE(treeToText(*fish.subject(head)), QStringLiteral("Head"));
    QCOMPARE(reported.count(), 1);
    QCOMPARE(reported.first().at(0).toStringList(), QStringList{QStringLiteral("u-A")});
    QCOMPARE(reported.first().at(1).toString(), QString());
}

void TestFishEditorHostCalls::shouldReportNoParentInAModelThatHasEnded()
{
    auto model = std::make_unique<FishModel>();
    loadDocument(*model, document);
    FishEditor editor;
    editor.setModel(model.get());
    editor.setRootIndex(model->index(0, 0));
    QSignalSpy reported(&editor, &FishEditor::changeTaskParent);
    const QModelIndex target = indexTitled(*model, b);
    SpearItem *const moved = nodeTitled(*model, a)->spear();
    connect(editor.undoStack(), &UndoStack::stackChanged, this, [&model] { model.reset(); });

    editor.moveItems({}, {moved}, target, 0);
    QVERIFY(!model);
    QCOMPARE(reported.count(), 0);
}

void TestFishEditorHostCalls::shouldListTheHostsItemsBehindTheBones()
{
    EditorFixture fish(document);
    QGraphicsItem *const note = fish.editor.scene()->addRect(0, 0, 10, 10);
    note->setFlag(QGraphicsItem::ItemIsSelectable);
    note->setSelected(true);
    fish.spear(b)->setSelected(true);
    fish.spear(a)->setSelected(true);
    QCOMPARE(fish.editor.selectedItems(),
             QList<QGraphicsItem *>({fish.spear(a), fish.spear(b), note}));

    FishEditor empty;
    for (int x : {0, 20}) {
        QGraphicsItem *const item = empty.scene()->addRect(x, 0, 10, 10);
        item->setFlag(QGraphicsItem::ItemIsSelectable);
        item->setSelected(true);
    }
    QCOMPARE(empty.selectedItems().size(), 2);
}

void TestFishEditorHostCalls::shouldRefreshNoLinkInAnotherDrawing()
{
    EditorFixture fish(document);
    loadDocument(fish.model, QStringLiteral("Other"));
    fish.subject(a)->setUrl(QStringLiteral("http://x"));
    fish.editor.updateFish(false);
    fish.select({a});
    connect(fish.editor.undoStack(), &UndoStack::stackChanged, this,
            [&fish] { fish.editor.setRootIndex(fish.model.index(1, 0)); });

    fish.editor.modifyDelLink();
    QCOMPARE(fish.subject(a)->url(), QString());
    QVERIFY(!fish.spear(a));
    QCOMPARE(fish.editor.rootIndex(), fish.model.index(1, 0));
}

void TestFishEditorHostCalls::shouldSurviveItsEndWhileALinkIsDeleted()
{
    FishModel model;
    loadDocument(model, document);
    nodeTitled(model, a)->setUrl(QStringLiteral("http://x"));
    const QPointer<FishEditor> editor = new FishEditor;
    editor->setModel(&model);
    editor->setRootIndex(model.index(0, 0));
    nodeTitled(model, a)->spear()->setSelected(true);
    connect(editor->undoStack(), &UndoStack::stackChanged, this,
            [editor] { delete editor.data(); });

    editor->modifyDelLink();
    QVERIFY(!editor);
    QCOMPARE(nodeTitled(model, a)->url(), QString());
}

void TestFishEditorHostCalls::shouldKeepTheScaleForARectangleBeyondNumbers()
{
    EditorFixture fish(document);
    const QTransform before = fish.editor.view()->transform();
    fish.editor.equalRatio(QRectF(0, 0, 1e200, 1e200));
    QCOMPARE(fish.editor.view()->transform(), before);
}

FISHBONE_TEST(TestFishEditorHostCalls)
#include "tst_fisheditor_hostcalls.moc"
