// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// Painting, and what the mouse costs over the drawing.

#include <cmath>

#include <QElapsedTimer>
#include <QMouseEvent>
#include <QSet>

#include <fishbone/items/svgcache.h>
#include <fishbone/items/svgitem.h>

#include <benchmarks/baredrawing.h>
#include <benchmarks/paired.h>
#include <benchmarks/rows.h>
#include <benchmarks/shownfish.h>

namespace {

constexpr int fewBones = 200;

/**
 * A document on the screen, expanded to the last bone, and the same drawing of bare items in a
 * view of the same size.
 */
class TwoViews
{
public:
    TwoViews(Synthetic::Shape shape, int count)
        : m_fish(shape, count)
    {
        m_fish.expandAll();
        m_fish.editor.resize(1280, 800);
        m_fish.editor.show();
        m_fish.editor.showEntire();
        settle();
        m_plan = planOf(m_fish.editor.headSpear());
        m_bare = std::make_unique<BareDrawing>(m_plan);
        m_bare->build();
        m_bare->view().resize(oursView().size());
        m_bare->view().show();
        lookAlike();
    }

    double ours() { return paintSeconds(oursView()); }
    double bare() { return paintSeconds(m_bare->view()); }

protected:
    QGraphicsView &oursView() { return *m_fish.editor.view(); }

    /** Shows the same part of the drawing in both views. */
    void lookAlike()
    {
        m_bare->scene().setSceneRect(oursView().sceneRect());
        m_bare->view().setTransform(oursView().transform());
        m_bare->view().centerOn(
            oursView().mapToScene(oursView().viewport()->rect()).boundingRect().center());
        settle();
    }

    static double paintSeconds(QGraphicsView &view)
    {
        const double seconds = Paired::secondsOf([&view] { view.viewport()->repaint(); });
        settle();
        return seconds;
    }

    ShownFish m_fish;
    DrawingPlan m_plan;
    std::unique_ptr<BareDrawing> m_bare;
};

/** The same, enlarged until about two hundred bones are in view. */
class TwoCloseViews : public TwoViews
{
public:
    TwoCloseViews(Synthetic::Shape shape, int count)
        : TwoViews(shape, count)
    {
        const QPointF center = m_plan[m_plan.size() / 2].line.center();
        double scale = oursView().transform().m11();
        do {
            scale *= 1.1;
            oursView().setTransform(QTransform::fromScale(scale, scale));
            oursView().centerOn(center);
        } while (bonesInView() > fewBones);
        settle();
        lookAlike();
    }

private:
    int bonesInView()
    {
        const QRectF seen = oursView().mapToScene(oursView().viewport()->rect()).boundingRect();
        int bones = 0;
        for (const BonePlan &bone : m_plan) {
            const QRectF text(bone.textPosition, QSizeF(1, 1));
            bones += seen.intersects(text) ? 1 : 0;
        }
        return bones;
    }
};

/** The mouse on its way across the drawing. */
class MovingMouse : TwoViews
{
public:
    using TwoViews::TwoViews;

    double ours() { return moveSeconds(oursView()); }
    double bare() { return moveSeconds(m_bare->view()); }

private:
    static constexpr int moves = 20;

    static double moveSeconds(QGraphicsView &view)
    {
        double seconds = 0;
        for (int i = 0; i < moves; ++i) {
            // In the middle half of the view, along a line that meets many bones.
            const double part = double(i) / moves;
            const QRect area = view.viewport()->rect();
            const QPoint position(int(area.width() * (0.25 + part / 2)),
                                  int(area.height() * (0.5 + 0.25 * std::sin(40 * part))));
            QMouseEvent event(QEvent::MouseMove, position, view.viewport()->mapToGlobal(position),
                              Qt::NoButton, Qt::NoButton, Qt::NoModifier);
            seconds += Paired::secondsOf([&] { QApplication::sendEvent(view.viewport(), &event); });
            settle();
        }
        return seconds / moves;
    }
};

/** Counts the paint events of a view. */
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QGraphicsView &view) { view.viewport()->installEventFilter(this); }

    int count = 0;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        Q_UNUSED(watched)
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

/**
 * What is painted after a relayout that changes nothing, and in half a second after one bone asked
 * for it.
 */
class CountingPaints : TwoViews
{
public:
    using TwoViews::TwoViews;

    int afterRelayout()
    {
        PaintCounter counter(oursView());
        m_fish.editor.updateFish(false);
        idle(100);
        return counter.count;
    }

    int afterUpdate()
    {
        PaintCounter counter(oursView());
        m_fish.editor.headSpear()->childSpear(0)->update();
        idle(500);
        return counter.count;
    }

private:
    static void idle(int milliseconds)
    {
        QElapsedTimer timer;
        timer.start();
        while (timer.elapsed() < milliseconds)
            QApplication::processEvents(QEventLoop::AllEvents, 10);
    }
};

void countPaints(benchmark::State &state, Synthetic::Shape shape, int size)
{
    CountingPaints subject(shape, size);
    for (auto _ : state) {
        state.counters["relayout"] = subject.afterRelayout();
        state.counters["update"] = subject.afterUpdate();
    }
}

void collectPictures(const ShownFish &fish, QSet<QString> &files)
{
    const QList<QGraphicsItem *> items = fish.editor.scene()->items();
    for (const QGraphicsItem *item : items) {
        const auto *const picture = dynamic_cast<const SvgItem *>(item);
        if (picture && !picture->svgFile().isEmpty())
            files.insert(picture->svgFile());
    }
}

/** How many picture files were parsed for the pictures that this process has shown. */
void countParses(benchmark::State &state, Synthetic::Shape shape, int size)
{
    static QSet<QString> shown{QStringLiteral(":/fishboneDiagram/head.svg"),
                               QStringLiteral(":/fishboneDiagram/tail.svg")};
    for (auto _ : state) {
        ShownFish fish(shape, size);
        fish.editor.setRootIndex(fish.top());
        collectPictures(fish, shown);
        fish.editor.expandAll();
        fish.editor.show();
        settle();
        collectPictures(fish, shown);
        state.counters["parsed"] = parsedSvgFileCount();
        state.counters["shown"] = shown.size();
        state.counters["ratio"] = double(parsedSvgFileCount()) / shown.size();
    }
}

} // namespace

void addRows()
{
    using Synthetic::Shape;
    // First, as it counts what the whole process did.
    for (const int size : Paired::gateSizes)
        Paired::add("G16 parses", Shape::Fan, size, countParses)->Iterations(1);
    for (const int size : Paired::gateSizes)
        Paired::add("G7 paints", Shape::Fan, size, countPaints)->Iterations(1);
    Paired::addRow<TwoViews>("G8a repaint, everything in view");
    Paired::addRow<TwoCloseViews>("G8b repaint, 200 bones in view");
    Paired::addRow<MovingMouse>("G9 mouse move");
}
