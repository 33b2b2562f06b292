// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QtTest>

#include <cmath>
#include <limits>

#include <tests/editor/sampletrees.h>
#include <tests/program/testprogram.h>
#include <tests/support/editorfixture.h>
#include <tests/support/signalrecorder.h>

using namespace TestSupport;

/** Which part of the drawing the view shows. */
class TestFishEditorFitting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldReturnToFullSize();
    void shouldFitARectangle_data();
    void shouldFitARectangle();
    void shouldSnapToTheZoomValueAfterFitting();
    void shouldFitNothing_data();
    void shouldFitNothing();
    void shouldFitNothingIntoATinyView_data();
    void shouldFitNothingIntoATinyView();
    void shouldBringAFittedRectangleIntoView();
    void shouldShowEverythingBelowTheHead();
    void shouldShowNothingEntirelyWithoutAHead();
    void shouldShowWhatIsSelectedInItsOwnCoordinates();
    void shouldUniteSelectedRectangles();
    void shouldStayWhenNothingIsSelected();
    void shouldCentreASpear();
    void shouldScrollASpearIntoView();
    void shouldStayForASubjectThatHasNoSpear_data();
    void shouldStayForASubjectThatHasNoSpear();
};

namespace {
/** Where the view looks: its scale and the scene point in its middle. */
QString look(const FishEditor &editor)
{
    const QTransform &matrix = editor.view()->transform();
    const QPointF middle = editor.view()->mapToScene(editor.view()->viewport()->rect().center());
    return QStringLiteral("%1 %2 %3 %4 at %5 %6")
        .arg(matrix.m11())
        .arg(matrix.m12())
        .arg(matrix.m21())
        .arg(matrix.m22())
        .arg(middle.x())
        .arg(middle.y());
}

/** Whether @p rect is wholly in view with 50 pixels around it, give or take a pixel. */
bool isInView(const FishEditor &editor, const QRectF &rect)
{
    const QRect shown = editor.view()->mapFromScene(rect).boundingRect();
    return editor.view()->viewport()->rect().adjusted(49, 49, -49, -49).contains(shown);
}
} // namespace

void TestFishEditorFitting::shouldReturnToFullSize()
{
    EditorFixture fish(SampleTrees::narrow());
    QVERIFY(fish.show(false));
    fish.editor.scene()->setSceneRect(-9000, -9000, 18000, 18000);
    fish.editor.zoomFish(300);
    fish.editor.rotateFish(90);
    fish.editor.view()->centerOn(4000, 4000);
    SignalRecorder recorder(fish.editor);

    fish.editor.fullSize();

    QCOMPARE(fish.editor.zoomValue(), 250);
    QCOMPARE(fish.editor.rotateValue(), 90);
    QCOMPARE(fish.editor.view()->transform(), QTransform().rotate(90));
    QCOMPARE(recorder.take(), QStringLiteral("zoomValueChanged(250)"));
    QVERIFY(isInView(fish.editor, QRectF(0, 0, 0, 0)));
}

void TestFishEditorFitting::shouldFitARectangle_data()
{
    QTest::addColumn<QSizeF>("relative"); // of the rectangle, to what is available
    QTest::addColumn<double>("scale");
    QTest::addColumn<int>("value");

    // 50 x log2(scale) + 250, truncated.
    QTest::newRow("1:1") << QSizeF(1, 1) << 1.0 << 250;
    QTest::newRow("half") << QSizeF(2, 2) << 0.5 << 200;
    QTest::newRow("half for the width") << QSizeF(2, 0.1) << 0.5 << 200;
    QTest::newRow("half for the height") << QSizeF(0.1, 2) << 0.5 << 200;
    QTest::newRow("0.7") << QSizeF(1 / 0.7, 1) << 0.7 << 224;
    QTest::newRow("twice") << QSizeF(0.5, 0.25) << 2.0 << 300;
    QTest::newRow("a little more") << QSizeF(1 / 1.01, 0.5) << 1.01 << 250;
    QTest::newRow("a little less") << QSizeF(1 / 0.99, 0.5) << 0.99 << 249;
    QTest::newRow("truncated towards zero") << QSizeF(64.4, 1) << 1 / 64.4 << -50;
}

void TestFishEditorFitting::shouldFitARectangle()
{
    QFETCH(QSizeF, relative);
    QFETCH(double, scale);
    QFETCH(int, value);
    EditorFixture fish(SampleTrees::narrow());
    QVERIFY(fish.show(false));
    fish.editor.zoomFish(17);
    fish.editor.rotateFish(33);
    const QSizeF available = fish.editor.view()->viewport()->size() - QSize(100, 100);
    SignalRecorder recorder(fish.editor);

    fish.editor.equalRatio(QRectF(-10, -20, available.width() * relative.width(),
                                  available.height() * relative.height()));

    QCOMPARE(fish.editor.zoomValue(), value);
    QCOMPARE(fish.editor.rotateValue(), 0);
    QCOMPARE(recorder.take(),
             QStringLiteral("zoomValueChanged(%1), rotateValueChanged(0)").arg(value));
    QVERIFY(qFuzzyCompare(fish.editor.view()->transform(), QTransform::fromScale(scale, scale)));
}

