// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/fishlayout.h>

#include <numeric>

#include <fishbone/base/onepass.h>
#include <fishbone/drawing/classiclook.h>
#include <fishbone/drawing/spearbuilder.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/model/treeitem.h>

FishLayout::FishLayout(SpearItem *head, std::shared_ptr<const DrawingLook> look)
    : m_tree(head)
    , m_look(look ? std::move(look)
                  : std::static_pointer_cast<const DrawingLook>(SpearLook::standard()))
{
}

/** Brings every spear in line with its subject, parents before their children, and calls @p refresh
 * with each and the direction it is to have. */
template <typename Refresh>
void FishLayout::refreshAll(Refresh refresh)
{
    const OnePass pass;
    SpearItem *const head = m_tree.head().spear;
    head->setLook(m_look);
    refresh(head, 0);
    head->updateTaskStatus();
    updateLinkItem(head);
    for (const SpearTree::Entry &parent : m_tree.entries()) {
        for (int row = 0; row < parent.childCount; ++row) {
            const SpearTree::Entry &child = m_tree.child(parent, row);
            child.spear->setLook(m_look);
            refresh(child.spear, SpearBuilder::directionFor(parent.spear, parent.level, row));
            child.spear->updateTaskStatus();
            child.spear->setVisible(parent.spear->isExpand());
            refreshCompanions(child);
        }
    }
}

void FishLayout::refreshSpears()
{
    refreshAll([](SpearItem *spear, int direction) { spear->initData(direction); });
}

bool FishLayout::update(SettledDrawing &settled)
{
    refreshAll([](SpearItem *spear, int direction) { spear->refresh(direction); });
    const std::vector<SpearTree::Entry> &entries = m_tree.entries();
    bool isSettled = m_look->isSettled() && settled.matches(entries.size(), m_look.get());
    for (std::size_t i = 0; isSettled && i < entries.size(); ++i)
        isSettled = settled.matches(i, *entries[i].spear);
    if (isSettled)
        return false;
    for (const SpearTree::Entry &entry : entries)
        entry.spear->beginLayout();
    sizeSpears();
    placeSpears();
    std::vector<SettledSpear> spears;
    spears.reserve(entries.size());
    for (const SpearTree::Entry &entry : entries)
        spears.emplace_back(*entry.spear);
    settled.note(std::move(spears), m_look.get());
    return true;
}

void FishLayout::refreshCompanions(const SpearTree::Entry &entry) const
{
    updateLinkItem(entry.spear);
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
    return std::accumulate(
        entries.cbegin(), entries.cend(), 0, [](int count, const SpearTree::Entry &entry) {
            const SpearItem &spear = *entry.spear;
            const int always = 3; // the spear, its text and its status
            return count + always + (spear.linkItem() ? 1 : 0) + (spear.expandBuddy() ? 1 : 0);
        });
}

void FishLayout::expandBones(bool expand)
{
    const std::vector<SpearTree::Entry> &entries = m_tree.entries();
    for (auto entry = entries.cbegin() + 1; entry != entries.cend(); ++entry)
        entry->spear->setExpand(expand);
}
