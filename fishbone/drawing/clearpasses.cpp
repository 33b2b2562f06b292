// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// The part of ClearLook that takes all spears together.

#include <fishbone/drawing/clearlook.h>

#include <QApplication>

#include <fishbone/base/prefetch.h>
#include <fishbone/drawing/clearcontent.h>
#include <fishbone/drawing/clearspear.h>
#include <fishbone/drawing/speartree.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/items/spearpasses.h>
#include <fishbone/items/taskstatusitem.h>
#include <fishbone/model/subjectmarks.h>
#include <fishbone/model/subjectwalk.h>
#include <fishbone/model/treeitem.h>

namespace {
constexpr std::size_t fetchedAhead = 4; ///< spears that are fetched while others are looked at

bool isSeen(const QGraphicsItem *icon)
{
    return icon && icon->isVisible() && !icon->boundingRect().isEmpty();
}

int hiddenBelow(const SpearItem &spear)
{
    if (spear.isExpand() && !spear.knownChildSpears().isEmpty())
        return 0;
    return spear.treeItem() ? countSubjects(*spear.treeItem()) - 1
                            : spear.knownChildSpears().count();
}

ClearSubject subjectOf(const SpearItem &spear, int parent)
{
    ClearSubject subject;
    subject.parent = parent;
    subject.title = spear.text();
    subject.hasStatus = !spear.isHeader() && isSeen(spear.statusItem());
    subject.hasLink = isSeen(spear.linkItem());
    subject.hidden = hiddenBelow(spear);
    if (spear.treeItem()) {
        subject.font = ClearContent::ownFont(*spear.treeItem());
        subject.votes = SubjectMarks::votes(*spear.treeItem());
    }
    return subject;
}

ClearSubjectLook lookOf(const SpearItem &spear)
{
    return spear.treeItem() ? ClearSubjectLook::of(*spear.treeItem()) : ClearSubjectLook();
}

/** The spears that are shown, in document order, and what the layout has to know of them. */
struct Shown
{
    std::vector<SpearItem *> spears;
    std::vector<ClearSubject> subjects;
    std::vector<ClearSubjectLook> looks;
    std::vector<SpearItem *> hidden; ///< those that are not shown, parents first