void TestFishEditorFitting::shouldSnapToTheZoomValueAfterFitting()
{
    EditorFixture fish(SampleTrees::narrow());
    QVERIFY(fish.show(false));
    const QSizeF available = fish.editor.view()->viewport()->size() - QSize(100, 100);

    fish.editor.equalRatio(QRectF(QPointF(), available / 0.7));
    fish.editor.setupMatrix();

    const double snapped = std::pow(2.0, (224 - 250) / 50.0);
    QCOMPARE(fish.editor.view()->transform(), QTransform::fromScale(snapped, snapped));
}

void TestFishEditorFitting::shouldFitNothing_data()
{
    QTest::addColumn<QRectF>("rect");
    const double infinity = std::numeric_limits<double>::infinity();

    QTest::newRow("null") << QRectF();
    QTest::newRow("without width") << QRectF(0, 0, 0, 10);
    QTest::newRow("without height") << QRectF(0, 0, 10, 0);
    QTest::newRow("negative") << QRectF(0, 0, -10, -10);
    QTest::newRow("infinite") << QRectF(0, 0, infinity, infinity);
    QTest::newRow("too small to divide by") << QRectF(0, 0, 5e-324, 5e-324);
}

void TestFishEditorFitting::shouldFitNothing()
{
    QFETCH(QRectF, rect);
    EditorFixture fish(SampleTrees::narrow());
    QVERIFY(fish.show(false));
    fish.editor.zoomFish(180);
    fish.editor.rotateFish(33);
    const QString before = look(fish.editor);
    SignalRecorder recorder(fish.editor);

    fish.editor.equalRatio(rect);

    QCOMPARE(look(fish.editor), before);
    QCOMPARE(fish.editor.zoomValue(), 180);
    QCOMPARE(fish.editor.rotateValue(), 33);
    QCOMPARE(recorder.take(), QString());
}

void TestFishEditorFitting::shouldFitNothingIntoATinyView_data()
{
    QTest::addColumn<QSize>("viewport");
    QTest::addColumn<bool>("fits");

    QTest::newRow("101 x 101") << QSize(101, 101) << true;
    QTest::newRow("100 x 400") << QSize(100, 400) << false;
    QTest::newRow("400 x 100") << QSize(400, 100) << false;
    QTest::newRow("30 x 30") << QSize(30, 30) << false;
}

void TestFishEditorFitting::shouldFitNothingIntoATinyView()
{
    QFETCH(QSize, viewport);
    QFETCH(bool, fits);
    EditorFixture fish(SampleTrees::narrow());
    GraphicsView *const view = fish.editor.view();
    view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QVERIFY(fish.show(false));
    // The layout would size it with the editor, which no window system makes that small.
    view->resize(viewport + view->size() - view->viewport()->size());
    QCOMPARE(view->viewport()->size(), viewport);
    const QTransform before = view->transform();
    SignalRecorder recorder(fish.editor);

    fish.editor.equalRatio(QRectF(0, 0, 0.5, 0.5));

    QCOMPARE(recorder.take(),
             fits ? QStringLiteral("zoomValueChanged(300), rotateValueChanged(0)") : QString());
    QCOMPARE(view->transform(), fits ? QTransform::fromScale(2, 2) : before);
    QCOMPARE(fish.editor.zoomValue(), fits ? 300 : 250);
}

void TestFishEditorFitting::shouldBringAFittedRectangleIntoView()
{
    EditorFixture fish(SampleTrees::narrow());
    QVERIFY(fish.show(false));
    fish.editor.scene()->setSceneRect(-9000, -9000, 18000, 18000);
    const QRectF rect(3000, -2000, 700, 300);
    QVERIFY(!isInView(fish.editor, rect));

    fish.editor.equalRatio(rect);

    // The longer side fills the view up to the margins, a pixel more or less.
    const QRect shown = fish.editor.view()->mapFromScene(rect).boundingRect();
    const QRect viewport = fish.editor.view()->viewport()->rect();
    QVERIFY(qAbs(shown.width() - (viewport.width() - 100)) <= 2);
    QVERIFY(viewport.adjusted(47, 47, -47, -47).contains(shown));
}

void TestFishEditorFitting::shouldShowEverythingBelowTheHead()
{
    EditorFixture fish(SampleTrees::narrow());
    fish.editor.expandAll();
    QVERIFY(fish.show(false));
    const QSizeF available = fish.editor.view()->viewport()->size() - QSize(100, 100);
    const QRectF below = fish.editor.headSpear()->childrenBoundingRect();

    fish.editor.showEntire();

    const double scale =
        qMin(available.width() / below.width(), available.height() / below.height());
    QVERIFY(qFuzzyCompare(fish.editor.view()->transform(), QTransform::fromScale(scale, scale)));
    QCOMPARE(fish.editor.zoomValue(), int(50 * std::log2(scale) + 250));
}

