// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>
#include <tests/program/testprogram.h>

#include <app/panels/subjectproxymodel.h>

#include <fishbone/items/expanditem.h>

#include <QClipboard>
#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QMouseEvent>
#include <QScrollBar>
#include <QSignalSpy>

class TestTreeSync : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldSelectInTheTreeWhatIsSelectedInTheDrawing();
    void shouldSelectInTheDrawingWhatIsSelectedInTheTree();
    void shouldRefuseARowOfAnotherTab();
    void shouldRevealWhatIsSelectedInTheTree();
    void shouldExpandInTheTreeWhatIsExpandedInTheDrawing();
    void shouldFollowAClickOnAnExpandButton();
    void shouldExpandInTheDrawingWhatIsExpandedInTheTree();
    void shouldNeverContractTheHead();
    void shouldFollowExpandAllAndContractAll();
    void shouldFilterByTitle();
    void shouldKeepTheDrawingWhileTheTreeIsFiltered();
    void shouldRevealWhatIsChosenInAFilteredTree();
    void shouldStayInStepThroughEdits();
    void shouldLetSubjectsBeDraggedButHeads();
    void shouldMoveADraggedRowOntoABone();
    void shouldFollowAMoveWithTheMouse();
    void shouldLayOutOnceForManyRemovedRows();
};

void TestTreeSync::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_treesync"));
}

namespace {

QModelIndex row(const AppFixture &app, const char *title)
{
    return app.window.tree()->proxy()->mapFromSource(app.find(title));
}

bool isRowExpanded(const AppFixture &app, const char *title)
{
    return app.window.tree()->view()->isExpanded(row(app, title));
}

bool isBoneExpanded(const AppFixture &app, const char *title)
{
    const SpearItem *const spear = app.subject(title)->spear();
    return spear && spear->isExpand() && !spear->childSpears().isEmpty();
}

/** Chooses a row as a click does. */
void choose(AppFixture &app, const char *title,
            QItemSelectionModel::SelectionFlags how = QItemSelectionModel::ClearAndSelect)
{
    app.window.tree()->view()->selectionModel()->setCurrentIndex(row(app, title),
                                                                 how | QItemSelectionModel::Rows);
    AppFixture::settle();
}

/** The titles of all rows that the tree's model has, parents first. */
QStringList filteredTitles(const QAbstractItemModel &model, const QModelIndex &parent = {})
{
    QStringList titles;
    for (int i = 0; i < model.rowCount(parent); ++i) {
        titles.append(model.index(i, 0, parent).data().toString());
        titles += filteredTitles(model, model.index(i, 0, parent));
    }
    return titles;
}

} // namespace

void TestTreeSync::shouldSelectInTheTreeWhatIsSelectedInTheDrawing()
{
    AppFixture app;
    app.subject("People")->spear()->setSelected(true);
    AppFixture::settle();
    QCOMPARE(app.selectedInTree(), QStringList(QStringLiteral("People")));
    QCOMPARE(app.window.tree()->view()->currentIndex(), row(app, "People"));
    app.subject("Material")->spear()->setSelected(true);
    AppFixture::settle();
    QCOMPARE(app.selectedInTree(),
             QStringList({QStringLiteral("People"), QStringLiteral("Material")}));
    app.window.editor()->scene()->clearSelection();
    AppFixture::settle();
    QCOMPARE(app.selectedInTree(), QStringList());
}

void TestTreeSync::shouldSelectInTheDrawingWhatIsSelectedInTheTree()
{
    AppFixture app;
    choose(app, "Machines");
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("Machines")));
    choose(app, "Material", QItemSelectionModel::Select);
    QCOMPARE(app.selectedInDrawing(),
             QStringList({QStringLiteral("Machines"), QStringLiteral("Material")}));
    app.window.tree()->view()->clearSelection();
    AppFixture::settle();
    QCOMPARE(app.selectedInDrawing(), QStringList());
}

void TestTreeSync::shouldRevealWhatIsSelectedInTheTree()
{
    AppFixture app;
    QVERIFY(!app.subject("Illness")->spear());
    choose(app, "Illness");
    QVERIFY(app.subject("Illness")->spear());
    QVERIFY(app.subject("Illness")->spear()->isVisible());
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("Illness")));
    QVERIFY(isRowExpanded(app, "Too few"));
    QVERIFY(!isBoneExpanded(app, "Material"));
}

void TestTreeSync::shouldExpandInTheTreeWhatIsExpandedInTheDrawing()
{
    AppFixture app;
    QVERIFY(isRowExpanded(app, "Late"));
    QVERIFY(!isRowExpanded(app, "People"));
    app.select("People");
    app.trigger("expand");
    QVERIFY(isBoneExpanded(app, "People"));
    QVERIFY(isRowExpanded(app, "People"));
    QVERIFY(!isRowExpanded(app, "Material"));
    app.trigger("contract");
    QVERIFY(!isBoneExpanded(app, "People"));
    QVERIFY(!isRowExpanded(app, "People"));
}

