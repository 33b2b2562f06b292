// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QMenu>
#include <QSignalSpy>
#include <QTimer>
#include <QtTest>

#include <tests/program/testprogram.h>
#include <tests/support/editorfixture.h>
#include <tests/support/viewmouse.h>

using namespace TestSupport;

namespace {
const QString document = QStringLiteral("Head[A[a],B]");
const QString bone = QStringLiteral("A");

/** A shown editor on the heap, which somebody may end. */
struct EndingEditor
{
    EndingEditor()
    {
        model.setModelType(FISH_MODEL_DIAGRAM);
        loadDocument(model, document);
        editor->resize(900, 700);
        editor->setModel(&model);
        editor->setRootIndex(model.index(0, 0));
        editor->show();
    }
    ~EndingEditor() { delete editor.data(); }
    SpearItem *spear() const { return nodeTitled(model, bone)->spear(); }

    FishModel model;
    const QPointer<FishEditor> editor = new FishEditor;
};

} // namespace

/**
 * A view with items of the host's in its scene, without a scene, and whose editor the host ends.
 */
class TestGraphicsViewHost : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldMoveBonesOnlyWhenTheHostsItemsAreSelectedToo();
    void shouldShowTheArrowWhereTheHostsItemsCoverABone();
    void shouldTakeTheMouseWithoutAScene();
    void shouldSurviveItsEndByAMove();
    void shouldSurviveItsEndByARightClick_data();
    void shouldSurviveItsEndByARightClick();
    void shouldRunNoEntryThatTheHostAdds();
};

void TestGraphicsViewHost::shouldMoveBonesOnlyWhenTheHostsItemsAreSelectedToo()
{
    EditorFixture fish(document);
    QVERIFY(fish.show());
    const GraphicsView &view = *fish.editor.view();
    QGraphicsItem *const note = fish.editor.scene()->addRect(0, 0, 10, 10);
    note->setFlag(QGraphicsItem::ItemIsSelectable);
    fish.select({bone});
    note->setSelected(true);
    QSignalSpy moved(fish.editor.view(), &GraphicsView::moveSpear);
    ViewMouse mouse(*fish.editor.view());

    // Ctrl keeps the selection.
    mouse.press(tipOf(view, fish.spear(QStringLiteral("B"))), Qt::LeftButton, Qt::ControlModifier);
    QVERIFY(fish.spear(bone)->isMoving());
    mouse.release({1, 1});
    QCOMPARE(moved.count(), 1);
    const auto items = moved.first().at(1).value<QList<QGraphicsItem *>>();
    QVERIFY(items.contains(fish.spear(bone)));
    QVERIFY(!items.contains(note));
}

void TestGraphicsViewHost::shouldShowTheArrowWhereTheHostsItemsCoverABone()
{
    EditorFixture fish(document);
    QVERIFY(fish.show());
    GraphicsView &view = *fish.editor.view();
    fish.editor.updateFish(false);
    const QPoint at = tipOf(view, fish.spear(QStringLiteral("B")));
    ViewMouse mouse(view);
    mouse.move({1, 1});
    mouse.move(at);
    QCOMPARE(view.viewport()->cursor().shape(), Qt::PointingHandCursor);

    mouse.move({1, 1});
    QGraphicsItem *const cover =
        fish.editor.scene()->addRect(QRectF(view.mapToScene(at), QSizeF()).adjusted(-9, -9, 9, 9));
    cover->setZValue(1000);
    mouse.move(at);
    QCOMPARE(view.viewport()->cursor().shape(), Qt::ArrowCursor);
}

void TestGraphicsViewHost::shouldTakeTheMouseWithoutAScene()
{
    EditorFixture fish(document);
    QVERIFY(fish.show());
    GraphicsView &view = *fish.editor.view();
    view.setScene(nullptr);
    QSignalSpy moved(&view, &GraphicsView::moveSpear);
    QSignalSpy asked(&view, &GraphicsView::rightClicked);
    ViewMouse mouse(view);

    mouse.press({50, 50});
    mouse.move({60, 60});
    mouse.release({60, 60});
    mouse.askForMenu({50, 50});
    QCOMPARE(moved.count(), 0);
    QCOMPARE(asked.count(), 0);
    view.setScene(fish.editor.scene());
}

void TestGraphicsViewHost::shouldSurviveItsEndByAMove()
{
    EndingEditor ending;
    QVERIFY(QTest::qWaitForWindowExposed(ending.editor));
    ending.editor->equalRatio(ending.editor->scene()->itemsBoundingRect());
    GraphicsView &view = *ending.editor->view();
    connect(&view, &GraphicsView::moveSpear, this, [&ending] { delete ending.editor.data(); });

    ViewMouse(view).click(tipOf(view, ending.spear()));
    QVERIFY(!ending.editor);
}

void TestGraphicsViewHost::shouldSurviveItsEndByARightClick_data()
{
    QTest::addColumn<bool>("isOnBone");
    QTest::newRow("on a bone") << true;
    QTest::newRow("on nothing") << false;
}

/** The toolkit asks the parent of a view that has no use for the event, dead or not. */
void TestGraphicsViewHost::shouldSurviveItsEndByARightClick()
{
    QFETCH(bool, isOnBone);
    EndingEditor ending;
    QVERIFY(QTest::qWaitForWindowExposed(ending.editor));
    ending.editor->equalRatio(ending.editor->scene()->itemsBoundingRect());
    GraphicsView &view = *ending.editor->view();
    connect(&view, &GraphicsView::rightClicked, this, [&ending] { delete ending.editor.data(); });
    const QPoint at = isOnBone ? tipOf(view, ending.spear()) : QPoint(2, 2);
    QContextMenuEvent event(QContextMenuEvent::Mouse, at, view.viewport()->mapToGlobal(at));

    QCoreApplication::sendEvent(view.viewport(), &event);

    QVERIFY(!ending.editor);
    QVERIFY(event.isAccepted());
}

void TestGraphicsViewHost::shouldRunNoEntryThatTheHostAdds()
{
    EditorFixture fish(document);
    QSignalSpy edited(&fish.editor, &FishEditor::editTaskDetail);
    QSignalSpy inserted(&fish.editor, &FishEditor::insertChildTask);
    bool isChosen = false;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&isChosen] {
        auto *const menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        if (!menu)
            return;
        menu->setActiveAction(menu->addAction(QStringLiteral("Mine")));
        isChosen = true;
        QTest::keyClick(menu, Qt::Key_Return);
    });
    timer.start(2);

    fish.editor.onRightClicked(fish.spear(bone));
    QVERIFY(isChosen);
    QCOMPARE(edited.count() + inserted.count(), 0);
    QCOMPARE(treeToText(*fish.info->treeItem()->childAtIndex(0)), document);
}

FISHBONE_TEST(TestGraphicsViewHost)
#include "tst_graphicsview_host.moc"
