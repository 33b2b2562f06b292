// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// The clear look against the classic one: "bare" is the classic look here, and one relayout where
// the best arrangement is looked for.

#include <fishbone/exchange/diagrampicture.h>

#include <benchmarks/paired.h>
#include <benchmarks/rows.h>
#include <benchmarks/shownfish.h>

#include <algorithm>

namespace {

/** Two editors on documents that are alike, expanded to the last bone, each in a look. */
class TwoLooks
{
public:
    TwoLooks(Synthetic::Shape shape, int count)
        : m_clear(shape, count)
        , m_classic(shape, count)
    {
        m_clear.editor.setLook(DiagramLook::Clear);
        for (ShownFish *fish : {&m_clear, &m_classic})
            fish->expandAll();
        settle();
    }

protected:
    static double updateSeconds(ShownFish &fish)
    {
        settle();
        const double seconds = Paired::secondsOf([&fish] { fish.editor.updateFish(false); });
        settle();
        return seconds;
    }

    /** The longer first bones push all behind them along, on both sides. */
    static void lengthen(ShownFish &fish)
    {
        for (int row = 0; row < 2; ++row) {
            TreeItem *const bone = fish.head()->childAtIndex(row);
            const QString title = bone->title();
            const bool isLong = title.contains(u'\u00b7');
            bone->setTitle(isLong ? title.section(u'\u00b7', 0, 0) : title + u'\u00b7' + title);
        }
    }

    ShownFish m_clear;
    ShownFish m_classic;
};

/** A relayout in which every bone moves. */
class MovingAll : TwoLooks
{
public:
    using TwoLooks::TwoLooks;

    double ours() { return secondsIn(m_clear); }
    double bare() { return secondsIn(m_classic); }

private:
    static double secondsIn(ShownFish &fish)
    {
        lengthen(fish);
        return updateSeconds(fish);
    }
};

/** A title that is typed, letter by letter, into the last bone of all. */
class Typing : TwoLooks
{
public:
    using TwoLooks::TwoLooks;

    double ours() { return secondsIn(m_clear); }
    double bare() { return secondsIn(m_classic); }

private:
    static double secondsIn(ShownFish &fish)
    {
        TreeItem *bone = fish.head();
        while (bone->childCount() > 0)
            bone = bone->childAtIndex(bone->childCount() - 1);
        const QModelIndex index = fish.model.indexFromItem(bone);
        settle();
        const double seconds = Paired::secondsOf(
            [&] { fish.editor.renameItem(index, bone->title() + QLatin1Char('x')); });
        settle();
        return seconds;
    }
};

/** The longest wait for another title of the first, of a middle and of the last bone, in a view. */
class LongestWait : TwoLooks
{
public:
    LongestWait(Synthetic::Shape shape, int count)
        : TwoLooks(shape, count)
    {
        for (ShownFish *fish : {&m_clear, &m_classic}) {
            fish->editor.resize(1200, 800);
            fish->editor.show();
            fish->editor.equalRatio(fish->editor.scene()->itemsBoundingRect());
        }
        settle();
    }

    double ours() { return secondsIn(m_clear); }
    double bare() { return secondsIn(m_classic); }

private:
    static double secondsIn(ShownFish &fish)
    {
        double longest = 0;
        const TreeItem *const head = fish.head();
        for (const int row : {0, head->childCount() / 2, head->childCount() - 1}) {
            const TreeItem *bone = head->childAtIndex(row);
            while (bone->childCount() > 0)
                bone = bone->childAtIndex(row == 0 ? 0 : bone->childCount() - 1);
            const QModelIndex index = fish.model.indexFromItem(bone);
            settle();
            longest = std::max(longest, Paired::secondsOf([&] {
                                   fish.editor.renameItem(index, bone->title() + QLatin1Char('x'));
                                   settle(); // with all that is painted for it
                               }));
        }
        return longest;
    }
};

/** The best arrangement for a slide, against one relayout. */
class Arranging : TwoLooks
{
public:
    using TwoLooks::TwoLooks;

    double ours()
    {
        const QSizeF slide(16, 9);
        return Paired::secondsOf([&] { DiagramPicture::arrangedFor(slide, m_clear.head()); });
    }
    double bare()
    {
        lengthen(m_clear);
        return updateSeconds(m_clear);
    }
};

} // namespace

void addRows()
{
    using Paired::Sizes;
    Paired::addRow<MovingAll>("G19a clear look, all moved");
    Paired::addRow<Typing>("G19b clear look, a title", Sizes::GatesOnly);
    const auto wait = [](benchmark::State &state, Synthetic::Shape shape, int size) {
        LongestWait fish(shape, size);
        Paired::compare(
            state, [&fish] { return fish.ours(); }, [&fish] { return fish.bare(); });
    };
    for (const auto shape :
         {Synthetic::Shape::Fan, Synthetic::Shape::Wide, Synthetic::Shape::Wide2}) {
        Paired::add("G19b longest wait for a title", shape, 2000, wait)
            ->UseManualTime()
            ->Iterations(Paired::repetitions);
    }
    Paired::addRow<Arranging>("G19c best arrangement", Sizes::GatesOnly);
}
