// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/editing/mousedrags.h>

#include <QMenu>
#include <QScrollBar>

#include <fishbone/items/textitem.h>
#include <tests/app/appfixture.h>
#include <tests/program/testprogram.h>

class TestMouseDrags : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldDragTheCanvas_data();
    void shouldDragTheCanvas();
    void shouldMoveABoneOnlyBeyondALittleWay();
    void shouldDropABoneOnAnother();
    void shouldGoBackWithEscape();
    void shouldGoOnAfterEscape();
    void shouldTakeSpaceAloneForMarking();
    void shouldNotMarkAfterADragWithSpace();
    void shouldForgetSpaceWithTheFocus();
};

namespace {
/** The canvas of a window, larger than the window shows of it. */
class Canvas
{
public:
    Canvas()
    {
        app.trigger("expandall");
        app.trigger("fit");
        for (int i = 0; i < 6; ++i)
            app.trigger("zoomin");
        app.window.editor()->view()->centerOn(at("Machines"));
        AppFixture::settle();
    }

    GraphicsView *view() const { return app.window.editor()->view(); }
    QWidget *viewport() const { return view()->viewport(); }
    SpearItem *spear(const char *title) const { return app.subject(title)->spear(); }
    QPointF at(const char *title) const
    {
        return spear(title)->textItem()->sceneBoundingRect().center();
    }
    QPoint seen(const char *title) const { return view()->mapFromScene(at(title)); }
    QPoint scrolled() const
    {
        return {view()->horizontalScrollBar()->value(), view()->verticalScrollBar()->value()};
    }

    void move(const QPoint &to, Qt::MouseButton button) const
    {
        QMouseEvent event(QEvent::MouseMove, to, viewport()->mapToGlobal(to), Qt::NoButton, button,
                          Qt::NoModifier);
        QApplication::sendEvent(viewport(), &event);
    }
    void press(const QPoint &at, Qt::MouseButton button = Qt::LeftButton) const
    {
        QTest::mousePress(viewport(), button, {}, at);
    }
    void release(const QPoint &at, Qt::MouseButton button = Qt::LeftButton) const
    {
        QTest::mouseRelease(viewport(), button, {}, at);
        AppFixture::settle();
    }

    /** Presses at @p from and drags to @p to, without letting go. */
    void drag(const QPoint &from, const QPoint &to) const
    {
        press(from);
        move(from + QPoint(15, 0), Qt::LeftButton);
        move(to, Qt::LeftButton);
    }

    AppFixture app;
};

QPoint aLittle()
{
    return {QApplication::startDragDistance() - 1, 0};
}
} // namespace

void TestMouseDrags::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_mousedrags"));
}

void TestMouseDrags::shouldDragTheCanvas_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("withSpace");
    QTest::newRow("middle button") << int(Qt::MiddleButton) << false;
    QTest::newRow("left button and Space") << int(Qt::LeftButton) << true;
}

void TestMouseDrags::shouldDragTheCanvas()
{
    QFETCH(int, button);
    QFETCH(bool, withSpace);
    const auto held = Qt::MouseButton(button);
    const Canvas canvas;
    const QPoint from = canvas.seen("Machines");
    const QPoint before = canvas.scrolled();
    const QString text = canvas.app.text();
    const QStringList selected = canvas.app.selectedInDrawing();

    if (withSpace)
        QTest::keyPress(canvas.view(), Qt::Key_Space);
    canvas.press(from, held);
    canvas.move(from + QPoint(-20, 0), held);
    canvas.move(from + QPoint(-30, 12), held);
    QCOMPARE(canvas.scrolled(), before + QPoint(30, -12));
    canvas.release(from + QPoint(-30, 12), held);
    if (withSpace)
        QTest::keyRelease(canvas.view(), Qt::Key_Space);
    AppFixture::settle();

    QCOMPARE(canvas.scrolled(), before + QPoint(30, -12));
    QCOMPARE(canvas.app.text(), text);
    QCOMPARE(canvas.app.selectedInDrawing(), selected);
    canvas.move(from, Qt::NoButton);
    QCOMPARE(canvas.scrolled(), before + QPoint(30, -12));
}

