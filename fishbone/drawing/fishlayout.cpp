// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/fishlayout.h>

#include <numeric>

#include <fishbone/base/onepass.h>
#include <fishbone/drawing/classiclook.h>
#include <fishbone/drawing/spearbuilder.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/items/spearpasses.h>
#include <fishbone/model/treeitem.h>

FishLayout::FishLayout(SpearItem *head, std::shared_ptr<const DrawingLook> look)
    : m_tree(head)
    , m_look(look ? std::move(look)
                  : std::static_pointer_cast<const DrawingLook>(SpearLook::standard()))
{
}

/** Brings every spear in line with its subject, parents before their children. Calls @p refresh
 * with each and the direction it is to have, and @p visit with each when it is done. */
template <typename Refresh, typename Visit>
void FishLayout::refreshAll(Refresh refresh, Visit visit)
{
    const OnePass pass;
    SpearItem *const head = m_tree.head().spear;
    head->setLook(m_look);
    refresh(head, 0);
    SpearPasses::updateIcons(*head);
    visit(std::size_t(0), *head);
    for (const SpearTree::Entry &parent : m_tree.entries()) {
        for (int row = 0; row < parent.childCount; ++row) {
            const std::size_t place = std::size_t(parent.firstChild + row);
            m_tree.prefetchAfter(place);
            const SpearTree::Entry &child = m_tree.entries()[place];
            child.spear->setLook(m_look);
            refresh(child.spear, SpearBuilder::directionFor(parent.spear, parent.level, row));
            SpearPasses::updateIcons(*child.spear);
            child.spear->setVisible(parent.spear->isExpand());
            refreshButton(child);
            visit(place, *child.spear);
        }
    }
}

void FishLayout::refreshSpears()
{
    refreshAll([](SpearItem *spear, int direction) { spear->initData(direction); },
               [](std::size_t, SpearItem &) {});
}

bool FishLayout::update(SettledDrawing &settled)
{
    const std::size_t count = m_tree.entries().size();
    const bool isNoted = m_look->isSettled() && settled.matches(count, m_look.get());
    std::size_t standing = isNoted ? count : 0; // so many stand as noted, from the first on
    refreshAll([](SpearItem *spear, int direction) { SpearPasses::refresh(*spear, direction); },
               [&standing, &settled](std::size_t place, SpearItem &spear) {
                   if (place < standing && !settled.matches(place, spear))
                       standing = place;
                   if (place >= standing)
                       SpearPasses::begin(spear); // now, while the processor has it at hand
               });
    if (standing == count)
        return false;
    for (std::size_t place = 0; place < standing; ++place)
        SpearPasses::begin(*m_tree.entries()[place].spear);
    sizeSpears();
    placeSpears();
    settled.forget();
    if (m_look->isSettled())
        noteIn(settled);
    return true;
}

void FishLayout::noteIn(SettledDrawing &settled) const
{
    settled.note(m_tree, m_look.get());
}

/** Gives the spear of @p entry its expand button, or takes it away with the last child. */
void FishLayout::refreshButton(const SpearTree::Entry &entry)
{
    if (entry.childCount > 0)
        entry.spear->updateExpandButton();
    const TreeItem *const subject = entry.spear->treeItem();
    if (entry.spear->expandBuddy() && subject && subject->childCount() < 1)
        entry.spear->setExpandBuddy(nullptr);
}

void FishLayout::sizeSpears()
{
    m_look->size(m_tree);
}

void FishLayout::placeSpears()
{
    m_look->place(m_tree);
}

int FishLayout::itemCount() const
{
    const std::vector<SpearTree::Entry> &entries = m_tree.entries();
    return std::accumulate(entries.cbegin(), entries.cend(), 0,
                           [](int count, const SpearTree::Entry &entry) {
                               const SpearItem &spear = *entry.spear;
                               const int always = 2; // the spear and its text
                               return count + always + (SpearPasses::madeStatus(spear) ? 1 : 0) +
                                      (spear.linkItem() ? 1 : 0) + (spear.expandBuddy() ? 1 : 0);
                           });
}

void FishLayout::expandBones(bool expand)
{
    const std::vector<SpearTree::Entry> &entries = m_tree.entries();
    for (auto entry = entries.cbegin() + 1; entry != entries.cend(); ++entry)
        entry->spear->setExpand(expand);
}
