// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/panels/accessiblesubject.h>
#include <app/panels/accessiblesubjects.h>

#include <tests/app/appfixture.h>

#include <tests/program/testprogram.h>

#include <QAccessible>
#include <QLineEdit>

class TestAccessibleSubjects : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldNestWhatTheTreeShows();
    void shouldShowWhatTheFilterLetsThrough();
    void shouldForgetRowsThatGo();
    void shouldLeadUpAndDown();
    void shouldStandWhereTheRowIsDrawn();
    void shouldSelectAndExpand();
    void shouldTellTheRowThatHasTheFocus();
};

namespace {

AccessibleSubjects *tree(const AppFixture &app)
{
    return AccessibleSubjects::of(app.window.tree()->view());
}

QString outline(const QAccessibleInterface &item)
{
    QStringList below;
    for (int row = 0; row < item.childCount(); ++row)
        below.append(outline(*item.child(row)));
    const QString name = item.text(QAccessible::Name);
    return below.isEmpty()
               ? name
               : name + QLatin1Char('[') + below.join(QLatin1Char(',')) + QLatin1Char(']');
}

/** The row of the tree with that title. */
QModelIndex row(const AppFixture &app, const char *title)
{
    const SubjectTreeView *const view = app.window.tree()->view();
    return view->model()
        ->match(view->model()->index(0, 0), Qt::DisplayRole, QString::fromUtf8(title), 1,
                Qt::MatchStartsWith | Qt::MatchRecursive)
        .value(0);
}

} // namespace

void TestAccessibleSubjects::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_accessiblesubjects"));
}

void TestAccessibleSubjects::shouldNestWhatTheTreeShows()
{
    AppFixture app;
    QVERIFY(tree(app));
    QCOMPARE(tree(app)->role(), QAccessible::Tree);
    QCOMPARE(tree(app)->childCount(), 1);
    QCOMPARE(outline(*tree(app)->child(0)), QStringLiteral("Late[People,Machines,Material]"));
    app.window.tree()->view()->expandAll();
    QCOMPARE(outline(*tree(app)->child(0)),
             QStringLiteral("Late[People[Too few[Illness],Too new],Machines,Material[Rust]]"));
    QCOMPARE(tree(app)->child(0)->role(), QAccessible::TreeItem);
    QVERIFY(!tree(app)->child(1));
    QVERIFY(!tree(app)->child(-1));
}

void TestAccessibleSubjects::shouldShowWhatTheFilterLetsThrough()
{
    AppFixture app;
    QTest::keyClicks(app.widget<QLineEdit>("filter"), QStringLiteral("illn"));
    AppFixture::settle();
    QCOMPARE(outline(*tree(app)->child(0)), QStringLiteral("Late[People[Too few[Illness]]]"));
}

void TestAccessibleSubjects::shouldForgetRowsThatGo()
{
    AppFixture app;
    app.window.tree()->view()->expandAll();
    QCOMPARE(outline(*tree(app)->child(0)).count(QLatin1Char(',')), 3);
    QAccessibleInterface *const rust = tree(app)->subject(row(app, "Rust"));
    const QAccessible::Id id = QAccessible::uniqueId(rust);
    QVERIFY(rust->isValid());
    QTRY_COMPARE(tree(app)->subjectCount(), 8);
    app.select("Material");
    app.trigger("delete");
    QCOMPARE(app.text(), QStringLiteral("Late[People[Too few[Illness],Too new],Machines]"));
    QTRY_COMPARE(tree(app)->subjectCount(), 6);
    QVERIFY(!QAccessible::accessibleInterface(id));
    QCOMPARE(outline(*tree(app)->child(0)),
             QStringLiteral("Late[People[Too few[Illness],Too new],Machines]"));
    app.trigger("undo");
    app.window.tree()->view()->expandAll();
    QCOMPARE(outline(*tree(app)->child(0)),
             QStringLiteral("Late[People[Too few[Illness],Too new],Machines,Material[Rust]]"));
}

void TestAccessibleSubjects::shouldLeadUpAndDown()
{
    AppFixture app;
    app.window.tree()->view()->expandAll();
    QAccessibleInterface *const people = tree(app)->subject(row(app, "People"));
    QAccessibleInterface *const fresh = tree(app)->subject(row(app, "Too new"));
    QCOMPARE(fresh->parent(), people);
    QCOMPARE(people->indexOfChild(fresh), 1);
    QCOMPARE(people->parent()->parent(), tree(app));
    QCOMPARE(tree(app)->indexOfChild(people->parent()), 0);
    QCOMPARE(tree(app)->indexOfChild(fresh), -1);
    QCOMPARE(fresh->text(QAccessible::Description), QStringLiteral("level 2"));
    QCOMPARE(people->child(1), fresh);
}

void TestAccessibleSubjects::shouldStandWhereTheRowIsDrawn()
{
    AppFixture app;
    const SubjectTreeView *const view = app.window.tree()->view();
    QAccessibleInterface *const machines = tree(app)->subject(row(app, "Machines"));
    const QPoint middle = machines->rect().center();
    QCOMPARE(view->indexAt(view->viewport()->mapFromGlobal(middle)), row(app, "Machines"));
    QCOMPARE(tree(app)->childAt(middle.x(), middle.y()), machines);
    QVERIFY(!machines->state().offscreen);
}

void TestAccessibleSubjects::shouldSelectAndExpand()
{
    AppFixture app;
    QAccessibleInterface *const people = tree(app)->subject(row(app, "People"));
    QAccessibleActionInterface *const actions = people->actionInterface();
    QVERIFY(people->state().collapsed);
    QVERIFY(people->state().expandable);
    actions->doAction(QAccessibleActionInterface::toggleAction());
    QVERIFY(people->state().expanded);
    QVERIFY(!people->state().collapsed);
    actions->doAction(QAccessibleActionInterface::pressAction());
    AppFixture::settle();
    QVERIFY(people->state().selected);
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("People")));
    QAccessibleInterface *const machines = tree(app)->subject(row(app, "Machines"));
    QVERIFY(!machines->state().expandable);
    QVERIFY(!machines->actionInterface()->actionNames().contains(
        QAccessibleActionInterface::toggleAction()));
}

void TestAccessibleSubjects::shouldTellTheRowThatHasTheFocus()
{
    AppFixture app;
    QVERIFY(QTest::qWaitForWindowActive(&app.window));
    SubjectTreeView *const view = app.window.tree()->view();
    view->setFocus();
    view->setCurrentIndex(row(app, "People"));
    QTest::keyClick(view, Qt::Key_Down);
    QVERIFY(tree(app)->focusChild());
    QCOMPARE(tree(app)->focusChild()->text(QAccessible::Name), QStringLiteral("Machines"));
    QVERIFY(tree(app)->focusChild()->state().focused);
}

FISHBONE_TEST(TestAccessibleSubjects)
#include "tst_accessiblesubjects.moc"
