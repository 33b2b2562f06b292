// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QAccessible>
#include <QWindow>
#include <QtTest>

#include <fishbone/accessibility/accessiblebone.h>
#include <fishbone/accessibility/accessiblediagram.h>
#include <fishbone/items/textitem.h>
#include <tests/program/testprogram.h>
#include <tests/support/editorfixture.h>

using namespace TestSupport;

namespace {
const QString peopleAndMachines = QStringLiteral("Late[People[Training],Machines]");
const QString people = QStringLiteral("People");
const QString machines = QStringLiteral("Machines");

/** An entry that nobody but the test owns. */
class Bone : public AccessibleBone
{
public:
    using AccessibleBone::AccessibleBone;
};

/** An editor on the heap, which somebody may end. */
struct EndingEditor
{
    EndingEditor()
    {
        loadDocument(model, peopleAndMachines);
        editor->setModel(&model);
        editor->setRootIndex(model.index(0, 0));
    }
    ~EndingEditor() { delete editor.data(); }
    SpearItem *spear(const QString &title) const { return nodeTitled(model, title)->spear(); }
    QAccessibleActionInterface *actions(const QString &title) const
    {
        return AccessibleDiagram::of(editor->view())->bone(spear(title))->actionInterface();
    }
    /** Ends it with the next change of the selection. */
    void endWithTheSelection()
    {
        QObject::connect(editor.data(), &FishEditor::copyAvailable, editor.data(),
                         [this] { delete editor.data(); });
    }

    FishModel model;
    const QPointer<FishEditor> editor = new FishEditor;
};
} // namespace

/** The entry of one bone, when it is asked at unusual moments. */
class TestAccessibleBone : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldBeInvalidWithoutABoneInTheView();
    void shouldBeInvalidWithoutItsView();
    void shouldNameTheWindowItIsShownIn();
    void shouldDescribeABoneWithoutASubject();
    void shouldFindOnlyBonesAmongItsChildren();
    void shouldTellOnlyWhatIsAsked();
    void shouldBeSelectedWithItsTitle();
    void shouldBeInvisibleWhileTheEditorIsHidden();
    void shouldNameWhatTogglingDoes();
    void shouldSelectItAloneAmongSeveral();
    void shouldHaveNoEntryForNothing();
    void shouldHaveNoEntriesWithoutAScene();
    void shouldMakeAnEntryAnewThatTheToolkitDeleted();
    void shouldFocusTheFirstOfSeveral();
    void shouldSurviveTheEndOfTheEditorByItsSelection_data();
    void shouldSurviveTheEndOfTheEditorByItsSelection();
};

void TestAccessibleBone::shouldBeInvalidWithoutABoneInTheView()
{
    const EditorFixture fish(peopleAndMachines);
    SpearItem loose(QStringLiteral("Loose"), 0, 20.0);
    Bone bone(fish.editor.view(), &loose);
    QVERIFY(!bone.isValid());
    QVERIFY(bone.state().invalid);
    QVERIFY(bone.rect().isEmpty());
    QVERIFY(bone.actionNames().isEmpty());
    bone.doAction(QAccessibleActionInterface::pressAction());
    QVERIFY(!loose.isSelected());

    QGraphicsScene elsewhere;
    elsewhere.addItem(&loose);
    QVERIFY(!bone.isValid());
    elsewhere.removeItem(&loose);
}

void TestAccessibleBone::shouldBeInvalidWithoutItsView()
{
    SpearItem loose(QStringLiteral("Loose"), 0, 20.0);
    auto editor = std::make_unique<FishEditor>();
    Bone bone(editor->view(), &loose);
    editor.reset();
    QVERIFY(!bone.isValid());
    QCOMPARE(bone.window(), nullptr);
    QCOMPARE(bone.parent(), nullptr);
    QCOMPARE(bone.child(0), nullptr);
    QCOMPARE(bone.childAt(1, 1), nullptr);
    QVERIFY(bone.state().invalid);

    auto dying = std::make_unique<SpearItem>(QStringLiteral("Dying"), 0, 20.0);
    Bone gone(nullptr, dying.get());
    dying.reset();
    QVERIFY(!gone.isValid());
    QCOMPARE(gone.text(QAccessible::Name), QString());
    QCOMPARE(gone.childCount(), 0);
    QVERIFY(!gone.takeChanges().expanded);
    QVERIFY(!gone.actionNames().contains(QAccessibleActionInterface::toggleAction()));
}

