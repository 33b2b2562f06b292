// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QDragEnterEvent>
#include <QMimeData>
#include <QSignalSpy>
#include <QSortFilterProxyModel>
#include <QTreeView>
#include <QtTest>

#include <tests/editor/sampletrees.h>
#include <tests/program/testprogram.h>
#include <tests/support/editorfixture.h>
#include <tests/support/pictures.h>
#include <tests/support/signalrecorder.h>

using namespace TestSupport;

namespace {

using SampleTrees::treeOf;
/** A point of the viewport in the middle of a bone's outer half, where only that bone is. */
QPoint onBone(const EditorFixture &fixture, const QString &title)
{
    const SpearItem *const spear = fixture.spear(title);
    return fixture.editor.view()->mapFromScene(spear->mapToScene(spear->line().pointAt(0.8)));
}

/** A point of the viewport with nothing near it. */
QPoint onCanvas(const EditorFixture &fixture)
{
    const QRectF drawing = fixture.editor.scene()->itemsBoundingRect();
    return fixture.editor.view()->mapFromScene(drawing.topLeft() - QPointF(20, 20));
}

/** A drag over an editor's view, with the events that the toolkit sends for one. */
class Drag
{
public:
    Drag(EditorFixture &fixture, std::unique_ptr<QMimeData> data)
        : m_viewport(*fixture.editor.view()->viewport())
        , m_data(std::move(data))
    {
    }
    Drag(EditorFixture &fixture, const QString &title)
        : Drag(fixture, std::unique_ptr<QMimeData>(fixture.model.mimeData({fixture.index(title)})))
    {
    }

    bool enter(const QPoint &pos)
    {
        QDragEnterEvent event(pos, Qt::CopyAction | Qt::MoveAction, m_data.get(), Qt::LeftButton,
                              Qt::NoModifier);
        return send(event);
    }
    bool move(const QPoint &pos)
    {
        QDragMoveEvent event(pos, Qt::CopyAction | Qt::MoveAction, m_data.get(), Qt::LeftButton,
                             Qt::NoModifier);
        return send(event);
    }
    void leave()
    {
        QDragLeaveEvent event;
        QCoreApplication::sendEvent(&m_viewport, &event);
    }
    /** The payload is gone when the event has been handled, as with a drag from elsewhere. */
    bool drop(const QPoint &pos)
    {
        QDropEvent event(pos, Qt::CopyAction | Qt::MoveAction, m_data.get(), Qt::LeftButton,
                         Qt::NoModifier);
        const bool accepted = send(event);
        m_data.reset();
        return accepted;
    }

private:
    template <typename Event>
    bool send(Event &event)
    {
        event.ignore();
        QCoreApplication::sendEvent(&m_viewport, &event);
        return event.isAccepted();
    }

    QWidget &m_viewport;
    std::unique_ptr<QMimeData> m_data;
};

/** Lets rows be dragged, as hosts do. */
class DraggableProxy : public QSortFilterProxyModel
{
public:
    Qt::ItemFlags flags(const QModelIndex &index) const override
    {
        return QSortFilterProxyModel::flags(index) | Qt::ItemIsDragEnabled;
    }
};

/** A tree view that hands over what it drags instead of taking the mouse. */
class DragSource : public QTreeView
{
public:
    std::unique_ptr<QMimeData> payload;

protected:
    void startDrag(Qt::DropActions) override
    {
        payload.reset(model()->mimeData(selectedIndexes()));
    }
};

} // namespace

class TestGraphicsViewDrag : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldTakeADragThatEnters();
    void shouldRefuseADragWithoutASubject_data();
    void shouldRefuseADragWithoutASubject();
    void shouldMarkTheSpearUnderADrag();
    void shouldUnmarkOverTheCanvas();
    void shouldRefuseAndUnmarkOverTheDraggedSubtree_data();
    void shouldRefuseAndUnmarkOverTheDraggedSubtree();
    void shouldKeepTheMarkUntilTheNextDrag();
    void shouldCarryOutADropWhenTheDragHasEnded();
    void shouldReportNothingForADropBesideEverySpear();
    void shouldSurviveTheEndOfTheEditorBeforeTheDropIsHandled();
    void shouldForgetAMarkedSpearThatDies();
    void shouldTakeARowDraggedFromATreeView();
    void shouldMoveWithTheMouseAtAnyZoomAndRotation_data();
    void shouldMoveWithTheMouseAtAnyZoomAndRotation();
    void shouldPaintTheSameInPiecesAsInFullDuringADrag();
};