void TestFishEditorFitting::shouldShowNothingEntirelyWithoutAHead()
{
    FishEditor editor;
    SignalRecorder recorder(editor);

    editor.showEntire();

    QCOMPARE(recorder.take(), QString());
    QCOMPARE(editor.view()->transform(), QTransform());
}

void TestFishEditorFitting::shouldShowWhatIsSelectedInItsOwnCoordinates()
{
    EditorFixture fish(SampleTrees::narrow());
    QVERIFY(fish.show(false));
    QGraphicsItem *const item = fish.editor.scene()->addRect(0, 0, 199, 49);
    item->setFlag(QGraphicsItem::ItemIsSelectable);
    item->setPos(5000, 5000);
    item->setScale(7);
    item->setSelected(true);
    const QSizeF available = fish.editor.view()->viewport()->size() - QSize(100, 100);

    fish.editor.showSelected();

    // With the pen, 200 x 50, whatever its place and scale in the scene.
    const double scale = qMin(available.width() / 200, available.height() / 50);
    QVERIFY(qFuzzyCompare(fish.editor.view()->transform(), QTransform::fromScale(scale, scale)));
}

void TestFishEditorFitting::shouldUniteSelectedRectangles()
{
    EditorFixture fish(SampleTrees::narrow());
    QVERIFY(fish.show(false));
    fish.select({QStringLiteral("Man"), QStringLiteral("Machine")});
    const QRectF united = fish.spear(QStringLiteral("Man"))->boundingRect() |
                          fish.spear(QStringLiteral("Machine"))->boundingRect();
    const QSizeF available = fish.editor.view()->viewport()->size() - QSize(100, 100);

    fish.editor.showSelected();

    const double scale =
        qMin(available.width() / united.width(), available.height() / united.height());
    QVERIFY(qFuzzyCompare(fish.editor.view()->transform(), QTransform::fromScale(scale, scale)));
}

void TestFishEditorFitting::shouldStayWhenNothingIsSelected()
{
    EditorFixture fish(SampleTrees::narrow());
    QVERIFY(fish.show(false));
    const QString before = look(fish.editor);
    SignalRecorder recorder(fish.editor);

    fish.editor.showSelected();

    QCOMPARE(look(fish.editor), before);
    QCOMPARE(recorder.take(), QString());
}

void TestFishEditorFitting::shouldCentreASpear()
{
    EditorFixture fish(SampleTrees::narrow());
    QVERIFY(fish.show(false));
    fish.editor.scene()->setSceneRect(-9000, -9000, 18000, 18000);
    const GraphicsView &view = *fish.editor.view();

    fish.editor.centerView(fish.index(QStringLiteral("Machine")));

    const QPointF centre = fish.spear(QStringLiteral("Machine"))->sceneBoundingRect().center();
    const QPoint off = view.mapFromScene(centre) - view.viewport()->rect().center();
    QVERIFY(off.manhattanLength() <= 3);
}

void TestFishEditorFitting::shouldScrollASpearIntoView()
{
    EditorFixture fish(SampleTrees::narrow());
    QVERIFY(fish.show(false));
    fish.editor.scene()->setSceneRect(-9000, -9000, 18000, 18000);
    fish.editor.view()->centerOn(5000, 3000);

    fish.editor.ensureVisible(fish.index(QStringLiteral("Machine")));

    const QRectF rect = fish.spear(QStringLiteral("Machine"))->sceneBoundingRect();
    QVERIFY(isInView(fish.editor, rect));
    // No further than it has to: the near sides are at the margin.
    const QRect shown = fish.editor.view()->mapFromScene(rect).boundingRect();
    const QRect viewport = fish.editor.view()->viewport()->rect();
    QVERIFY(qAbs(shown.right() - (viewport.left() + 50 + shown.width())) <= 3);
    QVERIFY(qAbs(shown.bottom() - (viewport.top() + 50 + shown.height())) <= 3);
}

void TestFishEditorFitting::shouldStayForASubjectThatHasNoSpear_data()
{
    QTest::addColumn<QString>("title");

    QTest::newRow("never made") << QStringLiteral("Train");
    QTest::newRow("invalid") << QStringLiteral("nobody");
    QTest::newRow("in another document") << QStringLiteral("Bone");
}

void TestFishEditorFitting::shouldStayForASubjectThatHasNoSpear()
{
    QFETCH(QString, title);
    EditorFixture fish(SampleTrees::narrow());
    loadDocument(fish.model, QStringLiteral("Other[Bone]"));
    QVERIFY(fish.show(false));
    fish.editor.scene()->setSceneRect(-9000, -9000, 18000, 18000);
    fish.editor.view()->centerOn(5000, 3000);
    const QString before = look(fish.editor);

    fish.editor.centerView(fish.index(title));
    fish.editor.ensureVisible(fish.index(title));

    QCOMPARE(look(fish.editor), before);
}

FISHBONE_TEST(TestFishEditorFitting)
#include "tst_fisheditor_fitting.moc"