void TestAccessibleBone::shouldNameTheWindowItIsShownIn()
{
    EditorFixture fish(peopleAndMachines);
    QVERIFY(fish.show());
    const Bone bone(fish.editor.view(), fish.spear(people));
    QVERIFY(bone.window());
    QCOMPARE(bone.window(), fish.editor.windowHandle());
}

void TestAccessibleBone::shouldDescribeABoneWithoutASubject()
{
    const EditorFixture fish(peopleAndMachines);
    auto *const stray = std::make_unique<SpearItem>(QStringLiteral("Stray"), 0, 20.0).release();
    stray->setParentItem(fish.spear(people));
    const Bone bone(fish.editor.view(), stray);
    QVERIFY(bone.isValid());
    QCOMPARE(bone.text(QAccessible::Name), QStringLiteral("Stray"));
    QCOMPARE(bone.text(QAccessible::Description), QStringLiteral("level 2"));
    QVERIFY(!bone.state().expandable);

    fish.spear(people)->setExpand(true);
    const Bone above(fish.editor.view(), fish.spear(people));
    QCOMPARE(above.childCount(), 1);
    QCOMPARE(above.indexOfChild(&bone), 0);
    delete stray;
}

void TestAccessibleBone::shouldFindOnlyBonesAmongItsChildren()
{
    const EditorFixture fish(peopleAndMachines);
    const Bone head(fish.editor.view(), fish.spear(QStringLiteral("Late")));
    const Bone second(fish.editor.view(), fish.spear(machines));
    QCOMPARE(head.indexOfChild(&second), 1);
    QCOMPARE(head.indexOfChild(nullptr), -1);
    QCOMPARE(head.indexOfChild(QAccessible::queryAccessibleInterface(fish.editor.view())), -1);
    QCOMPARE(second.indexOfChild(&head), -1);
}

void TestAccessibleBone::shouldTellOnlyWhatIsAsked()
{
    const EditorFixture fish(peopleAndMachines);
    Bone bone(fish.editor.view(), fish.spear(people));
    QCOMPARE(bone.text(QAccessible::Help), QString());
    bone.setText(QAccessible::Name, QStringLiteral("Other"));
    QCOMPARE(bone.text(QAccessible::Name), people);
    QCOMPARE(bone.interface_cast(QAccessible::TextInterface), nullptr);
    QVERIFY(bone.interface_cast(QAccessible::ActionInterface));
    QVERIFY(bone.keyBindingsForAction(QAccessibleActionInterface::pressAction()).isEmpty());
    QCOMPARE(static_cast<QAccessibleInterface &>(bone).object(), nullptr);
}

void TestAccessibleBone::shouldBeSelectedWithItsTitle()
{
    EditorFixture fish(peopleAndMachines);
    const Bone bone(fish.editor.view(), fish.spear(people));
    QVERIFY(!bone.state().selected);
    TextItem *const title = fish.spear(people)->textItem();
    title->setFlag(QGraphicsItem::ItemIsSelectable);
    title->setSelected(true);
    QVERIFY(bone.state().selected);
    QVERIFY(!bone.state().focused); // the editor is not even shown
}

void TestAccessibleBone::shouldBeInvisibleWhileTheEditorIsHidden()
{
    EditorFixture fish(peopleAndMachines);
    const Bone bone(fish.editor.view(), fish.spear(people));
    QVERIFY(bone.state().invisible);
    QVERIFY(fish.show());
    QVERIFY(!bone.state().invisible);
}

void TestAccessibleBone::shouldNameWhatTogglingDoes()
{
    EditorFixture fish(peopleAndMachines);
    fish.editor.expandAll();
    const QString toggle = QAccessibleActionInterface::toggleAction();
    const Bone bone(fish.editor.view(), fish.spear(people));
    QCOMPARE(bone.localizedActionName(toggle), QStringLiteral("Contract"));
    QCOMPARE(bone.localizedActionDescription(toggle), QStringLiteral("Hides the bones below"));
    fish.editor.contractAll();
    QCOMPARE(bone.localizedActionName(toggle), QStringLiteral("Expand"));
    QCOMPARE(bone.localizedActionDescription(toggle), QStringLiteral("Shows the bones below"));
}

void TestAccessibleBone::shouldSelectItAloneAmongSeveral()
{
    EditorFixture fish(peopleAndMachines);
    fish.select({people, machines});
    Bone bone(fish.editor.view(), fish.spear(people));
    bone.doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(fish.editor.selectedItems(), QList<QGraphicsItem *>{fish.spear(people)});
    bone.doAction(QStringLiteral("no such action"));
    QCOMPARE(fish.editor.selectedItems(), QList<QGraphicsItem *>{fish.spear(people)});
}

