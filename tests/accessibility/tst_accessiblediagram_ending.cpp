// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QAccessible>
#include <QtTest>

#include <fishbone/accessibility/accessiblebone.h>
#include <fishbone/accessibility/accessiblediagram.h>
#include <fishbone/items/taskstatusinfo.h>
#include <fishbone/items/textitem.h>
#include <fishbone/undo/undostack.h>
#include <tests/accessibility/accessiblestage.h>
#include <tests/program/testprogram.h>
#include <tests/support/dialogchecks.h>
#include <tests/support/editorfixture.h>

using namespace TestSupport;

/** Entries of bones that come and go. */
class TestAccessibleDiagramEnding : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldMakeEntriesLazily();
    void shouldInvalidateTheEntriesOfDeadBones();
    void shouldForgetDeadBones();
    void shouldSurviveARebuild();
    void shouldSurviveAnotherBoneAtTheSameAddress();
    void shouldDieWithTheEditor();
    void shouldSurviveTheModel();
    void shouldSurviveTheEndOfTheEditorInAHandler();
    void shouldDealWithAViewOnItsOwn();
    void shouldListManyBones();
};

void TestAccessibleDiagramEnding::shouldMakeEntriesLazily()
{
    Fixture f;
    QVERIFY(f.show());
    f.editor.expandAll();
    const AccessibleDiagram *const diagram = AccessibleDiagram::of(f.editor.view());
    f.select({QStringLiteral("People")});
    QTest::qWait(20);
    QCOMPARE(diagram->boneCount(), 0);
    QVERIFY(f.head());
    QCOMPARE(diagram->boneCount(), 1);
    QVERIFY(f.head()->child(1));
    QCOMPARE(diagram->boneCount(), 2);
}

void TestAccessibleDiagramEnding::shouldInvalidateTheEntriesOfDeadBones()
{
    Fixture f;
    QAccessibleInterface *const machines = f.bone("Machines");
    f.editor.deleteItem(f.index(QStringLiteral("Machines"))); // nothing else has happened yet
    QVERIFY(!machines->isValid());
    QVERIFY(machines->state().invalid);
    QVERIFY(!machines->parent());
    QCOMPARE(machines->childCount(), 0);
    QVERIFY(!machines->child(0));
    QCOMPARE(machines->indexOfChild(f.head()), -1);
    QVERIFY(!machines->childAt(10, 10));
    QVERIFY(machines->rect().isNull());
    QVERIFY(machines->text(QAccessible::Name).isEmpty());
    QVERIFY(machines->text(QAccessible::Description).isEmpty());
    QVERIFY(machines->actionInterface()->actionNames().isEmpty());
    machines->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(f.head()->indexOfChild(machines), -1);
}

void TestAccessibleDiagramEnding::shouldForgetDeadBones()
{
    Fixture f;
    QVERIFY(f.show());
    QCOMPARE(tree(*f.head()), QStringLiteral("Late[People,Machines,Material]"));
    const AccessibleDiagram *const diagram = AccessibleDiagram::of(f.editor.view());
    const QAccessible::Id id = QAccessible::uniqueId(f.bone("Machines"));
    QCOMPARE(diagram->boneCount(), 4);
    f.editor.deleteItem(f.index(QStringLiteral("Machines")));
    QTRY_COMPARE(diagram->boneCount(), 3);
    QVERIFY(!QAccessible::accessibleInterface(id));
    for (int i = 0; i < 5; ++i) {
        f.editor.updateFish(true);
        QVERIFY(!tree(*f.head()).isEmpty());
        QTest::qWait(20);
    }
    QCOMPARE(diagram->boneCount(), 3);
}

