// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// The part of ClearLook that takes all spears together.

#include <fishbone/drawing/clearlook.h>

#include <unordered_set>

#include <QApplication>

#include <fishbone/drawing/clearcontent.h>
#include <fishbone/drawing/clearspear.h>
#include <fishbone/drawing/speartree.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/items/spearpasses.h>
#include <fishbone/items/taskstatusitem.h>
#include <fishbone/model/subjectmarks.h>
#include <fishbone/model/treeitem.h>

namespace {
bool isSeen(const QGraphicsItem *icon)
{
    return icon && icon->isVisible() && !icon->boundingRect().isEmpty();
}

int hiddenBelow(const SpearItem &spear)
{
    if (spear.isExpand() && !spear.knownChildSpears().isEmpty())
        return 0;
    return spear.treeItem() ? ClearContent::countBelow(*spear.treeItem())
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

/** The spears that are shown, in document order, and what the layout has to know of them. */
struct Shown
{
    std::vector<SpearItem *> spears;
    std::vector<ClearSubject> subjects;

    explicit Shown(SpearItem *head)
    {
        std::vector<std::pair<SpearItem *, int>> pending{{head, -1}};
        while (!pending.empty()) {
            const auto [spear, parent] = pending.back();
            pending.pop_back();
            const int index = int(spears.size());
            spears.push_back(spear);
            subjects.push_back(subjectOf(*spear, parent));
            if (!spear->isExpand())
                continue;
            const QList<SpearItem *> &children = spear->knownChildSpears();
            for (auto child = children.crbegin(); child != children.crend(); ++child)
                pending.emplace_back(*child, index);
        }
    }
};

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

/** Gives @p spear its place; one that stands there already is not touched. */
void give(SpearItem *spear, std::unique_ptr<const ClearSpear> place)
{
    const ClearSpear *const former = ClearSpear::of(*spear);
    if (!former || !(*former == *place))
        spear->setLookData(std::move(place));
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

/** The colours of the bones of @p tree, and the symbols that they show. */
std::vector<ClearInk> ClearLook::inksOf(const ClearTree &tree,
                                        const std::vector<SpearItem *> &spears,
                                        ClearSymbols &symbols) const
{
    std::vector<ClearInk> inks;
    inks.reserve(spears.size());
    int category = -1;
    for (int index = 0; index < tree.size(); ++index) {
        const TreeItem *const subject = spears[std::size_t(index)]->treeItem();
        ClearSubjectLook look = subject ? ClearSubjectLook::of(*subject) : ClearSubjectLook();
        if (subject && m_options.hasLegend)
            look.icon = ClearSubjectLook::iconOf(*subject);
        const int level = tree.level(index);
        category += level == 1 ? 1 : 0;
        const int parent = tree.at(index).parent;
        inks.push_back(ClearInk::of(look, level, category,
                                    parent < 0 ? QColor() : inks[std::size_t(parent)].colour,
                                    m_colors));
        if (subject && m_options.hasLegend)
            symbols.add(*subject, look, level);
    }
    return inks;
}

void ClearLook::place(const SpearTree &tree) const
{
    const Shown shown(tree.head().spear);
    const ClearTree subjects(shown.subjects);
    ClearSymbols used;
    const std::vector<ClearInk> inks = inksOf(subjects, shown.spears, used);
    std::vector<ClearMeaning> symbols;
    if (m_options.hasLegend)
        symbols = used.all();
    const ClearLayout layout(subjects, ClearFonts::ofTheUser(), ClearOptions::of(m_options),
                             m_texts, textsOf(symbols), m_packed);
    m_texts.forgetUnused();
    const std::unordered_set<const SpearItem *> seen(shown.spears.cbegin(), shown.spears.cend());
    for (const SpearTree::Entry &entry : tree.entries()) {
        if (seen.count(entry.spear) == 0)
            entry.spear->setLookData(nullptr);
    }
    for (std::size_t i = 0; i < shown.spears.size(); ++i) {
        auto place = std::make_unique<ClearSpear>();
        place->bone = layout.bone(int(i));
        place->ink = inks[i];
        place->extent = i == 0 ? layout.bounds() : layout.extent(int(i));
        place->hidden = shown.subjects[i].hidden;
        if (i == 0)
            place->frame = frameOf(layout, symbols);
        give(shown.spears[i], std::move(place));
    }
    for (std::size_t place = 0; place < tree.entries().size(); ++place) {
        tree.prefetchMovedAfter(place);
        SpearItem *const spear = tree.entries()[place].spear;
        SpearPasses::place(*spear, spear->parentSpear());
    }
}