void TestTreeSync::shouldFollowAClickOnAnExpandButton()
{
    AppFixture app;
    GraphicsView *const view = app.window.editor()->view();
    const auto click = [&] {
        const QGraphicsItem *const button = app.subject("People")->spear()->expandBuddy();
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {},
                          view->mapFromScene(button->mapToScene(button->boundingRect().center())));
        AppFixture::settle();
    };
    click();
    QVERIFY(isBoneExpanded(app, "People"));
    QVERIFY(isRowExpanded(app, "People"));
    QCOMPARE(app.selectedInTree(), QStringList(QStringLiteral("People")));
    click();
    QVERIFY(!isBoneExpanded(app, "People"));
    QVERIFY(!isRowExpanded(app, "People"));
}

void TestTreeSync::shouldExpandInTheDrawingWhatIsExpandedInTheTree()
{
    AppFixture app;
    app.window.tree()->view()->expand(row(app, "People"));
    AppFixture::settle();
    QVERIFY(isBoneExpanded(app, "People"));
    QVERIFY(app.subject("Too few")->spear()->isVisible());
    app.window.tree()->view()->expand(row(app, "Too few"));
    AppFixture::settle();
    QVERIFY(app.subject("Illness")->spear()->isVisible());
    app.window.tree()->view()->collapse(row(app, "People"));
    AppFixture::settle();
    QVERIFY(!app.subject("Too few")->spear()->isVisible());
    QVERIFY(!app.document()->modified());
}

void TestTreeSync::shouldNeverContractTheHead()
{
    AppFixture app;
    app.window.tree()->view()->collapse(row(app, "Late"));
    AppFixture::settle();
    QVERIFY(app.subject("People")->spear()->isVisible());
}

void TestTreeSync::shouldFollowExpandAllAndContractAll()
{
    AppFixture app;
    app.trigger("expandall");
    for (const char *title : {"People", "Too few", "Material"}) {
        QVERIFY2(isBoneExpanded(app, title), title);
        QVERIFY2(isRowExpanded(app, title), title);
    }
    app.trigger("contractall");
    for (const char *title : {"People", "Too few", "Material"}) {
        QVERIFY2(!isBoneExpanded(app, title), title);
        QVERIFY2(!isRowExpanded(app, title), title);
    }
    QVERIFY(isRowExpanded(app, "Late"));
}

void TestTreeSync::shouldFilterByTitle()
{
    AppFixture app;
    app.widget<QLineEdit>("filter")->setText(QStringLiteral("ILL"));
    AppFixture::settle();
    QCOMPARE(filteredTitles(*app.window.tree()->proxy()),
             QStringList({QStringLiteral("Late"), QStringLiteral("People"),
                          QStringLiteral("Too few"), QStringLiteral("Illness")}));
    QVERIFY(isRowExpanded(app, "Too few")); // what matches is to be seen
    app.widget<QLineEdit>("filter")->clear();
    AppFixture::settle();
    QCOMPARE(filteredTitles(*app.window.tree()->proxy()).size(), 8);
    QVERIFY(!isRowExpanded(app, "Too few"));
}

void TestTreeSync::shouldKeepTheDrawingWhileTheTreeIsFiltered()
{
    AppFixture app;
    app.select("Machines");
    app.widget<QLineEdit>("filter")->setText(QStringLiteral("Rust"));
    AppFixture::settle();
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("Machines")));
    QVERIFY(!isBoneExpanded(app, "Material"));
    app.widget<QLineEdit>("filter")->clear();
    AppFixture::settle();
    QCOMPARE(app.selectedInTree(), QStringList(QStringLiteral("Machines")));
}

void TestTreeSync::shouldRevealWhatIsChosenInAFilteredTree()
{
    AppFixture app;
    app.widget<QLineEdit>("filter")->setText(QStringLiteral("Rust"));
    AppFixture::settle();
    choose(app, "Rust");
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("Rust")));
    QVERIFY(app.subject("Rust")->spear()->isVisible());
    app.widget<QLineEdit>("filter")->clear();
    AppFixture::settle();
    QVERIFY(isRowExpanded(app, "Material"));
    QCOMPARE(app.selectedInTree(), QStringList(QStringLiteral("Rust")));
}

void TestTreeSync::shouldStayInStepThroughEdits()
{
    AppFixture app;
    const auto inStep = [&app] {
        AppFixture::settle();
        const QModelIndexList all = app.window.model()->searchModelIndexes(QString());
        for (const QModelIndex &index : all) {
            const SpearItem *const spear = app.window.model()->getTreeItem(index)->spear();
            const QModelIndex shown = app.window.tree()->proxy()->mapFromSource(index);
            if (!shown.isValid() || shown.data() != index.data())
                return false;
            if (spear && !spear->isHeader() && !spear->childSpears().isEmpty() &&
                spear->isExpand() != app.window.tree()->view()->isExpanded(shown))
                return false;
        }
        return app.selectedInTree() == app.selectedInDrawing();
    };
    app.trigger("expandall");
    for (const char *edit : {"child", "parent", "after", "before", "cut", "delete"}) {
        app.select("Too few");
        for (const char *step : {edit, "undo", "redo", "undo"}) {
            app.trigger(step);
            QVERIFY2(inStep(), edit);
            QVERIFY2(app.window.editor()->hasSelection(), edit);
        }
    }
    app.select("Too few");
    app.trigger("copy");
    for (const char *step : {"paste", "undo"}) {
        app.trigger(step);
        QVERIFY2(inStep(), step);
    }
}