void TestGraphicsViewDrag::shouldTakeADragThatEnters()
{
    EditorFixture fixture(SampleTrees::lettered());
    QVERIFY(fixture.show());
    QVERIFY(Drag(fixture, QStringLiteral("C")).enter(onCanvas(fixture)));
    QVERIFY(Drag(fixture, std::make_unique<QMimeData>()).enter(onCanvas(fixture)));
    QVERIFY(!fixture.editor.view()->linkedSpear());
}

void TestGraphicsViewDrag::shouldRefuseADragWithoutASubject_data()
{
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<QByteArray>("payload");
    QTest::newRow("text") << QByteArray("text/plain") << QByteArray("C;");
    QTest::newRow("empty") << QByteArray("QModelIndexList") << QByteArray();
    QTest::newRow("a wild pointer")
        << QByteArray("QModelIndexList")
        << QByteArray("\0\0\0\0\0\0\0\0\x12\x34\x56\x78\x12\x34\x56\x78", 16);
    QTest::newRow("half a record") << QByteArray("QModelIndexList") << QByteArray("\0\0\0\0\0", 5);
}

void TestGraphicsViewDrag::shouldRefuseADragWithoutASubject()
{
    QFETCH(QByteArray, format);
    QFETCH(QByteArray, payload);
    EditorFixture fixture(SampleTrees::lettered());
    QVERIFY(fixture.show());
    auto data = std::make_unique<QMimeData>();
    data->setData(QString::fromLatin1(format), payload);
    Drag drag(fixture, std::move(data));
    drag.enter(onBone(fixture, QStringLiteral("A")));
    QVERIFY(!drag.move(onBone(fixture, QStringLiteral("A"))));
    QVERIFY(!fixture.editor.view()->linkedSpear());
    drag.drop(onBone(fixture, QStringLiteral("A")));
    QCoreApplication::processEvents();
    QCOMPARE(treeOf(fixture), SampleTrees::lettered());
}

void TestGraphicsViewDrag::shouldMarkTheSpearUnderADrag()
{
    EditorFixture fixture(SampleTrees::lettered());
    QVERIFY(fixture.show());
    Drag drag(fixture, QStringLiteral("C"));
    drag.enter(onCanvas(fixture));
    QVERIFY(drag.move(onBone(fixture, QStringLiteral("A"))));
    QCOMPARE(fixture.editor.view()->linkedSpear(), fixture.spear(QStringLiteral("A")));
    QVERIFY(fixture.spear(QStringLiteral("A"))->isLinked());
    QVERIFY(drag.move(onBone(fixture, QStringLiteral("B"))));
    QVERIFY(!fixture.spear(QStringLiteral("A"))->isLinked());
    QVERIFY(fixture.spear(QStringLiteral("B"))->isLinked());
}

void TestGraphicsViewDrag::shouldUnmarkOverTheCanvas()
{
    EditorFixture fixture(SampleTrees::lettered());
    QVERIFY(fixture.show());
    Drag drag(fixture, QStringLiteral("C"));
    drag.enter(onCanvas(fixture));
    drag.move(onBone(fixture, QStringLiteral("A")));
    QVERIFY(drag.move(onCanvas(fixture)));
    QVERIFY(!fixture.editor.view()->linkedSpear());
    QVERIFY(!fixture.spear(QStringLiteral("A"))->isLinked());
}

void TestGraphicsViewDrag::shouldRefuseAndUnmarkOverTheDraggedSubtree_data()
{
    QTest::addColumn<QString>("target");
    QTest::newRow("itself") << QStringLiteral("A");
    QTest::newRow("below it") << QStringLiteral("A2");
}

