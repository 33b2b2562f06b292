// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// Making the drawing, bringing it up to date and taking it down.

#include <fishbone/undo/structuralcommands.h>
#include <fishbone/undo/undostack.h>

#include <benchmarks/baredrawing.h>
#include <benchmarks/paired.h>
#include <benchmarks/rows.h>
#include <benchmarks/shownfish.h>

namespace {

/** A document, expanded to the last bone, and the same drawing of bare items. */
class TwoDrawings
{
public:
    TwoDrawings(Synthetic::Shape shape, int count)
        : m_fish(shape, count)
    {
        m_fish.expandAll();
        m_plan = planOf(m_fish.editor.headSpear());
        m_bare = std::make_unique<BareDrawing>(m_plan);
        m_bare->build();
        settle();
    }

protected:
    ShownFish m_fish;
    DrawingPlan m_plan;
    std::unique_ptr<BareDrawing> m_bare;
};

/** Showing a document with every bone, from nothing. */
class Building : TwoDrawings
{
public:
    using TwoDrawings::TwoDrawings;

    double ours()
    {
        m_fish.editor.setRootIndex(QModelIndex());
        settle();
        const double seconds = Paired::secondsOf([this] { m_fish.expandAll(); });
        settle();
        return seconds;
    }

    double bare()
    {
        m_bare->clear();
        settle();
        const double seconds = Paired::secondsOf([this] { m_bare->build(); });
        settle();
        return seconds;
    }
};

/** Showing a document with its main bones alone, against a walk over all its nodes. */
class ShowingContracted
{
public:
    ShowingContracted(Synthetic::Shape shape, int count)
        : m_fish(shape, count)
    {
        m_fish.editor.setRootIndex(m_fish.top());
    }

    double ours()
    {
        settle();
        return Paired::secondsOf([this] { m_fish.editor.setRootIndex(m_fish.top()); });
    }

    double bare() const
    {
        return Paired::secondsOf([this] {
            int spears = 0;
            std::vector<const TreeItem *> pending{m_fish.head()};
            while (!pending.empty()) {
                const TreeItem *const node = pending.back();
                pending.pop_back();
                spears += node->spear() ? 1 : 0;
                pending.insert(pending.end(), node->childItems().cbegin(),
                               node->childItems().cend());
            }
            benchmark::DoNotOptimize(spears);
        });
    }

private:
    ShownFish m_fish;
};

/** A relayout in which every bone moves. */
class MovingAll : protected TwoDrawings
{
public:
    MovingAll(Synthetic::Shape shape, int count)
        : TwoDrawings(shape, count)
    {
        for (int row = 0; row < 2; ++row)
            m_titles.append(bone(row)->title());
        lengthen(true);
        m_fish.editor.updateFish(false);
        m_otherPlan = planOf(m_fish.editor.headSpear());
        requireThatAllMoved();
        settle();
    }

    double ours()
    {
        lengthen(m_oursMoved = !m_oursMoved);
        settle();
        const double seconds = Paired::secondsOf([this] { m_fish.editor.updateFish(false); });
        settle();
        return seconds;
    }

    double bare()
    {
        m_bareMoved = !m_bareMoved;
        const double seconds =
            Paired::secondsOf([this] { m_bare->place(m_bareMoved ? m_otherPlan : m_plan); });
        settle();
        return seconds;
    }

private:
    void requireThatAllMoved() const
    {
        for (std::size_t i = 0; i < m_plan.size(); ++i) {
            if (m_plan[i].line == m_otherPlan[i].line)
                qFatal("bone %d does not move", int(i));
        }
    }

    TreeItem *bone(int row) const { return m_fish.head()->childAtIndex(row); }

    /** The longer first bones push all behind them along, on both sides. */
    void lengthen(bool longer)
    {
        for (int row = 0; row < 2; ++row)
            bone(row)->setTitle(longer ? m_titles.at(row) + m_titles.at(row) : m_titles.at(row));
    }

    QStringList m_titles;
    DrawingPlan m_otherPlan;
    bool m_oursMoved = true;
    bool m_bareMoved = false;
};

/** A relayout in which nothing changes, against moving everything. */
class MovingNothing : public MovingAll
{
public:
    using MovingAll::MovingAll;

    double ours()
    {
        const double seconds = Paired::secondsOf([this] { m_fish.editor.updateFish(false); });
        settle();
        return seconds;
    }
};

/** Undo and redo in turns, which make the drawing anew, and expanding it again. */
class Undoing : TwoDrawings
{
public:
    Undoing(Synthetic::Shape shape, int count)
        : TwoDrawings(shape, count)
    {
        const QModelIndex bone = m_fish.model.index(0, 0, m_fish.top());
        m_fish.editor.undoStack()->push(new InsertBack(&m_fish.model, bone));
        m_fish.editor.expandAll();
        settle();
    }

    double ours()
    {
        const double seconds = Paired::secondsOf([this] {
            if (m_fish.editor.canUndo())
                m_fish.editor.undo();
            else
                m_fish.editor.redo();
            m_fish.editor.expandAll();
        });
        settle();
        return seconds;
    }

    double bare()
    {
        const double seconds = Paired::secondsOf([this] {
            m_bare->clear();
            m_bare->build();
        });
        settle();
        return seconds;
    }
};

class TakingDown : TwoDrawings
{
public:
    using TwoDrawings::TwoDrawings;

    double ours()
    {
        m_fish.expandAll();
        settle();
        const double seconds =
            Paired::secondsOf([this] { m_fish.editor.setRootIndex(QModelIndex()); });
        settle();
        return seconds;
    }

    double bare()
    {
        m_bare->clear();
        m_bare->build();
        settle();
        const double seconds = Paired::secondsOf([this] { m_bare->clear(); });
        settle();
        return seconds;
    }
};

} // namespace

void addRows()
{
    Paired::addRow<Building>("G3 expandAll");
    Paired::addRow<ShowingContracted>("G4 setRootIndex");
    Paired::addRow<MovingAll>("G5 relayout, all moved");
    Paired::addRow<MovingNothing>("G6 relayout, nothing changed");
    Paired::addRow<Undoing>("G12 undo or redo");
    Paired::addRow<TakingDown>("G15 teardown");
}
