// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// The part of ClearLook that takes all spears together.

#include <fishbone/drawing/clearlook.h>

#include <unordered_set>

#include <QApplication>

#include <fishbone/drawing/clearspear.h>
#include <fishbone/drawing/speartree.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/items/spearpasses.h>
#include <fishbone/items/taskstatusitem.h>
#include <fishbone/model/treeitem.h>
#include <fishbone/style/spearstyle.h>

namespace {
bool isSeen(const QGraphicsItem *icon)
{
    return icon && icon->isVisible() && !icon->boundingRect().isEmpty();
}

/** How many subjects are below @p subject. */
int countBelow(const TreeItem &subject)
{
    int count = 0;
    std::vector<const TreeItem *> pending{&subject};
    while (!pending.empty()) {
        const QList<TreeItem *> &children = pending.back()->childItems();
        pending.pop_back();
        count += children.count();
        pending.insert(pending.end(), children.cbegin(), children.cend());
    }
    return count;
}

int hiddenBelow(const SpearItem &spear)
{
    if (spear.isExpand() && !spear.knownChildSpears().isEmpty())
        return 0;
    return spear.treeItem() ? countBelow(*spear.treeItem()) : spear.knownChildSpears().count();
}

std::optional<ClearFont> ownFont(const SpearItem &spear)
{
    const SpearStyle *const own = spear.treeItem() ? spear.treeItem()->spearStyle() : nullptr;
    const QFont *const font = own ? own->textFont(SpearStyle::ssNormal) : nullptr;
    return font ? std::optional(ClearFont::onScreen(*font)) : std::nullopt;
}

ClearSubject subjectOf(const SpearItem &spear, int parent)
{
    ClearSubject subject;
    subject.parent = parent;
    subject.title = spear.text();
    subject.hasStatus = !spear.isHeader() && isSeen(spear.statusItem());
    subject.hasLink = isSeen(spear.linkItem());
    subject.hidden = hiddenBelow(spear);
    subject.font = ownFont(spear);
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

std::unique_ptr<const ClearFrame> frameOf(const ClearLayout &layout)
{
    auto frame = std::make_unique<ClearFrame>();
    frame->head = layout.head();
    frame->tail = layout.tail();
    frame->backbone = layout.backbone();
    return frame;
}

/** Gives @p spear its place; one that stands there already is not touched. */
void give(SpearItem *spear, const ClearLayout &layout, int index, int hidden,
          const QFont &badgeFont)
{
    auto place = std::make_unique<ClearSpear>();
    place->bone = layout.bone(index);
    place->extent = layout.extent(index);
    place->hidden = hidden;
    place->badgeFont = badgeFont;
    if (index == 0)
        place->frame = frameOf(layout);
    const ClearSpear *const former = ClearSpear::of(*spear);
    if (!former || !(*former == *place))
        spear->setLookData(std::move(place));
}
} // namespace

void ClearLook::size(const SpearTree &tree) const
{
    Q_UNUSED(tree) // the texts are measured where they are packed
}

void ClearLook::place(const SpearTree &tree) const
{
    const Shown shown(tree.head().spear);
    const ClearFonts fonts = ClearFonts::ofTheUser();
    const ClearLayout layout(ClearTree(shown.subjects), fonts, ClearOptions::of(m_options),
                             m_texts);
    QFont badge = fonts.badge().font();
    badge.setPixelSize(int(fonts.badge().pixels()));
    m_texts.forgetUnused();
    const std::unordered_set<const SpearItem *> seen(shown.spears.cbegin(), shown.spears.cend());
    for (const SpearTree::Entry &entry : tree.entries()) {
        if (seen.count(entry.spear) == 0)
            entry.spear->setLookData(nullptr);
    }
    for (std::size_t i = 0; i < shown.spears.size(); ++i)
        give(shown.spears[i], layout, int(i), shown.subjects[i].hidden, badge);
    for (const SpearTree::Entry &entry : tree.entries())
        SpearPasses::place(*entry.spear, entry.spear->parentSpear());
}