void TestMouseDrags::shouldMoveABoneOnlyBeyondALittleWay()
{
    const Canvas canvas;
    const QPoint from = canvas.seen("Machines");
    canvas.press(from);
    canvas.move(from + aLittle(), Qt::LeftButton);
    QCOMPARE(canvas.spear("Machines")->pos(), QPointF());
    canvas.move(from + aLittle() + QPoint(1, 0), Qt::LeftButton);
    QVERIFY(canvas.spear("Machines")->pos() != QPointF());
    canvas.release(from);
    QCOMPARE(canvas.spear("Machines")->pos(), QPointF());
    QCOMPARE(canvas.app.selectedInDrawing(), QStringList(QStringLiteral("Machines")));
    QVERIFY(!canvas.app.window.editor()->undoStack()->canUndo());
}

void TestMouseDrags::shouldDropABoneOnAnother()
{
    const Canvas canvas;
    canvas.app.window.editor()->fullSize();
    AppFixture::settle();
    const QPoint from = canvas.seen("Machines");
    const QPoint target = canvas.seen("Material");
    canvas.drag(from, target);
    canvas.release(target);
    QCOMPARE(canvas.app.subject("Machines")->parent(), canvas.app.subject("Material"));
}

void TestMouseDrags::shouldGoBackWithEscape()
{
    const Canvas canvas;
    canvas.app.window.editor()->fullSize();
    AppFixture::settle();
    const QString text = canvas.app.text();
    const QPoint from = canvas.seen("Machines");
    const QPoint target = canvas.seen("Material");
    canvas.drag(from, target);
    QVERIFY(canvas.spear("Machines")->pos() != QPointF());
    QVERIFY(canvas.view()->linkedSpear());

    QTest::keyClick(canvas.view(), Qt::Key_Escape);
    QCOMPARE(canvas.spear("Machines")->pos(), QPointF());
    QVERIFY(!canvas.spear("Machines")->isMoving());
    QVERIFY(!canvas.view()->linkedSpear());
    canvas.move(target + QPoint(5, 5), Qt::LeftButton);
    QCOMPARE(canvas.spear("Machines")->pos(), QPointF());
    canvas.release(target);

    QCOMPARE(canvas.app.text(), text);
    QVERIFY(!canvas.app.window.editor()->undoStack()->canUndo());
}

void TestMouseDrags::shouldGoOnAfterEscape()
{
    const Canvas canvas;
    canvas.app.window.editor()->fullSize();
    AppFixture::settle();
    const QPoint from = canvas.seen("Machines");
    canvas.press(from);
    QTest::keyClick(canvas.view(), Qt::Key_Escape);
    canvas.release(from);
    const QPoint target = canvas.seen("Material");
    canvas.drag(from, target);
    canvas.release(target);
    QCOMPARE(canvas.app.subject("Machines")->parent(), canvas.app.subject("Material"));
}

void TestMouseDrags::shouldTakeSpaceAloneForMarking()
{
    Canvas canvas;
    canvas.app.select("Machines");
    QTest::keyPress(canvas.view(), Qt::Key_Space);
    AppFixture::settle();
    QVERIFY(!QApplication::activePopupWidget());
    QTest::keyRelease(canvas.view(), Qt::Key_Space);
    AppFixture::settle();
    auto *const palette = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    QVERIFY(palette);
    palette->close();
}

void TestMouseDrags::shouldNotMarkAfterADragWithSpace()
{
    Canvas canvas;
    canvas.app.select("Machines");
    const QPoint from = canvas.seen("Machines");
    QTest::keyPress(canvas.view(), Qt::Key_Space);
    canvas.press(from);
    canvas.release(from);
    QTest::keyRelease(canvas.view(), Qt::Key_Space);
    AppFixture::settle();
    QVERIFY(!QApplication::activePopupWidget());
}

void TestMouseDrags::shouldForgetSpaceWithTheFocus()
{
    const Canvas canvas;
    QTest::keyPress(canvas.view(), Qt::Key_Space);
    canvas.app.window.tree()->view()->setFocus();
    canvas.view()->setFocus();
    const QPoint before = canvas.scrolled();
    const QPoint from = canvas.seen("Machines");
    canvas.press(from);
    canvas.move(from + QPoint(30, 0), Qt::LeftButton);
    QCOMPARE(canvas.scrolled(), before);
    canvas.release(from);
}

FISHBONE_TEST(TestMouseDrags)
#include "tst_mousedrags.moc"