void TestAccessibleBone::shouldHaveNoEntryForNothing()
{
    const EditorFixture fish(peopleAndMachines);
    AccessibleDiagram *const diagram = AccessibleDiagram::of(fish.editor.view());
    QCOMPARE(diagram->bone(nullptr), nullptr);
    QCOMPARE(diagram->indexOfChild(nullptr), -1);
    QCOMPARE(diagram->indexOfChild(diagram->bone(fish.spear(people))), -1);
    auto dying = std::make_unique<SpearItem>(QStringLiteral("Dying"), 0, 20.0);
    const Bone gone(fish.editor.view(), dying.get());
    dying.reset();
    QCOMPARE(diagram->indexOfChild(&gone), -1);
    QCOMPARE(diagram->child(1), nullptr);
    QCOMPARE(diagram->text(QAccessible::Help), QString());
    QCOMPARE(AccessibleDiagram::of(nullptr), nullptr);
}

void TestAccessibleBone::shouldHaveNoEntriesWithoutAScene()
{
    EditorFixture fish(peopleAndMachines);
    QVERIFY(fish.show());
    AccessibleDiagram *const diagram = AccessibleDiagram::of(fish.editor.view());
    QCOMPARE(diagram->childCount(), 1);
    fish.editor.view()->setScene(nullptr);
    QCOMPARE(diagram->childCount(), 0);
    QCOMPARE(diagram->focusChild(), nullptr);
    const QPoint middle = fish.editor.mapToGlobal(fish.editor.rect().center());
    QCOMPARE(diagram->childAt(middle.x(), middle.y()), nullptr);
    fish.editor.view()->setScene(fish.editor.scene());
    QCOMPARE(diagram->childCount(), 1);
}

void TestAccessibleBone::shouldMakeAnEntryAnewThatTheToolkitDeleted()
{
    EditorFixture fish(peopleAndMachines);
    AccessibleDiagram *const diagram = AccessibleDiagram::of(fish.editor.view());
    const auto deleteEntry = [&fish, diagram] {
        QAccessible::deleteAccessibleInterface(
            QAccessible::uniqueId(diagram->bone(fish.spear(people))));
    };
    deleteEntry();
    QCOMPARE(diagram->bone(fish.spear(people))->spear(), fish.spear(people));

    deleteEntry();
    fish.editor.expandAll(); // the drawing is followed once it has come to rest
    settle();
    QCOMPARE(diagram->bone(fish.spear(people))->spear(), fish.spear(people));
}

void TestAccessibleBone::shouldFocusTheFirstOfSeveral()
{
    EditorFixture fish(peopleAndMachines);
    QVERIFY(fish.show());
    fish.editor.activateWindow();
    fish.editor.view()->setFocus();
    QVERIFY(QTest::qWaitForWindowActive(&fish.editor));
    fish.select({people, machines});
    QVERIFY(Bone(fish.editor.view(), fish.spear(people)).state().focused);
    const QAccessible::State second = Bone(fish.editor.view(), fish.spear(machines)).state();
    QVERIFY(second.selected);
    QVERIFY(!second.focused);
}

void TestAccessibleBone::shouldSurviveTheEndOfTheEditorByItsSelection_data()
{
    QTest::addColumn<bool>("isAnotherSelected");
    QTest::addColumn<QString>("action");

    const QString actions[] = {QAccessibleActionInterface::pressAction(),
                               QAccessibleActionInterface::toggleAction(),
                               QAccessibleActionInterface::showMenuAction()};
    for (const QString &action : actions) {
        QTest::newRow(qPrintable(action)) << false << action;
        QTest::newRow(qPrintable(action + QStringLiteral(", another selected"))) << true << action;
    }
}

void TestAccessibleBone::shouldSurviveTheEndOfTheEditorByItsSelection()
{
    QFETCH(bool, isAnotherSelected);
    QFETCH(QString, action);
    EndingEditor ending;
    if (isAnotherSelected)
        ending.spear(machines)->setSelected(true);
    QAccessibleActionInterface *const actions = ending.actions(people);
    ending.endWithTheSelection();

    actions->doAction(action);
    QVERIFY(!ending.editor);
}

FISHBONE_TEST(TestAccessibleBone)
#include "tst_accessiblebone.moc"