void TestGraphicsViewDrag::shouldRefuseAndUnmarkOverTheDraggedSubtree()
{
    QFETCH(QString, target);
    EditorFixture fixture(SampleTrees::lettered());
    fixture.editor.expandAll();
    QVERIFY(fixture.show());
    Drag drag(fixture, QStringLiteral("A"));
    drag.enter(onCanvas(fixture));
    drag.move(onBone(fixture, QStringLiteral("B")));
    QVERIFY(!drag.move(onBone(fixture, target)));
    QVERIFY(!fixture.editor.view()->linkedSpear());
    QVERIFY(!fixture.spear(QStringLiteral("B"))->isLinked());
}

void TestGraphicsViewDrag::shouldKeepTheMarkUntilTheNextDrag()
{
    EditorFixture fixture(SampleTrees::lettered());
    QVERIFY(fixture.show());
    Drag drag(fixture, QStringLiteral("C"));
    drag.enter(onCanvas(fixture));
    drag.move(onBone(fixture, QStringLiteral("A")));
    drag.leave();
    QVERIFY(fixture.spear(QStringLiteral("A"))->isLinked());
    drag.enter(onCanvas(fixture));
    QVERIFY(!fixture.spear(QStringLiteral("A"))->isLinked());
}

void TestGraphicsViewDrag::shouldCarryOutADropWhenTheDragHasEnded()
{
    EditorFixture fixture(SampleTrees::lettered());
    QVERIFY(fixture.show());
    Drag drag(fixture, QStringLiteral("C"));
    drag.enter(onCanvas(fixture));
    drag.move(onBone(fixture, QStringLiteral("A")));
    QTest::ignoreMessage(QtDebugMsg, "GraphicsView::dropEvent");
    QVERIFY(drag.drop(onBone(fixture, QStringLiteral("A"))));
    QVERIFY(!fixture.spear(QStringLiteral("A"))->isLinked());
    QCOMPARE(treeOf(fixture), SampleTrees::lettered());
    QCoreApplication::processEvents();
    QCOMPARE(fixture.subject(QStringLiteral("C"))->parent(), fixture.subject(QStringLiteral("A")));
    QVERIFY(!fixture.editor.canUndo());
}

void TestGraphicsViewDrag::shouldReportNothingForADropBesideEverySpear()
{
    EditorFixture fixture(SampleTrees::lettered());
    QVERIFY(fixture.show());
    QSignalSpy drops(fixture.editor.view(), &GraphicsView::dropTo);
    Drag drag(fixture, QStringLiteral("C"));
    drag.enter(onCanvas(fixture));
    drag.move(onCanvas(fixture));
    QVERIFY(drag.drop(onCanvas(fixture)));
    QCOMPARE(drops.count(), 0);
}

void TestGraphicsViewDrag::shouldSurviveTheEndOfTheEditorBeforeTheDropIsHandled()
{
    auto fixture = std::make_unique<EditorFixture>(SampleTrees::lettered());
    QVERIFY(fixture->show());
    {
        Drag drag(*fixture, QStringLiteral("C"));
        drag.enter(onCanvas(*fixture));
        drag.move(onBone(*fixture, QStringLiteral("A")));
        drag.drop(onBone(*fixture, QStringLiteral("A")));
    }
    fixture.reset();
    QCoreApplication::processEvents();
    QVERIFY(!fixture);
}

void TestGraphicsViewDrag::shouldForgetAMarkedSpearThatDies()
{
    EditorFixture fixture(SampleTrees::lettered());
    QVERIFY(fixture.show());
    Drag drag(fixture, QStringLiteral("C"));
    drag.enter(onCanvas(fixture));
    const QPoint at = onBone(fixture, QStringLiteral("A"));
    drag.move(at);
    fixture.model.unloadFish(fixture.info);
    QVERIFY(!fixture.editor.view()->linkedSpear());
    QVERIFY(drag.drop(at));
    QCoreApplication::processEvents();
    QCOMPARE(fixture.model.rowCount(), 0);
}

