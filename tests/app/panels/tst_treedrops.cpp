// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/panels/subjectproxymodel.h>
#include <app/panels/treedrops.h>

#include <fishbone/items/taskstatusinfo.h>
#include <fishbone/model/subjectmarks.h>

#include <tests/app/appfixture.h>
#include <tests/program/testprogram.h>

#include <QContextMenuEvent>
#include <QDragEnterEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QRubberBand>

#include <memory>

namespace {

enum class Edge { Above, Onto, Below };

/** The tree of the window, with the focus and all rows expanded. */
class TreeFixture : public AppFixture
{
public:
    TreeFixture()
    {
        trigger("expandall");
        view()->setFocus();
    }

    SubjectTreeView *view() const { return window.tree()->view(); }
    QRect row(const char *title) const
    {
        return view()->visualRect(window.tree()->proxy()->mapFromSource(find(title)));
    }
    void choose(const char *title, Qt::KeyboardModifiers keys = {}) const
    {
        QTest::mouseClick(view()->viewport(), Qt::LeftButton, keys, row(title).center());
        settle();
    }
    static void press(Qt::Key key)
    {
        QTest::keyClick(QApplication::focusWidget(), key);
        settle();
    }

    /** Drags the row of @p dragged to the edge of that of @p title; whether it is taken there. */
    bool drag(const char *dragged, const char *title, Edge edge) const
    {
        SubjectProxyModel *const proxy = window.tree()->proxy();
        const std::unique_ptr<QMimeData> data(
            proxy->mimeData({proxy->mapFromSource(find(dragged))}));
        const QRect rect = row(title);
        QPoint at = rect.center();
        if (edge != Edge::Onto)
            at.setY(edge == Edge::Above ? rect.top() + 1 : rect.bottom() - 1);
        QDragEnterEvent enter(at, Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(view()->viewport(), &enter);
        const QWidget *const mark = view()->viewport()->findChild<QRubberBand *>();
        if (enter.isAccepted() != (mark && mark->isVisible()))
            return false;
        QDropEvent end(at, Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(view()->viewport(), &end);
        settle();
        return end.isAccepted() && !mark->isVisible();
    }

    int steps() const { return window.editor()->undoStack()->count(); }
};

} // namespace

/** The tree as an outliner. */
class TestTreeDrops : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldRenameInTheTree();
    void shouldLeaveATitleOnEscape();
    void shouldInsertByTheKeysOfTheDrawing();
    void shouldMoveByKeys();
    void shouldMoveByTheMouse_data();
    void shouldMoveByTheMouse();
    void shouldRefuseWhatCannotBe();
    void shouldMoveToOtherLevelsByKeys();
    void shouldShowTheStatus();
    void shouldMarkByKeysAndMenu();
};

void TestTreeDrops::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_treedrops"));
}

void TestTreeDrops::shouldRenameInTheTree()
{
    TreeFixture app;
    app.choose("Machines");
    TreeFixture::press(Qt::Key_F2);
    auto *const field = qobject_cast<QLineEdit *>(QApplication::focusWidget());
    QVERIFY(field && app.view()->isAncestorOf(field));
    QCOMPARE(field->text(), QStringLiteral("Machines"));
    QCOMPARE(field->selectedText(), field->text());
    QTest::keyClicks(field, QStringLiteral("Tools"));
    TreeFixture::press(Qt::Key_Delete); // no shortcut of the tree
    TreeFixture::press(Qt::Key_Return);
    QVERIFY2(app.text().endsWith(QLatin1String("Tools,Material[Rust]]")), qPrintable(app.text()));
    QCOMPARE(app.steps(), 1);
    QCOMPARE(app.subject("Tools")->spear()->text(), QStringLiteral("Tools"));
    QVERIFY(app.view()->hasFocus());
    app.trigger("undo");
    QVERIFY(app.subject("Machines"));
}

void TestTreeDrops::shouldLeaveATitleOnEscape()
{
    TreeFixture app;
    app.choose("Machines");
    TreeFixture::press(Qt::Key_F2);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("Tools"));
    TreeFixture::press(Qt::Key_Escape);
    QVERIFY(app.subject("Machines"));
    QCOMPARE(app.steps(), 0);
}

void TestTreeDrops::shouldInsertByTheKeysOfTheDrawing()
{
    TreeFixture app;
    app.choose("Machines");
    TreeFixture::press(Qt::Key_Tab);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("Pump"));
    TreeFixture::press(Qt::Key_Return);
    QVERIFY(app.text().contains(QLatin1String("Machines[Pump]")));
    QCOMPARE(app.selectedInTree(), QStringList(QStringLiteral("Pump")));
    app.view()->setFocus();
    TreeFixture::press(Qt::Key_Return);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("Gear"));
    TreeFixture::press(Qt::Key_Return);
    QVERIFY(app.text().contains(QLatin1String("Machines[Pump,Gear]")));
}

void TestTreeDrops::shouldMoveByKeys()
{
    TreeFixture app;
    app.choose("Machines");
    QTest::keyClick(app.view(), Qt::Key_Up, Qt::AltModifier);
    AppFixture::settle();
    QVERIFY(app.text().startsWith(QLatin1String("Late[Machines,People")));
    QCOMPARE(app.selectedInTree(), QStringList(QStringLiteral("Machines")));
}