void TestAccessibleDiagramEnding::shouldSurviveARebuild()
{
    Fixture f;
    f.editor.expandAll();
    const QString before = tree(*f.head());
    f.editor.updateFish(true);
    QCOMPARE(tree(*f.head()), QStringLiteral("Late[People,Machines,Material]"));
    f.editor.expandAll();
    QCOMPARE(tree(*f.head()), before);
    f.editor.setRootIndex(f.index(QStringLiteral("People")));
    f.editor.expandAll();
    QCOMPARE(tree(*f.head()), QStringLiteral("People[Few[Ill],New]"));
}

void TestAccessibleDiagramEnding::shouldSurviveAnotherBoneAtTheSameAddress()
{
    // Allocators hand the same memory out again soon: every round meets former addresses.
    Fixture f;
    for (int i = 0; i < 200; ++i) {
        f.editor.updateFish(true);
        QCOMPARE(tree(*f.head()), QStringLiteral("Late[People,Machines,Material]"));
        QVERIFY(f.head()->isValid());
    }
}

void TestAccessibleDiagramEnding::shouldDieWithTheEditor()
{
    auto f = std::make_unique<Fixture>();
    f->editor.expandAll();
    QVERIFY(!tree(*f->head()).isEmpty());
    const QAccessible::Id view = QAccessible::uniqueId(f->view());
    const QAccessible::Id bone = QAccessible::uniqueId(f->bone("Rust"));
    QVERIFY(QAccessible::accessibleInterface(bone));
    f.reset();
    QVERIFY(!QAccessible::accessibleInterface(view));
    QVERIFY(!QAccessible::accessibleInterface(bone));
}

void TestAccessibleDiagramEnding::shouldSurviveTheModel()
{
    FishEditor editor;
    QAccessibleInterface *bone = nullptr;
    QAccessibleInterface *const view = QAccessible::queryAccessibleInterface(editor.view());
    {
        FishModel model;
        loadDocument(model, document());
        editor.setModel(&model);
        editor.setRootIndex(model.index(0, 0));
        bone = view->child(0)->child(0);
        QVERIFY(bone->isValid());
    }
    QCOMPARE(view->childCount(), 0);
    QVERIFY(view->isValid());
    QVERIFY(!bone->isValid());
}

void TestAccessibleDiagramEnding::shouldSurviveTheEndOfTheEditorInAHandler()
{
    static Fixture *fixture = nullptr;
    const auto end = [] { delete std::exchange(fixture, nullptr); };
    for (const bool isSelected : {false, true}) {
        fixture = new Fixture;
        QVERIFY(fixture->show());
        QVERIFY(!tree(*fixture->head()).isEmpty());
        QTest::qWait(20);
        AccessibleDiagram::setReporter(
            [](QAccessibleEvent &) { delete std::exchange(fixture, nullptr); });
        if (isSelected)
            fixture->select({QStringLiteral("People")});
        else
            fixture->editor.expandAll();
        const bool isEnded = QTest::qWaitFor([] { return !fixture; });
        AccessibleDiagram::setReporter(nullptr);
        end();
        QVERIFY(isEnded);
    }
}

void TestAccessibleDiagramEnding::shouldDealWithAViewOnItsOwn()
{
    FishEditor editor;
    GraphicsView view(&editor);
    QAccessibleInterface *const found = QAccessible::queryAccessibleInterface(&view);
    QCOMPARE(found->role(), QAccessible::Tree);
    QCOMPARE(found->childCount(), 0);
    QVERIFY(!found->childAt(1, 1));
}

void TestAccessibleDiagramEnding::shouldListManyBones()
{
    QStringList titles;
    for (int i = 0; i < 3000; ++i)
        titles.append(QStringLiteral("b%1").arg(i));
    const QString text = QStringLiteral("H[%1]").arg(titles.join(QLatin1Char(',')));
    const Fixture f(text);
    QCOMPARE(tree(*f.head()), text);
    for (int row : {0, 1, 1500, 2999})
        QCOMPARE(f.head()->indexOfChild(f.head()->child(row)), row);
}

FISHBONE_TEST(TestAccessibleDiagramEnding)
#include "tst_accessiblediagram_ending.moc"