void TestGraphicsViewDrag::shouldTakeARowDraggedFromATreeView()
{
    EditorFixture fixture(SampleTrees::lettered());
    QVERIFY(fixture.show());
    DraggableProxy proxy;
    proxy.setSourceModel(&fixture.model);
    DragSource tree;
    tree.setModel(&proxy);
    tree.setDragEnabled(true);
    tree.expandAll();
    tree.resize(300, 400);
    tree.show();
    QVERIFY(QTest::qWaitForWindowExposed(&tree));
    const QPoint row =
        tree.visualRect(proxy.mapFromSource(fixture.index(QStringLiteral("B1")))).center();
    QTest::mousePress(tree.viewport(), Qt::LeftButton, Qt::NoModifier, row);
    for (int step = 1; step <= 4 && !tree.payload; ++step) {
        const QPoint pos = row + QPoint(step * QApplication::startDragDistance(), 0);
        QMouseEvent move(QEvent::MouseMove, pos, tree.viewport()->mapToGlobal(pos), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(tree.viewport(), &move);
    }
    QVERIFY(tree.payload);
    Drag drag(fixture, std::move(tree.payload));
    drag.enter(onCanvas(fixture));
    QVERIFY(drag.move(onBone(fixture, QStringLiteral("C"))));
    QVERIFY(drag.drop(onBone(fixture, QStringLiteral("C"))));
    QCoreApplication::processEvents();
    QCOMPARE(treeOf(fixture), QStringLiteral("Head[A[A1,A2],B,C[B1]]"));
}

void TestGraphicsViewDrag::shouldMoveWithTheMouseAtAnyZoomAndRotation_data()
{
    QTest::addColumn<int>("zoom");
    QTest::addColumn<int>("rotation");
    for (const int zoom : {250, 270, 290}) {
        for (const int rotation : {0, 30, 90, 200}) {
            QTest::addRow("%d at %d degrees", zoom, rotation) << zoom << rotation;
        }
    }
}

void TestGraphicsViewDrag::shouldMoveWithTheMouseAtAnyZoomAndRotation()
{
    QFETCH(int, zoom);
    QFETCH(int, rotation);
    EditorFixture fixture(SampleTrees::lettered());
    QVERIFY(fixture.show(false));
    fixture.editor.zoomFish(zoom);
    fixture.editor.rotateFish(rotation);
    fixture.editor.view()->centerOn(fixture.editor.scene()->itemsBoundingRect().center());
    QWidget *const viewport = fixture.editor.view()->viewport();
    const QPoint from = onBone(fixture, QStringLiteral("C"));
    const QPoint to = onBone(fixture, QStringLiteral("B"));
    QVERIFY(viewport->rect().contains(from));
    QVERIFY(viewport->rect().contains(to));
    QTest::mousePress(viewport, Qt::LeftButton, Qt::NoModifier, from);
    QMouseEvent move(QEvent::MouseMove, to, viewport->mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(viewport, &move);
    QCOMPARE(fixture.editor.view()->linkedSpear(), fixture.spear(QStringLiteral("B")));
    QTest::mouseRelease(viewport, Qt::LeftButton, Qt::NoModifier, to);
    QCOMPARE(fixture.subject(QStringLiteral("C"))->parent(), fixture.subject(QStringLiteral("B")));
    QVERIFY(fixture.editor.canUndo());
}

void TestGraphicsViewDrag::shouldPaintTheSameInPiecesAsInFullDuringADrag()
{
    EditorFixture fixture(SampleTrees::lettered());
    fixture.editor.expandAll();
    QVERIFY(fixture.show());
    GraphicsView &view = *fixture.editor.view();
    Drag drag(fixture, QStringLiteral("C"));
    drag.enter(onCanvas(fixture));
    for (const char *title : {"A", "B", "Head", "B1", "A2"}) {
        drag.move(onBone(fixture, QString::fromLatin1(title)));
        QCOMPARE(staleness(view), QString());
    }
    drag.move(onCanvas(fixture));
    QCOMPARE(staleness(view), QString());
}

FISHBONE_TEST(TestGraphicsViewDrag)
#include "tst_graphicsview_drag.moc"