void TestTreeDrops::shouldMoveByTheMouse_data()
{
    QTest::addColumn<QByteArray>("dragged");
    QTest::addColumn<QByteArray>("target");
    QTest::addColumn<int>("edge");
    QTest::addColumn<QString>("after");
    const auto row = [](const char *name, const char *dragged, const char *target, Edge edge,
                        const char *after) {
        QTest::newRow(name) << QByteArray(dragged) << QByteArray(target) << int(edge)
                            << QString::fromLatin1(after);
    };
    row("above a sibling", "Material", "Machines", Edge::Above,
        "Late[People[Too few[Illness],Too new],Material[Rust],Machines]");
    row("below a sibling", "Machines", "Rust", Edge::Below,
        "Late[People[Too few[Illness],Too new],Material[Rust,Machines]]");
    row("onto another", "Too new", "Machines", Edge::Onto,
        "Late[People[Too few[Illness]],Machines[Too new],Material[Rust]]");
    row("below an expanded one", "Rust", "People", Edge::Below,
        "Late[People[Rust,Too few[Illness],Too new],Machines,Material]");
    row("onto the head", "Illness", "Late", Edge::Onto,
        "Late[People[Too few,Too new],Machines,Material[Rust],Illness]");
}

void TestTreeDrops::shouldMoveByTheMouse()
{
    QFETCH(QByteArray, dragged);
    QFETCH(QByteArray, target);
    QFETCH(int, edge);
    QFETCH(QString, after);
    TreeFixture app;
    const QString before = app.text();
    QVERIFY(app.drag(dragged.constData(), target.constData(), Edge(edge)));
    QCOMPARE(app.text(), after);
    QCOMPARE(app.steps(), 1);
    QCOMPARE(app.selectedInTree(), QStringList(QString::fromLatin1(dragged)));
    QCOMPARE(app.subject(dragged.constData())->spear()->treeItem()->parent(),
             app.subject(dragged.constData())->parent());
    app.trigger("undo");
    QCOMPARE(app.text(), before);
}

void TestTreeDrops::shouldRefuseWhatCannotBe()
{
    TreeFixture app;
    const QString before = app.text();
    app.drag("People", "Illness", Edge::Onto); // into itself
    QCOMPARE(app.text(), before);
    QCOMPARE(app.steps(), 0);
    QMimeData text;
    text.setText(QStringLiteral("from elsewhere"));
    QDragEnterEvent enter(app.row("Machines").center(), Qt::CopyAction, &text, Qt::LeftButton,
                          Qt::NoModifier);
    QApplication::sendEvent(app.view()->viewport(), &enter);
    QVERIFY(!enter.isAccepted());
}

void TestTreeDrops::shouldMoveToOtherLevelsByKeys()
{
    TreeFixture app;
    const QString before = app.text();
    app.choose("Machines");
    QTest::keyClick(app.view(), Qt::Key_Right, Qt::AltModifier);
    AppFixture::settle();
    QVERIFY2(app.text().contains(QLatin1String("Too new,Machines]")), qPrintable(app.text()));
    QCOMPARE(app.selectedInTree(), QStringList(QStringLiteral("Machines")));
    QTest::keyClick(app.view(), Qt::Key_Left, Qt::AltModifier);
    AppFixture::settle();
    QCOMPARE(app.text(), before);
}

/** Those of the drawing, for all rows that are selected. */
void TestTreeDrops::shouldMarkByKeysAndMenu()
{
    TreeFixture app;
    app.choose("Machines");
    app.choose("Rust", Qt::ControlModifier);
    QTest::keyClick(app.view(), Qt::Key_3, Qt::AltModifier);
    AppFixture::settle();
    const QPoint place = app.row("Rust").center();
    QTest::mouseClick(app.view()->viewport(), Qt::RightButton, {}, place);
    QContextMenuEvent event(QContextMenuEvent::Mouse, place,
                            app.view()->viewport()->mapToGlobal(place));
    QApplication::sendEvent(app.view()->viewport(), &event);
    AppFixture::settle();
    auto *const menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    QVERIFY(menu);
    QMenu *const marks = app.window.findChild<QMenu *>(QStringLiteral("markMenu"));
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(marks->menuAction()).center());
    QTRY_VERIFY(marks->isVisible());
    QTest::keyClick(marks, Qt::Key_T);                             // status
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_F); // finished
    AppFixture::settle();
    QVERIFY(!QApplication::activePopupWidget());
    for (const char *title : {"Machines", "Rust"}) {
        QCOMPARE(SubjectMarks::verdict(*app.subject(title)), Verdict::Confirmed);
        QCOMPARE(app.subject(title)->status(), int(tsFinish));
    }
    QCOMPARE(app.steps(), 2);
}

void TestTreeDrops::shouldShowTheStatus()
{
    TreeFixture app;
    const auto icon = [&app](const char *title) {
        const QModelIndex row = app.window.tree()->proxy()->mapFromSource(app.find(title));
        return row.data(Qt::DecorationRole).value<QIcon>().pixmap(16).toImage();
    };
    const QImage before = icon("Machines");
    QCOMPARE(icon("Rust"), before);
    app.select("Machines");
    app.trigger("statusFinished");
    QVERIFY(icon("Machines") != before);
    QCOMPARE(icon("Machines"), QIcon(TaskStatusInfo(tsFinish, 0).iconPath()).pixmap(16).toImage());
    QCOMPARE(icon("Rust"), before);
    if (const QByteArray folder = qgetenv("FISHBONE_TEST_PICTURES"); !folder.isEmpty()) {
        app.choose("Machines");
        TreeFixture::press(Qt::Key_F2);
        app.window.grab().save(QString::fromLocal8Bit(folder) + QStringLiteral("/tree.png"));
    }
}

FISHBONE_TEST(TestTreeDrops)
#include "tst_treedrops.moc"