void TestTreeSync::shouldLetSubjectsBeDraggedButHeads()
{
    AppFixture app;
    QVERIFY(row(app, "Rust").flags() & Qt::ItemIsDragEnabled);
    QVERIFY(!(row(app, "Late").flags() & Qt::ItemIsDragEnabled));
    app.subject("Rust")->setSpearItemIsMovable(false);
    QVERIFY(!(row(app, "Rust").flags() & Qt::ItemIsDragEnabled));
    QVERIFY(app.window.tree()->view()->dragEnabled());
}

void TestTreeSync::shouldMoveADraggedRowOntoABone()
{
    AppFixture app;
    GraphicsView *const view = app.window.editor()->view();
    const QScopedPointer<QMimeData> data(
        app.window.tree()->proxy()->mimeData({row(app, "Illness")}));
    const SpearItem *const target = app.subject("Machines")->spear();
    const QPoint at = view->mapFromScene(target->line().center());

    QDragEnterEvent enter(at, Qt::MoveAction, data.data(), Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(view->viewport(), &enter);
    QVERIFY(enter.isAccepted());
    QDragMoveEvent move(at, Qt::MoveAction, data.data(), Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(view->viewport(), &move);
    QVERIFY(move.isAccepted());
    QDropEvent drop(at, Qt::MoveAction, data.data(), Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(view->viewport(), &drop);
    AppFixture::settle();

    QCOMPARE(app.text(),
             QStringLiteral("Late[People[Too few,Too new],Machines[Illness],Material[Rust]]"));
    QVERIFY(app.window.isWindowModified());
}

void TestTreeSync::shouldRefuseARowOfAnotherTab()
{
    AppFixture app;
    const QString before = app.text();
    const QScopedPointer<QMimeData> data(
        app.window.tree()->proxy()->mimeData({row(app, "Illness")}));
    app.trigger("newExample");
    const QString example = app.text();
    GraphicsView *const view = app.window.editor()->view();
    const QPoint at = view->mapFromScene(
        app.window.editor()->headSpear()->childSpears().constFirst()->line().center());

    QDragEnterEvent enter(at, Qt::MoveAction, data.data(), Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(view->viewport(), &enter);
    QDragMoveEvent move(at, Qt::MoveAction, data.data(), Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(view->viewport(), &move);
    QVERIFY(!move.isAccepted());
    QDropEvent drop(at, Qt::MoveAction, data.data(), Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(view->viewport(), &drop);
    AppFixture::settle();
    QCOMPARE(app.text(), example);
    QVERIFY(!app.document()->modified());
    app.showTab(0);
    QCOMPARE(app.text(), before);
    QVERIFY(!app.document()->modified());
}

void TestTreeSync::shouldFollowAMoveWithTheMouse()
{
    AppFixture app;
    app.select("Rust");
    GraphicsView *const view = app.window.editor()->view();
    const auto pointOn = [&](const char *title) {
        return view->mapFromScene(app.subject(title)->spear()->line().center());
    };
    QTest::mousePress(view->viewport(), Qt::LeftButton, {}, pointOn("Rust"));
    const QPoint to = pointOn("Machines");
    QMouseEvent move(QEvent::MouseMove, to, view->viewport()->mapToGlobal(to), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(view->viewport(), &move);
    QTest::mouseRelease(view->viewport(), Qt::LeftButton, {}, to);
    AppFixture::settle();
    QCOMPARE(app.text(),
             QStringLiteral("Late[People[Too few[Illness],Too new],Machines[Rust],Material]"));
    QCOMPARE(row(app, "Rust").parent(), row(app, "Machines"));
    QVERIFY(app.window.isWindowModified());
    app.trigger("undo");
    QCOMPARE(app.text(),
             QStringLiteral("Late[People[Too few[Illness],Too new],Machines,Material[Rust]]"));
}

void TestTreeSync::shouldLayOutOnceForManyRemovedRows()
{
    AppFixture app;
    QStringList lines;
    for (int i = 0; i < 300; ++i)
        lines.append(QString::number(i));
    app.select("Machines");
    QGuiApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
    app.trigger("paste");
    QCOMPARE(app.subject("Machines")->childCount(), 300);
    // Each layout tells the scroll bar how many rows there are.
    const QSignalSpy layouts(app.window.tree()->view()->verticalScrollBar(),
                             &QScrollBar::rangeChanged);
    app.trigger("undo");
    QCOMPARE(app.subject("Machines")->childCount(), 0);
    QVERIFY2(layouts.size() < 10, qPrintable(QString::number(layouts.size())));
    QCOMPARE(app.window.tree()->selectedSubjects(), QModelIndexList{app.find("Machines")});
}

FISHBONE_TEST(TestTreeSync)
#include "tst_treesync.moc"