    explicit Shown(const SpearTree &tree)
    {
        const std::vector<int> parents = order(tree);
        subjects.reserve(spears.size());
        looks.reserve(spears.size());
        for (std::size_t i = 0; i < spears.size(); ++i) {
            SpearTree::prefetchMovedAfter(spears, i);
            subjects.push_back(subjectOf(*spears[i], parents[i]));
            looks.push_back(lookOf(*spears[i]));
            subjects.back().isFilled = looks.back().fillsTitle(parents[i] <= 0);
        }
    }

private:
    /** Fills in the spears and returns the places of their parents. */
    std::vector<int> order(const SpearTree &tree)
    {
        const std::vector<SpearTree::Entry> &entries = tree.entries();
        std::vector<int> parents;
        std::vector<bool> isShown(entries.size());
        std::vector<std::pair<int, int>> pending{{0, -1}};
        spears.reserve(entries.size());
        parents.reserve(entries.size());
        while (!pending.empty()) {
            const auto [place, parent] = pending.back();
            pending.pop_back();
            if (pending.size() > fetchedAhead)
                SpearPasses::prefetchParts(
                    *entries[std::size_t(pending[pending.size() - fetchedAhead].first)].spear);
            const SpearTree::Entry &entry = entries[std::size_t(place)];
            const int index = int(spears.size());
            spears.push_back(entry.spear);
            parents.push_back(parent);
            isShown[std::size_t(place)] = true;
            if (!entry.spear->isExpand())
                continue;
            for (int row = entry.childCount - 1; row >= 0; --row) {
                pending.emplace_back(entry.firstChild + row, index);
                prefetch(tree.child(entry, row).spear, int(sizeof(SpearItem)));
            }
        }
        for (std::size_t place = 0; place < entries.size(); ++place) {
            if (!isShown[place])
                hidden.push_back(entries[place].spear);
        }
        return parents;
    }
};

/** The symbols that the bones of @p tree show. */
std::vector<ClearMeaning> symbolsOf(const Shown &shown, const ClearTree &tree)
{
    ClearSymbols symbols;
    for (int index = 0; index < tree.size(); ++index) {
        const TreeItem *const subject = shown.spears[std::size_t(index)]->treeItem();
        if (!subject)
            continue;
        ClearSubjectLook look = shown.looks[std::size_t(index)];
        look.icon = ClearSubjectLook::iconOf(*subject);
        symbols.add(*subject, look, tree.level(index));
    }
    return symbols.all();
}

std::unique_ptr<const ClearFrame> frameOf(const ClearLayout &layout,
                                          std::vector<ClearMeaning> symbols)
{
    auto frame = std::make_unique<ClearFrame>();
    frame->head = layout.head();
    frame->tail = layout.tail();
    frame->backbone = layout.backbone();
    frame->legend = layout.legend();
    frame->symbols = std::move(symbols);
    return frame;
}

/** Gives @p spear its place, null for none; one that stands there already is not touched. */
void give(SpearItem *spear, std::unique_ptr<const ClearSpear> place)
{
    const ClearSpear *const former = ClearSpear::of(*spear);
    if (!former || !place || !(*former == *place))
        spear->setLookData(std::move(place));
    SpearPasses::place(*spear, spear->parentSpear());
}

std::vector<QString> textsOf(const std::vector<ClearMeaning> &symbols)
{
    std::vector<QString> texts;
    for (const ClearMeaning &symbol : symbols)
        texts.push_back(symbol.text);
    return texts;
}
} // namespace

void ClearLook::size(const SpearTree &tree) const
{
    Q_UNUSED(tree) // the texts are measured where they are packed
}

/** The colours of the bones of @p tree. */
std::vector<ClearInk> ClearLook::inksOf(const ClearTree &tree,
                                        const std::vector<ClearSubjectLook> &looks) const
{
    std::vector<ClearInk> inks;
    inks.reserve(looks.size());
    int category = -1;
    for (int index = 0; index < tree.size(); ++index) {
        const int level = tree.level(index);
        category += level == 1 ? 1 : 0;
        const int parent = tree.at(index).parent;
        inks.push_back(ClearInk::of(looks[std::size_t(index)], level, category,
                                    parent < 0 ? QColor() : inks[std::size_t(parent)].colour,
                                    m_colors));
    }
    return inks;
}

void ClearLook::place(const SpearTree &tree) const
{
    Shown shown(tree);
    const ClearTree subjects(std::move(shown.subjects));
    const std::vector<ClearInk> inks = inksOf(subjects, shown.looks);
    std::vector<ClearMeaning> symbols;
    if (m_options.hasLegend)
        symbols = symbolsOf(shown, subjects);
    const ClearLayout layout(subjects, ClearFonts::ofTheUser(), ClearOptions::of(m_options),
                             m_texts, textsOf(symbols), m_packed);
    m_texts.forgetUnused();
    for (std::size_t i = 0; i < shown.spears.size(); ++i) {
        SpearTree::prefetchMovedAfter(shown.spears, i);
        auto place = std::make_unique<ClearSpear>();
        place->bone = layout.bone(int(i));
        place->ink = inks[i];
        place->extent = i == 0 ? layout.bounds() : layout.extent(int(i));
        place->hidden = subjects.at(int(i)).hidden;
        if (i == 0)
            place->frame = frameOf(layout, symbols);
        give(shown.spears[i], std::move(place));
    }
    for (std::size_t i = 0; i < shown.hidden.size(); ++i) {
        SpearTree::prefetchMovedAfter(shown.hidden, i);
        give(shown.hidden[i], nullptr);
    }
}
