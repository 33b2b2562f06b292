// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/panels/minimap.h>

#include <tests/app/appfixture.h>
#include <tests/program/testprogram.h>

#include <QScrollBar>

/** The overview in the window, whose view shows only a part of an enlarged drawing. */
class TestMinimap : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsTheWholeDrawing();
    void framesWhatTheViewShows();
    void moveTheViewByPressAndDrag();
    void movesTheViewByKeys();
    void followsTheDiagram();
    void showsTheCurrentTab();
    void staysWhenItsSessionGoes();

private:
    static Minimap *overview(const AppFixture &app)
    {
        auto *const map = app.window.findChild<Minimap *>();
        map->window()->activateWindow();
        map->resize(300, 200);
        return map;
    }
    static void enlarge(AppFixture &app)
    {
        app.window.editor()->expandAll();
        app.window.editor()->view()->scale(8, 8);
        app.window.editor()->view()->centerOn(app.subject("Rust")->spear());
        app.settle();
    }
    static QPointF viewCentre(const AppFixture &app)
    {
        const GraphicsView *const view = app.window.editor()->view();
        return view->mapToScene(view->viewport()->rect().center());
    }
    /** The pixels of @p image that are not like its corner. */
    static QRect inkOf(const QImage &image)
    {
        QRect ink;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixel(x, y) != image.pixel(0, 0))
                    ink |= QRect(x, y, 1, 1);
            }
        }
        return ink;
    }
};

void TestMinimap::showsTheWholeDrawing()
{
    AppFixture app;
    enlarge(app);
    Minimap *const map = overview(app);
    const QRect ink = inkOf(map->grab().toImage());
    QVERIFY2(ink.width() > 260 || ink.height() > 160, "the drawing fills the overview");
    QVERIFY(ink.width() <= 300 - 2);
}

void TestMinimap::framesWhatTheViewShows()
{
    AppFixture app;
    enlarge(app);
    Minimap *const map = overview(app);
    const QImage before = map->grab().toImage();
    app.window.editor()->view()->centerOn(app.subject("People")->spear());
    QVERIFY(map->grab().toImage() != before);
}

void TestMinimap::moveTheViewByPressAndDrag()
{
    AppFixture app;
    enlarge(app);
    Minimap *const map = overview(app);
    map->grab(); // makes the picture
    const QPointF start = viewCentre(app);
    QTest::mousePress(map, Qt::LeftButton, {}, QPoint(150, 100));
    const QPointF middle = viewCentre(app);
    QVERIFY(middle != start);
    const QRectF drawing = app.window.editor()->scene()->itemsBoundingRect();
    QVERIFY2(drawing.contains(middle), "the middle of the overview is in the drawing");
    QTest::mouseMove(map, QPoint(100, 100));
    QMouseEvent drag(QEvent::MouseMove, QPoint(100, 100), map->mapToGlobal(QPoint(100, 100)),
                     Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(map, &drag);
    QVERIFY(viewCentre(app).x() < middle.x());
    QTest::mouseRelease(map, Qt::LeftButton, {}, QPoint(100, 100));
}

void TestMinimap::movesTheViewByKeys()
{
    AppFixture app;
    enlarge(app);
    Minimap *const map = overview(app);
    app.window.editor()->view()->centerOn(app.window.editor()->scene()->sceneRect().center());
    const QPointF start = viewCentre(app);
    map->setFocus();
    QTest::keyClick(map, Qt::Key_Right);
    QVERIFY(viewCentre(app).x() > start.x());
    QTest::keyClick(map, Qt::Key_Left);
    QTest::keyClick(map, Qt::Key_Up);
    QVERIFY(viewCentre(app).y() < start.y());
    QTest::keyClick(map, Qt::Key_Down);
    QVERIFY(qAbs(viewCentre(app).y() - start.y()) < 1);
}

void TestMinimap::followsTheDiagram()
{
    AppFixture app;
    app.window.editor()->expandAll();
    app.settle();
    Minimap *const map = overview(app);
    const QImage before = map->grab().toImage();
    app.select("Machines");
    app.trigger("after");
    app.settle();
    QTRY_VERIFY(map->grab().toImage() != before);
}

void TestMinimap::showsTheCurrentTab()
{
    AppFixture app;
    app.window.editor()->expandAll();
    app.settle();
    Minimap *const map = overview(app);
    const QImage first = map->grab().toImage();
    app.trigger("new");
    const QImage second = map->grab().toImage();
    QVERIFY(second != first);
    app.trigger("close");
    app.settle();
    QVERIFY(inkOf(map->grab().toImage()).isValid());
}

void TestMinimap::staysWhenItsSessionGoes()
{
    Minimap map;
    map.resize(100, 80);
    {
        FishModel model;
        FishEditor editor;
        editor.setModel(&model);
        DiagramSession session(&model, &editor);
        map.setSession(&session);
        map.grab();
    }
    QCOMPARE(inkOf(map.grab().toImage()), QRect());
    QTest::keyClick(&map, Qt::Key_Left);
    QTest::mouseClick(&map, Qt::LeftButton);
}

FISHBONE_TEST(TestMinimap)
#include "tst_minimap.moc"
